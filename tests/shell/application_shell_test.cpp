#include "shell/application_shell.h"

#include "catalogs/contragent_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "core/currency_struct.h"
#include "documents/product_document_view_controller.h"
#include "period/balance_view_controller.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class Start : public testing::Test {
protected:
    // A project among the known ones, the one to open at the next start.
    void known(const QString& key, int currency = rawValue(CurrencyStruct::EUR))
    {
        const QString path = program.file(key + u".pdb"_s);
        ASSERT_TRUE(createProject(program.appDelegate.connector, path, currency));
        program.appDelegate.connector.close();
        program.defaults.setBusinesses({{key, path}});
        program.defaults.setDefaultBusiness(key);
    }
    bool projectWindowIsUp() const { return shell.startWindowController.window.isOpen(); }
    // A project that is set up, its last month closed, with the given records; not open afterwards.
    template <class... Records>
    QString project(const QString& name, Records... records)
    {
        const QString path = program.file(name + u".pdb"_s);
        Connector& db = program.appDelegate.connector;
        EXPECT_TRUE(createProject(db, path, rawValue(CurrencyStruct::EUR)));
        Params params = *program.appDelegate.params();
        params.lastPeriodSaved = 202310;
        params.showCurrentBalance = true;
        EXPECT_EQ(db.update(params), 1);
        EXPECT_TRUE(((db.insert(records) == 1) && ...));
        db.close();
        return path;
    }
    void loseSettings(const QString& path)
    {
        Connector db;
        ASSERT_TRUE(db.open(path));
        Params params;
        params.id = 1;
        ASSERT_EQ(db.remove(params), 1);
    }
    template <class Record>
    static Record named(const QString& name)
    {
        Record record;
        record.name = name;
        return record;
    }
    // An open new document with an unsaved comment.
    void editNewDocument()
    {
        shell.mainWindowController.topMenuAction(DocType::BuyProduct);
        const TabPage* page = shell.mainWindowController.tabView.activePage();
        auto& form = dynamic_cast<ProductDocumentViewController&>(*page->controller);
        form.mainView.comment.setText(u"typed"_s);
        ASSERT_TRUE(form.mainView.comment.userChanged());
    }
    int storedDocuments()
    {
        return static_cast<int>(program.appDelegate.connector.freeSQL<ProductDocument>().size());
    }
    QString state() const { return shell.mainWindowController.stateField.text(); }

    TestProgram program;
    ApplicationShell shell{program.appDelegate};
};

TEST_F(Start, theFirstOneShowsTheProjectWindow)
{
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
}

TEST_F(Start, aDefaultProjectThatIsNotKnownShowsTheProjectWindow)
{
    program.defaults.setDefaultBusiness(u"gone"_s);
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
}

TEST_F(Start, aProjectFileThatWasMovedAwayShowsTheProjectWindowWithoutAWord)
{
    known(u"shop"_s);
    ASSERT_TRUE(QFile::remove(program.file(u"shop.pdb"_s)));
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_TRUE(program.dialogs.alerts.empty());
    EXPECT_TRUE(program.dialogs.questions.empty());
}

TEST_F(Start, aNameWithUnderscoresIsTitledWithBlanks)
{
    known(u"my_little_shop"_s);
    shell.openLastProject();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
    EXPECT_EQ(shell.windowTitle.text(), u"my little shop"_s);
}

TEST_F(Start, afterClosingTheMainWindowTheNextOneShowsTheProjectWindow)
{
    known(u"shop"_s);
    shell.openLastProject();
    shell.closeWindow();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    shell.startWindowController.window.close();
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
}

TEST_F(Start, afterQuittingTheNextOneOpensTheProjectAgain)
{
    known(u"shop"_s);
    shell.openLastProject();
    shell.applicationWillTerminate();
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    shell.openLastProject();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
}

TEST_F(Start, aProjectWithoutACurrencyGoesToThePreferences)
{
    known(u"shop"_s, 0);
    Connector& db = program.appDelegate.connector;
    ASSERT_TRUE(db.open(program.file(u"shop.pdb"_s)));
    Params params = *program.appDelegate.params();
    params.companyName = u"All else is set"_s;
    params.showCurrentBalance = true;
    ASSERT_EQ(db.update(params), 1);
    db.close();
    shell.openLastProject();
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_TRUE(shell.preferences.initial);

    params.defaultCurrency = rawValue(CurrencyStruct::GBP);
    ASSERT_EQ(db.update(params), 1);
    shell.checkDefaultCurrency();
    EXPECT_TRUE(shell.window.isOpen());
}

