#include "app/start/app_delegate.h"
#include "app/start/interface_registry.h"
#include "fakes/fake_status_menu.h"
#include "fakes/memory_bundle.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_log_file.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/partial_option.h"
#include "support/text.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/main_window_controller.h"
#include "ui/movie_kinds.h"
#include "ui/status_menu_presence.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kelvo {
namespace {

const char* const cWrongController =
    "Unable to instantiate NSWindowController\\[\\] in Main\\.storyboard!";

/// Notes what happens in between on the same console as the delegate's lines.
class FakeMainView final : public MainViewController {
public:
    explicit FakeMainView(Console& console) : fConsole(console) {}
    QString description() const override { return QStringLiteral("<view>"); }
    void viewDidLoad() override { fConsole.print(QStringLiteral("(view loaded)")); }
    void clickStartButton() override {}
    void syncNow() override {}
    void cancelPass() override {}
    void showActivity(std::optional<qint64>) override {}
    void revealFolder() override {}
    void menuShown(bool) override {}
    void quitAndRelaunch() override { fConsole.print(QStringLiteral("(relaunch)")); }

private:
    Console& fConsole;
};

class AppDelegateTest : public ::testing::Test {
protected:
    AppDelegateTest() {
        storyboard.add(cMyWindowControllerID, [this] {
            ++windowsMade;
            auto made = makeWindow();
            window = made->description();
            return made;
        });
        storyboard.add(cMyViewControllerID, [this] {
            ++viewsMade;
            return std::make_shared<FakeMainView>(console);
        });
        bundle.addPropertyList(QStringLiteral("FactoryDefaults"),
                               QVariantMap{{QStringLiteral("prefDelayBetweenScans"), 30.0}});
        bundle.addPropertyList(QStringLiteral("Info"),
                               QVariantMap{{QStringLiteral("LSUIElement"), true}});
        tray.setPresent(true);
    }

    std::shared_ptr<MainWindowController> makeWindow() {
        return std::make_shared<MainWindowController>(
            [this] { console.print(QStringLiteral("(window shown)")); });
    }
    std::unique_ptr<AppDelegate> makeDelegate() {
        return std::make_unique<AppDelegate>(AppDelegateParts{
            .console = console,
            .logger = logFile,
            .defaults = defaults,
            .mainBundle = bundle,
            .autoRelaunchUnless =
                [this](unsigned long count, double seconds, const RelaunchEscape& escape) {
                    requests.push_back({count, seconds, escape});
                },
            .storyboard = storyboard,
            .logCurrentSystemInfo = [this] { console.log(QStringLiteral("(system)")); },
            .checkForDuplicateRunningInstances =
                [this] { console.log(QStringLiteral("(duplicates)")); },
            .makeStatusMenuHandler =
                [this] {
                    ++handlersMade;
                    auto made = std::make_unique<KelvoStatusMenuHandler>(presence, console);
                    handler = made->description();
                    return made;
                },
            .runningApplication = QStringLiteral("<this process>"),
        });
    }
    std::unique_ptr<AppDelegate> launched() {
        auto delegate = makeDelegate();
        delegate->applicationWillFinishLaunching();
        return delegate;
    }

    /// All lines of both kinds in their order, those of the system log marked with "log: ".
    QStringList lines() const {
        QStringList texts;
        for (const RecordingConsole::Line& line : console.lines())
            texts.append(line.kind == RecordingConsole::Kind::Log ? QString(u"log: " + line.text)
                                                                  : line.text);
        return texts;
    }

