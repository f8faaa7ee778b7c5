#include "sync/sync_cycle.h"

#include "passes/running_pass.h"
#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "support/text.h"
#include "sync/rsync_command.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cMaxBadWhoamiCount = 10;
constexpr double cPauseAfterPass = 1.0;

double restSeconds(const UserDefaults& defaults) {
    const double delay = defaults.doubleForKey(prefDelayBetweenScans);
    return delay > 0.0 ? delay : cFallbackDelayBetweenScans;
}

} // namespace

SyncCycle::SyncCycle(const SyncCycleParts& parts)
    : fParts(parts), fBody({.defaults = parts.defaults,
                            .files = parts.files,
                            .console = parts.console,
                            .rsyncCommand = parts.rsyncCommand,
                            .validateRemoteHost = parts.validateRemoteHost,
                            .pullsBegin =
                                [this] {
                                    fParts.mainQueue.async([this] {
                                        fParts.defaults.setObject(prefIsScanning, true);
                                    });
                                }}),
      fMissing(parts.defaults, parts.mainQueue, [this] { beginOnceNothingIsMissing(); }),
      fProblem({.mainQueue = parts.mainQueue,
                .console = parts.console,
                .view = fParts.view,
                .answered = [this] { fBadWhoamiCount = 0; }}) {}

// -- actions

void SyncCycle::ibStartRSyncProcess(Control* sender) {
    if (storeStateOf(sender, u"ibStartRSyncProcess(_:)"))
        startPassOfTheKindSet();
}

void SyncCycle::startPassOfTheKindSet() {
    // The kind is a setting too.
    if (!fParts.defaults.areKnown() && isOn())
        waitForSettings(&SyncCycle::startPassOfTheKindSet);
    else
        start(fParts.defaults.boolForKey(prefRsyncWithSSH) ? PassKind::Remote : PassKind::Plain);
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
    fProblem.switched();
    changed();
    return state == 1;
}

void SyncCycle::syncNow() {
    if (!state().nextPass)
        return;
    // A pass that has just ended may still be marked as running.
    fParts.defaults.setObject(prefIsScanning, false);
    start(fPlan->kind);
}

void SyncCycle::cancelPass() {
    if (!fPassRuns)
        return;
    fCancelled = true;
    fParts.passes.cancel();
    changed();
}

void SyncCycle::clickStartButton() {
    if (!fParts.view.ibStartButton)
        stopProgram("the start button is not there");
    fParts.view.ibStartButton->performClick();
}

CycleState SyncCycle::state() const {
    CycleState state;
    state.passRuns = fPassRuns;
    if (fPlan && isOn())
        state.nextPass = std::max(0.0, fPlan->at - fParts.seconds());
    state.waits = isOn() && !fPassRuns && (fWaitsForSettings || fMissing.watches());
    return state;
}

void SyncCycle::changed() const {
    if (fParts.view.stateChanged)
        fParts.view.stateChanged();
}

// -- starting a pass

void SyncCycle::start(PassKind kind) {
    if (kind == PassKind::Remote)
        doSyncOnceBonjour();
    else
        doSyncOnce();
}

void SyncCycle::doSyncOnce() {
    logInside(cPlainOperation, u"");
    const Permission permission = permissionToStart(cPlainOperation);
    if (permission == Permission::Granted)
        begin(PassKind::Plain);
    else if (permission == Permission::SettingsUnknown)
        waitForSettings(&SyncCycle::doSyncOnce);
}

