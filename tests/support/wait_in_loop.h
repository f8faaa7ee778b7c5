// Waiting for a condition of something real, with the event loop running.
#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace kelvo {

/// Runs the event loop until `condition` holds; false when `seconds` have passed before.
inline bool waitInLoop(const std::function<bool()>& condition, int seconds = 20) {
    const QDeadlineTimer deadline(seconds * 1000);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

} // namespace kelvo
