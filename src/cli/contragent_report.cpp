#include "cli/statement_report.h"
#include "reports/contragent_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

int run(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    ContragentReportViewController report(appDelegate);
    return runStatement(report, arguments, print, u"counterparty"_s,
                        [&](qint64 id) { return report.setContragentFromID(id); });
}

} // namespace

const Report contragentReport{"contragent", statementDetails, statementOptions, run};

} // namespace zelvor
