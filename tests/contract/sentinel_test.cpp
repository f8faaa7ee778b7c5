// The sentinel by itself: what it takes, what it holds, how it ends.
#include "adapters/process/command_processes.h"
#include "adapters/process/command_table.h"
#include "adapters/process/posix_sentinel_launcher.h"
#include "sentinel/exit_code.h"
#include "support/descendants.h"
#include "support/failing_syscall.h"
#include "support/sanitized.h"
#include "support/wait_until.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <optional>
#include <set>
#include <string>
#include <thread>

namespace kelvo {
namespace {

using sentinel::ExitCode;

class SentinelTest : public testing::Test {
protected:
    ~SentinelTest() override { endAllDescendants("watchdog"); }

    static QByteArray procFile(pid_t pid, const char* name) {
        QFile file(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1StringView(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static qint64 field(const QByteArray& text, const char* name) {
        const auto at = text.indexOf(name);
        EXPECT_GE(at, 0) << name << " in " << text.constData();
        const QByteArray line = text.mid(at, text.indexOf('\n', at) - at);
        return line.split(':').value(1).simplified().split(' ').value(0).toLongLong();
    }
    static bool catchesTermination(pid_t pid) {
        const QByteArray status = procFile(pid, "status");
        const QByteArray mask = status.mid(status.indexOf("SigCgt:") + 7).trimmed().split('\n')[0];
        return mask.toULongLong(nullptr, 16) & (1U << (SIGTERM - 1));
    }
    /// Exit code and error output of a sentinel with these arguments.
    static std::pair<int, QByteArray> run(const QStringList& arguments,
                                          const QString& program = QStringLiteral(KELVO_SENTINEL)) {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished())
            return {-1, "did not end"};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardError()};
    }
    /// A sentinel that watches this process, as the program starts it.
    pid_t watchUs() {
        fTask = fLauncher.launch(QStringLiteral(KELVO_SENTINEL), {QString::number(::getpid())},
                                 nullptr);
        return livingChild(::getpid(), "watchdog").value_or(-1);
    }

    CommandTable fCommands;
    PosixSentinelLauncher fLauncher{fCommands.descriptor()};
    std::optional<SentinelTask> fTask;
};

TEST_F(SentinelTest, AnythingButOneProcessId_IsRefused) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{QString()}, QStringList{QStringLiteral("0")},
          QStringList{QStringLiteral("-1")}, QStringList{QStringLiteral("12x")},
          QStringList{QStringLiteral(" 12")}, QStringList{QStringLiteral("99999999999999999999")},
          QStringList{QStringLiteral("2147483648")}, QStringList{QStringLiteral("4294967297")},
          QStringList{QStringLiteral("1:")}, QStringList{QStringLiteral("1/")},
          QStringList{QStringLiteral("1"), QStringLiteral("2")}}) {
        const auto [code, errors] = run(arguments);
        EXPECT_EQ(code, static_cast<int>(ExitCode::BadArgument));
        EXPECT_EQ(errors, "watchdog: expected one argument, the id of the process to watch\n");
    }
}

TEST_F(SentinelTest, LargestNumberThereIs_IsAProcessId) {
    for (const char* const number : {"2147483647", "1999999990"}) {
        const auto [code, errors] = run({QString::fromLatin1(number)});
        EXPECT_EQ(code, static_cast<int>(ExitCode::NoSuchProcess));
        EXPECT_EQ(errors, QByteArray("watchdog: there is no process ") + number + "\n");
    }
}

TEST_F(SentinelTest, ItsOwnProcess_IsRefused) {
    const auto [code, errors] =
        run({QStringLiteral("-c"), QStringLiteral("exec '" KELVO_SENTINEL "' $$")},
            QStringLiteral("/bin/sh"));
    EXPECT_EQ(code, static_cast<int>(ExitCode::BadArgument)) << errors.constData();
}

TEST_F(SentinelTest, ProcessThatCannotBeHeld_IsSaidInTheSystemsWords) {
    QProcess sentinel;
    sentinel.setChildProcessModifier([] { failSyscall(SYS_pidfd_open, EMFILE); });
    const QString own = QString::number(::getpid());
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {own});
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), static_cast<int>(ExitCode::CannotBeWatched));
    EXPECT_EQ(
        sentinel.readAllStandardError(),
        QByteArray("watchdog: cannot watch process " + own.toLatin1() + ": Too many open files\n"));
}

