// The form beside what it edits, in a window of its own.
#include "desktop/binding.h"
#include "desktop/popover_panel.h"
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

#include <memory>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

// A window with a field and a button, and the form of a product over it.
class PopoverForm : public testing::Test {
protected:
    PopoverForm() : behind(new QLineEdit(&window)), button(new QPushButton(u"Behind"_s, &window))
    {
        window.resize(800, 600);
        behind->setGeometry(10, 10, 120, 24);
        button->setGeometry(10, 560, 120, 24);
        QObject::connect(button, &QPushButton::clicked, button, [this] { ++behindClicks; });
        panel = new PopoverPanel(popover, behind);
        panel->setTitle(title);
        name = new QLineEdit;
        bind(nameField, name, u"Name"_s);
        panel->addRow(u"Name:"_s, name);
        comment = new QPlainTextEdit;
        comment->setFixedHeight(60);
        bind(commentField, comment, u"Comment"_s);
        panel->addRow(u"Comment:"_s, comment);
        panel->setError(error);
        ok = panel->addOk(okButton, u"OK"_s);
        panel->setFirstField(name);
        okButton.onUserChange = [this] { ++stored; };
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        behind->setFocus();
    }

    QPushButton* cancelButton() const { return panel->findChild<QPushButton*>(u"cancelButton"_s); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    // In the window's own coordinates, whatever lies there.
    void clickAt(const QPoint& place)
    {
        QWidget* const hit = window.childAt(place);
        QWidget* const target = hit ? hit : &window;
        QTest::mouseClick(target, Qt::LeftButton, {}, target->mapFrom(&window, place));
    }
    void pointAt(const QRect& place)
    {
        panel->setAnchor([this, place] { return QRect(window.mapToGlobal(place.topLeft()), place.size()); });
    }
    QLabel* errorLabel() const
    {
        for (QLabel* const label : panel->findChildren<QLabel*>()) {
            if (label->objectName() == error.name())
                return label;
        }
        return nullptr;
    }

    Popover popover{u"productPopover"_s};
    Label title{u"productPopoverTitle"_s};
    TextField nameField{u"name"_s};
    TextField commentField{u"comment"_s};
    Label error{u"productWarning"_s};
    Button okButton{u"okButton"_s};
    QWidget window;
    QLineEdit* behind;
    QPushButton* button;
    PopoverPanel* panel;
    QLineEdit* name;
    QPlainTextEdit* comment;
    QPushButton* ok;
    int stored = 0;
    int behindClicks = 0;
};

} // namespace

TEST_F(PopoverForm, opensAndClosesWithItsOutletAndGivesTheFocusBack)
{
    nameField.setText(u"Tea"_s);
    EXPECT_FALSE(panel->isVisible());
    popover.open();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(name->hasFocus());
    EXPECT_EQ(name->selectedText(), u"Tea"_s);
    popover.close();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(behind->hasFocus());
}

TEST_F(PopoverForm, staysInsideTheWindowWhereverItPointsAndWhateverTheSize)
{
    for (const QSize& size : {QSize(400, 320), QSize(800, 600), QSize(1600, 900)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        const int right = size.width() - 20;
        const int bottom = size.height() - 20;
        for (const QPoint& corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom),
                                     QPoint(right / 2, bottom / 2), QPoint(right + 500, bottom + 500)}) {
            pointAt({corner, QSize(20, 20)});
            popover.open();
            ASSERT_TRUE(panel->isVisible());
            EXPECT_TRUE(window.rect().contains(panel->geometry()))
                << "at " << corner.x() << ',' << corner.y() << " in " << size.width();
            EXPECT_GE(panel->height(), panel->minimumSizeHint().height());
            popover.close();
        }
    }
}

TEST_F(PopoverForm, hidesNothingOfWhatItPointsAtWhereThereIsRoom)
{
    for (const QRect& anchor : {QRect(100, 40, 600, 24), QRect(100, 500, 600, 24)}) {
        pointAt(anchor);
        popover.open();
        // The panel's own edge is air around its frame.
        EXPECT_FALSE(panel->geometry().adjusted(4, 4, -4, -4).intersects(anchor)) << anchor.top();
        popover.close();
    }
}

TEST_F(PopoverForm, comesAlongWhenTheWindowShrinks)
{
    pointAt({700, 500, 20, 20});
    popover.open();
    window.resize(420, 340);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.rect().contains(panel->geometry()));
    EXPECT_EQ(window.findChild<QWidget*>(u"popoverShield"_s)->geometry(), window.rect());
}

TEST_F(PopoverForm, escapeCancelsFromAnyFieldAndStoresNothing)
{
    for (QWidget* const field : {static_cast<QWidget*>(name), static_cast<QWidget*>(comment),
                                 static_cast<QWidget*>(ok), static_cast<QWidget*>(cancelButton())}) {
        popover.open();
        field->setFocus();
        press(Qt::Key_Escape);
        EXPECT_FALSE(popover.isOpen());
        EXPECT_FALSE(panel->isVisible());
    }
    EXPECT_EQ(stored, 0);
}

