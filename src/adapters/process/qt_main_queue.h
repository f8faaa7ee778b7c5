// QtMainQueue: the main queue on Qt's event loop.
#pragma once

#include "ports/dispatch_queue.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

class QSocketNotifier;

namespace kelvo {

/// Made, stopped and destroyed on the main thread, whose event loop serves it; not destroyed from
/// inside a work item. One kernel timer wakes the loop at the next deadline and for posts from
/// other threads; nothing ticks while nothing waits. After about 8 ms of work the event loop gets a
/// turn. The clock does not run while the machine sleeps. Work is destroyed on the main thread,
/// dropped work where it is dropped.
class QtMainQueue final : public DispatchQueue {
public:
    QtMainQueue();

    /// As `stop`.
    ~QtMainQueue() override;

    void async(Work work) override;
    void asyncAfter(double seconds, Work work) override;

    /// Drops what waits and everything posted later. Main thread.
    void stop();

private:
    using Clock = std::chrono::steady_clock;
    struct Item {
        Clock::time_point deadline;
        std::uint64_t posted;
        Work work;
    };
    static bool isLater(const Item& left, const Item& right);

    void drain();
    Work takeDue();
    void wakeAt(Clock::time_point moment);
    void setTimer(Clock::time_point moment);

    const int fTimer;
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::mutex fMutex;
    std::vector<Item> fHeap;
    std::uint64_t fPosted = 0;
    /// When the timer fires, or has fired and not been set since.
    Clock::time_point fWakeUp = Clock::time_point::max();
    bool fStopped = false;
};

} // namespace kelvo
