// The controllers that the interface is made of, as the start-up and the tray menu know them.
#pragma once

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
class MainViewController : public InterfaceController {
public:
    /// The view has been loaded: sets everything going. Called once, by the window controller.
    virtual void viewDidLoad() = 0;

    /// Does what a click on the start button does.
    virtual void clickStartButton() = 0;

    /// Ends the program in order and has it started again.
    virtual void quitAndRelaunch() = 0;
};

} // namespace kelvo
