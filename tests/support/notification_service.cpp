#include "support/notification_service.h"

namespace kelvo {

bool NotificationService::appear() {
    return fBus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                               QDBusConnection::ExportAllSlots) &&
           fBus.registerService(QStringLiteral("org.freedesktop.Notifications"));
}

uint NotificationService::Notify(const QString&, uint, const QString&, const QString& summary,
                                 const QString& body, const QStringList&, const QVariantMap&, int) {
    shown << summary + u" | " + body;
    return static_cast<uint>(shown.size());
}

} // namespace kelvo
