#include "core/currency_struct.h"
#include "core/doc_type.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>

#include <utility>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

// The desktop looks for this text and puts the palette's colour in its place.
const QString placeholder = u"#444444"_s;
const QString iconFolder = u":/zelvor/icons/"_s;

QByteArray contentOf(const QString& file)
{
    QFile icon(iconFolder + file);
    return icon.open(QIODevice::ReadOnly) ? icon.readAll() : QByteArray();
}

// What an icon says of itself, gathered over all its elements.
struct Drawing {
    QString error;
    QString viewBox;
    QStringList strokes;
    QStringList strokeWidths;
    QStringList fills;
    QString caps;
    QString joins;
    int shapes = 0;
};

Drawing readDrawing(const QString& file)
{
    Drawing drawing;
    QXmlStreamReader reader(contentOf(file));
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const auto note = [&](const QString& name, QStringList& values) {
            if (attributes.hasAttribute(name))
                values << attributes.value(name).toString();
        };
        note(u"stroke"_s, drawing.strokes);
        note(u"stroke-width"_s, drawing.strokeWidths);
        note(u"fill"_s, drawing.fills);
        if (reader.name() == u"svg"_s) {
            drawing.viewBox = attributes.value(u"viewBox"_s).toString();
            drawing.caps = attributes.value(u"stroke-linecap"_s).toString();
            drawing.joins = attributes.value(u"stroke-linejoin"_s).toString();
        } else {
            ++drawing.shapes;
        }
    }
    if (reader.hasError())
        drawing.error = reader.errorString();
    return drawing;
}

QStringList menuIcons()
{
    QStringList names;
    for (int raw = 1; raw < docTypeCount; ++raw)
        names << docTypeImage(*typeFromInt(raw));
    return names;
}

QStringList carriedIcons()
{
    return QDir(iconFolder).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
}

bool isLineIcon(const QString& file)
{
    return !file.startsWith(u"flag-"_s) && file != u"zelvor.svg"_s && file != u"logo.svg"_s;
}

} // namespace

TEST(Icons, everyEntryOfTheMainMenuHasAPicture)
{
    const QStringList names = menuIcons();
    for (const QString& name : names)
        EXPECT_TRUE(QFile::exists(iconFolder + name + u".svg"_s)) << name.toStdString();
    for (const QString& group :
         {u"money"_s, u"product"_s, u"property"_s, u"report"_s, u"company"_s, u"catalog"_s})
        EXPECT_TRUE(names.contains(group)) << group.toStdString();
}

TEST(Icons, everyCurrencyHasAFlag)
{
    for (const CurrencyStruct currency : allCurrencies) {
        const QString file = currencyImage(currency) + u".svg"_s;
        EXPECT_TRUE(QFile::exists(iconFolder + file)) << file.toStdString();
        EXPECT_FALSE(isLineIcon(file)) << file.toStdString();
    }
}

// A name that nobody drew would show as nothing at all.
TEST(Icons, everyPictureThatTheDesktopAsksForByNameIsThere)
{
    static const QRegularExpression asked(uR"x((?:lineIcon|pictureIcon)\(u"([^"]+)"_s\))x"_s);
    QSet<QString> names;
    QDirIterator sources(QStringLiteral(ZELVOR_DESKTOP_DIR), {u"*.cpp"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile source(sources.next());
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        QRegularExpressionMatchIterator matches = asked.globalMatch(QString::fromUtf8(source.readAll()));
        while (matches.hasNext())
            names.insert(matches.next().captured(1));
    }
    EXPECT_FALSE(names.isEmpty());
    for (const QString& name : std::as_const(names))
        EXPECT_TRUE(QFile::exists(iconFolder + name + u".svg"_s)) << name.toStdString();
}

TEST(Icons, noTwoAreTheSamePicture)
{
    QHash<QByteArray, QString> seen;
    const QStringList files = carriedIcons();
    for (const QString& file : files) {
        const QByteArray content = contentOf(file);
        EXPECT_FALSE(seen.contains(content))
            << file.toStdString() << " and " << seen.value(content).toStdString();
        seen.insert(content, file);
    }
}

TEST(Icons, theProgramCarriesEveryPictureOfTheFolder)
{
    const QStringList onDisk = QDir(QStringLiteral(ZELVOR_ICON_DIR)).entryList(QDir::Files, QDir::Name);
    EXPECT_EQ(QDir(iconFolder).entryList(QDir::Files, QDir::Name), onDisk);
    EXPECT_GT(onDisk.size(), docTypeCount);
}

TEST(Icons, eachIsWellFormedAndDrawsSomething)
{
    const QStringList files = carriedIcons();
    for (const QString& file : files) {
        const Drawing drawing = readDrawing(file);
        EXPECT_TRUE(drawing.error.isEmpty()) << file.toStdString() << ": " << drawing.error.toStdString();
        EXPECT_GT(drawing.shapes, 0) << file.toStdString();
    }
}

TEST(Icons, theLineIconsAreOfOneHand)
{
    const QStringList files = carriedIcons();
    for (const QString& file : files) {
        if (!isLineIcon(file))
            continue;
        SCOPED_TRACE(file.toStdString());
        const Drawing drawing = readDrawing(file);
        EXPECT_EQ(drawing.viewBox, u"0 0 16 16"_s);
        EXPECT_EQ(drawing.strokeWidths, QStringList{u"1.5"_s});
        EXPECT_EQ(drawing.caps, u"round"_s);
        EXPECT_EQ(drawing.joins, u"round"_s);
    }
}

TEST(Icons, theLineIconsCanBeRecolouredWhole)
{
    const QStringList files = carriedIcons();
    for (const QString& file : files) {
        if (!isLineIcon(file))
            continue;
        SCOPED_TRACE(file.toStdString());
        const Drawing drawing = readDrawing(file);
        EXPECT_EQ(drawing.strokes, QStringList{placeholder});
        ASSERT_FALSE(drawing.fills.isEmpty());
        EXPECT_EQ(drawing.fills.first(), u"none"_s);
        for (const QString& fill : drawing.fills)
            EXPECT_TRUE(fill == u"none"_s || fill == placeholder) << fill.toStdString();
    }
}

TEST(Icons, recolouringLeavesTheFlagsAlone)
{
    for (const CurrencyStruct currency : allCurrencies) {
        const QString file = currencyImage(currency) + u".svg"_s;
        EXPECT_EQ(readDrawing(file).viewBox, u"0 0 16 16"_s) << file.toStdString();
        EXPECT_FALSE(contentOf(file).contains(placeholder.toLatin1())) << file.toStdString();
    }
}
