#include "shell/main_view_controller.h"

#include "catalogs/product_view_controller.h"
#include "catalogs/stock_view_controller.h"
#include "support/books.h"

#include <gtest/gtest.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

class FootLine : public testing::Test {
protected:
    void showBalance(bool shown)
    {
        Params params = *books.appDelegate.params();
        params.showCurrentBalance = shown;
        ASSERT_EQ(books.db.update(params), 1);
        books.appDelegate.notifications.post(NotificationName::DefaultsChangedNotification);
    }

    Books books;
    MainViewController main{books.appDelegate};
};

TEST_F(FootLine, theBalanceIsHiddenUnlessTheSettingsShowIt)
{
    main.checkParams();
    EXPECT_TRUE(main.balance.hidden());
    EXPECT_TRUE(main.balanceLabel.hidden());
    showBalance(true);
    EXPECT_FALSE(main.balance.hidden());
    EXPECT_FALSE(main.balanceLabel.hidden());
}

TEST_F(FootLine, theBalanceIsRedBelowZeroAndInOrderOtherwise)
{
    books.account(u"Till"_s, -5);
    showBalance(true);
    EXPECT_EQ(main.balance.real(), -5);
    EXPECT_EQ(main.balance.color(), redColor);
    books.account(u"Bank"_s, 5);
    books.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(main.balance.real(), 0);
    EXPECT_EQ(main.balance.color(), inOrderColor);
}

TEST_F(FootLine, aShownBalanceFollowsEveryChange)
{
    showBalance(true);
    books.account(u"Till"_s, 7);
    books.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(main.balance.real(), 7);
}

TEST_F(FootLine, showsWhatTheLayersBelowSay)
{
    books.appDelegate.workspace().setStateString(u"All currencies are up to date"_s);
    EXPECT_EQ(main.stateField.text(), u"All currencies are up to date"_s);
}

TEST_F(FootLine, answersTheQuestionsOfTheCalendarOfMonths)
{
    // 14 November 2023: October is the last finished month, and closed.
    EXPECT_EQ(main.getPeriodToSave(), 202310);
    EXPECT_TRUE(main.isPeriodSaved(202310));
    EXPECT_FALSE(main.isPeriodSaved(20239));
    EXPECT_EQ(main.getLastComponents(), (DayComponents{2023, 10, 31}));
    EXPECT_EQ(main.timeIntervalFromInt(202310), 1698796799);
    const auto params = books.appDelegate.params();
    EXPECT_EQ(main.getStartPeriodDateFromDate(books.appDelegate.now(), *params), 1698796800);
    EXPECT_EQ(main.clearDate(books.appDelegate.now()), 1699920000.0);
}

TEST_F(FootLine, nothingIsReadBeforeSomebodyLooks)
{
    main.checkParams();
    EXPECT_EQ(main.stockController->view.numberOfRows(), 0);
    EXPECT_EQ(main.productController->view.numberOfChildren(nullptr), 0);
    const qint64 before = books.db.statementCount();
    main.prepareAllData();
    EXPECT_EQ(books.db.statementCount(), before);
    EXPECT_TRUE(main.stockController->isStale());
    EXPECT_TRUE(main.productController->isStale());
    EXPECT_FALSE(books.posted.has(NotificationName::BalanceCalculatedNotification));
}

TEST_F(FootLine, theHeaderIsDrawnAnewWhenSettingsOrBalanceChange)
{
    int drawn = 0;
    main.onHeaderPanelChanged = [&drawn] { ++drawn; };
    main.checkParams();
    EXPECT_EQ(drawn, 1);
    showBalance(true); // the settings, and the balance that they ask for
    EXPECT_EQ(drawn, 3);
    books.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(drawn, 4);
}

} // namespace zelvor
