// Every control of the real window wired to the real controller in a pretend world.
#include "app/start/app_delegate.h"
#include "app/start/interface_registry.h"
#include "app/version.h"
#include "app/window/window_actions.h"
#include "fakes/memory_log_file.h"
#include "fakes/recording_notices.h"
#include "fakes/view_controller_world.h"
#include "ui/close_policy.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/sheet_presenter.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <stdexcept>

namespace kelvo {
namespace {

const QString cSenderIsThePathControl =
    QStringLiteral("Inside Kelvo_Mirror.ViewController->ibRevealInFinderAction(_:)"
                   ".......sender = <PathControl");
const QString cTestFolder =
    QStringLiteral("openFile /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer");

class WindowActionsTest : public ::testing::Test, public ViewControllerWorld {
protected:
    WindowActionsTest() {
        load();
        sendWindowActions(mainWindow, controller, workspace, shownPath, onceButtons);
    }

    void click(const char* name) { mainWindow.button(QString::fromLatin1(name)).click(); }
    bool printed(const QString& start) const {
        return !console.printed().filter(start).isEmpty() ||
               !console.logged().filter(start).isEmpty();
    }

    RecordingNotices notices;
    MainWindow mainWindow{defaults, mainQueue};
    std::shared_ptr<WidgetPathControl> shownPath =
        std::make_shared<WidgetPathControl>(mainWindow.fNsPathControl1());
    OnceButtons onceButtons;
};

TEST_F(WindowActionsTest, NoButton_IsDead) {
    mainWindow.setDiagnosticsShown(true);
    mainWindow.showWork({.phase = WorkPhase::Running, .maySyncNow = true, .mayCancel = true});
    for (const QPushButton* found : mainWindow.findChildren<QPushButton*>())
        EXPECT_TRUE(found->isEnabled()) << qPrintable(found->objectName());
}

TEST_F(WindowActionsTest, QuitWhileAMovieIsCopied_AsksUntilItIsNotToBeAskedAgain) {
    SheetPresenter alerts(
        {.mainWindow = mainWindow, .mainQueue = mainQueue, .notices = notices, .showWhy = [] {}});
    const ClosePolicy policy;
    int asked = 0;
    const auto quitAnd = [&](Qt::Key key, bool tick) {
        QTimer::singleShot(0, &mainWindow, [&, key, tick] {
            auto* box = mainWindow.findChild<QMessageBox*>(QStringLiteral("alert"));
            if (!box)
                return;
            ++asked;
            EXPECT_TRUE(box->informativeText().startsWith(
                u"The pass that runs will be ended: Feature.mkv, 48 %."));
            EXPECT_EQ(box->checkBox()->text(), u"Do not ask again");
            if (tick)
                QTest::keyClick(box->checkBox(), Qt::Key_Space);
            QTest::keyClick(box, key);
        });
        const bool may = askBeforeQuitting(mainWindow.work(), policy, defaults, alerts);
        QCoreApplication::processEvents();
        return may;
    };
    EXPECT_TRUE(quitAnd(Qt::Key_Escape, false));
    EXPECT_EQ(asked, 0) << "nothing is being copied";
    mainWindow.showWork(
        {.phase = WorkPhase::Running, .file = QStringLiteral("Feature.mkv"), .share = 0.48});
    EXPECT_FALSE(quitAnd(Qt::Key_Escape, true));
    EXPECT_FALSE(defaults.boolForKey(prefQuitWithoutAsking)) << "who stays is asked again";
    EXPECT_TRUE(quitAnd(Qt::Key_Return, false));
    EXPECT_TRUE(quitAnd(Qt::Key_Return, true));
    EXPECT_EQ(asked, 3);
    EXPECT_TRUE(defaults.boolForKey(prefQuitWithoutAsking));
    EXPECT_TRUE(quitAnd(Qt::Key_Escape, false));
    EXPECT_EQ(asked, 3);
}

TEST_F(WindowActionsTest, Arrival_IsOpened) {
    mainWindow.syncTab().recentArrivals().setStore(passStore);
    PassRecord pass;
    pass.arrivals.push_back({"/in/box/new.mkv", 1, now});
    passStore.append(pass);
    mainWindow.show();
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        mainQueue.runDue();
    }
    auto* list = mainWindow.findChild<QTreeWidget*>(QStringLiteral("arrivals"));
    ASSERT_NE(list, nullptr);
    list->setCurrentItem(list->topLevelItem(0));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("openFile /in/box/new.mkv")});
}

