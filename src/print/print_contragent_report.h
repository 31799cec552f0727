#pragma once

#include "print/table_form.h"

namespace zelvor {

// A statement of account on paper: one counterparty's documents, numbered.
class PrintContragentReport : public TableForm {
public:
    PrintContragentReport(AppDelegate& owner, QString formTitle);

protected:
    QString furtherHeading() const override;
};

} // namespace zelvor
