// Export and import of profiles with this user's files and terminal.
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/settings/plist_defaults.h"
#include "adapters/system/local_file_manager.h"
#include "app/commands/profile_transfer.h"
#include "app/commands/profiles.h"
#include "app/places.h"
#include "settings/preferences.h"
#include "support/plain_line.h"

#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <array>
#include <cstdio>

namespace kelvo {
namespace {

CommandAnswer failed(int code, const QString& why) {
    return {code, {}, QString(u"kelvo-mirror: " + why + u".\n")};
}

/// The settings file of `profile`, for as long as a command works with it.
struct Settings {
    explicit Settings(const Profile& profile)
        : defaults(settingsFile(profile), DamagedFile::IsLeftAlone, isState, mainQueue, console) {}

    // What goes wrong is in the answer.
    RotatingLogFile noLogFile;
    StreamConsole console{-1, -1, noLogFile};
    QtMainQueue mainQueue;
    PlistDefaults defaults;
};

std::optional<bool> askOnTerminal(const QString& preview) {
    if (::isatty(STDIN_FILENO) != 1 || ::isatty(STDOUT_FILENO) != 1)
        return std::nullopt;
    std::fputs(preview.toUtf8().constData(), stdout);
    std::fputs("Import it? Type yes or no: ", stdout);
    std::fflush(stdout);
    std::array<char, 16> line{};
    const char* const answer = std::fgets(line.data(), line.size(), stdin);
    const QByteArray said = QByteArray(answer ? answer : "").trimmed().toLower();
    return said == "yes" || said == "y";
}

QString store(const Profile& profile, const QVariantMap& imported) {
    Settings settings(profile);
    if (!settings.defaults.areKnown())
        return settings.defaults.trouble() + u'.';
    for (const Preference& each : preferenceTable()) {
        if (!isExported(each.key))
            continue;
        if (const QVariant value = imported.value(each.key.toString()); value.isValid())
            settings.defaults.setObject(each.key, value);
        else
            settings.defaults.removeObject(each.key);
    }
    settings.defaults.synchronize();
    const QString trouble = settings.defaults.trouble();
    return trouble.isEmpty() ? QString() : QString(trouble + u'.');
}

} // namespace

CommandAnswer runExportCommand(const Profile& profile, const QString& file) {
    Settings settings(profile);
    if (!settings.defaults.areKnown())
        return settingsUnknown(settings.defaults.trouble());
    const QByteArray bytes = exportedProfile(settings.defaults);
    CommandAnswer answer;
    if (settings.defaults.object(prefRsyncCommandString1).isValid())
        answer.errors = QStringLiteral("kelvo-mirror: the rsync command is in the file as it is "
                                       "set; read it before you give the file away.\n");
    if (file == u"-") {
        answer.output = QString::fromUtf8(bytes);
        return answer;
    }
    if (QFileInfo(file).exists() || QFileInfo(file).isSymLink())
        return failed(cExitNotStored, QString(oneLine(file) + u" is there already"));
    LocalFileManager files;
    if (const FileFault fault = files.writeAtomically(file, bytes))
        return failed(cExitNotStored, oneLine(*fault));
    return answer;
}

CommandAnswer runImportCommand(const Profile& profile, const TransferRequest& request) {
    QFile file(request.file);
    if (!file.open(QIODevice::ReadOnly))
        return failed(cExitBadProfile,
                      QString(oneLine(request.file) + u" cannot be read: " + file.errorString()));
    return answerImport(
        request, file.read(cLargestExport + 1), profile,
        {.isThere = isThere(profile),
         .ask = askOnTerminal,
         .store = [&profile](const QVariantMap& settings) { return store(profile, settings); }});
}

} // namespace kelvo
