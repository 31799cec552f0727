#include "catalogs/measurement_view_controller.h"

#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class MeasurementCatalog : public TreeCatalogFixture {
protected:
    void add(const QString& name)
    {
        controller.addMeasurement();
        type(controller.measurementName, name);
        controller.okButton.userChanged();
    }

    MeasurementViewController controller{program.appDelegate};
};

TEST_F(MeasurementCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Units Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(FlatCatalogFixture::identifiers(controller.view),
              (QStringList{u"name"_s, u"shorthand"_s, u"hidden"_s}));
}

TEST_F(MeasurementCatalog, popoverFieldsGoIntoTheRecordAndBack)
{
    controller.addMeasurement();
    EXPECT_EQ(controller.measurementPopoverTitle.text(), u"Add New Unit"_s);
    type(controller.measurementName, u"kilogram"_s);
    type(controller.measurementShortName, u"kg"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Measurement>(1)->shorthand, u"kg"_s);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.measurementPopoverTitle.text(), u"Edit Unit"_s);
    EXPECT_EQ(controller.measurementShortName.text(), u"kg"_s);
}

TEST_F(MeasurementCatalog, theNewsCarriesTheNameOfANewUnitAndNoneOfAnEditedOne)
{
    add(u"piece"_s);
    controller.view.doubleAction(0);
    controller.okButton.userChanged();
    using enum NotificationName;
    EXPECT_EQ(program.posted.names,
              (std::vector{MeasurementsChangedNotification, MeasurementsChangedNotificationForSelf,
                           MeasurementsChangedNotification, MeasurementsChangedNotificationForSelf}));
    EXPECT_EQ(program.posted.notifications[0].text, u"piece"_s);
    EXPECT_TRUE(program.posted.notifications[2].text.isNull());
    EXPECT_EQ(program.posted.notifications[1].object, &controller);
}

TEST_F(MeasurementCatalog, hidingAUnitTellsWithoutANameAndNotTheOtherLists)
{
    add(u"piece"_s);
    program.posted.clear();
    EXPECT_TRUE(controller.view.setValue(0, u"hidden"_s, true));
    EXPECT_TRUE(stored<Measurement>(1)->isHidden);
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::MeasurementsChangedNotification});
    EXPECT_TRUE(program.posted.notifications[0].text.isNull());
}

TEST_F(MeasurementCatalog, cancelTellsThatNothingWasAdded)
{
    controller.addMeasurement();
    controller.cancelMeasurementPopover();
    EXPECT_FALSE(controller.measurementPopover.isOpen());
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::MeasurementsAddCanceledNotification});
}

TEST_F(MeasurementCatalog, anotherListOfUnitsFollowsAWrite)
{
    MeasurementViewController other{program.appDelegate};
    EXPECT_EQ(other.view.numberOfRows(), 0);
    add(u"piece"_s);
    EXPECT_EQ(other.view.numberOfRows(), 1);
}

TEST_F(MeasurementCatalog, aNameIsRequired)
{
    controller.addMeasurement();
    type(controller.measurementName, {});
    EXPECT_FALSE(controller.okButton.enabled());
    EXPECT_EQ(controller.measurementWarning.text(), u"Field 'Name' is required!"_s);
    EXPECT_EQ(controller.refusal(Measurement()), u"Field 'Name' is required!"_s);
}

TEST_F(MeasurementCatalog, aFailedWriteLeavesTheListAsItWas)
{
    add(u"piece"_s);
    program.posted.clear();
    program.connector->failCall(1, FaultInjectingConnector::Insert);
    add(u"box"_s);
    EXPECT_EQ(column(controller.view, u"name"_s), QStringList{u"piece"_s});
    EXPECT_TRUE(program.posted.names.empty());
}

TEST(MeasurementRecord, answersTheIdentifiersOfItsList)
{
    Measurement record;
    record.shorthand = u"kg"_s;
    EXPECT_EQ(record.valueForIdentifier(u"shorthand"), QVariant(u"kg"_s));
    EXPECT_EQ(record.valueForIdentifier(u"isHidden"), QVariant(false));
    EXPECT_EQ(record.valueForIdentifier(u"hidden"), QVariant(QString()));
}

} // namespace
} // namespace zelvor
