#include "sentinel/lines.h"

#include <fcntl.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace kelvo::sentinel {
namespace {

constexpr std::size_t cMostPieces = 8;
constexpr std::size_t cFirstRoom = 4096;

bool makeRoom(Bytes& bytes) {
    if (bytes.size + 1 < bytes.room)
        return true;
    const std::size_t room = bytes.room == 0 ? cFirstRoom : bytes.room * 2;
    void* const data = std::realloc(bytes.data, room);
    if (data == nullptr)
        return false;
    bytes.data = static_cast<char*>(data);
    bytes.room = room;
    return true;
}

} // namespace

void say(std::initializer_list<const char*> pieces) {
    iovec parts[cMostPieces + 2];
    int count = 0;
    const auto add = [&](const char* text) {
        parts[count++] = {const_cast<char*>(text), std::strlen(text)};
    };
    add("watchdog: ");
    for (const char* piece : pieces) {
        if (count <= static_cast<int>(cMostPieces))
            add(piece);
    }
    add("\n");
    (void)!::writev(STDERR_FILENO, parts, count);
}

bool readWhole(int folder, const char* name, Bytes& bytes) {
    const int file = ::openat(folder, name, O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    bytes.size = 0;
    int failure = 0;
    for (;;) {
        if (!makeRoom(bytes)) {
            failure = ENOMEM;
            break;
        }
        const ssize_t size = ::read(file, bytes.data + bytes.size, bytes.room - bytes.size - 1);
        if (size < 0 && errno == EINTR)
            continue;
        if (size <= 0) {
            failure = size < 0 ? errno : 0;
            break;
        }
        bytes.size += static_cast<std::size_t>(size);
    }
    ::close(file);
    if (failure == 0)
        bytes.data[bytes.size] = '\0';
    errno = failure;
    return failure == 0;
}

Decimal::Decimal(unsigned long number) {
    char* end = text + sizeof text;
    *--end = '\0';
    do {
        *--end = static_cast<char>('0' + number % 10);
        number /= 10;
    } while (number > 0);
    std::memmove(text, end, static_cast<std::size_t>(text + sizeof text - end));
}

} // namespace kelvo::sentinel
