#include "app/commands/setup_key.h"

#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/text.h"
#include "ui/setup_steps.h"

#include <utility>

namespace kelvo {

void SetupKey::NoticedTerminal::openCommandFile(const QString& path, const QString& command,
                                                const QString& title,
                                                std::function<void(TerminalOutcome)> ended) {
    isUsed = true;
    fTerminal.openCommandFile(path, command, title, std::move(ended));
}

SetupKey::SetupKey(const Parts& parts)
    : fParts(parts), fTerminal(parts.terminal),
      fKept(parts.files, expandingTilde(cPrivateKeyFile, parts.files.homeDirectory())),
      fTasks({.mainQueue = parts.mainQueue,
              .bgQueue = parts.bgQueue,
              .shell = parts.commands,
              .show = [this](RemoteTaskKind kind) { taskShown(kind); }}),
      fCommandFiles({.console = parts.console, .files = parts.files, .terminal = fTerminal}),
      fValidation({.defaults = parts.settings,
                   .commands = parts.commands,
                   .files = parts.files,
                   .console = parts.console}),
      fTest({.defaults = parts.settings,
             .files = parts.files,
             .console = parts.console,
             .mainQueue = parts.mainQueue,
             .bgQueue = parts.bgQueue,
             .shell = parts.commands,
             .showAlert = [](const QString&, const QString&, const auto&) {},
             .showBusy = [](bool) {},
             .answered =
                 [this](const QString& target, const CommandResult& result) {
                     std::exchange(fAnswered, nullptr)(answerOfTest(target, result));
                 },
             .refused =
                 [this](const QString& target, const QString& fault) {
                     std::exchange(fAnswered, nullptr)(HostAnswer{
                         .target = target, .cause = PassCause::SettingsRefused, .lastLine = fault});
                 }}),
      fProvisioning({.defaults = parts.settings,
                     .files = parts.files,
                     .console = parts.console,
                     .mainQueue = parts.mainQueue,
                     .tasks = fTasks,
                     .validate =
                         [this](qint64 timeout, const RunCommand& run) {
                             (void)fValidation.validateRemoteHostWithWhoami(timeout, run);
                         },
                     .commandFiles = fCommandFiles,
                     .workspace = parts.workspace,
                     .scriptEnded =
                         [this](TerminalOutcome outcome, const QString&) {
                             end(outcome == TerminalOutcome::Ended
                                     ? QString()
                                     : QStringLiteral("its installation could not be started"));
                         },
                     .windowTitle =
                         [](const RemoteAccount& account) {
                             return passwordTitle(account.user, account.host);
                         },
                     .keysChanged = [] {}}) {}

void SetupKey::test(std::function<void(const std::optional<HostAnswer>&)> answered) {
    fAnswered = std::move(answered);
    fTest.ibTestShellCommand222();
}

void SetupKey::install(bool anew, std::function<void(const QString&)> done) {
    fDone = std::move(done);
    begin(anew);
}

void SetupKey::begin(bool anew) {
    fMakesFirst = anew;
    if (anew)
        fProvisioning.createNewPrivatePublicKeys(guard());
    else
        fProvisioning.ibGenerateSSHKeyStuff(guard());
}

/// A task that is over without a script in the terminal has come to nothing.
void SetupKey::taskShown(RemoteTaskKind kind) {
    if (kind != RemoteTaskKind::None || fTerminal.isUsed || !fDone)
        return;
    if (fKeepFault)
        end(QStringLiteral("the key of today could not be kept (%1)").arg(*fKeepFault));
    else if (std::exchange(fMakesFirst, false))
        begin(false);
    else
        end(QStringLiteral("it could not be made, or there is no safe place for the script that "
                           "installs it"));
}

void SetupKey::end(const QString& why) {
    fTerminal.isUsed = false;
    if (fDone)
        std::exchange(fDone, nullptr)(why);
}

PairGuard SetupKey::guard() {
    return {.before =
                [this] {
                    fKeepFault = fMade ? FileFault() : fKept.keep(fParts.now());
                    fMade = fMade || !fKeepFault;
                    return !fKeepFault;
                },
            .after =
                [this] {
                    if (fKept.isMissing())
                        fKeepFault = fKept.putBack();
                }};
}

QString SetupKey::undo() {
    if (!std::exchange(fMade, false))
        return {};
    const QString path = expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
    for (const QString& half : {path, QString(path + u".pub")}) {
        if (!fParts.files.fileExistsAtPath(half))
            continue;
        if (const FileFault fault = fParts.files.removeItem(half))
            return *fault;
    }
    return fKept.isMissing() ? fKept.putBack().value_or(QString()) : QString();
}

} // namespace kelvo
