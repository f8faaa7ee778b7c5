// KelvoStatusMenuHandler: one owner's wish for the tray icon, and what its menu shall act on.
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

    /// Takes its wish back.
    ~KelvoStatusMenuHandler();
    KelvoStatusMenuHandler(const KelvoStatusMenuHandler&) = delete;
    KelvoStatusMenuHandler& operator=(const KelvoStatusMenuHandler&) = delete;

    /// What is set must outlive the handler or be set back to nothing; it may be set at any time.
    void setWindowController(MainWindowController* controller);
    void setMainVC(MainViewController* mainVC);
    MainWindowController* fWindowController() const { return fTargets.fWindowController; }
    MainViewController* fMainVC() const { return fTargets.fMainVC; }

    /// Asks for the tray icon and its menu; a second time changes nothing.
    void setupStatusMenuStuff();

    /// Takes the wish back: the icon goes once no handler asks for it. Not set up: no change.
    void removeStatusMenuStuff();

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
