#include "catalogs/contragent_view_controller.h"
#include "catalogs/expend_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/tree_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

// The three trees behind one face.
struct Contragents {
    using Controller = ContragentViewController;
    using Group = ContragentGroup;
    using Leaf = Contragent;
    explicit Contragents(AppDelegate& appDelegate) : controller(appDelegate) {}
    void addLeaf() { controller.addContragent(); }
    void addGroup() { controller.addContragentGroup(); }
    void addGroupFromPopover() { controller.addContragentGroupFromPopover(); }
    void cancelLeaf() { controller.cancelContragentPopover(); }
    void cancelGroup() { controller.cancelContragentGroupPopover(); }
    static constexpr bool okWaitsForAName = true;
    Controller controller;
    Popover& leafPopover = controller.contragentPopover;
    TextField& leafName = controller.contragentName;
    PopUpButton& leafGroup = controller.contragentGroupSelect;
    Label& leafError = controller.contragentError;
    Button& leafOk = controller.contragentOkButton;
    Popover& groupPopover = controller.contragentGroupPopover;
    TextField& groupName = controller.contragentGroupName;
    PopUpButton& groupGroup = controller.contragentGroupGroupSelect;
    Label& groupError = controller.contragentGroupError;
    Button& groupOk = controller.contragentGroupOkButton;
};

struct Products {
    using Controller = ProductViewController;
    using Group = ProductGroup;
    using Leaf = Product;
    explicit Products(AppDelegate& appDelegate) : controller(appDelegate) {}
    void addLeaf() { controller.addProduct(); }
    void addGroup() { controller.addProductGroup(); }
    void addGroupFromPopover() { controller.addProductGroupFromPopover(); }
    void cancelLeaf() { controller.cancelProductPopover(); }
    void cancelGroup() { controller.cancelProductGroupPopover(); }
    static constexpr bool okWaitsForAName = false;
    Controller controller;
    Popover& leafPopover = controller.productPopover;
    TextField& leafName = controller.productName;
    PopUpButton& leafGroup = controller.productGroupSelect;
    Label& leafError = controller.productError;
    Button& leafOk = controller.productOkButton;
    Popover& groupPopover = controller.productGroupPopover;
    TextField& groupName = controller.productGroupName;
    PopUpButton& groupGroup = controller.productGroupGroupSelect;
    Label& groupError = controller.productGroupError;
    Button& groupOk = controller.productGroupOkButton;
};

struct Expends {
    using Controller = ExpendViewController;
    using Group = ExpendType;
    using Leaf = Expend;
    explicit Expends(AppDelegate& appDelegate) : controller(appDelegate) {}
    void addLeaf() { controller.addExpend(); }
    void addGroup() { controller.addExpendType(); }
    void addGroupFromPopover() { controller.addExpendTypeFromPopover(); }
    void cancelLeaf() { controller.cancelExpendPopover(); }
    void cancelGroup() { controller.cancelExpendTypePopover(); }
    static constexpr bool okWaitsForAName = false;
    Controller controller;
    Popover& leafPopover = controller.expendPopover;
    TextField& leafName = controller.expendName;
    PopUpButton& leafGroup = controller.expendGroupSelect;
    Label& leafError = controller.expendError;
    Button& leafOk = controller.expendOkButton;
    Popover& groupPopover = controller.expendTypePopover;
    TextField& groupName = controller.expendTypeName;
    PopUpButton& groupGroup = controller.expendTypeGroupSelect;
    Label& groupError = controller.expendTypeError;
    Button& groupOk = controller.expendTypeOkButton;
};

template <class Catalog>
class TreeCatalog : public TreeCatalogFixture {
protected:
    using Group = typename Catalog::Group;
    using Leaf = typename Catalog::Leaf;

