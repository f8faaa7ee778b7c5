// The watchdog with real signals, real faults and the real sentinel, in a small program of its own.
#include "support/descendants.h"
#include "support/sanitized.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace kelvo {
namespace {

const QString cRelaunched =
    QStringLiteral("automatically relaunched due to unexpected termination");
const QString cMissing =
    QStringLiteral("missing watchdog! Unexpected termination will not be monitored.");

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Start {
    pid_t pid = -1;
    int descriptors = 0;
    QString folder;
    QString mark;
    QStringList arguments;
};

class WatchdogSystemTest : public ::testing::Test {
protected:
    void SetUp() override {
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        adoptOrphans();
        QDir(folder.path()).mkpath(QStringLiteral("resources"));
        QDir(folder.path()).mkpath(QStringLiteral("a place"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_SENTINEL), sentinel()));
    }
    void TearDown() override { endAllDescendants("watchdog"); }

    QString path(const QString& name) const { return folder.filePath(name); }
    QString sentinel() const { return path(QStringLiteral("resources/watchdog")); }

    /// Starts the program by hand and waits until it is set up.
    Start start(const QString& action, const QStringList& more = {}) {
        const std::size_t before = starts().size();
        std::vector<std::string> texts{KELVO_WATCHED_PROGRAM, folder.path().toStdString(),
                                       action.toStdString()};
        for (const QString& argument : more)
            texts.push_back(argument.toStdString());
        std::vector<char*> arguments;
        for (std::string& text : texts)
            arguments.push_back(text.data());
        arguments.push_back(nullptr);
        pid_t pid = -1;
        EXPECT_EQ(
            ::posix_spawn(&pid, KELVO_WATCHED_PROGRAM, nullptr, nullptr, arguments.data(), environ),
            0);
        return waitForStart(before + 1);
    }

    /// The `count`-th start; one with the pid -1 when it does not come.
    Start waitForStart(std::size_t count) const {
        if (!waitUntil([&] { return starts().size() >= count; }, std::chrono::seconds(30)))
            return {};
        return starts().at(count - 1);
    }

    std::vector<Start> starts() const {
        std::vector<Start> found;
        QStringList records =
            QString::fromUtf8(contents(path(QStringLiteral("starts")))).split(QChar(u'\x1d'));
        records.removeLast();
        for (const QString& record : records) {
            const QStringList fields = record.split(QChar(u'\x1e'));
            found.push_back({fields.at(0).toInt(), fields.at(1).toInt(), fields.at(2), fields.at(3),
                             fields.at(4).split(QChar(u'\x1f'))});
        }
        return found;
    }

