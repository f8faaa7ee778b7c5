// Every control of the real window wired to the real controller in a pretend world.
#include "app/window/window_actions.h"
#include "fakes/recording_notices.h"
#include "fakes/view_controller_world.h"
#include "ui/close_policy.h"
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
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

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

} // namespace
} // namespace kelvo