    auto& view() { return catalog.controller.view; }
    // A(B(c,d),e) f
    void storeSample()
    {
        const qint64 a = storeUnder<Group>(u"A"_s);
        const qint64 b = storeUnder<Group>(u"B"_s, a);
        storeUnder<Leaf>(u"d"_s, b);
        storeUnder<Leaf>(u"f"_s);
        storeUnder<Leaf>(u"c"_s, b);
        storeUnder<Leaf>(u"e"_s, a);
    }
    qint64 addThroughPopover(const QString& name)
    {
        catalog.addLeaf();
        type(catalog.leafName, name);
        EXPECT_TRUE(catalog.leafOk.userChanged());
        return connector().freeSQL<Leaf>("ORDER BY id DESC LIMIT 1").front()->id;
    }

    Catalog catalog{program.appDelegate};
};

using Catalogs = ::testing::Types<Contragents, Products, Expends>;
TYPED_TEST_SUITE(TreeCatalog, Catalogs);

TYPED_TEST(TreeCatalog, buildsTheTreeOutOfFlatRowsSortedByName)
{
    this->storeSample();
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e) f"_s);
    EXPECT_EQ(this->catalog.controller.all().size(), 6U);
}

TYPED_TEST(TreeCatalog, parentsNeedNotComeBeforeTheirChildren)
{
    this->template storeUnder<typename TypeParam::Group>(u"Below"_s, 2);
    this->template storeUnder<typename TypeParam::Group>(u"Above"_s);
    EXPECT_EQ(this->shape(this->view()), u"Above(Below)"_s);
}

TYPED_TEST(TreeCatalog, namesCompareByCodePointAndEqualNamesKeepTheOrderOfTheTable)
{
    this->template storeUnder<typename TypeParam::Leaf>(u"Älm"_s);
    this->template storeUnder<typename TypeParam::Leaf>(u"elm"_s);
    this->template storeUnder<typename TypeParam::Leaf>(u"Oak"_s);
    this->template storeUnder<typename TypeParam::Leaf>(u"Oak"_s);
    EXPECT_EQ(this->shape(this->view()), u"Oak Oak elm Älm"_s);
    EXPECT_EQ(this->view().child(nullptr, 0)->id, 3);
    EXPECT_EQ(this->view().child(nullptr, 1)->id, 4);
}

TYPED_TEST(TreeCatalog, aNodeWhoseGroupDoesNotExistIsInAllAndInNoListOfTheTree)
{
    this->template storeUnder<typename TypeParam::Leaf>(u"lost"_s, 99);
    this->template storeUnder<typename TypeParam::Leaf>(u"found"_s);
    EXPECT_EQ(this->shape(this->view()), u"found"_s);
    EXPECT_EQ(this->catalog.controller.all().size(), 2U);
}

TYPED_TEST(TreeCatalog, groupsThatHoldEachOtherAreInNoListOfTheTree)
{
    this->template storeUnder<typename TypeParam::Group>(u"one"_s, 2);
    this->template storeUnder<typename TypeParam::Group>(u"two"_s, 1);
    this->template storeUnder<typename TypeParam::Group>(u"own"_s, 3);
    this->template storeUnder<typename TypeParam::Leaf>(u"free"_s);
    EXPECT_EQ(this->shape(this->view()), u"free"_s);
    EXPECT_EQ(this->catalog.controller.all().size(), 4U);
    for (const auto& node : this->catalog.controller.all())
        EXPECT_TRUE(node->children.empty()) << "would own itself for ever";
}

TYPED_TEST(TreeCatalog, aGroupAndARowWithChildrenAreGroupItems)
{
    this->storeSample();
    EXPECT_TRUE(this->view().isGroupItem(this->row(this->view(), u"A"_s)));
    EXPECT_FALSE(this->view().isGroupItem(this->row(this->view(), u"f"_s)));
    EXPECT_EQ(this->view().parent(this->row(this->view(), u"c"_s)), this->row(this->view(), u"B"_s));
}

TYPED_TEST(TreeCatalog, theDraggedTextNamesClassAndId)
{
    this->storeSample();
    auto& controller = this->catalog.controller;
    const QString text = this->view().pasteboardText(this->row(this->view(), u"d"_s));
    EXPECT_TRUE(text.endsWith(u"_1"_s));
    EXPECT_EQ(controller.getItemWithIdentifier(text)->name, u"d"_s);
    const QString group = this->view().pasteboardText(this->row(this->view(), u"A"_s));
    EXPECT_EQ(controller.getItemWithIdentifier(group)->name, u"A"_s);
    EXPECT_EQ(controller.getItemWithIdentifier(u"Nothing_1"_s), nullptr);
}

