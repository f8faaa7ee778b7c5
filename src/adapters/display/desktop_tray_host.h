// DesktopTrayHost: the tray as a D-Bus service or as an X11 tray manager, the bus going first.
#pragma once

#include "ports/tray_host.h"

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <memory>
#include <vector>

namespace kelvo {

/// Asks nothing at intervals: both kinds announce themselves. Needs a QGuiApplication; without a
/// session bus or without X11 that kind counts as absent.
class DesktopTrayHost final : public QObject, public TrayHost, private QAbstractNativeEventFilter {
    Q_OBJECT
public:
    explicit DesktopTrayHost(const QDBusConnection& bus = QDBusConnection::sessionBus());
    ~DesktopTrayHost() override;

    TrayKind kind() const override {
        return fOnBus ? TrayKind::Bus : fOnX11 ? TrayKind::X11 : TrayKind::None;
    }
    Subscription observe(std::function<void()> changed) override;

private Q_SLOTS:
    void askBus();

private:
    struct Observer {
        std::function<void()> changed;
        bool ended = false;
    };
    using Observers = std::vector<std::shared_ptr<Observer>>;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void watchBus();
    void watchX11();
    void askX11();
    void set(bool& place, bool present);

    QDBusConnection fBus;
    QDBusServiceWatcher fWatcher;
    quint64 fLastQuestion = 0;
    bool fOnBus = false;
    bool fOnX11 = false;
    quint32 fSelection = 0;     ///< the atom that a tray manager of this screen owns
    quint32 fManagerAtom = 0;   ///< the type of the message by which it announces itself
    quint32 fManagerWindow = 0; ///< 0 when there is none
    std::shared_ptr<Observers> fObservers = std::make_shared<Observers>();
};

} // namespace kelvo
