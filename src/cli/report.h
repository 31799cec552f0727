#pragma once

#include "cli/arguments.h"
#include "core/view.h"
#include "store/app_delegate.h"

#include <functional>
#include <span>

namespace zelvor {

class JsonWriter;

// What a report hands over to be printed: the cells of its view and the marker of each row. Two add members to
// a row's object and to the whole answer, in JSON only. Where a cell of the view holds several figures, the
// last two are the columns of CSV, one for each figure, and their cells.
struct ReportTable {
    const TableView& view;
    std::function<QString(int row)> kind;
    std::function<void(int row, JsonWriter& json)> moreOfRow = {};
    std::function<void(JsonWriter& json)> moreOfAnswer = {};
    std::vector<ViewColumn> figureColumns = {};
    std::function<QVariant(int row, const QString& identifier)> figure = {};
};

// One report of the command line. `run` computes it and hands its table to `print`, whose answer (an exit
// code) it passes on; options that make no sense end in badUsage.
struct Report {
    using Print = std::function<int(const ReportTable&)>;
    const char* name;
    const char* details; // what --help says of it
    std::span<const OptionInfo> options;
    int (*run)(AppDelegate& appDelegate, const Arguments& arguments, const Print& print);
};

extern const Report balanceReport;
extern const Report periodSellReport;
extern const Report journalReport;
extern const Report expendsReport;
extern const Report dynamicsReport;
extern const Report paymentCalendarReport;
extern const Report productsOnStockReport;
extern const Report fixedAssetsReport;
extern const Report unitsReport;
extern const Report contragentsReport;
extern const Report contragentReport;
extern const Report accountReport;
extern const Report employeeReport;

std::span<const Report* const> reports();

} // namespace zelvor
