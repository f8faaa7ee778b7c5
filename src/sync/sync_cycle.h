// SyncCycle: runs one rsync pass after another, with a rest between them, while syncing is on.
#pragma once

#include "ports/command_runner.h"
#include "support/alert.h"
#include "support/pass_record.h"
#include "support/status_color.h"
#include "sync/pass_body.h"
#include "sync/problem_alert.h"
#include "sync/settings_watch.h"

#include <QString>

#include <atomic>
#include <functional>
#include <optional>

namespace kelvo {

class BackgroundQueue;
class Button;
class Console;
class Control;
class DispatchQueue;
class FileManager;
class RsyncCommand;
class RunningPasses;
class UserDefaults;

/// What people see and do of the cycle. The first two: any thread; they return at once.
struct CycleView {
    /// Shows `mesg`, centred when asked for; none clears the line.
    std::function<void(std::optional<QString> mesg, StatusColor color, bool docenter)>
        updateStatusMessage;
    /// Shows the self-closing alert; `completion` gets its answers on the main thread: that of a
    /// person, or cModalResponseStop when nobody answered in time, and then its own,
    /// cAlertFirstButtonReturn.
    std::function<void(const QString& message, const QString& text,
                       std::function<void(ModalResponse)> completion)>
        showProblemWithBonjourClosure;
    /// Clicked by the cycle to switch syncing off and on again.
    Button* ibStartButton = nullptr;
    /// Told on the main thread after each change of the cycle's state, but for the time that
    /// passes. May be empty.
    std::function<void()> stateChanged = {};
};

/// Where the cycle stands.
struct CycleState {
    bool passRuns = false;          ///< a pass has been begun and has not ended
    std::optional<double> nextPass; ///< seconds until the planned pass begins; missing: none is
    bool waits = false;             ///< switched on, but something is missing for a pass
};

/// Everything the cycle works with; all of it outlives the cycle.
struct SyncCycleParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    RunningPasses& passes;
    const FileManager& files;
    Console& console;
    const RsyncCommand& rsyncCommand;
    /// Asks the remote host by `run`, with ssh's connect time-out in seconds. Blocks; any thread.
    std::function<HostVerdict(qint64 timeout, const RunCommand& run)> validateRemoteHost;
    CycleView view;
    std::function<double()> seconds; ///< since any fixed moment; never goes back
};

/// A pass schedules its successor; what prefEnableScanning and prefIsScanning say is asked at the
/// start of each. There is one chain, and one pass at a time: a start during the rest takes the
/// place of the planned pass, one while a pass runs is refused. As long as the settings are not
/// known none begins: the first start that was asked for waits until they are. A pass that lacks
/// settings has no successor: the next one begins, of the kind then set, when they are there. The
/// cycle must outlive every body handed to the background queue and every block waiting on the main
/// queue: end both queues first.
class SyncCycle {
public:
    explicit SyncCycle(const SyncCycleParts& parts);
    SyncCycle(const SyncCycle&) = delete;
    SyncCycle& operator=(const SyncCycle&) = delete;

    /// Store the sender's state in prefEnableScanning and, when it is on, start a pass: of the kind
    /// prefRsyncWithSSH says, the plain one, the remote one. A sender that is no button is ignored.
    /// Main thread.
    void ibStartRSyncProcess(Control* sender);
    void ibRSyncOnce(Control* sender);
    void ibRSyncOnceBonjour(Control* sender);

    /// Start a pass between two folders of this machine, or one that pulls from the remote host,
    /// if syncing is on and no pass is in progress. Main thread; returns at once.
    void doSyncOnce();
    void doSyncOnceBonjour();

    /// Begins the planned pass now instead of later. Nothing happens unless one is planned. Main
    /// thread.
    void syncNow();

    /// Ends the pass that runs, at a person's wish; the next one comes as after any other. Main
    /// thread; returns at once.
    void cancelPass();

    CycleState state() const; ///< main thread

    /// What a click by a person does. Without a start button the program stops. Main thread.
    void clickStartButton();

    /// How many remote passes failed since launch or since the problem alert was last answered.
    /// Main thread.
    qint64 badWhoamiCount() const { return fBadWhoamiCount; }

private:
    using Start = void (SyncCycle::*)();
    enum class Permission { Granted, SwitchedOff, Busy, SettingsUnknown };
    struct Plan {
        PassKind kind = PassKind::Plain;
        double at = 0; ///< on the clock of SyncCycleParts::seconds
    };

    bool storeStateOf(Control* sender, QStringView operation);
    void startPassOfTheKindSet();
    void start(PassKind kind);
    bool isOn() const;
    Permission permissionToStart(QStringView operation) const;
    void begin(PassKind kind);
    void ended(PassKind kind, const PassEnd& end);
    void handleFailedCheck(const HostVerdict& verdict);
    void rest(PassKind kind);
    quint64 plan(PassKind kind, double delay);
    void waitForSettings(Start next);
    void lookForSettings(Start next);
    void beginOnceNothingIsMissing();
    void changed() const;
    void logInside(QStringView operation, QStringView detail) const;
    void showStatus(std::optional<QString> mesg, StatusColor color = StatusColor::Black);

    const SyncCycleParts fParts;
    const PassBody fBody;
    SettingsWatch fMissing; ///< watches as long as a pass lacks settings
    ProblemAlert fProblem;
    qint64 fBadWhoamiCount = 0;
    bool fPassRuns = false;
    std::atomic<bool> fCancelled = false; ///< the pass that runs, or is about to
    std::optional<Plan> fPlan;
    quint64 fPlanNumber = 0; ///< what was planned under another one does not come any more
    bool fWaitsForSettings = false;
};

} // namespace kelvo