TYPED_TEST(TreeCatalog, aNodeDropsNeitherOnItselfNorOnItsDescendants)
{
    this->storeSample();
    EXPECT_FALSE(this->mayDrop(this->view(), u"A"_s, u"A"_s));
    EXPECT_FALSE(this->mayDrop(this->view(), u"A"_s, u"B"_s));
    EXPECT_FALSE(this->mayDrop(this->view(), u"A"_s, u"c"_s));
    EXPECT_TRUE(this->mayDrop(this->view(), u"B"_s, u"A"_s));
    EXPECT_FALSE(this->drop(this->view(), u"A"_s, u"B"_s));
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e) f"_s);
}

TYPED_TEST(TreeCatalog, aRowOfAnOlderTreeStandsForItsRecordInTheTreeAsItIsNow)
{
    this->storeSample();
    auto& view = this->view();
    const OutlineView::Node oldB = this->row(view, u"B"_s);
    const QString a = view.pasteboardText(this->row(view, u"A"_s));
    const QString f = view.pasteboardText(this->row(view, u"f"_s));
    this->catalog.controller.markStale();
    EXPECT_FALSE(view.validateDrop(a, oldB)) << "A would hold itself";
    EXPECT_FALSE(view.acceptDrop(a, oldB));
    this->catalog.controller.markStale();
    EXPECT_TRUE(view.acceptDrop(f, oldB));
    EXPECT_EQ(this->shape(view), u"A(B(c,d,f),e)"_s);
}

TYPED_TEST(TreeCatalog, aGroupDroppedOnALeafIsRefused)
{
    this->storeSample();
    EXPECT_FALSE(this->mayDrop(this->view(), u"B"_s, u"f"_s));
    EXPECT_TRUE(this->mayDrop(this->view(), u"c"_s, u"f"_s));
}

TYPED_TEST(TreeCatalog, aTextThatNamesNoNodeRefusesTheDrop)
{
    this->storeSample();
    EXPECT_FALSE(this->view().validateDrop(u"Nobody_7"_s, this->row(this->view(), u"A"_s)));
    EXPECT_FALSE(this->view().acceptDrop(u"Nobody_7"_s, nullptr));
}

TYPED_TEST(TreeCatalog, aGroupDroppedOnTheTopLevelStandsAtTheEndUntilTheNextRebuild)
{
    this->storeSample();
    EXPECT_TRUE(this->mayDrop(this->view(), u"B"_s, {}));
    EXPECT_TRUE(this->drop(this->view(), u"B"_s, {}));
    EXPECT_EQ(this->shape(this->view()), u"A(e) f B(c,d)"_s);
    EXPECT_EQ(this->template stored<typename TypeParam::Group>(2)->parentID, 0);
    this->catalog.controller.markStale();
    EXPECT_EQ(this->shape(this->view()), u"A(e) B(c,d) f"_s);
}

TYPED_TEST(TreeCatalog, aLeafDroppedOnAGroupIsStoredThereInItsPlaceByName)
{
    this->storeSample();
    EXPECT_TRUE(this->drop(this->view(), u"e"_s, u"B"_s));
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d,e)) f"_s);
    EXPECT_EQ(this->template stored<typename TypeParam::Leaf>(4)->parentID, 2);
}

TYPED_TEST(TreeCatalog, aFailedDropLeavesMemoryMovedAndTheFileAsItWas)
{
    this->storeSample();
    this->shape(this->view());
    this->program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_TRUE(this->drop(this->view(), u"f"_s, u"A"_s));
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e,f)"_s);
    EXPECT_EQ(this->template stored<typename TypeParam::Leaf>(2)->parentID, 0);
    EXPECT_TRUE(this->program.posted.names.empty());
    this->catalog.controller.markStale();
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e) f"_s);
}

