// The built program from outside, on a profile of its own and with real rsync between two folders.
#include "adapters/system/pidfd.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/virtual_display.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

class ProgramTest : public ::testing::Test, public ProgramProfile {
protected:
    std::unique_ptr<RunningProgram> start(const QVariantMap& profile,
                                          const QString& program = cProgram) const {
        write(settingsFile(), plistText(profile));
        return std::make_unique<RunningProgram>(program, QStringList{QStringLiteral("--headless")},
                                                environment());
    }

    Ended run(const QStringList& arguments) const { return runToEnd(cProgram, arguments); }

    /// One more descriptor of the lock that the process holds, as a child has that is just being
    /// started; empty where it may not be taken.
    static UniqueFd lockOf(qint64 process) {
        const UniqueFd handle = openProcess(static_cast<pid_t>(process));
        const QDir open(QStringLiteral("/proc/%1/fd").arg(process));
        for (const QFileInfo& entry : open.entryInfoList(QDir::Files | QDir::System)) {
            if (entry.symLinkTarget().endsWith(u"kelvo-mirror.lock"))
                return UniqueFd(static_cast<int>(
                    ::syscall(SYS_pidfd_getfd, handle.get(), entry.fileName().toInt(), 0)));
        }
        return {};
    }
};

TEST_F(ProgramTest, Version_IsPrinted) {
    const auto [code, output, errors] = run({QStringLiteral("--version")});
    EXPECT_EQ(code, 0);
    EXPECT_EQ(output, QByteArray("kelvo-mirror " KELVO_VERSION "\n"));
    EXPECT_EQ(errors, "");
}

TEST_F(ProgramTest, Help_NamesEveryOptionForPeople) {
    const auto [code, output, errors] = run({QStringLiteral("--help")});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(output.startsWith("Usage: kelvo-mirror [options]\n")) << output.constData();
    EXPECT_TRUE(output.contains("--headless") && output.contains("--version"));
    EXPECT_FALSE(output.contains("autorelaunched"));
}

TEST_F(ProgramTest, UnknownOptionOrArgument_IsRefused) {
    for (const char* argument : {"--frobnicate", "-z", "movie.mov"}) {
        const auto [code, output, errors] = run({QString::fromLatin1(argument)});
        EXPECT_EQ(code, 2) << argument;
        EXPECT_EQ(output, "");
        EXPECT_TRUE(errors.contains("kelvo-mirror --help")) << errors.constData();
    }
    EXPECT_FALSE(QFile::exists(settingsFile())) << "nothing was started";
}

TEST_F(ProgramTest, NoDisplay_IsSaidWithTheWayOut) {
    const auto [code, output, errors] = run({});
    EXPECT_EQ(code, 3);
    EXPECT_TRUE(errors.contains("--headless")) << errors.constData();
}

TEST_F(ProgramTest, DisplayThatDoesNotAnswer_IsSaidWithTheWayOut) {
    QProcess process;
    QProcessEnvironment withDisplay = environment();
    withDisplay.insert(QStringLiteral("DISPLAY"), QStringLiteral(":98765"));
    process.setProcessEnvironment(withDisplay);
    process.start(cProgram, QStringList{});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 3);
    const QByteArray errors = process.readAllStandardError();
    EXPECT_TRUE(errors.contains("--headless")) << errors.constData();
    EXPECT_TRUE(errors.contains(":98765")) << errors.constData();
    EXPECT_FALSE(QFile::exists(settingsFile())) << "nothing was started";
}

TEST_F(ProgramTest, WindowThatCannotBeOpened_IsSaidAndEndsInOrder) {
    struct Case {
        QStringList arguments;
        const char* display; // of Wayland
        const char* says;
    };
    for (const Case& c :
         {Case{{QStringLiteral("-platform"), QStringLiteral("nonsense")}, "", "nonsense"},
          Case{{QStringLiteral("-display=:98765")}, "", ":98765"},
          Case{{QStringLiteral("-platform=wayland")}, "", "no Wayland display"},
          Case{{}, "wayland-98765", "wayland-98765"},
          Case{{QStringLiteral("-platform"), QStringLiteral("wayland;xcb")},
               "/no/where",
               "/no/where"}}) {
        QProcess process;
        QProcessEnvironment with = environment();
        with.insert(QStringLiteral("WAYLAND_DISPLAY"), QString::fromLatin1(c.display));
        process.setProcessEnvironment(with);
        process.start(cProgram, c.arguments);
        ASSERT_TRUE(process.waitForFinished());
        const QByteArray errors = process.readAllStandardError();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << c.says;
        EXPECT_EQ(process.exitCode(), 3) << c.says;
        EXPECT_TRUE(errors.contains("kelvo-mirror: ") && errors.contains(c.says))
            << errors.constData();
    }
    EXPECT_FALSE(QFile::exists(settingsFile())) << "nothing was started";
}

