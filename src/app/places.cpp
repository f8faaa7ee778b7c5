#include "app/places.h"

#include "adapters/console/rotating_log_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kelvo {

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/kelvo-mirror/preferences.plist");
}

QString autostartFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

QString resourceFolder() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/kelvo-mirror");
}

QString copyFolder() {
    return QFileInfo(RotatingLogFile().defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")))
        .path();
}

QString passesFile() {
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/kelvo-mirror/passes.sqlite");
}

} // namespace kelvo
