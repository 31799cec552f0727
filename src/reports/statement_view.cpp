#include "reports/statement_view.h"

#include "core/localized.h"
#include "documents/money_document.h"
#include "documents/product_document.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

const std::vector<StatementRow>& StatementView::rows() const
{
    refresh();
    return m_rows;
}

const QString& StatementView::target() const
{
    refresh();
    return m_target;
}

int StatementView::placeOf(const DocumentModel* document) const
{
    const auto place = std::ranges::find_if(m_rows, [document](const StatementRow& row) {
        return document && row.document && row.document->id == document->id &&
               row.document->docTypeID == document->docTypeID;
    });
    return place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin());
}

void StatementView::setRows(std::vector<StatementRow> rows, QString target)
{
    const auto selected = static_cast<std::size_t>(selectedRow());
    const auto document = selected < m_rows.size() ? m_rows[selected].document : nullptr;
    m_rows = std::move(rows);
    m_target = std::move(target);
    selectRow(placeOf(document.get()));
    reloadData();
}

void StatementView::openDocument(int row)
{
    const StatementRow* line = rowAt(row);
    if (!line || !line->document)
        return;
    const DocumentModel* document = line->document.get();
    const QString kind = dynamic_cast<const ProductDocument*>(document) ? u"Product"_s
                         : dynamic_cast<const MoneyDocument*>(document) ? u"Money"_s
                                                                        : u"Property"_s;
    m_appDelegate.workspace().openDocWithID(document->id, kind);
}

std::vector<ViewColumn> StatementView::columns() const
{
    using enum CellKind;
    using enum CellAlignment;
    return {{u"date"_s, localized("Date"), Date},
            {u"name"_s, localized("Document")},
            {u"startSaldo"_s, localized("Balance Before"), Amount, Right},
            {u"debit"_s, localized("Debit (-)"), Amount, Right},
            {u"credit"_s, localized("Credit (+)"), Amount, Right},
            {u"finishSaldo"_s, localized("Balance After"), Amount, Right}};
}

const StatementRow* StatementView::rowAt(int row) const
{
    const std::vector<StatementRow>& shown = rows();
    return row >= 0 && row < static_cast<int>(shown.size()) ? &shown[static_cast<std::size_t>(row)] : nullptr;
}

QVariant StatementView::value(int row, const QString& identifier) const
{
    const StatementRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle StatementView::cellStyle(int row, const QString& identifier) const
{
    const StatementRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    style.font = line->titleRow() ? CellFont::GatheringBold12 : CellFont::Small;
    style.color = line->titleRow() ? inOrderColor : blackColor;
    const bool leftAligned = identifier == u"name" || identifier == u"date";
    style.alignment = leftAligned ? CellAlignment::Left : CellAlignment::Right;
    return style;
}

} // namespace zelvor