    QStringList log() const {
        return QString::fromUtf8(contents(path(QStringLiteral("log"))))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    bool waitForLog(const QString& line) const {
        return waitUntil([&] { return log().contains(line); });
    }
    QByteArray settings() const { return contents(path(QStringLiteral("preferences.plist"))); }

    /// The signals 1 to 31 of a set in the status of the command.
    quint64 ordinarySignals(const char* set) const {
        const QByteArray status = contents(path(QStringLiteral("status")));
        const auto at = status.indexOf(set);
        EXPECT_GE(at, 0) << status.constData();
        return status.mid(at + 8, 16).toULongLong(nullptr, 16) & 0x7fffffffU;
    }

    static int exitStatus(std::optional<int> status) {
        return status && WIFEXITED(*status) ? WEXITSTATUS(*status) : -1;
    }
    static int endingSignal(std::optional<int> status) {
        return status && WIFSIGNALED(*status) ? WTERMSIG(*status) : -1;
    }

    void endInOrder(pid_t pid) {
        ::kill(pid, SIGTERM);
        EXPECT_EQ(exitStatus(statusOf(pid)), 0);
        EXPECT_TRUE(allEnd());
    }

    const QTemporaryDir folder;
};

class EachSignalTest : public WatchdogSystemTest, public ::testing::WithParamInterface<int> {};

TEST_P(EachSignalTest, HasItsReaction) {
    const int number = GetParam();
    const Start first = start(QStringLiteral("wait"));
    ASSERT_GT(first.pid, 0);
    ASSERT_EQ(::kill(first.pid, number), 0);
    const QString description = QString::fromLocal8Bit(::strsignal(number));
    if (number == SIGHUP) {
        EXPECT_TRUE(waitForLog(QStringLiteral("Caught %1 ... ignoring.").arg(description)));
        EXPECT_EQ(::waitpid(first.pid, nullptr, WNOHANG), 0) << "it runs on";
        endInOrder(first.pid);
        return;
    }
    const std::optional<int> status = statusOf(first.pid);
    if (number == SIGTERM) {
        EXPECT_EQ(exitStatus(status), 0);
        EXPECT_TRUE(allEnd());
        EXPECT_EQ(starts().size(), 1U) << "no relaunch";
        EXPECT_EQ(log(), (QStringList{QStringLiteral("Caught %1 ... terminating.").arg(description),
                                      QStringLiteral("watchdog has terminated with exit code 0")}));
        return;
    }
    if (number == SIGKILL)
        EXPECT_EQ(endingSignal(status), SIGKILL);
    else
        EXPECT_EQ(exitStatus(status), number);
    const Start second = waitForStart(2);
    ASSERT_GT(second.pid, 0) << "not relaunched";
    EXPECT_EQ(log(), QStringList{cRelaunched}) << "the signal itself is not logged";
    EXPECT_EQ(settings().count("<real>"), 1);
    endInOrder(second.pid);
    EXPECT_EQ(starts().size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Numbers, EachSignalTest, ::testing::Range(1, 16));

TEST_F(WatchdogSystemTest, Relaunch_KeepsArgumentsEnvironmentAndFolder) {
    const QStringList odd{QStringLiteral("two words"), QString(), QStringLiteral("ü\n\"'$"),
                          QStringLiteral("--last")};
    ::setenv("KELVO_TEST_MARK", "a = b\nc", 1);
    const QString before = QDir::currentPath();
    QDir::setCurrent(path(QStringLiteral("a place")));
    const Start first = start(QStringLiteral("wait"), odd);
    QDir::setCurrent(before);
    ::unsetenv("KELVO_TEST_MARK");
    ASSERT_EQ(first.mark, QStringLiteral("a = b\nc"));
    pid_t last = first.pid;
    for (std::size_t count = 2; count <= 3; ++count) {
        ::kill(last, SIGKILL);
        const Start again = waitForStart(count);
        ASSERT_GT(again.pid, 0);
        EXPECT_EQ(again.arguments,
                  first.arguments + QStringList{QStringLiteral("--autorelaunched")});
        EXPECT_EQ(again.mark, first.mark);
        EXPECT_EQ(again.folder, first.folder);
        last = again.pid;
    }
    endInOrder(last);
}

TEST_F(WatchdogSystemTest, FolderThatWasRenamed_IsStillTheWorkingFolder) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(path(QStringLiteral("a place")));
    const Start first = start(QStringLiteral("wait"));
    QDir::setCurrent(before);
    ASSERT_TRUE(QDir(folder.path()).rename(QStringLiteral("a place"), QStringLiteral("elsewhere")));
    ::kill(first.pid, SIGKILL);
    const Start second = waitForStart(2);
    EXPECT_EQ(second.folder, QFileInfo(path(QStringLiteral("elsewhere"))).canonicalFilePath());
    endInOrder(second.pid);
}

TEST_F(WatchdogSystemTest, FiveQuickEnds_EndTheRelaunchingUntilAStartByHand) {
    pid_t last = start(QStringLiteral("wait")).pid;
    for (std::size_t count = 2; count <= 6; ++count) {
        ::kill(last, SIGKILL);
        last = waitForStart(count).pid;
        ASSERT_GT(last, 0) << count;
    }
    EXPECT_EQ(settings().count("<real>"), 5);
    EXPECT_EQ(log().filter(cRelaunched).size(), 5);
    EXPECT_TRUE(log().last().startsWith(QStringLiteral(
        "NOT setting auto-relaunch because interval since 4 previous launches is less than 30.0 "
        "sec (")))
        << log().last().toStdString();
    ::kill(last, SIGKILL);
    EXPECT_EQ(endingSignal(statusOf(last)), SIGKILL);
    EXPECT_TRUE(allEnd());
    EXPECT_EQ(starts().size(), 6U);

    const Start byHand = start(QStringLiteral("wait"));
    EXPECT_EQ(log().last(), QStringLiteral("relaunching was given up before this start by hand; "
                                           "unexpected termination is monitored again"));
    EXPECT_EQ(settings().count("<real>"), 0);
    EXPECT_TRUE(livingChild(byHand.pid, "watchdog"));
    endInOrder(byHand.pid);
}

TEST_F(WatchdogSystemTest, SentinelKilled_IsLoggedAndTheProgramRunsOn) {
    const Start first = start(QStringLiteral("wait"));
    const auto sentinelId = livingChild(first.pid, "watchdog");
    ASSERT_TRUE(sentinelId);
    ::kill(*sentinelId, SIGKILL);
    EXPECT_TRUE(waitForLog(QStringLiteral("watchdog has terminated with exit code 9")));
    EXPECT_TRUE(waitUntil([&] { return descendants().size() == 1; })) << "it is no zombie";
    EXPECT_EQ(::waitpid(first.pid, nullptr, WNOHANG), 0);
    ::kill(first.pid, SIGINT);
    EXPECT_EQ(exitStatus(statusOf(first.pid)), SIGINT) << "signals are caught all the same";
    EXPECT_TRUE(allEnd());
    EXPECT_EQ(starts().size(), 1U);
}

TEST_F(WatchdogSystemTest, SentinelMissing_IsSaidAndSignalsTakeTheirCourse) {
    ASSERT_TRUE(QFile::remove(sentinel()));
    const Start first = start(QStringLiteral("wait"));
    EXPECT_EQ(log(), QStringList{cMissing});
    ::kill(first.pid, SIGINT);
    EXPECT_EQ(endingSignal(statusOf(first.pid)), SIGINT);
    EXPECT_TRUE(allEnd());
}

TEST_F(WatchdogSystemTest, SentinelNotExecutable_CountsAsMissing) {
    ASSERT_TRUE(QFile::setPermissions(sentinel(), QFile::ReadOwner | QFile::WriteOwner));
    const Start first = start(QStringLiteral("wait"));
    EXPECT_EQ(log(), QStringList{cMissing});
    EXPECT_EQ(descendants().size(), 1U);
    ::kill(first.pid, SIGTERM);
    EXPECT_EQ(endingSignal(statusOf(first.pid)), SIGTERM);
    EXPECT_TRUE(allEnd());
}

TEST_F(WatchdogSystemTest, SentinelThatIsNoProgram_IsSilentAndTheProgramRuns) {
    QFile file(sentinel());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("\x01\x02 no program");
    file.close();
    const Start first = start(QStringLiteral("wait"));
    EXPECT_EQ(log(), QStringList());
    ::kill(first.pid, SIGINT);
    EXPECT_EQ(exitStatus(statusOf(first.pid)), SIGINT);
    EXPECT_TRUE(allEnd());
}

struct Fault {
    const char* action;
    int signal;
};
class RealFaultTest : public WatchdogSystemTest, public ::testing::WithParamInterface<Fault> {};

TEST_P(RealFaultTest, EndsAtOnceAndIsRelaunched) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer answers faults itself";
    const Start first = start(QString::fromLatin1(GetParam().action));
    ASSERT_GT(first.pid, 0);
    EXPECT_EQ(endingSignal(statusOf(first.pid)), GetParam().signal);
    const Start second = waitForStart(2);
    ASSERT_GT(second.pid, 0);
    EXPECT_TRUE(second.arguments.contains(QStringLiteral("--autorelaunched")));
    EXPECT_EQ(log(), QStringList{cRelaunched});
    endInOrder(second.pid);
}

