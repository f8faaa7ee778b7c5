#include "sync/sync_cycle.h"

#include "passes/running_pass.h"
#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/fatal.h"
#include "support/key_file.h"
#include "support/text.h"
#include "sync/rsync_command.h"

#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cMaxBadWhoamiCount = 10;
constexpr qint64 cValidationTimeout = 3; // seconds
constexpr double cPauseAfterPass = 1.0;
constexpr QStringView cRemoteOperation = u"doSyncOnceBonjour()";

QString alertTextFor(const HostVerdict& verdict) {
    if (verdict == HostVerdict::CheckSshKeys)
        return QStringLiteral(
            "Missing ssh keys -\nPlease generate ssh keys\n and \n try again...\n");
    return u"Please make sure remote host is on this network\nor\nPlease check username...\n\n" +
           verdict.text() + u'\n';
}

qint64 addOne(std::atomic<qint64>& count) {
    qint64 sum = 0;
    qint64 old = count;
    do {
        if (__builtin_add_overflow(old, qint64{1}, &sum))
            stopProgram();
    } while (!count.compare_exchange_weak(old, sum));
    return sum;
}

} // namespace

// -- actions

void SyncCycle::ibStartRSyncProcess(Control* sender) {
    if (storeStateOf(sender, u"ibStartRSyncProcess(_:)"))
        startPassOfTheKindSet();
}

void SyncCycle::startPassOfTheKindSet() {
    // The kind is a setting too.
    if (!fParts.defaults.areKnown() && fParts.defaults.boolForKey(prefEnableScanning))
        waitForSettings(&SyncCycle::startPassOfTheKindSet);
    else if (fParts.defaults.boolForKey(prefRsyncWithSSH))
        doSyncOnceBonjour();
    else
        doSyncOnce();
}

void SyncCycle::ibRSyncOnce(Control* sender) {
    if (storeStateOf(sender, u"ibRSyncOnce(_:)"))
        doSyncOnce();
}

void SyncCycle::ibRSyncOnceBonjour(Control* sender) {
    if (storeStateOf(sender, u"ibRSyncOnceBonjour(_:)"))
        doSyncOnceBonjour();
}

bool SyncCycle::storeStateOf(Control* sender, QStringView operation) {
    logInside(operation, u"");
    const auto* button = dynamic_cast<const Button*>(sender);
    if (!button)
        return false;
    const int state = button->state();
    fParts.console.log(u"button.state = " + QString::number(state));
    fParts.defaults.setObject(prefEnableScanning, qint64{state});
    return state == 1;
}

// -- starting a pass

void SyncCycle::doSyncOnce() {
    constexpr QStringView operation = u"doSyncOnce()";
    logInside(operation, u"");
    const Permission permission = permissionToStart(operation);
    if (permission == Permission::Granted)
        runInBackground(PassKind::Plain, &SyncCycle::runPlainPass);
    else if (permission == Permission::SettingsUnknown)
        waitForSettings(&SyncCycle::doSyncOnce);
}

void SyncCycle::doSyncOnceBonjour() {
    constexpr QStringView operation = cRemoteOperation;
    logInside(operation, u".......");
    const QString option = fParts.rsyncCommand.getRsyncCommandOptionString();
    showStatus(option.isEmpty() ? QStringLiteral("Trying to rsync From Destination to Source...")
                                : QString(u"Trying to rsync with option = " + option + u"..."));
    switch (permissionToStart(operation)) {
    case Permission::Granted:
        runInBackground(PassKind::Remote, &SyncCycle::runRemotePass);
        break;
    case Permission::SwitchedOff:
        showStatus(std::nullopt);
        break;
    case Permission::Busy:
        break;
    case Permission::SettingsUnknown:
        waitForSettings(&SyncCycle::doSyncOnceBonjour);
        break;
    }
}

