// ViewControllerParts: what the controller of the main window works with.
#pragma once

#include <functional>
#include <memory>

namespace kelvo {

class AlertPresenter;
class Application;
class ArrayController;
class BackgroundQueue;
class Bundle;
class Button;
class Console;
class Control;
class DispatchQueue;
class DnssdBrowser;
class FileManager;
class MainView;
class NetworkChecker;
class NotificationCenter;
class OpenPanel;
class PassListener;
class Pasteboard;
class PathControl;
class RelaunchGuard;
class ShareCommands;
class SheetOpener;
class ShellRunner;
class StatusField;
class StatusMenuPresence;
class StatusMenuWindow;
class Terminal;
class UserDefaults;
class Workspace;

/// All of it outlives the controller.
struct ViewControllerParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    ShellRunner& shell;
    FileManager& files;
    Console& console;
    NotificationCenter& notificationCenter;
    const Bundle& bundle;
    Application& application;
    RelaunchGuard& watchdog;
    Workspace& workspace;
    OpenPanel& openPanel;
    DnssdBrowser& dnssdBrowser;
    std::function<std::unique_ptr<NetworkChecker>()> makeKelvoSSID;
    StatusMenuPresence& statusMenu;
    Terminal& terminal;
    Pasteboard& pasteboard;
    const ShareCommands& shareCommands;

    // What lies in the window.
    MainView& view;
    AlertPresenter& alertPresenter;
    SheetOpener& sheets;
    ArrayController& fArrayController; ///< what the main view's own search found
    Button& ibStartButton;
    const Control* ibRevealButton1;
    const Control* ibRevealButton2;
    std::weak_ptr<StatusField> ibStatusTextField;
    std::weak_ptr<PathControl> fNsPathControl1;
    /// The controller of the view's window; nothing as long as there is none.
    std::function<StatusMenuWindow*()> windowController;
    PassListener* passListener = nullptr; ///< hears of each pass; may be missing
};

} // namespace kelvo
