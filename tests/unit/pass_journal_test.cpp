#include "fakes/view_controller_world.h"
#include "passes/pass_journal.h"
#include "passes/recording_shell_runner.h"
#include "ports/command_runner.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>

namespace kelvo {
namespace {

const QString cStatistics = QStringLiteral("one.mov\n\nNumber of regular files transferred: 1\n"
                                           "Total transferred file size: 40,000 bytes\n");

/// Commands take time on the test's clock and end as told.
class ScriptedCommands final : public CommandRunner {
public:
    explicit ScriptedCommands(double& clock) : fClock(clock) {}

    CommandResult run(const QString& command) override {
        fClock += 2.5;
        for (const auto& [part, result] : results) {
            if (command.contains(part))
                return result;
        }
        return {{}, {}, 0};
    }

    CommandResult runWithin(double seconds, const QString& command) override {
        if (command != endless)
            return run(command);
        fClock += seconds;
        return {QStringLiteral("so far\n"), {}, 124};
    }

    QString endless; ///< this command never ends by itself

    std::map<QString, CommandResult> results;

private:
    double& fClock;
};

class PassJournalTest : public ::testing::Test {
protected:
    void runCommand(const char* command) {
        (void)shell.outputWhenRunAsShellCommand(QString::fromLatin1(command));
    }

    double clock = 100;
    const QDateTime noon{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    std::vector<PassRecord> records;
    ScriptedCommands commands{clock};
    PassJournal journal{{[this] { return noon; }, [this] { return clock; }},
                        [this](const PassRecord& record) { records.push_back(record); }};
    RecordingShellRunner shell{commands, journal};
};

TEST_F(PassJournalTest, RemotePass_IsWrittenDownWhole) {
    commands.results[QStringLiteral("whoami")] = {QStringLiteral("mediauser\n"), {}, 0};
    commands.results[QStringLiteral("first")] = {cStatistics, {}, 0};
    commands.results[QStringLiteral("second")] = {{}, QStringLiteral("oops\n"), 24};
    journal.passBegan(PassKind::Remote);
    runCommand("ssh whoami");
    journal.hostJudged(QStringLiteral("valid"));
    runCommand("first --stats");
    runCommand("second");
    EXPECT_TRUE(records.empty());
    journal.passEnded();

    ASSERT_EQ(records.size(), 1U);
    const PassRecord& record = records.front();
    EXPECT_EQ(record.began, noon);
    EXPECT_DOUBLE_EQ(record.seconds, 7.5);
    EXPECT_EQ(record.kind, PassKind::Remote);
    EXPECT_EQ(record.verdict, QStringLiteral("valid"));
    EXPECT_EQ(record.cause, PassCause::FilesVanished);
    EXPECT_EQ(record.lastLine, QStringLiteral("oops"));
    EXPECT_EQ(record.brought.files, 1);
    EXPECT_EQ(record.brought.bytes, 40000);
    ASSERT_EQ(record.commands.size(), 3U);
    EXPECT_EQ(record.commands[0].role, CommandRole::HostCheck);
    EXPECT_EQ(record.commands[0].text.head, QStringLiteral("mediauser\n"));
    EXPECT_EQ(record.commands[1].role, CommandRole::Pull);
    EXPECT_DOUBLE_EQ(record.commands[1].seconds, 2.5);
    EXPECT_EQ(record.commands[2].exitStatus, 24);
    EXPECT_EQ(record.commands[2].text.head, QStringLiteral("oops\n"));
    EXPECT_EQ(record.commands[2].brought.source, BroughtSource::Unknown);
}

TEST_F(PassJournalTest, CommandOutsideAnyPass_IsNobodys) {
    runCommand("before");
    journal.hostJudged(QStringLiteral("valid"));
    journal.passEnded();
    EXPECT_TRUE(records.empty());
    journal.passBegan(PassKind::Plain);
    journal.passEnded();
    runCommand("after");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_TRUE(records.front().commands.empty());
    EXPECT_EQ(records.front().cause, PassCause::SettingsMissing);
}

TEST_F(PassJournalTest, PassesSideBySide_KeepTheirCommandsApart) {
    journal.passBegan(PassKind::Plain);
    runCommand("mine");
    std::thread other([this] {
        journal.passBegan(PassKind::Remote);
        runCommand("theirs");
        journal.passEnded();
    });
    other.join();
    journal.passEnded();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].commands.at(0).command, QStringLiteral("theirs"));
    EXPECT_EQ(records[1].commands.at(0).command, QStringLiteral("mine"));
    EXPECT_EQ(records[1].commands.size(), 1U);
}

TEST_F(PassJournalTest, Runner_PassesTheTextOnUntouched) {
    commands.results[QStringLiteral("x")] = {QStringLiteral(" text \n\n"), QStringLiteral("e"), 3};
    EXPECT_EQ(shell.outputWhenRunAsShellCommand(QStringLiteral("x")), QStringLiteral(" text \n\n"));
}

TEST_F(PassJournalTest, CheckWhoseTimeWasUp_IsWrittenDownAsAHostThatIsAway) {
    commands.endless = QStringLiteral("ssh whoami");
    journal.passBegan(PassKind::Remote);
    EXPECT_EQ(shell.outputWithin(33, commands.endless), QStringLiteral("so far\n"));
    journal.hostJudged(QStringLiteral("unknownerror"));
    journal.passEnded();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::HostAway);
    EXPECT_EQ(records[0].lastLine, QStringLiteral("so far"));
    ASSERT_EQ(records[0].commands.size(), 1U);
    EXPECT_EQ(records[0].commands[0].exitStatus, 124);
    EXPECT_DOUBLE_EQ(records[0].commands[0].seconds, 33);
}

