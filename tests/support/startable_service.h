// A service that a bus would start for whoever calls it, for tests that nobody makes it do so.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDir>
#include <QFile>
#include <QString>

namespace kelvo {

/// For the buses that are started while it lives.
class StartableService {
public:
    explicit StartableService(const QString& name)
        : fName(name), fEntry(fFolder + u'/' + name + u".service"), fSign(fEntry + u".started") {
        QDir().mkpath(fFolder);
        QFile entry(fEntry);
        if (entry.open(QFile::WriteOnly))
            entry.write(QString(u"[D-BUS Service]\nName=" + name + u"\nExec=/usr/bin/touch \"" +
                                fSign + u"\"\n")
                            .toLocal8Bit());
    }
    ~StartableService() {
        QFile::remove(fEntry);
        QFile::remove(fSign);
    }
    StartableService(const StartableService&) = delete;
    StartableService& operator=(const StartableService&) = delete;

    bool wasStarted() const { return QFile::exists(fSign); }

    /// Calls it, behind all that was sent over this connection before.
    void call(const QDBusConnection& bus) const {
        bus.asyncCall(QDBusMessage::createMethodCall(fName, QStringLiteral("/"),
                                                     QStringLiteral("org.freedesktop.DBus.Peer"),
                                                     QStringLiteral("Ping")));
    }

private:
    const QString fName;
    const QString fFolder = qEnvironmentVariable("XDG_DATA_HOME") + u"/dbus-1/services";
    const QString fEntry;
    const QString fSign;
};

} // namespace kelvo
