#pragma once

#include "core/doc_type.h"
#include "desktop/list_page.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDropEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <memory>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

// One catalog's page in the real main window, worked by clicks and keys.
class CatalogPageTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QApplication::setKeyboardInputInterval(150);
        program.openNewProject();
    }

    DesktopProgram program;

    Connector& connector() { return program.program.appDelegate.connector; }
    MainViewController& workspace() { return program.workspace(); }
    ScriptedDialogs& dialogs() { return program.program.dialogs; }

    template <class Record>
    qint64 store(Record record)
    {
        EXPECT_EQ(connector().insert(record), 1);
        return record.id;
    }
    template <class Record>
    qint64 storeNamed(const QString& name, qint64 parentID = 0)
    {
        Record record;
        record.name = name;
        record.parentID = parentID;
        return store(std::move(record));
    }
    template <class Record>
    std::shared_ptr<Record> stored(qint64 id)
    {
        return connector().select<Record>(id);
    }
    template <class Record>
    qsizetype countOf()
    {
        return static_cast<qsizetype>(connector().freeSQL<Record>().size());
    }

    void openPage(DocType catalog)
    {
        workspace().topMenuAction(catalog);
        ASSERT_NE(program.window().activePage(), nullptr);
    }
    QAbstractItemView* list() { return program.window().activePage()->findChild<QAbstractItemView*>(); }
    TreeList* tree() { return program.window().activePage()->findChild<TreeList*>(); }
    TableList* table() { return program.window().activePage()->findChild<TableList*>(); }

    static int columnTitled(QAbstractItemView* view, const QString& title)
    {
        for (int i = 0; i < view->model()->columnCount(); ++i) {
            if (view->model()->headerData(i, Qt::Horizontal).toString() == title)
                return i;
        }
        return -1;
    }
    // The cell in the row of that name, wherever the row stands.
    QModelIndex cell(const QString& name, const QString& title = u"Name"_s, const QModelIndex& below = {})
    {
        const QAbstractItemModel* const model = list()->model();
        const int column = columnTitled(list(), u"Name"_s);
        for (int row = 0; row < model->rowCount(below); ++row) {
            const QModelIndex index = model->index(row, column, below);
            if (index.data().toString() == name)
                return index.siblingAtColumn(columnTitled(list(), title));
            if (const QModelIndex found = cell(name, title, index.siblingAtColumn(0)); found.isValid())
                return found;
        }
        return {};
    }
    QString text(const QString& name, const QString& title) { return cell(name, title).data().toString(); }
    // The names from top to bottom, rows below others in brackets.
    QString names(const QModelIndex& below = {})
    {
        const QAbstractItemModel* const model = list()->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(below); ++row) {
            const QModelIndex index = model->index(row, columnTitled(list(), u"Name"_s), below);
            const QString inside = names(index.siblingAtColumn(0));
            rows << index.data().toString() + (inside.isEmpty() ? QString() : u'(' + inside + u')');
        }
        return rows.join(u' ');
    }
    QString currentName()
    {
        return list()->currentIndex().siblingAtColumn(columnTitled(list(), u"Name"_s)).data().toString();
    }

    // Keys go to where the cursor is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void write(const QString& text)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    static QString focusName()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    bool listHasFocus() { return QApplication::focusWidget() == list(); }

    bool isOpen(const QString& popover) { return program.find(popover) != nullptr; }
    // A widget of one popover: several have a button of the same name.
    template <class Widget = QWidget>
    Widget* in(const QString& popover, const QString& name)
    {
        QWidget* const panel = program.find(popover);
        return panel ? panel->findChild<Widget*>(name) : nullptr;
    }
    void clickIn(const QString& popover, const QString& name)
    {
        QWidget* const widget = in(popover, name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    // Chooses an entry by its first letters, as one does at the keyboard.
    void choose(const QString& chooser, const QString& firstLetters)
    {
        QWidget* const box = program.find(chooser);
        ASSERT_NE(box, nullptr) << chooser.toStdString();
        box->setFocus();
        QTest::qWait(QApplication::keyboardInputInterval() + 20); // what was typed before is over
        QTest::keyClicks(box, firstLetters);
    }
    // Presses the add button and clicks an entry of the menu that comes up.
    void addByMenu(const QString& button, int entry)
    {
        bool chosen = false;
        QTimer::singleShot(20, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            chosen = true;
            ASSERT_NE(menu, nullptr);
            EXPECT_EQ(menu->title(), u"Context"_s);
            ASSERT_GT(menu->actions().size(), entry);
            const QRect place = menu->actionGeometry(menu->actions().at(entry));
            QTest::mouseClick(menu, Qt::LeftButton, {}, place.center());
        });
        QWidget* const widget = program.find(button);
        ASSERT_NE(widget, nullptr);
        QTest::mousePress(widget, Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitFor([&] { return chosen; }));
        QTest::mouseRelease(widget, Qt::LeftButton);
    }
    void tick(const QString& name, const QString& column) { program.clickCell(list(), cell(name, column)); }
    Qt::CheckState state(const QString& name, const QString& column)
    {
        return static_cast<Qt::CheckState>(cell(name, column).data(Qt::CheckStateRole).toInt());
    }
    void clickHeader(const QString& column)
    {
        auto* const header = list()->findChild<QHeaderView*>();
        auto* const shown = tree() ? tree()->header() : table() ? table()->horizontalHeader() : header;
        const int section = columnTitled(list(), column);
        const int x = shown->sectionViewportPosition(section) + shown->sectionSize(section) / 2;
        QTest::mouseClick(shown->viewport(), Qt::LeftButton, {}, {x, shown->height() / 2});
    }
    // Drags a row onto a point of the list; whether the list would take it there.
    bool drop(const QString& dragged, const QPoint& point)
    {
        const std::unique_ptr<QMimeData> data(list()->model()->mimeData({cell(dragged)}));
        QWidget* const ground = list()->viewport();
        QDragEnterEvent enter(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &enter);
        QDragMoveEvent move(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &move);
        const bool taken = move.isAccepted();
        QDropEvent drop(point, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(ground, &drop);
        return taken;
    }
    bool dropOn(const QString& dragged, const QString& target)
    {
        return drop(dragged, list()->visualRect(cell(target)).center());
    }
    bool dropOnGround(const QString& dragged)
    {
        return drop(dragged, QPoint(60, list()->viewport()->height() - 4));
    }
};

} // namespace zelvor
