// Front: the face of the program, with a window or without.
#pragma once

#include "app/bus_parts.h"
#include "ports/desktop_notices.h"
#include "ports/status_menu.h"
#include "ui/outlets.h"

#include <functional>
#include <memory>

namespace kelvo {

class AppDelegate;
class DispatchQueue;
class MainWindowController;
class ViewController;
class Workspace;
struct PassMachine;
struct Profile;
struct WorkState;
struct MachineParts;

/// Main thread only. What it hands out lives as long as the front.
class Front {
public:
    virtual ~Front() = default;
    virtual Application& application() = 0;
    virtual Outlets outlets() = 0;

    /// The controller of the front's window; the same at each call.
    virtual std::shared_ptr<MainWindowController> windowController() = 0;

    /// Ends the program at a person's wish, who may be asked first.
    virtual void quit() = 0;

    /// From now on controls and menus send their actions there. Both outlive the front's event
    /// loop.
    virtual void sendActionsTo(ViewController& controller, AppDelegate& delegate) = 0;
};

/// A front's place in the tray.
struct StatusMenuParts {
    std::shared_ptr<StatusMenu> menu;
    /// Shows what the desktop has no service for; may be empty. Not called once `menu` is gone.
    std::function<void(const Notice&)> showNotice = {};
};

/// How the fronts of one kind are made.
struct FrontKind {
    bool hasWindow = false;
    BusParts bus;
    /// `machine` outlives the workspace.
    std::unique_ptr<Workspace> (*makeWorkspace)(PassMachine& machine);
    /// `mainQueue` has ended before the menu goes.
    StatusMenuParts (*makeStatusMenu)(DispatchQueue& mainQueue, const Profile& profile);
    /// `machine` outlives the front. A front without a window hands each state of the work on to
    /// `shown` too.
    std::unique_ptr<Front> (*makeFront)(MachineParts& machine,
                                        const std::function<void(const WorkState&)>& shown);
};

/// Everything is one line on standard output.
FrontKind headlessFront();

/// The main window and the tray; need a QApplication.
FrontKind windowFront();

} // namespace kelvo
