#include "print/print_expense.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintExpense::PrintExpense(AppDelegate& owner)
    : TableForm(owner, portrait, localized("Spendings Report"),
                {
                    {u"name"_s, localized("Name"), 151},
                    {u"date"_s, localized("Date"), 40, Date},
                    {u"constant"_s, localized("Constant"), 65, Amount},
                    {u"variable"_s, localized("Variable"), 65, Amount},
                    {u"total"_s, localized("Total"), 60, Amount},
                    {u"comment"_s, localized("Comment"), 140},
                })
{}

} // namespace zelvor
