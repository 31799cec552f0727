#include "store/params.h"
#include "support/test_project.h"
#include "test_records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Records : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE((program.createProject<Params, Unit, Goods, PaperRow, Paper, Person>()));
    }

    TestProgram program;
    Connector& connector = program.appDelegate.connector;
};

} // namespace

TEST_F(Records, theSettingsRowIsReadByIdOne)
{
    EXPECT_EQ(connector.select<Params>(1), nullptr);
    Params params;
    params.companyName = u"Acme"_s;
    ASSERT_EQ(connector.insert(params), 1);
    EXPECT_EQ(params.id, 1);
    const auto stored = program.appDelegate.params();
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->companyName, u"Acme"_s);
    EXPECT_EQ(stored->maxDeferment, 30);
}

TEST_F(Records, anEmptyTableGivesAnEmptyList)
{
    EXPECT_TRUE(connector.freeSQL<Unit>().empty());
    bool taken = false;
    EXPECT_TRUE(
        connector.readRecords(Unit::table(), {}, {}, Fill::Everything, false, [&](auto) { taken = true; }));
    EXPECT_FALSE(taken);
}

TEST_F(Records, aFailingStatementGivesAnEmptyList)
{
    Unit unit;
    connector.insert(unit);
    EXPECT_TRUE(connector.freeSQL<Unit>("WHERE no_such_column=1").empty());
    EXPECT_TRUE(connector.freeSQL<Unit>("WHERE id=?").empty());
    EXPECT_TRUE(connector.freeSQL<Unit>("WHERE id=1; DELETE FROM unit").empty());
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 1U);
}

TEST_F(Records, idsAscendFromOneAndAreNeverGivenTwice)
{
    for (qint64 id = 1; id <= 3; ++id) {
        Unit unit;
        ASSERT_EQ(connector.insert(unit), 1);
        EXPECT_EQ(unit.id, id);
        if (id == 3) {
            ASSERT_EQ(connector.remove(unit), 1);
        }
    }
    Unit next;
    connector.insert(next);
    EXPECT_EQ(next.id, 4);
}

TEST_F(Records, aBooleanParameterComparesWithTheColumn)
{
    Goods shown;
    Goods hidden;
    hidden.isHidden = true;
    connector.insert(shown);
    connector.insert(hidden);
    const auto found = connector.freeSQL<Goods>("WHERE is_hidden=?", {true});
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0]->id, hidden.id);
    EXPECT_EQ(connector.freeSQL<Goods>(" WHERE is_hidden=?", {false}).at(0)->id, shown.id);
}

TEST_F(Records, aTailBuiltPieceByPieceFindsItsRows)
{
    for (int i = 0; i < 5; ++i) {
        Unit unit;
        connector.insert(unit);
    }
    EXPECT_EQ(connector.freeSQL<Unit>("WHERE id=? OR id=? OR id=?", {1, 3, 9}).size(), 2U);
    EXPECT_TRUE(connector.any<Unit>("WHERE id>?", {4}));
    EXPECT_FALSE(connector.any<Unit>("WHERE id>?", {5}));
}

TEST_F(Records, aTailMayNameThousandsOfRecords)
{
    ASSERT_TRUE(connector.beginBulk());
    std::string tail = "WHERE name<>? AND ( id=?";
    std::vector<Parameter> params{u"no"_s, 1};
    for (int i = 1; i <= 3000; ++i) {
        Unit unit;
        connector.insert(unit);
        if (i % 2 == 0) {
            tail += " OR id=?";
            params.emplace_back(i);
        }
    }
    ASSERT_TRUE(connector.endBulk());
    tail += ") AND (id>? OR name=?) ORDER BY id DESC";
    params.emplace_back(2990);
    params.emplace_back(u"no"_s);
    const auto found = connector.freeSQL<Unit>(tail, std::span<const Parameter>(params));
    ASSERT_EQ(found.size(), 5U);
    EXPECT_EQ(found[0]->id, 3000);
}

TEST_F(Records, alternativesBesideAnAndKeepTheirMeaningInALongText)
{
    for (int i = 0; i < 4; ++i) {
        Unit unit;
        connector.insert(unit);
    }
    const std::string longText = "name<>'" + std::string(5000, 'x') + "'";
    const auto count = [&](const std::string& tail, std::initializer_list<Parameter> params) {
        return connector.freeSQL<Unit>(tail, params).size();
    };
    // The AND joins only its neighbour.
    EXPECT_EQ(count("WHERE " + longText + " AND name='no' AND id=? OR id=? OR id=?", {1, 2, 3}), 2U);
    EXPECT_EQ(count("WHERE id=? OR id=? OR id=? AND name='no' AND " + longText, {1, 2, 3}), 2U);
    EXPECT_EQ(count("WHERE NOT id=? OR id=? AND " + longText, {1, 1}), 4U);
}

TEST_F(Records, updateAndRemoveAnswerWhetherTheRowWasThere)
{
    Unit unit;
    connector.insert(unit);
    unit.name = u"kg"_s;
    EXPECT_EQ(connector.update(unit), 1);
    EXPECT_EQ(connector.select<Unit>(unit.id)->name, u"kg"_s);
    EXPECT_EQ(connector.remove(unit), 1);
    EXPECT_EQ(connector.remove(unit), 0);
    EXPECT_EQ(connector.update(unit), 0);
    EXPECT_EQ(connector.select<Unit>(unit.id), nullptr);
}

