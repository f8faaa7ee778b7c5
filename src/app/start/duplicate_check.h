// DuplicateCheck: what the program does when another copy of it runs already.
#pragma once

#include "ports/single_copy.h"

#include <optional>

namespace kelvo {

class Console;

/// Main thread only.
class DuplicateCheck {
public:
    /// The exit code of a copy that cannot reach the one that runs.
    static constexpr int cExitOtherIsSilent = 4;

    /// `token` is this start's own, for the copy that runs. `show` brings this copy's window to the
    /// front, should a later copy ask for it. It may be called as soon as the event loop runs.
    DuplicateCheck(SingleCopy& singleCopy, Console& console, QByteArray token,
                   SingleCopy::Show show);

    /// Looks for another copy; blocks for its answer, 5 s at most. Called once.
    void checkForDuplicateRunningInstances();

    /// What this copy shall end with instead of starting; nothing when it shall run.
    std::optional<int> exitCode() const { return fExitCode; }

private:
    SingleCopy& fSingleCopy;
    Console& fConsole;
    const QByteArray fToken;
    SingleCopy::Show fShow;
    std::optional<int> fExitCode;
};

} // namespace kelvo
