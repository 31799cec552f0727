#pragma once

#include "properties/file_image.h"

#include <map>
#include <string>
#include <vector>

namespace zelvor::audit {

// Keeps the books a second time: carries out each confirmed document by the rules of trade alone, in whole
// hundredths, and compares with the tables. The calendar is UTC.
class Auditor {
public:
    // The file as it stands is the opening balance.
    explicit Auditor(Connector& db);

    // Why the books must not take the document at that moment; empty when they must take it.
    std::string refusal(const Plan& plan, qint64 now) const;
    // Whether the new average cost would be that of nothing at all, which no rule defines.
    bool averagesNothing(const Plan& plan) const;
    // Which input keeps a money document from being saved; empty when nothing does.
    std::string missingMoney(const Plan& plan) const;
    bool monthIsClosed(qint64 now) const;

    // What has happened; compared with what the file now says of it.
    void confirmed(DocKey key, const Plan& plan, qint64 now);
    void monthClosed(qint64 stamp, qint64 now);
    // Prices, rates and new records may have changed: they are taken over, what documents keep is not.
    void catalogsChanged();

    // Stock, balances, costs and numbers against the documents carried out so far.
    void compareBooks();
    // Every document and every snapshot since the beginning, and the plain sums over all documents.
    void compareAll(const std::map<DocKey, Plan>& drafts);

    const BooksImage& books() const { return m_books; }
    // What did not agree since the last call.
    std::vector<std::string> takeFindings();

    int settled = 0;  // how often a document paid for another
    int halves = 0;   // roundings that met a half
    int averages = 0; // average costs worked out
    int depreciated = 0;

private:
    struct Open {
        DocType type;
        qint64 contragent;
        qint64 payTo;
        Cents left;
    };

    void expect(bool agrees, const std::string& what);
    template <class Number>
    void expectEqual(Number wanted, Number found, const std::string& what);
    Cents rounded(Wide dividend, Wide divisor);

    std::string refusedDate(const Plan& plan, qint64 now) const;
    std::string refusedProducts(const Plan& plan) const;
    std::string refusedMoney(const Plan& plan) const;
    std::string refusedProperty(const Plan& plan) const;

    void confirmedProducts(DocKey key, const Plan& plan, const DocImage& doc);
    void confirmedMoney(DocKey key, const Plan& plan, const DocImage& doc);
    void confirmedProperty(DocKey key, const Plan& plan, const DocImage& doc);
    void checkBothSides(const Plan& plan, const DocImage& doc);
    void checkHead(const Plan& plan, const DocImage& doc);
    void checkRows(const Plan& plan, const DocImage& doc);
    Cents checkSums(const Plan& plan, const DocImage& doc);
    void averageCosts(const Plan& plan);
    void moveStock(const Plan& plan);
    // Debts against the credit; answers what stays open of the document itself.
    Cents settleByCredit(const Plan& plan, Cents sum, bool sells);
    void settle(qint64 contragent, bool salesArePaid, Cents rest);
    void compareSums(const DocImages& documents);

    Connector& m_db;
    BooksImage m_books; // as it must be now
    BooksImage m_opening;
    std::map<DocKey, Open> m_open;
    std::map<DocKey, Cents> m_left; // of every confirmed document
    std::map<DocKey, std::string> m_texts;
    std::vector<HistoryImage> m_history;
    qint64 m_latestDate = 0;
    std::vector<std::string> m_findings;
};

} // namespace zelvor::audit
