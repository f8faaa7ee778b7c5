#include "support/discovery_service.h"

namespace kelvo {
namespace {

const QString cName = QStringLiteral("org.freedesktop.Avahi");

QString pathOf(int search) {
    return QStringLiteral("/Client1/ServiceBrowser%1").arg(search);
}

} // namespace

DiscoveryService::DiscoveryService(QDBusConnection& bus) : fBus(bus) {
    moveToThread(&fThread);
    fThread.start();
}

DiscoveryService::~DiscoveryService() {
    fThread.quit();
    fThread.wait();
}

bool DiscoveryService::appear() {
    return fBus.registerObject(QStringLiteral("/"), this, QDBusConnection::ExportAllSlots) &&
           fBus.registerService(cName);
}

bool DiscoveryService::disappear() {
    fBus.unregisterObject(QStringLiteral("/"));
    return fBus.unregisterService(cName);
}

void DiscoveryService::tell(int search, const QString& signal, const QVariantList& values) const {
    const std::lock_guard lock(fMutex);
    send(fAskers.value(search - 1, fAskers.value(0)), search, signal, values);
}

void DiscoveryService::send(const QString& receiver, int search, const QString& signal,
                            const QVariantList& values) const {
    QDBusMessage message = QDBusMessage::createTargetedSignal(
        receiver, pathOf(search), QStringLiteral("org.freedesktop.Avahi.ServiceBrowser"), signal);
    message.setArguments(values);
    fBus.send(message);
}

QStringList DiscoveryService::asked() const {
    const std::lock_guard lock(fMutex);
    return fAsked;
}

QDBusObjectPath DiscoveryService::ServiceBrowserNew(int, int, const QString& type,
                                                    const QString& domain, uint) {
    const std::lock_guard lock(fMutex);
    fAsked.append(type + u' ' + domain);
    fAskers.append(message().service());
    const int search = static_cast<int>(fAsked.size());
    if (!tellsAtOnce.isEmpty())
        send(fAskers.last(), search, QStringLiteral("ItemNew"),
             {1, 0, tellsAtOnce, type, domain, QVariant::fromValue(0U)});
    return QDBusObjectPath(pathOf(search));
}

} // namespace kelvo
