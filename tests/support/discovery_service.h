// DiscoveryService: the machine's discovery service on a test's message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
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

    QString tellsAtOnce; ///< the name of a service found before the answer is out; set before asked

public Q_SLOTS:
    uint GetAPIVersion() const { return 0x0201; }
    int GetState() const { return 2; } // running
    QDBusObjectPath ServiceBrowserNew(int interface, int protocol, const QString& type,
                                      const QString& domain, uint flags);

private:
    void send(const QString& receiver, int search, const QString& signal,
              const QVariantList& values) const;

    QDBusConnection& fBus;
    mutable std::mutex fMutex;
    QStringList fAsked;
    QStringList fAskers; ///< their names on the bus
    QThread fThread;
};

} // namespace kelvo
