// FakeRelaunchGuard: remembers what it was asked and relaunches nothing.
#pragma once

#include "ports/relaunch_guard.h"

#include <vector>

namespace kelvo {

class FakeRelaunchGuard final : public RelaunchGuard {
public:
    struct Request {
        unsigned long count;
        double seconds;
        Escape escape;
    };

    void autoRelaunchUnless(unsigned long count, double seconds, const Escape& escape) override {
        requests.push_back({count, seconds, escape});
    }
    void quitAndRelaunch() override { ++relaunches; }

    std::vector<Request> requests;
    int relaunches = 0;
};

} // namespace kelvo
