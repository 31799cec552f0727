#include "shell/main_view_controller.h"

#include "catalogs/account_type_view_controller.h"
#include "catalogs/account_view_controller.h"
#include "catalogs/contragent_view_controller.h"
#include "catalogs/currency_view_controller.h"
#include "catalogs/delete_basis_view_controller.h"
#include "catalogs/expend_view_controller.h"
#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/measurement_view_controller.h"
#include "catalogs/product_view_controller.h"
#include "catalogs/property_journal_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "core/localized.h"
#include "documents/document_journal_view_controller.h"
#include "documents/product_document_view_controller.h"
#include "period/balance_view_controller.h"
#include "reports/period_sell_report_view_controller.h"

#include <QtCore/QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

using Opener = void (*)(MainViewController&, DocType);

struct MenuCommand {
    DocType type;
    Opener open;
};

template <auto Controller>
void openCatalog(MainViewController& main, DocType)
{
    main.addBaseView((main.*Controller)->view);
}

void openNewProductDocument(MainViewController& main, DocType type)
{
    main.addProductDocumentOfType(type);
}

// What an entry of the menu opens. An entry that is not here is not released yet; a group never is.
constexpr MenuCommand menuCommands[] = {
    {DocType::ContragentCatalog, openCatalog<&MainViewController::contragentController>},
    {DocType::ProductCatalog, openCatalog<&MainViewController::productController>},
    {DocType::StockCatalog, openCatalog<&MainViewController::stockController>},
    {DocType::MeasurementCatalog, openCatalog<&MainViewController::measurementController>},
    {DocType::BalanceSheet, openCatalog<&MainViewController::balanceController>},
    {DocType::BuyProduct, openNewProductDocument},
    {DocType::SellProduct, openNewProductDocument},
    {DocType::SellIntangibles, openNewProductDocument},
    {DocType::MoveProduct, openNewProductDocument},
    {DocType::AddProduct, openNewProductDocument},
    {DocType::DeleteProduct, openNewProductDocument},
    {DocType::Return, openNewProductDocument},
    {DocType::MoneyJournal, [](MainViewController& main, DocType) { main.addJournalOfType(u"Money"_s); }},
    {DocType::ProductJournal, [](MainViewController& main, DocType) { main.addJournalOfType(u"Product"_s); }},
    {DocType::AllDocumentsJournal,
     [](MainViewController& main, DocType) { main.addJournalOfType(u"All"_s); }},
    {DocType::PeriodSellReport, [](MainViewController& main, DocType) { main.addPeriodSellReport(); }},
};

} // namespace

MainViewController::MainViewController(AppDelegate& owner)
    : ModelController(owner), functionController(std::make_unique<FunctionViewController>(owner)),
      accountTypeController(std::make_unique<AccountTypeViewController>(owner)),
      currencyController(std::make_unique<CurrencyViewController>(owner)),
      expendController(std::make_unique<ExpendViewController>(owner)),
      managerController(std::make_unique<ManagerViewController>(owner)),
      stockController(std::make_unique<StockViewController>(owner)),
      accountController(std::make_unique<AccountViewController>(owner)),
      productController(std::make_unique<ProductViewController>(owner)),
      contragentController(std::make_unique<ContragentViewController>(owner)),
      measurementController(std::make_unique<MeasurementViewController>(owner)),
      deleteBasisController(std::make_unique<DeleteBasisViewController>(owner)),
      propertyJournalController(std::make_unique<PropertyJournalViewController>(owner)),
      balanceController(std::make_unique<BalanceViewController>(owner)), m_period(owner)
{
    balanceLabel.setText(localized("Balance"));
    balance.setHidden(true);
    balanceLabel.setHidden(true);
    toggleLeftViewButton.onUserChange = [this] { toggleLeftView(); };
    updateMenuItem.setEnabled(false);
    updateMenuItem.onUserChange = [this] { checkUpdateManually(); };
    connectControllers();
    tabView.delegate = this;
    appDelegate.setWorkspace(this);
    NotificationCenter& center = appDelegate.notifications;
    m_observations.push_back(center.observe(NotificationName::BalanceCalculatedNotification,
                                            [this](const Notification&) { updateBalance(); }));
    m_observations.push_back(center.observe(NotificationName::DefaultsChangedNotification,
                                            [this](const Notification&) { updateDefaults(); }));
    m_observations.push_back(center.observe(NotificationName::CurrencyUpdatedNotification,
                                            [this](const Notification&) { currenciesUpdated(); }));
    m_observations.push_back(center.observe(NotificationName::HasNewVersionNotification,
                                            [this](const Notification&) { readyForUpdate(); }));
}

