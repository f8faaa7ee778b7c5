#include "adapters/system/local_file_manager.h"

#include "adapters/system/folder_walk.h"
#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "support/system_error_text.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace kelvo {
namespace {

bool usable(const QString& path) {
    // A NUL would cut the path short and make it another one.
    return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

/// The kind of what lies at `path`, links followed; 0 for nothing.
mode_t kindOf(const QString& path) {
    struct stat entry {};
    if (!usable(path) || ::stat(path.toLocal8Bit().constData(), &entry) != 0)
        return 0;
    return entry.st_mode & S_IFMT;
}

bool allows(const QString& path, int access) {
    return ::access(path.toLocal8Bit().constData(), access) == 0;
}

QString homeOfAccount() {
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2);
    return found ? QString::fromLocal8Bit(found->pw_dir) : QString();
}

QString faultOf(const QString& path, int error) {
    return path + u": " + systemErrorText(error);
}

/// 0, or errno.
int writeAll(int file, const QByteArray& content) {
    for (qsizetype written = 0; written < content.size();) {
        const ssize_t size = ::write(file, content.constData() + written,
                                     static_cast<std::size_t>(content.size() - written));
        if (size < 0 && errno != EINTR)
            return errno;
        written += size > 0 ? size : 0;
    }
    return ::fsync(file) == 0 ? 0 : errno;
}

/// 0, or errno.
int copyRest(int from, int to) {
    std::vector<char> room(65536);
    for (;;) {
        const ssize_t size = ::read(from, room.data(), room.size());
        if (size == 0)
            return 0;
        if (size < 0 && errno != EINTR)
            return errno;
        if (const int error = size < 0 ? 0 : writeAll(to, QByteArray(room.data(), size)))
            return error;
    }
}

/// 0, or errno: a new file with the content and the permission bits of `from`, or none.
int copyAs(const QByteArray& from, const QByteArray& to) {
    const UniqueFd source(::open(from.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat entry {};
    if (!source || ::fstat(source.get(), &entry) != 0)
        return errno;
    if (!S_ISREG(entry.st_mode))
        return S_ISDIR(entry.st_mode) ? EISDIR : EINVAL;
    const UniqueFd copy(
        ::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!copy)
        return errno;
    int error = copyRest(source.get(), copy.get());
    if (error == 0 && ::fchmod(copy.get(), entry.st_mode & 07777U) != 0)
        error = errno;
    if (error != 0)
        ::unlink(to.constData());
    return error;
}

} // namespace

bool LocalFileManager::fileExistsAtPath(const QString& path) const {
    return kindOf(path) != 0;
}

bool LocalFileManager::isProgram(const QString& path) const {
    return kindOf(path) == S_IFREG && allows(path, X_OK);
}

bool LocalFileManager::isWritableFolder(const QString& path) const {
    return kindOf(path) == S_IFDIR && allows(path, W_OK | X_OK);
}

std::vector<FoundFile> LocalFileManager::filesBeneath(const QByteArray& folder,
                                                      const NameList& names) const {
    return kelvo::filesBeneath(folder, names);
}

std::vector<FoundFile> LocalFileManager::filesChangedSince(
    const QByteArray& folder, const QDateTime& moment,
    const std::function<bool(QByteArrayView name)>& passedOver) const {
    return kelvo::filesChangedSince(folder, moment, passedOver);
}

/// The lock lies on the folder itself: no file to leave behind, and a way through a link or another
/// mount comes to the same one.
std::optional<Subscription> LocalFileManager::claimFolder(const QString& path) const {
    const auto folder = std::make_shared<UniqueFd>(
        usable(path) ? ::open(path.toLocal8Bit().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
                     : -1);
    if (*folder && ::flock(folder->get(), LOCK_EX | LOCK_NB) == 0)
        // A command that is just being started may hold the folder open for a moment longer.
        return Subscription([folder] { (void)::flock(folder->get(), LOCK_UN); });
    return *folder && errno == EWOULDBLOCK ? std::nullopt : std::optional(Subscription());
}

QString LocalFileManager::homeDirectory() const {
    const char* variable = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe)
    QString home = variable && *variable ? QString::fromLocal8Bit(variable) : homeOfAccount();
    while (home.endsWith(u'/'))
        home.chop(1);
    return home;
}

FolderOrFault LocalFileManager::temporaryFolder() {
    const PrivateFolder folder =
        fProfile.isNamed() ? temporaryFolderWithin("profile-" + fProfile.name.toStdString())
                           : temporaryFolderOfUser();
    return {QString::fromLocal8Bit(folder.path.c_str()),
            QString::fromLocal8Bit(folder.fault.c_str())};
}

FileFault LocalFileManager::removeItem(const QString& path) {
    if (!usable(path))
        return faultOf(path, EINVAL);
    if (std::remove(path.toLocal8Bit().constData()) == 0)
        return {};
    return faultOf(path, errno);
}

FileFault LocalFileManager::keepUnder(const QString& path, const QString& name) {
    if (!usable(path) || !usable(name))
        return faultOf(path, EINVAL);
    const QByteArray from = path.toLocal8Bit();
    const QByteArray to = name.toLocal8Bit();
    if (::linkat(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), 0) == 0)
        return {};
    int error = errno;
    // Not every file system has second names, and not every file may be given one.
    if (error == EPERM || error == EOPNOTSUPP || error == ENOSYS || error == EMLINK)
        error = copyAs(from, to);
    return error == 0 ? FileFault() : FileFault(faultOf(error == EEXIST ? name : path, error));
}

FileFault LocalFileManager::writeAtomically(const QString& path, const QByteArray& content) {
    if (!usable(path))
        return faultOf(path, EINVAL);
    const QByteArray target = path.toLocal8Bit();
    // mkostemp makes a new file or fails: nothing that lies there already is opened.
    QByteArray beside = target + ".XXXXXX";
    const UniqueFd file(::mkostemp(beside.data(), O_CLOEXEC));
    if (!file)
        return faultOf(path, errno);
    int error = writeAll(file.get(), content);
    if (error == 0 && ::rename(beside.constData(), target.constData()) != 0)
        error = errno;
    if (error == 0)
        return {};
    ::unlink(beside.constData());
    return faultOf(path, error);
}

int LocalFileManager::changeMode(const QString& path, unsigned mode) {
    return usable(path) ? ::chmod(path.toLocal8Bit().constData(), static_cast<mode_t>(mode)) : -1;
}

} // namespace kelvo
