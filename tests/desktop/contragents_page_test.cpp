#include "catalogs/contragent.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/function.h"
#include "catalogs/manager.h"
#include "desktop/catalog_page_fixture.h"
#include "desktop/measures.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace zelvor {
namespace {

class ContragentsPage : public CatalogPageTest {
protected:
    qint64 storeContragent(const QString& name, const QString& balance, qint64 parentID = 0)
    {
        Contragent record;
        record.name = name;
        record.parentID = parentID;
        record.innerBalance = Decimal::fromText(balance);
        return store(std::move(record));
    }
    // Customers(Acme Zeta) Bank
    void openSampleTree()
    {
        const qint64 customers = storeNamed<ContragentGroup>(u"Customers"_s);
        storeContragent(u"Acme"_s, u"-10"_s, customers);
        storeContragent(u"Zeta"_s, u"-20"_s, customers);
        storeContragent(u"Bank"_s, u"5"_s);
        openPage(DocType::ContragentCatalog);
        tree()->expandAll();
    }
    std::shared_ptr<Contragent> contragent(const QString& name)
    {
        for (const auto& record : connector().freeSQL<Contragent>()) {
            if (record->name == name)
                return record;
        }
        return nullptr;
    }
    void edit(const QString& name)
    {
        program.clickCell(list(), cell(name));
        press(Qt::Key_F2);
    }
};

TEST_F(ContragentsPage, aCounterpartyWaitsForItsName)
{
    openPage(DocType::ContragentCatalog);
    ASSERT_NE(program.find<QLabel>(u"emptyText"_s), nullptr);
    press(Qt::Key_Insert);
    EXPECT_EQ(program.find<QLabel>(u"contragentPopoverName"_s)->text(), u"Add New Counterparty"_s);
    EXPECT_EQ(focusName(), u"contragentName"_s);
    EXPECT_FALSE(program.find(u"contragentOkButton"_s)->isEnabled());
    press(Qt::Key_Return);
    ASSERT_TRUE(isOpen(u"contragentPopover"_s));
    write(u"A"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(program.find<QLabel>(u"contragentError"_s)->text(), u"Field 'Name' is required!"_s);
    write(u"Acme"_s);
    EXPECT_EQ(program.find<QLabel>(u"contragentError"_s)->text(), QString());
    press(Qt::Key_Return);
    EXPECT_NE(contragent(u"Acme"_s), nullptr);
    EXPECT_EQ(currentName(), u"Acme"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ContragentsPage, everyFieldOfTheFormIsStoredAndShownAgain)
{
    openSampleTree();
    press(Qt::Key_Insert);
    program.type(u"contragentName"_s, u"Youth team"_s);
    choose(u"contragentGroupSelect"_s, u"Cus"_s);
    choose(u"contragentParentContragentSelect"_s, u"Zeta"_s);
    program.type(u"contragentDiscount"_s, u"2,5"_s);
    program.type(u"contragentBalance"_s, u"-100.25"_s);
    program.type(u"contragentDeferment"_s, u"14"_s);
    EXPECT_EQ(program.find<QSlider>(u"contragentDefermentSlider"_s)->value(), 14);
    program.type(u"contragentAddress"_s, u"Street 1"_s);
    program.type(u"contragentCity"_s, u"Town"_s);
    program.type(u"contragentContactPerson"_s, u"Bob"_s);
    program.type(u"contragentPhone"_s, u"123"_s);
    program.type(u"contragentMail"_s, u"a@b"_s);
    program.type(u"contragentVatNumber"_s, u"VAT1"_s);
    program.find(u"contragentComment"_s)->setFocus();
    write(u"two"_s);
    press(Qt::Key_Return); // a new line, not OK
    write(u"lines"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(isOpen(u"contragentPopover"_s));
    const auto youth = contragent(u"Youth team"_s);
    ASSERT_NE(youth, nullptr);
    EXPECT_EQ(youth->parentID, 1);
    EXPECT_EQ(youth->parentContragentID, contragent(u"Zeta"_s)->id);
    EXPECT_EQ(youth->innerDiscount.toText(), u"2.5"_s);
    EXPECT_EQ(youth->innerBalance.toText(), u"-100.25"_s);
    EXPECT_EQ(youth->deferment, 14);
    EXPECT_EQ(youth->address, u"Street 1"_s);
    EXPECT_EQ(youth->city, u"Town"_s);
    EXPECT_EQ(youth->contactPerson, u"Bob"_s);
    EXPECT_EQ(youth->phone, u"123"_s);
    EXPECT_EQ(youth->mail, u"a@b"_s);
    EXPECT_EQ(youth->vatNumber, u"VAT1"_s);
    EXPECT_EQ(youth->comment, u"two\nlines"_s);
    EXPECT_EQ(names(), u"Bank Customers(Acme Youth team Zeta)"_s);

    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QLabel>(u"contragentPopoverName"_s)->text(), u"Edit Contragent"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentDeferment"_s)->text(), u"14"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentMail"_s)->text(), u"a@b"_s);
    EXPECT_EQ(program.find<QPlainTextEdit>(u"contragentComment"_s)->toPlainText(), u"two\nlines"_s);
}

TEST_F(ContragentsPage, defermentIsHeldWithinTheSettings)
{
    openSampleTree();
    const auto most = program.program.appDelegate.params()->maxDeferment;
    edit(u"Bank"_s);
    program.type(u"contragentDeferment"_s, u"5000"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentDeferment"_s)->text(), QString::number(most));
    auto* const slider = program.find<QSlider>(u"contragentDefermentSlider"_s);
    EXPECT_EQ(slider->value(), most);
    slider->setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentDeferment"_s)->text(), QString::number(most - 1));
    press(Qt::Key_Return);
    EXPECT_EQ(contragent(u"Bank"_s)->deferment, most - 1);
}

TEST_F(ContragentsPage, anEmployeeAddedFromTheFormWithHisFunctionIsChosen)
{
    openSampleTree();
    edit(u"Bank"_s);
    program.click(u"addManagerFromContragent"_s);
    ASSERT_TRUE(isOpen(u"managerPopover"_s));
    EXPECT_EQ(focusName(), u"managerName"_s);
    write(u"Ann"_s);
    program.click(u"addFunctionFromManager"_s);
    ASSERT_TRUE(isOpen(u"functionPopover"_s));
    EXPECT_EQ(focusName(), u"functionName"_s);
    write(u"Seller"_s);
    program.type(u"functionSalary"_s, u"1500"_s);
    clickIn(u"functionPopover"_s, u"okButton"_s);
    EXPECT_FALSE(isOpen(u"functionPopover"_s));
    EXPECT_EQ(program.find<QComboBox>(u"managerFunctionSelect"_s)->currentText(), u"Seller"_s);
    EXPECT_EQ(focusName(), u"managerFunctionSelect"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"managerPopover"_s));
    ASSERT_TRUE(isOpen(u"contragentPopover"_s));
    EXPECT_EQ(program.find<QComboBox>(u"contragentManagerSelect"_s)->currentText(), u"Ann"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(contragent(u"Bank"_s)->managerID, 1);
    EXPECT_EQ(stored<Manager>(1)->name, u"Ann"_s);
    EXPECT_EQ(stored<Manager>(1)->functionID, 1);
    EXPECT_EQ(stored<Function>(1)->innerSalary.toText(), u"1500"_s);
    EXPECT_EQ(text(u"Bank"_s, u"Manager"_s), u"Ann"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ContragentsPage, anEmployeeWhoWasNotAddedAfterAllLeavesTheForm)
{
    openSampleTree();
    edit(u"Bank"_s);
    write(u"Savings bank"_s);
    program.click(u"addManagerFromContragent"_s);
    write(u"Never"_s);
    press(Qt::Key_Escape);
    ASSERT_TRUE(isOpen(u"contragentPopover"_s));
    EXPECT_FALSE(workspace().contragentController->addNewManager);
    press(Qt::Key_Return);
    EXPECT_NE(contragent(u"Savings bank"_s), nullptr);
    EXPECT_EQ(countOf<Manager>(), 0);
}

TEST_F(ContragentsPage, aGroupAddedFromTheFormIsChosenThere)
{
    openSampleTree();
    press(Qt::Key_Insert);
    write(u"Varda"_s);
    program.click(u"addContragentGroupFromPopover"_s);
    EXPECT_FALSE(program.find(u"contragentGroupOkButton"_s)->isEnabled());
    write(u"Suppliers"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QComboBox>(u"contragentGroupSelect"_s)->currentText(), u"Suppliers"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Bank Customers(Acme Zeta) Suppliers(Varda)"_s);
    EXPECT_EQ(currentName(), u"Varda"_s);
}

TEST_F(ContragentsPage, theBalanceOpensOnlyBehindAQuestion)
{
    openSampleTree();
    edit(u"Bank"_s);
    EXPECT_FALSE(program.find(u"contragentBalance"_s)->isEnabled());
    dialogs().answers = {firstButton + 1, firstButton};
    auto* const lock = program.find<QToolButton>(u"contragentBalanceOpenButton"_s);
    const QString locked = lock->toolTip();
    lock->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(dialogs().questions.back().messageText, u"Enable contragent balance"_s);
    EXPECT_FALSE(program.find(u"contragentBalance"_s)->isEnabled());
    EXPECT_EQ(lock->toolTip(), locked);
    press(Qt::Key_Space);
    EXPECT_TRUE(program.find(u"contragentBalance"_s)->isEnabled());
    EXPECT_NE(lock->toolTip(), locked);
    EXPECT_EQ(focusName(), u"contragentBalance"_s);
    write(u"77"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(contragent(u"Bank"_s)->innerBalance.toText(), u"77"_s);
    EXPECT_EQ(text(u"Bank"_s, u"Balance"_s), u"77.00"_s);
    // A new one has nothing to lock.
    press(Qt::Key_Insert);
    EXPECT_TRUE(program.find(u"contragentBalance"_s)->isEnabled());
    EXPECT_FALSE(program.find(u"contragentBalanceOpenButton"_s)->isEnabled());
}

TEST_F(ContragentsPage, aLockClosedAgainAsksNothing)
{
    openSampleTree();
    edit(u"Bank"_s);
    dialogs().answers = {firstButton};
    program.click(u"contragentBalanceOpenButton"_s);
    program.click(u"contragentBalanceOpenButton"_s);
    EXPECT_EQ(dialogs().questions.size(), 1u);
    EXPECT_FALSE(program.find(u"contragentBalance"_s)->isEnabled());
}

TEST_F(ContragentsPage, nobodyBelongsToHimself)
{
    openSampleTree();
    edit(u"Bank"_s);
    choose(u"contragentParentContragentSelect"_s, u"Ban"_s);
    EXPECT_NE(program.find<QComboBox>(u"contragentParentContragentSelect"_s)->currentText(), u"Bank"_s);
    choose(u"contragentParentContragentSelect"_s, u"Acme"_s);
    EXPECT_EQ(program.find<QComboBox>(u"contragentParentContragentSelect"_s)->currentText(), u"Acme"_s);
}

TEST_F(ContragentsPage, aCounterpartyIsDroppedOnAnother)
{
    openSampleTree();
    EXPECT_TRUE(dropOn(u"Bank"_s, u"Acme"_s));
    EXPECT_EQ(names(), u"Customers(Acme(Bank) Zeta)"_s);
    EXPECT_EQ(contragent(u"Bank"_s)->parentContragentID, contragent(u"Acme"_s)->id);
    tree()->expandAll();
    EXPECT_FALSE(dropOn(u"Acme"_s, u"Bank"_s));      // under itself
    EXPECT_FALSE(dropOn(u"Customers"_s, u"Zeta"_s)); // a group on a counterparty
    EXPECT_EQ(names(), u"Customers(Acme(Bank) Zeta)"_s);
    EXPECT_TRUE(dropOnGround(u"Bank"_s));
    EXPECT_EQ(names(), u"Customers(Acme Zeta) Bank"_s);
    EXPECT_EQ(contragent(u"Bank"_s)->parentContragentID, 0);
}

TEST_F(ContragentsPage, balancesAreRightAlignedAndColoured)
{
    openSampleTree();
    EXPECT_EQ(text(u"Acme"_s, u"Balance"_s), u"-10.00"_s);
    EXPECT_EQ(text(u"Customers"_s, u"Balance"_s), QString());
    const auto ink = [this](const QString& name) {
        return cell(name, u"Balance"_s).data(Qt::ForegroundRole).value<QBrush>().color();
    };
    EXPECT_NE(ink(u"Acme"_s), ink(u"Bank"_s));
    EXPECT_TRUE(cell(u"Acme"_s, u"Balance"_s).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(ContragentsPage, aClickOnTheHeadSortsByBalance)
{
    openSampleTree();
    clickHeader(u"Balance"_s);
    EXPECT_EQ(names(), u"Customers(Zeta Acme) Bank"_s);
    clickHeader(u"Balance"_s);
    EXPECT_EQ(names(), u"Bank Customers(Acme Zeta)"_s);
    clickHeader(u"Name"_s);
    EXPECT_EQ(names(), u"Bank Customers(Acme Zeta)"_s);
    clickHeader(u"Name"_s);
    EXPECT_EQ(names(), u"Customers(Zeta Acme) Bank"_s);
}

TEST_F(ContragentsPage, aTickHidesACounterpartyButNotItsRow)
{
    openSampleTree();
    tick(u"Zeta"_s, u"Hidden"_s);
    EXPECT_TRUE(contragent(u"Zeta"_s)->isHidden);
    EXPECT_EQ(state(u"Zeta"_s, u"Hidden"_s), Qt::Checked);
    EXPECT_EQ(names(), u"Bank Customers(Acme Zeta)"_s);
    program.clickCell(list(), cell(u"Customers"_s));
    press(Qt::Key_Space);
    EXPECT_TRUE(stored<ContragentGroup>(1)->isHidden);
}

TEST_F(ContragentsPage, theManagerIsNotCutOffWhereThereIsRoom)
{
    Manager manager;
    manager.name = u"Wilhelmina Montgomery"_s;
    Contragent record;
    record.name = u"Acme"_s;
    record.managerID = store(manager);
    record.parentID = storeNamed<ContragentGroup>(u"Customers"_s);
    store(std::move(record));
    openPage(DocType::ContragentCatalog);
    ASSERT_FALSE(tree()->isExpanded(cell(u"Customers"_s).siblingAtColumn(0)));
    program.clickCell(list(), cell(u"Customers"_s));
    press(Qt::Key_Right);
    const int column = columnTitled(list(), u"Manager"_s);
    EXPECT_EQ(text(u"Acme"_s, u"Manager"_s), u"Wilhelmina Montgomery"_s);
    EXPECT_GE(tree()->columnWidth(column),
              tree()->sizeHintForIndex(cell(u"Acme"_s, u"Manager"_s)).width() - measures::rowPadding);
    EXPECT_EQ(tree()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(ContragentsPage, theFormFitsASmallWindow)
{
    openSampleTree();
    program.window().resize(1000, 640);
    edit(u"Zeta"_s);
    QWidget* const form = program.find(u"contragentPopover"_s);
    ASSERT_NE(form, nullptr);
    for (const QString& name : {u"contragentName"_s, u"contragentVatNumber"_s, u"contragentComment"_s,
                                u"contragentDefermentSlider"_s, u"contragentOkButton"_s}) {
        QWidget* const field = program.find(name);
        ASSERT_NE(field, nullptr) << name.toStdString();
        EXPECT_EQ(field->visibleRegion().boundingRect(), field->rect()) << name.toStdString();
    }
}

} // namespace
} // namespace zelvor
