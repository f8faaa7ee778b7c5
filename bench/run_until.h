// Waiting, in real time, for what other threads answer to a virtual main queue.
#pragma once

#include "fakes/virtual_queues.h"

#include <chrono>
#include <thread>

namespace kelvo::bench {

/// Runs `queue` until `done`; false when that takes too long.
template <typename Condition>
bool runUntil(VirtualMainQueue& queue, Condition done) {
    constexpr auto cPatience = std::chrono::seconds(120);
    const auto begin = std::chrono::steady_clock::now();
    while (!done()) {
        if (std::chrono::steady_clock::now() - begin > cPatience)
            return false;
        queue.runDue();
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

} // namespace kelvo::bench
