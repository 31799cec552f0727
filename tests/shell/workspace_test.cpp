#include "shell/main_view_controller.h"

#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "documents/document_journal_view_controller.h"
#include "documents/money_document_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "period/balance_view_controller.h"
#include "reports/period_sell_report_view_controller.h"
#include "support/books.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString notReleased = u"Sorry this menu item not released yet!"_s;

class RecordedWindow final : public WorkspaceWindow {
public:
    void adjustWindowWidthForProductDocument(int width) override { widths.push_back(width); }
    void setLeftViewCollapsed(bool isCollapsed) override { collapsed.push_back(isCollapsed); }
    void showAbout() override { ++abouts; }
    void openUrl(const QString& url) override { urls.push_back(url); }
    std::vector<int> widths;
    std::vector<bool> collapsed;
    int abouts = 0;
    QStringList urls;
};

class OpenWorkspace : public testing::Test {
protected:
    OpenWorkspace() { main.window = &window; }

    template <class Controller>
    Controller* controllerAt(int position)
    {
        const auto& pages = main.tabView.body.pages();
        return position < static_cast<int>(pages.size())
                   ? dynamic_cast<Controller*>(pages[static_cast<std::size_t>(position)].controller.get())
                   : nullptr;
    }
    ProductDocumentViewController& form(int position)
    {
        return *controllerAt<ProductDocumentViewController>(position);
    }
    int active() const { return main.tabView.header.activTab.value_or(-1); }
    int tabs() const { return static_cast<int>(main.tabView.header.tabs().size()); }
    QString title(int position) const
    {
        return main.tabView.header.tabs()[static_cast<std::size_t>(position)].title;
    }
    // A stored draft.
    qint64 draft(const QString& comment = {})
    {
        ProductDocument document;
        document.insertDocType(DocType::BuyProduct);
        document.date = books.clock.now() - 1;
        document.payToDate = document.date;
        document.comment = comment;
        return books.store(document)->id;
    }
    void edit(int position, const QString& comment)
    {
        TextField& field = form(position).mainView.comment;
        field.setText(comment);
        EXPECT_TRUE(field.userChanged());
    }
    QString storedComment(qint64 id) { return books.db.select<ProductDocument>(id)->comment; }
    void leave()
    {
        main.leave([this] { ++left; });
    }
    // Two drafts with unsaved changes and a catalog between them; the catalog is the active page.
    void openTwoEdited()
    {
        first = draft(u"old first"_s);
        second = draft(u"old second"_s);
        main.openDocWithID(first, u"Product"_s);
        main.topMenuAction(DocType::StockCatalog);
        main.openDocWithID(second, u"Product"_s);
        edit(0, u"new first"_s);
        edit(2, u"new second"_s);
        main.tabView.openExistingTab(1);
    }

    Books books;
    RecordedWindow window;
    MainViewController main{books.appDelegate};
    int left = 0;
    qint64 first = 0;
    qint64 second = 0;
};

} // namespace

// --- the menu

