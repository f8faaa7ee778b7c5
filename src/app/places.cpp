#include "app/places.h"

#include "adapters/console/rotating_log_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kelvo {

namespace {

QString configFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/kelvo-mirror");
}

QString stateFolder(const Profile& profile) {
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return profile.within(state + QStringLiteral("/kelvo-mirror"));
}

} // namespace

QString settingsFile(const Profile& profile) {
    return profile.within(configFolder()) + QStringLiteral("/preferences.plist");
}

QStringList profileNames() {
    QStringList names = QDir(configFolder() + QStringLiteral("/profiles"))
                            .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    names.removeIf([](const QString& name) { return !profileNameFault(name).isEmpty(); });
    return names;
}

QString autostartFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/autostart");
}

QString resourceFolder() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/kelvo-mirror");
}

QString sshFragment() {
    return resourceFolder() + QStringLiteral("/ssh.conf");
}

QString sshFragmentOfTheMachine() {
    return QStringLiteral("/etc/ssh/ssh_config.d/kelvo-mirror.conf");
}

QString logSubdirectory(const Profile& profile) {
    return profile.within(QStringLiteral("Kelvo"));
}

QString copyFolder(const Profile& profile) {
    return QFileInfo(RotatingLogFile().defaultLogFileWithinSubdirectory(logSubdirectory(profile)))
        .path();
}

QString passesFile(const Profile& profile) {
    return stateFolder(profile) + QStringLiteral("/passes.sqlite");
}

QString wholePullFile(const Profile& profile) {
    return stateFolder(profile) + QStringLiteral("/whole-pull");
}

} // namespace kelvo
