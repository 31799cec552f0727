#pragma once

#include <initializer_list>

class QPushButton;
class QWidget;

namespace zelvor {

// What the pages of journals and reports share.

// "Refresh", with its key told in the tool tip.
QPushButton* makeRefreshButton(QWidget* parent);
// The Tab key goes from each to the next.
void chainTabs(std::initializer_list<QWidget*> widgets);

} // namespace zelvor
