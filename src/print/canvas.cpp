#include "print/canvas.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// Widths are taken at this many times the size, where no grid of pixels rounds them.
constexpr int measuringScale = 64;

QColor toQColor(const Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

QFontMetricsF largeMetrics(const QFont& font)
{
    QFont large(font);
    large.setPixelSize(font.pixelSize() * measuringScale);
    return QFontMetricsF(large);
}

} // namespace

Canvas::Canvas(QPainter& painter, const QRectF& slice) : m_painter(painter), m_slice(slice) {}

bool Canvas::shows(double bottom, double top) const
{
    return top >= m_slice.top() && bottom <= m_slice.bottom();
}

QPointF Canvas::onPainter(const QPointF& point) const
{
    return {point.x() - m_slice.left(), m_slice.bottom() - point.y()};
}

void Canvas::fill(const QRectF& rect, const Color& color)
{
    if (shows(rect.top(), rect.bottom()))
        m_painter.fillRect(QRectF(onPainter(rect.bottomLeft()), rect.size()), toQColor(color));
}

void Canvas::text(const QPointF& point, const QString& text, const QFont& font, const Color& color)
{
    const QFontMetricsF metrics = largeMetrics(font);
    const double descent = metrics.descent() / measuringScale;
    if (!shows(point.y(), point.y() + metrics.height() / measuringScale))
        return;
    m_painter.setFont(font);
    m_painter.setPen(toQColor(color));
    m_painter.drawText(onPainter(point) - QPointF(0, descent), text);
}

void Canvas::image(const QRectF& rect, const QImage& image)
{
    if (shows(rect.top(), rect.bottom()))
        m_painter.drawImage(QRectF(onPainter(rect.bottomLeft()), rect.size()), image);
}

void Canvas::stroke(const Path& path, const Color& color)
{
    QPen pen(toQColor(color), path.lineWidth);
    pen.setCapStyle(Qt::FlatCap);
    if (!path.dashes.empty()) {
        QList<qreal> pattern; // in widths of the line
        for (const double length : path.dashes)
            pattern.append(length / path.lineWidth);
        pen.setDashPattern(pattern);
    }
    m_painter.setPen(pen);
    for (const Path::Line& line : path.lines) {
        if (shows(std::min(line.from.y(), line.to.y()), std::max(line.from.y(), line.to.y())))
            m_painter.drawLine(onPainter(line.from), onPainter(line.to));
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
    m_painter.setClipRect(QRectF(onPainter(within.bottomLeft()), within.size()), Qt::IntersectClip);
    m_painter.setPen(QPen(toQColor(color), lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    m_painter.drawPolyline(line);
    m_painter.restore();
}

void Canvas::wedge(const QPointF& centre, double radius, double startAngle, double angle, const Color& color)
{
    if (!shows(centre.y() - radius, centre.y() + radius))
        return;
    const QPointF middle = onPainter(centre);
    QPainterPath path(middle);
    path.arcTo(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius), startAngle, angle);
    path.closeSubpath();
    m_painter.fillPath(path, toQColor(color));
}

Canvas Canvas::movedTo(const QPointF& origin) const
{
    return Canvas(m_painter, m_slice.translated(-origin));
}

QFont printFont(double size, bool bold, bool oblique)
{
    QFont font(QStringList{u"Liberation Sans"_s, u"Arimo"_s, u"Nimbus Sans"_s, u"Helvetica"_s});
    font.setPixelSize(static_cast<int>(size));
    font.setBold(bold);
    font.setItalic(oblique);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QSizeF textSize(const QString& text, const QFont& font)
{
    const QFontMetricsF metrics = largeMetrics(font);
    return {metrics.horizontalAdvance(text) / measuringScale, metrics.height() / measuringScale};
}

} // namespace zelvor
