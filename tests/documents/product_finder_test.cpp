#include "documents/product_finder.h"

#include "catalogs/product_view_controller.h"
#include "product_form.h"
#include "store/user_write.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

QString found(TeaShop::Form& form, const QString& typed, std::size_t limit = 100)
{
    QStringList names;
    for (const auto& product : form.productFinder().find(typed, limit))
        names.append(product->name);
    return names.join(u'|');
}

TEST(ProductFinder, namesThatBeginWithTheTextComeFirstThenWordsThenTheRest)
{
    TeaShop shop;
    shop.product(u"Green tea"_s, 5);
    shop.product(u"Steamer"_s, 30);
    shop.product(u"TEAPOT"_s, 25);
    const auto form = shop.form(DocType::BuyProduct);
    EXPECT_EQ(found(*form, u"tea"_s), u"Tea|TEAPOT|Green tea|Steamer"_s);
    EXPECT_EQ(found(*form, u"tea"_s, 2), u"Tea|TEAPOT"_s);
    EXPECT_EQ(found(*form, u"tea"_s, 3), u"Tea|TEAPOT|Green tea"_s);
    EXPECT_EQ(found(*form, u" tea  gre "_s), u"Green tea"_s);
    EXPECT_EQ(found(*form, u"coffee"_s), QString());
    EXPECT_EQ(found(*form, u"  "_s), QString());
}

TEST(ProductFinder, findsLettersOfAnyAlphabetInEitherCase)
{
    TeaShop shop;
    shop.product(u"Чай зелёный"_s, 5);
    const auto form = shop.form(DocType::BuyProduct);
    EXPECT_EQ(found(*form, u"ЗЕЛЁ"_s), u"Чай зелёный"_s);
}

TEST(ProductFinder, findsWhatTheDocumentCanTake)
{
    TeaShop shop;
    shop.stockRow(*shop.main, *shop.tea, 6);
    Product hidden;
    hidden.name = u"Old tea"_s;
    hidden.isHidden = true;
    shop.store(hidden);
    EXPECT_EQ(found(*shop.form(DocType::BuyProduct), u"t"_s), u"Tea"_s);
    const auto sale = shop.form(DocType::SellProduct);
    EXPECT_EQ(found(*sale, u"t"_s), u"Tasting|Tea"_s);
    EXPECT_EQ(found(*sale, u"cup"_s), QString()); // none at hand
    sale->mainView.setStockFromID(shop.shop->id);
    EXPECT_EQ(found(*sale, u"t"_s), u"Tasting"_s);
    EXPECT_EQ(found(*shop.form(DocType::SellIntangibles), u"t"_s), u"Tasting"_s);
}

TEST(ProductFinder, followsTheCatalog)
{
    TeaShop shop;
    const auto form = shop.form(DocType::BuyProduct);
    EXPECT_EQ(found(*form, u"mate"_s), QString());
    ProductViewController catalog(shop.appDelegate);
    auto mate = std::make_shared<Product>();
    mate->name = u"Mate"_s;
    ASSERT_TRUE(catalog.writeRecord(mate));
    EXPECT_EQ(found(*form, u"mate"_s), u"Mate"_s);
}

TEST(ProductFinder, readsTheCatalogOnceForAllKeys)
{
    TeaShop shop;
    const auto form = shop.form(DocType::BuyProduct);
    const auto tree = form->mainProductView().view.products();
    ASSERT_FALSE(found(*form, u"t"_s).isEmpty());
    const qint64 before = shop.db.statementCount();
    for (const QString& typed : {u"te"_s, u"tea"_s, u"teas"_s, u"cup"_s, QString()})
        form->productFinder().find(typed, 100);
    EXPECT_EQ(shop.db.statementCount(), before);
    // What is found are the records of the tree, not copies of them.
    const std::shared_ptr<ProductModel> tea = form->productFinder().find(u"tea"_s, 1).front();
    EXPECT_NE(std::ranges::find(tree, tea), tree.end());
}

TEST(ProductFinder, aHugeCatalogGivesNoMoreThanTheLimit)
{
    TeaShop shop;
    UserWrite write(shop.db);
    for (int i = 0; i < 1000; ++i)
        shop.product(u"Article %1"_s.arg(i), 1);
    ASSERT_TRUE(write.finish());
    const auto form = shop.form(DocType::BuyProduct);
    EXPECT_EQ(form->productFinder().find(u"article"_s, 100).size(), 100U);
    EXPECT_EQ(form->productFinder().find(u"99"_s, 100).size(), 19U);
    EXPECT_EQ(found(*form, u"999"_s), u"Article 999"_s);
}

} // namespace
} // namespace zelvor
