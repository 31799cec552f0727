#include "catalogs/account_type_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class AccountTypeCatalog : public FlatCatalogFixture {
protected:
    void addStored(const QString& name, const QString& description)
    {
        AccountType record;
        record.name = name;
        record.descriptionString = description;
        store(record);
    }

    AccountTypeViewController controller{program.appDelegate};
};

TEST_F(AccountTypeCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Account Types Catalog"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view), (QStringList{u"name"_s, u"description"_s, u"hidden"_s}));
}

TEST_F(AccountTypeCatalog, aNewTypeStartsWithItsDefaultName)
{
    controller.addAccountType();
    EXPECT_EQ(controller.accountTypePopoverTitle.text(), u"Add Account Type"_s);
    EXPECT_EQ(controller.accountTypeName.text(), u"New Account Type"_s);
    type(controller.accountTypeDescription, u"coins"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<AccountType>(1)->name, u"New Account Type"_s);
    EXPECT_EQ(stored<AccountType>(1)->descriptionString, u"coins"_s);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.accountTypePopoverTitle.text(), u"Edit Account Type"_s);
    EXPECT_EQ(controller.accountTypeDescription.text(), u"coins"_s);
}

TEST_F(AccountTypeCatalog, theNewsCarriesTheNameOfANewTypeAndNoneOfAnEditedOne)
{
    controller.addAccountType();
    type(controller.accountTypeName, u"Safe"_s);
    controller.okButton.userChanged();
    controller.view.doubleAction(0);
    controller.okButton.userChanged();
    controller.view.setValue(0, u"hidden"_s, true);
    controller.addAccountType();
    controller.cancelAccountTypePopover();

    using enum NotificationName;
    EXPECT_EQ(program.posted.names,
              (std::vector{AccountTypeChangedNotification, AccountTypeChangedNotification,
                           AccountTypeChangedNotification, AccountTypeAddCanceledNotification}));
    EXPECT_EQ(program.posted.notifications[0].text, u"Safe"_s);
    EXPECT_TRUE(program.posted.notifications[1].text.isNull());
    EXPECT_TRUE(program.posted.notifications[2].text.isNull());
}

TEST_F(AccountTypeCatalog, hiddenIsStoredByTheListAndPutBackWhenThatFails)
{
    addStored(u"A"_s, u""_s);
    EXPECT_TRUE(controller.view.setValue(0, u"hidden"_s, true));
    EXPECT_TRUE(stored<AccountType>(1)->isHidden);
    for (const unsigned kind : {FaultInjectingConnector::Update, FaultInjectingConnector::Commit}) {
        program.connector->failCall(1, kind);
        EXPECT_FALSE(controller.view.setValue(0, u"hidden"_s, false));
        EXPECT_TRUE(controller.view.value(0, u"hidden"_s).toBool());
        EXPECT_TRUE(stored<AccountType>(1)->isHidden);
    }
}

TEST_F(AccountTypeCatalog, aDescendingSortOnTheDescriptionChangesNothing)
{
    addStored(u"A"_s, u"2"_s);
    addStored(u"B"_s, u"3"_s);
    addStored(u"C"_s, u"1"_s);
    controller.view.sort(u"description"_s, true);
    const QStringList byDescription{u"C"_s, u"A"_s, u"B"_s};
    EXPECT_EQ(column(controller.view, u"name"_s), byDescription);
    controller.view.sort(u"description"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), byDescription);
    controller.view.sort(u"salary"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), byDescription) << "no type has a salary: all are equal";
    controller.view.sort(u"name"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"B"_s, u"A"_s}));
}

} // namespace
} // namespace zelvor
