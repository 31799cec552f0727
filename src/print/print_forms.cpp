#include "print/print_forms.h"

#include "catalogs/measurement_view.h"
#include "catalogs/property_journal_view.h"
#include "core/localized.h"
#include "documents/document_journal_view.h"
#include "period/balance_view.h"
#include "print/print_account_report.h"
#include "print/print_balance.h"
#include "print/print_contragents_report.h"
#include "print/print_dynamics.h"
#include "print/print_expense.h"
#include "print/print_fixed_assets.h"
#include "print/print_journal.h"
#include "print/print_measurement.h"
#include "print/print_payment_calendar.h"
#include "print/print_period_sell.h"
#include "print/print_products_on_stock.h"
#include "reports/contragent_report_view.h"
#include "reports/contragents_report_view.h"
#include "reports/employee_account_report_view.h"
#include "reports/expend_report_view.h"
#include "reports/payment_calendar_view.h"
#include "reports/period_sell_report_view.h"
#include "reports/products_on_stock_report_view.h"

namespace zelvor {

namespace {

template <class View>
void takePeriod(TableForm& form, const View& view)
{
    form.start = view.start();
    form.finish = view.finish();
}

std::unique_ptr<TableForm> formOf(const PeriodSellReportView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintPeriodSell>(appDelegate);
    takePeriod(*form, view);
    form->reportBy = view.reportBy();
    form->groupedBy = view.groupedBy();
    return form;
}

std::unique_ptr<TableForm> formOf(const ContragentsReportView& view, AppDelegate& appDelegate)
{
    // As the tab says it, without the dates.
    const QString selected = localized("Report by Selected Counterparties.");
    auto form = std::make_unique<PrintContragentsReport>(
        appDelegate,
        view.name().startsWith(selected) ? selected : localized("Report by All Counterparties."));
    takePeriod(*form, view);
    form->target = view.target();
    return form;
}

std::unique_ptr<TableForm> formOf(const ContragentReportView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintContragentReport>(appDelegate, localized("Report by Counterparty"));
    takePeriod(*form, view);
    form->target = view.target();
    return form;
}

std::unique_ptr<TableForm> formOf(const EmployeeAccountReportView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintAccountReport>(appDelegate, view.reportType == u"employee");
    takePeriod(*form, view);
    form->target = view.target();
    return form;
}

std::unique_ptr<TableForm> formOf(const ProductsOnStockReportView& view, AppDelegate& appDelegate)
{
    if (!view.canPrint(appDelegate))
        return nullptr;
    auto form = std::make_unique<PrintProductsOnStock>(appDelegate, view.stockNames());
    form->date = view.date();
    return form;
}

std::unique_ptr<TableForm> formOf(const PaymentCalendarView&, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintPaymentCalendar>(appDelegate);
    form->date = appDelegate.now();
    return form;
}

std::unique_ptr<TableForm> formOf(const ExpendReportView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintExpense>(appDelegate);
    takePeriod(*form, view);
    return form;
}

std::unique_ptr<TableForm> formOf(const DocumentJournalView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintJournal>(appDelegate);
    takePeriod(*form, view);
    return form;
}

std::unique_ptr<TableForm> formOf(const BalanceView&, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintBalance>(appDelegate);
    form->date = appDelegate.now();
    return form;
}

std::unique_ptr<TableForm> formOf(const PropertyJournalView& view, AppDelegate& appDelegate)
{
    auto form = std::make_unique<PrintFixedAssets>(appDelegate);
    form->date = appDelegate.now();
    form->total = view.currentCost();
    return form;
}

std::unique_ptr<TableForm> formOf(const MeasurementView&, AppDelegate& appDelegate)
{
    return std::make_unique<PrintMeasurement>(appDelegate);
}

template <class View>
std::unique_ptr<PrintView> filledForm(const BaseView& view, AppDelegate& appDelegate)
{
    const auto* report = dynamic_cast<const View*>(&view);
    if (!report)
        return nullptr;
    static_cast<void>(report->numberOfRows()); // reads what is out of date, the period with it
    std::unique_ptr<TableForm> form = formOf(*report, appDelegate);
    if (form)
        form->insertRows(*report);
    return form;
}

template <class... Views>
std::unique_ptr<PrintView> formAmong(const BaseView& view, AppDelegate& appDelegate)
{
    std::unique_ptr<PrintView> form;
    static_cast<void>(((form = filledForm<Views>(view, appDelegate)) || ...));
    return form;
}

} // namespace

std::unique_ptr<PrintView> makePrintForm(const BaseView& view, AppDelegate& appDelegate)
{
    std::unique_ptr<PrintView> form =
        formAmong<PeriodSellReportView, ContragentsReportView, ContragentReportView,
                  EmployeeAccountReportView, ExpendReportView, ProductsOnStockReportView, PaymentCalendarView,
                  DocumentJournalView, BalanceView, PropertyJournalView, MeasurementView>(view, appDelegate);
    // The one form that is no single table.
    if (const auto* dynamics = dynamic_cast<const DynamicsReportView*>(&view))
        form = std::make_unique<PrintDynamics>(appDelegate, *dynamics);
    if (form)
        form->setData();
    return form;
}

} // namespace zelvor
