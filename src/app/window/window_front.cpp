// The front with the main window.
#include "adapters/desktop/desktop_workspace.h"
#include "adapters/display/color_scheme.h"
#include "adapters/display/desktop_tray_host.h"
#include "adapters/display/status_notifier_item.h"
#include "adapters/network/link_watch.h"
#include "app/bus/own_bus_parts.h"
#include "app/commands/profiles.h"
#include "app/front.h"
#include "app/launch.h"
#include "app/machine_parts.h"
#include "app/start/app_delegate.h"
#include "app/window/window_actions.h"
#include "ports/dispatch_queue.h"
#include "ports/status_menu.h"
#include "settings/preference_keys.h"
#include "support/array_controller.h"
#include "support/text.h"
#include "ui/close_policy.h"
#include "ui/connection_watch.h"
#include "ui/main_window_controller.h"
#include "ui/view_controller.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/bonjour_sheet.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/dark_palette.h"
#include "ui/widgets/diagnostics_tab.h"
#include "ui/widgets/first_paint.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/profiles_sheet.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/service_list.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/sheet_presenter.h"
#include "ui/widgets/start_style.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/tray_icon.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"
#include "ui/widgets/widget_main_view.h"
#include "ui/widgets/widget_open_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QDBusConnection>
#include <QPixmapCache>

#include <utility>

namespace kelvo {
namespace {

class WindowFront final : public Front {
public:
    explicit WindowFront(MachineParts& machine)
        : fMachine(machine), fWindow(machine.defaults, machine.mainQueue), fView(fWindow),
          fApplication(fWindow, [this] { fClosePolicy.programQuits(); }),
          fStartButton(fWindow.ibStartButton(),
                       [this](Control* sender) { fController->ibStartRSyncProcess(sender); }),
          fRevealButton1(fWindow.button(QStringLiteral("ibRevealButton1"))),
          fRevealButton2(fWindow.button(QStringLiteral("ibRevealButton2"))),
          fStatusField(std::make_shared<WidgetStatusField>(fWindow.ibStatusTextField())),
          fPathControl(std::make_shared<WidgetPathControl>(fWindow.fNsPathControl1())),
          fAlerts({.mainWindow = fWindow,
                   .mainQueue = machine.mainQueue,
                   .notices = *machine.notices,
                   .showWhy = [this] { fWindow.showActivity(cNewestPass); }}),
          fOpenPanel(fWindow), fWindowController(std::make_shared<MainWindowController>(
                                   [this] { fWindow.bringToFront(); })) {
        if (machine.profile.isNamed())
            fWindow.setWindowTitle(machine.profile.title());
        afterFirstPaint(fWindow, machine.mainQueue, [this] { finishStart(); });
        fWindow.whenDiagnosticsAreMade(
            [this](DiagnosticsTab& tab) { showServices(fFoundServices, tab.foundServices()); });
        fWindow.activityTab().setParts({
            .store = machine.passes,
            .workspace = *machine.workspace,
            .mainQueue = machine.mainQueue,
            .bgQueue = machine.bgQueue,
            .defaults = machine.defaults,
            .destination =
                [&machine] {
                    return expandingTilde(
                        machine.defaults.stringForKey(prefPath2).value_or(QString()),
                        machine.files.homeDirectory());
                },
        });
        fWindow.syncTab().recentArrivals().setStore(machine.passes);
        fPassEnds = machine.passes.observe(
            [this](const PassRecord& pass, const Standing&) { fWindow.syncTab().passEnded(pass); });
        fWindow.settingsTab().setLoginItem(machine.loginItem);
        fWindow.settingsTab().setAlerts(fAlerts);
        fWindow.settingsTab().setSshConfiguration(machine.sshConfiguration);
        fWindow.setMayClose([this] { return mayClose(); });
    }

    Application& application() override { return fApplication; }
    std::shared_ptr<MainWindowController> windowController() override { return fWindowController; }
    Outlets outlets() override {
        return {
            .application = fApplication,
            .view = fView,
            .alertPresenter = fAlerts,
            .presentSheet =
                [this](QStringView identifier) {
                    return presentSheet(identifier,
                                        {.defaults = fMachine.defaults,
                                         .mainQueue = fMachine.mainQueue,
                                         .bgQueue = fMachine.bgQueue,
                                         .console = fMachine.console,
                                         .browser = *fMachine.dnssdBrowser,
                                         .hasNetwork = hasUsableLink},
                                        fWindow);
                },
            .openPanel = fOpenPanel,
            .terminal = fMachine.terminal,
            .copyText = copyText,
            .showActivity = [this](std::optional<qint64> pass) { fWindow.showActivity(pass); },
            .hostAnswered =
                [this](const HostAnswer& answer) {
                    if (fConnection)
                        fConnection->answered(answer);
                },
            .fArrayController = fFoundServices,
            .ibStartButton = &fStartButton,
            .ibRevealButton1 = &fRevealButton1,
            .ibRevealButton2 = &fRevealButton2,
            .ibStatusTextField = fStatusField,
            .fNsPathControl1 = fPathControl,
        };
    }

