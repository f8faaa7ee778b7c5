// ProgramProfile: a home, settings and folders of a test's own for the built program.
#pragma once

#include "support/plist_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {

inline QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes the folders that are missing.
inline void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    file.write(bytes);
}

class ProgramProfile {
public:
    struct Ended {
        int code; ///< -1 for one that died by a signal
        QByteArray output;
        QByteArray errors;
    };

    ProgramProfile() {
        QDir().mkpath(path(QStringLiteral("home")));
        QDir().mkpath(path(QStringLiteral("run")));
        QFile::setPermissions(path(QStringLiteral("run")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString path(const QString& name) const { return folder.filePath(name); }
    QString settingsFile() const {
        return path(QStringLiteral("config/kelvo-mirror/preferences.plist"));
    }
    QString logFile() const { return path(QStringLiteral("state/Kelvo/kelvo-mirror.log")); }

    /// A copy of the built program in this folder, with its part without a window and nothing
    /// else; the path of its file. Empty when it cannot be made.
    QString copiedProgram() const {
        const QFileInfo built(QStringLiteral(KELVO_PROGRAM));
        const QString part = QStringLiteral("lib/kelvo-mirror/program.so");
        const QString program = path(QStringLiteral("copy/bin/kelvo-mirror"));
        QDir().mkpath(path(QStringLiteral("copy/bin")));
        QDir().mkpath(path(QStringLiteral("copy/lib/kelvo-mirror")));
        const bool made = QFile::copy(built.filePath(), program) &&
                          QFile::copy(built.path() + u"/../" + part, path(u"copy/" + part));
        return made ? program : QString();
    }

    /// Without a display; everything of the user's lies in the folder.
    QProcessEnvironment environment() const {
        QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
        for (const auto& [variable, name] :
             {std::pair("HOME", "home"), std::pair("XDG_CONFIG_HOME", "config"),
              std::pair("XDG_STATE_HOME", "state"), std::pair("XDG_CACHE_HOME", "cache"),
              std::pair("XDG_RUNTIME_DIR", "run")})
            own.insert(QString::fromLatin1(variable), path(QString::fromLatin1(name)));
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            own.remove(QString::fromLatin1(variable));
        return own;
    }

    Ended runToEnd(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(program, arguments);
        process.waitForFinished();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    /// Passes between the folders "Camera" and "Incoming", from the launch on.
    QVariantMap plainProfile() const {
        return {{QStringLiteral("prefAutoStartScanOnLaunch"), true},
                {QStringLiteral("prefRsyncWithSSH"), false},
                {QStringLiteral("prefDelayBetweenScans"), 0.5},
                {QStringLiteral("prefPath1"), path(QStringLiteral("Camera"))},
                {QStringLiteral("prefPath2"), path(QStringLiteral("Incoming"))}};
    }

    const QTemporaryDir folder;
};

} // namespace kelvo
