#include "desktop/cell_painter.h"

#include "core/localized.h"
#include "desktop/cell_text.h"
#include "desktop/icons.h"
#include "desktop/theme.h"

#include <algorithm>

namespace zelvor {

namespace {

// Left is also what nobody chose: then the column decides, and numbers stand right in any case.
QVariant alignment(CellAlignment own, const ViewColumn& column)
{
    const CellAlignment chosen = own == CellAlignment::Left ? column.alignment : own;
    Qt::Alignment horizontal = Qt::AlignLeft;
    if (column.kind == CellKind::CheckBox || column.kind == CellKind::Image ||
        chosen == CellAlignment::Center)
        horizontal = Qt::AlignHCenter;
    else if (chosen == CellAlignment::Right || isNumber(column.kind))
        horizontal = Qt::AlignRight;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

// A tick, read aloud.
QString spoken(const QVariant& value)
{
    return value.toBool() ? localized("yes") : localized("no");
}

} // namespace

bool isNumber(CellKind kind)
{
    return kind == CellKind::Amount || kind == CellKind::Integer || kind == CellKind::Percent;
}

bool areSame(const std::vector<ViewColumn>& columns, const std::vector<ViewColumn>& others)
{
    return std::ranges::equal(columns, others, [](const ViewColumn& a, const ViewColumn& b) {
        return a.identifier == b.identifier && a.title == b.title && a.kind == b.kind &&
               a.alignment == b.alignment && a.editable == b.editable && a.sortKey == b.sortKey &&
               a.hidden == b.hidden;
    });
}

QVariant cellData(const QVariant& value, const CellStyle& style, const ViewColumn& column, int role,
                  const CellContext& context)
{
    const bool blank = value.typeId() == QMetaType::QString;
    const bool isCheckBox = column.kind == CellKind::CheckBox && !blank;
    switch (role) {
    case Qt::DisplayRole:
        if (isCheckBox || column.kind == CellKind::Image)
            return {};
        return cellText(value, column.kind, context.calendar, QLocale());
    case Qt::EditRole:
        if (isNumber(column.kind) && !blank)
            return editedNumber(Decimal::fromDouble(value.toDouble()), QLocale());
        return value;
    case Qt::AccessibleTextRole:
        return isCheckBox ? spoken(value) : cellText(value, column.kind, context.calendar, QLocale());
    case Qt::CheckStateRole:
        return isCheckBox ? QVariant(value.toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return column.kind == CellKind::Image ? QVariant(pictureIcon(value.toString())) : QVariant();
    case Qt::TextAlignmentRole:
        return alignment(style.alignment, column);
    case Qt::ForegroundRole:
        return textColor(style.color, context.palette);
    case Qt::FontRole:
        return style.font == CellFont::Plain ? QVariant() : QVariant(cellFont(style.font, context.font));
    case rawValueRole:
        return value;
    case identifierRole:
        return column.identifier;
    case numberRole:
        return isNumber(column.kind);
    default:
        return {};
    }
}

QVariant headerCellData(const ViewColumn& column, int role)
{
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == identifierRole)
        return column.identifier;
    if (role == Qt::TextAlignmentRole)
        return alignment(column.alignment, column);
    return {};
}

Qt::ItemFlags cellFlags(const ViewColumn& column, const QVariant& value)
{
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (column.kind == CellKind::CheckBox) {
        if (column.editable && value.typeId() != QMetaType::QString)
            flags |= Qt::ItemIsUserCheckable;
    } else if (column.editable) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

} // namespace zelvor
