#include "print/export/excel_export.h"

#include "catalogs/expend_view.h"
#include "catalogs/product_view.h"
#include "catalogs/property_journal_view.h"
#include "core/localized.h"
#include "documents/document_journal_view.h"
#include "period/balance_view.h"
#include "print/export/excel_views.h"
#include "reports/contragents_report_view.h"
#include "reports/dynamics_report_view.h"
#include "reports/expend_report_view.h"
#include "reports/period_sell_report_view.h"
#include "reports/products_on_stock_report_view.h"
#include "reports/statement_view.h"

#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtCore/QStringEncoder>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// The view's table when it is of that kind.
template <class View>
std::optional<QString> composed(const BaseView& view, const ExcelTexts& texts)
{
    const auto* const shown = dynamic_cast<const View*>(&view);
    return shown ? std::optional(excelTableOf(*shown, texts)) : std::nullopt;
}

// clang-format off
constexpr std::optional<QString> (*composers[])(const BaseView& view, const ExcelTexts& texts) = {
    composed<PeriodSellReportView>,
    composed<ContragentsReportView>,
    composed<StatementView>,
    composed<ExpendReportView>,
    composed<DynamicsReportView>,
    composed<ProductsOnStockReportView>,
    composed<BalanceView>,
    composed<DocumentJournalView>,
    composed<PropertyJournalView>,
    composed<ProductView>,
    composed<ExpendView>,
    composed<TableView>, // every other list, so it stands last
};
// clang-format on

// What went wrong, or nothing.
QString writeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    // What is still buffered is written by flush(), whose failure commit() would not see.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return written ? QString() : file.errorString();
}

} // namespace

std::optional<QString> excelTable(const BaseView& view, const Calendar& calendar)
{
    const ExcelTexts texts(QLocale(), calendar);
    for (const auto compose : composers) {
        if (std::optional<QString> table = compose(view, texts))
            return table;
    }
    return std::nullopt;
}

QByteArray excelFile(const QString& table)
{
    QStringEncoder toUtf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    return toUtf16(table);
}

bool exportToExcel(const BaseView& view, AppDelegate& appDelegate)
{
    const std::optional<QString> table = excelTable(view, appDelegate.calendar);
    if (!table)
        return false;
    const std::optional<QString> chosen = appDelegate.dialogs.savePath(
        {localized("Export table to .xls"), localized("Name"), localized("Export"), u"xls"_s});
    if (!chosen)
        return false;
    const QString path = *chosen + u".xls"_s;
    const QString problem = writeFile(path, excelFile(*table));
    if (problem.isEmpty())
        return true;
    appDelegate.dialogs.showAlert({localized("The table was not exported!"),
                                   QDir::toNativeSeparators(path) + u": "_s + problem,
                                   {localized("Close")}});
    return false;
}

} // namespace zelvor