#ifdef __x86_64__
// What ends a program in GLib's place.
INSTANTIATE_TEST_SUITE_P(Traps, RealFaultTest, ::testing::Values(Fault{"breakpoint", SIGTRAP}),
                         [](const auto& given) { return std::string(given.param.action); });
#endif

INSTANTIATE_TEST_SUITE_P(Faults, RealFaultTest,
                         ::testing::Values(Fault{"null", SIGSEGV}, Fault{"abort", SIGABRT},
                                           Fault{"overflow", SIGSEGV}, Fault{"trap", SIGILL}),
                         [](const auto& given) { return std::string(given.param.action); });

TEST_F(WatchdogSystemTest, QuitAndRelaunch_KeepsWhatWasJustSet) {
    const Start first = start(QStringLiteral("quit-and-relaunch"));
    EXPECT_EQ(exitStatus(statusOf(first.pid)), 0);
    EXPECT_TRUE(settings().contains("<string>kept</string>")) << settings().constData();
    const Start second = waitForStart(2);
    ASSERT_GT(second.pid, 0);
    EXPECT_TRUE(second.arguments.contains(QStringLiteral("--autorelaunched")));
    endInOrder(second.pid);
}

TEST_F(WatchdogSystemTest, Command_StartsWithNoSignalBlockedOrIgnored) {
    const Start first = start(QStringLiteral("command"));
    ASSERT_TRUE(waitUntil([&] { return QFileInfo(path(QStringLiteral("written"))).size() > 0; }));
    for (const char* set : {"SigBlk", "SigIgn"})
        EXPECT_EQ(ordinarySignals(set), 0U) << set;
    ::kill(first.pid, SIGKILL); // The sentinel ends what the program would leave to itself.
    const Start second = waitForStart(2);
    ASSERT_GT(second.pid, 0);
    endInOrder(second.pid);
}