TEST_F(OpenWorkspace, everyEntryOpensItsPageOrSaysThatItIsNotReleased)
{
    using enum DocType;
    for (int raw = 0; raw < docTypeCount; ++raw) {
        const DocType type = *typeFromInt(raw);
        const bool isProduct = raw >= rawValue(BuyProduct) && raw <= rawValue(Return);
        main.clearWindow();
        window.widths.clear();
        main.topMenuAction(type);
        const BaseView* view = main.openedView.empty() ? nullptr : main.openedView.front();
        SCOPED_TRACE(qPrintable(docTypeCase(type)));
        if (type == ContragentCatalog) {
            EXPECT_EQ(view, &main.contragentController->view);
        } else if (type == ProductCatalog) {
            EXPECT_EQ(view, &main.productController->view);
        } else if (type == StockCatalog) {
            EXPECT_EQ(view, &main.stockController->view);
        } else if (type == MeasurementCatalog) {
            EXPECT_EQ(view, &main.measurementController->view);
        } else if (type == BalanceSheet) {
            EXPECT_EQ(view, &main.balanceController->view);
        } else if (isProduct) {
            ASSERT_TRUE(controllerAt<ProductDocumentViewController>(0));
            EXPECT_EQ(form(0).document->docType(), type);
            EXPECT_EQ(form(0).document->id, 0);
            EXPECT_EQ(window.widths, std::vector<int>{1200});
            EXPECT_EQ(title(0), form(0).document->name());
        } else if (type == MoneyJournal || type == ProductJournal || type == AllDocumentsJournal) {
            const auto* journal = controllerAt<DocumentJournalViewController>(0);
            ASSERT_TRUE(journal);
            EXPECT_EQ(journal->documentTypes, type == MoneyJournal     ? u"Money"_s
                                              : type == ProductJournal ? u"Product"_s
                                                                       : u"All"_s);
            EXPECT_EQ(title(0), journal->getNameForTabView());
        } else if (type == PeriodSellReport) {
            const auto* report = controllerAt<PeriodSellReportViewController>(0);
            ASSERT_TRUE(report);
            EXPECT_EQ(title(0), report->getNameForTabView());
        } else {
            EXPECT_EQ(view, nullptr);
            EXPECT_EQ(main.stateField.text(), notReleased);
            continue;
        }
        EXPECT_EQ(tabs(), 1);
        EXPECT_TRUE(view->isVisible());
        EXPECT_TRUE(main.stateField.text().isEmpty());
        if (!isProduct) {
            EXPECT_TRUE(window.widths.empty());
        }
    }
}

TEST_F(OpenWorkspace, aCatalogChosenTwiceGivesOneTabThatIsSelected)
{
    main.topMenuAction(DocType::StockCatalog);
    main.topMenuAction(DocType::ProductCatalog);
    EXPECT_EQ(active(), 1);
    main.topMenuAction(DocType::StockCatalog);
    EXPECT_EQ(tabs(), 2);
    EXPECT_EQ(active(), 0);
    EXPECT_EQ(main.openedView.size(), 2U);
}

TEST_F(OpenWorkspace, aClosedCatalogCanBeOpenedAgain)
{
    main.topMenuAction(DocType::StockCatalog);
    main.closeTab(0);
    EXPECT_EQ(main.stockController->view.index(), -1);
    EXPECT_TRUE(main.openedView.empty());
    main.topMenuAction(DocType::StockCatalog);
    EXPECT_EQ(main.stockController->view.index(), 0);
    EXPECT_TRUE(main.stockController->view.isVisible());
    EXPECT_EQ(tabs(), 1);
}

TEST_F(OpenWorkspace, thereCanBeManyNewDocumentsAndJournals)
{
    for (int i = 0; i < 2; ++i) {
        main.topMenuAction(DocType::SellProduct);
        main.topMenuAction(DocType::ProductJournal);
    }
    EXPECT_EQ(tabs(), 4);
}

TEST_F(OpenWorkspace, anOpenedJournalShowsTheDayAndFollowsTheDocuments)
{
    main.topMenuAction(DocType::ProductJournal);
    auto& journal = *controllerAt<DocumentJournalViewController>(0);
    EXPECT_EQ(journal.mainView.numberOfRows(), 0);
    draft();
    books.appDelegate.notifications.post(NotificationName::ProductDocChangedNotification);
    EXPECT_EQ(journal.mainView.numberOfRows(), 1);
    journal.dateFrom.setMoment(journal.dateFrom.moment() - secondsPerDay);
    journal.updateJournal();
    EXPECT_EQ(title(0), journal.getNameForTabView());
}

// --- stored documents

TEST_F(OpenWorkspace, aStoredDocumentIsOpenedOnce)
{
    const qint64 id = draft();
    main.topMenuAction(DocType::StockCatalog);
    books.appDelegate.workspace().openDocWithID(id, u"Product"_s);
    EXPECT_EQ(form(1).document->id, id);
    EXPECT_EQ(window.widths, std::vector<int>{1200});
    main.tabView.openExistingTab(0);
    EXPECT_TRUE(main.addDocumentWithID(id, u"Product"_s));
    EXPECT_EQ(tabs(), 2);
    EXPECT_EQ(active(), 1);
    EXPECT_EQ(window.widths.size(), 1U);
}

TEST_F(OpenWorkspace, aDocumentThatWasJustSavedIsFoundByItsNewNumber)
{
    main.topMenuAction(DocType::BuyProduct);
    ASSERT_TRUE(form(0).writeDoc());
    EXPECT_TRUE(main.addDocumentWithID(form(0).document->id, u"Product"_s));
    EXPECT_EQ(tabs(), 1);
}

