#include "adapters/process/local_socket.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

namespace kelvo {

std::string copyLockPath(const std::string& folder) {
    return folder + "/kelvo-mirror.lock";
}

std::optional<sockaddr_un> copySocketAddress(const std::string& folder) {
    const std::string path = folder + "/kelvo-mirror.socket";
    sockaddr_un address{};
    if (path.size() >= sizeof address.sun_path)
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    return address;
}

UniqueFd localSocket() {
    return UniqueFd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

const sockaddr* generic(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

bool isOurUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

UniqueFd connectedSocket(const sockaddr_un& address) {
    UniqueFd socket = localSocket();
    if (!socket || ::connect(socket.get(), generic(address), sizeof address) != 0 ||
        !isOurUser(socket.get()))
        return {};
    return socket;
}

} // namespace kelvo
