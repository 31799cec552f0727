#pragma once

#include "core/outlets.h"
#include "core/view.h"

#include <vector>

namespace zelvor {

class PropertyDocument;
class PropertyDocumentViewController;

// The fields of a fixed-asset document's form that are not on its controller, and what is still missing.
class PropertyDocumentView : public BaseView {
public:
    explicit PropertyDocumentView(PropertyDocumentViewController& controller);

    DatePicker date{QStringLiteral("date")};
    TextField propertyName{QStringLiteral("propertyName")}; // typed, or the name of the chosen asset
    CheckBox amortizedCheck{QStringLiteral("amortizedCheck")};
    PopUpButton deleteBasisSelect{QStringLiteral("deleteBasisSelect")};
    TextField contragentField{QStringLiteral("contragentField")}; // a name: chosen, never typed
    TextField comment{QStringLiteral("comment")};

    Label propertyLabel{QStringLiteral("propertyLabel")};
    Label contragentLabel{QStringLiteral("contragentLabel")};
    Label sumLabel{QStringLiteral("sumLabel")};
    Label deleteBasisLabel{QStringLiteral("deleteBasisLabel")};
    Label periodLabel{QStringLiteral("periodLabel")};
    Label defermentLabel{QStringLiteral("defermentLabel")};

    Button confirmButton{QStringLiteral("confirmButton")};

    // Shows the document's values and enables what its type uses, while it is unconfirmed.
    void showDocument();
    // The names of the counterparty and the asset, and the chosen reason.
    void showParties();
    // Paints the labels of the required fields and enables the button.
    void checkControlls();
    // The labels of required fields that are still missing, in form order.
    QStringList missingInputs() const;

private:
    struct Required {
        Label PropertyDocumentView::*label;
        bool filled;
    };
    std::vector<Required> required() const;
    bool sumIsAcceptable() const;
    bool hasProperty() const;
    void writeLabels();
    void bindFields();
    void enableFields();
    PropertyDocument& document() const;

    PropertyDocumentViewController& m_controller;
};

} // namespace zelvor
