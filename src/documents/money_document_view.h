#pragma once

#include "core/outlets.h"
#include "core/view.h"

#include <vector>

namespace zelvor {

class MoneyDocument;
class MoneyDocumentViewController;

// The fields of a money document's form. Keeps the two sums and the exchange rate in step, writes what the
// user enters into the document, and says what is still missing.
//
// A pop-up holds only its selected entry until prepareAccountSelects() or prepareEmployeeSelect() fill it:
// the desktop asks for that before it shows them, the command line never does.
class MoneyDocumentView : public BaseView {
public:
    explicit MoneyDocumentView(MoneyDocumentViewController& controller);

    DatePicker date{QStringLiteral("date")};
    PopUpButton accountFromSelect{QStringLiteral("accountFromSelect")};
    PopUpButton accountToSelect{QStringLiteral("accountToSelect")};
    PopUpButton employeeSelect{QStringLiteral("employeeSelect")};
    TextField contragentField{QStringLiteral("contragentField")}; // names: chosen, never typed
    TextField expendField{QStringLiteral("expendField")};
    NumberField docSum{QStringLiteral("docSum")};
    NumberField docSumTo{QStringLiteral("docSumTo")}; // what accountTo receives, in its currency
    NumberField currencyRate{QStringLiteral("currencyRate")};
    CheckBox variableCheck{QStringLiteral("variableCheck")};
    CheckBox loansCheck{QStringLiteral("loansCheck")};
    CheckBox dividentCheck{QStringLiteral("dividentCheck")};
    TextField comment{QStringLiteral("comment")};

    // Each party's balance beside its field.
    NumberField accountFromBalance{QStringLiteral("accountFromBalance")};
    NumberField accountToBalance{QStringLiteral("accountToBalance")};
    NumberField employeeBalance{QStringLiteral("employeeBalance")};

    Label accountFromLabel{QStringLiteral("accountFromLabel")};
    Label accountToLabel{QStringLiteral("accountToLabel")};
    Label contragentLabel{QStringLiteral("contragentLabel")};
    Label employeeLabel{QStringLiteral("employeeLabel")};
    Label expendLabel{QStringLiteral("expendLabel")};
    Label sumLabel{QStringLiteral("sumLabel")};
    Label sumToLabel{QStringLiteral("sumToLabel")};

    Button saveButton{QStringLiteral("saveButton")};
    Button deleteDocButton{QStringLiteral("deleteDocButton")};
    Button confirmButton{QStringLiteral("confirmButton")};

    // Fill the pop-ups with everything that is not hidden, by name; the selection stays.
    void prepareAccountSelects();
    void prepareEmployeeSelect();
    // Their contents are out of date: refilled at once when the view is visible, otherwise when prepared
    // next.
    void accountsChanged();
    void employeesChanged();

    // The default account, where the type uses one.
    void setDefaults();
    void setDefaultAccount(PopUpButton& accountSelect);
    // Takes over the record with that id, 0 for none. False, and nothing chosen, when there is no such
    // record.
    bool setAccountFromID(qint64 accountID);
    bool setAccountToID(qint64 accountID);
    bool setEmployeeFromID(qint64 employeeID);

    // Shows the document's values and enables what its type uses, while it is unconfirmed.
    void showDocument();
    // The names of the counterparty and the spending, the balances of the accounts and the employee.
    void showParties();

    // The rate between the two accounts' currencies, and the received sum by it.
    void calculateExchange();
    // 1.0 for a currency that is not found.
    double getCurrencyRateFromID(qint64 currencyID) const;
    // Stores the field docSum in the document.
    void docSumChanged();
    // Paints the labels of the required fields and enables the buttons.
    void checkControlls();
    // The labels of required fields that are still missing, in form order.
    QStringList missingInputs() const;

private:
    struct Required {
        Label MoneyDocumentView::*label;
        bool filled;
    };
    std::vector<Required> required() const;
    void writeLabels();
    void bindFields();
    void enableFields();
    void accountFromSumEdited();
    void accountToSumEdited();
    bool takeAccount(PopUpButton& select, qint64 accountID);
    void setReceivedSum(const Decimal& sum);
    MoneyDocument& document() const;

    MoneyDocumentViewController& m_controller;
    bool m_accountsPrepared = false;
    bool m_employeesPrepared = false;
};

} // namespace zelvor