// -- with the cycle

TEST(PassListeningTest, Cycle_TellsBeginVerdictAndEndAroundItsCommands) {
    struct Listener final : PassListener {
        void passBegan(PassKind kind) override {
            told << (kind == PassKind::Remote ? QStringLiteral("remote") : QStringLiteral("plain"));
        }
        void hostJudged(const QString& verdict) override { told << u"verdict " + verdict; }
        void passEnded() override { told << QStringLiteral("end"); }
        QStringList told;
    } listener;

    ViewControllerWorld world;
    RsyncCommand rsyncCommand{world.defaults, world.console};
    RemoteHostValidation validation{world.defaults, world.shell, world.files, world.console};
    StatusLine statusLine{world.defaults, world.mainQueue, world.field};
    Alerts alerts{world.mainQueue, world.console, world.presenter};
    SyncCycle cycle{{world.defaults, world.mainQueue, world.bgQueue, world.shell, world.files,
                     world.console, rsyncCommand, validation, statusLine, alerts, world.button,
                     &listener}};
    world.defaults.setObject(prefEnableScanning, true);
    world.defaults.setObject(prefIsScanning, false);
    world.shell.answerTo(QStringLiteral("cp"), [&](const QString&) {
        listener.told << QStringLiteral("command");
        return QString();
    });

    cycle.doSyncOnceBonjour(); // neither user nor host is set
    world.bgQueue.runAll();
    EXPECT_EQ(listener.told, (QStringList{QStringLiteral("remote"), QStringLiteral("verdict "),
                                          QStringLiteral("end")}));

    listener.told.clear();
    world.defaults.setObject(prefPath1, QStringLiteral("/a"));
    world.defaults.setObject(prefPath2, QStringLiteral("/b"));
    world.defaults.setObject(prefRsyncCommandString1, QStringLiteral("cp %@1 %@2"));
    cycle.doSyncOnce();
    world.bgQueue.runAll();
    EXPECT_EQ(listener.told, (QStringList{QStringLiteral("plain"), QStringLiteral("command"),
                                          QStringLiteral("end")}));
}

} // namespace
} // namespace kelvo
