#include "print/print_journal.h"

#include "core/localized.h"
#include "core/localized_as.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintJournal::PrintJournal(AppDelegate& owner)
    : TableForm(owner, landscape, localized("Documents Journal"),
                {
                    {u"date"_s, localized("Date"), 45, Date},
                    {u"confirmed"_s, localized("Conf."), 40, CheckBox},
                    {u"journalName"_s, localized("Document"), 150},
                    {u"sum"_s, localized("Sum"), 60, Amount},
                    {u"contragent"_s, localized("Counterparty"), 90},
                    {u"stockFrom"_s, localizedAs("From", "warehouse"), 80},
                    {u"stockTo"_s, localizedAs("To", "warehouse"), 80},
                    {u"manager"_s, localized("Employee"), 75},
                    {u"comment"_s, localized("Comment"), 130},
                })
{}

} // namespace zelvor
