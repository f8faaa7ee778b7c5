#include "app/program.h"

#include "adapters/desktop/activation_token.h"
#include "adapters/process/service_manager.h"
#include "app/commands/guest_service.h"
#include "app/front.h"
#include "app/machine_parts.h"
#include "app/places.h"
#include "app/start/app_delegate.h"
#include "app/start/duplicate_check.h"
#include "app/start/interface_registry.h"
#include "app/start/service_report.h"
#include "app/start/watchdog.h"
#include "app/version.h"
#include "ports/application.h"
#include "ports/network_checker.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/main_window_controller.h"
#include "ui/pass_notices.h"
#include "ui/status_menu_presence.h"
#include "ui/view_controller.h"

#include <QCoreApplication>
#include <QDateTime>

#include <unistd.h>

#include <csignal>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// How long a leave at once waits for the last lines to be written.
constexpr auto cLastLines = 200ms;

/// The program's own parts, on top of those of the machine.
class Program {
public:
    Program(const FrontKind& kind, const Profile& profile, RestartBy restartBy,
            const ServiceManager& manager)
        : fKind(kind), fRestartBy(restartBy), fParts(kind, profile),
          fStatusMenu(fParts.statusMenu(), fParts.defaults, fParts.mainQueue,
                      [this] { front().quit(); }),
          fDuplicates(fParts.singleCopy, fParts.console, activationToken(),
                      [this](const QByteArray& token) { show(token); }),
          fWatchdog(Watchdog::begin({.signals = fParts.signals,
                                     .bundle = fParts.bundle,
                                     .defaults = fParts.defaults,
                                     .console = fParts.console,
                                     .sentinelLauncher = fParts.sentinelLauncher,
                                     .notifications = fParts.notificationCenter,
                                     .mainQueue = fParts.mainQueue,
                                     .arguments = QCoreApplication::arguments(),
                                     .processIdentifier = QCoreApplication::applicationPid(),
                                     .now = [] { return QDateTime::currentDateTimeUtc(); },
                                     .terminate = [this] { terminate(); },
                                     .leaveAtOnce = [this](int status) { leaveAtOnce(status); }})) {
        if (manager.isThere())
            fReport.emplace(ServiceReport::Parts{
                .mainQueue = fParts.mainQueue,
                .passes = fParts.passes,
                .now = [] { return QDateTime::currentDateTimeUtc(); },
                .tell = [&manager](QByteArrayView state) { manager.tell(state); },
                .watchdogSeconds = manager.watchdogSeconds(),
            });
        for (const int signal : {SIGTERM, SIGINT})
            fQuitSignals.push_back(fParts.signals.catchSignal(signal, [this] {
                if (!Watchdog::catchesCrashSignals())
                    terminate();
            }));
        fStoryboard.add(cMyWindowControllerID, [this] { return front().windowController(); });
        fStoryboard.add(cMyViewControllerID, [this] { return makeViewController(); });
    }

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ~Program() {
        fParts.end();
        fParts.defaults.synchronize();
    }

    int run() {
        fDelegate.emplace(AppDelegateParts{
            .console = fParts.console,
            .logger = fParts.logFile,
            .defaults = fParts.defaults,
            .mainBundle = fParts.bundle,
            .autoRelaunchUnless =
                [this](unsigned long count, double seconds, const RelaunchEscape& escape) {
                    keepRunning(count, seconds, escape);
                },
            .storyboard = fStoryboard,
            .logCurrentSystemInfo = [this] { fParts.systemInformation.logCurrentSystemInfo(); },
            .checkForDuplicateRunningInstances =
                [this] { fDuplicates.checkForDuplicateRunningInstances(); },
            .makeStatusMenuHandler =
                [this] {
                    return std::make_unique<KelvoStatusMenuHandler>(fStatusMenu, fParts.console);
                },
            .runningApplication = runningApplication(),
            .logSubdirectory = logSubdirectory(fParts.profile),
        });
        if (const auto exitCode = fDuplicates.exitCode()) {
            reportDuplicate();
            return *exitCode;
        }
        fDelegate->applicationWillFinishLaunching();
        offerActivationToken({});
        if (fReport)
            fReport->ready();
        const int exitCode = QCoreApplication::exec();
        if (fReport)
            fReport->stopping();
        fParts.notificationCenter.post(cWillTerminateNotification.toString());
        return exitCode;
    }

private:
    Front& front() {
        if (!fFront) {
            fFront = fKind.makeFront(fParts, [this](const WorkState& work) {
                if (fReport)
                    fReport->show(work);
            });
        }
        return *fFront;
    }

