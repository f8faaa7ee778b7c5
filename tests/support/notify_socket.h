// NotifySocket: the place where a service manager hears of its services.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QByteArrayList>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <chrono>
#include <cstddef>
#include <cstring>
#include <functional>

namespace kelvo {

class NotifySocket {
public:
    /// `name` as NOTIFY_SOCKET has it: a path, or an abstract name behind "@".
    explicit NotifySocket(const QByteArray& name) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
        auto size = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
        if (name[0] == '@')
            address.sun_path[0] = '\0';
        else
            ++size;
        fBound = ::bind(fSocket.get(), reinterpret_cast<const sockaddr*>(&address),
                        static_cast<socklen_t>(size)) == 0;
    }

    bool isBound() const { return fBound; }

    /// The next message; empty when none came within `seconds`.
    QByteArray next(double seconds = 0) {
        pollfd ready{fSocket.get(), POLLIN, 0};
        QByteArray message(4096, '\0');
        if (::poll(&ready, 1, static_cast<int>(seconds * 1000)) != 1)
            return {};
        const ssize_t size =
            ::recv(fSocket.get(), message.data(), static_cast<std::size_t>(message.size()), 0);
        message.truncate(size > 0 ? size : 0);
        if (!message.isEmpty())
            all.append(message);
        return message;
    }

    /// Whether a message that pleases comes within `seconds`; those in between are passed over.
    bool hears(const std::function<bool(const QByteArray&)>& pleases, double seconds = 60) {
        using Clock = std::chrono::steady_clock;
        const auto deadline =
            Clock::now() + std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
        while (Clock::now() < deadline) {
            const QByteArray message = next(0.1);
            if (!message.isEmpty() && pleases(message))
                return true;
        }
        return false;
    }
    bool hears(const QByteArray& start, double seconds = 60) {
        return hears([&](const QByteArray& message) { return message.startsWith(start); }, seconds);
    }

    QByteArrayList all; ///< so far

private:
    UniqueFd fSocket{::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    bool fBound = false;
};

} // namespace kelvo
