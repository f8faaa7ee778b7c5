// SocketFolder: a folder of this user's own in which a socket may lie.
#pragma once

#include "adapters/system/unique_fd.h"

#include <string>

namespace kelvo {

/// Made new, with mode 0700, in the folder for what lives only for a while; removed with what lies
/// in it when it goes. What a program that was killed has left there is removed as well: the folder
/// is locked as long as it is in use. Any thread.
class SocketFolder {
public:
    /// `name` is the longest that a socket in it may have.
    explicit SocketFolder(std::size_t name);
    ~SocketFolder();
    SocketFolder(const SocketFolder&) = delete;
    SocketFolder& operator=(const SocketFolder&) = delete;

    /// Empty when it could not be made, or the names of sockets would be too long in it.
    const std::string& path() const { return fPath; }

private:
    std::string fPath;
    UniqueFd fLock;
};

} // namespace kelvo
