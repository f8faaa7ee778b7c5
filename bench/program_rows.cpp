// The program at work: what a pass costs beyond its commands, and what rest costs. All of it is the
// program that people run, with record and log.
#include "bench/printed_names.h"
#include "bench/processor_time.h"
#include "bench/profile.h"
#include "bench/row.h"

#include <QFile>

#include <cstdio>

namespace kelvo::bench {
namespace {

/// The entries for a template of one's own; "%1" in it is the folder it may use.
QString withTemplate(const QString& rsyncTemplate) {
    return u"<key>prefRsyncCommandString1</key><string>" + rsyncTemplate.toHtmlEscaped() +
           u"</string>";
}

/// The program without a window, with settings of its own.
class HeadlessProgram {
public:
    explicit HeadlessProgram(const QString& entries) {
        fProfile.set(entries);
        fProcess.setProcessEnvironment(fProfile.environment());
        fProcess.setStandardOutputFile(path("output"));
        fProcess.setStandardErrorFile(path("errors"));
        fProcess.start(builtProgram(QStringLiteral("kelvo-mirror")),
                       {QStringLiteral("--headless")});
    }
    ~HeadlessProgram() { stop(); }
    HeadlessProgram(const HeadlessProgram&) = delete;
    HeadlessProgram& operator=(const HeadlessProgram&) = delete;

    void stop() {
        fProcess.terminate();
        fProcess.waitForFinished();
    }

    /// Lets it run on for a while; false when it has ended.
    bool settle(int milliseconds) { return !fProcess.waitForFinished(milliseconds); }

    /// Whether a file comes to be while it runs, within a minute.
    bool waitForFile(const char* name) {
        for (int i = 0; i < 600 && !QFile::exists(path(name)); ++i)
            (void)settle(100);
        return QFile::exists(path(name));
    }

