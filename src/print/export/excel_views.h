#pragma once

#include "print/export/excel_table.h"

namespace zelvor {

class BalanceView;
class ContragentsReportView;
class DocumentJournalView;
class DynamicsReportView;
class ExpendReportView;
class ExpendView;
class PeriodSellReportView;
class ProductView;
class ProductsOnStockReportView;
class PropertyJournalView;
class StatementView;

// The table of each kind of view. Which cells a row has, and in which order, is told here and not by the
// columns of the view. The titles are those of the columns; a view that shows more than is written, or in
// another order, names those of its cells.
QString excelTableOf(const PeriodSellReportView& view, const ExcelTexts& texts);
QString excelTableOf(const ContragentsReportView& view, const ExcelTexts& texts);
QString excelTableOf(const StatementView& view, const ExcelTexts& texts);
QString excelTableOf(const ExpendReportView& view, const ExcelTexts& texts);
QString excelTableOf(const DynamicsReportView& view, const ExcelTexts& texts);
QString excelTableOf(const ProductsOnStockReportView& view, const ExcelTexts& texts);
QString excelTableOf(const BalanceView& view, const ExcelTexts& texts);
QString excelTableOf(const DocumentJournalView& view, const ExcelTexts& texts);
QString excelTableOf(const PropertyJournalView& view, const ExcelTexts& texts);
QString excelTableOf(const ProductView& view, const ExcelTexts& texts);
QString excelTableOf(const ExpendView& view, const ExcelTexts& texts);
// Any other list: a cell for each visible column.
QString excelTableOf(const TableView& view, const ExcelTexts& texts);

} // namespace zelvor