TEST_F(ProgramTest, SecondCopy_EndsWithNothingWhileTheFirstRunsOn) {
    const auto first = start({});
    ASSERT_TRUE(first->waitForLine(QStringLiteral("Got version = "), 30));
    const auto [code, output, errors] = run({QStringLiteral("--headless")});
    EXPECT_EQ(code, 0) << errors.constData();
    EXPECT_TRUE(errors.contains("is running already")) << errors.constData();
    EXPECT_FALSE(output.contains("viewDidLoad()")) << output.constData();
    EXPECT_TRUE(first->isRunning());
    EXPECT_EQ(first->stop(), 0);
}

TEST_F(ProgramTest, StartAfterAnEnd_AlwaysWorks) {
    std::vector<UniqueFd> held;
    for (int turn = 1; turn <= 30; ++turn) {
        const auto program = start({});
        ASSERT_TRUE(program->waitForLine(QStringLiteral("Got version = "), 60))
            << turn << ": " << program->transcript().toStdString();
        held.push_back(lockOf(program->processId()));
        ASSERT_EQ(program->stop(), 0) << turn << ": " << program->transcript().toStdString();
    }
    if (!held.front())
        GTEST_SKIP() << "no descriptor of another process may be taken on this machine";
}

TEST_F(ProgramTest, LogFolderThatCannotBeWritten_IsSaidAndTheProgramRuns) {
    write(path(QStringLiteral("state")), "a file where a folder should be");
    const auto program = start({});
    EXPECT_TRUE(program->waitForLine(QStringLiteral("Got version = "), 30));
    EXPECT_EQ(program->stop(), 0);
    EXPECT_TRUE(program->transcript().contains(QStringLiteral("Cannot write the log file")))
        << program->transcript().toStdString();
}

TEST_F(ProgramTest, BrokenInfo_IsSaidAndTheProgramRunsWithoutAVersion) {
    const QString copy = copiedProgram();
    ASSERT_NE(copy, QString());
    write(path(QStringLiteral("copy/lib/kelvo-mirror/Info.plist")), "no property list");
    const auto program = start({}, copy);
    EXPECT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 30));
    EXPECT_EQ(program->stop(), 0);
    EXPECT_EQ(program->lines().filter(QStringLiteral("Got version")), QStringList());
    EXPECT_EQ(program->lines().filter(QStringLiteral("LSUIElement")), QStringList());
    EXPECT_TRUE(program->transcript().contains(QStringLiteral("Info.plist")))
        << program->transcript().toStdString();
}

TEST_F(ProgramTest, PlainPass_CopiesMoviesAndRepeats) {
    write(path(QStringLiteral("Camera/day 1/It's.MP4")), "movie");
    write(path(QStringLiteral("Camera/notes.txt")), "text");
    const auto program = start(plainProfile());
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), 30))
        << program->transcript().toStdString();
    write(path(QStringLiteral("Camera/later.mov")), "later");
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), 30));
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), 30));
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/day 1/It's.MP4"))), "movie");
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/later.mov"))), "later");
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("Incoming/notes.txt"))));
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(ProgramTest, Start_PrintsTheEntryLineAndRegistersTheFactoryValues) {
    const auto program = start({});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->viewDidLoad()......."), 30));
    EXPECT_EQ(program->stop(), 0);
    EXPECT_FALSE(program->lines().contains(
        QStringLiteral("Oops something went wrong with registering facotry defaults....")));
}

TEST_F(ProgramTest, NothingSetUp_RestsWithoutAWord) {
    QVariantMap profile = plainProfile();
    profile.remove(QStringLiteral("prefPath1"));
    const auto program = start(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("state is now IS RUNNING"), 30));
    EXPECT_EQ(program->stop(), 0);
    EXPECT_EQ(program->lines().filter(QStringLiteral("cmd to send")), QStringList());
    EXPECT_EQ(program->lines().filter(QStringLiteral("status")), QStringList());
}

