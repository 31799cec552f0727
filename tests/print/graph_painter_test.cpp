#include "print/graph_painter.h"

#include "core/localized.h"
#include "print/pages.h"
#include "print/picture.h"
#include "print/print_view.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double height = 420; // the scale is 320 high and has six steps

// A sheet with nothing but the graph on it.
class GraphForm final : public PrintView {
public:
    GraphForm(AppDelegate& owner, const GraphView& shown)
        : PrintView(owner, {landscape.width(), height}, u"Graph"_s), m_graph(shown)
    {}
    void drawRect(Canvas& canvas) override { drawGraph(m_graph, canvas, frame()); }

private:
    const GraphView& m_graph;
};

class Graph : public testing::Test {
protected:
    // A row over months of 2024.
    void add(const char* name, const std::vector<double>& values)
    {
        auto row = std::make_shared<DynamicsReportRow>();
        row->name = localized(name);
        for (const double value : values)
            row->data.push_back(Decimal::fromDouble(value));
        graph.reportRows.push_back(std::move(row));
        const DayComponents day{2024, 1, 1};
        const qint64 start = calendar.startOfDay(day);
        graph.dates = monthsBetween(calendar, start,
                                    calendar.startOfDay({2024, static_cast<int>(values.size()) + 1, 1}));
    }
    Picture picture(double sheetHeight = height, const GraphScale& scale = {}) const
    {
        const QSizeF size(graphWidth(graph, scale), sheetHeight);
        return Picture(size, [&](Canvas& canvas) { drawGraph(graph, canvas, size, scale); });
    }
    static bool isWhite(const QImage& image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    return false;
            }
        }
        return true;
    }

    Calendar calendar{QTimeZone::utc()};
    GraphView graph{calendar};
};

} // namespace

TEST_F(Graph, withoutAnyRowTheSheetStaysWhite)
{
    graph.dates = {{0, 100}};
    EXPECT_TRUE(isWhite(picture().image()));
}

TEST_F(Graph, theAxesCrossAtSeventyAndFifty)
{
    add("Selling", {3000, 3456, 100});
    const Picture drawn = picture();
    EXPECT_EQ(graphWidth(graph), 400);
    EXPECT_LT(drawn.at(70, 200).lightness(), 160);
    EXPECT_LT(drawn.at(70, height - 21).lightness(), 160);
    EXPECT_EQ(drawn.at(70, height - 18), QColor(Qt::white));
    EXPECT_EQ(drawn.at(70, 48), QColor(Qt::white));
    EXPECT_LT(drawn.at(90, 50).lightness(), 160);
    EXPECT_LT(drawn.at(399, 50).lightness(), 160);
    EXPECT_EQ(drawn.at(60, 50), QColor(Qt::white));
}

TEST_F(Graph, everyLineGoesThroughThePointsOfItsRow)
{
    add("Selling", {4000, 2000, 0});
    add("Margin", {1000, 3000, 500});
    const Picture drawn = picture();
    const double unit = (height - 100) / 5000; // the scale ends at 5,000
    const auto passes = [&](const Color& color, std::size_t month, double value) {
        // The ends of a line are cut flat at the point itself.
        const double inward = month == 0 ? 1 : month == 2 ? -1 : 0;
        return looksLike(drawn.at(static_cast<double>(month) * 100 + 120 + inward, value * unit + 50), color);
    };
    EXPECT_TRUE(passes(graph.realizationColor.color(), 0, 4000));
    EXPECT_TRUE(passes(graph.realizationColor.color(), 1, 2000));
    EXPECT_TRUE(passes(graph.marginColor.color(), 0, 1000));
    EXPECT_TRUE(passes(graph.marginColor.color(), 1, 3000));
    EXPECT_TRUE(passes(graph.marginColor.color(), 2, 500));
    EXPECT_TRUE(looksLike(drawn.at(170, 3000 * unit + 50), graph.realizationColor.color()))
        << "half-way between the first two";
    EXPECT_EQ(drawn.at(115, 4000 * unit + 50 + 3), QColor(Qt::white)) << "nothing before the first point";
}

TEST_F(Graph, theLinesTakeTheColoursOfTheWells)
{
    add("Income", {100, 100});
    graph.incomColor.setColor({0.2, 0.4, 0.6, 1});
    const double y = 100 * (height - 100) / 200 + 50;
    EXPECT_TRUE(looksLike(picture().at(170, y), {0.2, 0.4, 0.6, 1}));
    EXPECT_TRUE(looksLike(picture().at(170, y + 1.2), {0.2, 0.4, 0.6, 1})) << "three points wide";
    EXPECT_FALSE(looksLike(picture().at(170, y + 1.8), {0.2, 0.4, 0.6, 1}));
}

TEST_F(Graph, theGridIsDashedAndLabelledAtTheLeft)
{
    add("Selling", {0, 11}); // the scale ends at 20, in six steps
    const Picture drawn = picture();
    for (int step = 1; step <= 6; ++step) {
        const double y = 320.0 / 6 * step + 50;
        for (double x = 71; x < 111; x += 2) { // one point on, one off
            EXPECT_TRUE(drawn.isInked({x + 0.25, y - 0.25, 0.5, 0.5})) << step << ' ' << x;
            EXPECT_FALSE(drawn.isInked({x + 1.25, y - 0.25, 0.5, 0.5})) << step << ' ' << x;
        }
        EXPECT_TRUE(drawn.isInked({50, y - 5, 15, 10})) << step;
        EXPECT_FALSE(drawn.isInked({65.5, y - 5, 3, 10})) << step;
    }
    EXPECT_FALSE(drawn.isInked({71.5, 50 + 320.0 / 7 - 1, 40, 2}));
    EXPECT_FALSE(drawn.isInked({296, 370 - 1, 3, 2})) << "the grid ends five before the axis";
}

