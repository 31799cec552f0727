// Every kind of outlet with its widget, by clicks and keys in a window.
#include "desktop/binding.h"
#include "desktop/number_entry.h"
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

class BoundWidgets : public testing::Test {
protected:
    BoundWidgets() : rows(new QVBoxLayout(&window)) {}
    ~BoundWidgets() override { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    template <class Kind>
    Kind& make(const QString& name)
    {
        auto made = std::make_unique<Kind>(name);
        Kind& given = *made;
        outlets.push_back(std::move(made));
        return given;
    }
    template <class Widget>
    Widget* add(Widget* widget)
    {
        rows->addWidget(widget);
        return widget;
    }
    // Counts what the user did to the outlet.
    void count(Outlet& outlet)
    {
        outlet.onUserChange = [this] { ++changes; };
    }
    void show()
    {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static void write(QWidget* widget, const QString& text)
    {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, text);
    }
    static QColor redInk() { return textColor(redColor, QApplication::palette()); }

    std::vector<std::unique_ptr<Outlet>> outlets; // outlive the widgets
    QWidget window;
    QVBoxLayout* rows;
    int changes = 0;
};

} // namespace

TEST_F(BoundWidgets, aWidgetHasTheNameOfItsOutletAndANameToBeReadOut)
{
    auto& outlet = make<TextField>(u"productName"_s);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, u"Name of the product"_s);
    EXPECT_EQ(edit->objectName(), u"productName"_s);
    EXPECT_EQ(edit->accessibleName(), u"Name of the product"_s);
}

TEST_F(BoundWidgets, aWidgetFollowsEnabledAndHidden)
{
    auto& outlet = make<TextField>(u"name"_s);
    outlet.setEnabled(false);
    outlet.setHidden(true);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    EXPECT_FALSE(edit->isVisible());
    outlet.setHidden(false);
    EXPECT_TRUE(edit->isVisible());
    EXPECT_FALSE(edit->isEnabled());
    outlet.setEnabled(true);
    EXPECT_TRUE(edit->isEnabled());
    outlet.setHidden(true);
    EXPECT_FALSE(edit->isVisible());
}

TEST_F(BoundWidgets, anOutletThatChangesBeforeTheWindowShowsOpensNoWindowOfItsOwn)
{
    auto& outlet = make<TextField>(u"name"_s);
    QLineEdit edit;
    bind(outlet, &edit, {});
    outlet.setText(u"a"_s);
    outlet.setEnabled(false);
    EXPECT_FALSE(edit.isVisible());
}

TEST_F(BoundWidgets, anOutletMayChangeAfterItsWidgetIsGone)
{
    auto& text = make<TextField>(u"text"_s);
    auto& number = make<NumberField>(u"number"_s);
    auto& chooser = make<PopUpButton>(u"chooser"_s);
    auto& radio = make<RadioGroup>(u"radio"_s);
    {
        QWidget form;
        QButtonGroup group;
        bind(text, new QLineEdit(&form), {});
        bind(number, new QLineEdit(&form), {});
        bind(chooser, new QComboBox(&form), {});
        bind(radio, &group, new QWidget(&form), {});
    }
    text.setText(u"later"_s);
    number.setReal(2);
    chooser.setItems({{u"a"_s, 1}});
    radio.selectTag(1);
    EXPECT_EQ(text.text(), u"later"_s);
}

TEST_F(BoundWidgets, aTextGoesBothWaysAndOnlyTheUserRunsTheAction)
{
    auto& outlet = make<TextField>(u"name"_s);
    count(outlet);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    outlet.setText(u"Chai"_s);
    EXPECT_EQ(edit->text(), u"Chai"_s);
    EXPECT_EQ(changes, 0);
    write(edit, u"Tea"_s);
    EXPECT_EQ(outlet.text(), u"Tea"_s);
    EXPECT_EQ(changes, 3);
}

