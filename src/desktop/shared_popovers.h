#pragma once

class QWidget;

namespace zelvor {

class MainViewController;

// The popovers of the catalogs that other pages open too (an employee or a function from a counterparty, a
// unit from a product), one each in the whole window.
void makeSharedPopovers(MainViewController& workspace, QWidget* window);

} // namespace zelvor
