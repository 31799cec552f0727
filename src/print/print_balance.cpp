#include "print/print_balance.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintBalance::PrintBalance(AppDelegate& owner)
    : TableForm(owner, portrait, localized("Balance"),
                {
                    {u"name"_s, QString(), 200},
                    {u"debet"_s, localized("Debet"), 100, Amount, 5},
                    {u"credit"_s, localized("Credit"), 100, Amount},
                },
                59)
{}

QString PrintBalance::heading() const
{
    return localized("Balance on date: ") + dateText(date);
}

} // namespace zelvor
