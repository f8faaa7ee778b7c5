// PassNotices: one notice when passes turn bad, one when they are well again.
#pragma once

#include "support/subscription.h"

namespace kelvo {

class DesktopNotices;
class PassStore;
class UserDefaults;
struct PassRecord;

/// Main thread only. What the passes of an earlier run were is not asked.
class PassNotices {
public:
    /// All three outlive it. Shows nothing while prefShowNotices is false.
    PassNotices(PassStore& store, const UserDefaults& defaults, DesktopNotices& notices);

private:
    void heard(const PassRecord& pass);

    const UserDefaults& fDefaults;
    DesktopNotices& fNotices;
    bool fTrouble = false;
    Subscription fObservation;
};

} // namespace kelvo
