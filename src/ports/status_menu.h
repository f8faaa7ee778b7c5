// StatusMenu: the program's one icon in the desktop's tray, with its menu.
#pragma once

#include "support/work_state.h"

#include <QString>

#include <functional>

namespace kelvo {

enum class StatusMenuState {
    Off,     ///< syncing is switched off
    Resting, ///< switched on, between two passes
    Running, ///< a pass is in progress
    Trouble, ///< something needs a person
};

/// What the menu's entries do; an empty one makes its entry do nothing.
struct StatusMenuActions {
    std::function<void()> showWindow = {}; ///< also what a click on the icon does
    std::function<void()> startOrStop = {};
    std::function<void()> syncNow = {};
    std::function<void()> cancelPass = {};
    std::function<void()> showActivity = {};
    std::function<void()> revealFolder = {}; ///< the destination; disabled while empty
    std::function<void()> quitAndRelaunch = {};
    std::function<void()> quit = {};
    /// The menu is about to be seen (true; what it shows is brought up to date before this returns)
    /// or is gone again.
    std::function<void(bool)> menuShown = {};
};

/// Main thread only. Hidden at first.
class StatusMenu {
public:
    virtual ~StatusMenu() = default;

    /// From now on each choice by a person calls its action once, on the main thread. An action
    /// may hide the icon. Earlier actions are forgotten.
    virtual void setActions(StatusMenuActions actions) = 0;

    /// Shows the icon of `state`, or changes the icon that is shown. On a desktop without a tray
    /// nothing is seen; the icon appears by itself once there is one.
    virtual void show(StatusMenuState state) = 0;

    /// What tooltip and the first lines of the menu say, and whether a pass can be asked for or
    /// cancelled (neither before the first call); kept while hidden. Changes that follow close upon
    /// each other are shown at most twice a second, the last one always.
    virtual void showWork(const WorkState& work) = 0;

    /// The title of the entry that starts and stops, kept while hidden; "&" stands for itself.
    virtual void setStartTitle(const QString& title) = 0;

    /// Takes icon and menu away, also from a tray that appears later. Hidden already: no change.
    virtual void hide() = 0;

    /// Whether the icon is shown and the desktop has a tray to show it in. Does not block.
    virtual bool isReachable() const = 0;
};

} // namespace kelvo
