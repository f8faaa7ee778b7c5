#include "adapters/process/open_files.h"

#include "adapters/process/command_processes.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

namespace kelvo {
namespace {

/// More processes than any command of ours has; whoever starts more is not looked at.
constexpr std::size_t cMostProcesses = 64;

using Folder = std::unique_ptr<DIR, int (*)(DIR*)>;

/// The entries of `path`, all of which are numbers but for the two of every folder.
std::vector<int> numbersIn(const std::string& path) {
    std::vector<int> numbers;
    const Folder folder(::opendir(path.c_str()), ::closedir);
    while (folder) {
        const dirent* const entry = ::readdir(folder.get());
        if (!entry)
            break;
        int number = 0;
        const char* const end = entry->d_name + std::strlen(entry->d_name);
        if (std::from_chars(entry->d_name, end, number).ec == std::errc())
            numbers.push_back(number);
    }
    return numbers;
}

std::string processFolder(pid_t pid) {
    return "/proc/" + std::to_string(pid);
}

/// `shell` and everything below it; a system that does not list children is walked whole.
std::vector<pid_t> processesOf(pid_t shell) {
    std::vector<pid_t> found{shell};
    for (std::size_t next = 0; next < found.size(); ++next) {
        const std::string tasks = processFolder(found[next]) + "/task/";
        for (const int task : numbersIn(tasks)) {
            std::ifstream children(tasks + std::to_string(task) + "/children");
            if (!children)
                return livingProcesses({.sessions = {&shell, 1}, .mark = {}});
            for (pid_t child = 0; children >> child && found.size() < cMostProcesses;)
                found.push_back(child);
        }
    }
    return found;
}

std::string target(const std::string& link) {
    std::array<char, PATH_MAX> room; // NOLINT: filled by readlink
    const ssize_t size = ::readlink(link.c_str(), room.data(), room.size());
    return size > 0 ? std::string(room.data(), static_cast<std::size_t>(size)) : std::string();
}

bool isOpenForWriting(pid_t pid, int descriptor) {
    std::ifstream info(processFolder(pid) + "/fdinfo/" + std::to_string(descriptor));
    for (std::string word; info >> word;) {
        int flags = 0;
        if (word == "flags:" && info >> std::oct >> flags) {
            const int mode = flags & O_ACCMODE;
            return (mode == O_WRONLY || mode == O_RDWR) && (flags & O_APPEND) == 0;
        }
    }
    return false;
}

std::optional<FileBeingWritten> fileWrittenByProcess(pid_t pid) {
    const std::string descriptors = processFolder(pid) + "/fd/";
    for (const int descriptor : numbersIn(descriptors)) {
        const std::string link = descriptors + std::to_string(descriptor);
        struct stat file {};
        if (descriptor <= STDERR_FILENO || ::stat(link.c_str(), &file) != 0 ||
            !S_ISREG(file.st_mode) || file.st_nlink == 0 || !isOpenForWriting(pid, descriptor))
            continue;
        std::string path = finalPath(target(link));
        const std::string here = target(processFolder(pid) + "/cwd") + '/';
        if (path.starts_with(here))
            path.erase(0, here.size());
        return FileBeingWritten{QByteArray::fromStdString(path), file.st_size};
    }
    return std::nullopt;
}

bool isLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

std::optional<FileBeingWritten> fileWrittenBy(pid_t shell) {
    for (const pid_t pid : processesOf(shell)) {
        // The number may belong to somebody else by now.
        if (::getsid(pid) != shell)
            continue;
        if (auto file = fileWrittenByProcess(pid))
            return file;
    }
    return std::nullopt;
}

std::string finalPath(const std::string& path) {
    constexpr std::size_t cEnding = 7; // ".a1B2c3"
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return path;
    const std::string folder = path.substr(0, slash + 1);
    const std::string name = path.substr(slash + 1);
    const bool ends = name.size() > cEnding + 1 && name[0] == '.' &&
                      name[name.size() - cEnding] == '.' &&
                      std::all_of(name.end() - cEnding + 1, name.end(), isLetterOrDigit);
    if (ends)
        return folder + name.substr(1, name.size() - cEnding - 1);
    const std::size_t above = slash > 0 ? path.rfind('/', slash - 1) : std::string::npos;
    const bool isHalf = above != std::string::npos && path[above + 1] == '.';
    return isHalf ? path.substr(0, above + 1) + name : path;
}

} // namespace kelvo
