#include "catalogs/measurement.h"
#include "catalogs/product.h"
#include "catalogs/product_view_controller.h"
#include "desktop/catalog_page_fixture.h"
#include "desktop/popover_panel.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>

namespace zelvor {
namespace {

class ProductsPage : public CatalogPageTest {
protected:
    // Drinks(Juice Water) Food(Bread) Soap
    void openSampleTree()
    {
        const qint64 drinks = storeNamed<ProductGroup>(u"Drinks"_s);
        storeNamed<Product>(u"Water"_s, drinks);
        storeNamed<Product>(u"Juice"_s, drinks);
        storeNamed<Product>(u"Bread"_s, storeNamed<ProductGroup>(u"Food"_s));
        storeNamed<Product>(u"Soap"_s);
        openPage(DocType::ProductCatalog);
        tree()->expandAll();
    }
    std::shared_ptr<Product> product(const QString& name)
    {
        for (const auto& record : connector().freeSQL<Product>()) {
            if (record->name == name)
                return record;
        }
        return nullptr;
    }
    std::shared_ptr<ProductGroup> group(const QString& name)
    {
        for (const auto& record : connector().freeSQL<ProductGroup>()) {
            if (record->name == name)
                return record;
        }
        return nullptr;
    }
    void edit(const QString& name)
    {
        program.clickCell(list(), cell(name));
        press(Qt::Key_F2);
    }
};

TEST_F(ProductsPage, theFirstProductIsAddedByKeysAlone)
{
    openPage(DocType::ProductCatalog);
    ASSERT_NE(program.find<QLabel>(u"emptyText"_s), nullptr);
    EXPECT_TRUE(listHasFocus());
    press(Qt::Key_Insert);
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_EQ(focusName(), u"productName"_s);
    write(u"Chai"_s); // over the proposed name, which stands selected
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    ASSERT_NE(product(u"Chai"_s), nullptr);
    EXPECT_EQ(names(), u"Chai"_s);
    EXPECT_EQ(currentName(), u"Chai"_s);
    EXPECT_TRUE(listHasFocus());
    EXPECT_EQ(program.find<QLabel>(u"emptyText"_s), nullptr);

    press(Qt::Key_N, Qt::ControlModifier);
    write(u"Chang"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Chai Chang"_s);
    EXPECT_EQ(currentName(), u"Chang"_s);
}

TEST_F(ProductsPage, theAddButtonAsksWhatToAdd)
{
    openPage(DocType::ProductCatalog);
    addByMenu(u"addProductButton"_s, 1);
    ASSERT_TRUE(isOpen(u"productGroupPopover"_s));
    EXPECT_EQ(program.find<QLabel>(u"productGroupPopoverName"_s)->text(), u"Add New Product Group"_s);
    program.type(u"productGroupName"_s, u"Drinks"_s);
    program.click(u"productGroupOkButton"_s);
    ASSERT_NE(group(u"Drinks"_s), nullptr);
    addByMenu(u"addProductButton"_s, 0);
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_EQ(program.find<QLabel>(u"productPopoverName"_s)->text(), u"Add New Product"_s);
    choose(u"productGroupSelect"_s, u"Dri"_s);
    program.type(u"productName"_s, u"Chai"_s);
    program.click(u"productOkButton"_s);
    EXPECT_EQ(names(), u"Drinks(Chai)"_s);
    EXPECT_EQ(product(u"Chai"_s)->parentID, group(u"Drinks"_s)->id);
    // The row is shown although its group was closed.
    EXPECT_TRUE(tree()->isExpanded(cell(u"Drinks"_s).siblingAtColumn(0)));
    EXPECT_EQ(currentName(), u"Chai"_s);
    EXPECT_FALSE(list()->visualRect(list()->currentIndex()).isEmpty());
}

TEST_F(ProductsPage, theAddMenuOpensByTheKeyboard)
{
    openPage(DocType::ProductCatalog);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down}) {
        bool opened = false;
        bool asked = false;
        QTimer::singleShot(20, [&] {
            asked = true;
            QWidget* const menu = QApplication::activePopupWidget();
            opened = qobject_cast<QMenu*>(menu) != nullptr;
            if (menu)
                QTest::keyClick(menu, Qt::Key_Escape);
        });
        QTest::keyClick(program.find(u"addProductButton"_s), key,
                        key == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier);
        ASSERT_TRUE(QTest::qWaitFor([&] { return asked; }));
        EXPECT_TRUE(opened);
    }
}

TEST_F(ProductsPage, everyFieldOfTheFormIsStoredAndShownAgain)
{
    Measurement piece;
    piece.name = u"Piece"_s;
    piece.shorthand = u"pcs"_s;
    store(piece);
    Measurement box;
    box.name = u"Box"_s;
    store(box);
    openPage(DocType::ProductCatalog);
    press(Qt::Key_Insert);
    program.type(u"productName"_s, u"Chai"_s);
    choose(u"productMeasurementSelect"_s, u"Pie"_s);
    choose(u"productPackSelect"_s, u"Box"_s);
    program.type(u"productPackAmount"_s, u"12"_s);
    program.type(u"productBaseCost"_s, u"12.5"_s);
    program.type(u"productPriceCost"_s, u"18,75"_s);
    program.type(u"productVatRate"_s, u"18.5"_s);
    program.type(u"productGstRate"_s, u"7"_s);
    program.type(u"productDescription"_s, u"tea"_s);
    program.click(u"productIsIntangibleCheckBox"_s);
    program.click(u"productOkButton"_s);
    const auto chai = product(u"Chai"_s);
    ASSERT_NE(chai, nullptr);
    EXPECT_EQ(chai->measurementID, 1);
    EXPECT_EQ(chai->packID, 2);
    EXPECT_EQ(chai->innerPackAmount.toText(), u"12"_s);
    EXPECT_EQ(chai->innerBaseCost.toText(), u"12.5"_s);
    EXPECT_EQ(chai->innerPriceCost.toText(), u"18.75"_s);
    EXPECT_EQ(chai->innerVATRate.toText(), u"18.5"_s);
    EXPECT_EQ(chai->innerGSTRate.toText(), u"7"_s);
    EXPECT_TRUE(chai->isIntangible);
    EXPECT_EQ(chai->descriptionString, u"tea"_s);
    EXPECT_EQ(text(u"Chai"_s, u"Unit"_s), u"Piece"_s);
    EXPECT_EQ(text(u"Chai"_s, u"Price"_s), u"18.75"_s);
    EXPECT_EQ(state(u"Chai"_s, u"Intangible"_s), Qt::Checked);

    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QLabel>(u"productPopoverName"_s)->text(), u"Edit Product"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"productPriceCost"_s)->text(), u"18.75"_s);
    EXPECT_EQ(program.find<QComboBox>(u"productPackSelect"_s)->currentText(), u"Box"_s);
    EXPECT_EQ(program.find<QPlainTextEdit>(u"productDescription"_s)->toPlainText(), u"tea"_s);
}

