// StatusMenuPresence: one tray icon for all the status-menu handlers of the program.
#pragma once

#include "ports/status_menu.h"
#include "support/subscription.h"

#include <optional>
#include <vector>

namespace kelvo {

class DispatchQueue;
class MainViewController;
class MainWindowController;
class UserDefaults;

/// What the menu acts on, as one handler was given it; both may be missing.
struct StatusMenuTargets {
    MainWindowController* fWindowController = nullptr;
    MainViewController* fMainVC = nullptr;
};

/// Trouble goes before a pass in progress, and that before the switch: switching off during a pass
/// leaves the pass running to its end.
StatusMenuState statusMenuState(bool enabled, bool scanning, bool trouble);

/// Main thread only, except that settings may change on any thread. There is one icon: any handler
/// shows it, and any handler removes it. Keeps its state and start title right. The main queue must
/// have ended before this is destroyed.
class StatusMenuPresence {
public:
    /// `quit` ends the program in order.
    StatusMenuPresence(StatusMenu& menu, UserDefaults& defaults, DispatchQueue& mainQueue,
                       std::function<void()> quit);
    ~StatusMenuPresence();
    StatusMenuPresence(const StatusMenuPresence&) = delete;
    StatusMenuPresence& operator=(const StatusMenuPresence&) = delete;

    /// Shows the icon. `targets` stays where it is until it is forgotten, removals or not; it is
    /// read at each choice from the menu. The first to have the target wins.
    void show(const StatusMenuTargets& targets);

    /// Removes the icon. Nothing happens for targets it was never shown for.
    void remove(const StatusMenuTargets& targets);

    /// Whether it was shown and not removed since, be there a tray or not.
    bool isShown() const { return fIsWanted; }

    /// From now on nothing acts on `targets`; the icon goes with the last ones.
    void forget(const StatusMenuTargets& targets);

    /// What the menu tells of the work; its health says whether there is trouble. May be called
    /// before anything is shown.
    void showWork(const WorkState& work);

private:
    void connectActions();
    void refreshLater();
    void refresh();
    template <typename Target>
    Target* firstTarget(Target* StatusMenuTargets::*member) const;

    StatusMenu& fMenu;
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    std::function<void()> fQuit;
    std::vector<const StatusMenuTargets*> fTargets; ///< in the order in which they came
    bool fIsWanted = false;
    std::optional<StatusMenuState> fShown;
    std::optional<bool> fTitleIsStop;
    bool fTrouble = false;
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
