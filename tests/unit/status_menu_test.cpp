#include "adapters/console/headless_desktop.h"
#include "fakes/fake_front.h"
#include "fakes/fake_status_menu.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/main_window_controller.h"
#include "ui/status_menu_presence.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum StatusMenuState;

struct ShownWindow {
    int shows = 0;
    MainWindowController controller{[this] { ++shows; }};
};

struct FakeMainView final : MainViewController {
    QString description() const override { return {}; }
    void viewDidLoad() override {}
    void clickStartButton() override { ++clicks; }
    void syncNow() override { asked << QStringLiteral("syncNow"); }
    void cancelPass() override { asked << QStringLiteral("cancelPass"); }
    void showActivity(std::optional<qint64> pass) override {
        asked << (pass ? QString::number(*pass) : QStringLiteral("showActivity"));
    }
    void revealFolder() override { asked << QStringLiteral("revealFolder"); }
    void menuShown(bool shown) override {
        asked << (shown ? QStringLiteral("menu opened") : QStringLiteral("menu closed"));
    }
    void quitAndRelaunch() override { ++relaunches; }
    int clicks = 0;
    int relaunches = 0;
    QStringList asked; ///< what else was asked for
};

class StatusMenuTest : public ::testing::Test {
protected:
    StatusMenuTest() { host.setPresent(true); }

    void set(QStringView key, bool value) {
        defaults.setObject(key, value);
        mainQueue.advance(0);
    }

    void work(HealthSign sign) {
        presence.showWork({.headline = QStringLiteral("the headline"), .health = {.sign = sign}});
    }

    FakeTrayHost host;
    FakeStatusMenu menu{host};
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    int quits = 0;
    StatusMenuPresence presence{menu, defaults, mainQueue, [this] { ++quits; }};
    KelvoStatusMenuHandler delegates{presence, console};
    KelvoStatusMenuHandler views{presence, console};
};

class StatusMenuPresenceTest : public StatusMenuTest {
protected:
    /// Chooses each entry once.
    void expectEveryEntryActs(const ShownWindow& window, const FakeMainView& mainView) {
        menu.choose(&StatusMenuActions::showWindow);
        menu.choose(&StatusMenuActions::startOrStop);
        menu.choose(&StatusMenuActions::quitAndRelaunch);
        menu.choose(&StatusMenuActions::quit);
        EXPECT_EQ(window.shows, 1);
        EXPECT_EQ(mainView.clicks, 1);
        EXPECT_EQ(mainView.relaunches, 1);
        EXPECT_EQ(quits, 1);
    }
};
class KelvoStatusMenuHandlerTest : public StatusMenuTest {};

TEST_F(KelvoStatusMenuHandlerTest, NotSetUp_ShowsNothing) {
    delegates.removeStatusMenuStuff();
    set(prefIsScanning, true);
    work(HealthSign::Trouble);
    EXPECT_TRUE(menu.shown.empty());
    EXPECT_EQ(menu.hides, 0);
}

TEST_F(KelvoStatusMenuHandlerTest, BothSetUp_ShowOneIconAndEitherRemovesIt) {
    for (KelvoStatusMenuHandler* remover : {&delegates, &views}) {
        EXPECT_FALSE(delegates.isSetUp());
        delegates.setupStatusMenuStuff();
        views.setupStatusMenuStuff();
        EXPECT_EQ(menu.visible(), Off);
        EXPECT_TRUE(delegates.isSetUp());
        remover->removeStatusMenuStuff();
        EXPECT_EQ(menu.visible(), std::nullopt);
        EXPECT_FALSE(delegates.isSetUp());
    }
    EXPECT_EQ(menu.shown, (std::vector{Off, Off}));
    EXPECT_EQ(menu.hides, 2);
}

TEST_F(KelvoStatusMenuHandlerTest, RemovedByOneThatNeverSetItUp_Stays) {
    delegates.setupStatusMenuStuff();
    views.removeStatusMenuStuff();
    EXPECT_EQ(menu.visible(), Off);
}

TEST_F(KelvoStatusMenuHandlerTest, SetUpTwice_CountsOnce) {
    delegates.setupStatusMenuStuff();
    delegates.setupStatusMenuStuff();
    delegates.removeStatusMenuStuff();
    EXPECT_EQ(menu.visible(), std::nullopt);
    delegates.removeStatusMenuStuff();
    EXPECT_EQ(menu.hides, 1);
}

TEST_F(KelvoStatusMenuHandlerTest, SetUpAgain_ShowsTheIconAgain) {
    delegates.setupStatusMenuStuff();
    delegates.removeStatusMenuStuff();
    set(prefIsScanning, true);
    delegates.setupStatusMenuStuff();
    EXPECT_EQ(menu.visible(), Running);
}

