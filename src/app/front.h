// Front: the face of the program, with a window or without.
#pragma once

#include "ui/outlets.h"

#include <functional>
#include <memory>

namespace kelvo {

class AppDelegate;
class MainWindowController;
class ViewController;
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

/// Everything is one line on standard output; `shown` receives each state of the work too.
/// `machine` outlives the front.
std::unique_ptr<Front> makeHeadlessFront(MachineParts& machine,
                                         std::function<void(const WorkState&)> shown);

/// The main window; needs a QApplication. `machine` outlives the front.
std::unique_ptr<Front> makeWindowFront(MachineParts& machine);

} // namespace kelvo
