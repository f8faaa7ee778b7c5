// ProgramImage: how a running program was started, kept so that it can be started again.
#pragma once

#include "sentinel/exit_code.h"

#include <sys/types.h>

#include <climits>

namespace kelvo::sentinel {

struct ProgramImage {
    char path[PATH_MAX];
    char** arguments;   ///< as it was started, "--autorelaunched" left out and put at the end once
    char** environment; ///< as it was started
};

/// Learns how `program` was started and goes into its working folder, whatever that is called.
/// `handle` is the program's pidfd. Returns ToldToEnd when all is known; else says what is wrong
/// and returns the code to end with.
ExitCode learn(pid_t program, int handle, ProgramImage& image);

/// Whether the program behind the pidfd has ended; with `wait`, once it has.
bool hasEnded(int handle, bool wait);

} // namespace kelvo::sentinel
