#include "reports/payment_calendar_view_controller.h"
#include "support/document_forms.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

class OpenedDocuments final : public Workspace {
public:
    void openDocWithID(qint64 id, const QString& type) override { opened << type + QString::number(id); }
    QStringList opened;
};

class PaymentCalendar : public testing::Test {
protected:
    PaymentCalendar() { books.appDelegate.setWorkspace(&workspace); }

    template <class Document = ProductDocument>
    std::shared_ptr<Document> debt(DocType type, double left, qint64 due = 1000)
    {
        return openDocument<Document>(books, type, *acme, left, due);
    }
    QString cell(int row, const QString& identifier) const
    {
        const QVariant value = view.value(row, identifier);
        return value.userType() == QMetaType::Double ? Decimal::fromDouble(value.toDouble()).toText()
                                                     : value.toString();
    }
    // "in out" of each line.
    QStringList figures() const
    {
        QStringList lines;
        for (int row = 0; row < view.numberOfRows(); ++row)
            lines << cell(row, u"leftToPayIn"_s) + u' ' + cell(row, u"leftToPayOut"_s);
        return lines;
    }

    Books books;
    std::shared_ptr<Contragent> acme = books.contragent(u"Acme"_s);
    OpenedDocuments workspace;
    PaymentCalendarViewController controller{books.appDelegate};
    const PaymentCalendarView& view = controller.mainView;
};

} // namespace

TEST_F(PaymentCalendar, withoutOpenDocumentsOnlyTheSummaryLinesStandAndTheyAreBlank)
{
    ASSERT_EQ(view.numberOfRows(), 2);
    EXPECT_EQ(cell(0, u"name"_s), u"TOTAL:"_s);
    EXPECT_EQ(cell(1, u"name"_s), u"SALDO:"_s);
    for (const ViewColumn& column : view.columns()) {
        if (column.identifier == u"name")
            continue;
        EXPECT_EQ(view.value(0, column.identifier), QVariant(QString()));
        EXPECT_EQ(view.value(1, column.identifier), QVariant(QString()));
    }
}

TEST_F(PaymentCalendar, eachKindOfDebtStandsOnItsSide)
{
    debt(BuyProduct, 1);
    debt(Return, 20); // money that we have to pay, like a purchase
    debt<PropertyDocument>(BuyProperty, 300);
    debt(SellProduct, 4000);
    debt(SellIntangibles, 50000);
    debt<PropertyDocument>(SellProperty, 600000);
    EXPECT_EQ(figures(), (QStringList{u" 1"_s, u" 20"_s, u"4000 "_s, u"50000 "_s, u" 300"_s, u"600000 "_s,
                                      u"654000 321"_s, u"653679 "_s}));
}

TEST_F(PaymentCalendar, theSaldoStandsOnTheSideThatIsMore)
{
    debt(SellProduct, 100.10);
    debt(BuyProduct, 100.30);
    EXPECT_EQ(figures().mid(2), (QStringList{u"100.1 100.3"_s, u" 0.2"_s}));
}

TEST_F(PaymentCalendar, equalSidesLeaveTheSaldoBlank)
{
    debt(SellProduct, 7);
    debt(BuyProduct, 7);
    EXPECT_EQ(figures().mid(2), (QStringList{u"7 7"_s, u" "_s}));
}

TEST_F(PaymentCalendar, onlyConfirmedDocumentsWithADebtOfTheirOwnAppear)
{
    debt(SellProduct, 0);
    debt(SellProduct, -5);
    debt(AddProduct, 5);
    debt(MoveProduct, 5);
    debt<PropertyDocument>(AddProperty, 5);
    openDocument<MoneyDocument>(books, MoneyFromContragent, *acme, 5, 0);
    const auto draft = debt(SellProduct, 5);
    draft->confirmed = false;
    books.store(*draft);
    EXPECT_EQ(view.numberOfRows(), 2);
}

TEST_F(PaymentCalendar, theDocumentsComeByDateAndThenByKind)
{
    const auto late = debt(SellProduct, 1);
    const auto machine = debt<PropertyDocument>(BuyProperty, 2);
    const auto early = debt(BuyProduct, 3);
    const auto same = debt(BuyProduct, 4); // found before the sale by its type, but made after it
    early->date -= 50;
    books.store(*early);
    EXPECT_EQ(figures().mid(0, 4), (QStringList{u" 3"_s, u"1 "_s, u" 4"_s, u" 2"_s}));
}

