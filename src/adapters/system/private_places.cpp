#include "adapters/system/private_places.h"

#include "support/system_error_text.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace kelvo {
namespace {

/// Empty without one.
std::string parentOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return {};
    return path.substr(0, path.find_last_not_of('/', slash) + 1);
}

std::string environmentPath(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    std::string path = value && *value == '/' ? value : "";
    while (path.ends_with('/'))
        path.pop_back();
    return path;
}

/// Empty when `path` is the user's own folder and closed to others.
std::string faultOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return path + ": " + systemErrorText(errno).toStdString();
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

PrivateFolder madeFolder(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return {{}, path + ": " + systemErrorText(errno).toLocal8Bit().toStdString()};
    const std::string fault = faultOf(path);
    return fault.empty() ? PrivateFolder{path, {}} : PrivateFolder{{}, fault};
}

PrivateFolder folderOfOurOwn(std::size_t longest) {
    const std::string name = "/kelvo-mirror-" + std::to_string(::getuid());
    std::string path = environmentPath("TMPDIR") + name;
    if (path == name || path.size() > longest)
        path = "/tmp" + name;
    return path.size() > longest ? PrivateFolder{{}, path + " is too long"} : madeFolder(path);
}

} // namespace

PrivateFolder temporaryFolderOfUser(std::size_t longest) {
    const std::string given = givenFolder();
    const std::string path = given + "/kelvo-mirror";
    return given.empty() || path.size() > longest ? folderOfOurOwn(longest) : madeFolder(path);
}

PrivateFolder temporaryFolderWithin(const std::string& name) {
    PrivateFolder folder = temporaryFolderOfUser();
    return folder.path.empty() ? folder : madeFolder(folder.path + '/' + name);
}

int makePrivateFolders(const std::string& path) {
    if (::mkdir(path.c_str(), S_IRWXU) == 0)
        return 0;
    if (errno == ENOENT) {
        const std::string parent = parentOf(path);
        if (parent.empty())
            return ENOENT;
        if (const int error = makePrivateFolders(parent))
            return error;
        return ::mkdir(path.c_str(), S_IRWXU) == 0 || errno == EEXIST ? 0 : errno;
    }
    struct stat entry {};
    const int error = errno;
    if (error == EEXIST && ::stat(path.c_str(), &entry) == 0)
        return S_ISDIR(entry.st_mode) ? 0 : ENOTDIR;
    return error;
}

void closeToOthers(const std::string& path) {
    struct stat entry {};
    if (::lstat(path.c_str(), &entry) == 0 && S_ISREG(entry.st_mode) &&
        (entry.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        (void)::chmod(path.c_str(), S_IRUSR | S_IWUSR);
}

} // namespace kelvo
