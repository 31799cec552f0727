#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class BalanceViewController;

// The balance sheet of this moment.
class BalancePage : public TablePage {
    Q_OBJECT

public:
    explicit BalancePage(BalanceViewController& controller, QWidget* parent = nullptr);

    bool can(PageCommand command) const override;
    void perform(PageCommand command) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLayout* makeControls();
    // "Balance on 21.11.2026, EUR".
    void showDay();

    BalanceViewController& m_controller;
};

} // namespace zelvor
