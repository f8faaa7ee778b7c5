#include "adapters/posix/process_sessions.h"

#include "adapters/posix/pidfd.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>
#include <set>
#include <string>

namespace kelvo {
namespace {

using Clock = std::chrono::steady_clock;

/// The session of a living process; -1 when it is gone or a zombie.
pid_t livingSession(pid_t pid) {
    const UniqueFd file(
        ::open(("/proc/" + std::to_string(pid) + "/stat").c_str(), O_RDONLY | O_CLOEXEC));
    std::array<char, 512> text{};
    const ssize_t size = file ? ::read(file.get(), text.data(), text.size() - 1) : -1;
    if (size <= 0)
        return -1;
    // The name, in brackets, may hold anything; the fields start behind the last bracket.
    const char* const name = std::strrchr(text.data(), ')');
    char state = 'X';
    int parent = 0;
    int group = 0;
    int session = -1;
    if (name == nullptr ||
        std::sscanf(name + 1, " %c %d %d %d", &state, &parent, &group, &session) != 4) // NOLINT
        return -1;
    return state == 'Z' || state == 'X' ? -1 : session;
}

struct Member {
    pid_t pid;
    UniqueFd handle;
};

/// Each member with a handle that stays with it even when its number is given away.
std::vector<Member> heldMembers(std::span<const pid_t> sessions) {
    std::vector<Member> held;
    for (const pid_t pid : processesOfSessions(sessions)) {
        UniqueFd handle = openProcess(pid);
        if (handle && std::ranges::count(sessions, livingSession(pid)) > 0)
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

std::vector<pid_t> processesOfSessions(std::span<const pid_t> sessions) {
    std::vector<pid_t> found;
    if (sessions.empty())
        return found;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir("/proc"), ::closedir);
    while (folder != nullptr) {
        const dirent* const entry = ::readdir(folder.get());
        if (entry == nullptr)
            break;
        pid_t pid = 0;
        const char* const end = entry->d_name + std::strlen(entry->d_name);
        const auto [stop, error] = std::from_chars(entry->d_name, end, pid);
        if (error == std::errc() && stop == end &&
            std::ranges::count(sessions, livingSession(pid)) > 0)
            found.push_back(pid);
    }
    return found;
}

bool endSessions(std::span<const pid_t> sessions, int signal, std::chrono::milliseconds patience) {
    const auto deadline = Clock::now() + patience;
    std::set<pid_t> told;
    for (;;) {
        const std::vector<Member> members = heldMembers(sessions);
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