TYPED_TEST(TreeCatalog, sortingByNameTurnsTheWholeTreeUntilTheNextRebuild)
{
    this->storeSample();
    this->view().sort(u"name"_s, false);
    EXPECT_EQ(this->shape(this->view()), u"f A(e,B(d,c))"_s);
    this->view().sort(u"colour"_s, true);
    EXPECT_EQ(this->shape(this->view()), u"f A(e,B(d,c))"_s);
    this->catalog.controller.markStale();
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e) f"_s);
}

TYPED_TEST(TreeCatalog, whatStoodOpenStandsOpenAfterARebuild)
{
    this->storeSample();
    auto& view = this->view();
    view.setItemExpanded(this->row(view, u"A"_s), true);
    view.setItemExpanded(this->row(view, u"B"_s), true);
    this->catalog.controller.markStale();
    EXPECT_TRUE(view.isItemExpanded(this->row(view, u"B"_s)));
    EXPECT_EQ(this->catalog.controller.expanded, (std::vector<qint64>{1, 2}));
    // A closed group is not entered: what stands open below it is forgotten.
    view.setItemExpanded(this->row(view, u"A"_s), false);
    this->catalog.controller.markStale();
    EXPECT_FALSE(view.isItemExpanded(this->row(view, u"A"_s)));
    EXPECT_FALSE(view.isItemExpanded(this->row(view, u"B"_s)));
}

TYPED_TEST(TreeCatalog, okStoresANewLeafUnderTheChosenGroup)
{
    this->storeSample();
    TypeParam& forms = this->catalog;
    forms.addLeaf();
    EXPECT_TRUE(forms.leafPopover.isOpen());
    EXPECT_EQ(this->titles(forms.leafGroup).mid(1), (QStringList{u"A"_s, u"B"_s}));
    this->type(forms.leafName, u"new"_s);
    forms.leafGroup.selectTag(2);
    EXPECT_TRUE(forms.leafOk.userChanged());
    EXPECT_FALSE(forms.leafPopover.isOpen());
    EXPECT_EQ(forms.controller.focusedObject, nullptr);
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d,new),e) f"_s);
}

TYPED_TEST(TreeCatalog, aLeafEditLeavesTheTreesOrderUnchangedEvenIfTheNameChanged)
{
    this->storeSample();
    auto& view = this->view();
    view.doubleAction(this->row(view, u"c"_s));
    EXPECT_EQ(this->catalog.leafName.text(), u"c"_s);
    EXPECT_EQ(this->catalog.leafGroup.selectedTag(), 2);
    this->type(this->catalog.leafName, u"z"_s);
    this->catalog.leafOk.userChanged();
    EXPECT_EQ(this->shape(view), u"A(B(z,d),e) f"_s);
    EXPECT_EQ(this->template stored<typename TypeParam::Leaf>(3)->name, u"z"_s);
}

TYPED_TEST(TreeCatalog, aGroupEditMovesItWithAllThatItHolds)
{
    this->storeSample();
    auto& view = this->view();
    view.doubleAction(this->row(view, u"B"_s));
    this->type(this->catalog.groupName, u"Z"_s);
    this->catalog.groupGroup.selectTag(0);
    this->catalog.groupOk.userChanged();
    EXPECT_FALSE(this->catalog.groupPopover.isOpen());
    EXPECT_EQ(this->shape(view), u"A(e) Z(c,d) f"_s);
}

TYPED_TEST(TreeCatalog, editingWithoutASelectedRowOpensNothing)
{
    this->storeSample();
    this->catalog.controller.editSelected();
    EXPECT_FALSE(this->catalog.leafPopover.isOpen());
    EXPECT_FALSE(this->catalog.groupPopover.isOpen());
}

