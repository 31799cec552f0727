#pragma once

#include "print/print_view.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace zelvor {

// A word as a PDF has it on one of its pages. Points of the sheet: the origin is the lower left corner of the
// page's slice within the margins, y grows upward, as the forms count.
struct PrintedWord {
    QString text;
    double left = 0;
    double right = 0;
    double bottom = 0; // of the font's box
    double top = 0;
    int page = 1;
};

// What the tools of the machine say of a PDF; a test without them is skipped.
struct PrintedFont {
    QString name;
    bool embedded = false;
    bool subset = false;
    bool unicode = false;
};

// A form printed to a PDF, and read back.
class PrintedPages {
public:
    // setData() of the form was called.
    explicit PrintedPages(PrintView& form);
    explicit PrintedPages(QByteArray pdf) : m_pdf(std::move(pdf)) {}
    // Whether the tools that read a PDF are installed.
    static bool canRead();

    const QByteArray& pdf() const { return m_pdf; }
    std::vector<PrintedWord> words() const;
    // The first word of that text, or one that is nowhere.
    PrintedWord word(const QString& text) const;
    int count(const QString& text) const;
    // The text as a reader selects it, lines of a page from above.
    QString text() const;
    std::vector<PrintedFont> fonts() const;
    // "Title", "Pages", "Page size", ...
    QString info(const QString& key) const;
    int pages() const { return info(QStringLiteral("Pages")).toInt(); }
    // Files for looking at, NAME.pdf and NAME-1.png ..., in the folder that ZELVOR_PICTURES names; nothing
    // without it.
    static void keep(PrintView& form, const QString& name);

private:
    QByteArray m_pdf;
};

} // namespace zelvor

// At the start of a test that reads PDFs back.
#define ZELVOR_NEEDS_PDF_TOOLS()                                                                             \
    if (!zelvor::PrintedPages::canRead())                                                                    \
    GTEST_SKIP() << "poppler-utils is not installed"
