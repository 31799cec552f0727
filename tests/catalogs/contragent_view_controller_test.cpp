#include "catalogs/contragent_view_controller.h"

#include "catalogs/manager_view_controller.h"
#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class ContragentCatalog : public TreeCatalogFixture {
protected:
    ContragentCatalog() { controller.managerController = &managers; }

    qint64 storeContragent(const QString& name, double balance = 0, qint64 groupID = 0, qint64 holderID = 0)
    {
        Contragent record;
        record.name = name;
        record.parentID = groupID;
        record.parentContragentID = holderID;
        record.setBalance(balance);
        return store(record);
    }
    QString tree() { return shape(controller.view); }
    std::shared_ptr<Contragent> contragent(const QString& name)
    {
        return std::dynamic_pointer_cast<Contragent>(row(controller.view, name));
    }

    ManagerViewController managers{program.appDelegate};
    ContragentViewController controller{program.appDelegate};
};

TEST_F(ContragentCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Counterparties Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view),
              (QStringList{u"name"_s, u"managerName"_s, u"balance"_s, u"hidden"_s}));
    EXPECT_FALSE(controller.view.canExportToExcel());
}

TEST_F(ContragentCatalog, theAddButtonAsksWhatToAdd)
{
    EXPECT_EQ(controller.addContragentButton.menuTitle(), u"Context"_s);
    EXPECT_EQ(controller.addContragentButton.entries()[0].title, u"Add New Counterparty"_s);
    EXPECT_EQ(controller.addContragentButton.entries()[1].title, u"Add New Counterparties Group"_s);
    EXPECT_TRUE(controller.addContragentButton.choose(0));
    EXPECT_EQ(controller.contragentPopoverName.text(), u"Add New Counterparty"_s);
    EXPECT_TRUE(controller.addContragentButton.choose(1));
    EXPECT_EQ(controller.contragentGroupPopoverName.text(), u"Add New Counterparties Group"_s);
    EXPECT_FALSE(controller.addContragentButton.choose(2));
}

TEST_F(ContragentCatalog, titlesOfTheEditPopoversAreTheSystemsOwn)
{
    storeUnder<ContragentGroup>(u"G"_s);
    storeContragent(u"C"_s);
    controller.view.doubleAction(row(controller.view, u"G"_s));
    EXPECT_EQ(controller.contragentGroupPopoverName.text(), u"Edit Contragent Group"_s);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    EXPECT_EQ(controller.contragentPopoverName.text(), u"Edit Contragent"_s);
}

TEST_F(ContragentCatalog, withBothParentsACounterpartySitsUnderTheGroupAndTheOtherLinkStaysInTheFile)
{
    const qint64 group = storeUnder<ContragentGroup>(u"Group"_s);
    const qint64 holder = storeContragent(u"Holder"_s);
    const qint64 both = storeContragent(u"Both"_s, 0, group, holder);
    EXPECT_EQ(tree(), u"Group(Both) Holder"_s);
    EXPECT_TRUE(controller.updateContragent(contragent(u"Both"_s)));
    EXPECT_EQ(stored<Contragent>(both)->parentContragentID, holder);
    EXPECT_EQ(stored<Contragent>(both)->parentID, group);
}

TEST_F(ContragentCatalog, aCounterpartyHoldsCounterpartiesAtAnyDepth)
{
    const qint64 one = storeContragent(u"one"_s);
    const qint64 two = storeContragent(u"two"_s, 0, 0, one);
    storeContragent(u"three"_s, 0, 0, two);
    EXPECT_EQ(tree(), u"one(two(three))"_s);
    EXPECT_EQ(contragent(u"one"_s)->getChildrenIDs(), (std::vector<qint64>{2, 3}));
    EXPECT_TRUE(contragent(u"three"_s)->isChildOfObject(contragent(u"one"_s).get()));
    EXPECT_FALSE(contragent(u"one"_s)->isChildOfObject(contragent(u"one"_s).get()));
}

