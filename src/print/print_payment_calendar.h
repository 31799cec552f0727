#pragma once

#include "print/table_form.h"

namespace zelvor {

// The payment calendar on paper.
class PrintPaymentCalendar final : public TableForm {
public:
    explicit PrintPaymentCalendar(AppDelegate& owner);

    qint64 date = 0; // of the print

protected:
    QString heading() const override;
};

} // namespace zelvor
