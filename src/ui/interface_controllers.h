// The controllers that the interface is made of, as the start-up knows them.
#pragma once

#include "ui/status_menu_targets.h"

#include <QString>

namespace kelvo {

/// Main thread only.
class InterfaceController {
public:
    virtual ~InterfaceController() = default;

    /// How the controller reads in a diagnostic line; different for each living controller.
    virtual QString description() const = 0;
};

/// The controller of the main view.
class MainViewController : public InterfaceController, public StatusMenuMainView {
public:
    /// The view has been loaded: sets everything going. Called once, by the window controller.
    virtual void viewDidLoad() = 0;
};

/// The controller of the main window; showWindow brings the window to the front.
class WindowController : public InterfaceController, public StatusMenuWindow {
public:
    /// Nothing before one was set.
    virtual MainViewController* contentViewController() const = 0;

    /// Puts the controller's view into the window and loads it: calls viewDidLoad before it
    /// returns. The controller outlives this one, or the window is gone before it.
    virtual void setContentViewController(MainViewController& controller) = 0;
};

} // namespace kelvo
