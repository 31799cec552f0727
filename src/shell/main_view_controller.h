#pragma once

#include "core/doc_type.h"
#include "core/notification_center.h"
#include "core/outlets.h"
#include "period/period_closing.h"
#include "shell/custom_tab_view.h"
#include "store/model_controller.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zelvor {

class AccountTypeViewController;
class AccountViewController;
class BalanceViewController;
class ContragentViewController;
class CurrencyViewController;
class DeleteBasisViewController;
class DocumentJournalViewController;
class ExpendViewController;
class FunctionViewController;
class ManagerViewController;
class MeasurementViewController;
class ProductDocument;
class ProductDocumentViewController;
class ProductViewController;
class PropertyJournalViewController;
class StockViewController;

// What the workspace asks of the window that it is drawn in. Widths are pixels of the desktop.
class WorkspaceWindow {
public:
    virtual ~WorkspaceWindow() = default;
    // Widens the window until the right pane is that wide; never narrows it.
    virtual void adjustWindowWidthForProductDocument(int width) = 0;
    virtual void setLeftViewCollapsed(bool collapsed) = 0;
    virtual void showAbout() = 0;
    virtual void openUrl(const QString& url) = 0;
};

// The main window's side of an opened project: one permanent controller for each catalog, the tabs with
// what they show, the commands of the menu, the foot line with the state text and the balance, and the
// closing of months. While it lives it is the application's workspace.
class MainViewController final : public ModelController, public Workspace, public CustomTabView::Delegate {
public:
    static constexpr int leftViewWidth = 250;
    static constexpr int productDocumentWidth = 1200;

    explicit MainViewController(AppDelegate& owner);
    ~MainViewController() override;

    const std::unique_ptr<FunctionViewController> functionController;
    const std::unique_ptr<AccountTypeViewController> accountTypeController;
    const std::unique_ptr<CurrencyViewController> currencyController;
    const std::unique_ptr<ExpendViewController> expendController;
    const std::unique_ptr<ManagerViewController> managerController;
    const std::unique_ptr<StockViewController> stockController;
    const std::unique_ptr<AccountViewController> accountController;
    const std::unique_ptr<ProductViewController> productController;
    const std::unique_ptr<ContragentViewController> contragentController;
    const std::unique_ptr<MeasurementViewController> measurementController;
    const std::unique_ptr<DeleteBasisViewController> deleteBasisController;
    const std::unique_ptr<PropertyJournalViewController> propertyJournalController;
    const std::unique_ptr<BalanceViewController> balanceController;

    CustomTabView tabView;
    std::vector<BaseView*> openedView; // in tab order
    WorkspaceWindow* window = nullptr; // null without a screen

    Label stateField{QStringLiteral("stateField")};
    NumberField balance{QStringLiteral("balance")}; // debit less credit, currency of the project
    Label balanceLabel{QStringLiteral("balanceLabel")};
    Button toggleLeftViewButton{QStringLiteral("toggleLeftViewButton")}; // on: the left pane is collapsed
    // Enabled once a newer version is known; shows the notice again.
    Button updateMenuItem{QStringLiteral("updateMenuItem")};
    // The header panel shows settings (name, logo, currency) and is to be drawn anew.
    std::function<void()> onHeaderPanelChanged;

    // Shows the balance when the settings ask for it.
    void checkParams();
    void updateDefaults() { checkParams(); }
    // Makes every permanent controller ready; what a page shows is read when it is asked for.
    void prepareAllData();
    // The sheet was computed.
    void updateBalance();
    // Removes all tabs; the permanent lists forget what they have read.
    void clearWindow();
    void setStateString(const QString& text) override { stateField.setText(text); }
    // The rates and the newest version, from the maker's server; what comes of it arrives as a notification.
    void updateCurrencies(const Params& params) override { appDelegate.online().updateCurrencies(params); }
    void checkUpdate() { appDelegate.online().checkUpdate(); }
    void currenciesUpdated();
    void readyForUpdate();
    // Offers the download of the new version, with a box to leave this out from now on. One notice at a time.
    void informUserAboutUpdate(bool show);
    void checkUpdateManually() { informUserAboutUpdate(true); }
    void showHelp();
    void showAbout();
    void toggleLeftView();

    // What choosing an entry of the menu does.
    void topMenuAction(DocType type);
    // A permanent view has one tab at most: the open one is selected.
    void addBaseView(BaseView& view);
    void addProductDocumentOfType(DocType type);
    void openDocWithID(qint64 id, const QString& type) override { addDocumentWithID(id, type); }
    // A stored document is open at most once. False when it is not in the file or has no form to show it.
    bool addDocumentWithID(qint64 id, const QString& type);
    void addJournalOfType(const QString& documentTypes);
    void addPeriodSellReport();

    // The close button of a tab, or Ctrl+W: asks first when a document has changes that are not saved.
    void closeTab(int position);
    // Asks for each document with unsaved changes in turn; `then` runs when none is left that keeps the
    // window (each was saved, or is to be dropped).
    void leave(std::function<void()> then);
    bool hasUnsavedChanges(int position) const;
    void removedPageAtIndex(int index) override;

    // The closing of months; see PeriodClosing.
    void checkPeriod();
    bool closePeriod(qint64 date, Params& params) { return m_period.closePeriod(date, params); }
    qint64 getStartPeriodDateFromDate(qint64 date, const Params& params) const
    {
        return m_period.getStartPeriodDateFromDate(date, params);
    }
    double clearDate(qint64 date) const { return m_period.clearDate(date); }
    qint64 getPeriodToSave() const { return m_period.getPeriodToSave(); }
    DayComponents getLastComponents() const { return m_period.getLastComponents(); }
    qint64 timeIntervalFromInt(qint64 period) const { return m_period.timeIntervalFromInt(period); }
    bool isPeriodSaved(qint64 saved, std::optional<int>* months = nullptr) const
    {
        return m_period.isPeriodSaved(saved, months);
    }

private:
    using Dropped = std::vector<std::shared_ptr<ModelViewController>>;

    void connectControllers();
    // No list, form or sheet holds anything of a project any more.
    void forgetProject();
    void cancelForms();
    void openPage(std::shared_ptr<ModelViewController> controller, BaseView& view);
    void openProductDocument(std::shared_ptr<ProductDocument> document);
    void formClosed(const BaseView& view);
    const ProductDocumentViewController* formAt(int position) const; // null for another page
    bool endEditing(int position) const;
    void askToSave(int position, std::function<void()> goOn, std::function<void()> drop);
    void leaveUnlessDropped(std::function<void()> then, Dropped dropped);
    void notReleased();
    void openDownloadPage();

    PeriodClosing m_period;
    bool m_leftViewCollapsed = false;
    bool m_askingAboutUpdate = false;
    // The controllers behind openedView; none for a permanent view.
    std::vector<std::shared_ptr<ModelViewController>> m_openedControllers;
    // A form that asked for its tab to be taken away: it is still at work then.
    std::shared_ptr<ModelViewController> m_lastClosed;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace zelvor
