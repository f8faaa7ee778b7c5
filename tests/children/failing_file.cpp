// A library to preload: what FAILING_CALL names (open, read, write, fsync, close or renameat2)
// fails with the number FAILING_ERRNO when it is done to the file named by FAILING_FILE; with
// FAILING_WHILE, as long as that file is there. A FAILING_FILE that ends in "*" names every file
// that begins so. With FAILING_CALL=bad-place reading fails behind the first 4 KiB of the file. Two
// calls do not fail but go wrong: with FAILING_CALL=short-write each write
// takes a hundred bytes at most, and with FAILING_CALL=late-flock the file is gone when the first
// lock on it is had.
#include "support/beneath.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr off_t cBadPlace = 4096;

std::string_view setting(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool isMeant(std::string_view path) {
    const std::string_view meant = setting("FAILING_FILE");
    if (meant.ends_with('*'))
        return path.starts_with(meant.substr(0, meant.size() - 1));
    return !path.empty() && path == meant;
}

bool fails(std::string_view call, std::string_view path) {
    if (setting("FAILING_CALL") != call || !isMeant(path))
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

/// Spares the look at the path for calls that never fail.
bool fails(std::string_view call, int descriptor) {
    return setting("FAILING_CALL") == call && fails(call, pathOf(descriptor));
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

ssize_t pread64(int descriptor, void* room, size_t size, off_t at) {
    static auto* const real = kelvo::beneath<ssize_t(int, void*, size_t, off_t)>("pread64");
    return at >= cBadPlace && fails("bad-place", descriptor) ? -1
                                                             : real(descriptor, room, size, at);
}

ssize_t read(int descriptor, void* room, size_t size) {
    static auto* const real = kelvo::beneath<ssize_t(int, void*, size_t)>("read");
    if (fails("bad-place", descriptor)) {
        const off_t at = ::lseek(descriptor, 0, SEEK_CUR);
        return at >= cBadPlace
                   ? -1
                   : real(descriptor, room, std::min(size, static_cast<size_t>(cBadPlace - at)));
    }
    return fails("read", descriptor) ? -1 : real(descriptor, room, size);
}

// What a hardened build calls instead.
ssize_t __read_chk(int descriptor, void* room, size_t size, size_t) { // NOLINT
    return read(descriptor, room, size);
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
    static auto* const real = kelvo::beneath<ssize_t(int, const void*, size_t)>("write");
    constexpr size_t cFew = 100;
    if (fails("write", descriptor))
        return -1;
    return real(descriptor, bytes, fails("short-write", descriptor) ? std::min(size, cFew) : size);
}

int fsync(int descriptor) {
    static auto* const real = kelvo::beneath<int(int)>("fsync");
    return fails("fsync", descriptor) ? -1 : real(descriptor);
}

int close(int descriptor) {
    static auto* const real = kelvo::beneath<int(int)>("close");
    const bool failing = fails("close", descriptor);
    const int error = errno;
    const int result = real(descriptor);
    if (!failing)
        return result;
    errno = error;
    return -1;
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    if (fails("renameat2", from))
        return -1;
    return kelvo::beneath<int(int, const char*, int, const char*, unsigned)>("renameat2")(
        fromFolder, from, toFolder, to, flags);
}

int flock(int descriptor, int operation) {
    static bool sawFirst = false;
    if (!sawFirst && fails("late-flock", descriptor)) {
        sawFirst = true;
        ::unlink(pathOf(descriptor).c_str());
    }
    return kelvo::beneath<int(int, int)>("flock")(descriptor, operation);
}

} // extern "C"
