// What it costs to open the tab with what has arrived, and to turn to the passes.
#include "adapters/passes/sqlite_pass_store.h"
#include "bench/row.h"
#include "bench/run_until.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "ports/workspace.h"
#include "ui/widgets/activity_tab.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTreeView>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cArrivalsEach = PassStore::cMostArrivals / PassStore::cMostPasses;

class NoDesktop final : public Workspace {
public:
    void openUrl(const QString&) override {}
    void openFile(const QString&) override {}
    void revealInFinder(const QString&) override {}
    void activateFileViewerSelecting(const QStringList&) override {}
};

/// 10,000 passes over 30 days with five movies each.
void fill(PassStore& store) {
    PassRecord record;
    for (const CommandRole role : {CommandRole::HostCheck, CommandRole::Pull, CommandRole::Pull})
        record.commands.push_back(
            {.role = role,
             .command =
                 QStringLiteral("/usr/bin/rsync 2>&1 -r --times --stats 'Movies/' 'Incoming/'"),
             .exitStatus = 0,
             .seconds = 0.2,
             .text = {QStringLiteral("Features/Season 1/Episode 1.mov\n").repeated(20), {}, 0},
             .transfer = {}});
    for (int i = 0; i < PassStore::cMostPasses; ++i) {
        record.began =
            QDateTime::currentDateTimeUtc().addSecs(qint64{i - PassStore::cMostPasses} * 250);
        record.cause = i % 50 == 0 ? PassCause::HostAway : PassCause::Well;
        record.transfer = {TransferSource::Statistics, cArrivalsEach, cArrivalsEach * 1000};
        record.arrivals.clear();
        for (int file = 0; file < cArrivalsEach; ++file)
            record.arrivals.push_back({"/home/me/Videos/Incoming/Features/Season " +
                                           QByteArray::number(i) + "/Episode " +
                                           QByteArray::number(file) + ".mov",
                                       1000, record.began});
        store.append(record);
    }
}

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Until the table `name` has rows, and all is drawn.
bool waitForRows(VirtualMainQueue& mainQueue, ActivityTab& tab, const char* name) {
    const auto& table = *tab.findChild<QTreeView*>(QString::fromLatin1(name));
    const bool filled = runUntil(mainQueue, [&table] { return table.model()->rowCount() > 0; });
    QCoreApplication::processEvents();
    (void)tab.grab();
    return filled;
}

std::optional<std::vector<Figure>> measureActivity() {
    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    NoDesktop workspace;
    RecordingConsole console;
    SqlitePassStore store(folder.filePath(QStringLiteral("passes.sqlite")), mainQueue, console);
    fill(store);
    bool all = false;
    store.readAll([&all](const std::vector<PassRecord>&) { all = true; });
    if (!runUntil(mainQueue, [&all] { return all; }))
        return std::nullopt;
    std::vector<double> answered;
    std::vector<double> searched;
    for (int i = 0; i < 9; ++i) {
        int answers = 0;
        auto begin = Clock::now();
        store.readAll([&answers](const std::vector<PassRecord>&) { ++answers; });
        store.readArrivals({}, [&answers](const std::vector<KeptArrival>&) { ++answers; });
        store.readDays(30, [&answers](const std::vector<DayOfPasses>&) { ++answers; });
        if (!runUntil(mainQueue, [&answers] { return answers == 3; }))
            return std::nullopt;
        answered.push_back(since(begin));
        begin = Clock::now();
        store.readArrivals({.text = QStringLiteral("nowhere")},
                           [&answers](const std::vector<KeptArrival>&) { ++answers; });
        if (!runUntil(mainQueue, [&answers] { return answers == 4; }))
            return std::nullopt;
        searched.push_back(since(begin));
    }
    std::vector<double> opened;
    std::vector<double> turned;
    for (int i = 0; i < 9; ++i) {
        MemoryDefaults defaults;
        ActivityTab tab;
        tab.resize(760, 600);
        tab.setParts({.store = store,
                      .workspace = workspace,
                      .mainQueue = mainQueue,
                      .bgQueue = bgQueue,
                      .defaults = defaults,
                      .destination = [] { return QStringLiteral("/home/me/Videos/Incoming"); }});
        auto begin = Clock::now();
        tab.show();
        if (!waitForRows(mainQueue, tab, "arrivals"))
            return std::nullopt;
        opened.push_back(since(begin));
        begin = Clock::now();
        tab.showPass(1);
        if (!waitForRows(mainQueue, tab, "passes"))
            return std::nullopt;
        turned.push_back(since(begin));
    }
    return std::vector<Figure>{
        {"opening the tab with 50,000 arrivals", median(opened) * 1e3, 100, "ms", "median of 9"},
        {"turning to 10,000 passes", median(turned) * 1e3, 100, "ms", "median of 9"},
        {"the record's answers for both", median(answered) * 1e3, 100, "ms", "median of 9"},
        {"searching 50,000 arrivals", median(searched) * 1e3, 100, "ms", "median of 9"}};
}

} // namespace

Row activityRow() {
    return {"activity", measureActivity};
}

} // namespace kelvo::bench
