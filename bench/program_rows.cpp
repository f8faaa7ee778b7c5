// The program at work: what a pass costs beyond its commands, and what rest costs.
#include "adapters/process/posix_shell_runner.h"
#include "adapters/system/local_file_manager.h"
#include "bench/processor_time.h"
#include "bench/row.h"
#include "engine/engine.h"
#include "fakes/fake_connection.h"
#include "fakes/fake_front.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cPassRounds = 31;

double secondsOf(const std::function<void()>& work) {
    const auto begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Remembers what it runs.
class WatchedCommands final : public CommandRunner {
public:
    explicit WatchedCommands(CommandRunner& runner) : fRunner(runner) {}
    CommandResult run(const Command& command) override {
        texts.append(command.text);
        return fRunner.run(command);
    }
    void cancel(CommandId command) override { fRunner.cancel(command); }
    QStringList texts;

private:
    CommandRunner& fRunner;
};

/// A remote pass by the real engine, real commands and all, on the near host of the lab.
class Pass {
public:
    explicit Pass(const QString& commandTemplate) {
        fDefaults.setObject(prefEnableScanning, 1);
        fDefaults.setObject(prefRsyncCommandOptionTag, 100);
        fDefaults.setObject(prefRsyncCommandString1, commandTemplate);
        fDefaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        fDefaults.setObject(prefRemoteBonjourName, QStringLiteral("Remote-Mac.local"));
        fDefaults.setObject(prefSampleRemoteFullPath,
                            QStringLiteral("mediauser@Remote-Mac.local:Movies"));
        fDefaults.setObject(prefPath2, QStringLiteral("/Users/near/Incoming"));
    }

    double seconds() {
        fMainQueue.runDue(); // the end of the pass before
        fDefaults.setObject(prefIsScanning, false);
        fCommands.texts.clear();
        fEngine.syncCycle.doSyncOnceBonjour();
        return secondsOf([this] { fBgQueue.runOne(); });
    }
    const QStringList& commands() const { return fCommands.texts; }

private:
    MemoryDefaults fDefaults;
    VirtualMainQueue fMainQueue;
    ManualBackgroundQueue fBgQueue;
    RecordingConsole fConsole;
    PosixShellRunner fRunner{fConsole};
    WatchedCommands fCommands{fRunner};
    FakeConnection fConnection;
    LocalFileManager fFiles;
    FakeButton fButton;
    Engine fEngine{{.defaults = fDefaults,
                    .mainQueue = fMainQueue,
                    .bgQueue = fBgQueue,
                    .commands = fCommands,
                    .connection = fConnection,
                    .files = fFiles,
                    .console = fConsole,
                    .clock = {[] { return QDateTime::currentDateTimeUtc(); }, [] { return 0.0; }},
                    .passEnded = [](const PassRecord&) {}},
                   {.updateStatusMessage = [](std::optional<QString>, StatusColor, bool) {},
                    .showProblemWithBonjourClosure = [](const QString&, const QString&,
                                                        std::function<void(ModalResponse)>) {},
                    .ibStartButton = &fButton},
                   [](KeyState) {}};
};

double shellSeconds(const QStringList& commands) {
    const QByteArray script = commands.join(u'\n').toLocal8Bit();
    return secondsOf([&script] {
        QProcess shell;
        shell.setStandardInputFile(QProcess::nullDevice());
        shell.start(QStringLiteral("/bin/sh"),
                    {QStringLiteral("-c"), QString::fromLocal8Bit(script)});
        shell.waitForFinished(-1);
    });
}

std::optional<std::vector<Figure>> measurePass() {
    if (qEnvironmentVariable("USER") != u"root" || !QFile::exists(QStringLiteral("/.kelvo-lab"))) {
        std::fputs("The row \"pass\" runs on the near host of the lab; ./dev bench sees to that as "
                   "root.\n",
                   stderr);
        return std::nullopt;
    }
    Pass pass(qEnvironmentVariable("KELVO_BENCH_TEMPLATE"));
    pass.seconds(); // brings the files over
    if (pass.commands().size() != 3) {
        std::fputs("The remote host did not validate.\n", stderr);
        return std::nullopt;
    }
    const QStringList commands = pass.commands();
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < cPassRounds; ++round) {
        ours.push_back(pass.seconds());
        theirs.push_back(shellSeconds(commands));
        if (pass.commands() != commands) {
            std::fputs("A pass did not run its three commands.\n", stderr);
            return std::nullopt;
        }
    }
    return std::vector<Figure>{{"no-change remote pass / its three commands by a bare sh",
                                median(ours) / median(theirs), 1.03, "x",
                                sideBySide(median(ours), median(theirs))}};
}

/// The program without a window, on plain passes between two folders of its own.
class HeadlessProgram {
public:
    /// `rsyncTemplate`: empty for the one that people start with; "%1" is the folder it may use.
    explicit HeadlessProgram(const QString& rsyncTemplate = {}) {
        QDir(path()).mkpath(QStringLiteral("config/kelvo-mirror"));
        QDir(path()).mkpath(QStringLiteral("from"));
        QString settings = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                          "<plist version=\"1.0\"><dict>"
                                          "<key>prefAutoStartScanOnLaunch</key><true/>"
                                          "<key>prefRsyncWithSSH</key><false/>"
                                          "<key>prefDelayBetweenScans</key><real>30</real>"
                                          "<key>prefPath1</key><string>%1/from</string>"
                                          "<key>prefPath2</key><string>%1/to</string>");
        if (!rsyncTemplate.isEmpty())
            settings += u"<key>prefRsyncCommandString1</key><string>" +
                        rsyncTemplate.toHtmlEscaped() + u"</string>";
        QFile file(path("config/kelvo-mirror/preferences.plist"));
        if (file.open(QIODevice::WriteOnly))
            file.write(QString(settings + u"</dict></plist>\n").arg(path()).toUtf8());
        file.close();

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), path("state"));
        fProcess.setProcessEnvironment(environment);
        fProcess.setStandardOutputFile(path("output"));
        fProcess.setStandardErrorFile(path("errors"));
        fProcess.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kelvo-mirror"),
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
    QString path(const char* name = "") const {
        return fFolder.filePath(QString::fromLatin1(name));
    }
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
    const QTemporaryDir fFolder;
    QProcess fProcess;
};

std::optional<std::vector<Figure>> measureRest() {
    constexpr int minute = 60;
    HeadlessProgram program;
    // The first pass and all set-up lie behind after five seconds.
    if (!program.settle(5000)) {
        std::fputs("The program did not stay up.\n", stderr);
        return std::nullopt;
    }
    const double before = processorSeconds(program.pid());
    (void)program.settle(minute * 1000);
    const double after = processorSeconds(program.pid());
    program.stop();
    if (before < 0 || after < 0 || program.output().count("cmd to send = ") < 2) {
        std::fputs("The program did not run its passes.\n", stderr);
        return std::nullopt;
    }
    return std::vector<Figure>{{"processor time over 60 s of rest with a 30 s delay",
                                after - before, 0.02, "s", "one run"}};
}

/// The peak above rest in MiB while a pull prints what `flood` does; -1 when it did not.
double memoryOfFlood(const QString& flood) {
    HeadlessProgram program(
        QString(u"cd '%1'; touch begun; sleep 2; " + flood + u"; touch printed"));
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
