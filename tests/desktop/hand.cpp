#include "hand.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>

namespace zelvor {

QModelIndex indexShowing(const QAbstractItemView& list, const QString& text, const QModelIndex& below)
{
    const QAbstractItemModel& model = *list.model();
    for (int row = 0; row < model.rowCount(below); ++row) {
        for (int column = 0; column < model.columnCount(below); ++column) {
            const QModelIndex index = model.index(row, column, below);
            if (index.data().toString() == text && !model.hasChildren(index.siblingAtColumn(0)))
                return index;
        }
        const QModelIndex found = indexShowing(list, text, model.index(row, 0, below));
        if (found.isValid())
            return found;
    }
    return {};
}

void focusWindowInFront()
{
    if (QGuiApplication::focusWindow())
        return;
    QWidget* front = QApplication::activeModalWidget();
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        if (!front && top->isVisible() && top->isWindow())
            front = top;
    }
    if (!front)
        return;
    front->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(front));
}

} // namespace zelvor
