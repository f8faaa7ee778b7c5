// ViewControllerWorld: the main view's controller in a pretend world.
#pragma once

#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_front.h"
#include "fakes/fake_main_view.h"
#include "fakes/fake_network.h"
#include "fakes/fake_relaunch_guard.h"
#include "fakes/fake_remote_side.h"
#include "fakes/fake_service_table.h"
#include "fakes/fake_status_menu.h"
#include "fakes/memory_bundle.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/recording_notification_center.h"
#include "fakes/scripted_browser.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "remote/share_commands.h"
#include "settings/preference_keys.h"
#include "ui/status_menu_presence.h"
#include "ui/view_controller.h"

namespace kelvo {

struct FakeWindowController final : StatusMenuWindow {
    void showWindow() override { ++shown; }
    int shown = 0;
};

class ViewControllerWorld {
public:
    ViewControllerWorld() {
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

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedShell shell;
    FakeFileManager files;
    FakeTerminal terminal;
    FakePasteboard pasteboard;
    GioShareCommands shareCommands;
    RecordingConsole console;
    RecordingNotificationCenter notificationCenter;
    MemoryBundle bundle;
    FakeApplication application;
    FakeRelaunchGuard watchdog;
    FakeWorkspace workspace;
    FakeOpenPanel openPanel;
    ScriptedBrowser dnssdBrowser;
    FakeSheetOpener sheets;
    FakeArrayController foundServices;
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
    FakeWindowController windowController;
    StatusMenuWindow* window = &windowController;
    ViewController controller{{
        .defaults = defaults,
        .mainQueue = mainQueue,
        .bgQueue = bgQueue,
        .shell = shell,
        .files = files,
        .console = console,
        .notificationCenter = notificationCenter,
        .bundle = bundle,
        .application = application,
        .watchdog = watchdog,
        .workspace = workspace,
        .openPanel = openPanel,
        .dnssdBrowser = dnssdBrowser,
        .makeKelvoSSID =
            [this] {
                return std::make_unique<FakeNetworkChecker>(notificationCenter,
                                                            QStringLiteral("Connected"));
            },
        .statusMenu = statusMenu,
        .terminal = terminal,
        .pasteboard = pasteboard,
        .shareCommands = shareCommands,
        .view = view,
        .alertPresenter = presenter,
        .sheets = sheets,
        .fArrayController = foundServices,
        .ibStartButton = button,
        .ibRevealButton1 = &revealButton1,
        .ibRevealButton2 = &revealButton2,
        .ibStatusTextField = field,
        .fNsPathControl1 = pathControl,
        .windowController = [this] { return window; },
    }};
};

} // namespace kelvo
