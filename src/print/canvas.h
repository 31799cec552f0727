#pragma once

#include "core/colors.h"
#include "print/font_faces.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QImage>

#include <memory>
#include <vector>

class QPainter;

namespace zelvor {

// The drawing layer of the print forms: a sheet with its origin at the lower left, y growing upward, units
// of 1/72 inch, drawn on any QPainter. What lies outside the slice that is being drawn is left out.
//
// A point of text is the lower left corner of its box, whose size textSize() tells.
class Canvas {
public:
    // The painter's own origin is the upper left corner of `slice`, a part of the sheet; one unit of the
    // painter is one point.
    Canvas(QPainter& painter, const QRectF& slice);
    // The same with fonts that are measured already, as a form's own are.
    Canvas(QPainter& painter, const QRectF& slice, FontFaces& faces);
    ~Canvas(); // the painter is as it was
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    const QRectF& slice() const { return m_slice; }
    // Whether anything between the two heights can be seen. A form with many rows asks it for each row before
    // it makes the row's texts.
    bool shows(double bottom, double top) const;
    void fill(const QRectF& rect, const Color& color);
    void text(const QPointF& point, const QString& text, const QFont& font, const Color& color);
    // The box of a line of text, points; quick, as the fonts are measured already.
    QSizeF textSize(const QString& text, const QFont& font) const { return m_faces.textSize(text, font); }
    void image(const QRectF& rect, const QImage& image);

    // Pieces of straight line, gathered and stroked at once.
    struct Path {
        double lineWidth = 1;
        std::vector<double> dashes = {}; // lengths on and off, points; none for a solid line
        struct Line {
            QPointF from;
            QPointF to;
        };
        std::vector<Line> lines = {};
        void add(QPointF from, QPointF to) { lines.push_back({from, to}); }
    };
    void stroke(const Path& path, const Color& color);

    // One line through all points, round at its corners; what lies outside `within` is cut off.
    void polyline(const std::vector<QPointF>& points, double lineWidth, const Color& color,
                  const QRectF& within);
    // The part of a disc between two angles: degrees, counter-clockwise from the right.
    void wedge(const QPointF& centre, double radius, double startAngle, double angle, const Color& color);
    // The same sheet, seen with its origin at that point of this one, which outlives it.
    Canvas movedTo(const QPointF& origin) const;

private:
    Canvas(const Canvas& whole, const QRectF& slice);
    void preparePainter();
    double dashUnit(double lineWidth) const;
    Path::Line visiblePart(Path::Line line, const Path& path) const;
    QPointF onPainter(const QPointF& point) const;
    QRectF onPainter(const QRectF& rect) const;

    QPainter& m_painter;
    QRectF m_slice;
    std::unique_ptr<FontFaces> m_ownFaces;
    FontFaces& m_faces;
    bool m_isPart = false; // the painter was prepared by the canvas that this one is a part of
};

// The font that stands for "Helvetica": the same widths, found on every machine that the program is
// installed on. Size in points.
QFont printFont(double size, bool bold = false, bool oblique = false);
// The box of a line of text, points; the same on every device. What measures many asks its FontFaces.
QSizeF textSize(const QString& text, const QFont& font);

} // namespace zelvor
