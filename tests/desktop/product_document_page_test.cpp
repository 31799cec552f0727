#include "document_page_fixture.h"

#include "catalogs/contragent_select_view.h"
#include "catalogs/product_view_controller.h"
#include "desktop/theme.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

namespace zelvor {
namespace {

class ProductDocumentPageTest : public DocumentPageTest {
protected:
    // The names of the inputs that can be seen.
    QString inputs()
    {
        QStringList shown;
        for (const QString& name :
             {u"date"_s, u"stockFromSelect"_s, u"stockToSelect"_s, u"contragentField"_s, u"managerSelect"_s,
              u"deferment"_s, u"contragentBalance"_s, u"contragentDiscount"_s, u"contragentDiscountSlider"_s,
              u"shipment"_s, u"comment"_s}) {
            if (program.find(name))
                shown.append(name);
        }
        return shown.join(u' ');
    }
    // What the tree beside the rows says of the product's stock.
    QString onHandInTree(const QString& product)
    {
        const int column = tree()->outlineModel()->columnWithIdentifier(u"amount"_s);
        return treeRow(product).siblingAtColumn(column).data().toString();
    }
    bool isEnabled(const QString& name)
    {
        const QWidget* const widget = program.find(name);
        return widget && widget->isEnabled();
    }
    // By the command of the menu bar.
    void close()
    {
        auto* const entry = program.window().findChild<QAction*>(u"closeTab"_s);
        ASSERT_NE(entry, nullptr);
        entry->trigger();
        QCoreApplication::processEvents();
    }
    static QColor ink(const QWidget* widget, QPalette::ColorRole role = QPalette::WindowText)
    {
        return widget->palette().color(role);
    }
    static QColor red() { return textColor(redColor, QGuiApplication::palette()); }
    static QColor inOrder() { return textColor(inOrderColor, QGuiApplication::palette()); }
};

// --- what a type shows

TEST_F(ProductDocumentPageTest, eachTypeShowsExactlyItsFields)
{
    struct Shown {
        DocType type;
        const char* inputs;
    };
    const Shown table[] = {
        {DocType::BuyProduct, "date stockToSelect contragentField managerSelect deferment contragentBalance "
                              "shipment comment"},
        {DocType::Return, "date stockToSelect contragentField managerSelect deferment contragentBalance "
                          "shipment comment"},
        {DocType::SellProduct, "date stockFromSelect contragentField managerSelect deferment "
                               "contragentBalance contragentDiscount contragentDiscountSlider shipment "
                               "comment"},
        {DocType::SellIntangibles, "date contragentField managerSelect deferment contragentBalance "
                                   "contragentDiscount contragentDiscountSlider comment"},
        {DocType::MoveProduct, "date stockFromSelect stockToSelect managerSelect comment"},
        {DocType::AddProduct, "date stockToSelect managerSelect comment"},
        {DocType::DeleteProduct, "date stockFromSelect managerSelect comment"},
    };
    for (const Shown& row : table) {
        open(row.type);
        EXPECT_EQ(inputs(), QLatin1StringView(row.inputs)) << docTypeCase(row.type).toStdString();
    }
}

TEST_F(ProductDocumentPageTest, missingInputsAreRedAndMarkedUntilTheyAreFilled)
{
    open(DocType::SellProduct);
    const auto* const counterparty = program.find<QLabel>(u"contragentLabel"_s);
    ASSERT_NE(counterparty, nullptr);
    EXPECT_EQ(counterparty->text(), u"Counterparty *"_s);
    EXPECT_EQ(ink(counterparty), red());
    EXPECT_EQ(label(u"stockFromLabel"_s), u"From Warehouse"_s);
    EXPECT_EQ(ink(program.find(u"stockFromLabel"_s)), inOrder());
    form()->setContragentFromID(acme);
    EXPECT_EQ(counterparty->text(), u"Counterparty"_s);
    EXPECT_EQ(ink(counterparty), inOrder());
    EXPECT_EQ(label(u"contragentBalance"_s), u"-1\u202f250.00"_s);
    EXPECT_EQ(ink(program.find(u"contragentBalance"_s)), red());
    EXPECT_EQ(program.find<QLineEdit>(u"deferment"_s)->text(), u"14"_s);
}

TEST_F(ProductDocumentPageTest, theMarkOfAMissingInputStaysWhenTheColoursChange)
{
    open(DocType::SellProduct);
    QEvent changed(QEvent::ApplicationPaletteChange);
    QCoreApplication::sendEvent(program.find(u"contragentLabel"_s), &changed);
    EXPECT_EQ(label(u"contragentLabel"_s), u"Counterparty *"_s);
}

TEST_F(ProductDocumentPageTest, theCursorStartsInTheFirstMissingInput)
{
    open(DocType::SellProduct);
    EXPECT_EQ(focusName(), u"contragentField"_s);
    open(DocType::MoveProduct);
    EXPECT_EQ(focusName(), u"productEntry"_s); // both warehouses are the default one
    auto main = connector().select<Stock>(mainStock);
    main->isDefault = false;
    ASSERT_EQ(connector().update(*main), 1);
    open(DocType::AddProduct);
    EXPECT_EQ(focusName(), u"stockToSelect"_s);
}

TEST_F(ProductDocumentPageTest, aTaxThatTheProjectDoesNotKnowIsNotShown)
{
    open(DocType::SellProduct);
    EXPECT_EQ(program.find(u"vatCheck"_s), nullptr);
    EXPECT_EQ(program.find(u"gstCheck"_s), nullptr);
    changeParams([](Params& params) { params.useVAT = true; });
    open(DocType::SellProduct);
    ASSERT_NE(program.find<QCheckBox>(u"vatCheck"_s), nullptr);
    EXPECT_TRUE(program.find<QCheckBox>(u"vatCheck"_s)->isChecked());
    EXPECT_EQ(program.find(u"gstCheck"_s), nullptr);
}

// --- rows by keys

TEST_F(ProductDocumentPageTest, aWholeSaleIsMadeByKeysAlone)
{
    open(DocType::SellProduct);
    EXPECT_EQ(program.find<QComboBox>(u"stockFromSelect"_s)->currentText(), u"Main"_s);
    ASSERT_EQ(focusName(), u"contragentField"_s);
    write(u"a"_s); // opens the chooser, which goes on with the letter
    ASSERT_EQ(focusName(), u"contragentSearch"_s);
    write(u"cme"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentSearch"_s)->text(), u"acme"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentField"_s)->text(), u"Acme"_s);

