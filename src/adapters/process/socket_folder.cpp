#include "adapters/process/socket_folder.h"

#include "adapters/system/private_places.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace kelvo {
namespace {

constexpr const char* cBegin = "ssh-";
constexpr const char* cPattern = "/ssh-XXXXXX";

UniqueFd locked(const std::string& folder) {
    UniqueFd fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (fd && ::flock(fd.get(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return fd;
}

void removeFolder(const std::string& path) {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

void removeWhatWasLeft(const std::string& base) {
    std::error_code failure;
    for (std::filesystem::directory_iterator entries(base, failure), end;
         !failure && entries != end; entries.increment(failure)) {
        if (!entries->path().filename().native().starts_with(cBegin))
            continue;
        // Held until the folder is gone: one that was just made is then not taken into use.
        if (const UniqueFd lock = locked(entries->path()))
            removeFolder(entries->path());
    }
}

} // namespace

SocketFolder::SocketFolder(std::size_t name) {
    const std::size_t most = sizeof(sockaddr_un::sun_path) - 1;
    const std::size_t ours = std::char_traits<char>::length(cPattern) + 1 + name;
    if (ours >= most)
        return;
    const std::string base = temporaryFolderOfUser(most - ours).path;
    if (base.empty())
        return;
    removeWhatWasLeft(base);
    std::string path = base + cPattern;
    if (::mkdtemp(path.data()) == nullptr)
        return;
    fLock = locked(path);
    if (fLock)
        fPath = path;
    else
        (void)::rmdir(path.c_str());
}

SocketFolder::~SocketFolder() {
    if (!fPath.empty())
        removeFolder(fPath);
}

} // namespace kelvo
