#include "support/fatal.h"
#include "unit/sync_cycle_fixture.h"

#include <csignal>
#include <limits>

namespace kelvo {
namespace {

// -- the actions

TEST_F(SyncCycleTest, StartButtonOn_StoresTheStateAndStartsARemotePass) {
    QString lineBefore;
    const Subscription stored = defaults.observe(prefEnableScanning, [&](const DefaultsChange&) {
        lineBefore = console.logged().constLast();
    });
    button.performClick();
    EXPECT_EQ(lineBefore, u"button.state = 1") << "logged, then stored";
    EXPECT_EQ(defaults.object(prefEnableScanning), QVariant(qint64{1}));
    EXPECT_EQ(console.logged(),
              (QStringList{
                  QStringLiteral("Inside Kelvo_Mirror.ViewController->ibStartRSyncProcess(_:)"),
                  QStringLiteral("button.state = 1"),
                  QStringLiteral("Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()......."),
                  QStringLiteral("Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()"
                                 ".......NEED to start a scan ...")}));
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(SyncCycleTest, MissingStartButton_StopsTheProgramAtTheClick) {
    SyncCycle without({.defaults = defaults,
                       .mainQueue = mainQueue,
                       .bgQueue = bgQueue,
                       .passes = passes,
                       .files = files,
                       .console = console,
                       .rsyncCommand = rsyncCommand,
                       .validateRemoteHost = {},
                       .view = {},
                       .seconds = {}});
    EXPECT_EXIT(without.clickStartButton(), ::testing::KilledBySignal(SIGILL),
                "^the start button is not there\n");
}

TEST_F(SyncCycleTest, UnknownSettings_LetNoPassBeginAndOneOfTheKindSetOnceTheyAreKnown) {
    defaults.setKnown(false);
    button.performClick();
    cycle.doSyncOnce();
    cycle.doSyncOnceBonjour();
    const QStringList said = statusTexts();
    EXPECT_EQ(said.last(), QStringLiteral("The settings file cannot be read - waiting..."));
    mainQueue.advance(3600.0);
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_EQ(statusTexts(), said) << "not again and again";
    defaults.setObject(prefRsyncWithSSH, false);
    defaults.setKnown(true);
    mainQueue.advance(3.0);
    ASSERT_EQ(bgQueue.size(), 1U);
    runBodies();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].kind, PassKind::Plain);
}

TEST_F(SyncCycleTest, UnknownSettings_PassThatRestsWaitsForThem) {
    button.performClick();
    runBodies();
    defaults.setKnown(false);
    mainQueue.advance(31.0);
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_TRUE(told.waits);
    EXPECT_FALSE(told.nextPass) << "nobody knows when";
    EXPECT_FALSE(cycle.state().nextPass);
    defaults.setKnown(true);
    mainQueue.advance(3.0);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(SyncCycleTest, UnknownSettings_PassThatBeganMeanwhileEndsTheWait) {
    defaults.setKnown(false);
    button.performClick();
    defaults.setKnown(true);
    cycle.doSyncOnce();
    ASSERT_EQ(bgQueue.size(), 1U);
    console.clear();
    mainQueue.advance(10.0);
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(SyncCycleTest, UnknownSettings_PlainPassThatRestsWaitsForThemToo) {
    defaults.setObject(prefRsyncWithSSH, false);
    button.performClick();
    runBodies();
    defaults.setKnown(false);
    mainQueue.advance(31.0);
    EXPECT_EQ(bgQueue.size(), 0U);
    defaults.setKnown(true);
    mainQueue.advance(3.0);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(SyncCycleTest, SyncNow_StartsNothingWhereNoPassIsPlanned) {
    cycle.syncNow();
    EXPECT_TRUE(console.logged().isEmpty()) << "switched off";
    button.performClick();
    ASSERT_EQ(bgQueue.size(), 1U);
    console.clear();
    cycle.syncNow();
    EXPECT_TRUE(console.logged().isEmpty()) << "one runs";
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(SyncCycleTest, UnknownSettings_SwitchedOffMeanwhileStartsNothing) {
    defaults.setKnown(false);
    button.performClick();
    button.performClick();
    defaults.setKnown(true);
    mainQueue.advance(60.0);
    EXPECT_EQ(bgQueue.size(), 0U);

    defaults.setKnown(false);
    button.performClick();
    defaults.setKnown(true);
    mainQueue.advance(3.0);
    EXPECT_EQ(bgQueue.size(), 1U) << "the next start waits as the first did";
}

TEST_F(SyncCycleTest, StartButtonOnWithoutSsh_StartsAPlainPass) {
    defaults.setObject(prefRsyncWithSSH, false);
    button.performClick();
    EXPECT_EQ(console.logged().mid(2),
              (QStringList{QStringLiteral("Inside Kelvo_Mirror.ViewController->doSyncOnce()"),
                           QStringLiteral("Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                          ".......NEED to start a scan ...")}));
}

TEST_F(SyncCycleTest, StartButtonOff_StoresTheStateAndDoesNothingElse) {
    button.current = 1;
    button.performClick();
    EXPECT_EQ(defaults.object(prefEnableScanning), QVariant(qint64{0}));
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(SyncCycleTest, SenderThatIsNoButton_IsIgnored) {
    struct Slider final : Control {
    } slider;
    cycle.ibStartRSyncProcess(&slider);
    cycle.ibRSyncOnce(&slider);
    cycle.ibRSyncOnceBonjour(nullptr);
    EXPECT_FALSE(defaults.object(prefEnableScanning).isValid());
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_EQ(console.logged().size(), 3) << "only the entry lines";
}

TEST_F(SyncCycleTest, OnceActions_ChooseTheirPassWhateverTheSettingSays) {
    button.current = 1;
    cycle.ibRSyncOnce(&button);
    EXPECT_TRUE(logged(QStringLiteral("Inside Kelvo_Mirror.ViewController->ibRSyncOnce(_:)")));
    runBodies();
    mainQueue.advance(1.0);
    defaults.setObject(prefRsyncWithSSH, false);
    cycle.ibRSyncOnceBonjour(&button);
    EXPECT_TRUE(
        logged(QStringLiteral("Inside Kelvo_Mirror.ViewController->ibRSyncOnceBonjour(_:)")));
    runBodies();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].kind, PassKind::Plain);
    EXPECT_EQ(records[1].kind, PassKind::Remote);
}

TEST_F(SyncCycleTest, OnceActions_StoreTheStateOfTheirButton) {
    for (const auto action : {&SyncCycle::ibRSyncOnce, &SyncCycle::ibRSyncOnceBonjour}) {
        for (const int state : {1, 0}) {
            button.current = state;
            (cycle.*action)(&button);
            EXPECT_EQ(defaults.object(prefEnableScanning), QVariant(qint64{state}));
        }
        defaults.removeObject(prefEnableScanning);
    }
}

TEST_F(SyncCycleTest, SwitchedOffWhileAPassRuns_IsFoundBeforeThatItRuns) {
    button.performClick();
    runBodies();
    ASSERT_TRUE(scanning());
    button.performClick();
    cycle.doSyncOnce();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......prefEnableScanning = FALSE... cannot start");
    cycle.doSyncOnceBonjour();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()"
                                       u".......prefEnableScanning = FALSE... cannot start");
    EXPECT_EQ(lastStatus().string, u"") << "cleared";
}

// -- the plain pass

class PlainPassTest : public SyncCycleTest {
protected:
    PlainPassTest() { defaults.setObject(prefRsyncWithSSH, false); }
};

TEST_F(PlainPassTest, Body_RunsTheFilledTemplateAndPrintsItsOutput) {
    shell.answerTo(QStringLiteral("pull"), QStringLiteral("a.mov\n"));
    button.performClick();
    console.clear();
    bgQueue.runAll();
    const QString command = QStringLiteral("pull   \"/Volumes/Cam/\" \"/Incoming/\"");
    EXPECT_EQ(shell.commands(), QStringList{command});
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{std::nullopt});
    EXPECT_EQ(console.printed().mid(4),
              (QStringList{QString(u"cmd to send = " + command),
                           QStringLiteral("result from shell command =\na.mov\n\n"
                                          "======== done ========")}));
}

TEST_F(PlainPassTest, BusyFlag_IsSetOnTheMainQueueAfterThePathsWereRead) {
    button.performClick();
    EXPECT_FALSE(scanning());
    bool scanningWhileRunning = true;
    shell.answerTo(QStringLiteral("pull"), [&](const QString&) {
        scanningWhileRunning = scanning();
        return QString();
    });
    bgQueue.runAll();
    EXPECT_FALSE(scanningWhileRunning) << "queued, not yet run";
    mainQueue.runDue();
    EXPECT_TRUE(scanning());
}

TEST_F(PlainPassTest, End_ClearsTheFlagAfterOneSecondAndStartsAgainAfterTheRest) {
    button.performClick();
    runBodies();
    mainQueue.advance(0.999);
    EXPECT_TRUE(scanning());
    mainQueue.advance(0.001);
    EXPECT_FALSE(scanning());
    mainQueue.advance(29.999);
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(0.001);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(PlainPassTest, PassAndRest_ShowNothingInTheStatusLine) {
    button.performClick();
    runBodies();
    mainQueue.advance(2.0);
    EXPECT_TRUE(field->shown.empty());
}

TEST_F(PlainPassTest, RestOfZeroOrLessOrMissing_IsThreeSeconds) {
    button.performClick();
    for (const QVariant& rest : {QVariant(0), QVariant(-5), QVariant(), QVariant("soon")}) {
        defaults.setObject(prefDelayBetweenScans, rest);
        runBodies();
        mainQueue.advance(1.0 + 2.999);
        EXPECT_EQ(bgQueue.size(), 0U);
        mainQueue.advance(0.001);
        EXPECT_EQ(bgQueue.size(), 1U);
    }
}

TEST_F(PlainPassTest, RestAboveZero_IsTakenAsItIs) {
    defaults.setObject(prefDelayBetweenScans, 0.5);
    button.performClick();
    runBodies();
    mainQueue.advance(1.499);
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(0.001);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(PlainPassTest, Rest_IsReadWhenTheSecondAfterThePassIsOver) {
    button.performClick();
    runBodies();
    mainQueue.advance(0.5);
    defaults.setObject(prefDelayBetweenScans, 7.0);
    mainQueue.advance(0.5);
    EXPECT_EQ(cycle.state().nextPass, 7.0);
    mainQueue.advance(6.999);
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(0.001);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(PlainPassTest, MissingFolder_EndsTheChainSilently) {
    for (const QStringView key : {prefPath1, prefPath2}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        button.current = 0;
        button.performClick();
        runBodies();
        EXPECT_EQ(cycle.state().nextPass, std::nullopt);
        EXPECT_TRUE(enabled()) << "the setting stays on";
        EXPECT_FALSE(scanning());
        defaults.setObject(key, kept);
    }
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(field->shown.empty());
}

TEST_F(PlainPassTest, FolderThatCannotStandInACommand_EndsTheChainWithALineInTheLog) {
    defaults.setObject(prefPath2, QStringLiteral("-Incoming"));
    button.performClick();
    runBodies();
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(field->shown.empty());
    EXPECT_FALSE(scanning());
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......REFUSED: the destination begins with \"-\"");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().cause, PassCause::SettingsRefused);
    EXPECT_EQ(records.front().lastLine, u"the destination begins with \"-\"");
}

TEST_F(PlainPassTest, MissingTemplate_RunsThePlaceholderText) {
    defaults.removeObject(prefRsyncCommandString1);
    button.performClick();
    bgQueue.runAll();
    EXPECT_EQ(shell.commands(), QStringList{cMissingRsyncCommandString1.toString()});
}

TEST_F(PlainPassTest, SwitchedOff_LogsAndLeavesTheStatusLine) {
    cycle.doSyncOnce();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......prefEnableScanning = FALSE... cannot start");
    EXPECT_TRUE(statusTexts().isEmpty());
}

TEST_F(PlainPassTest, SecondRequestWhileRunning_IsRefusedAndForgotten) {
    button.performClick();
    runBodies();
    cycle.doSyncOnce();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......ALREADY in Middle of a Scan...");
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(31.0);
    EXPECT_EQ(bgQueue.size(), 1U) << "the running chain goes on alone";
}

TEST_F(PlainPassTest, TwoRequestsCloseTogether_RunOnePass) {
    button.performClick();
    cycle.doSyncOnce();
    EXPECT_FALSE(scanning()) << "that flag is set only once a body has read its paths";
    EXPECT_EQ(bgQueue.size(), 1U);
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......ALREADY in Middle of a Scan...");
    runBodies();
    EXPECT_EQ(shell.commands().size(), 1);
}

TEST_F(PlainPassTest, MissingSourceFolder_IsRecordedWithoutACommandAndTriedAgainAfterTheRest) {
    files.folders.clear();
    button.performClick();
    runBodies();
    EXPECT_TRUE(shell.commands().isEmpty());
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::SourceMissing);
    EXPECT_EQ(records[0].lastLine, u"/Volumes/Cam: No such file or directory");
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......MISSING: /Volumes/Cam: No such file or directory");
    EXPECT_FALSE(cycle.state().waits);
    files.folders.insert(QStringLiteral("/Volumes/Cam"));
    mainQueue.advance(31.0);
    runBodies();
    EXPECT_EQ(shell.commands().size(), 1);
    EXPECT_EQ(records.at(1).cause, PassCause::Well);
}

TEST_F(PlainPassTest, DestinationOfAnotherProgram_IsNotPulledIntoAndTriedAgainAfterTheRest) {
    files.folders.insert(QStringLiteral("/Incoming"));
    files.claimed.insert(QStringLiteral("/Incoming"));
    button.performClick();
    runBodies();
    EXPECT_TRUE(shell.commands().isEmpty());
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::DestinationTaken);
    EXPECT_EQ(records[0].lastLine, u"/Incoming");
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnce()"
                                       u".......TAKEN: another program is pulling into /Incoming");
    EXPECT_FALSE(scanning());
    files.claimed.clear();
    mainQueue.advance(31.0);
    runBodies();
    EXPECT_EQ(shell.commands().size(), 1);
    EXPECT_EQ(records.at(1).cause, PassCause::Well);
}

TEST_F(PlainPassTest, Destination_IsClaimedForThePassAlone) {
    files.folders.insert(QStringLiteral("/Incoming"));
    bool claimed = false;
    shell.answerTo(QStringLiteral("pull"), [&](const QString&) {
        claimed = files.claimed.contains(QStringLiteral("/Incoming"));
        return QString();
    });
    button.performClick();
    EXPECT_TRUE(files.claimed.isEmpty());
    runBodies();
    EXPECT_TRUE(claimed);
    EXPECT_TRUE(files.claimed.isEmpty());
}

TEST_F(PlainPassTest, SwitchedOffDuringAPass_EndsAtTheNextCheck) {
    button.performClick();
    runBodies();
    button.performClick();
    mainQueue.advance(31.0);
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_FALSE(scanning());
}

// -- the remote pass

using RemotePassTest = SyncCycleTest;

TEST_F(RemotePassTest, DestinationOfAnotherProgram_CountsNoFailureAndIsLeftAlone) {
    files.folders.insert(QStringLiteral("/Incoming"));
    files.claimed.insert(QStringLiteral("/Incoming"));
    button.performClick();
    runBodies();
    EXPECT_TRUE(shell.commands().isEmpty());
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::DestinationTaken);
    EXPECT_EQ(records[0].verdict, HostVerdict::Valid);
    EXPECT_TRUE(enabled());
    EXPECT_FALSE(lastStatus().string.contains(u"something went wrong"));
    files.claimed.clear();
    bool claimed = false;
    shell.answerTo(cMovieRules, [&](const QString&) {
        claimed = files.claimed.contains(QStringLiteral("/Incoming"));
        return QString();
    });
    mainQueue.advance(31.0);
    runBodies();
    EXPECT_EQ(shell.commands().size(), 2);
    EXPECT_TRUE(claimed);
    EXPECT_TRUE(files.claimed.isEmpty());
}

TEST_F(RemotePassTest, Body_ValidatesThenPullsTwice) {
    shell.answerTo(QStringLiteral("pull"), QStringLiteral("one\n"));
    shell.answerTo(cMovieRules, QStringLiteral("two\n"));
    button.performClick();
    console.clear();
    bgQueue.runAll();
    EXPECT_EQ(validator.timeouts, std::vector<qint64>{3});
    const QString sshPart =
        QStringLiteral("2>&1 --timeout=5  -e 'ssh -i /Users/localuser/.ssh/id_kelvoRsync'");
    EXPECT_EQ(shell.commands(),
              (QStringList{
                  QString(u"pull " + sshPart + u"  \"mediauser@RemoteMac:Movies/\" \"/Incoming/\""),
                  QString(u"/usr/bin/rsync " + sshPart +
                          u"  -f '+ */' -f '+ *.[mM][oOpP][vV4]*' -f '- *' -r  --times  "
                          u"--prune-empty-dirs \"mediauser@RemoteMac:Movies/\" \"/Incoming/\" ")}));
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>(2, std::nullopt))
        << "a long transfer is never cut";
    EXPECT_EQ(console.printed().filter(QStringLiteral("result from")),
              (QStringList{QStringLiteral("\n\nresult from shell command =\none\n\n"
                                          "======== done ========"),
                           QStringLiteral("\n\nresult from movie shell command =\ntwo\n\n"
                                          "======== done ========")}));
}

TEST_F(RemotePassTest, CancelledBetweenItsPulls_SaysNothingOfTheOther) {
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        cycle.cancelPass();
        return QStringLiteral("one\n");
    });
    button.performClick();
    runBodies();
    EXPECT_EQ(console.printed().filter(QStringLiteral("result from shell")).size(), 1);
    EXPECT_EQ(console.printed().filter(QStringLiteral("result from movie")), QStringList());
}

