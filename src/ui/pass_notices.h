// PassNotices: one notice when passes turn bad, one when they are well again.
#pragma once

#include "support/subscription.h"

#include <QStringView>

namespace kelvo {

class DesktopNotices;
class PassStore;
class UserDefaults;
struct PassRecord;

/// Whether notices are shown; kept beside the settings, true at first.
inline constexpr QStringView cShowNoticesKey = u"showNotices";

/// Main thread only. What the passes of an earlier run were is not asked.
class PassNotices {
public:
    /// All three outlive it. Registers the first value of its key.
    PassNotices(PassStore& store, UserDefaults& defaults, DesktopNotices& notices);

private:
    void heard(const PassRecord& pass);

    UserDefaults& fDefaults;
    DesktopNotices& fNotices;
    bool fTrouble = false;
    Subscription fObservation;
};

} // namespace kelvo
