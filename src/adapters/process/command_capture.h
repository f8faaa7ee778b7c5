// CommandCapture: takes what a command prints until its end.
#pragma once

#include "adapters/process/utf8_collector.h"
#include "ports/command_runner.h"

#include <poll.h>

#include <chrono>
#include <optional>
#include <span>
#include <vector>

namespace kelvo {

struct ShellChild;

using CommandDeadline = std::optional<std::chrono::steady_clock::time_point>;

/// So many seconds from now; none without them.
CommandDeadline deadlineAfter(std::optional<double> seconds);

/// Why a command is read no longer.
enum class CommandEnd {
    Own,       ///< it has ended, or the program is quitting
    Cut,       ///< its time is up
    TooMuch,   ///< it has printed more than it may
    Cancelled, ///< somebody wishes so
};

/// One run; one thread.
class CommandCapture {
public:
    /// All outlive the capture; `giveUp` and `cancelled` become readable when the program quits and
    /// when the command is cancelled.
    CommandCapture(const Command& command, const ShellChild& child, int giveUp, int cancelled);

    /// Reads both streams until the shell has ended and its standard output is closed, unless
    /// something else comes first.
    CommandEnd follow(const CommandDeadline& deadline);

    /// Takes what is there without waiting for more.
    void readRest();

    /// All but the exit status; once.
    CommandResult result();

private:
    void letGather();
    std::size_t readSome(int stream, std::span<char> room);
    std::size_t readOutput();
    std::size_t readErrors();

    const Command& fCommand;
    Utf8Collector fOutput;
    Utf8Collector fErrors;
    std::vector<pollfd> fWatched;
};

} // namespace kelvo
