#pragma once

#include "core/calendar.h"
#include "core/view.h"

#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <functional>
#include <vector>

namespace zelvor {

// Decides whether a row holds every word that was typed into a search line, each in one of its shown texts;
// letters of either case are the same, and numbers are found with and without the blanks between groups.
class RowFilter {
public:
    RowFilter(const QString& filter, const std::vector<ViewColumn>& columns, const Calendar& calendar);

    // `value` gives the row's value in a column.
    bool matches(const std::function<QVariant(const QString& identifier)>& value) const;

private:
    struct Column {
        QString identifier;
        CellKind kind;
    };
    void strike(QStringList& words, const QVariant& value, CellKind kind) const;

    const Calendar& m_calendar;
    QLocale m_locale;
    QStringList m_words;
    std::vector<Column> m_columns; // texts first: numbers take longer to write
};

} // namespace zelvor
