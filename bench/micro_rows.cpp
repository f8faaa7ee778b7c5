// The small figures: one settings write, one filled command.
#include "adapters/settings/plist_defaults.h"
#include "bench/row.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"
#include "sync/rsync_command.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace kelvo::bench {
namespace {

/// Keeps the time of the last benchmark instead of printing it.
class Collector final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            fSeconds = run.GetAdjustedRealTime() * 1e-9;
    }
    double seconds() const { return fSeconds; }

private:
    double fSeconds = 0;
};

/// Seconds of one run of `body`, the library choosing how often it runs.
template <typename Body>
double secondsOf(const char* name, Body body) {
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark(name, [&body](benchmark::State& state) {
        for (auto step : state) {
            (void)step;
            body();
        }
    });
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks();
    return collector.seconds();
}

std::optional<std::vector<Figure>> measureSettings() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    PlistDefaults defaults(folder.filePath(QStringLiteral("preferences.plist")),
                           DamagedFile::IsSetAside, isState, mainQueue, console);
    int told = 0;
    const Subscription observer =
        defaults.observe(prefEnableScanning, [&told](const DefaultsChange&) { ++told; });
    qint64 value = 0;
    const double seconds =
        secondsOf("set", [&] { defaults.setObject(prefEnableScanning, ++value); });
    if (told != value) {
        std::fprintf(stderr, "The observer was told %d of %lld changes.\n", told,
                     static_cast<long long>(value));
        return std::nullopt;
    }
    return std::vector<Figure>{{"one set with one observer in the settings store", seconds * 1e6,
                                5.0, "us", std::to_string(value) + " sets"}};
}

std::optional<std::vector<Figure>> measureTemplate() {
    const RsyncParams params{QStringLiteral("mediauser@Remote-Mac.local:Movies"),
                             QStringLiteral("/Users/localuser/Incoming"),
                             QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync")};
    const double seconds = secondsOf("fill", [&params] {
        benchmark::DoNotOptimize(
            filledCommand(cMovieCommandTemplate.toString(), params, u"--update"));
    });
    return std::vector<Figure>{{"filling the movie template", seconds * 1e6, 20.0, "us", ""}};
}

} // namespace

Row settingsRow() {
    return {"settings", measureSettings};
}

Row templateRow() {
    return {"template", measureTemplate};
}

} // namespace kelvo::bench