    ASSERT_EQ(focusName(), u"productEntry"_s);
    write(u"cha"_s);
    ASSERT_NE(matches(), nullptr);
    EXPECT_EQ(matches()->model()->rowCount(), 2);
    press(Qt::Key_Return);
    ASSERT_EQ(focusName(), u"cellEditor"_s); // the amount
    write(u"2,5"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(focusName(), u"cellEditor"_s); // the price
    write(u"20"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(focusName(), u"productEntry"_s);
    EXPECT_EQ(text(0, u"name"_s), u"Chai"_s);
    EXPECT_EQ(text(0, u"total"_s), u"50.00"_s);

    write(u"chan"_s);
    press(Qt::Key_Return);
    write(u"1"_s);
    // What is still being typed is confirmed with the rest.
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(form()->document->confirmed);
    EXPECT_TRUE(dialogs().alerts.empty());
    EXPECT_EQ(onHand(chai), 36.5);
    EXPECT_EQ(onHand(chang), 16);
    EXPECT_EQ(connector().select<Contragent>(acme)->balance(), -1250 - 69);
    EXPECT_EQ(label(u"contragentBalance"_s), u"-1\u202f319.00"_s);
}

TEST_F(ProductDocumentPageTest, aWholePurchaseIsMadeByKeysAlone)
{
    open(DocType::BuyProduct);
    press(Qt::Key_Down);
    write(u"acme"_s);
    press(Qt::Key_Return);
    typeRow(u"chai"_s, u"10"_s, u"15.40"_s);
    EXPECT_EQ(label(u"balanceDue"_s), u"154.00"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(form()->document->confirmed);
    EXPECT_EQ(onHand(chai), 49);
}

TEST_F(ProductDocumentPageTest, theMatchesShowWhatTheWarehouseHoldsAndTheArrowsChoose)
{
    openFilled(DocType::SellProduct);
    entry()->setFocus();
    write(u"CHA"_s);
    ASSERT_NE(matches(), nullptr);
    const QAbstractItemModel* const model = matches()->model();
    EXPECT_EQ(model->index(0, 0).data().toString(), u"Chai"_s);
    EXPECT_EQ(model->index(0, 1).data().toString(), u"39.00"_s);
    EXPECT_EQ(model->index(0, 2).data().toString(), u"18.00"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"name"_s), u"Chang"_s);
    EXPECT_EQ(matches(), nullptr);
}

TEST_F(ProductDocumentPageTest, aMatchIsTakenByAClick)
{
    openFilled(DocType::SellProduct);
    entry()->setFocus();
    write(u"cha"_s);
    program.clickCell(matches(), matches()->model()->index(1, 0));
    EXPECT_EQ(text(0, u"name"_s), u"Chang"_s);
    EXPECT_EQ(focusName(), u"cellEditor"_s);
}

TEST_F(ProductDocumentPageTest, aNameThatMeansNothingTurnsRedAndAddsNothing)
{
    openFilled(DocType::SellProduct);
    entry()->setFocus();
    write(u"coffee"_s);
    EXPECT_EQ(matches(), nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(form()->mainView.numberOfRows(), 0);
    EXPECT_EQ(ink(entry(), QPalette::Text), red());
    EXPECT_EQ(entry()->toolTip(), u"No product of that name can be taken here."_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(entry()->text(), QString());
    EXPECT_NE(ink(entry(), QPalette::Text), red());
}

TEST_F(ProductDocumentPageTest, aWrongNumberStaysInItsCellAndStoresNothing)
{
    openFilled(DocType::SellProduct);
    entry()->setFocus();
    write(u"chai"_s);
    press(Qt::Key_Return);
    write(u"12x"_s);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(ink(editor(), QPalette::Text), red());
    EXPECT_EQ(editor()->toolTip(),
              u"This is not a number. Write 1234.50 or 1234,50. Escape brings the old one back."_s);
    press(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), u"12x"_s);
    EXPECT_EQ(form()->document->documentRows.front()->amount(), 1);
    // Nor is it confirmed past the wrong number.
    press(Qt::Key_Return, Qt::ControlModifier);
    program.click(u"confirmButton"_s);
    EXPECT_FALSE(form()->document->confirmed);
    EXPECT_EQ(focusName(), u"cellEditor"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(text(0, u"amount"_s), u"1.00"_s);
    EXPECT_EQ(label(u"totalAmount"_s), u"1.00"_s);
}

TEST_F(ProductDocumentPageTest, bothDecimalSeparatorsAreTaken)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"12,5"_s, u"18.25"_s);
    EXPECT_EQ(form()->document->documentRows.front()->innerAmount, Decimal::fromText(u"12.5"));
    EXPECT_EQ(form()->document->documentRows.front()->innerPriceCost, Decimal::fromText(u"18.25"));
}

TEST_F(ProductDocumentPageTest, aFigureTypedOnARowEditsItsAmount)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"2"_s, u"18"_s);
    press(Qt::Key_Up);
    ASSERT_EQ(focusName(), u"documentRows"_s);
    write(u"7"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"amount"_s), u"7.00"_s);
    press(Qt::Key_Escape);
    ASSERT_EQ(focusName(), u"documentRows"_s);
    write(u"c"_s); // letters are the next product's
    EXPECT_EQ(focusName(), u"productEntry"_s);
    write(u"h"_s);
    EXPECT_EQ(entry()->text(), u"ch"_s);
}

