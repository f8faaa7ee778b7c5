// A private message bus and a tray service on it, for tests.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QProcess>
#include <QStringList>

namespace kelvo {

/// A bus daemon of the test's own; ends with this object.
class PrivateBus {
public:
    /// At an address of its own choice if `address` is empty.
    explicit PrivateBus(const QString& address = {});
    ~PrivateBus();

    /// Empty when no bus daemon could be started.
    const QString& address() const { return fAddress; }

private:
    QProcess fDaemon;
    QString fAddress;
};

/// A connection that is closed with this object.
class BusConnection {
public:
    BusConnection(const QString& address, const QString& name);
    ~BusConnection() { QDBusConnection::disconnectFromBus(fName); }
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    QDBusConnection& get() { return fBus; }

private:
    QString fName;
    QDBusConnection fBus;
};

/// What a desktop panel offers on the bus, reduced to what icons need to register.
class TrayService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
public:
    explicit TrayService(QDBusConnection& bus) : fBus(bus) {}

    /// Takes the service's name on the bus and gives it back. False when that failed.
    bool appear(bool withHost);
    bool disappear();

    /// A panel that draws the icons comes or goes while the service stays.
    void setHost(bool hasHost);

    bool hasHost() const {
        ++fQuestions;
        return fHasHost;
    }
    int questions() const { return fQuestions; } ///< how often somebody asked for a panel
    int protocolVersion() const { return 0; }
    QStringList items() const { return fItems; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) { fItems.append(service); }
    void RegisterStatusNotifierHost(const QString&) {}

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString& service);
    void StatusNotifierItemUnregistered(const QString& service);
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection& fBus;
    QStringList fItems;
    bool fHasHost = false;
    mutable int fQuestions = 0;
};

} // namespace kelvo
