// What a dead program's commands have left running.
#pragma once

#include <sys/types.h>

namespace kelvo::sentinel {

/// Whether the descriptor is the program's table of the commands that run: a file in memory of 64
/// rows with four 64-bit numbers each: a command's session, when its leader was started (in clock
/// ticks, as /proc tells it), and the inodes of the two pipes it was given for its output. A row
/// whose session is 0 is free.
bool isCommandTable(int descriptor);

/// Every process that a command of the program has started carries the variable
/// KELVO_MIRROR_PID=<its id>, unless somebody has taken it away; then it is known by its session,
/// or by a pipe that is its standard output or error output. `table` tells which; -1 for none. Asks
/// those that are there to end, forces them 2 s later, and returns when none is left; after 3 s it
/// says so and returns all the same.
void endOrphans(pid_t program, int table);

} // namespace kelvo::sentinel
