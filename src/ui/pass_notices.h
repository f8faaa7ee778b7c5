// PassNotices: one notice when passes turn bad, one when they are well again, one for arrivals.
#pragma once

#include "support/subscription.h"

#include <QString>

#include <functional>
#include <optional>

namespace kelvo {

class DesktopNotices;
class PassStore;
class UserDefaults;
struct Notice;
struct PassRecord;

/// Main thread only. At most one notice a pass; a turn goes before arrivals. What the passes of an
/// earlier run were is not asked. Whether the person looks at the window already is the desktop's
/// to judge: it knows what is in front, and whether anything may be shown now.
class PassNotices {
public:
    /// The first three outlive it. prefShowNotices switches the turns, prefShowArrivals the
    /// arrivals. `show` brings the record of passes up, at the pass of this number if it has one.
    PassNotices(PassStore& store, const UserDefaults& defaults, DesktopNotices& notices,
                std::function<void(std::optional<qint64> pass)> show);

private:
    void heard(const PassRecord& pass);
    bool turned(const PassRecord& pass);
    void show(const PassRecord& pass, Notice notice);

    const UserDefaults& fDefaults;
    DesktopNotices& fNotices;
    const std::function<void(std::optional<qint64>)> fShow;
    bool fTrouble = false;
    Subscription fObservation;
};

} // namespace kelvo
