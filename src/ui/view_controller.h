// ViewController: the controller of the main window, without any widget.
#pragma once

#include "discovery/bonjour_selection.h"
#include "discovery/network_path_monitoring.h"
#include "engine/engine.h"
#include "ports/control.h"
#include "ports/user_defaults.h"
#include "remote/command_files.h"
#include "remote/connection_check.h"
#include "remote/remote_task.h"
#include "remote/smb_share_access.h"
#include "remote/ssh_key_provisioning.h"
#include "sync/repeat_timer_actions.h"
#include "ui/alert_tap.h"
#include "ui/alerts.h"
#include "ui/command_example.h"
#include "ui/folder_selection.h"
#include "ui/interface_controllers.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/key_replacement.h"
#include "ui/outlets.h"
#include "ui/reveal_button_watchers.h"
#include "ui/start_button_title.h"
#include "ui/status_line.h"
#include "ui/terminal_notice.h"
#include "ui/work_watch.h"

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

class Bundle;
class DnssdBrowser;
class MainWindowController;
class NetworkChecker;
class NotificationCenter;
class PassStore;
class ShareCommands;
class StatusMenuPresence;
class Workspace;

/// What the controller works with; all of it outlives the controller.
struct ViewControllerParts {
    EngineParts engine;
    Outlets outlets;
    PassStore& passStore;
    NotificationCenter& notificationCenter;
    const Bundle& bundle;
    std::function<void()> quitAndRelaunch; ///< ends the program and has it started again
    Workspace& workspace;
    DnssdBrowser& dnssdBrowser;
    std::function<std::unique_ptr<NetworkChecker>()> makeKelvoSSID;
    StatusMenuPresence& statusMenu;
    const ShareCommands& shareCommands;
    /// How much later than after a second syncing starts by itself, in seconds.
    double firstPassDelay = 0;
    /// The controller of the view's window; nothing as long as there is none.
    std::function<MainWindowController*()> windowController;
    /// For somebody who follows from elsewhere: told after each look at the work, of each status
    /// message and of each alert. Each may be empty.
    std::function<void()> workLooked = {};
    std::function<void(const AttributedString&)> messageShown = {};
    std::function<void(const Alert&)> alertShown = {};
};

/// A tab that is about to be shown.
struct TabViewItem {
    QString label;
    std::optional<QString> identifier;
};

/// Main thread only; settings may change on any thread. Both queues must have ended before the
/// controller is destroyed: what waits there belongs to it.
class ViewController final : public MainViewController {
public:
    explicit ViewController(const ViewControllerParts& parts);

    /// Sets everything going: syncing off, settings observed, the delayed steps of the set-up
    /// scheduled. Called once.
    void viewDidLoad() override;

    QString description() const override;

    // The start button and its kin.
    void ibStartRSyncProcess(Control* sender) { fEngine.syncCycle.ibStartRSyncProcess(sender); }
    void ibRSyncOnce(Control* sender) { fEngine.syncCycle.ibRSyncOnce(sender); }
    void ibRSyncOnceBonjour(Control* sender) { fEngine.syncCycle.ibRSyncOnceBonjour(sender); }
    void ibSyncNow(Control*) { fEngine.syncCycle.syncNow(); }
    void ibCancelPass(Control*) { fEngine.syncCycle.cancelPass(); }
    void ibSuspendTimer(Control*) { fRepeatTimer.ibSuspendTimer(); }
    void ibResumeTimer(Control*) { fRepeatTimer.ibResumeTimer(); }
    void ibKillTimer(Control*) { fRepeatTimer.ibKillTimer(); }

    // Folders.
    void ibSelectFolder1Action(Control* sender) { fFolders.ibSelectFolder1Action(sender); }
    void ibSelectFolder2Action(Control* sender) { fFolders.ibSelectFolder2Action(sender); }
    void ibRevealSourcePath(Control* sender) { fFolders.ibRevealSourcePath(sender); }
    void ibRevealDestPath(Control* sender) { fFolders.ibRevealDestPath(sender); }
    void ibRevealInFinderAction(Control* sender) { fFolders.ibRevealInFinderAction(sender); }
    void ibAction1(Control* sender) { fFolders.ibAction1(sender); }
    void ibOpenTempFolder(Control* sender) { fFolders.ibOpenTempFolder(sender); }

    // The network.
    void ibSelectSourceByBonjor(Control*) { fBonjour.ibSelectSourceByBonjor(); }
    void ibSelectDestByBonjor(Control*) { fBonjour.ibSelectDestByBonjor(); }
    void ibSearchBonjour(Control*) { fBonjour.ibSearchBonjour(); }
    void ibShowBonjourListInfo(Control*) { fBonjour.ibShowBonjourListInfo(); }
    void ibTestNWBrowser(Control* sender) { fNetwork.ibTestNWBrowser(sender); }

