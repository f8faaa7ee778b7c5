// What runs in a session: for ending a command with everything it has started.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <span>
#include <vector>

namespace kelvo {

/// The living processes (no zombies) that belong to one of `sessions`.
std::vector<pid_t> processesOfSessions(std::span<const pid_t> sessions);

/// Sends `signal` once to each living process of `sessions`, newcomers included, and waits until
/// none is left, at most `patience`. Returns whether none is left. The ids must not be free for
/// reuse: their leaders are not reaped yet. Any thread; waits without polling in circles.
bool endSessions(std::span<const pid_t> sessions, int signal, std::chrono::milliseconds patience);

} // namespace kelvo