SyncCycle::Permission SyncCycle::permissionToStart(QStringView operation) const {
    if (!fParts.defaults.boolForKey(prefEnableScanning)) {
        logInside(operation, u".......prefEnableScanning = FALSE... cannot start");
        return Permission::SwitchedOff;
    }
    if (fParts.defaults.boolForKey(prefIsScanning)) {
        logInside(operation, u".......ALREADY in Middle of a Scan...");
        return Permission::Busy;
    }
    if (!fParts.defaults.areKnown())
        return Permission::SettingsUnknown;
    logInside(operation, u".......NEED to start a scan ...");
    return Permission::Granted;
}

void SyncCycle::runInBackground(PassKind kind, Body body) {
    fParts.bgQueue.async([this, kind, body] {
        RunningPass pass(fParts.passes, kind);
        (this->*body)(pass);
    });
}

/// Without a fault nothing is refused.
bool SyncCycle::refuses(RunningPass& pass, QStringView operation, const QString& fault) const {
    if (fault.isEmpty())
        return false;
    logInside(operation, QString(u".......REFUSED: " + fault));
    pass.refused(fault);
    return true;
}

// -- the plain pass

void SyncCycle::runPlainPass(RunningPass& pass) {
    const auto paths = plainPaths(fParts.defaults);
    if (!paths)
        return;
    const RsyncParams params{paths->source, paths->destination, std::nullopt};
    const QString command = rsyncTemplate();
    if (refuses(pass, u"doSyncOnce()", commandFault(command, params)))
        return;
    markScanning();
    if (const auto filled = fParts.rsyncCommand.fillInParams(command, params)) {
        fParts.console.print(u"cmd to send = " + *filled);
        printResult(u"result from shell command =\n",
                    pass.run(PassStep::Pull, {.text = *filled}).output);
    }
    fParts.mainQueue.asyncAfter(cPauseAfterPass, [this] {
        fParts.defaults.setObject(prefIsScanning, false);
        scheduleAfterRest(&SyncCycle::doSyncOnce);
    });
}

// -- the remote pass

void SyncCycle::runRemotePass(RunningPass& pass) {
    const QString keyPath = keyFilePath();
    if (refuses(pass, cRemoteOperation, remoteFault(keyPath)))
        return;
    const HostVerdict verdict = validateRemoteHost(pass);
    pass.judged(verdict);
    if (verdict == HostVerdict::Valid)
        pullFromRemote(pass, keyPath);
    else
        handleFailedValidation(verdict == HostVerdict::CheckSshKeys ? verdict : HostVerdict());
}

/// Of what is set now; asked before anybody is spoken to.
QString SyncCycle::remoteFault(const QString& keyPath) const {
    if (const auto account = remoteAccount(fParts.defaults)) {
        if (QString fault = accountFault(*account, keyPath); !fault.isEmpty())
            return fault;
    }
    const auto paths = remotePaths(fParts.defaults);
    return paths ? commandFault(rsyncTemplate(), {paths->source, paths->destination, keyPath})
                 : QString();
}

HostVerdict SyncCycle::validateRemoteHost(RunningPass& pass) const {
    if (!remoteAccount(fParts.defaults))
        return HostVerdict::NotAsked;
    return fParts.validateRemoteHost(cValidationTimeout, [&pass](const Command& command) {
        return pass.run(PassStep::AskingTheMac, command);
    });
}

void SyncCycle::pullFromRemote(RunningPass& pass, const QString& keyPath) {
    const auto paths = remotePaths(fParts.defaults);
    if (!paths)
        return;
    const RsyncParams params{paths->source, paths->destination, keyPath};
    const QString usersCommand = rsyncTemplate();
    if (refuses(pass, cRemoteOperation, commandFault(usersCommand, params)))
        return;
    markScanning();
    const auto pull = [&](PassStep step, const QString& command, QStringView heading) {
        if (const auto filled = fParts.rsyncCommand.fillInParams(command, params))
            printResult(heading, pass.run(step, {.text = *filled}).output);
    };
    pull(PassStep::Pull, usersCommand, u"\n\nresult from shell command =\n");
    pull(PassStep::Movies, cMovieCommandTemplate.toString(),
         u"\n\nresult from movie shell command =\n");
    attemptToRescanAgain();
}

