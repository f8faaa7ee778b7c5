// What both parts of the program begin with: the command line, and whether it can be carried out.
#pragma once

#include "app/commands/command_line.h"

#include <optional>

namespace kelvo {

/// Reads what main was given. Lines are the same everywhere from here on, whatever the user's
/// language. Main thread, before anything else of a part.
CommandLine readCommandLine(int argc, char** argv);

/// Says on standard error why what `line` asks for cannot be begun here; the exit code then. A
/// limit on open files that may be raised is raised.
std::optional<int> refused(const CommandLine& line);

/// Has the C library keep less memory for later than it would. The threads that allocate before
/// keep heaps of their own. Main thread.
void keepMemorySmall();

/// Gives the free memory of the heap back to the system, such as only the start needed. Any thread;
/// walks through the whole heap.
void giveMemoryBack();

} // namespace kelvo
