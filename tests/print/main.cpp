// The tests of the printed forms: fonts need an application, but no screen.
#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtGui/QGuiApplication>

int main(int argc, char* argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return RUN_ALL_TESTS();
}
