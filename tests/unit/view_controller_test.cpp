#include "fakes/view_controller_world.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kelvo {
namespace {

const QString cObserve = QStringLiteral(
    "Inside Kelvo_Mirror.ViewController->observeValue(forKeyPath:of:change:context:)");

class ViewControllerTest : public ::testing::Test, public ViewControllerWorld {};

TEST_F(ViewControllerTest, Load_PrintsItsEntryAndSwitchesSyncingOff) {
    controller.viewDidLoad();
    EXPECT_EQ(console.printed().first(),
              u"Inside Kelvo_Mirror.ViewController->viewDidLoad().......");
    EXPECT_EQ(defaults.object(prefIsScanning), QVariant(false));
    EXPECT_EQ(defaults.object(prefEnableScanning), QVariant(false));
    QStringList switchedOff;
    for (const auto& [key, value] : defaults.changes()) {
        if (value == QVariant(false))
            switchedOff << key;
    }
    EXPECT_EQ(switchedOff, (QStringList{prefIsScanning.toString(), prefEnableScanning.toString()}));
}

TEST_F(ViewControllerTest, MissingStartButton_StopsTheTitleOfAChangeButNotTheUpdate) {
    StartButtonTitle without(nullptr, defaults, mainQueue, console);
    without.update();
    mainQueue.runDue();
    const char* message = "^the start button is not there\n";
    for (const bool flag : {true, false}) {
        EXPECT_EXIT(without.showRunning(flag), ::testing::KilledBySignal(SIGILL), message);
        EXPECT_EXIT(without.showKindOfPass(flag), ::testing::KilledBySignal(SIGILL), message);
    }
}

TEST_F(ViewControllerTest, Load_LeavesNothingTicking) {
    const QString timer =
        QStringLiteral("Inside Kelvo_Mirror.ViewController->setupRepeatTimer()..........");
    controller.viewDidLoad();
    mainQueue.advance(0.499);
    EXPECT_FALSE(console.logged().contains(timer));
    mainQueue.advance(0.001);
    EXPECT_TRUE(console.logged().contains(timer));
    mainQueue.advance(1.5);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(ViewControllerTest, Load_RebuildsTheSamplePathAtHalfASecond) {
    defaults.setObject(prefRemoteUsername, QStringLiteral(" u "));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" h "));
    defaults.setObject(prefRemotePath, QStringLiteral(" p "));
    controller.viewDidLoad();
    mainQueue.advance(0.499);
    EXPECT_FALSE(defaults.object(prefSampleRemoteFullPath).isValid());
    mainQueue.advance(0.001);
    EXPECT_EQ(defaults.stringForKey(prefSampleRemoteFullPath), QStringLiteral(" u @ h : p "))
        << "not trimmed";
    EXPECT_EQ(button.title, u"Start rsync with bonjour");
}

TEST_F(ViewControllerTest, Load_NamesThePlainPassOnTheButton) {
    defaults.setObject(prefRsyncWithSSH, false);
    controller.viewDidLoad();
    mainQueue.advance(0.5);
    EXPECT_EQ(button.title, u"Start rsync with afp path");
}

TEST_F(ViewControllerTest, AutoStart_ClicksTheButtonAtOneSecond) {
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(0.999);
    EXPECT_EQ(button.clicks, 0);
    mainQueue.advance(0.001);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_TRUE(defaults.boolForKey(prefEnableScanning));
    EXPECT_EQ(bgQueue.size(), 1U);
    EXPECT_TRUE(console.logged().filter(QStringLiteral("first pass begins")).isEmpty());
}