TEST_F(RemotePassTest, CancelledBetweenItsPulls_LooksForNothingThatTheOtherMayHaveBrought) {
    files.found.push_back({"/Incoming/others.mov", 7, QDateTime(QDate(2999, 1, 1), QTime())});
    shell.answerTo(QStringLiteral("pull"), [this](const QString&) {
        cycle.cancelPass();
        return QStringLiteral("Number of regular files transferred: 0\n");
    });
    button.performClick();
    runBodies();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_TRUE(records[0].arrivals.empty());
}

TEST_F(RemotePassTest, StatusLines_TellTryingThenResting) {
    button.performClick();
    EXPECT_EQ(lastStatus(),
              (AttributedString{cTrying, StatusColor::Black, TextAlignment::Centered}));
    runBodies();
    EXPECT_EQ(statusTexts(), QStringList{cTrying});
    mainQueue.advance(1.0);
    EXPECT_EQ(lastStatus(),
              (AttributedString{cResting, StatusColor::Black, TextAlignment::Centered}));
}

TEST_F(RemotePassTest, StatusLine_NamesTheOption) {
    defaults.setObject(prefRsyncCommandOptionTag, 101);
    button.performClick();
    EXPECT_EQ(lastStatus().string, u"Trying to rsync with option = --update...");
}

