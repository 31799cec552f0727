#include "core/notification_center.h"

#include <gtest/gtest.h>

#include <QtCore/QSet>

#include <optional>
#include <string>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;
using enum NotificationName;

TEST(NotificationCenter, aPostingReachesItsObserversAtOnceInTheOrderOfRegistration)
{
    NotificationCenter center;
    std::string heard;
    const auto first = center.observe(StockChangedNotification, [&](const Notification&) { heard += "a"; });
    const auto every = center.observeAll([&](const Notification&) { heard += "*"; });
    const auto second = center.observe(StockChangedNotification, [&](const Notification&) { heard += "b"; });
    const auto other = center.observe(ProductChangedNotification, [&](const Notification&) { heard += "x"; });
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, "a*b");
    center.post(ProductChangedNotification);
    EXPECT_EQ(heard, "a*b*x");
}

TEST(NotificationCenter, aPostingCarriesItsPosterAndTheNewNamesText)
{
    NotificationCenter center;
    Notification heard{BalanceChangedNotification, nullptr, {}};
    const auto observation =
        center.observe(ManagerChangedNotification, [&](const Notification& posted) { heard = posted; });
    center.post(ManagerChangedNotification, &center, u"Ann"_s);
    EXPECT_EQ(heard.name, ManagerChangedNotification);
    EXPECT_EQ(heard.object, &center);
    EXPECT_EQ(heard.text, u"Ann"_s);
    center.post(ManagerChangedNotification);
    EXPECT_EQ(heard.object, nullptr);
    EXPECT_TRUE(heard.text.isNull());
}

TEST(NotificationCenter, anEndedObservationHearsNothing)
{
    NotificationCenter center;
    int heard = 0;
    {
        const auto observation =
            center.observe(StockChangedNotification, [&](const Notification&) { ++heard; });
        center.post(StockChangedNotification);
    }
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, 1);
}

TEST(NotificationCenter, aMovedObservationGoesOnAndTheOneItReplacesEnds)
{
    NotificationCenter center;
    std::string heard;
    auto first = center.observe(StockChangedNotification, [&](const Notification&) { heard += "a"; });
    auto second = center.observe(StockChangedNotification, [&](const Notification&) { heard += "b"; });
    first = std::move(second);
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, "b");
    const NotificationCenter::Observation third(std::move(first));
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, "bb");
}

TEST(NotificationCenter, aHandlerMayPost)
{
    NotificationCenter center;
    std::string heard;
    const auto first = center.observe(BalanceChangedNotification, [&](const Notification&) {
        heard += "(";
        center.post(BalanceCalculatedNotification);
        heard += ")";
    });
    const auto inner =
        center.observe(BalanceCalculatedNotification, [&](const Notification&) { heard += "i"; });
    const auto last = center.observe(BalanceChangedNotification, [&](const Notification&) { heard += "z"; });
    center.post(BalanceChangedNotification);
    EXPECT_EQ(heard, "(i)z");
}

TEST(NotificationCenter, aHandlerMayEndItselfAndOthersWhileAPostingIsDelivered)
{
    NotificationCenter center;
    std::string heard;
    std::optional<NotificationCenter::Observation> self, later;
    // The handler's own captures must stay alive until it returns.
    self = center.observe(StockChangedNotification, [&, mark = std::string("a")](const Notification&) {
        self.reset();
        later.reset();
        heard += mark;
    });
    later = center.observe(StockChangedNotification, [&](const Notification&) { heard += "b"; });
    const auto last = center.observe(StockChangedNotification, [&](const Notification&) { heard += "c"; });
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, "ac");
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, "acc");
}

TEST(NotificationCenter, anObserverAddedDuringADeliveryHearsTheNextPosting)
{
    NotificationCenter center;
    int heard = 0;
    std::vector<NotificationCenter::Observation> added;
    const auto first = center.observe(StockChangedNotification, [&](const Notification&) {
        // Many, so that the list of observers has to move.
        for (int i = 0; i < 100; ++i)
            added.push_back(center.observe(StockChangedNotification, [&](const Notification&) { ++heard; }));
    });
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, 0);
    center.post(StockChangedNotification);
    EXPECT_EQ(heard, 100);
}

TEST(NotificationCenter, anObservationMayOutliveTheCentre)
{
    std::optional<NotificationCenter> center(std::in_place);
    int heard = 0;
    auto outer = center->observe(StockChangedNotification, [&](const Notification&) { ++heard; });
    // An observation that only another handler holds ends while the centre goes away.
    auto held = std::make_shared<NotificationCenter::Observation>(
        center->observe(StockChangedNotification, [&](const Notification&) { ++heard; }));
    const auto holder = center->observe(AccountChangedNotification, [held](const Notification&) {});
    held.reset();
    center->post(StockChangedNotification);
    center.reset();
    EXPECT_EQ(heard, 2);
}

TEST(NotificationCenter, everyNameHasItsOwnText)
{
    QSet<QString> texts;
    for (int i = 0; i <= static_cast<int>(PropertiesAmortizedNotification); ++i)
        texts.insert(notificationNameText(static_cast<NotificationName>(i)));
    EXPECT_EQ(texts.size(), 35);
    EXPECT_EQ(notificationNameText(AccountBalanceChangedNotification),
              u"AccountBalanceChangedNotification"_s);
    EXPECT_EQ(notificationNameText(ManagerAddCancelledNotification), u"ManagerAddCancelledNotification"_s);
    EXPECT_EQ(notificationNameText(MeasurementsChangedNotificationForSelf),
              u"MeasurementsChangedNotificationForSelf"_s);
    EXPECT_EQ(notificationNameText(StockChangedNotification), u"StockChangedNotification"_s);
    EXPECT_EQ(notificationNameText(PropertiesAmortizedNotification), u"PropertiesAmortizedNotification"_s);
}
