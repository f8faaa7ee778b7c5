// WatchdogRelaunchGuard: the watchdog of this process, for those who get it in their constructor.
#pragma once

#include "ports/relaunch_guard.h"

namespace kelvo {

/// Does nothing while the watchdog has not begun.
class WatchdogRelaunchGuard final : public RelaunchGuard {
public:
    void autoRelaunchUnless(unsigned long count, double seconds, const Escape& escape) override;
    void quitAndRelaunch() override;
};

} // namespace kelvo
