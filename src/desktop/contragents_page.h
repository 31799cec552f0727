#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class ContragentViewController;

// The counterparties catalog with its popovers.
class ContragentsPage : public TreePage {
    Q_OBJECT

public:
    explicit ContragentsPage(ContragentViewController& controller, QWidget* parent = nullptr);

private:
    ContragentViewController& m_controller;
};

} // namespace zelvor