    qint64 pid() const { return fProcess.processId(); }
    QString path(const char* name) const { return fProfile.path(name); }
    const Profile& profile() const { return fProfile; }
    QByteArray output() const {
        QFile file(path("output"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// "VmRSS" or "VmHWM", in MiB; -1 when it cannot be read.
    double memory(const char* figure) const {
        QFile status(QStringLiteral("/proc/%1/status").arg(pid()));
        if (!status.open(QIODevice::ReadOnly))
            return -1;
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith(figure))
                return line.simplified().split(' ').value(1).toDouble() / 1024;
        }
        return -1;
    }

private:
    const Profile fProfile;
    QProcess fProcess;
};

/// While syncing is off.
std::optional<double> wakeUpsOff() {
    HeadlessProgram program({});
    if (!program.settle(5000))
        return std::nullopt;
    const auto before = wakeUps(program.pid());
    if (!program.settle(60000))
        return std::nullopt;
    return double(wakeUpsSince(before, program.pid()));
}

std::optional<std::vector<Figure>> measureRest() {
    constexpr int minute = 60;
    HeadlessProgram program(plainPasses(30));
    // The first pass and all set-up lie behind after five seconds.
    if (!program.settle(5000)) {
        std::fputs("The program did not stay up.\n", stderr);
        return std::nullopt;
    }
    const double before = processorSeconds(program.pid());
    const auto wokenBefore = wakeUps(program.pid());
    (void)program.settle(minute * 1000);
    const double after = processorSeconds(program.pid());
    const auto woken = double(wakeUpsSince(wokenBefore, program.pid()));
    program.stop();
    if (before < 0 || after < 0 || program.output().count("cmd to send = ") < 2) {
        std::fputs("The program did not run its passes.\n", stderr);
        return std::nullopt;
    }
    const auto off = wakeUpsOff();
    if (!off) {
        std::fputs("The program did not stay up.\n", stderr);
        return std::nullopt;
    }
    return std::vector<Figure>{
        {"our own processor time in 60 s with two passes", (after - before) * 1e3, 20, "ms",
         "one run"},
        {"our wake-ups in them", woken, 20, "", "all threads that live"},
        {"our wake-ups in 60 s without a window, syncing off", *off, 0, "", "all threads"}};
}

std::optional<std::vector<Figure>> measurePass() {
    constexpr double cAtOnce = 0.001;
    HeadlessProgram program(plainPasses(cAtOnce));
    if (!program.settle(5000)) {
        std::fputs("The program did not stay up.\n", stderr);
        return std::nullopt;
    }
    const double before = processorSeconds(program.pid());
    const auto passesBefore = program.output().count("cmd to send = ");
    (void)program.settle(30000);
    const double used = processorSeconds(program.pid()) - before;
    const auto passes = double(program.output().count("cmd to send = ") - passesBefore);
    program.stop();
    std::vector<double> own;
    for (const PassRecord& pass : program.profile().recordedPasses()) {
        double others = 0;
        for (const CommandRecord& command : pass.commands)
            others += command.seconds;
        if (pass.cause == PassCause::Well)
            own.push_back(pass.seconds - others);
    }
    if (before < 0 || passes < 10 || own.size() < 10) {
        std::fputs("The program did not run its passes.\n", stderr);
        return std::nullopt;
    }
    const std::string count = "median of " + std::to_string(own.size());
    return std::vector<Figure>{{"our own share of an endless pass, from its begin to its end",
                                median(own) * 1e3, 0.25, "ms", count},
                               {"our own processor time for it, record, log and rest included",
                                used / passes * 1e3, 4, "ms",
                                "mean of " + std::to_string(int(passes))}};
}

/// The peak above rest in MiB while a pull prints what `flood` does; -1 when it did not.
double memoryOfFlood(const QString& flood) {
    HeadlessProgram program(plainPasses(30) + withTemplate(u"cd '%1'; touch begun; sleep 2; " +
                                                           flood + u"; touch printed"));
    if (!program.waitForFile("begun"))
        return -1;
    (void)program.settle(1000);
    const double rest = program.memory("VmRSS");
    const bool printed = program.waitForFile("printed") && program.settle(2000);
    const double peak = program.memory("VmHWM");
    return printed && rest > 0 && peak > 0 ? peak - rest : -1;
}

std::optional<std::vector<Figure>> measureFlood() {
    std::vector<Figure> figures;
    for (const auto& [what, flood] :
         {std::pair("a line of 100 MB", "head -c 100000000 /dev/zero | tr '\\0' x"),
          std::pair("1,000,000 lines", "seq 1000000 1999999"),
          std::pair("5 s of printing without end", "timeout 5 yes")}) {
        const double above = memoryOfFlood(QString::fromLatin1(flood));
        if (above < 0) {
            std::fputs("The program did not read its flood.\n", stderr);
            return std::nullopt;
        }
        figures.push_back({std::string("peak memory of the program above rest, ") + what, above,
                           64.0, "MiB", "one run"});
    }
    return figures;
}

} // namespace

std::optional<std::vector<Figure>> measureNamesOfAPass() {
    constexpr int cPasses = 5;
    std::vector<double> used;
    for (int i = 0; i < cPasses; ++i) {
        HeadlessProgram program(
            plainPasses(30) + withTemplate(u"cd '%1'; : --out-format=%n ; touch begun; sleep 2; " +
                                           printingNames(cNames) + u"; touch printed"));
        if (!program.waitForFile("begun"))
            return std::nullopt;
        (void)program.settle(1000);
        const double before = processorSeconds(program.pid());
        if (!program.waitForFile("printed") || !program.settle(2000) || before < 0)
            return std::nullopt;
        used.push_back(processorSeconds(program.pid()) - before);
        program.stop();
        const std::vector<PassRecord> passes = program.profile().recordedPasses();
        if (passes.size() != 1 || passes.front().transfer.files != cNames) {
            std::fputs("The program did not read the names of its pass.\n", stderr);
            return std::nullopt;
        }
    }
    return std::vector<Figure>{{"our own processor time for a pass with 200,000 printed names",
                                median(used), 0.05, "s", "median of 5"}};
}

Row passRow() {
    return {"pass", measurePass};
}

Row floodRow() {
    return {"flood", measureFlood};
}

Row restRow() {
    return {"rest", measureRest};
}

} // namespace kelvo::bench
