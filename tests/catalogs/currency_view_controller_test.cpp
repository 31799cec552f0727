#include "catalogs/currency_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"
#include "core/currency_struct.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class RecordingWorkspace final : public Workspace {
public:
    void updateCurrencies(const Params& params) override { asked.push_back(params.defaultCurrency); }
    std::vector<qint64> asked;
};

class CurrencyCatalog : public FlatCatalogFixture {
protected:
    void SetUp() override
    {
        FlatCatalogFixture::SetUp();
        for (const CurrencyStruct currency : allCurrencies) {
            Currency record;
            record.code = rawValue(currency);
            record.setRate(rawValue(currency));
            store(record);
        }
    }
    qint64 storeParams()
    {
        Params params;
        params.defaultCurrency = 2;
        params.lastCurrencyUpdate = 1'600'000'000;
        return store(params);
    }
    std::vector<double> storedRates()
    {
        std::vector<double> rates;
        for (const auto& currency : connector().freeSQL<Currency>("ORDER BY id"))
            rates.push_back(currency->rate());
        return rates;
    }

    CurrencyViewController controller{program.appDelegate};
};

TEST_F(CurrencyCatalog, listsTheThirteenCurrenciesInTheirOrder)
{
    EXPECT_EQ(controller.view.name(), u"Currencies Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view),
              (QStringList{u"code"_s, u"name"_s, u"short"_s, u"image"_s, u"sign"_s, u"rate"_s}));
    ASSERT_EQ(controller.view.numberOfRows(), 13);
    EXPECT_EQ(controller.view.value(3, u"code"_s).toInt(), 4);
    EXPECT_EQ(controller.view.value(3, u"name"_s).toString(), currencyName(CurrencyStruct::CHF));
    EXPECT_EQ(controller.view.value(3, u"short"_s).toString(), u"CHF"_s);
    EXPECT_EQ(controller.view.value(3, u"image"_s).toString(), currencyImage(CurrencyStruct::CHF));
    EXPECT_EQ(controller.view.value(3, u"sign"_s).toString(), currencySign(CurrencyStruct::CHF));
    EXPECT_EQ(controller.view.value(3, u"rate"_s).toDouble(), 4);
}

TEST_F(CurrencyCatalog, aTypedRateHoldsFourDigitsHalfToEvenAndIsStoredOnlyWhenApplied)
{
    EXPECT_FALSE(controller.applyButton.enabled());
    EXPECT_TRUE(controller.view.setValue(0, u"rate"_s, 1.23455));
    EXPECT_EQ(controller.view.value(0, u"rate"_s).toDouble(), 1.2346);
    EXPECT_TRUE(controller.view.setValue(1, u"rate"_s, u"1.23445"_s));
    EXPECT_EQ(controller.view.value(1, u"rate"_s).toDouble(), 1.2344);
    EXPECT_TRUE(controller.applyButton.enabled());
    EXPECT_EQ(storedRates()[0], 1);

    EXPECT_TRUE(controller.applyButton.userChanged());
    EXPECT_EQ(storedRates()[0], 1.2346);
    EXPECT_EQ(storedRates()[1], 1.2344);
    EXPECT_FALSE(controller.applyButton.enabled());
    EXPECT_TRUE(program.posted.names.empty()) << "nobody is told";
}

TEST_F(CurrencyCatalog, onlyTheRateIsEditedAndOnlyToANumberAboveZero)
{
    EXPECT_FALSE(controller.view.setValue(0, u"code"_s, 5));
    for (const QVariant& value : {QVariant(0.0), QVariant(-1.0), QVariant(0.00001), QVariant(u"1,5"_s),
                                  QVariant(u""_s), QVariant(std::numeric_limits<double>::quiet_NaN()),
                                  QVariant(std::numeric_limits<double>::infinity())})
        EXPECT_FALSE(controller.view.setValue(0, u"rate"_s, value));
    EXPECT_EQ(controller.view.value(0, u"rate"_s).toDouble(), 1);
    EXPECT_FALSE(controller.applyButton.enabled());

    Currency currency;
    EXPECT_TRUE(controller.refusal(currency).isEmpty());
    currency.innerRate = 0;
    EXPECT_FALSE(controller.refusal(currency).isEmpty());
}

