#include "adapters/process/copy_client.h"

#include "adapters/process/local_socket.h"
#include "ports/guests.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto cRetryPause = 50ms;

/// Whether `socket` has something to read, or its end, before `deadline`.
bool waitFor(int socket, Clock::time_point deadline, bool forEver) {
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (!forEver && left <= 0)
            return false;
        pollfd source{socket, POLLIN, 0};
        if (::poll(&source, 1, forEver ? -1 : static_cast<int>(left)) > 0)
            return true;
    }
}

} // namespace

CopyClient::Contact CopyClient::connect(std::chrono::milliseconds patience) {
    const auto address = copySocketAddress(fFolder);
    const auto deadline = Clock::now() + patience;
    for (;;) {
        fSocket = address ? connectedSocket(*address) : UniqueFd();
        if (fSocket)
            return Contact::Made;
        if (!placeIsTaken(fFolder))
            return Contact::NoneRuns;
        if (Clock::now() >= deadline)
            return Contact::Silent;
        ::poll(nullptr, 0, static_cast<int>(cRetryPause.count()));
    }
}

/// A lock shared for a moment keeps no copy from starting: it tries again.
bool CopyClient::placeIsTaken(const std::string& folder) {
    const UniqueFd lock(
        ::open(copyLockPath(folder).c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (::flock(lock.get(), LOCK_SH | LOCK_NB) != 0)
        return errno == EWOULDBLOCK; // what is not there fails for another reason
    (void)::flock(lock.get(), LOCK_UN);
    return false;
}

bool CopyClient::send(const QByteArray& line) const {
    return ::send(fSocket.get(), line.constData(), static_cast<std::size_t>(line.size()),
                  MSG_NOSIGNAL) == line.size();
}

CopyClient::Heard CopyClient::hear(QByteArray& line, std::chrono::milliseconds patience) {
    const bool forEver = patience < 0ms;
    const auto deadline = Clock::now() + patience;
    qsizetype searched = 0;
    for (;;) {
        const qsizetype end = fHeard.indexOf('\n', searched);
        if (end >= Guests::cLongestLine || (end < 0 && fHeard.size() >= Guests::cLongestLine))
            return Heard::Noise;
        if (end >= 0) {
            line = fHeard.first(end);
            fHeard.remove(0, end + 1);
            return Heard::Line;
        }
        searched = fHeard.size();
        if (!waitFor(fSocket.get(), deadline, forEver))
            return Heard::Silent;
        std::array<char, 16384> bytes;
        const ssize_t count = ::recv(fSocket.get(), bytes.data(), bytes.size(), 0);
        if (count <= 0)
            return Heard::End;
        fHeard.append(bytes.data(), static_cast<qsizetype>(count));
    }
}

} // namespace kelvo
