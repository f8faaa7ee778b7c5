#include "adapters/process/command_capture.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/system/clean_attributes.h"
#include "adapters/system/unique_fd.h"
#include "fakes/recording_console.h"
#include "support/plain_line.h"
#include "support/sanitized.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

QString zoo(const QString& animal) {
    return QStringLiteral("'" KELVO_ZOO "' ") + animal;
}

class PosixShellRunnerTest : public testing::Test {
protected:
    CommandResult resultOf(const QString& command) { return fRunner.run({.text = command}); }
    CommandResult resultWithin(double seconds, const QString& command) {
        return fRunner.run({.text = command, .seconds = seconds});
    }
    QString run(const QString& command) { return outputWhenRunAsShellCommand(fRunner, command); }

    std::future<QString> start(const QString& command) {
        return std::async(std::launch::async, [this, command] { return run(command); });
    }

    RecordingConsole fConsole;
    PosixShellRunner fRunner{fConsole};
};

/// A fifo in the private temporary folder: a child opens it for writing to say that it is there.
class Meeting {
public:
    Meeting() { ::mkfifo(fPath.c_str(), 0600); }
    ~Meeting() { ::unlink(fPath.c_str()); }
    Meeting(const Meeting&) = delete;
    Meeting& operator=(const Meeting&) = delete;

    /// A shell command that says it, and goes on.
    QString announce() const {
        return QStringLiteral("echo here >'") + QString::fromStdString(fPath) +
               QStringLiteral("'; ");
    }

    /// Returns once a child has said it.
    void wait() const {
        const UniqueFd fd(::open(fPath.c_str(), O_RDONLY));
        std::array<char, 16> bytes{};
        EXPECT_GT(::read(fd.get(), bytes.data(), bytes.size()), 0);
    }

private:
    const std::string fPath = std::string(::getenv("TMPDIR")) + "/meeting"; // NOLINT
};

/// Of what other tests of this process have left. An emulator tells nobody of a program that could
/// not be started, so that nobody reaps what was to be it.
void reapStrangers() {
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
}

