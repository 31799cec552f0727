#pragma once

#include "desktop/desktop_application.h"
#include "shell/project_creation.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace zelvor {

// The desktop over a TestProgram: real windows on the offscreen platform, a standing clock, scripted
// answers. Widgets are found by the names of their outlets, and only those that the user can see.
class DesktopProgram {
public:
    explicit DesktopProgram(qint64 moment = 1'700'000'000)
        : program(moment), settings(program.file(QStringLiteral("config/Desktop.conf"))),
          desktop(program.appDelegate, settings)
    {}

    TestProgram program;
    DesktopSettings settings;
    DesktopApplication desktop;

    MainViewController& workspace() { return desktop.shell.mainWindowController; }
    MainWindow& window() { return desktop.mainWindow; }

    // A project of its own in EUR, open, with the main window on the screen and active.
    void openNewProject(const QString& name = QStringLiteral("shop.pdb"))
    {
        ASSERT_TRUE(createProject(program.appDelegate.connector, program.file(name), 1));
        // The month before is closed, so that no question stands in the way.
        auto params = program.appDelegate.params();
        params->lastPeriodSaved = workspace().getPeriodToSave();
        ASSERT_EQ(program.appDelegate.connector.update(*params), 1);
        program.appDelegate.connector.close();
        desktop.start(program.file(name));
        activate(window());
    }
    void activate(QWidget& shown)
    {
        shown.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    }

    // The visible widget of an outlet anywhere in the program, or null.
    template <class Widget = QWidget>
    Widget* find(const QString& outletName)
    {
        for (QWidget* const top : QApplication::topLevelWidgets()) {
            for (Widget* const widget : top->findChildren<Widget*>(outletName)) {
                if (widget->isVisible())
                    return widget;
            }
        }
        return nullptr;
    }
    void click(const QString& outletName)
    {
        QWidget* const widget = find(outletName);
        ASSERT_NE(widget, nullptr) << outletName.toStdString();
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    // Replaces what stands in a field, as a person does.
    void type(const QString& outletName, const QString& text)
    {
        QWidget* const widget = find(outletName);
        ASSERT_NE(widget, nullptr) << outletName.toStdString();
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(widget, text);
        QTest::keyClick(widget, Qt::Key_Tab);
    }
    void clickCell(QAbstractItemView* list, const QModelIndex& index)
    {
        ASSERT_NE(list, nullptr);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
    void doubleClickCell(QAbstractItemView* list, const QModelIndex& index)
    {
        clickCell(list, index);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
};

} // namespace zelvor
