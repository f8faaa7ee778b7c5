#include "sentinel/program_image.h"

#include "sentinel/lines.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace kelvo::sentinel {
namespace {

constexpr const char* cMark = "--autorelaunched";
constexpr const char* cDeleted = " (deleted)";

/// The texts in `bytes`, each closed by a NUL, without those that read `leftOut`, and `added`.
char** list(const Bytes& bytes, const char* leftOut, const char* added) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < bytes.size; ++i)
        count += bytes.data[i] == '\0';
    auto** const texts = static_cast<char**>(std::malloc((count + 2) * sizeof(char*)));
    if (texts == nullptr)
        return nullptr;
    char** next = texts;
    for (char* text = bytes.data; text < bytes.data + bytes.size; text += std::strlen(text) + 1) {
        if (std::strcmp(text, leftOut) != 0)
            *next++ = text;
    }
    if (added != nullptr)
        *next++ = const_cast<char*>(added);
    *next = nullptr;
    return texts;
}

/// A program that was replaced while it ran is started again as what lies there now.
void forgetReplacement(char* path) {
    const std::size_t size = std::strlen(path);
    const std::size_t tail = std::strlen(cDeleted);
    if (size > tail && std::strcmp(path + size - tail, cDeleted) == 0 && ::access(path, F_OK) != 0)
        path[size - tail] = '\0';
}

bool learnPath(int folder, ProgramImage& image) {
    const ssize_t size = ::readlinkat(folder, "exe", image.path, sizeof image.path - 1);
    if (size <= 0)
        return false;
    image.path[size] = '\0';
    forgetReplacement(image.path);
    return true;
}

bool learnAll(int folder, ProgramImage& image) {
    Bytes arguments;
    Bytes environment;
    if (!learnPath(folder, image) || !readWhole(folder, "cmdline", arguments) ||
        !readWhole(folder, "environ", environment))
        return false;
    // The last variable may lack its NUL; the empty texts this can add are left out.
    ++environment.size;
    image.arguments = list(arguments, cMark, cMark);
    image.environment = list(environment, "", nullptr);
    if (image.arguments == nullptr || image.environment == nullptr) {
        errno = ENOMEM;
        return false;
    }
    const int workingFolder = ::openat(folder, "cwd", O_PATH | O_DIRECTORY | O_CLOEXEC);
    const bool there = workingFolder >= 0 && ::fchdir(workingFolder) == 0;
    const int failure = errno;
    if (workingFolder >= 0)
        ::close(workingFolder);
    errno = failure;
    return there;
}

} // namespace

ExitCode learn(pid_t program, int handle, ProgramImage& image) {
    const Decimal number(static_cast<unsigned long>(program));
    char name[64] = "/proc/";
    std::strcat(name, number.text); // NOLINT: 24 bytes at most
    const int folder = ::open(name, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct stat status {};
    bool known = folder >= 0 && ::fstat(folder, &status) == 0;
    const bool ours = known && status.st_uid == ::geteuid();
    if (known && !ours && !hasEnded(handle, false)) {
        say({"process ", number.text, " belongs to another user"});
        return ExitCode::OfAnotherUser;
    }
    known = known && learnAll(folder, image);
    const int failure = errno;
    if (folder >= 0)
        ::close(folder);
    if (hasEnded(handle, false)) {
        say({"there is no process ", number.text, " any more"});
        return ExitCode::NoSuchProcess;
    }
    if (!known) {
        say({"cannot learn how process ", number.text,
             " was started: ", ::strerrordesc_np(failure)});
        return ExitCode::CannotBeWatched;
    }
    return ExitCode::ToldToEnd;
}

bool hasEnded(int handle, bool wait) {
    pollfd watched{handle, POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&watched, 1, wait ? -1 : 0);
    } while (wait && ready != 1);
    return ready == 1;
}

} // namespace kelvo::sentinel
