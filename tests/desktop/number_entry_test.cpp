// A line edit that takes numbers, without an outlet behind it.
#include "desktop/number_entry.h"
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QVBoxLayout>

#include <vector>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale russian(QLocale::Russian, QLocale::Russia);

Decimal decimal(const char* text)
{
    return Decimal::fromText(QString::fromLatin1(text));
}

class NumberEntryField : public testing::Test {
protected:
    NumberEntryField() : edit(new QLineEdit), next(new QLineEdit)
    {
        auto* const rows = new QVBoxLayout(&window);
        rows->addWidget(edit);
        rows->addWidget(next);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
    }
    ~NumberEntryField() override
    {
        QToolTip::hideText();
        QLocale::setDefault(american);
    }

    NumberEntry& make(int decimals = 2)
    {
        auto* const entry = new NumberEntry(edit, decimals);
        entry->onTyped = [this](const NumberEntry::Number& number) { typed.push_back(number); };
        entry->onDone = [this] { ++done; };
        return *entry;
    }
    void write(const QString& text)
    {
        edit->selectAll();
        if (text.isEmpty())
            QTest::keyClick(edit, Qt::Key_Delete);
        else
            QTest::keyClicks(edit, text);
    }
    bool isRed() const
    {
        return edit->palette().color(QPalette::Text) == textColor(redColor, QApplication::palette());
    }

    QWidget window;
    QLineEdit* edit;
    QLineEdit* next;
    std::vector<NumberEntry::Number> typed;
    int done = 0;
};

} // namespace

TEST_F(NumberEntryField, takesPointAndCommaForTheSameInEveryLocale)
{
    NumberEntry& entry = make();
    for (const QLocale& locale : {american, german, russian}) {
        QLocale::setDefault(locale);
        for (const QString& text : {u"12,5"_s, u"12.5"_s, u"12,50"_s, u"12.50"_s, u" 12.5 "_s}) {
            write(text);
            EXPECT_EQ(entry.number(), decimal("12.5"))
                << qPrintable(text) << " in " << qPrintable(locale.name());
        }
        for (const QString& text : {u"1 234,50"_s, u"1234.5"_s, u"1.234,50"_s, u"1,234.50"_s}) {
            write(text);
            EXPECT_EQ(entry.number(), decimal("1234.5"))
                << qPrintable(text) << " in " << qPrintable(locale.name());
        }
        write(u"0,125"_s);
        EXPECT_EQ(entry.number(), decimal("0.125")) << "in " << qPrintable(locale.name());
    }
}

TEST_F(NumberEntryField, showsWhatWasTypedInTheLocaleOnceItIsLeft)
{
    for (const auto& [locale, shown] :
         {std::pair(american, u"12.50"_s), std::pair(german, u"12,50"_s), std::pair(russian, u"12,50"_s)}) {
        QLocale::setDefault(locale);
        NumberEntry entry(edit, 2);
        edit->setFocus();
        write(u"12.5"_s);
        EXPECT_EQ(edit->text(), u"12.5"_s) << "not rewritten under the fingers";
        QTest::keyClick(edit, Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus());
        EXPECT_EQ(edit->text(), shown);
        EXPECT_EQ(entry.number(), decimal("12.5"));
    }
}

TEST_F(NumberEntryField, aShownNumberIsReadBackAsTheSameInEveryLocale)
{
    for (const QLocale& locale : {american, german, russian}) {
        QLocale::setDefault(locale);
        for (const char* const text : {"12.5", "1250", "0.125", "1.234", "123.456", "-7", "1234567.89"}) {
            NumberEntry entry(edit, 2);
            entry.show(decimal(text));
            edit->setFocus();
            edit->end(false);
            QTest::keyClick(edit, Qt::Key_Space); // a change that changes nothing
            EXPECT_EQ(entry.number(), decimal(text)) << text << " in " << qPrintable(locale.name());
            entry.finish();
        }
    }
}

TEST_F(NumberEntryField, whatIsNoNumberIsToldAndTheOldOneCounts)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    for (const QString& text : {u"abc"_s, u"1.2.3"_s, u"12 50"_s, u"5 pcs"_s, u"1e3"_s}) {
        write(text);
        EXPECT_TRUE(entry.isWrong()) << qPrintable(text);
        EXPECT_TRUE(isRed());
        EXPECT_FALSE(edit->toolTip().isEmpty());
        EXPECT_EQ(edit->accessibleDescription(), edit->toolTip());
        EXPECT_EQ(entry.number(), decimal("3")) << qPrintable(text);
        EXPECT_EQ(typed.back(), decimal("3")) << qPrintable(text);
        EXPECT_FALSE(entry.finish());
        EXPECT_TRUE(edit->hasFocus());
        EXPECT_EQ(edit->text(), text) << "nothing that was typed is lost";
    }
    EXPECT_EQ(done, 0);
    write(u"4"_s);
    EXPECT_FALSE(entry.isWrong());
    EXPECT_FALSE(isRed());
    EXPECT_TRUE(edit->toolTip().isEmpty());
    EXPECT_TRUE(edit->accessibleDescription().isEmpty());
    EXPECT_EQ(typed.back(), decimal("4"));
}

