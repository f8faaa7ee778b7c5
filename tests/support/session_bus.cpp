#include "support/session_bus.h"

namespace kelvo {
namespace {

const QString cTrayService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString cTrayPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int cPatience = 20'000; // milliseconds

} // namespace

PrivateBus::PrivateBus(const QString& address) {
    QStringList options{QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address=1")};
    if (!address.isEmpty())
        options.append(u"--address=" + address);
    fDaemon.start(QStringLiteral("dbus-daemon"), options);
    if (!fDaemon.waitForStarted(cPatience))
        return;
    while (!fDaemon.canReadLine() && fDaemon.waitForReadyRead(cPatience)) {
    }
    fAddress = QString::fromUtf8(fDaemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    fDaemon.terminate();
    if (!fDaemon.waitForFinished(cPatience))
        fDaemon.kill();
    fDaemon.waitForFinished(cPatience);
}

BusConnection::BusConnection(const QString& address, const QString& name)
    : fName(name), fBus(QDBusConnection::connectToBus(address, name)) {}

bool TrayService::appear(bool withHost) {
    fHasHost = withHost;
    return fBus.registerObject(cTrayPath, this, QDBusConnection::ExportAllContents) &&
           fBus.registerService(cTrayService);
}

bool TrayService::disappear() {
    fBus.unregisterObject(cTrayPath);
    return fBus.unregisterService(cTrayService);
}

void TrayService::setHost(bool hasHost) {
    fHasHost = hasHost;
    if (hasHost)
        Q_EMIT StatusNotifierHostRegistered();
    else
        Q_EMIT StatusNotifierHostUnregistered();
}

} // namespace kelvo