TEST_F(SentinelTest, ProcessThatCannotBeRead_IsSaidInTheSystemsWords) {
    QProcess sentinel;
    sentinel.setChildProcessModifier([] { failSyscall(SYS_readlinkat, EACCES); });
    const QString own = QString::number(::getpid());
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {own});
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), static_cast<int>(ExitCode::CannotBeWatched));
    EXPECT_EQ(sentinel.readAllStandardError(),
              QByteArray("watchdog: cannot learn how process " + own.toLatin1() +
                         " was started: Permission denied\n"));
}

TEST_F(SentinelTest, CommandsThatDoNotEnd_AreSaidAndTheProgramIsStartedAllTheSame) {
    QProcess program;
    QProcess command;
    program.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    QProcessEnvironment mark;
    mark.insert(QStringLiteral("KELVO_MIRROR_PID"), QString::number(program.processId()));
    command.setProcessEnvironment(mark);
    command.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(command.waitForStarted());
    QProcess sentinel;
    // No signal reaches anybody.
    sentinel.setChildProcessModifier([] { failSyscall(SYS_pidfd_send_signal, EPERM); });
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    QElapsedTimer spent;
    spent.start();
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_GE(spent.elapsed(), 3000) << "two seconds for the request, one for the force";
    EXPECT_EQ(sentinel.exitCode(), EXIT_FAILURE) << "sleep, which does not know the option";
    EXPECT_TRUE(sentinel.readAllStandardError().startsWith(
        "watchdog: some commands of the ended program do not end\n"));
    EXPECT_FALSE(command.waitForFinished(0));
    command.kill();
    EXPECT_TRUE(command.waitForFinished());
}

TEST_F(SentinelTest, WhatIsNoTableOfCommands_IsLetGo) {
    const UniqueFd small(::memfd_create("small", MFD_CLOEXEC));
    ASSERT_EQ(::ftruncate(small.get(), 2047), 0);
    const UniqueFd table(::memfd_create("table", MFD_CLOEXEC));
    ASSERT_EQ(::ftruncate(table.get(), 2048), 0);
    const QString ours = QStringLiteral("/proc/%1/fd/%2").arg(::getpid());
    const std::pair<QString, int> given[]{
        {QStringLiteral("/dev/null"), 4}, {ours.arg(small.get()), 4}, {ours.arg(table.get()), 5}};
    for (const auto& [fourth, held] : given) {
        QProcess sentinel;
        sentinel.start(QStringLiteral("/bin/sh"),
                       {QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$1\" 4<\"$2\""),
                        QStringLiteral(KELVO_SENTINEL), QString::number(::getpid()), fourth});
        ASSERT_TRUE(sentinel.waitForStarted());
        const auto descriptors = [&] {
            return QDir(QStringLiteral("/proc/%1/fd").arg(sentinel.processId()))
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
                .size();
        };
        EXPECT_TRUE(waitUntil([&, held = held] {
            return catchesTermination(static_cast<pid_t>(sentinel.processId())) &&
                   descriptors() == held;
        })) << fourth.toStdString()
            << descriptors();
        sentinel.terminate();
        EXPECT_TRUE(sentinel.waitForFinished());
        EXPECT_EQ(sentinel.exitCode(), static_cast<int>(ExitCode::ToldToEnd));
    }
}

TEST_F(SentinelTest, ProcessThatIsGone_IsSaid) {
    QProcess gone;
    gone.start(QStringLiteral("true"), QStringList());
    ASSERT_TRUE(gone.waitForStarted());
    const QString pid = QString::number(gone.processId());
    ASSERT_TRUE(gone.waitForFinished());
    const auto [code, errors] = run({pid});
    EXPECT_EQ(code, static_cast<int>(ExitCode::NoSuchProcess));
    EXPECT_EQ(errors, QByteArray("watchdog: there is no process " + pid.toLatin1() + "\n"));
}

TEST_F(SentinelTest, ProcessThatHasEndedButIsNotReaped_IsGoneToo) {
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(0);
    siginfo_t ended{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOWAIT), 0);
    const auto [code, errors] = run({QString::number(pid)});
    EXPECT_EQ(code, static_cast<int>(ExitCode::NoSuchProcess)) << errors.constData();
    EXPECT_TRUE(errors.contains("any more")) << errors.constData();
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED), 0);
}

