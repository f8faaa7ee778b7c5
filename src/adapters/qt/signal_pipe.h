// SignalPipe: signals of the system, carried to Qt's event loop through a pipe.
#pragma once

#include "adapters/posix/file_descriptor.h"
#include "ports/signals.h"

#include <QSocketNotifier>

#include <map>
#include <memory>

namespace kelvo {

/// At most one object at a time: the system calls a handler without saying for whom. A caught
/// signal keeps interrupting nothing else (SA_RESTART), and commands start with its default action.
class SignalPipe final : public Signals {
public:
    SignalPipe();
    ~SignalPipe() override;
    SignalPipe(const SignalPipe&) = delete;
    SignalPipe& operator=(const SignalPipe&) = delete;

    Subscription catchSignal(int number, std::function<void()> handler) override;

private:
    struct Handlers;

    void deliver();

    Pipe fPipe;
    std::shared_ptr<Handlers> fHandlers; // subscriptions may outlive this
    std::unique_ptr<QSocketNotifier> fNotifier;
};

} // namespace kelvo
