#include "app/program.h"

#include "app/app_delegate.h"
#include "app/duplicate_check.h"
#include "app/front.h"
#include "app/interface_registry.h"
#include "app/machine_parts.h"
#include "app/pass_recording.h"
#include "app/version.h"
#include "app/watchdog.h"
#include "app/watchdog_relaunch_guard.h"
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
          fWatchdog(Watchdog::begin(
              {fParts.signals, fParts.bundle, fParts.defaults, fParts.console,
               fParts.sentinelLauncher, fParts.notificationCenter, fParts.mainQueue,
               QCoreApplication::arguments(), QCoreApplication::applicationPid(),
               [] { return QDateTime::currentDateTimeUtc(); }, [this] { terminate(); },
               [this](int status) { leaveAtOnce(status); }})) {
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
            fParts.console, fParts.logFile, fParts.defaults, fParts.bundle, fRelaunchGuard,
            fStoryboard, fParts.systemInformation,
            [this] { fDuplicates.checkForDuplicateRunningInstances(); },
            [this] {
                return std::make_unique<KelvoStatusMenuHandler>(fStatusMenu, fParts.console);
            },
            runningApplication()});
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
            const FrontParts parts{fParts.defaults,
                                   fParts.mainQueue,
                                   fParts.console,
                                   fParts.workspace,
                                   fParts.dnssdBrowser,
                                   fParts.statusMenu(),
                                   fParts.terminal,
                                   logFolder(),
                                   [this](bool trouble) { fStatusMenu.setTrouble(trouble); },
                                   fPasses.store,
                                   fParts.bgQueue,
                                   fParts.files.homeDirectory(),
                                   fParts.checklistProbe,
                                   fParts.loginItem};
            fFront = fKind == FrontKind::Window ? makeWindowFront(parts) : makeHeadlessFront(parts);
        }
        return *fFront;
    }

    std::shared_ptr<ViewController> makeViewController() {
        const FrontOutlets outlets = front().outlets();
        auto controller = std::make_shared<ViewController>(
            ViewControllerParts{fParts.defaults,
                                fParts.mainQueue,
                                fParts.bgQueue,
                                fPasses.shell,
                                fParts.files,
                                fParts.console,
                                fParts.notificationCenter,
                                fParts.bundle,
                                front().application(),
                                fRelaunchGuard,
                                fParts.workspace,
                                outlets.openPanel,
                                fParts.networkBrowser,
                                fParts.dnssdBrowser,
                                [this] { return fParts.makeNetworkChecker(); },
                                fStatusMenu,
                                fParts.temporaryFolder,
                                fParts.fileChanges,
                                outlets.terminal,
                                outlets.pasteboard,
                                fParts.shareCommands,
                                outlets.view,
                                outlets.alertPresenter,
                                outlets.sheets,
                                outlets.fArrayController,
                                outlets.ibStartButton,
                                outlets.ibRevealButton1,
                                outlets.ibRevealButton2,
                                outlets.ibStatusTextField,
                                outlets.fNsPathControl1,
                                [this]() -> StatusMenuWindow* {
                                    WindowController& window = *front().windowController();
                                    return window.contentViewController() ? &window : nullptr;
                                },
                                &fPasses.journal});
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