// --- rows from the tree

TEST_F(ProductDocumentPageTest, aProductIsDraggedOntoTheRowsTwiceAndIsOneRowOfTwo)
{
    openFilled(DocType::SellProduct);
    EXPECT_TRUE(drop(treeRow(u"Chai"_s), table()->viewport()));
    EXPECT_TRUE(drop(treeRow(u"Chang"_s), program.find(u"emptyText"_s)));
    EXPECT_TRUE(drop(treeRow(u"Chai"_s), entry()));
    ASSERT_EQ(form()->mainView.numberOfRows(), 2);
    EXPECT_EQ(text(0, u"name"_s), u"Chai"_s);
    EXPECT_EQ(text(0, u"amount"_s), u"2.00"_s);
    EXPECT_EQ(table()->currentRow(), 0);
    EXPECT_EQ(label(u"totalAmount"_s), u"3.00"_s);
}

TEST_F(ProductDocumentPageTest, aDoubleClickOrEnterInTheTreeAddsARowAndGoesToItsAmount)
{
    openFilled(DocType::SellProduct);
    program.doubleClickCell(tree(), treeRow(u"Chang"_s));
    ASSERT_EQ(focusName(), u"cellEditor"_s);
    write(u"3"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"amount"_s), u"3.00"_s);
    press(Qt::Key_Return);
    tree()->setFocus();
    tree()->setCurrentIndex(treeRow(u"Chai"_s));
    press(Qt::Key_Return);
    EXPECT_EQ(focusName(), u"cellEditor"_s);
    EXPECT_EQ(text(1, u"name"_s), u"Chai"_s);
}

TEST_F(ProductDocumentPageTest, theTreeNamesItsWarehouseAndFollowsIt)
{
    openFilled(DocType::SellProduct);
    EXPECT_EQ(label(u"stockNameLabelForProducts"_s), u"All Products on 'Main'"_s);
    EXPECT_TRUE(treeRow(u"Chai"_s).isValid());
    auto* const from = program.find<QComboBox>(u"stockFromSelect"_s);
    from->setFocus();
    QTest::keyClicks(from, u"Shop"_s);
    EXPECT_EQ(label(u"stockNameLabelForProducts"_s), u"All Products on 'Shop'"_s);
    EXPECT_FALSE(treeRow(u"Chai"_s).isValid());
    EXPECT_TRUE(treeRow(u"Delivery"_s).isValid());
}

TEST_F(ProductDocumentPageTest, theSearchLineOfTheTreeFindsByTheKeysOfTheMenu)
{
    openFilled(DocType::SellProduct);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focusName(), u"searchLine"_s);
    write(u"chan"_s);
    EXPECT_TRUE(treeRow(u"Chang"_s).isValid());
    EXPECT_FALSE(treeRow(u"Chai"_s).isValid());
}