TEST_F(RemotePassTest, End_FollowsTheSameTimesAsThePlainPass) {
    button.performClick();
    runBodies();
    EXPECT_TRUE(scanning());
    mainQueue.advance(1.0);
    EXPECT_FALSE(scanning());
    mainQueue.advance(29.999);
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(0.001);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(RemotePassTest, RsyncErrors_DoNotChangeTheCourse) {
    shell.answerTo(QStringLiteral("rsync"), QStringLiteral("rsync error: code 23"));
    button.performClick();
    runBodies();
    mainQueue.advance(1.0);
    EXPECT_EQ(lastStatus().string, cResting);
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
}

TEST_F(RemotePassTest, MissingSourceOrDestination_EndsTheChainSilently) {
    for (const QStringView key : {prefSampleRemoteFullPath, prefPath2}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        button.current = 0;
        button.performClick();
        runBodies();
        EXPECT_EQ(statusTexts().last(), cTrying) << "the line of the start stays";
        EXPECT_EQ(cycle.state().nextPass, std::nullopt);
        EXPECT_TRUE(enabled());
        EXPECT_FALSE(scanning());
        defaults.setObject(key, kept);
    }
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
}

TEST_F(RemotePassTest, TextThatCannotStandInACommand_EndsTheChainBeforeAnybodyIsAsked) {
    for (const auto& [key, text] :
         {std::pair(prefRemoteUsername, "-oProxyCommand=x"), std::pair(prefRemoteUsername, "a/b"),
          std::pair(prefRemoteUsername, "a:b"), std::pair(prefRemoteBonjourName, "Mac\nx"),
          std::pair(prefSampleRemoteFullPath, "u@h:a\nb"), std::pair(prefPath2, "h:d"),
          std::pair(prefRsyncCommandString1, "`%@2`")}) {
        const QVariant kept = defaults.object(key);
        const QVariant destination = defaults.object(prefPath2);
        defaults.setObject(prefPath2, QStringLiteral("/In coming"));
        defaults.setObject(key, QString::fromUtf8(text));
        records.clear();
        button.current = 0;
        button.performClick();
        runBodies();
        EXPECT_EQ(statusTexts().last(), cTrying) << text;
        EXPECT_EQ(cycle.state().nextPass, std::nullopt) << text;
        EXPECT_TRUE(console.logged().last().contains(u"doSyncOnceBonjour().......REFUSED: the "))
            << text;
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records.front().cause, PassCause::SettingsRefused) << text;
        EXPECT_FALSE(scanning());
        defaults.setObject(key, kept);
        defaults.setObject(prefPath2, destination);
    }
    EXPECT_TRUE(validator.timeouts.empty());
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
}

