#include "print/canvas.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>

#include <algorithm>
#include <cmath>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int units = FontFaces::unitsPerPoint;

QColor toQColor(const Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace

Canvas::Canvas(QPainter& painter, const QRectF& slice)
    : m_painter(painter), m_slice(slice), m_ownFaces(std::make_unique<FontFaces>()), m_faces(*m_ownFaces)
{
    preparePainter();
}

Canvas::Canvas(QPainter& painter, const QRectF& slice, FontFaces& faces)
    : m_painter(painter), m_slice(slice), m_faces(faces)
{
    preparePainter();
}

Canvas::Canvas(const Canvas& whole, const QRectF& slice)
    : m_painter(whole.m_painter), m_slice(slice), m_faces(whole.m_faces), m_isPart(true)
{}

void Canvas::preparePainter()
{
    m_painter.save();
    m_painter.scale(1.0 / units, 1.0 / units);
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                             QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
}

Canvas::~Canvas()
{
    if (!m_isPart)
        m_painter.restore();
}

bool Canvas::shows(double bottom, double top) const
{
    return top > m_slice.top() && bottom < m_slice.bottom();
}

QPointF Canvas::onPainter(const QPointF& point) const
{
    return QPointF(point.x() - m_slice.left(), m_slice.bottom() - point.y()) * units;
}

QRectF Canvas::onPainter(const QRectF& rect) const
{
    return {onPainter(rect.bottomLeft()), rect.size() * units};
}

void Canvas::fill(const QRectF& rect, const Color& color)
{
    // A sheet of a thousand pages is larger than what a picture's painter can fill.
    if (shows(rect.top(), rect.bottom()))
        m_painter.fillRect(onPainter(rect.intersected(m_slice)), toQColor(color));
}

void Canvas::text(const QPointF& point, const QString& text, const QFont& font, const Color& color)
{
    if (text.isEmpty() || !shows(point.y(), point.y() + m_faces.textSize({}, font).height()))
        return;
    m_painter.setPen(toQColor(color));
    m_faces.draw(m_painter, onPainter(point), text, font);
}

void Canvas::image(const QRectF& rect, const QImage& image)
{
    if (shows(rect.top(), rect.bottom()))
        m_painter.drawImage(onPainter(rect), image);
}

// What a page shows of a line, and a little more: an upright one may run along the whole sheet. A dashed line
// stays as it is, for its pattern begins where it begins.
Canvas::Path::Line Canvas::visiblePart(Path::Line line, const Path& path) const
{
    if (line.from.x() != line.to.x() || !path.dashes.empty())
        return line;
    const double bottom = m_slice.top() - path.lineWidth;
    const double top = m_slice.bottom() + path.lineWidth;
    line.from.setY(std::clamp(line.from.y(), bottom, top));
    line.to.setY(std::clamp(line.to.y(), bottom, top));
    return line;
}

// What the lengths of a dash pattern count, points: widths of the line; but where a picture is painted, a
// line thinner than a pixel has a pattern of pixels.
double Canvas::dashUnit(double lineWidth) const
{
    if (m_painter.paintEngine()->type() != QPaintEngine::Raster)
        return lineWidth;
    const QTransform toPixels = m_painter.combinedTransform();
    return std::max(lineWidth, 1 / (units * std::hypot(toPixels.m11(), toPixels.m12())));
}

void Canvas::stroke(const Path& path, const Color& color)
{
    QPen pen(toQColor(color), path.lineWidth * units);
    pen.setCapStyle(Qt::FlatCap);
    if (!path.dashes.empty()) {
        QList<qreal> pattern;
        for (const double length : path.dashes)
            pattern.append(length / dashUnit(path.lineWidth));
        pen.setDashPattern(pattern);
    }
    m_painter.setPen(pen);
    const double half = path.lineWidth / 2;
    for (const Path::Line& line : path.lines) {
        const auto [bottom, top] = std::minmax({line.from.y(), line.to.y()});
        if (!shows(bottom - half, top + half))
            continue;
        const Path::Line part = visiblePart(line, path);
        m_painter.drawLine(onPainter(part.from), onPainter(part.to));
    }
}

void Canvas::polyline(const std::vector<QPointF>& points, double lineWidth, const Color& color,
                      const QRectF& within)
{
    if (points.size() < 2 || !shows(within.top(), within.bottom()))
        return;
    QPolygonF line;
    for (const QPointF& point : points)
        line.append(onPainter(point));
    m_painter.save();
    m_painter.setClipRect(onPainter(within), Qt::IntersectClip);
    m_painter.setPen(QPen(toQColor(color), lineWidth * units, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    m_painter.drawPolyline(line);
    m_painter.restore();
}

void Canvas::wedge(const QPointF& centre, double radius, double startAngle, double angle, const Color& color)
{
    if (!shows(centre.y() - radius, centre.y() + radius))
        return;
    const QPointF middle = onPainter(centre);
    const QPointF reach = QPointF(radius, radius) * units;
    QPainterPath path(middle);
    path.arcTo(QRectF(middle - reach, middle + reach), startAngle, angle);
    path.closeSubpath();
    m_painter.fillPath(path, toQColor(color));
}

Canvas Canvas::movedTo(const QPointF& origin) const
{
    return Canvas(*this, m_slice.translated(-origin));
}

QFont printFont(double size, bool bold, bool oblique)
{
    QFont font(QStringList{u"Liberation Sans"_s, u"Arimo"_s, u"Nimbus Sans"_s, u"Helvetica"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(static_cast<int>(size));
    font.setBold(bold);
    font.setItalic(oblique);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QSizeF textSize(const QString& text, const QFont& font)
{
    return FontFaces().textSize(text, font);
}

} // namespace zelvor
