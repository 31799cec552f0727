#pragma once

#include "core/view.h"
#include "store/app_delegate.h"

#include <optional>

namespace zelvor {

// The view as one HTML table for a spreadsheet program: its visible rows, nothing escaped, no blank or line
// break added; numbers and dates as the current locale writes them. None for a view that is no list, and for
// a tree that has no export.
std::optional<QString> excelTable(const BaseView& view, const Calendar& calendar);
// The file's bytes: UTF-16 with a byte-order mark.
QByteArray excelFile(const QString& table);
// Asks where to, appends ".xls" to whatever was typed, and writes the file whole or not at all. A failed
// write is told in an alert. False when nothing was written.
bool exportToExcel(const BaseView& view, AppDelegate& appDelegate);

} // namespace zelvor