MainViewController::~MainViewController()
{
    appDelegate.setWorkspace(nullptr);
}

// A form adds a record of another catalog with that catalog's own popover.
void MainViewController::connectControllers()
{
    managerController->functionController = functionController.get();
    stockController->managerController = managerController.get();
    accountController->accountTypeController = accountTypeController.get();
    contragentController->managerController = managerController.get();
    productController->measurementController = measurementController.get();
}

void MainViewController::checkParams()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    const bool shown = params && params->showCurrentBalance;
    balance.setHidden(!shown);
    balanceLabel.setHidden(!shown);
    balanceController->balanceShown = shown;
    if (shown)
        balanceController->refresh();
    if (onHeaderPanelChanged)
        onHeaderPanelChanged();
}

// Nothing is read here: what nobody looks at costs nothing, however large the project is.
void MainViewController::prepareAllData()
{
    forgetProject();
}

void MainViewController::forgetProject()
{
    cancelForms();
    functionController->forget();
    accountTypeController->forget();
    currencyController->forget();
    expendController->forget();
    managerController->forget();
    stockController->forget();
    accountController->forget();
    productController->forget();
    contragentController->forget();
    measurementController->forget();
    deleteBasisController->forget();
    propertyJournalController->forget();
    balanceController->forget();
}

// Who waits for a record that was being added is told that none comes.
void MainViewController::cancelForms()
{
    if (functionController->functionPopover.isOpen())
        functionController->cancelFunctionPopover();
    if (accountTypeController->accountTypePopover.isOpen())
        accountTypeController->cancelAccountTypePopover();
    if (managerController->managerPopover.isOpen())
        managerController->cancelManagerPopover();
    if (measurementController->measurementPopover.isOpen())
        measurementController->cancelMeasurementPopover();
}

void MainViewController::updateBalance()
{
    balance.setReal(balanceController->balance());
    balance.setColor(balance.value().isNegative() ? redColor : inOrderColor);
    if (onHeaderPanelChanged)
        onHeaderPanelChanged();
}

void MainViewController::clearWindow()
{
    const auto controllers = std::exchange(m_openedControllers, {});
    openedView.clear();
    tabView.removeAll();
    for (const auto& controller : controllers) {
        if (controller)
            controller->clearSelf();
    }
    m_lastClosed.reset();
    setStateString({});
    forgetProject();
}

// --- what comes from the maker's server

void MainViewController::currenciesUpdated()
{
    const QDateTime now = appDelegate.calendar.dateTime(appDelegate.now());
    setStateString(localized("All currencies updated at: ") + QLocale().toString(now, QLocale::ShortFormat));
    appDelegate.notifications.post(NotificationName::BalanceChangedNotification, this);
}

void MainViewController::readyForUpdate()
{
    informUserAboutUpdate(appDelegate.defaults.showUpdateWindow());
    updateMenuItem.setEnabled(true);
}

