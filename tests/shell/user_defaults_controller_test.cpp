#include "shell/user_defaults_controller.h"

#include "core/currency_struct.h"
#include "support/books.h"

#include <gtest/gtest.h>

#include <QtCore/QDateTime>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class Preferences : public testing::Test {
protected:
    Preferences()
    {
        books.defaults.setDefaultBusiness(u"my_little_shop"_s);
        preferences.onShowMainWindow = [this] { ++mainWindowShown; };
        preferences.onCheckDefaultCurrency = [this] { ++currencyChecked; };
        preferences.onLeaveProject = [this] { ++projectLeft; };
    }
    // The window as a new project opens it.
    void showInitially()
    {
        books.changeParams([](Params& params) { params.defaultCurrency = 0; });
        preferences.initial = true;
        preferences.showWindow();
    }
    void type(TextField& field, const QString& text)
    {
        field.setText(text);
        EXPECT_TRUE(field.userChanged());
    }
    void type(NumberField& field, const Decimal& number)
    {
        field.setValue(number);
        EXPECT_TRUE(field.userChanged());
    }
    void tick(CheckBox& box, bool on = true)
    {
        box.setOn(on);
        EXPECT_TRUE(box.userChanged());
    }
    void choose(CurrencyStruct currency)
    {
        EXPECT_TRUE(preferences.currencySelect.selectTag(rawValue(currency)));
        EXPECT_TRUE(preferences.currencySelect.userChanged());
    }
    void apply() { EXPECT_TRUE(preferences.applyButton.userChanged()); }
    std::shared_ptr<Params> stored() { return books.appDelegate.params(); }
    QDate dayOf(qint64 period)
    {
        return QDateTime::fromSecsSinceEpoch(preferences.dateFromInt(period), QTimeZone::utc()).date();
    }
    void expectRefused(const QString& field)
    {
        const QStringList before = books.dump();
        const std::size_t alerts = books.dialogs.alerts.size();
        apply();
        ASSERT_EQ(books.dialogs.alerts.size(), alerts + 1);
        EXPECT_TRUE(books.dialogs.alerts.back().informativeText.contains(field));
        EXPECT_EQ(books.dump(), before);
        EXPECT_TRUE(preferences.changed);
        EXPECT_TRUE(preferences.applyButton.enabled());
    }

    Books books;
    UserDefaultsController preferences{books.appDelegate};
    int mainWindowShown = 0;
    int currencyChecked = 0;
    int projectLeft = 0;
};

} // namespace

TEST_F(Preferences, areTitledByTheProject)
{
    preferences.showWindow();
    EXPECT_EQ(preferences.windowTitle.text(), u"Parameters for my little shop"_s);
    EXPECT_EQ(preferences.projectName, u"my little shop"_s);
    EXPECT_TRUE(preferences.window.isOpen());
    EXPECT_TRUE(preferences.defaultCurrencyWarning.hidden());
    EXPECT_FALSE(preferences.applyButton.enabled());
    EXPECT_FALSE(preferences.currencySelect.enabled());
    EXPECT_EQ(preferences.currencySelect.selectedTag(), rawValue(CurrencyStruct::EUR));
}

TEST_F(Preferences, offerEveryCurrencyAndNone)
{
    preferences.showWindow();
    const auto& items = preferences.currencySelect.items();
    ASSERT_EQ(items.size(), allCurrencies.size() + 1);
    EXPECT_EQ(items.front().title, u"-----"_s);
    EXPECT_EQ(items.front().tag, 0);
    for (std::size_t i = 0; i < allCurrencies.size(); ++i) {
        EXPECT_EQ(items[i + 1].title, currencyShort(allCurrencies[i]));
        EXPECT_EQ(items[i + 1].tag, rawValue(allCurrencies[i]));
        EXPECT_EQ(items[i + 1].image, currencyImage(allCurrencies[i]));
    }
}

