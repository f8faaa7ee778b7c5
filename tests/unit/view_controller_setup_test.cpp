// The steps that set the main view up, one by one on virtual time.
#include "fakes/view_controller_world.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString inside(const char* operation, const QString& detail = QStringLiteral(".......")) {
    return u"Inside Kelvo_Mirror.ViewController->" + QString::fromLatin1(operation) + detail;
}

QString pointerText(const void* object) {
    return QStringLiteral("0x") + QString::number(reinterpret_cast<quintptr>(object), 16);
}

class ViewControllerSetupTest : public ::testing::Test, public ViewControllerWorld {};

TEST_F(ViewControllerSetupTest, Load_AsksForTheTrayIconAndPrintsTheRevealButtons) {
    tray.setPresent(true);
    controller.viewDidLoad();
    mainQueue.runDue();
    EXPECT_EQ(menu.visible(), StatusMenuState::Off);
    EXPECT_EQ(console.printed()[1], QString(u"self.ibRevealButton1 = Optional(<NSButton: " +
                                            pointerText(&revealButton1) + u">)"));
    EXPECT_EQ(console.printed()[2], QString(u"self.ibRevealButton2 = Optional(<NSButton: " +
                                            pointerText(&revealButton2) + u">)"));
}

TEST_F(ViewControllerSetupTest, Description_NamesTypeAndPlace) {
    EXPECT_EQ(controller.description(),
              QString(u"<Kelvo_Mirror.ViewController: " + pointerText(&controller) + u'>'));
    EXPECT_EQ(windowController.description(),
              QString(u"<NSWindowController: " + pointerText(&windowController) + u'>'));
}

TEST_F(ViewControllerSetupTest, Hide_ComesAtSixTenthsWhenAskedFor) {
    defaults.setObject(prefHideOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(0.599);
    EXPECT_TRUE(application.requests.empty());
    mainQueue.advance(0.001);
    EXPECT_EQ(application.requests, std::vector<std::string>{"hide"});
}

TEST_F(ViewControllerSetupTest, Hide_IsDecidedWhenItIsDue) {
    controller.viewDidLoad();
    mainQueue.advance(0.5);
    defaults.setObject(prefHideOnLaunch, true);
    mainQueue.advance(0.1);
    EXPECT_EQ(application.requests, std::vector<std::string>{"hide"});
}

TEST_F(ViewControllerSetupTest, NotHidden_ComesToTheFront) {
    controller.viewDidLoad();
    mainQueue.advance(2.0);
    EXPECT_EQ(application.requests, std::vector<std::string>{"bringToFront"});
}

TEST_F(ViewControllerSetupTest, WindowController_IsHandedOverOnceThereIsOne) {
    tray.setPresent(true);
    window = nullptr;
    controller.viewDidLoad();
    mainQueue.advance(0.35);
    ASSERT_TRUE(menu.choose(&StatusMenuActions::showWindow));
    EXPECT_EQ(windowShown, 0);
    EXPECT_EQ(console.printed().filter(QStringLiteral("windowController")), QStringList());
    window = &windowController;
    mainQueue.advance(0.1);
    EXPECT_EQ(
        console.printed().filter(QStringLiteral("windowController")),
        QStringList{inside("viewDidLoad()", QString(u".......self.view.window?.windowController = "
                                                    u"Optional(<NSWindowController: " +
                                                    pointerText(&windowController) + u">)"))});
    ASSERT_TRUE(menu.choose(&StatusMenuActions::showWindow));
    EXPECT_EQ(windowShown, 1);
}

TEST_F(ViewControllerSetupTest, Version_IsPrintedAndStoredAtSixTenths) {
    bundle.addPropertyList(
        QStringLiteral("Info"),
        QVariantMap{{QStringLiteral("CFBundleShortVersionString"), QStringLiteral("1.2")}});
    controller.viewDidLoad();
    mainQueue.advance(0.599);
    EXPECT_FALSE(defaults.object(prefVersionDisplayString).isValid());
    mainQueue.advance(0.001);
    EXPECT_EQ(defaults.stringForKey(prefVersionDisplayString), QStringLiteral("1.2"));
    EXPECT_TRUE(console.printed().contains(QStringLiteral("Got version = 1.2")));
}

TEST_F(ViewControllerSetupTest, NoVersion_IsLeftAlone) {
    controller.viewDidLoad();
    mainQueue.advance(2.0);
    EXPECT_FALSE(defaults.object(prefVersionDisplayString).isValid());
    EXPECT_EQ(console.printed().filter(QStringLiteral("Got version")), QStringList());
}

TEST_F(ViewControllerSetupTest, NetworkLine_FollowsTheCheckerFromOneSecondOn) {
    controller.viewDidLoad();
    mainQueue.advance(0.999);
    EXPECT_FALSE(console.printed().contains(QStringLiteral("great got self.fKelvoSSID...")));
    mainQueue.advance(0.001);
    EXPECT_TRUE(console.printed().contains(QStringLiteral("great got self.fKelvoSSID...")));
    mainQueue.advance(0.1);
    EXPECT_EQ(view.networkLines, (std::vector<QString>{{}, QStringLiteral("Connected")}));
}

TEST_F(ViewControllerSetupTest, FirstObservations_BeginAtOnceAndTheOthersAtHalfASecond) {
    controller.viewDidLoad();
    console.clear();
    defaults.setObject(prefRemotePath, QStringLiteral("p"));
    EXPECT_TRUE(console.printed().isEmpty());
    defaults.setObject(prefRsyncCommandOptionTag, 101);
    EXPECT_EQ(console.printed().size(), 2);
    mainQueue.advance(0.5);
    console.clear();
    defaults.setObject(prefRemotePath, QStringLiteral("q"));
    EXPECT_EQ(console.printed().size(), 1);
}

// -- right clicks on the reveal buttons

TEST_F(ViewControllerSetupTest, Watchers_AreInstalledAtOneSecond) {
    controller.viewDidLoad();
    mainQueue.advance(0.999);
    EXPECT_TRUE(view.monitors->empty());
    mainQueue.advance(0.001);
    EXPECT_EQ(view.monitors->size(), 2U);
    EXPECT_EQ(console.logged().count(
                  inside("monitorMouseClicksForNSViewController(for:in:clickHandler:)")),
              2);
}

TEST_F(ViewControllerSetupTest, RightClickOnTheFirst_AsksAndOpensTheFolder) {
    defaults.setObject(prefPath1, QStringLiteral("/Movies/a 'b'"));
    load();
    view.rightClick(revealButton1);
    EXPECT_EQ(console.printed(), (QStringList{QStringLiteral("Mouse down inside BUTTON 11111111"),
                                              inside("showChoices(message:text:)")}));
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts[0].messageText, u"Reveal In Finder");
    EXPECT_EQ(presenter.alerts[0].informativeText, u"path:\nOptional(\"/Movies/a 'b'\")");
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("reveal /Movies/a 'b'")});
}

