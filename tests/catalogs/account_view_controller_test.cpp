#include "catalogs/account_view_controller.h"

#include "catalogs/account_type_view_controller.h"
#include "catalogs/flat_catalog_fixture.h"
#include "core/currency_struct.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class AccountCatalog : public FlatCatalogFixture {
protected:
    AccountCatalog() { controller.accountTypeController = &types; }

    qint64 addStored(const QString& name, double balance = 0, qint64 typeID = 0)
    {
        Account account;
        account.name = name;
        account.currencyID = 2;
        account.accountTypeID = typeID;
        account.setBalance(balance);
        return store(account);
    }

    AccountTypeViewController types{program.appDelegate};
    AccountViewController controller{program.appDelegate};
};

TEST_F(AccountCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Accounts List"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view), (QStringList{u"name"_s, u"typeName"_s, u"currency"_s,
                                                         u"balance"_s, u"default"_s, u"hidden"_s}));
}

TEST_F(AccountCatalog, okWithoutACurrencyLeavesThePopoverOpenWithTheWarning)
{
    controller.addAccount();
    EXPECT_EQ(controller.accountPopoverTitle.text(), u"Add New Account"_s);
    EXPECT_EQ(controller.accountCurrencySelect.selectedTitle(), u"-----"_s);
    type(controller.accountName, u"Cash"_s);
    const qint64 statements = connector().statementCount();
    EXPECT_TRUE(controller.okButton.userChanged());
    EXPECT_EQ(controller.accountWarning.text(), u"Please select currency for account!"_s);
    EXPECT_TRUE(controller.accountPopover.isOpen());
    EXPECT_NE(controller.focusedObject, nullptr);
    EXPECT_EQ(connector().statementCount(), statements);
    EXPECT_EQ(count<Account>(), 0U);

    controller.accountCurrencySelect.selectTag(3);
    controller.okButton.userChanged();
    EXPECT_FALSE(controller.accountPopover.isOpen());
    EXPECT_EQ(stored<Account>(1)->currencyID, 3);
    EXPECT_TRUE(controller.accountWarning.text().isEmpty());
}

TEST_F(AccountCatalog, currencyChooserHoldsEveryCurrencyWithItsFlag)
{
    const auto& items = controller.accountCurrencySelect.items();
    ASSERT_EQ(items.size(), 14U);
    EXPECT_EQ(items[0].tag, 0);
    for (std::size_t i = 0; i < allCurrencies.size(); ++i) {
        EXPECT_EQ(items[i + 1].title, currencyShort(allCurrencies[i]));
        EXPECT_EQ(items[i + 1].tag, rawValue(allCurrencies[i]));
        EXPECT_EQ(items[i + 1].image, currencyImage(allCurrencies[i]));
    }
}

TEST_F(AccountCatalog, theCurrencyOfAStoredAccountIsSeenButCannotBeChanged)
{
    addStored(u"Cash"_s);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.accountPopoverTitle.text(), u"Edit Account"_s);
    EXPECT_EQ(controller.accountCurrencySelect.selectedTag(), 2);
    EXPECT_FALSE(controller.accountCurrencySelect.enabled());
    EXPECT_FALSE(controller.accountCurrencySelect.userChanged());
    controller.cancelAccountPopover();
    EXPECT_TRUE(controller.accountCurrencySelect.enabled());
    controller.addAccount();
    EXPECT_TRUE(controller.accountCurrencySelect.enabled());
    EXPECT_EQ(controller.accountCurrencySelect.selectedTag(), 0);
}

TEST_F(AccountCatalog, refusesAnAccountWithoutANameOrACurrencyOrWithAChangedCurrency)
{
    Account account;
    EXPECT_EQ(controller.refusal(account), u"Field 'Name' is required!"_s);
    account.name = u"Cash"_s;
    EXPECT_EQ(controller.refusal(account), u"Please select currency for account!"_s);
    account.currencyID = 14;
    EXPECT_EQ(controller.refusal(account), u"Please select currency for account!"_s) << "there are 13";
    account.currencyID = 13;
    EXPECT_TRUE(controller.refusal(account).isEmpty());
    store(account);
    EXPECT_TRUE(controller.refusal(account).isEmpty());
    account.currencyID = 2;
    EXPECT_FALSE(controller.refusal(account).isEmpty());
}

TEST_F(AccountCatalog, okTellsOthersOfTheAccount)
{
    controller.addAccount();
    type(controller.accountName, u"Cash"_s);
    controller.accountCurrencySelect.selectTag(2);
    controller.okButton.userChanged();
    ASSERT_EQ(program.posted.names, std::vector{NotificationName::AccountChangedNotification});
    EXPECT_EQ(program.posted.notifications[0].object, nullptr);
    EXPECT_TRUE(program.posted.notifications[0].text.isNull());
    program.posted.clear();
    EXPECT_TRUE(controller.view.setValue(0, u"default"_s, true));
    EXPECT_TRUE(program.posted.names.empty());
}

