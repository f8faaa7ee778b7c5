// FileDescriptor: an owned file descriptor, and pipes made of two.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <optional>
#include <utility>

namespace kelvo {

class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) : fFd(fd) {}
    FileDescriptor(FileDescriptor&& other) noexcept : fFd(std::exchange(other.fFd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            reset();
            fFd = std::exchange(other.fFd, -1);
        }
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { reset(); }

    int get() const { return fFd; }
    void reset() {
        if (const int fd = std::exchange(fFd, -1); fd >= 0)
            ::close(fd);
    }

private:
    int fFd = -1;
};

struct Pipe {
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

/// Both ends closed on exec; nothing when the system has none left (errno says why).
inline std::optional<Pipe> makePipe() {
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    return Pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

} // namespace kelvo