TEST_F(OpenWorkspace, aDocumentThatIsNotInTheFileIsNotOpened)
{
    main.topMenuAction(DocType::BuyProduct); // has the number 0
    EXPECT_FALSE(main.addDocumentWithID(77, u"Product"_s));
    EXPECT_FALSE(main.addDocumentWithID(0, u"Product"_s));
    EXPECT_EQ(tabs(), 1);
    EXPECT_FALSE(main.stateField.text().isEmpty());
}

TEST_F(OpenWorkspace, aDocumentOfAKindWithoutAFormSaysThatItIsNotReleased)
{
    MoneyDocument document;
    document.insertDocType(DocType::MoneyAdd);
    const qint64 id = books.store(document)->id;
    EXPECT_FALSE(main.addDocumentWithID(id, u"Money"_s));
    EXPECT_EQ(main.stateField.text(), notReleased);
    main.setStateString({});
    EXPECT_FALSE(main.addDocumentWithID(id, u"Property"_s));
    EXPECT_EQ(main.stateField.text(), notReleased);
    EXPECT_EQ(tabs(), 0);
}

TEST_F(OpenWorkspace, aConfirmedDocumentsTabGetsItsNumberAndItsColour)
{
    const auto warehouse = books.stock(u"Main"_s, true);
    const auto tea = books.product(u"Tea"_s, 7, 4);
    main.topMenuAction(DocType::AddProduct);
    const QString before = title(0);
    const Color colour = main.tabView.header.tabs()[0].titleColor;
    ASSERT_EQ(form(0).addProductFromID(tea->id), 0);
    form(0).mainView.date.setMoment(books.clock.now() - 1);
    ASSERT_TRUE(form(0).mainView.date.userChanged());
    ASSERT_TRUE(form(0).confirmDoc()) << qPrintable(books.dialogs.lastAlert());
    EXPECT_NE(title(0), before);
    EXPECT_EQ(title(0), form(0).document->name());
    EXPECT_NE(main.tabView.header.tabs()[0].titleColor, colour);
}

// --- closing

TEST_F(OpenWorkspace, aFormThatIsDoneTakesItsTabAwayWithoutAskingToSave)
{
    const qint64 id = draft();
    main.topMenuAction(DocType::StockCatalog);
    main.openDocWithID(id, u"Product"_s);
    edit(1, u"changed"_s);
    const std::weak_ptr<ModelViewController> held = main.tabView.body.pages()[1].controller;
    books.dialogs.answers.push_back(firstButton); // to delete it
    EXPECT_TRUE(form(1).mainView.deleteDocButton.userChanged());
    EXPECT_EQ(tabs(), 1);
    EXPECT_EQ(main.openedView.size(), 1U);
    EXPECT_EQ(books.dialogs.questions.size(), 1U);
    EXPECT_FALSE(books.db.select<ProductDocument>(id));
    EXPECT_FALSE(held.expired()); // it was at work when it asked
    main.closeTab(0);
    EXPECT_TRUE(held.expired());
}

TEST_F(OpenWorkspace, aClosedFormIsLetGo)
{
    main.topMenuAction(DocType::SellProduct);
    const std::weak_ptr<ModelViewController> held = main.tabView.body.pages()[0].controller;
    main.closeTab(0);
    EXPECT_TRUE(held.expired());
}

TEST_F(OpenWorkspace, anUntouchedDocumentClosesWithoutAQuestion)
{
    main.topMenuAction(DocType::SellProduct);
    EXPECT_FALSE(main.hasUnsavedChanges(0));
    main.closeTab(0);
    EXPECT_EQ(tabs(), 0);
    EXPECT_TRUE(books.dialogs.questions.empty());
}

TEST_F(OpenWorkspace, onlyADocumentCanHaveUnsavedChanges)
{
    main.topMenuAction(DocType::StockCatalog);
    main.topMenuAction(DocType::AllDocumentsJournal);
    EXPECT_FALSE(main.hasUnsavedChanges(0));
    EXPECT_FALSE(main.hasUnsavedChanges(1));
    EXPECT_FALSE(main.hasUnsavedChanges(2));
    EXPECT_FALSE(main.hasUnsavedChanges(-1));
}

