// Guests: other programs of this user that talk with the running copy, in lines.
#pragma once

#include <QByteArray>

#include <functional>

namespace kelvo {

/// Main thread only; nothing here waits for a guest. There are at most 16: one more, and of those
/// who have not said a whole line yet the oldest has to go, else the oldest who is being dismissed,
/// else the oldest of all.
class Guests {
public:
    using Id = quint64;

    /// Of a request and of an answer, in bytes, the line end among them.
    static constexpr qsizetype cLongestLine = qsizetype{64} * 1024;
    /// How much may wait for a guest that does not read.
    static constexpr qsizetype cMostWaiting = 4 * cLongestLine;

    struct Host {
        /// A guest has said its one line, here without its end; empty when what it said was too
        /// long. What a guest says beyond that makes it go.
        std::function<void(Id guest, const QByteArray& line)> said;
        /// A guest that has said its line has left, and was not dismissed before.
        std::function<void(Id guest)> left;
    };

    virtual ~Guests() = default;

    /// From now on guests are heard; before that they are shown out. `host` is called from the
    /// event loop, as long as this object exists. Called once.
    virtual void receive(Host host) = 0;

    /// Sends `line`, which has its end, as soon as the guest reads. A guest for whom too much waits
    /// is dismissed: it loses what waits, but for a line that it has read in part, and gets
    /// `farewell` in its place. False when the guest hears nothing more: it was dismissed, now or
    /// before, or has left.
    virtual bool say(Id guest, const QByteArray& line, const QByteArray& farewell = {}) = 0;

    /// The guest goes once it has read what waits for it.
    virtual void dismiss(Id guest) = 0;
};

} // namespace kelvo
