// UniqueFd: an owned file descriptor, closed on destruction.
#pragma once

#include <unistd.h>

#include <utility>

namespace kelvo {

class UniqueFd {
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd) : fFd(fd) {}
    UniqueFd(UniqueFd&& other) noexcept : fFd(std::exchange(other.fFd, -1)) {}
    UniqueFd& operator=(UniqueFd&& other) noexcept {
        if (this != &other) {
            reset();
            fFd = std::exchange(other.fFd, -1);
        }
        return *this;
    }
    UniqueFd(const UniqueFd&) = delete;
    UniqueFd& operator=(const UniqueFd&) = delete;
    ~UniqueFd() { reset(); }

    /// The descriptor, -1 when there is none.
    int get() const { return fFd; }
    explicit operator bool() const { return fFd >= 0; }

    /// The descriptor, from now on the caller's to close.
    int release() { return std::exchange(fFd, -1); }

    void reset() {
        if (fFd >= 0)
            ::close(std::exchange(fFd, -1));
    }

private:
    int fFd = -1;
};

} // namespace kelvo
