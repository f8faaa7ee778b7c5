// One chain and one pass at a time: what a person does, what the settings lack, what is told.
#include "unit/sync_cycle_fixture.h"

namespace kelvo {
namespace {

using ChainTest = SyncCycleTest;

TEST_F(ChainTest, StopsAndStartsInTheRest_AddNoChain) {
    for (const bool remote : {true, false}) {
        defaults.setObject(prefRsyncWithSSH, remote);
        button.performClick();
        runBodies();
        for (int i = 0; i < 3; ++i) {
            mainQueue.advance(5.0);
            button.performClick();
            button.performClick();
            runBodies();
        }
        EXPECT_EQ(passesWithin(31.0 * 4), 4U);
        button.performClick();
        (void)passesWithin(40.0);
    }
}

TEST_F(ChainTest, KindSetDuringTheRest_IsThatOfTheNextStartOnly) {
    for (const bool remote : {true, false}) {
        defaults.setObject(prefRsyncWithSSH, remote);
        records.clear();
        button.performClick();
        runBodies();
        defaults.setObject(prefRsyncWithSSH, !remote);
        (void)passesWithin(40.0);
        cycle.syncNow();
        runBodies();
        ASSERT_EQ(records.size(), 3U);
        for (const PassRecord& pass : records)
            EXPECT_EQ(pass.kind, remote ? PassKind::Remote : PassKind::Plain);
        button.performClick();
        (void)passesWithin(40.0);
    }
}

TEST_F(ChainTest, StopsAndStartsInTheRestAfterAFailedCheck_AddNoChain) {
    validator.usual = QStringLiteral("unknownerror");
    button.performClick();
    runBodies();
    for (int i = 0; i < 3; ++i) {
        mainQueue.advance(0.2);
        button.performClick();
        button.performClick();
        runBodies();
    }
    EXPECT_EQ(passesWithin(31.0 * 4), 4U);
}

TEST_F(ChainTest, StartInTheSecondAfterAFailedCheck_IsNotDisturbedByWhatWasPlanned) {
    validator.verdicts = {QStringLiteral("unknownerror")};
    button.performClick();
    runBodies();
    mainQueue.advance(0.2);
    button.performClick();
    button.performClick();
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        mainQueue.advance(2.0);
        EXPECT_TRUE(scanning());
        EXPECT_EQ(cycle.state().nextPass, std::nullopt);
        return QString();
    });
    runBodies();
    EXPECT_EQ(shell.commands().size(), 2);
}

TEST_F(ChainTest, StopAndStartDuringAPass_LeaveItAloneWithOneSuccessor) {
    int runningAtOnce = 0;
    shell.answerTo(QStringLiteral("pull"), [&](const QString&) {
        mainQueue.runDue();
        for (int i = 0; i < 3; ++i) {
            button.performClick();
            button.performClick();
        }
        runningAtOnce = static_cast<int>(passes.underWay().size());
        EXPECT_EQ(bgQueue.size(), 0U);
        return QString();
    });
    button.performClick();
    runBodies();
    EXPECT_EQ(runningAtOnce, 1);
    EXPECT_EQ(passesWithin(31.0 * 3), 3U);
}

TEST_F(ChainTest, State_CountsDownToTheNextPass) {
    EXPECT_FALSE(cycle.state().passRuns);
    EXPECT_EQ(cycle.state().nextPass, std::nullopt);
    button.performClick();
    EXPECT_TRUE(cycle.state().passRuns);
    EXPECT_EQ(cycle.state().nextPass, std::nullopt);
    runBodies();
    EXPECT_FALSE(cycle.state().passRuns);
    EXPECT_EQ(cycle.state().nextPass, 31.0) << "the second after the pass is counted too";
    mainQueue.advance(1.0);
    EXPECT_EQ(cycle.state().nextPass, 30.0);
    mainQueue.advance(7.0);
    EXPECT_EQ(cycle.state().nextPass, 23.0);
    mainQueue.advance(22.5);
    EXPECT_EQ(cycle.state().nextPass, 0.5);
    button.performClick();
    EXPECT_EQ(cycle.state().nextPass, std::nullopt) << "switched off";
}

