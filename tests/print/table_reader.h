#pragma once

#include "print/pages.h"
#include "print/print_job.h"
#include "print/table_form.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

namespace zelvor {

// A form as its PDF shows it, in the coordinates of its sheet.
class TableReader {
public:
    // Words that stand together; `bottom` and `top` of the font's box.
    struct Text {
        QString text;
        double left = 0;
        double right = 0;
        double bottom = 0;
        double top = 0;
        double centre() const { return (left + right) / 2; }
    };

    explicit TableReader(PrintView& form) : m_pages(form), m_width(form.frame().width())
    {
        const double height = pageLayout(form).paintRect(QPageLayout::Point).height();
        for (const PrintedWord& word : m_pages.words()) {
            const QRectF slice = form.rectForPage(word.page, static_cast<float>(height));
            m_words.push_back(
                {word.text, word.left, word.right, word.bottom + slice.top(), word.top + slice.top()});
        }
    }

    const PrintedPages& pages() const { return m_pages; }
    // What stands between two heights and two edges, words from the left.
    Text between(double bottom, double top, double left, double right) const
    {
        std::vector<Text> found;
        for (const Text& word : m_words) {
            const double middle = (word.bottom + word.top) / 2;
            if (middle > bottom && middle < top && word.centre() > left && word.centre() < right)
                found.push_back(word);
        }
        std::ranges::sort(found, {}, &Text::left);
        Text all;
        for (const Text& word : found) {
            if (all.text.isEmpty())
                all = word;
            else
                all.text += QLatin1Char(' ') + word.text;
            all.right = std::max(all.right, word.right);
        }
        return all;
    }
    // The text across the sheet between two heights.
    Text line(double bottom, double top) const { return between(bottom, top, 0, m_width); }
    Text cell(const TableForm& form, std::size_t column, double bottom, double top) const
    {
        const double half = form.colWidth[column] / 2;
        return between(bottom, top, form.axis[column] - half, form.axis[column] + half);
    }

private:
    PrintedPages m_pages;
    double m_width;
    std::vector<Text> m_words;
};

} // namespace zelvor