void SyncCycle::doSyncOnceBonjour() {
    logInside(cRemoteOperation, u".......");
    const QString option = fParts.rsyncCommand.getRsyncCommandOptionString();
    showStatus(option.isEmpty() ? QStringLiteral("Trying to rsync From Destination to Source...")
                                : QString(u"Trying to rsync with option = " + option + u"..."));
    switch (permissionToStart(cRemoteOperation)) {
    case Permission::Granted:
        begin(PassKind::Remote);
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

bool SyncCycle::isOn() const {
    return fParts.defaults.boolForKey(prefEnableScanning);
}

SyncCycle::Permission SyncCycle::permissionToStart(QStringView operation) const {
    if (!isOn()) {
        logInside(operation, u".......prefEnableScanning = FALSE... cannot start");
        return Permission::SwitchedOff;
    }
    if (fPassRuns || fParts.defaults.boolForKey(prefIsScanning)) {
        logInside(operation, u".......ALREADY in Middle of a Scan...");
        return Permission::Busy;
    }
    if (!fParts.defaults.areKnown())
        return Permission::SettingsUnknown;
    logInside(operation, u".......NEED to start a scan ...");
    return Permission::Granted;
}

void SyncCycle::begin(PassKind kind) {
    fPlan.reset();
    ++fPlanNumber;
    fMissing.end();
    fWaitsForSettings = false;
    fPassRuns = true;
    fCancelled = false;
    fParts.bgQueue.async([this, kind] {
        PassEnd end;
        {
            RunningPass pass(fParts.passes, kind);
            // The wish may have come before there was a pass to be told.
            if (fCancelled)
                fParts.passes.cancel();
            end = fBody.run(pass, kind);
        }
        fParts.mainQueue.async([this, kind, end] { ended(kind, end); });
    });
    changed();
}

// -- the end of a pass

void SyncCycle::ended(PassKind kind, const PassEnd& end) {
    fPassRuns = false;
    if (end.lacksSettings)
        fMissing.begin();
    if (end.failedCheck)
        handleFailedCheck(*end.failedCheck);
    // What was missing may have come while the pass ended.
    else if (!end.lacksSettings || fBody.hasSettings(kind))
        rest(kind);
    changed();
}

void SyncCycle::handleFailedCheck(const HostVerdict& verdict) {
    const QString rule(65, u'=');
    fParts.console.print(rule);
    fParts.console.print(u"NEED to handle possible ERROR:\n" + verdict.text());
    fParts.console.print(rule);

    fBadWhoamiCount = oneMore(fBadWhoamiCount);
    showStatus(u"something went wrong - waiting to retry again... [" +
                   QString::number(fBadWhoamiCount) + u']',
               StatusColor::Red);
    if (fBadWhoamiCount >= cMaxBadWhoamiCount)
        fProblem.raise(verdict);
    else
        rest(PassKind::Remote);
}

// -- between passes

void SyncCycle::rest(PassKind kind) {
    const quint64 number = plan(kind, cPauseAfterPass + restSeconds(fParts.defaults));
    fParts.mainQueue.asyncAfter(cPauseAfterPass, [this, kind, number] {
        if (number != fPlanNumber)
            return;
        fParts.defaults.setObject(prefIsScanning, false);
        if (kind == PassKind::Remote && fBadWhoamiCount < 1)
            showStatus(QStringLiteral("Resting a bit ..."));
        const quint64 last = plan(kind, restSeconds(fParts.defaults));
        fParts.mainQueue.asyncAfter(restSeconds(fParts.defaults), [this, kind, last] {
            if (last != fPlanNumber)
                return;
            fPlan.reset();
            start(kind);
        });
        changed();
    });
}

/// Takes the place of what was planned.
quint64 SyncCycle::plan(PassKind kind, double delay) {
    fPlan = {.kind = kind, .at = fParts.seconds() + delay};
    return ++fPlanNumber;
}

// -- waiting for settings

/// Only one start waits.
void SyncCycle::waitForSettings(Start next) {
    showStatus(QStringLiteral("The settings file cannot be read - waiting..."), StatusColor::Red);
    if (!std::exchange(fWaitsForSettings, true))
        lookForSettings(next);
    changed();
}

void SyncCycle::lookForSettings(Start next) {
    fParts.mainQueue.asyncAfter(cFallbackDelayBetweenScans, [this, next] {
        if (!fParts.defaults.areKnown() && isOn())
            lookForSettings(next);
        else if (std::exchange(fWaitsForSettings, false))
            (this->*next)();
    });
}

void SyncCycle::beginOnceNothingIsMissing() {
    const PassKind kind =
        fParts.defaults.boolForKey(prefRsyncWithSSH) ? PassKind::Remote : PassKind::Plain;
    if (isOn() && !fPassRuns && fBody.hasSettings(kind))
        start(kind);
}

void SyncCycle::logInside(QStringView operation, QStringView detail) const {
    fParts.console.log(insideLine(cViewControllerTypeName, operation, detail));
}

void SyncCycle::showStatus(std::optional<QString> mesg, StatusColor color) {
    fParts.view.updateStatusMessage(std::move(mesg), color, true);
}

} // namespace kelvo