void SyncCycle::handleFailedValidation(const HostVerdict& verdict) {
    const QString rule(65, u'=');
    fParts.console.print(rule);
    fParts.console.print(u"NEED to handle possible ERROR:\n" + verdict.text());
    fParts.console.print(rule);

    const qint64 count = addOne(fBadWhoamiCount);
    showStatus(u"something went wrong - waiting to retry again... [" + QString::number(count) +
                   u']',
               StatusColor::Red);
    if (count >= cMaxBadWhoamiCount)
        giveUp(alertTextFor(verdict));
    else
        attemptToRescanAgain();
}

void SyncCycle::giveUp(const QString& alertText) {
    fParts.mainQueue.asyncAfter(0.01, [this] {
        clickStartButton();
        showStatus(std::nullopt);
    });
    fParts.mainQueue.asyncAfter(0.1, [this, alertText] {
        fParts.view.showProblemWithBonjourClosure(
            QStringLiteral("Unable to Reach Remote Host"), alertText,
            [this](ModalResponse response) { handleProblemAnswer(response); });
    });
}

void SyncCycle::handleProblemAnswer(ModalResponse response) {
    fParts.console.log(u"response = " + QString::number(response));
    fBadWhoamiCount = 0;
    if (response == cAlertFirstButtonReturn)
        fParts.mainQueue.asyncAfter(0.1, [this] { clickStartButton(); });
    else if (response == cAlertSecondButtonReturn)
        showStatus(QStringLiteral("oops - something went wrong - check settings and hardware "
                                  "connections - then try again..."),
                   StatusColor::Red);
}

// -- between passes

void SyncCycle::attemptToRescanAgain() {
    fParts.mainQueue.asyncAfter(cPauseAfterPass, [this] {
        fParts.defaults.setObject(prefIsScanning, false);
        if (fBadWhoamiCount < 1)
            showStatus(QStringLiteral("Resting a bit ..."));
        scheduleAfterRest(&SyncCycle::doSyncOnceBonjour);
    });
}

void SyncCycle::scheduleAfterRest(Start next) {
    const double delay = fParts.defaults.doubleForKey(prefDelayBetweenScans);
    fParts.mainQueue.asyncAfter(delay > 0.0 ? delay : cFallbackDelayBetweenScans,
                                [this, next] { (this->*next)(); });
}

/// Only one start waits: two would run two passes at once.
void SyncCycle::waitForSettings(Start next) {
    showStatus(QStringLiteral("The settings file cannot be read - waiting..."), StatusColor::Red);
    if (!std::exchange(fWaitsForSettings, true))
        lookForSettings(next);
}

void SyncCycle::lookForSettings(Start next) {
    fParts.mainQueue.asyncAfter(cFallbackDelayBetweenScans, [this, next] {
        if (!fParts.defaults.areKnown() && fParts.defaults.boolForKey(prefEnableScanning)) {
            lookForSettings(next);
            return;
        }
        fWaitsForSettings = false;
        (this->*next)();
    });
}

void SyncCycle::markScanning() {
    fParts.mainQueue.async([this] { fParts.defaults.setObject(prefIsScanning, true); });
}

void SyncCycle::syncNow() {}

void SyncCycle::cancelPass() {
    fParts.passes.cancel();
}

CycleState SyncCycle::state() const {
    return {};
}

void SyncCycle::clickStartButton() {
    if (!fParts.view.ibStartButton)
        stopProgram("the start button is not there");
    fParts.view.ibStartButton->performClick();
}

// -- reading settings, telling people

QString SyncCycle::rsyncTemplate() const {
    return fParts.defaults.stringForKey(prefRsyncCommandString1)
        .value_or(cMissingRsyncCommandString1.toString());
}

QString SyncCycle::keyFilePath() const {
    return expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
}

void SyncCycle::logInside(QStringView operation, QStringView detail) const {
    fParts.console.log(insideLine(cViewControllerTypeName, operation, detail));
}

void SyncCycle::printResult(QStringView heading, const QString& output) const {
    fParts.console.print({heading.toString(), output, QStringLiteral("\n======== done ========")});
}

void SyncCycle::showStatus(std::optional<QString> mesg, StatusColor color) {
    fParts.view.updateStatusMessage(std::move(mesg), color, true);
}

} // namespace kelvo