TEST_F(WindowActionsTest, ClickOnTheSourcePath_SendsTheControlsActionAlone) {
    defaults.setObject(prefPath1, QStringLiteral("/Users/me/Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in/box"));
    mainQueue.runDue();
    console.clear();
    mainWindow.fNsPathControl1().findChild<QToolButton*>(QStringLiteral("part2"))->click();
    EXPECT_TRUE(printed(cSenderIsThePathControl));
    EXPECT_EQ(workspace.requests, QStringList{cTestFolder});
}

TEST_F(WindowActionsTest, RevealTestFolder_HasThePathControlForItsSender) {
    defaults.setObject(prefPath1, QStringLiteral("/Users/me/Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in/box"));
    mainWindow.setDiagnosticsShown(true);
    mainQueue.runDue();
    console.clear();
    click("ibRevealInFinderAction");
    EXPECT_TRUE(printed(cSenderIsThePathControl));
    EXPECT_TRUE(printed(QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                       "ibRevealInFinderAction(_:).......url = file:///Users/me")));
    EXPECT_EQ(workspace.requests, QStringList{cTestFolder});
}

TEST_F(WindowActionsTest, DiagnosticsShownAgain_ActOnceAClick) {
    for (const bool shown : {true, false, true})
        mainWindow.setDiagnosticsShown(shown);
    console.clear();
    click("ibOpenTempFolder");
    EXPECT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(onceButtons.size(), 2U);
}

TEST_F(WindowActionsTest, ContextMenuOfAPath_OpensThePart) {
    defaults.setObject(prefPath1, QStringLiteral("/Users/me/Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in/box"));
    mainQueue.runDue();
    console.clear();
    for (const auto& [view, part] : {std::pair(&mainWindow.fNsPathControl1(), "part2"),
                                     std::pair(&mainWindow.destinationPath(), "part1")})
        view->findChild<QToolButton*>(QString::fromLatin1(part))->actions().at(0)->trigger();
    EXPECT_EQ(workspace.requests,
              (QStringList{QStringLiteral("openFile /Users/me"), QStringLiteral("openFile /in")}));
    EXPECT_FALSE(printed(QStringLiteral("Inside ")));
}

TEST_F(WindowActionsTest, ClickOnTheDestination_OpensThePart) {
    defaults.setObject(prefPath2, QStringLiteral("/in/box"));
    mainQueue.runDue();
    mainWindow.destinationPath().findChild<QToolButton*>(QStringLiteral("part1"))->click();
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("openFile /in")});
}

TEST_F(WindowActionsTest, TabAndEndOfEditing_ReachTheController) {
    mainWindow.show();
    QApplication::setActiveWindow(&mainWindow);
    mainWindow.showTab(QStringLiteral("prefs"));
    EXPECT_TRUE(printed(QStringLiteral("tabView(_:willSelect:).......identifier = "
                                       "Optional(\"prefs\")")));
    mainWindow.showTab(QStringLiteral("remote"));
    auto* user = mainWindow.findChild<QLineEdit*>(QStringLiteral("remoteUser"));
    user->setFocus();
    QTest::keyClicks(user, QStringLiteral("ann"));
    QTest::keyClick(user, Qt::Key_Return);
    EXPECT_TRUE(printed(QStringLiteral("controlTextDidEndEditing(_:)")));
    EXPECT_TRUE(user->hasFocus());
    mainQueue.advance(0.1);
    EXPECT_FALSE(user->hasFocus());
}

