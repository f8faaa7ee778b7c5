#include "engine/connection_sharing.h"

#include "ports/console.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace kelvo {
namespace {

constexpr double cHour = 60 * 60;
constexpr double cLongestRest = 60;
constexpr double cCheckPatience = 3;     // seconds, as a login's own time-out
constexpr double cShortLogin = 1;        // seconds
constexpr double cUntilNextTry = 5 * 60; // where no connection came about beside a good check
constexpr int cRefusals = 2;             // after so many a Mac shares no connection

constexpr std::array cWatched = {prefEnableScanning, prefKeepConnection, prefRemoteUsername,
                                 prefRemoteBonjourName, prefDelayBetweenScans};

/// One line, as `whoami` gives it. Whose name it is others judge.
bool isAnAnswer(const CommandResult& result) {
    const QString text = trimmedText(result.output);
    return result.exitStatus == 0 && result.errors.isEmpty() && !text.isEmpty() &&
           !text.contains(u'\n');
}

/// Whether such a pass may be the connection's fault, or was ended by a person.
bool breaksOff(PassCause cause) {
    switch (cause) {
    case PassCause::HostNotFound:
    case PassCause::HostAway:
    case PassCause::RemoteLoginOff:
    case PassCause::HostKeyUnknown:
    case PassCause::HostKeyChanged:
    case PassCause::KeyRefused:
    case PassCause::LoginTalks:
    case PassCause::CutOff:
    case PassCause::Interrupted:
    case PassCause::Cancelled:
    case PassCause::Unknown:
        return true;
    default:
        return false;
    }
}

} // namespace

ConnectionSharing::ConnectionSharing(ConnectionSharingParts parts) : fParts(std::move(parts)) {
    for (const QStringView key : cWatched)
        fWatched.push_back(
            fParts.defaults.observe(key, [this](const DefaultsChange&) { settingChanged(); }));
}

CommandResult ConnectionSharing::run(PassStep step, const Command& command) {
    if (step == PassStep::AskingTheMac)
        return ask(command);
    if (step != PassStep::Pull && step != PassStep::Movies)
        return fParts.commands.run(command);
    std::optional<double> patience;
    {
        const std::lock_guard lock(fMutex);
        if (fPassRuns && fKept)
            patience = std::max(fLogin, cShortLogin);
    }
    const QByteArray folder = patience ? fParts.connection.folder(*patience) : QByteArray();
    return folder.isEmpty() ? fParts.commands.run(command) : runOver(folder, command);
}

CommandResult ConnectionSharing::ask(const Command& command) {
    bool kept = false;
    bool after = false;
    {
        const std::lock_guard lock(fMutex);
        fPassRuns = true;
        if (const QString reason = fKept ? reasonToEnd() : QString(); !reason.isEmpty())
            end(reason);
        kept = fKept.has_value();
        after = fAfterTheCheck;
    }
    if (kept) {
        const QByteArray folder = fParts.connection.folder(0);
        if (!folder.isEmpty()) {
            Command shared = command;
            shared.seconds = std::min(command.seconds.value_or(cCheckPatience), cCheckPatience);
            CommandResult result = runOver(folder, shared);
            const bool answered = isAnAnswer(result);
            const std::lock_guard lock(fMutex);
            if (answered && fKept)
                fKept->proved = true;
            if (answered)
                fRefusals = 0;
            if (answered || !result.exitStatus)
                return result;
            // One slow answer is no refusal.
            if (fKept && !fKept->proved && ++fRefusals >= cRefusals)
                fNotBefore = fParts.clock.seconds() + cHour;
        }
        const std::lock_guard lock(fMutex);
        end(QStringLiteral("The Mac does not answer over the connection that was kept; it is "
                           "asked by a new login."));
    }
    if (!after)
        open();
    const double began = fParts.clock.seconds();
    CommandResult result = fParts.commands.run(command);
    {
        const std::lock_guard lock(fMutex);
        fLogin = fParts.clock.seconds() - began;
    }
    if (after && isAnAnswer(result))
        open();
    return result;
}

CommandResult ConnectionSharing::runOver(const QByteArray& folder, Command command) {
    command.variables[cControlVariable] = folder;
    return fParts.commands.run(command);
}

void ConnectionSharing::ended(const PassRecord& record) {
    const bool stands = !fParts.connection.folder(0).isEmpty();
    const bool cameAbout = stands || fParts.connection.hasStood();
    const std::lock_guard lock(fMutex);
    fPassRuns = false;
    if (record.kind != PassKind::Remote)
        return;
    fAfterTheCheck = endedAtTheCheck(record);
    if (!fKept)
        return;
    if (fAfterTheCheck || breaksOff(record.cause))
        return end(QStringLiteral("The connection to the Mac ends with a pass that did not go "
                                  "well."));
    if (!cameAbout)
        fNotBefore = std::max(fNotBefore, fParts.clock.seconds() + cUntilNextTry);
    if (!stands || fParts.defaults.doubleForKey(prefDelayBetweenScans) > cLongestRest)
        return end({});
    if (const QString reason = reasonToEnd(); !reason.isEmpty())
        end(reason);
}

void ConnectionSharing::settingChanged() {
    const std::lock_guard lock(fMutex);
    if (fPassRuns || !fKept)
        return;
    if (const QString reason = reasonToEnd(); !reason.isEmpty())
        end(reason);
}

std::optional<LoginTarget> ConnectionSharing::target() const {
    const auto account = remoteAccount(fParts.defaults);
    if (!account || !accountFault(*account, fParts.keyPath).isEmpty())
        return std::nullopt;
    return LoginTarget{.destination = account->destination(), .keyPath = fParts.keyPath};
}

/// Under the lock, while a connection is kept; empty without a reason.
QString ConnectionSharing::reasonToEnd() const {
    if (!fParts.defaults.boolForKey(prefKeepConnection) ||
        !fParts.defaults.boolForKey(prefEnableScanning))
        return QStringLiteral("The connection to the Mac ends: it was switched off.");
    if (target() != fKept->target)
        return QStringLiteral("The connection to the Mac ends: another one is set.");
    const double age = fParts.clock.seconds() - fKept->opened;
    const double byCalendar =
        static_cast<double>(fKept->openedAt.msecsTo(fParts.clock.now())) / 1000;
    if (std::max(age, std::abs(byCalendar)) >= cHour)
        return QStringLiteral("The connection to the Mac ends after an hour.");
    return {};
}

void ConnectionSharing::open() {
    const auto target = this->target();
    const std::lock_guard lock(fMutex);
    if (!target || !fParts.defaults.boolForKey(prefKeepConnection) ||
        fParts.clock.seconds() < fNotBefore)
        return;
    fKept = {.target = *target, .opened = fParts.clock.seconds(), .openedAt = fParts.clock.now()};
    fParts.connection.open(*target);
}

/// Under the lock, while a connection is kept; without a reason nothing is said.
void ConnectionSharing::end(const QString& reason) {
    fKept.reset();
    fParts.connection.close();
    if (!reason.isEmpty())
        fParts.console.log(reason);
}

} // namespace kelvo
