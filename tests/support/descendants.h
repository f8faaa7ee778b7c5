// Descendants: every process that comes of this one, orphans included.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace kelvo {

struct Descendant {
    pid_t pid;
    pid_t parent;
    std::string name; ///< as the system knows it, 15 bytes at most
    bool ended;       ///< waits to be reaped
};

/// From now on orphans of this process' children become its own children.
void adoptOrphans();

/// All there are at the moment.
std::vector<Descendant> descendants();

/// The one of that name and parent that has not ended.
std::optional<pid_t> livingChild(pid_t parent, const std::string& name);

/// The status, as waitpid gives it, with which the child `pid` ended, adopted ones included;
/// nothing when it has not ended in time.
std::optional<int> statusOf(pid_t pid);

/// Reaps what ends until no descendant is left; false when some still live after 15 s.
bool allEnd();

/// Ends all of them by force, those named `first` before all others.
void endAllDescendants(const std::string& first);

} // namespace kelvo
