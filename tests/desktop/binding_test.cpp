// What reaches an outlet when nobody types: an assistive tool sets the text of a field as a whole.
#include "desktop/binding.h"

#include <gtest/gtest.h>

#include <QtCore/QTimeZone>
#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

void setTextAsATool(QWidget& widget, const QString& text)
{
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(&widget);
    ASSERT_NE(seen, nullptr);
    QAccessibleEditableTextInterface* const editable = seen->editableTextInterface();
    ASSERT_NE(editable, nullptr);
    editable->replaceText(0, seen->textInterface()->characterCount(), text);
}

template <class Outlet>
void count(Outlet& outlet, int& changes)
{
    outlet.onUserChange = [&changes] { ++changes; };
}

} // namespace

TEST(Binding, takesATextThatAToolSets)
{
    TextField outlet(u"name"_s);
    int changes = 0;
    count(outlet, changes);
    QLineEdit edit;
    bind(outlet, &edit, u"Name"_s);
    setTextAsATool(edit, u"Green tea"_s);
    EXPECT_EQ(outlet.text(), u"Green tea"_s);
    EXPECT_EQ(changes, 1);
}

TEST(Binding, takesATextThatIsTypedOnceForEachKey)
{
    TextField outlet(u"name"_s);
    int changes = 0;
    count(outlet, changes);
    QLineEdit edit;
    bind(outlet, &edit, u"Name"_s);
    QTest::keyClicks(&edit, u"Tea"_s);
    EXPECT_EQ(outlet.text(), u"Tea"_s);
    EXPECT_EQ(changes, 3);
}

TEST(Binding, doesNotTakeWhatTheControllerShowsForAChangeOfTheUser)
{
    TextField line(u"name"_s);
    TextField lines(u"comment"_s);
    int changes = 0;
    count(line, changes);
    count(lines, changes);
    QLineEdit edit;
    edit.setMaxLength(4);
    QPlainTextEdit area;
    bind(line, &edit, u"Name"_s);
    bind(lines, &area, u"Comment"_s);
    line.setText(u"Green tea"_s);
    lines.setText(u"One\r\ntwo"_s);
    EXPECT_EQ(edit.text(), u"Gree"_s);
    EXPECT_EQ(area.toPlainText(), u"One\ntwo"_s);
    EXPECT_EQ(line.text(), u"Green tea"_s); // the field is too short for it; that is no reason to lose it
    EXPECT_EQ(lines.text(), u"One\r\ntwo"_s);
    EXPECT_EQ(changes, 0);
}

TEST(Binding, takesANumberThatAToolSets)
{
    NumberField outlet(u"price"_s);
    int changes = 0;
    count(outlet, changes);
    QLineEdit edit;
    bind(outlet, &edit, u"Price"_s);
    setTextAsATool(edit, u"12,5"_s);
    EXPECT_DOUBLE_EQ(outlet.real(), 12.5);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(edit.text(), u"12.50"_s);
}

TEST(Binding, doesNotTakeAWrongNumberThatAToolSets)
{
    NumberField outlet(u"price"_s);
    outlet.setReal(7);
    int changes = 0;
    count(outlet, changes);
    QLineEdit edit;
    bind(outlet, &edit, u"Price"_s);
    setTextAsATool(edit, u"seven"_s);
    EXPECT_DOUBLE_EQ(outlet.real(), 7);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(edit.text(), u"seven"_s); // marked as wrong until it is mended
}

TEST(Binding, doesNotTakeTheNumberThatTheControllerShowsForAChangeOfTheUser)
{
    NumberField outlet(u"price"_s);
    int changes = 0;
    count(outlet, changes);
    QLineEdit edit;
    bind(outlet, &edit, u"Price"_s);
    outlet.setReal(12.5);
    EXPECT_EQ(edit.text(), u"12.50"_s);
    EXPECT_EQ(changes, 0);
}

TEST(Binding, takesADateThatAToolSets)
{
    const Calendar calendar(QTimeZone::utc());
    DatePicker outlet(u"date"_s);
    outlet.setMoment(1'700'000'000); // 14 November 2023
    int changes = 0;
    count(outlet, changes);
    QDateEdit edit;
    bind(outlet, &edit, u"Date"_s, calendar);
    const QString wanted = QDate(2023, 11, 20).toString(edit.displayFormat());
    setTextAsATool(edit, wanted);
    EXPECT_EQ(calendar.dateTime(outlet.moment()).date(), QDate(2023, 11, 20));
    EXPECT_EQ(changes, 1);
}

} // namespace zelvor
