// SettingsWatch: tells when one of the settings that passes need has changed.
#pragma once

#include "support/subscription.h"

#include <atomic>
#include <functional>
#include <vector>

namespace kelvo {

class DispatchQueue;
class UserDefaults;

/// Main thread; settings may change on any thread. The main queue must have ended before the watch
/// goes: what waits there belongs to it.
class SettingsWatch {
public:
    SettingsWatch(UserDefaults& defaults, DispatchQueue& mainQueue, std::function<void()> changed);

    /// From now on `changed` is called on the main thread half a second after the first of some
    /// changes, once for them all.
    void begin();
    void end() { fWatched.clear(); }
    bool watches() const { return !fWatched.empty(); }

private:
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    const std::function<void()> fChanged;
    std::vector<Subscription> fWatched;
    std::atomic<bool> fTold = false; ///< a call of `changed` is on its way
};

} // namespace kelvo
