// ViewController: the controller of the main window, without any widget.
#pragma once

#include "ports/user_defaults.h"
#include "remote/remote_host_validation.h"
#include "sync/repeat_timer_actions.h"
#include "sync/rsync_command.h"
#include "sync/sample_path.h"
#include "sync/sync_cycle.h"
#include "ui/alerts.h"
#include "ui/status_line.h"

#include <memory>
#include <vector>

namespace kelvo {

class AlertPresenter;
class BackgroundQueue;
class Button;
class Console;
class Control;
class DispatchQueue;
class FileManager;
class ShellRunner;
class StatusField;

/// What the controller works with; all of it outlives the controller.
struct ViewControllerParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    ShellRunner& shell;
    FileManager& files;
    Console& console;
    AlertPresenter& alertPresenter;
    Button& ibStartButton;
    std::weak_ptr<StatusField> ibStatusTextField;
};

/// Main thread only; settings may change on any thread. Both queues must have ended before the
/// controller is destroyed: what waits there belongs to it.
class ViewController {
public:
    explicit ViewController(const ViewControllerParts& parts);

    /// Sets everything going: syncing off, settings observed, the delayed steps of the set-up
    /// scheduled. Called once.
    void viewDidLoad();

    void ibStartRSyncProcess(Control* sender) { fSyncCycle.ibStartRSyncProcess(sender); }
    void ibRSyncOnce(Control* sender) { fSyncCycle.ibRSyncOnce(sender); }
    void ibRSyncOnceBonjour(Control* sender) { fSyncCycle.ibRSyncOnceBonjour(sender); }
    void ibSuspendTimer(Control*) { fRepeatTimer.ibSuspendTimer(); }
    void ibResumeTimer(Control*) { fRepeatTimer.ibResumeTimer(); }
    void ibKillTimer(Control*) { fRepeatTimer.ibKillTimer(); }

    /// Sets the start button's title from its state and the kind of pass, later on the main queue.
    void updateStartButton();

    /// Stores the template with its option filled in, for display.
    void ibUpdateTabViewItem();

    Alerts& alerts() { return fAlerts; }

private:
    void observe(QStringView key);
    void observeValue(const DefaultsChange& change);
    std::function<void()> reactionTo(const DefaultsChange& change);
    void showRunning(bool isRunning);
    void setUsesSSH(bool usesSSH);
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const ViewControllerParts fParts;
    StatusLine fStatusLine;
    Alerts fAlerts;
    RsyncCommand fRsyncCommand;
    SamplePath fSamplePath;
    RemoteHostValidation fHostValidation;
    SyncCycle fSyncCycle;
    RepeatTimerActions fRepeatTimer;
    bool fUsesSSH;
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
