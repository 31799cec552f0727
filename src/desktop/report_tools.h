#pragma once

#include <initializer_list>

class QPushButton;
class QString;
class QWidget;

namespace zelvor {

class TableList;

// What the pages of journals and reports share.

// "Refresh", with its key told in the tool tip.
QPushButton* makeRefreshButton(QWidget* parent);
// The Tab key goes from each to the next.
void chainTabs(std::initializer_list<QWidget*> widgets);
void setEmptyText(TableList& list, const QString& text);

} // namespace zelvor
