// DiscoveryService: the machine's discovery service on a test's message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QHash>
#include <QObject>
#include <QStringList>
#include <QThread>

#include <mutex>

namespace kelvo {

/// Answers on a thread of its own: the client library waits for answers on its own thread, and a
/// test may wait for that.
class DiscoveryService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Avahi.Server")
public:
    explicit DiscoveryService(QDBusConnection& bus);
    ~DiscoveryService() override;

    /// Takes the service's name on the bus and gives it back. False when that failed.
    bool appear();
    bool disappear();

    /// What the search number `search`, counted from 1, tells whoever asked for it; one that nobody
    /// asked for tells whoever asked first. Signals of this service go to one receiver.
    void tell(int search, const QString& signal, const QVariantList& values) const;

    /// The type and the domain of every search so far.
    QStringList asked() const;

    /// A service on the loopback device, of the type _smb._tcp; every search hears of it, later
    /// ones too. One that is known already has another port from now on, which nobody is told.
    void announce(const QString& name, quint16 port);
    void withdraw(const QString& name);

    /// What was asked about services, as "name aprotocol".
    QStringList resolved() const;

    QString tellsAtOnce; ///< the name of a service found before the answer is out; set before asked
    int failures = 0; ///< so many questions about each service are not answered; set before asked
    bool keepsSilent = false; ///< to all such questions; set before asked
    int refusals = 0;         ///< so many searches cannot be begun; set before asked
    QString host = QStringLiteral("Remote-Mac.local"); ///< of every service; set before asked

public Q_SLOTS:
    uint GetAPIVersion() const { return 0x0201; }
    int GetState() const { return 2; } // running
    QDBusObjectPath ServiceBrowserNew(int interface, int protocol, const QString& type,
                                      const QString& domain, uint flags);
    QDBusObjectPath ServiceResolverNew(int interface, int protocol, const QString& name,
                                       const QString& type, const QString& domain, int aprotocol,
                                       uint flags);

private:
    void send(const QString& receiver, const QString& kind, int number, const QString& signal,
              const QVariantList& values) const;
    void tellAll(const QString& signal, const QString& name) const;

    QDBusConnection& fBus;
    mutable std::mutex fMutex;
    QStringList fAsked;
    QStringList fAskers; ///< their names on the bus
    QStringList fAnnounced;
    QHash<QString, quint16> fPorts;
    QStringList fResolved;
    QThread fThread;
};

} // namespace kelvo