TEST_F(Preferences, whatIsTypedIsStoredAndShownAgain)
{
    preferences.showWindow();
    preferences.reportPeriod.selectTag(3);
    EXPECT_TRUE(preferences.reportPeriod.userChanged());
    tick(preferences.showCurrentBalanceCheck);
    type(preferences.maxDeferment, 45);
    tick(preferences.printCompanyLogoCheck, false);
    tick(preferences.useVATCheck);
    type(preferences.vatRate, Decimal::fromDouble(19.5));
    type(preferences.gstRate, 7);
    tick(preferences.useVATNoCheck);
    tick(preferences.printBankDetailsCheck);
    TextField* const texts[] = {
        &preferences.vatNo,         &preferences.companyName,     &preferences.companyAddress,
        &preferences.companyCity,   &preferences.companyPhone,    &preferences.companyMail,
        &preferences.companyDomain, &preferences.bankAccountName, &preferences.bankAccountNumber,
        &preferences.bankName,      &preferences.bankAddress,     &preferences.bankIBAN,
        &preferences.bankSWIFT};
    for (TextField* field : texts)
        type(*field, u'<' + field->name() + u'>');
    apply();

    const auto params = stored();
    EXPECT_EQ(params->reportPeriod, 3);
    EXPECT_TRUE(params->showCurrentBalance);
    EXPECT_EQ(params->maxDeferment, 45);
    EXPECT_FALSE(params->printCompanyLogo);
    EXPECT_TRUE(params->useVAT);
    EXPECT_FALSE(params->useGST);
    EXPECT_EQ(params->vatRate, 19.5);
    EXPECT_EQ(params->gstRate, 7);
    EXPECT_TRUE(params->useVATNo);
    EXPECT_TRUE(params->printBankDetails);
    EXPECT_EQ(params->vatNumber, u"<vatNo>"_s);
    EXPECT_EQ(params->companyName, u"<companyName>"_s);
    EXPECT_EQ(params->companyAddress, u"<companyAddress>"_s);
    EXPECT_EQ(params->companyCity, u"<companyCity>"_s);
    EXPECT_EQ(params->companyPhone, u"<companyPhone>"_s);
    EXPECT_EQ(params->companyMail, u"<companyMail>"_s);
    EXPECT_EQ(params->companyDomain, u"<companyDomain>"_s);
    EXPECT_EQ(params->bankAccountName, u"<bankAccountName>"_s);
    EXPECT_EQ(params->bankAccountNumber, u"<bankAccountNumber>"_s);
    EXPECT_EQ(params->bankName, u"<bankName>"_s);
    EXPECT_EQ(params->bankAddress, u"<bankAddress>"_s);
    EXPECT_EQ(params->bankIBAN, u"<bankIBAN>"_s);
    EXPECT_EQ(params->bankSWIFT, u"<bankSWIFT>"_s);

    UserDefaultsController again(books.appDelegate);
    again.showWindow();
    EXPECT_EQ(again.reportPeriod.selectedTag(), 3);
    EXPECT_TRUE(again.showCurrentBalanceCheck.isOn());
    EXPECT_EQ(again.maxDeferment.value(), Decimal(45));
    EXPECT_FALSE(again.printCompanyLogoCheck.isOn());
    EXPECT_TRUE(again.useVATCheck.isOn());
    EXPECT_FALSE(again.useGSTCheck.isOn());
    EXPECT_EQ(again.vatRate.real(), 19.5);
    EXPECT_EQ(again.gstRate.real(), 7);
    EXPECT_TRUE(again.useVATNoCheck.isOn());
    EXPECT_TRUE(again.printBankDetailsCheck.isOn());
    const TextField* const shown[] = {&again.vatNo,         &again.companyName,     &again.companyAddress,
                                      &again.companyCity,   &again.companyPhone,    &again.companyMail,
                                      &again.companyDomain, &again.bankAccountName, &again.bankAccountNumber,
                                      &again.bankName,      &again.bankAddress,     &again.bankIBAN,
                                      &again.bankSWIFT};
    for (const TextField* field : shown)
        EXPECT_EQ(field->text(), u'<' + field->name() + u'>');
}

TEST_F(Preferences, applyIsEnabledFromAnEditToTheNextApply)
{
    preferences.showWindow();
    EXPECT_FALSE(preferences.applyButton.enabled());
    type(preferences.companyName, u"Tea"_s);
    EXPECT_TRUE(preferences.changed);
    EXPECT_TRUE(preferences.applyButton.enabled());
    books.posted.clear();
    apply();
    EXPECT_FALSE(preferences.changed);
    EXPECT_FALSE(preferences.applyButton.enabled());
    EXPECT_EQ(books.posted.count(NotificationName::DefaultsChangedNotification), 1U);
    EXPECT_EQ(books.posted.notifications.back().object, nullptr);
}

TEST_F(Preferences, aFailedApplySaysNothingAndStaysToBeApplied)
{
    preferences.showWindow();
    type(preferences.companyName, u"Tea"_s);
    books.posted.clear();
    books.connector->failCall(1, FaultInjectingConnector::Update);
    apply();
    EXPECT_TRUE(preferences.changed);
    EXPECT_TRUE(preferences.applyButton.enabled());
    EXPECT_TRUE(books.posted.names.empty());
    EXPECT_TRUE(books.dialogs.alerts.empty());
    apply();
    EXPECT_EQ(stored()->companyName, u"Tea"_s);
}

