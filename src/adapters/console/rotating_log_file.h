// RotatingLogFile: the log file on disk.
#pragma once

#include "adapters/system/unique_fd.h"
#include "ports/log_file.h"

#include <QByteArray>

#include <sys/types.h>

#include <chrono>
#include <mutex>

namespace kelvo {

/// Three files of at most 5 MiB: `name.log`, then `name.1.log` and `name.2.log` with the older
/// lines. The files are readable by the user alone (0600), folders made for them too (0700);
/// folders that are there already stay as they are. Only an ordinary file is written. Each line is
/// handed to the system at once, so that it outlives a crash of the program. A file that was taken
/// away or replaced is begun anew. While the file cannot be written 256 KiB of lines wait, with a
/// new attempt at most every 5 s; what comes beyond that is left out, and "N lines left out" with
/// the reason stands in its place.
class RotatingLogFile final : public LogFile {
public:
    static constexpr off_t cFileSize = off_t{5} * 1024 * 1024;
    static constexpr qsizetype cMostWaiting = qsizetype{256} * 1024;

    explicit RotatingLogFile(off_t fileSize = cFileSize,
                             std::chrono::milliseconds pause = std::chrono::seconds(5));
    /// Tries once more to write what waits.
    ~RotatingLogFile() override;

    /// "$XDG_STATE_HOME/subdirectory/kelvo-mirror.log"; "~/.local/state" stands in for a variable
    /// that is missing or no absolute path.
    QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const override;

    bool setLogFile(const QString& path) override;

    using LogFile::append;
    void append(const QStringList& pieces) override;

private:
    int open();
    int openUnlessOpen();
    int rotate();
    int writeWaiting();
    bool writeOut();
    QByteArray stamped(const QString& line);
    QByteArray olderName(int number) const;

    const off_t fFileSize;
    const std::chrono::milliseconds fPause;
    std::mutex fMutex;
    QByteArray fPath;
    UniqueFd fFile;
    off_t fSize = 0;
    QByteArray fWaiting; ///< whole lines, but for the first one when a part of it is written
    qint64 fLeftOut = 0;
    qint64 fSecond = -1; ///< that `fDate` is of
    QByteArray fDate;
    int fTrouble = 0; ///< errno of the last attempt
    std::chrono::steady_clock::time_point fNextTry;
};

} // namespace kelvo