    RecordingConsole console;
    MemoryLogFile logFile;
    MemoryDefaults defaults;
    MemoryBundle bundle;
    struct Request {
        unsigned long count;
        double seconds;
        RelaunchEscape escape;
    };
    std::vector<Request> requests; ///< every request to the watchdog so far
    InterfaceRegistry storyboard;
    FakeTrayHost tray;
    FakeStatusMenu menu{tray};
    VirtualMainQueue mainQueue;
    StatusMenuPresence presence{menu, defaults, mainQueue, [] {}};
    QString handler;
    QString window;
    int windowsMade = 0;
    int viewsMade = 0;
    int handlersMade = 0;
};

TEST_F(AppDelegateTest, WholeStart_PrintsItsLinesInOrder) {
    auto delegate = launched();
    delegate.reset();
    const QString in = QStringLiteral("Inside Kelvo_Mirror.AppDelegate->");
    const QString launching = in + QStringLiteral("applicationWillFinishLaunching(_:)");
    const QStringList expected{
        in + QStringLiteral("init()......."),
        in + QStringLiteral("doBasicStartUpStuff()......."),
        u"log: " + in +
            QStringLiteral("doBasicStartUpStuff()...Trying to Launch -> NSRunningApplication: "
                           "<this process>"),
        QStringLiteral("log: (duplicates)"),
        QStringLiteral("log: (system)"),
        u"log: " + in + QStringLiteral("doBasicStartUpStuff()...Done..."),
        launching + QStringLiteral("......."),
        in + QStringLiteral("ibActionFromDelegate(_:).......Setting UP watchdog..."),
        in + QStringLiteral("myStatusMenuHandler.......created handler = ") + handler,
        launching + QStringLiteral(".......created self.myStatusMenuHandler = ") + handler,
        in + QStringLiteral("fWindowController.......controller = ") + window,
        in + QStringLiteral("fWindowControllernil"),
        QStringLiteral("(view loaded)"),
        launching + QStringLiteral(".......LSUIElement = TRUE..."),
        QStringLiteral("(window shown)"),
        launching +
            QStringLiteral("..........self.myStatusMenuHandler?.fMainVC = Optional(<view>)"),
        in + QStringLiteral("ibSetupStatusItemStuff(_:).........."),
        in + QStringLiteral("deinit......."),
    };
    EXPECT_EQ(lines(), expected) << lines().join(u'\n').toStdString();
}

TEST_F(AppDelegateTest, Init_OpensTheLogAndRegistersTheFactoryDefaults) {
    const auto delegate = makeDelegate();
    logFile.append(QStringLiteral("x"));
    EXPECT_EQ(logFile.lines(QStringLiteral("/state/Kelvo/kelvo-mirror.log")),
              QStringList{QStringLiteral("x")});
    EXPECT_EQ(defaults.doubleForKey(u"prefDelayBetweenScans"), 30.0);
    EXPECT_EQ(defaults.synchronized(), 1);
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(windowsMade + viewsMade + handlersMade, 0);
}

TEST_F(AppDelegateTest, TemplateOfAnEarlierVersion_GivesWayToTheFactorysOwn) {
    const QString key = prefRsyncCommandString1.toString();
    bundle.addPropertyList(QStringLiteral("FactoryDefaults"),
                           QVariantMap{{key, factoryTemplate()}});
    defaults.setObject(
        key, factoryTemplate().replace(cPartialOption.toString(), cPartialWord.toString()));
    const auto delegate = makeDelegate();
    EXPECT_EQ(defaults.stringForKey(key), factoryTemplate());
    EXPECT_FALSE(defaults.changes().back().second.isValid()) << "nothing stays stored";
}

TEST_F(AppDelegateTest, MissingOrBrokenFactoryDefaults_CostALineAndNothingElse) {
    bundle.addPropertyList(QStringLiteral("FactoryDefaults"), std::nullopt);
    const auto delegate = launched();
    const QString oops =
        QStringLiteral("Oops something went wrong with registering facotry defaults....");
    EXPECT_EQ(lines().indexOf(oops), 6);
    EXPECT_EQ(lines().count(oops), 1);
    EXPECT_EQ(defaults.synchronized(), 0);
    EXPECT_TRUE(defaults.boolForKey(u"showNotices"));
    EXPECT_TRUE(lines().contains(QStringLiteral("(window shown)")));
    EXPECT_EQ(menu.visible(), StatusMenuState::Off);
}

TEST_F(AppDelegateTest, UserInterfaceElement_IsToldOnlyWhenItIsAFlag) {
    struct Case {
        std::optional<QVariantMap> information;
        QStringList told;
    };
    const QString key = QStringLiteral("LSUIElement");
    const QString line = QStringLiteral(
        "Inside Kelvo_Mirror.AppDelegate->applicationWillFinishLaunching(_:).......LSUIElement = ");
    for (const Case& c : {Case{QVariantMap{{key, true}}, {line + u"TRUE..."}},
                          Case{QVariantMap{{key, false}}, {line + u"FALSE..."}},
                          Case{QVariantMap{{key, QStringLiteral("YES")}}, {}},
                          Case{QVariantMap{{key, qlonglong{1}}}, {}}, Case{QVariantMap{}, {}},
                          Case{std::nullopt, {}}}) {
        bundle.addPropertyList(QStringLiteral("Info"), c.information);
        console.clear();
        const auto delegate = launched();
        EXPECT_EQ(lines().filter(key), c.told);
        EXPECT_TRUE(lines().contains(QStringLiteral("(window shown)")));
    }
}

TEST_F(AppDelegateTest, UnwritableLog_IsSaidAndTheStartGoesOn) {
    class UnwritableLog final : public LogFile {
        QString defaultLogFileWithinSubdirectory(const QString& name) const override {
            return u"/unwritable/" + name;
        }
        bool setLogFile(const QString&) override { return false; }
        void append(const QStringList&) override {}
    };
    UnwritableLog unwritable;
    const AppDelegate delegate({
        .console = console,
        .logger = unwritable,
        .defaults = defaults,
        .mainBundle = bundle,
        .autoRelaunchUnless = {},
        .storyboard = storyboard,
        .logCurrentSystemInfo = [] {},
        .checkForDuplicateRunningInstances = [] {},
        .makeStatusMenuHandler = {},
        .runningApplication = {},
    });
    EXPECT_TRUE(
        lines().contains(QStringLiteral("log: Cannot write the log file /unwritable/Kelvo")));
    EXPECT_EQ(defaults.synchronized(), 1);
}

TEST_F(AppDelegateTest, Watchdog_AllowsFourRelaunchesInHalfAMinuteWithoutEscape) {
    const auto delegate = launched();
    delegate->ibActionFromDelegate(nullptr);
    ASSERT_EQ(requests.size(), 2U);
    for (const Request& request : requests) {
        EXPECT_EQ(request.count, 4UL);
        EXPECT_EQ(request.seconds, 30.0);
        ASSERT_TRUE(request.escape);
        EXPECT_FALSE(request.escape(4, 1.0));
        EXPECT_FALSE(request.escape(0, 1000.0));
    }
}

TEST_F(AppDelegateTest, Controllers_AreMadeOnceAndWiredToTheHandler) {
    const auto delegate = launched();
    MainWindowController& window = delegate->fWindowController();
    MainViewController& view = delegate->fViewController();
    EXPECT_EQ(window.contentViewController(), &view);
    EXPECT_EQ(delegate->myStatusMenuHandler().fWindowController(), &window);
    EXPECT_EQ(delegate->myStatusMenuHandler().fMainVC(), &view);
    EXPECT_EQ(windowsMade, 1);
    EXPECT_EQ(viewsMade, 1);
    EXPECT_EQ(handlersMade, 1);
}

TEST_F(AppDelegateTest, StatusItemActions_ShowAndRemoveTheIcon) {
    const auto delegate = launched();
    EXPECT_EQ(menu.visible(), StatusMenuState::Off);
    console.clear();
    delegate->ibRemoveStatusItemStuff(nullptr);
    EXPECT_EQ(menu.visible(), std::nullopt);
    delegate->ibSetupStatusItemStuff(nullptr);
    EXPECT_EQ(menu.visible(), StatusMenuState::Off);
    EXPECT_EQ(
        lines(),
        (QStringList{
            QStringLiteral(
                "Inside Kelvo_Mirror.AppDelegate->ibRemoveStatusItemStuff(_:).........."),
            QStringLiteral("Inside Kelvo_Mirror.AppDelegate->ibSetupStatusItemStuff(_:).........."),
        }));
}

TEST_F(AppDelegateTest, QuitAndRelaunchAction_OnlyRemovesTheIcon) {
    const auto delegate = launched();
    console.clear();
    delegate->ibQuitAndRelaunch(nullptr);
    EXPECT_EQ(menu.visible(), std::nullopt);
    EXPECT_EQ(requests.size(), 1U) << "no more than at the launch";
    EXPECT_EQ(lines(), QStringList{QStringLiteral(
                           "Inside Kelvo_Mirror.AppDelegate->ibQuitAndRelaunch(_:)..........")});
}

TEST_F(AppDelegateTest, ActionBeforeTheLaunch_MakesTheHandler) {
    const auto delegate = makeDelegate();
    delegate->ibRemoveStatusItemStuff(nullptr);
    EXPECT_EQ(handlersMade, 1);
    EXPECT_TRUE(menu.shown.empty());
}

TEST_F(AppDelegateTest, EachStatusItemAction_IsPrintedBeforeItIsDone) {
    for (const auto& [action, name] :
         {std::pair(&AppDelegate::ibSetupStatusItemStuff, u"ibSetupStatusItemStuff(_:)"),
          std::pair(&AppDelegate::ibRemoveStatusItemStuff, u"ibRemoveStatusItemStuff(_:)"),
          std::pair(&AppDelegate::ibQuitAndRelaunch, u"ibQuitAndRelaunch(_:)")}) {
        const auto delegate = makeDelegate();
        console.clear();
        ((*delegate).*action)(nullptr);
        const QString in = QStringLiteral("Inside Kelvo_Mirror.AppDelegate->");
        EXPECT_EQ(
            lines().first(2),
            (QStringList{QString(in + QStringView(name) + u".........."),
                         QString(in + u"myStatusMenuHandler.......created handler = " + handler)}));
    }
}

TEST_F(AppDelegateTest, LastWindowClosed_LeavesTheProgramRunning) {
    const auto delegate = makeDelegate();
    console.clear();
    EXPECT_FALSE(delegate->applicationShouldTerminateAfterLastWindowClosed());
    EXPECT_EQ(lines(), QStringList{QStringLiteral(
                           "Inside Kelvo_Mirror.AppDelegate->"
                           "applicationShouldTerminateAfterLastWindowClosed(_:).......")});
}

TEST_F(AppDelegateTest, WindowControllerOfAnotherClass_StopsTheProgram) {
    storyboard.add(cMyWindowControllerID,
                   [this] { return std::make_shared<FakeMainView>(console); });
    EXPECT_EXIT(launched(), ::testing::KilledBySignal(SIGILL), cWrongController);
    storyboard.add(cMyWindowControllerID, {});
    EXPECT_EXIT(launched(), ::testing::KilledBySignal(SIGILL), cWrongController);
}

TEST_F(AppDelegateTest, ViewControllerOfAnotherClass_StopsTheProgramInTheSameWords) {
    storyboard.add(cMyViewControllerID, [this] { return makeWindow(); });
    EXPECT_EXIT(launched(), ::testing::KilledBySignal(SIGILL), cWrongController);
}

// -- the registry

TEST(InterfaceRegistryTest, Main_KnowsItsIdentifiersOnly) {
    RecordingConsole console;
    InterfaceRegistry storyboard;
    for (const QStringView identifier :
         {QStringView(u"MyWindowControllerID"), QStringView(u"MyViewControllerID"),
          QStringView(u"BonjourVCstoryboardID")}) {
        EXPECT_EQ(storyboard.instantiateController(identifier), nullptr);
        storyboard.add(identifier, [&] { return std::make_shared<FakeMainView>(console); });
        EXPECT_NE(storyboard.instantiateController(identifier), nullptr);
        EXPECT_NE(storyboard.instantiate<MainViewController>(identifier), nullptr);
        EXPECT_EQ(storyboard.instantiate<MainWindowController>(identifier), nullptr);
    }
    EXPECT_EQ(storyboard.instantiateController(u"Other"), nullptr);
}

TEST(InterfaceRegistryTest, EachCall_MakesAFreshController) {
    RecordingConsole console;
    InterfaceRegistry storyboard;
    storyboard.add(cBonjourVCstoryboardID, [&] { return std::make_shared<FakeMainView>(console); });
    const auto first = storyboard.instantiateController(cBonjourVCstoryboardID);
    const auto second = storyboard.instantiateController(cBonjourVCstoryboardID);
    EXPECT_NE(first, second);
}

} // namespace
} // namespace kelvo
