// Watchdog: keeps the program running, turns signals into reactions, ends it to be started anew.
#pragma once

#include "app/start/relaunch_decision.h"
#include "support/subscription.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace kelvo {

class Bundle;
class Console;
class DispatchQueue;
class NotificationCenter;
class SentinelLauncher;
class Signals;
class UserDefaults;

/// Posted, on any thread, when the program is about to end in order.
inline constexpr QStringView cWillTerminateNotification = u"NSApplicationWillTerminateNotification";

/// What the watchdog works with. All of it outlives the handle that `Watchdog::begin` returns.
struct WatchdogParts {
    Signals& signals;
    const Bundle& bundle; ///< holds the sentinel, the resource "watchdog"
    UserDefaults& defaults;
    Console& console;
    SentinelLauncher& sentinelLauncher;
    NotificationCenter& notifications;
    DispatchQueue& mainQueue;
    QStringList arguments; ///< the program's command line
    qint64 processIdentifier = 0;
    std::function<QDateTime()> now;       ///< the date, in UTC
    std::function<void()> terminate;      ///< asks for the orderly end and returns
    std::function<void(int)> leaveAtOnce; ///< ends the process with this status
};

/// Its state belongs to the process. Main thread, where nothing else is said. Before `begin`, and
/// after its handle has gone, every operation does nothing.
class Watchdog {
public:
    Watchdog() = delete;

    /// Hands over the parts. The end of the handle forgets everything: signals take their default
    /// course again, the sentinel runs on. A second handle while the first lives holds nothing.
    static Subscription begin(WatchdogParts parts);

    /// From now on `handler` is called on the main queue for each signal `number`. One that cannot
    /// be caught is said in the system log; its source is made all the same.
    static Subscription catchSignal(int number, std::function<void()> handler);

    /// Catches the signals 1 to 15, once: the hang-up is ignored, the request to terminate ends the
    /// program in order, all others that can be caught end it at once with their number as status.
    static void catchCrashSignals();

    /// Whether the signals 1 to 15 are caught: those reactions are then the only ones.
    static bool catchesCrashSignals();

    /// Starts the sentinel and catches the crash signals, once in the life of the process; without
    /// a sentinel says so. Before the orderly end the sentinel is told to end. Any thread; from
    /// another one than the main thread the signals are caught a moment later.
    static void keepUsRunning();

    /// Tells the sentinel to end, if there is one. Any thread.
    static void stopKeepingUsRunning();

    /// At an ordinary start clears the record of relaunches and keeps us running. After a relaunch
    /// adds to the record and keeps us running, unless `count` relaunches came within `seconds` and
    /// `escape` (may be empty) does not answer true. With a `count` of 0 every start is judged.
    static void autoRelaunchUnless(unsigned long count, double seconds,
                                   const RelaunchEscape& escape);

    /// Keeps us running, brings the settings to disk and leaves at once with status 0, for the
    /// sentinel to start the program again. Returns only if `leaveAtOnce` does.
    static void quitAndRelaunch();

private:
    class State;
    struct Present;
    static Present& present();
    static std::shared_ptr<State> current();
};

} // namespace kelvo
