#pragma once

#include "core/view.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QHeaderView>

#include <vector>

namespace zelvor {

// What tables and trees share: header, column widths, sorting by a click, a tick by the keyboard.
void prepareHeader(QHeaderView& header);
// Widths by kind: dates and amounts as wide as what they hold, the name column takes what is left.
void fitColumns(QHeaderView& header, const QAbstractItemModel& model, const std::vector<ViewColumn>& columns,
                const QFontMetrics& metrics);
// A click on a header: sorts where the column sorts, the second time the other way round.
void sortByClick(QAbstractItemModel& model, QHeaderView& header, const std::vector<ViewColumn>& columns,
                  int column);
int firstShownColumn(const std::vector<ViewColumn>& columns);
std::vector<QString> shownIdentifiers(const std::vector<ViewColumn>& columns);
// Turns the tick of the current cell, or of the row's only tick that the user may turn. False without one.
bool tickCurrent(QAbstractItemView& list);

} // namespace zelvor
