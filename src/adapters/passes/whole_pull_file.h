// WholePullFile: which pull left nothing half, kept for the program's next run.
#pragma once

#include <QString>

#include <mutex>
#include <optional>

namespace kelvo {

class FileManager;

/// Any thread. A file that cannot be read or written is no trouble worth telling: the next pull
/// looks for half files, as it does where there is none.
class WholePullFile {
public:
    /// `files` outlives it; the file's folder is made when it is missing.
    WholePullFile(QString path, FileManager& files);

    /// The command; empty when nobody knows. Reads the file once.
    QString last();

    /// Empty for none. Waits for the disk where that is not what the file says already.
    void keep(const QString& command);

private:
    const QString fPath;
    FileManager& fFiles;
    std::mutex fMutex;
    std::optional<QString> fLast;
};

} // namespace kelvo
