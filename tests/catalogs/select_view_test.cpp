#include "catalogs/contragent_select_view.h"
#include "catalogs/expend_select_view.h"
#include "catalogs/manager_select_view.h"
#include "catalogs/product_select_view.h"
#include "catalogs/stock_select_view.h"
#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using IDs = std::vector<qint64>;

// A report that filters by everything there is, and shows labels.
class FilteringReport : public ContragentIDsReceiver,
                        public ExpendIDsReceiver,
                        public ProductIDsReceiver,
                        public SelectedManagersReceiver,
                        public SelectedStocksReceiver {
public:
    void setContragentTypeIDs(const IDs& ids) override { groups = ids; }
    void setContragentIDs(const IDs& ids) override { leaves = ids; }
    void setSelectedContragents(const QString& text) override { label = text; }
    void setExpendTypeIDs(const IDs& ids) override { groups = ids; }
    void setExpendIDs(const IDs& ids) override { leaves = ids; }
    void setSelectedExpends(const QString& text) override { label = text; }
    void setProductTypeIDs(const IDs& ids) override { groups = ids; }
    void setProductIDs(const IDs& ids) override { leaves = ids; }
    void setSelectedManagers(const IDs& ids) override { leaves = ids; }
    void setSelectedStocks(const IDs& ids) override { leaves = ids; }
    void setStringPredicates() override { ++predicates; }

    IDs groups{-1};
    IDs leaves{-1};
    QString label;
    int predicates = 0;
};

// A form that takes one counterparty and one spending.
class ChoosingForm : public ContragentSelectProtocol, public ExpendSelectProtocol {
public:
    void setNewContragent(const std::shared_ptr<Contragent>& record) override { contragent = record; }
    void setNewExpend(const std::shared_ptr<Expend>& record) override { expend = record; }

    std::shared_ptr<Contragent> contragent;
    std::shared_ptr<Expend> expend;
};

class SelectView : public TreeCatalogFixture {
protected:
    // Group(a,b) c
    template <class Group, class Leaf>
    void storeSample()
    {
        const qint64 group = storeUnder<Group>(u"Group"_s);
        storeUnder<Leaf>(u"a"_s, group);
        storeUnder<Leaf>(u"b"_s, group);
        storeUnder<Leaf>(u"c"_s);
    }
    static void tick(OutlineView& view, const QString& name, bool on)
    {
        EXPECT_TRUE(view.setValue(row(view, name), u"selected"_s, on));
    }
    static bool columnIsHidden(const OutlineView& view)
    {
        return view.columns().back().identifier == u"selected" && view.columns().back().hidden;
    }

    ContragentSelectView contragents{program.appDelegate};
    ExpendSelectView expends{program.appDelegate};
    ProductSelectView products{program.appDelegate};
    ManagerSelectView managers{program.appDelegate};
    StockSelectView stocks{program.appDelegate};
    FilteringReport report;
    ChoosingForm form;
};

TEST_F(SelectView, showsTheTreeOfWhatIsNotHidden)
{
    storeSample<ContragentGroup, Contragent>();
    Contragent hidden;
    hidden.name = u"gone"_s;
    hidden.isHidden = true;
    store(hidden);
    EXPECT_EQ(shape(contragents), u"Group(a,b) c"_s);
    EXPECT_EQ(contragents.all().size(), 4U);
    EXPECT_EQ(identifiers(contragents), (QStringList{u"name"_s, u"selected"_s}));
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"balance"_s), QVariant(QString()));
}

TEST_F(SelectView, everythingIsTickedAtTheStart)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.updateSelections();
    EXPECT_EQ(contragents.contragentIDs, (IDs{1, 2, 3}));
    EXPECT_EQ(contragents.contragentTypeIDs, IDs{1});
}

TEST_F(SelectView, tickingAGroupTicksItsSubtreeAndUntickingOneLeafKeepsTheGroupInTheTypeList)
{
    storeSample<ContragentGroup, Contragent>();
    tick(contragents, u"Group"_s, false);
    EXPECT_EQ(contragents.contragentIDs, IDs{3});
    EXPECT_TRUE(contragents.contragentTypeIDs.empty());
    tick(contragents, u"Group"_s, true);
    EXPECT_EQ(contragents.contragentIDs, (IDs{1, 2, 3}));
    tick(contragents, u"a"_s, false);
    EXPECT_EQ(contragents.contragentIDs, (IDs{2, 3}));
    EXPECT_EQ(contragents.contragentTypeIDs, IDs{1});
}

