// Prints a line for each message of the network checker, until it is ended.
#include "adapters/posix/local_notification_center.h"
#include "adapters/qt/network_information.h"
#include "adapters/qt/qt_main_queue.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    kelvo::LocalNotificationCenter center;
    kelvo::QtMainQueue mainQueue;
    const kelvo::Subscription observation = center.observe(
        kelvo::cNWPathMonitorNotification.toString(), [](const kelvo::Notification& notification) {
            const QString message =
                notification.userInfo.value(kelvo::cReachabilityMessage.toString()).toString();
            std::printf("%s\n", qPrintable(message));
            std::fflush(stdout);
        });
    kelvo::KelvoSSID checker(center, mainQueue);
    checker.checknetwork2();
    checker.checknetwork2();
    return QCoreApplication::exec();
}