TEST_F(Start, aMissingSettingsRowEndsQuietly)
{
    known(u"shop"_s);
    ASSERT_TRUE(program.appDelegate.connector.open(program.file(u"shop.pdb"_s)));
    const auto params = program.appDelegate.params();
    ASSERT_EQ(program.appDelegate.connector.remove(*params), 1);
    shell.checkDefaultCurrency();
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Start, aKnownProjectWithoutASettingsRowBringsUpTheProjectWindowAndIsToldThere)
{
    known(u"shop"_s);
    loseSettings(program.file(u"shop.pdb"_s));
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_TRUE(program.dialogs.alerts.empty());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());

    shell.startWindowController.tableView.selectRow(0);
    shell.startWindowController.openProject();
    ASSERT_EQ(program.dialogs.alerts.size(), 1U);
    EXPECT_EQ(program.dialogs.alerts.front().messageText, u"Can't open project file!"_s);
    EXPECT_TRUE(program.dialogs.alerts.front().informativeText.contains(u"has no settings"_s));
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    Connector other; // nothing holds the file
    EXPECT_TRUE(other.open(program.file(u"shop.pdb"_s)));
}

TEST_F(Start, aFileHandedOverWithoutASettingsRowIsNoProject)
{
    const QString path = project(u"shop"_s);
    loseSettings(path);
    shell.openFile(path);
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_TRUE(program.defaults.businesses().isEmpty());
    EXPECT_FALSE(program.defaults.defaultBusiness());
}

TEST_F(Start, aProjectMadeInTheProjectWindowGoesOnToThePreferences)
{
    shell.openLastProject();
    program.dialogs.savePaths.push_back(program.file(u"new"_s));
    shell.startWindowController.createNewBusiness();
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
}

TEST_F(Start, anOpenedProjectOffersToCloseTheLastMonth)
{
    known(u"shop"_s);
    program.dialogs.answers.push_back(firstButton);
    shell.openLastProject();
    ASSERT_EQ(program.dialogs.questions.size(), 1U);
    EXPECT_EQ(program.dialogs.questions.front().messageText, u"Need to close last month."_s);
    EXPECT_EQ(program.appDelegate.params()->lastPeriodSaved, shell.mainWindowController.getPeriodToSave());
}

TEST_F(Start, anOpenedProjectHasItsMenu)
{
    known(u"shop"_s);
    shell.openLastProject();
    EXPECT_EQ(shell.mainMenuController.sourceListItems.size(), 6U);
}

TEST_F(Start, aProjectComesUpMenuFirstThenTheWindowTheBalanceAndTheQuestion)
{
    known(u"shop"_s);
    QStringList steps;
    shell.mainMenuController.onReload = [&] { steps += u"menu"_s; };
    shell.window.onChange([&] { steps += u"window"_s; });
    shell.mainWindowController.balance.setHidden(false);
    shell.mainWindowController.balance.onChange([&] {
        steps += u"balance"_s;
        EXPECT_TRUE(program.dialogs.questions.empty());
    });
    shell.openLastProject();
    EXPECT_EQ(shell.windowTitle.text(), u"shop"_s);
    EXPECT_EQ(steps, (QStringList{u"menu"_s, u"window"_s, u"balance"_s}));
    EXPECT_EQ(program.dialogs.questions.size(), 1U);
}

TEST_F(Start, openingAProjectReadsHardlyAnything)
{
    shell.openFile(project(u"shop"_s));
    shell.closeWindow();
    const qint64 before = program.appDelegate.connector.statementCount();
    ASSERT_TRUE(program.appDelegate.connector.open(program.file(u"shop.pdb"_s)));
    Params params = *program.appDelegate.params();
    params.showCurrentBalance = false;
    ASSERT_EQ(program.appDelegate.connector.update(params), 1);
    const qint64 opened = program.appDelegate.connector.statementCount();
    shell.checkDefaultCurrency();
    ASSERT_TRUE(shell.window.isOpen());
    // The settings three times, the menu's groups and the entries of each.
    EXPECT_EQ(program.appDelegate.connector.statementCount() - opened, 3 + 1 + 6);
    EXPECT_GT(opened, before);
}

// --- setting up

