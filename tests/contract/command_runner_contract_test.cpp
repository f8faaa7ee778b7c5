#include "adapters/process/posix_shell_runner.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

/// A command, and what it prints: the script of the fake, the expectation for both.
struct Known {
    QString command;
    QString output;
};

/// A command that would never end, and what it prints before.
const Known cEndless{QStringLiteral("echo so far; sleep 600 & wait; echo never"),
                     QStringLiteral("so far\n")};
constexpr double cPatience = 0.3;
/// More than any command here takes.
constexpr double cAmple = 60;

struct RealShell {
    explicit RealShell(const std::vector<Known>&) : fRunner(fConsole) {}
    CommandRunner& runner() { return fRunner; }

    RecordingConsole fConsole;
    PosixShellRunner fRunner;
};

struct FakeShell {
    explicit FakeShell(const std::vector<Known>& script) {
        for (const Known& known : script)
            fRunner.answerTo(known.command, known.output);
        fRunner.neverEnds(cEndless.command, cEndless.output);
    }
    CommandRunner& runner() { return fRunner; }

    ScriptedShell fRunner;
};

template <typename Shell>
class CommandRunnerContract : public testing::Test {
protected:
    const std::vector<Known> fScript = {
        {QStringLiteral("printf ' \\n a b\\t\\n\\n'"), QStringLiteral(" \n a b\t\n\n")},
        {QStringLiteral("printf '\\377x'"), QStringLiteral("\ufffdx")},
        {QStringLiteral("echo '$HOME' | tr a-z A-Z; exit 7"), QStringLiteral("$HOME\n")},
        {QStringLiteral("exit 0"), QString()},
        {QStringLiteral("no-such-program-anywhere"), QString()},
        {QStringLiteral("seq 100000 105000"), numberedLines()},
    };

    static QString numberedLines() {
        QString lines;
        for (int number = 100'000; number <= 105'000; ++number)
            lines += QString::number(number) + u'\n';
        return lines;
    }
    Shell fShell{fScript};
};

using Shells = testing::Types<FakeShell, RealShell>;
TYPED_TEST_SUITE(CommandRunnerContract, Shells);

TYPED_TEST(CommandRunnerContract, Output_ComesUntrimmedWhateverTheExitStatus) {
    for (const Known& known : this->fScript)
        EXPECT_EQ(outputWhenRunAsShellCommand(this->fShell.runner(), known.command), known.output)
            << known.command.toStdString();
}

TYPED_TEST(CommandRunnerContract, CommandThatEndsInTime_NoticesNoBound) {
    for (const Known& known : this->fScript)
        EXPECT_EQ(outputWithin(this->fShell.runner(), cAmple, known.command), known.output)
            << known.command.toStdString();
}

TYPED_TEST(CommandRunnerContract, CommandThatNeverEnds_GivesWhatItPrintedWithinItsBound) {
    const auto began = std::chrono::steady_clock::now();
    EXPECT_EQ(outputWithin(this->fShell.runner(), cPatience, cEndless.command), cEndless.output);
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(20));
}

TYPED_TEST(CommandRunnerContract, EmptyCommand_GivesTheEmptyText) {
    EXPECT_TRUE(outputWhenRunAsShellCommand(this->fShell.runner(), QString()).isEmpty());
}

TYPED_TEST(CommandRunnerContract, Receiver_GetsTheBytesOnTheCallersThreadBeforeTheEnd) {
    const Known& known = this->fScript.front();
    const auto caller = std::this_thread::get_id();
    QByteArray received;
    bool ended = false;
    const CommandResult result =
        this->fShell.runner().run({.text = known.command, .received = [&](QByteArrayView bytes) {
                                       EXPECT_EQ(std::this_thread::get_id(), caller);
                                       EXPECT_FALSE(ended);
                                       received.append(bytes);
                                   }});
    ended = true;
    EXPECT_EQ(received, known.output.toUtf8());
    EXPECT_EQ(result.output, known.output);
    EXPECT_EQ(result.exitStatus, 0);
}

