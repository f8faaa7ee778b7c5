// The program without a window, from outside: how soon it is there, and what one pass of it costs
// beside the bare command.
#include "bench/processor_time.h"
#include "bench/profile.h"
#include "bench/row.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRounds = 15;
constexpr int cRoundsOfMany = 5;
constexpr int cFew = 100;
constexpr double cGoal = 1.15;
constexpr double cGoalOverFloor = 1.1;
constexpr int cSettleMilliseconds = 2000;
constexpr int cPatienceMilliseconds = 600000;

double since(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

// -- there

struct Begun {
    double firstLine; ///< seconds until it is printed
    double memory;    ///< in KiB, once all is quiet
};

std::optional<Begun> begin(const QString& program, const QStringList& arguments) {
    const Profile profile;
    QProcess process;
    process.setProcessEnvironment(profile.environment());
    process.setStandardErrorFile(QProcess::nullDevice());
    const auto begin = Clock::now();
    process.start(builtProgram(program), arguments);
    const bool printed = process.waitForReadyRead(20000);
    Begun begun{.firstLine = since(begin), .memory = -1};
    if (printed && !process.waitForFinished(cSettleMilliseconds))
        begun.memory = proportionalKiB(process.processId());
    process.terminate();
    process.waitForFinished();
    if (begun.memory > 0)
        return begun;
    std::fprintf(stderr, "%s did not come up.\n", qPrintable(program));
    return std::nullopt;
}

std::optional<std::vector<Figure>> measureHeadless() {
    Rounds firstLine;
    Rounds memory;
    for (int round = -1; round < cRounds; ++round) {
        const auto ours = begin(QStringLiteral("kelvo-mirror"), {QStringLiteral("--headless")});
        const auto theirs = begin(QStringLiteral("kelvo-bare-core"), {});
        if (!ours || !theirs)
            return std::nullopt;
        if (round < 0)
            continue; // The first start of each reads its files.
        firstLine.ours.push_back(ours->firstLine);
        firstLine.theirs.push_back(theirs->firstLine);
        memory.ours.push_back(ours->memory);
        memory.theirs.push_back(theirs->memory);
    }
    char sides[64];
    std::snprintf(sides, sizeof sides, "%.1f / %.1f MiB", median(memory.ours) / 1024,
                  median(memory.theirs) / 1024);
    return std::vector<Figure>{
        ratioOfTimes(firstLine, "headless: from exec to the first line / a bare Qt Core program's",
                     1.5),
        ratioOf(memory, "headless: memory, sentinel included / a bare Qt Core program's", 1.5,
                sides)};
}

// -- one pass

/// Two folders, and the program's settings for plain passes between them.
class Folders {
public:
    explicit Folders(int files) {
        fProfile.set(plainPasses(30));
        for (int i = 0; i < files; ++i) {
            if (i % 1000 == 0)
                QDir().mkpath(fProfile.path("from") + folderOf(i));
            QFile file(fProfile.path("from") + folderOf(i) +
                       QStringLiteral("/movie %1.mov").arg(i));
            if (file.open(QIODevice::WriteOnly))
                file.write("frames");
        }
    }

    QString from() const { return fProfile.path("from"); }
    QString to() const { return fProfile.path("to"); }

    /// Seconds of one run to a good end; -1 else.
    double seconds(const QString& program, const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(fProfile.environment());
        process.setStandardInputFile(QProcess::nullDevice());
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        const auto begin = Clock::now();
        process.start(program, arguments);
        const bool ended = process.waitForFinished(cPatienceMilliseconds);
        const double taken = since(begin);
        return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
                   ? taken
                   : -1;
    }

    double pass() const {
        return seconds(builtProgram(QStringLiteral("kelvo-mirror")), {QStringLiteral("--once")});
    }
    double shell(const QString& command) const {
        return seconds(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
    }
    double bareProgram(const QString& command) const {
        return seconds(builtProgram(QStringLiteral("kelvo-bare-core")), {command});
    }
    /// What the last pass ran; empty without one.
    QString lastCommand() const {
        const std::vector<PassRecord> passes = fProfile.recordedPasses();
        const auto last = std::ranges::max_element(passes, {}, &PassRecord::id);
        return last == passes.end() || last->commands.empty() ? QString()
                                                              : last->commands.front().command;
    }

private:
    static QString folderOf(int file) { return QStringLiteral("/folder %1").arg(file / 1000); }

    const Profile fProfile;
};

/// Passes in turns with what `other` runs, everything in its place already.
std::optional<Rounds> inTurns(const Folders& folders, int rounds,
                              const std::function<double()>& other) {
    Rounds all;
    for (int round = -1; round < rounds; ++round) {
        const double ours = folders.pass();
        const double theirs = other();
        if (ours < 0 || theirs < 0) {
            std::fputs("A pass or what it is measured against failed.\n", stderr);
            return std::nullopt;
        }
        if (round < 0)
            continue; // brings the movies over
        all.ours.push_back(ours);
        all.theirs.push_back(theirs);
    }
    return all;
}

std::optional<std::vector<Figure>> measureOnce() {
    const Folders folders(cFew);
    (void)folders.pass();
    const QString command = folders.lastCommand();
    const auto rounds = inTurns(folders, cRounds, [&] { return folders.shell(command); });
    const auto floor = inTurns(folders, cRounds, [&] { return folders.bareProgram(command); });
    if (!rounds || !floor || command.isEmpty())
        return std::nullopt;
    return std::vector<Figure>{
        ratioOfTimes(*rounds, "plain --once over 100 files / its command by a bare sh", cGoal),
        ratioOfTimes(*floor, "the same / its command by a bare Qt Core program", cGoalOverFloor)};
}

/// Against what anybody would type: what our command costs a file shows too.
std::optional<std::vector<Figure>> measureFiles(const std::vector<int>& counts) {
    std::vector<Figure> figures;
    for (const int files : counts) {
        const Folders folders(files);
        const QString command = QStringLiteral("/usr/bin/rsync -r --times '%1/' '%2/'")
                                    .arg(folders.from(), folders.to());
        const auto rounds = inTurns(folders, files > 2000 ? cRoundsOfMany : cRounds,
                                    [&] { return folders.shell(command); });
        if (!rounds)
            return std::nullopt;
        figures.push_back(ratioOfTimes(
            *rounds, "plain --once over " + std::to_string(files) + " files / rsync -r --times",
            cGoal));
    }
    return figures;
}

} // namespace

Row headlessRow() {
    return {"headless", measureHeadless};
}

Row onceRow() {
    return {"once", measureOnce};
}

Row filesRow() {
    return {"files", [] { return measureFiles({cFew, 2000}); }};
}

Row manyFilesRow() {
    return {"files-many", [] { return measureFiles({20000, 200000}); }};
}

} // namespace kelvo::bench
