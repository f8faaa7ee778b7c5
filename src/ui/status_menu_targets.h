// What the tray menu acts on: the main window and the main view, seen narrowly.
#pragma once

namespace kelvo {

/// The main window's controller as the tray menu knows it. Main thread only.
class StatusMenuWindow {
public:
    virtual ~StatusMenuWindow() = default;

    /// Brings the window to the front, out of hiding and out of its minimised state.
    virtual void showWindow() = 0;
};

/// The main view's controller as the tray menu knows it. Main thread only.
class StatusMenuMainView {
public:
    virtual ~StatusMenuMainView() = default;

    /// Does what a click on the start button does.
    virtual void clickStartButton() = 0;

    /// Ends the program in order and has it started again.
    virtual void quitAndRelaunch() = 0;
};

/// What one handler was given; both may be missing.
struct StatusMenuTargets {
    StatusMenuWindow* fWindowController = nullptr;
    StatusMenuMainView* fMainVC = nullptr;
};

} // namespace kelvo
