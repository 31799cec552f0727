#include "reports/contragent_report_view_controller.h"
#include "reports/contragents_report_view_controller.h"
#include "reports/employee_account_report_view_controller.h"
#include "reports/saldo_books.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

// A head as the file has it; sums in cents.
struct Head {
    qint64 date;
    int kind;
    qint64 id;
    DocType type;
    qint64 sum;
    qint64 before;
    auto order() const { return std::tuple(date, kind, id); }
};

qint64 cents(double value)
{
    return std::llround(value * 100);
}

// Books of random documents on few moments, so that many share one; balances are random too, since a report
// takes them as they were stored.
class SaldoReportsProperty : public testing::TestWithParam<unsigned> {
protected:
    static constexpr int parties = 6;
    static constexpr qint64 first = 1'420'070'400;

    qint64 upTo(qint64 last) { return std::uniform_int_distribution<qint64>(0, last)(m_random); }
    double amount() { return static_cast<double>(upTo(200'000) - 100'000) / 100; }
    bool chance() { return upTo(3) != 0; }

    void fill()
    {
        for (int i = 0; i < 3; ++i)
            books.group(u"G%1"_s.arg(upTo(9)), upTo(i));
        for (int i = 0; i < parties; ++i) {
            books.member(u"C%1"_s.arg(upTo(9)), amount(), upTo(3), i > 0 ? upTo(i) : 0);
            books.employee(u"E%1"_s.arg(i), amount());
            books.account(u"A%1"_s.arg(i), amount());
        }
        for (int i = 0; i < 150; ++i)
            addDocument();
    }
    void addDocument()
    {
        const auto contragent = books.db.select<Contragent>(1 + upTo(parties - 1), Fill::Nothing);
        const qint64 date = first + upTo(12);
        switch (upTo(2)) {
        case 0:
            books.document(DocType(rawValue(BuyProduct) + upTo(6)), date, *contragent, amount(), amount(),
                           chance());
            break;
        case 1:
            books.document<PropertyDocument>(chance() ? BuyProperty : SellProperty, date, *contragent,
                                             amount(), amount(), chance());
            break;
        default:
            addMoney(date, contragent->id);
        }
    }
    void addMoney(qint64 date, qint64 contragentID)
    {
        books.money(DocType(1 + upTo(7)), date, amount(), [&](MoneyDocument& document) {
            document.contragentID = chance() ? contragentID : 0;
            document.employeeID = upTo(parties);
            document.accountFromID = upTo(parties);
            document.accountToID = upTo(parties);
            document.divident = !chance();
            document.confirmed = chance();
            document.setConvertedSum(amount());
            document.setContragentBalance(amount());
            document.setManagerBalance(amount());
            document.setAccountFromBalance(amount());
            document.setAccountToBalance(amount());
        });
    }

    // The heads of one query a table, in order.
    std::vector<Head> headsOf(qint64 contragentID, qint64 from, qint64 to)
    {
        std::vector<Head> heads;
        int kind = 0;
        for (const char* table : {"product_doc", "property_doc", "money_doc"}) {
            const std::string sql = std::string("SELECT date, id, doc_type_id, doc_sum, contragent_balance "
                                                "FROM ") +
                                    table +
                                    " WHERE date>? AND date<=? AND contragent_id=? AND is_confirmed=1";
            EXPECT_TRUE(books.db.scan(sql, {from, to, contragentID}, [&](const Statement& row) {
                heads.push_back({row.integer(0), kind, row.integer(1), DocType(row.integer(2)),
                                 cents(row.real(3)), cents(row.real(4))});
            }));
            ++kind;
        }
        std::ranges::sort(heads, {}, &Head::order);
        return heads;
    }
    static bool raises(DocType type)
    {
        return type == MoneyFromContragent || type == BuyProduct || type == BuyProperty || type == Return;
    }
    qint64 balanceOf(const char* table, qint64 id)
    {
        qint64 balance = 0;
        books.db.scan(std::string("SELECT balance FROM ") + table + " WHERE id=?", {id},
                      [&](const Statement& row) { balance = cents(row.real(0)); });
        return balance;
    }
    static QString text(qint64 cents) { return Decimal::fromParts(cents, 2).toText(); }
    // The figures of a statement: blank cells as in the tables.
    struct Movement {
        bool isDebit; // the row's side
        qint64 sum;
        bool isDebitAtEnd; // the end row's side
    };
    static QStringList statement(qint64 start, const std::vector<Movement>& movements)
    {
        QStringList lines{text(start) + u"|0|0|"_s};
        qint64 saldo = start;
        qint64 debit = 0;
        qint64 credit = 0;
        for (const Movement& movement : movements) {
            const qint64 next = movement.isDebit ? saldo - movement.sum : saldo + movement.sum;
            const QString sum = movement.sum == 0 ? QString() : text(movement.sum);
            lines << QStringList{text(saldo), movement.isDebit ? sum : QString(),
                                 movement.isDebit ? QString() : sum, text(next)}
                         .join(u'|');
            saldo = next;
            (movement.isDebitAtEnd ? debit : credit) += movement.sum;
        }
        lines << u'|' + text(debit) + u'|' + text(credit) + u'|' + text(start + credit - debit);
        return lines;
    }
    static QStringList figuresOf(const TableView& view)
    {
        QStringList lines;
        for (const QString& line : saldoLines(view))
            lines << line.section(u'|', 1);
        return lines;
    }
    void expectMoneyStatement(const QString& type, qint64 id, qint64 from, qint64 to);

    SaldoBooks books;

private:
    std::mt19937 m_random{GetParam()};
};

void SaldoReportsProperty::expectMoneyStatement(const QString& type, qint64 id, qint64 from, qint64 to)
{
    const bool ofEmployee = type == u"employee";
    const std::string which =
        ofEmployee ? "employee_id=? AND is_divident=0 AND 0<>?" : "(account_from_id=? OR account_to_id=?)";
    std::vector<Movement> movements;
    qint64 start = balanceOf(ofEmployee ? "manager" : "account", id);
    EXPECT_TRUE(books.db.scan(
        "SELECT doc_type_id, doc_sum, converted_sum, account_from_id, account_to_id, manager_balance, "
        "account_from_balance, account_to_balance FROM money_doc WHERE date>=? AND date<=? AND "
        "is_confirmed=1 AND " +
            which + " ORDER BY date, id",
        {from, to, id, id}, [&](const Statement& row) {
            if (movements.empty())
                start = cents(row.real(ofEmployee ? 5 : row.integer(3) == id ? 6 : 7));
            const DocType kind = DocType(row.integer(0));
            qint64 sum = cents(row.real(1));
            bool isReceipt = kind == MoneyFromEmployee;
            if (!ofEmployee) {
                isReceipt = isReceipt || kind == MoneyFromContragent || kind == MoneyAdd;
                if (kind == InnerTransaction && row.integer(4) == id) {
                    isReceipt = true;
                    sum = cents(row.real(2));
                }
            }
            movements.push_back({isReceipt, sum, !isReceipt});
        }));
    EmployeeAccountReportViewController report(books.appDelegate, type);
    report.prepareData();
    report.select.selectTag(id);
    report.dateFrom.setMoment(from);
    report.dateTo.setMoment(to);
    report.prepareReport();
    EXPECT_EQ(figuresOf(report.mainView), statement(start, movements)) << qPrintable(type) << id;
}

} // namespace

