// CommandRunner: runs one shell command line and tells everything about its end.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>
#include <limits>
#include <map>
#include <optional>

namespace kelvo {

/// Seconds that a bounded command is given beyond the time-out that it names itself.
inline constexpr double cCommandGrace = 30;

/// Names a command while it runs.
using CommandId = qint64;

/// How much of a command's standard output is taken, in bytes: nobody over there decides how much
/// memory we need.
struct OutputBounds {
    /// Up to so many the whole is kept; of more, the first and the last half. The rest is read and
    /// counted.
    qsizetype kept = qsizetype{4} * 1024 * 1024;
    /// A command that prints more is ended as one whose time is up, and said so in the system log.
    qint64 most = std::numeric_limits<qint64>::max();
};

/// For a command of which some lines are expected.
inline constexpr OutputBounds cShortAnswer{.kept = qsizetype{64} * 1024,
                                           .most = qint64{1024} * 1024};

struct Command {
    QString text; ///< one complete command line, passed to the shell as it stands

    /// For a command that must not hold its caller for ever: after so many seconds (0 or more)
    /// everything in its session is asked to end, 2 s later forced. What was captured so far is
    /// the result, about 3 s later at worst, and one line in the system log says so. A process that
    /// has left the session lives on and is no longer waited for. A command that ends in time
    /// notices no difference.
    std::optional<double> seconds = {};

    OutputBounds bounds = {};

    /// For a command that must leave nothing behind: once it has ended, with its standard output
    /// closed, what it has left running in its session is ended as `cancel` does it, before its
    /// caller goes on; one line in the system log says so.
    bool leavesNothing = false;

    /// Gets all of the standard output, whatever is kept of it, piece by piece as it arrives, on
    /// the thread that called `run`; characters may be split between two pieces. While it runs
    /// nothing more is read.
    std::function<void(QByteArrayView)> received = {};

    /// Told once that the command has been started, on the thread that called `run`, before
    /// anything is received. A command that cannot be started tells nothing.
    std::function<void(CommandId)> started = {};

    QByteArray input = {};                           ///< its standard input; without it, empty
    std::map<QByteArray, QByteArray> variables = {}; ///< its environment, beside what it inherits
};

/// A file that a command is writing.
struct FileBeingWritten {
    QByteArray path; ///< from the folder that the writer stands in, if it lies in there
    qint64 size = 0; ///< in bytes, so far

    bool operator==(const FileBeingWritten&) const = default;
};

struct CommandResult {
    /// The standard output, untrimmed, read as UTF-8 with every broken sequence shown as U+FFFD;
    /// where bytes are left out of it stands the line "… N bytes left out …". Empty when the
    /// command printed nothing, could not be started, or the program is quitting.
    QString output;
    /// The error output in the same way; of more than 48 KiB the first and the last 24.
    QString errors;
    /// As a shell reports it: 124 for a command whose time was up, 126 for one that could not be
    /// started, 128 + n for an end by signal n, and so 141, a closed pipe, for one that printed
    /// more than it may; the shell's own when it had ended in time and only its output was still
    /// held open. Nothing when the command was given up because the program is quitting, or because
    /// it was cancelled.
    std::optional<int> exitStatus;
    qint64 leftOut = 0; ///< bytes of the standard output that `output` does not hold
};

class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    /// Blocks until the command has ended and its standard output is closed. Any thread, several at
    /// once; takes at most five times the bytes that are kept in memory, however much is printed.
    /// Bytes left out are counted in one line of the system log. The command has no terminal:
    /// nothing can wait for a prompt.
    virtual CommandResult run(const Command& command) = 0;

    /// Ends a running command as the quit of the program does: everything in its session is asked
    /// to end, 2 s later forced, and its caller gets what was captured so far. Any thread; returns
    /// at once. A command that has ended is nobody's business.
    virtual void cancel(CommandId command) = 0;

    /// A file that something a running command has started has open for writing: by its own name
    /// while rsync keeps it under another. Nothing when there is none, and where that cannot be
    /// told. Any thread; costs a look at each of the command's processes.
    virtual std::optional<FileBeingWritten> fileBeingWritten(CommandId) const { return {}; }
};

/// Runs a command on somebody's behalf.
using RunCommand = std::function<CommandResult(const Command&)>;

/// What `command` printed, and nothing else of its end.
inline QString outputWhenRunAsShellCommand(CommandRunner& runner, const QString& command) {
    return runner.run({.text = command}).output;
}

/// The same of a command that has some lines to say, bounded in time and output.
inline QString outputWithin(CommandRunner& runner, double seconds, const QString& command) {
    return runner.run({.text = command, .seconds = seconds, .bounds = cShortAnswer}).output;
}

} // namespace kelvo
