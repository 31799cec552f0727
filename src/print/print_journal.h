#pragma once

#include "print/table_form.h"

namespace zelvor {

// The document journal on paper.
class PrintJournal final : public TableForm {
public:
    explicit PrintJournal(AppDelegate& owner);
};

} // namespace zelvor
