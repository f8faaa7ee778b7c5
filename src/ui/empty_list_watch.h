// EmptyListWatch: why a list of Macs is empty, and new scans while that is about to change.
#pragma once

#include "ports/dnssd_browser.h"

#include <functional>
#include <memory>

namespace kelvo {

class DispatchQueue;

enum class WhyEmpty {
    NothingFound,
    StillLooking, ///< discovery has come only now
    NoNetwork,
    DiscoveryNotRunning,
    DiscoveryNotInstalled,
};

/// Once a discovery service that was away is there, scans until something is found, a few times.
/// Main thread only.
class EmptyListWatch {
public:
    struct Parts {
        DispatchQueue& mainQueue;
        DnssdBrowser& browser;
        std::function<bool()> hasNetwork; ///< cheap: asked whenever `why` is
        std::function<bool()> isEmpty;    ///< the list
        std::function<void()> scan;       ///< begins a scan, which takes up to 2 s
        std::function<void()> changed;    ///< the reason may be another one now
    };

    /// All of it outlives this; nothing is called once this is gone.
    explicit EmptyListWatch(Parts parts);

    /// Begins to watch; calls `changed` at once where discovery is known to be away.
    void begin();

    WhyEmpty why() const;

private:
    void heard(DiscoveryState state);
    void scanAgain();

    const Parts fParts;
    DiscoveryState fState = DiscoveryState::Unknown;
    int fScansLeft = 0;
    std::shared_ptr<int> fAlive = std::make_shared<int>();
    Subscription fObservation;
};

} // namespace kelvo
