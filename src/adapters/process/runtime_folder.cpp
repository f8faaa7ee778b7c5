#include "adapters/process/runtime_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace kelvo {
namespace {

std::string environmentPath(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    std::string path = value && *value == '/' ? value : "";
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

/// Empty when `path` is the user's own folder and closed to others.
std::string faultOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return path + ": " + std::strerror(errno); // NOLINT(concurrency-mt-unsafe)
    if (!S_ISDIR(status.st_mode))
        return path + " is not a folder";
    if (status.st_uid != ::getuid())
        return path + " belongs to somebody else";
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        return path + " is open to others";
    if (::access(path.c_str(), W_OK | X_OK) != 0)
        return path + " cannot be written";
    return {};
}

/// $XDG_RUNTIME_DIR, when it is the user's own; otherwise empty.
std::string givenFolder() {
    std::string given = environmentPath("XDG_RUNTIME_DIR");
    return !given.empty() && faultOf(given).empty() ? given : std::string();
}

RuntimeFolder madeFolder(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return {{}, path + ": " + std::strerror(errno)}; // NOLINT(concurrency-mt-unsafe)
    const std::string fault = faultOf(path);
    return fault.empty() ? RuntimeFolder{path, {}} : RuntimeFolder{{}, fault};
}

RuntimeFolder folderOfOurOwn() {
    std::string temporary = environmentPath("TMPDIR");
    if (temporary.empty())
        temporary = "/tmp";
    return madeFolder(temporary + "/kelvo-mirror-" + std::to_string(::getuid()));
}

} // namespace

RuntimeFolder runtimeFolder() {
    const std::string given = givenFolder();
    return given.empty() ? folderOfOurOwn() : RuntimeFolder{given, {}};
}

FolderOrFault UserTemporaryFolder::temporaryFolder() const {
    const std::string given = givenFolder();
    const RuntimeFolder folder =
        given.empty() ? folderOfOurOwn() : madeFolder(given + "/kelvo-mirror");
    return {QString::fromLocal8Bit(folder.path.c_str()),
            QString::fromLocal8Bit(folder.fault.c_str())};
}

} // namespace kelvo
