#pragma once

#include "print/canvas.h"

#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cmath>
#include <functional>

namespace zelvor {

// What a painter draws, as a picture of so many pixels to a point; asked for in the points of the sheet,
// whose origin is the lower left corner.
class Picture {
public:
    Picture(const QSizeF& size, const std::function<void(Canvas&)>& draw, int pixelsOfAPoint = 4)
        : m_height(size.height()), m_scale(pixelsOfAPoint),
          m_image((size * pixelsOfAPoint).toSize(), QImage::Format_RGB32)
    {
        m_image.fill(Qt::magenta); // whatever is left undrawn
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        Canvas canvas(painter, QRectF({0, 0}, size));
        draw(canvas);
    }

    const QImage& image() const { return m_image; }
    QColor at(double x, double y) const
    {
        const QPoint pixel(static_cast<int>(std::floor(x * m_scale)),
                           static_cast<int>(std::floor((m_height - y) * m_scale)));
        return m_image.valid(pixel) ? m_image.pixelColor(pixel) : QColor(Qt::magenta);
    }
    // Whether anything but white was drawn there.
    bool isInked(const QRectF& area) const
    {
        for (double y = area.top(); y < area.bottom(); y += 0.25) {
            for (double x = area.left(); x < area.right(); x += 0.25) {
                if (at(x, y) != QColor(Qt::white))
                    return true;
            }
        }
        return false;
    }

private:
    double m_height;
    double m_scale;
    QImage m_image;
};

// Near enough to what was asked for; a colour with alpha as it looks on white.
inline bool looksLike(const QColor& seen, const Color& color, int tolerance = 6)
{
    const auto isNear = [&](int channel, double value) {
        const double onWhite = value * color.alpha + 1 - color.alpha;
        return std::abs(channel - onWhite * 255) <= tolerance;
    };
    return isNear(seen.red(), color.red) && isNear(seen.green(), color.green) &&
           isNear(seen.blue(), color.blue);
}

} // namespace zelvor
