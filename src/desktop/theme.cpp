#include "desktop/theme.h"

#include "desktop/desktop_style.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QPalette lightPalette()
{
    QPalette palette(QColor(0xf2, 0xf2, 0xf0));
    palette.setColor(QPalette::Window, QColor(0xf4, 0xf4, 0xf2));
    palette.setColor(QPalette::WindowText, QColor(0x1c, 0x1c, 0x1c));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf7, 0xf5));
    palette.setColor(QPalette::Text, QColor(0x1c, 0x1c, 0x1c));
    palette.setColor(QPalette::PlaceholderText, QColor(0x66, 0x66, 0x66));
    palette.setColor(QPalette::Button, QColor(0xec, 0xec, 0xea));
    palette.setColor(QPalette::ButtonText, QColor(0x1c, 0x1c, 0x1c));
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xf0));
    palette.setColor(QPalette::ToolTipText, QColor(0x1c, 0x1c, 0x1c));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x4f, 0xb8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x1f, 0x36, 0x9b));
    const QColor faint(0x8a, 0x8a, 0x8a);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2c, 0x2f));
    palette.setColor(QPalette::Window, QColor(0x26, 0x27, 0x2a));
    palette.setColor(QPalette::WindowText, QColor(0xe6, 0xe6, 0xe6));
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1d, 0x1f));
    palette.setColor(QPalette::AlternateBase, QColor(0x22, 0x23, 0x26));
    palette.setColor(QPalette::Text, QColor(0xe6, 0xe6, 0xe6));
    palette.setColor(QPalette::PlaceholderText, QColor(0xa8, 0xa8, 0xa8));
    palette.setColor(QPalette::Button, QColor(0x33, 0x34, 0x38));
    palette.setColor(QPalette::ButtonText, QColor(0xe6, 0xe6, 0xe6));
    palette.setColor(QPalette::BrightText, QColor(0xff, 0x8a, 0x80));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3b, 0x40));
    palette.setColor(QPalette::ToolTipText, QColor(0xe6, 0xe6, 0xe6));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x5a, 0xc4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x9d, 0xb2, 0xff));
    const QColor faint(0x80, 0x80, 0x80);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

struct Partner {
    Color light;
    QColor lightInk; // as drawn on light ground
    QColor darkInk;  // as drawn on dark ground
};

// The platform's red and the reports' orange are too bright for small text on light grounds, so deeper ones
// stand for them.
const Partner textPartners[] = {
    {inOrderColor, QColor(0x1f, 0x36, 0x9b), QColor(0x9d, 0xb2, 0xff)},
    {redColor, QColor(0xc4, 0x12, 0x12), QColor(0xff, 0x8a, 0x80)},
    {catalogTitleColor, QColor(0x32, 0x65, 0x48), QColor(0x8f, 0xcf, 0xa9)},
    {reportTitleColor, QColor(0xc0, 0x38, 0x04), QColor(0xff, 0xa0, 0x73)},
};

const Partner groundPartners[] = {
    {reportGroundColor, QColor(0xfd, 0xf7, 0xe3), QColor(0x2a, 0x27, 0x1d)},
    {rowsMissingColor, QColor(0xfe, 0xe9, 0xbd), QColor(0x4a, 0x3a, 0x16)},
};

QColor plain(const Color& color)
{
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

double channel(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

} // namespace

void applyAppearance(QApplication& application, Appearance appearance)
{
    application.setStyle(new DesktopStyle);
    application.setPalette(QPalette()); // the desktop's own again, to look at it
    const bool dark = appearance == Appearance::Dark ||
                      (appearance == Appearance::System && isDark(QGuiApplication::palette()));
    application.setPalette(dark ? darkPalette() : lightPalette());
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor textColor(const Color& color, const QPalette& palette)
{
    if (color == blackColor)
        return palette.color(QPalette::Text);
    for (const Partner& partner : textPartners) {
        if (partner.light == color)
            return isDark(palette) ? partner.darkInk : partner.lightInk;
    }
    return plain(color);
}

QColor groundColor(const Color& color, const QPalette& palette)
{
    if (color == whiteColor)
        return palette.color(QPalette::Base);
    for (const Partner& partner : groundPartners) {
        if (partner.light == color)
            return isDark(palette) ? partner.darkInk : partner.lightInk;
    }
    return plain(color);
}

QColor lineColor(const QPalette& palette)
{
    QColor line = palette.color(QPalette::WindowText);
    line.setAlphaF(0.2F);
    return line;
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QFont cellFont(CellFont font, const QFont& base)
{
    QFont result = base;
    if (font == CellFont::Plain || font == CellFont::Small)
        return result;
    result.setBold(true);
    result.setItalic(true);
    if (font == CellFont::GatheringBold14)
        result.setPointSizeF(base.pointSizeF() + 1);
    return result;
}

namespace {

bool hasTabularFigures(const QFont& font)
{
    const QFontMetricsF metrics(font);
    const qreal width = metrics.horizontalAdvance(u'0');
    return std::ranges::all_of(u"123456789"_s, [&](QChar figure) {
        return std::abs(metrics.horizontalAdvance(figure) - width) < 0.01;
    });
}

} // namespace

QFont figureFont(const QFont& base)
{
    for (const QString& family : {base.family(), u"DejaVu Sans"_s, u"Liberation Sans"_s, u"Noto Sans"_s}) {
        QFont font = base;
        font.setFamilies({family});
        if (hasTabularFigures(font))
            return font;
    }
    QFont font = base;
    font.setFamilies({QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    return font;
}

QFont titleFont(const QFont& base)
{
    QFont result = base;
    result.setPointSizeF(base.pointSizeF() + 4);
    result.setBold(true);
    return result;
}

QFont noteFont(const QFont& base)
{
    QFont result = base;
    result.setPointSizeF(base.pointSizeF() - 1);
    return result;
}

} // namespace zelvor
