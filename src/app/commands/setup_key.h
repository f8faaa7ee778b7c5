// SetupKey: makes the key and has it installed from a terminal, and can take that back.
#pragma once

#include "engine/host_answer.h"
#include "remote/command_files.h"
#include "remote/connection_check.h"
#include "remote/kept_pair.h"
#include "remote/remote_host_validation.h"
#include "remote/remote_task.h"
#include "remote/ssh_key_provisioning.h"

#include <QDateTime>

#include <functional>
#include <optional>

namespace kelvo {

class UserDefaults;
class Workspace;

/// The window's own steps and files. Main thread only. Both queues must have ended before this is
/// destroyed.
class SetupKey {
public:
    struct Parts {
        UserDefaults& settings;
        FileManager& files;
        Console& console;
        DispatchQueue& mainQueue;
        BackgroundQueue& bgQueue;
        CommandRunner& commands;
        Terminal& terminal;
        Workspace& workspace;
        std::function<QDateTime()> now; ///< any thread
    };

    /// All of it outlives this.
    explicit SetupKey(const Parts& parts);

    /// The connection test; `answered` gets its verdict, nothing when it was given up.
    void test(std::function<void(const std::optional<HostAnswer>&)> answered);

    /// Makes a pair where none is complete, or in any case when `anew`, and installs it in the
    /// terminal; a pair that is replaced is kept. `done` gets why the installation was not begun,
    /// empty when it has ended, well or badly.
    void install(bool anew, std::function<void(const QString&)> done);

    /// Takes a pair that `install` has made away again and puts that of before back. Once both
    /// queues have ended; empty when it went well.
    QString undo();

    /// Where the key of before was kept; empty when there was none.
    QString keptPath() const { return fKept.path(); }

private:
    /// Notices when a script is really begun.
    class NoticedTerminal final : public Terminal {
    public:
        explicit NoticedTerminal(Terminal& terminal) : fTerminal(terminal) {}
        void openCommandFile(const QString& path, const QString& command, const QString& title,
                             std::function<void(TerminalOutcome)> ended) override;
        bool isUsed = false;

    private:
        Terminal& fTerminal;
    };

    void begin(bool anew);
    void taskShown(RemoteTaskKind kind);
    void end(const QString& why);
    PairGuard guard();

    const Parts fParts;
    NoticedTerminal fTerminal;
    KeptPair fKept;
    FileFault fKeepFault;
    bool fMade = false;
    bool fMakesFirst = false;
    std::function<void(const std::optional<HostAnswer>&)> fAnswered;
    std::function<void(const QString&)> fDone;
    RemoteTasks fTasks;
    CommandFiles fCommandFiles;
    RemoteHostValidation fValidation;
    ConnectionCheck fTest;
    SshKeyProvisioning fProvisioning;
};

} // namespace kelvo
