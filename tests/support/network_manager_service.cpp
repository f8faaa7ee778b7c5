#include "support/network_manager_service.h"

namespace kelvo {
namespace {

const QString cName = QStringLiteral("org.freedesktop.NetworkManager");
const QString cPlace = QStringLiteral("/org/freedesktop/NetworkManager");

} // namespace

bool NetworkManagerService::appear() {
    return fBus.registerObject(cPlace, this,
                               QDBusConnection::ExportAllProperties |
                                   QDBusConnection::ExportAllSignals) &&
           fBus.registerService(cName);
}

bool NetworkManagerService::disappear() {
    fBus.unregisterObject(cPlace);
    return fBus.unregisterService(cName);
}

void NetworkManagerService::setState(uint state) {
    fState = state;
    Q_EMIT StateChanged(state);
}

} // namespace kelvo