TEST_F(ContragentCatalog, aGroupCannotBeDroppedOnACounterpartyButACounterpartyCan)
{
    const qint64 group = storeUnder<ContragentGroup>(u"Group"_s);
    const qint64 inner = storeContragent(u"Inner"_s, 0, group);
    const qint64 holder = storeContragent(u"Holder"_s);
    EXPECT_FALSE(mayDrop(controller.view, u"Group"_s, u"Holder"_s));
    EXPECT_TRUE(drop(controller.view, u"Inner"_s, u"Holder"_s));
    EXPECT_EQ(tree(), u"Group Holder(Inner)"_s);
    EXPECT_EQ(stored<Contragent>(inner)->parentContragentID, holder);
    EXPECT_EQ(stored<Contragent>(inner)->parentID, 0);
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::ContragentChangedNotification});

    EXPECT_TRUE(drop(controller.view, u"Inner"_s, {}));
    EXPECT_EQ(stored<Contragent>(inner)->parentContragentID, 0);
    EXPECT_EQ(tree(), u"Group Holder Inner"_s);
}

TEST_F(ContragentCatalog, aBalanceSortLeavesTheThirdLevelInNameOrder)
{
    const qint64 low = storeContragent(u"low"_s, -5);
    storeContragent(u"high"_s, 5);
    const qint64 rich = storeContragent(u"rich"_s, 9, 0, low);
    storeContragent(u"poor"_s, 1, 0, low);
    storeContragent(u"b"_s, 1, 0, rich);
    storeContragent(u"a"_s, 2, 0, rich);
    EXPECT_EQ(tree(), u"high low(poor,rich(a,b))"_s);
    controller.view.sort(u"balance"_s, true);
    EXPECT_EQ(tree(), u"low(poor,rich(a,b)) high"_s);
    controller.view.sort(u"balance"_s, false);
    EXPECT_EQ(tree(), u"high low(rich(b,a),poor)"_s) << "below the second level by name, descending";
}

TEST_F(ContragentCatalog, groupsHaveBalanceZeroAndKeepTheirStablePlaceInABalanceSort)
{
    storeUnder<ContragentGroup>(u"B"_s);
    storeUnder<ContragentGroup>(u"A"_s);
    storeContragent(u"minus"_s, -1);
    storeContragent(u"nought"_s, 0);
    storeContragent(u"plus"_s, 1);
    controller.view.sort(u"balance"_s, true);
    EXPECT_EQ(tree(), u"minus A B nought plus"_s);
    ContragentGroup group;
    group.setBalance(7);
    EXPECT_EQ(group.balance(), 0);
}

TEST_F(ContragentCatalog, aZeroBalanceIsBlueOnTheRecordAndBlackInTheList)
{
    storeContragent(u"nought"_s, 0);
    storeContragent(u"minus"_s, -1);
    storeContragent(u"plus"_s, 1);
    const auto color = [&](const QString& name) {
        return controller.view.cellStyle(row(controller.view, name), u"balance"_s).color;
    };
    const Color blue{0.121, 0.212, 0.607, 1.0};
    EXPECT_EQ(contragent(u"nought"_s)->balanceFontColor(), blue);
    EXPECT_EQ(color(u"nought"_s), blackColor);
    EXPECT_EQ(contragent(u"plus"_s)->balanceFontColor(), blue);
    EXPECT_EQ(color(u"plus"_s), blue);
    EXPECT_EQ(contragent(u"minus"_s)->balanceFontColor(), redColor);
    EXPECT_EQ(color(u"minus"_s), redColor);
}

TEST_F(ContragentCatalog, aGroupRowShowsItsNameAndItsTickOnly)
{
    storeUnder<ContragentGroup>(u"Group"_s);
    const auto node = row(controller.view, u"Group"_s);
    EXPECT_EQ(controller.view.value(node, u"balance"_s), QVariant(QString()));
    EXPECT_EQ(controller.view.value(node, u"managerName"_s), QVariant(QString()));
    EXPECT_EQ(controller.view.value(node, u"hidden"_s), QVariant(false));
}

