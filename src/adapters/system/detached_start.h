// Starts programs that live on after this one.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace kelvo {

/// Starts `arguments` (the program first, looked for in $PATH) in a session of its own, with no
/// input, its output thrown away and this program's environment. Returns its process id, which the
/// caller reaps, or the negative errno.
pid_t startDetached(const std::vector<std::string>& arguments);

} // namespace kelvo