    // The remote side.
    void ibTestShellCommand(Control*) { fConnectionTest.ibTestShellCommand(); }
    void ibTestShellCommand222(Control*) { fConnectionTest.ibTestShellCommand222(); }
    void ibTestShellCommand111(Control*) { fShare.ibTestShellCommand111(); }
    void ibGenerateSSHKeyStuff(Control*) { fProvisioning.ibGenerateSSHKeyStuff(); }
    void createNewPrivatePublicKeys(Control*) { fProvisioning.createNewPrivatePublicKeys(); }
    void createNewPrivatePublicKeysOLD(Control*) { fProvisioning.createNewPrivatePublicKeysOLD(); }
    /// The same for a person at the window: a key that is there is replaced once they agree, and
    /// kept.
    void ibSetUpKey(Control*);
    void ibMakeNewKey(Control*);
    void ibMakeNewKeyOLD(Control*);
    /// Ends what was set going with one of these actions or one of the share's.
    void ibCancelCommand(Control*) { fTasks.cancel(); }
    void checkKeyState(Control*) { fEngine.keyState.checkAgain(); }
    /// Passes pull from now on from what user name, host and folder say.
    void useSourceNow(Control*) { fEngine.samplePath.updateSampleString(); }
    void ibRevealSourcePathSMB(Control*) { fShare.ibRevealSourcePathSMB(); }
    void ibRevealSourcePathSMBdebug(Control*) { fShare.ibRevealSourcePathSMBdebug(); }
    void ibRevealSourcePathSMBdebugOLD(Control*) { fShare.ibRevealSourcePathSMBdebugOLD(); }

    /// Takes the keyboard focus away, on the next turn of the main queue.
    void ibSetNoFirstResponder(Control* sender);
    /// Ends the program and has it started again.
    void ibQuitAndRelaunch(Control* sender);
    /// Sets the start button's title from its state and the kind of pass, later on the main queue.
    void updateStartButton() { fStartButtonTitle.update(); }
    /// Stores the template with its option filled in, for display.
    void ibUpdateTabViewItem() { fCommandExample.ibUpdateTabViewItem(); }
    void tabViewWillSelect(const std::optional<TabViewItem>& tabViewItem);
    /// A person has finished editing the text of `object`.
    void controlTextDidEndEditing(const std::shared_ptr<Control>& object);

    /// What is missing before the next pass can go well.
    void setMissing(std::vector<ChecklistLine> missing) { fWork.setMissing(std::move(missing)); }
    /// What the program is doing at this moment.
    WorkState work() { return fWork.state(); }
    WorkFacts workFacts() const { return fWork.facts(); }
    /// Other programs follow the work, or none does any more.
    void setFollowed(bool followed) { fWork.setFollowed(followed); }

    // What the tray menu asks for.
    void clickStartButton() override { fEngine.syncCycle.clickStartButton(); }
    void syncNow() override { ibSyncNow(nullptr); }
    void cancelPass() override { ibCancelPass(nullptr); }
    void showActivity(std::optional<qint64> pass) override;
    void revealFolder() override { ibRevealDestPath(nullptr); }
    void menuShown(bool shown) override { fWork.setMenuShown(shown); }
    void quitAndRelaunch() override { ibQuitAndRelaunch(nullptr); }

private:
    void observe(QStringView key);
    void observeValue(const DefaultsChange& change);
    std::function<void()> reactionTo(const DefaultsChange& change);
    void startScanOnLaunch();
    void handWindowControllerOver();
    void readVersion();
    void scriptEnded(TerminalOutcome outcome, const QString& command);
    void hostTested(const HostAnswer& answer);
    void handleQuitAndRelaunchNotification(const Notification& notification);
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const ViewControllerParts fParts;
    AlertTap fAlertTap;
    StatusLine fStatusLine;
    Alerts fAlerts;
    Engine fEngine;
    WorkWatch fWork;
    RepeatTimerActions fRepeatTimer;
    StartButtonTitle fStartButtonTitle;
    bool fWasSwitchedOn = false; ///< by whomever; then the start at launch leaves it to them
    CommandExample fCommandExample;
    FolderSelection fFolders;
    RevealButtonWatchers fRevealButtonWatchers;
    NetworkPathMonitoring fNetwork;
    BonjourSelection fBonjour;
    TerminalNotice fTerminalNotice;
    RemoteTasks fTasks;
    CommandFiles fCommandFiles;
    ConnectionCheck fConnectionTest;
    SshKeyProvisioning fProvisioning;
    KeyReplacement fKeyReplacement;
    SmbShareAccess fShare;
    KelvoStatusMenuHandler myStatusMenuHandler;
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