TEST_F(OpenWorkspace, unsavedChangesAreSavedWhenTheUserWantsThat)
{
    const qint64 id = draft();
    main.openDocWithID(id, u"Product"_s);
    edit(0, u"changed"_s);
    EXPECT_TRUE(main.hasUnsavedChanges(0));
    books.dialogs.answers.push_back(firstButton);
    main.closeTab(0);
    ASSERT_EQ(books.dialogs.questions.size(), 1U);
    const Alert& question = books.dialogs.questions.front();
    EXPECT_EQ(question.messageText, u"Do you want to save the changes to the document?"_s);
    EXPECT_EQ(question.informativeText, u"Your changes will be lost if you don't save them."_s);
    EXPECT_EQ(question.buttons, (QStringList{u"Save"_s, u"Don't Save"_s, u"Cancel"_s}));
    EXPECT_EQ(tabs(), 0);
    EXPECT_EQ(storedComment(id), u"changed"_s);
}

TEST_F(OpenWorkspace, unsavedChangesAreDroppedWhenTheUserWantsThat)
{
    const qint64 id = draft(u"old"_s);
    main.openDocWithID(id, u"Product"_s);
    edit(0, u"changed"_s);
    books.dialogs.answers.push_back(firstButton + 1);
    main.closeTab(0);
    EXPECT_EQ(tabs(), 0);
    EXPECT_EQ(storedComment(id), u"old"_s);
}

TEST_F(OpenWorkspace, aCancelledCloseKeepsTheTab)
{
    main.openDocWithID(draft(), u"Product"_s);
    edit(0, u"changed"_s);
    books.dialogs.answers.push_back(firstButton + 2);
    main.closeTab(0);
    EXPECT_EQ(tabs(), 1);
    EXPECT_TRUE(main.hasUnsavedChanges(0));
}

TEST_F(OpenWorkspace, aTabStaysWhenItsDocumentCannotBeSaved)
{
    main.openDocWithID(draft(), u"Product"_s);
    edit(0, u"changed"_s);
    books.dialogs.answers.push_back(firstButton);
    books.connector->failCall(1, FaultInjectingConnector::Update);
    main.closeTab(0);
    EXPECT_EQ(tabs(), 1);
    EXPECT_TRUE(main.hasUnsavedChanges(0));
}

TEST_F(OpenWorkspace, anAnswerForATabThatHasGoneClosesNoOther)
{
    openTwoEdited();
    main.closeTab(0); // the question waits
    ASSERT_EQ(books.dialogs.unanswered.size(), 1U);
    main.tabView.sendCloseToHeaderTab(0);
    books.dialogs.unanswered.front()(firstButton + 1);
    books.dialogs.unanswered.front()(firstButton);
    EXPECT_EQ(tabs(), 2);
    EXPECT_EQ(storedComment(first), u"old first"_s); // another project may be open by now
}

TEST_F(OpenWorkspace, anAnswerClosesTheTabWhereverItStandsNow)
{
    openTwoEdited();
    main.closeTab(2);
    main.tabView.sendCloseToHeaderTab(0);
    books.dialogs.unanswered.front()(firstButton);
    EXPECT_EQ(tabs(), 1);
    EXPECT_EQ(main.openedView.front(), &main.stockController->view);
    EXPECT_EQ(storedComment(second), u"new second"_s);
}

// --- leaving

TEST_F(OpenWorkspace, isLeftAtOnceWhenAllIsSaved)
{
    main.topMenuAction(DocType::StockCatalog);
    main.openDocWithID(draft(), u"Product"_s);
    leave();
    EXPECT_EQ(left, 1);
    EXPECT_TRUE(books.dialogs.questions.empty());
}

TEST_F(OpenWorkspace, leavingAsksForEachUnsavedDocumentAndShowsIt)
{
    openTwoEdited();
    leave();
    EXPECT_EQ(active(), 0);
    ASSERT_EQ(books.dialogs.unanswered.size(), 1U);
    books.dialogs.unanswered[0](firstButton);
    EXPECT_EQ(left, 0);
    EXPECT_EQ(active(), 2);
    ASSERT_EQ(books.dialogs.unanswered.size(), 2U);
    books.dialogs.unanswered[1](firstButton);
    EXPECT_EQ(left, 1);
    EXPECT_EQ(storedComment(first), u"new first"_s);
    EXPECT_EQ(storedComment(second), u"new second"_s);
}

