#include "adapters/process/single_copy_socket.h"

#include "adapters/process/guest_list.h"
#include "adapters/process/local_socket.h"
#include "adapters/process/show_request.h"
#include "adapters/system/file_trust.h"
#include "adapters/system/private_places.h"
#include "ports/console.h"
#include "support/system_error_text.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <optional>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto cRetryPause = 50ms;

QString lastFault() {
    return systemErrorText(errno);
}

/// Why no lock can be trusted that lies in `folder`, which is made when it is missing.
QString faultOf(const std::string& folder) {
    if (const int error = makePrivateFolders(folder))
        return systemErrorText(error);
    struct stat entry {};
    return ::stat(folder.c_str(), &entry) == 0 ? foreignWriters(entry) : lastFault();
}

/// One attempt to have the other copy show itself.
bool askOther(const std::optional<sockaddr_un>& address, const QByteArray& request,
              Clock::time_point deadline) {
    const UniqueFd socket = address ? connectedSocket(*address) : UniqueFd();
    if (!socket || ::send(socket.get(), request.constData(),
                          static_cast<std::size_t>(request.size()), MSG_NOSIGNAL) != request.size())
        return false;
    std::string answer;
    while (answer.size() < cShownAnswer.size()) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd source{socket.get(), POLLIN, 0};
        if (left <= 0 || ::poll(&source, 1, static_cast<int>(left)) <= 0)
            return false;
        std::array<char, cShownAnswer.size()> bytes{};
        const ssize_t count = ::recv(socket.get(), bytes.data(), bytes.size(), 0);
        if (count <= 0)
            return false;
        answer.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return answer == cShownAnswer;
}

} // namespace

struct SingleCopySocket::Place {
    explicit Place(UniqueFd held, Show show) : lock{std::move(held)}, guests(std::move(show)) {}

    struct Lock {
        /// Let go of by hand: a child that was just being started may have the descriptor too.
        ~Lock() { (void)::flock(fd.get(), LOCK_UN); }
        UniqueFd fd;
    } lock;
    GuestList guests; ///< whose socket is gone before the lock is
};

SingleCopySocket::SingleCopySocket(std::string folder, Console& console,
                                   std::chrono::milliseconds patience)
    : fFolder(std::move(folder)), fConsole(console), fPatience(patience) {}

SingleCopySocket::~SingleCopySocket() = default;

SingleCopy::Claim SingleCopySocket::claim(const QByteArray& token, Show show) {
    const auto unguarded = [this](const QString& fault) {
        fConsole.log(u"Cannot look for another running copy: " + fault);
        return Claim::Unguarded;
    };
    if (const QString fault = faultOf(fFolder); !fault.isEmpty())
        return unguarded(QString::fromStdString(fFolder) + u": " + fault);
    const auto address = copySocketAddress(fFolder);
    const std::string lockPath = copyLockPath(fFolder);
    UniqueFd lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                         S_IRUSR | S_IWUSR));
    if (!lock)
        return unguarded(QString::fromStdString(lockPath) + u": " + lastFault());

    const auto deadline = Clock::now() + fPatience;
    while (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return unguarded(QString::fromStdString(lockPath) + u": " + lastFault());
        // A copy from before an upgrade knows no tokens.
        for (const QByteArray& request : {showRequest(token), showRequest({})}) {
            if (askOther(address, request, deadline))
                return Claim::OtherIsShown;
        }
        if (Clock::now() >= deadline)
            return Claim::OtherIsSilent;
        // The other one may be just starting, or just ending.
        ::poll(nullptr, 0, static_cast<int>(cRetryPause.count()));
    }
    fPlace = std::make_unique<Place>(std::move(lock), std::move(show));
    errno = ENAMETOOLONG;
    if (!address || !fPlace->guests.listen(*address))
        fConsole.log(u"Later copies cannot ask this one to show itself: " + lastFault());
    return Claim::First;
}

void SingleCopySocket::receive(Host host) {
    if (fPlace)
        fPlace->guests.receive(std::move(host));
}

bool SingleCopySocket::say(Id guest, const QByteArray& line, const QByteArray& farewell) {
    return fPlace && fPlace->guests.say(guest, line, farewell);
}

void SingleCopySocket::dismiss(Id guest) {
    if (fPlace)
        fPlace->guests.dismiss(guest);
}

} // namespace kelvo