TEST_F(ProgramTest, UserAndHostMissing_CountsFailures) {
    const auto program = start({{QStringLiteral("prefAutoStartScanOnLaunch"), true},
                                {QStringLiteral("prefDelayBetweenScans"), 0.1}});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("status black: Trying to rsync From Destination to Source..."), 30));
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("status red: something went wrong - waiting to retry again... [2]"), 30))
        << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ProgramTest, TermSignalInMidPass_EndsTheCommandAndKeepsTheSettings) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QVariantMap profile = plainProfile();
    profile[QStringLiteral("prefRsyncCommandString1")] =
        QStringLiteral("echo $$ > '%1'; trap '' TERM; sleep 3600 & wait; sleep 3600")
            .arg(path(QStringLiteral("pid")));
    const auto program = start(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to send = "), 30));
    const auto commandIsAlive = [this] {
        const QByteArray pid = contents(path(QStringLiteral("pid"))).trimmed();
        return !pid.isEmpty() &&
               QFile::exists(QStringLiteral("/proc/%1").arg(QLatin1StringView(pid)));
    };
    for (int i = 0; i < 500 && !commandIsAlive(); ++i)
        program->waitForLine(QStringLiteral("never"), 0.02);
    ASSERT_TRUE(commandIsAlive());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
    EXPECT_FALSE(commandIsAlive());
    const QByteArray settings = contents(settingsFile());
    EXPECT_TRUE(settings.contains("<key>prefEnableScanning</key>")) << settings.constData();
    EXPECT_TRUE(settings.contains("<key>prefRsyncCommandString1</key>"));
}

TEST_F(ProgramTest, BrokenSettings_AreSetAsideAndSaid) {
    write(settingsFile(), "<?xml version=\"1.0\"?><plist><dict><key>prefPa");
    RunningProgram program(cProgram, {QStringLiteral("--headless")}, environment());
    EXPECT_TRUE(program.waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->viewDidLoad()......."), 30));
    EXPECT_EQ(program.stop(), 0);
    const QStringList kept =
        QFileInfo(settingsFile()).dir().entryList({QStringLiteral("preferences.plist.corrupt-*")});
    EXPECT_EQ(kept.size(), 1);
    EXPECT_TRUE(program.transcript().contains(QStringLiteral("preferences.plist.corrupt-")));
}

TEST_F(ProgramTest, FactoryDefaultsMissing_IsSaidAndTheProgramRuns) {
    const QString copy = copiedProgram();
    ASSERT_NE(copy, QString());
    const auto program = start({}, copy);
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Oops something went wrong with registering facotry defaults...."), 30));
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->viewDidLoad()......."), 30));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ProgramTest, LogFile_IsPrivateAndHoldsTheLines) {
    const auto program = start({});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("Inside Kelvo_Mirror"), 30));
    EXPECT_EQ(program->stop(), 0);
    EXPECT_TRUE(contents(logFile()).contains("Inside Kelvo_Mirror.ViewController->viewDidLoad()"));
    const auto mode = QFileInfo(logFile()).permissions() &
                      (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
    EXPECT_EQ(mode, QFile::Permissions());
}

TEST_F(ProgramTest, RealWindow_RunsTheSamePassAndEndsInOrder) {
    VirtualDisplay display;
    const QString name = display.start();
    if (name.isEmpty())
        GTEST_SKIP() << "no Xvfb on this machine to open a window on";
    write(settingsFile(), plistText(plainProfile()));
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QProcessEnvironment withDisplay = environment();
    withDisplay.insert(QStringLiteral("DISPLAY"), name);
    withDisplay.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    RunningProgram program(cProgram, {}, withDisplay);
    ASSERT_TRUE(program.waitForLine(QStringLiteral("result from shell command ="), 60))
        << program.transcript().toStdString();
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
    EXPECT_EQ(program.lines().filter(QStringLiteral("status ")), QStringList())
        << "status lines are in the window";
    EXPECT_EQ(program.stop(), 0) << program.transcript().toStdString();
}

TEST_F(ProgramTest, OutputNobodyReads_DoesNotStopTheProgram) {
    write(settingsFile(), plistText(plainProfile()));
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QProcess program;
    program.setProcessEnvironment(environment());
    program.setStandardInputFile(QProcess::nullDevice());
    program.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), QStringLiteral("exec \"$0\" --headless >&-"), cProgram});
    ASSERT_TRUE(program.waitForStarted());
    for (int i = 0; i < 600 && !QFile::exists(path(QStringLiteral("Incoming/a.mov"))); ++i)
        program.waitForFinished(50);
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Incoming/a.mov"))));
    program.terminate();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
}

} // namespace
} // namespace kelvo
