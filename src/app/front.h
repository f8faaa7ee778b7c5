// Front: the face of the program, with a window or without.
#pragma once

#include "ui/outlets.h"

#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class AppDelegate;
class Application;
class BackgroundQueue;
class ChecklistProbe;
class Console;
class DispatchQueue;
class DnssdBrowser;
class LoginItem;
class MainWindowController;
class PassStore;
class StatusMenu;
class Terminal;
class UserDefaults;
class ViewController;
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
    PassStore& passes;
    BackgroundQueue& bgQueue;
    QString homeDirectory;
    const ChecklistProbe& checklistProbe;
    LoginItem& loginItem;
};

/// Main thread only. What it hands out lives as long as the front.
class Front {
public:
    virtual ~Front() = default;
    virtual Application& application() = 0;
    virtual Outlets outlets() = 0;

    /// The controller of the front's window; the same at each call.
    virtual std::shared_ptr<MainWindowController> windowController() = 0;

    /// From now on controls and menus send their actions there. Both outlive the front's event
    /// loop.
    virtual void sendActionsTo(ViewController& controller, AppDelegate& delegate) = 0;
};

/// Everything is one line on standard output.
std::unique_ptr<Front> makeHeadlessFront(const FrontParts& parts);

/// The main window; needs a QApplication.
std::unique_ptr<Front> makeWindowFront(const FrontParts& parts);

} // namespace kelvo
