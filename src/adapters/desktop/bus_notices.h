// BusNotices: notices through the desktop's notification service, org.freedesktop.Notifications.
#pragma once

#include "ports/desktop_notices.h"
#include "support/profile.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <map>

namespace kelvo {

class BusNotices final : public QObject, public DesktopNotices {
    Q_OBJECT
public:
    /// `otherwise` (if any) shows what the service could not; main thread. `connect` gives the
    /// session bus; it is called with the first notice. The notices are those of `profile`.
    explicit BusNotices(std::function<void(const Notice&)> otherwise,
                        std::function<QDBusConnection()> connect = QDBusConnection::sessionBus,
                        Profile profile = {});

    /// A notice with a choice is shown once the service has told whether it can offer choices.
    void showNotice(const Notice& notice) override;

private Q_SLOTS:
    void activationToken(uint id, const QString& token);
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);

private:
    void listen(QDBusConnection bus);
    void notify(const QDBusConnection& bus, const Notice& notice, const QStringList& actions);

    const std::function<void(const Notice&)> fOtherwise;
    const std::function<QDBusConnection()> fConnect;
    const Profile fProfile;
    bool fListens = false;
    std::map<uint, std::function<void()>> fShows; ///< of the notices that stand
};

} // namespace kelvo