TEST_F(BoundWidgets, aTextOfSeveralLinesGoesBothWaysAndTabLeavesIt)
{
    auto& outlet = make<TextField>(u"comment"_s);
    count(outlet);
    auto* const edit = add(new QPlainTextEdit);
    auto* const next = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    outlet.setText(u"a\nb"_s);
    EXPECT_EQ(edit->toPlainText(), u"a\nb"_s);
    EXPECT_EQ(changes, 0);
    write(edit, u"c"_s);
    EXPECT_EQ(outlet.text(), u"c"_s);
    EXPECT_EQ(changes, 1);
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
}

TEST_F(BoundWidgets, aLabelShowsNamesAsTheyAreInTheirColour)
{
    auto& outlet = make<Label>(u"title"_s);
    auto* const label = add(new QLabel);
    bind(outlet, label);
    outlet.setText(u"<b>R&D</b>"_s);
    outlet.setColor(redColor);
    EXPECT_EQ(label->text(), u"<b>R&D</b>"_s);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), redInk());
    outlet.setColor(blackColor);
    EXPECT_EQ(label->palette().color(QPalette::WindowText),
              QApplication::palette().color(QPalette::WindowText));
}

TEST_F(BoundWidgets, colouredTextFollowsAChangeFromLightToDark)
{
    auto& outlet = make<Label>(u"title"_s);
    auto& wrong = make<NumberField>(u"price"_s);
    auto* const label = add(new QLabel);
    auto* const edit = add(new QLineEdit);
    bind(outlet, label);
    bind(wrong, edit, {});
    outlet.setColor(inOrderColor);
    show();
    write(edit, u"x"_s);
    applyAppearance(*qApp, Appearance::Dark);
    QApplication::processEvents();
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(0x9d, 0xb2, 0xff));
    EXPECT_EQ(label->palette().color(QPalette::Window), QApplication::palette().color(QPalette::Window));
    EXPECT_EQ(edit->palette().color(QPalette::Text), redInk());
    applyAppearance(*qApp, Appearance::Light);
    QApplication::processEvents();
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(0x1f, 0x36, 0x9b));
}

// --- numbers

TEST_F(BoundWidgets, aNumberIsTakenWithPointOrCommaInEveryLocale)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    for (const QLocale& locale :
         {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::Russian, QLocale::Russia),
          QLocale(QLocale::German, QLocale::Germany)}) {
        QLocale::setDefault(locale);
        const std::pair<QString, const char*> typed[] = {{u"12,5"_s, "12.5"},
                                                         {u"12.5"_s, "12.5"},
                                                         {u"12.50"_s, "12.5"},
                                                         {u"1 234,50"_s, "1234.5"},
                                                         {u"-3"_s, "-3"}};
        for (const auto& [text, number] : typed) {
            write(edit, text);
            EXPECT_EQ(outlet.value(), Decimal::fromText(QString::fromLatin1(number)))
                << qPrintable(text) << " in " << qPrintable(locale.name());
        }
    }
}

TEST_F(BoundWidgets, aNumberKeepsTheDigitsThatWereTypedBehindThePoint)
{
    auto& outlet = make<NumberField>(u"rate"_s);
    auto* const edit = add(new QLineEdit);
    auto* const next = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    write(edit, u"0.12345"_s);
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(edit->text(), u"0.12345"_s);
    EXPECT_EQ(outlet.value(), Decimal::fromText(u"0.12345"_s));
}

TEST_F(BoundWidgets, theActionOfANumberRunsWhenItIsLeftAfterAChange)
{
    auto& outlet = make<NumberField>(u"price"_s);
    count(outlet);
    auto* const edit = add(new QLineEdit);
    add(new QLineEdit);
    bind(outlet, edit, {});
    outlet.setReal(3);
    show();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_EQ(changes, 0);
    write(edit, u"4"_s);
    EXPECT_EQ(changes, 0);
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(edit->text(), u"4.00"_s);
}

TEST_F(BoundWidgets, anEmptiedNumberIsEmptyAndStaysSoWhileItIsTyped)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    outlet.setReal(3);
    show();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(edit->text(), QString());
    EXPECT_TRUE(outlet.isEmpty());
    QTest::keyClicks(edit, u"5"_s);
    EXPECT_EQ(edit->text(), u"5"_s);
}

