#include "adapters/process/guest_list.h"

#include "adapters/process/local_socket.h"
#include "adapters/process/show_request.h"

#include <QSocketNotifier>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace kelvo {
namespace {

constexpr std::size_t cMostGuests = 16;

bool isForLater(int error) {
    return error == EAGAIN || error == EINTR;
}

/// The notifier may be the one that has called.
void endLater(std::unique_ptr<QSocketNotifier>& notifier) {
    notifier->setEnabled(false);
    notifier.release()->deleteLater();
}

} // namespace

GuestList::GuestList(SingleCopy::Show show) : fShow(std::move(show)) {}

GuestList::~GuestList() {
    if (!fPath.empty())
        ::unlink(fPath.c_str());
}

bool GuestList::listen(const sockaddr_un& address) {
    fSocket = localSocket();
    // Whoever bound it before has lost the lock.
    ::unlink(address.sun_path);
    // The name takes over the socket's own mode, so that it is never open to others.
    if (!fSocket || ::fchmod(fSocket.get(), S_IRUSR | S_IWUSR) != 0 ||
        ::bind(fSocket.get(), generic(address), sizeof address) != 0 ||
        ::listen(fSocket.get(), cMostGuests) != 0)
        return false;
    fPath = address.sun_path;
    fComing = std::make_unique<QSocketNotifier>(fSocket.get(), QSocketNotifier::Read);
    QObject::connect(fComing.get(), &QSocketNotifier::activated, &fContext, [this] { letIn(); });
    return true;
}

void GuestList::letIn() {
    UniqueFd socket(::accept4(fSocket.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!socket || !isOurUser(socket.get()))
        return;
    if (fGuests.size() >= cMostGuests)
        makeRoom();
    auto guest = std::make_unique<Guest>();
    guest->id = ++fLast;
    guest->readable = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Read);
    guest->writable = std::make_unique<QSocketNotifier>(socket.get(), QSocketNotifier::Write);
    guest->writable->setEnabled(false);
    guest->socket = std::move(socket);
    QObject::connect(guest->readable.get(), &QSocketNotifier::activated, &fContext,
                     [this, id = guest->id] { hear(id); });
    QObject::connect(guest->writable.get(), &QSocketNotifier::activated, &fContext,
                     [this, id = guest->id] { write(id); });
    fGuests.push_back(std::move(guest));
}

void GuestList::makeRoom() {
    auto goes = std::ranges::find(fGuests, false, [](const auto& each) { return each->spoke; });
    if (goes == fGuests.end())
        goes = std::ranges::find(fGuests, true, [](const auto& each) { return each->leaves; });
    leave((goes == fGuests.end() ? fGuests.front() : *goes)->id);
}

void GuestList::hear(Id id) {
    Guest* const guest = find(id);
    if (!guest)
        return;
    std::array<char, 16384> bytes;
    const ssize_t count = ::recv(guest->socket.get(), bytes.data(), bytes.size(), 0);
    if (count < 0 && isForLater(errno))
        return;
    if (count <= 0 || guest->spoke) {
        leave(id);
        return;
    }
    QByteArray& said = guest->said;
    said.append(bytes.data(), static_cast<qsizetype>(count));
    const qsizetype end = said.indexOf('\n', said.size() - static_cast<qsizetype>(count));
    const bool isRequest = said.startsWith('{');
    const bool isTooLong = said.size() > (isRequest ? cLongestLine : cLongestShowRequest);
    if (end < 0 && !isTooLong)
        return;
    if (!isRequest) {
        if (const auto token = tokenOfShowRequest(said))
            serveLaterCopy(*guest, *token);
        else
            remove(id);
        return;
    }
    if (!fHost.said || (!isTooLong && end != said.size() - 1)) {
        remove(id);
        return;
    }
    guest->spoke = true;
    QByteArray line = isTooLong ? QByteArray() : said.chopped(1);
    said = {};
    fHost.said(id, line);
}

void GuestList::serveLaterCopy(Guest& guest, const QByteArray& token) {
    const UniqueFd socket = std::move(guest.socket);
    remove(guest.id);
    fShow(token);
    (void)::send(socket.get(), cShownAnswer.data(), cShownAnswer.size(), MSG_NOSIGNAL);
}

bool GuestList::say(Id id, const QByteArray& line, const QByteArray& farewell) {
    Guest* const guest = find(id);
    if (!guest || guest->leaves)
        return false;
    if (guest->waiting + line.size() > cMostWaiting) {
        guest->lines.erase(guest->lines.begin() + (guest->sent > 0 ? 1 : 0), guest->lines.end());
        guest->lines.push_back(farewell);
        guest->leaves = true;
    } else {
        guest->lines.push_back(line);
        guest->waiting += line.size();
    }
    if (writeSome(*guest) && !guest->leaves)
        return true;
    if (guest->lines.empty() || !guest->leaves)
        remove(id);
    return false;
}

void GuestList::dismiss(Id id) {
    Guest* const guest = find(id);
    if (!guest)
        return;
    guest->leaves = true;
    if (guest->lines.empty())
        remove(id);
}

void GuestList::write(Id id) {
    Guest* const guest = find(id);
    if (!guest)
        return;
    if (!writeSome(*guest))
        leave(id);
    else if (guest->leaves && guest->lines.empty())
        remove(id);
}

/// False when the guest takes nothing any more.
bool GuestList::writeSome(Guest& guest) {
    while (!guest.lines.empty()) {
        const QByteArray& line = guest.lines.front();
        const ssize_t count =
            ::send(guest.socket.get(), line.constData() + guest.sent,
                   static_cast<std::size_t>(line.size() - guest.sent), MSG_NOSIGNAL);
        if (count < 0 && !isForLater(errno))
            return false;
        if (count < 0)
            break;
        guest.sent += count;
        if (guest.sent < line.size())
            continue;
        guest.waiting -= line.size();
        guest.sent = 0;
        guest.lines.pop_front();
    }
    guest.writable->setEnabled(!guest.lines.empty());
    return true;
}

GuestList::Guest* GuestList::find(Id id) {
    const auto found = std::ranges::find(fGuests, id, [](const auto& each) { return each->id; });
    return found == fGuests.end() ? nullptr : found->get();
}

void GuestList::remove(Id id) {
    const auto found = std::ranges::find(fGuests, id, [](const auto& each) { return each->id; });
    if (found == fGuests.end())
        return;
    endLater((*found)->readable);
    endLater((*found)->writable);
    fGuests.erase(found);
}

/// The same for one that goes by itself.
void GuestList::leave(Id id) {
    const Guest* const guest = find(id);
    const bool isMissed = guest && guest->spoke && !guest->leaves;
    remove(id);
    if (isMissed && fHost.left)
        fHost.left(id);
}

} // namespace kelvo
