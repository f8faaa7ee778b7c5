// What it costs to write down a pass.
#include "adapters/passes/pass_database.h"
#include "adapters/passes/sqlite_pass_store.h"
#include "bench/row.h"
#include "bench/run_until.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "passes/running_pass.h"

#include <QTemporaryDir>

#include <chrono>
#include <cstdio>

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
    const auto subscription = store.observe([&written](const PassRecord& record, const Standing&) {
        written += record.id > 0 ? 1 : 0;
    });
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

/// Seconds of writing one pass into a record that holds as many as it may.
std::optional<double> measureAtTheCap() {
    constexpr int cMore = 501;
    const QTemporaryDir folder;
    PassDatabase database(folder.filePath(QStringLiteral("passes.sqlite")));
    PassRecord record;
    record.began = QDateTime::currentDateTimeUtc();
    record.cause = PassCause::Well;
    for (const CommandRole role : {CommandRole::HostCheck, CommandRole::Pull, CommandRole::Pull})
        record.commands.push_back({.role = role,
                                   .command = QStringLiteral("/usr/bin/rsync -r --times a/ b/"),
                                   .exitStatus = 0,
                                   .text = {pullText(10), {}, 0},
                                   .transfer = {}});
    std::vector<double> times;
    for (int i = 0; i < PassStore::cMostPasses + cMore; ++i) {
        record.id = 0;
        const auto begin = Clock::now();
        if (!database.insert(record))
            return std::nullopt;
        if (i >= PassStore::cMostPasses)
            times.push_back(since(begin));
    }
    return median(times);
}

std::optional<std::vector<Figure>> measureRecord() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    QuickCommands commands;
    RunningPasses passes(
        commands, {[] { return QDateTime::currentDateTimeUtc(); }, [] { return 0.0; }},
        memoryWholePull(), [&store](const PassRecord& record) { store.append(record); });
    int written = 0;
    const auto subscription = store.observe([&written](const PassRecord& record, const Standing&) {
        written += record.id > 0 ? 1 : 0;
    });
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
    const auto atTheCap = measureAtTheCap();
    if (!flood || !atTheCap)
        return std::nullopt;
    return std::vector<Figure>{
        {"recording one pass, all threads", each * 1e3, 5, "ms", "300 passes of 1,000 names"},
        {"of it on the pass's thread", median(onThePass) * 1e3, 5, "ms", "median of 300"},
        {"one pass into the record at its cap of 10,000", *atTheCap * 1e3, 0.2, "ms",
         "median of 501"},
        {"a pass of 2,000 arrivals, until told", *flood * 1e3, 50, "ms", "median of 5, at 50,000"}};
}

} // namespace

Row recordRow() {
    return {"record", measureRecord};
}

} // namespace kelvo::bench
