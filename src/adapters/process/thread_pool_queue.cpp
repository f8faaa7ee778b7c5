#include "adapters/process/thread_pool_queue.h"

#include <pthread.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace kelvo {
namespace {

void join(std::list<std::thread>& threads) {
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

ThreadPoolQueue::~ThreadPoolQueue() {
    stopAndWait();
}

void ThreadPoolQueue::async(Work work) {
    if (!work)
        return;
    std::list<std::thread> ended;
    bool taken = false;
    {
        const std::lock_guard lock(fMutex);
        if (fStopped)
            return;
        taken = fWaiting.size() >= fFree && fThreads.size() < cMostThreads && startThread(work);
        if (!taken)
            fWaiting.push_back(std::move(work));
        ended = takeEnded();
    }
    if (!taken)
        fPosted.notify_one(); // Who is woken at once wants the lock.
    join(ended);
}

void ThreadPoolQueue::stopAndWait() {
    std::deque<Work> dropped;
    std::list<std::thread> threads;
    {
        const std::lock_guard lock(fMutex);
        fStopped = true;
        dropped.swap(fWaiting);
        threads = takeEnded();
        threads.splice(threads.end(), fThreads);
        fPosted.notify_all();
    }
    join(threads);
}

std::size_t ThreadPoolQueue::threads() const {
    const std::lock_guard lock(fMutex);
    return fThreads.size();
}

void ThreadPoolQueue::work(Work first) {
    first();
    first = nullptr;
    std::unique_lock lock(fMutex);
    while (waitForWork(lock)) {
        Work next = std::move(fWaiting.front());
        fWaiting.pop_front();
        lock.unlock();
        next();
        next = nullptr;
        lock.lock();
    }
    const auto self = std::ranges::find(fThreads, std::this_thread::get_id(), &std::thread::get_id);
    if (self != fThreads.end())
        fEnded.splice(fEnded.end(), fThreads, self);
}

/// False when the thread shall end.
bool ThreadPoolQueue::waitForWork(std::unique_lock<std::mutex>& lock) {
    ++fFree;
    fPosted.wait_for(lock, fIdle, [this] { return fStopped || !fWaiting.empty(); });
    --fFree;
    return !fStopped && !fWaiting.empty();
}

/// False when no thread is to be had: the work waits for one that is there already, none of which
/// sleeps. The new one does not need the lock for its `first` work.
bool ThreadPoolQueue::startThread(const Work& first) {
    try {
        fThreads.emplace_back([this, first = first]() mutable {
            ::pthread_setname_np(::pthread_self(), "kelvo-bg");
            work(std::move(first));
        });
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

std::list<std::thread> ThreadPoolQueue::takeEnded() {
    return std::exchange(fEnded, {});
}

} // namespace kelvo
