// FileManager: the machine's files, as the program asks about them and changes them.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kelvo {

/// Why a change did not happen, in the system's words; nothing when it did.
using FileFault = std::optional<QString>;

struct FolderOrFault {
    QString path;  ///< absolute, without a closing "/"; empty when there is none
    QString fault; ///< why there is none, in words
};

/// Every operation blocks as long as the file system does; any thread, several at once. A path that
/// is empty or holds U+0000 is nothing that could be there, and a change to it is a fault.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Whether anything lies at `path`, links followed.
    virtual bool fileExistsAtPath(const QString& path) const = 0;

    /// Whether `path` is a file that this user may run, links followed.
    virtual bool isProgram(const QString& path) const = 0;

    /// Whether `path` is a folder that this user may put files into, links followed.
    virtual bool isWritableFolder(const QString& path) const = 0;

    /// The user's home folder without a closing "/"; empty when it is not known.
    virtual QString homeDirectory() const = 0;

    /// The user's own folder for files that live only for a while, made when it is missing; nobody
    /// else may enter it. One that somebody else could have prepared is refused.
    virtual FolderOrFault temporaryFolder() = 0;

    /// Removes what lies at `path`: a link itself, not what it points to; a folder only when it is
    /// empty. Nothing there is a fault.
    virtual FileFault removeItem(const QString& path) = 0;

    /// Puts a file with `content` at `path`, for the user alone (0600). Readers see the old file or
    /// the new one, whole; after a fault the old one stands and nothing is left beside it. A link
    /// at `path` is replaced, never followed.
    virtual FileFault writeAtomically(const QString& path, const QByteArray& content) = 0;

    /// Sets the permission bits of what lies at `path`, links followed; the system's own result, 0
    /// when it is done.
    virtual int changeMode(const QString& path, unsigned mode) = 0;
};

} // namespace kelvo
