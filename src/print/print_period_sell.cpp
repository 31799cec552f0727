#include "print/print_period_sell.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintPeriodSell::PrintPeriodSell(AppDelegate& owner)
    : TableForm(owner, landscape, localized("Report by Selling For Period."),
                {
                    {u"name"_s, localized("Name"), 260},
                    {u"unit"_s, localized("Unit"), 50},
                    {u"amount"_s, localized("Amount"), 70, Amount},
                    {u"packs"_s, localized("Packs"), 70, Amount},
                    {u"baseSum"_s, localized("Base Sum"), 80, Amount},
                    {u"priceSum"_s, localized("Price Sum"), 80, Amount},
                    {u"profit"_s, localized("Profit"), 80, Amount},
                    {u"percent"_s, localized("Percent"), 60, Percent},
                })
{}

// On the screen even an outermost name stands one blank in; here the cell's inset is enough.
QString PrintPeriodSell::cellText(const TableView& report, int row, const Column& column) const
{
    const QString text = TableForm::cellText(report, row, column);
    return column.identifier == u"name" && text.startsWith(u' ') ? text.mid(1) : text;
}

} // namespace zelvor
