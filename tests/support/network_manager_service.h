// NetworkManagerService: the system's NetworkManager on a bus, reduced to its state, for tests.
#pragma once

#include <QDBusConnection>
#include <QObject>

namespace kelvo {

class NetworkManagerService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager")
    Q_PROPERTY(uint State READ state)
public:
    explicit NetworkManagerService(QDBusConnection& bus) : fBus(bus) {}

    /// False when the name or the place on the bus is taken.
    bool appear();
    bool disappear();

    /// 20 disconnected, 50 connected to this machine's networks only, 70 to the whole world …; told
    /// to whoever listens.
    void setState(uint state);
    /// The same without a word.
    void setQuietState(uint state) { fState = state; }

    uint state() const { return fState; }

Q_SIGNALS:
    void StateChanged(uint state);

private:
    QDBusConnection& fBus;
    uint fState = 0;
};

} // namespace kelvo
