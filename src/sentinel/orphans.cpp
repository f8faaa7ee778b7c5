#include "sentinel/orphans.h"

#include "sentinel/lines.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace kelvo::sentinel {
namespace {

constexpr long cAskMilliseconds = 2000;
constexpr long cForceMilliseconds = 3000;
constexpr int cMostAtOnce = 64;

long milliseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000 + now.tv_nsec / 1000000;
}

/// A process that has ended shows no variables, a zombie included.
bool carries(int processes, const char* process, const char* mark, Bytes& bytes) {
    char name[64];
    if (std::strlen(process) > 32)
        return false;
    std::strcpy(name, process);    // NOLINT: it fits
    std::strcat(name, "/environ"); // NOLINT
    if (!readWhole(processes, name, bytes))
        return false;
    for (const char* text = bytes.data; text < bytes.data + bytes.size;
         text += std::strlen(text) + 1) {
        if (std::strcmp(text, mark) == 0)
            return true;
    }
    return false;
}

/// Handles that stay with their processes even when a number is given away; at most cMostAtOnce.
int hold(const char* mark, pollfd* held, Bytes& bytes) {
    DIR* const processes = ::opendir("/proc");
    int count = 0;
    while (processes != nullptr && count < cMostAtOnce) {
        const dirent* const entry = ::readdir(processes);
        if (entry == nullptr)
            break;
        const char* const name = entry->d_name;
        const auto pid = static_cast<pid_t>(std::strtol(name, nullptr, 10));
        if (std::isdigit(static_cast<unsigned char>(*name)) == 0 || pid == ::getpid() ||
            !carries(::dirfd(processes), name, mark, bytes))
            continue;
        const int handle = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
        if (handle < 0)
            continue;
        if (carries(::dirfd(processes), name, mark, bytes))
            held[count++] = {handle, POLLIN, 0};
        else
            ::close(handle);
    }
    if (processes != nullptr)
        ::closedir(processes);
    return count;
}

/// Until all have ended or the time has come.
void wait(pollfd* held, int count, long until) {
    int left = count;
    for (long now = milliseconds(); left > 0 && now < until; now = milliseconds()) {
        if (::poll(held, static_cast<nfds_t>(count), static_cast<int>(until - now)) <= 0)
            continue;
        for (int i = 0; i < count; ++i) {
            if (held[i].fd >= 0 && held[i].revents != 0) {
                ::close(held[i].fd);
                held[i].fd = -1;
                --left;
            }
        }
    }
    for (int i = 0; i < count; ++i) {
        if (held[i].fd >= 0)
            ::close(held[i].fd);
    }
}

} // namespace

void endOrphans(pid_t program) {
    char mark[64] = "KELVO_MIRROR_PID=";
    std::strcat(mark, Decimal(program).text); // NOLINT: 24 bytes at most
    static Bytes bytes;
    static pollfd held[cMostAtOnce];

    const long begin = milliseconds();
    while (const int count = hold(mark, held, bytes)) {
        const long spent = milliseconds() - begin;
        if (spent >= cForceMilliseconds) {
            for (int i = 0; i < count; ++i)
                ::close(held[i].fd);
            say({"some commands of the ended program do not end"});
            return;
        }
        const bool force = spent >= cAskMilliseconds;
        for (int i = 0; i < count; ++i)
            (void)::syscall(SYS_pidfd_send_signal, held[i].fd, force ? SIGKILL : SIGTERM, nullptr,
                            0);
        wait(held, count, begin + (force ? cForceMilliseconds : cAskMilliseconds));
    }
}

} // namespace kelvo::sentinel
