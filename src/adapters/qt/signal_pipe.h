// SignalPipe: signals travel through a pipe to the main thread's event loop.
#pragma once

#include "ports/signals.h"

#include <memory>

namespace kelvo {

/// One at a time in a process: a second one catches nothing. Interrupted system calls go on.
/// Signals that arrive faster than the loop takes them (65,536 waiting) are lost. Its end
/// restores every disposition; subscriptions may outlive it. Not destroyed from inside a handler.
class SignalPipe final : public Signals {
public:
    SignalPipe();
    ~SignalPipe() override;

    Subscription catchSignal(int number, std::function<void()> handler) override;

private:
    class State;
    std::shared_ptr<State> fState;
};

} // namespace kelvo
