// What both ends of the running copy's socket share.
#pragma once

#include "adapters/system/unique_fd.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <optional>
#include <string>

namespace kelvo {

/// Where the copy that has its place in `folder` keeps its lock and listens.
std::string copyLockPath(const std::string& folder);

/// The same for its socket; nothing where the path is too long for one.
std::optional<sockaddr_un> copySocketAddress(const std::string& folder);

/// One that never blocks and that no child inherits; none when errno says why.
UniqueFd localSocket();

/// As the calls of the system take it.
const sockaddr* generic(const sockaddr_un& address);

/// Whether the program at the other end belongs to this process's user.
bool isOurUser(int socket);

/// A connection to a copy of this user; none where nobody listens or too many wait already.
UniqueFd connectedSocket(const sockaddr_un& address);

} // namespace kelvo
