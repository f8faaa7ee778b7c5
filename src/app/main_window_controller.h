// MainWindowController: the controller of the main window, whatever kind of window that is.
#pragma once

#include "ui/interface_controllers.h"

#include <functional>
#include <utility>

namespace kelvo {

/// Main thread only.
class MainWindowController final : public WindowController {
public:
    /// `show` brings the window to the front.
    explicit MainWindowController(std::function<void()> show) : fShow(std::move(show)) {}

    QString description() const override;
    void showWindow() override { fShow(); }
    MainViewController* contentViewController() const override { return fContent; }
    void setContentViewController(MainViewController& controller) override;

private:
    const std::function<void()> fShow;
    MainViewController* fContent = nullptr;
};

} // namespace kelvo