// Without a project there is no main window to hang the notice on.
void MainViewController::informUserAboutUpdate(bool show)
{
    if (!show || m_askingAboutUpdate || !appDelegate.connector.isOpen())
        return;
    DefaultsStore& defaults = appDelegate.defaults;
    const AlertCheckBox showAgain{localized("Tell me of new versions when a project is opened"),
                                  defaults.showUpdateWindow(), [&defaults](bool on) {
                                      defaults.setShowUpdateWindow(on);
                                      defaults.synchronize();
                                  }};
    const Alert notice{localized("Update available."),
                       localized("New version of application is available. Would you like to download it?"),
                       {localized("Update available."), localized("Cancel")},
                       0,
                       showAgain};
    m_askingAboutUpdate = true;
    appDelegate.dialogs.ask(notice, [this](int answer) {
        m_askingAboutUpdate = false;
        if (answer == firstButton)
            openDownloadPage();
    });
}

void MainViewController::openDownloadPage()
{
    const bool russian = QLocale().language() == QLocale::Russian;
    if (window)
        window->openUrl(appDelegate.settings.value(russian ? u"domain_ru"_s : u"domain_en"_s) +
                        u"/zelvor/download/"_s);
}

void MainViewController::showHelp()
{
    const QString key = QLocale().name() == u"ru_RU"_s ? u"domain_ru"_s : u"domain_en"_s;
    if (window)
        window->openUrl(appDelegate.settings.value(key) + u"/zelvor/docs/"_s);
}

void MainViewController::showAbout()
{
    if (window)
        window->showAbout();
}

void MainViewController::toggleLeftView()
{
    m_leftViewCollapsed = !m_leftViewCollapsed;
    if (window)
        window->setLeftViewCollapsed(m_leftViewCollapsed);
    toggleLeftViewButton.setOn(m_leftViewCollapsed);
}

// --- what the commands open

void MainViewController::topMenuAction(DocType type)
{
    const auto* command = std::ranges::find(menuCommands, type, &MenuCommand::type);
    if (command == std::end(menuCommands))
        notReleased();
    else
        command->open(*this, type);
}

void MainViewController::notReleased()
{
    setStateString(localized("Sorry this menu item not released yet!"));
}

void MainViewController::addBaseView(BaseView& view)
{
    if (view.index() == -1)
        openPage(nullptr, view);
    else
        tabView.openExistingTab(view.index());
}

void MainViewController::openPage(std::shared_ptr<ModelViewController> controller, BaseView& view)
{
    m_lastClosed.reset();
    openedView.push_back(&view);
    m_openedControllers.push_back(controller);
    tabView.addPageWithView({&view, std::move(controller)}, view.name(), view.tip());
}

void MainViewController::addProductDocumentOfType(DocType type)
{
    auto document = std::make_shared<ProductDocument>();
    document->insertDocType(type);
    openProductDocument(std::move(document));
}

void MainViewController::openProductDocument(std::shared_ptr<ProductDocument> document)
{
    if (window)
        window->adjustWindowWidthForProductDocument(productDocumentWidth);
    const auto form = std::make_shared<ProductDocumentViewController>(appDelegate, std::move(document));
    ProductDocumentView& view = form->mainView;
    form->onClose = [this, shown = &view] { formClosed(*shown); };
    form->prepareData();
    openPage(form, view);
}

bool MainViewController::addDocumentWithID(qint64 id, const QString& type)
{
    // New documents have the id 0: nobody means one of those.
    const std::optional<int> position = id != 0 ? tabView.hasViewOfType(type, id) : std::nullopt;
    if (position) {
        tabView.openExistingTab(*position);
        return true;
    }
    if (type != u"Product"_s) {
        notReleased();
        return false;
    }
    std::shared_ptr<ProductDocument> document = appDelegate.connector.select<ProductDocument>(id);
    if (!document) {
        setStateString(localized("The document is not in the project any more."));
        return false;
    }
    openProductDocument(std::move(document));
    return true;
}

void MainViewController::addJournalOfType(const QString& documentTypes)
{
    const auto journal = std::make_shared<DocumentJournalViewController>(appDelegate, documentTypes);
    journal->prepareData();
    openPage(journal, journal->mainView);
}

void MainViewController::addPeriodSellReport()
{
    const auto report = std::make_shared<PeriodSellReportViewController>(appDelegate);
    report->prepareData();
    openPage(report, report->mainView);
}

