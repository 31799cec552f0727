// What all printed forms share: pages, logo, wrapping, fonts, figures.
#include "print/print_job.h"
#include "print/print_view.h"

#include "print/company_logo.h"
#include "print/pages.h"
#include "support/books.h"

#include <gtest/gtest.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QPicture>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// A form that draws what a test tells it to.
class TestForm final : public PrintView {
public:
    explicit TestForm(AppDelegate& owner, const QSizeF& sheet = portrait, const QString& name = u"Form"_s)
        : PrintView(owner, sheet, name)
    {}
    std::function<void(Canvas&)> draw = [](Canvas&) {};
    void drawRect(Canvas& canvas) override { draw(canvas); }
};

struct PrintFrame : testing::Test {
    Books books;
    TestForm form{books.appDelegate};

    // A picture file of that size in the books' folder, and the settings that name it.
    void useLogo(const QSize& pixels, const QString& name = u"logo.png"_s)
    {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::red);
        ASSERT_TRUE(image.save(books.file(name)));
        setPath(books.file(name));
    }
    void setPath(const QString& path)
    {
        books.changeParams([&](Params& params) {
            params.printCompanyLogo = true;
            params.pathToLogo = path;
        });
    }
    void withoutLogo()
    {
        books.changeParams([](Params& params) { params.printCompanyLogo = false; });
    }
    bool isDrawnRed()
    {
        form.draw = [this](Canvas& canvas) { form.printLogo(canvas); };
        const std::vector<QImage> pages = pictures(form, 72);
        return !pages.empty() && pages.front().pixelColor(36 + 10, 45 + 10) == Qt::red;
    }
};

// Bytes that a device takes before it fails.
class ShortDevice final : public QIODevice {
public:
    explicit ShortDevice(qint64 room) : m_room(room) { open(QIODevice::WriteOnly); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override { return std::min(size, m_room); }

private:
    qint64 m_room;
};

} // namespace

TEST_F(PrintFrame, thePageHeightIsThePaperWithoutItsMarginsInSinglePrecision)
{
    EXPECT_FLOAT_EQ(PrintView::calculatePrintHeight(842, 45, 45, 1), 752);
    EXPECT_FLOAT_EQ(PrintView::calculatePrintHeight(842, 45, 45, 0.8), 940);
    EXPECT_EQ(PrintView::calculatePrintHeight(1000.1, 0, 0, 3), 1000.1F / 3.0F);
}

TEST_F(PrintFrame, aSheetOfExactlyOnePageReportsTwo)
{
    EXPECT_EQ(form.knowsPageRange(752), 2);
    form.setFrame({523, 751.9});
    EXPECT_EQ(form.knowsPageRange(752), 1);
    form.setFrame({523, 1504});
    EXPECT_EQ(form.knowsPageRange(752), 3);
    form.setFrame({523, 0});
    EXPECT_EQ(form.knowsPageRange(752), 1);
}

TEST_F(PrintFrame, thePagesRunFromTheTopOfTheSheetDownward)
{
    form.setFrame({523, 2000});
    EXPECT_EQ(form.rectForPage(1, 752), QRectF(0, 1248, 523, 752));
    EXPECT_EQ(form.rectForPage(2, 752), QRectF(0, 496, 523, 752));
    EXPECT_EQ(form.rectForPage(3, 752), QRectF(0, -256, 523, 752));
}

TEST_F(PrintFrame, aSheetThatGrewTallKeepsTheOrientationItWasMadeWith)
{
    TestForm wide(books.appDelegate, PrintView::landscape);
    wide.setFrame({752, 5000});
    EXPECT_TRUE(wide.isLandscape());
    EXPECT_FALSE(form.isLandscape());
    ZELVOR_NEEDS_PDF_TOOLS();
    EXPECT_EQ(PrintedPages(wide).info(u"Page size"_s), u"842 x 595 pts (A4)"_s);
    EXPECT_EQ(PrintedPages(form).info(u"Page size"_s), u"595 x 842 pts (A4)"_s);
}

