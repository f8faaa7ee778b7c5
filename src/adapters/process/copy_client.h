// CopyClient: another program's end of the running copy's socket.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>

#include <chrono>
#include <string>

namespace kelvo {

/// For a program that does nothing else meanwhile: everything blocks. One thread only.
class CopyClient {
public:
    enum class Contact {
        Made,
        NoneRuns, ///< no copy has its place in the folder
        Silent,   ///< a copy runs, but nobody has answered in time
    };
    enum class Heard {
        Line,
        End,    ///< the copy has hung up or ended; what it said of a line is dropped
        Silent, ///< no line in time
        Noise,  ///< a line longer than any that a copy says
    };

    /// Of the copy that has its place in `folder`. Nothing is made or written there.
    explicit CopyClient(std::string folder) : fFolder(std::move(folder)) {}

    /// Waits up to `patience` for a copy that is just starting or ending.
    Contact connect(std::chrono::milliseconds patience);

    /// False when the copy does not take it. A request fits into any socket's room.
    bool send(const QByteArray& line) const;

    /// The next line without its end; waits up to `patience` for it, or for ever when that is
    /// negative.
    Heard hear(QByteArray& line, std::chrono::milliseconds patience);

    /// Whether a copy has its place in `folder` at the moment. Makes and changes nothing; any
    /// thread.
    static bool placeIsTaken(const std::string& folder);

private:
    const std::string fFolder;
    UniqueFd fSocket;
    QByteArray fHeard; ///< behind the last line
};

} // namespace kelvo