TEST_F(BoundWidgets, whatIsNoNumberTurnsRedKeepsTheOldValueAndTheFocus)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto* const edit = add(new QLineEdit);
    auto* const next = add(new QLineEdit);
    bind(outlet, edit, {});
    outlet.setReal(12.5);
    show();
    write(edit, u"7x"_s);
    EXPECT_EQ(edit->palette().color(QPalette::Text), redInk());
    EXPECT_FALSE(edit->toolTip().isEmpty());
    EXPECT_EQ(outlet.real(), 12.5) << "not the 7 that was typed on the way";
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab, Qt::Key_Enter}) {
        QTest::keyClick(edit, key);
        EXPECT_TRUE(edit->hasFocus());
        EXPECT_EQ(edit->text(), u"7x"_s);
    }
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
    QTest::keyClick(edit, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    EXPECT_EQ(outlet.real(), 7);
}

TEST_F(BoundWidgets, escapeBringsTheOldNumberBack)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    outlet.setReal(12.5);
    show();
    write(edit, u"x"_s);
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(edit->text(), u"12.50"_s);
    EXPECT_EQ(outlet.real(), 12.5);
    EXPECT_TRUE(edit->toolTip().isEmpty());
}

TEST_F(BoundWidgets, aPressOnOkWithAWrongNumberStoresNothingAndLeadsBackToIt)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto& okButton = make<Button>(u"okButton"_s);
    count(okButton);
    auto* const edit = add(new QLineEdit);
    auto* const ok = add(new QPushButton(u"OK"_s));
    bind(outlet, edit, {});
    bind(okButton, ok);
    outlet.setReal(12.5);
    show();
    write(edit, u"12.5.0,"_s);
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_EQ(edit->text(), u"12.5.0,"_s) << "nothing that was typed is lost";
    write(edit, u"13"_s);
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(outlet.real(), 13);
}

TEST_F(BoundWidgets, aWrongNumberThatTheUserCannotSeeHoldsNothingUp)
{
    auto& outlet = make<NumberField>(u"price"_s);
    auto& okButton = make<Button>(u"okButton"_s);
    count(okButton);
    auto* const edit = add(new QLineEdit);
    auto* const ok = add(new QPushButton(u"OK"_s));
    bind(outlet, edit, {});
    bind(okButton, ok);
    show();
    write(edit, u"x"_s);
    edit->hide();
    QTest::mouseClick(ok, Qt::LeftButton);
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundWidgets, aFormThatEndsItsEditingTakesTheNumberUnderTheCursorToItsController)
{
    auto& outlet = make<NumberField>(u"shipment"_s);
    count(outlet);
    auto* const edit = add(new QLineEdit);
    bind(outlet, edit, {});
    show();
    write(edit, u"4"_s);
    EXPECT_TRUE(endEditing(window));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(endEditing(window));
    EXPECT_EQ(changes, 1) << "once for one change";
}

TEST_F(BoundWidgets, aNumberThatIsShownHasGroupsAndTwoDecimals)
{
    auto& outlet = make<NumberField>(u"total"_s);
    auto* const label = add(new QLabel);
    bind(outlet, label);
    outlet.setReal(1234.5);
    outlet.setColor(redColor);
    EXPECT_EQ(label->text(), u"1\u202f234.50"_s);
    EXPECT_TRUE(label->alignment() & Qt::AlignRight);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), redInk());
}

// --- the others

TEST_F(BoundWidgets, aCheckBoxGoesBothWays)
{
    auto& outlet = make<CheckBox>(u"check"_s);
    count(outlet);
    auto* const box = add(new QCheckBox(u"Hidden"_s));
    bind(outlet, box);
    show();
    outlet.setOn(true);
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(changes, 0);
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_FALSE(outlet.isOn());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(box->accessibleName(), u"Hidden"_s);
}

