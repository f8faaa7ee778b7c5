// ClosePolicy: what happens when a person closes the main window or quits.
#pragma once

#include "ports/desktop_notices.h"
#include "support/alert.h"
#include "support/work_state.h"

#include <optional>

namespace kelvo {

class UserDefaults;

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

    /// The notice to show as the window goes into the tray: once ever, which `defaults` keeps.
    /// Nothing when the tray icon cannot be reached or the program is quitting.
    std::optional<Notice> noticeAtHiding(bool trayReachable, UserDefaults& defaults) const;

    /// What to do; `answer` is the answer to the note, if one was shown. Only the note's first
    /// button closes the window.
    CloseResult result(std::optional<ModalResponse> answer) const;

    /// The question to ask before a person's wish to quit is followed: what the quit would end,
    /// with the quit on the first button. Nothing when no movie is being copied, when
    /// `withoutAsking` is set, or while the program is quitting.
    std::optional<Alert> questionBeforeQuitting(const WorkState& work, bool withoutAsking) const;

    /// From now on closing asks nothing and the window goes with the program.
    void programQuits() { fQuitting = true; }

private:
    bool fSaid = false;
    bool fQuitting = false;
};

} // namespace kelvo