TEST_F(PrintFrame, aLandscapePageShowsFiveHundredAndFivePointsOfTheSheet)
{
    TestForm wide(books.appDelegate, PrintView::landscape);
    wide.draw = [&](Canvas& canvas) {
        canvas.text({700, 523 - 505 + 1}, u"low"_s, wide.dataFont, blackColor);
        canvas.text({700, 2}, u"next"_s, wide.dataFont, blackColor);
    };
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages printed(wide);
    EXPECT_EQ(printed.pages(), 2);
    EXPECT_EQ(printed.word(u"low"_s).page, 1);
    EXPECT_EQ(printed.word(u"next"_s).page, 2);
    EXPECT_NEAR(printed.word(u"low"_s).left, 700, 0.05);
    EXPECT_NEAR(printed.word(u"low"_s).bottom, 1, 0.1); // of the page's slice
}

TEST_F(PrintFrame, aTextStandsWithTheLowerLeftCornerOfItsBoxAtItsPoint)
{
    form.draw = [&](Canvas& canvas) {
        canvas.text({100, 300}, u"Gauge"_s, form.dataFont, blackColor);
        canvas.text({0, 0}, u"Corner"_s, form.titleFont, blackColor);
    };
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages printed(form);
    const PrintedWord word = printed.word(u"Gauge"_s);
    const QSizeF size = form.textSize(u"Gauge"_s, form.dataFont);
    EXPECT_NEAR(word.left, 100, 0.02);
    EXPECT_NEAR(word.right, 100 + size.width(), 0.05);
    EXPECT_NEAR(word.bottom, 300, 0.05);
    EXPECT_NEAR(word.top, 300 + size.height(), 0.05);
    EXPECT_NEAR(printed.word(u"Corner"_s).bottom, 0, 0.15);
    EXPECT_EQ(word.page, 1);
}

TEST_F(PrintFrame, widthsAreThoseOfTheFontsOwnTableWhateverTheDevice)
{
    // Of 1000 units: W 944, 0 to 9 556 each, point 278.
    EXPECT_NEAR(textSize(u"W"_s, form.dataFont).width(), 9.44, 0.01);
    EXPECT_NEAR(textSize(u"1111.11"_s, form.dataFont).width(), 6 * 5.56 + 2.78, 0.02);
    EXPECT_EQ(textSize(u"1111.11"_s, form.dataFont), textSize(u"2345.67"_s, form.dataFont));
    EXPECT_EQ(textSize(u"W"_s, form.dataFont), form.textSize(u"W"_s, form.dataFont));
    EXPECT_GT(textSize(QString(), form.dataFont).height(), 10);
    EXPECT_EQ(textSize(QString(), form.dataFont).width(), 0);
}

TEST_F(PrintFrame, aTextOfAnyScriptHasAWidthAndPrints)
{
    const QStringList texts{u"Ærøskøbing"_s, u"Щёкино"_s, u"€ ₽ № ™"_s, u"שלום"_s,
                            u"مرحبا"_s,      u"中文"_s,   u"e\u0301"_s,         u"👍"_s};
    for (const QString& text : texts)
        EXPECT_GT(form.textSize(text, form.dataFont).width(), 0) << text.toStdString();
    form.draw = [&](Canvas& canvas) {
        for (int i = 0; i < texts.size(); ++i)
            canvas.text({0, 20.0 * i}, texts[i], form.dataFont, blackColor);
    };
    EXPECT_EQ(pictures(form, 72).size(), 2U);
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages printed(form);
    for (const char16_t* word : {u"Ærøskøbing", u"Щёкино", u"€", u"₽", u"№", u"™"})
        EXPECT_EQ(printed.count(QString::fromUtf16(word)), 1) << QString::fromUtf16(word).toStdString();
}