class DeadProgramsCommandsTest : public WatchdogSystemTest,
                                 public ::testing::WithParamInterface<const char*> {};

TEST_P(DeadProgramsCommandsTest, Commands_HaveEndedBeforeItIsRelaunched) {
    const Start first = start(QString::fromLatin1(GetParam()));
    const auto size = [this](const char* name) {
        return QFileInfo(path(QString::fromLatin1(name))).size();
    };
    ASSERT_TRUE(waitUntil([&] { return size("written") > 0 && size("orphan") > 0; }));
    ::kill(first.pid, SIGKILL);
    const Start second = waitForStart(2);
    ASSERT_GT(second.pid, 0);
    const qint64 written = size("written");
    const qint64 orphan = size("orphan");
    endInOrder(second.pid);
    EXPECT_EQ(size("written"), written);
    EXPECT_EQ(size("orphan"), orphan);
}

INSTANTIATE_TEST_SUITE_P(Marked, DeadProgramsCommandsTest, ::testing::Values("command", "cleared"),
                         [](const auto& given) { return std::string(given.param); });

TEST_F(WatchdogSystemTest, FiftyRounds_LeaveNothingBehind) {
    constexpr std::size_t cRounds = 50;
    Start last = start(QStringLiteral("wait"), {QStringLiteral("clear-record")});
    for (std::size_t round = 1; round <= cRounds; ++round) {
        ::kill(last.pid, SIGKILL);
        EXPECT_EQ(endingSignal(statusOf(last.pid)), SIGKILL);
        last = waitForStart(round + 1);
        ASSERT_GT(last.pid, 0) << round;
        EXPECT_EQ(last.descriptors, 3) << round;
    }
    EXPECT_EQ(descendants().size(), 2U) << "the program and its sentinel";
    EXPECT_TRUE(settings().contains("<integer>51</integer>")) << settings().constData();
    endInOrder(last.pid);
    EXPECT_EQ(starts().size(), cRounds + 1);
}

TEST_F(WatchdogSystemTest, TheProgramItself_IsBackAfterAKillAndGoneWhenAsked) {
    const QString lines = qEnvironmentVariable("XDG_STATE_HOME") + u"/Kelvo/kelvo-mirror.log";
    const auto count = [&lines](const char* text) { return contents(lines).count(text); };
    constexpr const char* cLoaded = "Inside Kelvo_Mirror.ViewController->viewDidLoad().......\n";
    const auto loadedBefore = count(cLoaded);
    std::string program = KELVO_PROGRAM;
    std::string option = "--headless";
    const std::array<char*, 3> arguments = {program.data(), option.data(), nullptr};
    pid_t pid = -1;
    ASSERT_EQ(::posix_spawn(&pid, program.c_str(), nullptr, nullptr, arguments.data(), environ), 0);
    ASSERT_TRUE(waitUntil([&] { return count(cLoaded) == loadedBefore + 1; }));
    const auto sentinelId = livingChild(pid, "watchdog");
    ASSERT_TRUE(sentinelId);
    ::kill(pid, SIGKILL);
    EXPECT_EQ(endingSignal(statusOf(pid)), SIGKILL);
    ASSERT_TRUE(waitUntil([&] { return count(cLoaded) == loadedBefore + 2; }));
    EXPECT_EQ(count("automatically relaunched due to unexpected termination"), 1);
    ::kill(*sentinelId, SIGTERM);
    EXPECT_EQ(exitStatus(statusOf(*sentinelId)), 0) << "the sentinel has become the program";
    EXPECT_TRUE(allEnd());
    EXPECT_EQ(count(cLoaded), loadedBefore + 2);
    EXPECT_EQ(count("Caught Terminated ... terminating."), 1);
}

} // namespace
} // namespace kelvo
