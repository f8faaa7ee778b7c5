// What it costs to open the tab with the passes.
#include "adapters/passes/sqlite_pass_store.h"
#include "bench/row.h"
#include "bench/run_until.h"
#include "fakes/recording_console.h"
#include "ui/widgets/activity_tab.h"

#include <QApplication>
#include <QTableView>
#include <QTemporaryDir>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

std::optional<std::vector<Figure>> measureActivity() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    PassRecord record;
    record.commands.push_back({});
    constexpr int cArrivalsOfAPass = PassStore::cMostArrivals / PassStore::cMostPasses;
    for (int i = 0; i < cArrivalsOfAPass; ++i)
        record.arrivals.push_back(
            {"/home/someone/Videos/Incoming/Season 7/Episode " + QByteArray::number(i) + ".mov", i,
             QDateTime::currentDateTimeUtc()});
    for (int i = 0; i < PassStore::cMostPasses; ++i) {
        record.began = QDateTime::currentDateTimeUtc().addSecs(i - PassStore::cMostPasses);
        record.cause = i % 50 == 0 ? PassCause::HostAway : PassCause::Well;
        store.append(record);
    }
    bool all = false;
    store.readAll([&all](const std::vector<PassRecord>&) { all = true; });
    if (!runUntil(mainQueue, [&all] { return all; }))
        return std::nullopt;
    std::vector<double> answered;
    std::vector<double> searched;
    for (int i = 0; i < 9; ++i) {
        int answers = 0;
        const auto begin = Clock::now();
        store.readAll([&answers](const std::vector<PassRecord>&) { ++answers; });
        store.readArrivals({}, [&answers](const std::vector<KeptArrival>&) { ++answers; });
        store.readDays(30, [&answers](const std::vector<DayOfPasses>&) { ++answers; });
        if (!runUntil(mainQueue, [&answers] { return answers == 3; }))
            return std::nullopt;
        answered.push_back(since(begin));
        const auto beginOfSearch = Clock::now();
        store.readArrivals({.text = QStringLiteral("nowhere")},
                           [&answers](const std::vector<KeptArrival>&) { ++answers; });
        if (!runUntil(mainQueue, [&answers] { return answers == 4; }))
            return std::nullopt;
        searched.push_back(since(beginOfSearch));
    }
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
        {"opening the tab with 10,000 passes", median(opened) * 1e3, 100, "ms", "median of 9"},
        {"of it the record's answers", median(answered) * 1e3, 100, "ms", "50,000 arrivals"},
        {"searching 50,000 arrivals", median(searched) * 1e3, 100, "ms", "median of 9"}};
}

} // namespace

Row activityRow() {
    return {"activity", measureActivity};
}

} // namespace kelvo::bench
