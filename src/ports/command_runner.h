// CommandRunner: runs one shell command line and tells everything about its end.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <optional>

namespace kelvo {

/// Seconds that a bounded command is given beyond the time-out that it names itself.
inline constexpr double cCommandGrace = 30;

struct Command {
    QString text; ///< one complete command line, passed to the shell as it stands

    /// For a command that must not hold its caller for ever: after so many seconds (0 or more)
    /// everything in its session is asked to end, 2 s later forced. What was captured so far is
    /// the result, about 3 s later at worst, and one line in the system log says so. A process that
    /// has left the session lives on and is no longer waited for. A command that ends in time
    /// notices no difference.
    std::optional<double> seconds = {};

    /// Gets the standard output piece by piece as it arrives, on the thread that called `run`;
    /// characters may be split between two pieces. While it runs nothing more is read.
    std::function<void(QByteArrayView)> received = {};
};

struct CommandResult {
    /// All of the standard output, untrimmed, read as UTF-8 with every broken sequence shown as
    /// U+FFFD; empty when the command printed nothing, could not be started, or the program is
    /// quitting.
    QString output;
    QString errors; ///< the first 64 KiB of the error output
    /// As a shell reports it: 124 for a command whose time was up, 126 for one that could not be
    /// started, 128 + n for an end by signal n; the shell's own when it had ended in time and only
    /// its output was still held open. Nothing when the command was given up because the program
    /// is quitting.
    std::optional<int> exitStatus;
};

class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    /// Blocks until the command has ended and its standard output is closed. Any thread, several at
    /// once; peak memory stays under three times the bytes of output. The command has no terminal
    /// and an empty standard input: nothing can wait for a prompt.
    virtual CommandResult run(const Command& command) = 0;
};

/// Runs a command on somebody's behalf.
using RunCommand = std::function<CommandResult(const Command&)>;

/// What `command` printed, and nothing else of its end.
inline QString outputWhenRunAsShellCommand(CommandRunner& runner, const QString& command) {
    return runner.run({.text = command}).output;
}

/// The same, bounded.
inline QString outputWithin(CommandRunner& runner, double seconds, const QString& command) {
    return runner.run({.text = command, .seconds = seconds}).output;
}

} // namespace kelvo
