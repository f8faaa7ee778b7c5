// BusNotices: notices through the desktop's notification service, org.freedesktop.Notifications.
#pragma once

#include "ports/desktop_notices.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace kelvo {

class BusNotices final : public QObject, public DesktopNotices {
    Q_OBJECT
public:
    /// `otherwise` (if any) shows what the service could not; main thread. `connect` gives the
    /// session bus; it is called with the first notice.
    explicit BusNotices(std::function<void(const Notice&)> otherwise,
                        std::function<QDBusConnection()> connect = QDBusConnection::sessionBus);

    void showNotice(const Notice& notice) override;

private:
    const std::function<void(const Notice&)> fOtherwise;
    const std::function<QDBusConnection()> fConnect;
};

} // namespace kelvo
