// Whatever is bought, sold, moved, returned and written off: the books equal their documents.

#include "product_form.h"

#include <map>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

// The stock and the balance as the confirmed documents make them, in hundredths.
struct Model {
    std::map<std::pair<qint64, qint64>, qint64> stock;
    qint64 balance = 0;

    qint64& onHand(qint64 stockID, qint64 productID) { return stock[{stockID, productID}]; }
};

qint64 hundredths(const Decimal& value)
{
    return static_cast<qint64>(value.times(Decimal(100), RoundingHandler{0}).toText().toLongLong());
}

bool takes(DocType type)
{
    return type == DocType::SellProduct || type == DocType::MoveProduct || type == DocType::DeleteProduct;
}

bool brings(DocType type)
{
    return type == DocType::BuyProduct || type == DocType::Return || type == DocType::AddProduct ||
           type == DocType::MoveProduct;
}

// Whether the model's warehouse holds enough for every row.
bool suffices(Model& model, const ProductDocument& document)
{
    for (const auto& row : document.documentRows) {
        const qint64 held = model.onHand(document.stockFromID, row->productID);
        if (held == 0 || held < hundredths(row->innerAmount))
            return false;
    }
    return true;
}

void apply(Model& model, const ProductDocument& document)
{
    for (const auto& row : document.documentRows) {
        if (takes(document.docType()))
            model.onHand(document.stockFromID, row->productID) -= hundredths(row->innerAmount);
        if (brings(document.docType()))
            model.onHand(document.stockToID, row->productID) += hundredths(row->innerAmount);
    }
    const qint64 sum = hundredths(document.innerDocSum);
    if (document.docType() == DocType::BuyProduct || document.docType() == DocType::Return)
        model.balance += sum;
    else if (document.docType() == DocType::SellProduct || document.docType() == DocType::SellIntangibles)
        model.balance -= sum;
}

// What the file says, without the rows that hold nothing.
Model modelOf(TeaShop& shop)
{
    Model model;
    for (const auto& row : shop.db.freeSQL<StockRow>())
        model.onHand(row->stockID, row->productID) += hundredths(row->innerAmount);
    model.balance = hundredths(shop.read(*shop.acme)->innerBalance);
    return model;
}

class GeneratedBooks : public testing::TestWithParam<unsigned> {
protected:
    int upTo(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }
    Decimal amount() { return Decimal::fromParts(1 + upTo(900), 2); }

    std::unique_ptr<ProductDocumentViewController> randomForm(TeaShop& shop)
    {
        const std::shared_ptr<Product> products[] = {shop.tea, shop.cup};
        const std::shared_ptr<Stock> stocks[] = {shop.main, shop.shop};
        auto form = shop.form(productTypes[upTo(std::size(productTypes))]);
        form->mainView.setStockFromID(stocks[upTo(2)]->id);
        form->mainView.setStockToID(stocks[upTo(2)]->id);
        for (int rows = 1 + upTo(2); rows > 0; --rows) {
            const int row = form->addProductFromID(products[upTo(2)]->id);
            EXPECT_TRUE(form->setRowValue(row, u"amount"_s, amount()));
            EXPECT_TRUE(form->setRowValue(row, u"price"_s, amount()));
        }
        return form;
    }

private:
    std::mt19937 m_random{GetParam()};
};

TEST_P(GeneratedBooks, stockAndBalanceEqualTheirDocuments)
{
    TeaShop shop;
    Model model;
    int refused = 0;
    for (int step = 0; step < 60; ++step) {
        shop.clock.set(shop.clock.now() + 1 + upTo(3));
        const auto form = randomForm(shop);
        const bool enough = !takes(form->document->docType()) || suffices(model, *form->document);
        const QStringList before = shop.dump();
        ASSERT_EQ(form->confirmDoc(), enough) << qPrintable(shop.alertText());
        if (enough) {
            apply(model, *form->document);
        } else {
            ++refused;
            EXPECT_EQ(shop.dump(), before);
        }
        std::erase_if(model.stock, [](const auto& entry) { return entry.second == 0; });
        const Model file = modelOf(shop);
        ASSERT_EQ(file.stock, model.stock);
        ASSERT_EQ(file.balance, model.balance);
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, 50);
}

TEST_P(GeneratedBooks, whatIsOpenIsNeverMoreThanTheBalanceLeaves)
{
    TeaShop shop;
    for (int step = 0; step < 40; ++step) {
        shop.clock.set(shop.clock.now() + 1);
        const DocType type = upTo(2) == 0 ? DocType::BuyProduct : DocType::SellIntangibles;
        ASSERT_TRUE(shop.formWithTea(type, 1 + upTo(5), 1 + upTo(20))->confirmDoc());
        Decimal open;
        for (const auto& document : shop.db.freeSQL<ProductDocument>("WHERE left_to_pay>0")) {
            const bool sale = document->docType() == DocType::SellIntangibles;
            open = open.plus(sale ? document->innerLeftToPay.negated() : document->innerLeftToPay);
        }
        // Every document is settled against the balance, so the open rests add up to it.
        ASSERT_EQ(open, shop.read(*shop.acme)->innerBalance);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GeneratedBooks, testing::Values(1U, 2U, 3U));

} // namespace
} // namespace zelvor