TEST_F(ViewControllerSetupTest, ShowEnclosing_SelectsTheFolderInItsParent) {
    defaults.setObject(prefPath1, QStringLiteral("/Movies"));
    presenter.modalAnswer = cAlertSecondButtonReturn;
    load();
    view.rightClick(revealButton1);
    EXPECT_EQ(workspace.requests, QStringList{QStringLiteral("select /Movies")});
}

TEST_F(ViewControllerSetupTest, RightClickWithoutASourceFolder_OnlyPrints) {
    load();
    view.rightClick(revealButton1);
    EXPECT_EQ(console.printed(), QStringList{QStringLiteral("Mouse down inside BUTTON 11111111")});
    EXPECT_TRUE(presenter.alerts.empty());
}

TEST_F(ViewControllerSetupTest, RightClickOnTheSecond_OnlyPrints) {
    defaults.setObject(prefPath1, QStringLiteral("/Movies"));
    load();
    view.rightClick(revealButton2);
    EXPECT_EQ(console.printed(),
              QStringList{QStringLiteral("Mouse down inside ibRevealButton22222222")});
    EXPECT_TRUE(presenter.alerts.empty());
}

TEST_F(ViewControllerSetupTest, RightClickElsewhere_DoesNothing) {
    defaults.setObject(prefPath1, QStringLiteral("/Movies"));
    load();
    view.rightClick(button);
    EXPECT_TRUE(console.printed().isEmpty());
}

// -- tabs, focus, relaunch

TEST_F(ViewControllerSetupTest, SettingsTab_RefreshesTheExample) {
    load();
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("r %@99"));
    controller.tabViewWillSelect(TabViewItem{QStringLiteral("Settings"), QStringLiteral("prefs")});
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample), QStringLiteral("r "));
    EXPECT_EQ(
        console.printed().first(3),
        (QStringList{inside("tabView(_:willSelect:)",
                            QStringLiteral(".......tabViewItem = Optional(<NSTabViewItem: "
                                           "\"Settings\">)")),
                     inside("tabView(_:willSelect:)",
                            QStringLiteral(".......tabViewItem.label = Optional(\"Settings\")")),
                     inside("tabView(_:willSelect:)",
                            QStringLiteral(".......identifier = Optional(\"prefs\")"))}));
}

