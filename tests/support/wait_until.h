// Bounded waiting for a condition of something real: a thread, a file, a process.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace kelvo {

/// Whether `condition` came true within `patience`, asked every few milliseconds.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds patience = std::chrono::seconds(15)) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

} // namespace kelvo