/// The entries of the menu bar, with a delegate and a tray behind them.
class MenuActionsTest : public WindowActionsTest {
protected:
    MenuActionsTest() {
        bundle.addPropertyList(QStringLiteral("FactoryDefaults"), QVariantMap());
        tray.setPresent(true);
        addMenu();
        mainWindow.show();
    }
    void addMenu() {
        addApplicationMenu(
            mainWindow, controller, delegate, menu, workspace, QStringLiteral("/log folder"),
            [this] { done.append(QStringLiteral("anotherMac")); },
            [this] {
                done.append(QStringLiteral("asked"));
                return mayQuit;
            },
            [this] { done.append(QStringLiteral("quit")); });
    }
    QAction& entry(const QString& name) const {
        auto* const action = mainWindow.menuBar()->findChild<QAction*>(name);
        if (!action)
            throw std::out_of_range(name.toStdString());
        return *action;
    }
    QAction& entry(const char* name) const { return entry(QString::fromLatin1(name)); }
    void choose(const char* name) { entry(name).trigger(); }
    /// The entries for tabs that can be seen, the chosen one with a "*".
    QStringList tabEntries() const {
        QStringList titles;
        for (int number = 1; number <= 5; ++number) {
            const auto* action =
                mainWindow.menuBar()->findChild<QAction*>(u"showTab" + QString::number(number));
            if (action && action->isVisible())
                titles.append(action->text() + (action->isChecked() ? u"*" : u""));
        }
        return titles;
    }
    QStringList tabTitles(int chosen) const {
        QStringList titles;
        for (const MainWindow::Tab& tab : mainWindow.tabs())
            titles.append(u'&' + QString::number(titles.size() + 1) + u' ' + tab.label +
                          (titles.size() == chosen ? u"*" : u""));
        return titles;
    }

    MemoryLogFile logFile;
    InterfaceRegistry storyboard;
    AppDelegate delegate{{
        .console = console,
        .logger = logFile,
        .defaults = defaults,
        .mainBundle = bundle,
        .autoRelaunchUnless = [this](unsigned long, double, const RelaunchEscape&) { ++watchdogs; },
        .storyboard = storyboard,
        .logCurrentSystemInfo = [] {},
        .checkForDuplicateRunningInstances = [] {},
        .makeStatusMenuHandler =
            [this] { return std::make_unique<KelvoStatusMenuHandler>(statusMenu, console); },
        .runningApplication = QStringLiteral("<this process>"),
    }};
    bool mayQuit = false;
    QStringList done;
    int watchdogs = 0; ///< set up so far
};

TEST_F(MenuActionsTest, ProgramThatMayNotEnd_IsNeitherEndedNorStartedAgain) {
    choose("quit");
    choose("quitAndRelaunch");
    EXPECT_EQ(done, (QStringList{"asked", "asked"}));
    mainQueue.advance(1);
    EXPECT_EQ(relaunches, 0);
    mayQuit = true;
    choose("quit");
    EXPECT_EQ(done.last(), u"quit");
    choose("quitAndRelaunch");
    mainQueue.advance(1);
    EXPECT_EQ(relaunches, 1);
}

TEST_F(MenuActionsTest, EntriesOfTheWindow_ShowWhatTheyName) {
    choose("showSettings");
    EXPECT_EQ(mainWindow.currentTab(), 2);
    choose("showTab1");
    EXPECT_EQ(mainWindow.currentTab(), 0);
    EXPECT_FALSE(mainWindow.diagnosticsAreShown());
    choose("showDiagnostics");
    EXPECT_TRUE(mainWindow.diagnosticsAreShown());
    choose("openLogFolder");
    EXPECT_EQ(workspace.requests.last(), u"openFile /log folder");
    choose("anotherMac");
    EXPECT_EQ(done, QStringList{"anotherMac"});
    choose("closeWindow");
    EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MenuActionsTest, StartOrStop_ClicksTheStartButton) {
    choose("startOrStop");
    EXPECT_TRUE(
        printed(QStringLiteral("Inside Kelvo_Mirror.ViewController->ibStartRSyncProcess(_:)")));
}

TEST_F(MenuActionsTest, Tabs_AreListedAsTheWindowHasThem) {
    EXPECT_EQ(tabEntries(), tabTitles(0));
    EXPECT_FALSE(entry("showDiagnostics").isChecked());
    EXPECT_FALSE(entry("setupWatchdog").isVisible());
    mainWindow.showTab(2);
    EXPECT_EQ(tabEntries(), tabTitles(2));
    const qsizetype before = tabEntries().size();
    mainWindow.setDiagnosticsShown(true);
    EXPECT_EQ(tabEntries().size(), before + 1);
    // A menu that comes later shows the same.
    for (const bool anew : {false, true}) {
        if (anew)
            addMenu();
        EXPECT_EQ(tabEntries(), tabTitles(mainWindow.currentTab())) << anew;
        EXPECT_TRUE(entry("showDiagnostics").isChecked()) << anew;
        EXPECT_TRUE(entry("setupWatchdog").isVisible()) << anew;
    }
}