TEST_F(PrintFrame, whatOnlyTouchesAPageEdgeIsOnOnePage)
{
    form.setFrame({523, 1504});
    const double height = form.textSize({}, form.dataFont).height();
    form.draw = [&](Canvas& canvas) {
        canvas.text({10, 752}, u"upper"_s, form.dataFont, blackColor);
        canvas.text({100, 752 - height}, u"lower"_s, form.dataFont, blackColor);
        canvas.text({200, 752 - height / 2}, u"both"_s, form.dataFont, blackColor);
    };
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages printed(form);
    EXPECT_EQ(printed.pages(), 3);
    EXPECT_EQ(printed.count(u"upper"_s), 1);
    EXPECT_EQ(printed.word(u"upper"_s).page, 1);
    EXPECT_EQ(printed.count(u"lower"_s), 1);
    EXPECT_EQ(printed.word(u"lower"_s).page, 2);
    EXPECT_EQ(printed.count(u"both"_s), 2); // cut by the edge, a part on either page
}

TEST_F(PrintFrame, aLineBreakOrTabInATextCountsAsABlank)
{
    EXPECT_EQ(form.textSize(u"a\nb\tc"_s, form.dataFont), form.textSize(u"a b c"_s, form.dataFont));
}

TEST_F(PrintFrame, fontsAreEmbeddedAndTextCanBeSelected)
{
    TestForm titled(books.appDelegate, PrintView::portrait, u"Счёт <1> & \"2\""_s);
    titled.draw = [&](Canvas& canvas) {
        canvas.text({0, 100}, u"Итого: Office fi fl"_s, titled.dataFont, blackColor);
        canvas.text({0, 200}, u"Жирный"_s, titled.titleFont, blackColor);
        canvas.text({0, 300}, u"Наклонный"_s, titled.colTitleFont, blackColor);
    };
    ZELVOR_NEEDS_PDF_TOOLS();
    const PrintedPages printed(titled);
    EXPECT_EQ(printed.info(u"Title"_s), titled.title);
    EXPECT_EQ(printed.info(u"Creator"_s), u"Zelvor"_s);
    EXPECT_EQ(printed.word(u"Office"_s).page, 1);
    for (const char16_t* word : {u"Итого:", u"Жирный", u"Наклонный"})
        EXPECT_EQ(printed.count(QString::fromUtf16(word)), 1) << QString::fromUtf16(word).toStdString();
    const std::vector<PrintedFont> fonts = printed.fonts();
    EXPECT_EQ(fonts.size(), 3U);
    for (const PrintedFont& font : fonts) {
        EXPECT_TRUE(font.embedded) << font.name.toStdString();
        EXPECT_TRUE(font.unicode) << font.name.toStdString();
    }
    // Of three fonts of some hundred kilobytes only what is used.
    EXPECT_LT(printed.pdf().size(), 60'000);
}

TEST_F(PrintFrame, twoPdfsOfOneFormDifferInTheirDateOnly)
{
    form.draw = [&](Canvas& canvas) {
        canvas.text({0, 100}, u"One"_s, form.dataFont, blackColor);
        canvas.text({0, 200}, u"Two"_s, form.titleFont, blackColor);
        canvas.text({0, 300}, u"Three"_s, form.colTitleFont, blackColor);
    };
    const auto undated = [](QByteArray pdf) {
        const qsizetype date = pdf.indexOf("/CreationDate");
        EXPECT_GT(date, 0);
        return pdf.remove(date, pdf.indexOf('\n', date) - date);
    };
    const QByteArray first = undated(PrintedPages(form).pdf());
    for (int i = 0; i < 20; ++i) {
        QHashSeed::resetRandomGlobalSeed(); // as another run would have it
        EXPECT_EQ(undated(PrintedPages(form).pdf()), first);
    }
}

TEST_F(PrintFrame, printingLeavesHashesAsUnforeseeableAsTheyWere)
{
    PrintedPages printed(form);
    EXPECT_NE(QHashSeed::globalSeed(), 0U);
}

TEST_F(PrintFrame, aDeviceThatTakesLessIsTold)
{
    ShortDevice full(100);
    EXPECT_FALSE(writePdf(form, full));
    ShortDevice roomy(1 << 20);
    EXPECT_TRUE(writePdf(form, roomy));
}

TEST_F(PrintFrame, picturesOfThePagesAreAsLargeAsThePaperAndShowTheSame)
{
    form.draw = [&](Canvas& canvas) { canvas.fill({100, 700, 50, 20}, blackColor); };
    const std::vector<QImage> pages = pictures(form, 144);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].size(), QSize(1190, 1684));
    EXPECT_NEAR(pages[0].dotsPerMeterX() * 0.0254, 144, 0.1);
    const auto shade = [&](double x, double y) { // of the sheet
        return pages[0].pixelColor(static_cast<int>((36 + x) * 2), static_cast<int>((842 - 45 - y) * 2));
    };
    EXPECT_EQ(shade(101, 701), Qt::black);
    EXPECT_EQ(shade(149, 719), Qt::black);
    EXPECT_EQ(shade(98, 710), Qt::white);
    EXPECT_EQ(shade(152, 710), Qt::white);
    EXPECT_EQ(shade(125, 698), Qt::white);
    EXPECT_EQ(shade(125, 722), Qt::white);
}

