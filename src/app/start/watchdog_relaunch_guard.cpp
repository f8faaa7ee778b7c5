#include "app/start/watchdog_relaunch_guard.h"

#include "app/start/watchdog.h"

namespace kelvo {

void WatchdogRelaunchGuard::autoRelaunchUnless(unsigned long count, double seconds,
                                               const Escape& escape) {
    Watchdog::autoRelaunchUnless(count, seconds, escape);
}

void WatchdogRelaunchGuard::quitAndRelaunch() {
    Watchdog::quitAndRelaunch();
}

} // namespace kelvo
