// TemporaryFolder: the user's own place for files that live only for a while.
#pragma once

#include <QString>

namespace kelvo {

struct FolderOrFault {
    QString path;  ///< absolute, without a closing "/"; empty when there is none
    QString fault; ///< why there is none, in words
};

class TemporaryFolder {
public:
    virtual ~TemporaryFolder() = default;

    /// The folder, made when it is missing; nobody but the user may enter it. One that somebody
    /// else could have prepared is refused. Any thread.
    virtual FolderOrFault temporaryFolder() const = 0;
};

} // namespace kelvo
