#include "cli/statement_report.h"
#include "reports/employee_account_report_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

int runOfType(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print,
              const QString& type, const QString& what)
{
    EmployeeAccountReportViewController report(appDelegate, type);
    return runStatement(report, arguments, print, what,
                        [&](qint64 id) { return report.select.selectTag(id); });
}

int runAccount(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    return runOfType(appDelegate, arguments, print, u"account"_s, u"account"_s);
}

// A hidden employee stands in no chooser.
int runEmployee(AppDelegate& appDelegate, const Arguments& arguments, const Report::Print& print)
{
    return runOfType(appDelegate, arguments, print, u"employee"_s, u"employee in use"_s);
}

} // namespace

const Report accountReport{"account", statementDetails, statementOptions, runAccount};
const Report employeeReport{"employee", statementDetails, statementOptions, runEmployee};

} // namespace zelvor
