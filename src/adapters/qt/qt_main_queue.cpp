#include "adapters/qt/qt_main_queue.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// How long work may keep the event loop from everything else before it lets it turn.
constexpr auto cTurn = 8ms;

/// Far enough to be never, near enough for every clock to count to.
constexpr double cLongestDelay = 100.0 * 365 * 24 * 3600;

std::chrono::nanoseconds delayOf(double seconds) {
    if (!(seconds > 0.0)) // NaN too
        return 0ns;
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
        std::chrono::duration<double>(std::min(seconds, cLongestDelay)));
}

} // namespace

QtMainQueue::QtMainQueue() {
    fTimer.setSingleShot(true);
    fTimer.setTimerType(Qt::PreciseTimer);
    connect(&fTimer, &QTimer::timeout, this, &QtMainQueue::runDue);
}

QtMainQueue::~QtMainQueue() {
    stop();
}

void QtMainQueue::asyncAfter(double seconds, Work work) {
    const auto deadline = Clock::now() + delayOf(seconds);
    const std::lock_guard lock(fMutex);
    if (fStopped)
        return;
    fWaiting.emplace(Place{deadline, fPosted++}, std::move(work));
    if (deadline < fWakeAt) {
        fWakeAt = deadline;
        QMetaObject::invokeMethod(this, &QtMainQueue::wakeForNext, Qt::QueuedConnection);
    }
}

void QtMainQueue::stop() {
    std::map<Place, Work> dropped; // destroyed outside the lock: work may own anything
    {
        const std::lock_guard lock(fMutex);
        fStopped = true;
        dropped.swap(fWaiting);
    }
    fTimer.stop();
}

void QtMainQueue::wakeForNext() {
    Clock::time_point next;
    {
        const std::lock_guard lock(fMutex);
        if (fWaiting.empty()) {
            fWakeAt = Clock::time_point::max();
            return;
        }
        next = fWaiting.begin()->first.first;
        fWakeAt = next;
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now());
    // Qt counts milliseconds in 32 bits; a far deadline is approached in several steps.
    fTimer.start(std::clamp<std::chrono::milliseconds>(wait, 0ms, 24h));
}

void QtMainQueue::runDue() {
    const auto begin = Clock::now();
    for (auto now = begin; now - begin < cTurn; now = Clock::now()) {
        decltype(fWaiting)::node_type next;
        {
            const std::lock_guard lock(fMutex);
            if (fWaiting.empty() || fWaiting.begin()->first.first > now)
                break;
            next = fWaiting.extract(fWaiting.begin());
            // Work may open an event loop of its own: whoever posts then must wake the timer.
            fWakeAt = Clock::time_point::max();
        }
        wakeForNext();
        next.mapped()();
    }
    wakeForNext();
}

} // namespace kelvo