TEST_F(SentinelTest, ThreadOfAProcess_CannotBeWatched) {
    std::promise<pid_t> number;
    std::promise<void> end;
    std::thread thread([&] {
        number.set_value(::gettid());
        end.get_future().wait();
    });
    const QByteArray id = QByteArray::number(number.get_future().get());
    const auto [code, errors] = run({QString::fromLatin1(id)});
    end.set_value();
    thread.join();
    EXPECT_EQ(code, static_cast<int>(ExitCode::CannotBeWatched));
    EXPECT_TRUE(errors.startsWith(QByteArray("watchdog: cannot watch process " + id + ": ")))
        << errors.constData();
}

TEST_F(SentinelTest, ProcessOfAnotherUser_IsNotWatched) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root, to be somebody else";
    // The build folder may be closed to others.
    const QTemporaryDir folder(QStringLiteral("/tmp/kelvo-sentinel-XXXXXX"));
    const QString copy = folder.filePath(QStringLiteral("watchdog"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(KELVO_SENTINEL), copy));
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7755));
    const auto [code, errors] =
        run({QStringLiteral("--reuid=65534"), QStringLiteral("--clear-groups"), copy,
             QString::number(::getpid())},
            QStringLiteral("setpriv"));
    EXPECT_EQ(code, static_cast<int>(ExitCode::OfAnotherUser)) << errors.constData();
    EXPECT_TRUE(errors.contains("belongs to another user")) << errors.constData();
}

TEST_F(SentinelTest, ProgramThatIsGone_CannotBeStartedAgain) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("sleep"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/sleep"), copy));
    QProcess program;
    program.start(copy, {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    QProcess sentinel;
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(waitUntil([&] {
        return catchesTermination(static_cast<pid_t>(sentinel.processId()));
    })) << "it is not in place";
    ASSERT_TRUE(QFile::remove(copy));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), static_cast<int>(ExitCode::CannotRelaunch));
    EXPECT_EQ(sentinel.readAllStandardError(),
              QByteArray("watchdog: cannot start " + copy.toLocal8Bit() +
                         " again: No such file or directory\n"));
}

TEST_F(SentinelTest, ProgramThatWasReplaced_IsStartedAsWhatLiesThereNow) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("program"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/sleep"), copy));
    QProcess program;
    program.start(copy, {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(QFile::remove(copy));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/true"), copy));
    QProcess sentinel;
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), 0) << sentinel.readAllStandardError().constData();
}

TEST_F(SentinelTest, CommandsThatEndWhenAsked_AreNotWaitedForAnyLonger) {
    // On a busy machine once may be slow; not waiting is never as long as two seconds each time.
    bool quick = false;
    for (int round = 0; round < 5 && !quick; ++round) {
        QProcess program;
        QProcess command;
        program.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(program.waitForStarted());
        QProcessEnvironment mark;
        mark.insert(QStringLiteral("KELVO_MIRROR_PID"), QString::number(program.processId()));
        command.setProcessEnvironment(mark);
        command.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(command.waitForStarted());
        QProcess sentinel;
        sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
        ASSERT_TRUE(sentinel.waitForStarted());
        ASSERT_TRUE(waitUntil(
            [&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
        QElapsedTimer spent;
        spent.start();
        program.kill();
        ASSERT_TRUE(program.waitForFinished());
        ASSERT_TRUE(command.waitForFinished());
        ASSERT_TRUE(sentinel.waitForFinished());
        quick = spent.elapsed() < 1900;
    }
    EXPECT_TRUE(quick);
}

TEST_F(SentinelTest, CommandThatEndedAndIsNotReaped_HoldsNothingUp) {
    QProcess program;
    program.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    const pid_t command = ::fork();
    if (command == 0) {
        ::setsid();
        ::pause();
    }
    ASSERT_TRUE(waitUntil([command] { return ::getsid(command) == command; }));
    const std::uint64_t started = startOf(command);
    ::kill(command, SIGKILL);
    siginfo_t end{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(command), &end, WEXITED | WNOWAIT), 0);
    std::array<std::array<std::uint64_t, 4>, 64> rows{};
    rows[0] = {std::uint64_t(command), started, 0, 0};
    const UniqueFd table(::memfd_create("table", MFD_CLOEXEC));
    ASSERT_EQ(::write(table.get(), rows.data(), sizeof rows), ssize_t{sizeof rows});
    testing::internal::CaptureStderr();
    std::promise<int> ended;
    const auto task =
        PosixSentinelLauncher(table.get())
            .launch(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())},
                    [&ended](int exitCode) { ended.set_value(exitCode); });
    program.kill();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(ended.get_future().get(), EXIT_FAILURE) << "sleep, which does not know the option";
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find("watchdog: "), std::string::npos) << said;
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(command), &end, WEXITED), 0);
}

