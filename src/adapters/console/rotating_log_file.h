// RotatingLogFile: the log file on disk.
#pragma once

#include "ports/log_file.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>

namespace spdlog::sinks {
class sink;
} // namespace spdlog::sinks

namespace kelvo {

/// Three files of at most 5 MiB: `name.log`, then `name.1.log` and `name.2.log` with the older
/// lines. The files are readable by the user alone (0600), folders made for them too (0700);
/// folders that are there already stay as they are. Each line is handed to the system at once, so
/// that it outlives a crash of the program. While the file cannot be written a new attempt is made
/// at most every 5 s.
class RotatingLogFile final : public LogFile {
public:
    static constexpr std::size_t cFileSize = std::size_t{5} * 1024 * 1024;

    explicit RotatingLogFile(std::size_t fileSize = cFileSize);
    ~RotatingLogFile() override;

    /// "$XDG_STATE_HOME/subdirectory/kelvo-mirror.log"; "~/.local/state" stands in for a variable
    /// that is missing or no absolute path.
    QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const override;

    bool setLogFile(const QString& path) override;

    using LogFile::append;
    void append(const QStringList& pieces) override;

private:
    bool open();

    const std::size_t fFileSize;
    std::mutex fMutex;
    std::string fPath;
    std::unique_ptr<spdlog::sinks::sink> fSink;
    std::chrono::steady_clock::time_point fNextTry;
};

} // namespace kelvo
