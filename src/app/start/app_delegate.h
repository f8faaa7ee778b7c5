// AppDelegate: brings the program up in order, and answers the menus that belong to no view.
#pragma once

#include "app/start/relaunch_decision.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>

namespace kelvo {

class Bundle;
class Console;
class Control;
class InterfaceRegistry;
class KelvoStatusMenuHandler;
class LogFile;
class MainViewController;
class MainWindowController;
class UserDefaults;

/// What the delegate works with; the references outlive it.
struct AppDelegateParts {
    Console& console;
    LogFile& logger;
    UserDefaults& defaults;
    const Bundle& mainBundle;
    /// Has the program started again whenever it ends by surprise, unless it was started again so
    /// many times within so many seconds and the escape does not answer true.
    std::function<void(unsigned long, double, const RelaunchEscape&)> autoRelaunchUnless;
    const InterfaceRegistry& storyboard;
    std::function<void()> logCurrentSystemInfo; ///< writes what the program runs on, soon
    std::function<void()> checkForDuplicateRunningInstances;
    std::function<std::unique_ptr<KelvoStatusMenuHandler>()> makeStatusMenuHandler;
    QString runningApplication; ///< how this process reads in a diagnostic line
    QString logSubdirectory = QStringLiteral("Kelvo"); ///< of the folder for such files
};

/// Main thread only. Owns the main window's and the main view's controller and a status-menu
/// handler, each made on first use and kept from then on; the handler goes first.
class AppDelegate {
public:
    /// Opens the log, looks for a second copy and registers the factory defaults.
    explicit AppDelegate(AppDelegateParts parts);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// Sets up the watchdog, makes the controllers, shows the window and then the tray icon.
    void applicationWillFinishLaunching();

    /// False: closing the window leaves the program running in the tray.
    bool applicationShouldTerminateAfterLastWindowClosed();

    /// Sets up the watchdog: four relaunches within 30 s are the last.
    void ibActionFromDelegate(Control* sender);

    /// Show the tray icon, or take it away. The third one takes it away too and neither quits nor
    /// relaunches: that is the main view's action of the same name.
    void ibSetupStatusItemStuff(Control* sender);
    void ibRemoveStatusItemStuff(Control* sender);
    void ibQuitAndRelaunch(Control* sender);

    /// Whether the tray icon is wanted, be there a tray to show it in or not.
    bool statusItemIsSetUp() const;

    /// A controller of the wrong class, or none, stops the program.
    MainWindowController& fWindowController();
    MainViewController& fViewController();
    KelvoStatusMenuHandler& myStatusMenuHandler();

private:
    void doBasicStartUpStuff();
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const AppDelegateParts fParts;
    std::shared_ptr<MainViewController> fLazyViewController;
    std::shared_ptr<MainWindowController> fLazyWindowController;
    std::unique_ptr<KelvoStatusMenuHandler> fLazyStatusMenuHandler;
};

} // namespace kelvo
