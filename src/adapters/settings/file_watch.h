// FileWatch: sleeps until one file of a folder has changed, or until somebody wakes it.
#pragma once

#include "adapters/system/unique_fd.h"

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace kelvo {

/// One thread waits and arms; another one may arm before the first wait. `wake` may be called on
/// any thread. The waiting thread has SIGIO blocked from its first wait on.
class FileWatch {
public:
    FileWatch(std::string folder, std::string name);

    /// Begins to watch the folder. Returns 0, or the errno with which the system refuses: then only
    /// `wake` and the time-out end a wait. Not while it is watched already.
    int arm();
    bool watching() const { return static_cast<bool>(fOpenFolder); }

    /// Ends the present wait, or the next one, at once; within 0.2 s when this object was made
    /// while the process had no descriptor left.
    void wake() noexcept;

    /// Ends a wait so long from now, once; replaces what was asked for before, and zero takes it
    /// back. Any thread. False where the system has no timer left: no wait is ended then.
    bool ringIn(std::chrono::milliseconds time) noexcept;
    bool canRing() const { return static_cast<bool>(fRing); }
    /// Whether the last wait was ended by that.
    bool rang() const { return fRang; }

    /// Sleeps until a wake-up, a change or `until`, for ever without it. Returns true when the file
    /// was put there, replaced, written or removed since the last call, or since `arm`; each write
    /// counts, also while the writer goes on. May return true without a change when another file
    /// of the folder changes within two seconds after this one. A folder that goes away, or that
    /// the system refuses to watch only now, is no longer watched until `arm`.
    bool wait(std::optional<std::chrono::steady_clock::time_point> until);

private:
    /// What tells two states of the file apart; all zero without a file.
    struct State {
        dev_t device = 0;
        ino_t file = 0;
        off_t size = 0;
        std::int64_t written = 0; ///< nanoseconds since 1970
        std::int64_t changed = 0;

        bool operator==(const State&) const = default;
    };

    bool listen();
    bool listenToSignals();
    int listenToEvents();
    void takeEvents();
    bool folderIsGone() const;
    State state() const;
    bool look(bool told);
    void forget();

    std::string fFolder;
    std::string fName;
    UniqueFd fWake;
    UniqueFd fRing;
    bool fRang = false;
    UniqueFd fOpenFolder;
    UniqueFd fOpenParent;
    UniqueFd fEvents; ///< readable when something may have changed
    bool fSignalsRefused = false;
    State fSeen;
    bool fSeenYoung = false; ///< a second change would have left the same stamps
};

} // namespace kelvo
