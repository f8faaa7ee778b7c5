// SingleCopySocket: the one copy holds a lock, and listens on a local socket for later ones.
#pragma once

#include "ports/single_copy.h"

#include <chrono>
#include <memory>
#include <string>

namespace kelvo {

class Console;

/// The kernel lets go of the lock however the process ends, so what a dead copy left lying about
/// is no hindrance. Only programs of the same user are listened to; anything but the one request
/// ends the connection and does nothing. Child processes do not inherit the lock.
class SingleCopySocket final : public SingleCopy {
public:
    /// Lock and socket are "kelvo-mirror.lock" and "kelvo-mirror.socket" in `folder`, which is made
    /// when it is missing. Where that fails, or another user could write there, every claim is
    /// Unguarded. Where the path is too long for a socket the lock holds all the same. A claim that
    /// finds another copy waits `patience` for it.
    SingleCopySocket(std::string folder, Console& console,
                     std::chrono::milliseconds patience = std::chrono::seconds(5));

    /// Stops listening and gives the place up.
    ~SingleCopySocket() override;

    /// A token of more than 255 bytes, or of others than visible ASCII, is none.
    Claim claim(const QByteArray& token, Show show) override;

    /// Whether a copy holds the lock in `folder` at the moment. Makes and changes nothing; any
    /// thread. A copy that looks for the lock in the same moment tries again a moment later.
    static bool isClaimed(const std::string& folder);

private:
    class Listener;

    const std::string fFolder;
    Console& fConsole;
    const std::chrono::milliseconds fPatience;
    std::unique_ptr<Listener> fListener;
};

} // namespace kelvo
