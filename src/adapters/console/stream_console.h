// StreamConsole: diagnostic lines to standard output, the system log's place and the log file.
#pragma once

#include "adapters/console/line_backlog.h"
#include "adapters/system/unique_fd.h"
#include "ports/console.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace kelvo {

class LogFile;

/// Printed lines go to `output`, system log lines to `errors` as
/// "yyyy-MM-dd HH:mm:ss.zzz kelvo-mirror[pid] text", and both to the log file. A thread of its own
/// writes; a stream whose reader is slow or gone holds up neither callers nor the other streams.
/// Where both descriptors lead to one place, the lines stand there whole and in order.
/// Behind a reader that is stuck at most 16 MiB of text and one line wait for each stream; what
/// comes then is left out there, and "N lines left out" stands in its place. On a terminal control
/// characters are spelled out ("\x1b"). A stream that leads to systemd's journal ($JOURNAL_STREAM)
/// has each line, those inside a text too, begin with its priority: "<3>" for trouble, else "<6>";
/// so nothing that is captured can give itself another one.
class StreamConsole final : public Console {
public:
    /// The descriptors stay open as long as the console; -1 for a stream that does not exist.
    StreamConsole(int output, int errors, LogFile& logFile);

    /// Writes what waits; a reader that takes nothing for 1 s, or is not done after 2 s, loses it.
    ~StreamConsole() override;

    void printAll(const std::vector<QStringList>& lines) override;
    void log(const QString& text) override;

    bool flush(std::chrono::milliseconds timeout) override;

private:
    class Writer;
    void wake();

    LogFile& fLogFile;
    const bool fOneStream;
    const bool fOutputIsJournal;
    const bool fErrorsAreJournal;
    const UniqueFd fWakeUp;
    std::mutex fMutex;
    std::condition_variable fWritten;
    LineBacklog fOutput;
    LineBacklog fErrors;
    LineBacklog fFileLines;
    bool fStopping = false;
    bool fAsleep = false;
    std::thread fThread;
};

} // namespace kelvo
