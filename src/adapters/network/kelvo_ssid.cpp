#include "adapters/network/kelvo_ssid.h"

#include "adapters/network/link_watch.h"
#include "ports/dispatch_queue.h"
#include "support/notification_center.h"

#include <QFileInfo>
#include <QNetworkInformation>
#include <QObject>

#include <utility>

namespace kelvo {
namespace {

constexpr double cSettleSeconds = 0.2;

/// Null where NetworkManager is not at hand. Its folder is looked for first, as Qt loads every
/// backend to find one by its name, GLib's with 2 MB of libraries among them.
QNetworkInformation* networkService() {
    const bool atHand = QFileInfo::exists(QStringLiteral("/run/NetworkManager"));
    return atHand && QNetworkInformation::loadBackendByName(u"networkmanager")
               ? QNetworkInformation::instance()
               : nullptr;
}

NetworkReach reachFrom(const QNetworkInformation* service) {
    if (!service)
        return hasDefaultRoute() ? NetworkReach::Beyond : NetworkReach::LocalOnly;
    switch (service->reachability()) {
    case QNetworkInformation::Reachability::Disconnected:
        return NetworkReach::NothingBeyond;
    case QNetworkInformation::Reachability::Local:
        return NetworkReach::LocalOnly;
    case QNetworkInformation::Reachability::Site:
    case QNetworkInformation::Reachability::Online:
        return NetworkReach::Beyond;
    case QNetworkInformation::Reachability::Unknown:
        break;
    }
    return NetworkReach::Unknown;
}

} // namespace

QString reachabilityMessage(bool usableLink, NetworkReach reach) {
    if (!usableLink)
        return QStringLiteral("No network connection");
    switch (reach) {
    case NetworkReach::NothingBeyond:
    case NetworkReach::LocalOnly:
        return QStringLiteral("Connected to the local network only");
    case NetworkReach::Unknown:
    case NetworkReach::Beyond:
        break;
    }
    return QStringLiteral("Connected to the network");
}

class KelvoSSID::Watcher : public std::enable_shared_from_this<Watcher> {
public:
    Watcher(NotificationCenter& center, DispatchQueue& mainQueue)
        : fCenter(center), fMainQueue(mainQueue), fService(networkService()),
          fLinks([this] { lookLater(cSettleSeconds); }) {
        if (fService)
            QObject::connect(fService, &QNetworkInformation::reachabilityChanged, &fContext,
                             [this] { lookLater(cSettleSeconds); });
    }

    /// Posts after `seconds` what is true then, if that is news.
    void lookLater(double seconds) {
        if (std::exchange(fLookIsDue, true))
            return;
        fMainQueue.asyncAfter(seconds, [watching = weak_from_this()] {
            if (const auto alive = watching.lock())
                alive->look();
        });
    }

private:
    void look() {
        fLookIsDue = false;
        const QString message = reachabilityMessage(hasUsableLink(), reachFrom(fService));
        if (std::exchange(fLastMessage, message) != message)
            fCenter.post(cNWPathMonitorNotification.toString(),
                         {{cReachabilityMessage.toString(), message}});
    }

    NotificationCenter& fCenter;
    DispatchQueue& fMainQueue;
    QObject fContext;
    QNetworkInformation* const fService;
    LinkWatch fLinks;
    QString fLastMessage;
    bool fLookIsDue = false;
};

KelvoSSID::KelvoSSID(NotificationCenter& center, DispatchQueue& mainQueue)
    : fCenter(center), fMainQueue(mainQueue) {}

KelvoSSID::~KelvoSSID() = default;

void KelvoSSID::checknetwork2() {
    if (fWatcher)
        return;
    fWatcher = std::make_shared<Watcher>(fCenter, fMainQueue);
    fWatcher->lookLater(0);
}

} // namespace kelvo