TEST_F(RemotePassTest, TextThatChangedDuringTheCheck_IsRefusedToo) {
    shell.answerTo(QStringLiteral("pull"), QString());
    validator.whileAsked = [this] { defaults.setObject(prefPath2, QStringLiteral("-x")); };
    button.performClick();
    runBodies();
    EXPECT_EQ(statusTexts(), QStringList{cTrying});
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_FALSE(scanning());
}

TEST_F(RemotePassTest, UserOrHostMissing_FailsWithoutAsking) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        button.current = 0;
        button.performClick();
        runBodies();
        mainQueue.advance(1.0);
        defaults.setObject(key, kept);
    }
    EXPECT_TRUE(validator.timeouts.empty());
    EXPECT_EQ(cycle.badWhoamiCount(), 2);
}

TEST_F(RemotePassTest, SwitchedOff_LogsAndClearsTheStatusLine) {
    cycle.doSyncOnceBonjour();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()"
                                       u".......prefEnableScanning = FALSE... cannot start");
    EXPECT_EQ(statusTexts(), (QStringList{cTrying, QString()}));
}

TEST_F(RemotePassTest, SecondRequestWhileRunning_IsRefusedAndItsStatusLineStays) {
    button.performClick();
    runBodies();
    cycle.doSyncOnceBonjour();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()"
                                       u".......ALREADY in Middle of a Scan...");
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_EQ(statusTexts(), (QStringList{cTrying, cTrying}));
}

