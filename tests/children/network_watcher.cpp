// Prints a line for each message of the network checker, until it is ended. With "--browse" a line
// for each state and each result of a search for SMB services instead.
#include "adapters/network/avahi_network_browser.h"
#include "adapters/network/network_information.h"
#include "adapters/process/qt_main_queue.h"
#include "support/notification_center.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

void printLine(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

int browse() {
    kelvo::AvahiNetworkBrowser browser;
    browser.start(
        {QStringLiteral("_smb._tcp"), QStringLiteral("local."), true},
        [](const kelvo::NetworkBrowserState& state) {
            printLine(state.kind == kelvo::NetworkBrowserState::Kind::Ready
                          ? QStringLiteral("ready")
                          : QString(u"not ready: " + state.errorText));
        },
        [](const QStringList& endpoints) {
            printLine(u"found: " + endpoints.join(QStringLiteral(" | ")));
        });
    return QCoreApplication::exec();
}

int watch() {
    kelvo::NotificationCenter center;
    kelvo::QtMainQueue mainQueue;
    const kelvo::Subscription observation = center.observe(
        kelvo::cNWPathMonitorNotification.toString(), [](const kelvo::Notification& notification) {
            printLine(
                notification.userInfo.value(kelvo::cReachabilityMessage.toString()).toString());
        });
    kelvo::KelvoSSID checker(center, mainQueue);
    checker.checknetwork2();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return QCoreApplication::arguments().contains(QStringLiteral("--browse")) ? browse() : watch();
}
