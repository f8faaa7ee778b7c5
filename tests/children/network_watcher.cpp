// Prints a line for each message of the network checker, until it is ended. With "--browse" a line
// for each state and each result of a search for SMB services instead.
#include "adapters/network/avahi_browser.h"
#include "adapters/network/kelvo_ssid.h"
#include "adapters/network/network_manager.h"
#include "adapters/process/qt_main_queue.h"
#include "fakes/recording_console.h"
#include "support/notification_center.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

void printLine(const QString& line) {
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

int browse() {
    kelvo::RecordingConsole console;
    kelvo::QtMainQueue mainQueue;
    kelvo::AvahiBrowser browser(console, mainQueue);
    const auto printState = [](const kelvo::EndpointSearchState& state) {
        printLine(state.kind == kelvo::EndpointSearchState::Kind::Ready
                      ? QStringLiteral("ready")
                      : QString(u"not ready: " + state.errorText));
    };
    const auto printEndpoints = [](const QStringList& endpoints) {
        printLine(u"found: " + endpoints.join(QStringLiteral(" | ")));
    };
    browser.searchEndpoints({.type = QStringLiteral("_smb._tcp"),
                             .domain = QStringLiteral("local."),
                             .includePeerToPeer = true},
                            {.stateChanged = printState, .endpointsChanged = printEndpoints});
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
    kelvo::KelvoSSID checker(center, mainQueue, [](std::function<void()> changed) {
        return std::make_unique<kelvo::NetworkManager>(std::move(changed));
    });
    checker.checknetwork2();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return QCoreApplication::arguments().contains(QStringLiteral("--browse")) ? browse() : watch();
}
