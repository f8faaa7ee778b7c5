#include "app/window/window_actions.h"

#include "app/start/app_delegate.h"
#include "app/version.h"
#include "ports/status_menu.h"
#include "ports/user_defaults.h"
#include "ports/workspace.h"
#include "settings/preference_keys.h"
#include "ui/close_policy.h"
#include "ui/view_controller.h"
#include "ui/widgets/application_menu.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/sheet_presenter.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"

#include <QMessageBox>

#include <span>

namespace kelvo {
namespace {

using Action = void (ViewController::*)(Control*);

struct Wire {
    const char* control;
    Action action;
};

constexpr Wire cButtons[] = {
    {"ibSelectFolder1Action", &ViewController::ibSelectFolder1Action},
    {"ibSelectFolder2Action", &ViewController::ibSelectFolder2Action},
    {"ibRevealButton1", &ViewController::ibRevealSourcePath},
    {"ibRevealButton2", &ViewController::ibRevealDestPath},
    {"syncUseSourceNow", &ViewController::useSourceNow},
    {"ibSyncNow", &ViewController::ibSyncNow},
    {"ibCancelPass", &ViewController::ibCancelPass},
};

/// Those of the Remote Mac tab.
constexpr Wire cRemoteButtons[] = {
    {"ibSelectSourceByBonjor", &ViewController::ibSelectSourceByBonjor},
    {"ibGenerateSSHKeyStuff", &ViewController::ibSetUpKey},
    {"createNewPrivatePublicKeys", &ViewController::ibMakeNewKey},
    {"ibCancelCommand", &ViewController::ibCancelCommand},
    {"checkKeyState", &ViewController::checkKeyState},
    {"useSourceNow", &ViewController::useSourceNow},
    {"ibTestShellCommand", &ViewController::ibTestShellCommand},
    {"ibRevealSourcePathSMB", &ViewController::ibRevealSourcePathSMB},
    {"ibRevealSourcePathSMBdebug", &ViewController::ibRevealSourcePathSMBdebug},
};

/// Those of the Diagnostics tab.
constexpr Wire cDiagnosticsButtons[] = {
    {"ibSelectDestByBonjor", &ViewController::ibSelectDestByBonjor},
    {"ibSearchBonjour", &ViewController::ibSearchBonjour},
    {"ibShowBonjourListInfo", &ViewController::ibShowBonjourListInfo},
    {"ibTestNWBrowser", &ViewController::ibTestNWBrowser},
    {"ibAction1", &ViewController::ibAction1},
    {"ibOpenTempFolder", &ViewController::ibOpenTempFolder},
    {"createNewPrivatePublicKeysOLD", &ViewController::ibMakeNewKeyOLD},
    {"ibTestShellCommand111", &ViewController::ibTestShellCommand111},
    {"ibRevealSourcePathSMBdebugOLD", &ViewController::ibRevealSourcePathSMBdebugOLD},
    {"ibSetNoFirstResponder", &ViewController::ibSetNoFirstResponder},
    {"ibQuitAndRelaunch", &ViewController::ibQuitAndRelaunch},
    {"ibSuspendTimer", &ViewController::ibSuspendTimer},
    {"ibResumeTimer", &ViewController::ibResumeTimer},
    {"ibKillTimer", &ViewController::ibKillTimer},
};

constexpr const char* cRevealInFinder = "ibRevealInFinderAction";

constexpr Wire cOnceButtons[] = {
    {"ibRSyncOnce", &ViewController::ibRSyncOnce},
    {"ibRSyncOnceBonjour", &ViewController::ibRSyncOnceBonjour},
};

TabViewItem item(const MainWindow::Tab& tab) {
    return {tab.name, tab.identifier}; // It is printed.
}

template <typename Wires>
void sendButtons(MainWindow& window, ViewController& controller, const Wires& wires) {
    for (const Wire& wire : wires) {
        const QString name = QString::fromLatin1(wire.control);
        auto sender = std::make_shared<WidgetControl>(window.button(name));
        window.setAction(name, [&controller, action = wire.action, sender] {
            (controller.*action)(sender.get());
        });
    }
}

QStringList tabTitles(const MainWindow& window) {
    QStringList titles;
    for (const MainWindow::Tab& tab : window.tabs())
        titles.append(tab.label);
    return titles;
}

TrayIconState trayIconState(const AppDelegate& delegate, const StatusMenu& statusMenu) {
    if (!delegate.statusItemIsSetUp())
        return TrayIconState::Removed;
    return statusMenu.isReachable() ? TrayIconState::Shown : TrayIconState::Waiting;
}

void showAbout(MainWindow& window) {
    QMessageBox about(QMessageBox::NoIcon, QObject::tr("About Kelvo Mirror"),
                      QObject::tr("Kelvo Mirror %1").arg(cVersion), QMessageBox::Ok, &window);
    about.setIconPixmap(window.windowIcon().pixmap(64));
    about.setInformativeText(QObject::tr("Keeps a local folder supplied with movie files from a "
                                         "remote Mac."));
    about.exec();
}

} // namespace

QStringList sentButtons() {
    QStringList names{QString::fromLatin1(cRevealInFinder)};
    for (const std::span<const Wire> wires :
         {std::span<const Wire>(cButtons), std::span<const Wire>(cRemoteButtons),
          std::span<const Wire>(cDiagnosticsButtons), std::span<const Wire>(cOnceButtons)}) {
        for (const Wire& wire : wires)
            names.append(QString::fromLatin1(wire.control));
    }
    return names;
}

void sendWindowActions(MainWindow& window, ViewController& controller, Workspace& workspace,
                       const std::shared_ptr<PathControl>& fNsPathControl1,
                       OnceButtons& onceButtons) {
    sendButtons(window, controller, cButtons);
    window.remoteTab().whenBuilt(
        [&window, &controller] { sendButtons(window, controller, cRemoteButtons); });
    // The test button stands in for a click on the path control.
    const auto revealInFinder = [&controller, fNsPathControl1] {
        controller.ibRevealInFinderAction(fNsPathControl1.get());
    };
    window.whenDiagnosticsAreMade([&window, &controller, &onceButtons, revealInFinder](auto&) {
        sendButtons(window, controller, cDiagnosticsButtons);
        for (const Wire& wire : cOnceButtons) {
            const QString name = QString::fromLatin1(wire.control);
            onceButtons.push_back(std::make_unique<WidgetButton>(
                window.button(name), [&controller, action = wire.action](Control* sender) {
                    (controller.*action)(sender);
                }));
        }
        window.setAction(QString::fromLatin1(cRevealInFinder), revealInFinder);
    });
    QObject::connect(&window.fNsPathControl1(), &PathControlView::partClicked, &window,
                     revealInFinder);
    const auto openPart = [&workspace](const QString& path) { workspace.openFile(path); };
    QObject::connect(&window.fNsPathControl1(), &PathControlView::openRequested, &window, openPart);
    QObject::connect(&window.destinationPath(), &PathControlView::openRequested, &window, openPart);
    QObject::connect(&window.destinationPath(), &PathControlView::partClicked, &window, openPart);

    QObject::connect(&window.syncTab().recentArrivals(), &RecentArrivals::openRequested, &window,
                     openPart);

    window.bindings().setEditingEnded(
        [&controller](QWidget& field) { controller.controlTextDidEndEditing(textField(field)); });
    window.setWillSelectTab(
        [&controller](const MainWindow::Tab& tab) { controller.tabViewWillSelect(item(tab)); });
}

bool askBeforeQuitting(const WorkState& work, const ClosePolicy& policy, UserDefaults& defaults,
                       SheetPresenter& alerts) {
    const auto question =
        policy.questionBeforeQuitting(work, defaults.boolForKey(prefQuitWithoutAsking));
    if (!question)
        return true;
    const auto [response, ticked] = alerts.runModal(*question, QObject::tr("Do not ask again"));
    if (response != cAlertFirstButtonReturn)
        return false;
    if (ticked)
        defaults.setObject(prefQuitWithoutAsking, true);
    return true;
}

void addApplicationMenu(MainWindow& window, ViewController& controller, AppDelegate& delegate,
                        const StatusMenu& statusMenu, Workspace& workspace,
                        const QString& logFolder, const std::function<void()>& anotherMac,
                        const std::function<bool()>& mayQuit, const std::function<void()>& quit) {
    auto* menu = new ApplicationMenu(
        {.quitAndRelaunch =
             [&controller, mayQuit] {
                 if (mayQuit())
                     controller.ibQuitAndRelaunch(nullptr);
             },
         .anotherMac = anotherMac,
         .closeWindow = [&window] { window.close(); },
         .quit =
             [quit, mayQuit] {
                 if (mayQuit())
                     quit();
             },
         .showSettings = [&window] { window.showTab(QStringLiteral("prefs")); },
         .showTab = [&window](int index) { window.showTab(index); },
         .showDiagnostics = [&window](bool shown) { window.setDiagnosticsShown(shown); },
         .startOrStop = [&controller] { controller.clickStartButton(); },
         .syncNow =
             [&window, &controller] {
                 window.syncTab().awaitPass();
                 controller.ibSyncNow(nullptr);
             },
         .cancelPass = [&controller] { controller.ibCancelPass(nullptr); },
         .setupStatusItem = [&delegate] { delegate.ibSetupStatusItemStuff(nullptr); },
         .removeStatusItem = [&delegate] { delegate.ibRemoveStatusItemStuff(nullptr); },
         .delegateQuitAndRelaunch = [&delegate] { delegate.ibQuitAndRelaunch(nullptr); },
         .setupWatchdog = [&delegate] { delegate.ibActionFromDelegate(nullptr); },
         .trayIcon = [&delegate, &statusMenu] { return trayIconState(delegate, statusMenu); },
         .about = [&window] { showAbout(window); },
         .openLogFolder = [&workspace, logFolder] { workspace.openFile(logFolder); }},
        tabTitles(window), &window);
    window.setMenuBar(menu);
    const auto showTabs = [menu, &window] {
        menu->setTabs(tabTitles(window));
        menu->setDiagnosticsShown(window.diagnosticsAreShown());
    };
    showTabs();
    QObject::connect(&window, &MainWindow::tabsChanged, menu, showTabs);
    menu->setCurrentTab(window.currentTab());
    QObject::connect(&window, &MainWindow::tabShown, menu, &ApplicationMenu::setCurrentTab);
    menu->setSyncing(window.ibStartButton().isChecked());
    QObject::connect(&window.ibStartButton(), &QPushButton::toggled, menu,
                     &ApplicationMenu::setSyncing);
    QObject::connect(&window, &MainWindow::workShown, menu, [menu, &window] {
        menu->showWork(window.work());
        menu->showTrayIcon();
    });
}

} // namespace kelvo
