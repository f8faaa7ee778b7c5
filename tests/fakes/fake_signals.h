// FakeSignals: signals that a test sends, on virtual time.
#pragma once

#include "ports/dispatch_queue.h"
#include "ports/signals.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace kelvo {

class FakeSignals final : public Signals {
public:
    explicit FakeSignals(DispatchQueue& mainQueue) : fMainQueue(mainQueue) {}

    using Signals::catchSignal;
    Subscription catchSignal(int number, std::function<void()> handler, int& error) override {
        const bool valid = number >= 1 && number <= 31 && number != SIGKILL && number != SIGSTOP;
        error = valid && !refused.contains(number) ? 0 : EINVAL;
        auto catcher = std::make_shared<Catcher>(Catcher{number, std::move(handler)});
        fCatchers->push_back(catcher);
        return Subscription([catchers = std::weak_ptr(fCatchers), catcher] {
            catcher->ended = true;
            if (const auto alive = catchers.lock())
                std::erase(*alive, catcher);
        });
    }

    /// The signal arrives; false when it takes its default course.
    bool send(int number) {
        if (catchers(number) == 0 || refused.contains(number))
            return false;
        fMainQueue.async([this, number] {
            for (const auto& catcher : Catchers(*fCatchers)) {
                if (catcher->number == number && !catcher->ended)
                    catcher->call();
            }
        });
        return true;
    }

    /// How many handlers wait for `number`.
    long catchers(int number) const {
        return std::count_if(fCatchers->begin(), fCatchers->end(),
                             [&](const auto& catcher) { return catcher->number == number; });
    }

    std::set<int> refused; ///< numbers that the system does not give away

private:
    struct Catcher {
        int number;
        std::function<void()> call;
        bool ended = false;
    };
    using Catchers = std::vector<std::shared_ptr<Catcher>>;
    DispatchQueue& fMainQueue;
    std::shared_ptr<Catchers> fCatchers = std::make_shared<Catchers>();
};

} // namespace kelvo
