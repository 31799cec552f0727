#include "catalogs/measurement.h"
#include "desktop/catalog_page_fixture.h"

namespace zelvor {
namespace {

class MeasurementsPage : public CatalogPageTest {
protected:
    void openSampleList()
    {
        for (const QString& name : {u"Piece"_s, u"Box"_s}) {
            Measurement record;
            record.name = name;
            record.shorthand = name.left(2);
            store(std::move(record));
        }
        openPage(DocType::MeasurementCatalog);
    }
};

TEST_F(MeasurementsPage, aUnitIsAddedByKeysAlone)
{
    openPage(DocType::MeasurementCatalog);
    EXPECT_NE(program.find<QLabel>(u"emptyText"_s), nullptr);
    press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(isOpen(u"measurementPopover"_s));
    EXPECT_EQ(program.find<QLabel>(u"measurementPopoverTitle"_s)->text(), u"Add New Unit"_s);
    write(u"Piece"_s);
    press(Qt::Key_Tab);
    write(u"pcs"_s);
    press(Qt::Key_Return);
    ASSERT_NE(stored<Measurement>(1), nullptr);
    EXPECT_EQ(stored<Measurement>(1)->shorthand, u"pcs"_s);
    EXPECT_EQ(text(u"Piece"_s, u"Shorthand"_s), u"pcs"_s);
    EXPECT_EQ(currentName(), u"Piece"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(MeasurementsPage, theSharedFormPointsAtTheRowOrTheAddButton)
{
    openSampleList();
    program.clickCell(list(), cell(u"Piece"_s));
    press(Qt::Key_F2);
    QWidget* const panel = program.find(u"measurementPopover"_s);
    ASSERT_NE(panel, nullptr);
    const QRect row = table()->globalRowRect(table()->currentRow());
    EXPECT_NEAR(panel->mapToGlobal(QPoint()).y(), row.bottom(), 4);
    press(Qt::Key_Escape);
    program.click(u"addMeasurementButton"_s);
    QWidget* const button = program.find(u"addMeasurementButton"_s);
    EXPECT_NEAR(panel->mapToGlobal(QPoint()).y(), button->mapToGlobal(QPoint(0, button->height())).y(), 4);
    press(Qt::Key_Escape);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(MeasurementsPage, aUnitIsEditedAndRenamedInTheList)
{
    openSampleList();
    program.doubleClickCell(list(), cell(u"Piece"_s));
    EXPECT_EQ(program.find<QLabel>(u"measurementPopoverTitle"_s)->text(), u"Edit Unit"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(program.find<QLabel>(u"measurementWarning"_s)->text(), u"Field 'Name' is required!"_s);
    EXPECT_FALSE(in(u"measurementPopover"_s, u"okButton"_s)->isEnabled());
    write(u"Article"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(stored<Measurement>(1)->name, u"Article"_s);
    EXPECT_EQ(names(), u"Article Box"_s);
    EXPECT_EQ(currentName(), u"Article"_s);
}

TEST_F(MeasurementsPage, aTickHidesAUnit)
{
    openSampleList();
    tick(u"Box"_s, u"Hidden"_s);
    EXPECT_TRUE(stored<Measurement>(2)->isHidden);
    EXPECT_EQ(state(u"Box"_s, u"Hidden"_s), Qt::Checked);
    press(Qt::Key_Space);
    EXPECT_FALSE(stored<Measurement>(2)->isHidden);
}

TEST_F(MeasurementsPage, theFormOutlivesThePage)
{
    openSampleList();
    workspace().closeTab(0);
    openPage(DocType::MeasurementCatalog);
    press(Qt::Key_Insert);
    ASSERT_TRUE(isOpen(u"measurementPopover"_s));
    write(u"Crate"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Box Crate Piece"_s);
    EXPECT_EQ(currentName(), u"Crate"_s);
}

TEST_F(MeasurementsPage, tabReachesTheToolsInReadingOrder)
{
    openSampleList();
    program.clickCell(list(), cell(u"Box"_s));
    program.find(u"searchLine"_s)->setFocus();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"addMeasurementButton"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), u"editButton"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(listHasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Return);
    EXPECT_TRUE(isOpen(u"measurementPopover"_s));
}

} // namespace
} // namespace zelvor