TYPED_TEST(CommandRunnerContract, MoreThanIsKept_LosesItsMiddleForAllButTheReceiver) {
    const Known& known = this->fScript.back();
    QByteArray received;
    const CommandResult result = this->fShell.runner().run(
        {.text = known.command, .bounds = {.kept = 1000}, .received = [&](QByteArrayView bytes) {
             received.append(bytes);
         }});
    const qint64 leftOut = known.output.size() - 1000;
    EXPECT_EQ(result.output, QString(known.output.first(500) + u"\n… " + QString::number(leftOut) +
                                     u" bytes left out …\n" + known.output.last(500)));
    EXPECT_EQ(result.leftOut, leftOut);
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(received, known.output.toUtf8());
}

TYPED_TEST(CommandRunnerContract, AsMuchAsIsKept_StaysWhole) {
    const Known& known = this->fScript.back();
    const CommandResult result = this->fShell.runner().run(
        {.text = known.command,
         .bounds = {.kept = known.output.size(), .most = known.output.size()}});
    EXPECT_EQ(result.output, known.output);
    EXPECT_EQ(result.leftOut, 0);
    EXPECT_EQ(result.exitStatus, 0);
}

TYPED_TEST(CommandRunnerContract, MoreThanACommandMayPrint_EndsItAsAClosedPipeWould) {
    const Known& known = this->fScript.back();
    const CommandResult result = this->fShell.runner().run(
        {.text = known.command, .bounds = {.kept = 1000, .most = known.output.size() - 1}});
    EXPECT_EQ(result.exitStatus, 141);
    EXPECT_TRUE(result.output.startsWith(known.output.first(500)));
    EXPECT_GT(result.leftOut, 0);
}

TYPED_TEST(CommandRunnerContract, Result_TellsThatTheTimeWasUp) {
    const CommandResult result =
        this->fShell.runner().run({.text = cEndless.command, .seconds = cPatience});
    EXPECT_EQ(result.exitStatus, 124);
    EXPECT_EQ(result.output, cEndless.output);
}

TYPED_TEST(CommandRunnerContract, Started_IsToldOnceOnTheCallersThreadBeforeAnythingIsReceived) {
    const auto caller = std::this_thread::get_id();
    std::vector<CommandId> told;
    (void)this->fShell.runner().run({.text = this->fScript.front().command,
                                     .received = [&](auto) { EXPECT_EQ(told.size(), 1U); },
                                     .started =
                                         [&](CommandId id) {
                                             EXPECT_EQ(std::this_thread::get_id(), caller);
                                             told.push_back(id);
                                         }});
    ASSERT_EQ(told.size(), 1U);
    EXPECT_GT(told.front(), 0);
}

TYPED_TEST(CommandRunnerContract, CancelledCommand_EndsWithoutAnExitStatus) {
    CommandRunner& runner = this->fShell.runner();
    const auto began = std::chrono::steady_clock::now();
    const CommandResult result = runner.run(
        {.text = cEndless.command, .started = [&runner](CommandId id) { runner.cancel(id); }});
    EXPECT_EQ(result.exitStatus, std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(20));
}

TYPED_TEST(CommandRunnerContract, CancelOfACommandThatHasEnded_TouchesNobody) {
    CommandRunner& runner = this->fShell.runner();
    CommandId ended = 0;
    const Known& known = this->fScript.front();
    (void)runner.run({.text = known.command, .started = [&](CommandId id) { ended = id; }});
    runner.cancel(ended);
    const CommandResult next =
        runner.run({.text = known.command, .started = [&](CommandId) { runner.cancel(ended); }});
    EXPECT_EQ(next.exitStatus, 0);
    EXPECT_EQ(next.output, known.output);
}

TYPED_TEST(CommandRunnerContract, SeveralThreads_EachGetsItsOwnOutput) {
    std::vector<std::thread> threads;
    std::vector<int> right(8, 0);
    for (std::size_t i = 0; i < right.size(); ++i) {
        threads.emplace_back([&, i] {
            const Known& known = this->fScript[i % this->fScript.size()];
            for (int round = 0; round < 5; ++round)
                right[i] += outputWhenRunAsShellCommand(this->fShell.runner(), known.command) ==
                            known.output;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const int count : right)
        EXPECT_EQ(count, 5);
}

} // namespace
} // namespace kelvo
