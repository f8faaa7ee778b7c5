// RemoteHostValidation: proves over ssh that the remote account is the one the user typed.
#pragma once

#include "ports/command_runner.h"
#include "support/host_verdict.h"

#include <functional>

namespace kelvo {

class Console;
class FileManager;
class UserDefaults;

/// What the answer of `whoami` over ssh means.
struct JudgedAnswer {
    HostVerdict verdict;
    QString remark; ///< the line for the console; empty when there is none

    bool operator==(const JudgedAnswer&) const = default;
};

/// Judges `answer`, the trimmed output of the command. Only its beginning counts, in any letter
/// case; while the key file is missing an answer of another kind is the verdict itself.
JudgedAnswer judgedAnswer(const QString& answer, const QString& username, bool keyFileExists);

/// The command that asks: `timeout` in seconds, `target` as user@host. Both texts stay one word.
QString whoamiCommand(qint64 timeout, const QString& keyPath, const QString& target);

/// What the validation works with; the references outlive it.
struct RemoteHostValidationParts {
    const UserDefaults& defaults;
    CommandRunner& commands;
    const FileManager& files;
    Console& console;
    /// Hears each verdict on the thread that asked, but for that of a command which was given up,
    /// with the whole end of the command; `target` is user@host, empty when one of them is not set.
    /// Where nobody was asked the end has no status. May be empty.
    std::function<void(const QString& target, const HostVerdict&, const CommandResult&)> answered =
        {};
    /// ssh's own time-out ends with the exchange of keys; a host that stalls after that is waited
    /// for so many seconds beyond it.
    double grace = cCommandGrace;
};

/// Any thread.
class RemoteHostValidation {
public:
    explicit RemoteHostValidation(RemoteHostValidationParts parts);

    /// Asks the remote host who we are there. `timeout` is ssh's connect time-out in seconds.
    /// Blocks. The second form runs its command by `run`. Nobody is asked while user or host is not
    /// set, nor when one of them or the key's path cannot stand in a command; that is logged.
    HostVerdict validateRemoteHostWithWhoami(qint64 timeout) const;
    HostVerdict validateRemoteHostWithWhoami(qint64 timeout, const RunCommand& run) const;

private:
    struct Asked {
        QString target;
        HostVerdict verdict;
        CommandResult result;
        bool givenUp = false; ///< the command was cancelled, or the program is quitting
    };
    Asked ask(qint64 timeout, const RunCommand& run) const;

    const RemoteHostValidationParts fParts;
};

} // namespace kelvo
