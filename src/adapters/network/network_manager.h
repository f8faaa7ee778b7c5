// NetworkManager: how far this machine sees, as the system's service of this name judges it.
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <optional>

namespace kelvo {

/// How far this machine sees.
enum class NetworkReach { Unknown, NothingBeyond, LocalOnly, Beyond };

/// Main thread only. Asks without waiting, and starts no service; one that begins later is asked
/// then. Between its changes nothing runs.
class NetworkManager final : public QObject {
    Q_OBJECT
public:
    /// `changed` is called from the event loop when there may be another answer.
    explicit NetworkManager(std::function<void()> changed,
                            QDBusConnection bus = QDBusConnection::systemBus());

    /// Nothing as long as the service has told nothing, and where there is none.
    std::optional<NetworkReach> reach() const { return fReach; }

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
