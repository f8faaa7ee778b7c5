// FileManager: questions about the user's files.
#pragma once

#include <QString>

namespace kelvo {

class FileManager {
public:
    virtual ~FileManager() = default;

    /// Whether anything lies at `path`, links followed. Any thread.
    virtual bool fileExistsAtPath(const QString& path) const = 0;

    /// The user's home folder without a closing "/"; empty when it is not known. Any thread.
    virtual QString homeDirectory() const = 0;
};

} // namespace kelvo