    void quit() override {
        if (mayQuit())
            fApplication.terminate();
    }

    void sendActionsTo(ViewController& controller, AppDelegate& delegate) override {
        fController = &controller;
        fDelegate = &delegate;
        sendWindowActions(fWindow, controller, *fMachine.workspace, fPathControl, fOnceButtons);
        fWindow.syncTab().setRemedyChosen([this](Remedy remedy) { apply(remedy); });
        fChecklist.emplace(Checklist::Parts{
            .defaults = fMachine.defaults,
            .mainQueue = fMachine.mainQueue,
            .bgQueue = fMachine.bgQueue,
            .files = fMachine.files,
            .passes = fMachine.passes,
            .show =
                [this](const std::vector<ChecklistLine>& lines) {
                    fController->setMissing(lines);
                    fWindow.syncTab().checklist().setLines(lines);
                },
        });
        QObject::connect(&fWindow, &MainWindow::activated, &fWindow,
                         [this] { fChecklist->look(); });
        QObject::connect(&fWindow, &MainWindow::keyStateShown, &fWindow,
                         [this](KeyState state) { fChecklist->setKeyState(state); });
        QObject::connect(&fWindow.remoteTab(), &RemoteTab::shownFirst, &fWindow,
                         [this] { watchConnection(); });
        if (fWindow.remoteTab().wasShown())
            watchConnection();
        addApplicationMenu(
            fWindow, controller, delegate, fMachine.statusMenu(), *fMachine.workspace,
            fMachine.logFolder(), [this] { askForAnotherMac(); }, [this] { return mayQuit(); },
            [this] { fApplication.terminate(); });
    }

private:
    /// The window does not wait for what takes a while.
    void finishStart() {
        fWindow.setWindowIcon(applicationIcon());
        if (!QDBusConnection::sessionBus().isConnected())
            fMachine.console.log(QStringLiteral(
                "No session bus is reached: notices stay away, and the tray icon too where "
                "the desktop draws it over the bus."));
        if (!ColorScheme::isTakenOverByToolkit())
            fColorScheme.emplace(takeColors);
        keepNoPictures();
        giveMemoryBack();
    }

    /// The toolkit keeps what it has drawn of buttons and of the icon, and wakes half a minute
    /// after each paint to throw it away again. It is drawn as quickly anew.
    static void keepNoPictures() {
        QPixmapCache::clear();
        QPixmapCache::setCacheLimit(0);
    }

    static void takeColors(bool dark) {
        QApplication::setPalette(dark ? darkPalette() : QPalette());
    }

    static void copyText(const QString& text) { QApplication::clipboard()->setText(text); }

    void apply(Remedy remedy) {
        switch (remedy) {
        case Remedy::ShowRemoteTab:
            fWindow.button(QStringLiteral("showRemoteTab")).click();
            break;
        case Remedy::ChooseMac:
            showStep(SetupStep::Mac);
            break;
        case Remedy::EnterAccount:
            showStep(SetupStep::Account);
            break;
        case Remedy::SetUpKey:
            showStep(SetupStep::Key);
            break;
        case Remedy::ChooseSource:
            fWindow.button(QStringLiteral("ibSelectFolder1Action")).click();
            break;
        case Remedy::ChooseDestination:
            fWindow.button(QStringLiteral("ibSelectFolder2Action")).click();
            break;
        case Remedy::CopyInstallCommand:
            copyText(cInstallCommand.toString());
            break;
        case Remedy::CheckAgain:
            fController->ibSyncNow(nullptr);
            break;
        case Remedy::ShowDetails:
            fWindow.showActivity(cNewestPass);
            break;
        case Remedy::OpenLog:
            fMachine.workspace->openFile(fMachine.logFolder());
            break;
        case Remedy::None:
            break;
        }
    }

    void askForAnotherMac() {
        auto* sheet = new ProfilesSheet(
            {.mainQueue = fMachine.mainQueue,
             .bgQueue = fMachine.bgQueue,
             .own = fMachine.profile,
             .list = profilesThere,
             .open = [this](const Profile& profile) { return fMachine.copies.start(profile); }},
            &fWindow);
        sheet->show();
    }

