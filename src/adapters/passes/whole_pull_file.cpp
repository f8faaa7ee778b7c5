#include "adapters/passes/whole_pull_file.h"

#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "ports/file_manager.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>

#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cLongest = qint64{1024} * 1024; // bytes; longer than the system takes a command

/// Never waits for what is no ordinary file.
QString textOf(const QString& path) {
    const UniqueFd file(::open(QFile::encodeName(path).constData(),
                               O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat entry {};
    QFile reader;
    if (!file || ::fstat(file.get(), &entry) != 0 || !S_ISREG(entry.st_mode) ||
        !reader.open(file.get(), QFile::ReadOnly))
        return {};
    return QString::fromUtf8(reader.read(cLongest));
}

} // namespace

WholePullFile::WholePullFile(QString path, FileManager& files)
    : fPath(std::move(path)), fFiles(files) {}

QString WholePullFile::last() {
    const std::lock_guard lock(fMutex);
    if (!fLast)
        fLast = textOf(fPath);
    return *fLast;
}

void WholePullFile::keep(const QString& command) {
    const std::lock_guard lock(fMutex);
    if (fLast == command)
        return;
    fLast = command;
    if (command.isEmpty()) {
        (void)fFiles.removeItem(fPath);
        return;
    }
    (void)makePrivateFolders(QFile::encodeName(QFileInfo(fPath).path()).toStdString());
    (void)fFiles.writeAtomically(fPath, command.toUtf8());
}

} // namespace kelvo