TYPED_TEST(TreeCatalog, anEmptyNameDisablesOkWithItsWarningUntilOneIsTyped)
{
    TypeParam& forms = this->catalog;
    const QString warning = u"Field 'Name' is required!"_s;
    forms.addLeaf();
    this->type(forms.leafName, {});
    EXPECT_FALSE(forms.leafOk.enabled());
    EXPECT_EQ(forms.leafError.text(), warning);
    EXPECT_FALSE(forms.leafOk.userChanged());
    this->type(forms.leafName, u"x"_s);
    EXPECT_TRUE(forms.leafOk.enabled());
    EXPECT_TRUE(forms.leafError.text().isEmpty());
    forms.cancelLeaf();

    forms.addGroup();
    this->type(forms.groupName, {});
    EXPECT_FALSE(forms.groupOk.enabled());
    EXPECT_EQ(forms.groupError.text(), warning);
    this->type(forms.groupName, u"x"_s);
    EXPECT_TRUE(forms.groupOk.enabled());
}

TYPED_TEST(TreeCatalog, anUntouchedNameKeepsOkDisabledForCounterpartiesOnly)
{
    this->catalog.addLeaf();
    EXPECT_EQ(this->catalog.leafOk.enabled(), !TypeParam::okWaitsForAName);
    this->catalog.cancelLeaf();
    this->catalog.addGroup();
    EXPECT_EQ(this->catalog.groupOk.enabled(), !TypeParam::okWaitsForAName);
}

TYPED_TEST(TreeCatalog, refusesARecordWithoutANameForTheSameReason)
{
    typename TypeParam::Leaf leaf;
    leaf.name.clear();
    EXPECT_EQ(this->catalog.controller.refusal(leaf), u"Field 'Name' is required!"_s);
    leaf.name = u"x"_s;
    EXPECT_TRUE(this->catalog.controller.refusal(leaf).isEmpty());
}

TYPED_TEST(TreeCatalog, aGroupAddedFromTheLeafsPopoverIsChosenThereAndTheLeafGoesOn)
{
    TypeParam& forms = this->catalog;
    forms.addLeaf();
    this->type(forms.leafName, u"leaf"_s);
    forms.addGroupFromPopover();
    EXPECT_TRUE(forms.controller.addingFromPopover);
    this->type(forms.groupName, u"group"_s);
    forms.groupOk.userChanged();
    EXPECT_FALSE(forms.groupPopover.isOpen());
    EXPECT_TRUE(forms.leafPopover.isOpen());
    EXPECT_FALSE(forms.controller.addingFromPopover);
    EXPECT_EQ(forms.leafGroup.selectedTitle(), u"group"_s);
    ASSERT_NE(forms.controller.focusedObject, nullptr);
    EXPECT_EQ(forms.controller.focusedObject->id, 0);
    forms.leafOk.userChanged();
    EXPECT_EQ(this->shape(this->view()), u"group(leaf)"_s);
    EXPECT_EQ(forms.controller.focusedObject, nullptr);
}

TYPED_TEST(TreeCatalog, aGroupAddedWhileALeafIsEditedDoesNotDoubleTheLeaf)
{
    this->storeSample();
    TypeParam& forms = this->catalog;
    this->view().doubleAction(this->row(this->view(), u"f"_s));
    forms.addGroupFromPopover();
    this->type(forms.groupName, u"G"_s);
    forms.groupOk.userChanged();
    forms.leafOk.userChanged();
    EXPECT_EQ(this->template count<typename TypeParam::Leaf>(), 4U);
    EXPECT_EQ(this->template stored<typename TypeParam::Leaf>(2)->parentID, 3);
}

TYPED_TEST(TreeCatalog, afterACancelledGroupTheLeafsPopoverGoesOnWithItsRecord)
{
    TypeParam& forms = this->catalog;
    forms.addLeaf();
    this->type(forms.leafName, u"leaf"_s);
    forms.addGroupFromPopover();
    forms.cancelGroup();
    EXPECT_FALSE(forms.groupPopover.isOpen());
    EXPECT_TRUE(forms.leafPopover.isOpen());
    forms.leafOk.userChanged();
    EXPECT_EQ(this->shape(this->view()), u"leaf"_s);
    EXPECT_EQ(this->template count<typename TypeParam::Group>(), 0U);
    EXPECT_EQ(forms.controller.focusedObject, nullptr);
}

