// QtMainQueue: the main queue on Qt's event loop.
#pragma once

#include "ports/dispatch_queue.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <mutex>

namespace kelvo {

/// Made and destroyed on the main thread. One precise timer stands for the nearest deadline; an
/// idle queue has none. Work that opens a nested event loop does not hold the rest up: it is served
/// from within that loop.
class QtMainQueue final : public QObject, public DispatchQueue {
    Q_OBJECT
public:
    QtMainQueue();
    ~QtMainQueue() override;

    void async(Work work) override { asyncAfter(0.0, std::move(work)); }
    void asyncAfter(double seconds, Work work) override;

    /// Drops what waits and whatever is posted later. Main thread.
    void stop();

private:
    using Clock = std::chrono::steady_clock;
    using Place = std::pair<Clock::time_point, std::uint64_t>;

    void runDue();
    void wakeForNext();

    std::mutex fMutex;
    std::map<Place, Work> fWaiting;
    std::uint64_t fPosted = 0;
    Clock::time_point fWakeAt = Clock::time_point::max(); // what the timer is set to
    bool fStopped = false;
    QTimer fTimer;
};

} // namespace kelvo