TEST_F(BoundWidgets, aButtonThatKeepsItsStateShowsWhatTheControllerMakesOfAPress)
{
    auto& outlet = make<Button>(u"lock"_s);
    outlet.onUserChange = [&] {
        ++changes;
        outlet.setOn(true); // refused
    };
    auto* const button = add(new QPushButton(u"Lock"_s));
    button->setCheckable(true);
    outlet.setOn(true);
    bind(outlet, button);
    show();
    EXPECT_TRUE(button->isChecked());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(button->isChecked());
    outlet.setEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundWidgets, aChooserGoesByTagsAlsoWhereNamesAreEqualOrEmpty)
{
    auto& outlet = make<PopUpButton>(u"group"_s);
    count(outlet);
    auto* const box = add(new QComboBox);
    bind(outlet, box, u"Group"_s);
    show();
    outlet.setItems(
        {{.title = {}, .tag = 0}, {u"Tea"_s, 3}, {u"Tea"_s, 4}, {.separator = true}, {u"Z"_s, 9}});
    EXPECT_EQ(box->currentIndex(), 0);
    outlet.selectTag(4);
    EXPECT_EQ(box->currentIndex(), 2);
    EXPECT_EQ(changes, 0);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(outlet.selectedTag(), 3);
    QTest::keyClick(box, Qt::Key_End);
    EXPECT_EQ(outlet.selectedTag(), 9);
    QTest::keyClick(box, Qt::Key_Up); // over the line between the groups
    EXPECT_EQ(outlet.selectedTag(), 4);
    EXPECT_EQ(changes, 3);
}

TEST_F(BoundWidgets, aDisabledEntryOfAChooserCannotBeChosen)
{
    auto& outlet = make<PopUpButton>(u"group"_s);
    auto* const box = add(new QComboBox);
    bind(outlet, box, {});
    outlet.setItems({{u"a"_s, 1}, {u"b"_s, 2}, {u"c"_s, 3}});
    outlet.selectTag(1);
    outlet.setItemEnabled(2, false);
    show();
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(outlet.selectedTag(), 3);
    outlet.enableAllItems();
    QTest::keyClick(box, Qt::Key_Up);
    EXPECT_EQ(outlet.selectedTag(), 2);
}

TEST_F(BoundWidgets, aChooserOfTwoThousandEntriesIsNotFilledAnewByAChoice)
{
    auto& outlet = make<PopUpButton>(u"product"_s);
    auto* const box = add(new QComboBox);
    bind(outlet, box, {});
    std::vector<PopUpButton::Item> items;
    for (qint64 tag = 0; tag < 2000; ++tag)
        items.push_back({QString::number(tag), tag});
    outlet.setItems(items);
    int resets = 0;
    QObject::connect(box->model(), &QAbstractItemModel::modelReset, box, [&] { ++resets; });
    outlet.selectTag(1999);
    outlet.setEnabled(false);
    outlet.setItemEnabled(5, false);
    outlet.setItems(items);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(box->currentIndex(), 1999);
    EXPECT_EQ(box->count(), 2000);
}

TEST_F(BoundWidgets, aPassingWheelChangesNoField)
{
    auto& chooser = make<PopUpButton>(u"chooser"_s);
    auto& slider = make<Slider>(u"slider"_s);
    auto* const box = add(new QComboBox);
    auto* const bar = add(new QSlider(Qt::Horizontal));
    add(new QLineEdit)->setFocus();
    bind(chooser, box, {});
    bind(slider, bar, {});
    chooser.setItems({{u"a"_s, 1}, {u"b"_s, 2}});
    chooser.selectTag(1);
    show();
    for (QWidget* const widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(bar)}) {
        const QPointF place = widget->rect().center();
        QWheelEvent wheel(place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
    }
    EXPECT_EQ(chooser.selectedTag(), 1);
    EXPECT_EQ(slider.value(), 0);
}