TEST_F(RemotePassTest, SecondRequestDuringValidation_IsRefused) {
    button.performClick();
    cycle.doSyncOnceBonjour();
    EXPECT_EQ(console.logged().last(), u"Inside Kelvo_Mirror.ViewController->doSyncOnceBonjour()"
                                       u".......ALREADY in Middle of a Scan...");
    EXPECT_EQ(bgQueue.size(), 1U) << "the busy flag is set only after the validation";
}

TEST_F(RemotePassTest, SwitchedOffDuringAPass_EndsAtTheNextCheckAndClearsTheLine) {
    button.performClick();
    runBodies();
    button.performClick();
    mainQueue.advance(31.0);
    EXPECT_EQ(lastStatus().string, u"");
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_TRUE(mainQueue.idle());
}

// -- failed validations

using FailedValidationTest = SyncCycleTest;

TEST_F(FailedValidationTest, Failure_ShowsTheRedLineWithTheCount) {
    failPasses(1);
    EXPECT_EQ(
        lastStatus(),
        (AttributedString{QStringLiteral("something went wrong - waiting to retry again... [1]"),
                          StatusColor::Red, TextAlignment::Centered}));
    EXPECT_EQ(cycle.badWhoamiCount(), 1);
}

TEST_F(FailedValidationTest, Failure_PrintsTheRuleTheVerdictAndTheRule) {
    validator.verdicts = {QStringLiteral("checksshkeys"), QStringLiteral("checkusername")};
    const QString rule(65, u'=');
    button.performClick();
    console.clear();
    runBodies();
    EXPECT_EQ(
        console.printed(),
        (QStringList{rule, QStringLiteral("NEED to handle possible ERROR:\nchecksshkeys"), rule}));
    mainQueue.advance(31.0);
    console.clear();
    runBodies();
    EXPECT_EQ(console.printed(),
              (QStringList{rule, QStringLiteral("NEED to handle possible ERROR:\n"), rule}));
}