TEST_F(ViewControllerSetupTest, OtherTabs_LeaveTheExampleAlone) {
    load();
    controller.tabViewWillSelect(TabViewItem{QStringLiteral("Sync"), QStringLiteral("sync")});
    controller.tabViewWillSelect(TabViewItem{QStringLiteral("prefs"), std::nullopt});
    controller.tabViewWillSelect(std::nullopt);
    EXPECT_FALSE(defaults.object(prefRsyncCommandStringExample).isValid());
    EXPECT_EQ(console.printed().size(), 9);
    EXPECT_EQ(
        console.printed().last(3),
        (QStringList{
            inside("tabView(_:willSelect:)", QStringLiteral(".......tabViewItem = nil")),
            inside("tabView(_:willSelect:)", QStringLiteral(".......tabViewItem.label = nil")),
            inside("tabView(_:willSelect:)", QStringLiteral(".......identifier = nil"))}));
}

TEST_F(ViewControllerSetupTest, EndOfEditing_TakesTheFocusOffTheFieldATenthLater) {
    load();
    int resigned = 0;
    const auto text = std::make_shared<TextField>([&resigned] { ++resigned; });
    controller.controlTextDidEndEditing(text);
    EXPECT_EQ(console.printed(),
              (QStringList{inside("controlTextDidEndEditing(_:)",
                                  QString(u".......obj.object   = Optional(<NSTextField: " +
                                          pointerText(static_cast<Control*>(text.get())) + u">)")),
                           inside("controlTextDidEndEditing(_:)",
                                  QStringLiteral(".......obj.userInfo = nil"))}));
    mainQueue.advance(0.099);
    EXPECT_EQ(resigned, 0);
    mainQueue.advance(0.001);
    EXPECT_EQ(resigned, 1);
}

TEST_F(ViewControllerSetupTest, EndOfEditingElsewhere_OnlyPrints) {
    load();
    const auto other = std::make_shared<FakeButton>();
    controller.controlTextDidEndEditing(other);
    controller.controlTextDidEndEditing(nullptr);
    EXPECT_EQ(
        console.printed(),
        (QStringList{
            inside("controlTextDidEndEditing(_:)",
                   QString(u".......obj.object   = Optional(<NSControl: " +
                           pointerText(static_cast<Control*>(other.get())) + u">)")),
            inside("controlTextDidEndEditing(_:)", QStringLiteral(".......obj.userInfo = nil")),
            inside("controlTextDidEndEditing(_:)", QStringLiteral(".......obj.object   = nil")),
            inside("controlTextDidEndEditing(_:)", QStringLiteral(".......obj.userInfo = nil")),
        }));
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(ViewControllerSetupTest, NoFirstResponder_NeedsAWindow) {
    load();
    controller.ibSetNoFirstResponder(nullptr);
    EXPECT_EQ(view.focusDropped, 0) << "it waits for the next turn";
    mainQueue.runDue();
    EXPECT_EQ(view.focusDropped, 1);
    view.window = false;
    controller.ibSetNoFirstResponder(nullptr);
    mainQueue.runDue();
    EXPECT_EQ(view.focusDropped, 1);
    EXPECT_EQ(console.printed(), (QStringList{inside("ibSetNoFirstResponder(_:)"),
                                              inside("ibSetNoFirstResponder(_:)")}));
}

TEST_F(ViewControllerSetupTest, QuitRelaunchNotification_AsksTheWatchdog) {
    controller.viewDidLoad();
    console.clear();
    notificationCenter.post(QStringLiteral("QuitRelaunchNotification"));
    EXPECT_EQ(relaunches, 1);
    EXPECT_TRUE(console.printed()[0].startsWith(
        inside("handleQuitAndRelaunchNotification(_:)",
               QStringLiteral(".......notification = name = QuitRelaunchNotification"))))
        << qPrintable(console.printed()[0]);
    EXPECT_EQ(console.printed()[1], inside("ibQuitAndRelaunch(_:)"));
    EXPECT_EQ(printedBeforeRelaunch, console.printed()) << "it may be the last that is printed";
}

} // namespace
} // namespace kelvo