TEST_F(SentinelTest, RelaunchedProgram_HasItsFolderItsVariablesAndItsArgumentsWithTheMarkLast) {
    const QTemporaryDir folder;
    QProcess program;
    program.setWorkingDirectory(folder.path());
    QProcessEnvironment variables;
    variables.insert(QStringLiteral("BIG"), QString(20'000, u'x'));
    program.setProcessEnvironment(variables);
    program.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("[ ! -e begun ] || { printf '<%s>' \"${#BIG}\" \"$@\" > again; "
                                  "for fd in 0 1 2 3 4 5; do [ -e /proc/$$/fd/$fd ] && "
                                  "printf $fd; done > streams; "
                                  "tr '\\0' '\\n' </proc/$$/environ >variables; exit 7; }; "
                                  ": > begun; read line"),
                   QStringLiteral("name"), QStringLiteral("a b"), QString(),
                   QStringLiteral("--autorelaunched"), QStringLiteral("z")});
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(folder.filePath(QStringLiteral("begun"))); }));
    QProcess command; // has to be ended first
    QProcessEnvironment mark;
    mark.insert(QStringLiteral("KELVO_MIRROR_PID"), QString::number(program.processId()));
    command.setProcessEnvironment(mark);
    command.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(command.waitForStarted());
    QProcess sentinel;
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(command.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), 7) << sentinel.readAllStandardError().constData();
    QFile again(folder.filePath(QStringLiteral("again")));
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), "<20000><a b><><z><--autorelaunched>");
    QFile streams(folder.filePath(QStringLiteral("streams")));
    ASSERT_TRUE(streams.open(QIODevice::ReadOnly));
    EXPECT_EQ(streams.readAll(), "012") << "all three, and nothing of the sentinel's";
    QFile handedOn(folder.filePath(QStringLiteral("variables")));
    ASSERT_TRUE(handedOn.open(QIODevice::ReadOnly));
    EXPECT_TRUE(handedOn.readAll() == "BIG=" + QByteArray(20'000, 'x') + '\n') << "and no more";
}

TEST_F(SentinelTest, CommandsThatCarryTheMark_AreAskedToEndAndThenForced) {
    QProcess program;
    program.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    const QString pid = QString::number(program.processId());
    QProcess willing;
    QProcess stubborn;
    QProcess bystander; // of another program
    for (QProcess* process : {&willing, &stubborn, &bystander}) {
        QProcessEnvironment variables;
        variables.insert(QStringLiteral("FIRST"), QStringLiteral("1"));
        variables.insert(QStringLiteral("KELVO_MIRROR_PID"),
                         process == &bystander ? QString(pid + u'0') : pid);
        process->setProcessEnvironment(variables);
        if (process == &stubborn)
            process->setChildProcessModifier([] { ::signal(SIGTERM, SIG_IGN); });
        process->start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(process->waitForStarted());
    }
    QProcess sentinel;
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {pid});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(willing.waitForFinished());
    EXPECT_EQ(willing.exitCode(), SIGTERM);
    ASSERT_TRUE(stubborn.waitForFinished());
    EXPECT_EQ(stubborn.exitCode(), SIGKILL);
    EXPECT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), EXIT_FAILURE) << "sleep, which does not know the option";
    EXPECT_FALSE(bystander.waitForFinished(0));
    bystander.kill();
    EXPECT_TRUE(bystander.waitForFinished());
}

TEST_F(SentinelTest, Commands_AreFoundWithFewDescriptors) {
    QProcess program;
    program.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    const QString pid = QString::number(program.processId());
    QProcessEnvironment mark;
    mark.insert(QStringLiteral("KELVO_MIRROR_PID"), pid);
    std::array<QProcess, 4> commands;
    for (QProcess& command : commands) {
        command.setProcessEnvironment(mark);
        command.start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(command.waitForStarted());
    }
    QProcess sentinel;
    // The streams, the program, the folder of all processes, a file of one, and the commands.
    sentinel.setChildProcessModifier([] {
        const rlimit few{10, 10};
        ::setrlimit(RLIMIT_NOFILE, &few);
    });
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {pid});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    for (QProcess& command : commands) {
        ASSERT_TRUE(command.waitForFinished());
        EXPECT_EQ(command.exitCode(), SIGTERM);
    }
}

