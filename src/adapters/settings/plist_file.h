// PlistFile: the settings file as bytes: read whole, replaced whole, moved aside, locked.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <chrono>
#include <string>
#include <utility>

namespace kelvo {

/// A lock between programs, held while this object lives; made by PlistFile::lock.
using FileLock = UniqueFd;

/// All operations block on the disk; one thread at a time. A failure is a text that ends a
/// sentence; the empty text means success. Links in the file's place stay: what lies at their end
/// is read, replaced, moved aside and locked.
class PlistFile {
public:
    explicit PlistFile(const QString& path);

    struct Contents {
        enum class State { Missing, Read, Unusable } state = State::Missing;
        QByteArray bytes; ///< when Read; one byte over the largest list stands for all larger files
        QString fault;    ///< when Unusable
    };
    /// Unusable says nothing about what is in the file: it cannot be read now, it is no ordinary
    /// file, another user could have written it, or links lead to a folder that is not there.
    Contents read() const;

    /// Puts `bytes` in the file's place so that at any moment, a crash included, the file is the
    /// old or the new one: a new file beside it (mode 0600) is written, synced and renamed, and the
    /// folder synced. After a failure the new file is gone and the old one as it was.
    QString replace(const QByteArray& bytes);

    /// Renames the file, whatever it is, to `<path>.corrupt-<now as yyyyMMddTHHmmssZ>`, with "-2",
    /// "-3" and so on added when the name is taken. First: the new path, empty after a failure;
    /// second: the failure.
    std::pair<QString, QString> moveAside(const QDateTime& now);

    /// Holds out other programs that write this file. Gives up after `patience`; the second is the
    /// failure then. A file system that knows no locks counts as success.
    std::pair<FileLock, QString> lock(std::chrono::milliseconds patience);

    /// Removes the new files of writers that died before they could rename them. Call it with the
    /// lock held: then nobody is writing.
    void removeLeftovers();

    /// Makes the folder and its parents (0700) when missing, but none that a link leads to.
    QString makeFolder() const;
    const QString& path() const { return fPath; }
    /// Where the file itself lies, past all links.
    const std::string& folder() const { return fFolder; }
    const std::string& name() const { return fName; }

private:
    std::string nativePath(const std::string& suffix = {}) const {
        return fFolder + '/' + fName + suffix;
    }
    QString writeNew(const std::string& newPath, const QByteArray& bytes) const;
    QString foreignFolder() const;
    bool folderIsAway() const;

    QString fPath;
    std::string fGivenFolder; ///< where `fPath` says the file is
    bool fLinked = false;
    std::string fFolder;
    std::string fName;
    unsigned fWritten = 0; ///< makes the names of new files unique within this process
};

} // namespace kelvo
