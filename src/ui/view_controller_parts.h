// ViewControllerParts: what the controller of the main window works with.
#pragma once

#include <QString>

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
class FileChanges;
class FileManager;
class MainView;
class MainWindowController;
class NetworkBrowser;
class NetworkChecker;
class NotificationCenter;
class OpenPanel;
class PassListener;
class PathControl;
class ShareCommands;
class ShellRunner;
class StatusField;
class StatusMenuPresence;
class TemporaryFolder;
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
    std::function<void()> quitAndRelaunch; ///< ends the program and has it started again
    Workspace& workspace;
    OpenPanel& openPanel;
    NetworkBrowser& networkBrowser;
    DnssdBrowser& dnssdBrowser;
    std::function<std::unique_ptr<NetworkChecker>()> makeKelvoSSID;
    StatusMenuPresence& statusMenu;
    const TemporaryFolder& temporaryFolder;
    FileChanges& fileChanges;
    Terminal& terminal;
    std::function<void(const QString&)> copyText; ///< to the clipboard
    const ShareCommands& shareCommands;

    // What lies in the window.
    MainView& view;
    AlertPresenter& alertPresenter;
    /// Makes the sheet of this identifier afresh and shows it; returns at once, the sheet closes
    /// itself. False when there is no such sheet.
    std::function<bool(QStringView)> presentSheet;
    ArrayController& fArrayController; ///< what the main view's own search found
    Button& ibStartButton;
    const Control* ibRevealButton1;
    const Control* ibRevealButton2;
    std::weak_ptr<StatusField> ibStatusTextField;
    std::weak_ptr<PathControl> fNsPathControl1;
    /// The controller of the view's window; nothing as long as there is none.
    std::function<MainWindowController*()> windowController;
    PassListener* passListener = nullptr; ///< hears of each pass; may be missing
};

} // namespace kelvo
