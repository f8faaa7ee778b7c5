#include "adapters/process/signal_pipe.h"
#include "fakes/fake_signals.h"
#include "fakes/virtual_queues.h"
#include "support/wait_in_loop.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

namespace kelvo {
namespace {

class PretendSignals {
public:
    Signals& signals() { return fSignals; }
    void send(int number) { ASSERT_TRUE(fSignals.send(number)); }
    bool until(const std::function<bool()>& done) {
        fQueue.runDue();
        return done();
    }

private:
    VirtualMainQueue fQueue;
    FakeSignals fSignals{fQueue};
};

class RealSignals {
public:
    Signals& signals() { return fSignals; }
    void send(int number) { ASSERT_EQ(::kill(::getpid(), number), 0); }
    bool until(const std::function<bool()>& done) { return waitInLoop(done); }

private:
    SignalPipe fSignals;
};

template <typename World>
class SignalsContractTest : public testing::Test {
protected:
    Subscription heard(int number, const std::string& name) {
        return fWorld.signals().catchSignal(number, [this, name] { fHeard += name; });
    }
    bool hears(const std::string& expected) {
        return fWorld.until([&] { return fHeard == expected; });
    }

    std::string fHeard;
    World fWorld;
};

using Worlds = testing::Types<PretendSignals, RealSignals>;
class WorldNames {
public:
    template <typename World>
    static std::string GetName(int) {
        return std::is_same_v<World, PretendSignals> ? "Fake" : "Pipe";
    }
};
TYPED_TEST_SUITE(SignalsContractTest, Worlds, WorldNames);

TYPED_TEST(SignalsContractTest, EachArrival_IsACallFromTheLoopInTheOrderOfArrival) {
    const auto one = this->heard(SIGUSR1, "1");
    const auto two = this->heard(SIGUSR2, "2");
    for (const int number : {SIGUSR1, SIGUSR2, SIGUSR2, SIGUSR1})
        this->fWorld.send(number);
    EXPECT_EQ(this->fHeard, "");
    EXPECT_TRUE(this->hears("1221")) << this->fHeard;
}

TYPED_TEST(SignalsContractTest, SeveralHandlers_AreCalledInTheOrderOfRegistration) {
    const auto a = this->heard(SIGUSR1, "a");
    const auto b = this->heard(SIGUSR1, "b");
    this->fWorld.send(SIGUSR1);
    EXPECT_TRUE(this->hears("ab")) << this->fHeard;
}

TYPED_TEST(SignalsContractTest, EndedSubscription_IsNotCalledForWhatHadArrived) {
    auto a = this->heard(SIGUSR1, "a");
    const auto b = this->heard(SIGUSR1, "b");
    this->fWorld.send(SIGUSR1);
    a.reset();
    EXPECT_TRUE(this->hears("b")) << this->fHeard;
}

TYPED_TEST(SignalsContractTest, Handler_MayEndItsOwnSubscription) {
    Subscription own;
    own = this->fWorld.signals().catchSignal(SIGUSR1, [&] {
        this->fHeard += "x";
        own.reset();
    });
    const auto other = this->heard(SIGUSR1, "y");
    this->fWorld.send(SIGUSR1);
    this->fWorld.send(SIGUSR1);
    EXPECT_TRUE(this->hears("xyy")) << this->fHeard;
}

TYPED_TEST(SignalsContractTest, EveryNumberFromOneToFifteen_CanBeCaughtButTheKill) {
    std::vector<Subscription> all;
    for (int number = 1; number <= 15; ++number) {
        int error = -1;
        all.push_back(this->fWorld.signals().catchSignal(
            number, [this, number] { this->fHeard += static_cast<char>('a' + number); }, error));
        EXPECT_EQ(error, number == SIGKILL ? EINVAL : 0) << number;
    }
    std::string expected;
    for (int number = 1; number <= 15; ++number) {
        if (number == SIGKILL)
            continue;
        this->fWorld.send(number);
        expected += static_cast<char>('a' + number);
    }
    EXPECT_TRUE(this->hears(expected)) << this->fHeard;
}

TYPED_TEST(SignalsContractTest, NumberThatCannotBeCaught_SaysWhy) {
    for (const int number : {SIGKILL, SIGSTOP, 0, -1, 32, 64}) {
        int error = 0;
        const auto nothing = this->fWorld.signals().catchSignal(
            number, [] {}, error);
        EXPECT_EQ(error, EINVAL) << number;
    }
}

} // namespace
} // namespace kelvo
