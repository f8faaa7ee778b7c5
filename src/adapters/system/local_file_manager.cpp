#include "adapters/system/local_file_manager.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace kelvo {
namespace {

QString homeOfAccount() {
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2);
    return found && found->pw_dir ? QString::fromLocal8Bit(found->pw_dir) : QString();
}

} // namespace

bool LocalFileManager::fileExistsAtPath(const QString& path) const {
    // A NUL would cut the path short and make it another one.
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return false;
    struct stat entry {};
    return ::stat(path.toLocal8Bit().constData(), &entry) == 0;
}

QString LocalFileManager::homeDirectory() const {
    const char* variable = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    QString home = variable && *variable ? QString::fromLocal8Bit(variable) : homeOfAccount();
    while (home.endsWith(u'/'))
        home.chop(1);
    return home;
}

} // namespace kelvo
