#include "catalogs/currency_rates.h"

#include "catalogs/flat_catalog_fixture.h"
#include "core/currency_struct.h"

#include <limits>

namespace zelvor {
namespace {

constexpr qint64 before = 1'500'000'000;

class RatesReply : public FlatCatalogFixture {
protected:
    void SetUp() override
    {
        FlatCatalogFixture::SetUp();
        for (const CurrencyStruct currency : allCurrencies) {
            Currency record;
            record.code = rawValue(currency);
            store(record);
        }
        Params params;
        params.defaultCurrency = rawValue(CurrencyStruct::USD);
        params.lastCurrencyUpdate = before;
        store(params);
    }
    double rate(CurrencyStruct currency) { return stored<Currency>(rawValue(currency))->rate(); }
    qint64 lastUpdate() { return stored<Params>(1)->lastCurrencyUpdate; }
    bool apply(const QMap<qint64, double>& rates) { return applyRates(program.appDelegate, rates); }
};

TEST_F(RatesReply, updatesTheCurrenciesItNamesAndLeavesTheOthers)
{
    EXPECT_TRUE(apply({{1, 0.92}, {5, 151.23456}}));
    EXPECT_EQ(rate(CurrencyStruct::EUR), 0.92);
    EXPECT_EQ(rate(CurrencyStruct::JPY), 151.2346);
    EXPECT_EQ(rate(CurrencyStruct::GBP), 1);
    EXPECT_EQ(lastUpdate(), program.clock.now());
}

TEST_F(RatesReply, neverTouchesTheProjectsOwnCurrency)
{
    EXPECT_TRUE(apply({{2, 7.0}}));
    EXPECT_EQ(rate(CurrencyStruct::USD), 1);
    EXPECT_EQ(lastUpdate(), program.clock.now());
}

TEST_F(RatesReply, anEmptyReplyStillStampsTheMoment)
{
    EXPECT_TRUE(apply({}));
    EXPECT_EQ(lastUpdate(), program.clock.now());
    EXPECT_TRUE(program.posted.has(NotificationName::CurrencyUpdatedNotification));
}

TEST_F(RatesReply, aRateThatIsNoFiniteNumberAboveZeroIsSkipped)
{
    using Limits = std::numeric_limits<double>;
    EXPECT_TRUE(apply({{1, 0.0},
                       {3, -1.0},
                       {4, Limits::quiet_NaN()},
                       {5, Limits::infinity()},
                       {6, 1e-9},
                       {7, 90.5},
                       {8, 1e14},
                       {9, 1e300}}));
    for (const CurrencyStruct skipped :
         {CurrencyStruct::EUR, CurrencyStruct::GBP, CurrencyStruct::CHF, CurrencyStruct::JPY,
          CurrencyStruct::CNY, CurrencyStruct::UAH, CurrencyStruct::PLN})
        EXPECT_EQ(rate(skipped), 1) << rawValue(skipped);
    EXPECT_EQ(rate(CurrencyStruct::RUB), 90.5);
}

TEST_F(RatesReply, codesThatAreNoCurrencyChangeNothing)
{
    EXPECT_TRUE(apply({{0, 5.0}, {14, 5.0}, {-1, 5.0}}));
    for (const CurrencyStruct currency : allCurrencies)
        EXPECT_EQ(rate(currency), 1);
}

TEST_F(RatesReply, isToldAfterTheCommit)
{
    bool committed = false;
    const auto observation = program.appDelegate.notifications.observe(
        NotificationName::CurrencyUpdatedNotification, [&](const Notification& n) {
            committed =
                !connector().inTransaction() && rate(CurrencyStruct::EUR) == 0.92 && n.object == nullptr;
        });
    EXPECT_TRUE(apply({{1, 0.92}}));
    EXPECT_TRUE(committed);
}

TEST_F(RatesReply, isStoredWholeOrNotAtAllWhicheverCallFails)
{
    for (int call = 1;; ++call) {
        program.connector->failCall(call);
        const bool applied = apply({{1, 0.92}, {3, 0.8}});
        const bool failed = program.connector->hasFailed();
        program.connector->failCall(0);
        if (!failed) {
            EXPECT_TRUE(applied);
            EXPECT_GE(call, 7) << "begin, two reads, three writes, commit";
            break;
        }
        EXPECT_FALSE(applied) << "call " << call;
        EXPECT_EQ(rate(CurrencyStruct::EUR), 1) << "call " << call;
        EXPECT_EQ(rate(CurrencyStruct::GBP), 1) << "call " << call;
        EXPECT_EQ(lastUpdate(), before) << "call " << call;
        EXPECT_FALSE(program.posted.has(NotificationName::CurrencyUpdatedNotification)) << "call " << call;
    }
}

TEST_F(RatesReply, withoutSettingsNothingIsStored)
{
    ASSERT_EQ(connector().remove(*stored<Params>(1)), 1);
    EXPECT_FALSE(apply({{1, 0.92}}));
    EXPECT_EQ(rate(CurrencyStruct::EUR), 1);
    EXPECT_TRUE(program.posted.names.empty());
}

} // namespace
} // namespace zelvor