TEST_F(SelectView, theListsPutTheTicksBack)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.contragentIDs = {2};
    contragents.contragentTypeIDs = {};
    contragents.backUpdateSelections();
    EXPECT_EQ(contragents.value(row(contragents, u"b"_s), u"selected"_s), QVariant(true));
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"selected"_s), QVariant(false));
    EXPECT_EQ(contragents.value(row(contragents, u"Group"_s), u"selected"_s), QVariant(false));
    contragents.selectAll();
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"selected"_s), QVariant(true));
}

TEST_F(SelectView, everythingOrNothingAtOnceIsAnEmptyFilter)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.contragentIDs = {2};
    contragents.backUpdateSelections();
    int reloads = 0;
    contragents.onReload([&reloads] { ++reloads; });
    contragents.tickAll(true);
    EXPECT_EQ(contragents.value(row(contragents, u"Group"_s), u"selected"_s), QVariant(true));
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"selected"_s), QVariant(true));
    EXPECT_TRUE(contragents.contragentIDs.empty());
    contragents.tickAll(false);
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"selected"_s), QVariant(false));
    EXPECT_EQ(reloads, 2);
    tick(contragents, u"a"_s, true); // only that one now
    EXPECT_EQ(contragents.contragentIDs, IDs{1});
    EXPECT_TRUE(contragents.contragentTypeIDs.empty());

    storeNamed<Stock>(u"Main"_s);
    stocks.updateSelections();
    stocks.tickAll(false);
    EXPECT_EQ(stocks.value(0, u"selected"_s), QVariant(false));
    EXPECT_TRUE(stocks.selectedStocks.empty());
}

TEST_F(SelectView, okHandsTheTickedIdsToTheOwnerWithItsLabelAndCloses)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.sender = &report;
    contragents.selectPopover.open();
    tick(contragents, u"a"_s, false);
    EXPECT_TRUE(contragents.okButton.userChanged());
    EXPECT_EQ(report.leaves, (IDs{2, 3}));
    EXPECT_EQ(report.groups, IDs{1});
    EXPECT_EQ(report.label, u"Selected Counterparties"_s);
    EXPECT_EQ(report.predicates, 1);
    EXPECT_FALSE(contragents.selectPopover.isOpen());
    EXPECT_EQ(contragents.sender, &report) << "stays after the popover closed";
}

TEST_F(SelectView, withNothingTickedTheOwnerReceivesEmptyLists)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.sender = &report;
    tick(contragents, u"Group"_s, false);
    tick(contragents, u"c"_s, false);
    contragents.sendIDs();
    EXPECT_TRUE(report.leaves.empty());
    EXPECT_TRUE(report.groups.empty());
    EXPECT_EQ(report.label, u"All Counterparties"_s);
}

TEST_F(SelectView, groupsAloneMakeNoSelectedSpendings)
{
    storeSample<ExpendType, Expend>();
    expends.sender = &report;
    tick(expends, u"a"_s, false);
    tick(expends, u"b"_s, false);
    tick(expends, u"c"_s, false);
    expends.sendIDs();
    EXPECT_EQ(report.groups, IDs{1});
    EXPECT_EQ(report.label, u"All Spendings"_s);
    tick(expends, u"c"_s, true);
    expends.sendIDs();
    EXPECT_EQ(report.label, u"Selected Spendings"_s);
    EXPECT_EQ(report.leaves, IDs{3});
}

TEST_F(SelectView, anOwnerOfNoListedKindGetsNothingAndThePopoverStaysOpen)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.sender = &form;
    contragents.selectPopover.open();
    contragents.sendIDs();
    EXPECT_TRUE(contragents.selectPopover.isOpen());
    contragents.sender = nullptr;
    contragents.sendIDs();
    EXPECT_TRUE(contragents.selectPopover.isOpen());
    managers.sender = &form;
    managers.selectPopover.open();
    managers.sendIDs();
    EXPECT_TRUE(managers.selectPopover.isOpen());
}