TEST_F(SentinelTest, TableOfCommands_EndsTheSessionsThatItMeansAndNoOther) {
    QProcess program;
    QProcess meant;
    QProcess bystander; // has got the number of a session that is gone
    for (QProcess* process : {&program, &meant, &bystander}) {
        process->setChildProcessModifier([] { ::setsid(); });
        process->start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(process->waitForStarted());
    }
    const auto id = [](const QProcess& process) { return static_cast<pid_t>(process.processId()); };
    std::array<std::array<std::uint64_t, 4>, 64> rows{};
    rows[7] = {std::uint64_t(id(meant)), startOf(id(meant)), 0, 0};
    rows[63] = {std::uint64_t(id(bystander)), startOf(id(bystander)) - 1, 0, 0};
    const UniqueFd table(::memfd_create("table", MFD_CLOEXEC));
    ASSERT_EQ(::write(table.get(), rows.data(), sizeof rows), ssize_t{sizeof rows});

    std::promise<int> ended;
    const auto task =
        PosixSentinelLauncher(table.get())
            .launch(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())},
                    [&ended](int exitCode) { ended.set_value(exitCode); });
    ASSERT_TRUE(task);
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_TRUE(meant.waitForFinished());
    // It becomes a program that does not know the option.
    EXPECT_EQ(ended.get_future().get(), EXIT_FAILURE);
    EXPECT_FALSE(bystander.waitForFinished(0));
    bystander.kill();
    EXPECT_TRUE(bystander.waitForFinished());
}

TEST_F(SentinelTest, TableOfCommands_EndsWhatWritesIntoTheirPipesAndNothingElse) {
    std::array<int, 2> output{};
    std::array<int, 2> errors{};
    std::array<int, 2> others{};
    for (auto* pipe : {&output, &errors, &others})
        ASSERT_EQ(::pipe2(pipe->data(), O_CLOEXEC), 0);
    const auto number = [](int descriptor) {
        struct stat status {};
        return ::fstat(descriptor, &status) == 0 ? std::uint64_t{status.st_ino} : 0U;
    };
    QProcess program;
    QProcess intoOutput;
    QProcess intoErrors;
    QProcess bystander;
    const std::pair<QProcess*, std::pair<int, int>> ends[]{{&program, {-1, -1}},
                                                           {&intoOutput, {output[1], -1}},
                                                           {&intoErrors, {-1, errors[1]}},
                                                           {&bystander, {others[1], others[1]}}};
    for (const auto& [process, streams] : ends) {
        process->setStandardOutputFile(QProcess::nullDevice());
        process->setStandardErrorFile(QProcess::nullDevice());
        process->setChildProcessModifier([streams = streams] {
            ::setsid();
            if (streams.first >= 0)
                ::dup2(streams.first, STDOUT_FILENO);
            if (streams.second >= 0)
                ::dup2(streams.second, STDERR_FILENO);
        });
        process->start(QStringLiteral("/bin/sleep"), {QStringLiteral("1000")});
        ASSERT_TRUE(process->waitForStarted());
    }
    // Nobody is left in the session itself.
    std::array<std::array<std::uint64_t, 4>, 64> rows{};
    rows[63] = {std::uint64_t{INT_MAX}, 1, number(output[0]), number(errors[0])};
    const UniqueFd table(::memfd_create("table", MFD_CLOEXEC));
    ASSERT_EQ(::write(table.get(), rows.data(), sizeof rows), ssize_t{sizeof rows});
    std::promise<int> ended;
    const auto task =
        PosixSentinelLauncher(table.get())
            .launch(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())},
                    [&ended](int exitCode) { ended.set_value(exitCode); });
    ASSERT_TRUE(task);
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_TRUE(intoOutput.waitForFinished());
    EXPECT_TRUE(intoErrors.waitForFinished());
    EXPECT_EQ(ended.get_future().get(), EXIT_FAILURE) << "sleep, which does not know the option";
    EXPECT_FALSE(bystander.waitForFinished(0));
    bystander.kill();
    EXPECT_TRUE(bystander.waitForFinished());
    for (const auto& pipe : {output, errors, others}) {
        ::close(pipe[0]);
        ::close(pipe[1]);
    }
}

