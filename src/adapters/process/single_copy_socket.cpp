#include "adapters/process/single_copy_socket.h"

#include "adapters/system/file_trust.h"
#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "ports/console.h"
#include "support/system_error_text.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Ended by a line end; with a token there is a blank and the token before that.
constexpr std::string_view cRequest = "show";
constexpr std::size_t cLongestToken = 255;
constexpr std::size_t cLongestRequest = cRequest.size() + 1 + cLongestToken + 1;
constexpr std::string_view cAnswer = "shown\n";
constexpr std::size_t cMostClients = 16;
constexpr auto cRetryPause = 50ms;

std::string lockIn(const std::string& folder) {
    return folder + "/kelvo-mirror.lock";
}

QString lastFault() {
    return systemErrorText(errno);
}

std::optional<sockaddr_un> socketAddress(const std::string& path) {
    sockaddr_un address{};
    if (path.size() >= sizeof address.sun_path)
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), address.sun_path);
    return address;
}

UniqueFd localSocket() {
    return UniqueFd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

const sockaddr* generic(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

bool isOurUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

/// Why no lock can be trusted that lies in `folder`, which is made when it is missing.
QString faultOf(const std::string& folder) {
    if (const int error = makePrivateFolders(folder))
        return systemErrorText(error);
    struct stat entry {};
    return ::stat(folder.c_str(), &entry) == 0 ? foreignWriters(entry) : lastFault();
}

bool isToken(std::string_view text) {
    return !text.empty() && text.size() <= cLongestToken &&
           std::ranges::all_of(text, [](char byte) { return byte > ' ' && byte <= '~'; });
}

std::string requestWith(const QByteArray& token) {
    const std::string text = token.toStdString();
    return std::string(cRequest) + (isToken(text) ? ' ' + text : std::string()) + '\n';
}

/// The token that the whole request `said` carries, empty when it has none; nothing for anything
/// else.
std::optional<QByteArray> tokenOf(std::string_view said) {
    if (!said.starts_with(cRequest) || !said.ends_with('\n'))
        return {};
    said.remove_prefix(cRequest.size());
    said.remove_suffix(1);
    if (said.empty())
        return QByteArray();
    if (said.front() != ' ' || !isToken(said.substr(1)))
        return {};
    return QByteArray(said.substr(1).data(), static_cast<qsizetype>(said.size() - 1));
}

/// One attempt to have the other copy show itself.
bool askOther(const std::optional<sockaddr_un>& address, const std::string& request,
              Clock::time_point deadline) {
    if (!address)
        return false;
    const UniqueFd socket = localSocket();
    if (!socket || ::connect(socket.get(), generic(*address), sizeof *address) != 0 ||
        !isOurUser(socket.get()) ||
        ::send(socket.get(), request.data(), request.size(), MSG_NOSIGNAL) !=
            static_cast<ssize_t>(request.size()))
        return false;
    std::string answer;
    while (answer.size() < cAnswer.size()) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        pollfd source{socket.get(), POLLIN, 0};
        if (left <= 0 || ::poll(&source, 1, static_cast<int>(left)) <= 0)
            return false;
        std::array<char, cAnswer.size()> bytes{};
        const ssize_t count = ::recv(socket.get(), bytes.data(), bytes.size(), 0);
        if (count <= 0)
            return false;
        answer.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return answer == cAnswer;
}

} // namespace

/// The place of the one copy: its lock, its socket, and those who are connected.
class SingleCopySocket::Listener {
public:
    Listener(UniqueFd lock, Show show) : fLock(std::move(lock)), fShow(std::move(show)) {}
    /// Let go of by hand: a child that was just being started may have the lock's descriptor too.
    ~Listener() {
        if (!fPath.empty())
            ::unlink(fPath.c_str());
        (void)::flock(fLock.get(), LOCK_UN);
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    bool listen(const sockaddr_un& address) {
        fSocket = localSocket();
        // Whoever bound it before has lost the lock.
        ::unlink(address.sun_path);
        // The name takes over the socket's own mode, so that it is never open to others.
        if (!fSocket || ::fchmod(fSocket.get(), S_IRUSR | S_IWUSR) != 0 ||
            ::bind(fSocket.get(), generic(address), sizeof address) != 0 ||
            ::listen(fSocket.get(), cMostClients) != 0)
            return false;
        fPath = address.sun_path;
        fNotifier = std::make_unique<QSocketNotifier>(fSocket.get(), QSocketNotifier::Read);
        QObject::connect(fNotifier.get(), &QSocketNotifier::activated, &fContext,
                         [this] { letIn(); });
        return true;
    }

private:
    struct Client {
        UniqueFd socket;
        std::unique_ptr<QSocketNotifier> notifier;
        std::string said;
    };

    void letIn() {
        UniqueFd socket(::accept4(fSocket.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!socket || !isOurUser(socket.get()))
            return;
        if (fClients.size() >= cMostClients)
            drop(*fClients.front());
        auto client = std::make_unique<Client>();
        client->socket = std::move(socket);
        client->notifier =
            std::make_unique<QSocketNotifier>(client->socket.get(), QSocketNotifier::Read);
        QObject::connect(client->notifier.get(), &QSocketNotifier::activated, &fContext,
                         [this, known = client.get()] { hear(*known); });
        fClients.push_back(std::move(client));
    }

    void hear(Client& client) {
        std::array<char, cLongestRequest + 1> bytes{};
        const ssize_t count = ::recv(client.socket.get(), bytes.data(), bytes.size(), 0);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (count > 0)
            client.said.append(bytes.data(), static_cast<std::size_t>(count));
        if (count > 0 && client.said.size() < cLongestRequest &&
            client.said.find('\n') == std::string::npos)
            return;
        const auto token = tokenOf(client.said);
        const UniqueFd socket = std::move(client.socket);
        drop(client);
        if (!token)
            return;
        fShow(*token);
        (void)::send(socket.get(), cAnswer.data(), cAnswer.size(), MSG_NOSIGNAL);
    }

    void drop(Client& client) {
        const auto found =
            std::ranges::find_if(fClients, [&](const auto& each) { return each.get() == &client; });
        // Its notifier may be the one that called.
        client.notifier->setEnabled(false);
        client.notifier.release()->deleteLater();
        fClients.erase(found);
    }

    UniqueFd fLock;
    Show fShow;
    UniqueFd fSocket;
    std::string fPath;
    QObject fContext;
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::vector<std::unique_ptr<Client>> fClients;
};

SingleCopySocket::SingleCopySocket(std::string folder, Console& console,
                                   std::chrono::milliseconds patience)
    : fFolder(std::move(folder)), fConsole(console), fPatience(patience) {}

SingleCopySocket::~SingleCopySocket() = default;

bool SingleCopySocket::isClaimed(const std::string& folder) {
    const UniqueFd lock(
        ::open(lockIn(folder).c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    return lock && ::flock(lock.get(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

SingleCopy::Claim SingleCopySocket::claim(const QByteArray& token, Show show) {
    const auto unguarded = [this](const QString& fault) {
        fConsole.log(u"Cannot look for another running copy: " + fault);
        return Claim::Unguarded;
    };
    if (const QString fault = faultOf(fFolder); !fault.isEmpty())
        return unguarded(QString::fromStdString(fFolder) + u": " + fault);
    const auto address = socketAddress(fFolder + "/kelvo-mirror.socket");
    const std::string lockPath = lockIn(fFolder);
    UniqueFd lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                         S_IRUSR | S_IWUSR));
    if (!lock)
        return unguarded(QString::fromStdString(lockPath) + u": " + lastFault());

    const auto deadline = Clock::now() + fPatience;
    while (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return unguarded(QString::fromStdString(lockPath) + u": " + lastFault());
        // A copy from before an upgrade knows no tokens.
        for (const std::string& request : {requestWith(token), requestWith({})}) {
            if (askOther(address, request, deadline))
                return Claim::OtherIsShown;
        }
        if (Clock::now() >= deadline)
            return Claim::OtherIsSilent;
        // The other one may be just starting, or just ending.
        ::poll(nullptr, 0, static_cast<int>(cRetryPause.count()));
    }
    fListener = std::make_unique<Listener>(std::move(lock), std::move(show));
    errno = ENAMETOOLONG;
    if (!address || !fListener->listen(*address))
        fConsole.log(u"Later copies cannot ask this one to show itself: " + lastFault());
    return Claim::First;
}

} // namespace kelvo
