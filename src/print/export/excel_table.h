#pragma once

#include "core/calendar.h"
#include "core/decimal.h"
#include "core/view.h"

#include <QtCore/QLocale>

namespace zelvor {

// The texts of an exported table's cells.
class ExcelTexts {
public:
    ExcelTexts(QLocale locale, const Calendar& calendar) : m_locale(std::move(locale)), m_calendar(calendar)
    {}

    QString number(const Decimal& value) const;
    QString number(double value) const;
    QString percent(double fraction) const;
    // A cell that is a number goes through the number formatter; any other one is empty.
    QString number(const QVariant& cell) const;
    // A cell that is a moment, as its day; any other one is empty.
    QString date(const QVariant& cell) const;
    // "yes" or "no"; empty for a cell that is no truth value.
    static QString flag(const QVariant& cell);
    // A cell as its column says.
    QString cell(const QVariant& cell, CellKind kind) const;

private:
    QLocale m_locale;
    const Calendar& m_calendar;
};

// The markup of an exported table. Nothing is escaped.
class ExcelTable {
public:
    ExcelTable() = default;
    // Begins with the titles of the visible columns.
    explicit ExcelTable(const std::vector<ViewColumn>& columns);
    // Begins with the titles of those columns, in that order: for a table whose cells are not those that the
    // view shows.
    ExcelTable(const std::vector<ViewColumn>& columns, const QStringList& identifiers);

    void add(const QString& markup) { m_text += markup; }
    void addRow(const QStringList& cells);
    // Closes the table and hands it out.
    QString take();

private:
    QString m_text = QStringLiteral("<table>");
};

} // namespace zelvor
