// LocalFileManager: the files of this machine.
#pragma once

#include "ports/file_manager.h"

namespace kelvo {

class LocalFileManager final : public FileManager {
public:
    bool fileExistsAtPath(const QString& path) const override;

    /// $HOME, else what the user database says.
    QString homeDirectory() const override;
};

} // namespace kelvo
