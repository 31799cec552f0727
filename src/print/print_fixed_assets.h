#pragma once

#include "print/table_form.h"

namespace zelvor {

// The list of fixed assets on paper.
class PrintFixedAssets final : public TableForm {
public:
    explicit PrintFixedAssets(AppDelegate& owner);

    // The day of the print, and what the assets are worth on it.
    qint64 date = 0;
    Decimal total;

protected:
    QString heading() const override;
};

} // namespace zelvor
