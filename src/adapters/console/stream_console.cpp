#include "adapters/console/stream_console.h"

#include "adapters/console/line_priority.h"
#include "adapters/console/line_stream.h"
#include "ports/log_file.h"

#include <QDateTime>

#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto cStuck = 1s;
/// With what commands take to end, less than 5 s.
constexpr auto cLongestEnd = 2s;
constexpr int cLongestBlind = 200; // milliseconds
constexpr QStringView cError = u"<3>";
constexpr QStringView cInformation = u"<6>";

QString logPrefix() {
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")) +
           u" kelvo-mirror[" + QString::number(::getpid()) + u"] ";
}

/// Whether both descriptors lead to one terminal, pipe or file.
bool leadToOneFile(int output, int errors) {
    struct stat first {};
    struct stat second {};
    return ::fstat(output, &first) == 0 && ::fstat(errors, &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// As systemd names the stream that it has given the program.
bool leadsToJournal(int fd) {
    struct stat status {};
    const QByteArray stream = qgetenv("JOURNAL_STREAM");
    return !stream.isEmpty() && ::fstat(fd, &status) == 0 &&
           stream == QByteArray::number(quint64{status.st_dev}) + ':' +
                         QByteArray::number(quint64{status.st_ino});
}

/// `pieces` with `priority` at the start of each line, as the journal cuts them: it reads "<N>"
/// there.
QStringList withPriority(QStringView priority, QStringList pieces) {
    for (QString& piece : pieces)
        piece.replace(QChar(u'\0'), u'\n').replace(u'\n', u'\n' + priority);
    pieces.prepend(priority.toString());
    return pieces;
}

QStringList withItsPriority(const QStringList& pieces) {
    const bool trouble = !pieces.isEmpty() && tellsOfTrouble(pieces.constFirst());
    return withPriority(trouble ? cError : cInformation, pieces);
}

/// Signals are for the other threads; a write to nobody gives an error instead of one.
void blockSignals() {
    sigset_t all;
    ::sigfillset(&all);
    for (const int fault : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT})
        ::sigdelset(&all, fault);
    ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace

/// What the console's thread does, and its own state.
class StreamConsole::Writer {
public:
    Writer(StreamConsole& console, int output, int errors)
        : fConsole(console), fOutput(output), fErrors(errors) {}

    void run() {
        ::pthread_setname_np(::pthread_self(), "kelvo-console");
        blockSignals();
        while (takeLines()) {
            if (fFileLine)
                fConsole.fLogFile.append(*fFileLine);
            writeWhatGoes();
        }
    }

private:
    /// Gets the next line for each stream that is done with its last one. False when everything is
    /// written, or given up, and the console ends.
    bool takeLines() {
        const std::lock_guard lock(fConsole.fMutex);
        takeLine(fOutput, fConsole.fOutput);
        takeLine(fErrors, fConsole.fErrors);
        fConsole.fFileLines.finished();
        fFileLine = fConsole.fFileLines.take();
        if (fConsole.fStopping && !fStopping) {
            fStopping = true;
            fStopTime = fProgress = Clock::now();
        }
        const bool idle = !fOutput.busy() && !fErrors.busy() && !fFileLine;
        if (idle)
            fConsole.fWritten.notify_all();
        fConsole.fAsleep = patience() != 0;
        return !fStopping || fFileLine || (!idle && Clock::now() < giveUpTime());
    }

    static void takeLine(LineStream& stream, LineBacklog& backlog) {
        if (stream.busy())
            return;
        backlog.finished();
        if (auto line = backlog.take())
            stream.start(std::move(*line));
    }

    void writeWhatGoes() {
        const auto watched = [](const LineStream& stream) {
            return pollfd{stream.busy() && !stream.gone() ? stream.fd() : -1, POLLOUT, 0};
        };
        std::array<pollfd, 3> fds = {watched(fOutput), watched(fErrors),
                                     pollfd{fConsole.fWakeUp.get(), POLLIN, 0}};
        (void)::poll(fds.data(), fds.size(), patience());
        std::uint64_t count = 0;
        (void)!::read(fConsole.fWakeUp.get(), &count, sizeof count);
        for (auto [stream, ready] :
             {std::pair(&fOutput, fds[0].revents != 0), std::pair(&fErrors, fds[1].revents != 0)}) {
            if (stream->busy() && (ready || stream->gone()) && stream->writeSome())
                fProgress = Clock::now();
        }
    }

    /// For `poll`: milliseconds, -1 for ever.
    int patience() const {
        const auto swallows = [](const LineStream& stream) {
            return stream.busy() && stream.gone();
        };
        if (fFileLine || swallows(fOutput) || swallows(fErrors))
            return 0;
        // Without descriptors left nothing can wake us.
        if (!fStopping)
            return fConsole.fWakeUp ? -1 : cLongestBlind;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(giveUpTime() - Clock::now());
        return static_cast<int>(std::max(left, 0ms).count());
    }

    Clock::time_point giveUpTime() const {
        return std::min(fProgress + cStuck, fStopTime + cLongestEnd);
    }

    StreamConsole& fConsole;
    LineStream fOutput;
    LineStream fErrors;
    std::optional<QStringList> fFileLine;
    bool fStopping = false;
    Clock::time_point fStopTime;
    Clock::time_point fProgress;
};

StreamConsole::StreamConsole(int output, int errors, LogFile& logFile)
    : fLogFile(logFile), fOneStream(leadToOneFile(output, errors)),
      fOutputIsJournal(leadsToJournal(output)), fErrorsAreJournal(leadsToJournal(errors)),
      fWakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      fThread([this, output, errors] { Writer(*this, output, errors).run(); }) {}

StreamConsole::~StreamConsole() {
    {
        const std::lock_guard lock(fMutex);
        fStopping = true;
    }
    wake();
    fThread.join();
}

void StreamConsole::printAll(const std::vector<QStringList>& lines) {
    std::vector<QStringList> forJournal;
    if (fOutputIsJournal)
        std::ranges::transform(lines, std::back_inserter(forJournal), withItsPriority);
    bool asleep = false;
    {
        const std::lock_guard lock(fMutex);
        for (const QStringList& line : fOutputIsJournal ? forJournal : lines)
            fOutput.add(line);
        for (const QStringList& line : lines)
            fFileLines.add(line);
        asleep = std::exchange(fAsleep, false);
    }
    if (asleep)
        wake();
}

void StreamConsole::log(const QString& text) {
    QStringList line{logPrefix(), text};
    if (fOneStream ? fOutputIsJournal : fErrorsAreJournal)
        line = withPriority(cInformation, std::move(line));
    bool asleep = false;
    {
        const std::lock_guard lock(fMutex);
        // Not shared with the thread once the lock is given back.
        (fOneStream ? fOutput : fErrors).add(std::exchange(line, {}));
        fFileLines.add({text});
        asleep = std::exchange(fAsleep, false);
    }
    if (asleep)
        wake();
}

bool StreamConsole::flush(std::chrono::milliseconds timeout) {
    std::unique_lock lock(fMutex);
    return fWritten.wait_for(
        lock, timeout, [this] { return fOutput.empty() && fErrors.empty() && fFileLines.empty(); });
}

/// Without the lock, which the thread wants as soon as it is awake.
void StreamConsole::wake() {
    const std::uint64_t one = 1;
    (void)!::write(fWakeUp.get(), &one, sizeof one);
}

} // namespace kelvo
