#include "desktop/icons.h"
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtWidgets/QApplication>

#include <set>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Icons : public testing::Test {
protected:
    ~Icons() override { applyAppearance(*qApp, Appearance::Light); }
};

// The colours of the pixels that nothing shines through.
std::set<QRgb> solidColors(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
{
    const QImage image = icon.pixmap(QSize(64, 64), mode).toImage().convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

std::set<QRgb> ink(QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return {QApplication::palette().color(group, role).rgb()};
}

} // namespace

TEST_F(Icons, aLineIconIsDrawnInTheTextColourOfTheMoment)
{
    const QIcon icon = lineIcon(u"edit"_s);
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark, Appearance::Light}) {
        applyAppearance(*qApp, appearance);
        EXPECT_EQ(solidColors(icon), ink(QPalette::Active, QPalette::WindowText));
        EXPECT_EQ(solidColors(icon, QIcon::Disabled), ink(QPalette::Disabled, QPalette::WindowText));
        EXPECT_EQ(solidColors(icon, QIcon::Selected), ink(QPalette::Active, QPalette::HighlightedText));
    }
}

TEST_F(Icons, everyLineIconIsSeenOnLightAndDarkGround)
{
    int icons = 0;
    for (const QString& file : QDir(u":/zelvor/icons"_s).entryList({u"*.svg"_s})) {
        const QString name = file.chopped(4);
        if (name.startsWith(u"flag-"_s) || name == u"zelvor"_s || name == u"logo"_s)
            continue;
        ++icons;
        for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
            applyAppearance(*qApp, appearance);
            const QColor ground = QApplication::palette().color(QPalette::Window);
            const std::set<QRgb> colors = solidColors(lineIcon(name));
            EXPECT_FALSE(colors.empty()) << qPrintable(name);
            for (const QRgb color : colors)
                EXPECT_GE(contrast(QColor(color), ground), 3) << qPrintable(name);
        }
    }
    EXPECT_GT(icons, 30);
}

TEST_F(Icons, aPictureKeepsItsOwnColours)
{
    const QIcon flag = pictureIcon(u"flag-ua"_s);
    applyAppearance(*qApp, Appearance::Light);
    const std::set<QRgb> light = solidColors(flag);
    EXPECT_GE(light.size(), 2U);
    applyAppearance(*qApp, Appearance::Dark);
    EXPECT_EQ(solidColors(flag), light);
}

TEST_F(Icons, anUnknownNameGivesTheEmptyIcon)
{
    for (const QString& name : {QString(), u"no such icon"_s, u"../icons/"_s}) {
        EXPECT_TRUE(lineIcon(name).isNull()) << qPrintable(name);
        EXPECT_TRUE(pictureIcon(name).isNull()) << qPrintable(name);
    }
}

TEST_F(Icons, aLineIconIsDrawnAnewForEverySize)
{
    for (const int size : {12, 16, 20, 256})
        EXPECT_EQ(lineIcon(u"save"_s).pixmap(QSize(size, size)).size(), QSize(size, size));
}

} // namespace zelvor
