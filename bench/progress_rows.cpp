// What it costs to show how far a pass is.
#include "adapters/process/posix_shell_runner.h"
#include "bench/row.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "passes/running_pass.h"
#include "settings/preference_keys.h"
#include "ui/work_watch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double processorSecondsOfAll() {
    double seconds = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        ::getrusage(who, &usage);
        for (const timeval& each : {usage.ru_utime, usage.ru_stime})
            seconds += double(each.tv_sec) + double(each.tv_usec) * 1e-6;
    }
    return seconds;
}

/// A folder of films, and rsync commands that pull them anew.
class Films {
public:
    Films() {
        QDir().mkpath(fFolder.filePath(QStringLiteral("from")));
        const QByteArray film(4'000'000, 'x');
        for (int i = 0; i < 150; ++i) {
            QFile file(fFolder.filePath(QStringLiteral("from/film %1.mov").arg(i)));
            if (file.open(QIODevice::WriteOnly))
                file.write(film);
        }
    }

    QString pull(const QString& options) const {
        const QString to = fFolder.filePath(QStringLiteral("to"));
        return QStringLiteral("rm -rf '%1'; /usr/bin/rsync 2>&1 -r --times --stats %2 '%3/' '%1/'")
            .arg(to, options, fFolder.filePath(QStringLiteral("from")));
    }

private:
    const QTemporaryDir fFolder;
};

/// Asks twice a second from a thread of its own for as long as it is there.
class Asker {
public:
    explicit Asker(const RunningPasses& passes)
        : fThread([this, &passes](const std::stop_token& stop) {
              std::unique_lock lock(fMutex);
              while (!fStopped.wait_for(lock, stop, std::chrono::milliseconds(500),
                                        [&stop] { return stop.stop_requested(); }))
                  (void)passes.underWay();
          }) {}

private:
    std::mutex fMutex;
    std::condition_variable_any fStopped;
    std::jthread fThread;
};

/// How often a second a window that is seen is given a new state, by the test's clock, of a pass
/// that has something new to tell 100 times a second.
double statesShownASecond() {
    constexpr int cSeconds = 20;
    constexpr double cStep = 0.01;
    MemoryDefaults defaults;
    defaults.setObject(prefEnableScanning, 1);
    VirtualMainQueue mainQueue;
    MemoryPassStore store(mainQueue);
    int shown = 0;
    WorkWatch watch(
        {.defaults = defaults,
         .mainQueue = mainQueue,
         .passStore = store,
         .passesUnderWay =
             [&mainQueue] {
                 PassUnderWay pass;
                 pass.progress = {.step = PassStep::Pull, .file = QString::number(mainQueue.now())};
                 return std::vector{pass};
             },
         .cycleState = [] { return CycleState{.passRuns = true, .nextPass = {}}; },
         .clock = {&QDateTime::currentDateTimeUtc, [&mainQueue] { return mainQueue.now(); }},
         .show = [&shown](const WorkState&) { ++shown; }});
    watch.setAttention(Attention::Seen);
    watch.begin();
    while (mainQueue.now() < cSeconds) {
        watch.look();
        mainQueue.advance(cStep);
    }
    return double(shown - 1) / cSeconds; // less the one that it begins with
}

std::optional<std::vector<Figure>> measureProgress() {
    constexpr int cRounds = 7;
    const Films films;
    const QString silent = films.pull(QString());
    const QString telling = films.pull(QStringLiteral("--info=progress2 --out-format='%l %n'"));
    RecordingConsole console;
    PosixShellRunner runner(console);
    bool well = true;
    RunningPasses passes(
        runner, {&QDateTime::currentDateTimeUtc, [] { return since(Clock::time_point()); }},
        memoryWholePull(), [&well](const PassRecord& record) {
            well = well && record.cause == PassCause::Well && record.transfer.files == 150;
        });
    const auto shown = [&](const QString& command) {
        const double before = processorSecondsOfAll();
        {
            const Asker asker(passes);
            RunningPass pass(passes, PassKind::Plain);
            (void)pass.run(PassStep::Pull, {.text = command});
        }
        return processorSecondsOfAll() - before;
    };
    const auto plain = [&] {
        const double before = processorSecondsOfAll();
        well = runner.run({.text = silent}).exitStatus == 0 && well;
        return processorSecondsOfAll() - before;
    };
    (void)plain(); // brings the films into memory
    std::vector<double> without;
    std::vector<double> with;
    std::vector<double> looked;
    for (int round = 0; round < cRounds; ++round) {
        without.push_back(plain());
        with.push_back(shown(telling));
        looked.push_back(shown(silent));
    }
    if (!well) {
        std::fputs("A pull of the films failed.\n", stderr);
        return std::nullopt;
    }
    const double base = median(without);
    return std::vector<Figure>{
        {"processor time of a pull whose progress is shown / of one that nobody looks at",
         median(with) / base, 1.01, "x", sideBySide(median(with), base)},
        {"the same of a pull that says nothing, by the file it writes", median(looked) / base, 1.01,
         "x", sideBySide(median(looked), base)},
        {"redraws a second of a window that is seen, at most", statesShownASecond(), 10, "",
         "by the test's clock"}};
}

} // namespace

Row progressRow() {
    return {"progress", measureProgress};
}

} // namespace kelvo::bench
