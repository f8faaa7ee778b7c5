#include "support/private_folders.h"

#include <QDir>
#include <QFile>

namespace kelvo {

void usePrivateFolders(const QTemporaryDir& home) {
    const auto privateFolder = [&home](const char* variable, const char* name) {
        const QString path = home.filePath(QString::fromLatin1(name));
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(variable, path.toLocal8Bit());
    };
    privateFolder("HOME", "home");
    privateFolder("XDG_CONFIG_HOME", "config");
    privateFolder("XDG_STATE_HOME", "state");
    privateFolder("XDG_CACHE_HOME", "cache");
    privateFolder("XDG_DATA_HOME", "data");
    privateFolder("XDG_RUNTIME_DIR", "run");
    privateFolder("TMPDIR", "tmp");
    qputenv(
        "DBUS_SYSTEM_BUS_ADDRESS",
        QByteArray("unix:path=" + home.filePath(QStringLiteral("run/system_bus")).toLocal8Bit()));
}

} // namespace kelvo
