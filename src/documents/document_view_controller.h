#pragma once

#include "core/localized.h"
#include "core/notification_center.h"
#include "core/outlets.h"
#include "documents/document_model.h"
#include "store/model_controller.h"

#include <memory>
#include <vector>

namespace zelvor {

// What the three document forms share: the steps of a confirmation that are the same for all, the alert, and
// the checks of required inputs. A step decides before it writes, answers whether it succeeded and adds its
// sentence to alertMessage when it did not.
class DocumentViewController : public ModelViewController {
public:
    explicit DocumentViewController(AppDelegate& owner) : ModelViewController(owner) {}

    QString alertMessage; // empty between confirmations
    Progress progress{QStringLiteral("progress")};
    Label documentTitle{QStringLiteral("documentTitle")};
    NumberField contragentBalance{QStringLiteral("contragentBalance")};

    virtual DocumentModel& documentModel() = 0;

    // Names of the required inputs that are still missing, localised, in form order; empty when the document
    // may be confirmed.
    virtual QStringList missingInputs() const = 0;

    // True when the input is filled; paints the label in order or red.
    static bool checkPopUp(const PopUpButton& popUp, Label& label);
    static bool checkTextField(const TextField& field, Label& label);
    // Whether a sum may be kept: a number, and within 10,000,000,000,000.00 either way, up to where a stored
    // real still holds its cents.
    static bool isStorable(const Decimal& number);

protected:
    // False, with an alert that names them, when required inputs are missing or the document is confirmed.
    bool isReadyToConfirm();
    // Whether a stored document is in the file and unconfirmed: another form or program may have been faster.
    template <class Document>
    bool checkStoredDraft()
    {
        const qint64 id = documentModel().id;
        if (id == 0 || appDelegate.connector.any<Document>("WHERE id=? AND is_confirmed=0", {id}))
            return true;
        fail(localized("The document was confirmed or deleted in the meantime.\n"));
        return false;
    }
    // No confirmed document with a later date, not from the future, not in a closed period; closes the last
    // finished month on the way, inside the open transaction. `closingFailed` is the form's own wording. The
    // message replaces alertMessage.
    bool checkDateStep(const QString& closingFailed);
    // Draws the next number of the document's type.
    bool setDocumentNumber();
    // Open documents of the counterparty, of these product types and of this fixed-asset type, earliest due
    // first (equal dates in id order, product documents first). Heads alone, without rows and links.
    std::vector<std::shared_ptr<DocumentModel>> openDocuments(DocType productType, DocType otherProductType,
                                                              DocType propertyType);
    // Allots `rest` to them in order and stores each one that changes. False when a write failed.
    bool settle(const std::vector<std::shared_ptr<DocumentModel>>& open, Decimal rest);
    // Behind a failed confirmation: whoever read a month as closed inside the transaction reads it anew.
    void announceTakenBack();
    void showAlert();
    void fail(const QString& sentence); // adds the sentence to alertMessage

private:
    bool hasLaterDocument(qint64 date);
    bool refuseDate(const QString& message);

    bool m_closedPeriod = false; // the running confirmation closed a month on its way
};

} // namespace zelvor