TEST_F(FailedValidationTest, Failure_RetriesAfterTheUsualRestAndKeepsTheRedLine) {
    failPasses(1);
    mainQueue.advance(1.0);
    EXPECT_EQ(lastStatus().foregroundColor, StatusColor::Red) << "no resting line";
    mainQueue.advance(30.0);
    EXPECT_EQ(bgQueue.size(), 1U);
    EXPECT_TRUE(shell.commands().isEmpty());
}

TEST_F(FailedValidationTest, SuccessAfterAFailure_DoesNotBringTheRestingLineBack) {
    validator.verdicts = {QStringLiteral("unknownerror")};
    button.performClick();
    runBodies();
    mainQueue.advance(31.0);
    runBodies();
    mainQueue.advance(1.0);
    EXPECT_FALSE(statusTexts().contains(cResting));
    EXPECT_EQ(cycle.badWhoamiCount(), 1);
}

TEST_F(FailedValidationTest, TenthFailure_SwitchesOffThenRaisesTheAlert) {
    failPasses(10);
    EXPECT_TRUE(enabled());
    mainQueue.advance(0.01);
    EXPECT_FALSE(enabled());
    EXPECT_EQ(button.clicks, 2);
    mainQueue.advance(0.189);
    EXPECT_TRUE(presenter.alerts.empty());
    mainQueue.advance(0.001);
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts[0].messageText, u"Unable to Reach Remote Host");
    EXPECT_EQ(presenter.alerts[0].informativeText,
              u"Please make sure remote host is on this network\nor\nPlease check "
              u"username...\n\n\n");
    EXPECT_EQ(lastStatus().string, u"") << "cleared after the red line";
    EXPECT_TRUE(statusTexts().contains(
        QStringLiteral("something went wrong - waiting to retry again... [10]")));
}

