// SshKeyProvisioning: makes the program's key pair and has it installed on the remote Mac.
#pragma once

#include "ports/command_runner.h"
#include "ports/terminal.h"
#include "remote/remote_task.h"

#include <QString>

#include <functional>

namespace kelvo {

class CommandFiles;
class Console;
class FileManager;
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
    DispatchQueue& mainQueue;
    RemoteTasks& tasks;
    /// Asks the remote host by `run`, with this connect time-out in seconds, and blocks. Called on
    /// a background thread.
    std::function<void(qint64 timeout, const RunCommand& run)> validate;
    CommandFiles& commandFiles;
    Workspace& workspace;
    /// A script that was opened in a terminal has ended, or no terminal could be opened for
    /// `command`.
    std::function<void(TerminalOutcome, const QString& command)> scriptEnded;
    /// What the title of the terminal window says that asks for the password of this account.
    /// Called on a background thread.
    std::function<QString(const RemoteAccount&)> windowTitle;
    /// The files of the pair are not what they were. Main thread.
    std::function<void()> keysChanged;
};

/// What is done around the replacement of a pair; on a background thread. Either may be empty.
struct PairGuard {
    std::function<bool()> before = {}; ///< false: the pair stays, and nothing more is done
    std::function<void()> after = {};  ///< a new pair was made, or none came of it
};

/// Main thread only. Each action returns at once and is one task, whose steps run in order; while
/// another task runs it does nothing. Both queues must have ended before this is destroyed.
class SshKeyProvisioning {
public:
    explicit SshKeyProvisioning(SshKeyProvisioningParts parts);

    /// The whole sequence: asks the host, makes the pair unless it is complete, then opens the
    /// installation in a terminal window. No window opens while user or host is not set; one that
    /// cannot stand in a command is logged.
    void ibGenerateSSHKeyStuff(const PairGuard& guard = {});

    /// Makes a new pair in place of what is there.
    void createNewPrivatePublicKeys(const PairGuard& guard = {});

    /// Makes a new pair in a terminal window, and shows the folder of its script.
    void createNewPrivatePublicKeysOLD(const PairGuard& guard = {});

private:
    struct KeyPair {
        QString privateKey;
        QString publicKey; ///< empty when it cannot be formed
    };
    struct Script {
        QString path; ///< empty when there is none
        QString command;
        QString title = {}; ///< of the window it runs in
    };

    // On a background thread.
    bool createNewPrivatePublicKeysConditionally(RemoteTask& task, const PairGuard& guard);
    void createNewPrivatePublicKeys(RemoteTask& task, const PairGuard& guard);
    Script copyPublicKeyToRemoteHost(RemoteTask& task);
    Script replaceByScript(const PairGuard& guard);
    void removeBoth(const KeyPair& pair);
    void tellOfChange() const;

    KeyPair keyPair() const;
    void scriptOfPairEnded(TerminalOutcome outcome, const QString& command, const PairGuard& guard);
    void logEntry(QStringView operation) const;

    const SshKeyProvisioningParts fParts;
};

} // namespace kelvo
