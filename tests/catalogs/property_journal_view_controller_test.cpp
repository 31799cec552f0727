#include "catalogs/property_journal_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class AssetJournal : public FlatCatalogFixture {
protected:
    qint64 addStored(const QString& name, double cost, qint64 soldDate = 0)
    {
        Property property;
        property.name = name;
        property.date = 1'000 + static_cast<qint64>(cost);
        property.setBaseCost(cost);
        property.setCurrentCost(cost);
        property.soldDate = soldDate;
        return store(property);
    }
    void post(const void* object)
    {
        program.appDelegate.notifications.post(NotificationName::PropertiesChangedNotification, object);
    }

    PropertyJournalViewController controller{program.appDelegate};
};

TEST_F(AssetJournal, listHasItsTitleAndColumnsAndCanBeExported)
{
    EXPECT_EQ(controller.view.name(), u"Fixed Assets List"_s);
    EXPECT_TRUE(controller.view.canExportToExcel());
    const QStringList expected{u"name"_s,        u"date"_s,   u"cost"_s,       u"currentCost"_s,
                               u"isAmortized"_s, u"period"_s, u"description"_s};
    QStringList found = identifiers(controller.view);
    EXPECT_EQ(found.size(), expected.size());
    for (const QString& identifier : expected)
        EXPECT_TRUE(found.contains(identifier)) << identifier.toStdString();
}

TEST_F(AssetJournal, aSoldAssetDisappearsFromTheListAndItsSum)
{
    addStored(u"Van"_s, 1000);
    const qint64 lathe = addStored(u"Lathe"_s, 500.25);
    EXPECT_EQ(controller.view.numberOfRows(), 2);
    EXPECT_EQ(controller.currentCost.real(), 1500.25);

    auto sold = stored<Property>(lathe);
    sold->soldDate = 2'000;
    connector().update(*sold);
    post(&sold);
    EXPECT_EQ(column(controller.view, u"name"_s), QStringList{u"Van"_s});
    EXPECT_EQ(controller.currentCost.real(), 1000);
}

