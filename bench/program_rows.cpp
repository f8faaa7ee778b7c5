// The program at work: what a pass costs beyond its commands, and what rest costs.
#include "adapters/process/posix_shell_runner.h"
#include "adapters/system/local_file_manager.h"
#include "bench/processor_time.h"
#include "bench/row.h"
#include "engine/engine.h"
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
    LocalFileManager fFiles;
    FakeButton fButton;
    Engine fEngine{{.defaults = fDefaults,
                    .mainQueue = fMainQueue,
                    .bgQueue = fBgQueue,
                    .commands = fCommands,
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

std::optional<std::vector<Figure>> measureRest() {
    constexpr int minute = 60;
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) {
        return folder.filePath(QString::fromLatin1(name));
    };
    QDir(folder.path()).mkpath(QStringLiteral("config/kelvo-mirror"));
    QDir(folder.path()).mkpath(QStringLiteral("from"));
    QFile settings(path("config/kelvo-mirror/preferences.plist"));
    if (!settings.open(QIODevice::WriteOnly))
        return std::nullopt;
    settings.write(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<plist version=\"1.0\"><dict>"
                                  "<key>prefAutoStartScanOnLaunch</key><true/>"
                                  "<key>prefRsyncWithSSH</key><false/>"
                                  "<key>prefDelayBetweenScans</key><real>30</real>"
                                  "<key>prefPath1</key><string>%1</string>"
                                  "<key>prefPath2</key><string>%2</string></dict></plist>\n")
                       .arg(path("from"), path("to"))
                       .toUtf8());
    settings.close();

    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
    environment.insert(QStringLiteral("XDG_STATE_HOME"), path("state"));
    program.setProcessEnvironment(environment);
    program.setStandardOutputFile(path("output"));
    program.setStandardErrorFile(path("errors"));
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/kelvo-mirror"),
                  {QStringLiteral("--headless")});
    // The first pass and all set-up lie behind after five seconds.
    if (!program.waitForStarted() || program.waitForFinished(5000)) {
        std::fputs("The program did not stay up.\n", stderr);
        return std::nullopt;
    }
    const double before = processorSeconds(program.processId());
    program.waitForFinished(minute * 1000);
    const double after = processorSeconds(program.processId());
    program.terminate();
    program.waitForFinished();
    QFile output(path("output"));
    const bool passed =
        output.open(QIODevice::ReadOnly) && output.readAll().count("cmd to send = ") >= 2;
    if (before < 0 || after < 0 || !passed) {
        std::fputs("The program did not run its passes.\n", stderr);
        return std::nullopt;
    }
    return std::vector<Figure>{{"processor time over 60 s of rest with a 30 s delay",
                                after - before, 0.02, "s", "one run"}};
}

} // namespace

Row passRow() {
    return {"pass", measurePass};
}

Row restRow() {
    return {"rest", measureRest};
}

} // namespace kelvo::bench
