// KeyState: what is known of the program's ssh key.
#pragma once

namespace kelvo {

enum class KeyState {
    NoKey,       ///< one half of the pair is missing, or both are
    HostUnset,   ///< there is a key, but no host or no user to ask
    NotAsked,    ///< there is a key; this host has not been asked yet
    Asking,      ///< the host is being asked
    Accepted,    ///< the host let the user in
    NotAccepted, ///< it did not, for whatever reason
    HostAway,    ///< there is no such host on the network, so that nobody knows
};

} // namespace kelvo
