// What commands have started: for ending a command with everything that came of it.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace kelvo {

/// The environment variable, as "NAME=value", that tells every process which program's commands it
/// comes from. It stays with a process that has left its session or lost its parent.
std::string commandMark(pid_t program);

/// A process belongs to commands when it runs in one of their sessions, carries their mark, or has
/// one of their pipes as standard output or error output: that stays with a process that has left
/// its session with an empty environment.
struct CommandProcesses {
    std::span<const pid_t> sessions; ///< ids not free for reuse: their leaders are not reaped yet
    std::string mark;                ///< may be empty
    std::span<const ino_t> pipes = {};
};

/// When `pid` was started, in clock ticks since the machine was; 0 when there is no such process.
std::uint64_t startOf(pid_t pid);

/// The living processes (no zombies, not this one) that belong to `commands`. Costs a walk over
/// /proc.
std::vector<pid_t> livingProcesses(const CommandProcesses& commands);

/// Sends `signal` once to each of them, newcomers included, and waits until none is left, at most
/// `patience`. Returns whether none is left. Any thread; waits without polling in circles.
bool endProcesses(const CommandProcesses& commands, int signal, std::chrono::milliseconds patience);

} // namespace kelvo