TEST_F(Records, aWholeSelectFillsTheColumnsInOrder)
{
    Goods goods;
    goods.name = u"Tea"_s;
    goods.price = 2.5;
    connector.insert(goods);
    const auto rows = connector.freeSQL<Goods>("SELECT name, price*2, count(*) FROM goods",
                                               std::span<const Parameter>{}, Fill::Everything, true);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]->name, u"Tea"_s);
    EXPECT_EQ(rows[0]->price, 5.0);
    EXPECT_EQ(rows[0]->amount, 1);
}

TEST_F(Records, textsComeBackAsTheyWereTyped)
{
    const QString texts[] = {QString(),
                             u"O'Neil \"&\" Sons"_s,
                             u"Кофе ☕ 🙂"_s,
                             QString(QChar(QChar::ByteOrderMark)) + u"x"_s,
                             QString::fromUtf16(u"a\0b\0", 4),
                             u"?1 :x @y $z %s"_s,
                             QString(1'000'000, u'ж'),
                             u"  line\r\nline\t "_s};
    for (const QString& text : texts) {
        Unit unit;
        unit.name = text;
        ASSERT_EQ(connector.insert(unit), 1);
        EXPECT_EQ(connector.select<Unit>(unit.id)->name, text);
        EXPECT_TRUE(connector.any<Unit>("WHERE name=? AND id=?", {text, unit.id}));
    }
}

TEST_F(Records, aRealWithoutANumberIsStoredAsNullAndReadAsNaN)
{
    Goods goods;
    goods.price = std::numeric_limits<double>::quiet_NaN();
    ASSERT_EQ(connector.insert(goods), 1);
    EXPECT_TRUE(connector.any<Goods>("WHERE price IS NULL", {}));
    EXPECT_TRUE(std::isnan(connector.select<Goods>(goods.id)->price));
    goods.price = std::numeric_limits<double>::infinity();
    ASSERT_EQ(connector.update(goods), 1);
    EXPECT_TRUE(std::isinf(connector.select<Goods>(goods.id)->price));
}

TEST_F(Records, aValueOfAnotherKindReadsAsNothing)
{
    const auto rows = connector.freeSQL<Goods>("SELECT 12, 'dear', 'many', NULL, 2.5, x'00'",
                                               std::span<const Parameter>{}, Fill::Nothing, true);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0]->name, QString());
    EXPECT_TRUE(std::isnan(rows[0]->price));
    EXPECT_EQ(rows[0]->amount, 0);
    EXPECT_FALSE(rows[0]->isHidden);
    EXPECT_EQ(rows[0]->unitID, 0);
}

TEST_F(Records, theGreatestWholeNumberIsKept)
{
    Goods goods;
    goods.amount = std::numeric_limits<qint64>::max();
    goods.unitID = std::numeric_limits<qint64>::min();
    ASSERT_EQ(connector.insert(goods), 1);
    EXPECT_EQ(connector.select<Goods>(goods.id)->amount, goods.amount);
    EXPECT_TRUE(connector.select<Goods>(goods.id)->unit.isEmpty());
}

TEST_F(Records, anUnknownRecordIsAnsweredWithNone)
{
    EXPECT_EQ(connector.select<Unit>(0), nullptr);
    EXPECT_EQ(connector.select<Unit>(-1), nullptr);
    EXPECT_EQ(connector.select<Unit>(std::numeric_limits<qint64>::max()), nullptr);
}

TEST_F(Records, aWalkMayReadWithTheSameStatement)
{
    for (int i = 0; i < 3; ++i) {
        Unit unit;
        connector.insert(unit);
    }
    int inner = 0;
    const char* all = "SELECT id FROM unit";
    EXPECT_TRUE(connector.scan(
        all, {}, [&](const Statement&) { connector.scan(all, {}, [&](const Statement&) { ++inner; }); }));
    EXPECT_EQ(inner, 9);
    EXPECT_FALSE(connector.scan("SELECT id FROM nothing", {}, [](const Statement&) {}));
    EXPECT_FALSE(connector.scan("DELETE FROM unit", {}, [](const Statement&) {}));
    EXPECT_EQ(connector.freeSQL<Unit>().size(), 3U);
}

TEST_F(Records, manyDifferentQuestionsAllGetTheirAnswer)
{
    Unit unit;
    connector.insert(unit);
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 1000; ++i)
            ASSERT_EQ(connector.freeSQL<Unit>("WHERE id<>" + std::to_string(-1 - i)).size(), 1U);
}

TEST_F(Records, theFileKnowsWhetherItHasATable)
{
    EXPECT_TRUE(connector.hasTable<Goods>());
    connector.close();
    EXPECT_FALSE(connector.hasTable<Goods>());
    EXPECT_EQ(connector.select<Unit>(1), nullptr);
    Unit unit;
    EXPECT_EQ(connector.insert(unit), 0);
    EXPECT_FALSE(connector.execute("BEGIN"));
    EXPECT_TRUE(connector.execute("ROLLBACK"));
    EXPECT_TRUE(connector.execute("COMMIT"));
}

TEST(SettingsRecord, hasItsDefaultsWithoutAStoredRow)
{
    const Params params;
    EXPECT_EQ(params.maxDeferment, 30);
    EXPECT_TRUE(params.printCompanyLogo);
    EXPECT_EQ(params.reportPeriod, 1);
    EXPECT_EQ(params.version, u"1.0"_s);
    EXPECT_EQ(params.defaultCurrency, 0);
}

} // namespace zelvor
