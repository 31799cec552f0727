#include "catalogs/manager_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"
#include "catalogs/function_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class EmployeeCatalog : public FlatCatalogFixture {
protected:
    EmployeeCatalog() { controller.functionController = &functions; }

    qint64 addStored(const QString& name, double balance, qint64 functionID = 0)
    {
        Manager manager;
        manager.name = name;
        manager.functionID = functionID;
        manager.setBalance(balance);
        return store(manager);
    }
    // As the widget does it: the state first, then the action.
    void clickLock(bool on)
    {
        controller.managerBalanceOpenButton.setOn(on);
        controller.managerBalanceOpenButton.userChanged();
    }

    FunctionViewController functions{program.appDelegate};
    ManagerViewController controller{program.appDelegate};
};

TEST_F(EmployeeCatalog, listKeepsItsOwnSpellingInTitleAndPopover)
{
    EXPECT_EQ(controller.view.name(), u"Employeies List"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view),
              (QStringList{u"name"_s, u"function"_s, u"balance"_s, u"hidden"_s}));
    controller.addManager();
    EXPECT_EQ(controller.managerPopoverTitle.text(), u"Add New Emplyee"_s);
    controller.cancelManagerPopover();
    addStored(u"Ann"_s, 0);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.managerPopoverTitle.text(), u"Edit Employee"_s);
}

TEST_F(EmployeeCatalog, anInsertPassesTheNameSoThatAChooserCanSelectIt)
{
    controller.addManager();
    type(controller.managerName, u"Ann"_s);
    controller.okButton.userChanged();
    ASSERT_EQ(program.posted.names, std::vector{NotificationName::ManagerChangedNotification});
    EXPECT_EQ(program.posted.notifications[0].text, u"Ann"_s);
    EXPECT_EQ(program.posted.notifications[0].object, nullptr);
}

TEST_F(EmployeeCatalog, anInsertWithoutANameStillPassesAText)
{
    controller.addManager();
    controller.okButton.userChanged();
    ASSERT_EQ(program.posted.notifications.size(), 1U);
    EXPECT_FALSE(program.posted.notifications[0].text.isNull());
}

TEST_F(EmployeeCatalog, anEditPassesNoneSoThatChoosersOnlyReload)
{
    addStored(u"Ann"_s, 0);
    controller.view.doubleAction(0);
    controller.okButton.userChanged();
    ASSERT_EQ(program.posted.names, std::vector{NotificationName::ManagerChangedNotification});
    EXPECT_TRUE(program.posted.notifications[0].text.isNull());
}

TEST_F(EmployeeCatalog, cancelIsPostedWithTheDoubleL)
{
    controller.addManager();
    controller.cancelManagerPopover();
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::ManagerAddCancelledNotification});
}

TEST_F(EmployeeCatalog, aHiddenEmployeeIsStoredWithoutNewsAndPutBackOnFailure)
{
    addStored(u"Ann"_s, 0);
    EXPECT_TRUE(controller.view.setValue(0, u"hidden"_s, true));
    EXPECT_TRUE(stored<Manager>(1)->isHidden);
    EXPECT_TRUE(program.posted.names.empty());
    program.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(controller.view.setValue(0, u"hidden"_s, false));
    EXPECT_TRUE(controller.view.value(0, u"hidden"_s).toBool());
    EXPECT_TRUE(stored<Manager>(1)->isHidden);
}

TEST_F(EmployeeCatalog, anEmployeeMayHaveNoFunctionAndShowsTheFreshOnesName)
{
    const qint64 driver = storeNamed<Function>(u"Driver"_s);
    controller.addManager();
    ASSERT_EQ(controller.managerFunctionSelect.items().size(), 2U);
    EXPECT_EQ(controller.managerFunctionSelect.items()[0].tag, 0);
    EXPECT_EQ(controller.managerFunctionSelect.selectedTag(), 0);
    type(controller.managerName, u"Ann"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Manager>(1)->functionID, 0);
    EXPECT_EQ(controller.view.value(0, u"function"_s).toString(), u"New Function"_s);

    controller.view.doubleAction(0);
    controller.managerFunctionSelect.selectTag(driver);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Manager>(1)->functionID, driver);
    EXPECT_EQ(controller.view.value(0, u"function"_s).toString(), u"Driver"_s);
    EXPECT_EQ(controller.managerFunctionSelect.selectedTag(), 0) << "cleared";
}

TEST_F(EmployeeCatalog, aNewEmployeeHasAnOpenBalanceAndNoLock)
{
    controller.addManager();
    EXPECT_TRUE(controller.managerBalance.enabled());
    EXPECT_FALSE(controller.managerBalanceOpenButton.isOn());
    EXPECT_FALSE(controller.managerBalanceOpenButton.enabled());
    type(controller.managerName, u"Ann"_s);
    type(controller.managerBalance, Decimal::fromText(u"-12.345"_s));
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Manager>(1)->balance(), -12.34);
}