TEST_F(Graph, aTickAndALabelStandBelowEachMonth)
{
    add("Selling", {1, 2, 3});
    const Picture drawn = picture();
    for (const double x : {120.0, 220.0, 320.0}) {
        EXPECT_TRUE(drawn.isInked({x - 0.25, 48.25, 0.5, 1})) << x;
        const double width = textSize(u"1.1.24 - 31.1.24"_s, printFont(10)).width();
        EXPECT_TRUE(drawn.isInked({x - width / 2, 36, 5, 12})) << x;
        EXPECT_TRUE(drawn.isInked({x + width / 2 - 5, 36, 5, 12})) << x;
        EXPECT_FALSE(drawn.isInked({x - width / 2 - 6, 30, 4, 17})) << x;
    }
}

TEST_F(Graph, theLabelsOfAPdfAreTextsInTheirPlaces)
{
    ZELVOR_NEEDS_PDF_TOOLS();
    const auto program = TestProgram::inZone("UTC");
    add("Selling", {3456, 1});
    GraphForm form(program->appDelegate, graph);
    const PrintedPages pages(form);
    const double belowSheet = 505 - height;       // the room that the sheet leaves on its page
    const PrintedWord top = pages.word(u"000"_s); // of "4 000"
    EXPECT_NEAR(top.right, 65, 0.2);
    EXPECT_NEAR((top.top + top.bottom) / 2 - belowSheet, height - 50, 0.5) << "the sixth of six steps";
    for (const QString& label : {u"667"_s, u"1 333"_s, u"2 000"_s, u"2 667"_s, u"3 333"_s, u"4 000"_s,
                                 u"1.1.24 - 31.1.24"_s, u"1.2.24 - 29.2.24"_s})
        EXPECT_TRUE(pages.text().contains(label)) << qPrintable(label) << qPrintable(pages.text());
    const PrintedWord from = pages.word(u"1.1.24"_s);
    const PrintedWord to = pages.word(u"31.1.24"_s);
    EXPECT_NEAR((from.left + to.right) / 2, 120, 0.2);
    EXPECT_NEAR(from.top - belowSheet, 48, 0.3);
}

TEST_F(Graph, aLowSheetHasNoGridAndDividesByNothing)
{
    add("Selling", {3456, 1});
    for (const double low : {150.0, 149.0, 100.0, 60.0, 20.0, 1.0}) {
        const Picture drawn = picture(low);
        EXPECT_FALSE(drawn.image().isNull()) << low;
    }
    EXPECT_TRUE(picture(150).isInked({50, 92, 16, 16})) << "one step";
    EXPECT_FALSE(picture(149).isInked({20, 92, 46, 16})) << "none";
}

TEST_F(Graph, onlyMonthIsADot)
{
    add("Selling", {5});
    const double y = 5 * (height - 100) / 6 + 50;
    EXPECT_TRUE(looksLike(picture().at(120, y), graph.realizationColor.color()));
    EXPECT_FALSE(picture().isInked({125, y - 4, 5, 3}));
}

TEST_F(Graph, aLossOfTheOnlyMonthIsNotDrawnBelowTheSheet)
{
    add("Selling", {100});
    add("Margin", {-100}); // 110 below the lower edge
    const QSizeF size(graphWidth(graph), height);
    const QSizeF twice(size.width(), 2 * height);
    const Picture drawn(twice, [&](Canvas& canvas) {
        canvas.fill({{0, 0}, twice}, whiteColor);
        Canvas part = canvas.movedTo({0, height});
        drawGraph(graph, part, size);
    });
    EXPECT_TRUE(drawn.isInked({100, height + 200, 40, 20})) << "the other dot";
    EXPECT_FALSE(drawn.isInked({1, 1, size.width() - 1, height - 1}));
}

TEST_F(Graph, zerosNegativesAndWhatIsNoNumberStayHarmless)
{
    add("Selling", {0, 0});
    add("Margin", {-1e12, 5});
    graph.reportRows.push_back(std::make_shared<DynamicsReportRow>(*graph.reportRows[0]));
    auto odd = std::make_shared<DynamicsReportRow>();
    odd->name = localized("Income");
    odd->data = {Decimal::nan(), Decimal(3)};
    graph.reportRows.push_back(odd);
    const Picture drawn = picture();
    EXPECT_EQ(drawn.at(30, 5), QColor(Qt::white)) << "a line below the sheet is cut off at its edge";
}

TEST_F(Graph, manyMonthsCanBeSqueezedOntoASheet)
{
    add("Selling", {10, 10, 10, 10, 10, 10});
    const GraphScale scale{20, 3};
    EXPECT_EQ(graphWidth(graph, scale), 70 + 6 * 20 + 30);
    const Picture drawn = picture(height, scale);
    const double y = 10 * (height - 100) / 20 + 50;
    EXPECT_TRUE(looksLike(drawn.at(81, y), graph.realizationColor.color()));
    EXPECT_TRUE(looksLike(drawn.at(179, y), graph.realizationColor.color()));
    EXPECT_FALSE(looksLike(drawn.at(183, y), graph.realizationColor.color()));
    EXPECT_TRUE(drawn.isInked({70, 36, 20, 10}));
    EXPECT_TRUE(drawn.isInked({130, 36, 20, 10}));
}

} // namespace zelvor