TEST_F(Start, aNewProjectIsSetUpThroughThePreferences)
{
    shell.openLastProject();
    program.dialogs.savePaths.push_back(program.file(u"my new shop"_s));
    shell.startWindowController.createNewBusiness();
    UserDefaultsController& preferences = shell.preferences;
    EXPECT_EQ(preferences.windowTitle.text(), u"Parameters for my new shop"_s);
    ASSERT_TRUE(preferences.currencySelect.selectTag(rawValue(CurrencyStruct::CHF)));
    ASSERT_TRUE(preferences.currencySelect.userChanged());
    ASSERT_TRUE(preferences.applyButton.userChanged());
    preferences.closeWindow();
    EXPECT_FALSE(preferences.window.isOpen());
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_EQ(shell.windowTitle.text(), u"my new shop"_s);
    shell.showDefaults();
    EXPECT_TRUE(preferences.window.isOpen());
    EXPECT_FALSE(preferences.currencySelect.enabled());
    preferences.closeWindow();
    EXPECT_TRUE(shell.window.isOpen());
}

TEST_F(Start, aProjectCanBeLeftWithoutSettingItUp)
{
    known(u"shop"_s, 0);
    shell.openLastProject();
    shell.preferences.showProjectSelectWindow();
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_FALSE(shell.preferences.initial);
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    EXPECT_FALSE(program.defaults.defaultBusiness());
}

TEST_F(Start, thePreferencesAreThoseOfAnOpenProjectOnly)
{
    shell.showDefaults();
    EXPECT_FALSE(shell.preferences.window.isOpen());
}

TEST_F(Start, openPreferencesKeepWhatIsBeingTyped)
{
    shell.openFile(project(u"shop"_s));
    shell.showDefaults();
    shell.preferences.companyName.setText(u"half a na"_s);
    shell.showDefaults();
    EXPECT_EQ(shell.preferences.companyName.text(), u"half a na"_s);
}

// --- leaving

TEST_F(Start, thePreferencesLeadBackToTheProjectWindow)
{
    shell.openFile(project(u"shop"_s));
    shell.showDefaults();
    shell.preferences.showProjectSelectWindow();
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
    EXPECT_FALSE(program.defaults.defaultBusiness());
}

TEST_F(Start, closingTheMainWindowTakesThePreferencesAlong)
{
    shell.openFile(project(u"shop"_s));
    shell.showDefaults();
    shell.closeWindow();
    EXPECT_FALSE(shell.preferences.window.isOpen());
}

TEST_F(Start, closingTheMainWindowGoesStepByStepAndTheWindowLast)
{
    shell.openFile(project(u"shop"_s));
    shell.mainWindowController.topMenuAction(DocType::StockCatalog);
    const auto isOpen = [this] { return program.appDelegate.connector.isOpen(); };
    const auto hasDefault = [this] { return program.defaults.defaultBusiness().has_value(); };
    QStringList steps;
    shell.startWindowController.window.onChange([&] {
        steps += u"projects"_s;
        EXPECT_TRUE(isOpen());
    });
    shell.mainWindowController.tabView.onPagesChanged = [&] {
        steps += u"tabs"_s;
        EXPECT_FALSE(isOpen());
        EXPECT_TRUE(hasDefault());
    };
    shell.window.onChange([&] {
        steps += u"window"_s;
        EXPECT_FALSE(hasDefault());
        EXPECT_FALSE(shell.window.isOpen());
    });
    shell.closeWindow();
    EXPECT_EQ(steps, (QStringList{u"projects"_s, u"tabs"_s, u"window"_s}));
}

TEST_F(Start, closingTheMainWindowAsksAboutUnsavedDocuments)
{
    shell.openFile(project(u"shop"_s));
    editNewDocument();
    program.dialogs.answers.push_back(firstButton + 2);
    shell.closeWindow();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
    EXPECT_EQ(program.defaults.defaultBusiness(), u"shop"_s);
    program.dialogs.answers.push_back(firstButton);
    shell.closeWindow();
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(projectWindowIsUp());
    shell.openFile(program.file(u"shop.pdb"_s));
    EXPECT_EQ(storedDocuments(), 1);
}

