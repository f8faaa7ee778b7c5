// RepeatingTimer: calls its handler at a fixed interval while it is not suspended.
#pragma once

#include <functional>
#include <memory>

namespace kelvo {

class DispatchQueue;

/// Main thread only. Made suspended; a suspended timer leaves nothing waiting that does any work.
class RepeatingTimer {
public:
    /// `interval` in seconds, above 0. `eventHandler` runs on the main queue and may suspend or
    /// destroy the timer.
    RepeatingTimer(DispatchQueue& mainQueue, double interval, std::function<void()> eventHandler);
    ~RepeatingTimer();
    RepeatingTimer(const RepeatingTimer&) = delete;
    RepeatingTimer& operator=(const RepeatingTimer&) = delete;

    /// The first call comes one interval from now. Resuming a running timer changes nothing.
    void resume();

    /// No call comes before the next `resume`. Suspending a suspended timer changes nothing.
    void suspend();

private:
    struct State;
    std::shared_ptr<State> fState;
};

} // namespace kelvo
