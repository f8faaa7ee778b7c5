#include "app/places.h"

#include <QCoreApplication>
#include <QDir>
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

QString passesFile() {
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/kelvo-mirror/passes.sqlite");
}

} // namespace kelvo