TEST_F(KelvoStatusMenuHandlerTest, Destroyed_TheIconGoesWithTheLast) {
    {
        KelvoStatusMenuHandler passing(presence, console);
        passing.setupStatusMenuStuff();
        EXPECT_EQ(menu.visible(), Off);
    }
    EXPECT_EQ(menu.visible(), std::nullopt);
    views.setupStatusMenuStuff();
    {
        KelvoStatusMenuHandler passing(presence, console);
        passing.setupStatusMenuStuff();
    }
    EXPECT_EQ(menu.visible(), Off);
    {
        KelvoStatusMenuHandler passing(presence, console);
        passing.setupStatusMenuStuff();
        views.removeStatusMenuStuff();
    }
    EXPECT_EQ(menu.visible(), std::nullopt) << "what was removed does not come back";
}

TEST_F(KelvoStatusMenuHandlerTest, DelegateFunctions_OnlyPrintTheirLines) {
    delegates.delegatefunction1();
    delegates.delegatefunction2();
    EXPECT_EQ(
        console.printed(),
        (QStringList{
            QStringLiteral("Inside SupportKit.KelvoStatusMenuHandler->delegatefunction1()......."),
            QStringLiteral("Inside SupportKit.KelvoStatusMenuHandler->delegatefunction2()......."),
        }));
    EXPECT_TRUE(menu.shown.empty());
}

TEST_F(KelvoStatusMenuHandlerTest, Properties_ReadBack) {
    ShownWindow window;
    FakeMainView mainView;
    EXPECT_EQ(delegates.fWindowController(), nullptr);
    EXPECT_EQ(delegates.fMainVC(), nullptr);
    delegates.setWindowController(&window.controller);
    delegates.setMainVC(&mainView);
    EXPECT_EQ(delegates.fWindowController(), &window.controller);
    EXPECT_EQ(delegates.fMainVC(), &mainView);
    EXPECT_EQ(views.fMainVC(), nullptr);
}

TEST_F(KelvoStatusMenuHandlerTest, Description_NamesTypeAndTellsHandlersApart) {
    EXPECT_EQ(delegates.description(),
              QString(u"<SupportKit.KelvoStatusMenuHandler: 0x" +
                      QString::number(reinterpret_cast<quintptr>(&delegates), 16) + u'>'));
    EXPECT_NE(delegates.description(), views.description());
}

TEST_F(StatusMenuPresenceTest, Entries_ReachTheTargetsOfWhicheverHandlerHasThem) {
    ShownWindow window;
    FakeMainView mainView;
    delegates.setupStatusMenuStuff();
    views.setupStatusMenuStuff();
    delegates.setMainVC(&mainView);
    views.setWindowController(&window.controller);
    expectEveryEntryActs(window, mainView);
}

TEST_F(StatusMenuPresenceTest, TwoHandlersWithTheSameWindow_ShowItOnce) {
    ShownWindow window;
    for (auto* handler : {&delegates, &views}) {
        handler->setWindowController(&window.controller);
        handler->setupStatusMenuStuff();
    }
    menu.choose(&StatusMenuActions::showWindow);
    EXPECT_EQ(window.shows, 1);
}

TEST_F(StatusMenuPresenceTest, MissingTargets_MakeAnEntryDoNothing) {
    delegates.setupStatusMenuStuff();
    EXPECT_TRUE(menu.choose(&StatusMenuActions::showWindow));
    EXPECT_TRUE(menu.choose(&StatusMenuActions::startOrStop));
    EXPECT_TRUE(menu.choose(&StatusMenuActions::quitAndRelaunch));
    EXPECT_EQ(quits, 0);
}

TEST_F(StatusMenuPresenceTest, SetUpByAnotherAfterARemoval_EveryEntryActs) {
    ShownWindow window;
    FakeMainView mainView;
    delegates.setupStatusMenuStuff();
    delegates.setWindowController(&window.controller);
    delegates.setMainVC(&mainView);
    views.setupStatusMenuStuff();
    delegates.removeStatusMenuStuff();
    views.setupStatusMenuStuff();
    expectEveryEntryActs(window, mainView);
}

TEST_F(StatusMenuPresenceTest, HandlerThatIsGone_IsNotActedOn) {
    ShownWindow first;
    ShownWindow second;
    views.setWindowController(&second.controller);
    {
        KelvoStatusMenuHandler passing(presence, console);
        passing.setWindowController(&first.controller);
        passing.setupStatusMenuStuff();
        views.setupStatusMenuStuff();
    }
    menu.choose(&StatusMenuActions::showWindow);
    EXPECT_EQ(first.shows, 0);
    EXPECT_EQ(second.shows, 1);
}

TEST_F(StatusMenuPresenceTest, HandlerThatGoesAfterARemoval_DoesNotBringTheIconBack) {
    {
        KelvoStatusMenuHandler passing(presence, console);
        passing.setupStatusMenuStuff();
        views.setupStatusMenuStuff();
        views.removeStatusMenuStuff();
        EXPECT_EQ(menu.visible(), std::nullopt);
    }
    EXPECT_EQ(menu.visible(), std::nullopt);
}

