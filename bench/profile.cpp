#include "bench/profile.h"

#include "adapters/passes/pass_database.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <utility>

namespace kelvo::bench {

Profile::Profile() {
    for (const char* name : {"config/kelvo-mirror", "run", "from"})
        QDir().mkpath(path(name));
    QFile::setPermissions(path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString Profile::path(const char* name) const {
    return fFolder.filePath(QString::fromLatin1(name));
}

void Profile::set(const QString& entries) const {
    QFile file(path("config/kelvo-mirror/preferences.plist"));
    if (file.open(QIODevice::WriteOnly))
        file.write(QString(u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<plist version=\"1.0\"><dict>" +
                           QString(entries).replace(QStringLiteral("%1"), path()) +
                           u"</dict></plist>\n")
                       .toUtf8());
}

QProcessEnvironment Profile::environment() const {
    QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    own.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
    own.insert(QStringLiteral("XDG_STATE_HOME"), path("state"));
    own.insert(QStringLiteral("XDG_RUNTIME_DIR"), path("run"));
    own.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    return own;
}

std::vector<PassRecord> Profile::recordedPasses() const {
    PassDatabase database(path("state/kelvo-mirror/passes.sqlite"), {},
                          PassDatabase::Access::ReadOnly);
    std::vector<PassRecord> all;
    (void)database.readAll(all);
    for (PassRecord& record : all) {
        std::optional<PassRecord> whole;
        if (database.read(record.id, whole) && whole)
            record = std::move(*whole);
    }
    return all;
}

QString plainPasses(double rest) {
    return QStringLiteral("<key>prefAutoStartScanOnLaunch</key><true/>"
                          "<key>prefRsyncWithSSH</key><false/>"
                          "<key>prefDelayBetweenScans</key><real>%2</real>"
                          "<key>prefPath1</key><string>%1/from</string>"
                          "<key>prefPath2</key><string>%1/to</string>")
        .replace(QStringLiteral("%2"), QString::number(rest));
}

QString builtProgram(const QString& name) {
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

} // namespace kelvo::bench