// --- closing

void MainViewController::removedPageAtIndex(int index)
{
    openedView.erase(openedView.begin() + index);
    const auto controller = std::move(m_openedControllers[static_cast<std::size_t>(index)]);
    m_openedControllers.erase(m_openedControllers.begin() + index);
    if (controller)
        controller->clearSelf();
}

void MainViewController::formClosed(const BaseView& view)
{
    if (view.index() < 0)
        return;
    m_lastClosed = m_openedControllers[static_cast<std::size_t>(view.index())];
    tabView.sendCloseToHeaderTab(view.index());
}

const ProductDocumentViewController* MainViewController::formAt(int position) const
{
    if (position < 0 || position >= static_cast<int>(m_openedControllers.size()))
        return nullptr;
    return dynamic_cast<const ProductDocumentViewController*>(
        m_openedControllers[static_cast<std::size_t>(position)].get());
}

// What is still being typed is a change too.
bool MainViewController::endEditing(int position) const
{
    const auto* const form = formAt(position);
    return !form || !form->onEndEditing || form->onEndEditing();
}

bool MainViewController::hasUnsavedChanges(int position) const
{
    const auto* const form = formAt(position);
    return form && !form->document->confirmed && form->mainView.saveButton.enabled();
}

void MainViewController::closeTab(int position)
{
    m_lastClosed.reset();
    if (!endEditing(position))
        return;
    if (!hasUnsavedChanges(position)) {
        tabView.sendCloseToHeaderTab(position);
        return;
    }
    const BaseView* view = openedView[static_cast<std::size_t>(position)];
    const auto close = [this, view] { tabView.sendCloseToHeaderTab(view->index()); };
    askToSave(position, close, close);
}

// `goOn` runs when the document was saved, `drop` when its changes are not wanted. With the question still
// open the tab may go another way, so the answer holds the form.
void MainViewController::askToSave(int position, std::function<void()> goOn, std::function<void()> drop)
{
    const auto form = std::static_pointer_cast<ProductDocumentViewController>(
        m_openedControllers[static_cast<std::size_t>(position)]);
    const Alert question{localized("Do you want to save the changes to the document?"),
                         localized("Your changes will be lost if you don't save them."),
                         {localized("Save"), localized("Don't Save"), localized("Cancel")},
                         1};
    appDelegate.dialogs.ask(question, [form, goOn = std::move(goOn), drop = std::move(drop)](int answer) {
        if (form->mainView.index() < 0)
            return;
        if (answer == firstButton && form->writeDoc())
            goOn();
        else if (answer == firstButton + 1)
            drop();
    });
}

void MainViewController::leave(std::function<void()> then)
{
    leaveUnlessDropped(std::move(then), {});
}

// Nothing that the user gave up is dropped before the last question: cancelling that one keeps all of it.
void MainViewController::leaveUnlessDropped(std::function<void()> then, Dropped dropped)
{
    for (int position = 0; position < static_cast<int>(openedView.size()); ++position) {
        const auto& form = m_openedControllers[static_cast<std::size_t>(position)];
        if (!endEditing(position)) {
            tabView.openExistingTab(position);
            return;
        }
        if (!hasUnsavedChanges(position) || std::ranges::find(dropped, form) != dropped.end())
            continue;
        tabView.openExistingTab(position);
        Dropped withThis = dropped;
        withThis.push_back(form);
        const auto resume = [this, then](Dropped given) { leaveUnlessDropped(then, std::move(given)); };
        askToSave(
            position, [resume, dropped] { resume(dropped); }, [resume, withThis] { resume(withThis); });
        return;
    }
    then();
}

// --- months

void MainViewController::checkPeriod()
{
    if (appDelegate.connector.isReadOnly())
        setStateString(localized("The project is open for reading only. Nothing can be changed."));
    else
        m_period.checkPeriod();
}

} // namespace zelvor
