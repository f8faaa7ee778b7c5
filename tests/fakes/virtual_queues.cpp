#include "fakes/virtual_queues.h"

#include <cmath>
#include <utility>

namespace kelvo {
namespace {

std::int64_t nanoseconds(double seconds) {
    return seconds > 0.0 ? static_cast<std::int64_t>(std::llround(seconds * 1e9)) : 0;
}

} // namespace

void VirtualMainQueue::asyncAfter(double seconds, Work work) {
    if (!work)
        return;
    const std::lock_guard lock(fMutex);
    fWaiting.emplace(std::pair(fNow + nanoseconds(seconds), fPosted++), std::move(work));
}

double VirtualMainQueue::now() const {
    const std::lock_guard lock(fMutex);
    return static_cast<double>(fNow) / 1e9;
}

void VirtualMainQueue::advance(double seconds) {
    std::unique_lock lock(fMutex);
    const Nanoseconds end = fNow + nanoseconds(seconds);
    while (!fWaiting.empty() && fWaiting.begin()->first.first <= end) {
        auto next = fWaiting.extract(fWaiting.begin());
        fNow = std::max(fNow, next.key().first);
        lock.unlock();
        next.mapped()();
        next = {};
        lock.lock();
    }
    fNow = end;
}

bool VirtualMainQueue::idle() const {
    const std::lock_guard lock(fMutex);
    return fWaiting.empty();
}

double VirtualMainQueue::nextDelay() const {
    const std::lock_guard lock(fMutex);
    return static_cast<double>(fWaiting.begin()->first.first - fNow) / 1e9;
}

bool ManualBackgroundQueue::runOne() {
    if (fWaiting.empty())
        return false;
    const Work work = std::move(fWaiting.front());
    fWaiting.pop_front();
    work();
    return true;
}

void ManualBackgroundQueue::runAll() {
    while (runOne()) {
    }
}

} // namespace kelvo
