// The controllers that the interface is made of, as the start-up and the tray menu know them.
#pragma once

#include <QString>

#include <optional>

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

    /// Begins the planned pass now; ends the one that runs, at a person's wish.
    virtual void syncNow() = 0;
    virtual void cancelPass() = 0;

    /// Brings the window up with its record of passes, at `pass` if it is still kept.
    virtual void showActivity(std::optional<qint64> pass) = 0;

    /// Opens the destination folder in the file browser.
    virtual void revealFolder() = 0;

    /// The tray's menu is seen, or not any more; its texts are up to date once this returns.
    virtual void menuShown(bool shown) = 0;

    /// Ends the program in order and has it started again.
    virtual void quitAndRelaunch() = 0;
};

} // namespace kelvo
