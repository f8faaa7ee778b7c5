#include "sync/sync_cycle.h"

#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/host_validator.h"
#include "ports/pass_listener.h"
#include "ports/problem_alerts.h"
#include "ports/shell_runner.h"
#include "ports/status_messages.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "support/key_file.h"
#include "support/text.h"
#include "sync/rsync_command.h"

namespace kelvo {
namespace {

constexpr qint64 cMaxBadWhoamiCount = 10;
constexpr qint64 cValidationTimeout = 3; // seconds
constexpr double cPauseAfterPass = 1.0;

constexpr QStringView cValidVerdict = u"valid";
constexpr QStringView cMissingKeysVerdict = u"checksshkeys";

QString alertTextFor(const QString& verdict) {
    if (verdict == cMissingKeysVerdict)
        return QStringLiteral(
            "Missing ssh keys -\nPlease generate ssh keys\n and \n try again...\n");
    return u"Please make sure remote host is on this network\nor\nPlease check username...\n\n" +
           verdict + u'\n';
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
    if (!storeStateOf(sender, u"ibStartRSyncProcess(_:)"))
        return;
    if (fParts.defaults.boolForKey(prefRsyncWithSSH))
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
    if (permissionToStart(operation) == Permission::Granted)
        runInBackground(PassKind::Plain, &SyncCycle::runPlainPass);
}

void SyncCycle::doSyncOnceBonjour() {
    constexpr QStringView operation = u"doSyncOnceBonjour()";
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
    logInside(operation, u".......NEED to start a scan ...");
    return Permission::Granted;
}

void SyncCycle::runInBackground(PassKind kind, Pass body) {
    fParts.bgQueue.async([this, kind, body] {
        if (fParts.passListener)
            fParts.passListener->passBegan(kind);
        (this->*body)();
        if (fParts.passListener)
            fParts.passListener->passEnded();
    });
}

// -- the plain pass

void SyncCycle::runPlainPass() {
    const auto source = trimmedPath(prefPath1);
    if (!source)
        return;
    const auto destination = trimmedPath(prefPath2);
    if (!destination)
        return;
    markScanning();
    const QString command =
        fParts.rsyncCommand.fillInParams(rsyncTemplate(), {source, destination, std::nullopt});
    fParts.console.print(u"cmd to send = " + command);
    printResult(u"result from shell command =\n",
                fParts.shell.outputWhenRunAsShellCommand(command));
    fParts.mainQueue.asyncAfter(cPauseAfterPass, [this] {
        fParts.defaults.setObject(prefIsScanning, false);
        scheduleAfterRest(&SyncCycle::doSyncOnce);
    });
}

// -- the remote pass

void SyncCycle::runRemotePass() {
    const QString keyPath = keyFilePath();
    const QString verdict = validateRemoteHost();
    if (fParts.passListener)
        fParts.passListener->hostJudged(verdict);
    if (verdict == cValidVerdict)
        pullFromRemote(keyPath);
    else
        handleFailedValidation(verdict == cMissingKeysVerdict ? verdict : QString());
}

QString SyncCycle::validateRemoteHost() {
    if (!fParts.defaults.stringForKey(prefRemoteUsername) ||
        !fParts.defaults.stringForKey(prefRemoteBonjourName))
        return {};
    return fParts.hostValidator.validateRemoteHostWithWhoami(cValidationTimeout);
}

void SyncCycle::pullFromRemote(const QString& keyPath) {
    const auto source = trimmedPath(prefSampleRemoteFullPath);
    if (!source)
        return;
    const auto destination = trimmedPath(prefPath2);
    if (!destination)
        return;
    markScanning();
    const auto pull = [&](const QString& command, QStringView heading) {
        printResult(heading,
                    fParts.shell.outputWhenRunAsShellCommand(
                        fParts.rsyncCommand.fillInParams(command, {source, destination, keyPath})));
    };
    pull(rsyncTemplate(), u"\n\nresult from shell command =\n");
    pull(cMovieCommandTemplate.toString(), u"\n\nresult from movie shell command =\n");
    attemptToRescanAgain();
}

void SyncCycle::handleFailedValidation(const QString& verdict) {
    const QString rule(65, u'=');
    fParts.console.print(rule);
    fParts.console.print(u"NEED to handle possible ERROR:\n" + verdict);
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
        fParts.problemAlerts.showProblemWithBonjourClosure(
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

void SyncCycle::scheduleAfterRest(Pass next) {
    const double delay = fParts.defaults.doubleForKey(prefDelayBetweenScans);
    fParts.mainQueue.asyncAfter(delay > 0.0 ? delay : cFallbackDelayBetweenScans,
                                [this, next] { (this->*next)(); });
}

void SyncCycle::markScanning() {
    fParts.mainQueue.async([this] { fParts.defaults.setObject(prefIsScanning, true); });
}

void SyncCycle::clickStartButton() {
    fParts.ibStartButton.performClick();
}

// -- reading settings, telling people

std::optional<QString> SyncCycle::trimmedPath(QStringView key) const {
    const auto path = fParts.defaults.stringForKey(key);
    return path ? std::optional(trimmedText(*path)) : std::nullopt;
}

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
    fParts.statusMessages.updateStatusMessage(std::move(mesg), color, true);
}

} // namespace kelvo
