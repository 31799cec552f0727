#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <memory>
#include <vector>

class QPainter;

namespace zelvor {

// The fonts of a form as it measures and draws with them: without a grid of pixels, hints or kerning, so that
// a text has the same width on paper, in a PDF and in a picture, and it is the sum of its characters. What
// was looked up of a font once is kept, for a list prints hundreds of thousands of texts.
class FontFaces {
public:
    // Texts are set this many times larger than they are, where nothing rounds their widths.
    static constexpr int unitsPerPoint = 64;

    FontFaces();
    ~FontFaces();
    FontFaces(const FontFaces&) = delete;
    FontFaces& operator=(const FontFaces&) = delete;

    // The box of a line of text, points. A text that is empty has a height too.
    QSizeF textSize(const QString& text, const QFont& font);
    // Draws with the painter's pen. The painter has `unitsPerPoint` units in a point; `corner` is the lower
    // left corner of the box, in those.
    void draw(QPainter& painter, const QPointF& corner, const QString& text, const QFont& font);

private:
    struct Face;
    Face& face(const QFont& font);

    std::vector<std::unique_ptr<Face>> m_faces;
};

} // namespace zelvor
