#include "reports/saldo_row.h"

#include "reports/statement_row.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

TEST(SaldoRow, theFinishIsTheStartPlusTheCreditLessTheDebit)
{
    SaldoRow row;
    row.addToCredit(Decimal::fromText(u"5.5"));
    row.addToDebit(Decimal(2));
    row.addToStartSaldo(Decimal(10));
    row.addToDebit(Decimal::fromText(u"0.25"));
    EXPECT_DOUBLE_EQ(row.startSaldo(), 10);
    EXPECT_DOUBLE_EQ(row.debitSum(), 2.25);
    EXPECT_DOUBLE_EQ(row.creditSum(), 5.5);
    EXPECT_DOUBLE_EQ(row.finishSaldo(), 13.25);
    row.setStartSaldo(-1);
    EXPECT_DOUBLE_EQ(row.finishSaldo(), 2.25);
}

TEST(SaldoRow, aSetSumIsTheOneMovementOfTheRow)
{
    SaldoRow row;
    row.setStartSaldo(100);
    row.setDebitSum(30);
    EXPECT_DOUBLE_EQ(row.finishSaldo(), 70);
    row.setCreditSum(5);
    EXPECT_DOUBLE_EQ(row.finishSaldo(), 105) << "the finish does not take both";
}

TEST(SaldoRow, everyFigureIsRoundedHalfToEvenAtTwoDigits)
{
    SaldoRow row;
    row.setStartSaldo(0.125);
    EXPECT_EQ(row.innerStartSaldo().toText(), u"0.12"_s);
    row.setDebitSum(0.135);
    EXPECT_EQ(row.innerDebitSum().toText(), u"0.14"_s);
    row.setCreditSum(1.005);
    EXPECT_EQ(row.innerCreditSum().toText(), u"1"_s);
    SaldoRow added;
    added.addToStartSaldo(Decimal::fromText(u"0.125"));
    added.addToDebit(Decimal::fromText(u"0.135"));
    added.addToCredit(Decimal::fromText(u"0.145"));
    EXPECT_EQ(added.innerStartSaldo().toText(), u"0.12"_s);
    EXPECT_EQ(added.innerDebitSum().toText(), u"0.14"_s);
    EXPECT_EQ(added.innerCreditSum().toText(), u"0.14"_s);
}

TEST(SaldoRow, isFullWithAnyFigureThatIsNotZero)
{
    EXPECT_FALSE(SaldoRow().full());
    SaldoRow start;
    start.setStartSaldo(1);
    EXPECT_TRUE(start.full());
    SaldoRow moved; // back where it began
    moved.addToDebit(Decimal(3));
    moved.addToCredit(Decimal(3));
    EXPECT_TRUE(moved.innerFinishSaldo().isZero());
    EXPECT_TRUE(moved.full());
    SaldoRow broken; // a balance that is no number is told, not hidden
    broken.setStartSaldo(std::nan(""));
    EXPECT_TRUE(broken.full());
}

TEST(SaldoRow, answersTheFourFiguresAndNothingElse)
{
    SaldoRow row;
    row.addToStartSaldo(Decimal(1));
    row.addToDebit(Decimal(2));
    row.addToCredit(Decimal(4));
    EXPECT_EQ(row.valueForIdentifier(u"startSaldo"), QVariant(1.0));
    EXPECT_EQ(row.valueForIdentifier(u"debit"), QVariant(2.0));
    EXPECT_EQ(row.valueForIdentifier(u"credit"), QVariant(4.0));
    EXPECT_EQ(row.valueForIdentifier(u"finishSaldo"), QVariant(3.0));
    EXPECT_EQ(row.valueForIdentifier(u"name"), QVariant(QString()));
    EXPECT_EQ(row.valueForIdentifier(u"id"), QVariant(QString()));
}

TEST(StatementRow, titleRowsHaveTheirSumsAndOneBalanceEach)
{
    StatementRow start = StatementRow::title(StatementRow::Kind::StartTitle);
    StatementRow end = StatementRow::title(StatementRow::Kind::EndTitle);
    start.setStartSaldo(7);
    end.setStartSaldo(7);
    EXPECT_EQ(start.valueForIdentifier(u"name"), QVariant(u"START PERIOD:"_s));
    EXPECT_EQ(end.valueForIdentifier(u"name"), QVariant(u"END PERIOD:"_s));
    for (const StatementRow* row : {&start, &end}) {
        EXPECT_TRUE(row->titleRow());
        EXPECT_EQ(row->valueForIdentifier(u"date"), QVariant(QString()));
        EXPECT_EQ(row->valueForIdentifier(u"debit"), QVariant(0.0));
        EXPECT_EQ(row->valueForIdentifier(u"credit"), QVariant(0.0));
    }
    EXPECT_EQ(start.valueForIdentifier(u"startSaldo"), QVariant(7.0));
    EXPECT_EQ(start.valueForIdentifier(u"finishSaldo"), QVariant(QString()));
    EXPECT_EQ(end.valueForIdentifier(u"startSaldo"), QVariant(QString()));
    EXPECT_EQ(end.valueForIdentifier(u"finishSaldo"), QVariant(7.0));
}

} // namespace zelvor
