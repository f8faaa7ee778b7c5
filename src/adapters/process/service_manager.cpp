#include "adapters/process/service_manager.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

namespace kelvo {
namespace {

constexpr double cMicroseconds = 1e6;

QByteArray taken(const char* variable) {
    QByteArray value = qgetenv(variable);
    qunsetenv(variable);
    return value;
}

/// Empty for a name that is no address of a local socket, or does not fit into one.
QByteArray addressOf(const QByteArray& name) {
    sockaddr_un address{};
    const auto size = static_cast<std::size_t>(name.size());
    const bool named = name.size() > 1 && (name[0] == '/' || name[0] == '@');
    if (!named || size >= sizeof address.sun_path)
        return {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.constData(), size);
    std::size_t length = offsetof(sockaddr_un, sun_path) + size;
    if (name[0] == '@')
        address.sun_path[0] = '\0';
    else
        ++length;
    return {reinterpret_cast<const char*>(&address), static_cast<qsizetype>(length)};
}

} // namespace

ServiceManager::ServiceManager() : fAddress(addressOf(taken("NOTIFY_SOCKET"))) {
    const QByteArray watched = taken("WATCHDOG_PID");
    const qint64 patience = taken("WATCHDOG_USEC").toLongLong();
    if (fAddress.isEmpty())
        return;
    fSocket = UniqueFd(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (fSocket && patience > 0 && (watched.isEmpty() || watched.toLongLong() == ::getpid()))
        fWatchdogSeconds = static_cast<double>(patience) / cMicroseconds;
}

void ServiceManager::tell(QByteArrayView state) const {
    if (!fSocket)
        return;
    (void)::sendto(fSocket.get(), state.data(), static_cast<std::size_t>(state.size()),
                   MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(fAddress.constData()),
                   static_cast<socklen_t>(fAddress.size()));
}

} // namespace kelvo
