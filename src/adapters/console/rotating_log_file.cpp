#include "adapters/console/rotating_log_file.h"

#include "adapters/system/private_places.h"
#include "support/plain_line.h"
#include "support/system_error_text.h"

#include <QDateTime>
#include <QFile>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

namespace kelvo {
namespace {

constexpr int cOlderFiles = 2;
constexpr mode_t cFileMode = S_IRUSR | S_IWUSR;

std::string homeFolder() {
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home == '/') // NOLINT
        return home;
    const passwd* const user = ::getpwuid(::getuid()); // NOLINT
    return user != nullptr ? user->pw_dir : "";
}

} // namespace

RotatingLogFile::RotatingLogFile(off_t fileSize, std::chrono::milliseconds pause)
    : fFileSize(fileSize), fPause(pause) {}

RotatingLogFile::~RotatingLogFile() {
    if (!fPath.isEmpty())
        (void)writeOut();
}

QString RotatingLogFile::defaultLogFileWithinSubdirectory(const QString& subdirectory) const {
    const char* const state = std::getenv("XDG_STATE_HOME"); // NOLINT
    const std::string base =
        state != nullptr && *state == '/' ? std::string(state) : homeFolder() + "/.local/state";
    return QString::fromStdString(base) + u'/' + subdirectory + u"/kelvo-mirror.log";
}

bool RotatingLogFile::setLogFile(const QString& path) {
    const std::lock_guard lock(fMutex);
    fFile.reset();
    fWaiting.clear();
    fLeftOut = 0;
    fPath = QFile::encodeName(path);
    return !fPath.isEmpty() && writeOut();
}

void RotatingLogFile::append(const QStringList& pieces) {
    const QString text = logLine(pieces);
    const std::lock_guard lock(fMutex);
    if (fPath.isEmpty())
        return;
    const QByteArray line = stamped(text);
    const bool tries =
        fTrouble == 0 || (std::chrono::steady_clock::now() >= fNextTry && writeOut());
    if (fLeftOut > 0 || (!fWaiting.isEmpty() && fWaiting.size() + line.size() > cMostWaiting))
        ++fLeftOut;
    else
        fWaiting += line;
    if (tries)
        (void)writeOut();
}

/// Qt takes as long for a date as for writing the line: one is made a second.
QByteArray RotatingLogFile::stamped(const QString& line) {
    constexpr qint64 cSecond = 1000;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (std::exchange(fSecond, now / cSecond) != now / cSecond)
        fDate = QDateTime::fromMSecsSinceEpoch(now)
                    .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss."))
                    .toLatin1();
    return fDate + QByteArray::number(now % cSecond).rightJustified(3, '0') + ' ' + line.toUtf8() +
           '\n';
}

/// Writes everything that waits; false when that does not go now.
bool RotatingLogFile::writeOut() {
    const int before = fTrouble;
    fTrouble = openUnlessOpen();
    if (fTrouble == 0)
        fTrouble = writeWaiting();
    if (fTrouble == 0 && fLeftOut > 0) {
        fWaiting = stamped(QStringLiteral("%1 lines left out: %2")
                               .arg(std::exchange(fLeftOut, 0))
                               .arg(systemErrorText(before)));
        fTrouble = writeWaiting();
    }
    if (fTrouble == 0)
        return true;
    fNextTry = std::chrono::steady_clock::now() + fPause;
    return false;
}

int RotatingLogFile::openUnlessOpen() {
    struct stat there {};
    struct stat ours {};
    if (fFile && ::fstat(fFile.get(), &ours) == 0 && ::stat(fPath.constData(), &there) == 0 &&
        there.st_dev == ours.st_dev && there.st_ino == ours.st_ino)
        return 0;
    return open();
}

/// 0, or the errno that tells why not.
int RotatingLogFile::open() {
    fFile.reset();
    if (const int error = makePrivateFolders(fPath.left(fPath.lastIndexOf('/')).toStdString()))
        return error;
    // A pipe would wait for its reader.
    UniqueFd file(::open(fPath.constData(),
                         O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK,
                         cFileMode));
    struct stat status {};
    if (!file || ::fstat(file.get(), &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    (void)::fchmod(file.get(), cFileMode);
    fSize = status.st_size;
    fFile = std::move(file);
    return 0;
}

/// What is not written stays waiting; a line is written in one piece where that goes.
int RotatingLogFile::writeWaiting() {
    while (!fWaiting.isEmpty()) {
        const qsizetype line = fWaiting.indexOf('\n') + 1;
        if (fSize > 0 && fSize + line > fFileSize) {
            if (const int error = rotate())
                return error;
        }
        const ssize_t size =
            ::write(fFile.get(), fWaiting.constData(), static_cast<std::size_t>(line));
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0)
            return size < 0 ? errno : EIO;
        fSize += size;
        fWaiting.remove(0, size);
    }
    return 0;
}

/// Where a step fails no file is lost, and the next attempt takes the rest.
int RotatingLogFile::rotate() {
    for (int number = cOlderFiles; number >= 1; --number) {
        if (::rename(olderName(number - 1).constData(), olderName(number).constData()) != 0 &&
            errno != ENOENT)
            return errno;
    }
    return open();
}

/// "name.N.log"; 0 is the file itself.
QByteArray RotatingLogFile::olderName(int number) const {
    const qsizetype dot = fPath.lastIndexOf('.');
    if (number == 0 || dot <= fPath.lastIndexOf('/'))
        return number == 0 ? fPath : fPath + '.' + QByteArray::number(number);
    return fPath.left(dot) + '.' + QByteArray::number(number) + fPath.mid(dot);
}

} // namespace kelvo
