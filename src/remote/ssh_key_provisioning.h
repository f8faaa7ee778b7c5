// SshKeyProvisioning: makes the program's key pair and has it installed on the remote Mac.
#pragma once

#include "ports/terminal.h"

#include <QString>

#include <functional>

namespace kelvo {

class CommandFiles;
class Console;
class FileManager;
class CommandRunner;
class UserDefaults;
class Workspace;
struct RemoteAccount;

/// Makes the pair at `keyPath`, without a pass phrase.
QString keyGenerationCommand(const QString& keyPath);

/// Installs the public half of `keyPath`; asks for the password on a terminal.
QString keyInstallationCommand(const QString& keyPath, const RemoteAccount& account);

/// What the provisioning works with; the references outlive it.
struct SshKeyProvisioningParts {
    const UserDefaults& defaults;
    const FileManager& files;
    Console& console;
    CommandRunner& shell;
    /// Asks the remote host with this connect time-out in seconds, and blocks.
    std::function<void(qint64 timeout)> validate;
    CommandFiles& commandFiles;
    Workspace& workspace;
    /// A script that was opened in a terminal has ended, or no terminal could be opened for
    /// `command`.
    std::function<void(TerminalOutcome, const QString& command)> scriptEnded;
    /// What the title of the terminal window says that asks for the password of this account.
    std::function<QString(const RemoteAccount&)> windowTitle;
    /// The files of the pair are not what they were.
    std::function<void()> keysChanged;
};

/// Main thread only; blocks while commands run, but never for the terminal window.
class SshKeyProvisioning {
public:
    explicit SshKeyProvisioning(SshKeyProvisioningParts parts);

    /// The whole sequence: makes the pair unless it is complete, then opens the installation.
    void ibGenerateSSHKeyStuff();

    /// Makes the pair unless both halves are there. False only when there is no home folder for it.
    bool createNewPrivatePublicKeysConditionally();

    /// Makes a new pair in place of what is there.
    void createNewPrivatePublicKeys();

    /// Opens the installation in a terminal window. Nothing happens while user or host is not set;
    /// one that cannot stand in a command is logged and opens nothing.
    void copyPublicKeyToRemoteHost();

    /// Makes a new pair in a terminal window, and shows the folder of its script.
    void createNewPrivatePublicKeysOLD();

private:
    struct KeyPair {
        QString privateKey;
        QString publicKey; ///< empty when it cannot be formed
    };

    KeyPair keyPair() const;
    void removeBoth(const KeyPair& pair);
    std::function<void(TerminalOutcome)> tellOf(const QString& command) const;
    void logEntry(QStringView operation) const;

    const SshKeyProvisioningParts fParts;
};

} // namespace kelvo
