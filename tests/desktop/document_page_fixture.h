#pragma once

#include "catalogs/contragent.h"
#include "catalogs/product.h"
#include "catalogs/stock.h"
#include "desktop/page.h"
#include "desktop/table_list.h"
#include "desktop/tree_list.h"
#include "documents/product_document_view_controller.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QDropEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <memory>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// A drinks shop in the real main window: two warehouses, Main being the default one, two counterparties,
// Chai (39 at hand) and Chang (17), and a service.
class DocumentPageTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        program.openNewProject();
        fillShop();
    }

    DesktopProgram program;
    qint64 mainStock = 0;
    qint64 acme = 0;
    qint64 chai = 0;
    qint64 chang = 0;

    Connector& connector() { return program.program.appDelegate.connector; }
    MainViewController& workspace() { return program.workspace(); }
    ScriptedDialogs& dialogs() { return program.program.dialogs; }

    template <class Record>
    qint64 store(Record record)
    {
        EXPECT_EQ(connector().insert(record), 1);
        return record.id;
    }
    qint64 storeProduct(const QString& name, double price, double cost, bool service = false)
    {
        Product product;
        product.name = name;
        product.setPriceCost(price);
        product.setBaseCost(cost);
        product.setVatRate(20);
        product.isIntangible = service;
        return store(product);
    }
    void storeStockRow(qint64 product, double amount)
    {
        StockRow row;
        row.stockID = mainStock;
        row.productID = product;
        row.setAmount(amount);
        store(row);
    }
    qint64 storeContragent(const QString& name, double discount)
    {
        Contragent contragent;
        contragent.name = name;
        contragent.setDiscount(discount);
        contragent.setBalance(-1250);
        contragent.deferment = 14;
        return store(contragent);
    }
    void fillShop()
    {
        Stock main;
        main.name = u"Main"_s;
        main.isDefault = true;
        mainStock = store(main);
        Stock shop;
        shop.name = u"Shop"_s;
        store(shop);
        acme = storeContragent(u"Acme"_s, 0);
        storeContragent(u"Bolt & Sons"_s, 10);
        chai = storeProduct(u"Chai"_s, 18, 12.6);
        chang = storeProduct(u"Chang"_s, 19, 15.2);
        storeProduct(u"Delivery"_s, 5, 0, true);
        storeStockRow(chai, 39);
        storeStockRow(chang, 17);
    }
    void changeParams(const std::function<void(Params&)>& change)
    {
        const auto params = program.program.appDelegate.params();
        change(*params);
        ASSERT_EQ(connector().update(*params), 1);
    }
    double onHand(qint64 product)
    {
        const auto rows =
            connector().freeSQL<StockRow>("WHERE stock_id=? AND product_id=?", {mainStock, product});
        return rows.empty() ? 0 : rows.front()->amount();
    }

    // Opens a new document of the type by its entry in the menu bar; a minute goes by, so that it is not one
    // of the future when it is confirmed.
    void open(DocType type)
    {
        const QString name = docTypeCase(type);
        auto* const entry = program.window().findChild<QAction*>(name);
        ASSERT_NE(entry, nullptr) << name.toStdString();
        entry->trigger();
        program.program.clock.set(program.program.clock.now() + 60);
        QCoreApplication::processEvents();
        ASSERT_NE(form(), nullptr);
    }
    ProductDocumentViewController* form()
    {
        const TabPage* const page = workspace().tabView.activePage();
        return page ? dynamic_cast<ProductDocumentViewController*>(page->controller.get()) : nullptr;
    }
    // With the counterparty and the second warehouse that the type may ask for.
    void openFilled(DocType type)
    {
        open(type);
        form()->setContragentFromID(acme);
        if (type == DocType::MoveProduct)
            form()->mainView.setStockToID(mainStock + 1);
    }
    TableList* table() { return program.find<TableList>(u"documentRows"_s); }
    TreeList* tree() { return program.find<TreeList>(u"mainProductView"_s); }
    QLineEdit* entry() { return program.find<QLineEdit>(u"productEntry"_s); }
    QTableView* matches() { return program.find<QTableView>(u"productMatches"_s); }
    QLineEdit* editor() { return program.find<QLineEdit>(u"cellEditor"_s); }

    QModelIndex cell(int row, const QString& identifier)
    {
        TableViewModel* const model = table()->tableModel();
        return model->index(row, model->columnWithIdentifier(identifier));
    }
    QString text(int row, const QString& identifier) { return cell(row, identifier).data().toString(); }
    QString label(const QString& name)
    {
        const auto* const found = program.find<QLabel>(name);
        return found ? found->text() : u"not shown"_s;
    }
    QModelIndex treeRow(const QString& name)
    {
        const QAbstractItemModel* const model = tree()->model();
        const int column = tree()->outlineModel()->columnWithIdentifier(u"name"_s);
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row, column).data().toString() == name)
                return model->index(row, column);
        }
        return {};
    }

    // Keys go to where the cursor is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void write(const QString& text)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    static QString focusName()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    // A whole row by the keyboard, from the empty row and back to it.
    void typeRow(const QString& name, const QString& amount, const QString& price)
    {
        entry()->setFocus();
        write(name);
        press(Qt::Key_Return);
        write(amount);
        press(Qt::Key_Return);
        write(price);
        press(Qt::Key_Return);
    }
    // Drags a product from the tree onto the rows, down to where the mouse is let go.
    bool drop(const QModelIndex& dragged, QWidget* target)
    {
        const std::unique_ptr<QMimeData> data(tree()->model()->mimeData({dragged}));
        const QPoint point = target->rect().center();
        QDragEnterEvent enter(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &move);
        QDropEvent drop(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
        return drop.isAccepted();
    }
    std::size_t tabs() { return workspace().tabView.header.tabs().size(); }
};

} // namespace zelvor
