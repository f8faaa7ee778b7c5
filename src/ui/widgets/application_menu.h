// ApplicationMenu: the main window's menu bar.
#pragma once

#include <QMenuBar>
#include <QStringList>

#include <functional>

class QActionGroup;

namespace kelvo {

struct WorkState;

enum class TrayIconState {
    Removed,
    Waiting, ///< for a desktop with a tray
    Shown,
};

/// What the entries do, on the main thread. An entry whose action is missing is left out, and so
/// is a menu without entries.
struct ApplicationMenuActions {
    std::function<void()> quitAndRelaunch = {}; ///< ends the program and has it started again
    std::function<void()> anotherMac = {};
    std::function<void()> closeWindow = {};
    std::function<void()> quit = {};
    std::function<void()> showSettings = {};
    std::function<void(int)> showTab = {}; ///< the tab's place, from 0
    std::function<void(bool)> showDiagnostics = {};
    std::function<void()> startOrStop = {};
    std::function<void()> syncNow = {};
    std::function<void()> cancelPass = {};
    std::function<void()> setupStatusItem = {};
    std::function<void()> removeStatusItem = {};
    std::function<void()> delegateQuitAndRelaunch =
        {}; ///< only takes the delegate's tray icon away
    std::function<void()> setupWatchdog = {};
    /// How it is with the tray icon now; asked again and again.
    std::function<TrayIconState()> trayIcon = {};
    std::function<void()> about = {};
    std::function<void()> openLogFolder = {};
};

class ApplicationMenu final : public QMenuBar {
    Q_OBJECT
public:
    /// `tabs` as for `setTabs`.
    ApplicationMenu(const ApplicationMenuActions& actions, const QStringList& tabs,
                    QWidget* parent = nullptr);

    /// The titles of the window's tabs; the first nine get Ctrl+1 to Ctrl+9.
    void setTabs(const QStringList& tabs);

    /// Whether what is for finding faults can be seen, the entries about restarts among it.
    void setDiagnosticsShown(bool shown);

    /// Marks the tab that is shown, without showing it.
    void setCurrentTab(int index);

    /// Whether syncing is on: the entry that starts it stops it then.
    void setSyncing(bool on);

    /// Which entries about passes can be chosen; the others say why not.
    void showWork(const WorkState& work);

    /// The same for the entries about the tray icon. Called here before each look at them.
    void showTrayIcon();

private:
    void addFileMenu(const ApplicationMenuActions& actions);
    void addEditMenu(const ApplicationMenuActions& actions);
    void addViewMenu(const ApplicationMenuActions& actions, const QStringList& tabs);
    void addTabEntry();
    void addPassesMenu(const ApplicationMenuActions& actions);
    void addTrayMenu(const ApplicationMenuActions& actions);
    void addHelpMenu(const ApplicationMenuActions& actions);

    QAction* entry(const char* name) const;

    QActionGroup* fTabs;
    std::function<void(int)> fShowTab;
    QAction* fTabsEnd = nullptr;
    std::function<TrayIconState()> fTrayIcon;
};

} // namespace kelvo
