// A flood of output: how fast it is read, and what the main queue feels.
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
#include "bench/printed_names.h"
#include "bench/row.h"
#include "fakes/recording_console.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <memory>
#include <thread>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr qsizetype cFlood = 256 * 1024 * 1024;
constexpr int cRounds = 7;

double secondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// A file of cFlood bytes in lines as rsync writes them, and the command that prints it.
class Flood {
public:
    Flood() {
        QFile file(fFolder.filePath(QStringLiteral("flood")));
        if (!file.open(QIODevice::WriteOnly))
            return;
        QByteArray block;
        for (int line = 0; block.size() < 1024 * 1024; ++line)
            block += "Movies/some folder/clip number " + QByteArray::number(line) + ".mov\n";
        block.resize(1024 * 1024);
        for (qsizetype written = 0; written < cFlood; written += block.size())
            file.write(block);
        fCommand = QStringLiteral("cat '%1'").arg(file.fileName());
    }
    const QString& command() const { return fCommand; }

private:
    const QTemporaryDir fFolder;
    QString fCommand;
};

double captureSeconds(const QString& command) {
    RecordingConsole console;
    PosixShellRunner runner(console);
    const auto begin = Clock::now();
    const CommandResult result = runner.run({.text = command});
    const double seconds = secondsSince(begin);
    return result.leftOut == cFlood - OutputBounds().kept ? seconds : -1;
}

/// The least there is to do: read into a buffer until the end, with a rest before each read.
/// Returns the bytes that came.
qsizetype plainRead(const QString& command, std::chrono::milliseconds rest = {}) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(
        ::popen(command.toLocal8Bit().constData(), "r"), &::pclose);
    qsizetype bytes = 0;
    std::array<char, 64 * 1024> buffer{};
    while (const ssize_t count = ::read(::fileno(pipe.get()), buffer.data(), buffer.size())) {
        if (count > 0)
            bytes += count;
        if (rest.count() > 0)
            std::this_thread::sleep_for(rest);
    }
    return bytes;
}

double plainReadSeconds(const QString& command) {
    const auto begin = Clock::now();
    const qsizetype bytes = plainRead(command);
    const double seconds = secondsSince(begin);
    return bytes == cFlood ? seconds : -1;
}

std::optional<std::vector<Figure>> measureCapture() {
    const Flood flood;
    plainReadSeconds(flood.command()); // brings the file into memory
    Rounds rounds;
    for (int round = 0; round < cRounds; ++round) {
        rounds.ours.push_back(captureSeconds(flood.command()));
        rounds.theirs.push_back(plainReadSeconds(flood.command()));
        if (rounds.ours.back() < 0 || rounds.theirs.back() < 0) {
            std::fputs("The flood was not read to its end.\n", stderr);
            return std::nullopt;
        }
    }
    return std::vector<Figure>{
        ratioOfTimes(rounds, "256 MiB read by the runner / the same read into a buffer", 1.5)};
}

/// What this process, its threads included, has used of the processor.
double processorSeconds() {
    timespec used{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return double(used.tv_sec) + double(used.tv_nsec) * 1e-9;
}

/// The least there is to do about lines that come one at a time: gather, read, forget.
qsizetype gatheringRead(const QString& command) {
    return plainRead(command, std::chrono::milliseconds(5));
}

std::optional<std::vector<Figure>> measureLines() {
    const QString command = printingNames(cNames);
    std::vector<double> ours;
    std::vector<double> floor;
    for (int round = 0; round < cRounds; ++round) {
        RecordingConsole console;
        PosixShellRunner runner(console);
        double before = processorSeconds();
        const CommandResult result = runner.run({.text = command});
        ours.push_back(processorSeconds() - before);
        before = processorSeconds();
        const qsizetype bytes = gatheringRead(command);
        floor.push_back(processorSeconds() - before);
        if (result.exitStatus != 0 || bytes < cNames) {
            std::fputs("The lines were not read to their end.\n", stderr);
            return std::nullopt;
        }
    }
    auto figures = measureNamesOfAPass();
    if (!figures)
        return std::nullopt;
    char sides[64];
    std::snprintf(sides, sizeof sides, "to gather and forget them: %.3f s", median(floor));
    figures->push_back({"of it to read and keep what is printed", median(ours), 0.03, "s", sides});
    return figures;
}

/// Keeps asking the main queue for its next turn and notes the longest it was kept waiting.
class Heartbeat {
public:
    explicit Heartbeat(DispatchQueue& queue) : fQueue(queue) { beat(); }
    double longest() const { return fLongest; }

private:
    void beat() {
        const auto due = Clock::now() + std::chrono::milliseconds(1);
        fQueue.asyncAfter(0.001, [this, due] {
            fLongest = std::max(fLongest, secondsSince(due));
            beat();
        });
    }

    DispatchQueue& fQueue;
    double fLongest = 0;
};

std::optional<std::vector<Figure>> measureStall() {
    const Flood flood;
    const QTemporaryDir folder;
    RotatingLogFile logFile;
    logFile.setLogFile(folder.filePath(QStringLiteral("log")));
    const int sink = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    StreamConsole console(sink, sink, logFile);
    QtMainQueue mainQueue;
    PosixShellRunner runner(console);
    ThreadPoolQueue bgQueue;
    Heartbeat heartbeat(mainQueue);
    qint64 leftOut = 0;
    bgQueue.async([&] {
        const CommandResult result = runner.run({.text = flood.command()});
        leftOut = result.leftOut;
        console.print({QStringLiteral("result from shell command =\n"), result.output,
                       QStringLiteral("\n======== done ========")});
        console.flush(std::chrono::seconds(60));
        mainQueue.asyncAfter(0.05, [] { QCoreApplication::exit(); });
    });
    QCoreApplication::exec();
    bgQueue.stopAndWait();
    mainQueue.stop();
    ::close(sink);
    if (leftOut != cFlood - OutputBounds().kept)
        return std::nullopt;
    return std::vector<Figure>{{"longest stall of the main queue while 256 MiB are read and logged",
                                heartbeat.longest() * 1e3, 50.0, "ms", ""}};
}

} // namespace

Row captureRow() {
    return {"capture", measureCapture};
}

Row linesRow() {
    return {"lines", measureLines};
}

Row stallRow() {
    return {"stall", measureStall};
}

} // namespace kelvo::bench
