// The program as a whole: puts the real parts together and takes them apart in order.
#pragma once

namespace kelvo {

struct Profile;

enum class FrontKind { Window, Headless };

/// Brings the program up and runs the event loop to its end; the exit code. Where another copy runs
/// already, that one shows its window and this one returns at once. The end is orderly: nothing
/// more is scheduled, running commands are ended with all their children, settings and lines are on
/// disk. Main thread; called once the application object exists, and back before that goes.
int runProgram(FrontKind kind, const Profile& profile);

} // namespace kelvo
