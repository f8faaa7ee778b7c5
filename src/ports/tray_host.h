// TrayHost: which place the desktop has for tray icons.
#pragma once

#include "support/subscription.h"

#include <functional>

namespace kelvo {

enum class TrayKind {
    None,
    Bus, ///< a panel that takes items over the session bus
    X11, ///< a window that takes icons as windows; told of only where there is no panel
};

/// Main thread only.
class TrayHost {
public:
    virtual ~TrayHost() = default;

    /// What is known at the moment; None until the desktop has answered. Does not block.
    virtual TrayKind kind() const = 0;
    bool isPresent() const { return kind() != TrayKind::None; }

    /// Calls `changed` after each change of the answer, on the main thread. It may end
    /// subscriptions, its own too. Once the subscription is gone no new call begins. A
    /// subscription may outlive the host.
    virtual Subscription observe(std::function<void()> changed) = 0;
};

} // namespace kelvo
