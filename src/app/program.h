// The program as a whole: puts the real parts together and takes them apart in order.
#pragma once

#include "app/front.h"

namespace kelvo {

struct Profile;

/// Who starts the program again after a crash: its sentinel, or whoever has started it.
enum class RestartBy { Sentinel, Starter };

/// Brings the program up and runs the event loop to its end; the exit code. Where another copy runs
/// already, that one shows its window and this one returns at once. The end is orderly: nothing
/// more is scheduled, running commands are ended with all their children, settings and lines are on
/// disk. Without a window a service manager that wants to hear of it is told how it is. Main
/// thread; called once the application object exists, and back before that goes.
int runProgram(const FrontKind& kind, const Profile& profile,
               RestartBy restartBy = RestartBy::Sentinel);

} // namespace kelvo
