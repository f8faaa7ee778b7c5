// Finds the processes that carry a mark in their environment, wherever they have gone.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace kelvo {

/// The variable that marks everything process `program` has started, as "NAME=value". Children
/// inherit it, through new sessions and after their parents have ended.
std::string childMark(pid_t program);

/// Every other process of this user, alive and started with `mark` in its environment. Costs a walk
/// over /proc.
std::vector<pid_t> processesMarked(const std::string& mark);

} // namespace kelvo
