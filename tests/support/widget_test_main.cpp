// The main of test programs with widgets: private folders, no display, no session bus.
#include "support/private_folders.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    kelvo::usePrivateFolders(home);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");

    QLocale::setDefault(QLocale::c());

    ::testing::InitGoogleTest(&argc, argv);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
