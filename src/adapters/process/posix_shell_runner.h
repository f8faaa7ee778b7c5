// PosixShellRunner: runs command lines through /bin/sh, each in a session of its own.
#pragma once

#include "adapters/process/command_table.h"
#include "adapters/system/unique_fd.h"
#include "ports/command_runner.h"

#include <sys/types.h>

#include <array>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kelvo {

class Console;
enum class CommandEnd;

/// Commands see the environment as it was when the runner was made, less what could prompt. What is
/// kept of a command's error output goes to the system log in one line, when it has ended.
class PosixShellRunner final : public CommandRunner {
public:
    /// `console` must outlive the runner.
    explicit PosixShellRunner(Console& console);

    /// As `endAll`.
    ~PosixShellRunner() override;

    /// A text with U+0000 in it, or one longer than the system passes on (128 KiB), cannot be
    /// started; that is said in the system log.
    CommandResult run(const Command& command) override;

    void cancel(CommandId command) override;

    std::optional<FileBeingWritten> fileBeingWritten(CommandId command) const override;

    /// For an orderly quit: from now on every command returns the empty text at once. Whatever any
    /// command has started and is still there, in its session or in another, is asked to end, 2 s
    /// later forced; callers get what was captured so far, even if somebody still holds the output.
    /// Returns when all callers are on their way, about 3 s later at worst. Any thread but one that
    /// runs a command; calling it again does nothing.
    void endAll();

    /// From now on the system gives this process whatever a command has left when its parent ends,
    /// so that `endAll` knows without a look at all processes that nothing is left. For a program
    /// that ends soon and starts nothing else: what it is given is reaped at the end alone.
    void adoptWhatIsLeft();

    /// `runs` is called once, as soon as a first command has started, on the thread that runs it.
    /// Before any does.
    void whenTheFirstRuns(std::function<void()> runs) { fFirstRuns = std::move(runs); }

    /// The descriptor of a CommandTable with the commands that run, for as long as the runner
    /// lives.
    int runningCommands() const { return fTable.descriptor(); }

private:
    struct Session {
        pid_t pid = -1;
        std::array<ino_t, 2> pipes{};
        int cancelled = -1; ///< the descriptor that tells its caller; -1 once the caller is gone
    };
    CommandEnd cutOff(pid_t pid, const Command& command);
    void logAbout(const Command& command, const CommandResult& result, CommandEnd end);
    void logAbout(const Command& command, const QString& what);
    void endWhatIsLeft(pid_t pid, bool quick);
    bool givenUp() const;
    /// The shell's exit status; nothing when it was given up or cancelled.
    std::optional<int> leave(pid_t pid, CommandEnd end);

    Console& fConsole;
    const std::vector<std::string> fEnvironment;
    std::function<void()> fFirstRuns;
    UniqueFd fGiveUp;
    std::mutex fEndMutex;
    std::mutex fMutex;
    std::condition_variable fLeft;
    std::vector<Session> fSessions;
    CommandTable fTable; ///< of the same; guarded by the same mutex
    int fCallers = 0;
    bool fAdopts = false;
    bool fEnding = false;
    bool fEnded = false;   ///< `endAll` has done its work; guarded by fEndMutex
    bool fStarted = false; ///< a command ever was
};

} // namespace kelvo
