#include "support/discovery_service.h"

namespace kelvo {
namespace {

const QString cName = QStringLiteral("org.freedesktop.Avahi");

QString pathOf(int search) {
    return QStringLiteral("/Client1/ServiceBrowser%1").arg(search);
}

} // namespace

bool DiscoveryService::appear() {
    return fBus.registerObject(QStringLiteral("/"), this, QDBusConnection::ExportAllSlots) &&
           fBus.registerService(cName);
}

bool DiscoveryService::disappear() {
    fBus.unregisterObject(QStringLiteral("/"));
    return fBus.unregisterService(cName);
}

void DiscoveryService::tell(int search, const QString& signal, const QVariantList& values) const {
    QDBusMessage message = QDBusMessage::createSignal(
        pathOf(search), QStringLiteral("org.freedesktop.Avahi.ServiceBrowser"), signal);
    message.setArguments(values);
    fBus.send(message);
}

QDBusObjectPath DiscoveryService::ServiceBrowserNew(int, int, const QString& type,
                                                    const QString& domain, uint) {
    asked.append(type + u' ' + domain);
    const int search = static_cast<int>(asked.size());
    if (!tellsAtOnce.isEmpty())
        tell(search, QStringLiteral("ItemNew"),
             {1, 0, tellsAtOnce, type, domain, QVariant::fromValue(0U)});
    return QDBusObjectPath(pathOf(search));
}

} // namespace kelvo
