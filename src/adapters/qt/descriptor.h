// Descriptor: an owned file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace kelvo {

/// Closes it when it goes; -1 stands for none.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int value) : fValue(value) {}
    Descriptor(Descriptor&& other) noexcept : fValue(std::exchange(other.fValue, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) {
            reset();
            fValue = std::exchange(other.fValue, -1);
        }
        return *this;
    }
    ~Descriptor() { reset(); }

    int get() const { return fValue; }
    explicit operator bool() const { return fValue >= 0; }
    int release() { return std::exchange(fValue, -1); }
    void reset() {
        if (fValue >= 0)
            ::close(std::exchange(fValue, -1));
    }

private:
    int fValue = -1;
};

} // namespace kelvo
