#include "adapters/process/signal_pipe.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

constexpr int cLastSignal = 31;
constexpr long cStackSize = 64L * 1024;

// A signal handler has no other way to find its pipe.
std::atomic<int> gWriteEnd{-1}; // NOLINT

bool isFault(int number, const siginfo_t& info) {
    const bool raisedByProcessor = info.si_code > 0;
    return raisedByProcessor && (number == SIGSEGV || number == SIGBUS || number == SIGILL ||
                                 number == SIGFPE || number == SIGTRAP);
}

/// Does only what is safe inside a signal handler. After a fault the instruction runs again and
/// meets the default action; a trap, with which libraries end a program, is left behind, and comes
/// once more.
void passOn(int number, siginfo_t* info, void*) {
    const int before = errno;
    if (isFault(number, *info)) {
        (void)::signal(number, SIG_DFL);
        if (number == SIGTRAP)
            (void)::raise(number);
    } else {
        const auto byte = static_cast<unsigned char>(number);
        (void)!::write(gWriteEnd.load(), &byte, 1);
    }
    errno = before;
}

/// A signal stack for the main thread, unless it has one (a sanitizer's, for example).
class AlternateStack {
public:
    AlternateStack() {
        stack_t present{};
        if (::sigaltstack(nullptr, &present) != 0 || (present.ss_flags & SS_DISABLE) == 0)
            return;
        const auto size = static_cast<std::size_t>(std::max<long>(cStackSize, SIGSTKSZ));
        fMemory = std::make_unique_for_overwrite<std::byte[]>(size);
        const stack_t ours{fMemory.get(), 0, size};
        ::sigaltstack(&ours, nullptr);
    }
    ~AlternateStack() {
        stack_t present{};
        if (fMemory == nullptr || ::sigaltstack(nullptr, &present) != 0 ||
            present.ss_sp != fMemory.get())
            return;
        const stack_t none{nullptr, SS_DISABLE, 0};
        ::sigaltstack(&none, nullptr);
    }
    AlternateStack(const AlternateStack&) = delete;
    AlternateStack& operator=(const AlternateStack&) = delete;

private:
    std::unique_ptr<std::byte[]> fMemory;
};

struct Catcher {
    int number;
    std::function<void()> call;
    bool ended = false;
};

} // namespace

class SignalPipe::State {
public:
    State() {
        if (::pipe2(fEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        int none = -1;
        fActive = gWriteEnd.compare_exchange_strong(none, fEnds[1]);
        fNotifier = std::make_unique<QSocketNotifier>(fEnds[0], QSocketNotifier::Read);
        QObject::connect(fNotifier.get(), &QSocketNotifier::activated, fNotifier.get(),
                         [this] { read(); });
    }

    ~State() {
        for (const auto& [number, action] : fEarlier)
            ::sigaction(number, &action, nullptr);
        if (fActive)
            gWriteEnd = -1;
        fNotifier.reset();
        for (const int end : fEnds) {
            if (end >= 0)
                ::close(end);
        }
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    /// 0, or the errno value that tells why not.
    int add(const std::shared_ptr<Catcher>& catcher) {
        fCatchers.push_back(catcher);
        if (!fActive)
            return EBUSY;
        return fEarlier.contains(catcher->number) ? 0 : takeOver(catcher->number);
    }

    void remove(const std::shared_ptr<Catcher>& catcher) {
        std::erase(fCatchers, catcher);
        if (std::ranges::any_of(
                fCatchers, [&](const auto& other) { return other->number == catcher->number; }))
            return;
        if (const auto earlier = fEarlier.extract(catcher->number))
            ::sigaction(catcher->number, &earlier.mapped(), nullptr);
    }

private:
    int takeOver(int number) {
        if (number < 1 || number > cLastSignal)
            return EINVAL;
        struct sigaction action {};
        action.sa_sigaction = passOn;
        action.sa_flags = SA_SIGINFO | SA_RESTART | SA_ONSTACK;
        ::sigfillset(&action.sa_mask);
        struct sigaction earlier {};
        if (::sigaction(number, &action, &earlier) != 0)
            return errno;
        fEarlier.emplace(number, earlier);
        return 0;
    }

    void read() {
        std::array<unsigned char, 64> numbers{};
        const ssize_t size = ::read(fEnds[0], numbers.data(), numbers.size());
        for (ssize_t i = 0; i < size; ++i)
            tell(numbers[static_cast<std::size_t>(i)]);
    }

    void tell(int number) {
        const auto told = fCatchers;
        for (const auto& catcher : told) {
            if (catcher->number == number && !catcher->ended)
                catcher->call();
        }
    }

    AlternateStack fStack;
    std::array<int, 2> fEnds{-1, -1};
    bool fActive = false;
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::vector<std::shared_ptr<Catcher>> fCatchers;
    std::map<int, struct sigaction> fEarlier;
};

SignalPipe::SignalPipe() : fState(std::make_shared<State>()) {}

SignalPipe::~SignalPipe() = default;

Subscription SignalPipe::catchSignal(int number, std::function<void()> handler, int& error) {
    const auto catcher = std::make_shared<Catcher>(Catcher{number, std::move(handler)});
    error = fState->add(catcher);
    return Subscription([state = std::weak_ptr(fState), catcher] {
        catcher->ended = true;
        if (const auto alive = state.lock())
            alive->remove(catcher);
    });
}

} // namespace kelvo