TEST_F(AssetJournal, showsBaseCostUnderItsOwnIdentifier)
{
    addStored(u"Van"_s, 1000);
    EXPECT_TRUE(controller.view.setValue(0, u"currentCost"_s, 900.0));
    EXPECT_EQ(controller.view.value(0, u"cost"_s).toDouble(), 1000);
    EXPECT_EQ(controller.view.value(0, u"currentCost"_s).toDouble(), 900);
    EXPECT_EQ(controller.view.value(0, u"date"_s).toLongLong(), 2'000);
}

TEST_F(AssetJournal, editsStayInTheListUntilTheyAreApplied)
{
    addStored(u"Van"_s, 1000);
    EXPECT_FALSE(controller.applyButton.enabled());
    EXPECT_TRUE(controller.view.setValue(0, u"isAmortized"_s, true));
    EXPECT_TRUE(controller.applyButton.enabled());
    EXPECT_TRUE(controller.view.setValue(0, u"period"_s, 12));
    EXPECT_TRUE(controller.view.setValue(0, u"description"_s, u"white"_s));
    EXPECT_TRUE(controller.view.setValue(0, u"currentCost"_s, 800.125));
    EXPECT_EQ(controller.currentCost.real(), 800.12);
    EXPECT_FALSE(stored<Property>(1)->isAmortized);

    EXPECT_TRUE(controller.applyButton.userChanged());
    const auto van = stored<Property>(1);
    EXPECT_TRUE(van->isAmortized);
    EXPECT_EQ(van->amortizationPeriod, 12);
    EXPECT_EQ(van->descriptionString, u"white"_s);
    EXPECT_EQ(van->currentCost(), 800.12);
    EXPECT_EQ(van->baseCost(), 1000);
    EXPECT_FALSE(controller.applyButton.enabled());
    ASSERT_EQ(program.posted.names, std::vector{NotificationName::PropertiesChangedNotification});
    EXPECT_EQ(program.posted.notifications[0].object, &controller);
}

TEST_F(AssetJournal, otherColumnsAndValuesThatAreNoNumbersAreRefused)
{
    addStored(u"Van"_s, 1000);
    EXPECT_FALSE(controller.view.setValue(0, u"name"_s, u"Car"_s));
    EXPECT_FALSE(controller.view.setValue(0, u"cost"_s, 1.0));
    EXPECT_FALSE(controller.view.setValue(0, u"currentCost"_s, u"1,5"_s));
    EXPECT_FALSE(controller.view.setValue(0, u"period"_s, u"long"_s));
    EXPECT_FALSE(controller.view.setValue(0, u"period"_s, -1));
    EXPECT_FALSE(controller.view.setValue(1, u"period"_s, 1));
    EXPECT_FALSE(controller.applyButton.enabled());
    EXPECT_EQ(controller.view.value(0, u"currentCost"_s).toDouble(), 1000);
}

TEST_F(AssetJournal, aFailureAnywhereInApplyKeepsTheFileAndDropsTheEdits)
{
    addStored(u"Van"_s, 1000);
    addStored(u"Lathe"_s, 500);
    for (int call = 1; call <= 4; ++call) { // BEGIN, two assets, COMMIT
        EXPECT_TRUE(controller.view.setValue(0, u"currentCost"_s, 1.0));
        EXPECT_TRUE(controller.view.setValue(1, u"currentCost"_s, 2.0));
        program.connector->failCall(call);
        controller.applyButton.userChanged();
        EXPECT_TRUE(program.connector->hasFailed());
        program.connector->failCall(0);
        EXPECT_EQ(stored<Property>(1)->currentCost(), 1000) << "call " << call;
        EXPECT_EQ(stored<Property>(2)->currentCost(), 500) << "call " << call;
        EXPECT_EQ(controller.view.value(0, u"currentCost"_s).toDouble(), 1000) << "call " << call;
        EXPECT_EQ(controller.currentCost.real(), 1500) << "call " << call;
        EXPECT_FALSE(controller.applyButton.enabled());
    }
}

TEST_F(AssetJournal, readsAnewOnlyOnTheNewsOfSomebodyElse)
{
    addStored(u"Van"_s, 1000);
    EXPECT_EQ(controller.view.numberOfRows(), 1);
    post(nullptr);
    EXPECT_FALSE(controller.isStale()) << "nobody posted it";
    post(&controller);
    EXPECT_FALSE(controller.isStale()) << "our own";
    const int document = 0;
    post(&document);
    EXPECT_TRUE(controller.isStale());
    EXPECT_EQ(controller.view.numberOfRows(), 1);
    EXPECT_FALSE(controller.isStale());
}

TEST_F(AssetJournal, applyingKeepsTheUsersOrder)
{
    addStored(u"A"_s, 5);
    addStored(u"B"_s, 7);
    controller.view.sort(u"cost"_s, false);
    controller.view.setValue(0, u"period"_s, 3);
    controller.applyChanges();
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"A"_s}));
}

TEST_F(AssetJournal, sortsByNameDateCostAndCurrentCost)
{
    addStored(u"B"_s, 5);
    addStored(u"C"_s, 7);
    addStored(u"A"_s, 6);
    const auto order = [&](const QString& key, bool ascending) {
        controller.view.sort(key, ascending);
        return column(controller.view, u"name"_s).join(QString());
    };
    EXPECT_EQ(order(u"name"_s, true), u"ABC"_s);
    EXPECT_EQ(order(u"date"_s, false), u"CAB"_s);
    EXPECT_EQ(order(u"cost"_s, true), u"BAC"_s);
    controller.view.setValue(0, u"currentCost"_s, 100.0);
    EXPECT_EQ(order(u"currentCost"_s, true), u"ACB"_s);
    EXPECT_EQ(order(u"period"_s, true), u"ACB"_s) << "no sort key";
}

TEST_F(AssetJournal, aHeldAssetCanBeWrittenAloneButNoNewOrSoldOne)
{
    auto fresh = std::make_shared<Property>();
    EXPECT_FALSE(controller.refusal(*fresh).isEmpty());
    EXPECT_FALSE(controller.writeRecord(fresh));
    EXPECT_EQ(count<Property>(), 0U);

    auto van = stored<Property>(addStored(u"Van"_s, 1000));
    van->amortizationPeriod = 12;
    EXPECT_TRUE(controller.refusal(*van).isEmpty());
    EXPECT_TRUE(controller.writeRecord(van));
    EXPECT_EQ(stored<Property>(1)->amortizationPeriod, 12);
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::PropertiesChangedNotification});
    van->amortizationPeriod = -1;
    EXPECT_FALSE(controller.refusal(*van).isEmpty());

    const auto sold = stored<Property>(addStored(u"Lathe"_s, 1, 5'000));
    EXPECT_FALSE(controller.refusal(*sold).isEmpty());
}

} // namespace
} // namespace zelvor
