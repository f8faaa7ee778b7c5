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
/// /proc, with a look at each process from the number `from` on; a walk that is to miss none of a
/// command's processes may begin at its own number only while numbers have not come round since.
std::vector<pid_t> livingProcesses(const CommandProcesses& commands, pid_t from = 0);

/// Whether numbers given out after `pid`, at most 5 s ago, are higher than it. They come round
/// after 32,768 at the earliest.
bool numbersStillRise(pid_t pid);

/// Sends `signal` once to each of them, newcomers included, and waits until none is left, at most
/// `patience`. Returns whether none is left. Any thread; waits without polling in circles.
bool endProcesses(const CommandProcesses& commands, int signal, std::chrono::milliseconds patience);

} // namespace kelvo
