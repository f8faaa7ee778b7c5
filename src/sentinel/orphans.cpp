#include "sentinel/orphans.h"

#include "sentinel/lines.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdint>
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

struct Row {
    std::uint64_t session;
    std::uint64_t start;
    std::uint64_t pipes[2];
};
constexpr int cRows = 64;
constexpr std::uint64_t cNobody = ~std::uint64_t{0};

struct Commands {
    char mark[64];
    Row rows[cRows];
};

/// The name of a file that tells of a process, for as long as this lives.
struct ProcessFile {
    ProcessFile(const char* process, const char* file) {
        std::strncpy(path, process, 24); // NOLINT
        std::strcat(path, file);         // NOLINT: none is longer
    }
    char path[64] = {};
};

/// What /proc tells of a process that has not ended.
struct Status {
    std::uint64_t session = 0;
    std::uint64_t start = 0;
};

/// Nothing but zeros, which are in no session, when it has ended.
Status statusOf(int processes, const char* process, Bytes& bytes) {
    Status status;
    if (!readWhole(processes, ProcessFile(process, "/stat").path, bytes))
        return status;
    // The name, in brackets, may hold anything; the fields start behind the last bracket.
    const char* field = std::strrchr(bytes.data, ')');
    constexpr int cState = 3;
    constexpr int cSession = 6;
    constexpr int cStart = 22;
    for (int number = cState; field != nullptr && number <= cStart; ++number) {
        field = std::strchr(field + 1, ' ');
        if (field == nullptr || (number == cState && (field[1] == 'Z' || field[1] == 'X')))
            return {};
        if (number == cSession)
            status.session = std::strtoull(field, nullptr, 10);
        if (number == cStart)
            status.start = std::strtoull(field, nullptr, 10);
    }
    return status;
}

void readTable(int table, Commands& commands) {
    if (::pread(table, commands.rows, sizeof commands.rows, 0) != sizeof commands.rows)
        std::memset(commands.rows, 0, sizeof commands.rows);
    static Bytes bytes;
    const int processes = ::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (Row& row : commands.rows) {
        const Decimal leader(row.session);
        const Status status = statusOf(processes, leader.text, bytes);
        // The number was given to somebody else: nobody was left in the session.
        if (status.start != 0 && status.start != row.start)
            row.session = cNobody;
    }
    if (processes >= 0)
        ::close(processes);
}

bool isIn(const Commands& commands, const Status& status) {
    for (const Row& row : commands.rows) {
        if (row.session != 0 && row.session == status.session)
            return true;
    }
    return false;
}

bool writesInto(int processes, const char* process, const Commands& commands) {
    for (const char* const stream : {"/fd/1", "/fd/2"}) {
        // The link alone is read: what lies behind it may be a file on a server that is away.
        constexpr const char* cPipe = "pipe:[";
        char target[64] = {};
        if (::readlinkat(processes, ProcessFile(process, stream).path, target, sizeof target - 1) <=
                0 ||
            std::strncmp(target, cPipe, std::strlen(cPipe)) != 0)
            continue;
        const std::uint64_t pipe = std::strtoull(target + std::strlen(cPipe), nullptr, 10);
        for (const Row& row : commands.rows) {
            if (row.session != 0 && (row.pipes[0] == pipe || row.pipes[1] == pipe))
                return true;
        }
    }
    return false;
}

/// A process that has ended shows no variables, a zombie included.
bool carries(int processes, const char* process, const char* mark, Bytes& bytes) {
    if (!readWhole(processes, ProcessFile(process, "/environ").path, bytes))
        return false;
    for (const char* text = bytes.data; text < bytes.data + bytes.size;
         text += std::strlen(text) + 1) {
        if (std::strcmp(text, mark) == 0)
            return true;
    }
    return false;
}

bool belongs(int processes, const char* process, const Commands& commands, Bytes& bytes) {
    return isIn(commands, statusOf(processes, process, bytes)) ||
           carries(processes, process, commands.mark, bytes) ||
           writesInto(processes, process, commands);
}

/// Handles that stay with their processes even when a number is given away; at most cMostAtOnce.
int hold(const Commands& commands, pollfd* held, Bytes& bytes) {
    DIR* const processes = ::opendir("/proc");
    int count = 0;
    while (processes != nullptr && count < cMostAtOnce) {
        const dirent* const entry = ::readdir(processes);
        if (entry == nullptr)
            break;
        const char* const name = entry->d_name;
        const auto pid = static_cast<pid_t>(std::strtol(name, nullptr, 10));
        if (std::isdigit(static_cast<unsigned char>(*name)) == 0 || pid == ::getpid() ||
            !belongs(::dirfd(processes), name, commands, bytes))
            continue;
        const int handle = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
        if (handle < 0)
            continue;
        if (belongs(::dirfd(processes), name, commands, bytes))
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

bool isCommandTable(int descriptor) {
    struct stat status {};
    return ::fcntl(descriptor, F_GET_SEALS) >= 0 && ::fstat(descriptor, &status) == 0 &&
           status.st_size == sizeof(Row) * cRows;
}

void endOrphans(pid_t program, int table) {
    static Commands commands{"KELVO_MIRROR_PID=", {}};
    const Decimal number(static_cast<unsigned long>(program));
    std::strcat(commands.mark, number.text); // NOLINT: 24 bytes at most
    if (table >= 0)
        readTable(table, commands);
    static Bytes bytes;
    static pollfd held[cMostAtOnce];

    const long begin = milliseconds();
    while (const int count = hold(commands, held, bytes)) {
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
