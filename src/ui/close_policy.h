// ClosePolicy: what happens when a person closes the main window.
#pragma once

#include "support/alert.h"

#include <optional>

namespace kelvo {

enum class CloseResult {
    Hide,     ///< the window goes, the program runs on
    KeepOpen, ///< the window stays
    Accept,   ///< the program is ending: the window goes with it
};

/// Main thread only.
class ClosePolicy {
public:
    /// The note to show before the window goes, on that window; nothing when the tray icon can be
    /// reached, when the program is quitting, or when it has been said before in this run.
    std::optional<Alert> noteBeforeClosing(bool trayReachable);

    /// What to do; `answer` is the answer to the note, if one was shown. Only the note's first
    /// button closes the window.
    CloseResult result(std::optional<ModalResponse> answer) const;

    /// From now on closing asks nothing and the window goes with the program.
    void programQuits() { fQuitting = true; }

private:
    bool fSaid = false;
    bool fQuitting = false;
};

} // namespace kelvo
