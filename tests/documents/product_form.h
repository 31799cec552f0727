#pragma once

#include "documents/product_document_view_controller.h"
#include "support/books.h"

namespace zelvor {

// Books of a small tea shop with a form at hand: the main warehouse is the default one.
class TeaShop : public Books {
public:
    using Books::Books;

    std::shared_ptr<Stock> main = stock(QStringLiteral("Main"), true);
    std::shared_ptr<Stock> shop = stock(QStringLiteral("Shop"));
    std::shared_ptr<Contragent> acme = contragent(QStringLiteral("Acme"));
    std::shared_ptr<Product> tea = product(QStringLiteral("Tea"), 7, 4);
    std::shared_ptr<Product> cup = product(QStringLiteral("Cup"), 3, 1);
    std::shared_ptr<Product> tasting = service(QStringLiteral("Tasting"), 20);

    using Form = ProductDocumentViewController;

    // A new form, filled as far as its type takes it: Acme, the main warehouse, and the shop to move to. The
    // document is of the second before now.
    std::unique_ptr<Form> form(DocType type)
    {
        auto document = std::make_shared<ProductDocument>();
        document->insertDocType(type);
        document->date = clock.now() - 1;
        auto made = std::make_unique<Form>(appDelegate, document);
        made->prepareData();
        made->setContragentFromID(acme->id);
        if (type == DocType::MoveProduct)
            made->mainView.setStockToID(shop->id);
        return made;
    }
    // The same with a row of tea.
    std::unique_ptr<Form> formWithTea(DocType type, int amount, int price)
    {
        auto made = form(type);
        add(*made, *tea, amount, price);
        return made;
    }
    void add(Form& target, const Product& item, int amount, int price)
    {
        const int row = target.addProductFromID(item.id);
        ASSERT_GE(row, 0);
        EXPECT_TRUE(target.setRowValue(row, QStringLiteral("amount"), Decimal(amount)));
        EXPECT_TRUE(target.setRowValue(row, QStringLiteral("price"), Decimal(price)));
    }
    // The stored document on a form of its own.
    std::unique_ptr<Form> reopen(qint64 documentID)
    {
        auto made = std::make_unique<Form>(appDelegate, db.select<ProductDocument>(documentID));
        made->prepareData();
        return made;
    }
    // A confirmed open document, written past the form.
    std::shared_ptr<ProductDocument> openDocument(DocType type, double leftToPay, qint64 payToDate)
    {
        ProductDocument document;
        document.insertDocType(type);
        document.insertContragent(acme);
        document.date = 1'600'000'000;
        document.confirmed = true;
        document.docNumber = ++m_openNumber;
        document.setDocSum(leftToPay);
        document.setLeftToPay(leftToPay);
        document.payToDate = payToDate;
        return store(document);
    }
    std::shared_ptr<PropertyDocument> openPropertyDocument(DocType type, double leftToPay, qint64 payToDate)
    {
        PropertyDocument document;
        document.insertDocType(type);
        document.insertContragent(acme);
        document.date = 1'600'000'000;
        document.confirmed = true;
        document.docNumber = ++m_openNumber;
        document.setLeftToPay(leftToPay);
        document.payToDate = payToDate;
        return store(document);
    }
    double balance() { return read(*acme)->balance(); }
    void setBalance(double value)
    {
        acme->setBalance(value);
        store(*acme);
    }
    // The informative text of the last alert; empty when there was none.
    QString alertText() const
    {
        return dialogs.alerts.empty() ? QString() : dialogs.alerts.back().informativeText;
    }

private:
    qint64 m_openNumber = 100;
};

inline constexpr DocType productTypes[] = {
    DocType::BuyProduct,  DocType::Return,     DocType::SellProduct,  DocType::SellIntangibles,
    DocType::MoveProduct, DocType::AddProduct, DocType::DeleteProduct};

// What the file holds is the same before and after a refused confirmation.
inline void expectRefused(TeaShop& shop, ProductDocumentViewController& form, const QString& alert)
{
    using namespace Qt::Literals::StringLiterals;
    const QStringList before = shop.dump();
    const std::size_t alerts = shop.dialogs.alerts.size();
    EXPECT_FALSE(form.confirmDoc());
    EXPECT_EQ(shop.dump(), before);
    ASSERT_EQ(shop.dialogs.alerts.size(), alerts + 1);
    EXPECT_EQ(shop.dialogs.alerts.back().messageText, u"Ups! Something goes wrong!"_s);
    EXPECT_EQ(shop.dialogs.alerts.back().buttons, QStringList{u"Close"_s});
    EXPECT_EQ(shop.dialogs.alerts.back().alertStyle, 0);
    EXPECT_EQ(shop.alertText(), alert);
    EXPECT_FALSE(form.document->confirmed);
    EXPECT_EQ(form.alertMessage, QString());
    EXPECT_FALSE(form.progress.isRunning());
    EXPECT_FALSE(shop.db.inTransaction());
}

} // namespace zelvor
