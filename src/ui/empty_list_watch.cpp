#include "ui/empty_list_watch.h"

#include "ports/dispatch_queue.h"

#include <utility>

namespace kelvo {
namespace {

/// A service that has just come asks around for some seconds before it knows what there is.
constexpr int cScans = 5;
constexpr double cScanPause = 2.5;

bool isAway(DiscoveryState state) {
    return state == DiscoveryState::NotRunning || state == DiscoveryState::NotInstalled;
}

} // namespace

EmptyListWatch::EmptyListWatch(Parts parts) : fParts(std::move(parts)) {}

void EmptyListWatch::begin() {
    fObservation = fParts.browser.observeState([this](DiscoveryState state) { heard(state); });
}

WhyEmpty EmptyListWatch::why() const {
    if (fState == DiscoveryState::NotInstalled)
        return WhyEmpty::DiscoveryNotInstalled;
    if (fState == DiscoveryState::NotRunning)
        return WhyEmpty::DiscoveryNotRunning;
    if (!fParts.hasNetwork())
        return WhyEmpty::NoNetwork;
    return fScansLeft > 0 ? WhyEmpty::StillLooking : WhyEmpty::NothingFound;
}

void EmptyListWatch::heard(DiscoveryState state) {
    const bool wasAway = isAway(std::exchange(fState, state));
    if (isAway(state)) {
        fScansLeft = 0;
    } else if (wasAway) {
        fScansLeft = cScans;
        scanAgain();
    }
    fParts.changed();
}

void EmptyListWatch::scanAgain() {
    fParts.scan();
    fParts.mainQueue.asyncAfter(cScanPause, [this, alive = std::weak_ptr(fAlive)] {
        if (alive.expired() || fScansLeft == 0)
            return;
        fScansLeft = fParts.isEmpty() ? fScansLeft - 1 : 0;
        if (fScansLeft > 0)
            scanAgain();
        fParts.changed();
    });
}

} // namespace kelvo
