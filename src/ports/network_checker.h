// NetworkChecker: watches whether this machine has a network.
#pragma once

#include <QStringView>

namespace kelvo {

/// The notification that says what the network does, and the key of its message.
inline constexpr QStringView cNWPathMonitorNotification = u"NWPathMonitorNotification";
inline constexpr QStringView cReachabilityMessage = u"reachabilitymessage";

class NetworkChecker {
public:
    virtual ~NetworkChecker() = default;

    /// Starts to watch; a second call changes nothing. From now on each change of the network's
    /// state, the present one first, posts cNWPathMonitorNotification with a short sentence under
    /// cReachabilityMessage, on any thread. Once the checker is destroyed nothing is posted. Main
    /// thread.
    virtual void checknetwork2() = 0;
};

} // namespace kelvo
