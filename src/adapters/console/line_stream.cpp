#include "adapters/console/line_stream.h"

#include "support/plain_line.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <string>
#include <utility>

namespace kelvo {
namespace {

constexpr qsizetype cChunkUnits = qsizetype{32} * 1024;

UniqueFd openedAnew(int fd) {
    return UniqueFd(::open(("/proc/self/fd/" + std::to_string(fd)).c_str(),
                           O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

} // namespace

LineStream::LineStream(int fd) : fGiven(fd) {
    struct stat status {};
    if (::fstat(fd, &status) != 0) {
        fGone = true;
        return;
    }
    fTerminal = ::isatty(fd) == 1;
    fSocket = S_ISSOCK(status.st_mode);
    if (fTerminal || S_ISFIFO(status.st_mode)) {
        fOwn = openedAnew(fd);
        fSmallSteps = !fOwn;
    }
}

void LineStream::start(QStringList pieces) {
    fPieces = std::move(pieces);
    fPieces.append(QStringLiteral("\n"));
    fPiece = 0;
    fOffset = 0;
    fEncoder = QStringEncoder(QStringConverter::Utf8);
    fBusy = true;
}

bool LineStream::writeSome() {
    if (fWritten == fBytes.size())
        encodeMore();
    const ssize_t size = fGone ? fBytes.size()
                               : writeOnce(fBytes.constData() + fWritten,
                                           static_cast<std::size_t>(fBytes.size() - fWritten));
    if (size < 0) {
        if (errno == EAGAIN || errno == EINTR)
            return false;
        // A full disk or file may get room again, at the cost of this line; anything else is the
        // end.
        fGone = errno != ENOSPC && errno != EDQUOT && errno != EFBIG;
        endLine();
        return true;
    }
    fWritten = fGone ? fBytes.size() : fWritten + size;
    if (fWritten == fBytes.size() && fPiece == fPieces.size())
        endLine();
    return true;
}

/// A pair of surrogates cut in two by the chunks is held back by the encoder until it is whole. A
/// short line comes whole, so that one write brings it out.
void LineStream::encodeMore() {
    fBytes.clear();
    fWritten = 0;
    while (fPiece < fPieces.size() && fBytes.size() < cChunkUnits) {
        const QStringView rest = QStringView(fPieces.at(fPiece)).sliced(fOffset);
        const QStringView chunk = rest.first(std::min(rest.size(), cChunkUnits));
        fBytes += fTerminal ? QByteArray(fEncoder.encode(withVisibleControls(chunk)))
                            : QByteArray(fEncoder.encode(chunk));
        fOffset += chunk.size();
        if (fOffset == fPieces.at(fPiece).size()) {
            fPieces[fPiece] = QString(); // Its memory is not needed any more.
            ++fPiece;
            fOffset = 0;
        }
    }
}

ssize_t LineStream::writeOnce(const char* bytes, std::size_t size) {
    if (fSocket)
        return ::send(fGiven, bytes, size, MSG_DONTWAIT | MSG_NOSIGNAL);
    return ::write(fd(), bytes, fSmallSteps ? std::min<std::size_t>(size, PIPE_BUF) : size);
}

void LineStream::endLine() {
    fBusy = false;
    fPieces.clear();
    fBytes.clear();
    fWritten = 0;
}

} // namespace kelvo