TEST_F(BoundWidgets, aSliderGoesBothWaysWithinItsBounds)
{
    auto& outlet = make<Slider>(u"days"_s);
    count(outlet);
    auto* const slider = add(new QSlider(Qt::Horizontal));
    bind(outlet, slider, u"Days"_s);
    show();
    outlet.setMaximum(30);
    outlet.setValue(14);
    EXPECT_EQ(slider->maximum(), 30);
    EXPECT_EQ(slider->value(), 14);
    EXPECT_EQ(changes, 0);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(outlet.value(), 15);
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundWidgets, aDateIsShownAndTakenInTheZoneOfTheCalendar)
{
    const Calendar calendar(QTimeZone("America/New_York"));
    auto& outlet = make<DatePicker>(u"date"_s);
    count(outlet);
    auto* const edit = add(new QDateTimeEdit);
    bind(outlet, edit, u"Date"_s, calendar);
    show();
    outlet.setMoment(1'700'000'007); // 17:13:27 in New York
    EXPECT_EQ(edit->text(), u"11/14/2023 17:13"_s);
    EXPECT_EQ(changes, 0);
    edit->setFocus();
    edit->setCurrentSection(QDateTimeEdit::DaySection);
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(outlet.moment(), 1'700'000'007 + secondsPerDay);
    EXPECT_EQ(changes, 1);
}

TEST_F(BoundWidgets, halfATypedDateIsNoDateYet)
{
    const Calendar calendar(QTimeZone::utc());
    auto& outlet = make<DatePicker>(u"date"_s);
    count(outlet);
    auto* const edit = add(new QDateTimeEdit);
    add(new QLineEdit);
    bind(outlet, edit, {}, calendar);
    outlet.setMoment(1'700'000'000);
    show();
    edit->setFocus();
    edit->setSelectedSection(QDateTimeEdit::MonthSection);
    QTest::keyClicks(edit, u"10"_s);
    EXPECT_EQ(changes, 0);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(calendar.components(outlet.moment()).month, 10);
}

TEST_F(BoundWidgets, aTimeThatTheClockSkipsIsShownAsTheOneAfterIt)
{
    const Calendar calendar(QTimeZone("America/New_York"));
    auto& outlet = make<DatePicker>(u"date"_s);
    auto* const edit = add(new QDateTimeEdit);
    bind(outlet, edit, {}, calendar);
    outlet.setMoment(calendar.moment(QDate(2024, 3, 10), QTime(1, 30)));
    show();
    edit->setFocus();
    edit->setCurrentSection(QDateTimeEdit::HourSection);
    QTest::keyClick(edit, Qt::Key_Up); // 2:30 does not exist that day
    EXPECT_EQ(outlet.moment(), calendar.moment(QDate(2024, 3, 10), QTime(3, 0)));
    EXPECT_EQ(edit->text(), u"3/10/2024 03:00"_s);
}

TEST_F(BoundWidgets, aBusyBarShowsWhileItRuns)
{
    auto& outlet = make<Progress>(u"progress"_s);
    auto* const bar = add(new QProgressBar);
    bind(outlet, bar);
    show();
    EXPECT_FALSE(bar->isVisible());
    outlet.start();
    EXPECT_TRUE(bar->isVisible());
    outlet.setHidden(true);
    EXPECT_FALSE(bar->isVisible());
    outlet.setHidden(false);
    outlet.stop();
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(BoundWidgets, radioButtonsGoByTheirTags)
{
    auto& outlet = make<RadioGroup>(u"reportTypeSelect"_s);
    count(outlet);
    auto* const frame = add(new QWidget);
    auto* const layout = new QVBoxLayout(frame);
    auto* const group = new QButtonGroup(frame);
    std::vector<QRadioButton*> buttons;
    for (int tag = 0; tag < 3; ++tag) {
        buttons.push_back(new QRadioButton(QString::number(tag)));
        layout->addWidget(buttons.back());
        group->addButton(buttons.back(), tag);
    }
    outlet.selectTag(1);
    bind(outlet, group, frame, u"By"_s);
    show();
    EXPECT_TRUE(buttons[1]->isChecked());
    QTest::mouseClick(buttons[2], Qt::LeftButton, {}, {5, buttons[2]->height() / 2});
    EXPECT_EQ(outlet.selectedTag(), 2);
    EXPECT_EQ(changes, 1);
    outlet.setEnabled(false);
    EXPECT_FALSE(buttons[0]->isEnabled());
}

} // namespace zelvor
