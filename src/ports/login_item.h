// LoginItem: whether the program starts by itself when the user logs in.
#pragma once

#include <QString>

namespace kelvo {

/// How a question about the entry, or a change of it, went.
struct LoginItemOutcome {
    enum Kind {
        Done,
        SomebodyElses, ///< under our entry's name lies something that we did not write
        Failed,        ///< the system refused
    };
    Kind kind = Done;
    QString path;   ///< of the entry
    QString reason; ///< for Failed: the system's words

    explicit operator bool() const { return kind == Done; }
};

/// Operations are short and block as long as the file system does; any thread, one at a time.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    struct State {
        bool isOn = false; ///< false unless `outcome` is Done
        LoginItemOutcome outcome;
    };

    /// Read anew at each call. No entry is off, and so is one of ours that was switched off by
    /// another program.
    virtual State state() const = 0;

    /// Writes the entry, or removes it; off where there is none is done. What is not ours, and what
    /// the system refuses, stays as it was. Whoever starts the session sees the old entry or the
    /// new one, whole; the entry is for the user alone (0600), as are folders made for it (0700).
    virtual LoginItemOutcome setOn(bool on) = 0;
};

} // namespace kelvo
