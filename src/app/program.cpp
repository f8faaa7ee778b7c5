#include "app/program.h"

#include "adapters/posix/local_file_manager.h"
#include "adapters/posix/local_notification_center.h"
#include "adapters/posix/posix_sentinel_launcher.h"
#include "adapters/posix/posix_shell_runner.h"
#include "adapters/posix/rotating_log_file.h"
#include "adapters/posix/stream_console.h"
#include "adapters/posix/thread_pool_queue.h"
#include "adapters/qt/file_bundle.h"
#include "adapters/qt/plist_defaults.h"
#include "adapters/qt/qt_main_queue.h"
#include "adapters/qt/signal_pipe.h"
#include "app/factory_defaults.h"
#include "app/front.h"
#include "app/watchdog.h"
#include "app/watchdog_relaunch_guard.h"
#include "ui/view_controller.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <unistd.h>

#include <chrono>
#include <csignal>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr unsigned long cMostRelaunches = 4;
constexpr double cRelaunchSeconds = 30.0;
constexpr auto cLastWordsPatience = 200ms;

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/kelvo-mirror/preferences.plist");
}

QString resourceFolder() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/kelvo-mirror");
}

} // namespace

/// The real parts, each after those it works with.
class Program::Machine {
public:
    explicit Machine(FrontKind frontKind)
        : fConsole(STDOUT_FILENO, STDERR_FILENO, fLogFile),
          fDefaults(settingsFile(), fMainQueue, fConsole), fBundle(resourceFolder()),
          fShell(fConsole), fWatchdog(Watchdog::begin(watchdogParts())),
          fFront(makeFront(frontKind)),
          fController({fDefaults, fMainQueue, fBgQueue, fShell, fFiles, fConsole,
                       fFront->alertPresenter(), fFront->ibStartButton(),
                       fFront->ibStatusTextField()}) {
        fLogFile.setLogFile(fLogFile.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")));
        for (const int signal : {SIGTERM, SIGINT})
            fQuitSignals.push_back(fSignals.catchSignal(signal, [] { QCoreApplication::quit(); }));
    }

    ~Machine() {
        fNotifications.post(cWillTerminateNotification.toString());
        fMainQueue.stop();
        fShell.endAll();
        fBgQueue.stopAndWait();
        fDefaults.synchronize();
    }

    void start() {
        registerFactoryDefaults(fBundle, fDefaults, fConsole);
        fRelaunchGuard.autoRelaunchUnless(cMostRelaunches, cRelaunchSeconds,
                                          [](unsigned long, double) { return false; });
        fFront->show();
        fController.viewDidLoad();
    }

private:
    WatchdogParts watchdogParts() {
        return {fSignals,
                fBundle,
                fDefaults,
                fConsole,
                fSentinelLauncher,
                fNotifications,
                fMainQueue,
                QCoreApplication::arguments(),
                QCoreApplication::applicationPid(),
                QDateTime::currentDateTimeUtc,
                [] { QCoreApplication::quit(); },
                [this](int status) {
                    fConsole.flush(cLastWordsPatience);
                    ::_exit(status);
                }};
    }

    std::unique_ptr<Front> makeFront(FrontKind kind) {
        const StartAction start = [this](Control* sender) {
            fController.ibStartRSyncProcess(sender);
        };
        return kind == FrontKind::Window ? makeWindowFront(fDefaults, fMainQueue, start)
                                         : makeHeadlessFront(fConsole, fMainQueue, start);
    }

    RotatingLogFile fLogFile;
    StreamConsole fConsole;
    QtMainQueue fMainQueue;
    PlistDefaults fDefaults;
    LocalFileManager fFiles;
    FileBundle fBundle;
    PosixShellRunner fShell;
    ThreadPoolQueue fBgQueue;
    SignalPipe fSignals;
    std::vector<Subscription> fQuitSignals; ///< for when nobody watches us
    LocalNotificationCenter fNotifications;
    PosixSentinelLauncher fSentinelLauncher;
    Subscription fWatchdog;
    WatchdogRelaunchGuard fRelaunchGuard;
    std::unique_ptr<Front> fFront;
    ViewController fController;
};

Program::Program(FrontKind frontKind) : fMachine(std::make_unique<Machine>(frontKind)) {}

Program::~Program() = default;

void Program::start() {
    fMachine->start();
}

} // namespace kelvo