TEST_F(SentinelTest, TableOfCommands_IsNotPassedOnToTheProgram) {
    const QTemporaryDir folder;
    QProcess program;
    program.setWorkingDirectory(folder.path());
    program.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"),
                   QStringLiteral("[ ! -e begun ] || { for fd in 3 4 5 6 7; do "
                                  "[ ! -e /proc/$$/fd/$fd ] || exit 9; done; exit 7; }; "
                                  ": > begun; read line"),
                   QStringLiteral("name")});
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(folder.filePath(QStringLiteral("begun"))); }));
    std::promise<int> ended;
    const auto task =
        fLauncher.launch(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())},
                         [&ended](int exitCode) { ended.set_value(exitCode); });
    ASSERT_TRUE(task);
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(ended.get_future().get(), 7);
}

TEST_F(SentinelTest, ProgramWhoseNameSaysDeleted_IsStartedByThatName) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("program (deleted)"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/sleep"), copy));
    QProcess program;
    program.start(copy, {QStringLiteral("1000")});
    ASSERT_TRUE(program.waitForStarted());
    QProcess sentinel;
    sentinel.start(QStringLiteral(KELVO_SENTINEL), {QString::number(program.processId())});
    ASSERT_TRUE(sentinel.waitForStarted());
    ASSERT_TRUE(
        waitUntil([&] { return catchesTermination(static_cast<pid_t>(sentinel.processId())); }));
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    ASSERT_TRUE(sentinel.waitForFinished());
    EXPECT_EQ(sentinel.exitCode(), EXIT_FAILURE) << "sleep, which does not know the option";
}

TEST_F(SentinelTest, WhileItWaits_ItSharesStreamsOnlyAndNoTerminalOrSignal) {
    const int inheritable = ::open("/dev/null", O_RDONLY); // NOLINT: shall be inherited
    sigset_t blocked;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    const auto before = ::signal(SIGUSR2, SIG_IGN);
    const pid_t sentinel = watchUs();
    ::signal(SIGUSR2, before);
    ::pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);
    ::close(inheritable);
    ASSERT_GT(sentinel, 0);

    const QDir descriptors(QStringLiteral("/proc/%1/fd").arg(sentinel));
    std::set<std::string> targets;
    int held = 0;
    for (const QString& name :
         descriptors.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)) {
        std::array<char, 256> target{};
        (void)!::readlink(descriptors.filePath(name).toLocal8Bit().constData(), target.data(),
                          target.size() - 1);
        if (name.toInt() > STDERR_FILENO) {
            targets.insert(target.data());
        }
        ++held;
    }
    EXPECT_EQ(targets, (std::set<std::string>{"/memfd:commands (deleted)", "anon_inode:[pidfd]"}));
    EXPECT_EQ(held, 5);
    EXPECT_EQ(::getsid(sentinel), sentinel);
    EXPECT_EQ(::getpgid(sentinel), sentinel);
    EXPECT_EQ(procFile(sentinel, "environ"), "");
    const QByteArray status = procFile(sentinel, "status");
    EXPECT_EQ(status.mid(status.indexOf("SigBlk:") + 8, 16), "0000000000000000");
    const quint64 ignored =
        status.mid(status.indexOf("SigIgn:") + 8, 16).toULongLong(nullptr, 16) & 0x7fffffffU;
    EXPECT_EQ(ignored, 0U);
}

TEST_F(SentinelTest, WhileItWaits_ItIsSmallAndDoesNotWakeUp) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer's memory is not the sentinel's";
    const pid_t sentinel = watchUs();
    ASSERT_GT(sentinel, 0);
    const auto wakeUps = [sentinel] {
        return field(procFile(sentinel, "status"), "\nvoluntary_ctxt_switches");
    };
    ASSERT_TRUE(waitUntil([&] {
        const QByteArray stat = procFile(sentinel, "stat");
        return stat.mid(stat.lastIndexOf(')') + 2, 1) == "S";
    }));
    const qint64 before = wakeUps();
    const QByteArray memory = procFile(sentinel, "smaps_rollup");
    EXPECT_LE(field(memory, "Private_Clean") + field(memory, "Private_Dirty"), 300);
    EXPECT_FALSE(waitUntil([&] { return wakeUps() != before; }, std::chrono::seconds(1)));
}

} // namespace
} // namespace kelvo
