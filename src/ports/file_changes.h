// FileChanges: what the program does to files of the user's own.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kelvo {

/// Why a change did not happen, in the system's words; nothing when it did.
using FileFault = std::optional<QString>;

/// Every operation blocks as long as the file system does; any thread. A path that is empty or
/// holds U+0000 is a fault.
class FileChanges {
public:
    virtual ~FileChanges() = default;

    /// Removes what lies at `path`: a link itself, not what it points to; a folder only when it is
    /// empty. Nothing there is a fault.
    virtual FileFault removeItem(const QString& path) = 0;

    /// Puts a file with `content` at `path`, for the user alone (0600). Readers see the old file or
    /// the new one, whole; after a fault the old one stands and nothing is left beside it. A link
    /// at `path` is replaced, never followed.
    virtual FileFault writeAtomically(const QString& path, const QByteArray& content) = 0;

    /// Sets the permission bits of what lies at `path`; the system's own result, 0 when it is done.
    virtual int changeMode(const QString& path, unsigned mode) = 0;
};

} // namespace kelvo
