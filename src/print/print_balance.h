#pragma once

#include "print/table_form.h"

namespace zelvor {

// The balance sheet on paper: the names in one block, debit and credit in a second one beside it.
class PrintBalance final : public TableForm {
public:
    explicit PrintBalance(AppDelegate& owner);

    const QFont groupFont = printFont(11, true, true);
    qint64 date = 0; // of the print

protected:
    QString heading() const override;
    const QFont& gatheringFont() const override { return groupFont; }
};

} // namespace zelvor
