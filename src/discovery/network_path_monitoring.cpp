#include "discovery/network_path_monitoring.h"

#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/dnssd_browser.h"
#include "ports/network_checker.h"
#include "support/notification_center.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cTypeName = u"ViewController";
constexpr double cStatusDelay = 0.1;

QString listText(const QStringList& items) {
    QStringList quoted;
    for (const QString& item : items)
        quoted.append(quotedText(item));
    return u'[' + quoted.join(QStringLiteral(", ")) + u']';
}

} // namespace

NetworkPathMonitoring::NetworkPathMonitoring(NetworkPathMonitoringParts parts)
    : fParts(std::move(parts)) {}

NetworkPathMonitoring::~NetworkPathMonitoring() = default;

// -- the status line

void NetworkPathMonitoring::setupNetworkChecker() {
    fKelvoSSID = fParts.makeKelvoSSID();
    if (!fKelvoSSID)
        return;
    fParts.console.print(QStringLiteral("great got self.fKelvoSSID..."));
    fObservation = fParts.notificationCenter.observe(
        cNWPathMonitorNotification.toString(), [this](const Notification& notification) {
            handleNWPathMonitorNotification(notification);
        });
    fKelvoSSID->checknetwork2();
}

void NetworkPathMonitoring::handleNWPathMonitorNotification(const Notification& notification) {
    constexpr QStringView operation = u"handleNWPathMonitorNotification(_:)";
    printInside(operation, QString(u".......notification = " + notificationText(notification)));
    printInside(operation,
                QString(u".......notification.userInfo = " + userInfoText(notification.userInfo)));
    printInside(operation,
                u".......notification.userInfo = Optional<Dictionary<AnyHashable, Any>>");
    const QVariant message = notification.userInfo.value(cReachabilityMessage.toString());
    fParts.mainQueue.asyncAfter(cStatusDelay, [this, message] {
        fParts.showNetworkStatus({});
        if (message.typeId() == QMetaType::QString)
            fParts.showNetworkStatus(message.toString());
    });
}

// -- the test of the browser

void NetworkPathMonitoring::ibTestNWBrowser(Control*) {
    printInside(u"ibTestNWBrowser(_:)");
    const auto printState = [this](const EndpointSearchState& state) {
        if (state.kind == EndpointSearchState::Kind::Failed)
            fParts.console.print(u"error: " + state.errorText);
        else if (state.kind == EndpointSearchState::Kind::Ready)
            fParts.console.print(QStringLiteral("ready"));
    };
    fParts.browser.searchEndpoints(
        {.type = QStringLiteral("_smb._tcp"),
         .domain = QStringLiteral("local."),
         .includePeerToPeer = true},
        {.stateChanged = printState,
         .endpointsChanged = [this](const QStringList& endpoints) { gather(endpoints); }});
}

void NetworkPathMonitoring::gather(const QStringList& endpoints) {
    if (!fFoundItemsFromBonjour)
        fFoundItemsFromBonjour.emplace();
    fFoundItemsFromBonjour->append(endpoints);
    fParts.console.print(QStringLiteral("==============================bbb"));
    fParts.console.print(QStringLiteral("==============================111"));
    fParts.console.print(listText(*fFoundItemsFromBonjour));
    fParts.console.print(QStringLiteral("==============================222"));
}

void NetworkPathMonitoring::printInside(QStringView operation, QStringView detail) const {
    fParts.console.print(insideLine(cTypeName, operation, detail));
}

} // namespace kelvo