    std::shared_ptr<ViewController> makeViewController() {
        const EngineParts engine = fParts.engineParts(fParts.defaults);
        auto controller = std::make_shared<ViewController>(ViewControllerParts{
            .engine = engine,
            .outlets = front().outlets(),
            .passStore = fParts.passes,
            .notificationCenter = fParts.notificationCenter,
            .bundle = fParts.bundle,
            .quitAndRelaunch = Watchdog::quitAndRelaunch,
            .workspace = *fParts.workspace,
            .dnssdBrowser = *fParts.dnssdBrowser,
            .makeKelvoSSID = [this] { return fParts.makeNetworkChecker(); },
            .statusMenu = fStatusMenu,
            .shareCommands = fParts.shareCommands,
            .firstPassDelay = fParts.profile.firstPassDelay(),
            .windowController = [this]() -> MainWindowController* {
                MainWindowController& window = *front().windowController();
                return window.contentViewController() ? &window : nullptr;
            },
            .workLooked =
                [this] {
                    if (fGuestService)
                        fGuestService->looked();
                },
            .messageShown =
                [this](const AttributedString& message) {
                    if (fGuestService)
                        fGuestService->messageShown(message);
                },
            .alertShown =
                [this](const Alert& alert) {
                    if (fGuestService)
                        fGuestService->alertShown(alert);
                },
        });
        fGuestService.emplace(GuestServiceParts{
            .guests = fParts.singleCopy,
            .controller = *controller,
            .copy = {.version = QStringView(cVersion).toString(),
                     .process = QCoreApplication::applicationPid(),
                     .since = QDateTime::currentDateTimeUtc(),
                     .window = fKind.hasWindow},
            .clock = engine.clock,
        });
        front().sendActionsTo(*controller, *fDelegate);
        return controller;
    }

    /// With both, a crash would be answered twice.
    void keepRunning(unsigned long count, double seconds, const RelaunchEscape& escape) {
        if (fRestartBy == RestartBy::Sentinel)
            Watchdog::autoRelaunchUnless(count, seconds, escape);
        else
            fParts.console.log(QStringLiteral(
                "started without a sentinel: whoever has started the program restarts it"));
    }

    /// For the manager this start has gone well: there is nothing to be restarted.
    void reportDuplicate() {
        if (!fReport)
            return;
        fReport->ready();
        fReport->stopping(QStringLiteral("Kelvo Mirror is running already"));
    }

    void show(const QByteArray& token) {
        if (!fFront)
            return;
        offerActivationToken(token);
        fFront->windowController()->showWindow();
        offerActivationToken({});
    }

    void showActivity(std::optional<qint64> pass) {
        if (!fFront)
            return;
        if (auto* mainView = fFront->windowController()->contentViewController())
            mainView->showActivity(pass);
    }

    void terminate() {
        if (fFront)
            fFront->application().terminate();
        else
            QCoreApplication::quit();
    }

    /// The commands that are running are the sentinel's to end.
    [[noreturn]] void leaveAtOnce(int status) {
        (void)fParts.console.flush(cLastLines);
        ::_exit(status);
    }

    static QString runningApplication() {
        return QStringLiteral("<NSRunningApplication: kelvo-mirror %1 - %2>")
            .arg(cVersion)
            .arg(QCoreApplication::applicationPid());
    }

    const FrontKind fKind;
    const RestartBy fRestartBy;
    MachineParts fParts;
    std::optional<ServiceReport> fReport;
    PassNotices fNotices{fParts.passes, fParts.defaults, *fParts.notices,
                         [this](std::optional<qint64> pass) { showActivity(pass); }};
    StatusMenuPresence fStatusMenu;
    DuplicateCheck fDuplicates;
    std::vector<Subscription> fQuitSignals; ///< for a program that nobody watches
    Subscription fWatchdog;
    InterfaceRegistry fStoryboard;
    std::unique_ptr<Front> fFront;
    std::optional<AppDelegate> fDelegate;
    std::optional<GuestService> fGuestService; ///< gone before the controller that it works with
};

} // namespace

int runProgram(const FrontKind& kind, const Profile& profile, RestartBy restartBy) {
    const ServiceManager manager;
    return Program(kind, profile, restartBy, manager).run();
}

} // namespace kelvo