TEST_F(Start, leavingThroughThePreferencesAsksAboutUnsavedDocuments)
{
    shell.openFile(project(u"shop"_s));
    editNewDocument();
    shell.showDefaults();
    shell.preferences.showProjectSelectWindow();
    ASSERT_EQ(program.dialogs.unanswered.size(), 1U);
    EXPECT_TRUE(shell.preferences.window.isOpen());
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
    program.dialogs.unanswered.front()(firstButton + 1);
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_TRUE(projectWindowIsUp());
}

TEST_F(Start, quittingAsksAboutUnsavedDocumentsAndKeepsTheProjectForTheNextStart)
{
    shell.openFile(project(u"shop"_s));
    editNewDocument();
    int ended = 0;
    program.dialogs.answers = {firstButton + 2, firstButton + 1};
    shell.quit([&ended] { ++ended; });
    EXPECT_EQ(ended, 0);
    shell.quit([&ended] { ++ended; });
    EXPECT_EQ(ended, 1);
    shell.applicationWillTerminate();
    EXPECT_EQ(program.defaults.defaultBusiness(), u"shop"_s);
    shell.mainWindowController.clearWindow();
    shell.openLastProject();
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_EQ(storedDocuments(), 0);
}

TEST_F(Start, quittingWithoutAProjectEndsAtOnce)
{
    shell.openLastProject();
    bool ended = false;
    shell.quit([&ended] { ended = true; });
    EXPECT_TRUE(ended);
}

// --- a file handed over

