#pragma once

#include "core/calendar.h"
#include "core/view.h"

#include <QtCore/QVariant>
#include <QtGui/QFont>
#include <QtGui/QPalette>

namespace zelvor {

// What an item model answers for one cell, the same for lists and trees.
struct CellContext {
    const Calendar& calendar;
    QFont font;
    QPalette palette;
};

// Roles beyond Qt's own.
inline constexpr int rawValueRole = Qt::UserRole;       // the view's value as it is
inline constexpr int identifierRole = Qt::UserRole + 1; // the column's identifier

QVariant cellData(const QVariant& value, const CellStyle& style, const ViewColumn& column, int role,
                  const CellContext& context);
QVariant headerCellData(const ViewColumn& column, int role);
Qt::ItemFlags cellFlags(const ViewColumn& column, const QVariant& value);

} // namespace zelvor
