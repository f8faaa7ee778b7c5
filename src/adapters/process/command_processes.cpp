#include "adapters/process/command_processes.h"

#include "adapters/system/pidfd.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <set>
#include <string>

namespace kelvo {
namespace {

using Clock = std::chrono::steady_clock;

struct Status {
    char state = 'X';
    int session = -1;
    std::uint64_t start = 0;
};

Status statusOf(pid_t pid) {
    const UniqueFd file(
        ::open(("/proc/" + std::to_string(pid) + "/stat").c_str(), O_RDONLY | O_CLOEXEC));
    std::array<char, 512> text{};
    const ssize_t size = file ? ::read(file.get(), text.data(), text.size() - 1) : -1;
    // The name, in brackets, may hold anything; the fields start behind the last bracket.
    const char* const name = size > 0 ? std::strrchr(text.data(), ')') : nullptr;
    Status status;
    constexpr const char* cFields = " %c %*d %*d %d %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s %*s "
                                    "%*s %*s %*s %*s %" SCNu64;
    if (name == nullptr || std::sscanf(name + 1, cFields, &status.state, &status.session, // NOLINT
                                       &status.start) != 3)
        return {};
    return status;
}

/// The session of a living process; -1 when it is gone or a zombie.
pid_t livingSession(pid_t pid) {
    const Status status = statusOf(pid);
    return status.state == 'Z' || status.state == 'X' ? -1 : status.session;
}

/// Whether `mark` is one of the variables the process was started with. One of another user, or one
/// that has ended, shows none.
bool carries(pid_t pid, const std::string& mark) {
    const UniqueFd file(
        ::open(("/proc/" + std::to_string(pid) + "/environ").c_str(), O_RDONLY | O_CLOEXEC));
    std::string variables(1, '\0'); // each is preceded and followed by a NUL
    std::array<char, 16384> room;   // NOLINT: filled by read
    for (ssize_t size = 0; file && (size = ::read(file.get(), room.data(), room.size())) > 0;)
        variables.append(room.data(), static_cast<std::size_t>(size));
    const std::string wanted = '\0' + mark + '\0';
    return variables.find(wanted) != std::string::npos;
}

bool writesInto(pid_t pid, std::span<const ino_t> pipes) {
    const auto isBehind = [pid, pipes](const char* stream) {
        // The link alone is read: what lies behind it may be a file on a server that is away.
        std::array<char, 64> target{};
        const std::string link = "/proc/" + std::to_string(pid) + stream;
        return ::readlink(link.c_str(), target.data(), target.size() - 1) > 0 &&
               std::ranges::any_of(pipes, [&target](ino_t pipe) {
                   return "pipe:[" + std::to_string(pipe) + "]" == target.data();
               });
    };
    return !pipes.empty() && (isBehind("/fd/1") || isBehind("/fd/2"));
}

bool belongs(pid_t pid, const CommandProcesses& commands) {
    const pid_t session = livingSession(pid);
    return session >= 0 && (std::ranges::count(commands.sessions, session) > 0 ||
                            (!commands.mark.empty() && carries(pid, commands.mark)) ||
                            writesInto(pid, commands.pipes));
}

struct Member {
    pid_t pid;
    UniqueFd handle;
};

/// Each member with a handle that stays with it even when its number is given away.
std::vector<Member> heldMembers(const CommandProcesses& commands) {
    std::vector<Member> held;
    for (const pid_t pid : livingProcesses(commands)) {
        UniqueFd handle = openProcess(pid);
        if (handle && belongs(pid, commands))
            held.push_back({pid, std::move(handle)});
    }
    return held;
}

void waitForAnEnd(const std::vector<Member>& members, std::chrono::milliseconds patience) {
    std::vector<pollfd> watched;
    watched.reserve(members.size());
    for (const Member& member : members)
        watched.push_back({member.handle.get(), POLLIN, 0});
    (void)::poll(watched.data(), watched.size(), static_cast<int>(patience.count()));
}

} // namespace

std::string commandMark(pid_t program) {
    return "KELVO_MIRROR_PID=" + std::to_string(program);
}

std::uint64_t startOf(pid_t pid) {
    return statusOf(pid).start;
}

bool numbersStillRise(pid_t pid) {
    const UniqueFd file(::open("/proc/loadavg", O_RDONLY | O_CLOEXEC));
    std::array<char, 128> text{};
    const ssize_t size = file ? ::read(file.get(), text.data(), text.size() - 1) : -1;
    const char* const last = size > 0 ? std::strrchr(text.data(), ' ') : nullptr;
    return last != nullptr && std::atoi(last) >= pid; // NOLINT: 0 where there is no number
}

std::vector<pid_t> livingProcesses(const CommandProcesses& commands, pid_t from) {
    std::vector<pid_t> found;
    const pid_t self = ::getpid();
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir("/proc"), ::closedir);
    while (folder != nullptr) {
        const dirent* const entry = ::readdir(folder.get());
        if (entry == nullptr)
            break;
        pid_t pid = 0;
        const char* const end = entry->d_name + std::strlen(entry->d_name);
        const auto [stop, error] = std::from_chars(entry->d_name, end, pid);
        if (error == std::errc() && stop == end && pid >= from && pid != self &&
            belongs(pid, commands))
            found.push_back(pid);
    }
    return found;
}

bool endProcesses(const CommandProcesses& commands, int signal,
                  std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    std::set<pid_t> told;
    for (;;) {
        const std::vector<Member> members = heldMembers(commands);
        if (members.empty())
            return true;
        for (const Member& member : members) {
            if (told.insert(member.pid).second)
                signalProcess(member.handle, signal);
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        waitForAnEnd(members, left);
    }
}

} // namespace kelvo