TEST_P(SaldoReportsProperty, everyCellIsWhatAQueryForEachRecordGives)
{
    fill();
    const qint64 from = first + 2;
    const qint64 to = first + 9;
    ContragentsReportViewController all(books.appDelegate);
    all.dateFrom.setMoment(from);
    all.dateTo.setMoment(to);
    all.prepareReport();
    std::map<qint64, QString> shown;
    for (const ContragentsReportRow* row : all.mainView.rows()) {
        if (!row->groupRow)
            shown[row->contragent->id] = QStringList{cellText(row->startSaldo()), cellText(row->debitSum()),
                                                     cellText(row->creditSum()), cellText(row->finishSaldo())}
                                             .join(u'|');
    }
    qint64 starts = 0;
    qint64 finishes = 0;
    for (qint64 id = 1; id <= parties; ++id) {
        const std::vector<Head> heads = headsOf(id, from, to);
        const qint64 start = heads.empty() ? balanceOf("contragent", id) : heads.front().before;
        std::vector<Movement> movements;
        qint64 debit = 0;
        qint64 credit = 0;
        for (const Head& head : heads) {
            (raises(head.type) ? credit : debit) += head.sum;
            movements.push_back({!raises(head.type), head.sum, !raises(head.type)});
        }
        starts += start;
        finishes += start + credit - debit;
        EXPECT_EQ(
            shown[id],
            (QStringList{text(start), text(debit), text(credit), text(start + credit - debit)}.join(u'|')));
        ContragentReportViewController one(books.appDelegate);
        ASSERT_TRUE(one.openReport(id, from, to));
        EXPECT_EQ(figuresOf(one.mainView), statement(start, movements));
        expectMoneyStatement(u"employee"_s, id, from, to);
        expectMoneyStatement(u"account"_s, id, from, to);
    }
    EXPECT_EQ(cents(all.mainView.rows().front()->finishSaldo()), starts);
    EXPECT_EQ(cents(all.mainView.rows().back()->finishSaldo()), finishes);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SaldoReportsProperty, testing::Range(1U, 13U));

} // namespace zelvor