TEST_F(ProductDocumentPageTest, aProductIsAddedToTheCatalogFromAPurchase)
{
    openFilled(DocType::BuyProduct);
    EXPECT_TRUE(isEnabled(u"addProductButton"_s));
    ASSERT_TRUE(form()->mainProductView().addProductButton.choose(0));
    ASSERT_NE(program.find(u"productPopover"_s), nullptr);
    program.type(u"productName"_s, u"Chamomile"_s);
    program.click(u"productOkButton"_s);
    EXPECT_EQ(program.find(u"productPopover"_s), nullptr);
    EXPECT_TRUE(treeRow(u"Chamomile"_s).isValid());
    entry()->setFocus();
    write(u"chamo"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(text(0, u"name"_s), u"Chamomile"_s);
    openFilled(DocType::SellProduct);
    EXPECT_FALSE(isEnabled(u"addProductButton"_s));
}

TEST_F(ProductDocumentPageTest, theTreeShowsNameStockAndPriceWithoutRollingAndMoreWhereThereIsRoom)
{
    openFilled(DocType::SellProduct);
    const auto shown = [this] {
        QStringList names;
        const QHeaderView& header = *tree()->header();
        for (int place = 0; place < header.count(); ++place) {
            const int column = header.logicalIndex(place);
            if (!header.isSectionHidden(column))
                names << tree()->outlineModel()->columns()[static_cast<std::size_t>(column)].identifier;
        }
        return names;
    };
    for (const QSize& size : {QSize(1024, 640), program.window().size(), QSize(1440, 900)}) {
        program.window().resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(shown().mid(0, 3), (QStringList{u"name"_s, u"amount"_s, u"priceCost"_s}));
        EXPECT_EQ(tree()->horizontalScrollBar()->maximum(), 0) << size.width();
    }
    const qsizetype before = shown().size();
    program.window().resize(2600, 900);
    QCoreApplication::processEvents();
    EXPECT_GT(shown().size(), before);
    EXPECT_EQ(tree()->horizontalScrollBar()->maximum(), 0);
    openFilled(DocType::BuyProduct);
    EXPECT_EQ(shown().mid(0, 3), (QStringList{u"name"_s, u"measurementName"_s, u"baseCost"_s}));
}

TEST_F(ProductDocumentPageTest, aWrongNumberHoldsTheNextProductBack)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"2"_s, u"18"_s);
    press(Qt::Key_Up);
    write(u"3"_s);
    write(u"x"_s);
    program.doubleClickCell(tree(), treeRow(u"Chai"_s));
    EXPECT_EQ(text(0, u"amount"_s), u"2.00"_s);
    EXPECT_EQ(focusName(), u"cellEditor"_s);
    EXPECT_FALSE(drop(treeRow(u"Chang"_s), table()->viewport()));
    EXPECT_EQ(form()->mainView.numberOfRows(), 1);
    press(Qt::Key_Escape);
    program.doubleClickCell(tree(), treeRow(u"Chai"_s));
    EXPECT_EQ(text(0, u"amount"_s), u"3.00"_s);
}

// --- rows that go

TEST_F(ProductDocumentPageTest, deletingTheLastRowWarnsAndTakesConfirmAway)
{
    openFilled(DocType::SellProduct);
    QWidget* const sheet = program.find(u"documentSheet"_s);
    EXPECT_EQ(sheet->palette().color(QPalette::Base),
              groundColor(rowsMissingColor, QGuiApplication::palette()));
    EXPECT_FALSE(isEnabled(u"confirmButton"_s));
    typeRow(u"chai"_s, u"2"_s, u"18"_s);
    typeRow(u"chang"_s, u"1"_s, u"19"_s);
    EXPECT_EQ(sheet->palette().color(QPalette::Base), groundColor(whiteColor, QGuiApplication::palette()));
    EXPECT_TRUE(isEnabled(u"confirmButton"_s));
    program.clickCell(table(), cell(0, u"name"_s));
    ASSERT_TRUE(isEnabled(u"deleteSelectedRowsButton"_s));
    program.click(u"deleteSelectedRowsButton"_s);
    EXPECT_EQ(text(0, u"name"_s), u"Chang"_s);
    EXPECT_EQ(table()->currentRow(), 0);
    press(Qt::Key_Delete);
    EXPECT_EQ(form()->mainView.numberOfRows(), 0);
    EXPECT_EQ(focusName(), u"productEntry"_s);
    EXPECT_FALSE(isEnabled(u"deleteSelectedRowsButton"_s));
    EXPECT_FALSE(isEnabled(u"confirmButton"_s));
    EXPECT_EQ(sheet->palette().color(QPalette::Base),
              groundColor(rowsMissingColor, QGuiApplication::palette()));
}

// --- sums

TEST_F(ProductDocumentPageTest, totalsShowSumsTaxAndWhatIsDue)
{
    changeParams([](Params& params) { params.useVAT = true; });
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"10"_s, u"18"_s);
    program.type(u"shipment"_s, u"4,50"_s);
    EXPECT_EQ(label(u"totalLabel"_s), u"Total, €"_s);
    EXPECT_EQ(label(u"totalAmount"_s), u"10.00"_s);
    EXPECT_EQ(label(u"totalPacks"_s), u"0.00"_s);
    EXPECT_EQ(label(u"totalSum"_s), u"150.00"_s);
    EXPECT_EQ(label(u"vatAmountLabel"_s), u"VAT Amount, €"_s);
    EXPECT_EQ(label(u"vatAmount"_s), u"30.00"_s);
    EXPECT_EQ(label(u"balanceDueLabel"_s), u"Balance Due, €"_s);
    EXPECT_EQ(label(u"balanceDue"_s), u"184.50"_s);
}

