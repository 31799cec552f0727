#pragma once

#include "catalogs/contragent.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/property_document.h"
#include "reports/statement_view.h"
#include "support/books.h"

#include <QtCore/QDateTime>

namespace zelvor {

// Books for the reports that follow a balance, and a workspace that remembers what it was asked to open.
class SaldoBooks : public Books, public Workspace {
public:
    struct OpenedReport {
        qint64 contragentID;
        qint64 start;
        qint64 finish;
    };

    // Now is noon of 15 March 2015.
    explicit SaldoBooks(const QTimeZone& zone = QTimeZone::utc()) : Books(moment(2015, 3, 15, 12), zone)
    {
        appDelegate.setWorkspace(this);
        db.execute("BEGIN"); // for the whole test: nothing here depends on the disk
    }
    ~SaldoBooks() override { appDelegate.setWorkspace(nullptr); }

    static qint64 moment(int year, int month, int day, int hour = 0)
    {
        return QDateTime(QDate(year, month, day), QTime(hour, 0), QTimeZone::utc()).toSecsSinceEpoch();
    }

    std::shared_ptr<ContragentGroup> group(const QString& name, qint64 parentID = 0)
    {
        ContragentGroup record;
        record.name = name;
        record.parentID = parentID;
        return store(record);
    }
    std::shared_ptr<Contragent> member(const QString& name, double balance, qint64 groupID,
                                       qint64 holderID = 0)
    {
        Contragent record;
        record.name = name;
        record.setBalance(balance);
        record.parentID = groupID;
        record.parentContragentID = holderID;
        return store(record);
    }

    // A confirmed document of a counterparty whose balance before it was `balance`.
    template <class Document = ProductDocument>
    std::shared_ptr<Document> document(DocType type, qint64 date, const Contragent& contragent, double sum,
                                       double balance, bool confirmed = true)
    {
        Document record;
        record.insertDocType(type);
        record.date = date;
        record.docNumber = ++m_number;
        record.contragentID = contragent.id;
        record.setDocSum(sum);
        record.setContragentBalance(balance);
        record.confirmed = confirmed;
        return store(record);
    }
    // A confirmed money document; `change` sets what else it has.
    template <class Change>
    std::shared_ptr<MoneyDocument> money(DocType type, qint64 date, double sum, Change change)
    {
        MoneyDocument record;
        record.insertDocType(type);
        record.date = date;
        record.docNumber = ++m_number;
        record.setDocSum(sum);
        record.confirmed = true;
        change(record);
        return store(record);
    }

    void openDocWithID(qint64 id, const QString& type) override
    {
        openedDocuments << type + u' ' + QString::number(id);
    }
    void addContragentReport(qint64 id, qint64 start, qint64 finish) override
    {
        openedReports.push_back({id, start, finish});
    }
    QStringList openedDocuments;
    std::vector<OpenedReport> openedReports;

private:
    qint64 m_number = 0;
};

// A cell as plain text: numbers with as many digits as they need.
inline QString cellText(const QVariant& value)
{
    return value.userType() == QMetaType::Double ? Decimal::fromDouble(value.toDouble()).toText()
                                                 : value.toString();
}

// "name|startSaldo|debit|credit|finishSaldo" of each row.
inline QStringList saldoLines(const TableView& view)
{
    QStringList lines;
    for (int row = 0; row < view.numberOfRows(); ++row) {
        QStringList cells;
        for (const char* column : {"name", "startSaldo", "debit", "credit", "finishSaldo"})
            cells << cellText(view.value(row, QString::fromLatin1(column)));
        lines << cells.join(u'|');
    }
    return lines;
}

} // namespace zelvor
