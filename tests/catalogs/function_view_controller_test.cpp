#include "catalogs/function_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class FunctionCatalog : public FlatCatalogFixture {
protected:
    FunctionViewController controller{program.appDelegate};
};

TEST_F(FunctionCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Functions Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view), (QStringList{u"name"_s, u"salary"_s, u"hidden"_s}));
}

TEST_F(FunctionCatalog, popoverWritesNameAndSalaryRoundedHalfToEven)
{
    controller.addFunction();
    EXPECT_EQ(controller.functionPopoverTitle.text(), u"Add Function"_s);
    EXPECT_EQ(controller.functionName.text(), u"New Function"_s);
    type(controller.functionSalary, Decimal::fromText(u"1200.125"_s));
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Function>(1)->name, u"New Function"_s);
    EXPECT_EQ(stored<Function>(1)->salary(), 1200.12);
    EXPECT_TRUE(controller.functionSalary.value().isZero()) << "cleared";

    controller.view.doubleAction(0);
    EXPECT_EQ(controller.functionPopoverTitle.text(), u"Edit Function"_s);
    EXPECT_EQ(controller.functionSalary.real(), 1200.12);
}

TEST_F(FunctionCatalog, anEmptiedSalaryBecomesZero)
{
    controller.addFunction();
    type(controller.functionSalary, 7);
    controller.functionSalary.clear();
    controller.functionSalary.userChanged();
    EXPECT_FALSE(controller.functionSalary.isEmpty());
    EXPECT_TRUE(controller.functionSalary.value().isZero());
}

TEST_F(FunctionCatalog, theNewsCarriesTheNameOfANewFunctionAndNoneOfAnEditedOne)
{
    controller.addFunction();
    type(controller.functionName, u"Driver"_s);
    controller.okButton.userChanged();
    controller.view.doubleAction(0);
    controller.okButton.userChanged();
    controller.view.setValue(0, u"hidden"_s, true);
    controller.addFunction();
    controller.cancelFunctionPopover();

    using enum NotificationName;
    EXPECT_EQ(program.posted.names,
              (std::vector{FunctionChangedNotification, FunctionChangedNotification,
                           FunctionChangedNotification, FunctionAddCanceledNotification}));
    EXPECT_EQ(program.posted.notifications[0].text, u"Driver"_s);
    EXPECT_TRUE(program.posted.notifications[1].text.isNull());
    EXPECT_TRUE(program.posted.notifications[2].text.isNull());
}

TEST_F(FunctionCatalog, sortsByNameAndSalary)
{
    for (const auto& [name, salary] :
         {std::pair{u"A"_s, 20.0}, std::pair{u"B"_s, 3.5}, std::pair{u"C"_s, 100.0}}) {
        Function function;
        function.name = name;
        function.setSalary(salary);
        store(function);
    }
    controller.view.sort(u"salary"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    controller.view.sort(u"salary"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
}

TEST_F(FunctionCatalog, aSalaryThatIsNoNumberIsRefused)
{
    Function function;
    function.innerSalary = Decimal::nan();
    EXPECT_FALSE(controller.refusal(function).isEmpty());
    function.innerSalary = 5;
    EXPECT_TRUE(controller.refusal(function).isEmpty());
}

TEST_F(FunctionCatalog, hiddenIsPutBackWhenItCannotBeStored)
{
    storeNamed<Function>(u"A"_s);
    EXPECT_EQ(controller.view.numberOfRows(), 1);
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(controller.view.setValue(0, u"hidden"_s, true));
    EXPECT_FALSE(controller.view.value(0, u"hidden"_s).toBool());
    EXPECT_TRUE(program.posted.names.empty());
}

} // namespace
} // namespace zelvor