TEST_F(PrintFrame, nothingIsDrawnBesideThePageSlice)
{
    form.draw = [&](Canvas& canvas) { canvas.fill({-1000, -1000, 3000, 3000}, blackColor); };
    const std::vector<QImage> pages = pictures(form, 72);
    EXPECT_EQ(pages[0].pixelColor(34, 400), Qt::white);
    EXPECT_EQ(pages[0].pixelColor(38, 400), Qt::black);
    EXPECT_EQ(pages[0].pixelColor(561, 400), Qt::white);
    EXPECT_EQ(pages[0].pixelColor(300, 43), Qt::white);
    EXPECT_EQ(pages[0].pixelColor(300, 47), Qt::black);
    EXPECT_EQ(pages[0].pixelColor(300, 799), Qt::white);
}

TEST_F(PrintFrame, aLineAlongAThousandPagesShowsOnEachOfThem)
{
    form.setFrame({523, 752'000});
    form.draw = [&](Canvas& canvas) {
        canvas.fill({0, 0, 523, 752'000}, whiteColor);
        Canvas::Path path;
        path.lineWidth = 4;
        path.add({100, 752'000}, {100, 0});
        canvas.stroke(path, blackColor);
    };
    for (const int page : {1, 500, 1000}) {
        QImage image(523, 752, QImage::Format_RGB32);
        QPainter painter(&image);
        Canvas canvas(painter, form.rectForPage(page, 752));
        form.drawRect(canvas);
        for (const int y : {0, 400, 751})
            EXPECT_EQ(image.pixelColor(100, y), Qt::black) << page << ' ' << y;
    }
}

TEST_F(PrintFrame, whatReachesBelowTheSheetIsCutThoughThePageGoesOn)
{
    form.draw = [&](Canvas& canvas) {
        canvas.fill({0, -400, 100, 500}, blackColor);
        canvas.text({200, -100}, u"below"_s, form.dataFont, blackColor);
    };
    const std::vector<QImage> pages = pictures(form, 72);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].pixelColor(50, 842 - 45 - 2), Qt::black);
    EXPECT_EQ(pages[1].pixelColor(50, 100), Qt::white);
    form.setFrame({523, 700}); // the sheet ends 52 above the page
    EXPECT_EQ(pictures(form, 72).front().pixelColor(50, 842 - 45 - 48), Qt::white);
    EXPECT_EQ(pictures(form, 72).front().pixelColor(50, 842 - 45 - 56), Qt::black);
    ZELVOR_NEEDS_PDF_TOOLS();
    EXPECT_TRUE(PrintedPages(form).words().empty());
}

TEST_F(PrintFrame, aRowAtAPageEdgeIsCutByTheSliceAndContinuesOnTheNextPage)
{
    form.setFrame({523, 1000});
    form.draw = [&](Canvas& canvas) { canvas.fill({0, 238, 100, 20}, blackColor); }; // the edge is at 248
    const std::vector<QImage> pages = pictures(form, 72);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].pixelColor(50, 842 - 45 - 2), Qt::black);
    EXPECT_EQ(pages[0].pixelColor(50, 842 - 45 + 2), Qt::white);
    EXPECT_EQ(pages[1].pixelColor(50, 45 + 8), Qt::black);
    EXPECT_EQ(pages[1].pixelColor(50, 45 + 12), Qt::white);
}

TEST_F(PrintFrame, aDashedLineHasItsPattern)
{
    form.draw = [&](Canvas& canvas) {
        Canvas::Path path{4, {10, 10}, {}};
        path.add({0, 700}, {100, 700});
        canvas.stroke(path, blackColor);
    };
    const QImage page = pictures(form, 72).front();
    EXPECT_EQ(page.pixelColor(36 + 5, 842 - 45 - 700), Qt::black);
    EXPECT_EQ(page.pixelColor(36 + 15, 842 - 45 - 700), Qt::white);
    EXPECT_EQ(page.pixelColor(36 + 25, 842 - 45 - 700), Qt::black);
}

TEST_F(PrintFrame, aMovedOriginMovesAllThatIsDrawnAndTheSheetStaysUsable)
{
    form.draw = [&](Canvas& canvas) {
        {
            Canvas moved = canvas.movedTo({100, 200});
            moved.fill({0, 0, 10, 10}, blackColor);
            moved.wedge({50, 50}, 20, 0, 180, blackColor);
            moved.polyline({{0, 100}, {100, 100}}, 4, blackColor, {0, 90, 50, 20});
        }
        canvas.fill({0, 0, 10, 10}, blackColor);
    };
    const QImage page = pictures(form, 72).front();
    const auto shade = [&](int x, int y) { return page.pixelColor(36 + x, 842 - 45 - y); };
    EXPECT_EQ(shade(105, 205), Qt::black);
    EXPECT_EQ(shade(115, 205), Qt::white);
    EXPECT_EQ(shade(150, 265), Qt::black); // the upper half of the disc
    EXPECT_EQ(shade(150, 240), Qt::white);
    EXPECT_EQ(shade(150, 275), Qt::white);
    EXPECT_EQ(shade(110, 301), Qt::black);
    EXPECT_EQ(shade(110, 304), Qt::white);
    EXPECT_EQ(shade(155, 300), Qt::white); // outside of what the line may show
    EXPECT_EQ(shade(5, 5), Qt::black);
}

TEST_F(PrintFrame, aRecordedPictureKeepsTheTexts)
{
    QPicture picture;
    {
        QPainter painter(&picture);
        Canvas canvas(painter, {0, 0, 523, 752});
        canvas.text({10, 700}, u"Kept"_s, form.titleFont, blackColor);
    }
    QImage image(523, 752, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawPicture(0, 0, picture);
    painter.end();
    int dark = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 100; ++x)
            dark += image.pixelColor(x, y).lightness() < 128;
    }
    EXPECT_GT(dark, 100);
}

TEST_F(PrintFrame, aPaperOfAnotherSizeHasPagesOfItsOwnHeight)
{
    form.setFrame({523, 1000});
    int pages = 0;
    form.draw = [&](Canvas& canvas) {
        EXPECT_EQ(canvas.slice().height(), ++pages == 1 ? 792 - 90 : 1000 - 702);
    };
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    EXPECT_TRUE(printOn(form, writer));
    EXPECT_EQ(pages, 2);
}

TEST_F(PrintFrame, onPaperOfAnyResolutionTheWordsStandAtTheSamePlace)
{
    form.draw = [&](Canvas& canvas) { canvas.text({200, 300}, u"Here"_s, form.dataFont, blackColor); };
    ZELVOR_NEEDS_PDF_TOOLS();
    for (const int resolution : {72, 300, 1200}) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            writer.setPageLayout(pageLayout(form));
            writer.setResolution(resolution);
            EXPECT_TRUE(printOn(form, writer));
        }
        const PrintedWord word = PrintedPages(buffer.data()).word(u"Here"_s);
        EXPECT_NEAR(word.left, 200, 0.02) << resolution;
        EXPECT_NEAR(word.bottom, 300, 0.1) << resolution;
    }
}

