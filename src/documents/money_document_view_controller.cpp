#include "documents/money_document_view_controller.h"

#include "catalogs/contragent_select_view.h"
#include "catalogs/expend_select_view.h"
#include "documents/visible_record.h"
#include "store/user_write.h"

namespace zelvor {

using enum DocType;

MoneyDocumentViewController::MoneyDocumentViewController(AppDelegate& owner,
                                                         std::shared_ptr<MoneyDocument> documentToShow)
    : DocumentViewController(owner), document(std::move(documentToShow)), mainView(*this)
{
    observeCatalogs();
}

MoneyDocumentViewController::~MoneyDocumentViewController() = default;

// Rates of currencies are read when they are needed, so a change of them needs no ear.
void MoneyDocumentViewController::observeCatalogs()
{
    const auto observe = [this](NotificationName name, auto update) {
        m_observations.push_back(
            appDelegate.notifications.observe(name, [update](const Notification&) { update(); }));
    };
    observe(NotificationName::AccountChangedNotification, [this] { mainView.accountsChanged(); });
    observe(NotificationName::ManagerChangedNotification, [this] { mainView.employeesChanged(); });
    observe(NotificationName::ContragentChangedNotification, [this] { updateContragents(); });
    observe(NotificationName::ExpendChangedNotification, [this] { updateExpends(); });
}

void MoneyDocumentViewController::updateContragents()
{
    if (m_contragentSelectView)
        m_contragentSelectView->markStale();
    if (document->confirmed || document->contragentID == 0)
        return;
    if (const auto changed = appDelegate.connector.select<Contragent>(document->contragentID, Fill::Nothing))
        setNewContragent(changed);
}

void MoneyDocumentViewController::updateExpends()
{
    if (m_expendSelectView)
        m_expendSelectView->markStale();
    if (document->confirmed || document->expendID == 0)
        return;
    if (const auto changed = appDelegate.connector.select<Expend>(document->expendID, Fill::Nothing))
        setNewExpend(changed);
}

ContragentSelectView& MoneyDocumentViewController::contragentSelectView()
{
    if (!m_contragentSelectView) {
        m_contragentSelectView = std::make_unique<ContragentSelectView>(appDelegate);
        m_contragentSelectView->sender = this;
    }
    return *m_contragentSelectView;
}

ExpendSelectView& MoneyDocumentViewController::expendSelectView()
{
    if (!m_expendSelectView) {
        m_expendSelectView = std::make_unique<ExpendSelectView>(appDelegate);
        m_expendSelectView->sender = this;
    }
    return *m_expendSelectView;
}

void MoneyDocumentViewController::selectContragent()
{
    if (!document->confirmed && contragentEnabled())
        contragentSelectView().selectPopover.open();
}

void MoneyDocumentViewController::selectExpend()
{
    if (!document->confirmed && expendEnabled())
        expendSelectView().selectPopover.open();
}

bool MoneyDocumentViewController::accountFromEnabled() const
{
    const DocType type = document->docType();
    return type == MoneyToContragent || type == MoneyToEmployee || type == MoneyToExpend ||
           type == InnerTransaction;
}

bool MoneyDocumentViewController::accountToEnabled() const
{
    const DocType type = document->docType();
    return type == MoneyAdd || type == MoneyFromContragent || type == MoneyFromEmployee ||
           type == InnerTransaction;
}

bool MoneyDocumentViewController::contragentEnabled() const
{
    const DocType type = document->docType();
    return type == MoneyFromContragent || type == MoneyToContragent;
}

bool MoneyDocumentViewController::employeeEnabled() const
{
    const DocType type = document->docType();
    return type == MoneyFromEmployee || type == MoneyToEmployee;
}

bool MoneyDocumentViewController::expendEnabled() const
{
    return document->docType() == MoneyToExpend;
}

bool MoneyDocumentViewController::sumToEnabled() const
{
    return document->docType() == InnerTransaction;
}

void MoneyDocumentViewController::prepareData()
{
    if (document->id == 0) {
        if (document->date == 0)
            document->date = appDelegate.now();
        mainView.setDefaults();
    }
    updateInterface();
}

void MoneyDocumentViewController::clearSelf()
{
    if (!justConfirmed)
        return;
    m_contragentSelectView.reset();
    m_expendSelectView.reset();
}

void MoneyDocumentViewController::setNewContragent(const std::shared_ptr<Contragent>& contragent)
{
    if (document->confirmed || !contragentEnabled())
        return;
    document->insertContragent(contragent);
    showParties();
}

void MoneyDocumentViewController::clearContragent()
{
    setNewContragent(nullptr);
}

bool MoneyDocumentViewController::setContragentFromID(qint64 contragentID)
{
    const std::shared_ptr<Contragent> contragent =
        visibleRecord<Contragent>(appDelegate.connector, contragentID);
    setNewContragent(contragent);
    return contragent || contragentID == 0;
}

void MoneyDocumentViewController::setNewExpend(const std::shared_ptr<Expend>& expend)
{
    if (document->confirmed || !expendEnabled())
        return;
    document->settExpend(expend);
    showParties();
}

void MoneyDocumentViewController::clearExpend()
{
    setNewExpend(nullptr);
}

bool MoneyDocumentViewController::setExpendFromID(qint64 expendID)
{
    const std::shared_ptr<Expend> expend = visibleRecord<Expend>(appDelegate.connector, expendID);
    setNewExpend(expend);
    return expend || expendID == 0;
}

bool MoneyDocumentViewController::setManagerFromID(qint64 managerID)
{
    if (document->confirmed)
        return false;
    const std::shared_ptr<Manager> manager = visibleRecord<Manager>(appDelegate.connector, managerID);
    document->insertManager(manager);
    return manager || managerID == 0;
}

// A transfer whose received sum nobody gave takes the one by the rate of both accounts.
bool MoneyDocumentViewController::mayWrite()
{
    const bool bothAccounts = !document->accountFrom.isEmpty() && !document->accountTo.isEmpty();
    if (sumToEnabled() && bothAccounts && mainView.docSumTo.value().isZero() && !document->confirmed)
        mainView.calculateExchange();
    return isReadyToConfirm();
}

bool MoneyDocumentViewController::writeDoc()
{
    if (!mayWrite())
        return false;
    const qint64 idBefore = document->id;
    UserWrite write(appDelegate.connector);
    if (!checkStoredDraft<MoneyDocument>())
        write.fail();
    else
        write.step(idBefore == 0 ? appDelegate.connector.insert(*document)
                                 : appDelegate.connector.update(*document));
    if (!write.finish()) {
        document->id = idBefore;
        showRefusal();
        return false;
    }
    updateInterface();
    mainView.saveButton.setEnabled(false);
    appDelegate.notifications.post(NotificationName::MoneyDocChangedNotification, this);
    return true;
}

bool MoneyDocumentViewController::deleteDoc()
{
    if (document->confirmed || document->id == 0)
        return false;
    UserWrite write(appDelegate.connector);
    if (!checkStoredDraft<MoneyDocument>())
        write.fail();
    else
        write.step(appDelegate.connector.remove(*document));
    if (!write.finish()) {
        showRefusal();
        return false;
    }
    document->id = 0; // what is left on the form would be a new document
    // Closing may take this form away, so it is told before.
    appDelegate.notifications.post(NotificationName::MoneyDocChangedNotification, this);
    closeDoc();
    return true;
}

// A save or a delete that the file did not take is not told by the form.
void MoneyDocumentViewController::showRefusal()
{
    if (!alertMessage.isEmpty())
        showAlert();
}

void MoneyDocumentViewController::closeDoc()
{
    // A copy: closing may take this form, and the callback with it, away.
    const std::function<void()> close = onClose;
    if (close)
        close();
}

void MoneyDocumentViewController::updateInterface()
{
    documentTitle.setText(document->name());
    documentTitle.setColor(document->titleFontColor());
    mainView.setName(document->name());
    mainView.setTitleColor(document->titleFontColor());
    mainView.showDocument();
    showParties();
}

void MoneyDocumentViewController::showParties()
{
    contragentBalance.setValue(document->contragent->innerBalance);
    contragentBalance.setColor(document->contragent->balanceFontColor());
    mainView.showParties();
    mainView.checkControlls();
}

} // namespace zelvor
