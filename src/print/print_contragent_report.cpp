#include "print/print_contragent_report.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintContragentReport::PrintContragentReport(AppDelegate& owner, QString formTitle)
    : TableForm(owner, portrait, std::move(formTitle),
                {
                    {QString(), u"#"_s, 30, Integer},
                    {u"date"_s, localized("Date"), 50, Date},
                    {u"name"_s, localized("Document"), 160},
                    {u"startSaldo"_s, localized("Start Saldo"), 70, Amount},
                    {u"debit"_s, u"-"_s, 70, Amount},
                    {u"credit"_s, u"+"_s, 70, Amount},
                    {u"finishSaldo"_s, localized("Finish Saldo"), 70, Amount},
                })
{}

QString PrintContragentReport::furtherHeading() const
{
    return localized("Counterparty: ") + u'\'' + target + u'\'';
}

} // namespace zelvor
