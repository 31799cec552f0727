#include "print/pages.h"

#include "print/print_job.h"

#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryFile>
#include <QtCore/QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr double leftMargin = 36;
constexpr double bottomMargin = 45;

// What a tool prints about the PDF; "-" stands for the output where the tool has one.
QByteArray told(const QByteArray& pdf, const QString& tool, const QStringList& before,
                const QStringList& behind = {})
{
    QTemporaryFile file(QDir::tempPath() + u"/zelvor-print-XXXXXX.pdf"_s);
    EXPECT_TRUE(file.open());
    file.write(pdf);
    file.close();
    QProcess process;
    process.start(tool, before + QStringList{file.fileName()} + behind);
    EXPECT_TRUE(process.waitForFinished(120'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

double number(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1StringView(name)).toDouble();
}

} // namespace

PrintedPages::PrintedPages(PrintView& form)
{
    QBuffer buffer(&m_pdf);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(writePdf(form, buffer));
}

bool PrintedPages::canRead()
{
    return !QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty();
}

std::vector<PrintedWord> PrintedPages::words() const
{
    const QByteArray listing = told(m_pdf, u"pdftotext"_s, {u"-bbox"_s}, {u"-"_s});
    // The head of the listing quotes the title without escaping it.
    QXmlStreamReader xml(listing.mid(listing.indexOf("<body>")));
    std::vector<PrintedWord> result;
    int page = 0;
    double height = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"page") {
            ++page;
            height = number(xml, "height");
        } else if (xml.name() == u"word") {
            PrintedWord word{{},
                             number(xml, "xMin") - leftMargin,
                             number(xml, "xMax") - leftMargin,
                             height - number(xml, "yMax") - bottomMargin,
                             height - number(xml, "yMin") - bottomMargin,
                             page};
            word.text = xml.readElementText();
            result.push_back(std::move(word));
        }
    }
    EXPECT_GT(page, 0) << "the listing of the words has no page";
    return result;
}

PrintedWord PrintedPages::word(const QString& text) const
{
    const std::vector<PrintedWord> all = words();
    const auto found = std::ranges::find(all, text, &PrintedWord::text);
    EXPECT_TRUE(found != all.end()) << "not printed: " << text.toStdString();
    return found == all.end() ? PrintedWord{{}, -1, -1, -1, -1, 0} : *found;
}

int PrintedPages::count(const QString& text) const
{
    return static_cast<int>(std::ranges::count(words(), text, &PrintedWord::text));
}

QString PrintedPages::text() const
{
    return QString::fromUtf8(told(m_pdf, u"pdftotext"_s, {u"-layout"_s}, {u"-"_s}));
}

std::vector<PrintedFont> PrintedPages::fonts() const
{
    std::vector<PrintedFont> result;
    const QStringList lines = QString::fromUtf8(told(m_pdf, u"pdffonts"_s, {})).split(u'\n');
    for (const QString& line : lines.mid(2)) {
        // From the right, for the type and the name may hold blanks: emb sub uni object ID
        const QStringList parts = line.simplified().split(u' ');
        const qsizetype end = parts.size();
        if (end < 6)
            continue;
        result.push_back(
            {parts[0], parts[end - 5] == u"yes", parts[end - 4] == u"yes", parts[end - 3] == u"yes"});
    }
    return result;
}

QString PrintedPages::info(const QString& key) const
{
    const QStringList lines = QString::fromUtf8(told(m_pdf, u"pdfinfo"_s, {})).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(key + u':'))
            return line.mid(key.size() + 1).trimmed();
    }
    return {};
}

void PrintedPages::keep(PrintView& form, const QString& name)
{
    const QString folder = qEnvironmentVariable("ZELVOR_PICTURES");
    if (folder.isEmpty())
        return;
    const QDir target(folder);
    QFile file(target.filePath(name + u".pdf"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && writePdf(form, file));
    int page = 0;
    for (const QImage& picture : pictures(form, 110))
        EXPECT_TRUE(picture.save(target.filePath(name + u'-' + QString::number(++page) + u".png"_s)));
}

} // namespace zelvor