TEST_F(ViewControllerTest, AutoStartOfUnknownSettings_IsAskedForOnceTheyAreKnown) {
    defaults.setKnown(false);
    controller.viewDidLoad();
    mainQueue.advance(60.0);
    EXPECT_EQ(button.clicks, 0);
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    mainQueue.advance(60.0);
    EXPECT_EQ(button.clicks, 0) << "still a guess";
    defaults.setKnown(true);
    mainQueue.advance(60.0);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(ViewControllerTest, StartClickedBeforeSettingsAreKnown_IsNotTakenBackByTheAutoStart) {
    defaults.setKnown(false);
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(2.0);
    button.performClick();
    EXPECT_EQ(bgQueue.size(), 0U);
    defaults.setKnown(true);
    mainQueue.advance(60.0);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(ViewControllerTest, SettingsThatAreUnknown_AreAskedForOnceASecond) {
    defaults.setKnown(false);
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(0.5);
    defaults.setKnown(true);
    mainQueue.advance(1.499);
    EXPECT_EQ(button.clicks, 0);
    mainQueue.advance(0.001);
    EXPECT_EQ(button.clicks, 1);
}

class ShortDelayTest : public ::testing::Test, public ViewControllerWorld {
protected:
    ShortDelayTest() : ViewControllerWorld(0.5) {}
};

TEST_F(ShortDelayTest, AutoStartThatWaitsAnyLonger_IsLogged) {
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    EXPECT_TRUE(console.logged().contains(QStringLiteral("The first pass begins in 1.5 s")));
    mainQueue.advance(1.5);
    EXPECT_EQ(button.clicks, 1);
}

class SpreadFirstPassTest : public ::testing::Test, public ViewControllerWorld {
protected:
    SpreadFirstPassTest() : ViewControllerWorld(12.5) {
        defaults.setObject(prefAutoStartScanOnLaunch, true);
        controller.viewDidLoad();
    }
};

TEST_F(SpreadFirstPassTest, AutoStart_ComesSoMuchLater) {
    mainQueue.advance(13.4);
    EXPECT_EQ(button.clicks, 0);
    mainQueue.advance(0.2);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_TRUE(defaults.boolForKey(prefEnableScanning));
    EXPECT_TRUE(console.logged().contains(QStringLiteral("The first pass begins in 13.5 s")));
}

TEST_F(SpreadFirstPassTest, PersonWhoStartsMeanwhile_IsNotStopped) {
    mainQueue.advance(5);
    button.performClick();
    mainQueue.advance(10);
    EXPECT_EQ(button.clicks, 1);
    EXPECT_TRUE(defaults.boolForKey(prefEnableScanning));
}

TEST_F(SpreadFirstPassTest, PersonWhoStartsAndStopsMeanwhile_IsNotOverruled) {
    mainQueue.advance(5);
    button.performClick();
    mainQueue.advance(1);
    button.performClick();
    mainQueue.advance(10);
    EXPECT_EQ(button.clicks, 2);
    EXPECT_FALSE(defaults.boolForKey(prefEnableScanning));
}

TEST_F(ViewControllerTest, NoAutoStart_LeavesTheButtonAlone) {
    load();
    EXPECT_EQ(button.clicks, 0);
}

TEST_F(ViewControllerTest, UserNameChange_RebuildsTheSamplePathAndHostOrPathChangeDoesNot) {
    load();
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("h1"));
    defaults.setObject(prefRemotePath, QStringLiteral("p1"));
    mainQueue.advance(1.0);
    EXPECT_FALSE(defaults.object(prefSampleRemoteFullPath).isValid());
    EXPECT_EQ(console.printed(),
              (QStringList{
                  QString(cObserve + u".......keypath = prefRemoteBonjourName change = [new: h1]"),
                  QString(cObserve + u".......keypath = prefRemotePath change = [new: p1]")}));
    defaults.setObject(prefRemoteUsername, QStringLiteral("u1"));
    mainQueue.advance(0.099);
    EXPECT_FALSE(defaults.object(prefSampleRemoteFullPath).isValid());
    mainQueue.advance(0.001);
    EXPECT_EQ(defaults.stringForKey(prefSampleRemoteFullPath), QStringLiteral("u1@h1:p1"));
}

TEST_F(ViewControllerTest, RemovedKey_IsLoggedAndNothingMore) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("u"));
    load();
    defaults.removeObject(prefRemoteUsername);
    EXPECT_EQ(console.printed(),
              (QStringList{QString(cObserve + u".......keypath = prefRemoteUsername change = [:]"),
                           QString(cObserve + u".......UNABLE to get the new value????")}));
    const qsizetype lines = console.printed().size();
    mainQueue.runDue();
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_EQ(console.printed().size(), lines);
}

