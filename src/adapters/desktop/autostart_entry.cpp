#include "adapters/desktop/autostart_entry.h"

#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "ports/file_manager.h"
#include "support/system_error_text.h"

#include <QByteArray>
#include <QList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

namespace kelvo {
namespace {

/// No entry of ours comes near.
constexpr std::size_t cLargestEntry = std::size_t{16} * 1024;

/// A word of the Exec key: quoted as a shell would have it, then once more as every text of such a
/// file, and with the percent sign of the key's field codes doubled.
QByteArray execWord(const QString& word) {
    QByteArray quoted = "\"";
    for (const char byte : word.toUtf8()) {
        if (byte == '"' || byte == '`' || byte == '$' || byte == '\\')
            quoted += '\\';
        quoted += byte;
        if (byte == '%')
            quoted += '%';
    }
    return QByteArray(quoted + '"').replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
}

/// Desktops look for the first word of the key as it stands, before they read its percent signs:
/// such a path goes behind a command that becomes the program.
QByteArray execKey(const QString& program) {
    return (program.contains(u'%') ? "nice -n 0 " : "") + execWord(program);
}

/// `fault` without the path that it begins with.
QString reasonIn(const QString& fault, const QString& path) {
    const QString start = path + u": ";
    return fault.startsWith(start) ? fault.sliced(start.size()) : fault;
}

struct Found {
    enum Kind { Nothing, Ours, SomebodyElses, Unreadable };
    Kind kind = Nothing;
    int error = 0;
    QList<QByteArray> lines = {};
};

Found entryAt(const QByteArray& path) {
    const UniqueFd file(
        ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!file && errno == ENOENT)
        return {};
    // A link is nothing that we make.
    if (!file && errno == ELOOP)
        return {Found::SomebodyElses};
    struct stat entry {};
    if (!file || ::fstat(file.get(), &entry) != 0)
        return {Found::Unreadable, errno};
    if (!S_ISREG(entry.st_mode))
        return {Found::SomebodyElses};
    QByteArray bytes(static_cast<qsizetype>(cLargestEntry), '\0');
    const ssize_t size = ::read(file.get(), bytes.data(), cLargestEntry);
    if (size < 0)
        return {Found::Unreadable, errno};
    bytes.truncate(size);
    const QList<QByteArray> lines = bytes.split('\n');
    return {lines.contains(cAutostartMark) ? Found::Ours : Found::SomebodyElses, 0, lines};
}

/// The name that programs for people know an entry by, and the file's.
QString entryName(const Profile& profile) {
    return QStringLiteral("org.kelvo.KelvoMirror") +
           (profile.isNamed() ? QString(u'.' + profile.name) : QString());
}

} // namespace

QByteArray autostartText(const QString& program, const Profile& profile) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=" +
           profile.title().toUtf8() +
           "\n"
           "Comment=Keep a local folder supplied with movie files from a remote Mac\n"
           "Icon=kelvo-mirror\n"
           "Exec=" +
           execKey(program) +
           (profile.isNamed() ? " --profile " + profile.name.toLatin1() : QByteArray()) + "\n" +
           "Terminal=false\n" + cAutostartMark + "\n";
}

AutostartEntry::AutostartEntry(const QString& folder, const QString& program, FileManager& files,
                               Profile profile)
    : fFolder(folder), fProfile(std::move(profile)),
      fPath(folder + u'/' + entryName(fProfile) + QStringLiteral(".desktop")), fProgram(program),
      fFiles(files) {}

LoginItem::State AutostartEntry::state() const {
    const Found found = entryAt(fPath.toLocal8Bit());
    switch (found.kind) {
    case Found::Nothing:
        return {false, {LoginItemOutcome::Done, fPath, {}}};
    case Found::SomebodyElses:
        return {false, {LoginItemOutcome::SomebodyElses, fPath, {}}};
    case Found::Unreadable:
        return {false, {LoginItemOutcome::Failed, fPath, systemErrorText(found.error)}};
    case Found::Ours:
        break;
    }
    // How desktops switch an entry off without removing it.
    const bool isOff = std::ranges::any_of(found.lines, [](const QByteArray& line) {
        return line == "Hidden=true" || line == "X-GNOME-Autostart-enabled=false";
    });
    return {!isOff, {LoginItemOutcome::Done, fPath, {}}};
}

LoginItemOutcome AutostartEntry::setOn(bool on) {
    const Found found = entryAt(fPath.toLocal8Bit());
    if (found.kind == Found::SomebodyElses)
        return {LoginItemOutcome::SomebodyElses, fPath, {}};
    if (found.kind == Found::Unreadable)
        return {LoginItemOutcome::Failed, fPath, systemErrorText(found.error)};
    if (on) {
        if (const int error = makePrivateFolders(fFolder.toLocal8Bit().toStdString()))
            return {LoginItemOutcome::Failed, fPath, systemErrorText(error)};
        if (const FileFault fault =
                fFiles.writeAtomically(fPath, autostartText(fProgram, fProfile)))
            return {LoginItemOutcome::Failed, fPath, reasonIn(*fault, fPath)};
    } else if (found.kind == Found::Ours) {
        if (const FileFault fault = fFiles.removeItem(fPath))
            return {LoginItemOutcome::Failed, fPath, reasonIn(*fault, fPath)};
    }
    return {LoginItemOutcome::Done, fPath, {}};
}

} // namespace kelvo
