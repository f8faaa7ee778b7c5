// LineStream: writes one line after the other to a descriptor whose reader may be slow or gone.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QStringEncoder>
#include <QStringList>

namespace kelvo {

/// One thread only, and one with SIGPIPE blocked. Never waits: a pipe or terminal is opened anew
/// for non-blocking writing, which leaves its other users alone; where that is refused it is
/// written in small steps when it has room. On a terminal control characters are spelled out,
/// elsewhere the text goes as it is.
class LineStream {
public:
    /// `fd` stays the caller's; -1 is a stream that is gone.
    explicit LineStream(int fd);

    /// Whether nobody can read any more; lines are then swallowed.
    bool gone() const { return fGone; }

    /// Whether a line is under way.
    bool busy() const { return fBusy; }

    /// Starts with a line; none may be under way.
    void start(QStringList pieces);

    /// Writes what goes without waiting, at most some 100 KiB; returns whether anything went.
    bool writeSome();

    /// For `poll`: writable when `writeSome` has a chance.
    int fd() const { return fOwn ? fOwn.get() : fGiven; }

private:
    void encodeMore();
    ssize_t writeOnce(const char* bytes, std::size_t size);
    void endLine();

    const int fGiven;
    UniqueFd fOwn;
    bool fSocket = false;
    bool fTerminal = false;
    bool fSmallSteps = false;
    bool fGone = false;
    bool fBusy = false;

    QStringList fPieces;
    qsizetype fPiece = 0;
    qsizetype fOffset = 0;
    QStringEncoder fEncoder{QStringConverter::Utf8};
    QByteArray fBytes;
    qsizetype fWritten = 0;
};

} // namespace kelvo