TEST_F(SelectView, cancelLeavesTheTicksSoThatALaterOkSendsThem)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.sender = &report;
    contragents.selectPopover.open();
    tick(contragents, u"c"_s, false);
    contragents.cancelPopover();
    EXPECT_FALSE(contragents.selectPopover.isOpen());
    EXPECT_EQ(report.leaves, IDs{-1});
    contragents.sendIDs();
    EXPECT_EQ(report.leaves, (IDs{1, 2}));
}

TEST_F(SelectView, aChooserHidesTheTicksUntilItIsAFilter)
{
    EXPECT_TRUE(columnIsHidden(contragents));
    EXPECT_TRUE(columnIsHidden(expends));
    EXPECT_FALSE(columnIsHidden(products));
    contragents.hideColumn(false);
    EXPECT_FALSE(columnIsHidden(contragents));
}

TEST_F(SelectView, aDoubleClickOnALeafHandsItOverAndCloses)
{
    storeSample<ContragentGroup, Contragent>();
    storeSample<ExpendType, Expend>();
    contragents.sender = &form;
    contragents.selectPopover.open();
    contragents.doubleAction(row(contragents, u"b"_s));
    ASSERT_NE(form.contragent, nullptr);
    EXPECT_EQ(form.contragent->id, 2);
    EXPECT_FALSE(contragents.selectPopover.isOpen());
    expends.sender = &form;
    expends.doubleAction(row(expends, u"c"_s));
    EXPECT_EQ(form.expend->id, 3);
}

TEST_F(SelectView, aDoubleClickOnAGroupInAChooserLeavesThePopoverOpen)
{
    storeSample<ContragentGroup, Contragent>();
    contragents.sender = &form;
    contragents.selectPopover.open();
    contragents.doubleAction(row(contragents, u"Group"_s));
    EXPECT_EQ(form.contragent, nullptr);
    EXPECT_TRUE(contragents.selectPopover.isOpen());
}

TEST_F(SelectView, productsAreFilteredByGroupsAndProducts)
{
    storeSample<ProductGroup, Product>();
    products.sender = &report;
    tick(products, u"Group"_s, false);
    products.sendIDs();
    EXPECT_EQ(report.leaves, IDs{3});
    EXPECT_TRUE(report.groups.empty());
    EXPECT_EQ(report.predicates, 1);
}

TEST_F(SelectView, employeesAndWarehousesAreFlatListsByName)
{
    storeNamed<Manager>(u"Zoe"_s);
    storeNamed<Manager>(u"Ann"_s);
    Manager hidden;
    hidden.isHidden = true;
    store(hidden);
    managers.sender = &report;
    EXPECT_EQ(column(managers, u"name"_s), (QStringList{u"Ann"_s, u"Zoe"_s}));
    EXPECT_TRUE(managers.setValue(0, u"selected"_s, false));
    EXPECT_FALSE(managers.setValue(0, u"name"_s, u"x"_s));
    EXPECT_FALSE(managers.setValue(7, u"selected"_s, true));
    EXPECT_EQ(managers.selectedManagers, IDs{1});
    managers.sendIDs();
    EXPECT_EQ(report.leaves, IDs{1});

    storeNamed<Stock>(u"Main"_s);
    stocks.sender = &report;
    stocks.updateSelections();
    stocks.sendIDs();
    EXPECT_EQ(report.leaves, IDs{1});
    EXPECT_EQ(report.predicates, 2);
    stocks.selectedStocks.clear();
    stocks.backUpdateSelections();
    EXPECT_EQ(stocks.value(0, u"selected"_s), QVariant(false));
    stocks.selectAll();
    EXPECT_EQ(stocks.value(0, u"selected"_s), QVariant(true));
}

TEST_F(SelectView, readsNothingBeforeItIsAskedForAndKeepsTheTicksOverAReload)
{
    storeSample<ContragentGroup, Contragent>();
    const qint64 before = connector().statementCount();
    contragents.markStale();
    EXPECT_EQ(connector().statementCount(), before);
    tick(contragents, u"a"_s, false);
    storeUnder<Contragent>(u"d"_s);
    contragents.markStale();
    EXPECT_EQ(shape(contragents), u"Group(a,b) c d"_s);
    EXPECT_EQ(contragents.value(row(contragents, u"a"_s), u"selected"_s), QVariant(false));
    EXPECT_EQ(contragents.value(row(contragents, u"b"_s), u"selected"_s), QVariant(true));
}

} // namespace
} // namespace zelvor