TEST_F(ViewControllerTest, ValueThatIsNoText_IsLoggedByItsType) {
    load();
    defaults.setObject(prefRemotePath, QVariantMap{{QStringLiteral("a"), 1}});
    EXPECT_EQ(console.printed(),
              QStringList{QString(cObserve + u".......keypath = prefRemotePath change = [new: "
                                             u"(QVariantMap)]")});
}

TEST_F(ViewControllerTest, EnableScanning_SetsTheTitle) {
    load();
    const auto titleAfter = [this](bool running, bool withSSH) {
        defaults.setObject(prefRsyncWithSSH, withSSH);
        mainQueue.advance(0.1);
        defaults.setObject(prefEnableScanning, qint64{running});
        mainQueue.advance(0.1);
        return button.title;
    };
    EXPECT_EQ(titleAfter(true, true), u"click to stop bonjour rsync");
    EXPECT_TRUE(console.printed().contains(QStringLiteral("New value => 1")));
    EXPECT_EQ(console.printed().last(), u"state is now IS RUNNING");
    EXPECT_EQ(titleAfter(false, true), u"click to restart rsync using bonjour");
    EXPECT_EQ(console.printed().last(), u"state is now OFF");
    EXPECT_EQ(titleAfter(true, false), u"click to stop rsync");
    EXPECT_EQ(titleAfter(false, false), u"click to restart rsync");
}

TEST_F(ViewControllerTest, UpdateStartButton_SetsTheTitleFromStateAndKind) {
    load();
    const auto titleFor = [this](int state, bool withSSH) {
        button.current = state;
        defaults.setObject(prefRsyncWithSSH, withSSH);
        mainQueue.advance(0.1);
        return button.title;
    };
    EXPECT_EQ(titleFor(1, true), u"click to stop bonjour rsync");
    EXPECT_EQ(titleFor(1, false), u"click to stop rsync");
    EXPECT_EQ(titleFor(0, true), u"click to start rsync using bonjour");
    EXPECT_EQ(titleFor(0, false), u"click to start rsync");
}

TEST_F(ViewControllerTest, OptionTagChange_RefreshesTheExample) {
    load();
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("r %@99 x %@99"));
    defaults.setObject(prefRsyncCommandOptionTag, 101);
    mainQueue.advance(0.1);
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample),
              QStringLiteral("r --update x --update"));
    for (const QStringView line :
         {u"Inside Kelvo_Mirror.ViewController->ibUpdateTabViewItem().......",
          u"current prefRsyncCommandOptionTag = 101",
          u"current optionstring for tag[101] = [--update]"})
        EXPECT_TRUE(console.printed().contains(line)) << line.toUtf8().constData();
}

TEST_F(ViewControllerTest, TemplateChanges_RefreshTheExampleOnceAndQuietly) {
    load();
    defaults.setObject(prefRsyncCommandOptionTag, 102);
    mainQueue.advance(1.0);
    console.clear();
    const std::size_t before = defaults.changes().size();
    for (const char* typed : {"r", "r %@", "r %@99 x %@99"})
        defaults.setObject(prefRsyncCommandString1, QString::fromLatin1(typed));
    mainQueue.advance(0.09);
    EXPECT_NE(defaults.stringForKey(prefRsyncCommandStringExample),
              QStringLiteral("r --ignore-existing x --ignore-existing"));
    mainQueue.advance(0.01);
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample),
              QStringLiteral("r --ignore-existing x --ignore-existing"));
    EXPECT_EQ(defaults.changes().size(), before + 4) << "three templates, one example";
    EXPECT_EQ(console.printed(), QStringList());
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("again %@99"));
    mainQueue.advance(0.1);
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample),
              QStringLiteral("again --ignore-existing"));
}

TEST_F(ViewControllerTest, TemplateChangeWithoutAnOption_LeavesTheExample) {
    for (const QVariant& tag : {QVariant(), QVariant(103)}) {
        // The program ends at a tag that does not exist; only a template may change here.
        MemoryDefaults store({{prefRsyncCommandStringExample.toString(), QStringLiteral("old")}});
        store.setObject(prefRsyncCommandOptionTag, tag);
        const RsyncCommand command(store, console);
        CommandExample example(store, mainQueue, command, console);
        example.followTemplate();
        store.setObject(prefRsyncCommandString1, QStringLiteral("new"));
        mainQueue.advance(0.1);
        EXPECT_EQ(store.stringForKey(prefRsyncCommandStringExample), QStringLiteral("old"));
    }
}

