#include "mouse_hand.h"

#include <gtest/gtest.h>

#include <QtCore/QDebug>
#include <QtCore/QTimer>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int shortDoubleClick = 40; // a chooser's list takes no click before it is over

void selectAll()
{
    if (::testing::Test::HasFatalFailure())
        return;
    QWindow* const window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr);
    QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
}

void type(const QString& text)
{
    if (::testing::Test::HasFatalFailure())
        return;
    QWindow* const window = QGuiApplication::focusWindow();
    ASSERT_NE(window, nullptr);
    for (const QChar letter : text)
        QTest::keyClick(window, letter.toLatin1());
}

// Whether a click at that place of the widget reaches it.
::testing::AssertionResult isReachable(const QWidget* widget, const QPoint& place)
{
    const QWidget* const window = widget->window();
    const QPoint inWindow = widget->mapTo(window, place);
    const QWidget* const there = window->childAt(inWindow);
    if (widget == window || (there && (there == widget || widget->isAncestorOf(there))))
        return ::testing::AssertionSuccess();
    QString told;
    QDebug(&told) << there << "covers" << widget << "of" << widget->parentWidget() << "at" << inWindow;
    return ::testing::AssertionFailure() << told.toStdString();
}

void clickEntry(QMenu* menu, int entry)
{
    ASSERT_NE(menu, nullptr);
    ASSERT_GT(menu->actions().size(), entry);
    const QPoint place = menu->actionGeometry(menu->actions().at(entry)).center();
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, place);
}

QString withoutMnemonic(QString text)
{
    return text.remove(u'&');
}

} // namespace

MouseHand::MouseHand() : m_doubleClickInterval(QApplication::doubleClickInterval())
{
    QApplication::setDoubleClickInterval(shortDoubleClick);
}

MouseHand::~MouseHand()
{
    QApplication::setDoubleClickInterval(m_doubleClickInterval);
}

void MouseHand::click(QWidget* widget, const QPoint& place)
{
    if (::testing::Test::HasFatalFailure())
        return;
    focusWindowInFront();
    ASSERT_TRUE(isReachable(widget, place));
    ASSERT_TRUE(widget->isEnabled()) << qPrintable(widget->objectName()) << " is disabled";
    QWidget* const window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, place));
}

void MouseHand::doubleClick(QWidget* widget, const QPoint& place)
{
    if (::testing::Test::HasFatalFailure())
        return;
    focusWindowInFront();
    ASSERT_TRUE(isReachable(widget, place));
    QWidget* const window = widget->window();
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, place));
}

void MouseHand::clickRow(QAbstractItemView* list, const QString& text)
{
    ASSERT_NE(list, nullptr) << qPrintable(text);
    const QModelIndex index = indexShowing(*list, text);
    ASSERT_TRUE(index.isValid()) << "no row " << qPrintable(text);
    list->scrollTo(index);
    click(list->viewport(), list->visualRect(index).center());
}

void MouseHand::doubleClickRow(QAbstractItemView* list, const QString& text)
{
    ASSERT_NE(list, nullptr) << qPrintable(text);
    const QModelIndex index = indexShowing(*list, text);
    ASSERT_TRUE(index.isValid()) << "no row " << qPrintable(text);
    list->scrollTo(index);
    doubleClick(list->viewport(), list->visualRect(index).center());
}

void MouseHand::press(const QString& button)
{
    QWidget* const widget = shown(button);
    ASSERT_NE(widget, nullptr) << "no " << qPrintable(button);
    click(widget, widget->rect().center());
}

void MouseHand::fill(const QString& field, const QString& text)
{
    press(field);
    selectAll();
    type(text);
}

void MouseHand::choose(const QString& chooser, const QString& entry)
{
    auto* const box = shown<QComboBox>(chooser);
    ASSERT_NE(box, nullptr) << "no " << qPrintable(chooser);
    click(box, box->rect().center());
    ASSERT_TRUE(QTest::qWaitFor([&] { return box->view()->isVisible(); })) << qPrintable(chooser);
    QTest::qWait(2 * shortDoubleClick);
    clickRow(box->view(), entry);
    EXPECT_EQ(box->currentText(), entry);
}

void MouseHand::answer(QMessageBox& question, const QString& button)
{
    for (QAbstractButton* const offered : question.buttons()) {
        if (withoutMnemonic(offered->text()) == button) {
            click(offered, offered->rect().center());
            return;
        }
    }
    FAIL() << "no button " << qPrintable(button);
}

void MouseHand::openEntry(const QString& title)
{
    clickRow(shown<QAbstractItemView>(u"menuTree"_s), title);
}

void MouseHand::addRecord(const QString& button)
{
    auto* const adding = shown<QToolButton>(button);
    ASSERT_NE(adding, nullptr) << "no " << qPrintable(button);
    // The menu keeps the press until it is gone.
    if (adding->menu())
        QTimer::singleShot(20, adding, [adding] { clickEntry(adding->menu(), 0); });
    click(adding, adding->rect().center());
}

void MouseHand::chooseContragent(const QString& name)
{
    press(u"selectContragent"_s);
    doubleClickRow(shown<QAbstractItemView>(u"contragentChooserTree"_s), name);
}

void MouseHand::editNumber(QTableView* rows, const QString& product, const QString& column,
                           const QString& number)
{
    ASSERT_NE(rows, nullptr);
    clickRow(rows, product); // ends the editing of another cell
    const QModelIndex row = indexShowing(*rows, product);
    for (int i = 0; i < rows->model()->columnCount(); ++i) {
        if (rows->model()->headerData(i, Qt::Horizontal).toString() != column)
            continue;
        rows->scrollTo(row.siblingAtColumn(i));
        doubleClick(rows->viewport(), rows->visualRect(row.siblingAtColumn(i)).center());
        break;
    }
    ASSERT_NE(shown(u"cellEditor"_s), nullptr) << qPrintable(column);
    type(number);
}

void MouseHand::enterRow(const QString& product, const QString& amount, const QString& price)
{
    doubleClickRow(shown<QAbstractItemView>(u"mainProductView"_s), product);
    type(amount); // the cursor is there already
    editNumber(shown<QTableView>(u"documentRows"_s), product, u"Price"_s, price);
}

void MouseHand::changeAmount(const QString& product, const QString& amount)
{
    editNumber(shown<QTableView>(u"documentRows"_s), product, u"Amount"_s, amount);
}

void MouseHand::save()
{
    press(u"saveButton"_s);
}

void MouseHand::confirm()
{
    press(u"confirmButton"_s);
}

void MouseHand::refresh()
{
    press(u"refreshButton"_s);
}

void MouseHand::quit()
{
    auto* const bar = QApplication::activeWindow()->findChild<QMenuBar*>();
    ASSERT_NE(bar, nullptr);
    QAction* const file = bar->actions().constFirst();
    click(bar, bar->actionGeometry(file).center());
    const QList<QAction*> entries = file->menu()->actions();
    ASSERT_TRUE(file->menu()->isVisible());
    clickEntry(file->menu(), static_cast<int>(entries.size()) - 1);
}

} // namespace zelvor
