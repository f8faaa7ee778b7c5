// The main of every test program: private home and settings folders, then the tests.
#include "support/private_folders.h"

#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

#include <signal.h>

int main(int argc, char** argv) {
    // A shell that starts the tests in the background has them ignored, and every child after it.
    for (const int number : {SIGINT, SIGQUIT})
        (void)::signal(number, SIG_DFL);
    const QTemporaryDir home;
    if (!home.isValid())
        return 1;
    kelvo::usePrivateFolders(home);

    QLocale::setDefault(QLocale::c());

    ::testing::InitGoogleTest(&argc, argv);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
