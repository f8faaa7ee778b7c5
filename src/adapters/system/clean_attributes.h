// CleanAttributes: how every child of ours is started that has no terminal to share with us.
#pragma once

#include <signal.h>
#include <spawn.h>

namespace kelvo {

/// A session of its own, the default action for every signal, none blocked.
class CleanAttributes {
public:
    CleanAttributes() {
        ::posix_spawnattr_init(&fAttributes);
        sigset_t set;
        ::sigemptyset(&set);
        ::posix_spawnattr_setsigmask(&fAttributes, &set);
        ::sigfillset(&set);
        ::sigdelset(&set, SIGKILL);
        ::sigdelset(&set, SIGSTOP);
        ::posix_spawnattr_setsigdefault(&fAttributes, &set);
        ::posix_spawnattr_setflags(&fAttributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK |
                                                     POSIX_SPAWN_SETSIGDEF);
    }
    ~CleanAttributes() { ::posix_spawnattr_destroy(&fAttributes); }
    CleanAttributes(const CleanAttributes&) = delete;
    CleanAttributes& operator=(const CleanAttributes&) = delete;

    const posix_spawnattr_t* get() const { return &fAttributes; }

private:
    posix_spawnattr_t fAttributes{};
};

} // namespace kelvo
