#include "core/outlets.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <utility>

using namespace zelvor;
using namespace Qt::Literals::StringLiterals;

namespace {

// Counts what a bound widget hears.
struct Listener {
    explicit Listener(Outlet& outlet)
    {
        outlet.onChange([this] { ++changes; });
    }
    int changes = 0;
};

} // namespace

TEST(Outlet, aWidgetHearsChangesOfValueStateAndColour)
{
    TextField field(u"docNumber"_s);
    const Listener listener(field);
    field.setText(u"12"_s);
    field.setEnabled(false);
    field.setHidden(true);
    field.setColor(redColor);
    EXPECT_EQ(listener.changes, 4);
    field.setText(u"12"_s);
    field.setEnabled(false);
    field.setColor(redColor);
    EXPECT_EQ(listener.changes, 4);
    EXPECT_EQ(field.name(), u"docNumber"_s);
}

TEST(Outlet, whatTheUserDoesReachesTheControllerOnlyWhileEnabled)
{
    Button button(u"confirmButton"_s);
    EXPECT_TRUE(button.userChanged());
    int pressed = 0;
    button.onUserChange = [&] { ++pressed; };
    EXPECT_TRUE(button.userChanged());
    button.setEnabled(false);
    EXPECT_FALSE(button.userChanged());
    EXPECT_EQ(pressed, 1);
}

TEST(Outlet, settingAValueDoesNotRunTheControllersAction)
{
    CheckBox box(u"vatCheck"_s);
    bool ran = false;
    box.onUserChange = [&] { ran = true; };
    box.setOn(true);
    EXPECT_FALSE(ran);
}

TEST(Outlet, anActionMayReplaceItselfAndAListenerMayAddAnother)
{
    Button button(u"lock"_s);
    QString pressed;
    // What the action captured must live until it returns.
    button.onUserChange = [&, mark = u"once"_s, room = std::array<char, 64>()] {
        button.onUserChange = nullptr;
        pressed += mark + QString::number(room.size());
    };
    EXPECT_TRUE(button.userChanged());
    EXPECT_TRUE(button.userChanged());
    EXPECT_EQ(pressed, u"once64"_s);
    int heard = 0;
    bool added = false;
    button.onChange([&] {
        if (!std::exchange(added, true)) {
            for (int i = 0; i < 50; ++i)
                button.onChange([&] { ++heard; });
        }
    });
    button.setOn(true);
    EXPECT_EQ(heard, 50);
}

TEST(NumberField, anEmptyFieldReadsAsZero)
{
    NumberField field(u"balanceDue"_s);
    const Listener listener(field);
    field.setReal(12.5);
    EXPECT_EQ(field.value(), Decimal::fromParts(125, 1));
    EXPECT_EQ(field.real(), 12.5);
    field.clear();
    EXPECT_TRUE(field.isEmpty());
    EXPECT_TRUE(field.value().isZero());
    EXPECT_EQ(listener.changes, 2);
    field.setValue(Decimal(0));
    EXPECT_FALSE(field.isEmpty());
    EXPECT_EQ(listener.changes, 3);
}

TEST(NumberField, aWholeNumberIsCutTowardsZero)
{
    NumberField field(u"deferment"_s);
    field.setReal(7.9);
    EXPECT_EQ(field.integer(), 7);
    field.setReal(-7.9);
    EXPECT_EQ(field.integer(), -7);
    field.setValue(Decimal::nan());
    EXPECT_EQ(field.integer(), 0);
    field.setReal(1e30);
    EXPECT_EQ(field.integer(), std::numeric_limits<qint64>::max());
    field.setReal(-1e30);
    EXPECT_EQ(field.integer(), std::numeric_limits<qint64>::min());
}

