// RelaunchGuard: keeps the program running, and ends it on purpose so that it comes back.
#pragma once

#include <functional>

namespace kelvo {

/// Main thread only.
class RelaunchGuard {
public:
    /// True keeps relaunching on, although `count` relaunches came within `interval` seconds.
    using Escape = std::function<bool(unsigned long count, double interval)>;

    virtual ~RelaunchGuard() = default;

    /// Has the program started again whenever it ends by surprise, unless it was started again
    /// `count` times within `seconds`; `escape` may be empty.
    virtual void autoRelaunchUnless(unsigned long count, double seconds, const Escape& escape) = 0;

    /// Ends the program at once and has it started again. The real one does not return.
    virtual void quitAndRelaunch() = 0;
};

} // namespace kelvo
