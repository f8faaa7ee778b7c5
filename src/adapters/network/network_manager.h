// NetworkManager: how far this machine sees, as the system's service of this name judges it.
#pragma once

#include "adapters/network/network_reach.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <optional>

namespace kelvo {

/// Main thread only. Asks without waiting, and starts no service; one that begins later is asked
/// then. Between its changes nothing runs.
class NetworkManager final : public QObject, public NetworkReachSource {
    Q_OBJECT
public:
    /// `changed` is called from the event loop when there may be another answer.
    explicit NetworkManager(std::function<void()> changed,
                            QDBusConnection bus = QDBusConnection::systemBus());

    /// Nothing where there is no such service.
    std::optional<NetworkReach> reach() const override { return fReach; }

private Q_SLOTS:
    void stateChanged(uint state);

private:
    void ask();
    void take(std::optional<NetworkReach> reach);

    const std::function<void()> fChanged;
    QDBusConnection fBus;
    QDBusServiceWatcher fServices;
    quint64 fLastQuestion = 0;
    std::optional<NetworkReach> fReach;
};

} // namespace kelvo
