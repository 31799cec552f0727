#include "support/test_project.h"
#include "test_records.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Links : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE((program.createProject<Unit, Goods, PaperRow, Paper, Person>())); }

    qint64 addUnit(const QString& name)
    {
        Unit unit;
        unit.name = name;
        connector.insert(unit);
        return unit.id;
    }
    qint64 addGoods(const QString& name, qint64 unitID, qint64 packID = 0)
    {
        Goods goods;
        goods.name = name;
        goods.unitID = unitID;
        goods.packID = packID;
        connector.insert(goods);
        return goods.id;
    }
    static std::shared_ptr<PaperRow> rowOf(qint64 goodsID)
    {
        auto row = std::make_shared<PaperRow>();
        row->goodsID = goodsID;
        return row;
    }
    // Papers with two rows each over a hundred goods with ten units.
    void addPapers(int count)
    {
        ASSERT_TRUE(connector.execute("BEGIN"));
        for (int i = 1; i <= 10; ++i)
            addUnit(QString::number(i));
        for (int i = 1; i <= 100; ++i)
            addGoods(QString::number(i), i % 10 + 1, (i + 1) % 10 + 1);
        for (int i = 0; i < count; ++i) {
            Paper paper;
            paper.date = i;
            paper.mainGoodsID = i % 100 + 1;
            paper.rows = {rowOf(i * 7 % 100 + 1), rowOf(i * 3 % 100 + 1)};
            ASSERT_EQ(connector.insert(paper), 1);
        }
        ASSERT_TRUE(connector.execute("COMMIT"));
    }
    template <class Read>
    qint64 statementsOf(const Read& read)
    {
        const qint64 before = connector.statementCount();
        read();
        return connector.statementCount() - before;
    }

    TestProgram program;
    Connector& connector = program.appDelegate.connector;
};

} // namespace

TEST_F(Links, aReadFillsTheChainFromThePaperToTheUnitOfItsGoods)
{
    const qint64 unitID = addUnit(u"kg"_s);
    const qint64 packID = addUnit(u"box"_s);
    const qint64 goodsID = addGoods(u"Tea"_s, unitID, packID);
    Paper paper;
    paper.mainGoodsID = goodsID;
    paper.rows = {rowOf(goodsID), rowOf(0)};
    ASSERT_EQ(connector.insert(paper), 1);

    const auto stored = connector.select<Paper>(paper.id);
    ASSERT_EQ(stored->rows.size(), 2U);
    EXPECT_EQ(stored->rows[0]->goods->name, u"Tea"_s);
    EXPECT_EQ(stored->rows[0]->goods->unit->name, u"kg"_s);
    EXPECT_EQ(stored->rows[0]->goods->pack->name, u"box"_s);
    EXPECT_EQ(stored->rows[0]->goods.shared(), stored->mainGoods.shared());
    EXPECT_TRUE(stored->rows[1]->goods.isEmpty());
    EXPECT_EQ(stored->rows[1]->goods->amount, 5); // as the empty record has it
}

TEST_F(Links, aLinkToNothingStaysTheEmptyRecord)
{
    const qint64 goodsID = addGoods(u"Tea"_s, 4711);
    EXPECT_TRUE(connector.select<Goods>(goodsID)->unit.isEmpty());
    EXPECT_TRUE(connector.freeSQL<Goods>().at(0)->unit.isEmpty());
}

TEST_F(Links, aMissingTableLeavesItsLinksEmpty)
{
    ASSERT_TRUE(program.createProject<Goods>(u"less.pdb"_s));
    const qint64 goodsID = addGoods(u"Tea"_s, 1);
    const auto goods = connector.select<Goods>(goodsID);
    ASSERT_TRUE(goods);
    EXPECT_TRUE(goods->unit.isEmpty());
}

TEST_F(Links, equalIdsShareOneRecordWithinARead)
{
    const qint64 unitID = addUnit(u"kg"_s);
    addGoods(u"Tea"_s, unitID, unitID);
    addGoods(u"Rice"_s, unitID);
    const auto goods = connector.freeSQL<Goods>();
    ASSERT_EQ(goods.size(), 2U);
    EXPECT_EQ(goods[0]->unit.shared(), goods[1]->unit.shared());
    EXPECT_EQ(goods[0]->unit.shared(), goods[0]->pack.shared());
    EXPECT_NE(connector.freeSQL<Goods>()[0]->unit.shared(), goods[0]->unit.shared());
}

TEST_F(Links, rowsStandInIdOrderUnderTheirOwnHead)
{
    Paper first;
    Paper second;
    first.rows = {rowOf(0)};
    second.rows = {rowOf(0)};
    connector.insert(first);
    connector.insert(second);
    first.rows.push_back(rowOf(0));
    ASSERT_EQ(connector.update(first), 1);
    const auto papers = connector.freeSQL<Paper>();
    ASSERT_EQ(papers.size(), 2U);
    ASSERT_EQ(papers[0]->rows.size(), 2U);
    EXPECT_EQ(papers[0]->rows[0]->id, 1);
    EXPECT_EQ(papers[0]->rows[1]->id, 3);
    ASSERT_EQ(papers[1]->rows.size(), 1U);
    EXPECT_EQ(papers[1]->rows[0]->docID, second.id);
}

