#include "adapters/process/qt_main_queue.h"

#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr auto cTurn = 8ms;
/// Beyond this a delay is for ever: about a century.
constexpr double cLongestSeconds = 3e9;

std::chrono::nanoseconds duration(double seconds) {
    if (!(seconds > 0.0))
        return 0ns;
    return std::chrono::nanoseconds(std::llround(std::min(seconds, cLongestSeconds) * 1e9));
}

} // namespace

QtMainQueue::QtMainQueue()
    : fTimer(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)),
      fNotifier(std::make_unique<QSocketNotifier>(fTimer, QSocketNotifier::Read)) {
    QObject::connect(fNotifier.get(), &QSocketNotifier::activated, fNotifier.get(),
                     [this] { drain(); });
}

QtMainQueue::~QtMainQueue() {
    stop();
    fNotifier.reset();
    ::close(fTimer);
}

void QtMainQueue::async(Work work) {
    asyncAfter(0.0, std::move(work));
}

void QtMainQueue::asyncAfter(double seconds, Work work) {
    if (!work)
        return;
    const auto delay = duration(seconds);
    std::unique_lock lock(fMutex);
    if (fStopped)
        return;
    const auto deadline = Clock::now() + delay;
    fHeap.push_back({deadline, fPosted++, std::move(work)});
    std::ranges::push_heap(fHeap, isLater);
    if (deadline >= fWakeUp)
        return;
    fWakeUp = deadline;
    // Who is woken at once wants the lock. Too early a wake-up, should another have come between,
    // is set right by the round that it begins.
    if (delay == 0ns)
        lock.unlock();
    setTimer(deadline);
}

void QtMainQueue::stop() {
    std::vector<Item> dropped; // Ends after the lock is gone: it may hold anything.
    const std::lock_guard lock(fMutex);
    fStopped = true;
    dropped.swap(fHeap);
    wakeAt(Clock::time_point::max());
}

bool QtMainQueue::isLater(const Item& left, const Item& right) {
    return left.deadline != right.deadline ? left.deadline > right.deadline
                                           : left.posted > right.posted;
}

/// The timer stays fired while work runs, so that an event loop inside a work item comes here at
/// once and goes on with the rest; it is set anew when a round ends.
void QtMainQueue::drain() {
    const auto end = Clock::now() + cTurn;
    do {
        const Work work = takeDue();
        if (!work)
            break;
        work();
    } while (Clock::now() < end);

    const std::lock_guard lock(fMutex);
    wakeAt(fHeap.empty() ? Clock::time_point::max() : fHeap.front().deadline);
}

Work QtMainQueue::takeDue() {
    const std::lock_guard lock(fMutex);
    if (fHeap.empty() || fHeap.front().deadline > Clock::now())
        return nullptr;
    std::ranges::pop_heap(fHeap, isLater);
    Work work = std::move(fHeap.back().work);
    fHeap.pop_back();
    return work;
}

void QtMainQueue::wakeAt(Clock::time_point moment) {
    fWakeUp = moment;
    setTimer(moment);
}

void QtMainQueue::setTimer(Clock::time_point moment) {
    itimerspec setting{};
    if (moment != Clock::time_point::max()) {
        const auto sinceStart = moment.time_since_epoch();
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(sinceStart);
        setting.it_value.tv_sec = seconds.count();
        setting.it_value.tv_nsec = (sinceStart - seconds).count();
    }
    ::timerfd_settime(fTimer, TFD_TIMER_ABSTIME, &setting, nullptr);
}

} // namespace kelvo