TEST_F(OpenWorkspace, leavingDropsOnlyWhatTheUserGaveUp)
{
    openTwoEdited();
    books.dialogs.answers = {firstButton + 1, firstButton};
    leave();
    EXPECT_EQ(left, 1);
    EXPECT_EQ(books.dialogs.questions.size(), 2U);
    EXPECT_EQ(storedComment(first), u"old first"_s);
    EXPECT_EQ(storedComment(second), u"new second"_s);
}

TEST_F(OpenWorkspace, aCancelledLeaveKeepsEvenWhatWasToBeDropped)
{
    openTwoEdited();
    books.dialogs.answers = {firstButton + 1, firstButton + 2};
    leave();
    EXPECT_EQ(left, 0);
    EXPECT_EQ(tabs(), 3);
    EXPECT_TRUE(main.hasUnsavedChanges(0));
    EXPECT_TRUE(main.hasUnsavedChanges(2));
    EXPECT_EQ(form(0).mainView.comment.text(), u"new first"_s);
}

TEST_F(OpenWorkspace, isNotLeftWhenADocumentCannotBeSaved)
{
    openTwoEdited();
    books.dialogs.answers = {firstButton, firstButton};
    books.connector->failCall(1, FaultInjectingConnector::Update);
    leave();
    EXPECT_EQ(left, 0);
    EXPECT_EQ(books.dialogs.questions.size(), 1U);
    EXPECT_EQ(active(), 0);
}

TEST_F(OpenWorkspace, clearingTakesAllTabsAwayAndForgetsTheStateLine)
{
    openTwoEdited();
    main.setStateString(u"of this project"_s);
    main.clearWindow();
    EXPECT_EQ(tabs(), 0);
    EXPECT_TRUE(main.openedView.empty());
    EXPECT_TRUE(main.stateField.text().isEmpty());
    EXPECT_TRUE(books.dialogs.questions.empty());
    EXPECT_EQ(main.stockController->view.index(), -1);
}

// --- the window around it

TEST_F(OpenWorkspace, theLeftPaneIsCollapsedAndShownInTurn)
{
    EXPECT_TRUE(main.toggleLeftViewButton.userChanged());
    EXPECT_TRUE(main.toggleLeftViewButton.isOn());
    // A button that keeps its state has it already when it tells.
    main.toggleLeftViewButton.setOn(false);
    EXPECT_TRUE(main.toggleLeftViewButton.userChanged());
    EXPECT_FALSE(main.toggleLeftViewButton.isOn());
    main.toggleLeftView();
    EXPECT_EQ(window.collapsed, (std::vector<bool>{true, false, true}));
}

TEST_F(OpenWorkspace, helpAndAboutAreTheWindowsToShow)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
    main.showHelp();
    QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Ukraine));
    main.showHelp();
    QLocale::setDefault(before);
    EXPECT_EQ(window.urls, (QStringList{u"https://ru.zelvor.example/zelvor/docs/"_s,
                                        u"https://zelvor.example/zelvor/docs/"_s}));
    main.showAbout();
    EXPECT_EQ(window.abouts, 1);
}

TEST_F(OpenWorkspace, worksWithoutAWindow)
{
    main.window = nullptr;
    main.showHelp();
    main.showAbout();
    main.toggleLeftView();
    main.topMenuAction(DocType::SellProduct);
    EXPECT_EQ(tabs(), 1);
}

TEST_F(OpenWorkspace, theCatalogsAddEachOthersRecords)
{
    main.stockController->addManager();
    EXPECT_TRUE(main.managerController->managerPopover.isOpen());
    main.managerController->addFunction();
    EXPECT_TRUE(main.functionController->functionPopover.isOpen());
    main.productController->addMeasurement(u"newMeasurement"_s);
    EXPECT_TRUE(main.measurementController->measurementPopover.isOpen());
    EXPECT_EQ(main.contragentController->managerController, main.managerController.get());
    EXPECT_TRUE(main.accountController->accountTypeController);
}

} // namespace zelvor
