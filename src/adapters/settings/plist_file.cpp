#include "adapters/settings/plist_file.h"

#include "adapters/settings/plist_guard.h"
#include "adapters/system/private_places.h"
#include "support/system_error_text.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <string_view>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view cNewSuffix = ".new-";
constexpr std::string_view cLockSuffix = ".lock";
constexpr auto cLockPause = 5ms;
constexpr int cMostAsides = 1000;

int writeAll(int descriptor, const QByteArray& bytes) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.constData() + done,
                                      static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return errno;
        done += std::max<ssize_t>(count, 0);
    }
    return 0;
}

/// Like rename, but fails with EEXIST where something lies at `to`.
int renameToFreeName(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    struct stat entry {};
    if (::lstat(to.c_str(), &entry) == 0)
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// Whether the lock file that we hold is still the one that others will find.
bool stillInPlace(int descriptor, const std::string& path) {
    struct stat held {};
    struct stat found {};
    return ::fstat(descriptor, &held) == 0 && ::stat(path.c_str(), &found) == 0 &&
           held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

} // namespace

PlistFile::PlistFile(const QString& path) : fPath(path) {
    const std::string native = QFile::encodeName(path).toStdString();
    const std::size_t slash = native.rfind('/');
    fFolder = slash == std::string::npos ? std::string(".") : native.substr(0, slash);
    fName = native.substr(slash == std::string::npos ? 0 : slash + 1);
}

PlistFile::Contents PlistFile::read() const {
    using enum Contents::State;
    // Not to be held up by a pipe that somebody put there.
    const UniqueFd file(::open(nativePath().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        return missing ? Contents{} : Contents{Refused, {}, systemErrorText(errno)};
    }
    struct stat entry {};
    if (::fstat(file.get(), &entry) != 0)
        return {Refused, {}, systemErrorText(errno)};
    if (!S_ISREG(entry.st_mode))
        return {Refused, {}, QStringLiteral("it is no ordinary file")};
    Contents contents{Read, {}, {}};
    while (contents.bytes.size() <= cLargestPlist) {
        constexpr qsizetype cPiece = qsizetype{64} * 1024;
        const qsizetype had = contents.bytes.size();
        contents.bytes.resize(had + std::min(cPiece, cLargestPlist + 1 - had));
        const ssize_t count = ::read(file.get(), contents.bytes.data() + had,
                                     static_cast<std::size_t>(contents.bytes.size() - had));
        const int error = errno;
        contents.bytes.resize(had + std::max<ssize_t>(count, 0));
        if (count == 0)
            break;
        if (count < 0 && error != EINTR)
            return {Refused, {}, systemErrorText(error)};
    }
    return contents;
}

QString PlistFile::makeFolder() const {
    const int error = makePrivateFolders(fFolder);
    return error ? systemErrorText(error) : QString();
}

QString PlistFile::replace(const QByteArray& bytes) {
    if (bytes.size() > cLargestPlist)
        return QStringLiteral("the settings are larger than 16 MiB");
    const std::string newPath = nativePath(
        std::string(cNewSuffix) + std::to_string(::getpid()) + '-' + std::to_string(++fWritten) +
        '-' + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()));
    if (QString failure = writeNew(newPath, bytes); !failure.isEmpty())
        return failure;
    if (::rename(newPath.c_str(), nativePath().c_str()) != 0) {
        const int error = errno;
        ::unlink(newPath.c_str());
        return systemErrorText(error);
    }
    return syncFolder();
}

QString PlistFile::writeNew(const std::string& newPath, const QByteArray& bytes) const {
    UniqueFd file(::open(newPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!file)
        return systemErrorText(errno);
    int error = writeAll(file.get(), bytes);
    if (!error && ::fsync(file.get()) != 0)
        error = errno;
    // Some file systems say only here that there was no room.
    if (::close(file.release()) != 0 && !error)
        error = errno;
    if (!error)
        return {};
    ::unlink(newPath.c_str());
    return systemErrorText(error);
}

QString PlistFile::syncFolder() const {
    const UniqueFd folder(::open(fFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return systemErrorText(errno);
    // A file system that cannot sync folders says EINVAL; the file is in its place all the same.
    if (::fsync(folder.get()) != 0 && errno != EINVAL)
        return systemErrorText(errno);
    return {};
}

std::pair<QString, QString> PlistFile::moveAside(const QDateTime& now) {
    const QString aside = fPath + QStringLiteral(".corrupt-") +
                          now.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    int error = EEXIST;
    for (int attempt = 1; attempt <= cMostAsides && error == EEXIST; ++attempt) {
        const QString target =
            attempt == 1 ? aside : aside + QLatin1Char('-') + QString::number(attempt);
        const std::string nativeTarget = QFile::encodeName(target).toStdString();
        error = renameToFreeName(nativePath(), nativeTarget);
        if (!error) {
            closeToOthers(nativeTarget);
            return {target, {}};
        }
    }
    return {{}, systemErrorText(error)};
}

std::pair<FileLock, QString> PlistFile::lock(std::chrono::milliseconds patience) {
    const std::string path = nativePath(std::string(cLockSuffix));
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        FileLock lock(::open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
        if (!lock)
            return {FileLock(), systemErrorText(errno)};
        if (::flock(lock.get(), LOCK_EX | LOCK_NB) == 0) {
            if (stillInPlace(lock.get(), path))
                return {std::move(lock), QString()};
            continue;
        }
        if (errno != EWOULDBLOCK && errno != EINTR)
            return {std::move(lock), QString()};
        if (std::chrono::steady_clock::now() >= deadline)
            return {FileLock(), QStringLiteral("another program keeps it locked")};
        std::this_thread::sleep_for(cLockPause);
    }
}

void PlistFile::removeLeftovers() {
    DIR* folder = ::opendir(fFolder.c_str());
    if (!folder)
        return;
    const std::string begin = fName + std::string(cNewSuffix);
    while (const dirent* entry = ::readdir(folder)) {
        if (std::string_view(entry->d_name).starts_with(begin))
            ::unlinkat(::dirfd(folder), entry->d_name, 0);
    }
    ::closedir(folder);
}

} // namespace kelvo