TEST_F(FailedValidationTest, TenthFailure_SchedulesNoFurtherPass) {
    failPasses(10);
    mainQueue.advance(1.0);
    presenter.answer(1, cAlertSecondButtonReturn);
    mainQueue.advance(100.0);
    EXPECT_EQ(bgQueue.size(), 0U);
    EXPECT_EQ(statusTexts().count(cTrying), 10) << "none is begun, or asked for";
    EXPECT_TRUE(mainQueue.idle());
}

TEST(FailureCountTest, LargestNumber_StopsTheProgram) {
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    EXPECT_EQ(oneMore(0), 1);
    EXPECT_EQ(oneMore(last - 1), last);
    EXPECT_EXIT((void)oneMore(last), ::testing::KilledBySignal(SIGILL), "");
}

TEST_F(FailedValidationTest, FailureAfterTheTenth_RaisesTheAlertAgain) {
    failPasses(10);
    mainQueue.advance(1.0);
    button.performClick();
    runBodies();
    EXPECT_EQ(cycle.badWhoamiCount(), 11);
    mainQueue.advance(0.2);
    EXPECT_EQ(presenter.alerts.size(), 2U);
    EXPECT_FALSE(enabled());
}

TEST_F(FailedValidationTest, NineFailuresASuccessAndOneMore_RaiseTheAlert) {
    validator.verdicts.assign(9, QStringLiteral("checkremotehost"));
    validator.verdicts.push_back(QStringLiteral("valid"));
    validator.verdicts.push_back(QStringLiteral("checkremotehost"));
    button.performClick();
    for (int i = 0; i < 10; ++i) {
        runBodies();
        mainQueue.advance(31.0);
    }
    EXPECT_TRUE(presenter.alerts.empty());
    runBodies();
    mainQueue.advance(0.2);
    EXPECT_EQ(presenter.alerts.size(), 1U);
}

TEST_F(FailedValidationTest, MissingKeys_HaveTheirOwnAlertText) {
    validator.verdicts.assign(10, QStringLiteral("checksshkeys"));
    failPasses(10);
    mainQueue.advance(0.2);
    EXPECT_EQ(presenter.alerts.at(0).informativeText,
              u"Missing ssh keys -\nPlease generate ssh keys\n and \n try again...\n");
}

TEST_F(FailedValidationTest, MissingKeysInAnotherCase_IsAnOrdinaryFailure) {
    validator.verdicts.assign(10, QStringLiteral("CheckSshKeys"));
    failPasses(10);
    mainQueue.advance(0.2);
    EXPECT_TRUE(presenter.alerts.at(0).informativeText.startsWith(
        u"Please make sure remote host is on this network"));
}

TEST_F(FailedValidationTest, ValidInAnotherCase_IsAFailure) {
    validator.verdicts = {QStringLiteral("Valid")};
    button.performClick();
    runBodies();
    EXPECT_EQ(cycle.badWhoamiCount(), 1);
    EXPECT_TRUE(shell.commands().isEmpty());
}

