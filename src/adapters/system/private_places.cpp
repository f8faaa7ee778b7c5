#include "adapters/system/private_places.h"

#include <sys/stat.h>

#include <cerrno>

namespace kelvo {
namespace {

std::string parentOf(const std::string& path) {
    const std::size_t slash = path.find_last_not_of('/', path.rfind('/'));
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

} // namespace

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
