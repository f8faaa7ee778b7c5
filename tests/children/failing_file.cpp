// A library to preload: opening (FAILING_CALL=open) or reading (FAILING_CALL=read) the file named
// by FAILING_FILE fails with the number FAILING_ERRNO; with FAILING_WHILE, as long as that file is
// there.
#include "support/beneath.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

std::string_view setting(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool fails(std::string_view call, std::string_view path) {
    if (path.empty() || setting("FAILING_CALL") != call || setting("FAILING_FILE") != path)
        return false;
    const std::string_view condition = setting("FAILING_WHILE");
    if (!condition.empty() && ::syscall(SYS_faccessat, AT_FDCWD, condition.data(), F_OK) != 0)
        return false;
    errno = std::atoi(setting("FAILING_ERRNO").data());
    return true;
}

std::string pathOf(int descriptor) {
    std::array<char, 4096> room{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = ::readlink(link.c_str(), room.data(), room.size());
    return std::string(room.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
}

int openBeneath(const char* name, const char* path, int flags, mode_t mode) {
    if (fails("open", path))
        return -1;
    return kelvo::beneath<int(const char*, int, ...)>(name)(path, flags, mode);
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, int));
    va_end(rest);
    return openBeneath("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>(va_arg(rest, int));
    va_end(rest);
    return openBeneath("open64", path, flags, mode);
}

ssize_t read(int descriptor, void* room, size_t size) {
    static auto* const real = kelvo::beneath<ssize_t(int, void*, size_t)>("read");
    if (setting("FAILING_CALL") == "read" && fails("read", pathOf(descriptor)))
        return -1;
    return real(descriptor, room, size);
}

// What a hardened build calls instead.
ssize_t __read_chk(int descriptor, void* room, size_t size, size_t) { // NOLINT
    return read(descriptor, room, size);
}

} // extern "C"
