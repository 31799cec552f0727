#pragma once

#include "core/calendar.h"
#include "core/view.h"

#include <QtCore/QVariant>
#include <QtGui/QFont>
#include <QtGui/QPalette>

#include <vector>

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
inline constexpr int numberRole = Qt::UserRole + 2;     // whether the column shows numbers

QVariant cellData(const QVariant& value, const CellStyle& style, const ViewColumn& column, int role,
                  const CellContext& context);
QVariant headerCellData(const ViewColumn& column, int role);
bool isNumber(CellKind kind);
bool areSame(const std::vector<ViewColumn>& columns, const std::vector<ViewColumn>& others);
Qt::ItemFlags cellFlags(const ViewColumn& column, const QVariant& value);

} // namespace zelvor