TEST_F(ProductDocumentPageTest, theTaxColumnsComeAndGoWithTheTick)
{
    changeParams([](Params& params) {
        params.useVAT = true;
        params.useGST = false;
    });
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"10"_s, u"18"_s);
    const auto hidden = [this](const QString& column) {
        return table()->isColumnHidden(table()->tableModel()->columnWithIdentifier(column));
    };
    EXPECT_FALSE(hidden(u"vatPercent"_s));
    EXPECT_EQ(text(0, u"vatPercent"_s), u"20.00\u202f%"_s);
    EXPECT_EQ(text(0, u"vat"_s), u"30.00"_s);
    EXPECT_TRUE(hidden(u"includeShipment"_s));
    program.click(u"vatCheck"_s);
    EXPECT_TRUE(hidden(u"vatPercent"_s));
    EXPECT_TRUE(hidden(u"vat"_s));
    EXPECT_TRUE(hidden(u"totalNet"_s));
    EXPECT_EQ(label(u"vatAmountLabel"_s), u"not shown"_s);
    EXPECT_EQ(label(u"vatAmount"_s), u"not shown"_s);
    EXPECT_EQ(label(u"totalSum"_s), u"180.00"_s);
}

TEST_F(ProductDocumentPageTest, aRowTakesItsShareOfTheShipmentByATick)
{
    openFilled(DocType::BuyProduct);
    typeRow(u"chai"_s, u"10"_s, u"18"_s);
    program.clickCell(table(), cell(0, u"includeShipment"_s));
    EXPECT_TRUE(form()->document->documentRows.front()->includeShipment);
    EXPECT_EQ(cell(0, u"includeShipment"_s).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

TEST_F(ProductDocumentPageTest, theDiscountPricesTheRowsAnewOverTypedPrices)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"1"_s, u"25"_s);
    auto* const slider = program.find<QSlider>(u"contragentDiscountSlider"_s);
    slider->setFocus();
    for (int step = 0; step < 5; ++step)
        press(Qt::Key_Right);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentDiscount"_s)->text(), u"5"_s);
    EXPECT_EQ(text(0, u"price"_s), u"17.10"_s);
    program.type(u"contragentDiscount"_s, u"50"_s);
    EXPECT_EQ(slider->value(), 50);
    EXPECT_EQ(text(0, u"price"_s), u"9.00"_s);
}

TEST_F(ProductDocumentPageTest, theDaysToPayGoByFieldAndSlider)
{
    openFilled(DocType::SellProduct);
    auto* const slider = program.find<QSlider>(u"defermentSlider"_s);
    EXPECT_EQ(slider->maximum(), 30);
    EXPECT_EQ(slider->value(), 14);
    slider->setFocus();
    press(Qt::Key_Right);
    EXPECT_EQ(form()->deferment.integer(), 15);
    program.type(u"deferment"_s, u"7"_s);
    EXPECT_EQ(slider->value(), 7);
}

// --- the counterparty's chooser

TEST_F(ProductDocumentPageTest, theChooserTakesACounterpartyByADoubleClickAndAGroupKeepsItOpen)
{
    ContragentGroup group;
    group.name = u"Friends"_s;
    const qint64 friends = store(group);
    Contragent clara;
    clara.name = u"Clara"_s;
    clara.parentID = friends;
    store(clara);
    open(DocType::SellProduct);
    program.click(u"selectContragent"_s);
    auto* const list = program.find<TreeList>(u"contragentChooserTree"_s);
    ASSERT_NE(list, nullptr);
    const QModelIndex top = list->model()->index(2, 0); // Acme, Bolt & Sons, Friends
    const QModelIndex first = top.siblingAtColumn(list->outlineModel()->columnWithIdentifier(u"name"_s));
    ASSERT_EQ(first.data().toString(), u"Friends"_s);
    EXPECT_TRUE(list->isExpanded(top));
    program.doubleClickCell(list, first);
    EXPECT_TRUE(form()->contragentSelectView().selectPopover.isOpen());
    EXPECT_FALSE(list->isExpanded(top));
    program.doubleClickCell(list, first);
    const QModelIndex clarasRow = list->model()->index(0, first.column(), top);
    program.doubleClickCell(list, clarasRow);
    EXPECT_FALSE(form()->contragentSelectView().selectPopover.isOpen());
    EXPECT_EQ(program.find<QLineEdit>(u"contragentField"_s)->text(), u"Clara"_s);
    EXPECT_EQ(focusName(), u"productEntry"_s);
}

TEST_F(ProductDocumentPageTest, escapeLeavesTheCounterpartyAsItWasAndTheClearButtonTakesItOut)
{
    openFilled(DocType::SellProduct);
    program.find(u"contragentField"_s)->setFocus();
    press(Qt::Key_Return);
    write(u"bolt"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(program.find(u"selectPopover"_s), nullptr);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentField"_s)->text(), u"Acme"_s);
    EXPECT_EQ(focusName(), u"contragentField"_s);
    program.click(u"clearContragent"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"contragentField"_s)->text(), QString());
    EXPECT_FALSE(isEnabled(u"clearContragent"_s));
}

