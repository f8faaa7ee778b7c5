// RemoteHostValidation: proves over ssh that the remote account is the one the user typed.
#pragma once

#include "ports/host_validator.h"
#include "ports/shell_runner.h"

namespace kelvo {

class Console;
class FileManager;
class UserDefaults;

/// What the answer of `whoami` over ssh means.
struct HostVerdict {
    QString verdict;
    QString remark; ///< the line for the console; empty when there is none

    bool operator==(const HostVerdict&) const = default;
};

/// Judges `answer`, the trimmed output of the command. Only its beginning counts, in any letter
/// case; while the key file is missing an answer of another kind is the verdict itself.
HostVerdict hostVerdict(const QString& answer, const QString& username, bool keyFileExists);

/// The command that asks: `timeout` in seconds, `target` as user@host.
QString whoamiCommand(qint64 timeout, const QString& keyPath, const QString& target);

class RemoteHostValidation final : public HostValidator {
public:
    /// ssh's own time-out ends with the exchange of keys; a host that stalls after that is waited
    /// for `grace` seconds beyond it.
    RemoteHostValidation(UserDefaults& defaults, ShellRunner& shell, FileManager& files,
                         Console& console, double grace = cCommandGrace)
        : fDefaults(defaults), fShell(shell), fFiles(files), fConsole(console), fGrace(grace) {}

    QString validateRemoteHostWithWhoami(qint64 timeout) override;

private:
    UserDefaults& fDefaults;
    ShellRunner& fShell;
    FileManager& fFiles;
    Console& fConsole;
    const double fGrace;
};

} // namespace kelvo
