// soak_driver PASSES SEED FOLDER PROGRAM QUICK-CLOCK: thousands of passes by the real program, with
// stand-ins for ssh and rsync that go wrong at random. One table; exit code 1 when anything grew,
// leaked or was missed.
#include "soak/process_figures.h"
#include "soak/soak_world.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace kelvo {
namespace {

constexpr long cMemoryGrowth = 2048; // KiB
constexpr int cDescriptorGrowth = 0;
constexpr int cThreadGrowth = 1; // one that rests may be on its way out
/// Three files of 5 MiB, and the line that may stand over the brim of each.
constexpr long long cLogCap = 3LL * (5 * 1024 + 256) * 1024;
constexpr int cPatience = 120; // seconds without a line
constexpr int cSamples = 60;
constexpr int cRows = 10;
constexpr int cSkipped = 77;

struct Sample {
    int pass = 0;
    double seconds = 0;
    ProcessFigures figures;
    long long log = 0;
    long long record = 0;
};

struct Counts {
    int asked = 0;
    int ended = 0;
    int refused = 0; ///< a pass was asked for while another one ran
    int cut = 0;     ///< checks that hung and were cut off
    int alerts = 0;
};

bool contains(const std::string& line, const char* part) {
    return line.find(part) != std::string::npos;
}

/// Reads the program's lines, takes a sample now and then, takes the tools away now and then.
class Soak {
public:
    Soak(SoakWorld& world, int passes, std::uint64_t seed)
        : fWorld(world), fPasses(passes), fDice(seed) {}

    /// Empty, or why it was given up.
    std::string run() {
        while (fCounts.ended < fPasses) {
            const auto line = fWorld.nextLine(cPatience);
            if (!line)
                return "the program fell silent after " + std::to_string(fCounts.ended) + " passes";
            take(*line);
        }
        return {};
    }

    const Counts& counts() const { return fCounts; }
    const std::vector<Sample>& samples() const { return fSamples; }
    int withoutTools() const { return fWithoutTools; }

    void count(const std::string& line) {
        if (contains(line, "->doSyncOnceBonjour().......NEED to start a scan"))
            ++fCounts.asked;
        else if (contains(line, ".......ALREADY in Middle of a Scan"))
            ++fCounts.refused;
        else if (contains(line, "A shell command was cut off after 33 s"))
            ++fCounts.cut;
        else if (line.starts_with("alert: "))
            ++fCounts.alerts;
    }

private:
    void take(const std::string& line) {
        count(line);
        if (contains(line, "result from movie shell command ="))
            fLastCommand = true;
        const bool pulled = fLastCommand && contains(line, "======== done ========");
        if (pulled || contains(line, "NEED to handle possible ERROR:")) {
            fLastCommand = false;
            ++fCounts.ended;
            passEnded();
        }
    }

    void passEnded() {
        if (fCounts.ended % std::max(1, fPasses / cSamples) == 0 || fCounts.ended == fPasses)
            sample();
        const bool away = fCounts.ended < fToolsBackAt;
        if (!away && fDice() % 200 == 0) {
            fToolsBackAt = fCounts.ended + 2;
            fWorld.setToolsPresent(false);
        } else if (fCounts.ended == fToolsBackAt) {
            fWorld.setToolsPresent(true);
        }
        fWithoutTools += away ? 1 : 0;
    }

    /// Between the commands of a pass: what a running command takes for the moment comes and goes,
    /// so the least of some looks counts.
    void sample() {
        ProcessFigures least = figuresOf(fWorld.program());
        for (int look = 0; look < 8; ++look) {
            const ProcessFigures now = figuresOf(fWorld.program());
            least = {std::min(least.memory, now.memory),
                     std::min(least.descriptors, now.descriptors),
                     std::min(least.threads, now.threads), std::min(least.zombies, now.zombies)};
        }
        const auto since = std::chrono::steady_clock::now() - fBegan;
        const std::string record = std::filesystem::path(fWorld.recordFile()).parent_path();
        fSamples.push_back({fCounts.ended, std::chrono::duration<double>(since).count(), least,
                            bytesIn(fWorld.logFolder()), bytesIn(record)});
    }

    SoakWorld& fWorld;
    const int fPasses;
    std::mt19937_64 fDice;
    const std::chrono::steady_clock::time_point fBegan = std::chrono::steady_clock::now();
    Counts fCounts;
    std::vector<Sample> fSamples;
    int fToolsBackAt = 0;
    int fWithoutTools = 0;
    bool fLastCommand = false; ///< of the pass
};

template <typename Figure>
auto medianOf(std::vector<Sample>::const_iterator begin, std::vector<Sample>::const_iterator end,
              Figure figure) {
    std::vector<decltype(figure(*begin))> values;
    for (; begin != end; ++begin)
        values.push_back(figure(*begin));
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}

/// From the tenth after the warm-up, which is the first fifth, to the last tenth.
template <typename Figure>
auto growthOf(const std::vector<Sample>& samples, Figure figure) {
    const auto tenth = static_cast<std::ptrdiff_t>(std::max<std::size_t>(1, samples.size() / 10));
    const auto warm = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 5);
    return medianOf(samples.end() - tenth, samples.end(), figure) -
           medianOf(warm, warm + tenth, figure);
}

