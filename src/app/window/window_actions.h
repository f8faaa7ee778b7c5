// Where the main window's controls and menus send their actions.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace kelvo {

class AppDelegate;
class ClosePolicy;
class Control;
class MainWindow;
class PathControl;
class SheetPresenter;
class StatusMenu;
class UserDefaults;
class ViewController;
class WidgetButton;
class Workspace;
struct WorkState;

/// The two-state buttons beside the start button; they live as long as the window sends actions.
using OnceButtons = std::vector<std::unique_ptr<WidgetButton>>;

/// The names of the buttons whose clicks go to the view controller.
QStringList sentButtons();

/// Connects every button, path control, field and tab of `window`, those of the Remote Mac and the
/// Diagnostics tab as soon as they are made: the two-state buttons are added to `onceButtons` then.
/// All arguments outlive the window's event loop.
void sendWindowActions(MainWindow& window, ViewController& controller, Workspace& workspace,
                       const std::shared_ptr<PathControl>& fNsPathControl1,
                       OnceButtons& onceButtons);

/// Asks a person who wants to quit, if `policy` has a question about what `window` shows. True: the
/// program may end. Blocks as long as the question stands; a program that is told to end meanwhile
/// takes the question away and ends.
bool askBeforeQuitting(const WorkState& work, const ClosePolicy& policy, UserDefaults& defaults,
                       SheetPresenter& alerts);

/// Gives `window` its menu bar. `anotherMac` asks for one more Mac. `mayQuit` is asked before the
/// program is ended or started again; `statusMenu` is only looked at.
void addApplicationMenu(MainWindow& window, ViewController& controller, AppDelegate& delegate,
                        const StatusMenu& statusMenu, Workspace& workspace,
                        const QString& logFolder, const std::function<void()>& anotherMac,
                        const std::function<bool()>& mayQuit, const std::function<void()>& quit);

} // namespace kelvo
