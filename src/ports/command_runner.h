// CommandRunner: runs one shell command line and tells everything about its end.
#pragma once

#include <QString>

#include <optional>

namespace kelvo {

struct CommandResult {
    QString output; ///< as ShellRunner returns it
    QString errors; ///< the first 64 KiB of the error output
    /// As a shell reports it: 124 for a command whose time was up, 126 for one that could not be
    /// started, 128 + n for an end by signal n. Nothing when the command was given up because the
    /// program is quitting.
    std::optional<int> exitStatus;
};

class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    /// As ShellRunner::outputWhenRunAsShellCommand, the rules for threads and memory included.
    virtual CommandResult run(const QString& command) = 0;

    /// As ShellRunner::outputWithin. The exit status is the shell's own when it had ended in time
    /// and only its output was still held open.
    virtual CommandResult runWithin(double seconds, const QString& command) = 0;
};

} // namespace kelvo
