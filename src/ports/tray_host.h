// TrayHost: whether the desktop has a place for tray icons.
#pragma once

#include "support/subscription.h"

#include <functional>

namespace kelvo {

/// Main thread only.
class TrayHost {
public:
    virtual ~TrayHost() = default;

    /// What is known at the moment; false until the desktop has answered. Does not block.
    virtual bool isPresent() const = 0;

    /// Calls `changed` after each change of the answer, on the main thread. It may end
    /// subscriptions, its own too. Once the subscription is gone no new call begins. A
    /// subscription may outlive the host.
    virtual Subscription observe(std::function<void()> changed) = 0;
};

} // namespace kelvo
