// The exchanges run on an application's event loop.
#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

int main(int argc, char* argv[])
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return RUN_ALL_TESTS();
}