TYPED_TEST(TreeCatalog, cancelStoresNothing)
{
    TypeParam& forms = this->catalog;
    forms.addLeaf();
    this->type(forms.leafName, u"leaf"_s);
    forms.cancelLeaf();
    EXPECT_FALSE(forms.leafPopover.isOpen());
    EXPECT_EQ(forms.controller.focusedObject, nullptr);
    EXPECT_EQ(this->template count<typename TypeParam::Leaf>(), 0U);
    EXPECT_TRUE(this->program.posted.names.empty());
}

TYPED_TEST(TreeCatalog, afterAFailedInsertThePopoverHasClosedAndTheTypedDataIsLost)
{
    using Fault = FaultInjectingConnector;
    for (const unsigned kind : {Fault::Begin, Fault::Insert, Fault::Commit}) {
        TypeParam& forms = this->catalog;
        forms.addLeaf();
        this->type(forms.leafName, u"leaf"_s);
        this->program.connector->failCall(1, kind);
        forms.leafOk.userChanged();
        EXPECT_TRUE(this->program.connector->hasFailed());
        EXPECT_FALSE(this->connector().inTransaction());
        EXPECT_FALSE(forms.leafPopover.isOpen());
        EXPECT_EQ(forms.controller.focusedObject, nullptr);
        EXPECT_EQ(this->template count<typename TypeParam::Leaf>(), 0U);
        EXPECT_EQ(this->shape(this->view()), QString());
        EXPECT_EQ(this->program.dialogs.alerts.empty(), kind != Fault::Commit)
            << "only a lost commit is told";
    }
}

TYPED_TEST(TreeCatalog, afterAFailedUpdateTheTreeShowsWhatIsStored)
{
    this->storeSample();
    auto& view = this->view();
    for (const unsigned kind : {FaultInjectingConnector::Update, FaultInjectingConnector::Commit}) {
        view.doubleAction(this->row(view, u"f"_s));
        this->type(this->catalog.leafName, u"changed"_s);
        this->program.connector->failCall(1, kind);
        this->catalog.leafOk.userChanged();
        EXPECT_TRUE(this->program.connector->hasFailed());
        EXPECT_EQ(this->shape(view), u"A(B(c,d),e) f"_s);
    }
}

TYPED_TEST(TreeCatalog, aRecordWhoseInsertFailedCanBeWrittenAgain)
{
    auto leaf = std::make_shared<typename TypeParam::Leaf>();
    leaf->name = u"leaf"_s;
    this->program.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(this->catalog.controller.writeRecord(leaf));
    EXPECT_EQ(leaf->id, 0);
    EXPECT_TRUE(this->catalog.controller.writeRecord(leaf));
    EXPECT_EQ(leaf->id, 1);
    EXPECT_EQ(this->shape(this->view()), u"leaf"_s);
}

TYPED_TEST(TreeCatalog, aRecordThatSomebodyElseReadIsSeenInTheTreeAfterItsWrite)
{
    this->storeSample();
    this->shape(this->view());
    const auto leaf = this->template stored<typename TypeParam::Leaf>(2);
    leaf->name = u"b"_s;
    EXPECT_TRUE(this->catalog.controller.writeRecord(leaf));
    EXPECT_EQ(this->shape(this->view()), u"A(B(c,d),e) b"_s);
}

TYPED_TEST(TreeCatalog, newsAreOutBeforeTheCommit)
{
    bool inside = false;
    int heard = 0;
    const auto observation = this->program.appDelegate.notifications.observeAll([&](const Notification&) {
        inside = this->connector().inTransaction();
        ++heard;
    });
    this->addThroughPopover(u"leaf"_s);
    EXPECT_TRUE(inside);
    EXPECT_GE(heard, 1);
}

