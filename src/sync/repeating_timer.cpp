#include "sync/repeating_timer.h"

#include "ports/dispatch_queue.h"

#include <cstdint>
#include <utility>

namespace kelvo {

struct RepeatingTimer::State : std::enable_shared_from_this<State> {
    State(DispatchQueue& queue, double seconds, std::function<void()> handler)
        : mainQueue(queue), interval(seconds), eventHandler(std::move(handler)) {}

    void schedule() {
        mainQueue.asyncAfter(interval, [weak = weak_from_this(), scheduledRun = run] {
            const auto state = weak.lock();
            if (!state || !state->running || state->run != scheduledRun)
                return;
            state->schedule();
            state->eventHandler();
        });
    }

    DispatchQueue& mainQueue;
    const double interval;
    const std::function<void()> eventHandler;
    bool running = false;
    std::uint64_t run = 0; // tells a tick of this run from one left over from an earlier run
};

RepeatingTimer::RepeatingTimer(DispatchQueue& mainQueue, double interval,
                               std::function<void()> eventHandler)
    : fState(std::make_shared<State>(mainQueue, interval, std::move(eventHandler))) {}

RepeatingTimer::~RepeatingTimer() = default;

void RepeatingTimer::resume() {
    if (std::exchange(fState->running, true))
        return;
    ++fState->run;
    fState->schedule();
}

void RepeatingTimer::suspend() {
    fState->running = false;
}

} // namespace kelvo
