#include "sync/pass_body.h"

#include "passes/arrivals.h"
#include "passes/rsync_statistics.h"
#include "passes/running_pass.h"
#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/text.h"
#include "sync/rsync_command.h"

namespace kelvo {
namespace {

constexpr qint64 cValidationTimeout = 3;         // seconds
constexpr double cMostAfterArrivals = 10 * 60.0; // seconds
constexpr const char* cArrivalsVariable = "KELVO_MIRROR_ARRIVALS";

/// The paths of `arrivals`, each ended by a NUL.
QByteArray pathsOf(const std::vector<Arrival>& arrivals) {
    QByteArray paths;
    for (const Arrival& arrival : arrivals)
        paths.append(arrival.path).append('\0');
    return paths;
}

} // namespace

PassEnd PassBody::run(RunningPass& pass, PassKind kind) const {
    return kind == PassKind::Plain ? runPlain(pass) : runRemote(pass);
}

bool PassBody::hasSettings(PassKind kind) const {
    const QString keyPath = keyFilePath();
    if (kind == PassKind::Remote)
        return remoteAccount(fParts.defaults) && remotePaths(fParts.defaults) &&
               remoteFault(keyPath).isEmpty();
    const auto paths = plainPaths(fParts.defaults);
    return paths &&
           fParts.rsyncCommand
               .commandFault(rsyncTemplate(), {paths->source, paths->destination, std::nullopt})
               .isEmpty();
}

/// Without a fault nothing is refused.
bool PassBody::refuses(RunningPass& pass, QStringView operation, const QString& fault) const {
    if (fault.isEmpty())
        return false;
    logInside(operation, QString(u".......REFUSED: " + fault));
    pass.refused(fault);
    return true;
}

// -- the plain pass

PassEnd PassBody::runPlain(RunningPass& pass) const {
    const auto paths = plainPaths(fParts.defaults);
    if (!paths)
        return {.lacksSettings = true};
    const RsyncParams params{paths->source, paths->destination, std::nullopt};
    const QString command = rsyncTemplate();
    if (refuses(pass, cPlainOperation, fParts.rsyncCommand.commandFault(command, params)))
        return {.lacksSettings = true};
    if (!sourceIsThere(pass, paths->source))
        return {};
    const auto claim = claimDestination(pass, cPlainOperation, paths->destination);
    if (!claim)
        return {};
    fParts.pullsBegin();
    if (const auto filled = fParts.rsyncCommand.fillInParams(command, params)) {
        fParts.console.print(u"cmd to send = " + *filled);
        const bool said = pull(pass, PassStep::Pull, *filled, u"result from shell command =\n");
        afterPulls(pass, paths->destination, said);
    }
    return {};
}

/// A source that is no path from the root is left to rsync.
bool PassBody::sourceIsThere(RunningPass& pass, const QString& source) const {
    if (!source.startsWith(u'/') || fParts.files.fileExistsAtPath(source))
        return true;
    const QString fault = source + u": No such file or directory";
    logInside(cPlainOperation, QString(u".......MISSING: " + fault));
    pass.refused(fault, PassCause::SourceMissing);
    return false;
}

/// Nothing when another program is pulling into the folder.
std::optional<Subscription> PassBody::claimDestination(RunningPass& pass, QStringView operation,
                                                       const QString& destination) const {
    auto claim = fParts.files.claimFolder(destination);
    if (!claim) {
        logInside(operation,
                  QString(u".......TAKEN: another program is pulling into " + destination));
        pass.refused(destination, PassCause::DestinationTaken);
    }
    return claim;
}

// -- the remote pass

PassEnd PassBody::runRemote(RunningPass& pass) const {
    const QString keyPath = keyFilePath();
    if (refuses(pass, cRemoteOperation, remoteFault(keyPath)))
        return {.lacksSettings = true};
    const HostVerdict verdict = validateRemoteHost(pass);
    pass.judged(verdict);
    if (pass.isCancelled())
        return {};
    if (verdict != HostVerdict::Valid)
        return {.failedCheck = verdict == HostVerdict::CheckSshKeys ? verdict : HostVerdict(),
                .lacksSettings = verdict == HostVerdict::NotAsked};

    const auto paths = remotePaths(fParts.defaults);
    if (!paths)
        return {.lacksSettings = true};
    const RsyncParams params{paths->source, paths->destination, keyPath};
    const QString usersCommand = rsyncTemplate();
    if (refuses(pass, cRemoteOperation, fParts.rsyncCommand.commandFault(usersCommand, params)))
        return {.lacksSettings = true};
    const auto claim = claimDestination(pass, cRemoteOperation, paths->destination);
    if (!claim)
        return {};
    fParts.pullsBegin();
    bool allSaid = true;
    if (const auto filled = fParts.rsyncCommand.fillInParams(usersCommand, params))
        allSaid &= pull(pass, PassStep::Pull, *filled, u"\n\nresult from shell command =\n");
    if (const auto filled =
            fParts.rsyncCommand.fillInParams(cMovieCommandTemplate.toString(), params))
        allSaid &=
            pull(pass, PassStep::Movies, *filled, u"\n\nresult from movie shell command =\n");
    afterPulls(pass, paths->destination, allSaid);
    return {};
}

/// Of what is set now; asked before anybody is spoken to.
QString PassBody::remoteFault(const QString& keyPath) const {
    if (const auto account = remoteAccount(fParts.defaults)) {
        if (QString fault = accountFault(*account, keyPath); !fault.isEmpty())
            return fault;
    }
    const auto paths = remotePaths(fParts.defaults);
    return paths ? fParts.rsyncCommand.commandFault(rsyncTemplate(),
                                                    {paths->source, paths->destination, keyPath})
                 : QString();
}

HostVerdict PassBody::validateRemoteHost(RunningPass& pass) const {
    if (!remoteAccount(fParts.defaults))
        return HostVerdict::NotAsked;
    return fParts.validateRemoteHost(cValidationTimeout, [&pass](const Command& command) {
        return pass.run(PassStep::AskingTheMac, command);
    });
}

// -- what both have in common

/// Returns whether the command said which files it brought, or that there were none.
bool PassBody::pull(RunningPass& pass, PassStep step, const QString& command,
                    QStringView heading) const {
    if (pass.isCancelled())
        return true;
    const std::size_t named = pass.names().size();
    const QString output = pass.run(step, {.text = command}).output;
    printResult(heading, output);
    if (pass.names().size() > named)
        return true;
    const Transfer transfer = transferOf(command, output);
    return transfer.source == TransferSource::Statistics && transfer.files == 0;
}

void PassBody::afterPulls(RunningPass& pass, const QString& destination, bool allSaid) const {
    const std::vector<Arrival> arrivals =
        arrivalsOf(fParts.files, {.destination = destination.toUtf8(),
                                  .began = pass.began(),
                                  .names = pass.names(),
                                  .unnamedToo = !allSaid});
    if (arrivals.empty())
        return;
    pass.brought(arrivals);
    const QString command =
        fParts.defaults.stringForKey(prefCommandAfterArrivals).value_or(QString());
    if (!trimmedText(command).isEmpty())
        (void)pass.run(
            PassStep::AfterArrivals,
            {.text = command,
             .seconds = cMostAfterArrivals,
             .input = pathsOf(arrivals),
             .variables = {{cArrivalsVariable, QByteArray::number(qint64(arrivals.size()))}}});
}

QString PassBody::rsyncTemplate() const {
    return fParts.defaults.stringForKey(prefRsyncCommandString1)
        .value_or(cMissingRsyncCommandString1.toString());
}

QString PassBody::keyFilePath() const {
    return expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
}

void PassBody::logInside(QStringView operation, QStringView detail) const {
    fParts.console.log(insideLine(cViewControllerTypeName, operation, detail));
}

void PassBody::printResult(QStringView heading, const QString& output) const {
    fParts.console.print({heading.toString(), output, QStringLiteral("\n======== done ========")});
}

} // namespace kelvo
