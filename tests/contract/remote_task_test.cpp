// Tasks of the remote side on real queues and a real shell: the main thread stays free.
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
#include "fakes/recording_console.h"
#include "remote/remote_task.h"
#include "support/wait_in_loop.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <signal.h>

namespace kelvo {
namespace {

class RemoteTaskTest : public ::testing::Test {
protected:
    ~RemoteTaskTest() override {
        mainQueue.stop();
        commands.endAll();
        bgQueue.stopAndWait();
    }

    /// A command that tells its number and hangs.
    QString hanging() const { return u"echo $$ >'" + begun + u"'; exec sleep 1000"; }
    pid_t number() const {
        QFile file(begun);
        return file.open(QFile::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
    }
    bool hasBegun() {
        return waitInLoop([this] { return number() > 0; });
    }

    QTemporaryDir folder;
    QString begun = folder.filePath(QStringLiteral("begun"));
    RecordingConsole console;
    QtMainQueue mainQueue;
    PosixShellRunner commands{console};
    ThreadPoolQueue bgQueue;
    std::vector<RemoteTaskKind> shown;
    RemoteTasks tasks{{.mainQueue = mainQueue,
                       .bgQueue = bgQueue,
                       .shell = commands,
                       .show = [this](RemoteTaskKind kind) { shown.push_back(kind); }}};
};

TEST_F(RemoteTaskTest, CommandThatHangs_HoldsNobodyUpAndIsCancelled) {
    bool answered = false;
    tasks.begin(RemoteTaskKind::OpeningFolder)->ask(900, hanging(), [&](const QString&) {
        answered = true;
    });
    ASSERT_TRUE(hasBegun());
    bool turned = false;
    mainQueue.async([&] { turned = true; });
    EXPECT_TRUE(waitInLoop([&] { return turned; })) << "the main thread goes on";
    EXPECT_EQ(shown, std::vector{RemoteTaskKind::OpeningFolder});
    const pid_t command = number();
    tasks.cancel();
    EXPECT_TRUE(waitInLoop([&] { return shown.back() == RemoteTaskKind::None; }));
    EXPECT_NE(::kill(command, 0), 0);
    EXPECT_FALSE(answered);
    EXPECT_NE(tasks.begin(RemoteTaskKind::MakingKey), nullptr) << "there is room for the next";
}

/// A command is being started, and not started yet, when a person cancels.
class SlowStart final : public CommandRunner {
public:
    CommandResult run(const Command& command) override {
        whileStarting();
        command.started(7);
        return {QString(), {}, {}};
    }
    void cancel(CommandId id) override { cancelled.push_back(id); }
    std::optional<FileBeingWritten> fileBeingWritten(CommandId) const override { return {}; }

    std::function<void()> whileStarting;
    std::vector<CommandId> cancelled;
};

TEST_F(RemoteTaskTest, CommandThatIsBeingStarted_IsCancelledOnceItHasANumber) {
    SlowStart starting;
    RemoteTasks others{
        {.mainQueue = mainQueue, .bgQueue = bgQueue, .shell = starting, .show = [](RemoteTaskKind) {
         }}};
    const RemoteTaskRef task = others.begin(RemoteTaskKind::MakingKey);
    starting.whileStarting = [&] {
        others.cancel();
        EXPECT_TRUE(starting.cancelled.empty()) << "there is nothing to cancel yet";
    };
    std::vector<CommandId> toldOf;
    (void)task->run(
        {.text = QStringLiteral("make"), .started = [&](CommandId id) { toldOf.push_back(id); }});
    EXPECT_EQ(starting.cancelled, std::vector<CommandId>{7});
    EXPECT_EQ(toldOf, std::vector<CommandId>{7});
    EXPECT_TRUE(task->isCancelled());
}

TEST_F(RemoteTaskTest, ProgramThatEnds_WaitsForNoCommandAndBeginsNoOther) {
    bool wentOn = false;
    bool wasCancelled = false;
    tasks.begin(RemoteTaskKind::SettingUpKey)
        ->inBackground(
            [&](RemoteTask& task) {
                (void)task.run({.text = hanging()});
                wasCancelled = task.isCancelled();
                wentOn = !task.run({.text = QStringLiteral("echo on")}).output.isEmpty();
            },
            [] { ADD_FAILURE() << "nothing follows"; });
    ASSERT_TRUE(hasBegun());
    const pid_t command = number();
    mainQueue.stop();
    commands.endAll();
    bgQueue.stopAndWait();
    EXPECT_NE(::kill(command, 0), 0);
    EXPECT_TRUE(wasCancelled);
    EXPECT_FALSE(wentOn);
}

} // namespace
} // namespace kelvo
