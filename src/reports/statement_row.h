#pragma once

#include "documents/document_model.h"
#include "reports/saldo_row.h"

#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

// A line of a statement of account: a document with the balance before and after it, or one of the two title
// rows that stand around the documents and have the balance and the sums of the whole period.
class StatementRow : public SaldoRow {
public:
    enum class Kind : quint8 { Document, StartTitle, EndTitle };

    explicit StatementRow(std::shared_ptr<DocumentModel> shown) : document(std::move(shown)) {}
    // "START PERIOD:" or "END PERIOD:".
    static StatementRow title(Kind kind);

    std::shared_ptr<DocumentModel> document; // none in a title row
    QString name;                            // of a title row

    bool titleRow() const { return m_kind != Kind::Document; }
    // A document's "name" is its type and number. The start row has no balance at the end, the end row none
    // at the start, and a document shows the one sum that it has.
    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    explicit StatementRow(Kind kind) : m_kind(kind) {}

    Kind m_kind = Kind::Document;
};

// The rows of a statement that begins with that balance. A document's row starts where the one before it
// finished; `move(document, row, endRow)` gives the document's sum to both.
template <class Document, class Move>
std::vector<StatementRow> statementRows(const Decimal& balance,
                                        const std::vector<std::shared_ptr<Document>>& documents, Move move)
{
    std::vector<StatementRow> rows{StatementRow::title(StatementRow::Kind::StartTitle)};
    rows.reserve(documents.size() + 2);
    StatementRow end = StatementRow::title(StatementRow::Kind::EndTitle);
    rows.front().addToStartSaldo(balance);
    end.addToStartSaldo(balance);
    for (const std::shared_ptr<Document>& document : documents) {
        StatementRow row(document);
        row.setStartSaldo(rows.back().finishSaldo());
        move(*document, row, end);
        rows.push_back(std::move(row));
    }
    rows.push_back(std::move(end));
    return rows;
}

} // namespace zelvor
