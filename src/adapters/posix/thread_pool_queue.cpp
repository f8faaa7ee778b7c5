#include "adapters/posix/thread_pool_queue.h"

#include <pthread.h>

#include <utility>

namespace kelvo {
namespace {

constexpr std::size_t cMaxThreads = 64;

} // namespace

ThreadPoolQueue::~ThreadPoolQueue() {
    stopAndWait();
}

void ThreadPoolQueue::async(Work work) {
    const std::lock_guard lock(fMutex);
    if (fStopped)
        return;
    fWaiting.push_back(std::move(work));
    if (fFree < fWaiting.size() && fThreads.size() < cMaxThreads)
        fThreads.emplace_back([this] { serve(); });
    fWake.notify_one();
}

void ThreadPoolQueue::stopAndWait() {
    std::vector<std::thread> threads;
    std::deque<Work> dropped; // destroyed outside the lock: work may own anything
    {
        const std::lock_guard lock(fMutex);
        fStopped = true;
        threads.swap(fThreads);
        dropped.swap(fWaiting);
    }
    fWake.notify_all();
    for (std::thread& thread : threads)
        thread.join();
}

void ThreadPoolQueue::serve() {
    ::pthread_setname_np(::pthread_self(), "kelvo-pass");
    std::unique_lock lock(fMutex);
    for (;;) {
        ++fFree;
        fWake.wait(lock, [this] { return fStopped || !fWaiting.empty(); });
        --fFree;
        if (fStopped)
            return;
        Work work = std::move(fWaiting.front());
        fWaiting.pop_front();
        lock.unlock();
        work();
        work = nullptr;
        lock.lock();
    }
}

} // namespace kelvo
