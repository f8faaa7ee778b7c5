// NetworkReachSource: somebody on this machine who knows how far it sees.
#pragma once

#include <optional>

namespace kelvo {

/// How far this machine sees.
enum class NetworkReach { Unknown, NothingBeyond, LocalOnly, Beyond };

/// Main thread only.
class NetworkReachSource {
public:
    virtual ~NetworkReachSource() = default;

    /// Nothing as long as it has told nothing. Does not wait.
    virtual std::optional<NetworkReach> reach() const = 0;
};

} // namespace kelvo