TEST_F(EmployeeCatalog, theBalanceOfAStoredEmployeeIsLockedUntilTheQuestionIsAnswered)
{
    addStored(u"Ann"_s, 10);
    controller.view.doubleAction(0);
    EXPECT_FALSE(controller.managerBalance.enabled());
    EXPECT_TRUE(controller.managerBalanceOpenButton.isOn());
    EXPECT_TRUE(controller.managerBalanceOpenButton.enabled());
    EXPECT_EQ(controller.managerBalance.real(), 10);

    program.dialogs.answers = {firstButton + 1};
    clickLock(false);
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    const Alert& question = program.dialogs.questions[0];
    EXPECT_EQ(question.messageText, u"Enable employee balance."_s);
    EXPECT_EQ(
        question.informativeText,
        u"You are trying to change employee balance manually. It may cause of incorrectness main balance. "
        "Are you sure?"_s);
    EXPECT_EQ(question.buttons, (QStringList{u"Proceed"_s, u"Cancel"_s}));
    EXPECT_EQ(question.alertStyle, 1);
    EXPECT_FALSE(controller.managerBalance.enabled());
    EXPECT_TRUE(controller.managerBalanceOpenButton.isOn());

    program.dialogs.answers = {firstButton};
    clickLock(false);
    EXPECT_TRUE(controller.managerBalance.enabled());
    EXPECT_FALSE(controller.managerBalanceOpenButton.isOn());
    type(controller.managerBalance, 99);

    clickLock(true);
    EXPECT_EQ(program.dialogs.questions.size(), 2U) << "closing the lock asks nothing";
    EXPECT_FALSE(controller.managerBalance.enabled());
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Manager>(1)->balance(), 99) << "typed while it was open";
}

TEST_F(EmployeeCatalog, anEmptiedBalanceBecomesZero)
{
    controller.addManager();
    controller.managerBalance.clear();
    controller.managerBalance.userChanged();
    EXPECT_FALSE(controller.managerBalance.isEmpty());
    EXPECT_TRUE(controller.managerBalance.value().isZero());
}

TEST_F(EmployeeCatalog, aBalanceThatADocumentMovedWhileThePopoverStoodOpenIsKept)
{
    addStored(u"Ann"_s, 10);
    controller.view.doubleAction(0);
    auto moved = stored<Manager>(1);
    moved->setBalance(25);
    connector().update(*moved);
    program.appDelegate.notifications.post(NotificationName::ManagerBalanceChangedNotification);
    type(controller.managerName, u"Anna"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Manager>(1)->name, u"Anna"_s);
    EXPECT_EQ(stored<Manager>(1)->balance(), 25);
    EXPECT_EQ(controller.view.value(0, u"balance"_s).toDouble(), 25);
}

TEST_F(EmployeeCatalog, balanceIsRedBelowZeroBlueAboveAndBlackAtZero)
{
    addStored(u"A"_s, -1);
    addStored(u"B"_s, 1);
    addStored(u"C"_s, 0);
    EXPECT_EQ(controller.view.cellStyle(0, u"balance"_s).color, redColor);
    EXPECT_EQ(controller.view.cellStyle(1, u"balance"_s).color, (Color{0.121, 0.212, 0.607, 1.0}));
    EXPECT_EQ(controller.view.cellStyle(2, u"balance"_s).color, blackColor);
    EXPECT_EQ(controller.view.cellStyle(0, u"name"_s).color, blackColor);
    EXPECT_EQ(controller.view.record(2)->balanceFontColor(), (Color{0.121, 0.212, 0.607, 1.0}))
        << "the record's own colour is blue at zero";
}

TEST_F(EmployeeCatalog, sortsByNameFunctionAndBalance)
{
    const qint64 driver = storeNamed<Function>(u"a driver"_s);
    const qint64 clerk = storeNamed<Function>(u"b clerk"_s);
    addStored(u"A"_s, 5, clerk);
    addStored(u"B"_s, -5, driver);
    addStored(u"C"_s, 1, clerk);
    controller.view.sort(u"balance"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"C"_s, u"A"_s}));
    controller.view.sort(u"function"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"C"_s, u"A"_s}));
    controller.view.sort(u"function"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
}

TEST_F(EmployeeCatalog, aStoredBalanceThatIsNoNumberStandsFirst)
{
    Manager broken;
    broken.name = u"Z"_s;
    broken.innerBalance = Decimal::nan();
    store(broken);
    addStored(u"A"_s, -5);
    addStored(u"B"_s, 5);
    controller.view.sort(u"balance"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"Z"_s, u"A"_s, u"B"_s}));
    EXPECT_FALSE(controller.refusal(broken).isEmpty());
}

TEST_F(EmployeeCatalog, aFunctionAddedFromThePopoverIsChosenAndACancelledOneIsNot)
{
    controller.addManager();
    controller.addFunction();
    EXPECT_TRUE(controller.addNewFunction);
    functions.cancelFunctionPopover();
    EXPECT_FALSE(controller.addNewFunction);
    controller.addFunction();
    type(functions.functionName, u"Driver"_s);
    functions.okButton.userChanged();
    EXPECT_FALSE(controller.addNewFunction);
    EXPECT_EQ(controller.managerFunctionSelect.selectedTitle(), u"Driver"_s);
    EXPECT_EQ(controller.getNameOfFunctionWithID(1), u"Driver"_s);
    EXPECT_EQ(controller.getNameOfFunctionWithID(0), u"New Function"_s);
}

TEST_F(EmployeeCatalog, aVisibleListShowsARenamedFunctionAtOnce)
{
    const qint64 driver = storeNamed<Function>(u"Driver"_s);
    addStored(u"Ann"_s, 0, driver);
    EXPECT_EQ(controller.view.value(0, u"function"_s).toString(), u"Driver"_s);
    controller.view.setVisible(true);
    int told = 0;
    controller.view.onReload([&] { ++told; });
    functions.view.doubleAction(0);
    type(functions.functionName, u"Pilot"_s);
    functions.okButton.userChanged();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(controller.view.record(0)->functionName(), u"Pilot"_s);
}

} // namespace
} // namespace zelvor