TEST(PopUpButton, entriesAreChosenByTagOrTitle)
{
    PopUpButton button(u"stockFromSelect"_s);
    button.setItems({{.title = u"Shop"_s, .tag = 3}, {.separator = true}, {.title = u"Cellar"_s, .tag = 5}});
    EXPECT_EQ(button.selectedTag(), 0);
    EXPECT_TRUE(button.selectedTitle().isNull());
    EXPECT_TRUE(button.selectTag(5));
    EXPECT_EQ(button.selectedTitle(), u"Cellar"_s);
    EXPECT_TRUE(button.selectTitle(u"Shop"_s));
    EXPECT_EQ(button.selectedTag(), 3);
}

TEST(PopUpButton, aTagThatNoEntryHasSelectsNothing)
{
    PopUpButton button(u"stockFromSelect"_s);
    button.setItems({{.title = u"Shop"_s, .tag = 3}, {.separator = true}});
    button.selectTag(3);
    EXPECT_FALSE(button.selectTag(4));
    EXPECT_EQ(button.selectedTag(), 0);
    EXPECT_FALSE(button.selectTag(0)); // the tag of the separator is no entry's
    button.selectTag(3);
    EXPECT_FALSE(button.selectTitle(u"Attic"_s));
    EXPECT_EQ(button.selectedTag(), 0);
}

TEST(PopUpButton, theSelectionStaysWhileAnEntryHasItsTag)
{
    PopUpButton button(u"stockFromSelect"_s);
    button.setItems({{.title = u"Shop"_s, .tag = 3}, {.title = u"Cellar"_s, .tag = 5}});
    button.selectTag(5);
    const Listener listener(button);
    button.setItems({{.title = u"Old cellar"_s, .tag = 5}});
    EXPECT_EQ(button.selectedTitle(), u"Old cellar"_s);
    button.setItems({{.title = u"Old cellar"_s, .tag = 5}});
    EXPECT_EQ(listener.changes, 1);
    button.setItems({{.title = u"Shop"_s, .tag = 3}});
    EXPECT_EQ(button.selectedTag(), 0);
}

TEST(PopUpButton, entriesAreEnabledOneByOneAndAllAtOnce)
{
    PopUpButton button(u"stockToSelect"_s);
    button.setItems({{.title = u"Shop"_s, .tag = 3}, {.title = u"Cellar"_s, .tag = 5}});
    const Listener listener(button);
    button.setItemEnabled(5, false);
    EXPECT_TRUE(button.items()[0].enabled);
    EXPECT_FALSE(button.items()[1].enabled);
    button.setItemEnabled(5, false);
    button.setItemEnabled(9, false);
    EXPECT_EQ(listener.changes, 1);
    button.enableAllItems();
    EXPECT_TRUE(button.items()[1].enabled);
    button.enableAllItems();
    EXPECT_EQ(listener.changes, 2);
}

TEST(Slider, theValueIsHeldWithinItsBounds)
{
    Slider slider(u"discount"_s);
    slider.setValue(130);
    EXPECT_EQ(slider.value(), 100);
    slider.setValue(-1);
    EXPECT_EQ(slider.value(), 0);
    slider.setValue(80);
    slider.setMaximum(50);
    EXPECT_EQ(slider.value(), 50);
    slider.setMaximum(-5);
    EXPECT_EQ(slider.maximum(), 0);
    EXPECT_EQ(slider.value(), 0);
}

TEST(Outlets, smallOnesKeepWhatTheyAreGiven)
{
    DatePicker date(u"docDate"_s);
    date.setMoment(86400);
    EXPECT_EQ(date.moment(), 86400);
    Progress progress(u"progress"_s);
    progress.start();
    EXPECT_TRUE(progress.isRunning());
    progress.stop();
    EXPECT_FALSE(progress.isRunning());
    Popover popover(u"popover"_s);
    popover.open();
    EXPECT_TRUE(popover.isOpen());
    popover.close();
    EXPECT_FALSE(popover.isOpen());
    RadioGroup radio(u"kind"_s);
    radio.selectTag(2);
    EXPECT_EQ(radio.selectedTag(), 2);
    TableOutlet table(u"table"_s);
    EXPECT_EQ(table.selectedRow(), -1);
    table.selectRow(4);
    EXPECT_EQ(table.selectedRow(), 4);
}
