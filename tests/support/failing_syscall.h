// A thread of which one system call fails, for what no file or mount can bring about.
#pragma once

#include <sys/prctl.h>

#include <array>
#include <cstddef>
#include <functional>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <thread>

namespace kelvo {

/// From here on `call` (SYS_...) fails on this thread with `error`, and in what it starts too.
/// There is no way back. False when the system refuses.
inline bool failSyscall(long call, int error) {
    std::array<sock_filter, 4> steps{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog program{.len = steps.size(), .filter = steps.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// Runs `work` on a thread of its own on which `call` fails with `error`. False, and nothing is
/// run, when the system refuses.
inline bool withFailingSyscall(long call, int error, const std::function<void()>& work) {
    bool ready = false;
    std::thread([&] {
        ready = failSyscall(call, error);
        if (ready)
            work();
    }).join();
    return ready;
}

} // namespace kelvo
