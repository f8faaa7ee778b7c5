// ThreadPoolQueue: the background queue, with a thread for each blocked item.
#pragma once

#include "ports/dispatch_queue.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace kelvo {

/// Threads are made when work finds none free, up to 64, and kept; a free thread waits without
/// waking.
class ThreadPoolQueue final : public BackgroundQueue {
public:
    ThreadPoolQueue() = default;
    ~ThreadPoolQueue() override;
    ThreadPoolQueue(const ThreadPoolQueue&) = delete;
    ThreadPoolQueue& operator=(const ThreadPoolQueue&) = delete;

    void async(Work work) override;

    /// Work that has begun runs to its end, work that waits or comes later is dropped. Blocks until
    /// every thread has ended. Not from a background thread.
    void stopAndWait();

private:
    void serve();

    std::mutex fMutex;
    std::condition_variable fWake;
    std::deque<Work> fWaiting;
    std::vector<std::thread> fThreads;
    std::size_t fFree = 0;
    bool fStopped = false;
};

} // namespace kelvo
