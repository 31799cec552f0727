#include "desktop/row_filter.h"

#include "desktop/cell_text.h"

#include <algorithm>

namespace zelvor {

namespace {

bool isText(CellKind kind)
{
    return kind == CellKind::Text;
}

bool holdsDigit(const QString& word)
{
    return std::ranges::any_of(word, [](QChar c) { return c.isDigit(); });
}

} // namespace

RowFilter::RowFilter(const QString& filter, const std::vector<ViewColumn>& columns, const Calendar& calendar)
    : m_calendar(calendar), m_words(filter.simplified().split(u' ', Qt::SkipEmptyParts))
{
    for (const ViewColumn& column : columns) {
        if (!column.hidden && column.kind != CellKind::CheckBox && column.kind != CellKind::Image)
            m_columns.push_back({column.identifier, column.kind});
    }
    std::ranges::stable_partition(m_columns, isText, &Column::kind);
}

// Takes out the words that stand in the value's text.
void RowFilter::strike(QStringList& words, const QVariant& value, CellKind kind) const
{
    const bool isOwnText = value.typeId() == QMetaType::QString;
    // Number and date texts are made only for words that can stand in them.
    if (!isOwnText && !isText(kind) && std::ranges::none_of(words, holdsDigit))
        return;
    const QString text = isOwnText ? value.toString() : cellText(value, kind, m_calendar, m_locale);
    QString compact;
    if (!isOwnText && !isText(kind) && text.size() > 6)
        compact = QString(text).remove(QChar(u'\u202f'));
    words.removeIf([&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive) ||
               (!compact.isEmpty() && compact.contains(word, Qt::CaseInsensitive));
    });
}

bool RowFilter::matches(const std::function<QVariant(const QString& identifier)>& value) const
{
    QStringList words = m_words;
    for (const Column& column : m_columns) {
        strike(words, value(column.identifier), column.kind);
        if (words.isEmpty())
            return true;
    }
    return words.isEmpty();
}

} // namespace zelvor
