// The figures of the record of passes: writing one, opening the tab with ten thousand.
#include "adapters/qt/sqlite_pass_store.h"
#include "bench/row.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "passes/pass_journal.h"
#include "ports/command_runner.h"
#include "ui/widgets/activity_tab.h"

#include <QApplication>
#include <QTableView>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <thread>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRecorded = 300;
constexpr auto cPatience = std::chrono::seconds(120);

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

/// Runs `queue` until `done`; false when that takes too long.
template <typename Condition>
bool runUntil(VirtualMainQueue& queue, Condition done) {
    const auto begin = Clock::now();
    while (!done()) {
        if (Clock::now() - begin > cPatience)
            return false;
        queue.runDue();
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

std::optional<std::vector<Figure>> measureRecord() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    PassJournal journal({[] { return QDateTime::currentDateTimeUtc(); }, [] { return 0.0; }},
                        [&store](const PassRecord& record) { store.append(record); });
    int written = 0;
    const auto subscription =
        store.observe([&written](const PassRecord& record) { written += record.id > 0 ? 1 : 0; });
    const QString text = pullText(1000);
    std::vector<double> onThePass;
    const auto begin = Clock::now();
    for (int i = 0; i < cRecorded; ++i) {
        const auto pass = Clock::now();
        journal.passBegan(PassKind::Remote);
        journal.commandEnded(QStringLiteral("ssh whoami"), {QStringLiteral("me\n"), {}, 0}, 0.1);
        journal.hostJudged(QStringLiteral("valid"));
        journal.commandEnded(QStringLiteral("rsync --stats"), {text, {}, 0}, 1);
        journal.commandEnded(QStringLiteral("rsync"), {{}, {}, 0}, 1);
        journal.passEnded();
        onThePass.push_back(since(pass));
    }
    if (!runUntil(mainQueue, [&written] { return written == cRecorded; })) {
        std::fprintf(stderr, "Only %d of %d passes were written.\n", written, cRecorded);
        return std::nullopt;
    }
    const double each = since(begin) / cRecorded;
    return std::vector<Figure>{
        {"recording one pass, all threads", each * 1e3, 5, "ms", "300 passes of 1,000 names"},
        {"of it on the pass's thread", median(onThePass) * 1e3, 5, "ms", "median of 300"}};
}

std::optional<std::vector<Figure>> measureActivity() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    PassRecord record;
    record.commands.push_back({});
    for (int i = 0; i < PassStore::cMostPasses; ++i) {
        record.began = QDateTime::currentDateTimeUtc().addSecs(i - PassStore::cMostPasses);
        record.cause = i % 50 == 0 ? PassCause::HostAway : PassCause::Well;
        store.append(record);
    }
    bool all = false;
    store.readAll([&all](const std::vector<PassRecord>&) { all = true; });
    if (!runUntil(mainQueue, [&all] { return all; }))
        return std::nullopt;
    std::vector<double> opened;
    for (int i = 0; i < 9; ++i) {
        ActivityTab tab;
        tab.resize(760, 600);
        const auto begin = Clock::now();
        tab.setStore(store);
        tab.show();
        const QTableView& table = *tab.findChild<QTableView*>(QStringLiteral("passes"));
        if (!runUntil(mainQueue,
                      [&] { return table.model()->rowCount() == PassStore::cMostPasses; }))
            return std::nullopt;
        QCoreApplication::processEvents();
        (void)tab.grab();
        opened.push_back(since(begin));
    }
    return std::vector<Figure>{
        {"opening the tab with 10,000 passes", median(opened) * 1e3, 100, "ms", "median of 9"}};
}

} // namespace

Row recordRow() {
    return {"record", measureRecord};
}

Row activityRow() {
    return {"activity", measureActivity};
}

} // namespace kelvo::bench
