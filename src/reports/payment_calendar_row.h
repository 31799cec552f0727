#pragma once

#include "documents/document_model.h"

#include <memory>

namespace zelvor {

// A line of the payment calendar: a document that is not paid in full, or a summary line, which adds up what
// it is given.
class PaymentCalendarRow {
public:
    static constexpr RoundingHandler handler = moneyHandler;

    bool total = false;                      // a summary line
    std::shared_ptr<DocumentModel> document; // none for a summary line
    QString name;                            // label of a summary line
    Decimal innerLeftToPayIn;                // money to come to us, currency of the project
    Decimal innerLeftToPayOut;               // money that we have to pay, currency of the project

    double leftToPayIn() const { return innerLeftToPayIn.toDouble(); }
    double leftToPayOut() const { return innerLeftToPayOut.toDouble(); }
    // A summary line adds the value to what it has, any other line takes it in its place.
    void setLeftToPayIn(double value) { setInnerLeftToPayIn(Decimal::fromDouble(value)); }
    void setLeftToPayOut(double value) { setInnerLeftToPayOut(Decimal::fromDouble(value)); }
    void setInnerLeftToPayIn(const Decimal& value) { enter(innerLeftToPayIn, value); }
    void setInnerLeftToPayOut(const Decimal& value) { enter(innerLeftToPayOut, value); }

    // A cell of the table: "name", "date", "payToDate", "sum", "leftToPayIn", "leftToPayOut".
    QVariant valueForIdentifier(QStringView identifier) const;

private:
    void enter(Decimal& field, const Decimal& value)
    {
        field = total ? field.plus(value, handler) : value.rounded(handler);
    }
};

} // namespace zelvor