TEST_F(PopoverForm, asksItsControllerBeforeItCancels)
{
    int asked = 0;
    panel->setOnCancel([&asked] { ++asked; });
    popover.open();
    press(Qt::Key_Escape);
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(panel->isVisible()) << "the controller closes it";
    QTest::mouseClick(cancelButton(), Qt::LeftButton);
    EXPECT_EQ(asked, 2);
}

TEST_F(PopoverForm, returnPressesOkUnlessThatIsDisabled)
{
    popover.open();
    press(Qt::Key_Return);
    EXPECT_EQ(stored, 1);
    press(Qt::Key_Enter);
    EXPECT_EQ(stored, 2);
    okButton.setEnabled(false);
    press(Qt::Key_Return);
    EXPECT_EQ(stored, 2);
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(PopoverForm, returnInATextOfSeveralLinesBeginsALine)
{
    popover.open();
    comment->setFocus();
    QTest::keyClicks(comment, u"a"_s);
    press(Qt::Key_Return);
    QTest::keyClicks(comment, u"b"_s);
    EXPECT_EQ(stored, 0);
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(commentField.text(), u"a\nb"_s);
}

TEST_F(PopoverForm, tabGoesRoundInsideThroughTheFieldsAndBothButtons)
{
    popover.open();
    QStringList forward;
    for (int step = 0; step < 5; ++step) {
        forward << QApplication::focusWidget()->objectName();
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(forward.mid(0, 2).join(u' '), u"name comment"_s);
    EXPECT_TRUE(forward.mid(2, 2).contains(u"okButton"_s));
    EXPECT_TRUE(forward.mid(2, 2).contains(u"cancelButton"_s));
    EXPECT_EQ(forward.last(), u"name"_s);

    comment->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(name->hasFocus());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), forward[3]);
    okButton.setEnabled(false);
    cancelButton()->setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(name->hasFocus());
}

TEST_F(PopoverForm, thePageBehindWaits)
{
    const QPoint place = button->geometry().center();
    clickAt(place);
    ASSERT_EQ(behindClicks, 1);
    popover.open();
    clickAt(place);
    EXPECT_EQ(behindClicks, 1);
    EXPECT_TRUE(panel->isVisible());
    popover.close();
    clickAt(place);
    EXPECT_EQ(behindClicks, 2);
}

TEST_F(PopoverForm, theLineOfTheErrorKeepsItsPlaceAndIsRed)
{
    popover.open();
    QLabel* const label = errorLabel();
    ASSERT_NE(label, nullptr);
    const QRect place = label->geometry();
    const QRect form = panel->geometry();
    const QRect okPlace = ok->geometry();
    EXPECT_GE(place.height(), label->fontMetrics().height());
    error.setText(u"Name is taken!"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(label->text(), u"Name is taken!"_s);
    EXPECT_EQ(label->geometry(), place);
    EXPECT_EQ(panel->geometry(), form);
    EXPECT_EQ(ok->geometry(), okPlace);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), textColor(redColor, QApplication::palette()));
}

TEST_F(PopoverForm, aFormOverAFormTakesTheKeysAndGivesThemBack)
{
    Popover inner(u"groupPopover"_s);
    Button innerOk(u"groupOkButton"_s);
    int innerStored = 0;
    innerOk.onUserChange = [&] {
        ++innerStored;
        inner.close();
    };
    auto* const over = new PopoverPanel(inner, name);
    auto* const field = new QLineEdit;
    field->setObjectName(u"groupName"_s);
    over->addRow(u"Group:"_s, field);
    over->addOk(innerOk, u"OK"_s);
    over->setFirstField(field);

    popover.open();
    inner.open();
    EXPECT_TRUE(field->hasFocus());
    EXPECT_TRUE(window.rect().contains(over->geometry()));
    EXPECT_TRUE(over->isAncestorOf(window.childAt(over->geometry().center())) ||
                window.childAt(over->geometry().center()) == over)
        << "in front of the first one";
    press(Qt::Key_Return);
    EXPECT_EQ(innerStored, 1);
    EXPECT_EQ(stored, 0);
    EXPECT_TRUE(name->hasFocus());

    inner.open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(inner.isOpen());
    EXPECT_TRUE(popover.isOpen());
    EXPECT_TRUE(name->hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(popover.isOpen());
    EXPECT_TRUE(behind->hasFocus());
}

TEST_F(PopoverForm, itsTitleIsShownAsItIsAndReadOut)
{
    title.setText(u"Edit <b>R&D</b>"_s);
    popover.open();
    auto* const label = panel->findChild<QLabel*>(title.name());
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(label->text(), u"Edit <b>R&D</b>"_s);
    EXPECT_EQ(panel->accessibleName(), u"Edit <b>R&D</b>"_s);
}

TEST_F(PopoverForm, itsOutletMayGoOnAfterThePanelIsGone)
{
    popover.open();
    delete panel;
    popover.close();
    popover.open();
    title.setText(u"later"_s);
    const QPoint place = button->geometry().center();
    clickAt(place);
    EXPECT_EQ(behindClicks, 1) << "nothing covers the page any more";
}

} // namespace zelvor
