// KelvoStatusMenuHandler: one owner's way to the tray icon, and what its menu shall act on.
#pragma once

#include "ui/status_menu_presence.h"

#include <QString>

namespace kelvo {

class Console;

/// Main thread only. All handlers of the program share one presence, which outlives them, hence
/// one icon.
class KelvoStatusMenuHandler {
public:
    KelvoStatusMenuHandler(StatusMenuPresence& presence, Console& console)
        : fPresence(presence), fConsole(console) {}

    /// The menu acts on its targets no more; the icon goes with the last handler.
    ~KelvoStatusMenuHandler();
    KelvoStatusMenuHandler(const KelvoStatusMenuHandler&) = delete;
    KelvoStatusMenuHandler& operator=(const KelvoStatusMenuHandler&) = delete;

    /// What is set must outlive the handler or be set back to nothing; it may be set at any time.
    void setWindowController(MainWindowController* controller);
    void setMainVC(MainViewController* mainVC);
    MainWindowController* fWindowController() const { return fTargets.fWindowController; }
    MainViewController* fMainVC() const { return fTargets.fMainVC; }

    /// Shows the tray icon and its menu; a second time changes nothing.
    void setupStatusMenuStuff();

    /// Removes icon and menu, whichever handler has set them up; set up again, the menu acts on
    /// what it acted on before. Never set up by this handler: no change.
    void removeStatusMenuStuff();

    /// Whether the icon is there, whichever handler has set it up.
    bool isSetUp() const { return fPresence.isShown(); }

    /// Each prints its entry line and does nothing else.
    void delegatefunction1();
    void delegatefunction2();

    /// How the handler reads in a diagnostic line; different for each living handler.
    QString description() const;

private:
    StatusMenuPresence& fPresence;
    Console& fConsole;
    StatusMenuTargets fTargets;
};

} // namespace kelvo
