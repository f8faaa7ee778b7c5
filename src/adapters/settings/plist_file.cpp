#include "adapters/settings/plist_file.h"

#include "adapters/settings/plist_guard.h"
#include "adapters/system/file_trust.h"
#include "adapters/system/private_places.h"
#include "support/system_error_text.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <climits>
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
constexpr int cMostLinks = 40;

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash);
}

/// Where the file at `path` lies, or would be made, when there are links in its place.
std::string endOfLinks(std::string path) {
    std::array<char, PATH_MAX> room{};
    for (int links = 0; links < cMostLinks; ++links) {
        const ssize_t size = ::readlink(path.c_str(), room.data(), room.size());
        if (size <= 0)
            break;
        const std::string target(room.data(), static_cast<std::size_t>(size));
        path = target.front() == '/' ? target : folderOf(path).append("/").append(target);
    }
    return path;
}

/// Why what another user wrote could be in the folder; empty for one that is not there.
QString foreignWritersOf(const std::string& folder) {
    struct stat entry {};
    if (::stat(folder.c_str(), &entry) != 0)
        return {};
    const QString foreign = foreignWriters(entry);
    return foreign.isEmpty() ? foreign : QString(u"of its folder: " + foreign);
}

bool othersMayEnter(const std::string& folder) {
    struct stat entry {};
    return ::stat(folder.c_str(), &entry) != 0 || (entry.st_mode & (S_IXGRP | S_IXOTH)) != 0;
}

QString syncFolder(const std::string& path) {
    const UniqueFd folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return systemErrorText(errno);
    // A file system that cannot sync folders says EINVAL; the file is in its place all the same.
    if (::fsync(folder.get()) != 0 && errno != EINVAL)
        return systemErrorText(errno);
    return {};
}

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
    const std::string given = QFile::encodeName(path).toStdString();
    const std::string place = endOfLinks(given);
    fLinked = place != given;
    fGivenFolder = folderOf(given);
    fFolder = folderOf(place);
    fName = place.substr(place.rfind('/') + 1);
}

PlistFile::Contents PlistFile::read() const {
    using enum Contents::State;
    // Not to be held up by a pipe that somebody put there.
    const UniqueFd file(::open(nativePath().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file) {
        const int error = errno;
        if (error != ENOENT && error != ENOTDIR)
            return {Unusable, {}, systemErrorText(error)};
        if (folderIsAway())
            return {Unusable, {}, QStringLiteral("the folder that it is linked to is not there")};
        const QString foreign = foreignFolder();
        return foreign.isEmpty() ? Contents{} : Contents{Unusable, {}, foreign};
    }
    struct stat entry {};
    if (::fstat(file.get(), &entry) != 0)
        return {Unusable, {}, systemErrorText(errno)};
    if (!S_ISREG(entry.st_mode))
        return {Unusable, {}, QStringLiteral("it is no ordinary file")};
    // Nobody else reaches a file in a closed folder, whatever its own mode says.
    if (!othersMayEnter(fFolder))
        entry.st_mode &= ~static_cast<mode_t>(S_IWGRP | S_IWOTH);
    QString foreign = foreignFolder();
    if (foreign.isEmpty())
        foreign = foreignWriters(entry);
    if (!foreign.isEmpty())
        return {Unusable, {}, foreign};
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
            return {Unusable, {}, systemErrorText(error)};
    }
    return contents;
}

/// Why another user could have put the file there.
QString PlistFile::foreignFolder() const {
    const QString foreign = foreignWritersOf(fFolder);
    return foreign.isEmpty() ? foreignWritersOf(fGivenFolder) : foreign;
}

/// Whether links lead to a folder that is not there, perhaps on a disk that is not mounted yet.
bool PlistFile::folderIsAway() const {
    struct stat entry {};
    if (::stat(fFolder.c_str(), &entry) == 0)
        return false;
    return fLinked || (::lstat(fFolder.c_str(), &entry) == 0 && S_ISLNK(entry.st_mode));
}

QString PlistFile::makeFolder() const {
    if (fLinked)
        return {};
    const int error = makePrivateFolders(fFolder);
    return error ? systemErrorText(error) : QString();
}

QString PlistFile::replace(const QByteArray& bytes) {
    if (bytes.size() > cLargestPlist)
        return QStringLiteral("the settings are larger than 16 MiB");
    const std::string place = endOfLinks(nativePath());
    const std::string newPath =
        place + std::string(cNewSuffix) + std::to_string(::getpid()) + '-' +
        std::to_string(++fWritten) + '-' +
        std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
    if (QString failure = writeNew(newPath, bytes); !failure.isEmpty())
        return failure;
    if (::rename(newPath.c_str(), place.c_str()) != 0) {
        const int error = errno;
        ::unlink(newPath.c_str());
        return systemErrorText(error);
    }
    return syncFolder(folderOf(place));
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

std::pair<QString, QString> PlistFile::moveAside(const QDateTime& now) {
    const std::string place = endOfLinks(nativePath());
    const QString aside = QFile::decodeName(place.c_str()) + QStringLiteral(".corrupt-") +
                          now.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    int error = EEXIST;
    for (int attempt = 1; attempt <= cMostAsides && error == EEXIST; ++attempt) {
        const QString target =
            attempt == 1 ? aside : aside + QLatin1Char('-') + QString::number(attempt);
        const std::string nativeTarget = QFile::encodeName(target).toStdString();
        error = renameToFreeName(place, nativeTarget);
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
