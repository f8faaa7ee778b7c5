// PosixShellRunner: runs commands through /bin/sh, each in a session of its own.
#pragma once

#include "adapters/posix/file_descriptor.h"
#include "ports/shell_runner.h"

#include <sys/types.h>

#include <mutex>
#include <set>

namespace kelvo {

class Console;

/// A command starts with default signal settings, no terminal, standard input at its end, and none
/// of the program's descriptors. What it writes to standard error goes to the system log.
class PosixShellRunner final : public ShellRunner {
public:
    explicit PosixShellRunner(Console& console);
    ~PosixShellRunner() override;
    PosixShellRunner(const PosixShellRunner&) = delete;
    PosixShellRunner& operator=(const PosixShellRunner&) = delete;

    QString outputWhenRunAsShellCommand(const QString& command) override;

    /// For the orderly quit: no command starts any more, and every process that any command has
    /// left, in whatever session, is asked to end, then, after two seconds, made to. Callers that
    /// wait for a command get what it had written. Any thread; returns when nothing is left, after
    /// about three seconds at most.
    void endAll();

private:
    struct Child;

    bool start(const QString& command, Child& child);
    QString readToEnd(Child& child);
    void drainErrors(Child& child);
    void finish(Child& child);
    std::set<pid_t> collectEnded();

    Console& fConsole;
    FileDescriptor fEnding; // readable once endAll was called
    std::mutex fMutex;
    std::set<pid_t> fRunning; // shells not collected yet: their ids are still theirs
    bool fEnded = false;
};

} // namespace kelvo
