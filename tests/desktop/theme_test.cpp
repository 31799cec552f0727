#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtGui/QFontMetricsF>
#include <QtWidgets/QApplication>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Theme : public testing::Test {
protected:
    ~Theme() override { applyAppearance(*qApp, Appearance::Light); }
};

constexpr double readable = 4.5; // WCAG 2.1, 1.4.3

} // namespace

TEST_F(Theme, contrastIsThatOfTheGuideline)
{
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 1e-9);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 1e-9);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST_F(Theme, everyTextColourIsReadableOnEveryGroundInLightAndDark)
{
    for (const Appearance appearance : {Appearance::Light, Appearance::Dark}) {
        applyAppearance(*qApp, appearance);
        const QPalette palette = QApplication::palette();
        ASSERT_EQ(isDark(palette), appearance == Appearance::Dark);
        const QColor grounds[] = {palette.color(QPalette::Base), palette.color(QPalette::AlternateBase),
                                  palette.color(QPalette::Window), groundColor(reportGroundColor, palette),
                                  groundColor(rowsMissingColor, palette)};
        for (const QColor& ground : grounds) {
            for (const Color& color :
                 {blackColor, inOrderColor, redColor, catalogTitleColor, reportTitleColor}) {
                const QColor ink = textColor(color, palette);
                EXPECT_GE(contrast(ink, ground), readable)
                    << qPrintable(ink.name()) << " on " << qPrintable(ground.name());
            }
            EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), ground), readable)
                << "notes on " << qPrintable(ground.name());
        }
        EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
                  readable);
        EXPECT_GE(contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), readable);
        EXPECT_GE(contrast(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)),
                  readable);
    }
}

TEST_F(Theme, theGivenColoursAreTheLightOnes)
{
    applyAppearance(*qApp, Appearance::Light);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(textColor(inOrderColor, palette), QColor(0x1f, 0x36, 0x9b));
    EXPECT_EQ(groundColor(reportGroundColor, palette), QColor(0xfd, 0xf7, 0xe3));
    EXPECT_EQ(textColor(blackColor, palette), palette.color(QPalette::Text));
    EXPECT_EQ(groundColor(whiteColor, palette), palette.color(QPalette::Base));
}

TEST_F(Theme, theAppearanceOfTheSystemIsThatOfItsOwnPalette)
{
    applyAppearance(*qApp, Appearance::Dark);
    applyAppearance(*qApp, Appearance::System);
    EXPECT_FALSE(isDark(QApplication::palette())) << "the offscreen platform is light";
}

TEST_F(Theme, figuresAreAllOfOneWidth)
{
    for (const QString& family : {QApplication::font().family(), u"Nimbus Roman"_s, u"URW Bookman"_s}) {
        QFont base = QApplication::font();
        base.setFamilies({family});
        const QFontMetricsF metrics(figureFont(base));
        for (const QChar figure : u"123456789"_s)
            EXPECT_NEAR(metrics.horizontalAdvance(figure), metrics.horizontalAdvance(u'0'), 0.01);
    }
}

} // namespace zelvor
