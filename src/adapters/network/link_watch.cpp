#include "adapters/network/link_watch.h"

#include "adapters/system/interface_addresses.h"

#include <QSocketNotifier>

#include <sys/socket.h>

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <net/route.h>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace kelvo {
namespace {

bool isUsable(const ifaddrs& entry) {
    constexpr unsigned cUp = IFF_UP | IFF_RUNNING;
    if ((entry.ifa_flags & cUp) != cUp || (entry.ifa_flags & IFF_LOOPBACK) || !entry.ifa_addr)
        return false;
    if (entry.ifa_addr->sa_family == AF_INET)
        return true;
    if (entry.ifa_addr->sa_family != AF_INET6)
        return false;
    sockaddr_in6 address{};
    std::memcpy(&address, entry.ifa_addr, sizeof address);
    return !IN6_IS_ADDR_LINKLOCAL(&address.sin6_addr);
}

/// Stands for the interface of an IPv4 route that leads nowhere: one that refuses, or a black hole,
/// which no flag tells.
constexpr std::string_view cNoInterface = "*";

UniqueFd openSocket() {
    UniqueFd socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE));
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR | RTMGRP_IPV4_ROUTE |
                        RTMGRP_IPV6_ROUTE;
    if (socket &&
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        socket.reset();
    return socket;
}

/// Takes all that waits. What the messages say does not matter; a full buffer (ENOBUFS) is a change
/// too, and its messages are gone.
void drain(int socket) {
    std::array<char, 8192> message{};
    for (;;) {
        if (::recv(socket, message.data(), message.size(), 0) >= 0)
            continue;
        if (errno != ENOBUFS && errno != EINTR)
            return;
    }
}

} // namespace

bool hasUsableLink() {
    const InterfaceAddresses addresses;
    bool found = false;
    for (const ifaddrs* entry = addresses.first(); entry && !found; entry = entry->ifa_next)
        found = isUsable(*entry);
    return found;
}

bool hasDefaultRoute() {
    std::string line;
    // Interface, destination, gateway, flags …, each number in hexadecimal.
    for (std::ifstream routes("/proc/net/route"); std::getline(routes, line);) {
        std::istringstream fields(line);
        std::string interface, destination, gateway;
        unsigned flags = 0;
        if (fields >> interface >> destination >> gateway >> std::hex >> flags &&
            destination == "00000000" && (flags & RTF_UP) && interface != cNoInterface)
            return true;
    }
    // Destination, its length, source, its length, next hop, metric, two counts, flags, interface.
    for (std::ifstream routes("/proc/net/ipv6_route"); std::getline(routes, line);) {
        std::istringstream fields(line);
        std::string destination, length, skipped, interface;
        unsigned flags = 0;
        fields >> destination >> length;
        for (int i = 0; i < 6; ++i)
            fields >> skipped;
        // One that leads nowhere stands with the loopback.
        if (fields >> std::hex >> flags >> interface && length == "00" && (flags & RTF_UP) &&
            interface != "lo")
            return true;
    }
    return false;
}

LinkWatch::LinkWatch(std::function<void()> changed) : fSocket(openSocket()) {
    if (!fSocket)
        return;
    fNotifier = std::make_unique<QSocketNotifier>(fSocket.get(), QSocketNotifier::Read);
    QObject::connect(fNotifier.get(), &QSocketNotifier::activated, fNotifier.get(),
                     [socket = fSocket.get(), changed = std::move(changed)] {
                         drain(socket);
                         changed();
                     });
}

LinkWatch::~LinkWatch() = default;

} // namespace kelvo
