#include "print/print_contragents_report.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintContragentsReport::PrintContragentsReport(AppDelegate& owner, QString formTitle)
    : TableForm(owner, portrait, std::move(formTitle),
                {
                    {u"name"_s, localized("Name"), 220},
                    {u"startSaldo"_s, localized("Start Saldo"), 75, Amount},
                    {u"debit"_s, u"-"_s, 75, Amount},
                    {u"credit"_s, u"+"_s, 75, Amount},
                    {u"finishSaldo"_s, localized("Finish Saldo"), 75, Amount},
                })
{}

QString PrintContragentsReport::furtherHeading() const
{
    return localized("Counterparties: ") + u'\'' + target + u'\'';
}

} // namespace zelvor