TEST_F(PrintFrame, withoutALogoNothingIsTakenFromTheSheet)
{
    withoutLogo();
    form.setData();
    EXPECT_EQ(form.delta, 0);
    EXPECT_TRUE(form.logo.isNull());
    EXPECT_EQ(form.warning, u""_s);
}

TEST_F(PrintFrame, aLogoOfExactlyTheLargestWidthIsNotScaled)
{
    useLogo({200, 77});
    form.setData();
    EXPECT_EQ(form.logoSize, QSizeF(200, 77));
    EXPECT_EQ(form.delta, 79);
    EXPECT_EQ(form.logo.size(), QSize(200, 77));
    EXPECT_TRUE(isDrawnRed());
}

TEST_F(PrintFrame, aWiderLogoIsMadeSmallerAndKeepsItsProportions)
{
    useLogo({201, 100});
    form.setData();
    EXPECT_NEAR(form.logoSize.width(), 200, 1e-9);
    EXPECT_NEAR(form.logoSize.height(), 100 / (201 / 200.0), 1e-9);
    useLogo({4000, 1000});
    form.setData();
    EXPECT_NEAR(form.logoSize.height(), 50, 1e-9);
    EXPECT_NEAR(form.delta, 52, 1e-9);
    EXPECT_EQ(form.logo.size(), QSize(800, 200)); // as many pixels as paper shows, no more
    EXPECT_TRUE(isDrawnRed());
}

