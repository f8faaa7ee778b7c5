#include "support/discovery_service.h"

#include <QDBusMetaType>

namespace kelvo {
namespace {

const QString cName = QStringLiteral("org.freedesktop.Avahi");

const QString cBrowser = QStringLiteral("ServiceBrowser");
const QString cResolver = QStringLiteral("ServiceResolver");
const QString cType = QStringLiteral("_smb._tcp");
const QString cDomain = QStringLiteral("local");

QString pathOf(const QString& kind, int number) {
    return QStringLiteral("/Client1/%1%2").arg(kind).arg(number);
}

QVariantList item(const QString& name, const QString& type, const QString& domain) {
    return {1, 0, name, type, domain, QVariant::fromValue(0U)};
}

} // namespace

DiscoveryService::DiscoveryService(QDBusConnection& bus) : fBus(bus) {
    qDBusRegisterMetaType<QByteArrayList>(); // the texts that a service may have
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
    send(fAskers.value(search - 1, fAskers.value(0)), cBrowser, search, signal, values);
}

void DiscoveryService::announce(const QString& name, quint16 port) {
    const std::lock_guard lock(fMutex);
    fPorts[name] = port;
    if (fAnnounced.contains(name))
        return;
    fAnnounced.append(name);
    tellAll(QStringLiteral("ItemNew"), name);
}

void DiscoveryService::withdraw(const QString& name) {
    const std::lock_guard lock(fMutex);
    fAnnounced.removeAll(name);
    tellAll(QStringLiteral("ItemRemove"), name);
}

QStringList DiscoveryService::resolved() const {
    const std::lock_guard lock(fMutex);
    return fResolved;
}

void DiscoveryService::tellAll(const QString& signal, const QString& name) const {
    for (int search = 1; search <= fAsked.size(); ++search) {
        if (fAsked[search - 1] == QString(cType + u' ' + cDomain))
            send(fAskers[search - 1], cBrowser, search, signal, item(name, cType, cDomain));
    }
}

void DiscoveryService::send(const QString& receiver, const QString& kind, int number,
                            const QString& signal, const QVariantList& values) const {
    QDBusMessage message = QDBusMessage::createTargetedSignal(
        receiver, pathOf(kind, number), QString(u"org.freedesktop.Avahi." + kind), signal);
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
    if (refusals > 0) {
        --refusals;
        sendErrorReply(QStringLiteral("org.freedesktop.Avahi.TooManyObjectsError"), {});
        return {};
    }
    fAsked.append(type + u' ' + domain);
    fAskers.append(message().service());
    const int search = static_cast<int>(fAsked.size());
    if (!tellsAtOnce.isEmpty())
        send(fAskers.last(), cBrowser, search, QStringLiteral("ItemNew"),
             item(tellsAtOnce, type, domain));
    if (type == cType) {
        for (const QString& name : fAnnounced)
            send(fAskers.last(), cBrowser, search, QStringLiteral("ItemNew"),
                 item(name, type, domain));
    }
    send(fAskers.last(), cBrowser, search, QStringLiteral("AllForNow"), {});
    return QDBusObjectPath(pathOf(cBrowser, search));
}

QDBusObjectPath DiscoveryService::ServiceResolverNew(int interface, int protocol,
                                                     const QString& name, const QString& type,
                                                     const QString& domain, int aprotocol, uint) {
    const std::lock_guard lock(fMutex);
    const QString question = name + u' ' + QString::number(aprotocol);
    fResolved.append(question);
    const int number = static_cast<int>(fResolved.size());
    const auto asked = fResolved.filter(QString(name + u' ')).size();
    if (!keepsSilent && asked <= failures)
        send(message().service(), cResolver, number, QStringLiteral("Failure"),
             {QStringLiteral("org.freedesktop.Avahi.TimeoutError")});
    else if (!keepsSilent && fPorts.contains(name))
        send(message().service(), cResolver, number, QStringLiteral("Found"),
             {interface, protocol, name, type, domain, host, 0, QStringLiteral("10.77.0.2"),
              QVariant::fromValue(fPorts[name]), QVariant::fromValue(QByteArrayList()),
              QVariant::fromValue(0U)});
    return QDBusObjectPath(pathOf(cResolver, number));
}

} // namespace kelvo