TEST_F(MenuActionsTest, EntriesOfPasses_FollowTheWork) {
    mainWindow.showWork({.phase = WorkPhase::Resting, .maySyncNow = true});
    EXPECT_TRUE(entry("syncNow").isEnabled());
    EXPECT_FALSE(entry("cancelPass").isEnabled());
    mainWindow.showWork({.phase = WorkPhase::Running, .mayCancel = true});
    EXPECT_FALSE(entry("syncNow").isEnabled());
    EXPECT_TRUE(entry("cancelPass").isEnabled());
    EXPECT_EQ(entry("startOrStop").text(), u"&Start Syncing");
    for (const bool anew : {false, true}) {
        mainWindow.ibStartButton().setChecked(true);
        if (anew)
            addMenu();
        EXPECT_EQ(entry("startOrStop").text(), u"&Stop Syncing") << anew;
    }
}

TEST_F(MenuActionsTest, SyncNowAndCancel_ConcernTheControllersPasses) {
    defaults.setObject(prefRsyncWithSSH, false);
    defaults.setObject(prefPath1, QStringLiteral("/from"));
    defaults.setObject(prefPath2, QStringLiteral("/to"));
    defaults.setObject(prefDelayBetweenScans, 300.0);
    defaults.setObject(prefEnableScanning, false);
    defaults.setObject(prefIsScanning, false);
    mainWindow.showWork({.phase = WorkPhase::Running, .maySyncNow = true, .mayCancel = true});
    button.performClick();
    choose("cancelPass");
    bgQueue.runAll();
    ASSERT_EQ(passes.size(), 1U);
    EXPECT_EQ(passes[0].cause, PassCause::Cancelled);
    mainQueue.advance(5);
    choose("syncNow");
    bgQueue.runAll();
    EXPECT_EQ(passes.size(), 2U);
}

TEST_F(MenuActionsTest, EntriesOfTheTray_ActAndFollowTheIcon) {
    mainWindow.showWork({.phase = WorkPhase::Resting});
    EXPECT_TRUE(entry("setupStatusItem").isEnabled());
    EXPECT_FALSE(entry("removeStatusItem").isEnabled());
    choose("setupStatusItem");
    EXPECT_TRUE(menu.visible());
    EXPECT_FALSE(entry("setupStatusItem").isEnabled());
    EXPECT_EQ(entry("setupStatusItem").toolTip(), u"The icon is in the tray already");
    EXPECT_TRUE(entry("removeStatusItem").isEnabled());
    tray.setPresent(false);
    mainWindow.showWork({.phase = WorkPhase::Off});
    EXPECT_EQ(entry("setupStatusItem").toolTip(),
              u"The icon appears as soon as the desktop has a tray for it");
    tray.setPresent(true);
    for (const char* remove : {"removeStatusItem", "delegateQuitAndRelaunch"}) {
        choose(remove);
        EXPECT_FALSE(menu.visible()) << remove;
        choose("setupStatusItem");
        EXPECT_TRUE(menu.visible()) << remove;
    }
    choose("setupWatchdog");
    EXPECT_EQ(watchdogs, 1);
}

TEST_F(MenuActionsTest, About_NamesTheProgramAndItsVersion) {
    mainWindow.setWindowIcon(QPixmap(256, 256));
    bool seen = false;
    QTimer::singleShot(0, &mainWindow, [&] {
        auto* const box = mainWindow.findChild<QMessageBox*>();
        if (!box)
            return;
        seen = true;
        EXPECT_EQ(box->windowTitle(), u"About Kelvo Mirror");
        EXPECT_EQ(box->text(), QString(u"Kelvo Mirror " + QStringView(cVersion)));
        EXPECT_EQ(box->informativeText(),
                  u"Keeps a local folder supplied with movie files from a remote Mac.");
        EXPECT_EQ(box->iconPixmap().deviceIndependentSize(), QSizeF(64, 64));
        QTest::keyClick(box, Qt::Key_Return);
    });
    choose("about");
    EXPECT_TRUE(seen);
}

} // namespace
} // namespace kelvo
