// RevealButtonWatchers: what a right click on the reveal buttons does.
#pragma once

#include "support/subscription.h"

#include <functional>
#include <vector>

namespace kelvo {

class Alerts;
class Console;
class Control;
class FileManager;
class MainView;
class UserDefaults;
class Workspace;

/// What the watchers work with; all of it outlives them.
struct RevealButtonWatchersParts {
    UserDefaults& defaults;
    Console& console;
    const FileManager& files;
    MainView& view;
    Alerts& alerts;
    Workspace& workspace;
    const Control* ibRevealButton1;
    const Control* ibRevealButton2;
};

/// Main thread only.
class RevealButtonWatchers {
public:
    explicit RevealButtonWatchers(const RevealButtonWatchersParts& parts) : fParts(parts) {}

    /// From now on a right click on the first button asks how to reveal the source folder. A button
    /// that is not there is not watched.
    void install();

private:
    void monitorMouseClicks(const Control* view, std::function<void(bool)> clickHandler);
    void clickedButton1();

    const RevealButtonWatchersParts fParts;
    std::vector<Subscription> fMonitors;
};

} // namespace kelvo
