// ProblemAlert: switches syncing off after too many failures and asks a person how to go on.
#pragma once

#include "support/alert.h"
#include "support/host_verdict.h"

#include <functional>
#include <utility>

namespace kelvo {

class Console;
class DispatchQueue;
struct CycleView;

/// All of it outlives the alert and what it leaves on the main queue.
struct ProblemAlertParts {
    DispatchQueue& mainQueue;
    Console& console;
    const CycleView& view;
    std::function<void()> answered; ///< before the answer is followed
};

/// Listens to one answer: that of a person, or, when nobody has given one, the alert's own. That
/// one leaves a switch alone that a person has touched since it was switched off here. Main thread.
class ProblemAlert {
public:
    explicit ProblemAlert(ProblemAlertParts parts) : fParts(std::move(parts)) {}

    /// Switches syncing off 0.01 s from now and shows the alert, worded after `verdict`, after 0.1
    /// s.
    void raise(const HostVerdict& verdict);

    /// Somebody has switched syncing on or off.
    void switched() { fOffByItself = false; }

private:
    void answer(ModalResponse response);
    bool setSyncing(bool on);

    const ProblemAlertParts fParts;
    bool fAsks = false; ///< shown, and no answer followed yet
    bool fNobodyAnswered = false;
    bool fOffByItself = false; ///< switched off here and not touched since
};

} // namespace kelvo
