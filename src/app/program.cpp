#include "app/program.h"

#include "app/front.h"
#include "app/machine_parts.h"
#include "app/pass_recording.h"
#include "app/start/app_delegate.h"
#include "app/start/duplicate_check.h"
#include "app/start/interface_registry.h"
#include "app/start/watchdog.h"
#include "app/start/watchdog_relaunch_guard.h"
#include "app/version.h"
#include "ports/application.h"
#include "ports/network_checker.h"
#include "ui/pass_notices.h"
#include "ui/status_menu_handler.h"
#include "ui/status_menu_presence.h"
#include "ui/view_controller.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <unistd.h>

#include <csignal>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// How long a leave at once waits for the last lines to be written.
constexpr auto cLastLines = 200ms;

} // namespace

/// The program's own parts, on top of those of the machine.
class Program::Machine {
public:
    explicit Machine(FrontKind kind)
        : fKind(kind), fParts(kind == FrontKind::Window),
          fStatusMenu(fParts.statusMenu(), fParts.defaults, fParts.mainQueue,
                      [this] { terminate(); }),
          fDuplicates(fParts.singleCopy, fParts.console, [this] { show(); }),
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
        for (const int signal : {SIGTERM, SIGINT})
            fQuitSignals.push_back(fParts.signals.catchSignal(signal, [this] { terminate(); }));
        fStoryboard.add(cMyWindowControllerID, [this] { return front().windowController(); });
        fStoryboard.add(cMyViewControllerID, [this] { return makeViewController(); });
    }

    ~Machine() {
        fParts.mainQueue.stop();
        fParts.shell.endAll();
        fParts.bgQueue.stopAndWait();
        fParts.defaults.synchronize();
    }

    int run() {
        fDelegate.emplace(AppDelegateParts{
            .console = fParts.console,
            .logger = fParts.logFile,
            .defaults = fParts.defaults,
            .mainBundle = fParts.bundle,
            .watchdog = fRelaunchGuard,
            .storyboard = fStoryboard,
            .processInfo = fParts.systemInformation,
            .checkForDuplicateRunningInstances =
                [this] { fDuplicates.checkForDuplicateRunningInstances(); },
            .makeStatusMenuHandler =
                [this] {
                    return std::make_unique<KelvoStatusMenuHandler>(fStatusMenu, fParts.console);
                },
            .runningApplication = runningApplication(),
        });
        if (const auto exitCode = fDuplicates.exitCode())
            return *exitCode;
        fDelegate->applicationWillFinishLaunching();
        fDelegate->applicationDidFinishLaunching();
        const int exitCode = QCoreApplication::exec();
        fDelegate->applicationWillTerminate();
        fParts.notificationCenter.post(cWillTerminateNotification.toString());
        return exitCode;
    }

private:
    Front& front() {
        if (!fFront) {
            const FrontParts parts{
                .defaults = fParts.defaults,
                .mainQueue = fParts.mainQueue,
                .console = fParts.console,
                .workspace = fParts.workspace,
                .browser = fParts.dnssdBrowser,
                .statusMenu = fParts.statusMenu(),
                .terminal = fParts.terminal,
                .logFolder = logFolder(),
                .trouble = [this](bool trouble) { fStatusMenu.setTrouble(trouble); },
                .passes = fPasses.store,
                .bgQueue = fParts.bgQueue,
                .files = fParts.files,
                .loginItem = fParts.loginItem,
            };
            fFront = fKind == FrontKind::Window ? makeWindowFront(parts) : makeHeadlessFront(parts);
        }
        return *fFront;
    }

    std::shared_ptr<ViewController> makeViewController() {
        const FrontOutlets outlets = front().outlets();
        auto controller = std::make_shared<ViewController>(ViewControllerParts{
            .defaults = fParts.defaults,
            .mainQueue = fParts.mainQueue,
            .bgQueue = fParts.bgQueue,
            .shell = fPasses.shell,
            .files = fParts.files,
            .console = fParts.console,
            .notificationCenter = fParts.notificationCenter,
            .bundle = fParts.bundle,
            .application = front().application(),
            .watchdog = fRelaunchGuard,
            .workspace = fParts.workspace,
            .openPanel = outlets.openPanel,
            .dnssdBrowser = fParts.dnssdBrowser,
            .makeKelvoSSID = [this] { return fParts.makeNetworkChecker(); },
            .statusMenu = fStatusMenu,
            .terminal = outlets.terminal,
            .pasteboard = outlets.pasteboard,
            .shareCommands = fParts.shareCommands,
            .view = outlets.view,
            .alertPresenter = outlets.alertPresenter,
            .sheets = outlets.sheets,
            .fArrayController = outlets.fArrayController,
            .ibStartButton = outlets.ibStartButton,
            .ibRevealButton1 = outlets.ibRevealButton1,
            .ibRevealButton2 = outlets.ibRevealButton2,
            .ibStatusTextField = outlets.ibStatusTextField,
            .fNsPathControl1 = outlets.fNsPathControl1,
            .windowController = [this]() -> StatusMenuWindow* {
                WindowController& window = *front().windowController();
                return window.contentViewController() ? &window : nullptr;
            },
            .passListener = &fPasses.journal,
        });
        front().sendActionsTo(*controller, *fDelegate);
        return controller;
    }

    void show() {
        if (fFront)
            fFront->windowController()->showWindow();
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

    QString logFolder() const {
        return QFileInfo(fParts.logFile.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")))
            .path();
    }

    static QString runningApplication() {
        return QStringLiteral("<NSRunningApplication: kelvo-mirror %1 - %2>")
            .arg(cVersion)
            .arg(QCoreApplication::applicationPid());
    }

    const FrontKind fKind;
    MachineParts fParts;
    PassRecording fPasses{fParts.shell, fParts.mainQueue, fParts.console};
    PassNotices fNotices{fPasses.store, fParts.defaults, fParts.notices};
    StatusMenuPresence fStatusMenu;
    WatchdogRelaunchGuard fRelaunchGuard;
    DuplicateCheck fDuplicates;
    std::vector<Subscription> fQuitSignals; ///< for a program that nobody watches
    Subscription fWatchdog;
    InterfaceRegistry fStoryboard;
    std::unique_ptr<Front> fFront;
    std::optional<AppDelegate> fDelegate;
};

Program::Program(FrontKind frontKind) : fMachine(std::make_unique<Machine>(frontKind)) {}

Program::~Program() = default;

int Program::run() {
    return fMachine->run();
}

} // namespace kelvo
