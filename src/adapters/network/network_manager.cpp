#include "adapters/network/network_manager.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace kelvo {
namespace {

const QString cService = QStringLiteral("org.freedesktop.NetworkManager");
const QString cPlace = QStringLiteral("/org/freedesktop/NetworkManager");

/// The service counts its states in tens: asleep, disconnected, on the way out, on the way in, and
/// connected to this machine's own networks, to the site's and to the whole world.
NetworkReach reachIn(uint state) {
    constexpr uint cAsleep = 10;
    constexpr uint cConnectedHere = 50;
    constexpr uint cConnectedToSite = 60;
    if (state < cAsleep)
        return NetworkReach::Unknown;
    if (state < cConnectedHere)
        return NetworkReach::NothingBeyond;
    return state < cConnectedToSite ? NetworkReach::LocalOnly : NetworkReach::Beyond;
}

} // namespace

NetworkManager::NetworkManager(std::function<void()> changed, QDBusConnection bus)
    : fChanged(std::move(changed)), fBus(std::move(bus)) {
    if (!fBus.isConnected())
        return;
    fBus.connect(cService, cPlace, cService, QStringLiteral("StateChanged"), this,
                 SLOT(stateChanged(uint)));
    fServices.setConnection(fBus);
    fServices.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    fServices.addWatchedService(cService);
    connect(&fServices, &QDBusServiceWatcher::serviceOwnerChanged, this, &NetworkManager::ask);
    ask();
}

void NetworkManager::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        cService, cPlace, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << cService << QStringLiteral("State");
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(fBus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, number = ++fLastQuestion] {
                answer->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *answer;
                if (number != fLastQuestion)
                    return;
                if (reply.isValid())
                    take(reachIn(reply.value().variant().toUInt()));
                else
                    take(std::nullopt);
            });
}

/// Newer than any answer that is still under way.
void NetworkManager::stateChanged(uint state) {
    ++fLastQuestion;
    take(reachIn(state));
}

void NetworkManager::take(std::optional<NetworkReach> reach) {
    if (std::exchange(fReach, reach) != reach)
        fChanged();
}

} // namespace kelvo
