// What a dead program's commands have left running.
#pragma once

#include <sys/types.h>

namespace kelvo::sentinel {

/// Every process that a command of the program has started carries the variable
/// KELVO_MIRROR_PID=<its id>. Asks those that are there to end, forces them 2 s later, and returns
/// when none is left; after 3 s it says so and returns all the same.
void endOrphans(pid_t program);

} // namespace kelvo::sentinel