TEST_F(PrintFrame, aNarrowLogoStaysAsItIs)
{
    useLogo({40, 300});
    form.setData();
    EXPECT_EQ(form.logoSize, QSizeF(40, 300));
    EXPECT_EQ(form.delta, 302);
}

TEST_F(PrintFrame, theLogoIsFlushWithTheTopOfTheSheet)
{
    useLogo({50, 50});
    form.setData();
    form.draw = [&](Canvas& canvas) { form.printLogo(canvas); };
    const QImage page = pictures(form, 72).front();
    // From x 1, and one point of it lies above the sheet.
    EXPECT_EQ(page.pixelColor(36, 60), Qt::white);
    EXPECT_EQ(page.pixelColor(38, 60), Qt::red);
    EXPECT_EQ(page.pixelColor(36 + 50, 60), Qt::red);
    EXPECT_EQ(page.pixelColor(36 + 52, 60), Qt::white);
    EXPECT_EQ(page.pixelColor(60, 45), Qt::red);
    EXPECT_EQ(page.pixelColor(60, 45 + 48), Qt::red);
    EXPECT_EQ(page.pixelColor(60, 45 + 50), Qt::white);
}

TEST_F(PrintFrame, withoutAPathTheProgramsOwnPictureIsUsed)
{
    setPath({});
    form.setData();
    EXPECT_FALSE(form.logo.isNull());
    EXPECT_EQ(form.warning, u""_s);
    EXPECT_EQ(form.logoSize, QSizeF(200, 42));
    EXPECT_EQ(form.delta, 44);
}

TEST_F(PrintFrame, aMissingLogoPrintsWithoutItAndSaysSo)
{
    const QString path = books.file(u"gone.png"_s);
    setPath(path);
    form.setData();
    EXPECT_EQ(form.delta, 0);
    EXPECT_EQ(form.warning,
              u"The company logo "_s + path + u" was not found, so the form was printed without it."_s);
    PrintedPages printed(form);
    EXPECT_FALSE(printed.pdf().isEmpty());
    setPath({}); // and the next time all is well
    form.setData();
    EXPECT_EQ(form.warning, u""_s);
}

TEST_F(PrintFrame, aLogoThatIsNoPicturePrintsWithoutItAndSaysSo)
{
    const QString text = books.file(u"text.png"_s);
    {
        QFile file(text);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("not a picture");
    }
    const QString pipe = books.file(u"pipe.png"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0); // reading it would never end
    for (const QString& path : {text, pipe, books.file(u"."_s), u"/dev/zero"_s}) {
        setPath(path);
        form.setData();
        EXPECT_TRUE(form.logo.isNull());
        EXPECT_EQ(form.delta, 0);
        EXPECT_TRUE(form.warning.contains(path)) << form.warning.toStdString();
        EXPECT_TRUE(form.warning.contains(u"cannot be read"_s));
    }
}