TEST_F(Preferences, inSetUpAClosedWindowNeedsACurrencyThatWasApplied)
{
    showInitially();
    EXPECT_FALSE(preferences.defaultCurrencyWarning.hidden());
    EXPECT_TRUE(preferences.currencySelect.enabled());
    EXPECT_EQ(preferences.currencySelect.selectedTag(), 0);
    preferences.closeWindow();
    ASSERT_EQ(books.dialogs.alerts.size(), 1U);
    EXPECT_EQ(books.dialogs.alerts.front().messageText, u"Default currency doesn't set"_s);
    EXPECT_EQ(books.dialogs.alerts.front().informativeText,
              u"Please select default currency for project and confirm changes!"_s);
    EXPECT_EQ(books.dialogs.alerts.front().buttons, QStringList{u"Close"_s});
    EXPECT_EQ(books.dialogs.alerts.front().alertStyle, 0);

    choose(CurrencyStruct::GBP);
    preferences.closeWindow();
    EXPECT_EQ(books.dialogs.alerts.size(), 2U);
    EXPECT_TRUE(preferences.window.isOpen());
    EXPECT_TRUE(preferences.initial);
    EXPECT_EQ(currencyChecked, 0);

    apply();
    preferences.closeWindow();
    EXPECT_EQ(books.dialogs.alerts.size(), 2U);
    EXPECT_FALSE(preferences.window.isOpen());
    EXPECT_FALSE(preferences.initial);
    EXPECT_TRUE(preferences.defaultCurrencyWarning.hidden());
    EXPECT_FALSE(preferences.currencySelect.enabled());
    EXPECT_EQ(currencyChecked, 1);
    EXPECT_EQ(mainWindowShown, 0);
    EXPECT_EQ(stored()->defaultCurrency, rawValue(CurrencyStruct::GBP));
}

TEST_F(Preferences, anAppliedCurrencyStandsFast)
{
    showInitially();
    choose(CurrencyStruct::USD);
    apply();
    preferences.closeWindow();
    preferences.showWindow();
    EXPECT_FALSE(preferences.currencySelect.enabled());
    EXPECT_EQ(preferences.currencySelect.selectedTag(), rawValue(CurrencyStruct::USD));
    EXPECT_TRUE(preferences.defaultCurrencyWarning.hidden());
    type(preferences.companyName, u"Tea"_s);
    apply();
    EXPECT_EQ(stored()->defaultCurrency, rawValue(CurrencyStruct::USD));
}

TEST_F(Preferences, withoutACurrencyNoneIsSelected)
{
    books.changeParams([](Params& params) { params.defaultCurrency = 0; });
    preferences.showWindow();
    EXPECT_TRUE(preferences.currencySelect.enabled());
    EXPECT_EQ(preferences.currencySelect.selectedTag(), 0);
}

TEST_F(Preferences, closedInAProjectThatIsSetUpTheyGiveWayToTheMainWindow)
{
    preferences.showWindow();
    type(preferences.companyName, u"never applied"_s);
    preferences.closeWindow();
    EXPECT_FALSE(preferences.window.isOpen());
    EXPECT_EQ(mainWindowShown, 1);
    EXPECT_EQ(currencyChecked, 0);
    EXPECT_TRUE(books.dialogs.alerts.empty());
    EXPECT_TRUE(stored()->companyName.isEmpty());
}

// As the window has always been: what was typed is gone, yet it counts as not applied.
TEST_F(Preferences, openedAgainAfterAnEditTheyShowTheStoredValuesAndCanStillBeApplied)
{
    preferences.showWindow();
    type(preferences.companyName, u"never applied"_s);
    preferences.closeWindow();
    preferences.showWindow();
    EXPECT_TRUE(preferences.companyName.text().isEmpty());
    EXPECT_TRUE(preferences.changed);
    EXPECT_TRUE(preferences.applyButton.enabled());
}

TEST_F(Preferences, theProjectWindowIsAnotherWayOut)
{
    showInitially();
    preferences.showProjectSelectWindow();
    EXPECT_EQ(projectLeft, 1);
    preferences.projectWasLeft();
    EXPECT_FALSE(preferences.window.isOpen());
    EXPECT_FALSE(preferences.initial);
    EXPECT_EQ(currencyChecked, 0);
}

