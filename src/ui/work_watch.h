// WorkWatch: keeps window, tray and lines told of what the program is doing and how it is.
#pragma once

#include "passes/running_pass.h"
#include "ports/main_view.h"
#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "support/subscription.h"
#include "support/work_state.h"
#include "sync/sync_cycle.h"
#include "ui/checklist.h"
#include "ui/work_words.h"

#include <functional>
#include <optional>
#include <vector>

namespace kelvo {

class DispatchQueue;

/// What the texts of a WorkState are made of.
struct WorkFacts {
    WorkPhase phase = WorkPhase::Off;
    bool on = false;                       ///< syncing is switched on
    std::optional<PassUnderWay> pass = {}; ///< that runs
    std::optional<double> nextPass = {};   ///< seconds until the planned one begins, at rest
    Standing standing = {};
    SettingsStanding settings = {};
    std::vector<ChecklistLine> missing = {};
};

/// What the watch works with; all of it outlives the watch.
struct WorkWatchParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    PassStore& passStore;
    std::function<std::vector<PassUnderWay>()> passesUnderWay; ///< oldest first
    std::function<CycleState()> cycleState;
    PassClock clock;
    std::function<void(const WorkState&)> show;
    /// Told after each look, be there something new or not. May be empty.
    std::function<void()> looked = {};
};

/// Shows each state that differs from the one before. While a pass runs it looks twice a second if
/// somebody sees the window or the tray's menu, once a second for lines and for programs that
/// follow, every 10 s otherwise. At
/// rest it wakes up when a text stops being true, and never for lines; the countdown to the next
/// pass stands only where it is seen. What happens is shown within 0.1 s, in lines within 1 s.
/// Main thread only. The main queue must have ended before it is destroyed.
class WorkWatch {
public:
    explicit WorkWatch(WorkWatchParts parts);

    /// From now on everything is shown. Called once.
    void begin();

    /// Something may have changed. Returns at once.
    void look();

    void setAttention(Attention attention);

    /// The tray's menu is seen, or not any more; shows before it returns.
    void setMenuShown(bool shown);

    /// Other programs follow the work, or none does any more.
    void setFollowed(bool followed);

    /// What is missing before the next pass can go well.
    void setMissing(std::vector<ChecklistLine> missing);

    /// How it is at this moment.
    WorkState state();
    WorkFacts facts() const;

private:
    void setStanding(const Standing& standing);
    void refresh();
    void plan();
    void tickIn(double seconds);
    bool isSeen() const { return fAttention == Attention::Seen || fMenuShown; }
    WorkPhase phase(const CycleState& cycle, const std::vector<PassUnderWay>& passes) const;

    const WorkWatchParts fParts;
    Standing fStanding;
    std::vector<ChecklistLine> fMissing;
    Attention fAttention = Attention::Unseen;
    bool fMenuShown = false;
    bool fFollowed = false;
    TimeLeftWords fTimeLeft;
    std::optional<WorkState> fShown;
    std::optional<double> fNextPass; ///< seconds, as last looked at
    double fLooked = 0;              ///< by the clock of passes
    std::optional<double> fDue;      ///< when the tick that waits comes
    int fTick = 0;                   ///< its number; an earlier one does nothing
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
