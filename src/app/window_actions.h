// Where the main window's controls and menus send their actions.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace kelvo {

class AppDelegate;
class Control;
class MainWindow;
class PathControl;
class ViewController;
class WidgetButton;
class Workspace;

/// The two-state buttons beside the start button; they live as long as the window sends actions.
using OnceButtons = std::vector<std::unique_ptr<WidgetButton>>;

/// Connects every button, path control, field and tab of `window`. All arguments outlive the
/// window's event loop.
OnceButtons sendWindowActions(MainWindow& window, ViewController& controller, Workspace& workspace,
                              const std::shared_ptr<PathControl>& fNsPathControl1);

/// Gives `window` its menu bar.
void addApplicationMenu(MainWindow& window, ViewController& controller, AppDelegate& delegate,
                        Workspace& workspace, const QString& logFolder,
                        const std::function<void()>& quit);

} // namespace kelvo