TEST_F(NumberEntryField, aMinusOnTheWayToANumberIsNotToldOffYet)
{
    make();
    write(u"-"_s);
    EXPECT_FALSE(QToolTip::isVisible());
    write(u"-5"_s);
    EXPECT_EQ(typed.back(), decimal("-5"));
    write(u"x"_s);
    EXPECT_TRUE(QToolTip::isVisible());
}

TEST_F(NumberEntryField, anEmptyFieldIsNoNumberAndNothingWrong)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    write({});
    EXPECT_FALSE(entry.isWrong());
    EXPECT_EQ(entry.number(), std::nullopt);
    ASSERT_FALSE(typed.empty());
    EXPECT_EQ(typed.back(), std::nullopt);
    write(u"  "_s);
    EXPECT_FALSE(entry.isWrong());
    EXPECT_EQ(entry.number(), std::nullopt);
    entry.show(std::nullopt);
    entry.finish();
    entry.show(decimal("5"));
    EXPECT_EQ(edit->text(), u"5.00"_s);
    entry.show(std::nullopt);
    EXPECT_EQ(edit->text(), QString());
}

TEST_F(NumberEntryField, showsAtLeastItsDecimalsAndCutsNone)
{
    for (const auto& [decimals, shown] :
         {std::pair(0, u"7"_s), std::pair(2, u"7.00"_s), std::pair(4, u"7.0000"_s)}) {
        NumberEntry entry(edit, decimals);
        entry.show(decimal("7"));
        EXPECT_EQ(edit->text(), shown);
        entry.show(decimal("7.123456"));
        EXPECT_EQ(edit->text(), u"7.123456"_s);
    }
}

TEST_F(NumberEntryField, tellsOfItsEndOnceForAChangeAndNeverWithoutOne)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    EXPECT_TRUE(entry.finish());
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(done, 0);
    write(u"4"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(done, 1);
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_TRUE(entry.finish());
    EXPECT_EQ(done, 1);
}

TEST_F(NumberEntryField, escapeFromAWrongTextBringsTheOldNumberBackAndTellsOfIt)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    write(u"4x"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(edit->text(), u"3.00"_s);
    EXPECT_EQ(edit->selectedText(), u"3.00"_s);
    EXPECT_EQ(typed.back(), decimal("3"));
    EXPECT_FALSE(entry.isWrong());
    EXPECT_FALSE(isRed());
}

TEST_F(NumberEntryField, aNumberFromElsewhereReplacesAWrongTextOnlyWhenItIsAnother)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    write(u"4x"_s);
    entry.show(decimal("3"));
    EXPECT_EQ(edit->text(), u"4x"_s);
    entry.show(decimal("8"));
    EXPECT_EQ(edit->text(), u"8.00"_s);
    EXPECT_FALSE(entry.isWrong());
    EXPECT_EQ(entry.number(), decimal("8"));
}

TEST_F(NumberEntryField, aFormThatClosesDropsWrongTextsAndForgetsWhatWasTyped)
{
    NumberEntry& entry = make();
    entry.show(decimal("3"));
    write(u"4x"_s);
    dropTyping(window);
    EXPECT_EQ(edit->text(), u"3.00"_s);
    EXPECT_FALSE(entry.isWrong());
    write(u"5"_s);
    dropTyping(window);
    EXPECT_EQ(edit->text(), u"5.00"_s);
    edit->clearFocus();
    EXPECT_TRUE(entry.finish());
    EXPECT_EQ(done, 0);
}

TEST_F(NumberEntryField, isFoundByItsLineEditOnly)
{
    NumberEntry& entry = make();
    EXPECT_EQ(NumberEntry::of(edit), &entry);
    EXPECT_EQ(NumberEntry::of(next), nullptr);
    EXPECT_EQ(NumberEntry::of(&window), nullptr);
    EXPECT_EQ(NumberEntry::of(nullptr), nullptr);
}

} // namespace zelvor
