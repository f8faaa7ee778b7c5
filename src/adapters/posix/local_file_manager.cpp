#include "adapters/posix/local_file_manager.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

namespace kelvo {
namespace {

std::string homeFromUserDatabase() {
    std::array<char, 16384> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return found->pw_dir;
}

} // namespace

bool LocalFileManager::fileExistsAtPath(const QString& path) const {
    return ::access(path.toLocal8Bit().constData(), F_OK) == 0;
}

QString LocalFileManager::homeDirectory() const {
    const char* variable = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): never set by us
    std::string home = variable && *variable ? variable : homeFromUserDatabase();
    while (home.size() > 1 && home.ends_with('/'))
        home.pop_back();
    return QString::fromLocal8Bit(home);
}

} // namespace kelvo
