// Announces SMB services with any bytes for names, until it is ended.
//   mdns_announcer ADDRESS HOST [FROM]     names on standard input, one a line, in hexadecimal
// Each service runs on HOST.local, which has ADDRESS; "ready" is printed after the first round.
// FROM is this machine's own address on the network in question, ADDRESS when left out.
#include <sys/socket.h>
#include <unistd.h>

#include <arpa/inet.h>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <netinet/in.h>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::uint16_t cPort = 5353;
constexpr std::uint16_t cA = 1, cPtr = 12, cTxt = 16, cSrv = 33;
constexpr std::uint16_t cIn = 1, cFlush = 0x8001;
const std::string cType = std::string("\4_smb\4_tcp\5local\0", 17);

std::string number16(std::uint16_t value) {
    return {static_cast<char>(value >> 8), static_cast<char>(value)};
}

std::string label(const std::string& bytes) {
    return static_cast<char>(bytes.size()) + bytes;
}

std::string entry(const std::string& name, std::uint16_t type, std::uint16_t rrClass,
                  const std::string& data) {
    return name + number16(type) + number16(rrClass) + std::string("\0\0\0\x78", 4) +
           number16(static_cast<std::uint16_t>(data.size())) + data;
}

std::string announcement(const std::string& service, const std::string& host, in_addr address) {
    const std::string full = label(service) + cType;
    const std::string hostName = label(host) + std::string("\5local\0", 7);
    const std::string zeros(4, '\0');
    std::string packet = number16(0) + number16(0x8400) + number16(0) + number16(4) + zeros;
    packet += entry(cType, cPtr, cIn, full);
    packet += entry(full, cSrv, cFlush, zeros + number16(445) + hostName);
    packet += entry(full, cTxt, cFlush, std::string(1, '\0'));
    packet += entry(hostName, cA, cFlush,
                    std::string(reinterpret_cast<const char*>(&address), sizeof address));
    return packet;
}

std::string fromHex(const std::string& digits) {
    std::string bytes;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    return bytes;
}

} // namespace

int main(int argc, char** argv) {
    in_addr address = {};
    in_addr from = {};
    if (argc < 3 || argc > 4 || ::inet_pton(AF_INET, argv[1], &address) != 1 ||
        ::inet_pton(AF_INET, argv[argc == 4 ? 3 : 1], &from) != 1)
        return 2;
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    const int ttl = 255;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEPORT, &on, sizeof on);
    ::setsockopt(socket, IPPROTO_IP, IP_MULTICAST_IF, &from, sizeof from);
    ::setsockopt(socket, IPPROTO_IP, IP_MULTICAST_TTL, &ttl, sizeof ttl);
    sockaddr_in own = {};
    own.sin_family = AF_INET;
    own.sin_port = htons(cPort);
    if (::bind(socket, reinterpret_cast<sockaddr*>(&own), sizeof own) != 0) {
        std::perror("mdns_announcer: bind");
        return 1;
    }
    sockaddr_in group = own;
    ::inet_pton(AF_INET, "224.0.0.251", &group.sin_addr);

    std::vector<std::string> packets;
    for (std::string line; std::getline(std::cin, line);)
        packets.push_back(announcement(fromHex(line), argv[2], address));
    for (bool first = true;; first = false) {
        for (const std::string& packet : packets) {
            ::sendto(socket, packet.data(), packet.size(), 0,
                     reinterpret_cast<const sockaddr*>(&group), sizeof group);
            std::this_thread::sleep_for(std::chrono::microseconds(500));
        }
        if (first)
            std::cout << "ready" << std::endl;
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }
}
