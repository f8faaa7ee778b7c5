#include "adapters/posix/marked_processes.h"

#include <dirent.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <memory>

namespace kelvo {
namespace {

/// Whether `mark` is one of the variables in /proc/PID/environ, which ends each with a NUL. A
/// process that has ended has none; one of another user cannot be read.
bool carries(pid_t pid, const std::string& mark) {
    char path[32];
    std::snprintf(path, sizeof path, "/proc/%d/environ", pid);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "re"),
                                                               &std::fclose);
    if (!file)
        return false;
    char* variable = nullptr;
    std::size_t size = 0;
    bool found = false;
    while (!found && ::getdelim(&variable, &size, '\0', file.get()) > 0)
        found = mark == variable;
    std::free(variable); // NOLINT(cppcoreguidelines-no-malloc): getdelim's own
    return found;
}

} // namespace

std::string childMark(pid_t program) {
    return "KELVO_MIRROR_PID=" + std::to_string(program);
}

std::vector<pid_t> processesMarked(const std::string& mark) {
    std::vector<pid_t> found;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir("/proc"), &::closedir);
    if (!folder)
        return found;
    const pid_t self = ::getpid();
    while (const dirent* entry = ::readdir(folder.get())) { // NOLINT(concurrency-mt-unsafe)
        pid_t pid = 0;
        const char* end = entry->d_name + std::strlen(entry->d_name);
        const auto parsed = std::from_chars(entry->d_name, end, pid);
        if (parsed.ec == std::errc() && parsed.ptr == end && pid != self && carries(pid, mark))
            found.push_back(pid);
    }
    return found;
}

} // namespace kelvo
