#include "documents/product_finder.h"

#include "catalogs/product_view_controller.h"
#include "product_form.h"

#include <QtCore/QElapsedTimer>

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

TEST(ProductFinder, answersEveryKeyAtOnceInAHugeCatalog)
{
    TeaShop shop;
    ASSERT_TRUE(shop.db.execute("BEGIN"));
    Product product;
    for (int i = 0; i < 100'000; ++i) {
        product.id = 0;
        product.name = u"Article number %1 of the catalog"_s.arg(i);
        ASSERT_EQ(shop.db.insert(product), 1);
    }
    ASSERT_TRUE(shop.db.execute("COMMIT"));
    const auto form = shop.form(DocType::BuyProduct);
    ASSERT_FALSE(found(*form, u"a"_s, 1).isEmpty()); // reads the catalog
    QElapsedTimer timer;
    timer.start();
    for (const QString& typed : {u"99"_s, u"999"_s, u"9999"_s, u"99999"_s, u"99999 catalog"_s})
        EXPECT_FALSE(found(*form, typed).isEmpty());
    // A tenth of it is usual; machines that test are slow.
    EXPECT_LT(timer.elapsed() / 5, 50);
}

} // namespace
} // namespace zelvor
