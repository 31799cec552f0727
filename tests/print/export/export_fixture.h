#pragma once

#include "print/export/excel_export.h"
#include "support/books.h"

#include <QtCore/QFile>
#include <QtCore/QLocale>

namespace zelvor {

// Books, the exported text of any view of theirs, and the numbers of a plain locale.
class Export : public testing::Test {
protected:
    Export()
    {
        QLocale::setDefault(QLocale::c());
        books.db.execute("BEGIN"); // spares the test a disk write for every record
    }
    ~Export() override { QLocale::setDefault(m_locale); }

    // Whatever it is of, each line has a cell under each title.
    QString exported(const BaseView& view) const
    {
        const QString text =
            excelTable(view, books.appDelegate.calendar).value_or(QStringLiteral("no table"));
        const QStringList lines = text.split(QStringLiteral("<tr>")).mid(1);
        const bool hasTitlesInTwoLines = text.contains(QStringLiteral("<td rowspan=2>"));
        for (qsizetype i = 1; i < lines.size() && !hasTitlesInTwoLines; ++i)
            EXPECT_EQ(cellCount(lines[i]), cellCount(lines[0])) << qPrintable(lines[i]);
        return text;
    }
    // A line of markup as every list writes it.
    static QString line(const QStringList& cells)
    {
        return QStringLiteral("<tr><td>") + cells.join(QStringLiteral("</td><td>")) +
               QStringLiteral("</td></tr>");
    }
    static QString table(const std::vector<QStringList>& lines)
    {
        QString text = QStringLiteral("<table>");
        for (const QStringList& cells : lines)
            text += line(cells);
        return text + QStringLiteral("</table>");
    }
    QByteArray contents(const QString& path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    Books books;

private:
    static qsizetype cellCount(const QString& line) { return line.count(QStringLiteral("<td>")); }

    QLocale m_locale;
};

} // namespace zelvor