/// Whether `pid` runs, or could: a process that waits to be reaped does not.
bool lives(pid_t pid) {
    QFile status(QStringLiteral("/proc/%1/stat").arg(pid));
    if (pid <= 0 || !status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = status.readAll();
    const qsizetype state = text.lastIndexOf(')') + 2;
    return state < text.size() && text[state] != 'Z' && text[state] != 'X';
}

bool isGone(pid_t pid) {
    return waitUntil([pid] { return !lives(pid); });
}

/// A process that no command has started.
class Bystander {
public:
    Bystander() {
        std::string name = "sleep";
        std::string seconds = "600";
        const std::array<char*, 3> arguments{name.data(), seconds.data(), nullptr};
        EXPECT_EQ(::posix_spawnp(&fPid, name.c_str(), nullptr, CleanAttributes().get(),
                                 arguments.data(), environ),
                  0);
    }
    ~Bystander() {
        ::kill(fPid, SIGKILL);
        ::waitpid(fPid, nullptr, 0);
    }
    Bystander(const Bystander&) = delete;
    Bystander& operator=(const Bystander&) = delete;

    bool isLeftAlone() const { return lives(fPid); }

private:
    pid_t fPid = -1;
};

/// The time that this thread has spent working.
std::chrono::nanoseconds timeWorked() {
    timespec spent{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return std::chrono::seconds(spent.tv_sec) + std::chrono::nanoseconds(spent.tv_nsec);
}

/// How often this thread has read, from /proc too; -1 where that is not counted.
qint64 readsOfThisThread() {
    QFile file(QStringLiteral("/proc/thread-self/io"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return -1;
    const QByteArray text = file.readAll();
    const QByteArray label = "syscr: ";
    const qsizetype at = text.indexOf(label);
    return at < 0 ? -1 : text.mid(at + label.size()).split('\n').constFirst().toLongLong();
}

pid_t numberAfter(const QString& text, const QString& word) {
    const auto from = text.indexOf(word);
    return from < 0 ? -1 : text.mid(from + word.size()).section(u'\n', 0, 0).toInt();
}

TEST_F(PosixShellRunnerTest, ExitStatus_IsToldAsAShellWouldTellIt) {
    const auto statusOf = [this](const char* command) {
        return resultOf(QString::fromLatin1(command)).exitStatus;
    };
    EXPECT_EQ(statusOf("true"), 0);
    EXPECT_EQ(statusOf("exit 23"), 23);
    EXPECT_EQ(statusOf("/no/such/program"), 127);
    EXPECT_EQ(statusOf("kill -TERM $$"), 128 + SIGTERM);
    EXPECT_EQ(resultOf(QString(200000, u'x')).exitStatus, 126) << "longer than can be passed on";
}

TEST_F(PosixShellRunnerTest, ErrorOutput_IsToldApart) {
    const CommandResult result = resultOf(QStringLiteral("echo out; echo err >&2; exit 3"));
    EXPECT_EQ(result.output, QStringLiteral("out\n"));
    EXPECT_EQ(result.errors, QStringLiteral("err\n"));
    EXPECT_EQ(result.exitStatus, 3);
}

TEST_F(PosixShellRunnerTest, CommandGivenUp_HasNoExitStatus) {
    Meeting meeting;
    auto running = std::async(std::launch::async,
                              [&] { return resultOf(QString(meeting.announce() + u"sleep 60")); });
    meeting.wait();
    fRunner.endAll();
    EXPECT_FALSE(running.get().exitStatus.has_value());
    EXPECT_FALSE(resultOf(QStringLiteral("true")).exitStatus.has_value());
}

TEST_F(PosixShellRunnerTest, SilentCommand_GivesTheEmptyText) {
    EXPECT_EQ(run(zoo(QStringLiteral("silent"))), QString());
    EXPECT_TRUE(fConsole.lines().empty());
}

TEST_F(PosixShellRunnerTest, ExitStatus_IsNotReported) {
    EXPECT_EQ(run(zoo(QStringLiteral("exit 13"))), u"leaving\n");
}

TEST_F(PosixShellRunnerTest, EndedBySignal_KeepsWhatWasPrinted) {
    EXPECT_EQ(run(QStringLiteral("echo so far; kill -9 $$")), u"so far\n");
}

TEST_F(PosixShellRunnerTest, GrandchildHoldingTheOutput_IsWaitedFor) {
    const QString text = run(zoo(QStringLiteral("grandchild 200")));
    EXPECT_TRUE(text.startsWith(u"child\n")) << text.toStdString();
    EXPECT_TRUE(text.endsWith(u"grandchild\n")) << text.toStdString();
}

TEST_F(PosixShellRunnerTest, OutputClosedEarly_StillWaitsForTheEnd) {
    const QString file = qEnvironmentVariable("TMPDIR") + u"/late";
    EXPECT_EQ(run(u"echo x; exec >&-; sleep 0.3; echo done >'" + file + u"'"), u"x\n");
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(PosixShellRunnerTest, BackgroundProcessHoldingOnlyTheErrors_IsNotWaitedFor) {
    const QString text = run(QStringLiteral("sleep 60 >/dev/null & echo $!"));
    const pid_t background = text.trimmed().toInt();
    EXPECT_TRUE(lives(background)) << text.toStdString();
    ::kill(background, SIGKILL);
}

TEST_F(PosixShellRunnerTest, BrokenUtf8_BecomesReplacementCharactersAndIsNeverDropped) {
    const QString text = run(zoo(QStringLiteral("broken")));
    EXPECT_EQ(text, u"a\ufffdb\ufffd(c\ufffd\ufffdd\ufffd\ufffd\ufffde\U0001f3ac\ufffd\ufffd");
}

TEST_F(PosixShellRunnerTest, ZeroBytesAndByteOrderMark_AreKept) {
    EXPECT_EQ(run(QStringLiteral("printf '\\357\\273\\277a\\000b'")),
              QStringView(u"\ufeffa\0b", 4));
}

TEST_F(PosixShellRunnerTest, StandardInput_IsEmpty) {
    EXPECT_EQ(run(zoo(QStringLiteral("read-input"))), u"nothing to read");
}

TEST_F(PosixShellRunnerTest, Terminal_CannotBeOpened) {
    EXPECT_EQ(run(zoo(QStringLiteral("read-terminal"))), u"no terminal");
}

TEST_F(PosixShellRunnerTest, Child_LeadsItsSessionWithDefaultSignalsAndNothingOfOurs) {
    const UniqueFd leaky(::open("/dev/null", O_RDONLY)); // Without close-on-exec, on purpose.
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR1);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    const auto earlier = ::signal(SIGHUP, SIG_IGN);
    const QString text = run(zoo(QStringLiteral("report; true")));
    (void)::signal(SIGHUP, earlier);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);

    EXPECT_TRUE(text.contains(u"session shell\n")) << text.toStdString();
    EXPECT_TRUE(text.contains(u"group shell\n")) << text.toStdString();
    EXPECT_TRUE(text.contains(u"blockedSigBlk:\t0000000000000000\n")) << text.toStdString();
    // The C library always hands on the two signals it keeps for itself, 32 and 33, as ignored.
    const auto ignored =
        text.section(QStringLiteral("SigIgn:\t"), 1).section(u'\n', 0, 0).toULongLong(nullptr, 16);
    EXPECT_EQ(ignored & ~0x180000000ull, 0u) << text.toStdString();
    EXPECT_TRUE(text.contains(u"ignoredSigIgn:\t")) << text.toStdString();
    EXPECT_TRUE(text.contains(u"open 0 1 2\n")) << text.toStdString();
}

TEST_F(PosixShellRunnerTest, Environment_LeavesNothingThatPrompts) {
    constexpr std::array cNames{"SSH_ASKPASS", "GIT_ASKPASS", "SUDO_ASKPASS", "DISPLAY",
                                "SSH_ASKPASS_REQUIRE"};
    for (const char* name : cNames)
        ::setenv(name, ":77", 1);
    PosixShellRunner runner(fConsole);
    EXPECT_EQ(outputWhenRunAsShellCommand(
                  runner, QStringLiteral("env | grep -E '^(DISPLAY|.*ASKPASS.*)=' | sort")),
              u"DISPLAY=:77\nSSH_ASKPASS_REQUIRE=never\n");
    for (const char* name : cNames)
        ::unsetenv(name);
}

TEST_F(PosixShellRunnerTest, ErrorOutput_GoesToTheLogInOneLine) {
    EXPECT_EQ(run(QStringLiteral("echo out; echo wrong >&2; echo worse >&2")), u"out\n");
    EXPECT_EQ(fConsole.logged(),
              QStringList{QStringLiteral("Error output of a shell command: wrong\nworse")});
}

TEST_F(PosixShellRunnerTest, FloodOfErrors_IsDrainedAndKeepsItsEnds) {
    const CommandResult result =
        resultOf(zoo(QStringLiteral("complain 1024; echo the cause >&2; exit 4")));
    EXPECT_EQ(result.output, u"fine\n");
    EXPECT_EQ(result.exitStatus, 4);
    EXPECT_EQ(result.errors.section(u'\n', 0, 0), QString(1023, u'x'));
    EXPECT_TRUE(result.errors.endsWith(u"xxx\nthe cause\n"));
    EXPECT_TRUE(result.errors.contains(u"\n… 999434 bytes left out …\n"));
    ASSERT_EQ(fConsole.logged().size(), 1);
    const QString line = fConsole.logged().constFirst();
    EXPECT_TRUE(line.startsWith(u"Error output of a shell command: xxx"));
    EXPECT_TRUE(line.endsWith(u"xxx\nthe cause"));
    EXPECT_EQ(shortenedLine({line}), line) << "the log takes it as it is";
}

TEST_F(PosixShellRunnerTest, CommandTooLongForTheSystem_GivesTheEmptyTextAndALine) {
    EXPECT_EQ(run(u"echo " + QString(200 * 1024, u'x')), QString());
    ASSERT_EQ(fConsole.logged().size(), 1);
    EXPECT_TRUE(fConsole.logged().constFirst().startsWith(u"Cannot start a shell command: "));
}

TEST_F(PosixShellRunnerTest, CommandWithAZeroCharacter_IsNotStarted) {
    EXPECT_EQ(run(QString::fromUtf16(u"echo a\0echo b", 13)), QString());
    EXPECT_EQ(fConsole.logged().size(), 1);
}

TEST_F(PosixShellRunnerTest, NoDescriptorsLeft_GivesTheEmptyTextAndALine) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer itself needs a descriptor to look at an object's type";
#endif
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const UniqueFd highest(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    constexpr int cNeeded = 6; // to cancel it, for its input, and for two pipes
    for (int left = 0; left < cNeeded; ++left) {
        const rlimit few{static_cast<rlim_t>(highest.get() + 1 + left), before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
        const QString text = run(QStringLiteral("echo x"));
        ::setrlimit(RLIMIT_NOFILE, &before);
        EXPECT_EQ(text, QString()) << left;
    }
    EXPECT_EQ(
        fConsole.logged(),
        QStringList(cNeeded, QStringLiteral("Cannot start a shell command: Too many open files")));
    EXPECT_EQ(run(QStringLiteral("echo x")), u"x\n");
}

TEST_F(PosixShellRunnerTest, ManyRuns_LeaveNoDescriptorAndNoChildBehind) {
    const auto open = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList().size(); };
    reapStrangers();
    run(QStringLiteral("true"));
    const auto before = open();
    for (int i = 0; i < 20; ++i)
        run(QStringLiteral("echo x; echo y >&2"));
    EXPECT_EQ(open(), before);
    EXPECT_EQ(::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

/// Of this process, in bytes.
qint64 peakMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return qint64{usage.ru_maxrss} * 1024;
}

TEST_F(PosixShellRunnerTest, Flood_IsDrainedAndTakesNoMoreThanIsKept) {
    constexpr qint64 cBytes = 300ll * 1024 * 1024;
    constexpr qint64 cKept = OutputBounds().kept;
    const qint64 before = peakMemory();
    const CommandResult result = resultOf(zoo(QStringLiteral("flood 300; echo the end")));
    const qint64 after = peakMemory();
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_TRUE(result.output.startsWith(u"0123456789abcde\n0123456789abcde\n"));
    EXPECT_TRUE(result.output.endsWith(u"abcde\n0123456789abcde\nthe end\n"));
    EXPECT_EQ(result.leftOut, cBytes + 8 - cKept);
    EXPECT_LT(result.output.size(), cKept + 100);
    ASSERT_EQ(fConsole.logged().size(), 1);
    EXPECT_TRUE(fConsole.logged().constFirst().startsWith(
        u"A shell command printed 310378504 more bytes than kept: "))
        << fConsole.logged().constFirst().toStdString();
    if (cSanitized)
        GTEST_SKIP() << "a sanitizer's own memory hides the peak; the text was checked";
    EXPECT_LT(after - before, 5 * cKept);
}

TEST_F(PosixShellRunnerTest, EndlessOutputOfAShortAnswer_EndsTheCommandAndSaysSo) {
    const CommandResult result =
        fRunner.run({.text = QStringLiteral("echo shell $$; exec yes"), .bounds = cShortAnswer});
    EXPECT_EQ(result.exitStatus, 141);
    EXPECT_LT(result.output.size(), cShortAnswer.kept + 100);
    EXPECT_GT(result.leftOut, cShortAnswer.most - cShortAnswer.kept);
    const pid_t shell = numberAfter(result.output, QStringLiteral("shell "));
    ASSERT_GT(shell, 0);
    EXPECT_TRUE(isGone(shell));
    EXPECT_EQ(fConsole.logged(),
              QStringList{QStringLiteral("A shell command was ended after 1048576 bytes of output: "
                                         "echo shell $$; exec yes")});
}

TEST_F(PosixShellRunnerTest, WhatWaitsAfterTheEnd_IsReadToItsLastByte) {
    const CommandResult result =
        fRunner.run({.text = QStringLiteral("printf 1234567"), .bounds = {.kept = 2, .most = 1}});
    EXPECT_EQ(result.output, u"1\n… 5 bytes left out …\n7");
    EXPECT_EQ(result.leftOut, 5);
}

TEST_F(PosixShellRunnerTest, FullPipe_IsReadToItsLastByteAfterTheEnd) {
    constexpr int cFull = 1'048'000; // of a pipe of a mebibyte, with the first two bytes
    const QString written = qEnvironmentVariable("TMPDIR") + u"/full";
    bool whole = false;
    const CommandResult result = fRunner.run(
        {.text = QStringLiteral("printf 12; head -c %1 /dev/zero; echo >'%2'; sleep 600")
                     .arg(cFull)
                     .arg(written),
         .bounds = {.kept = 512, .most = 1},
         .received = [&](QByteArrayView) {
             if (!std::exchange(whole, true)) {
                 EXPECT_TRUE(waitUntil([&] { return QFile::exists(written); }));
             }
         }});
    EXPECT_EQ(result.leftOut, cFull + 2 - 512);
    QFile::remove(written);
}

TEST_F(PosixShellRunnerTest, Shell_GoesByItsUsualName) {
    EXPECT_EQ(run(QStringLiteral("echo $0")), u"sh\n");
}

// -- bounded

constexpr double cShortly = 0.3;

TEST_F(PosixShellRunnerTest, BoundReached_EndsGrandchildrenAndSaysSoOnce) {
    reapStrangers();
    const CommandResult result = resultWithin(
        cShortly, QStringLiteral("set -m; sleep 600 & echo held by $!; echo wrong >&2; sleep 601"));
    EXPECT_EQ(result.exitStatus, 124);
    EXPECT_TRUE(result.errors.endsWith(u"wrong\n"));
    const pid_t grandchild = numberAfter(result.output, QStringLiteral("held by "));
    ASSERT_GT(grandchild, 0);
    EXPECT_TRUE(isGone(grandchild));
    ASSERT_EQ(fConsole.logged().size(), 2);
    EXPECT_EQ(fConsole.logged().constFirst(),
              u"A shell command was cut off after 0.3 s: set -m; sleep 600 & echo held by $!; echo "
              u"wrong >&2; sleep 601");
    EXPECT_EQ(::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG), -1) << "nothing is left to reap";
}

TEST_F(PosixShellRunnerTest, BoundOfNothing_CutsAtOnce) {
    EXPECT_EQ(resultWithin(0, QStringLiteral("sleep 600; echo never")).exitStatus, 124);
    EXPECT_EQ(outputWithin(fRunner, -1, QStringLiteral("sleep 600; echo never")), QString());
    for (const double seconds : {0.0, -1.0}) {
        const auto deadline = deadlineAfter(seconds);
        EXPECT_LE(deadline, std::chrono::steady_clock::now());
    }
    EXPECT_GT(deadlineAfter(1e300), std::chrono::steady_clock::now() + 24h);
}

TEST_F(PosixShellRunnerTest, LongCommand_IsSaidByItsFirstThreeHundredCharacters) {
    const QString text = u"sleep 600; : " + QString(400, u'x');
    EXPECT_EQ(resultWithin(0, text).exitStatus, 124);
    EXPECT_EQ(fConsole.logged(),
              QStringList{QString(u"A shell command was cut off after 0 s: " + text.first(300))});
}

TEST_F(PosixShellRunnerTest, StandardStreamsThatAreClosedHere_AreWholeInTheChild) {
    std::array<int, 3> kept{};
    for (int stream = 0; stream < 3; ++stream) {
        kept[static_cast<std::size_t>(stream)] = ::fcntl(stream, F_DUPFD_CLOEXEC, 3);
        ::close(stream);
    }
    const CommandResult result =
        fRunner.run({.text = QStringLiteral("cat; echo err >&2"), .input = QByteArray("in")});
    for (int stream = 0; stream < 3; ++stream) {
        ::dup2(kept[static_cast<std::size_t>(stream)], stream);
        ::close(kept[static_cast<std::size_t>(stream)]);
    }
    EXPECT_EQ(result.output, u"in");
    EXPECT_EQ(result.errors, u"err\n");
}

TEST_F(PosixShellRunnerTest, SingleByte_IsTakenAndReceived) {
    QByteArray received;
    const CommandResult result =
        fRunner.run({.text = QStringLiteral("printf x; printf y >&2"),
                     .received = [&](QByteArrayView bytes) { received += bytes; }});
    EXPECT_EQ(result.output, u"x");
    EXPECT_EQ(result.errors, u"y");
    EXPECT_EQ(received, "x");
}

TEST_F(PosixShellRunnerTest, ManyLines_AreReadTogether) {
    using Clock = std::chrono::steady_clock;
    int pieces = 0;
    QByteArray received;
    const auto begin = Clock::now();
    // A line, then some work, so that each finds a reader who waits.
    const CommandResult result = fRunner.run(
        {.text = QStringLiteral("i=0; while [ $i -lt 1000 ]; do echo $i; i=$((i+1)); j=0; "
                                "while [ $j -lt 100 ]; do j=$((j+1)); done; done"),
         .received = [&](QByteArrayView bytes) {
             ++pieces;
             received += bytes;
         }});
    // Less than 64 KiB in all: between two reads 100 ms go by.
    EXPECT_LE(pieces, (Clock::now() - begin) / 100ms + 3);
    EXPECT_EQ(received.count('\n'), 1000);
    EXPECT_TRUE(result.output.endsWith(u"\n999\n"));
}

TEST_F(PosixShellRunnerTest, FirstLine_IsReceivedWhileTheCommandRuns) {
    const QString heard = qEnvironmentVariable("TMPDIR") + u"/heard";
    const CommandResult result =
        fRunner.run({.text = QString(u"echo begin; until [ -e '" + heard + u"' ]; do :; done"),
                     .seconds = 60,
                     .received = [&](QByteArrayView) {
                         QFile file(heard);
                         EXPECT_TRUE(file.open(QFile::WriteOnly));
                     }});
    EXPECT_EQ(result.exitStatus, 0);
    QFile::remove(heard);
}

TEST_F(PosixShellRunnerTest, BoundReached_ForcesWhatIgnoresTheRequest) {
    const CommandResult result = resultWithin(
        cShortly, QString(u"trap '' TERM; echo shell $$; exec " + zoo(QStringLiteral("stubborn"))));
    EXPECT_EQ(result.exitStatus, 124);
    const pid_t stubborn = numberAfter(result.output, QStringLiteral("shell "));
    ASSERT_GT(stubborn, 0);
    EXPECT_TRUE(isGone(stubborn));
}

TEST_F(PosixShellRunnerTest, BoundReached_EndsWhatIsStopped) {
    const CommandResult result =
        resultWithin(cShortly, QStringLiteral("echo shell $$; kill -STOP $$"));
    EXPECT_EQ(result.exitStatus, 124);
    EXPECT_TRUE(isGone(numberAfter(result.output, QStringLiteral("shell "))));
}

TEST_F(PosixShellRunnerTest, BoundReachedWhileOnlyTheOutputIsHeld_KeepsTheShellsOwnStatus) {
    const CommandResult result =
        resultWithin(cShortly, QString(zoo(QStringLiteral("grandchild 60000 away; exit 7"))));
    EXPECT_EQ(result.exitStatus, 7);
    const pid_t away = numberAfter(result.output, QStringLiteral("held by "));
    EXPECT_TRUE(lives(away)) << "it left the session: it is not ended, and not waited for";
    ::kill(away, SIGKILL);
}

TEST_F(PosixShellRunnerTest, BoundReached_KeepsAllThatWaitsToBeRead) {
    const QString written = qEnvironmentVariable("TMPDIR") + u"/written";
    bool whole = false;
    const CommandResult result = fRunner.run(
        {.text = QString(u"echo begin; yes | head -c 600000; yes | head -c 20000 >&2; echo >'" +
                         written + u"'; sleep 600"),
         .seconds = cShortly,
         .received = [&](QByteArrayView) {
             if (!std::exchange(whole, true)) {
                 EXPECT_TRUE(waitUntil([&] { return QFile::exists(written); }));
                 std::this_thread::sleep_for(std::chrono::duration<double>(cShortly));
             }
         }});
    EXPECT_EQ(result.exitStatus, 124);
    EXPECT_EQ(result.output.size(), 600'006);
    EXPECT_EQ(result.errors.size(), 20'000);
}

TEST_F(PosixShellRunnerTest, CommandThatTakesItsTime_CostsNone) {
    for (const char* text : {"sleep 1", "exec >&-; sleep 1", "exec 2>&-; sleep 1",
                             "exec >&- 2>&-; sleep 1", "sleep 1 & true"}) {
        const auto before = timeWorked();
        EXPECT_EQ(resultWithin(60, QString::fromLatin1(text)).exitStatus, 0) << text;
        EXPECT_LT(timeWorked() - before, 100ms) << text;
    }
    const auto before = timeWorked();
    EXPECT_EQ(resultOf(QStringLiteral("sleep 1")).exitStatus, 0);
    EXPECT_LT(timeWorked() - before, 100ms) << "without a bound";
}

TEST_F(PosixShellRunnerTest, Cancel_AsksTheWholeSessionToEnd) {
    Meeting meeting;
    std::promise<CommandId> id;
    auto running = std::async(std::launch::async, [&] {
        return fRunner.run(
            {.text = QString(u"trap 'echo asked; exit' TERM; sleep 600 & echo child $!; " +
                             meeting.announce() + u"wait"),
             .started = [&](CommandId started) { id.set_value(started); }});
    });
    meeting.wait();
    fRunner.cancel(id.get_future().get());
    const CommandResult result = running.get();
    EXPECT_EQ(result.exitStatus, std::nullopt);
    const pid_t child = numberAfter(result.output, QStringLiteral("child "));
    ASSERT_GT(child, 0) << "what was printed before is kept";
    EXPECT_TRUE(result.output.endsWith(u"\nasked\n")) << result.output.toStdString();
    EXPECT_TRUE(isGone(child));
}

TEST_F(PosixShellRunnerTest, Cancel_ForcesWhatIgnoresTheRequestAndLeavesOthersAlone) {
    Meeting meeting;
    std::promise<CommandId> id;
    auto other = start(QStringLiteral("sleep 3; echo done"));
    auto running = std::async(std::launch::async, [&] {
        return fRunner.run(
            {.text = QString(u"trap '' TERM; " + meeting.announce() + u"while :; do sleep 1; done"),
             .started = [&](CommandId started) { id.set_value(started); }});
    });
    meeting.wait();
    const auto began = std::chrono::steady_clock::now();
    fRunner.cancel(id.get_future().get());
    EXPECT_EQ(running.wait_for(0s), std::future_status::timeout) << "it returns at once";
    EXPECT_EQ(running.get().exitStatus, std::nullopt);
    EXPECT_GE(std::chrono::steady_clock::now() - began, 1900ms);
    EXPECT_EQ(other.get(), u"done\n");
}

TEST_F(PosixShellRunnerTest, Started_TellsTheShellsOwnNumber) {
    CommandId id = 0;
    const CommandResult result = fRunner.run(
        {.text = QStringLiteral("echo $$"), .started = [&](CommandId told) { id = told; }});
    EXPECT_EQ(result.output, QString(QString::number(id) + u'\n'));
    bool told = false;
    (void)fRunner.run(
        {.text = QString(200000, u'x'), .started = [&told](CommandId) { told = true; }});
    EXPECT_FALSE(told) << "it could not be started";
}

TEST_F(PosixShellRunnerTest, FirstCommandThatHasStarted_IsToldOnceWhileItRuns) {
    int told = 0;
    Meeting meeting;
    fRunner.whenTheFirstRuns([&] {
        if (++told == 1)
            meeting.wait(); // It is there, and waits.
    });
    EXPECT_EQ(fRunner.run({.text = QString(meeting.announce() + u"echo done")}).output, u"done\n");
    EXPECT_EQ(told, 1);
    (void)fRunner.run({.text = QStringLiteral(":")});
    EXPECT_EQ(told, 1);
}

TEST_F(PosixShellRunnerTest, Input_ArrivesByteForByte) {
    const QByteArray paths("/a\0/b c\n\0/\xff\xfe\0", 13);
    EXPECT_EQ(fRunner.run({.text = QStringLiteral("od -An -v -tx1 | tr -d ' \\n'"), .input = paths})
                  .output,
              QString::fromLatin1(paths.toHex()));
}

TEST_F(PosixShellRunnerTest, InputNobodyReads_HoldsNobodyUp) {
    const QByteArray much(qsizetype{8} << 20, 'x');
    EXPECT_EQ(fRunner.run({.text = QStringLiteral("exit 3"), .input = much}).exitStatus, 3);
    EXPECT_EQ(
        fRunner
            .run({.text = QStringLiteral("head -c 2; exec <&-; sleep 0.1; exit 4"), .input = much})
            .exitStatus,
        4);
}

TEST_F(PosixShellRunnerTest, Variables_StandInTheEnvironmentOfTheirCommandAlone) {
    const QString print = QStringLiteral("env | grep -E '^(ARRIVALS|TMPDIR)=' | sort");
    EXPECT_EQ(
        fRunner.run({.text = print, .variables = {{"ARRIVALS", "7"}, {"TMPDIR", "/x y"}}}).output,
        u"ARRIVALS=7\nTMPDIR=/x y\n");
    EXPECT_FALSE(run(print).contains(u"ARRIVALS"));
}

TEST_F(PosixShellRunnerTest, BoundReached_LeavesOtherCommandsAlone) {
    Meeting meeting;
    auto other = start(meeting.announce() + u"sleep 1; echo whole");
    meeting.wait();
    EXPECT_EQ(resultWithin(cShortly, QStringLiteral("sleep 600")).exitStatus, 124);
    EXPECT_EQ(other.get(), u"whole\n");
}

TEST_F(PosixShellRunnerTest, EndlessFlood_DoesNotOutrunItsBound) {
    const CommandResult result =
        resultWithin(cShortly, QStringLiteral("while :; do echo more; done"));
    EXPECT_EQ(result.exitStatus, 124);
    EXPECT_TRUE(result.output.startsWith(u"more\nmore\n"));
}

TEST_F(PosixShellRunnerTest, EndAllWhileABoundRuns_GivesNoExitStatus) {
    Meeting meeting;
    auto running = std::async(std::launch::async, [&] {
        return resultWithin(60, QString(u"echo so far; " + meeting.announce() + u"sleep 60"));
    });
    meeting.wait();
    fRunner.endAll();
    const CommandResult result = running.get();
    EXPECT_FALSE(result.exitStatus.has_value());
    EXPECT_EQ(result.output, u"so far\n");
}

TEST_F(PosixShellRunnerTest, EndAllAmidManyCuts_LeavesNoCallerBehind) {
    std::vector<std::future<CommandResult>> results;
    for (int i = 0; i < 16; ++i) {
        results.push_back(std::async(std::launch::async, [this, i] {
            return resultWithin(0.02 * i, QStringLiteral("trap '' TERM; sleep 600; sleep 600"));
        }));
    }
    std::this_thread::sleep_for(150ms);
    fRunner.endAll();
    for (auto& result : results) {
        const auto status = result.get().exitStatus;
        EXPECT_TRUE(!status || *status == 124) << *status;
    }
}

TEST_F(PosixShellRunnerTest, BoundedRunsInTime_LeaveNothingBehind) {
    const auto open = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList().size(); };
    resultWithin(60, QStringLiteral("true"));
    const auto before = open();
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(resultWithin(60, QStringLiteral("echo x; exit 5")).exitStatus, 5);
    EXPECT_EQ(open(), before);
    EXPECT_TRUE(fConsole.lines().empty());
}

TEST_F(PosixShellRunnerTest, EndAll_ReturnsWhatWasCapturedAndStartsNothingAfter) {
    Meeting meeting;
    auto text = start(u"echo so far; " + meeting.announce() + u"sleep 60; echo never");
    meeting.wait();
    fRunner.endAll();
    EXPECT_EQ(text.get(), u"so far\n");
    EXPECT_EQ(run(QStringLiteral("echo x")), QString());
    EXPECT_TRUE(fConsole.lines().empty());
}

TEST_F(PosixShellRunnerTest, EndAll_ForcesWhatIgnoresTheRequest) {
    Meeting meeting;
    auto text = start(u"trap '' TERM; echo shell $$; " + meeting.announce() + u"exec " +
                      zoo(QStringLiteral("stubborn")));
    meeting.wait();
    fRunner.endAll();
    const pid_t stubborn = numberAfter(text.get(), QStringLiteral("shell "));
    ASSERT_GT(stubborn, 0);
    EXPECT_TRUE(isGone(stubborn));
}

TEST_F(PosixShellRunnerTest, EndAll_ReachesOtherGroupsOfTheSession) {
    Meeting meeting;
    auto text = start(u"set -m; sleep 60 >/dev/null 2>&1 & echo held by $!; " + meeting.announce() +
                      u"wait");
    meeting.wait();
    fRunner.endAll();
    const pid_t other = numberAfter(text.get(), QStringLiteral("held by "));
    ASSERT_GT(other, 0);
    EXPECT_TRUE(isGone(other));
}

TEST_F(PosixShellRunnerTest, EndAll_ReachesAProcessThatLeftTheSessionWithoutItsVariables) {
    Meeting meeting;
    auto text = start(u"env -i setsid sh -c \"echo held by \\$\\$; " + meeting.announce() +
                      u"exec sleep 60\" & wait");
    meeting.wait();
    fRunner.endAll();
    const pid_t away = numberAfter(text.get(), QStringLiteral("held by "));
    ASSERT_GT(away, 0);
    EXPECT_TRUE(isGone(away));
}

TEST_F(PosixShellRunnerTest, CommandThatMustLeaveNothing_EndsWhatStaysInItsSession) {
    const QString command = QStringLiteral("set -m; sleep 60 >/dev/null 2>&1 & "
                                           "echo left $!; exit 3");
    const CommandResult plain = resultOf(command);
    const pid_t stays = numberAfter(plain.output, QStringLiteral("left "));
    ASSERT_GT(stays, 0);
    EXPECT_TRUE(lives(stays));
    ::kill(stays, SIGKILL);

    const CommandResult result = fRunner.run({.text = command, .leavesNothing = true});
    EXPECT_EQ(result.exitStatus, 3);
    const pid_t left = numberAfter(result.output, QStringLiteral("left "));
    ASSERT_GT(left, 0);
    EXPECT_FALSE(lives(left));
    EXPECT_EQ(fConsole.logged().count(QStringLiteral(
                  "A shell command has left 1 of its processes running; they are ended.")),
              1);
}

TEST_F(PosixShellRunnerTest, CommandThatMustLeaveNothing_KeepsWhatLeftTheSession) {
    const CommandResult result =
        fRunner.run({.text = QStringLiteral("setsid sh -c 'echo away $$; exec sleep 60 >/dev/null "
                                            "2>&1' &"),
                     .leavesNothing = true});
    const pid_t away = numberAfter(result.output, QStringLiteral("away "));
    ASSERT_GT(away, 0);
    EXPECT_TRUE(lives(away)) << "the shared connection that ssh keeps is such a one";
    EXPECT_TRUE(fConsole.lines().empty());
}

TEST_F(PosixShellRunnerTest, EndAll_EndsWhatLeftTheSessionAndNobodyElse) {
    const Bystander bystander;
    Meeting meeting;
    auto text =
        start(zoo(QStringLiteral("grandchild 60000 away; ")) + meeting.announce() + u"sleep 60");
    meeting.wait();
    const auto began = std::chrono::steady_clock::now();
    fRunner.endAll();
    const pid_t away = numberAfter(text.get(), QStringLiteral("held by "));
    ASSERT_GT(away, 0);
    EXPECT_TRUE(isGone(away)) << "it comes of a command of ours";
    EXPECT_LT(std::chrono::steady_clock::now() - began, 45s) << "it did not end by itself";
    EXPECT_TRUE(bystander.isLeftAlone());
}

/// What is left becomes this process's for as long as a test runs.
class AdoptingShellRunnerTest : public PosixShellRunnerTest {
protected:
    void SetUp() override { fRunner.adoptWhatIsLeft(); }
    void TearDown() override { ::prctl(PR_SET_CHILD_SUBREAPER, 0, 0, 0, 0); }
};

TEST_F(AdoptingShellRunnerTest, NothingIsLeft_NoOtherProcessIsLookedAt) {
    EXPECT_EQ(run(QStringLiteral("echo x")), u"x\n");
    const qint64 first = readsOfThisThread();
    if (first < 0)
        GTEST_SKIP() << "this system does not count reads";
    const qint64 before = readsOfThisThread();
    fRunner.endAll();
    EXPECT_EQ(readsOfThisThread() - before, before - first) << "no more than counting costs";
}

TEST_F(AdoptingShellRunnerTest, WhatLeftTheSessionAndItsParent_IsEnded) {
    Meeting meeting;
    const QString text = run(u"(setsid sh -c \"echo held by \\$\\$; exec >&- 2>&-; " +
                             meeting.announce() + u"exec sleep 600\" &)");
    const pid_t away = numberAfter(text, QStringLiteral("held by "));
    ASSERT_GT(away, 0);
    meeting.wait();
    EXPECT_TRUE(lives(away));
    fRunner.endAll();
    EXPECT_TRUE(isGone(away));
}

TEST_F(PosixShellRunnerTest, EndAll_Twice_DoesNothing) {
    fRunner.endAll();
    fRunner.endAll();
    EXPECT_EQ(run(QStringLiteral("echo x")), QString());
}

TEST_F(PosixShellRunnerTest, EndAll_AmidStartsOnManyThreads_LeavesNoCallerBehind) {
    std::vector<std::future<QString>> texts;
    for (int i = 0; i < 16; ++i)
        texts.push_back(start(QStringLiteral("sleep 60")));
    fRunner.endAll();
    for (auto& text : texts)
        EXPECT_EQ(text.get(), QString());
}

TEST_F(PosixShellRunnerTest, Destruction_EndsWhatRuns) {
    Meeting meeting;
    auto runner = std::make_unique<PosixShellRunner>(fConsole);
    auto text = std::async(std::launch::async, [&runner = *runner, &meeting] {
        return outputWhenRunAsShellCommand(runner, u"echo $$; " + meeting.announce() + u"sleep 60");
    });
    meeting.wait();
    runner.reset();
    const pid_t shell = text.get().trimmed().toInt();
    ASSERT_GT(shell, 0);
    EXPECT_TRUE(isGone(shell));
}

} // namespace
} // namespace kelvo
