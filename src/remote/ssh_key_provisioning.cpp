#include "remote/ssh_key_provisioning.h"

#include "ports/command_runner.h"
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

void SshKeyProvisioning::ibGenerateSSHKeyStuff() {
    logEntry(u"ibGenerateSSHKeyStuff(_:)");
    fParts.validate(cTraceTimeout);
    (void)createNewPrivatePublicKeysConditionally();
    copyPublicKeyToRemoteHost();
}

// -- the pair

bool SshKeyProvisioning::createNewPrivatePublicKeysConditionally() {
    logEntry(u"createNewPrivatePublicKeysConditionally(_:)");
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return false;
    if (fParts.files.fileExistsAtPath(pair.privateKey) &&
        fParts.files.fileExistsAtPath(pair.publicKey))
        return true;
    createNewPrivatePublicKeys();
    return true;
}

void SshKeyProvisioning::createNewPrivatePublicKeys() {
    logEntry(u"createNewPrivatePublicKeys(_:)");
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return;
    removeBoth(pair);
    const QString output =
        outputWithin(fParts.shell, cCommandGrace, keyGenerationCommand(pair.privateKey));
    const QString rule(40, u'=');
    fParts.console.print(rule);
    fParts.console.print(u"result = " + output);
    fParts.console.print(rule + u"\n\n");
    fParts.keysChanged();
}

/// ssh-keygen would stop and ask before it overwrote one of them.
void SshKeyProvisioning::removeBoth(const KeyPair& pair) {
    const bool privateGone = fParts.commandFiles.removeItemIfExists(pair.privateKey);
    const bool publicGone = fParts.commandFiles.removeItemIfExists(pair.publicKey);
    fParts.console.print(u"status1 = " + trueOrFalse(privateGone));
    fParts.console.print(u"status2 = " + trueOrFalse(publicGone));
}

SshKeyProvisioning::KeyPair SshKeyProvisioning::keyPair() const {
    const QString home = fParts.files.homeDirectory();
    if (home.isEmpty())
        return {};
    const QString privateKey = expandingTilde(cPrivateKeyFile, home);
    return {privateKey, QString(privateKey + u".pub")};
}

// -- in a terminal window

void SshKeyProvisioning::copyPublicKeyToRemoteHost() {
    logEntry(u"copyPublicKeyToRemoteHost()");
    const auto account = remoteAccount(fParts.defaults);
    const QString privateKey = keyPair().privateKey;
    if (!account || privateKey.isEmpty())
        return;
    if (const QString fault = accountFault(*account, privateKey); !fault.isEmpty()) {
        fParts.console.log(insideLine(u"ViewController", u"copyPublicKeyToRemoteHost()",
                                      QString(u".......REFUSED: " + fault)));
        return;
    }
    const QString command = keyInstallationCommand(privateKey, *account);
    (void)fParts.commandFiles.executeAsCommandFile(command, tellOf(command),
                                                   fParts.windowTitle(*account));
}

void SshKeyProvisioning::createNewPrivatePublicKeysOLD() {
    logEntry(u"createNewPrivatePublicKeysOLD(_:)");
    const KeyPair pair = keyPair();
    if (pair.publicKey.isEmpty())
        return;
    removeBoth(pair);
    fParts.keysChanged();
    const QString script = fParts.commandFiles.scriptPath();
    if (script.isEmpty())
        return;
    if (!fParts.commandFiles.removeOldScript(script))
        return;
    const QString command =
        u"/usr/bin/ssh-keygen -N \"\" -f \"" + insideDoubleQuotes(pair.privateKey) + u'"';
    if (!fParts.commandFiles.writeScript(script, command))
        return;
    fParts.console.print(fParts.commandFiles.chmodAsExecutableBySystemCall(script));
    fParts.commandFiles.openScript(script, command, tellOf(command));
    fParts.workspace.openUrl(fileUrl(script.first(script.lastIndexOf(u'/'))));
}

std::function<void(TerminalOutcome)> SshKeyProvisioning::tellOf(const QString& command) const {
    return [scriptEnded = fParts.scriptEnded, command](TerminalOutcome outcome) {
        scriptEnded(outcome, command);
    };
}

void SshKeyProvisioning::logEntry(QStringView operation) const {
    fParts.console.log(insideLine(u"ViewController", operation));
}

} // namespace kelvo
