#pragma once

#include "core/notification_center.h"
#include "core/outlets.h"
#include "documents/document_model.h"
#include "store/model_controller.h"

#include <memory>
#include <span>
#include <vector>

namespace zelvor {

class Params;

// What the three document forms share: the steps of a confirmation that are the same for all, the alert, and
// the checks of required inputs. A step decides before it writes, answers whether it succeeded and adds its
// sentence to alertMessage when it did not.
class DocumentViewController : public ModelViewController {
public:
    explicit DocumentViewController(AppDelegate& appDelegate);

    QString alertMessage; // empty between confirmations
    Progress progress{QStringLiteral("progress")};
    Label documentTitle{QStringLiteral("documentTitle")};
    NumberField contragentBalance{QStringLiteral("contragentBalance")};

    virtual DocumentModel& documentModel() = 0;
    const DocumentModel& documentModel() const {}

    // Names of the required inputs that are still missing, localised, in form order; empty when the document
    // may be confirmed.
    virtual QStringList missingInputs() const = 0;

    // True when every required input is there; paints the label in order or red.
    static bool checkPopUp(const PopUpButton& popUp, Label& label);
    static bool checkTextField(const TextField& field, Label& label);

protected:
    // No confirmed document with a later date, not from the future, not in a closed period; closes the last
    // finished month on the way, inside the open transaction. `closingFailed` is the form's own wording.
    bool checkDateStep(const QString& closingFailed);
    // Draws the next number of the document's type.
    bool setDocumentNumber();
    // Open documents of the counterparty, of these product types and of this fixed-asset type, earliest due
    // first (equal dates in id order, product documents first).
    std::vector<std::shared_ptr<DocumentModel>> openDocuments(DocType productType, DocType otherProductType,
                                                              DocType propertyType);
    // Allots `rest` to them in order and stores each one that changes. False when a write failed.
    bool settle(const std::vector<std::shared_ptr<DocumentModel>>& open, Decimal rest);
    void showAlert();
    void fail(const char* sentence); // adds the localised sentence to alertMessage
};

} // namespace zelvor
