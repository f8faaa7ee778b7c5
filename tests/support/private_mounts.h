// What only the mounts of one thread can show: a full disk, other accounts, a file that fails.
#pragma once

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

namespace kelvo {

/// Runs `work` on a thread whose mounts are its own, once `mount` there has returned 0. Skips the
/// test, and returns false, without root or where the system refuses.
inline bool withPrivateMounts(const std::function<int()>& mount,
                              const std::function<void()>& work) {
    std::string refused = ::geteuid() == 0 ? "" : "needs root";
    if (refused.empty()) {
        std::thread([&] {
            if (::unshare(CLONE_NEWNS) == 0 &&
                ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 && mount() == 0)
                work();
            else
                refused = std::strerror(errno);
        }).join();
    }
    if (!refused.empty())
        [&] { GTEST_SKIP() << "nothing can be mounted here: " << refused; }();
    return refused.empty();
}

/// Lays `source` over `place`.
inline int mountOver(const std::string& source, const std::string& place) {
    return ::mount(source.c_str(), place.c_str(), nullptr, MS_BIND, nullptr);
}

} // namespace kelvo
