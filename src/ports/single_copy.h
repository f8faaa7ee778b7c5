// SingleCopy: lets one copy of the program run for a user, and later ones ask it to show itself.
#pragma once

#include <QByteArray>

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

    using Show = std::function<void(const QByteArray& token)>;

    virtual ~SingleCopy() = default;

    /// Tries to become the one copy; blocks for an answer of another one, 5 s at most. Kept until
    /// this object or the process ends, however that comes about. After First, `show` is called on
    /// the main thread, from its event loop, each time a later copy asks, with that copy's `token`:
    /// what its desktop gave it so that a window may come to the front, empty when it has none.
    /// Called once.
    virtual Claim claim(const QByteArray& token, Show show) = 0;
};

} // namespace kelvo
