// AppDelegate: brings the program up in order, and answers the menus that belong to no view.
#pragma once

#include <QString>
#include <QStringView>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class Bundle;
class Console;
class Control;
class InterfaceRegistry;
class KelvoStatusMenuHandler;
class LogFile;
class MainViewController;
class RelaunchGuard;
class SystemInformation;
class UserDefaults;
class WindowController;

/// What the delegate works with; the references outlive it.
struct AppDelegateParts {
    Console& console;
    LogFile& logger;
    UserDefaults& defaults;
    const Bundle& mainBundle;
    RelaunchGuard& watchdog;
    const InterfaceRegistry& storyboard;
    SystemInformation& processInfo;
    std::function<void()> checkForDuplicateRunningInstances;
    std::function<std::unique_ptr<KelvoStatusMenuHandler>()> makeStatusMenuHandler;
    QString runningApplication; ///< how this process reads in a diagnostic line
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
    void applicationDidFinishLaunching() {}
    void applicationWillTerminate() {}

    /// False: closing the window leaves the program running in the tray.
    bool applicationShouldTerminateAfterLastWindowClosed();
    bool applicationSupportsSecureRestorableState() const { return true; }

    /// Sets up the watchdog: four relaunches within 30 s are the last.
    void ibActionFromDelegate(Control* sender);

    /// Show the tray icon, or take it away. The third one takes it away too and neither quits nor
    /// relaunches: that is the main view's action of the same name.
    void ibSetupStatusItemStuff(Control* sender);
    void ibRemoveStatusItemStuff(Control* sender);
    void ibQuitAndRelaunch(Control* sender);

    /// A controller of the wrong class, or none, stops the program.
    WindowController& fWindowController();
    MainViewController& fViewController();
    KelvoStatusMenuHandler& myStatusMenuHandler();
    /// Empty, and of no use to the start-up.
    QVariantMap& myobjcObject();

private:
    void doBasicStartUpStuff();
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const AppDelegateParts fParts;
    std::shared_ptr<MainViewController> fLazyViewController;
    std::shared_ptr<WindowController> fLazyWindowController;
    std::unique_ptr<KelvoStatusMenuHandler> fLazyStatusMenuHandler;
    std::optional<QVariantMap> fLazyObjcObject;
};

} // namespace kelvo