TEST_F(PrintFrame, aCutOffPictureIsNoLogo)
{
    useLogo({100, 100});
    QFile file(books.file(u"logo.png"_s));
    ASSERT_TRUE(file.resize(file.size() / 2));
    form.setData();
    EXPECT_TRUE(form.logo.isNull());
    EXPECT_FALSE(form.warning.isEmpty());
}

TEST_F(PrintFrame, aPictureThatClaimsToBeHugeTakesNoMemory)
{
    QFile file(books.file(u"huge.svg"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<svg xmlns='http://www.w3.org/2000/svg' width='90000' height='90000'/>");
    file.close();
    setPath(file.fileName());
    form.setData();
    EXPECT_TRUE(form.logo.isNull());
    EXPECT_TRUE(form.warning.contains(u"huge.svg"_s));
}

TEST_F(PrintFrame, theFirstLineOfAWrappedTextHoldsWhatFitsWithABlankBehindIt)
{
    const double blank = form.textSize(u" "_s, form.colDataFont).width();
    const double both = form.textSize(u"one two"_s, form.colDataFont).width();
    EXPECT_EQ(form.splitRow(u"one two three"_s, both + blank + 0.01),
              QStringList({u"one two"_s, u"three"_s}));
    EXPECT_EQ(form.splitRow(u"one two three"_s, both + blank), QStringList({u"one"_s, u"two"_s, u"three"_s}));
}

TEST_F(PrintFrame, aWordWiderThanTheWidthStandsAloneUncut)
{
    const QString wide = u"Donaudampfschifffahrtsgesellschaft"_s;
    EXPECT_EQ(form.splitRow(wide, 30), QStringList{wide});
    EXPECT_GT(form.textSize(wide, form.colDataFont).width(), 30);
    EXPECT_EQ(form.splitRow(u"a "_s + wide + u" b"_s, 30), QStringList({u"a"_s, wide, u"b"_s}));
}

TEST_F(PrintFrame, anEmptyTextYieldsOneEmptyLine)
{
    EXPECT_EQ(form.splitRow(QString(), 100), QStringList{QString()});
    EXPECT_EQ(form.splitRow(QString(), 0), QStringList{QString()});
}

TEST_F(PrintFrame, aLastLineThatRepeatsTheOneBeforeIsLeftOut)
{
    EXPECT_EQ(form.splitRow(u"same same"_s, 20), QStringList{u"same"_s});
    EXPECT_EQ(form.splitRow(u"same same other"_s, 20), QStringList({u"same"_s, u"same"_s, u"other"_s}));
}

TEST_F(PrintFrame, severalBlanksStayAsTheyAre)
{
    EXPECT_EQ(form.splitRow(u"a  b"_s, 100), QStringList{u"a  b"_s});
}

TEST_F(PrintFrame, figuresHaveTwoDigitsAndGroupsPartedByABlank)
{
    EXPECT_EQ(PrintView::numberText(Decimal::fromText(u"1234567.5")), u"1 234 567.50"_s);
    EXPECT_EQ(PrintView::numberText(Decimal::fromText(u"-1234.567")), u"-1 234.57"_s);
    EXPECT_EQ(PrintView::numberText(Decimal(0)), u"0.00"_s);
}

TEST_F(PrintFrame, theSettingsAreReadAnewEachTime)
{
    books.changeParams([](Params& params) { params.companyName = u"First"_s; });
    form.setData();
    EXPECT_EQ(form.params->companyName, u"First"_s);
    books.changeParams([](Params& params) { params.companyName = u"Second"_s; });
    form.setData();
    EXPECT_EQ(form.params->companyName, u"Second"_s);
}

TEST_F(PrintFrame, aFileWithoutSettingsPrintsWithEmptyOnes)
{
    ASSERT_EQ(books.db.remove(*books.appDelegate.params()), 1);
    form.setData();
    ASSERT_TRUE(form.params);
    EXPECT_EQ(form.params->companyName, u""_s);
    EXPECT_EQ(form.warning, u""_s);
}

} // namespace zelvor
