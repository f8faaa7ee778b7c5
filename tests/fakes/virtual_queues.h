// Queues on virtual time: nothing runs before the test says so, and nothing sleeps.
#pragma once

#include "ports/dispatch_queue.h"

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>

namespace kelvo {

/// A main queue whose clock jumps from deadline to deadline.
class VirtualMainQueue final : public DispatchQueue {
public:
    void async(Work work) override { asyncAfter(0.0, std::move(work)); }
    void asyncAfter(double seconds, Work work) override;

    /// Seconds since the start of the test, exact to the nanosecond.
    double now() const;

    /// Runs what is due within `seconds` from now, what that work posts included, in order; the
    /// clock stands at the end of the span afterwards.
    void advance(double seconds);

    /// Runs what is due now.
    void runDue() { advance(0.0); }

    /// Whether nothing waits.
    bool idle() const;

    /// Seconds until the next work is due; the queue must not be idle.
    double nextDelay() const;

private:
    using Nanoseconds = std::int64_t;
    mutable std::mutex fMutex;
    Nanoseconds fNow = 0;
    std::uint64_t fPosted = 0;
    std::map<std::pair<Nanoseconds, std::uint64_t>, Work> fWaiting;
};

/// A background queue that keeps its work until told to run it, on the calling thread.
class ManualBackgroundQueue final : public BackgroundQueue {
public:
    void async(Work work) override {
        if (work)
            fWaiting.push_back(std::move(work));
    }

    std::size_t size() const { return fWaiting.size(); }

    /// Runs the oldest item; false when there is none.
    bool runOne();

    /// Runs everything, what that work posts included.
    void runAll();

private:
    std::deque<Work> fWaiting;
};

} // namespace kelvo
