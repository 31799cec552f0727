#pragma once

#include "catalogs/property_select_view.h"
#include "catalogs/selection_owner.h"
#include "core/notification_center.h"
#include "documents/document_view_controller.h"
#include "documents/property_document.h"
#include "documents/property_document_view.h"

#include <functional>
#include <memory>
#include <vector>

namespace zelvor {

class ContragentSelectView;
class UserWrite;

// The form of a fixed-asset document. There is no draft: the document, and an asset that comes with it, are
// stored by the confirmation alone. A refused confirmation has shown an alert and changed nothing, neither in
// the file nor in the document.
//
// Who fills the form without a screen: prepareData(), then the counterparty and the asset by their ids, then
// the fields; choosing a counterparty fills the deferment, choosing an asset to sell fills the sum.
class PropertyDocumentViewController final : public DocumentViewController, public ContragentSelectProtocol {
public:
    // A new document has its type and nothing else.
    PropertyDocumentViewController(AppDelegate& appDelegate, std::shared_ptr<PropertyDocument> document);
    ~PropertyDocumentViewController() override;

    const std::shared_ptr<PropertyDocument> document;
    NumberField docSum{QStringLiteral("docSum")};
    NumberField currentCost{QStringLiteral("currentCost")};
    NumberField amortizationPeriod{QStringLiteral("amortizationPeriod")}; // months
    NumberField deferment{QStringLiteral("deferment")};                   // days
    Slider defermentSlider{QStringLiteral("defermentSlider")};
    Popover propertySelectPopover{QStringLiteral("propertySelectPopover")};
    PropertyDocumentView mainView;

    DocumentModel& documentModel() override { return *document; }
    QStringList missingInputs() const override { return mainView.missingInputs(); }
    void prepareData() override;

    // What the document's type uses.
    bool contragentEnabled() const;
    bool propertyTextEnabled() const;      // the asset's name is typed
    bool propertyControllsEnabled() const; // the asset is chosen from the list
    bool deleteBasisEnabled() const;
    bool deleteBasisHidden() const;
    bool sumEnabled() const;
    bool controlsEnabled() const; // the period and the like

    ContragentSelectView& contragentSelectView(); // made when it is asked for
    void selectContragent();                      // opens the chooser
    void setNewContragent(const std::shared_ptr<Contragent>& contragent) override;
    void clearContragent();
    // The assets that are held, read when the popover opens.
    PropertySelectView propertySelectView;
    void prepareProperties();
    void selectProperty(); // opens the popover
    void addProperty(const std::shared_ptr<Property>& property);
    void clearProperty();
    void cancelPopover();
    // Fills the pop-up of reasons; until then it holds only the selected one.
    void prepareDeleteBasises();
    // The record with that id, 0 for none. False, and nothing chosen, when there is no such record, it is
    // hidden, or the asset is gone.
    bool setContragentFromID(qint64 contragentID);
    bool setPropertyFromID(qint64 propertyID);
    bool setDeleteBasisFromID(qint64 basisID);
    bool setManagerFromID(qint64 managerID); // the responsible employee

    bool confirmDoc();
    void closeDoc();
    // Takes the tab away; set by whoever shows the form.
    std::function<void()> onClose;
    void updateInterface();

private:
    struct Confirmation; // the steps by type, and what is told afterwards
    bool readAnew();
    bool readProperty();
    bool runSteps();
    bool checkDate();
    bool checkProductDocs();
    bool changeContragentBalance();
    void setLeftToPay(const Decimal& balance);
    void finalizeDocument();
    bool storeProperty(UserWrite& write);
    bool storeDocument(UserWrite& write);
    void postConfirmed();

    void bindFields();
    void observeCatalogs();
    void updateContragents();
    void updateProperties();
    void showParties();

    std::vector<NotificationCenter::Observation> m_observations;
    std::unique_ptr<ContragentSelectView> m_contragentSelectView;
    bool m_propertiesStale = true;
};

} // namespace zelvor
