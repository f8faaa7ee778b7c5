// ViewControllerWorld: the main view's controller in a pretend world.
#pragma once

#include "fakes/fake_connection.h"
#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_front.h"
#include "fakes/fake_main_view.h"
#include "fakes/fake_network.h"
#include "fakes/fake_remote_side.h"
#include "fakes/fake_status_menu.h"
#include "fakes/memory_bundle.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "remote/share_commands.h"
#include "settings/preference_keys.h"
#include "support/array_controller.h"
#include "support/notification_center.h"
#include "ui/main_window_controller.h"
#include "ui/status_menu_presence.h"
#include "ui/view_controller.h"

namespace kelvo {

class ViewControllerWorld {
public:
    /// `firstPassDelay` as in ViewControllerParts.
    explicit ViewControllerWorld(double firstPassDelay = 0) : fFirstPassDelay(firstPassDelay) {
        defaults.setObject(prefRsyncCommandOptionTag, 100);
        defaults.setObject(prefRsyncWithSSH, true);
        defaults.setObject(prefEnableScanning, 1);
        defaults.setObject(prefIsScanning, true);
        bundle.addPropertyList(QStringLiteral("Info"), QVariantMap());
        button.action = [this](Control* sender) { controller.ibStartRSyncProcess(sender); };
    }

    /// The whole set-up with what it prints forgotten.
    void load() {
        controller.viewDidLoad();
        mainQueue.advance(2.0);
        console.clear();
    }

    const double fFirstPassDelay;
    QDateTime now{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    double seconds = 100; ///< of the clock of passes
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedShell shell;
    FakeFileManager files;
    FakeTerminal terminal;
    QString clipboard;
    QStringList sheets; ///< every one shown so far
    GioShareCommands shareCommands;
    RecordingConsole console;
    NotificationCenter notificationCenter;
    MemoryBundle bundle;
    FakeApplication application;
    int relaunches = 0;
    QStringList printedBeforeRelaunch; ///< by the time of the last one
    FakeWorkspace workspace;
    FakeOpenPanel openPanel;
    ScriptedBrowser dnssdBrowser;
    ArrayController foundServices;
    FakeTrayHost tray;
    FakeStatusMenu menu{tray};
    StatusMenuPresence statusMenu{menu, defaults, mainQueue, [] {}};
    FakeMainView view;
    FakeAlertPresenter presenter;
    FakeButton button;
    FakeButton revealButton1;
    FakeButton revealButton2;
    std::shared_ptr<FakeStatusField> field = std::make_shared<FakeStatusField>();
    std::shared_ptr<FakePathControl> pathControl = std::make_shared<FakePathControl>();
    std::vector<std::optional<qint64>> activityShown; ///< every call so far
    std::vector<HostAnswer> answers;                  ///< every one so far
    int windowShown = 0;
    MainWindowController windowController{[this] { ++windowShown; }};
    MainWindowController* window = &windowController;
    FakeConnection connection;
    MemoryPassStore passStore{mainQueue};
    std::vector<PassRecord> passes; ///< every record so far
    // Somebody who follows from elsewhere; nobody at first.
    std::function<void()> workLooked = [] {};
    std::function<void(const AttributedString&)> messageShown = [](const AttributedString&) {};
    std::function<void(const Alert&)> alertShown = [](const Alert&) {};
    ViewController controller{{
        .engine = {.defaults = defaults,
                   .mainQueue = mainQueue,
                   .bgQueue = bgQueue,
                   .commands = shell,
                   .connection = connection,
                   .files = files,
                   .console = console,
                   .clock = {[this] { return now; }, [this] { return seconds; }},
                   .wholePull = memoryWholePull(),
                   .passEnded =
                       [this](const PassRecord& pass) {
                           passes.push_back(pass);
                           passStore.append(pass);
                       }},
        .outlets = {.application = application,
                    .view = view,
                    .alertPresenter = presenter,
                    .presentSheet =
                        [this](QStringView identifier) {
                            sheets.append(identifier.toString());
                            return true;
                        },
                    .openPanel = openPanel,
                    .terminal = terminal,
                    .copyText = [this](const QString& text) { clipboard = text; },
                    .showActivity =
                        [this](std::optional<qint64> pass) { activityShown.push_back(pass); },
                    .hostAnswered = [this](const HostAnswer& answer) { answers.push_back(answer); },
                    .fArrayController = foundServices,
                    .ibStartButton = &button,
                    .ibRevealButton1 = &revealButton1,
                    .ibRevealButton2 = &revealButton2,
                    .ibStatusTextField = field,
                    .fNsPathControl1 = pathControl},
        .passStore = passStore,
        .notificationCenter = notificationCenter,
        .bundle = bundle,
        .quitAndRelaunch =
            [this] {
                ++relaunches;
                printedBeforeRelaunch = console.printed();
            },
        .workspace = workspace,
        .dnssdBrowser = dnssdBrowser,
        .makeKelvoSSID =
            [this] {
                return std::make_unique<FakeNetworkChecker>(notificationCenter,
                                                            QStringLiteral("Connected"));
            },
        .statusMenu = statusMenu,
        .shareCommands = shareCommands,
        .firstPassDelay = fFirstPassDelay,
        .windowController = [this] { return window; },
        .workLooked = [this] { workLooked(); },
        .messageShown = [this](const AttributedString& message) { messageShown(message); },
        .alertShown = [this](const Alert& alert) { alertShown(alert); },
    }};
};

} // namespace kelvo
