#pragma once

#include "catalogs/selection_owner.h"
#include "core/notification_center.h"
#include "documents/document_view_controller.h"
#include "documents/money_document.h"
#include "documents/money_document_view.h"

#include <functional>
#include <memory>
#include <vector>

namespace zelvor {

class ContragentSelectView;
class ExpendSelectView;
class UserWrite;

// The form of a money document: choosing its parties, saving it as a draft, deleting the draft, confirming
// it. Actions answer whether they were carried out; a refused confirmation has shown an alert and changed
// nothing, neither in the file nor in the document.
//
// Who fills the form without a screen: prepareData(), then the sum, the parties by their ids, and last the
// received sum where one is given. The rate between two accounts is worked out when the second is chosen.
class MoneyDocumentViewController final : public DocumentViewController,
                                          public ContragentSelectProtocol,
                                          public ExpendSelectProtocol {
public:
    // A new document has its type and nothing else.
    MoneyDocumentViewController(AppDelegate& appDelegate, std::shared_ptr<MoneyDocument> document);
    ~MoneyDocumentViewController() override;

    const std::shared_ptr<MoneyDocument> document;
    MoneyDocumentView mainView;
    bool justConfirmed = false; // closing the tab then lets go of the choosers

    DocumentModel& documentModel() override { return *document; }
    QStringList missingInputs() const override { return mainView.missingInputs(); }
    void prepareData() override;
    void clearSelf() override;

    // What the document's type uses.
    bool accountFromEnabled() const;
    bool accountToEnabled() const;
    bool contragentEnabled() const;
    bool employeeEnabled() const;
    bool expendEnabled() const;
    bool sumToEnabled() const;

    // Made when they are asked for.
    ContragentSelectView& contragentSelectView();
    ExpendSelectView& expendSelectView();
    void selectContragent(); // opens the chooser
    void setNewContragent(const std::shared_ptr<Contragent>& contragent) override;
    void clearContragent();
    void selectExpend(); // opens the chooser
    void setNewExpend(const std::shared_ptr<Expend>& expend) override;
    void clearExpend();
    // The record with that id, 0 for none. False, and nothing chosen, when there is no such record or it is
    // hidden.
    bool setContragentFromID(qint64 contragentID);
    bool setExpendFromID(qint64 expendID);
    bool setManagerFromID(qint64 managerID); // the responsible employee

    bool writeDoc();
    bool deleteDoc();
    void closeDoc();
    // Takes the tab away; set by whoever shows the form.
    std::function<void()> onClose;
    bool confirmDoc();
    void updateInterface();

private:
    struct Confirmation; // the steps by type, and what is told afterwards
    bool runSteps();
    bool checkDate();
    bool checkAccountBalance();
    bool minusMoneyFromAccount();
    bool plusMoneyToAccount();
    bool changeContragentBalance();
    bool changeEmployeeBalance();
    bool checkProductDocs();
    void postConfirmed();

    bool mayWrite();
    void showRefusal();
    void showParties();
    bool storeConfirmed(UserWrite& write);
    void observeCatalogs();
    void updateContragents();
    void updateExpends();

    std::vector<NotificationCenter::Observation> m_observations;
    std::unique_ptr<ContragentSelectView> m_contragentSelectView;
    std::unique_ptr<ExpendSelectView> m_expendSelectView;
};

} // namespace zelvor
