// What a pass brought, and the command that is run after it.
#include "unit/sync_cycle_fixture.h"

namespace kelvo {
namespace {

class AfterArrivalsTest : public SyncCycleTest {
protected:
    AfterArrivalsTest() {
        defaults.setObject(prefRsyncWithSSH, false);
        defaults.setObject(prefCommandAfterArrivals, cAfter);
    }

    /// The whole of `text`, zeros included.
    template <std::size_t Size>
    static QByteArray bytes(const char (&text)[Size]) {
        return QByteArray(text, Size - 1);
    }

    std::vector<Command> after() const {
        std::vector<Command> commands = shell.asked();
        std::erase_if(commands, [this](const Command& command) { return command.text != cAfter; });
        return commands;
    }

    const QString cAfter = QStringLiteral(" xargs -0 open; true");
};

TEST_F(AfterArrivalsTest, Command_GetsThePathsAndTheirNumberOnceAPass) {
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        arrive("b; rm -rf ~");
        arrive("a\n\xff.mov");
        return QString();
    });
    button.performClick();
    runBodies();
    ASSERT_EQ(after().size(), 1U);
    EXPECT_EQ(after()[0].input, bytes("/Incoming/a\n\xff.mov\0/Incoming/b; rm -rf ~\0"));
    EXPECT_EQ(after()[0].variables,
              (std::map<QByteArray, QByteArray>{{"KELVO_MIRROR_ARRIVALS", "2"}}));
    EXPECT_EQ(after()[0].seconds, 600.0);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::Well);
    EXPECT_EQ(records[0].commands.back().role, CommandRole::AfterArrivals);
    ASSERT_EQ(records[0].arrivals.size(), 2U);
    EXPECT_EQ(records[0].arrivals[1].path, "/Incoming/b; rm -rf ~");
    EXPECT_EQ(records[0].arrivals[1].size, 7);

    shell.answerTo(QStringLiteral("pull"), QString());
    EXPECT_EQ(passesWithin(31.0), 1U);
    EXPECT_EQ(after().size(), 1U) << "nothing new";
    EXPECT_TRUE(records.at(1).arrivals.empty());
}

TEST_F(AfterArrivalsTest, RemotePass_RunsItOnceForBothPulls) {
    defaults.setObject(prefRsyncWithSSH, true);
    for (const QString& pull : {QStringLiteral("pull"), cMovieRules})
        shell.answerTo(pull, [this](const QString& command) {
            arrive(command.startsWith(u"pull") ? "one" : "two");
            return QString();
        });
    button.performClick();
    runBodies();
    ASSERT_EQ(after().size(), 1U);
    EXPECT_EQ(after()[0].input, bytes("/Incoming/one\0/Incoming/two\0"));
    EXPECT_EQ(shell.commands().last(), cAfter);
}

TEST_F(AfterArrivalsTest, PullThatBroughtNothingByItsOwnFigures_IsBelieved) {
    QByteArray count = "0";
    shell.answerTo(QStringLiteral("pull"), [this, &count](const QString&) {
        arrive("new");
        return QString::fromLatin1("Number of regular files transferred: " + count +
                                   "\nTotal transferred file size: " + count + " bytes\n");
    });
    button.performClick();
    runBodies();
    EXPECT_TRUE(records.at(0).arrivals.empty()) << "somebody else put it there";
    count = "1";
    mainQueue.advance(31.0);
    runBodies();
    EXPECT_EQ(records.at(1).arrivals.size(), 1U) << "it did not say which";
}

TEST_F(AfterArrivalsTest, PullThatNamesItsFiles_BroughtNoOthers) {
    defaults.setObject(prefRsyncCommandString1,
                       QStringLiteral("pull --out-format='%l %n' \"%@1\" \"%@2\""));
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        files.found.clear();
        arrive("named");
        arrive("from somebody else");
        return QStringLiteral("7 named\n");
    });
    button.performClick();
    runBodies();
    ASSERT_EQ(records.at(0).arrivals.size(), 1U);
    EXPECT_EQ(records[0].arrivals[0].path, "/Incoming/named");

    defaults.setObject(prefRsyncWithSSH, true);
    shell.answerTo(cMovieRules, QStringLiteral("Number of regular files transferred: 0\n"));
    mainQueue.advance(1.0);
    for (int click = 0; click < 2; ++click)
        button.performClick();
    runBodies();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[1].kind, PassKind::Remote);
    EXPECT_EQ(records[1].arrivals.size(), 1U) << "nor did the two of a remote pass";
}

TEST_F(AfterArrivalsTest, FailedCheck_BringsNothing) {
    defaults.setObject(prefRsyncWithSSH, true);
    validator.usual = QStringLiteral("unknownerror");
    arrive("from somewhere else");
    button.performClick();
    runBodies();
    EXPECT_TRUE(after().empty());
    EXPECT_TRUE(records.at(0).arrivals.empty());
}

TEST_F(AfterArrivalsTest, Command_MayLeaveSomethingRunningAsNoPullMay) {
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        arrive("new");
        return QString();
    });
    button.performClick();
    runBodies();
    ASSERT_EQ(shell.asked().size(), 2U);
    EXPECT_TRUE(shell.asked()[0].leavesNothing);
    EXPECT_FALSE(shell.asked()[1].leavesNothing);
}

TEST_F(AfterArrivalsTest, BlankCommand_IsNotRun) {
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        arrive("new");
        return QString();
    });
    defaults.setObject(prefCommandAfterArrivals, QStringLiteral(" \n"));
    button.performClick();
    runBodies();
    EXPECT_EQ(shell.commands().size(), 1);
    EXPECT_EQ(records.at(0).arrivals.size(), 1U);
}

TEST_F(AfterArrivalsTest, FailingCommand_IsItsOwnCauseUnlessAPullFailedBefore) {
    shell.answerTo(cAfter, QStringLiteral("no player\n"), 3);
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        arrive("new");
        return QString();
    });
    button.performClick();
    runBodies();
    EXPECT_EQ(records.at(0).cause, PassCause::AfterFailed);
    EXPECT_EQ(records.at(0).lastLine, u"no player");
    EXPECT_EQ(records.at(0).commands.back().exitStatus, 3);

    mainQueue.advance(31.0);
    arrive("again");
    shell.answerTo(QStringLiteral("pull"), QStringLiteral("rsync error: some files\n"), 23);
    runBodies();
    EXPECT_EQ(after().size(), 2U) << "something arrived all the same";
    EXPECT_EQ(records.at(1).cause, PassCause::FilesNotTaken);
}

TEST_F(AfterArrivalsTest, CancelledPass_KeepsItsArrivalsAndRunsNothingMore) {
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        arrive("new");
        cycle.cancelPass();
        return QString();
    });
    button.performClick();
    runBodies();
    EXPECT_TRUE(after().empty());
    EXPECT_EQ(records.at(0).arrivals.size(), 1U);
    EXPECT_EQ(records.at(0).cause, PassCause::Cancelled);
}

} // namespace
} // namespace kelvo
