#pragma once

#include "print/table_form.h"

namespace zelvor {

// The list of units on paper.
class PrintMeasurement final : public TableForm {
public:
    explicit PrintMeasurement(AppDelegate& owner);

protected:
    QString heading() const override { return {}; }
};

} // namespace zelvor