TEST_F(Links, updateOfAHeadStoresOldAndNewRowsAndRemovesNone)
{
    Paper paper;
    paper.rows = {rowOf(0), rowOf(0)};
    connector.insert(paper);
    paper.rows.erase(paper.rows.begin());
    paper.rows[0]->count = 7;
    paper.rows.push_back(rowOf(0));
    ASSERT_EQ(connector.update(paper), 1);
    const auto stored = connector.select<Paper>(paper.id);
    ASSERT_EQ(stored->rows.size(), 3U);
    EXPECT_EQ(stored->rows[1]->count, 7);
}

TEST_F(Links, aHeadWhoseRowIsRefusedIsNotStoredAndCanBeWrittenAgain)
{
    Paper paper;
    paper.rows = {rowOf(0), rowOf(0)};
    paper.rows[1]->id = 4711; // a row that is not there cannot be updated
    EXPECT_EQ(connector.insert(paper), 0);
    EXPECT_EQ(paper.id, 0);
    EXPECT_EQ(paper.rows[0]->id, 0);
    EXPECT_TRUE(connector.freeSQL<Paper>().empty());
    EXPECT_TRUE(connector.freeSQL<PaperRow>().empty());
    paper.rows[1]->id = 0;
    EXPECT_EQ(connector.insert(paper), 1);
    EXPECT_EQ(connector.select<Paper>(paper.id)->rows.size(), 2U);
}

TEST_F(Links, headsComeWithoutRowsAndNothingWithoutLinks)
{
    addPapers(3);
    const auto heads = connector.freeSQL<Paper>({}, std::span<const Parameter>{}, Fill::Heads);
    EXPECT_TRUE(heads.at(0)->rows.empty());
    EXPECT_EQ(heads.at(0)->mainGoods->unit->name, u"2"_s);
    const auto bare = connector.freeSQL<Paper>({}, std::span<const Parameter>{}, Fill::Nothing);
    EXPECT_TRUE(bare.at(0)->rows.empty());
    EXPECT_TRUE(bare.at(0)->mainGoods.isEmpty());
}

TEST_F(Links, aReadSendsAFixedNumberOfStatementsHoweverManyRecordsItFinds)
{
    addPapers(1000);
    // The papers, their rows, the goods, the units; between a BEGIN and a COMMIT.
    constexpr qint64 whole = 6;
    for (const int count : {1, 2, 3, 10, 99, 500, 1000}) {
        std::vector<std::shared_ptr<Paper>> papers;
        const qint64 sent = statementsOf([&] { papers = connector.freeSQL<Paper>("WHERE date<?", {count}); });
        EXPECT_EQ(sent, whole) << count;
        ASSERT_EQ(papers.size(), static_cast<std::size_t>(count));
        for (const auto& paper : papers) {
            ASSERT_EQ(paper->rows.size(), 2U);
            ASSERT_EQ(paper->rows[1]->goods->id, paper->date * 3 % 100 + 1);
            ASSERT_FALSE(paper->rows[1]->goods->pack.isEmpty());
        }
    }
    EXPECT_EQ(statementsOf([&] { connector.freeSQL<Unit>(); }), 1);
    EXPECT_EQ(statementsOf([&] { connector.select<Unit>(3); }), 1);
}

TEST_F(Links, scatteredIdsAreFoundToo)
{
    addPapers(1000);
    const auto papers = connector.freeSQL<Paper>("WHERE id IN (1, 17, 480, 999)");
    ASSERT_EQ(papers.size(), 4U);
    for (const auto& paper : papers)
        EXPECT_EQ(paper->rows.size(), 2U);
    EXPECT_EQ(papers[3]->rows[0]->goods->name, QString::number(998 * 7 % 100 + 1));
    Goods far;
    far.unitID = std::numeric_limits<qint64>::max();
    Goods below;
    below.unitID = std::numeric_limits<qint64>::min();
    connector.insert(far);
    connector.insert(below);
    EXPECT_EQ(connector.freeSQL<Goods>().size(), 102U);
}

TEST_F(Links, aCircleOfLinksEnds)
{
    Person first;
    Person second;
    first.chiefID = 2;
    second.chiefID = 1;
    connector.insert(first);
    connector.insert(second);
    std::weak_ptr<Person> seen;
    {
        const auto person = connector.select<Person>(1);
        EXPECT_EQ(person->chief->id, 2);
        EXPECT_EQ(person->chief->chief->id, 1);
        seen = person->chief->chief.shared();
        EXPECT_EQ(connector.freeSQL<Person>().size(), 2U);
    }
    EXPECT_TRUE(seen.expired());
}

TEST_F(Links, aReadSeesOneStateOfTheFile)
{
    addPapers(2);
    Connector other;
    ASSERT_TRUE(other.open(connector.path(), Access::ReadOnly));
    EXPECT_EQ(other.freeSQL<Paper>().size(), 2U);
    // The reader holds nothing once it has its answer.
    Paper paper;
    EXPECT_EQ(connector.insert(paper), 1);
    EXPECT_EQ(other.freeSQL<Paper>().size(), 3U);
}

} // namespace zelvor
