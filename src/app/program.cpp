#include "app/program.h"

#include "adapters/desktop/activation_token.h"
#include "app/front.h"
#include "app/machine_parts.h"
#include "app/places.h"
#include "app/start/app_delegate.h"
#include "app/start/duplicate_check.h"
#include "app/start/interface_registry.h"
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
    Program(FrontKind kind, const Profile& profile)
        : fKind(kind), fParts(kind == FrontKind::Window, profile),
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
            .autoRelaunchUnless = Watchdog::autoRelaunchUnless,
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
        if (const auto exitCode = fDuplicates.exitCode())
            return *exitCode;
        fDelegate->applicationWillFinishLaunching();
        offerActivationToken({});
        const int exitCode = QCoreApplication::exec();
        fParts.notificationCenter.post(cWillTerminateNotification.toString());
        return exitCode;
    }

private:
    Front& front() {
        if (!fFront) {
            fFront =
                fKind == FrontKind::Window ? makeWindowFront(fParts) : makeHeadlessFront(fParts);
        }
        return *fFront;
    }

    std::shared_ptr<ViewController> makeViewController() {
        auto controller = std::make_shared<ViewController>(ViewControllerParts{
            .engine = fParts.engineParts(fParts.defaults),
            .outlets = front().outlets(),
            .passStore = fParts.passes,
            .notificationCenter = fParts.notificationCenter,
            .bundle = fParts.bundle,
            .quitAndRelaunch = Watchdog::quitAndRelaunch,
            .workspace = fParts.workspace,
            .dnssdBrowser = fParts.dnssdBrowser,
            .makeKelvoSSID = [this] { return fParts.makeNetworkChecker(); },
            .statusMenu = fStatusMenu,
            .shareCommands = fParts.shareCommands,
            .firstPassDelay = fParts.profile.firstPassDelay(),
            .windowController = [this]() -> MainWindowController* {
                MainWindowController& window = *front().windowController();
                return window.contentViewController() ? &window : nullptr;
            },
        });
        front().sendActionsTo(*controller, *fDelegate);
        return controller;
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
    MachineParts fParts;
    PassNotices fNotices{fParts.passes, fParts.defaults, fParts.notices,
                         [this](std::optional<qint64> pass) { showActivity(pass); }};
    StatusMenuPresence fStatusMenu;
    DuplicateCheck fDuplicates;
    std::vector<Subscription> fQuitSignals; ///< for a program that nobody watches
    Subscription fWatchdog;
    InterfaceRegistry fStoryboard;
    std::unique_ptr<Front> fFront;
    std::optional<AppDelegate> fDelegate;
};

} // namespace

int runProgram(FrontKind kind, const Profile& profile) {
    return Program(kind, profile).run();
}

} // namespace kelvo
