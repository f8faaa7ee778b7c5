// StreamConsole: diagnostic lines on standard output and standard error, and all of them in the
// log.
#pragma once

#include "ports/console.h"

#include <QDateTime>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace kelvo {

class LogFile;

/// A thread of its own writes, so that a terminal that was stopped or a pipe that nobody reads
/// stops nothing else. While 64 MiB of text wait, further lines are left out, and how many is said
/// once the reader goes on. Control characters reach a terminal, and the log file, made visible; a
/// pipe or file gets them as they are. A stream that its reader closed is written to no more.
class StreamConsole final : public Console {
public:
    /// Both descriptors stay open for the life of this; SIGPIPE is the caller's business to ignore
    /// or not: none is raised here.
    StreamConsole(int standardOutput, int standardError, LogFile& logFile);

    /// Writes what waits, for at most a second while a reader is stuck.
    ~StreamConsole() override;
    StreamConsole(const StreamConsole&) = delete;
    StreamConsole& operator=(const StreamConsole&) = delete;

    using Console::print;
    void print(const QStringList& pieces) override;
    void log(const QString& text) override;

    /// Waits until everything said so far is written, at most `seconds`. False when time was up.
    bool flush(double seconds);

private:
    enum class Kind { Print, Log };
    struct Line {
        Kind kind;
        QDateTime time;
        QStringList pieces;
        qsizetype size;
    };
    class Stream;

    void enqueue(Kind kind, const QStringList& pieces);
    void serve(int standardOutput, int standardError);
    void write(const Line& line, Stream& output, Stream& errors);

    LogFile& fLogFile;
    std::mutex fMutex;
    std::condition_variable fWake;
    std::condition_variable fWritten;
    std::deque<Line> fWaiting;
    qsizetype fWaitingSize = 0;
    qsizetype fLeftOut = 0;
    bool fBusy = false;
    bool fEnding = false;
    std::atomic<bool> fHurry = false; // the end has come: a stuck reader is waited for no longer
    std::thread fWriter;
};

} // namespace kelvo