TEST_F(ProductDocumentPageTest, theRightButtonOnTheCounterpartyOpensNoChooser)
{
    open(DocType::SellProduct);
    QWidget* const field = program.find(u"contragentField"_s);
    QTest::mouseClick(field, Qt::RightButton);
    EXPECT_EQ(program.find(u"selectPopover"_s), nullptr);
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_NE(program.find(u"selectPopover"_s), nullptr);
}

TEST_F(ProductDocumentPageTest, aTabThatGoesTakesItsOpenChooserAlong)
{
    open(DocType::SellProduct);
    program.click(u"selectContragent"_s);
    ASSERT_NE(program.find(u"selectPopover"_s), nullptr);
    const QPointer<QWidget> chooser = program.find(u"selectPopover"_s);
    workspace().closeTab(0);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(tabs(), 0u);
    EXPECT_EQ(chooser, nullptr);
    EXPECT_EQ(program.find(u"popoverShield"_s), nullptr);
    open(DocType::SellProduct);
    EXPECT_EQ(focusName(), u"contragentField"_s);
}

// --- two forms at once

TEST_F(ProductDocumentPageTest, aSaleInAnotherTabTakesItsGoodsOutOfTheTreeAndOfTheMatches)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"10"_s, u"18"_s);
    EXPECT_TRUE(treeRow(u"Chang"_s).isValid());
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"30"_s, u"18"_s);
    typeRow(u"chang"_s, u"17"_s, u"19"_s);
    program.click(u"confirmButton"_s);
    ASSERT_TRUE(form()->document->confirmed);
    workspace().tabView.openExistingTab(0);
    EXPECT_EQ(onHandInTree(u"Chai"_s), u"9.00"_s);
    EXPECT_FALSE(treeRow(u"Chang"_s).isValid());
    entry()->setFocus();
    write(u"cha"_s);
    ASSERT_NE(matches(), nullptr);
    EXPECT_EQ(matches()->model()->rowCount(), 1);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    form()->mainView.date.setMoment(program.program.clock.now() - 1); // behind the other sale
    ASSERT_TRUE(form()->mainView.date.userChanged());
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(form()->document->confirmed);
    ASSERT_EQ(dialogs().alerts.size(), 1u);
    EXPECT_EQ(dialogs().alerts.front().informativeText,
              u"We have not enough 'Chai' on WH: 'Main'. Need: 10.0 Have: 9.0 Reserv: 0.0\n"_s);
}

TEST_F(ProductDocumentPageTest, aDraftThatWasConfirmedElsewhereIsRefusedAndSaysSo)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"10"_s, u"18"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    ProductDocumentViewController other(program.program.appDelegate,
                                        connector().select<ProductDocument>(form()->document->id));
    other.prepareData();
    ASSERT_TRUE(other.confirmDoc());
    press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(dialogs().alerts.size(), 1u);
    EXPECT_EQ(dialogs().alerts.front().informativeText,
              u"The document was confirmed or deleted in the meantime.\n"_s);
    EXPECT_EQ(onHand(chai), 29);
}

// --- saving, confirming, deleting, closing

TEST_F(ProductDocumentPageTest, aShortageIsToldAndNothingIsChanged)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"40"_s, u"18"_s);
    program.click(u"confirmButton"_s);
    ASSERT_EQ(dialogs().alerts.size(), 1u);
    EXPECT_EQ(dialogs().alerts.front().messageText, u"Ups! Something goes wrong!"_s);
    EXPECT_EQ(dialogs().alerts.front().informativeText,
              u"We have not enough 'Chai' on WH: 'Main'. Need: 40.0 Have: 39.0 Reserv: 0.0\n"_s);
    EXPECT_FALSE(form()->document->confirmed);
    EXPECT_EQ(onHand(chai), 39);
    EXPECT_EQ(connector().select<Contragent>(acme)->balance(), -1250);
    EXPECT_EQ(label(u"documentTitle"_s), u"Product Document 'Sale' #0 (write)"_s);
    EXPECT_EQ(ink(program.find(u"documentTitle"_s)), red());
    EXPECT_NE(entry(), nullptr);
    EXPECT_TRUE(isEnabled(u"confirmButton"_s));
}

TEST_F(ProductDocumentPageTest, aConfirmedDocumentIsPaper)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"18"_s);
    program.click(u"confirmButton"_s);
    ASSERT_TRUE(form()->document->confirmed);
    EXPECT_EQ(label(u"documentTitle"_s), u"Product Document 'Sale' #1 (read)"_s);
    EXPECT_EQ(ink(program.find(u"documentTitle"_s)), inOrder());
    EXPECT_EQ(program.find(u"stockFromSelect"_s), nullptr);
    EXPECT_EQ(program.find<QDateTimeEdit>(u"date"_s), nullptr);
    EXPECT_EQ(inputs(), u"contragentBalance"_s);
    EXPECT_EQ(label(u"stockFromSelectText"_s), u"Main"_s);
    EXPECT_EQ(label(u"shipmentText"_s), u"0.00"_s);
    EXPECT_EQ(tree(), nullptr);
    EXPECT_EQ(entry(), nullptr);
    for (const QString& name : {u"saveButton"_s, u"confirmButton"_s, u"deleteDocButton"_s})
        EXPECT_FALSE(isEnabled(name)) << name.toStdString();
    program.doubleClickCell(table(), cell(0, u"amount"_s));
    EXPECT_EQ(editor(), nullptr);
    press(Qt::Key_Delete);
    EXPECT_EQ(form()->mainView.numberOfRows(), 1);
}

