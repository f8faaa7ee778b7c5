// ShellRunner: runs one shell command line and hands back what it printed.
#pragma once

#include <QString>

namespace kelvo {

/// Seconds that a bounded command is given beyond the time-out that it names itself.
inline constexpr double cCommandGrace = 30;

class ShellRunner {
public:
    virtual ~ShellRunner() = default;

    /// Runs `command` through the shell as it stands and blocks until it has ended and its
    /// standard output is closed. Returns all of that output, untrimmed, read as UTF-8 with every
    /// broken sequence shown as U+FFFD; the empty text when the command printed nothing, could not
    /// be started, or the program is quitting. The exit status is not reported. Any thread,
    /// several at once; peak memory stays under three times the bytes of output.
    /// The command has no terminal and an empty standard input: nothing can wait for a prompt.
    virtual QString outputWhenRunAsShellCommand(const QString& command) = 0;

    /// The same for a command that must not hold its caller for ever. After `seconds` (0 or more)
    /// everything in the command's session is asked to end, 2 s later forced; what was captured so
    /// far is returned, about 3 s later at worst, and one line in the system log says so. A process
    /// that has left the session lives on and is no longer waited for. A command that ends in time
    /// notices no difference.
    virtual QString outputWithin(double seconds, const QString& command) = 0;
};

} // namespace kelvo