TEST_F(Preferences, theLastClosedMonthIsShownByItsTwentyEighth)
{
    EXPECT_EQ(dayOf(201412), QDate(2014, 12, 28));
    EXPECT_EQ(dayOf(20153), QDate(2015, 3, 28));
    EXPECT_EQ(preferences.dateFromInt(0), 0);
    EXPECT_EQ(preferences.dateFromInt(-20153), 0);
    preferences.showWindow();
    EXPECT_EQ(preferences.lastPeriodSaved.moment(), preferences.dateFromInt(202310));
    EXPECT_FALSE(preferences.lastPeriodSaved.enabled());
}

TEST_F(Preferences, theDayOfAMonthIsThatOfTheUsersZone)
{
    const auto program = TestProgram::inZone("America/New_York");
    const UserDefaultsController elsewhere(program->appDelegate);
    EXPECT_EQ(elsewhere.dateFromInt(201412),
              QDateTime(QDate(2014, 12, 28), QTime(0, 0), QTimeZone("America/New_York")).toSecsSinceEpoch());
}

TEST_F(Preferences, vatAndGstExcludeEachOther)
{
    preferences.showWindow();
    tick(preferences.useGSTCheck);
    tick(preferences.useVATCheck);
    EXPECT_FALSE(preferences.useGSTCheck.isOn());
    tick(preferences.useVATNoCheck);
    tick(preferences.useGSTCheck);
    EXPECT_FALSE(preferences.useVATCheck.isOn());
    EXPECT_FALSE(preferences.useVATNoCheck.isOn());
    tick(preferences.useGSTCheck, false);
    EXPECT_FALSE(preferences.useVATCheck.isOn());
    EXPECT_TRUE(preferences.changed);
}

TEST_F(Preferences, turningVatOffLeavesItsNumberAsItIs)
{
    preferences.showWindow();
    tick(preferences.useVATCheck);
    tick(preferences.useVATNoCheck);
    tick(preferences.useVATCheck, false);
    EXPECT_TRUE(preferences.useVATNoCheck.isOn());
}

TEST_F(Preferences, applyingSetsTheLayoutVersionBack)
{
    books.changeParams([](Params& params) { params.version = u"1.2"_s; });
    preferences.showWindow();
    preferences.applyChanges();
    EXPECT_EQ(stored()->version, u"1.0"_s);
}

TEST_F(Preferences, applyingUndoesAMonthAndARateUpdateSinceTheWindowWasFilled)
{
    preferences.showWindow();
    books.changeParams([](Params& params) {
        params.lastPeriodSaved = 202311;
        params.lastCurrencyUpdate = 1'700'000'000;
    });
    preferences.applyChanges();
    EXPECT_EQ(stored()->lastPeriodSaved, 202310);
    EXPECT_EQ(stored()->lastCurrencyUpdate, 0);
}

TEST_F(Preferences, aLogoIsChosenShownAndTakenAway)
{
    preferences.showWindow();
    EXPECT_TRUE(preferences.logoPath.text().isEmpty());
    EXPECT_EQ(preferences.logoImageView.text(), u"logo.png"_s);
    EXPECT_TRUE(preferences.openLogoButton.userChanged()); // cancelled
    EXPECT_FALSE(preferences.changed);
    ASSERT_EQ(books.dialogs.openPanels.size(), 1U);
    EXPECT_EQ(books.dialogs.openPanels.front().nameLabel, u"Name"_s);
    EXPECT_EQ(books.dialogs.openPanels.front().prompt, u"Open Logo File"_s);
    EXPECT_EQ(books.dialogs.openPanels.front().allowedTypes,
              (QStringList{u"png"_s, u"jpg"_s, u"tiff"_s, u"pdf"_s}));

    books.dialogs.openPaths.push_back(u"/pictures/my logo.png"_s);
    preferences.openLogoFile();
    EXPECT_EQ(preferences.logoPath.text(), u"/pictures/my logo.png"_s);
    EXPECT_EQ(preferences.logoImageView.text(), u"/pictures/my logo.png"_s);
    EXPECT_TRUE(preferences.changed);
    apply();
    EXPECT_EQ(stored()->pathToLogo, u"/pictures/my logo.png"_s);

    preferences.showWindow();
    EXPECT_EQ(preferences.logoImageView.text(), u"/pictures/my logo.png"_s);
    EXPECT_TRUE(preferences.deleteLogoButton.userChanged());
    EXPECT_TRUE(preferences.logoPath.text().isEmpty());
    EXPECT_EQ(preferences.logoImageView.text(), u"logo.png"_s);
    EXPECT_TRUE(preferences.changed);
    apply();
    EXPECT_TRUE(stored()->pathToLogo.isEmpty());
}

