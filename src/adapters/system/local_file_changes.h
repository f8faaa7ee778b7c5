// LocalFileChanges: changes to this machine's files.
#pragma once

#include "ports/file_changes.h"

namespace kelvo {

class LocalFileChanges final : public FileChanges {
public:
    FileFault removeItem(const QString& path) override;

    /// What is written reaches the disk before the old file goes.
    FileFault writeAtomically(const QString& path, const QByteArray& content) override;

    int changeMode(const QString& path, unsigned mode) override;
};

} // namespace kelvo