TEST_F(PaymentCalendar, aLineNamesTheDocumentAndItsCounterparty)
{
    const auto sale = debt(SellProduct, 2.5, 77);
    sale->setDocSum(10);
    sale->docNumber = 12;
    books.store(*sale);
    EXPECT_EQ(cell(0, u"name"_s), u"Product Document 'Sale' #12 (Acme)"_s);
    EXPECT_EQ(view.value(0, u"date"_s), QVariant(sale->date));
    EXPECT_EQ(view.value(0, u"payToDate"_s), QVariant(sale->payToDate));
    EXPECT_EQ(view.value(0, u"sum"_s), QVariant(10.0));
    EXPECT_EQ(view.value(0, u"leftToPayIn"_s), QVariant(2.5));
    EXPECT_EQ(view.value(0, u"leftToPayOut"_s), QVariant(QString()));
    EXPECT_EQ(view.value(0, u"anything"_s), QVariant(QString()));
    EXPECT_EQ(view.value(3, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.value(-1, u"name"_s), QVariant(QString()));
}

TEST_F(PaymentCalendar, aDebtIsRedFromTheSecondAfterItWasDue)
{
    debt(SellProduct, 1, -1);
    debt(BuyProduct, 1, 0); // due this very second
    for (const QString& column : {u"leftToPayIn"_s, u"leftToPayOut"_s}) {
        EXPECT_EQ(view.cellStyle(0, column).color, redColor);
        EXPECT_EQ(view.cellStyle(1, column).color, blackColor);
        EXPECT_EQ(view.cellStyle(2, column).color, inOrderColor);
    }
    for (const QString& column : {u"name"_s, u"date"_s, u"payToDate"_s, u"sum"_s})
        EXPECT_EQ(view.cellStyle(0, column).color, blackColor);
    EXPECT_EQ(view.cellStyle(0, u"sum"_s).font, CellFont::Small);
    EXPECT_EQ(view.cellStyle(3, u"sum"_s).font, CellFont::GatheringBold12);
    books.clock.set(books.clock.now() + 1); // later the same day
    EXPECT_EQ(view.cellStyle(1, u"leftToPayOut"_s).color, redColor);
}

TEST_F(PaymentCalendar, aSummaryLineAddsUpWhatAPlainLineReplaces)
{
    PaymentCalendarRow plain;
    PaymentCalendarRow summary;
    summary.total = true;
    for (PaymentCalendarRow* row : {&plain, &summary}) {
        row->setLeftToPayIn(0.1);
        row->setLeftToPayIn(0.205);
        row->setLeftToPayOut(5);
        row->setLeftToPayOut(6);
    }
    EXPECT_EQ(plain.innerLeftToPayIn.toText(), u"0.2"_s);
    EXPECT_EQ(plain.leftToPayOut(), 6);
    EXPECT_EQ(summary.innerLeftToPayIn.toText(), u"0.3"_s); // each sum is rounded, half to even
    EXPECT_EQ(summary.leftToPayOut(), 11);
}

TEST_F(PaymentCalendar, aDoubleClickOpensTheDocumentAndASummaryLineNothing)
{
    const auto sale = debt(SellProduct, 1);
    const auto machine = debt<PropertyDocument>(BuyProperty, 2);
    controller.mainView.doubleAction(0);
    controller.mainView.doubleAction(1);
    controller.mainView.doubleAction(2);
    controller.mainView.doubleAction(3);
    controller.mainView.doubleAction(9);
    EXPECT_EQ(workspace.opened, (QStringList{u"Product"_s + QString::number(sale->id),
                                             u"Property"_s + QString::number(machine->id)}));
}

TEST_F(PaymentCalendar, aChangeIsReadAtOnceWhileSomebodyLooksAndOtherwiseWhenAskedFor)
{
    EXPECT_EQ(view.numberOfRows(), 2);
    int reloads = 0;
    controller.mainView.onReload([&reloads] { ++reloads; });
    for (const NotificationName name : {NotificationName::ContragentBalanceChangedNotification,
                                        NotificationName::DocWithContragentChangedNotification}) {
        debt(SellProduct, 1);
        const int rows = view.numberOfRows();
        const qint64 statements = books.db.statementCount();
        books.appDelegate.notifications.post(name);
        EXPECT_EQ(books.db.statementCount(), statements); // nobody looks
        EXPECT_EQ(view.numberOfRows(), rows + 1);
        debt(SellProduct, 1);
        controller.mainView.setVisible(true);
        reloads = 0;
        books.appDelegate.notifications.post(name);
        EXPECT_EQ(reloads, 1);
        EXPECT_EQ(view.numberOfRows(), rows + 2);
        controller.mainView.setVisible(false);
    }
}

TEST_F(PaymentCalendar, theSelectionStaysOnItsDocument)
{
    const auto sale = debt(SellProduct, 1);
    EXPECT_EQ(view.numberOfRows(), 3);
    controller.mainView.selectRow(0);
    const auto earlier = debt(SellProduct, 2);
    earlier->date -= 10;
    books.store(*earlier);
    controller.prepareReport();
    EXPECT_EQ(view.selectedRow(), 1);
    sale->setLeftToPay(0);
    books.store(*sale);
    controller.prepareReport();
    EXPECT_EQ(view.selectedRow(), -1);
    controller.forget();
    EXPECT_EQ(view.numberOfRows(), 3); // read anew
}

TEST_F(PaymentCalendar, thePageHasTheNameAndColoursOfAReport)
{
    EXPECT_EQ(view.name(), u"Payment Calendar"_s);
    EXPECT_EQ(view.titleColor(), reportTitleColor);
    EXPECT_TRUE(view.canExportToExcel());
    QStringList identifiers;
    for (const ViewColumn& column : view.columns())
        identifiers << column.identifier;
    EXPECT_EQ(identifiers, (QStringList{u"name"_s, u"date"_s, u"payToDate"_s, u"sum"_s, u"leftToPayIn"_s,
                                        u"leftToPayOut"_s}));
}

} // namespace zelvor