TEST_F(ContragentCatalog, hiddenIsTickedInTheRowForGroupsAndLeavesAndTold)
{
    storeUnder<ContragentGroup>(u"Group"_s);
    storeContragent(u"Leaf"_s);
    EXPECT_TRUE(controller.view.setValue(row(controller.view, u"Group"_s), u"hidden"_s, true));
    EXPECT_TRUE(controller.view.setValue(row(controller.view, u"Leaf"_s), u"hidden"_s, true));
    EXPECT_TRUE(stored<ContragentGroup>(1)->isHidden);
    EXPECT_TRUE(stored<Contragent>(1)->isHidden);
    EXPECT_EQ(program.posted.count(NotificationName::ContragentChangedNotification), 2U);
    EXPECT_EQ(tree(), u"Group Leaf"_s) << "a hidden record stays in the catalog's own list";
    EXPECT_FALSE(controller.view.setValue(row(controller.view, u"Leaf"_s), u"balance"_s, 5));
}

TEST_F(ContragentCatalog, aTickThatCannotBeStoredIsPutBack)
{
    storeContragent(u"Leaf"_s);
    const auto node = row(controller.view, u"Leaf"_s);
    for (const unsigned kind : {FaultInjectingConnector::Begin, FaultInjectingConnector::Update}) {
        program.connector->failCall(1, kind);
        EXPECT_FALSE(controller.view.setValue(node, u"hidden"_s, true));
        EXPECT_EQ(controller.view.value(node, u"hidden"_s), QVariant(false));
        EXPECT_FALSE(stored<Contragent>(1)->isHidden);
    }
    EXPECT_TRUE(program.posted.names.empty());
}

TEST_F(ContragentCatalog, popoverFieldsGoIntoTheRecordAndBack)
{
    Manager manager;
    manager.name = u"Ann"_s;
    const qint64 ann = store(manager);
    const qint64 group = storeUnder<ContragentGroup>(u"Group"_s);
    const qint64 holder = storeContragent(u"Holder"_s);
    controller.addContragent();
    type(controller.contragentName, u"Acme"_s);
    controller.contragentGroupSelect.selectTag(group);
    controller.contragentParentContragentSelect.selectTag(holder);
    controller.contragentManagerSelect.selectTag(ann);
    type(controller.contragentDiscount, Decimal::fromText(u"2.345"));
    type(controller.contragentBalance, Decimal::fromText(u"-10.5"));
    controller.contragentDefermentSlider.setValue(14);
    controller.contragentDefermentSlider.userChanged();
    type(controller.contragentAddress, u"Street 1"_s);
    type(controller.contragentCity, u"Town"_s);
    type(controller.contragentContactPerson, u"Bob"_s);
    type(controller.contragentPhone, u"123"_s);
    type(controller.contragentMail, u"a@b"_s);
    type(controller.contragentVatNumber, u"VAT1"_s);
    type(controller.contragentComment, u"note"_s);
    EXPECT_TRUE(controller.contragentOkButton.userChanged());

    const auto acme = stored<Contragent>(2);
    ASSERT_NE(acme, nullptr);
    EXPECT_EQ(acme->parentID, group);
    EXPECT_EQ(acme->parentContragentID, holder);
    EXPECT_EQ(acme->managerID, ann);
    EXPECT_EQ(acme->innerDiscount.toText(), u"2.34"_s);
    EXPECT_EQ(acme->innerBalance.toText(), u"-10.5"_s);
    EXPECT_EQ(acme->deferment, 14);
    EXPECT_EQ(acme->contactPerson, u"Bob"_s);
    EXPECT_EQ(acme->comment, u"note"_s);

    controller.view.doubleAction(row(controller.view, u"Acme"_s));
    EXPECT_EQ(controller.contragentManagerSelect.selectedTitle(), u"Ann"_s);
    EXPECT_EQ(controller.contragentParentContragentSelect.selectedTitle(), u"Holder"_s);
    EXPECT_EQ(controller.contragentDeferment.integer(), 14);
    EXPECT_EQ(controller.contragentCity.text(), u"Town"_s);
    EXPECT_EQ(controller.contragentVatNumber.text(), u"VAT1"_s);
}

TEST_F(ContragentCatalog, defermentIsReadFromTheSlider)
{
    storeContragent(u"C"_s);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    controller.contragentDefermentSlider.setValue(9);
    controller.contragentDefermentSlider.userChanged();
    EXPECT_EQ(controller.contragentDeferment.integer(), 9);
    controller.contragentDeferment.setValue(25);
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(stored<Contragent>(1)->deferment, 9);
}