TEST_F(ChainTest, EveryChangeOfTheState_IsTold) {
    const auto toldBy = [this](const std::function<void()>& act) {
        const int before = changes;
        act();
        return changes > before;
    };
    EXPECT_TRUE(toldBy([this] { button.performClick(); }));
    EXPECT_TRUE(toldBy([this] { cycle.cancelPass(); }));
    EXPECT_TRUE(toldBy([this] { runBodies(); }));
    EXPECT_TRUE(toldBy([this] { mainQueue.advance(1.0); }));
    EXPECT_FALSE(toldBy([this] { mainQueue.advance(29.0); })) << "only time has passed";
    EXPECT_FALSE(toldBy([this] { cycle.cancelPass(); })) << "there is none";
    EXPECT_TRUE(toldBy([this] { mainQueue.advance(1.0); }));
    runBodies();
    EXPECT_TRUE(toldBy([this] { button.performClick(); }));
}

TEST_F(ChainTest, SyncNow_BeginsThePlannedPassInsteadOfLater) {
    cycle.syncNow();
    EXPECT_EQ(bgQueue.size(), 0U) << "nothing is planned";
    button.performClick();
    cycle.syncNow();
    EXPECT_EQ(bgQueue.size(), 1U) << "a pass runs";
    runBodies();
    for (const double later : {0.3, 12.0}) {
        mainQueue.advance(later);
        cycle.syncNow();
        EXPECT_EQ(bgQueue.size(), 1U) << later;
        cycle.syncNow();
        EXPECT_EQ(bgQueue.size(), 1U) << later;
        runBodies();
        EXPECT_TRUE(scanning());
    }
    EXPECT_EQ(passesWithin(31.0 * 3), 3U) << "one chain goes on";
    button.performClick();
    cycle.syncNow();
    EXPECT_EQ(bgQueue.size(), 0U) << "switched off";
}

// -- a pass that a person ends

TEST_F(ChainTest, Cancel_EndsTheCommandAndRunsNoOther) {
    shell.neverEnds(QStringLiteral("pull"), QStringLiteral("so far\n"));
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        cycle.cancelPass();
        return QStringLiteral("so far\n");
    });
    button.performClick();
    runBodies();
    EXPECT_EQ(shell.commands().size(), 1) << "not the movie command";
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::Cancelled);
    EXPECT_EQ(records[0].commands.at(0).exitStatus, std::nullopt);
    mainQueue.advance(1.0);
    EXPECT_EQ(lastStatus().string, cResting);
    EXPECT_EQ(passesWithin(31.0), 1U) << "the next one comes as after any other";
}

TEST_F(ChainTest, CancelDuringTheCheck_CountsNoFailure) {
    validator.usual = QStringLiteral("unknownerror");
    validator.whileAsked = [this] { cycle.cancelPass(); };
    button.performClick();
    runBodies();
    mainQueue.advance(1.0);
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
    EXPECT_EQ(lastStatus().string, cResting);
    EXPECT_EQ(records.at(0).cause, PassCause::Cancelled);
    EXPECT_TRUE(cycle.state().nextPass);
}

TEST_F(ChainTest, CancelBeforeThePassIsUnderWay_CountsToo) {
    button.performClick();
    cycle.cancelPass();
    runBodies();
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_EQ(records.at(0).cause, PassCause::Cancelled);
    mainQueue.advance(5.0);
    cycle.cancelPass();
    EXPECT_EQ(passesWithin(26.0), 1U);
    EXPECT_EQ(records.at(1).cause, PassCause::Well) << "the wish is not kept for the next one";
}

// -- settings that are missing

TEST_F(ChainTest, MissingSetting_BeginsByItselfOnceItIsThere) {
    for (const bool remote : {true, false}) {
        defaults.setObject(prefRsyncWithSSH, remote);
        for (const QStringView key : {remote ? prefSampleRemoteFullPath : prefPath1, prefPath2}) {
            const QVariant kept = defaults.object(key);
            defaults.removeObject(key);
            button.performClick();
            runBodies();
            EXPECT_TRUE(cycle.state().waits);
            EXPECT_EQ(cycle.state().nextPass, std::nullopt);
            defaults.setObject(prefPath1, defaults.object(prefPath1));
            EXPECT_EQ(passesWithin(60.0), 0U) << "it is still missing";
            defaults.setObject(key, kept);
            EXPECT_EQ(passesWithin(1.0), 1U);
            EXPECT_FALSE(cycle.state().waits);
            EXPECT_EQ(passesWithin(31.0 * 3), 3U) << "one chain";
            button.performClick();
            (void)passesWithin(40.0);
            EXPECT_TRUE(mainQueue.idle());
        }
    }
}

