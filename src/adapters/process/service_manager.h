// ServiceManager: tells the service manager (systemd) that has started this program how it is.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace kelvo {

/// Speaks the datagrams of systemd's notification protocol, to a socket with a path or with an
/// abstract name. Without a manager that wants to be told, everything is lost in silence.
class ServiceManager {
public:
    /// Takes what the manager says of itself from the environment (NOTIFY_SOCKET, WATCHDOG_USEC,
    /// WATCHDOG_PID), out of which it goes: no command that this program runs can speak in its
    /// name. Before a second thread is started, and before a CommandRunner reads the environment.
    ServiceManager();

    /// Whether there is somebody to tell.
    bool isThere() const { return static_cast<bool>(fSocket); }

    /// Seconds within which the manager wants a sign of life; nothing when it wants none.
    std::optional<double> watchdogSeconds() const { return fWatchdogSeconds; }

    /// Sends assignments such as "READY=1", one a line. Any thread; never waits: what a manager
    /// that is behind cannot take is lost.
    void tell(QByteArrayView state) const;

private:
    QByteArray fAddress; ///< a sockaddr_un, as long as it is
    UniqueFd fSocket;
    std::optional<double> fWatchdogSeconds;
};

} // namespace kelvo