TEST_F(ProductDocumentPageTest, aSavedDraftIsThereAgainWhenItIsReopened)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    program.type(u"comment"_s, u"call first"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    const qint64 id = form()->document->id;
    ASSERT_NE(id, 0);
    EXPECT_FALSE(isEnabled(u"saveButton"_s));
    workspace().closeTab(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(tabs(), 0u);
    EXPECT_TRUE(dialogs().questions.empty());
    ASSERT_TRUE(workspace().addDocumentWithID(id, u"Product"_s));
    EXPECT_EQ(text(0, u"total"_s), u"80.00"_s);
    EXPECT_EQ(program.find<QLineEdit>(u"comment"_s)->text(), u"call first"_s);
    EXPECT_FALSE(isEnabled(u"saveButton"_s));
    EXPECT_TRUE(isEnabled(u"deleteDocButton"_s));
}

TEST_F(ProductDocumentPageTest, aNumberThatIsStillBeingTypedIsSavedUnlessItIsWrong)
{
    openFilled(DocType::BuyProduct);
    program.find(u"shipment"_s)->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    write(u"12,5"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(connector().select<ProductDocument>(form()->document->id)->shipment(), 12.5);
    EXPECT_EQ(label(u"balanceDue"_s), u"12.50"_s);
    EXPECT_EQ(focusName(), u"shipment"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    write(u"7 x"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(connector().select<ProductDocument>(form()->document->id)->shipment(), 12.5);
}

TEST_F(ProductDocumentPageTest, aCommentThatIsStillBeingTypedIsSavedAndSaveStaysOffAfterIt)
{
    openFilled(DocType::SellProduct);
    program.find(u"comment"_s)->setFocus();
    write(u"call first"_s);
    EXPECT_TRUE(isEnabled(u"saveButton"_s));
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(connector().select<ProductDocument>(form()->document->id)->comment, u"call first"_s);
    EXPECT_EQ(focusName(), u"comment"_s);
    EXPECT_FALSE(isEnabled(u"saveButton"_s));
    press(Qt::Key_Tab);
    EXPECT_FALSE(isEnabled(u"saveButton"_s)) << "leaving the field is no change";
    write(u"7"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(isEnabled(u"saveButton"_s));
}

TEST_F(ProductDocumentPageTest, aCellThatIsStillBeingTypedIsSavedUnlessItIsWrong)
{
    openFilled(DocType::SellProduct);
    entry()->setFocus();
    write(u"chai"_s);
    press(Qt::Key_Return);
    write(u"7"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(connector().select<ProductDocument>(form()->document->id)->documentRows.front()->amount(), 7);
    EXPECT_EQ(focusName(), u"documentRows"_s);
    EXPECT_FALSE(isEnabled(u"saveButton"_s));
    write(u"8"_s);
    write(u"x"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), u"8x"_s);
    EXPECT_EQ(connector().select<ProductDocument>(form()->document->id)->documentRows.front()->amount(), 7);
}

TEST_F(ProductDocumentPageTest, closingWithAnAmountStillBeingTypedAsksFirstAndAWrongOneKeepsTheTab)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    const qint64 id = form()->document->id;
    press(Qt::Key_Up);
    write(u"6"_s);
    write(u"x"_s);
    close();
    EXPECT_EQ(tabs(), 1u);
    EXPECT_TRUE(dialogs().questions.empty());
    ASSERT_EQ(focusName(), u"cellEditor"_s);
    press(Qt::Key_Backspace);
    dialogs().answers = {firstButton}; // Save
    close();
    EXPECT_EQ(tabs(), 0u);
    EXPECT_EQ(dialogs().questions.size(), 1u);
    EXPECT_EQ(connector().select<ProductDocument>(id)->documentRows.front()->amount(), 6);
}

TEST_F(ProductDocumentPageTest, aDateThatIsStillBeingTypedIsSaved)
{
    openFilled(DocType::SellProduct);
    auto* const date = program.find<QDateTimeEdit>(u"date"_s);
    date->setFocus();
    date->setSelectedSection(QDateTimeEdit::DaySection);
    write(u"5"_s);
    press(Qt::Key_S, Qt::ControlModifier);
    const qint64 stored = connector().select<ProductDocument>(form()->document->id)->date;
    EXPECT_EQ(QDateTime::fromSecsSinceEpoch(stored, Qt::UTC).date().day(), 5);
}

TEST_F(ProductDocumentPageTest, aProductThatIsTypedButNotTakenIsNotConfirmedPast)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    write(u"chang"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(form()->document->confirmed);
    EXPECT_EQ(focusName(), u"productEntry"_s);
    ASSERT_NE(matches(), nullptr);
    press(Qt::Key_Escape); // the list
    press(Qt::Key_Escape); // the text
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(form()->document->confirmed);
}

TEST_F(ProductDocumentPageTest, closingWithChangesAsksFirst)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    dialogs().answers = {firstButton + 2}; // Cancel
    close();
    EXPECT_EQ(tabs(), 1u);
    dialogs().answers = {firstButton + 1}; // Don't Save
    close();
    EXPECT_EQ(tabs(), 0u);
    EXPECT_TRUE(connector().freeSQL<ProductDocument>("", {}).empty());
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    dialogs().answers = {firstButton}; // Save
    close();
    EXPECT_EQ(tabs(), 0u);
    EXPECT_EQ(connector().freeSQL<ProductDocument>("", {}).size(), 1u);
    EXPECT_EQ(dialogs().questions.size(), 3u);
}

TEST_F(ProductDocumentPageTest, aDraftIsDeletedAfterAQuestion)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    EXPECT_FALSE(isEnabled(u"deleteDocButton"_s));
    program.click(u"saveButton"_s);
    dialogs().answers = {firstButton + 1};
    program.click(u"deleteDocButton"_s);
    ASSERT_EQ(dialogs().questions.size(), 1u);
    EXPECT_EQ(dialogs().questions.front().messageText, u"Delete this document?"_s);
    EXPECT_EQ(tabs(), 1u);
    dialogs().answers = {firstButton};
    program.click(u"deleteDocButton"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(tabs(), 0u);
    EXPECT_TRUE(connector().freeSQL<ProductDocument>("", {}).empty());
    EXPECT_TRUE(connector().freeSQL<ProductDocumentRow>("", {}).empty());
}

TEST_F(ProductDocumentPageTest, confirmSaysWhatIsMissing)
{
    open(DocType::SellProduct);
    const QWidget* const confirm = program.find(u"confirmButton"_s);
    EXPECT_EQ(confirm->toolTip(), u"These inputs are missing: Counterparty, Products"_s);
    form()->setContragentFromID(acme);
    typeRow(u"chai"_s, u"4"_s, u"20"_s);
    EXPECT_EQ(confirm->toolTip(), u"Confirm the document (Ctrl+Return)"_s);
}

TEST_F(ProductDocumentPageTest, inAProjectForReadingOnlyItIsPaperAndTheStateLineSaysWhy)
{
    const QString path = connector().path();
    connector().close();
    ASSERT_TRUE(connector().open(path, Access::ReadOnly));
    open(DocType::SellProduct);
    EXPECT_EQ(inputs(), u"contragentBalance"_s);
    EXPECT_EQ(entry(), nullptr);
    EXPECT_FALSE(isEnabled(u"confirmButton"_s));
    EXPECT_EQ(label(u"stateField"_s), u"The project is open for reading only. Nothing can be changed."_s);
}

TEST_F(ProductDocumentPageTest, theTabKeyFollowsTheReadingOrder)
{
    openFilled(DocType::SellProduct);
    typeRow(u"chai"_s, u"1"_s, u"18"_s);
    program.clickCell(table(), cell(0, u"name"_s));
    program.find(u"saveButton"_s)->setFocus();
    QStringList names;
    do {
        names.append(focusName());
        press(Qt::Key_Tab);
    } while (focusName() != u"saveButton"_s && names.size() < 40);
    names.removeDuplicates(); // the parts of the date
    EXPECT_EQ(names.mid(0, names.indexOf(u"shipment"_s) + 1).join(u' '),
              u"saveButton confirmButton moreButton date stockFromSelect contragentField selectContragent "
              "clearContragent managerSelect deferment defermentSlider contragentDiscount "
              "contragentDiscountSlider documentRows productEntry searchLine mainProductView "
              "deleteSelectedRowsButton comment shipment"_s);
}

TEST_F(ProductDocumentPageTest, theEmptyRowStandsRightBelowTheLastOne)
{
    openFilled(DocType::BuyProduct);
    program.window().resize(1440, 900); // room for all columns
    const auto gap = [this] {
        QCoreApplication::processEvents();
        const int rows = table()->verticalHeader()->length();
        const QPoint end = table()->viewport()->mapToGlobal(QPoint(0, rows));
        return entry()->mapToGlobal(QPoint(0, 0)).y() - end.y();
    };
    EXPECT_EQ(gap(), 0);
    typeRow(u"chai"_s, u"1"_s, u"18"_s);
    EXPECT_EQ(gap(), 0);
    typeRow(u"chang"_s, u"1"_s, u"19"_s);
    EXPECT_EQ(gap(), 0);
}

TEST_F(ProductDocumentPageTest, backOnItsTabTheCursorStandsWhereItStood)
{
    openFilled(DocType::SellProduct);
    program.find(u"comment"_s)->setFocus();
    workspace().topMenuAction(DocType::StockCatalog);
    workspace().tabView.openExistingTab(0);
    EXPECT_EQ(focusName(), u"comment"_s);
}

} // namespace
} // namespace zelvor
