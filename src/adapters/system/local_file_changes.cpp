#include "adapters/system/local_file_changes.h"

#include "adapters/system/unique_fd.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace kelvo {
namespace {

bool usable(const QString& path) {
    // A NUL would cut the path short and make it another one.
    return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

QString faultOf(const QString& path, int error) {
    return path + u": " + QString::fromLocal8Bit(std::strerror(error)); // NOLINT
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

} // namespace

FileFault LocalFileChanges::removeItem(const QString& path) {
    if (!usable(path))
        return faultOf(path, EINVAL);
    if (std::remove(path.toLocal8Bit().constData()) == 0)
        return {};
    return faultOf(path, errno);
}

FileFault LocalFileChanges::writeAtomically(const QString& path, const QByteArray& content) {
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

int LocalFileChanges::changeMode(const QString& path, unsigned mode) {
    return usable(path) ? ::chmod(path.toLocal8Bit().constData(), static_cast<mode_t>(mode)) : -1;
}

} // namespace kelvo
