// FileManager: the machine's files, as the program asks about them and changes them.
#pragma once

#include "support/name_list.h"
#include "support/subscription.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace kelvo {

/// Why a change did not happen, in the system's words; nothing when it did.
using FileFault = std::optional<QString>;

struct FolderOrFault {
    QString path;  ///< absolute, without a closing "/"; empty when there is none
    QString fault; ///< why there is none, in words
};

/// A regular file, not a link to one.
struct FoundFile {
    QByteArray
        path; ///< the folder's path, "/" and the way from there, as the file system spells it
    qint64 size = 0;   ///< in bytes
    QDateTime changed; ///< UTC; the last change of its content, name or attributes
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

    /// The files that `names` lead to from `folder`, in their order. None behind a link, and none
    /// outside: a name that begins with "/" or climbs with ".." finds nothing. Names of one folder
    /// that follow each other cost one look at it together.
    virtual std::vector<FoundFile> filesBeneath(const QByteArray& folder,
                                                const NameList& names) const = 0;

    /// The files beneath `folder` that have changed since `moment`, in no order; what was only
    /// written to, in a folder where nothing else has changed, may be missing. Names that
    /// `passedOver` says yes to are left out, folders with all they hold; links are not followed,
    /// but for `folder` itself. Costs a look at every folder, a reading of those that have changed
    /// or hold others, and a look at each file of the changed ones; ends after 1,000,000 entries
    /// with what was found, and goes 100 folders deep.
    virtual std::vector<FoundFile>
    filesChangedSince(const QByteArray& folder, const QDateTime& moment,
                      const std::function<bool(QByteArrayView name)>& passedOver) const = 0;

    /// Claims the folder at `path`, links followed, until what is returned goes, or this program
    /// does. Nothing when somebody else holds a claim to the same folder, whatever path they took.
    /// Never waits for them and leaves nothing in the folder. Where nothing can be claimed (no such
    /// folder, one that may not be read, a file system without locks) that counts as a claim. A
    /// claim says nothing about the folders inside.
    virtual std::optional<Subscription> claimFolder(const QString& path) const = 0;

    /// The user's home folder without a closing "/"; empty when it is not known.
    virtual QString homeDirectory() const = 0;

    /// The user's own folder for files that live only for a while, made when it is missing; nobody
    /// else may enter it. One that somebody else could have prepared is refused.
    virtual FolderOrFault temporaryFolder() = 0;

    /// Removes what lies at `path`: a link itself, not what it points to; a folder only when it is
    /// empty. Nothing there is a fault.
    virtual FileFault removeItem(const QString& path) = 0;

    /// Gives the file at `path` the further name `name`: what `path` held, with its permission
    /// bits, stays there when `path` is removed or replaced. Whatever lies at `name` already is
    /// left alone, and that is a fault, as is a folder at `path`. A link is kept itself where the
    /// file system can.
    virtual FileFault keepUnder(const QString& path, const QString& name) = 0;

    /// Puts a file with `content` at `path`, for the user alone (0600). Readers see the old file or
    /// the new one, whole; after a fault the old one stands and nothing is left beside it. A link
    /// at `path` is replaced, never followed.
    virtual FileFault writeAtomically(const QString& path, const QByteArray& content) = 0;

    /// Sets the permission bits of what lies at `path`, links followed; the system's own result, 0
    /// when it is done.
    virtual int changeMode(const QString& path, unsigned mode) = 0;
};

} // namespace kelvo