TEST_F(ProductsPage, anEditedProductShowsItsNewFiguresAtOnce)
{
    openSampleTree();
    program.doubleClickCell(list(), cell(u"Juice"_s));
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    program.type(u"productPriceCost"_s, u"3.2"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    EXPECT_EQ(product(u"Juice"_s)->innerPriceCost.toText(), u"3.2"_s);
    EXPECT_EQ(text(u"Juice"_s, u"Price"_s), u"3.20"_s);
    EXPECT_EQ(currentName(), u"Juice"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ProductsPage, escapeStoresNothingAndGoesBackToTheList)
{
    openSampleTree();
    edit(u"Juice"_s);
    write(u"Other"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    EXPECT_EQ(product(u"Other"_s), nullptr);
    EXPECT_EQ(currentName(), u"Juice"_s);
    EXPECT_TRUE(listHasFocus());
    press(Qt::Key_Insert);
    write(u"Other"_s);
    program.click(u"cancelButton"_s);
    EXPECT_EQ(countOf<Product>(), 4);
    EXPECT_EQ(currentName(), u"Juice"_s);
}

TEST_F(ProductsPage, aProductWithoutANameIsNotStored)
{
    openSampleTree();
    edit(u"Juice"_s);
    press(Qt::Key_Backspace);
    EXPECT_EQ(program.find<QLabel>(u"productError"_s)->text(), u"Field 'Name' is required!"_s);
    EXPECT_FALSE(program.find(u"productOkButton"_s)->isEnabled());
    press(Qt::Key_Return);
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_NE(product(u"Juice"_s), nullptr);
    write(u"J"_s);
    EXPECT_EQ(program.find<QLabel>(u"productError"_s)->text(), QString());
    press(Qt::Key_Return);
    EXPECT_NE(product(u"J"_s), nullptr);
}

TEST_F(ProductsPage, theBaseCostOpensOnlyBehindAQuestion)
{
    openSampleTree();
    edit(u"Juice"_s);
    ASSERT_FALSE(program.find(u"productBaseCost"_s)->isEnabled());
    dialogs().answers = {firstButton + 1, firstButton};
    program.click(u"productBaseCostOpenButton"_s);
    ASSERT_EQ(dialogs().questions.size(), 1u);
    EXPECT_EQ(dialogs().questions.back().messageText, u"Enable product base cost"_s);
    EXPECT_FALSE(program.find(u"productBaseCost"_s)->isEnabled());
    EXPECT_TRUE(program.find<QToolButton>(u"productBaseCostOpenButton"_s)->isChecked());

    program.click(u"productBaseCostOpenButton"_s);
    EXPECT_TRUE(program.find(u"productBaseCost"_s)->isEnabled());
    EXPECT_EQ(focusName(), u"productBaseCost"_s);
    write(u"4.5"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(product(u"Juice"_s)->innerBaseCost.toText(), u"4.5"_s);
    EXPECT_EQ(text(u"Juice"_s, u"Base Cost"_s), u"4.50"_s);

    press(Qt::Key_F2);
    EXPECT_FALSE(program.find(u"productBaseCost"_s)->isEnabled());
}

TEST_F(ProductsPage, aGroupAddedFromTheProductsFormIsChosenThere)
{
    openSampleTree();
    press(Qt::Key_Insert);
    write(u"Milk"_s);
    program.click(u"addProductGroupFromPopover"_s);
    ASSERT_TRUE(isOpen(u"productGroupPopover"_s));
    EXPECT_EQ(focusName(), u"productGroupName"_s);
    write(u"Dairy"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"productGroupPopover"_s));
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_EQ(program.find<QComboBox>(u"productGroupSelect"_s)->currentText(), u"Dairy"_s);
    EXPECT_EQ(focusName(), u"productGroupSelect"_s);
    press(Qt::Key_Return);
    ASSERT_NE(product(u"Milk"_s), nullptr);
    EXPECT_EQ(product(u"Milk"_s)->parentID, group(u"Dairy"_s)->id);
    EXPECT_EQ(currentName(), u"Milk"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(ProductsPage, aGroupThatWasNotAddedAfterAllLeavesTheProductsForm)
{
    openSampleTree();
    edit(u"Soap"_s);
    write(u"Soap bar"_s);
    program.click(u"addProductGroupFromPopover"_s);
    write(u"Never"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(u"productGroupPopover"_s));
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_EQ(program.find<QLineEdit>(u"productName"_s)->text(), u"Soap bar"_s);
    press(Qt::Key_Return);
    EXPECT_NE(product(u"Soap bar"_s), nullptr);
    EXPECT_EQ(countOf<ProductGroup>(), 2);
    EXPECT_EQ(countOf<Product>(), 4);
}

TEST_F(ProductsPage, unitsAddedFromTheFormAreChosenWhereTheyWereAddedFrom)
{
    openSampleTree();
    edit(u"Soap"_s);
    program.click(u"newMeasurement"_s);
    ASSERT_TRUE(isOpen(u"measurementPopover"_s));
    EXPECT_EQ(focusName(), u"measurementName"_s);
    write(u"Bar"_s);
    press(Qt::Key_Tab);
    write(u"br"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"measurementPopover"_s));
    EXPECT_EQ(program.find<QComboBox>(u"productMeasurementSelect"_s)->currentText(), u"Bar"_s);
    EXPECT_EQ(focusName(), u"productMeasurementSelect"_s);
    program.click(u"newPack"_s);
    write(u"Crate"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QComboBox>(u"productPackSelect"_s)->currentText(), u"Crate"_s);
    EXPECT_EQ(program.find<QComboBox>(u"productMeasurementSelect"_s)->currentText(), u"Bar"_s);
    program.click(u"newPack"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    EXPECT_EQ(product(u"Soap"_s)->measurementID, 1);
    EXPECT_EQ(product(u"Soap"_s)->packID, 2);
    EXPECT_EQ(stored<Measurement>(1)->shorthand, u"br"_s);
    EXPECT_EQ(countOf<Measurement>(), 2);
    EXPECT_EQ(text(u"Soap"_s, u"Unit"_s), u"Bar"_s);
}

TEST_F(ProductsPage, aGroupCannotBePutUnderItself)
{
    openSampleTree();
    edit(u"Drinks"_s);
    ASSERT_TRUE(isOpen(u"productGroupPopover"_s));
    choose(u"productGroupGroupSelect"_s, u"Dri"_s);
    EXPECT_NE(program.find<QComboBox>(u"productGroupGroupSelect"_s)->currentText(), u"Drinks"_s);
    choose(u"productGroupGroupSelect"_s, u"Fo"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(group(u"Drinks"_s)->parentID, group(u"Food"_s)->id);
    EXPECT_EQ(names(), u"Food(Bread Drinks(Juice Water)) Soap"_s);
    EXPECT_EQ(currentName(), u"Drinks"_s);
}

TEST_F(ProductsPage, rowsAreMovedByDragAndDrop)
{
    openSampleTree();
    EXPECT_TRUE(dropOn(u"Soap"_s, u"Food"_s));
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread Soap)"_s);
    EXPECT_EQ(product(u"Soap"_s)->parentID, group(u"Food"_s)->id);
    EXPECT_TRUE(dropOn(u"Food"_s, u"Drinks"_s));
    EXPECT_EQ(names(), u"Drinks(Food(Bread Soap) Juice Water)"_s);
    EXPECT_EQ(group(u"Food"_s)->parentID, group(u"Drinks"_s)->id);
    tree()->expandAll();
    EXPECT_TRUE(dropOnGround(u"Bread"_s));
    EXPECT_EQ(names(), u"Drinks(Food(Soap) Juice Water) Bread"_s);
    EXPECT_EQ(product(u"Bread"_s)->parentID, 0);
}

TEST_F(ProductsPage, aDropThatMakesNoSenseIsRefused)
{
    openSampleTree();
    ASSERT_TRUE(dropOn(u"Food"_s, u"Drinks"_s));
    tree()->expandAll();
    const QString before = names();
    EXPECT_FALSE(dropOn(u"Drinks"_s, u"Food"_s));
    EXPECT_FALSE(dropOn(u"Drinks"_s, u"Drinks"_s));
    EXPECT_FALSE(dropOn(u"Food"_s, u"Soap"_s));
    EXPECT_EQ(names(), before);
    EXPECT_EQ(group(u"Drinks"_s)->parentID, 0);
}

TEST_F(ProductsPage, ticksInTheListAreStoredAtOnce)
{
    openSampleTree();
    tick(u"Juice"_s, u"Hidden"_s);
    EXPECT_TRUE(product(u"Juice"_s)->isHidden);
    EXPECT_EQ(state(u"Juice"_s, u"Hidden"_s), Qt::Checked);
    tick(u"Juice"_s, u"Intangible"_s);
    EXPECT_TRUE(product(u"Juice"_s)->isIntangible);
    tick(u"Drinks"_s, u"Hidden"_s);
    EXPECT_TRUE(group(u"Drinks"_s)->isHidden);
    tick(u"Juice"_s, u"Hidden"_s);
    EXPECT_FALSE(product(u"Juice"_s)->isHidden);
    EXPECT_FALSE(cell(u"Drinks"_s, u"Intangible"_s).data(Qt::CheckStateRole).isValid());
    EXPECT_EQ(text(u"Drinks"_s, u"Price"_s), QString());
}

TEST_F(ProductsPage, aTickThatCannotBeStoredGoesBack)
{
    openSampleTree();
    program.program.connector->failCall(1, FaultInjectingConnector::Update);
    tick(u"Juice"_s, u"Hidden"_s);
    EXPECT_TRUE(program.program.connector->hasFailed());
    EXPECT_EQ(state(u"Juice"_s, u"Hidden"_s), Qt::Unchecked);
    EXPECT_FALSE(product(u"Juice"_s)->isHidden);
}

TEST_F(ProductsPage, aProductThatCannotBeStoredClosesTheFormAndChangesNothing)
{
    openSampleTree();
    press(Qt::Key_Insert);
    write(u"Lost"_s);
    program.program.connector->failCall(1, FaultInjectingConnector::Insert);
    press(Qt::Key_Return);
    EXPECT_TRUE(program.program.connector->hasFailed());
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    EXPECT_EQ(product(u"Lost"_s), nullptr);
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread) Soap"_s);
    EXPECT_TRUE(listHasFocus());

    edit(u"Juice"_s);
    write(u"Lost"_s);
    program.program.connector->failCall(1, FaultInjectingConnector::Update);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread) Soap"_s);
    EXPECT_EQ(currentName(), u"Juice"_s);
}

TEST_F(ProductsPage, theSearchLeavesWhatMatchesWithItsGroup)
{
    openSampleTree();
    press(Qt::Key_F, Qt::ControlModifier);
    if (focusName() != u"searchLine")
        program.find(u"searchLine"_s)->setFocus();
    write(u"jui"_s);
    EXPECT_EQ(names(), u"Drinks(Juice)"_s);
    press(Qt::Key_Down);
    EXPECT_TRUE(listHasFocus());
    // What is added while the search hides it is shown all the same.
    press(Qt::Key_Insert);
    write(u"Milk"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QLineEdit>(u"searchLine"_s)->text(), QString());
    EXPECT_EQ(currentName(), u"Milk"_s);
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread) Milk Soap"_s);
}

TEST_F(ProductsPage, aClickOnTheHeadTurnsTheOrderOfNamesAround)
{
    openSampleTree();
    EXPECT_EQ(tree()->header()->sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(u"Name"_s);
    EXPECT_EQ(names(), u"Soap Food(Bread) Drinks(Water Juice)"_s);
    EXPECT_EQ(tree()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeader(u"Name"_s);
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread) Soap"_s);
    clickHeader(u"Name"_s);
    clickHeader(u"Price"_s); // does not sort
    EXPECT_EQ(names(), u"Soap Food(Bread) Drinks(Water Juice)"_s);
    // A tree that is read anew stands by name again, and its head says so.
    press(Qt::Key_Insert);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Drinks(Juice Water) Food(Bread) New Item Soap"_s);
    EXPECT_EQ(tree()->header()->sortIndicatorSection(), columnTitled(list(), u"Name"_s));
    EXPECT_EQ(tree()->header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(ProductsPage, openGroupsStayOpenWhenTheTreeIsReadAnew)
{
    openSampleTree();
    tree()->collapse(cell(u"Food"_s).siblingAtColumn(0));
    press(Qt::Key_Insert);
    write(u"Tea"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(tree()->isExpanded(cell(u"Drinks"_s).siblingAtColumn(0)));
    EXPECT_FALSE(tree()->isExpanded(cell(u"Food"_s).siblingAtColumn(0)));
}

TEST_F(ProductsPage, whatOnlyADocumentNeedsIsNotShown)
{
    openSampleTree();
    for (const QString& title : {u"Selected"_s, u"Qty"_s, u"Reserve"_s})
        EXPECT_TRUE(tree()->isColumnHidden(columnTitled(list(), title))) << title.toStdString();
    EXPECT_FALSE(tree()->isColumnHidden(columnTitled(list(), u"Price"_s)));
}

TEST_F(ProductsPage, tabGoesThroughTheFormAsItReads)
{
    openSampleTree();
    edit(u"Soap"_s);
    QStringList reached;
    for (int i = 0; i < 18; ++i) {
        reached << focusName();
        press(Qt::Key_Tab);
    }
    const QStringList expected{u"productName"_s,
                               u"productGroupSelect"_s,
                               u"addProductGroupFromPopover"_s,
                               u"productMeasurementSelect"_s,
                               u"newMeasurement"_s,
                               u"productPackSelect"_s,
                               u"newPack"_s,
                               u"productPackAmount"_s,
                               u"productBaseCostOpenButton"_s,
                               u"productPriceCost"_s,
                               u"productVatRate"_s,
                               u"productGstRate"_s,
                               u"productIsIntangibleCheckBox"_s,
                               u"productDescription"_s,
                               u"cancelButton"_s,
                               u"productOkButton"_s,
                               u"productName"_s,
                               u"productGroupSelect"_s};
    EXPECT_EQ(reached.join(u' ').toStdString(), expected.join(u' ').toStdString());
}

TEST_F(ProductsPage, theFormStaysInTheWindowAndLeavesItsRowInSight)
{
    for (int i = 0; i < 60; ++i)
        storeNamed<Product>(u"Product %1"_s.arg(i, 2, 10, QLatin1Char('0')));
    openPage(DocType::ProductCatalog);
    for (const QSize size : {QSize(1000, 640), QSize(1440, 900)}) {
        program.window().resize(size);
        for (const QString& name : {u"Product 00"_s, u"Product 12"_s, u"Product 59"_s}) {
            edit(name);
            QWidget* const form = program.find(u"productPopover"_s);
            ASSERT_NE(form, nullptr);
            const QRect panel(form->mapToGlobal(QPoint()), form->size());
            const QRect window(program.window().mapToGlobal(QPoint()), program.window().size());
            EXPECT_TRUE(window.contains(panel)) << name.toStdString();
            const QRect row = tree()->globalRowRect(tree()->currentNode());
            EXPECT_FALSE(panel.adjusted(0, 2, 0, -2).intersects(row)) << name.toStdString();
            const QRect cellInList = list()->visualRect(list()->currentIndex());
            EXPECT_GE(cellInList.top(), 0) << name.toStdString();
            EXPECT_LE(cellInList.bottom(), list()->viewport()->height()) << name.toStdString();
            press(Qt::Key_Escape);
        }
    }
}

TEST_F(ProductsPage, aFormThatDoesNotFitScrollsToTheFieldWithTheCursor)
{
    openSampleTree();
    program.window().resize(1000, 300);
    edit(u"Soap"_s);
    QWidget* const form = program.find(u"productPopover"_s);
    ASSERT_NE(form, nullptr);
    for (int i = 0; i < 16; ++i) {
        press(Qt::Key_Tab);
        QWidget* const field = QApplication::focusWidget();
        EXPECT_FALSE(field->visibleRegion().isEmpty()) << focusName().toStdString();
        EXPECT_TRUE(form->rect().contains(QRect(field->mapTo(form, QPoint()), field->size())))
            << focusName().toStdString();
    }
}

TEST_F(ProductsPage, aTabClosedUnderItsFormCancelsIt)
{
    openSampleTree();
    edit(u"Soap"_s);
    write(u"Never"_s);
    workspace().closeTab(0);
    EXPECT_FALSE(workspace().productController->productPopover.isOpen());
    openPage(DocType::ProductCatalog);
    EXPECT_FALSE(isOpen(u"productPopover"_s));
    press(Qt::Key_Insert);
    EXPECT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_EQ(program.window().findChildren<PopoverPanel*>(u"productPopover"_s).size(), 1);
    press(Qt::Key_Escape);
    EXPECT_NE(product(u"Soap"_s), nullptr);
}

TEST_F(ProductsPage, noKeyLeadsAwayFromAnOpenForm)
{
    openPage(DocType::StockCatalog);
    openSampleTree();
    edit(u"Soap"_s);
    write(u"Soap bar"_s);
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_W, Qt::ControlModifier);
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(workspace().tabView.header.tabs().size(), 2u);
    ASSERT_TRUE(isOpen(u"productPopover"_s));
    EXPECT_TRUE(program.find(u"productPopover"_s)->isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_Return);
    EXPECT_NE(product(u"Soap bar"_s), nullptr);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focusName(), u"searchLine"_s);
}

TEST_F(ProductsPage, theEditButtonServesTheSelectedRowOnly)
{
    storeNamed<Product>(u"Soap"_s);
    openPage(DocType::ProductCatalog);
    ASSERT_FALSE(program.find(u"editButton"_s)->isEnabled());
    program.clickCell(list(), cell(u"Soap"_s));
    program.click(u"editButton"_s);
    EXPECT_TRUE(isOpen(u"productPopover"_s));
}

TEST_F(ProductsPage, aNameIsNeverTakenForMarkup)
{
    storeNamed<ProductGroup>(u"<b>A & B</b>"_s);
    openPage(DocType::ProductCatalog);
    press(Qt::Key_Insert);
    choose(u"productGroupSelect"_s, u"<b"_s);
    EXPECT_EQ(program.find<QComboBox>(u"productGroupSelect"_s)->currentText(), u"<b>A & B</b>"_s);
}

} // namespace
} // namespace zelvor