TEST_F(CurrencyCatalog, aFailureAnywhereInApplyLeavesAllRatesAsBefore)
{
    const std::vector<double> before = storedRates();
    int failures = 0;
    for (int call = 1; call <= 15; ++call) { // BEGIN, 13 rates, COMMIT
        EXPECT_TRUE(controller.view.setValue(0, u"rate"_s, 50.0));
        EXPECT_TRUE(controller.view.setValue(12, u"rate"_s, 60.0));
        program.connector->failCall(call);
        controller.applyButton.userChanged();
        failures += program.connector->hasFailed();
        program.connector->failCall(0);
        EXPECT_EQ(storedRates(), before) << "call " << call;
        EXPECT_EQ(controller.view.value(0, u"rate"_s).toDouble(), before[0]) << "the edits are dropped";
        EXPECT_FALSE(controller.applyButton.enabled());
    }
    EXPECT_EQ(failures, 15);
}

TEST_F(CurrencyCatalog, sortsByNameAndRate)
{
    controller.view.sort(u"rate"_s, false);
    EXPECT_EQ(controller.view.value(0, u"short"_s).toString(), u"TRY"_s);
    controller.view.sort(u"name"_s, true);
    QStringList names = column(controller.view, u"name"_s);
    QStringList sorted = names;
    std::ranges::sort(sorted);
    EXPECT_EQ(names, sorted);
    controller.view.sort(u"short"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), sorted) << "no sort key";
}

TEST_F(CurrencyCatalog, withoutSettingsTheLastUpdateIsTheFirstSecondOf1970AndNoRatesAreAskedFor)
{
    RecordingWorkspace workspace;
    program.appDelegate.setWorkspace(&workspace);
    EXPECT_EQ(controller.getLastUpdate(), 0);
    EXPECT_EQ(controller.view.numberOfRows(), 13);
    EXPECT_EQ(controller.lastUpdateDate.moment(), 0);
    controller.updateRates();
    EXPECT_TRUE(workspace.asked.empty());
}

TEST_F(CurrencyCatalog, asksTheWorkspaceForRatesWithTheProjectsSettings)
{
    RecordingWorkspace workspace;
    program.appDelegate.setWorkspace(&workspace);
    storeParams();
    controller.updateRates();
    EXPECT_EQ(workspace.asked, std::vector<qint64>{2});
    EXPECT_EQ(controller.getLastUpdate(), 1'600'000'000);
}

TEST_F(CurrencyCatalog, newRatesShowInTheListWithTheirDateAndDropWhatWasTyped)
{
    storeParams();
    EXPECT_TRUE(controller.view.setValue(0, u"rate"_s, 50.0));
    EXPECT_EQ(controller.lastUpdateDate.moment(), 1'600'000'000);
    auto currency = stored<Currency>(1);
    currency->setRate(1.5);
    connector().update(*currency);
    auto params = stored<Params>(1);
    params->lastCurrencyUpdate = 1'600'000'100;
    connector().update(*params);
    program.appDelegate.notifications.post(NotificationName::CurrencyUpdatedNotification);

    controller.applyButton.userChanged();
    EXPECT_EQ(storedRates()[0], 1.5) << "the typed rate does not overwrite the newer one";
    EXPECT_EQ(controller.view.value(0, u"rate"_s).toDouble(), 1.5);
    EXPECT_EQ(controller.lastUpdateDate.moment(), 1'600'000'100);
}

TEST_F(CurrencyCatalog, updateCurrenciesTellsTheOthers)
{
    controller.updateCurrencies();
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::CurrencyChangedNotification});
}

TEST_F(CurrencyCatalog, oneRateCanBeWrittenAlone)
{
    auto currency = stored<Currency>(3);
    currency->setRate(0.5);
    EXPECT_TRUE(controller.writeRecord(currency));
    EXPECT_EQ(storedRates()[2], 0.5);
}

} // namespace
} // namespace zelvor
