#include "cli/report.h"
#include "period/balance_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr OptionInfo options[] = {{"--grouped", false}};

QString kindOf(const BalanceRow& row)
{
    if (row.total)
        return u"total"_s;
    return row.groupRow ? u"group"_s : u"item"_s;
}

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    BalanceViewController controller(appDelegate);
    controller.groupCheckBox.setOn(arguments.has(u"--grouped"_s));
    controller.prepareData();
    const auto& rows = controller.view.rows();
    return print({controller.view, [&](int row) { return kindOf(*rows[static_cast<std::size_t>(row)]); }});
}

} // namespace

const Report balanceReport{"balance", "[--grouped]", options, run};

} // namespace zelvor
