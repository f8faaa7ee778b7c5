#include "app/program.h"

#include "adapters/posix/local_file_manager.h"
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
#include "ui/view_controller.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <unistd.h>

#include <csignal>

namespace kelvo {
namespace {

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
          fShell(fConsole), fFront(makeFront(frontKind)),
          fController({fDefaults, fMainQueue, fBgQueue, fShell, fFiles, fConsole,
                       fFront->alertPresenter(), fFront->ibStartButton(),
                       fFront->ibStatusTextField()}) {
        fLogFile.setLogFile(fLogFile.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")));
        for (const int signal : {SIGTERM, SIGINT})
            fQuitSignals.push_back(fSignals.catchSignal(signal, [] { QCoreApplication::quit(); }));
    }

    ~Machine() {
        fMainQueue.stop();
        fShell.endAll();
        fBgQueue.stopAndWait();
        fDefaults.synchronize();
    }

    void start() {
        registerFactoryDefaults(fBundle, fDefaults, fConsole);
        fFront->show();
        fController.viewDidLoad();
    }

private:
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
    std::vector<Subscription> fQuitSignals;
    std::unique_ptr<Front> fFront;
    ViewController fController;
};

Program::Program(FrontKind frontKind) : fMachine(std::make_unique<Machine>(frontKind)) {}

Program::~Program() = default;

void Program::start() {
    fMachine->start();
}

} // namespace kelvo
