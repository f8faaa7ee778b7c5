// DiscoveryService: the machine's discovery service on a test's message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>

namespace kelvo {

class DiscoveryService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Avahi.Server")
public:
    explicit DiscoveryService(QDBusConnection& bus) : fBus(bus) {}

    /// Takes the service's name on the bus and gives it back. False when that failed.
    bool appear();
    bool disappear();

    /// What the search number `search`, counted from 1, tells whoever asked for it.
    void tell(int search, const QString& signal, const QVariantList& values) const;

    QStringList asked;   ///< the type and the domain of every search so far
    QString tellsAtOnce; ///< the name of a service found before the answer is out; empty for none

public Q_SLOTS:
    QDBusObjectPath ServiceBrowserNew(int interface, int protocol, const QString& type,
                                      const QString& domain, uint flags);

private:
    QDBusConnection& fBus;
};

} // namespace kelvo
