#include "app/start/watchdog.h"

#include "ports/bundle.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/sentinel_launcher.h"
#include "ports/signals.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/notification_center.h"
#include "support/system_error_text.h"

#include <atomic>
#include <csignal>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cSentinelName = u"watchdog";
constexpr QStringView cAutorelaunched = u"--autorelaunched";

constexpr int cLastCrashSignal = 15;

QString description(int signal) {
    return QString::fromLocal8Bit(::strsignal(signal)); // NOLINT: a buffer for each thread
}

} // namespace

class Watchdog::State : public std::enable_shared_from_this<State> {
public:
    explicit State(WatchdogParts parts)
        : fParts(std::move(parts)), fMainThread(std::this_thread::get_id()) {}

    Subscription catchSignal(int number, std::function<void()> handler) {
        int error = 0;
        Subscription source = fParts.signals.catchSignal(number, std::move(handler), error);
        if (error != 0)
            fParts.console.log(QStringLiteral("tried to ignore %1 but got '%2'")
                                   .arg(description(number), systemErrorText(error)));
        return source;
    }

    void catchCrashSignals() {
        if (fSignalSources)
            return;
        fSignalSources.emplace();
        for (int number = 1; number <= cLastCrashSignal; ++number) {
            if (number != SIGKILL)
                fSignalSources->emplace(QString::number(number),
                                        catchSignal(number, reaction(number)));
        }
    }

    bool catchesCrashSignals() const { return fSignalSources.has_value(); }

    void keepUsRunning() {
        std::call_once(fKeepOnce, [this] {
            fKept = true;
            const auto path = fParts.bundle.pathForResource(cSentinelName.toString(), QString());
            if (path && fParts.sentinelLauncher.isExecutable(*path))
                watch(*path);
            else
                fParts.console.log(
                    QStringLiteral("missing %1! Unexpected termination will not be monitored.")
                        .arg(cSentinelName));
            stopBeforeTheEnd();
        });
    }

    void stopKeepingUsRunning() {
        const std::lock_guard lock(fMutex);
        if (fTaskWatchdog)
            fTaskWatchdog->terminate();
    }

    void autoRelaunchUnless(unsigned long count, double seconds, const RelaunchEscape& escape) {
        const QDateTime now = fParts.now();
        if (isOrdinaryStart(count, fParts.arguments.contains(cAutorelaunched))) {
            fParts.defaults.removeObject(prefRecentLaunchDates);
            if (forgetGivingUp())
                fParts.console.log(
                    QStringLiteral("relaunching was given up before this start by hand; unexpected "
                                   "termination is monitored again"));
            keepUsRunning();
            return;
        }
        fParts.console.log(
            QStringLiteral("automatically relaunched due to unexpected termination"));
        const RelaunchDecision decision = decideRelaunch(
            fParts.defaults.object(prefRecentLaunchDates), count, seconds, escape, now);
        if (decision.line)
            fParts.console.log(*decision.line);
        fParts.defaults.setObject(prefRecentLaunchDates, decision.record);
        // The next end may come at once.
        fParts.defaults.synchronize();
        if (!decision.keepRunning) {
            // A later set-up in the same run leaves the sentinel of the first alone.
            if (!fKept)
                fParts.defaults.setObject(prefRelaunchGivenUp, true);
            return;
        }
        (void)forgetGivingUp();
        keepUsRunning();
    }

    void quitAndRelaunch() {
        keepUsRunning();
        // The store's own thread ends with the process, whatever it has not written yet.
        fParts.defaults.synchronize();
        fParts.leaveAtOnce(0);
    }

private:
    std::function<void()> reaction(int number) {
        switch (number) {
        case SIGHUP:
            return [this, number] { said(number, "ignoring"); };
        case SIGTERM:
            return [this, number] {
                said(number, "terminating");
                fParts.terminate();
            };
        default:
            return [this, number] { fParts.leaveAtOnce(number); };
        }
    }

    void said(int number, const char* what) {
        fParts.console.log(QStringLiteral("Caught %1 ... %2.")
                               .arg(description(number), QString::fromLatin1(what)));
    }

    void watch(const QString& path) {
        auto task = fParts.sentinelLauncher.launch(
            path, {QString::number(fParts.processIdentifier)},
            [&console = fParts.console](int exitCode) {
                console.log(QStringLiteral("%1 has terminated with exit code %2")
                                .arg(cSentinelName)
                                .arg(exitCode));
            });
        {
            const std::lock_guard lock(fMutex);
            fTaskWatchdog = std::move(task);
        }
        if (std::this_thread::get_id() == fMainThread)
            catchCrashSignals();
        else
            fParts.mainQueue.async([state = weak_from_this()] {
                if (const auto alive = state.lock())
                    alive->catchCrashSignals();
            });
    }

    /// The observer drops itself after its one call.
    void stopBeforeTheEnd() {
        auto handler = [state = weak_from_this()](const Notification&) {
            const auto alive = state.lock();
            if (!alive)
                return;
            alive->stopKeepingUsRunning();
            Subscription done;
            const std::lock_guard lock(alive->fMutex);
            done = std::move(alive->fWillTerminate);
        };
        Subscription observer =
            fParts.notifications.observe(cWillTerminateNotification.toString(), std::move(handler));
        const std::lock_guard lock(fMutex);
        fWillTerminate = std::move(observer);
    }

    bool forgetGivingUp() {
        if (!fParts.defaults.object(prefRelaunchGivenUp).isValid())
            return false;
        fParts.defaults.removeObject(prefRelaunchGivenUp);
        return true;
    }

    const WatchdogParts fParts;
    const std::thread::id fMainThread;
    std::once_flag fKeepOnce;
    std::atomic<bool> fKept = false; ///< whether the one turn of keepUsRunning has been taken
    std::optional<std::map<QString, Subscription>> fSignalSources;
    std::mutex fMutex; ///< for what follows
    std::optional<SentinelTask> fTaskWatchdog;
    Subscription fWillTerminate;
};

struct Watchdog::Present {
    std::mutex mutex;
    std::shared_ptr<State> state;
};

Watchdog::Present& Watchdog::present() {
    static Present only;
    return only;
}

std::shared_ptr<Watchdog::State> Watchdog::current() {
    const std::lock_guard lock(present().mutex);
    return present().state;
}

Subscription Watchdog::begin(WatchdogParts parts) {
    const std::lock_guard lock(present().mutex);
    if (present().state)
        return {};
    present().state = std::make_shared<State>(std::move(parts));
    return Subscription([] {
        const auto ended = [] {
            const std::lock_guard guard(present().mutex);
            return std::exchange(present().state, nullptr);
        }();
    });
}

Subscription Watchdog::catchSignal(int number, std::function<void()> handler) {
    const auto state = current();
    return state ? state->catchSignal(number, std::move(handler)) : Subscription();
}

void Watchdog::catchCrashSignals() {
    if (const auto state = current())
        state->catchCrashSignals();
}

bool Watchdog::catchesCrashSignals() {
    const auto state = current();
    return state && state->catchesCrashSignals();
}

void Watchdog::keepUsRunning() {
    if (const auto state = current())
        state->keepUsRunning();
}

void Watchdog::stopKeepingUsRunning() {
    if (const auto state = current())
        state->stopKeepingUsRunning();
}

void Watchdog::autoRelaunchUnless(unsigned long count, double seconds,
                                  const RelaunchEscape& escape) {
    if (const auto state = current())
        state->autoRelaunchUnless(count, seconds, escape);
}

void Watchdog::quitAndRelaunch() {
    if (const auto state = current())
        state->quitAndRelaunch();
}

} // namespace kelvo
