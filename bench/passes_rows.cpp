// What it costs to write down a pass, and to show how far it is.
#include "adapters/passes/sqlite_pass_store.h"
#include "adapters/process/posix_shell_runner.h"
#include "bench/row.h"
#include "bench/run_until.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
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

constexpr int cRecorded = 300;
constexpr int cFilesOfAFlood = 2000;
constexpr int cFloods = 5;

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// The text of a pull with `lines` names and rsync's figures.
QString pullText(int lines) {
    QString text;
    for (int i = 0; i < lines; ++i)
        text += QStringLiteral("Features/Season %1/Episode %2.mov\n").arg(i % 20).arg(i);
    return text + QStringLiteral("\nNumber of regular files transferred: %1\n"
                                 "Total transferred file size: 123,456,789 bytes\n")
                      .arg(lines);
}

/// Answers at once: the check, then a pull that tells much, then one that tells nothing.
class QuickCommands final : public CommandRunner {
public:
    CommandResult run(const Command& command) override {
        if (command.text == u"ssh whoami")
            return {QStringLiteral("me\n"), {}, 0};
        return {command.text == u"rsync" ? QString() : fText, {}, 0};
    }
    void cancel(CommandId) override {}

private:
    const QString fText = pullText(1000);
};

/// Seconds of writing one pass that brought many files, into a record that is full of arrivals.
std::optional<double> measureFlood() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    int written = 0;
    const auto subscription =
        store.observe([&written](const PassRecord& record) { written += record.id > 0 ? 1 : 0; });
    PassRecord record;
    record.began = QDateTime::currentDateTimeUtc();
    for (int i = 0; i < cFilesOfAFlood; ++i)
        record.arrivals.push_back({"/home/someone/Videos/Incoming/Features/Season " +
                                       QByteArray::number(i % 20) + "/Episode " +
                                       QByteArray::number(i) + ".mov",
                                   i, record.began});
    std::vector<double> times;
    for (int i = 0; i < PassStore::cMostArrivals / cFilesOfAFlood + cFloods; ++i) {
        const auto begin = Clock::now();
        store.append(record);
        if (!runUntil(mainQueue, [&] { return written == i + 1; }))
            return std::nullopt;
        times.push_back(since(begin));
    }
    return median({times.end() - cFloods, times.end()});
}

std::optional<std::vector<Figure>> measureRecord() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    QuickCommands commands;
    RunningPasses passes(commands,
                         {[] { return QDateTime::currentDateTimeUtc(); }, [] { return 0.0; }},
                         [&store](const PassRecord& record) { store.append(record); });
    int written = 0;
    const auto subscription =
        store.observe([&written](const PassRecord& record) { written += record.id > 0 ? 1 : 0; });
    std::vector<double> onThePass;
    const auto begin = Clock::now();
    for (int i = 0; i < cRecorded; ++i) {
        const auto passBegin = Clock::now();
        {
            RunningPass pass(passes, PassKind::Remote);
            (void)pass.run(PassStep::AskingTheMac, {.text = QStringLiteral("ssh whoami")});
            pass.judged(HostVerdict::Valid);
            (void)pass.run(PassStep::Pull, {.text = QStringLiteral("rsync --stats")});
            (void)pass.run(PassStep::Pull, {.text = QStringLiteral("rsync")});
        }
        onThePass.push_back(since(passBegin));
    }
    if (!runUntil(mainQueue, [&written] { return written == cRecorded; })) {
        std::fprintf(stderr, "Only %d of %d passes were written.\n", written, cRecorded);
        return std::nullopt;
    }
    const double each = since(begin) / cRecorded;
    const auto flood = measureFlood();
    if (!flood)
        return std::nullopt;
    return std::vector<Figure>{
        {"recording one pass, all threads", each * 1e3, 5, "ms", "300 passes of 1,000 names"},
        {"of it on the pass's thread", median(onThePass) * 1e3, 5, "ms", "median of 300"},
        {"a pass of 2,000 arrivals, until told", *flood * 1e3, 50, "ms", "median of 5, at 50,000"}};
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
        [&well](const PassRecord& record) {
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

Row recordRow() {
    return {"record", measureRecord};
}

Row progressRow() {
    return {"progress", measureProgress};
}

} // namespace kelvo::bench
