#include "reports/employee_account_report_view_controller.h"

#include "core/localized.h"
#include "core/text_order.h"
#include "documents/money_document.h"
#include "reports/filter_popover.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;
using enum DocType;

namespace {

template <class Record>
std::vector<PopUpButton::Item> itemsOf(std::vector<std::shared_ptr<Record>>& records)
{
    std::ranges::stable_sort(records, NameLess{});
    std::vector<PopUpButton::Item> items;
    for (const auto& record : records)
        items.push_back({.title = record->name, .tag = record->id});
    return items;
}

// Kept for employees and accounts alike: what raises the balance stands in the debit of the document's row
// and in the credit of the end row, and the other way round. So the balances of the documents run against
// those of the titles.
void takeIn(StatementRow& row, StatementRow& end, const Decimal& sum)
{
    row.setDebitSum(sum.toDouble());
    end.addToCredit(sum);
}

void payOut(StatementRow& row, StatementRow& end, const Decimal& sum)
{
    row.setCreditSum(sum.toDouble());
    end.addToDebit(sum);
}

} // namespace

EmployeeAccountReportViewController::EmployeeAccountReportViewController(AppDelegate& owner, QString type)
    : ReportViewController(owner), reportType(std::move(type)), mainView(owner, reportType)
{
    selectLabel.setText(isOfEmployee() ? localized("Employee") : localized("Account"));
    mainView.computeAgain = [this] { prepareReport(); };
    NotificationCenter& center = appDelegate.notifications;
    const auto changed = [this](const Notification&) { changeManagers(); };
    m_managersChanged = center.observe(NotificationName::ManagerChangedNotification, changed);
    m_accountsChanged = center.observe(NotificationName::AccountChangedNotification, changed);
    m_documentsChanged = staleWhen(center, NotificationName::MoneyDocChangedNotification, mainView);
}

bool EmployeeAccountReportViewController::isOfEmployee() const
{
    return reportType == u"employee";
}

void EmployeeAccountReportViewController::prepareData()
{
    setCurrentDate();
    changeManagers();
    if (select.selectedTag() == 0 && !select.items().empty())
        select.selectTag(select.items().front().tag);
    mainView.setName(getNameForTabView());
}

void EmployeeAccountReportViewController::changeManagers()
{
    Connector& connector = appDelegate.connector;
    if (isOfEmployee()) {
        employees = connector.freeSQL<Manager>("WHERE is_hidden=? ORDER BY id", {false}, Fill::Nothing);
        select.setItems(itemsOf(employees));
    } else {
        accounts = connector.freeSQL<Account>("ORDER BY id", {}, Fill::Nothing);
        select.setItems(itemsOf(accounts));
    }
}

QString EmployeeAccountReportViewController::getNameForTabView() const
{
    return (isOfEmployee() ? localized("Report By Employee '") : localized("Report By Account '")) +
           select.selectedTitle() + u'\'' + periodText();
}

// The statements repeat the conditions of the indexes that they go by.
EmployeeAccountReportViewController::MoneyDocuments
EmployeeAccountReportViewController::readOfEmployee() const
{
    return appDelegate.connector.freeSQL<MoneyDocument>(
        "WHERE date>=? AND date<=? AND employee_id=? AND employee_id<>0 AND is_divident=0 AND is_confirmed=1 "
        "ORDER BY date, id",
        {dateFrom.moment(), dateTo.moment(), select.selectedTag()}, Fill::Nothing);
}

// What left the account and what entered it are read one after the other, since each has an index of its own.
EmployeeAccountReportViewController::MoneyDocuments EmployeeAccountReportViewController::readOfAccount() const
{
    const qint64 id = select.selectedTag();
    Connector& connector = appDelegate.connector;
    MoneyDocuments documents = connector.freeSQL<MoneyDocument>(
        "WHERE date>=? AND date<=? AND is_confirmed=1 AND account_from_id=? AND account_from_id<>0",
        {dateFrom.moment(), dateTo.moment(), id}, Fill::Nothing);
    const MoneyDocuments received = connector.freeSQL<MoneyDocument>(
        "WHERE date>=? AND date<=? AND is_confirmed=1 AND account_to_id=? AND account_to_id<>0 AND "
        "account_from_id IS NOT ?",
        {dateFrom.moment(), dateTo.moment(), id, id}, Fill::Nothing);
    documents.insert(documents.end(), received.begin(), received.end());
    std::ranges::sort(documents, [](const auto& a, const auto& b) {
        return a->date != b->date ? a->date < b->date : a->id < b->id;
    });
    return documents;
}

// Kept: without documents it is today's balance, for a period long past too.
Decimal EmployeeAccountReportViewController::startBalance(const MoneyDocuments& documents) const
{
    const qint64 id = select.selectedTag();
    if (!documents.empty()) {
        const MoneyDocument& first = *documents.front();
        if (isOfEmployee())
            return first.innerManagerBalance;
        return first.accountFromID == id ? first.innerAccountFromBalance : first.innerAccountToBalance;
    }
    if (isOfEmployee()) {
        const auto employee = appDelegate.connector.select<Manager>(id, Fill::Nothing);
        return employee ? employee->innerBalance : Decimal();
    }
    const auto account = appDelegate.connector.select<Account>(id, Fill::Nothing);
    return account ? account->innerBalance : Decimal();
}

void EmployeeAccountReportViewController::moveOfEmployee(const MoneyDocument& document, StatementRow& row,
                                                         StatementRow& end) const
{
    if (document.docType() == MoneyFromEmployee)
        takeIn(row, end, document.innerDocSum);
    else
        payOut(row, end, document.innerDocSum);
}

void EmployeeAccountReportViewController::moveOfAccount(const MoneyDocument& document, StatementRow& row,
                                                        StatementRow& end) const
{
    const DocType type = document.docType();
    if (type == MoneyFromContragent || type == MoneyFromEmployee || type == MoneyAdd)
        takeIn(row, end, document.innerDocSum);
    else if (type == InnerTransaction && document.accountToID == select.selectedTag())
        takeIn(row, end, document.innerConvertedSum);
    else
        payOut(row, end, document.innerDocSum);
}

void EmployeeAccountReportViewController::updateReport()
{
    if (select.selectedTag() == 0)
        return;
    progress.start();
    mainView.setPeriod(dateFrom.moment(), dateTo.moment());
    const MoneyDocuments documents = isOfEmployee() ? readOfEmployee() : readOfAccount();
    const auto move = [this](const MoneyDocument& document, StatementRow& row, StatementRow& end) {
        isOfEmployee() ? moveOfEmployee(document, row, end) : moveOfAccount(document, row, end);
    };
    mainView.setRows(statementRows(startBalance(documents), documents, move), select.selectedTitle());
    mainView.setName(getNameForTabView());
    progress.stop();
}

} // namespace zelvor
