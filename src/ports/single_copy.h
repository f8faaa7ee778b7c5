// SingleCopy: lets one copy of the program run for a user, and later ones ask it to show itself.
#pragma once

#include <functional>

namespace kelvo {

/// Main thread only.
class SingleCopy {
public:
    enum class Claim {
        First,         ///< this is the one copy from now on
        OtherIsShown,  ///< another copy runs and has shown its window
        OtherIsSilent, ///< another copy runs and did not answer in time
        Unguarded,     ///< copies cannot know of each other here; this one may run
    };

    virtual ~SingleCopy() = default;

    /// Tries to become the one copy; blocks for an answer of another one, 5 s at most. Kept until
    /// this object or the process ends, however that comes about. After First, `show` is called on
    /// the main thread, from its event loop, each time a later copy asks. Called once.
    virtual Claim claim(std::function<void()> show) = 0;
};

} // namespace kelvo
