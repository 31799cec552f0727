#pragma once

#include <gtest/gtest.h>

#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace zelvor {

// A menu or entry as the user reads it.
inline QString withoutMnemonic(const QString& text)
{
    QString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'&' && at + 1 < text.size())
            ++at;
        plain += text[at];
    }
    return plain;
}

inline QMenu* menuOf(QMainWindow& window, const QString& title)
{
    for (QAction* const action : window.menuBar()->actions()) {
        if (withoutMnemonic(action->text()) == title)
            return action->menu();
    }
    return nullptr;
}

// Opens a menu of the bar and clicks an entry, as a person does.
inline void chooseFromMenu(QMainWindow& window, const QString& title, const QString& entryName)
{
    QMenu* const menu = menuOf(window, title);
    ASSERT_NE(menu, nullptr) << title.toStdString();
    QMenuBar* const bar = window.menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    ASSERT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible(); }));
    auto* const entry = menu->findChild<QAction*>(entryName, Qt::FindDirectChildrenOnly);
    ASSERT_NE(entry, nullptr) << entryName.toStdString();
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
}

} // namespace zelvor