TEST_F(FailedValidationTest, AnswerRetry_ResetsTheCountAndStartsAgain) {
    failPasses(10);
    mainQueue.advance(0.2);
    validator.usual = QStringLiteral("valid");
    ASSERT_TRUE(presenter.answer(1, cAlertFirstButtonReturn));
    EXPECT_TRUE(logged(QStringLiteral("response = 1000")));
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
    mainQueue.advance(0.099);
    EXPECT_FALSE(enabled());
    mainQueue.advance(0.001);
    EXPECT_TRUE(enabled());
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(FailedValidationTest, AnswerStop_LeavesItOffAndSaysSo) {
    failPasses(10);
    mainQueue.advance(0.2);
    ASSERT_TRUE(presenter.answer(1, cAlertSecondButtonReturn));
    EXPECT_TRUE(logged(QStringLiteral("response = 1001")));
    EXPECT_EQ(lastStatus(),
              (AttributedString{QStringLiteral("oops - something went wrong - check settings and "
                                               "hardware connections - then try again..."),
                                StatusColor::Red, TextAlignment::Centered}));
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
    mainQueue.advance(1.0);
    EXPECT_FALSE(enabled());
}

TEST_F(FailedValidationTest, NoAnswer_StartsAgainByItself) {
    failPasses(10);
    mainQueue.advance(0.2 + 6.0);
    EXPECT_TRUE(presenter.open.empty());
    EXPECT_TRUE(logged(QStringLiteral("response = -1000"))) << "the sheet taken away";
    EXPECT_EQ(cycle.badWhoamiCount(), 0);
    EXPECT_FALSE(enabled()) << "that answer does nothing more";
    mainQueue.advance(0.1);
    EXPECT_TRUE(logged(QStringLiteral("response = 1000")));
    mainQueue.advance(0.1);
    EXPECT_TRUE(enabled());
    EXPECT_EQ(bgQueue.size(), 1U);
    EXPECT_TRUE(statusTexts().filter(QStringLiteral("oops")).isEmpty());
}

TEST_F(FailedValidationTest, AnsweredStop_StaysOffWhenTheAlertsOwnAnswerComes) {
    failPasses(10);
    mainQueue.advance(0.2);
    presenter.answer(1, cAlertSecondButtonReturn);
    mainQueue.advance(60.0);
    EXPECT_EQ(timesLogged(QStringLiteral("response = 1000")), 1);
    EXPECT_FALSE(enabled());
    EXPECT_TRUE(lastStatus().string.startsWith(u"oops - ")) << "the red text stays";
}

TEST_F(FailedValidationTest, AnsweredRetry_StaysOnWhenTheAlertsOwnAnswerComes) {
    failPasses(10);
    mainQueue.advance(0.2);
    presenter.answer(1, cAlertFirstButtonReturn);
    mainQueue.advance(0.1);
    EXPECT_TRUE(enabled());
    runBodies();
    EXPECT_EQ(cycle.badWhoamiCount(), 1);
    mainQueue.advance(6.2);
    EXPECT_EQ(timesLogged(QStringLiteral("response = 1000")), 2);
    EXPECT_TRUE(enabled());
    EXPECT_EQ(button.clicks, 3);
    EXPECT_EQ(cycle.badWhoamiCount(), 1) << "the second answer is not listened to";
}

TEST_F(FailedValidationTest, AnsweredRetryTwiceInARow_EachAlertHasItsOwnAnswer) {
    failPasses(10);
    mainQueue.advance(0.2);
    presenter.answer(1, cAlertSecondButtonReturn);
    mainQueue.advance(7.0);
    failPasses(10);
    mainQueue.advance(0.2);
    ASSERT_TRUE(presenter.answer(2, cAlertFirstButtonReturn));
    mainQueue.advance(0.1);
    EXPECT_TRUE(enabled());
}

TEST_F(FailedValidationTest, SwitchedOffBeforeTheTenthFailureEnds_StaysOff) {
    failPasses(9);
    mainQueue.advance(31.0);
    button.performClick();
    EXPECT_FALSE(enabled());
    runBodies();
    mainQueue.advance(0.2);
    EXPECT_FALSE(enabled());
    EXPECT_EQ(presenter.alerts.size(), 1U);
    mainQueue.advance(10.0);
    EXPECT_FALSE(enabled()) << "nobody asked for it to be switched on";
    EXPECT_EQ(bgQueue.size(), 0U);
}

TEST_F(FailedValidationTest, SwitchedOffBeforeTheTenthFailureEnds_AnswerRetrySwitchesOn) {
    failPasses(9);
    mainQueue.advance(31.0);
    button.performClick();
    runBodies();
    mainQueue.advance(0.2);
    presenter.answer(1, cAlertFirstButtonReturn);
    mainQueue.advance(7.0);
    EXPECT_TRUE(enabled());
}

TEST_F(FailedValidationTest, SwitchedOnWhileTheAlertStands_StaysOnAtItsOwnAnswer) {
    failPasses(10);
    mainQueue.advance(1.0);
    button.performClick();
    EXPECT_TRUE(enabled());
    mainQueue.advance(10.0);
    EXPECT_TRUE(enabled());
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(FailedValidationTest, SwitchedOnAndOffWhileTheAlertStands_StaysOff) {
    failPasses(10);
    mainQueue.advance(1.0);
    button.performClick();
    button.performClick();
    mainQueue.advance(10.0);
    EXPECT_FALSE(enabled());
}

TEST_F(FailedValidationTest, EleventhFailureAfterRetry_CountsFromTheStart) {
    failPasses(10);
    mainQueue.advance(6.4);
    runBodies();
    EXPECT_EQ(lastStatus().string, u"something went wrong - waiting to retry again... [1]");
}

} // namespace
} // namespace kelvo
