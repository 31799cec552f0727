#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class StockViewController;

// The warehouses catalog with its popover.
class StocksPage : public TablePage {
    Q_OBJECT

public:
    explicit StocksPage(StockViewController& controller, QWidget* parent = nullptr);

private:
    StockViewController& m_controller;
};

} // namespace zelvor
