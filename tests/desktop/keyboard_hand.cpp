#include "keyboard_hand.h"

#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int mostTabs = 100; // more than any window has stops

void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
{
    if (::testing::Test::HasFatalFailure())
        return;
    focusWindowInFront();
    QWindow* const window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr);
    QTest::keyClick(window, code, modifiers);
}

void type(const QString& text)
{
    if (::testing::Test::HasFatalFailure())
        return;
    focusWindowInFront();
    QWindow* const window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr);
    for (const QChar letter : text)
        QTest::keyClick(window, letter.toLatin1());
}

QString focusName()
{
    const QWidget* const focused = QApplication::focusWidget();
    return focused ? focused->objectName() : u"nothing"_s;
}

// Up or Down until the cursor is on the row.
void walkTo(QAbstractItemView* list, const QString& text)
{
    ASSERT_NE(list, nullptr) << qPrintable(text);
    const QPersistentModelIndex wanted = indexShowing(*list, text);
    ASSERT_TRUE(wanted.isValid()) << "no row " << qPrintable(text);
    const auto distance = [&] {
        return list->visualRect(wanted).top() - list->visualRect(list->currentIndex()).top();
    };
    for (int step = 0; step < mostTabs && distance() != 0; ++step)
        key(distance() < 0 ? Qt::Key_Up : Qt::Key_Down);
    ASSERT_EQ(distance(), 0) << "the arrow keys do not reach " << qPrintable(text);
}

} // namespace

KeyboardHand::KeyboardHand()
{
    qApp->installEventFilter(this);
}

KeyboardHand::~KeyboardHand() = default;

bool KeyboardHand::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        ADD_FAILURE() << "a mouse event reached " << qPrintable(watched->objectName());
        break;
    default:
        break;
    }
    return false;
}

void KeyboardHand::goTo(const QString& name)
{
    QStringList reached;
    focusWindowInFront();
    for (int step = 0; step < mostTabs; ++step) {
        if (focusName() == name || ::testing::Test::HasFatalFailure())
            return;
        reached << focusName();
        key(Qt::Key_Tab);
    }
    FAIL() << "Tab does not reach " << qPrintable(name) << " but " << qPrintable(reached.join(u' '));
}

void KeyboardHand::press(const QString& button)
{
    goTo(button);
    key(Qt::Key_Space);
}

void KeyboardHand::fill(const QString& field, const QString& text)
{
    goTo(field);
    key(Qt::Key_A, Qt::ControlModifier);
    type(text);
}

void KeyboardHand::choose(const QString& chooser, const QString& entry)
{
    goTo(chooser);
    QTest::qWait(QApplication::keyboardInputInterval() + 20); // what was typed before is over
    type(entry);
    auto* const box = shown<QComboBox>(chooser);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->currentText(), entry);
}

void KeyboardHand::answer(QMessageBox& question, const QString& button)
{
    for (int step = 0; step < mostTabs; ++step) {
        auto* const focused = qobject_cast<QPushButton*>(question.focusWidget());
        if (focused && focused->text().remove(u'&') == button) {
            key(Qt::Key_Space);
            return;
        }
        key(Qt::Key_Tab);
    }
    FAIL() << "no button " << qPrintable(button);
}

void KeyboardHand::openEntry(const QString& title)
{
    goTo(u"menuTree"_s);
    walkTo(shown<QAbstractItemView>(u"menuTree"_s), title);
    key(Qt::Key_Return);
}

void KeyboardHand::addRecord(const QString&)
{
    key(Qt::Key_Insert);
}

void KeyboardHand::accept(const QString&)
{
    key(Qt::Key_Return);
}

void KeyboardHand::chooseContragent(const QString& name)
{
    goTo(u"contragentField"_s);
    type(name.left(3));
    key(Qt::Key_Return);
}

void KeyboardHand::enterRow(const QString& product, const QString& amount, const QString& price)
{
    goTo(u"productEntry"_s);
    type(product.left(3));
    key(Qt::Key_Return);
    type(amount);
    key(Qt::Key_Return);
    type(price);
    key(Qt::Key_Return);
    EXPECT_EQ(focusName(), u"productEntry"_s);
}

void KeyboardHand::changeAmount(const QString& product, const QString& amount)
{
    goTo(u"productEntry"_s);
    key(Qt::Key_Up);
    walkTo(shown<QAbstractItemView>(u"documentRows"_s), product);
    type(amount);
    key(Qt::Key_Return);
    key(Qt::Key_Return);
}

void KeyboardHand::save()
{
    key(Qt::Key_S, Qt::ControlModifier);
}

void KeyboardHand::confirm()
{
    key(Qt::Key_Return, Qt::ControlModifier);
}

void KeyboardHand::refresh()
{
    key(Qt::Key_F5);
}

void KeyboardHand::quit()
{
    key(Qt::Key_Q, Qt::ControlModifier);
}

} // namespace zelvor
