#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class BalanceViewController;

// The balance sheet.
class BalancePage : public TablePage {
    Q_OBJECT

public:
    explicit BalancePage(BalanceViewController& controller, QWidget* parent = nullptr);

private:
    BalanceViewController& m_controller;
};

} // namespace zelvor
