// Front: the face of the program, with a window or without.
#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class AlertPresenter;
class AppDelegate;
class Application;
class ArrayController;
class BackgroundQueue;
class Button;
class Console;
class Control;
class DispatchQueue;
class DnssdBrowser;
class FileManager;
class LoginItem;
class MainView;
class OpenPanel;
class PassStore;
class Pasteboard;
class PathControl;
class SheetOpener;
class StatusField;
class StatusMenu;
class Terminal;
class UserDefaults;
class ViewController;
class WindowController;
class Workspace;

/// What a front works with; all of it outlives the front.
struct FrontParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    Console& console;
    Workspace& workspace;
    DnssdBrowser& browser;
    StatusMenu& statusMenu;
    Terminal& terminal; ///< of the desktop; used by a front that has one
    QString logFolder;
    /// Told after each status message whether it is about trouble.
    std::function<void(bool)> trouble;
    PassStore& passes;
    BackgroundQueue& bgQueue;
    const FileManager& files;
    LoginItem& loginItem;
};

/// What lies in the front, for the main view's controller.
struct FrontOutlets {
    MainView& view;
    AlertPresenter& alertPresenter;
    SheetOpener& sheets;
    OpenPanel& openPanel;
    Terminal& terminal;
    Pasteboard& pasteboard;
    ArrayController& fArrayController;
    Button& ibStartButton;
    const Control* ibRevealButton1;
    const Control* ibRevealButton2;
    std::weak_ptr<StatusField> ibStatusTextField;
    std::weak_ptr<PathControl> fNsPathControl1;
};

/// Main thread only. What it hands out lives as long as the front.
class Front {
public:
    virtual ~Front() = default;
    virtual Application& application() = 0;
    virtual FrontOutlets outlets() = 0;

    /// The controller of the front's window; the same at each call.
    virtual std::shared_ptr<WindowController> windowController() = 0;

    /// From now on controls and menus send their actions there. Both outlive the front's event
    /// loop.
    virtual void sendActionsTo(ViewController& controller, AppDelegate& delegate) = 0;
};

/// Everything is one line on standard output.
std::unique_ptr<Front> makeHeadlessFront(const FrontParts& parts);

/// The main window; needs a QApplication.
std::unique_ptr<Front> makeWindowFront(const FrontParts& parts);

} // namespace kelvo
