// What a running process takes of the machine, and what it has left behind.
#pragma once

#include <sys/types.h>

#include <string>

namespace kelvo {

struct ProcessFigures {
    long memory = 0; ///< KiB that are its own: anonymous, proportional
    int descriptors = 0;
    int threads = 0;
    int zombies = 0; ///< ended children that it has not collected
};

/// All figures are 0 when there is no such process.
ProcessFigures figuresOf(pid_t process);

/// Living processes that carry the mark of the commands of `program`.
int commandsLeftBy(pid_t program);

/// Bytes of all files in `folder`, without folders below it.
long long bytesIn(const std::string& folder);

} // namespace kelvo
