// The tests of the desktop run in a real application on the offscreen platform.
#include "desktop/icons.h"
#include "desktop/theme.h"

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtWidgets/QApplication>

int main(int argc, char* argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    zelvor::loadDesktopResources();
    zelvor::applyAppearance(application, zelvor::Appearance::Light);
    return RUN_ALL_TESTS();
}
