// Signals: what the system tells the process, delivered in order on the main queue.
#pragma once

#include "support/subscription.h"

#include <functional>

namespace kelvo {

class Signals {
public:
    virtual ~Signals() = default;

    /// From now on signal `number` calls `handler` on the main thread instead of its default
    /// action, until the subscription is gone. Main thread. An empty handler or a signal that
    /// cannot be caught changes nothing.
    virtual Subscription catchSignal(int number, std::function<void()> handler) = 0;
};

} // namespace kelvo