    void showStep(SetupStep step) {
        fWindow.showTab(QStringLiteral("remote"));
        fWindow.remoteTab().openStep(step);
    }

    /// Who never looks at the tab does not wait for the record.
    void watchConnection() {
        fConnection.emplace(ConnectionWatch::Parts{
            .defaults = fMachine.defaults,
            .passes = fMachine.passes,
            .now = [] { return QDateTime::currentDateTimeUtc(); },
            .keyState = fWindow.keyState(),
            .show =
                [this](const Connection& connection) {
                    fWindow.remoteTab().setConnection(connection);
                },
        });
        QObject::connect(&fWindow, &MainWindow::keyStateShown, &fWindow,
                         [this](KeyState state) { fConnection->setKeyState(state); });
    }

    /// A second wish, from the tray, adds no second question.
    bool mayQuit() {
        if (std::exchange(fAsksAboutQuit, true))
            return false;
        const bool may =
            askBeforeQuitting(fController->work(), fClosePolicy, fMachine.defaults, fAlerts);
        fAsksAboutQuit = false;
        return may;
    }

    bool mayClose() {
        std::optional<ModalResponse> answer;
        if (const auto note = fClosePolicy.noteBeforeClosing(fMachine.statusMenu().isReachable()))
            answer = fAlerts.runModal(*note);
        const CloseResult result = fClosePolicy.result(answer);
        if (result == CloseResult::Hide && fDelegate &&
            fDelegate->applicationShouldTerminateAfterLastWindowClosed()) {
            if (!mayQuit())
                return false;
            fApplication.terminate();
            return true;
        }
        if (result == CloseResult::Hide)
            tellWhereTheWindowGoes();
        return result != CloseResult::KeepOpen;
    }

    void tellWhereTheWindowGoes() {
        if (const auto notice =
                fClosePolicy.noticeAtHiding(fMachine.statusMenu().isReachable(), fMachine.defaults))
            fMachine.notices->showNotice(*notice);
    }

    MachineParts& fMachine;
    ViewController* fController = nullptr;
    AppDelegate* fDelegate = nullptr;
    ClosePolicy fClosePolicy;
    bool fAsksAboutQuit = false;
    std::optional<Checklist> fChecklist;
    std::optional<ConnectionWatch> fConnection;
    ArrayController fFoundServices; ///< told of the table's selection until the window is gone
    MainWindow fWindow;
    WidgetMainView fView;
    WidgetApplication fApplication;
    WidgetButton fStartButton;
    WidgetControl fRevealButton1;
    WidgetControl fRevealButton2;
    std::shared_ptr<WidgetStatusField> fStatusField;
    std::shared_ptr<WidgetPathControl> fPathControl;
    SheetPresenter fAlerts;
    WidgetOpenPanel fOpenPanel;
    OnceButtons fOnceButtons;
    Subscription fPassEnds;
    std::optional<ColorScheme> fColorScheme;
    std::shared_ptr<MainWindowController> fWindowController;
};

/// The tray's icon with all that it works with.
struct Tray {
    Tray(DispatchQueue& mainQueue, const Profile& profile)
        : item(StatusNotifierItem::connectToSessionBus, profile),
          icon(host, item, mainQueue, profile) {}

    DesktopTrayHost host;
    StatusNotifierItem item;
    TrayIcon icon;
};

StatusMenuParts makeTray(DispatchQueue& mainQueue, const Profile& profile) {
    const auto tray = std::make_shared<Tray>(mainQueue, profile);
    return {
        .menu = {tray, &tray->icon},
        .showNotice = [&icon = tray->icon](const Notice& notice) { icon.showNotice(notice); },
    };
}

} // namespace

FrontKind windowFront() {
    return {
        .hasWindow = true,
        .bus = ownBusParts(),
        .makeWorkspace = [](PassMachine& machine) -> std::unique_ptr<Workspace> {
            return std::make_unique<DesktopWorkspace>(
                machine.mainQueue, machine.bgQueue, machine.console, machine.files.homeDirectory());
        },
        .makeStatusMenu = makeTray,
        .makeFront = [](MachineParts& machine,
                        const std::function<void(const WorkState&)>&) -> std::unique_ptr<Front> {
            QApplication::setStyle(new StartStyle(QApplication::style()));
            return std::make_unique<WindowFront>(machine);
        },
    };
}

} // namespace kelvo
