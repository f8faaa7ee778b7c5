// SignalPipe: signals travel through a pipe to the main thread's event loop.
#pragma once

#include "ports/signals.h"

#include <memory>

namespace kelvo {

/// One at a time in a process: a second one catches nothing. Interrupted system calls go on.
/// Signals that arrive faster than the loop takes them (65,536 waiting) are lost. Its end
/// restores every disposition; subscriptions may outlive it. Not destroyed from inside a handler.
/// Handlers run on a stack of their own on the main thread, so that a stack overflow finds one.
class SignalPipe final : public Signals {
public:
    SignalPipe();
    ~SignalPipe() override;

    using Signals::catchSignal;
    Subscription catchSignal(int number, std::function<void()> handler, int& error) override;

private:
    class State;
    std::shared_ptr<State> fState;
};

} // namespace kelvo
