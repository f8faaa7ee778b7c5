#include "adapters/posix/stream_console.h"

#include "adapters/posix/visible_text.h"
#include "ports/log_file.h"

#include <QStringEncoder>

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <utility>

namespace kelvo {
namespace {

constexpr qsizetype cWaitingLimit = 64 * 1024 * 1024; // bytes of UTF-16
constexpr qsizetype cChunk = 64 * 1024;               // UTF-16 units encoded at a time
constexpr qsizetype cLogPart = 32 * 1024;             // what the log keeps of either end
constexpr auto cLastSecond = std::chrono::seconds(1);
constexpr int cHurryInterval = 100; // milliseconds between looks at whether to hurry

/// A write to a closed pipe is an error value on this thread, never a signal.
void blockPipeSignal() {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

/// The ends of a long line, without its middle.
QString forLog(const QStringList& pieces, qsizetype size) {
    if (size <= 2 * cLogPart)
        return pieces.join(QString());
    QString head;
    for (auto piece = pieces.cbegin(); head.size() < cLogPart; ++piece)
        head += QStringView(*piece).first(std::min(piece->size(), cLogPart - head.size()));
    QString tail;
    for (auto piece = pieces.crbegin(); tail.size() < cLogPart; ++piece)
        tail.prepend(QStringView(*piece).last(std::min(piece->size(), cLogPart - tail.size())));
    return head + QStringLiteral("\n[… %1 characters left out …]\n").arg(size - 2 * cLogPart) +
           tail;
}

} // namespace

/// One of the two standard streams.
class StreamConsole::Stream {
public:
    Stream(int fd, const std::atomic<bool>& hurry)
        : fFd(fd), fTerminal(::isatty(fd) == 1), fHurry(hurry) {}

    void write(const QStringList& pieces) {
        QStringEncoder encode(QStringEncoder::Utf8);
        for (const QString& piece : pieces) {
            const QString text = fTerminal ? withVisibleControls(piece) : piece;
            for (qsizetype at = 0; at < text.size() && !fClosed; at += cChunk) {
                const QByteArray bytes = encode(QStringView(text).mid(at, cChunk));
                writeBytes(bytes);
            }
        }
        writeBytes("\n");
    }

private:
    void writeBytes(QByteArrayView bytes) {
        while (!bytes.isEmpty() && !fClosed) {
            pollfd ready = {fFd, POLLOUT, 0};
            const int found = ::poll(&ready, 1, cHurryInterval);
            if (found == 0 && fHurry)
                fClosed = true;
            if (found <= 0)
                continue;
            const ssize_t count =
                ::write(fFd, bytes.data(),
                        static_cast<std::size_t>(std::min<qsizetype>(bytes.size(), PIPE_BUF)));
            if (count >= 0)
                bytes = bytes.sliced(count);
            else if (errno != EINTR && errno != EAGAIN)
                fClosed = true;
        }
    }

    const int fFd;
    const bool fTerminal;
    const std::atomic<bool>& fHurry;
    bool fClosed = false;
};

StreamConsole::StreamConsole(int standardOutput, int standardError, LogFile& logFile)
    : fLogFile(logFile),
      fWriter([this, standardOutput, standardError] { serve(standardOutput, standardError); }) {}

StreamConsole::~StreamConsole() {
    const bool all = flush(std::chrono::duration<double>(cLastSecond).count());
    fHurry = !all;
    {
        const std::lock_guard lock(fMutex);
        fEnding = true;
    }
    fWake.notify_one();
    fWriter.join();
}

void StreamConsole::print(const QStringList& pieces) {
    enqueue(Kind::Print, pieces);
}

void StreamConsole::log(const QString& text) {
    enqueue(Kind::Log, {text});
}

void StreamConsole::enqueue(Kind kind, const QStringList& pieces) {
    qsizetype size = 0;
    for (const QString& piece : pieces)
        size += piece.size();
    {
        const std::lock_guard lock(fMutex);
        // One line is always taken, however long: it is captured output, and in memory already.
        if (fWaitingSize * qsizetype{sizeof(QChar)} > cWaitingLimit) {
            ++fLeftOut;
            return;
        }
        fWaitingSize += size;
        fWaiting.push_back({kind, QDateTime::currentDateTime(), pieces, size});
    }
    fWake.notify_one();
}

bool StreamConsole::flush(double seconds) {
    std::unique_lock lock(fMutex);
    return fWritten.wait_for(lock, std::chrono::duration<double>(seconds),
                             [this] { return fWaiting.empty() && !fBusy; });
}

void StreamConsole::serve(int standardOutput, int standardError) {
    blockPipeSignal();
    ::pthread_setname_np(::pthread_self(), "kelvo-console");
    Stream output(standardOutput, fHurry);
    Stream errors(standardError, fHurry);
    std::unique_lock lock(fMutex);
    for (;;) {
        fWake.wait(lock, [this] { return fEnding || !fWaiting.empty(); });
        if (fWaiting.empty())
            return;
        Line line = std::move(fWaiting.front());
        fWaiting.pop_front();
        fBusy = true;
        lock.unlock();
        write(line, output, errors);
        const qsizetype size = line.size;
        line.pieces.clear(); // outside the lock: the text may be very large
        lock.lock();
        fWaitingSize -= size;
        fBusy = false;
        if (fWaiting.empty() && fLeftOut > 0) {
            const QString note = QStringLiteral("[%1 lines left out: nobody was reading]")
                                     .arg(std::exchange(fLeftOut, 0));
            fWaitingSize += note.size();
            fWaiting.push_back({Kind::Log, QDateTime::currentDateTime(), {note}, note.size()});
        }
        fWritten.notify_all();
    }
}

void StreamConsole::write(const Line& line, Stream& output, Stream& errors) {
    fLogFile.append(forLog(line.pieces, line.size));
    if (line.kind == Kind::Print) {
        output.write(line.pieces);
        return;
    }
    const QString head = line.time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")) +
                         QStringLiteral(" kelvo-mirror[%1] ").arg(::getpid());
    errors.write(QStringList{head} + line.pieces);
}

} // namespace kelvo
