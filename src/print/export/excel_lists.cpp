// The exported tables of the catalogs and of the journal.

#include "catalogs/expend_view.h"
#include "catalogs/product_view.h"
#include "catalogs/property_journal_view.h"
#include "documents/document_journal_view.h"
#include "print/export/excel_views.h"

#include <functional>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// The rows of a tree as they are seen, from the top down: those in a closed group are not.
void forEachVisible(const OutlineView& view, const OutlineView::Node& node,
                    const std::function<void(const OutlineView::Node&)>& visit)
{
    const int count = view.numberOfChildren(node);
    for (int i = 0; i < count; ++i) {
        const OutlineView::Node child = view.child(node, i);
        visit(child);
        if (view.isItemExpanded(child))
            forEachVisible(view, child, visit);
    }
}

} // namespace

QString excelTableOf(const DocumentJournalView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns());
    const int count = view.numberOfRows();
    for (int row = 0; row < count; ++row) {
        const auto cell = [&](const QString& identifier) { return view.value(row, identifier); };
        const auto text = [&](const QString& identifier) { return cell(identifier).toString(); };
        table.addRow({text(u"number"_s), text(u"journalName"_s), texts.date(cell(u"date"_s)),
                      ExcelTexts::flag(cell(u"confirmed"_s)), ExcelTexts::flag(cell(u"correction"_s)),
                      texts.number(cell(u"sum"_s)), text(u"contragent"_s), text(u"stockFrom"_s),
                      text(u"stockTo"_s), text(u"manager"_s), text(u"comment"_s)});
    }
    return table.take();
}

// The list shows more than is written, so only the titles of what is.
QString excelTableOf(const PropertyJournalView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns(), {u"name"_s, u"date"_s, u"cost"_s, u"currentCost"_s, u"isAmortized"_s});
    const int count = view.numberOfRows();
    for (int row = 0; row < count; ++row) {
        const auto cell = [&](const QString& identifier) { return view.value(row, identifier); };
        table.addRow({cell(u"name"_s).toString(), texts.date(cell(u"date"_s)), texts.number(cell(u"cost"_s)),
                      texts.number(cell(u"currentCost"_s)), ExcelTexts::flag(cell(u"isAmortized"_s))});
    }
    return table.take();
}

QString excelTableOf(const ProductView& view, const ExcelTexts& texts)
{
    ExcelTable table(view.columns());
    forEachVisible(view, nullptr, [&](const OutlineView::Node& node) {
        const auto cell = [&](const QString& identifier) { return view.value(node, identifier); };
        const auto text = [&](const QString& identifier) { return cell(identifier).toString(); };
        table.addRow({text(u"name"_s), text(u"measurementName"_s), text(u"packName"_s),
                      texts.number(cell(u"packAmount"_s)), texts.number(cell(u"baseCost"_s)),
                      texts.number(cell(u"priceCost"_s)), text(u"description"_s),
                      ExcelTexts::flag(cell(u"intangible"_s)), ExcelTexts::flag(cell(u"hidden"_s))});
    });
    return table.take();
}

QString excelTableOf(const ExpendView& view, const ExcelTexts&)
{
    ExcelTable table(view.columns());
    forEachVisible(view, nullptr, [&](const OutlineView::Node& node) {
        const auto cell = [&](const QString& identifier) { return view.value(node, identifier); };
        table.addRow({cell(u"name"_s).toString(), ExcelTexts::flag(cell(u"hidden"_s)),
                      ExcelTexts::flag(cell(u"constant"_s)), cell(u"description"_s).toString()});
    });
    return table.take();
}

QString excelTableOf(const TableView& view, const ExcelTexts& texts)
{
    std::vector<ViewColumn> columns = view.columns();
    std::erase_if(columns, [](const ViewColumn& column) { return column.hidden; });
    ExcelTable table(columns);
    const int count = view.numberOfRows();
    for (int row = 0; row < count; ++row) {
        QStringList cells;
        for (const ViewColumn& column : columns)
            cells << texts.cell(view.value(row, column.identifier), column.kind);
        table.addRow(cells);
    }
    return table.take();
}

} // namespace zelvor
