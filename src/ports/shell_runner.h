// ShellRunner: runs one shell command line and hands back what it printed.
#pragma once

#include <QString>

namespace kelvo {

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
};

} // namespace kelvo
