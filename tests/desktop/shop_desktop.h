#pragma once

#include "catalogs/contragent.h"
#include "catalogs/manager.h"
#include "catalogs/product.h"
#include "catalogs/stock.h"
#include "desktop/cell_text.h"
#include "desktop/list_page.h"
#include "documents/product_document_view.h"
#include "documents/product_document_view_controller.h"
#include "support/desktop_program.h"

#include <QtCore/QStringList>
#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace zelvor {

// The desktop with a small tea shop open: two groups of products, two customers in a group, two employees,
// goods in the main warehouse. It is 14 November 2023, 22:13:20 UTC.
class ShopDesktop : public DesktopProgram {
public:
    ShopDesktop()
    {
        openNewProject();
        stock.name = QStringLiteral("Main");
        stock.isDefault = true;
        store(stock);
        store(drinks, QStringLiteral("Drinks"));
        store(dishes, QStringLiteral("Dishes"));
        addProduct(tea, QStringLiteral("Tea"), drinks.id, 7);
        addProduct(coffee, QStringLiteral("Coffee"), drinks.id, 9);
        addProduct(cup, QStringLiteral("Cup"), dishes.id, 3);
        store(ann, QStringLiteral("Ann"));
        store(bob, QStringLiteral("Bob"));
        store(buyers, QStringLiteral("Buyers"));
        addContragent(acme, QStringLiteral("Acme"), ann.id);
        addContragent(zenith, QStringLiteral("Zenith"), bob.id);
        for (const NotificationName name :
             {NotificationName::StockChangedNotification, NotificationName::ProductChangedNotification,
              NotificationName::ManagerChangedNotification, NotificationName::ContragentChangedNotification})
            program.appDelegate.notifications.post(name);
        const auto purchase = form(DocType::BuyProduct, acme);
        for (const Product* const product : {&tea, &coffee, &cup})
            addRow(*purchase, *product, 100, 2);
        EXPECT_TRUE(purchase->confirmDoc()) << qPrintable(program.dialogs.lastAlert());
    }

    using Form = ProductDocumentViewController;

    // Filled as the user would, a second before now.
    std::unique_ptr<Form> form(DocType type, const Contragent& contragent)
    {
        auto document = std::make_shared<ProductDocument>();
        document->insertDocType(type);
        document->date = program.clock.now() - 1;
        auto made = std::make_unique<Form>(program.appDelegate, document);
        made->prepareData();
        made->setContragentFromID(contragent.id);
        return made;
    }
    void addRow(Form& target, const Product& product, int amount, int price)
    {
        const int row = target.addProductFromID(product.id);
        ASSERT_GE(row, 0);
        EXPECT_TRUE(target.setRowValue(row, QStringLiteral("amount"), Decimal(amount)));
        EXPECT_TRUE(target.setRowValue(row, QStringLiteral("price"), Decimal(price)));
    }
    // The id of a stored sale.
    qint64 sell(const Contragent& contragent, const Product& product, int amount, int price,
                bool confirmed = true)
    {
        const auto sale = form(DocType::SellProduct, contragent);
        addRow(*sale, product, amount, price);
        EXPECT_TRUE(confirmed ? sale->confirmDoc() : sale->writeDoc());
        return sale->document->id;
    }
    template <class Record>
    bool isStored(qint64 id)
    {
        return program.appDelegate.connector.any<Record>("WHERE id=?", {id});
    }

    TablePage* page() { return qobject_cast<TablePage*>(window().activePage()); }
    QString heading() { return find<QLabel>(QStringLiteral("pageHeading"))->text(); }
    template <class Widget>
    Widget* widget(const QString& outletName)
    {
        Widget* const found = find<Widget>(outletName);
        EXPECT_NE(found, nullptr) << qPrintable(outletName);
        return found;
    }
    // What a column says from top to bottom.
    QStringList shown(const QString& identifier)
    {
        const TableViewModel& model = *page()->list()->tableModel();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << model.index(row, model.columnWithIdentifier(identifier)).data().toString();
        return texts;
    }
    QModelIndex cell(int row, const QString& identifier)
    {
        const TableViewModel& model = *page()->list()->tableModel();
        return model.index(row, model.columnWithIdentifier(identifier));
    }
    void clickHeader(const QString& identifier)
    {
        QHeaderView* const header = page()->list()->horizontalHeader();
        const int column = page()->list()->tableModel()->columnWithIdentifier(identifier);
        const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, middle);
    }
    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* const target = QApplication::focusWidget();
        ASSERT_NE(target, nullptr);
        QTest::keyClick(target, key, modifiers);
    }
    QColor ink(const QString& outletName)
    {
        return widget<QLabel>(outletName)->palette().color(QPalette::WindowText);
    }
    static QColor red() { return textColor(redColor, QApplication::palette()); }
    static QColor blue() { return textColor(inOrderColor, QApplication::palette()); }

    Stock stock;
    ProductGroup drinks;
    ProductGroup dishes;
    Product tea;
    Product coffee;
    Product cup;
    Manager ann;
    Manager bob;
    ContragentGroup buyers;
    Contragent acme;
    Contragent zenith;

private:
    template <class Record>
    void store(Record& record)
    {
        ASSERT_EQ(program.appDelegate.connector.insert(record), 1);
    }
    template <class Record>
    void store(Record& record, const QString& name)
    {
        record.name = name;
        store(record);
    }
    void addProduct(Product& product, const QString& name, qint64 groupID, double price)
    {
        product.parentID = groupID;
        product.setPriceCost(price);
        store(product, name);
    }
    void addContragent(Contragent& contragent, const QString& name, qint64 managerID)
    {
        contragent.parentID = buyers.id;
        contragent.managerID = managerID;
        store(contragent, name);
    }
};

} // namespace zelvor
