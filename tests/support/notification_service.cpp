#include "support/notification_service.h"

namespace kelvo {

bool NotificationService::appear() {
    return fBus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                               QDBusConnection::ExportAllSlots |
                                   QDBusConnection::ExportAllSignals) &&
           fBus.registerService(QStringLiteral("org.freedesktop.Notifications"));
}

uint NotificationService::Notify(const QString& program, uint replaces, const QString& icon,
                                 const QString& summary, const QString& body,
                                 const QStringList& newActions, const QVariantMap& newHints,
                                 int milliseconds) {
    frame = {program, replaces, icon, milliseconds};
    actions = newActions;
    hints = newHints;
    shown << summary + u" | " + body;
    return static_cast<uint>(shown.size());
}

} // namespace kelvo
