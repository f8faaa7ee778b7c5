#include "capture_bench.h"

#include "adapters/posix/posix_shell_runner.h"
#include "ports/console.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace kelvo {
namespace {

class SilentConsole final : public Console {
public:
    using Console::print;
    void print(const QStringList&) override {}
    void log(const QString&) override {}
};

std::int64_t highestResidentBytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::int64_t>(usage.ru_maxrss) * 1024;
}

template <typename Run>
double secondsFor(Run run) {
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The yardstick: the bytes in memory, as text of bytes, with nothing decoded.
std::size_t plainCapture(const std::string& command) {
    std::FILE* const stream = ::popen(command.c_str(), "r"); // NOLINT
    if (stream == nullptr)
        return 0;
    std::string all;
    std::vector<char> buffer(64 * 1024);
    std::size_t size = 0;
    while ((size = std::fread(buffer.data(), 1, buffer.size(), stream)) > 0)
        all.append(buffer.data(), size);
    ::pclose(stream);
    return all.size();
}

} // namespace

CaptureMeasure measureCapture(std::int64_t mebibytes) {
    constexpr int cRuns = 5;
    const std::int64_t bytes = mebibytes * 1024 * 1024;
    const std::string command =
        "yes 'receiving file list ... done, a movie.mov' | head -c " + std::to_string(bytes);
    SilentConsole console;
    PosixShellRunner runner(console);

    CaptureMeasure measure;
    measure.complete = true;
    const std::int64_t before = highestResidentBytes();
    for (int run = 0; run < cRuns; ++run) {
        const double seconds = secondsFor([&] {
            const QString text =
                runner.outputWhenRunAsShellCommand(QString::fromStdString(command));
            measure.complete = measure.complete && text.size() == bytes;
        });
        measure.runnerSeconds = run == 0 ? seconds : std::min(measure.runnerSeconds, seconds);
        if (run == 0)
            measure.peakPerByte =
                static_cast<double>(highestResidentBytes() - before) / static_cast<double>(bytes);
    }
    for (int run = 0; run < cRuns; ++run) {
        const double seconds = secondsFor([&] { (void)plainCapture(command); });
        measure.plainSeconds = run == 0 ? seconds : std::min(measure.plainSeconds, seconds);
    }
    measure.ratio = measure.runnerSeconds / measure.plainSeconds;
    return measure;
}

} // namespace kelvo