TEST_F(ContragentCatalog, typedDefermentMovesTheSliderWithinItsBounds)
{
    storeContragent(u"C"_s);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    EXPECT_TRUE(controller.contragentDeferment.enabled());
    type(controller.contragentDeferment, Decimal(12));
    EXPECT_EQ(controller.contragentDefermentSlider.value(), 12);
    type(controller.contragentDeferment, Decimal(100'000));
    const qint64 most = controller.contragentDefermentSlider.maximum();
    EXPECT_EQ(controller.contragentDefermentSlider.value(), most);
    EXPECT_EQ(controller.contragentDeferment.integer(), most);
    type(controller.contragentDeferment, Decimal(-3));
    EXPECT_EQ(controller.contragentDeferment.integer(), 0);
    type(controller.contragentDeferment, Decimal(7));
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(stored<Contragent>(1)->deferment, 7);
}

TEST_F(ContragentCatalog, theSlidersMaximumFollowsTheSettings)
{
    Params params;
    params.maxDeferment = 45;
    store(params);
    controller.prepareContragents();
    EXPECT_EQ(controller.contragentDefermentSlider.maximum(), 45);
    params.maxDeferment = 60;
    connector().update(params);
    program.appDelegate.notifications.post(NotificationName::DefaultsChangedNotification);
    EXPECT_EQ(controller.contragentDefermentSlider.maximum(), 60);
}

TEST_F(ContragentCatalog, anEmptiedBalanceBecomesZero)
{
    controller.addContragent();
    controller.contragentBalance.clear();
    controller.contragentBalance.userChanged();
    EXPECT_FALSE(controller.contragentBalance.isEmpty());
    EXPECT_EQ(controller.contragentBalance.real(), 0);
}

TEST_F(ContragentCatalog, theBalanceOfANewOneIsOpenAndThatOfAStoredOneLocked)
{
    storeContragent(u"C"_s, 5);
    controller.addContragent();
    EXPECT_TRUE(controller.contragentBalance.enabled());
    EXPECT_FALSE(controller.contragentBalanceOpenButton.isOn());
    EXPECT_FALSE(controller.contragentBalanceOpenButton.enabled());
    controller.cancelContragentPopover();
    controller.view.doubleAction(row(controller.view, u"C"_s));
    EXPECT_FALSE(controller.contragentBalance.enabled());
    EXPECT_TRUE(controller.contragentBalanceOpenButton.isOn());
    EXPECT_TRUE(controller.contragentBalanceOpenButton.enabled());
}

TEST_F(ContragentCatalog, openingTheLockAsksAndProceedOpensTheField)
{
    storeContragent(u"C"_s, 5);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    program.dialogs.answers = {firstButton};
    controller.contragentBalanceOpenButton.setOn(false);
    controller.contragentBalanceOpenButton.userChanged();
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    const Alert& question = program.dialogs.questions.front();
    EXPECT_EQ(question.messageText, u"Enable contragent balance"_s);
    EXPECT_EQ(question.informativeText,
              u"You are trying to change contragent balance manually. It may cause of "
              "incorrectness main balance. Are you sure?"_s);
    EXPECT_EQ(question.buttons, (QStringList{u"Proceed"_s, u"Cancel"_s}));
    EXPECT_EQ(question.alertStyle, 1);
    EXPECT_TRUE(controller.contragentBalance.enabled());

    type(controller.contragentBalance, 42);
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(stored<Contragent>(1)->balance(), 42);
}

TEST_F(ContragentCatalog, cancellingTheSheetLeavesTheFieldClosedAndTheButtonOn)
{
    storeContragent(u"C"_s, 5);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    program.dialogs.answers = {firstButton + 1};
    controller.contragentBalanceOpenButton.setOn(false);
    controller.contragentBalanceOpenButton.userChanged();
    EXPECT_FALSE(controller.contragentBalance.enabled());
    EXPECT_TRUE(controller.contragentBalanceOpenButton.isOn());
}

TEST_F(ContragentCatalog, anAnswerThatComesAfterThePopoverClosedOpensNoOtherLock)
{
    storeContragent(u"C"_s, 5);
    storeContragent(u"D"_s, 7);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    controller.contragentBalanceOpenButton.setOn(false);
    controller.contragentBalanceOpenButton.userChanged();
    controller.cancelContragentPopover();
    controller.view.doubleAction(row(controller.view, u"D"_s));
    ASSERT_EQ(program.dialogs.unanswered.size(), 1U);
    program.dialogs.unanswered.front()(firstButton);
    EXPECT_FALSE(controller.contragentBalance.enabled());
    EXPECT_TRUE(controller.contragentBalanceOpenButton.isOn());
}

TEST_F(ContragentCatalog, aCancelledAdditionDoesNotKeepTheNextEditFromOk)
{
    storeContragent(u"C"_s);
    controller.addContragent();
    EXPECT_FALSE(controller.contragentOkButton.enabled());
    controller.cancelContragentPopover();
    controller.view.doubleAction(row(controller.view, u"C"_s));
    EXPECT_TRUE(controller.contragentOkButton.enabled());
}

TEST_F(ContragentCatalog, aTickOnARowOfAnOlderTreeKeepsTheBalanceThatADocumentChangedMeanwhile)
{
    storeContragent(u"C"_s, 5);
    const OutlineView::Node old = row(controller.view, u"C"_s);
    const auto paid = stored<Contragent>(1);
    paid->setBalance(99);
    ASSERT_EQ(connector().update(*paid), 1);
    program.appDelegate.notifications.post(NotificationName::ContragentBalanceChangedNotification);
    EXPECT_TRUE(controller.view.setValue(old, u"hidden"_s, true));
    EXPECT_TRUE(stored<Contragent>(1)->isHidden);
    EXPECT_EQ(stored<Contragent>(1)->balance(), 99);
}

TEST_F(ContragentCatalog, closingTheLockAsksNothing)
{
    storeContragent(u"C"_s, 5);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    program.dialogs.answers = {firstButton};
    controller.contragentBalanceOpenButton.setOn(false);
    controller.contragentBalanceOpenButton.userChanged();
    controller.contragentBalanceOpenButton.setOn(true);
    controller.contragentBalanceOpenButton.userChanged();
    EXPECT_FALSE(controller.contragentBalance.enabled());
    EXPECT_EQ(program.dialogs.questions.size(), 1U);
}

TEST_F(ContragentCatalog, aBalanceThatADocumentChangedMeanwhileOutlivesAnEditBehindTheLock)
{
    storeContragent(u"C"_s, 5);
    controller.view.doubleAction(row(controller.view, u"C"_s));
    const auto changed = stored<Contragent>(1);
    changed->addToBalance(Decimal(100));
    connector().update(*changed);
    type(controller.contragentName, u"D"_s);
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(stored<Contragent>(1)->name, u"D"_s);
    EXPECT_EQ(stored<Contragent>(1)->balance(), 105);
}

TEST_F(ContragentCatalog, aCounterpartyCannotBeChosenAsItsOwnParentOrThatOfWhatHoldsIt)
{
    const qint64 one = storeContragent(u"one"_s);
    storeContragent(u"two"_s, 0, 0, one);
    storeContragent(u"other"_s);
    controller.view.doubleAction(row(controller.view, u"one"_s));
    EXPECT_EQ(disabledTitles(controller.contragentParentContragentSelect), (QStringList{u"one"_s, u"two"_s}));
    controller.cancelContragentPopover();
    EXPECT_TRUE(disabledTitles(controller.contragentParentContragentSelect).isEmpty());
}

TEST_F(ContragentCatalog, choosersStartWithAnEmptyEntryAndOfferEveryRecordByName)
{
    storeNamed<Manager>(u"Zoe"_s);
    storeNamed<Manager>(u"Ann"_s);
    const qint64 group = storeUnder<ContragentGroup>(u"Group"_s);
    storeContragent(u"B"_s, 0, group);
    storeContragent(u"A"_s);
    controller.prepareContragents();
    EXPECT_EQ(titles(controller.contragentManagerSelect), (QStringList{{}, u"Ann"_s, u"Zoe"_s}));
    EXPECT_EQ(titles(controller.contragentParentContragentSelect), (QStringList{{}, u"A"_s, u"B"_s}));
    EXPECT_EQ(titles(controller.contragentGroupSelect), (QStringList{{}, u"Group"_s}));
    EXPECT_EQ(titles(controller.contragentGroupGroupSelect), (QStringList{{}, u"Group"_s}));
    EXPECT_EQ(controller.view.contragentsForSelect().size(), 2U);
    EXPECT_EQ(controller.contragentManagerSelect.items().front().tag, 0);
}

TEST_F(ContragentCatalog, anEmployeeAddedFromThePopoverIsChosenThere)
{
    controller.addContragent();
    type(controller.contragentName, u"Acme"_s);
    controller.addManager();
    EXPECT_TRUE(controller.addNewManager);
    EXPECT_TRUE(managers.managerPopover.isOpen());
    type(managers.managerName, u"Ann"_s);
    managers.okButton.userChanged();
    EXPECT_EQ(controller.contragentManagerSelect.selectedTitle(), u"Ann"_s);
    EXPECT_FALSE(controller.addNewManager);
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(stored<Contragent>(1)->managerID, 1);
    EXPECT_EQ(controller.getNameOfManagerWithID(1), u"Ann"_s);
    EXPECT_EQ(controller.getManagerWithID(99)->id, 0);
}

TEST_F(ContragentCatalog, aCancelledEmployeeClearsTheFlag)
{
    controller.addContragent();
    controller.addManager();
    managers.cancelManagerPopover();
    EXPECT_FALSE(controller.addNewManager);
}

TEST_F(ContragentCatalog, anEditedEmployeeIsRenewedInEveryRow)
{
    Manager manager;
    manager.name = u"Ann"_s;
    store(manager);
    Contragent record;
    record.name = u"C"_s;
    record.managerID = 1;
    store(record);
    const auto node = row(controller.view, u"C"_s);
    EXPECT_EQ(controller.view.value(node, u"managerName"_s).toString(), u"Ann"_s);
    managers.view.doubleAction(0);
    type(managers.managerName, u"Eve"_s);
    managers.okButton.userChanged();
    controller.refresh();
    EXPECT_EQ(controller.view.value(node, u"managerName"_s).toString(), u"Eve"_s) << "the same row";
}

TEST_F(ContragentCatalog, aChangedBalanceIsReadWhenTheListIsAskedFor)
{
    storeContragent(u"C"_s, 1);
    tree();
    const auto changed = stored<Contragent>(1);
    changed->subtractFromBalance(Decimal(3));
    connector().update(*changed);
    const qint64 before = connector().statementCount();
    program.appDelegate.notifications.post(NotificationName::ContragentBalanceChangedNotification);
    EXPECT_EQ(connector().statementCount(), before) << "nobody looks at the list";
    EXPECT_EQ(contragent(u"C"_s)->balance(), -2);
}

TEST_F(ContragentCatalog, everyWriteTellsOfChangedCounterparties)
{
    controller.addContragentGroup();
    type(controller.contragentGroupName, u"G"_s);
    controller.contragentGroupOkButton.userChanged();
    controller.addContragent();
    type(controller.contragentName, u"C"_s);
    controller.contragentOkButton.userChanged();
    EXPECT_EQ(program.posted.names, (std::vector(2, NotificationName::ContragentChangedNotification)));
    EXPECT_EQ(program.posted.notifications.front().object, nullptr);
}

TEST(ContragentRecord, answersTheIdentifiersOfItsList)
{
    Contragent record;
    record.name = u"C"_s;
    record.parentID = 3;
    record.setBalance(2.345);
    record.manager.edit().name = u"Ann"_s;
    EXPECT_EQ(record.valueForIdentifier(u"name"), QVariant(u"C"_s));
    EXPECT_EQ(record.valueForIdentifier(u"parentID"), QVariant(qint64(3)));
    EXPECT_EQ(record.valueForIdentifier(u"managerName"), QVariant(u"Ann"_s));
    EXPECT_EQ(record.valueForIdentifier(u"balance"), QVariant(2.34));
    EXPECT_EQ(record.valueForIdentifier(u"hidden"), QVariant(false));
    EXPECT_EQ(record.valueForIdentifier(u"selected"), QVariant(true));
    EXPECT_EQ(record.valueForIdentifier(u"phone"), QVariant(QString()));
    ContragentGroup group;
    EXPECT_EQ(group.valueForIdentifier(u"balance"), QVariant(QString()));
    EXPECT_EQ(group.getIdentifierForDragging(), u"ContragentGroup_0"_s);
}

} // namespace
} // namespace zelvor