TYPED_TEST(TreeCatalog, aWriteReadsNothingOfATreeThatNobodyLooksAt)
{
    this->storeSample();
    const auto leaf = std::make_shared<typename TypeParam::Leaf>();
    leaf->name = u"leaf"_s;
    const qint64 before = this->connector().statementCount();
    EXPECT_TRUE(this->catalog.controller.writeRecord(leaf));
    EXPECT_LE(this->connector().statementCount() - before, 3) << "BEGIN, insert, COMMIT";
    EXPECT_TRUE(this->catalog.controller.isStale());
}

TYPED_TEST(TreeCatalog, aVisibleTreeIsRebuiltAtOnce)
{
    this->storeSample();
    auto& view = this->view();
    view.setVisible(true);
    this->shape(view);
    int reloads = 0;
    view.onReload([&] { ++reloads; });
    const auto leaf = std::make_shared<typename TypeParam::Leaf>();
    leaf->name = u"0"_s;
    EXPECT_TRUE(this->catalog.controller.writeRecord(leaf));
    EXPECT_GE(reloads, 1);
    EXPECT_FALSE(this->catalog.controller.isStale());
    EXPECT_EQ(view.loadedTopLevel().front()->name, u"0"_s);
}

TYPED_TEST(TreeCatalog, theSelectionStaysOnItsRecordWhenTheTreeIsBuiltAnew)
{
    this->storeSample();
    auto& view = this->view();
    const OutlineView::Node old = this->row(view, u"c"_s);
    view.selectItem(old);
    this->catalog.controller.markStale();
    this->shape(view);
    EXPECT_NE(view.selectedItem(), old);
    EXPECT_EQ(view.selectedItem(), this->row(view, u"c"_s));
}

TYPED_TEST(TreeCatalog, aGroupsOwnPlaceAndWhatIsBelowItCannotBeChosenAsItsParent)
{
    this->storeSample();
    auto& view = this->view();
    TypeParam& forms = this->catalog;
    view.doubleAction(this->row(view, u"A"_s));
    EXPECT_EQ(this->disabledTitles(forms.groupGroup), (QStringList{u"A"_s, u"B"_s}));
    forms.controller.markStale();
    this->shape(view);
    EXPECT_EQ(this->disabledTitles(forms.groupGroup), (QStringList{u"A"_s, u"B"_s}));
    forms.cancelGroup();
    EXPECT_TRUE(this->disabledTitles(forms.groupGroup).isEmpty());
}

TYPED_TEST(TreeCatalog, aTickOfAGroupInAPopoverTicksItsSubtree)
{
    this->storeSample();
    const auto& all = this->catalog.controller.all();
    const auto& a = *std::ranges::find_if(all, [](const auto& node) { return node->name == u"A"; });
    EXPECT_TRUE(a->selected);
    a->insertSelected(false);
    QStringList ticked;
    for (const auto& node : all) {
        if (node->selected)
            ticked.append(node->name);
    }
    EXPECT_EQ(ticked, QStringList{u"f"_s});
}

TYPED_TEST(TreeCatalog, aHundredThousandNodesAllFindTheirPlaceByName)
{
    using Model = typename std::remove_cvref_t<decltype(*this->catalog.controller.all().front())>;
    std::vector<std::shared_ptr<Model>> nodes;
    for (qint64 id = 1; id <= 1000; ++id) {
        auto group = std::make_shared<typename TypeParam::Group>();
        group->id = id;
        group->parentID = id / 10;
        group->name = QString::number(1000 - id);
        nodes.push_back(group);
    }
    for (qint64 id = 1; id <= 99'000; ++id) {
        auto leaf = std::make_shared<typename TypeParam::Leaf>();
        leaf->id = id;
        leaf->parentID = id % 3 == 0 ? 10 : id % 1000;
        leaf->name = QString::number(id * 7919 % 99'991);
        nodes.push_back(leaf);
    }
    const auto top = buildTree(nodes);
    std::size_t reached = 0;
    const auto walk = [&](const auto& self, const auto& list) -> void {
        reached += list.size();
        EXPECT_TRUE(std::ranges::is_sorted(list, NameLess{}));
        for (const auto& node : list)
            self(self, node->children);
    };
    walk(walk, top);
    EXPECT_EQ(reached, 100'000U);
}

} // namespace
} // namespace zelvor
