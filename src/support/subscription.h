// Subscription: an owned registration; destroying it ends the registration.
#pragma once

#include <functional>
#include <utility>

namespace kelvo {

class [[nodiscard]] Subscription {
public:
    Subscription() = default;

    /// `cancel` is called exactly once: on destruction, on `reset`, or when another
    /// subscription is moved in. After that the registered callback is not called again.
    explicit Subscription(std::function<void()> cancel) : fCancel(std::move(cancel)) {}

    Subscription(Subscription&& other) noexcept : fCancel(std::exchange(other.fCancel, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            reset();
            fCancel = std::exchange(other.fCancel, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { reset(); }

    void reset() {
        if (auto cancel = std::exchange(fCancel, nullptr))
            cancel();
    }

private:
    std::function<void()> fCancel;
};

} // namespace kelvo
