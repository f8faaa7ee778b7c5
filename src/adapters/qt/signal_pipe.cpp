#include "adapters/qt/signal_pipe.h"

#include "support/fatal.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace kelvo {
namespace {

std::atomic<int> gWriteEnd = -1; // all that a signal handler can reach

void passOn(int number) {
    const int savedError = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ssize_t written = ::write(gWriteEnd, &byte, 1);
    errno = savedError;
}

} // namespace

struct SignalPipe::Handlers {
    struct Entry {
        std::function<void()> call;
        struct sigaction before;
    };
    std::map<int, std::shared_ptr<Entry>> byNumber;

    void release(int number, const std::shared_ptr<Entry>& entry) {
        const auto found = byNumber.find(number);
        if (found == byNumber.end() || found->second != entry)
            return;
        ::sigaction(number, &entry->before, nullptr);
        byNumber.erase(found);
    }
};

SignalPipe::SignalPipe() : fHandlers(std::make_shared<Handlers>()) {
    auto pipe = makePipe();
    if (!pipe)
        stopProgram("There is no descriptor left for signals.");
    fPipe = std::move(*pipe);
    for (const int fd : {fPipe.readEnd.get(), fPipe.writeEnd.get()})
        ::fcntl(fd, F_SETFL, O_NONBLOCK);
    gWriteEnd = fPipe.writeEnd.get();
    fNotifier = std::make_unique<QSocketNotifier>(fPipe.readEnd.get(), QSocketNotifier::Read);
    QObject::connect(fNotifier.get(), &QSocketNotifier::activated, fNotifier.get(),
                     [this] { deliver(); });
}

SignalPipe::~SignalPipe() {
    for (const auto& [number, entry] : fHandlers->byNumber)
        ::sigaction(number, &entry->before, nullptr);
    fHandlers->byNumber.clear();
    gWriteEnd = -1;
}

Subscription SignalPipe::catchSignal(int number, std::function<void()> handler) {
    if (!handler || fHandlers->byNumber.contains(number))
        return {};
    auto entry = std::make_shared<Handlers::Entry>();
    entry->call = std::move(handler);
    struct sigaction action {};
    action.sa_handler = &passOn;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    if (::sigaction(number, &action, &entry->before) != 0)
        return {};
    fHandlers->byNumber.emplace(number, entry);
    return Subscription([weak = std::weak_ptr(fHandlers), number, entry] {
        if (const auto handlers = weak.lock())
            handlers->release(number, entry);
    });
}

void SignalPipe::deliver() {
    unsigned char number = 0;
    while (::read(fPipe.readEnd.get(), &number, 1) == 1) {
        const auto found = fHandlers->byNumber.find(number);
        if (found == fHandlers->byNumber.end())
            continue;
        const auto entry = found->second; // the handler may end its own subscription
        entry->call();
    }
}

} // namespace kelvo
