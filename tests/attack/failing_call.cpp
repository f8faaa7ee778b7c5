// A library to preload: counts the calls by which this process opens, reads, writes, syncs, closes,
// renames or removes what lies beneath the folder FAILING_UNDER, writes each down in FAILING_TRACE,
// and lets the one with the number FAILING_AT fail with FAILING_ERRNO; with FAILING_LASTS all that
// follow too. With FAILING_ONLY the others, whose names do not hold that word, neither count nor
// fail. A failed close has closed, as the kernel's has.
#include "support/beneath.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

std::atomic<int> sCalls = 0;

std::string_view setting(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

int number(const char* name) {
    return std::atoi(std::string(setting(name)).c_str());
}

/// Past the operations below.
void writeDown(const std::string& line) {
    const std::string file(setting("FAILING_TRACE"));
    const long trace = ::syscall(SYS_openat, AT_FDCWD, file.c_str(),
                                 O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (trace < 0)
        return;
    (void)::syscall(SYS_write, trace, line.data(), line.size());
    (void)::syscall(SYS_close, trace);
}

bool fails(const char* call, std::string_view path) {
    const std::string_view folder = setting("FAILING_UNDER");
    if (folder.empty() || !path.starts_with(folder) ||
        std::string_view(call).find(setting("FAILING_ONLY")) == std::string_view::npos)
        return false;
    const int saved = errno;
    const int now = ++sCalls;
    const int at = number("FAILING_AT");
    const bool failing = now == at || (at > 0 && now > at && !setting("FAILING_LASTS").empty());
    writeDown(std::string(call) + ' ' + std::string(path) + (failing ? " FAILED\n" : "\n"));
    errno = failing ? number("FAILING_ERRNO") : saved;
    return failing;
}

std::string pathOf(int descriptor) {
    std::array<char, 4096> room{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const int saved = errno;
    const long size = ::syscall(SYS_readlinkat, AT_FDCWD, link.c_str(), room.data(), room.size());
    errno = saved;
    return std::string(room.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
}

int opened(const char* call, const char* path, int flags, mode_t mode) {
    return fails(call, path) ? -1
                             : kelvo::beneath<int(const char*, int, ...)>(call)(path, flags, mode);
}

mode_t modeOf(int flags, va_list rest) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, int)) : 0;
}

} // namespace

// Each lambda's type gives the operation beneath it a place of its own.
#define KELVO_FAILING(result, failed, name, path, ...)                                             \
    return [&](auto... rest) -> result {                                                           \
        static auto* const real = kelvo::beneath<result(decltype(rest)...)>(name);                 \
        return fails(name, path) ? static_cast<result>(failed) : real(rest...);                    \
    }(__VA_ARGS__)

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return opened("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return opened("open64", path, flags, mode);
}

// What a hardened build calls instead.
int __open_2(const char* path, int flags) { // NOLINT
    return opened("open", path, flags, 0);
}

int __open64_2(const char* path, int flags) { // NOLINT
    return opened("open64", path, flags, 0);
}

ssize_t read(int descriptor, void* room, size_t size) {
    KELVO_FAILING(ssize_t, -1, "read", pathOf(descriptor), descriptor, room, size);
}

ssize_t __read_chk(int descriptor, void* room, size_t size, size_t) { // NOLINT
    return read(descriptor, room, size);
}

ssize_t pread64(int descriptor, void* room, size_t size, off64_t at) {
    KELVO_FAILING(ssize_t, -1, "pread64", pathOf(descriptor), descriptor, room, size, at);
}

ssize_t write(int descriptor, const void* bytes, size_t size) {
    KELVO_FAILING(ssize_t, -1, "write", pathOf(descriptor), descriptor, bytes, size);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t at) {
    KELVO_FAILING(ssize_t, -1, "pwrite64", pathOf(descriptor), descriptor, bytes, size, at);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
    KELVO_FAILING(int, -1, "ftruncate64", pathOf(descriptor), descriptor, size);
}

int fsync(int descriptor) {
    KELVO_FAILING(int, -1, "fsync", pathOf(descriptor), descriptor);
}

int fdatasync(int descriptor) {
    KELVO_FAILING(int, -1, "fdatasync", pathOf(descriptor), descriptor);
}

int close(int descriptor) {
    static auto* const real = kelvo::beneath<int(int)>("close");
    if (!fails("close", pathOf(descriptor)))
        return real(descriptor);
    const int error = errno;
    (void)real(descriptor);
    errno = error;
    return -1;
}

int rename(const char* from, const char* to) noexcept {
    KELVO_FAILING(int, -1, "rename", from, from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    KELVO_FAILING(int, -1, "renameat2", from, fromFolder, from, toFolder, to, flags);
}

int unlink(const char* path) noexcept {
    KELVO_FAILING(int, -1, "unlink", path, path);
}

int remove(const char* path) noexcept {
    KELVO_FAILING(int, -1, "remove", path, path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    KELVO_FAILING(int, -1, "mkdir", path, path, mode);
}

// The C library's own streams reach the kernel past all of the above.
FILE* fopen64(const char* path, const char* mode) {
    KELVO_FAILING(FILE*, nullptr, "fopen64", path, path, mode);
}

FILE* fopen(const char* path, const char* mode) {
    KELVO_FAILING(FILE*, nullptr, "fopen", path, path, mode);
}

size_t fwrite(const void* bytes, size_t size, size_t count, FILE* file) {
    KELVO_FAILING(size_t, 0, "fwrite", pathOf(::fileno(file)), bytes, size, count, file);
}

int fflush(FILE* file) {
    KELVO_FAILING(int, EOF, "fflush", file != nullptr ? pathOf(::fileno(file)) : std::string(),
                  file);
}

int fclose(FILE* file) {
    static auto* const real = kelvo::beneath<int(FILE*)>("fclose");
    if (!fails("fclose", pathOf(::fileno(file))))
        return real(file);
    const int error = errno;
    (void)real(file);
    errno = error;
    return EOF;
}

} // extern "C"
