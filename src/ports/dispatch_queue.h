// DispatchQueue and BackgroundQueue: where work waits and on which thread it runs.
#pragma once

#include <functional>

namespace kelvo {

using Work = std::function<void()>;

/// The main queue: one thread, the user interface's own.
class DispatchQueue {
public:
    virtual ~DispatchQueue() = default;

    /// Runs `work` on the main thread as soon as it is free. Any thread; returns at once.
    /// Counts as posted with the present moment as its deadline.
    virtual void async(Work work) = 0;

    /// Runs `work` on the main thread once `seconds` from now have passed; a delay of 0 or less
    /// is due now. Any thread; returns at once. Work runs strictly by deadline, equal deadlines
    /// in the order of posting, one item at a time. Only an item that runs an event loop of its own
    /// (a modal dialog) has others run inside it, from that loop, in the same order. Costs O(log n)
    /// of what waits. Work still waiting when the queue ends is dropped without being run. Empty
    /// work is nothing. An exception must not leave `work`.
    virtual void asyncAfter(double seconds, Work work) = 0;
};

/// The concurrent queue for blocking work: each item has a thread to itself.
class BackgroundQueue {
public:
    virtual ~BackgroundQueue() = default;

    /// Starts `work` on a background thread, in the order of posting, without waiting for
    /// earlier items to end; the queue may hold it back while very many (64) are running. Any
    /// thread; returns at once. Empty work is nothing. An exception must not leave `work`.
    virtual void async(Work work) = 0;
};

/// Runs `work` (if any) on `backgroundQueue`; once it has returned, schedules `completion` (if
/// any) on `mainQueue`, `delay` seconds from that moment. Both empty: nothing happens.
void background(BackgroundQueue& backgroundQueue, DispatchQueue& mainQueue, double delay, Work work,
                Work completion);

} // namespace kelvo
