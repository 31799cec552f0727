#pragma once

#include "print/table_form.h"

namespace zelvor {

// The spendings report on paper.
class PrintExpense final : public TableForm {
public:
    explicit PrintExpense(AppDelegate& owner);
};

} // namespace zelvor
