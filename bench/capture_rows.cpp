// A flood of output: how fast it is read, and what the main queue feels.
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
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
#include <memory>

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

/// What anybody would write: popen, and read until the end.
double plainLoopSeconds(const QString& command) {
    const auto begin = Clock::now();
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(
        ::popen(command.toLocal8Bit().constData(), "r"), &::pclose);
    std::string output;
    std::array<char, 64 * 1024> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get()))
        output.append(buffer.data(), count);
    const double seconds = secondsSince(begin);
    return output.size() == static_cast<std::size_t>(cFlood) ? seconds : -1;
}

std::optional<std::vector<Figure>> measureCapture() {
    const Flood flood;
    plainLoopSeconds(flood.command()); // brings the file into memory
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < cRounds; ++round) {
        ours.push_back(captureSeconds(flood.command()));
        theirs.push_back(plainLoopSeconds(flood.command()));
        if (ours.back() < 0 || theirs.back() < 0) {
            std::fputs("The flood was not read to its end.\n", stderr);
            return std::nullopt;
        }
    }
    const double oursMedian = median(ours);
    const double theirsMedian = median(theirs);
    return std::vector<Figure>{{"256 MiB read by the runner / the same read by a plain popen loop",
                                oursMedian / theirsMedian, 1.25, "x",
                                sideBySide(oursMedian, theirsMedian)}};
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

Row stallRow() {
    return {"stall", measureStall};
}

} // namespace kelvo::bench
