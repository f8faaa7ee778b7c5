// LabNetwork: the near host's network as this process sees it, with services of the remote host.
#pragma once

#include "adapters/network/avahi_browser.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "lab/lab_fixture.h"

#include <QProcess>

#include <functional>
#include <memory>

namespace kelvo {

/// Between prepare and destruction this thread, and those it starts, are on the near host's network
/// and talk to its message bus.
class LabNetwork {
public:
    LabNetwork() = default;
    ~LabNetwork();
    LabNetwork(const LabNetwork&) = delete;
    LabNetwork& operator=(const LabNetwork&) = delete;

    /// A first day on both hosts; otherwise the reason why there is no lab.
    QString prepare();

    DnssdBrowser& browser() { return *fBrowser; }
    RecordingConsole& console() { return fConsole; }

    /// By the remote host's own avahi-daemon, which probes for about a second.
    void announce(const QString& name, quint32 port);
    void withdraw(const QString& name);

    /// By packets, with any bytes for names, on a host "Loud-Host" with the remote host's address.
    /// Again and again until this object ends. Returns once each was sent.
    void announceBytes(const QList<QByteArray>& names);

    /// The near host's avahi-daemon.
    void setRunning(bool running);

    /// The second cable.
    void setSpareCable(bool plugged);

    bool wasRefused(const QString& name) const;
    bool becomes(const std::function<bool()>& condition, int seconds = 60);

    static CommandResult remote(const QString& shellText);
    static CommandResult near(const QString& shellText);

private:
    void enterNearHost(const QByteArray& holder);

    int fOwnNetwork = -1;
    RecordingConsole fConsole;
    VirtualMainQueue fMainQueue;
    QProcess fAnnouncer;
    std::unique_ptr<AvahiBrowser> fBrowser;
};

} // namespace kelvo
