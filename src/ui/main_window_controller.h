// MainWindowController: the controller of the main window, whatever kind of window that is.
#pragma once

#include "ui/interface_controllers.h"

#include <functional>
#include <utility>

namespace kelvo {

/// Main thread only.
class MainWindowController final : public InterfaceController {
public:
    /// `show` brings the window to the front, out of hiding and out of its minimised state.
    explicit MainWindowController(std::function<void()> show) : fShow(std::move(show)) {}

    QString description() const override;

    void showWindow() { fShow(); }

    /// Nothing before one was set.
    MainViewController* contentViewController() const { return fContent; }

    /// Puts the controller's view into the window and loads it: calls viewDidLoad before it
    /// returns. The controller outlives this one, or the window is gone before it.
    void setContentViewController(MainViewController& controller);

private:
    const std::function<void()> fShow;
    MainViewController* fContent = nullptr;
};

} // namespace kelvo
