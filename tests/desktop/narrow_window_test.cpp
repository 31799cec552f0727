// The document form in a window that is hardly wide enough for it.
#include "core/doc_type.h"
#include "desktop/document_page_fixture.h"

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace zelvor {
namespace {

class NarrowWindowTest : public DocumentPageTest {
protected:
    void SetUp() override
    {
        DocumentPageTest::SetUp();
        changeParams([](Params& params) { params.useVAT = true; });
        openFilled(DocType::SellProduct);
        program.window().resize(800, 800);
        QCoreApplication::processEvents();
    }
    // By way of the windowing system, so that the focus moves as it does for a person.
    void doubleClick(const QModelIndex& index)
    {
        const QPoint middle = table()->visualRect(index).center();
        ASSERT_TRUE(table()->viewport()->rect().contains(middle));
        QTest::mouseDClick(program.window().windowHandle(), Qt::LeftButton, {},
                           table()->viewport()->mapTo(&program.window(), middle));
    }
};

TEST_F(NarrowWindowTest, aFigureGoesIntoTheCellThatIsDoubleClickedWhileAnotherOneIsEdited)
{
    entry()->setFocus();
    write(u"chai"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(focusName(), u"cellEditor"_s); // the amount
    QCoreApplication::processEvents();       // the row has its place
    write(u"2"_s);
    QScrollBar* const bar = table()->horizontalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(table()->horizontalHeader()->sectionPosition(cell(0, u"price"_s).column()));
    const int scrolled = bar->value();
    ASSERT_GT(scrolled, 0);
    doubleClick(cell(0, u"price"_s));
    EXPECT_EQ(bar->value(), scrolled);
    ASSERT_EQ(focusName(), u"cellEditor"_s);
    write(u"30"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"amount"_s), u"2.00"_s);
    EXPECT_EQ(text(0, u"price"_s), u"30.00"_s);
}

TEST_F(NarrowWindowTest, theWindowDoesNotBecomeSmallerThanAFormNeeds)
{
    MainWindow& window = program.window();
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize room = window.screen()->availableSize() - frame; // a small screen holds the window whole
    ASSERT_GT(room.height(), 640);
    window.resize(300, 200);
    EXPECT_EQ(window.size(), QSize(std::min(1000, room.width()), 640));
}

TEST_F(NarrowWindowTest, theLeastWindowShowsRowsOfADocumentAndTheLineToTypeInto)
{
    typeRow(u"chai"_s, u"2"_s, u"30"_s);
    typeRow(u"chang"_s, u"1"_s, u"20"_s);
    MainWindow& window = program.window();
    window.resize(800, 640);
    QCoreApplication::processEvents();
    ASSERT_EQ(window.size(), QSize(800, 640));
    const QRect shown = table()->viewport()->rect();
    EXPECT_TRUE(shown.contains(table()->visualRect(cell(0, u"name"_s)).center()));
    EXPECT_TRUE(shown.contains(table()->visualRect(cell(1, u"name"_s)).center()));
    ASSERT_NE(entry(), nullptr);
    const QWidget* const sheet = program.find(u"documentSheet"_s);
    EXPECT_TRUE(sheet->rect().contains(QRect(entry()->mapTo(sheet, QPoint()), entry()->size())));
}

TEST_F(NarrowWindowTest, theLeastWindowHasRoomForEveryFieldOfAForm)
{
    MainWindow& window = program.window();
    for (const DocType type : {DocType::SellProduct, DocType::MoveProduct, DocType::BuyProduct}) {
        openFilled(type);
        window.setFixedSize(1000, 640); // the screen of the tests is smaller than the least window
        QCoreApplication::processEvents();
        const Page& page = *window.activePage();
        EXPECT_GE(page.width(), page.minimumSizeHint().width()) << rawValue(type);
        EXPECT_GE(page.height(), page.minimumSizeHint().height()) << rawValue(type);
    }
}

} // namespace
} // namespace zelvor
