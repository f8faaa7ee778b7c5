#include "adapters/qt/signal_pipe.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <map>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

constexpr int cLastSignal = 31;

// A signal handler has no other way to find its pipe.
std::atomic<int> gWriteEnd{-1}; // NOLINT

bool isFault(int number, const siginfo_t& info) {
    const bool raisedByProcessor = info.si_code > 0;
    return raisedByProcessor &&
           (number == SIGSEGV || number == SIGBUS || number == SIGILL || number == SIGFPE);
}

/// Does only what is safe inside a signal handler. After a fault the instruction runs again and
/// meets the default action.
void passOn(int number, siginfo_t* info, void*) {
    const int before = errno;
    if (isFault(number, *info)) {
        (void)::signal(number, SIG_DFL);
    } else {
        const auto byte = static_cast<unsigned char>(number);
        (void)!::write(gWriteEnd.load(), &byte, 1);
    }
    errno = before;
}

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

    bool add(const std::shared_ptr<Catcher>& catcher) {
        if (!fActive || (!fEarlier.contains(catcher->number) && !takeOver(catcher->number)))
            return false;
        fCatchers.push_back(catcher);
        return true;
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
    bool takeOver(int number) {
        if (number < 1 || number > cLastSignal)
            return false;
        struct sigaction action {};
        action.sa_sigaction = passOn;
        action.sa_flags = SA_SIGINFO | SA_RESTART;
        ::sigfillset(&action.sa_mask);
        struct sigaction earlier {};
        if (::sigaction(number, &action, &earlier) != 0)
            return false;
        fEarlier.emplace(number, earlier);
        return true;
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

    std::array<int, 2> fEnds{-1, -1};
    bool fActive = false;
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::vector<std::shared_ptr<Catcher>> fCatchers;
    std::map<int, struct sigaction> fEarlier;
};

SignalPipe::SignalPipe() : fState(std::make_shared<State>()) {}

SignalPipe::~SignalPipe() = default;

Subscription SignalPipe::catchSignal(int number, std::function<void()> handler) {
    const auto catcher = std::make_shared<Catcher>(Catcher{number, std::move(handler)});
    if (!fState->add(catcher))
        return {};
    return Subscription([state = std::weak_ptr(fState), catcher] {
        catcher->ended = true;
        if (const auto alive = state.lock())
            alive->remove(catcher);
    });
}

} // namespace kelvo
