#include "desktop/day_field.h"

#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCalendarWidget>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate shown(2023, 11, 14);

QDate american(const QString& text)
{
    return dayFromUserText(text, QLocale(u"en_US"_s), shown);
}

QDate russian(const QString& text)
{
    return dayFromUserText(text, QLocale(u"ru_RU"_s), shown);
}

void retype(QLineEdit& field, const QString& text)
{
    field.selectAll();
    QTest::keyClicks(&field, text);
}

} // namespace

TEST(DayText, hasItsPartsWhereTheLocaleHasThem)
{
    EXPECT_EQ(american(u"3/1/2024"_s), QDate(2024, 3, 1));
    EXPECT_EQ(russian(u"01.03.2024"_s), QDate(2024, 3, 1));
    EXPECT_EQ(russian(u"1/3/24"_s), QDate(2024, 3, 1));
    EXPECT_EQ(russian(u"01032024"_s), QDate(2024, 3, 1));
    EXPECT_EQ(american(u"030124"_s), QDate(2024, 3, 1));
}

TEST(DayText, isTheSameEverywhereWithTheYearFirst)
{
    EXPECT_EQ(american(u"2024-03-01"_s), QDate(2024, 3, 1));
    EXPECT_EQ(russian(u"2024-03-01"_s), QDate(2024, 3, 1));
}

TEST(DayText, takesWhatIsLeftOutFromTheDateBefore)
{
    EXPECT_EQ(russian(u"1.3"_s), QDate(2023, 3, 1));
    EXPECT_EQ(russian(u"1.3."_s), QDate(2023, 3, 1));
    EXPECT_EQ(american(u"3/1"_s), QDate(2023, 3, 1));
    EXPECT_EQ(american(u"2"_s), QDate(2023, 11, 2));
}

TEST(DayText, isNothingWhenThereIsNoSuchDay)
{
    for (const QString& text : {u""_s, u"abc"_s, u"31"_s, u"30.2.2024"_s, u"1.2.3.4"_s, u"1.13.2024"_s,
                                u"-5"_s, u"1.1.1024"_s, u"12345"_s, u"1 Mar"_s})
        EXPECT_FALSE(russian(text).isValid()) << qPrintable(text);
}

class DayFieldTest : public testing::Test {
protected:
    void SetUp() override
    {
        field.setDay(shown);
        field.show();
        field.setFocus();
    }

    DayField field;
    QSignalSpy chosen{&field, &DayField::dayChosen};
};

TEST_F(DayFieldTest, tellsATypedDayOnceItIsLeft)
{
    retype(field, u"12/24/2023"_s);
    EXPECT_EQ(chosen.count(), 0);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_EQ(field.day(), QDate(2023, 12, 24));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(DayFieldTest, showsTheOldDayAgainForWhatIsNone)
{
    const QColor ink = field.palette().color(QPalette::Text);
    retype(field, u"12/44"_s);
    EXPECT_NE(field.palette().color(QPalette::Text), ink);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.text(), u"11/14/2023"_s);
    EXPECT_EQ(field.palette().color(QPalette::Text), ink);
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(DayFieldTest, escapeGivesUpWhatWasTyped)
{
    retype(field, u"12/1"_s);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), u"11/14/2023"_s);
    field.commit();
    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(DayFieldTest, theArrowsGoADayOn)
{
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.day(), QDate(2023, 11, 15));
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.day(), QDate(2023, 11, 13));
    EXPECT_EQ(chosen.count(), 3);
}

TEST_F(DayFieldTest, theCalendarOpensByAKeyAndItsDayIsTaken)
{
    QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
    auto* const calendar = field.findChild<QCalendarWidget*>(u"calendar"_s);
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), shown);
    Q_EMIT calendar->clicked(QDate(2023, 11, 20));
    EXPECT_EQ(field.day(), QDate(2023, 11, 20));
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(DayFieldTest, theCalendarOpensAtWhatWasTyped)
{
    retype(field, u"12/24"_s);
    field.openCalendar();
    auto* const calendar = field.findChild<QCalendarWidget*>(u"calendar"_s);
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), QDate(2023, 12, 24));
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(DayFieldTest, followsTheAppearanceOfTheDesktop)
{
    field.setDay(shown.addDays(1));
    applyAppearance(*qApp, Appearance::Dark);
    QApplication::processEvents();
    EXPECT_EQ(field.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
    EXPECT_EQ(field.palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
    applyAppearance(*qApp, Appearance::Light);
}

} // namespace zelvor
