// SyncCycle: runs one rsync pass after another, with a rest between them, while syncing is on.
#pragma once

#include "support/alert.h"
#include "support/pass_record.h"
#include "support/status_color.h"

#include <QString>

#include <atomic>
#include <optional>

namespace kelvo {

class BackgroundQueue;
class Button;
class Console;
class Control;
class DispatchQueue;
class FileManager;
class HostValidator;
class PassListener;
class ProblemAlerts;
class RsyncCommand;
class ShellRunner;
class StatusMessages;
class UserDefaults;

/// Everything the cycle works with; all of it outlives the cycle.
struct SyncCycleParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    ShellRunner& shell;
    FileManager& files;
    Console& console;
    const RsyncCommand& rsyncCommand;
    HostValidator& hostValidator;
    StatusMessages& statusMessages;
    ProblemAlerts& problemAlerts;
    Button& ibStartButton; ///< clicked by the cycle to switch syncing off and on again
    PassListener* passListener = nullptr; ///< hears of each pass; may be missing
};

/// A pass schedules its successor; what prefEnableScanning and prefIsScanning say is asked at the
/// start of each. The cycle must outlive every body handed to the background queue and every block
/// waiting on the main queue: end both queues first.
class SyncCycle {
public:
    explicit SyncCycle(const SyncCycleParts& parts) : fParts(parts) {}
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

    /// How many remote passes failed since launch or since the problem alert was last answered.
    /// Any thread.
    qint64 badWhoamiCount() const { return fBadWhoamiCount; }

private:
    using Pass = void (SyncCycle::*)();
    enum class Permission { Granted, SwitchedOff, Busy };

    bool storeStateOf(Control* sender, QStringView operation);
    Permission permissionToStart(QStringView operation) const;
    /// Runs `body` on the background queue, its begin and end told to the listener.
    void runInBackground(PassKind kind, Pass body);
    void runPlainPass();
    void runRemotePass();
    void pullFromRemote(const QString& keyPath);
    void handleFailedValidation(const QString& verdict);
    void giveUp(const QString& alertText);
    void handleProblemAnswer(ModalResponse response);
    void attemptToRescanAgain();
    void scheduleAfterRest(Pass next);
    void markScanning();
    void clickStartButton();

    std::optional<QString> trimmedPath(QStringView key) const;
    QString rsyncTemplate() const;
    QString keyFilePath() const;
    QString validateRemoteHost();
    void logInside(QStringView operation, QStringView detail) const;
    void printResult(QStringView heading, const QString& output) const;
    void showStatus(std::optional<QString> mesg, StatusColor color = StatusColor::Black);

    const SyncCycleParts fParts;
    std::atomic<qint64> fBadWhoamiCount = 0;
};

} // namespace kelvo