TEST(StatusMenuStateTest, Table) {
    struct Case {
        bool enabled, scanning, trouble;
        StatusMenuState state;
    };
    for (const Case& c : {Case{false, false, false, Off}, Case{true, false, false, Resting},
                          Case{true, true, false, Running}, Case{false, true, false, Running},
                          Case{false, false, true, Trouble}, Case{true, false, true, Trouble},
                          Case{true, true, true, Trouble}, Case{false, true, true, Trouble}})
        EXPECT_EQ(statusMenuState(c.enabled, c.scanning, c.trouble), c.state)
            << c.enabled << c.scanning << c.trouble;
}

TEST_F(StatusMenuPresenceTest, Settings_ChangeTheIconLaterOnTheMainQueue) {
    delegates.setupStatusMenuStuff();
    defaults.setObject(prefEnableScanning, qint64{1});
    EXPECT_EQ(menu.visible(), Off);
    mainQueue.advance(0);
    EXPECT_EQ(menu.visible(), Resting);
    set(prefIsScanning, true);
    EXPECT_EQ(menu.visible(), Running);
    set(prefEnableScanning, false);
    EXPECT_EQ(menu.visible(), Running);
    set(prefIsScanning, false);
    EXPECT_EQ(menu.shown, (std::vector{Off, Resting, Running, Off}));
}

TEST_F(StatusMenuPresenceTest, EqualState_IsNotShownAgain) {
    delegates.setupStatusMenuStuff();
    set(prefIsScanning, false);
    work(HealthSign::Well);
    set(prefEnableScanning, false);
    EXPECT_EQ(menu.shown, std::vector{Off});
}

TEST_F(StatusMenuPresenceTest, StartTitle_FollowsTheSwitch) {
    delegates.setupStatusMenuStuff();
    EXPECT_EQ(menu.startTitle, u"Start Syncing");
    set(prefEnableScanning, true);
    EXPECT_EQ(menu.startTitle, u"Stop Syncing");
    set(prefIsScanning, true);
    EXPECT_EQ(menu.startTitle, u"Stop Syncing");
    set(prefEnableScanning, false);
    EXPECT_EQ(menu.startTitle, u"Start Syncing");
}

TEST_F(StatusMenuPresenceTest, Destroyed_HidesAndLetsGoOfTheSettings) {
    int passingQuits = 0;
    auto passing = std::make_unique<StatusMenuPresence>(menu, defaults, mainQueue,
                                                        [&passingQuits] { ++passingQuits; });
    const StatusMenuTargets targets;
    passing->show(targets);
    EXPECT_EQ(menu.visible(), Off);
    passing.reset();
    EXPECT_EQ(menu.visible(), std::nullopt);
    set(prefIsScanning, true);
    EXPECT_EQ(menu.visible(), std::nullopt);
    menu.show(Off);
    menu.choose(&StatusMenuActions::quit);
    EXPECT_EQ(passingQuits, 0) << "nobody is left to act";
}

TEST_F(StatusMenuPresenceTest, Trouble_IsWhatTheHealthSays) {
    delegates.setupStatusMenuStuff();
    work(HealthSign::Trouble);
    EXPECT_EQ(menu.visible(), Trouble);
    set(prefIsScanning, true);
    EXPECT_EQ(menu.visible(), Trouble) << "a pass that asks again mends nothing yet";
    work(HealthSign::Well);
    EXPECT_EQ(menu.visible(), Running);
    ASSERT_EQ(menu.works.size(), 2U);
    EXPECT_EQ(menu.works.front().headline, u"the headline");
}

TEST_F(StatusMenuPresenceTest, TroubleBeforeSetUp_IsRemembered) {
    work(HealthSign::Trouble);
    EXPECT_EQ(menu.visible(), std::nullopt);
    delegates.setupStatusMenuStuff();
    EXPECT_EQ(menu.visible(), Trouble);
}

TEST_F(StatusMenuPresenceTest, EntriesOfTheWork_ReachTheMainView) {
    FakeMainView mainView;
    delegates.setupStatusMenuStuff();
    presence.showWork({.maySyncNow = true, .mayCancel = true});
    menu.choose(&StatusMenuActions::syncNow);
    EXPECT_TRUE(mainView.asked.isEmpty()) << "nobody is there to be asked";
    delegates.setMainVC(&mainView);
    menu.choose(&StatusMenuActions::syncNow);
    menu.choose(&StatusMenuActions::cancelPass);
    menu.choose(&StatusMenuActions::showActivity);
    menu.choose(&StatusMenuActions::revealFolder);
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    mainQueue.advance(0);
    menu.choose(&StatusMenuActions::revealFolder);
    menu.openMenu(true);
    menu.openMenu(false);
    EXPECT_EQ(mainView.asked,
              (QStringList{QStringLiteral("syncNow"), QStringLiteral("cancelPass"),
                           QStringLiteral("showActivity"), QStringLiteral("revealFolder"),
                           QStringLiteral("menu opened"), QStringLiteral("menu closed")}));
}

TEST(HeadlessStatusMenuTest, Shown_IsStillOutOfReach) {
    HeadlessStatusMenu menu;
    menu.setStartTitle(QStringLiteral("Start"));
    menu.show(Running);
    EXPECT_FALSE(menu.isReachable());
    menu.hide();
    EXPECT_FALSE(menu.isReachable());
}

} // namespace
} // namespace kelvo
