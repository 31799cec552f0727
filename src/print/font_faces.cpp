#include "print/font_faces.h"

#include <QtCore/QHash>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>

namespace zelvor {

namespace {

QFont enlarged(QFont font)
{
    font.setPixelSize(font.pixelSize() * FontFaces::unitsPerPoint);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    return font;
}

// Scripts that stand letter after letter, with the punctuation and signs that go with them.
bool isPlain(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= 0x590 && (code < 0x2010 || code > 0x2122))
        return false;
    return character.isPrint() && !character.isMark();
}

// The engines that keep the characters of a run of glyphs, or need none.
bool takesGlyphs(const QPainter& painter)
{
    const QPaintEngine::Type type = painter.paintEngine()->type();
    return type == QPaintEngine::Pdf || type == QPaintEngine::Raster;
}

} // namespace

// One font. A text of plain characters is set here, glyph by glyph; any other one by the layout engine.
struct FontFaces::Face {
    struct Glyph {
        quint32 index = 0; // 0: the font has none, or the character cannot stand by itself
        double advance = 0;
    };

    explicit Face(const QFont& key)
        : font(key), large(enlarged(key)), metrics(large), raw(QRawFont::fromFont(large))
    {}

    const Glyph& glyph(QChar character)
    {
        const auto known = glyphs.constFind(character);
        return known != glyphs.cend() ? *known : *glyphs.insert(character, find(character));
    }
    Glyph find(QChar character) const
    {
        if (character.category() == QChar::Other_Control)
            character = u' '; // a line break or a tab that came in with an import
        if (!isPlain(character))
            return {};
        const QList<quint32> found = raw.glyphIndexesForString(QString(character));
        if (found.size() != 1 || found.first() == 0)
            return {};
        return {found.first(), raw.advancesForGlyphIndexes(found).first().x()};
    }
    // Sets the text into `indexes` and `positions`; false when that is for the layout engine.
    bool set(const QString& text)
    {
        indexes.clear();
        positions.clear();
        double x = 0;
        for (const QChar character : text) {
            const Glyph& next = glyph(character);
            if (next.index == 0)
                return false;
            indexes.push_back(next.index);
            positions.emplace_back(x, 0);
            x += next.advance;
        }
        width = x;
        return true;
    }

    const QFont font;
    const QFont large;
    const QFontMetricsF metrics;
    const QRawFont raw;
    QHash<QChar, Glyph> glyphs;
    std::vector<quint32> indexes;
    std::vector<QPointF> positions;
    double width = 0;
};

FontFaces::FontFaces() = default;
FontFaces::~FontFaces() = default;

auto FontFaces::face(const QFont& font) -> Face&
{
    for (const auto& known : m_faces) {
        if (known->font.isCopyOf(font) || known->font == font)
            return *known;
    }
    return *m_faces.emplace_back(std::make_unique<Face>(font));
}

QSizeF FontFaces::textSize(const QString& text, const QFont& font)
{
    Face& used = face(font);
    const double width = used.set(text) ? used.width : used.metrics.horizontalAdvance(text);
    return QSizeF(width, used.metrics.height()) / unitsPerPoint;
}

void FontFaces::draw(QPainter& painter, const QPointF& corner, const QString& text, const QFont& font)
{
    Face& used = face(font);
    const QPointF baseline = corner - QPointF(0, used.metrics.descent());
    if (!takesGlyphs(painter) || !used.set(text)) {
        painter.setFont(used.large);
        painter.drawText(baseline, text);
        return;
    }
    QGlyphRun run;
    run.setRawFont(used.raw);
    run.setRawData(used.indexes.data(), used.positions.data(), static_cast<int>(used.indexes.size()));
    painter.drawGlyphRun(baseline, run);
}

} // namespace zelvor
