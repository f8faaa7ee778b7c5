// RotatingLogFile: the log file, at most three files of 5 MiB.
#pragma once

#include "ports/log_file.h"

#include <memory>
#include <mutex>

namespace spdlog {
class logger;
}

namespace kelvo {

/// Files are 0600 and their folder is 0700. Line ends inside a line are followed by a tab, so that
/// no text can pass itself off as a line of its own; other control characters are made visible.
class RotatingLogFile final : public LogFile {
public:
    RotatingLogFile();
    ~RotatingLogFile() override;

    /// `$XDG_STATE_HOME/<subdirectory>/kelvo-mirror.log`, below ~/.local/state without the
    /// variable.
    QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const override;
    bool setLogFile(const QString& path) override;
    void append(const QString& line) override;

private:
    std::mutex fMutex;
    std::shared_ptr<spdlog::logger> fLogger;
};

} // namespace kelvo
