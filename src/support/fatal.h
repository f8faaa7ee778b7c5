// The one place where the program stops on purpose.
#pragma once

#include <string_view>

namespace kelvo {

/// Ends the process at once with an illegal-instruction fault, so that it counts as a crash.
/// A message, when given, goes to standard error first. Any thread; never returns.
[[noreturn]] void stopProgram(std::string_view message = {}) noexcept;

/// `count` and one; where there is no such number the program stops.
long long oneMore(long long count) noexcept;

} // namespace kelvo
