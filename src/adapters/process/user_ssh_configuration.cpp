#include "adapters/process/user_ssh_configuration.h"

#include "adapters/system/private_places.h"
#include "support/system_error_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cMost = qint64{4} * 1024 * 1024;

/// Nothing when it cannot be read; a file that is missing is empty.
std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    if (!file.exists())
        return QByteArray("");
    if (file.size() > cMost || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return content;
}

/// Where `line` begins as a line of its own; -1 without it.
qsizetype placeOf(const QByteArray& line, const QByteArray& content) {
    qsizetype begin = 0;
    while (begin < content.size()) {
        qsizetype end = content.indexOf('\n', begin);
        if (end < 0)
            end = content.size();
        if (content.mid(begin, end - begin).trimmed() == line)
            return begin;
        begin = end + 1;
    }
    return -1;
}

/// Empty when it is not known.
QString homeOfAccount() {
    std::array<char, 16384> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return QFile::decodeName(found->pw_dir);
}

} // namespace

UserSshConfiguration::UserSshConfiguration(const QString& fragment, QString machines, QString home)
    : fLine(QStringLiteral("Include \"%1\"").arg(QDir::cleanPath(fragment))),
      fMachines(std::move(machines)), fHome(std::move(home)) {}

QString UserSshConfiguration::file() const {
    return (fHome.isEmpty() ? homeOfAccount() : fHome) + QStringLiteral("/.ssh/config");
}

SshConfiguration::Knows UserSshConfiguration::knows() const {
    if (QFile::exists(fMachines))
        return Knows::ByTheMachine;
    const auto content = contentOf(file());
    return content && placeOf(QFile::encodeName(fLine), *content) >= 0 ? Knows::ByTheLine
                                                                       : Knows::NotYet;
}

QString UserSshConfiguration::setLine(bool there) {
    auto content = contentOf(file());
    if (!content)
        return QStringLiteral("it cannot be read");
    const QByteArray line = QFile::encodeName(fLine);
    const qsizetype place = placeOf(line, *content);
    if ((place >= 0) == there)
        return {};
    if (there) {
        content->prepend(line + '\n');
    } else {
        const qsizetype end = content->indexOf('\n', place);
        content->remove(place, end < 0 ? content->size() - place : end + 1 - place);
    }
    const QString path = file();
    const QString folder = QFileInfo(path).path();
    if (const int error = makePrivateFolders(QFile::encodeName(folder).toStdString()))
        return systemErrorText(error);
    const bool isNew = !QFile::exists(path);
    QSaveFile saved(path);
    if (!saved.open(QIODevice::WriteOnly))
        return saved.errorString();
    if (isNew)
        saved.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    saved.write(*content);
    return saved.commit() ? QString() : saved.errorString();
}

} // namespace kelvo
