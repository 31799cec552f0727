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

    QString exported(const BaseView& view) const
    {
        return excelTable(view, books.appDelegate.calendar).value_or(QStringLiteral("no table"));
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
    QLocale m_locale;
};

} // namespace zelvor
