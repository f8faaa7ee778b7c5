// FileWatch: sleeps until one file of a folder has changed, or until somebody wakes it.
#pragma once

#include "adapters/posix/unique_fd.h"

#include <chrono>
#include <optional>
#include <string>

namespace kelvo {

/// One thread waits and arms; `wake` may be called on any thread.
class FileWatch {
public:
    FileWatch(std::string folder, std::string name);

    /// Begins to watch the folder. Returns 0, or the errno with which the system refuses: then only
    /// `wake` and the time-out end a wait. Not while it is watched already.
    int arm();
    bool watching() const { return fWatched >= 0; }

    /// Ends the present wait, or the next one, at once.
    void wake() noexcept;

    /// Sleeps until a wake-up, a change or `until`, for ever without it. Returns true when the file
    /// was put there, replaced, written and closed, or removed since the last call; also when
    /// events were lost. A folder that goes away is no longer watched until `arm`.
    bool wait(std::optional<std::chrono::steady_clock::time_point> until);

private:
    bool takeEvents();

    std::string fFolder;
    std::string fName;
    UniqueFd fWake;
    UniqueFd fEvents;
    int fWatched = -1;
};

} // namespace kelvo