void printTable(const std::vector<Sample>& samples) {
    std::puts("passes  seconds  memory KiB  descriptors  threads  zombies  log KiB  record KiB");
    const std::size_t step = std::max<std::size_t>(1, samples.size() / cRows);
    for (std::size_t i = step - 1; i < samples.size(); i += step) {
        const Sample& at = samples[i];
        std::printf("%6d  %7.0f  %10ld  %11d  %7d  %7d  %7lld  %10lld\n", at.pass, at.seconds,
                    at.figures.memory, at.figures.descriptors, at.figures.threads,
                    at.figures.zombies, at.log / 1024, at.record / 1024);
    }
}

void printDrawn(const std::string& drawn) {
    const std::map<char, const char*> names{
        {'.', "well"},         {'h', "hang"},           {'f', "flood"},
        {'g', "garbage"},      {'k', "killed"},         {'s', "slow"},
        {'e', "says a fault"}, {'n', "silent"},         {'c', "child holds output"},
        {'d', "child leaves"}, {'t', "talks on errors"}};
    std::printf("\nruns of the stand-ins: %zu", drawn.size());
    for (const auto& [letter, name] : names)
        std::printf(", %s %td", name, std::ranges::count(drawn, letter));
    std::puts("");
}

/// The number of the newest pass in the record, which counts them all.
int recordedPasses(const std::string& file) {
    auto record = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    record.setDatabaseName(QString::fromStdString(file));
    if (!record.open())
        return -1;
    QSqlQuery query(QStringLiteral("SELECT MAX(id) FROM pass"), record);
    return query.next() ? query.value(0).toInt() : -1;
}

/// One line of the verdict; whether it is well.
bool judge(const char* what, long long found, long long allowed) {
    const bool well = found <= allowed;
    std::printf("%-34s %10lld  (at most %lld)  %s\n", what, found, allowed, well ? "ok" : "FAILED");
    return well;
}

std::string freshFolder(const std::string& parent) {
    std::string name = parent + "/kelvo-soak.XXXXXX";
    if (::mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no folder can be made in " + parent);
    return name;
}

int soak(int passes, std::uint64_t seed, const std::string& folder, const std::string& program,
         const std::string& quickClock) {
    std::printf("soak: %d passes, seed %llu\n", passes, static_cast<unsigned long long>(seed));
    std::fflush(stdout);
    if (const std::string reason = enterOwnView(); !reason.empty()) {
        std::printf("soak: skipped, %s\n", reason.c_str());
        return cSkipped;
    }
    SoakWorld world(folder, seed);
    world.start(program, quickClock);
    const pid_t pid = world.program();
    Soak run(world, passes, seed);
    const std::string givenUp = run.run();
    const Counts& counts = run.counts();
    const int exitCode = world.stop([&run](const std::string& line) { run.count(line); });

    printTable(run.samples());
    printDrawn(world.drawn());
    std::printf("checks cut off %d, alerts %d, passes without tools %d\n\n", counts.cut,
                counts.alerts, run.withoutTools());
    if (!givenUp.empty() || run.samples().empty()) {
        std::printf("FAILED: %s\n", givenUp.c_str());
        return 1;
    }
    const auto& samples = run.samples();
    const int recorded = recordedPasses(world.recordFile());
    long long largestLog = 0;
    int mostZombies = 0;
    for (const Sample& at : samples) {
        largestLog = std::max(largestLog, at.log);
        mostZombies = std::max(mostZombies, at.figures.zombies);
    }
    const bool well[] = {
        judge("growth of memory, KiB",
              growthOf(samples, [](const Sample& at) { return at.figures.memory; }), cMemoryGrowth),
        judge("growth of descriptors",
              growthOf(samples, [](const Sample& at) { return at.figures.descriptors; }),
              cDescriptorGrowth),
        judge("growth of threads",
              growthOf(samples, [](const Sample& at) { return at.figures.threads; }),
              cThreadGrowth),
        judge("zombies", mostZombies, 0),
        judge("largest log, KiB", largestLog / 1024, cLogCap / 1024),
        judge("passes asked for, not recorded", std::abs(counts.asked - recorded), 0),
        judge("passes asked for during another", counts.refused, 0),
        judge("commands that outlived the program", commandsLeftBy(pid), 0),
        judge("exit code", std::abs(exitCode), 0)};
    return std::ranges::count(well, false) == 0 ? 0 : 1;
}

} // namespace
} // namespace kelvo

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    if (count != 6) {
        std::fputs("usage: soak_driver PASSES SEED FOLDER PROGRAM QUICK-CLOCK\n", stderr);
        return 2;
    }
    try {
        const std::filesystem::path folder = kelvo::freshFolder(arguments[3]);
        const int result = kelvo::soak(std::max(1, std::atoi(arguments[1])),
                                       std::strtoull(arguments[2], nullptr, 10), folder,
                                       arguments[4], arguments[5]);
        if (result == 1)
            std::printf("what it left is in %s\n", folder.c_str());
        else
            std::filesystem::remove_all(folder);
        return result;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "soak: %s\n", failure.what());
        return 1;
    }
}