TEST_F(Preferences, anEmptiedNumberIsZero)
{
    preferences.showWindow();
    for (NumberField* field : {&preferences.maxDeferment, &preferences.vatRate, &preferences.gstRate}) {
        field->clear();
        EXPECT_TRUE(field->userChanged());
        EXPECT_FALSE(field->isEmpty()) << qPrintable(field->name());
        EXPECT_EQ(field->value(), Decimal(0)) << qPrintable(field->name());
    }
    apply();
    EXPECT_EQ(stored()->maxDeferment, 0);
}

TEST_F(Preferences, aDefermentIsAWholeNumberOfDays)
{
    preferences.showWindow();
    type(preferences.maxDeferment, Decimal::fromDouble(14.9));
    EXPECT_EQ(preferences.maxDeferment.value(), Decimal(14));
}

TEST_F(Preferences, aDefermentOutsideOfWhatDocumentsTakeIsNotApplied)
{
    preferences.showWindow();
    type(preferences.maxDeferment, -1);
    expectRefused(u"deferment"_s);
    type(preferences.maxDeferment, 36'501);
    expectRefused(u"deferment"_s);
    type(preferences.maxDeferment, 36'500);
    apply();
    EXPECT_EQ(stored()->maxDeferment, 36'500);
}

TEST_F(Preferences, aRateOutsideOfZeroToAHundredIsNotApplied)
{
    preferences.showWindow();
    type(preferences.vatRate, Decimal::fromDouble(-0.01));
    expectRefused(u"VAT"_s);
    type(preferences.vatRate, 100);
    type(preferences.gstRate, Decimal::fromDouble(100.01));
    expectRefused(u"GST"_s);
    type(preferences.gstRate, 0);
    apply();
    EXPECT_EQ(stored()->vatRate, 100);
}

TEST_F(Preferences, ofAProjectOpenForReadingAreShownAndCannotBeEdited)
{
    preferences.showWindow();
    EXPECT_TRUE(preferences.readOnlyWarning.hidden());
    type(preferences.companyName, u"never applied"_s);
    preferences.closeWindow();
    const QString path = books.db.path();
    ASSERT_TRUE(books.db.open(path, Access::ReadOnly));
    preferences.showWindow();
    EXPECT_FALSE(preferences.readOnlyWarning.hidden());
    EXPECT_EQ(preferences.readOnlyWarning.text(),
              u"The project is open for reading only. Nothing can be changed."_s);
    EXPECT_FALSE(preferences.companyName.userChanged());
    EXPECT_FALSE(preferences.vatRate.userChanged());
    EXPECT_FALSE(preferences.useVATCheck.userChanged());
    EXPECT_FALSE(preferences.reportPeriod.userChanged());
    EXPECT_FALSE(preferences.openLogoButton.userChanged());
    EXPECT_FALSE(preferences.deleteLogoButton.userChanged());
    EXPECT_FALSE(preferences.applyButton.userChanged());
    preferences.closeWindow();
    EXPECT_FALSE(preferences.window.isOpen());

    ASSERT_TRUE(books.db.open(path));
    preferences.showWindow();
    EXPECT_TRUE(preferences.readOnlyWarning.hidden());
    EXPECT_TRUE(preferences.companyName.enabled());
    EXPECT_TRUE(preferences.applyButton.enabled());
    EXPECT_FALSE(preferences.currencySelect.enabled());
    EXPECT_FALSE(preferences.lastPeriodSaved.enabled());
}

TEST_F(Preferences, inAProjectOpenForReadingNoCurrencyCanBeChosen)
{
    books.changeParams([](Params& params) { params.defaultCurrency = 0; });
    const QString path = books.db.path();
    ASSERT_TRUE(books.db.open(path, Access::ReadOnly));
    preferences.initial = true;
    preferences.showWindow();
    EXPECT_FALSE(preferences.currencySelect.enabled());
    preferences.closeWindow();
    EXPECT_TRUE(preferences.window.isOpen());
    preferences.showProjectSelectWindow();
    EXPECT_EQ(projectLeft, 1);
}

TEST_F(Preferences, withoutASettingsRowNothingIsFilledIn)
{
    ASSERT_EQ(books.db.remove(*stored()), 1);
    preferences.maxDeferment.setValue(12);
    preferences.setParams();
    EXPECT_EQ(preferences.projectName, u"my little shop"_s);
    EXPECT_EQ(preferences.maxDeferment.value(), Decimal(12));
}

} // namespace zelvor
