// Signals: the system's signals as calls on the main thread.
#pragma once

#include "support/subscription.h"

#include <functional>
#include <utility>

namespace kelvo {

class Signals {
public:
    virtual ~Signals() = default;

    /// From now on signal `number` (1 to 31) does not take its default course; `handler` is called
    /// on the main thread, from its event loop, for each that arrives, in the order of arrival.
    /// Several handlers of one number are all called, in the order of registration. Once the
    /// subscription is gone no call follows; with the last one of a number its earlier disposition
    /// comes back. A handler may end subscriptions, its own too. The handler of a number that
    /// cannot be caught (SIGKILL, SIGSTOP, out of range) is registered all the same but not called,
    /// and `error` is the errno value that tells why; 0 otherwise. Main thread. What the program
    /// does to itself still ends it at once: a fault raised by the processor (SIGSEGV, SIGBUS,
    /// SIGILL, SIGFPE), a stack that overflows, abort(). The same numbers sent by anybody are
    /// caught like all others.
    virtual Subscription catchSignal(int number, std::function<void()> handler, int& error) = 0;

    Subscription catchSignal(int number, std::function<void()> handler) {
        int error = 0;
        return catchSignal(number, std::move(handler), error);
    }
};

} // namespace kelvo
