#include "remote/ssh_key_provisioning.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "ports/workspace.h"
#include "remote/command_files.h"
#include "settings/remote_account.h"
#include "support/file_url.h"
#include "support/key_file.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <memory>
#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cTraceTimeout = 2; // seconds

QString trueOrFalse(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

QString keyGenerationCommand(const QString& keyPath) {
    return u"/usr/bin/ssh-keygen  2>&1 -N \"\" -f \"" + insideDoubleQuotes(keyPath) + u'"';
}

QString keyInstallationCommand(const QString& keyPath, const RemoteAccount& account) {
    return u"/usr/bin/ssh-copy-id 2>&1 -i \"" + insideDoubleQuotes(keyPath) + u"\"  \"" +
           insideDoubleQuotes(account.destination()) + u'"';
}

SshKeyProvisioning::SshKeyProvisioning(SshKeyProvisioningParts parts) : fParts(std::move(parts)) {}

void SshKeyProvisioning::ibGenerateSSHKeyStuff(const PairGuard& guard) {
    const RemoteTaskRef task = fParts.tasks.begin(RemoteTaskKind::SettingUpKey);
    if (!task)
        return;
    logEntry(u"ibGenerateSSHKeyStuff(_:)");
    const auto script = std::make_shared<Script>();
    task->inBackground(
        [this, guard, script](RemoteTask& running) {
            fParts.validate(cTraceTimeout, running.runner());
            if (running.isCancelled())
                return;
            (void)createNewPrivatePublicKeysConditionally(running, guard);
            if (!running.isCancelled())
                *script = copyPublicKeyToRemoteHost(running);
        },
        [this, script] {
            if (!script->path.isEmpty())
                fParts.commandFiles.openScript(
                    script->path, script->command,
                    [scriptEnded = fParts.scriptEnded, command = script->command](
                        TerminalOutcome outcome) { scriptEnded(outcome, command); },
                    script->title);
        });
}

void SshKeyProvisioning::createNewPrivatePublicKeys(const PairGuard& guard) {
    const RemoteTaskRef task = fParts.tasks.begin(RemoteTaskKind::MakingKey);
    if (task)
        task->inBackground(
            [this, guard](RemoteTask& running) { createNewPrivatePublicKeys(running, guard); },
            [] {});
}

// -- the pair

bool SshKeyProvisioning::createNewPrivatePublicKeysConditionally(RemoteTask& task,
                                                                 const PairGuard& guard) {
    logEntry(u"createNewPrivatePublicKeysConditionally(_:)");
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return false;
    if (fParts.files.fileExistsAtPath(pair.privateKey) &&
        fParts.files.fileExistsAtPath(pair.publicKey))
        return true;
    createNewPrivatePublicKeys(task, guard);
    return true;
}

/// From the removal on it goes to its end: the guard puts right what a cancelled command leaves.
void SshKeyProvisioning::createNewPrivatePublicKeys(RemoteTask& task, const PairGuard& guard) {
    logEntry(u"createNewPrivatePublicKeys(_:)");
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return;
    if (guard.before && !guard.before()) {
        task.giveUp();
        return;
    }
    removeBoth(pair);
    const QString output = task.run({.text = keyGenerationCommand(pair.privateKey),
                                     .seconds = cCommandGrace,
                                     .bounds = cShortAnswer})
                               .output;
    const QString rule(40, u'=');
    fParts.console.print(rule);
    fParts.console.print(u"result = " + output);
    fParts.console.print(rule + u"\n\n");
    if (guard.after)
        guard.after();
    tellOfChange();
}

/// ssh-keygen would stop and ask before it overwrote one of them.
void SshKeyProvisioning::removeBoth(const KeyPair& pair) {
    const bool privateGone = fParts.commandFiles.removeItemIfExists(pair.privateKey);
    const bool publicGone = fParts.commandFiles.removeItemIfExists(pair.publicKey);
    fParts.console.print(u"status1 = " + trueOrFalse(privateGone));
    fParts.console.print(u"status2 = " + trueOrFalse(publicGone));
}

void SshKeyProvisioning::tellOfChange() const {
    fParts.mainQueue.async([this] { fParts.keysChanged(); });
}

SshKeyProvisioning::KeyPair SshKeyProvisioning::keyPair() const {
    const QString home = fParts.files.homeDirectory();
    if (home.isEmpty())
        return {};
    const QString privateKey = expandingTilde(cPrivateKeyFile, home);
    return {privateKey, QString(privateKey + u".pub")};
}

// -- in a terminal window

SshKeyProvisioning::Script SshKeyProvisioning::copyPublicKeyToRemoteHost(RemoteTask& task) {
    logEntry(u"copyPublicKeyToRemoteHost()");
    const auto account = remoteAccount(fParts.defaults);
    const QString privateKey = keyPair().privateKey;
    if (!account || privateKey.isEmpty())
        return {};
    if (const QString fault = accountFault(*account, privateKey); !fault.isEmpty()) {
        fParts.console.log(insideLine(u"ViewController", u"copyPublicKeyToRemoteHost()",
                                      QString(u".......REFUSED: " + fault)));
        return {};
    }
    const QString command = keyInstallationCommand(privateKey, *account);
    return {.path = fParts.commandFiles.writeCommandFile(command, task.runner()),
            .command = command,
            .title = fParts.windowTitle(*account)};
}

/// Once its halves are gone the new pair is made, whatever is cancelled then.
void SshKeyProvisioning::createNewPrivatePublicKeysOLD(const PairGuard& guard) {
    const RemoteTaskRef task = fParts.tasks.begin(RemoteTaskKind::MakingKey);
    if (!task)
        return;
    logEntry(u"createNewPrivatePublicKeysOLD(_:)");
    task->inBackground(
        [this, guard](RemoteTask&) {
            const Script script = replaceByScript(guard);
            if (script.path.isEmpty())
                return;
            fParts.mainQueue.async([this, guard, script] {
                fParts.commandFiles.openScript(
                    script.path, script.command,
                    [this, guard, command = script.command](TerminalOutcome outcome) {
                        scriptOfPairEnded(outcome, command, guard);
                    });
                fParts.workspace.openUrl(fileUrl(script.path.first(script.path.lastIndexOf(u'/'))));
            });
        },
        [] {});
}

SshKeyProvisioning::Script SshKeyProvisioning::replaceByScript(const PairGuard& guard) {
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return {};
    if (guard.before && !guard.before())
        return {};
    removeBoth(pair);
    tellOfChange();
    const QString command =
        u"/usr/bin/ssh-keygen -N \"\" -f \"" + insideDoubleQuotes(pair.privateKey) + u'"';
    const QString script = fParts.commandFiles.scriptPath();
    if (!script.isEmpty() && fParts.commandFiles.removeOldScript(script) &&
        fParts.commandFiles.writeScript(script, command)) {
        fParts.console.print(fParts.commandFiles.chmodAsExecutableBySystemCall(script));
        return {script, command};
    }
    if (guard.after)
        guard.after();
    return {};
}

void SshKeyProvisioning::scriptOfPairEnded(TerminalOutcome outcome, const QString& command,
                                           const PairGuard& guard) {
    fParts.tasks.whenFree(RemoteTaskKind::MakingKey,
                          [this, outcome, command, guard](const RemoteTaskRef& task) {
                              task->inBackground(
                                  [this, outcome, command, guard](RemoteTask&) {
                                      if (guard.after)
                                          guard.after();
                                      fParts.mainQueue.async([this, outcome, command] {
                                          fParts.scriptEnded(outcome, command);
                                      });
                                  },
                                  [] {});
                          });
}

void SshKeyProvisioning::logEntry(QStringView operation) const {
    fParts.console.log(insideLine(u"ViewController", operation));
}

} // namespace kelvo
