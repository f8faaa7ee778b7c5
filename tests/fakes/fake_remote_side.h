// FakeTerminal, FakeFileChanges and FakeTemporaryFolder: what setting up the remote side works
// with, as tests look at it and answer for it.
#pragma once

#include "fakes/fake_file_manager.h"
#include "ports/file_changes.h"
#include "ports/temporary_folder.h"
#include "ports/terminal.h"

#include <QMap>
#include <QStringList>

#include <utility>
#include <vector>

namespace kelvo {

class FakeTerminal final : public Terminal {
public:
    struct Window {
        QString path;
        QString command;
        std::function<void(TerminalOutcome)> ended;
    };

    void openCommandFile(const QString& path, const QString& command,
                         std::function<void(TerminalOutcome)> ended) override {
        windows.push_back({path, command, std::move(ended)});
    }

    std::vector<Window> windows; ///< everything opened so far
};

/// Files in memory, seen by `files` too.
class FakeFileChanges final : public FileChanges {
public:
    explicit FakeFileChanges(FakeFileManager& files) : fFiles(files) {}

    FileFault removeItem(const QString& path) override {
        if (const auto fault = faultAt(path))
            return fault;
        if (!fFiles.existing.remove(path))
            return QString(path + u": No such file or directory");
        written.remove(path);
        removed.append(path);
        return {};
    }
    FileFault writeAtomically(const QString& path, const QByteArray& content) override {
        if (const auto fault = faultAt(path))
            return fault;
        fFiles.existing.insert(path);
        written[path] = content;
        return {};
    }
    int changeMode(const QString& path, unsigned mode) override {
        modes.append({path, mode});
        return modeResult;
    }

    QMap<QString, QByteArray> written; ///< what lies there
    QStringList removed;               ///< every path so far
    QList<std::pair<QString, unsigned>> modes;
    int modeResult = 0;
    QString guarded; ///< nothing changes at this path

private:
    FileFault faultAt(const QString& path) const {
        return path == guarded ? FileFault(QString(path + u": Permission denied")) : FileFault();
    }

    FakeFileManager& fFiles;
};

class FakeTemporaryFolder final : public TemporaryFolder {
public:
    FolderOrFault temporaryFolder() const override { return folder; }
    FolderOrFault folder{QStringLiteral("/tmp/of me"), {}};
};

} // namespace kelvo
