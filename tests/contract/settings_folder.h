// SettingsFolder: a folder of its own for a settings file, and what tests do to such a file.
#pragma once

#include "adapters/settings/plist_codec.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <optional>

namespace kelvo {

class SettingsFolder {
public:
    QString folder() const { return fRoot.filePath(QStringLiteral("config/kelvo-mirror")); }
    QString path() const { return folder() + QStringLiteral("/preferences.plist"); }

    /// Puts `bytes` at the file's place, in place, as a careless program does.
    void write(const QByteArray& bytes) const {
        QDir().mkpath(folder());
        QFile file(path());
        ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// Replaces the file by one with `values`, as a careful program does.
    void replace(const QVariantMap& values) const {
        QDir().mkpath(folder());
        const QString other = folder() + QStringLiteral("/other-program");
        QFile file(other);
        ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
        file.write(encodePlist(values));
        file.close();
        ASSERT_EQ(::rename(QFile::encodeName(other), QFile::encodeName(path())), 0);
    }

    QByteArray bytes() const {
        QFile file(path());
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Nothing while the file is missing or unreadable.
    std::optional<QVariantMap> values() const { return decodePlist(bytes()).root; }

    /// The names in the folder, the settings file and its lock apart.
    QStringList otherFiles() const {
        QStringList names =
            QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.removeAll(QStringLiteral("preferences.plist"));
        names.removeAll(QStringLiteral("preferences.plist.lock"));
        return names;
    }

    static ino_t inodeOf(const QString& path) {
        struct stat entry {};
        return ::stat(QFile::encodeName(path), &entry) == 0 ? entry.st_ino : 0;
    }
    static mode_t modeOf(const QString& path) {
        struct stat entry {};
        return ::stat(QFile::encodeName(path), &entry) == 0 ? entry.st_mode & 07777 : 0;
    }

private:
    QTemporaryDir fRoot;
};

} // namespace kelvo