TEST_F(AccountCatalog, anAccountHiddenWhileDefaultLosesTheDefault)
{
    Account account;
    account.name = u"Cash"_s;
    account.isDefault = true;
    store(account);
    addStored(u"Bank"_s);
    EXPECT_TRUE(controller.view.setValue(1, u"hidden"_s, true));
    EXPECT_TRUE(stored<Account>(1)->isHidden);
    EXPECT_FALSE(stored<Account>(1)->isDefault);
    EXPECT_FALSE(stored<Account>(2)->isDefault);
}

TEST_F(AccountCatalog, aNewDefaultIsTheOnlyOne)
{
    addStored(u"A"_s);
    addStored(u"B"_s);
    EXPECT_TRUE(controller.view.setValue(0, u"default"_s, true));
    EXPECT_TRUE(controller.view.setValue(1, u"default"_s, true));
    EXPECT_FALSE(stored<Account>(1)->isDefault);
    EXPECT_TRUE(stored<Account>(2)->isDefault);
    EXPECT_FALSE(controller.view.value(0, u"default"_s).toBool());
}

TEST_F(AccountCatalog, aFailedDefaultPutsBothTicksBack)
{
    Account account;
    account.name = u"A"_s;
    account.isHidden = true;
    store(account);
    EXPECT_EQ(controller.view.numberOfRows(), 1);
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(controller.view.setValue(0, u"default"_s, true));
    EXPECT_FALSE(controller.view.value(0, u"default"_s).toBool());
    EXPECT_TRUE(controller.view.value(0, u"hidden"_s).toBool());
    EXPECT_TRUE(stored<Account>(1)->isHidden);
}

TEST_F(AccountCatalog, sortsByNameTypeAndBalance)
{
    const qint64 bank = storeNamed<AccountType>(u"bank"_s);
    const qint64 cash = storeNamed<AccountType>(u"cash"_s);
    addStored(u"A"_s, 5, cash);
    addStored(u"B"_s, -7.5, bank);
    addStored(u"C"_s, 10, cash);
    controller.view.sort(u"balance"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    controller.view.sort(u"balance"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
    controller.view.sort(u"type"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
    controller.view.sort(u"type"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"C"_s, u"A"_s}));
    EXPECT_EQ(column(controller.view, u"typeName"_s), (QStringList{u"bank"_s, u"cash"_s, u"cash"_s}));
}

TEST_F(AccountCatalog, listShowsTheCurrencysFlagAndForANewTypeItsDefaultName)
{
    addStored(u"Cash"_s);
    EXPECT_EQ(controller.view.value(0, u"currency"_s).toString(), currencyImage(CurrencyStruct::USD));
    EXPECT_EQ(controller.view.value(0, u"typeName"_s).toString(), u"New Account Type"_s);
}

TEST_F(AccountCatalog, aBalanceThatADocumentMovedWhileThePopoverStoodOpenIsKept)
{
    addStored(u"Cash"_s, 10);
    controller.view.doubleAction(0);
    auto moved = stored<Account>(1);
    moved->setBalance(35.5);
    connector().update(*moved);
    program.appDelegate.notifications.post(NotificationName::AccountBalanceChangedNotification);

    type(controller.accountName, u"Till"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Account>(1)->name, u"Till"_s);
    EXPECT_EQ(stored<Account>(1)->balance(), 35.5);
    EXPECT_EQ(controller.view.value(0, u"balance"_s).toDouble(), 35.5);
}

TEST_F(AccountCatalog, hearsOfChangedBalances)
{
    addStored(u"Cash"_s, 10);
    EXPECT_EQ(controller.view.value(0, u"balance"_s).toDouble(), 10);
    auto moved = stored<Account>(1);
    moved->setBalance(11);
    connector().update(*moved);
    const qint64 statements = connector().statementCount();
    program.appDelegate.notifications.post(NotificationName::AccountBalanceChangedNotification);
    EXPECT_EQ(connector().statementCount(), statements) << "not on the screen: nothing is read";
    EXPECT_EQ(controller.view.value(0, u"balance"_s).toDouble(), 11);
}

TEST_F(AccountCatalog, aTypeAddedFromThePopoverIsChosenAndACancelledOneIsNot)
{
    controller.addAccount();
    controller.addAccountType();
    types.cancelAccountTypePopover();
    EXPECT_FALSE(controller.addNewAccountType);
    controller.addAccountType();
    type(types.accountTypeName, u"Safe"_s);
    types.okButton.userChanged();
    EXPECT_FALSE(controller.addNewAccountType);
    EXPECT_EQ(controller.accountTypeSelect.selectedTitle(), u"Safe"_s);

    type(controller.accountName, u"Cash"_s);
    controller.accountCurrencySelect.selectTag(2);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<Account>(1)->accountTypeID, 1);
    EXPECT_EQ(controller.view.value(0, u"typeName"_s).toString(), u"Safe"_s);
    EXPECT_EQ(controller.getNameOfAccountTypeWithID(1), u"Safe"_s);
}

} // namespace
} // namespace zelvor
