// CommandTable: which commands run, for a sentinel to read once the program is gone.
#pragma once

#include "adapters/system/unique_fd.h"

#include <sys/types.h>

#include <array>

namespace kelvo {

struct ShellChild;

/// A file in memory of 64 rows with four 64-bit numbers each: the session, when its leader was
/// started (in clock ticks, as /proc tells it), and the inodes of the command's two output pipes.
/// A row whose session is 0 is free. A row is written by one call that does not wait, so no end of
/// the program leaves half of one. One thread at a time.
class CommandTable {
public:
    CommandTable();

    /// -1 where the system gives no such file: nothing is listed then.
    int descriptor() const { return fFile.get(); }

    /// `child` has been started. One beyond the 64 is not listed.
    void add(const ShellChild& child);

    /// The command has ended.
    void remove(pid_t session);

private:
    UniqueFd fFile;
    std::array<pid_t, 64> fSessions{};
};

} // namespace kelvo
