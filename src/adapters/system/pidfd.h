// Handles of processes. The C library's own header lacks C linkage in some versions.
#pragma once

#include "adapters/system/unique_fd.h"

#include <sys/syscall.h>
#include <sys/types.h>

namespace kelvo {

/// A handle that is readable once the process has ended; empty when there is no such process.
inline UniqueFd openProcess(pid_t pid) {
    return UniqueFd(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
}

/// Sends `signal`; nothing happens when the process has ended or belongs to somebody else.
inline void signalProcess(const UniqueFd& process, int signal) {
    (void)::syscall(SYS_pidfd_send_signal, process.get(), signal, nullptr, 0);
}

} // namespace kelvo