TEST_F(ChainTest, RefusedText_BeginsByItselfOnceItIsMended) {
    for (const bool remote : {true, false}) {
        defaults.setObject(prefRsyncWithSSH, remote);
        defaults.setObject(prefPath2, QStringLiteral("h:d"));
        button.performClick();
        runBodies();
        EXPECT_TRUE(cycle.state().waits);
        defaults.setObject(prefPath2, QStringLiteral("-d"));
        EXPECT_EQ(passesWithin(10.0), 0U);
        defaults.setObject(prefPath2, QStringLiteral("/Incoming"));
        EXPECT_EQ(passesWithin(1.0), 1U);
        EXPECT_EQ(records.back().cause, PassCause::Well);
        button.performClick();
        (void)passesWithin(40.0);
    }
}

TEST_F(ChainTest, EverySettingThatPassesNeed_IsWatched) {
    const QString path = QStringLiteral("/In coming");
    defaults.setObject(prefPath2, path);
    for (const auto& [key, faulty] :
         {std::pair(prefRemoteUsername, QVariant(QStringLiteral("-x"))),
          std::pair(prefRemoteBonjourName, QVariant(QStringLiteral("a\nb"))),
          std::pair(prefSampleRemoteFullPath, QVariant()), std::pair(prefPath2, QVariant()),
          std::pair(prefRsyncCommandString1, QVariant(QStringLiteral("`%@2`")))}) {
        const QVariant kept = defaults.object(key);
        defaults.setObject(key, faulty);
        button.performClick();
        runBodies();
        ASSERT_TRUE(cycle.state().waits) << key.toString().toStdString();
        defaults.setObject(key, kept);
        EXPECT_EQ(passesWithin(1.0), 1U) << key.toString().toStdString();
        button.performClick();
        (void)passesWithin(40.0);
    }
    defaults.removeObject(prefSampleRemoteFullPath);
    button.performClick();
    runBodies();
    defaults.setObject(prefRsyncWithSSH, false);
    EXPECT_EQ(passesWithin(1.0), 1U) << "the plain one lacks nothing";
}

TEST_F(ChainTest, MissingSettingThereAsAPassIsStarted_BeginsNoSecondOne) {
    defaults.removeObject(prefPath2);
    button.performClick();
    runBodies();
    defaults.setObject(prefPath2, QStringLiteral("/Incoming"));
    button.performClick();
    button.performClick();
    runBodies();
    EXPECT_EQ(passesWithin(20.0), 0U) << "half a second later the pass rests";
}

TEST_F(ChainTest, MissingSettingThereAfterSwitchingOff_BeginsNothing) {
    defaults.removeObject(prefPath2);
    button.performClick();
    runBodies();
    button.performClick();
    EXPECT_FALSE(cycle.state().waits);
    console.clear();
    defaults.setObject(prefPath2, QStringLiteral("/Incoming"));
    EXPECT_EQ(passesWithin(60.0), 0U);
    EXPECT_TRUE(console.logged().isEmpty()) << "nor is one asked for";
    button.performClick();
    EXPECT_EQ(passesWithin(30.0), 1U);
}

TEST_F(ChainTest, MissingSettingThatComesAsThePassEnds_IsNotOverlooked) {
    defaults.removeObject(prefPath2);
    button.performClick();
    bgQueue.runAll();
    defaults.setObject(prefPath2, QStringLiteral("/Incoming"));
    EXPECT_EQ(passesWithin(33.0), 1U);
}

TEST_F(ChainTest, MissingAccount_IsSaidAndItsPassBeginsEarly) {
    defaults.removeObject(prefRemoteUsername);
    button.performClick();
    runBodies();
    EXPECT_TRUE(cycle.state().waits);
    EXPECT_EQ(cycle.state().nextPass, 31.0);
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    EXPECT_EQ(passesWithin(1.0), 1U);
    EXPECT_EQ(passesWithin(31.0 * 3), 3U) << "one chain";
}

TEST_F(ChainTest, UnknownSettings_AreWaitedFor) {
    defaults.setKnown(false);
    button.performClick();
    EXPECT_TRUE(cycle.state().waits);
    EXPECT_TRUE(told.waits);
    defaults.setKnown(true);
    mainQueue.advance(3.0);
    EXPECT_FALSE(cycle.state().waits);
    runBodies();
    defaults.setKnown(false);
    mainQueue.advance(31.0);
    EXPECT_TRUE(cycle.state().waits);
    EXPECT_TRUE(told.waits) << "after a rest too";
}

} // namespace
} // namespace kelvo
