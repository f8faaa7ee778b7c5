// How the sentinel ends when it does not become the program it has watched.
#pragma once

namespace kelvo::sentinel {

enum class ExitCode {
    ToldToEnd = 0,       ///< by SIGTERM; nothing is started
    BadArgument = 2,     ///< not one process id
    NoSuchProcess = 3,   ///< it has ended already, or never was
    OfAnotherUser = 4,   ///< it may not be watched
    CannotBeWatched = 5, ///< the system does not tell about it
    CannotRelaunch = 6,  ///< it ended, and could not be started again
};

} // namespace kelvo::sentinel
