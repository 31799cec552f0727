#include "print/chart_painter.h"

#include "print/picture.h"

#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtGui/QPdfWriter>

#include <numbers>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

class Chart : public testing::Test {
protected:
    Picture picture() const
    {
        const QSizeF size = chartSize(chart);
        return Picture(size, [&](Canvas& canvas) { drawChart(chart, canvas, size); });
    }
    // A point of the pie: degrees counter-clockwise from the right.
    static QPointF onPie(double angle, double radius)
    {
        const double radians = angle * std::numbers::pi / 180;
        return {175 + radius * std::cos(radians), 175 + radius * std::sin(radians)};
    }
    static QColor at(const Picture& drawn, double angle, double radius)
    {
        const QPointF point = onPie(angle, radius);
        return drawn.at(point.x(), point.y());
    }
    // A colour with alpha 0.6, put on itself.
    static Color twice(Color color)
    {
        color.alpha = 1 - (1 - color.alpha) * (1 - color.alpha);
        return color;
    }

    ChartView chart;
};

} // namespace

TEST_F(Chart, aSliceStartsWhereTheLastOneEnded)
{
    chart.add(u"Half"_s, 50, 0);
    chart.add(u"Quarter"_s, 25, 0);
    chart.add(u"Rest"_s, 25, 0);
    const Picture drawn = picture();
    const auto& colors = ChartView::colors;
    for (const double angle : {5.0, 90.0, 175.0})
        EXPECT_TRUE(looksLike(at(drawn, angle, 150), colors[0])) << angle;
    for (const double angle : {185.0, 265.0})
        EXPECT_TRUE(looksLike(at(drawn, angle, 150), colors[1])) << angle;
    for (const double angle : {275.0, 355.0})
        EXPECT_TRUE(looksLike(at(drawn, angle, 150), colors[2])) << angle;
    EXPECT_EQ(at(drawn, 30, 167), QColor(Qt::white));
    EXPECT_TRUE(looksLike(at(drawn, 30, 163), colors[0]));
}

TEST_F(Chart, theConstantPartShowsDarkerFromTheMiddle)
{
    chart.add(u"Running"_s, 100, 40);
    chart.add(u"Rent"_s, 100, 100);
    const Picture drawn = picture();
    const auto& colors = ChartView::colors;
    EXPECT_TRUE(looksLike(at(drawn, 90, 165 * 0.4 - 2), twice(colors[0])));
    EXPECT_TRUE(looksLike(at(drawn, 90, 165 * 0.4 + 2), colors[0]));
    EXPECT_TRUE(looksLike(at(drawn, 270, 160), twice(colors[1])));
}

TEST_F(Chart, theEighthSliceHasTheFirstColourAgain)
{
    for (int i = 0; i < 8; ++i)
        chart.add(QString::number(i), 1, 0);
    const Picture drawn = picture();
    EXPECT_TRUE(looksLike(at(drawn, 7.5 * 45, 150), ChartView::colors[0]));
    EXPECT_TRUE(looksLike(at(drawn, 6.5 * 45, 150), ChartView::colors[6]));
}

TEST_F(Chart, theLegendStandsAtTheRightFromTheTopDownward)
{
    chart.add(u"Rent"_s, 60, 60);
    chart.add(u"Fuel"_s, 40, 0);
    const Picture drawn = picture();
    const double height = chartSize(chart).height();
    EXPECT_EQ(height, 350);
    for (int i = 0; i < 2; ++i) {
        const double y = height - (i + 1) * 40;
        const auto& color = ChartView::colors[static_cast<std::size_t>(i)];
        EXPECT_TRUE(looksLike(drawn.at(371, y + 1), color));
        EXPECT_TRUE(looksLike(drawn.at(389, y + 19), color));
        EXPECT_EQ(drawn.at(391, y + 10), QColor(Qt::white));
        EXPECT_TRUE(drawn.isInked({400, y + 3, 60, 10})) << "the share and the name";
        EXPECT_TRUE(drawn.isInked({400, y - 10, 60, 10})) << "its parts";
    }
    EXPECT_FALSE(drawn.isInked({370, height - 3 * 40 - 15, 80, 40}));
}

TEST_F(Chart, aLongLegendMakesTheSheetHigherAndWider)
{
    for (int i = 0; i < 20; ++i)
        chart.add(u"A spending with quite a long name, number "_s + QString::number(i), 1, 1);
    const QSizeF size = chartSize(chart);
    EXPECT_GE(size.height(), 20 * 40 + 12);
    EXPECT_GT(size.width(), 650);
    EXPECT_TRUE(picture().isInked({370, size.height() - 20 * 40, 20, 20}));
}

TEST_F(Chart, nothingAndZerosAreHarmless)
{
    EXPECT_FALSE(picture().isInked({1, 1, 348, 348}));
    chart.add(u"Nothing"_s, 0, 0);
    const Picture zero = picture();
    EXPECT_FALSE(zero.isInked({1, 1, 348, 348})) << "no slice";
    EXPECT_TRUE(zero.isInked({400, 300, 100, 20})) << "but its name";
    chart.add(u"Odd"_s, Decimal::nan(), 0);
    EXPECT_FALSE(picture().isInked({1, 1, 348, 348}));
}

TEST_F(Chart, oneSliceIsTheWholePie)
{
    chart.add(u"Rent"_s, 5, 0);
    const Picture drawn = picture();
    for (const double angle : {1.0, 90.0, 180.0, 270.0, 359.0})
        EXPECT_TRUE(looksLike(at(drawn, angle, 150), ChartView::colors[0])) << angle;
}

TEST_F(Chart, itCanBeDrawnIntoAPdf)
{
    chart.add(u"Rent"_s, 5, 3);
    chart.add(u"Fuel"_s, 5, 0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(72);
        QPainter painter(&writer);
        Canvas canvas(painter, QRectF({0, 0}, chartSize(chart)));
        drawChart(chart, canvas, chartSize(chart));
    }
    EXPECT_TRUE(bytes.startsWith("%PDF"));
}

} // namespace zelvor
