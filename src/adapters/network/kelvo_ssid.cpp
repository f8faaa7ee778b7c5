#include "adapters/network/kelvo_ssid.h"

#include "adapters/network/link_watch.h"
#include "ports/dispatch_queue.h"
#include "support/notification_center.h"

#include <QFileInfo>

#include <optional>
#include <utility>

namespace kelvo {
namespace {

constexpr double cSettleSeconds = 0.2;

/// Where its folder is not there nobody joins the system's bus for it.
bool networkManagerIsAtHand() {
    return QFileInfo::exists(QStringLiteral("/run/NetworkManager"));
}

/// As the kernel's routes have it.
NetworkReach reachByRoutes() {
    return hasDefaultRoute() ? NetworkReach::Beyond : NetworkReach::LocalOnly;
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
    Watcher(NotificationCenter& center, DispatchQueue& mainQueue,
            const MakeReachSource& makeManager)
        : fCenter(center), fMainQueue(mainQueue), fLinks([this] { lookLater(cSettleSeconds); }) {
        if (networkManagerIsAtHand())
            fManager = makeManager([this] { lookLater(cSettleSeconds); });
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
        const auto reach = fManager ? fManager->reach() : std::nullopt;
        const QString message =
            reachabilityMessage(hasUsableLink(), reach ? *reach : reachByRoutes());
        if (std::exchange(fLastMessage, message) != message)
            fCenter.post(cNWPathMonitorNotification.toString(),
                         {{cReachabilityMessage.toString(), message}});
    }

    NotificationCenter& fCenter;
    DispatchQueue& fMainQueue;
    std::unique_ptr<NetworkReachSource> fManager;
    LinkWatch fLinks;
    QString fLastMessage;
    bool fLookIsDue = false;
};

KelvoSSID::KelvoSSID(NotificationCenter& center, DispatchQueue& mainQueue,
                     MakeReachSource makeManager)
    : fCenter(center), fMainQueue(mainQueue), fMakeManager(std::move(makeManager)) {}

KelvoSSID::~KelvoSSID() = default;

void KelvoSSID::checknetwork2() {
    if (fWatcher)
        return;
    fWatcher = std::make_shared<Watcher>(fCenter, fMainQueue, fMakeManager);
    fWatcher->lookLater(0);
}

} // namespace kelvo
