#include "catalogs/expend_view_controller.h"

#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class ExpendCatalog : public TreeCatalogFixture {
protected:
    ExpendViewController controller{program.appDelegate};
};

TEST_F(ExpendCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Spendings Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view),
              (QStringList{u"name"_s, u"hidden"_s, u"constant"_s, u"description"_s}));
}

TEST_F(ExpendCatalog, theAddButtonAsksWhatToAdd)
{
    EXPECT_EQ(controller.addExpendButton.entries()[0].title, u"Add Spending"_s);
    EXPECT_EQ(controller.addExpendButton.entries()[1].title, u"Add Spending Type"_s);
    controller.addExpendButton.choose(0);
    EXPECT_EQ(controller.expendPopoverName.text(), u"Add New Spending"_s);
    controller.addExpendButton.choose(1);
    EXPECT_EQ(controller.expendTypePopoverName.text(), u"Add New Spending Type"_s);
}

TEST_F(ExpendCatalog, aNewSpendingIsConstantAndTheBoxTicked)
{
    EXPECT_TRUE(Expend().isConstant);
    controller.addExpend();
    EXPECT_TRUE(controller.expendConstantCheckBox.isOn());
    EXPECT_FALSE(controller.expendHiddenCheckBox.isOn());
}

TEST_F(ExpendCatalog, okStaysAsTheLastPopoverLeftItWhenATypeIsAdded)
{
    controller.addExpendType();
    EXPECT_TRUE(controller.expendTypeName.text().isEmpty());
    EXPECT_TRUE(controller.expendTypeOkButton.enabled());
    type(controller.expendTypeName, {});
    EXPECT_FALSE(controller.expendTypeOkButton.enabled());
    controller.cancelExpendTypePopover();
    controller.addExpendType();
    EXPECT_FALSE(controller.expendTypeOkButton.enabled());
    EXPECT_TRUE(controller.expendTypeError.text().isEmpty());
}

TEST_F(ExpendCatalog, groupChoosersStartWithDashes)
{
    storeUnder<ExpendType>(u"Rent"_s);
    controller.prepareExpends();
    EXPECT_EQ(titles(controller.expendGroupSelect), (QStringList{u"-----"_s, u"Rent"_s}));
    EXPECT_EQ(titles(controller.expendTypeGroupSelect), (QStringList{u"-----"_s, u"Rent"_s}));
    EXPECT_EQ(controller.expendGroupSelect.items().front().tag, 0);
}

TEST_F(ExpendCatalog, popoverFieldsGoIntoTheRecordAndBack)
{
    storeUnder<ExpendType>(u"Rent"_s);
    controller.addExpend();
    type(controller.expendName, u"Office"_s);
    controller.expendGroupSelect.selectTag(1);
    type(controller.expendDescription, u"monthly"_s);
    controller.expendConstantCheckBox.setOn(false);
    controller.expendHiddenCheckBox.setOn(true);
    controller.expendOkButton.userChanged();
    const auto office = stored<Expend>(1);
    EXPECT_EQ(office->parentID, 1);
    EXPECT_EQ(office->descriptionString, u"monthly"_s);
    EXPECT_FALSE(office->isConstant);
    EXPECT_TRUE(office->isHidden);
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::ExpendChangedNotification});

    controller.view.doubleAction(row(controller.view, u"Office"_s));
    EXPECT_EQ(controller.expendPopoverName.text(), u"Edit Expend"_s);
    EXPECT_EQ(controller.expendDescription.text(), u"monthly"_s);
    EXPECT_TRUE(controller.expendHiddenCheckBox.isOn());
    controller.view.doubleAction(row(controller.view, u"Rent"_s));
    EXPECT_EQ(controller.expendTypePopoverName.text(), u"Edit Expend Type"_s);
}

TEST_F(ExpendCatalog, draggingALeafOutOfItsGroupTellsNobody)
{
    const qint64 rent = storeUnder<ExpendType>(u"Rent"_s);
    storeUnder<Expend>(u"Office"_s, rent);
    EXPECT_TRUE(drop(controller.view, u"Office"_s, {}));
    EXPECT_EQ(stored<Expend>(1)->parentID, 0);
    EXPECT_TRUE(program.posted.names.empty());
}

TEST_F(ExpendCatalog, aSpendingDroppedOnASpendingLandsAtTheEndOfTheTopLevel)
{
    const qint64 rent = storeUnder<ExpendType>(u"Rent"_s);
    storeUnder<Expend>(u"Office"_s, rent);
    storeUnder<Expend>(u"Zinc"_s);
    EXPECT_TRUE(drop(controller.view, u"Office"_s, u"Zinc"_s));
    EXPECT_EQ(shape(controller.view), u"Rent Zinc Office"_s);
    EXPECT_EQ(stored<Expend>(1)->parentID, 0);
}

TEST_F(ExpendCatalog, bothBoxesOfALeafAreStoredAtOnceAndTellNobody)
{
    storeUnder<ExpendType>(u"Rent"_s);
    storeUnder<Expend>(u"Office"_s);
    const auto office = row(controller.view, u"Office"_s);
    EXPECT_TRUE(controller.view.setValue(office, u"constant"_s, false));
    EXPECT_TRUE(controller.view.setValue(office, u"hidden"_s, true));
    EXPECT_FALSE(stored<Expend>(1)->isConstant);
    EXPECT_TRUE(stored<Expend>(1)->isHidden);
    EXPECT_TRUE(program.posted.names.empty());
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(controller.view.setValue(office, u"constant"_s, true));
    EXPECT_EQ(controller.view.value(office, u"constant"_s), QVariant(false));
    EXPECT_FALSE(controller.view.setValue(row(controller.view, u"Rent"_s), u"hidden"_s, true));
}

TEST_F(ExpendCatalog, aGroupRowHasANameAndBlankCells)
{
    storeUnder<ExpendType>(u"Rent"_s);
    const auto rent = row(controller.view, u"Rent"_s);
    for (const auto& blank : {u"constant"_s, u"hidden"_s, u"description"_s})
        EXPECT_EQ(controller.view.value(rent, blank), QVariant(QString()));
}

TEST(ExpendRecord, answersTheIdentifiersOfItsList)
{
    Expend record;
    record.descriptionString = u"d"_s;
    EXPECT_EQ(record.valueForIdentifier(u"description"), QVariant(u"d"_s));
    EXPECT_EQ(record.valueForIdentifier(u"constant"), QVariant(true));
    EXPECT_EQ(record.valueForIdentifier(u"hidden"), QVariant(false));
    EXPECT_EQ(record.valueForIdentifier(u"balance"), QVariant(QString()));
    ExpendType group;
    EXPECT_EQ(group.valueForIdentifier(u"selected"), QVariant(true));
    EXPECT_EQ(group.valueForIdentifier(u"hidden"), QVariant(QString()));
}

} // namespace
} // namespace zelvor
