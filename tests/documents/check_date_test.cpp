#include "product_form.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using enum NotificationName;

TEST(CheckDate, aLaterConfirmedDocumentOfAnyKindRefuses)
{
    const QString alert = u"Can't confirm document: already have document with later date!\n"_s;
    for (int kind = 0; kind < 3; ++kind) {
        TeaShop shop;
        ProductDocument product;
        MoneyDocument money;
        PropertyDocument property;
        DocumentModel* documents[] = {&product, &money, &property};
        documents[kind]->date = shop.clock.now() - 1;
        documents[kind]->confirmed = true;
        kind == 0   ? void(shop.store(product))
        : kind == 1 ? void(shop.store(money))
                    : void(shop.store(property));
        const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
        form->document->date = shop.clock.now() - 2;
        expectRefused(shop, *form, alert);
        form->document->date = shop.clock.now() - 1;
        EXPECT_TRUE(form->confirmDoc()) << "the same second is allowed";
    }
}

TEST(CheckDate, aLaterDraftDoesNotRefuse)
{
    TeaShop shop;
    ASSERT_TRUE(shop.formWithTea(DocType::AddProduct, 1, 1)->writeDoc());
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    form->document->date = shop.clock.now() - 100;
    EXPECT_TRUE(form->confirmDoc());
}

TEST(CheckDate, thePresentSecondIsTheFuture)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    form->document->date = shop.clock.now();
    expectRefused(shop, *form, u"Can't confirm document with date from future!\n"_s);
    shop.clock.set(shop.clock.now() + 1);
    EXPECT_TRUE(form->confirmDoc());
}

TEST(CheckDate, aFileWithoutSettingsRefuses)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    ASSERT_EQ(shop.db.remove(*shop.appDelegate.params()), 1);
    expectRefused(shop, *form, u"Can't check last report period!\n Can't confirm document!\n"_s);
}

TEST(CheckDate, aClosedPeriodRefusesEvenWithoutLaterDocuments)
{
    TeaShop shop;
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    const qint64 lastSecondOfOctober = 1'698'796'799;
    form->document->date = lastSecondOfOctober - 1;
    expectRefused(shop, *form, u"You are trying to confirm document with date from closed period!\n"_s);
    form->document->date = lastSecondOfOctober;
    EXPECT_TRUE(form->confirmDoc());
}

TEST(CheckDate, theLastMonthIsClosedOnTheWay)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    shop.stockRow(*shop.main, *shop.tea, 8, 2);
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    ASSERT_TRUE(form->confirmDoc()) << qPrintable(shop.alertText());
    EXPECT_EQ(shop.appDelegate.params()->lastPeriodSaved, 202310);
    const auto history = shop.db.freeSQL<StockHistory>();
    ASSERT_EQ(history.size(), 1U);
    EXPECT_EQ(history[0]->date, 1'698'796'800); // the first of November
    EXPECT_EQ(history[0]->amount(), 8);
    EXPECT_EQ(history[0]->amountReserved(), 2);
}

TEST(CheckDate, aMonthClosedOnTheWayIsTakenBackWithTheRefusal)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    shop.stockRow(*shop.main, *shop.cup, 8);
    const auto form = shop.formWithTea(DocType::SellProduct, 1, 1);
    shop.posted.clear();
    expectRefused(shop, *form, u"We have not 'Tea' on WH: 'Main'\n"_s);
    EXPECT_EQ(shop.appDelegate.params()->lastPeriodSaved, 202309);
    // Heard inside the transaction, and again when it was taken back.
    EXPECT_EQ(shop.posted.names, (std::vector{PropertiesChangedNotification, BalanceChangedNotification,
                                              PropertiesChangedNotification, BalanceChangedNotification}));
}

TEST(CheckDate, aMonthThatCannotBeClosedRefuses)
{
    TeaShop shop;
    shop.changeParams([](Params& params) { params.lastPeriodSaved = 202309; });
    const auto form = shop.formWithTea(DocType::AddProduct, 1, 1);
    shop.connector->failCall(1, FaultInjectingConnector::Update);
    expectRefused(shop, *form,
                  u"Last report period must be closed before we can proceed document with date from later "
                  "period. But we can't close it now for unknown reason!\n"_s);
    EXPECT_TRUE(shop.connector->hasFailed());
}

} // namespace
} // namespace zelvor