TEST_F(Start, aFileHandedOverBecomesAKnownProject)
{
    const QString path = project(u"my_shop"_s);
    shell.openFile(path);
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
    EXPECT_EQ(shell.windowTitle.text(), u"my shop"_s);
    EXPECT_EQ(program.defaults.businesses().value(u"my_shop"_s), path);
    EXPECT_EQ(program.defaults.defaultBusiness(), u"my_shop"_s);
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Start, aFileThatCannotBeOpenedIsToldAndTheProjectWindowComesUp)
{
    QFile text(program.file(u"text.pdb"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no project");
    text.close();
    for (const QString& path : {program.file(u"missing.pdb"_s), text.fileName(), program.file({})}) {
        program.dialogs.alerts.clear();
        shell.startWindowController.window.close();
        shell.openFile(path);
        EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s) << qPrintable(path);
        EXPECT_TRUE(projectWindowIsUp());
        EXPECT_FALSE(shell.window.isOpen());
        EXPECT_TRUE(program.defaults.businesses().isEmpty());
    }
}

TEST_F(Start, aFileThatIsNotThereLeavesTheOpenProjectAlone)
{
    shell.openFile(project(u"shop"_s));
    shell.openFile(program.file(u"missing.pdb"_s));
    EXPECT_EQ(program.dialogs.alerts.size(), 1U);
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_TRUE(program.appDelegate.connector.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
}

TEST_F(Start, theOpenProjectHandedOverAgainStaysAsItIs)
{
    const QString path = project(u"shop"_s);
    shell.openFile(path);
    editNewDocument();
    shell.openFile(path);
    EXPECT_EQ(shell.mainWindowController.openedView.size(), 1U);
    EXPECT_TRUE(program.dialogs.questions.empty());
}

TEST_F(Start, anotherFileHandedOverTakesThePlaceOfTheOpenProject)
{
    const QString second = project(u"second"_s);
    shell.openFile(project(u"first"_s));
    editNewDocument();
    program.dialogs.answers = {firstButton + 2, firstButton + 1};
    shell.openFile(second);
    EXPECT_EQ(shell.windowTitle.text(), u"first"_s);
    EXPECT_EQ(shell.mainWindowController.openedView.size(), 1U);
    shell.openFile(second);
    EXPECT_EQ(shell.windowTitle.text(), u"second"_s);
    EXPECT_TRUE(shell.window.isOpen());
    EXPECT_FALSE(projectWindowIsUp());
    EXPECT_TRUE(shell.mainWindowController.openedView.empty());
    EXPECT_EQ(program.defaults.defaultBusiness(), u"second"_s);
}

TEST_F(Start, anOpenProjectIsLeftForAFileThatTurnsOutToBeNone)
{
    QFile text(program.file(u"text.pdb"_s));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no project");
    text.close();
    shell.openFile(project(u"shop"_s));
    shell.showDefaults();
    shell.mainWindowController.topMenuAction(DocType::StockCatalog);
    shell.openFile(text.fileName());
    EXPECT_EQ(program.dialogs.lastAlert(), u"Can't open project file!"_s);
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_FALSE(shell.preferences.window.isOpen());
    EXPECT_TRUE(shell.mainWindowController.openedView.empty());
    EXPECT_FALSE(program.appDelegate.connector.isOpen());
}

// --- in use by another program

TEST_F(Start, aProjectInUseIsNotAskedForAtTheStart)
{
    known(u"shop"_s);
    Connector other;
    ASSERT_TRUE(other.open(program.file(u"shop.pdb"_s)));
    shell.openLastProject();
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(program.dialogs.questions.empty());
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Start, aProjectForReadingSaysSoAndOffersNoMonthToClose)
{
    known(u"my_shop"_s);
    const QString path = program.file(u"my_shop.pdb"_s);
    Connector other;
    ASSERT_TRUE(other.open(path));
    program.dialogs.answers.push_back(firstButton);
    shell.openFile(path);
    ASSERT_TRUE(shell.window.isOpen());
    EXPECT_EQ(shell.windowTitle.text(), u"my shop (read-only)"_s);
    EXPECT_EQ(state(), u"The project is open for reading only. Nothing can be changed."_s);
    EXPECT_EQ(program.dialogs.questions.size(), 1U); // whether to open it at all

    shell.mainWindowController.topMenuAction(DocType::BuyProduct);
    auto& form = dynamic_cast<ProductDocumentViewController&>(
        *shell.mainWindowController.tabView.activePage()->controller);
    EXPECT_FALSE(form.writeDoc());
    EXPECT_EQ(storedDocuments(), 0);
}

TEST_F(Start, aFileInUseThatIsLeftAloneBringsUpTheProjectWindow)
{
    const QString path = project(u"shop"_s);
    Connector other;
    ASSERT_TRUE(other.open(path));
    program.dialogs.answers.push_back(firstButton + 1);
    shell.openFile(path);
    EXPECT_TRUE(projectWindowIsUp());
    EXPECT_FALSE(shell.window.isOpen());
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

TEST_F(Start, theNextProjectIsNotMarkedAsReadOnly)
{
    const QString path = project(u"shop"_s);
    {
        Connector other;
        ASSERT_TRUE(other.open(path));
        program.dialogs.answers.push_back(firstButton);
        shell.openFile(path);
        ASSERT_TRUE(program.appDelegate.connector.isReadOnly());
    }
    shell.closeWindow();
    EXPECT_TRUE(state().isEmpty());
    shell.openFile(path);
    EXPECT_EQ(shell.windowTitle.text(), u"shop"_s);
    EXPECT_NE(state(), u"The project is open for reading only. Nothing can be changed."_s);
}

// --- from one project to another

TEST_F(Start, anotherProjectShowsItsOwnCatalogs)
{
    const QString first =
        project(u"first"_s, named<Stock>(u"Cellar"_s), named<Product>(u"Apple"_s), named<Manager>(u"Ann"_s),
                named<Contragent>(u"Acme"_s), named<ContragentGroup>(u"Shops"_s));
    const QString second =
        project(u"second"_s, named<Stock>(u"Attic"_s), named<Product>(u"Bread"_s), named<Manager>(u"Bob"_s),
                named<Contragent>(u"Bakers"_s), named<ContragentGroup>(u"Mills"_s));
    MainViewController& main = shell.mainWindowController;
    StockView& stocks = main.stockController->view;
    ProductView& products = main.productController->view;
    ContragentView& contragents = main.contragentController->view;
    const auto firstProduct = [&] {
        return products.value(products.child(nullptr, 0), u"name"_s).toString();
    };
    const auto lookAtAll = [&] {
        for (const DocType type : {DocType::StockCatalog, DocType::ProductCatalog, DocType::ContragentCatalog,
                                   DocType::BalanceSheet})
            main.topMenuAction(type);
        EXPECT_EQ(stocks.numberOfRows(), 1);
        EXPECT_EQ(products.numberOfChildren(nullptr), 1);
        EXPECT_EQ(contragents.numberOfChildren(nullptr), 2);
        EXPECT_EQ(main.managerController->view.numberOfRows(), 1);
    };

    shell.openFile(first);
    lookAtAll();
    EXPECT_EQ(firstProduct(), u"Apple"_s);
    stocks.selectRow(0);
    products.selectItem(products.child(nullptr, 0));
    main.stockController->editStock();
    main.productController->editProduct();
    main.stockController->addManager();
    EXPECT_TRUE(main.stockController->stockPopover.isOpen());
    EXPECT_TRUE(main.managerController->managerPopover.isOpen());

    shell.closeWindow();
    EXPECT_FALSE(main.stockController->stockPopover.isOpen());
    EXPECT_FALSE(main.productController->productPopover.isOpen());
    EXPECT_FALSE(main.managerController->managerPopover.isOpen());
    EXPECT_FALSE(main.stockController->focusedObject);
    EXPECT_FALSE(main.stockController->addNewManager); // no employee comes from that popover any more
    EXPECT_FALSE(main.productController->focusedObject);
    EXPECT_EQ(stocks.numberOfRows(), 0); // and whoever asks now does not spoil what comes

    shell.openFile(second);
    EXPECT_EQ(stocks.selectedRow(), -1);
    EXPECT_FALSE(products.selectedItem());
    lookAtAll();
    EXPECT_EQ(stocks.value(0, u"name"_s).toString(), u"Attic"_s);
    EXPECT_EQ(firstProduct(), u"Bread"_s);
    EXPECT_EQ(main.managerController->view.value(0, u"name"_s).toString(), u"Bob"_s);
    main.stockController->addStock();
    const auto& employees = main.stockController->stockManagerSelect.items();
    ASSERT_EQ(employees.size(), 2U);
    EXPECT_EQ(employees.back().title, u"Bob"_s);
}

TEST_F(Start, aChooserThatWasFilledInOneProjectIsFilledAnewInTheNext)
{
    const QString first = project(u"first"_s, named<Manager>(u"Ann"_s));
    const QString second = project(u"second"_s, named<Manager>(u"Bob"_s));
    StockViewController& stocks = *shell.mainWindowController.stockController;
    shell.openFile(first);
    stocks.addStock();
    ASSERT_EQ(stocks.stockManagerSelect.items().size(), 2U);
    EXPECT_EQ(stocks.stockManagerSelect.items().back().title, u"Ann"_s);
    shell.closeWindow();
    shell.openFile(second);
    stocks.addStock(); // nobody has looked at the list yet
    ASSERT_EQ(stocks.stockManagerSelect.items().size(), 2U);
    EXPECT_EQ(stocks.stockManagerSelect.items().back().title, u"Bob"_s);
}

TEST_F(Start, aSelectionOfOneProjectSelectsNothingInTheNext)
{
    const QString first = project(u"first"_s, named<Stock>(u"Cellar"_s));
    const QString second = project(u"second"_s, named<Stock>(u"Attic"_s));
    StockView& stocks = shell.mainWindowController.stockController->view;
    shell.openFile(first);
    EXPECT_EQ(stocks.numberOfRows(), 1);
    stocks.selectRow(0);
    shell.openFile(second);
    EXPECT_EQ(stocks.value(0, u"name"_s).toString(), u"Attic"_s);
    EXPECT_EQ(stocks.selectedRow(), -1);
}

TEST_F(Start, anotherProjectShowsItsOwnBalance)
{
    const auto owing = [](double balance) {
        Contragent contragent = named<Contragent>(u"Acme"_s);
        contragent.setBalance(balance);
        return contragent;
    };
    const QString first = project(u"first"_s, owing(-50));
    const QString second = project(u"second"_s, owing(20));
    shell.openFile(first);
    EXPECT_EQ(shell.mainWindowController.balance.real(), 50);
    EXPECT_EQ(shell.mainWindowController.balance.color(), inOrderColor);
    shell.closeWindow();
    shell.openFile(second);
    EXPECT_EQ(shell.mainWindowController.balance.real(), -20);
    EXPECT_EQ(shell.mainWindowController.balance.color(), redColor);
}

TEST_F(Start, aLateAnswerClosesNoMonthOfAnotherProject)
{
    known(u"first"_s);
    const QString second = project(u"second"_s);
    shell.openLastProject();
    ASSERT_EQ(program.dialogs.unanswered.size(), 1U);
    shell.closeWindow();
    shell.openFile(second);
    Params params = *program.appDelegate.params();
    params.lastPeriodSaved = 0;
    ASSERT_EQ(program.appDelegate.connector.update(params), 1);
    program.dialogs.unanswered.front()(firstButton);
    EXPECT_EQ(program.appDelegate.params()->lastPeriodSaved, 0);
    EXPECT_TRUE(program.dialogs.alerts.empty());
}

} // namespace zelvor