TEST_F(ViewControllerTest, ExampleWithoutTemplateOrTag_SaysSo) {
    load();
    controller.ibUpdateTabViewItem();
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample),
              cMissingRsyncCommandString1.toString());
    defaults.removeObject(prefRsyncCommandOptionTag);
    controller.ibUpdateTabViewItem();
    EXPECT_EQ(console.printed().last(),
              u"Inside Kelvo_Mirror.ViewController->ibUpdateTabViewItem().......UNABLE to get pref "
              u"value for key = [prefRsyncCommandOptionTag] ");
}

TEST_F(ViewControllerTest, WholePass_GoesThroughTheRealParts) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac"));
    defaults.setObject(prefRemotePath, QStringLiteral("Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("mine %@98 %@1 %@2"));
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    defaults.setObject(prefKeepConnection, true);
    defaults.setObject(prefDelayBetweenScans, 600.0);
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("mediauser\n"));
    controller.viewDidLoad();
    mainQueue.advance(1.0);
    bgQueue.runAll();
    mainQueue.advance(1.1);
    EXPECT_EQ(shell.commands().size(), 3);
    EXPECT_TRUE(shell.commands()[1].endsWith(u" mediauser@mac:Movies/ /in/"));
    EXPECT_EQ(field->shown.back().string, u"Resting a bit ...");
    EXPECT_EQ(connection.opened.size(), 1U);
    EXPECT_FALSE(connection.isOpen()) << "no connection is kept over so long a rest";
    mainQueue.advance(0.2);
    EXPECT_TRUE(view.works.back().nextPass.startsWith(u"Next pass in "));
    (*view.attention)(Attention::Unseen);
    mainQueue.advance(0.2);
    EXPECT_EQ(view.works.back().nextPass, QString()) << "nobody sees it";
}

TEST_F(ViewControllerTest, CancelledPass_IsShownAtOnceThoughNobodyLooks) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac"));
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    std::vector<WorkPhase> phases;
    shell.answerTo(QStringLiteral("whoami"), [&](const QString&) {
        mainQueue.advance(1);
        phases.push_back(view.works.back().phase);
        controller.cancelPass();
        mainQueue.advance(0.2);
        phases.push_back(view.works.back().phase);
        return QStringLiteral("mediauser");
    });
    load();
    (*view.attention)(Attention::Unseen);
    button.performClick();
    bgQueue.runAll();
    EXPECT_EQ(phases, (std::vector{WorkPhase::Running, WorkPhase::Cancelling}));
}

TEST_F(ViewControllerTest, MacThatIsNotReachedTenTimes_IsAnAlertOnTheWindow) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac"));
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("Permission denied"), 255);
    load();
    button.performClick();
    for (int failure = 0; failure < 10; ++failure) {
        EXPECT_TRUE(presenter.alerts.empty()) << failure;
        bgQueue.runAll();
        mainQueue.advance(40);
    }
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.front().messageText, u"Unable to Reach Remote Host");
}

TEST_F(ViewControllerTest, Work_ReachesViewAndMenuAlike) {
    load();
    ASSERT_FALSE(view.works.empty());
    EXPECT_EQ(view.works.back().phase, WorkPhase::Off);
    PassRecord pass;
    pass.cause = PassCause::DiskFull;
    passStore.append(pass);
    mainQueue.advance(0.2);
    EXPECT_EQ(view.works.back().health.sign, HealthSign::Trouble);
    EXPECT_EQ(menu.works, view.works);
    tray.setPresent(true);
    EXPECT_EQ(menu.visible(), StatusMenuState::Trouble);
    EXPECT_EQ(controller.work().health, view.works.back().health);
}

TEST_F(ViewControllerTest, ShowActivity_BringsTheWindowUpAtThePass) {
    load();
    application.requests.clear();
    controller.showActivity(7);
    EXPECT_EQ(application.requests, std::vector<std::string>{"bringToFront"});
    EXPECT_EQ(activityShown, std::vector{std::optional<qint64>(7)});
}

} // namespace
} // namespace kelvo
