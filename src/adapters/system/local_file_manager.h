// LocalFileManager: this machine's files.
#pragma once

#include "ports/file_manager.h"

namespace kelvo {

class LocalFileManager final : public FileManager {
public:
    bool fileExistsAtPath(const QString& path) const override;

    /// $HOME, or the user's entry in the account database when that is unset or empty.
    QString homeDirectory() const override;
};

} // namespace kelvo
