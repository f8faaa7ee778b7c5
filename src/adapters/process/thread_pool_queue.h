// ThreadPoolQueue: the background queue on threads of its own.
#pragma once

#include "ports/dispatch_queue.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <list>
#include <mutex>
#include <thread>

namespace kelvo {

/// Grows by a thread whenever work finds none free, up to 64; beyond that work waits for the first
/// free one. A thread without work for about 10 s ends. Threads are named "kelvo-bg". They run at
/// the usual priority: commands started from them would inherit a lower one.
class ThreadPoolQueue final : public BackgroundQueue {
public:
    static constexpr std::size_t cMostThreads = 64;
    static constexpr std::chrono::milliseconds cIdle{10000};

    explicit ThreadPoolQueue(std::chrono::milliseconds idle = cIdle) : fIdle(idle) {}

    /// As `stopAndWait`.
    ~ThreadPoolQueue() override;

    void async(Work work) override;

    /// Drops the work that waits and all that is posted later, and returns once the work that runs
    /// has returned. Any thread but the pool's own; calling it again does nothing.
    void stopAndWait();

    /// How many threads there are.
    std::size_t threads() const;

private:
    void work(Work first);
    bool waitForWork(std::unique_lock<std::mutex>& lock);
    bool startThread(const Work& first);
    /// The threads that have ended by themselves, for joining outside the lock.
    std::list<std::thread> takeEnded();

    const std::chrono::milliseconds fIdle;
    mutable std::mutex fMutex;
    std::condition_variable fPosted;
    std::deque<Work> fWaiting;
    std::list<std::thread> fThreads;
    std::list<std::thread> fEnded;
    std::size_t fFree = 0;
    bool fStopped = false;
};

} // namespace kelvo
