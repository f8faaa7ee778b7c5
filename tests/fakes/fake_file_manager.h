// FakeFileManager: a home folder and a set of existing paths.
#pragma once

#include "ports/file_manager.h"

#include <QSet>

namespace kelvo {

class FakeFileManager final : public FileManager {
public:
    bool fileExistsAtPath(const QString& path) const override { return existing.contains(path); }
    QString homeDirectory() const override { return home; }

    QString home = QStringLiteral("/Users/localuser");
    QSet<QString> existing;
};

} // namespace kelvo
