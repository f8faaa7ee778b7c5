#include "adapters/process/signal_pipe.h"
#include "support/fatal.h"
#include "support/sanitized.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class SignalPipeTest : public testing::Test {
protected:
    static bool until(const std::function<bool()>& done) {
        QTimer alarm;
        alarm.start(30000);
        const auto end = std::chrono::steady_clock::now() + 30s;
        while (!done() && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return done();
    }
    static bool isDefault(int number) {
        struct sigaction action {};
        ::sigaction(number, nullptr, &action);
        return (action.sa_flags & SA_SIGINFO) == 0 && action.sa_handler == SIG_DFL;
    }
    std::function<void()> note(const std::string& name) {
        return [this, name] { fHeard += name; };
    }

    std::string fHeard;
    std::unique_ptr<SignalPipe> fSignals = std::make_unique<SignalPipe>();
};

TEST_F(SignalPipeTest, Signal_IsACallFromTheEventLoop) {
    const auto term = fSignals->catchSignal(SIGTERM, note("t"));
    const auto interrupt = fSignals->catchSignal(SIGINT, note("i"));
    ASSERT_EQ(::kill(::getpid(), SIGTERM), 0);
    ASSERT_EQ(::raise(SIGINT), 0);
    EXPECT_EQ(fHeard, "");
    EXPECT_TRUE(until([this] { return fHeard.size() == 2; }));
    EXPECT_EQ(fHeard, "ti");
}

TEST_F(SignalPipeTest, SystemCalls_GoOnAfterASignalWhichNeedsNoRoomOnTheStack) {
    const auto user = fSignals->catchSignal(SIGUSR1, note("u"));
    struct sigaction action {};
    ASSERT_EQ(::sigaction(SIGUSR1, nullptr, &action), 0);
    EXPECT_TRUE(action.sa_flags & SA_RESTART);
    EXPECT_TRUE(action.sa_flags & SA_ONSTACK);
    for (const int other : {SIGUSR2, SIGTERM, SIGSEGV})
        EXPECT_EQ(sigismember(&action.sa_mask, other), 1) << "the handler is alone";
}

TEST_F(SignalPipeTest, SignalOnAnotherThread_IsACallOnTheMainOne) {
    std::thread::id called;
    const auto user = fSignals->catchSignal(SIGUSR1, [&] {
        called = std::this_thread::get_id();
        fHeard += "u";
    });
    std::thread([] { ::raise(SIGUSR1); }).join();
    EXPECT_TRUE(until([this] { return fHeard == "u"; }));
    EXPECT_EQ(called, std::this_thread::get_id());
}

TEST_F(SignalPipeTest, EachArrival_IsACall) {
    const auto user = fSignals->catchSignal(SIGUSR1, note("u"));
    for (int i = 0; i < 100; ++i)
        ::raise(SIGUSR1);
    EXPECT_TRUE(until([this] { return fHeard.size() == 100; }));
}

TEST_F(SignalPipeTest, SeveralHandlers_AreCalledInOrder) {
    const auto a = fSignals->catchSignal(SIGUSR1, note("a"));
    const auto b = fSignals->catchSignal(SIGUSR1, note("b"));
    ::raise(SIGUSR1);
    EXPECT_TRUE(until([this] { return fHeard.size() == 2; }));
    EXPECT_EQ(fHeard, "ab");
}

TEST_F(SignalPipeTest, EndedSubscription_IsNotCalledForWhatHadArrived) {
    auto a = fSignals->catchSignal(SIGUSR1, note("a"));
    const auto b = fSignals->catchSignal(SIGUSR1, note("b"));
    ::raise(SIGUSR1);
    a.reset();
    EXPECT_TRUE(until([this] { return !fHeard.empty(); }));
    EXPECT_EQ(fHeard, "b");
}

TEST_F(SignalPipeTest, Handler_MayEndItsOwnAndALaterSubscription) {
    Subscription a;
    Subscription b;
    a = fSignals->catchSignal(SIGUSR1, [&] {
        fHeard += "a";
        a.reset();
        b.reset();
    });
    b = fSignals->catchSignal(SIGUSR1, note("b"));
    ::raise(SIGUSR1);
    EXPECT_TRUE(until([this] { return !fHeard.empty(); }));
    EXPECT_EQ(fHeard, "a");
    EXPECT_TRUE(isDefault(SIGUSR1));
}

TEST_F(SignalPipeTest, LastSubscription_BringsTheEarlierDispositionBack) {
    const auto earlier = ::signal(SIGUSR2, SIG_IGN);
    auto a = fSignals->catchSignal(SIGUSR2, note("a"));
    auto b = fSignals->catchSignal(SIGUSR2, note("b"));
    a.reset();
    ::raise(SIGUSR2);
    EXPECT_TRUE(until([this] { return fHeard == "b"; }));
    b.reset();
    EXPECT_EQ(::signal(SIGUSR2, earlier), SIG_IGN);
}

TEST_F(SignalPipeTest, EndOfThePipe_BringsAllDispositionsBack) {
    auto term = fSignals->catchSignal(SIGTERM, note("t"));
    auto user = fSignals->catchSignal(SIGUSR1, note("u"));
    EXPECT_FALSE(isDefault(SIGTERM));
    fSignals.reset();
    EXPECT_TRUE(isDefault(SIGTERM));
    EXPECT_TRUE(isDefault(SIGUSR1));
    term.reset();
}

TEST_F(SignalPipeTest, NumbersThatCannotBeCaught_AreNeverHeard) {
    for (const int number : {SIGKILL, SIGSTOP, 0, -1, 32, 64})
        const auto nothing = fSignals->catchSignal(number, note("x"));
    EXPECT_EQ(fHeard, "");
    const auto still = fSignals->catchSignal(SIGUSR1, note("u"));
    ::raise(SIGUSR1);
    EXPECT_TRUE(until([this] { return fHeard == "u"; }));
}

TEST_F(SignalPipeTest, SecondPipe_CatchesNothing) {
    SignalPipe second;
    int error = 0;
    const auto nothing = second.catchSignal(SIGUSR1, note("x"), error);
    EXPECT_EQ(error, EBUSY);
    EXPECT_TRUE(isDefault(SIGUSR1));
}

TEST_F(SignalPipeTest, FaultSentByHand_IsACallLikeAnyOther) {
    const auto fault = fSignals->catchSignal(SIGFPE, note("f"));
    ::kill(::getpid(), SIGFPE);
    EXPECT_TRUE(until([this] { return fHeard == "f"; }));
}

TEST_F(SignalPipeTest, FaultOfTheProgram_StillEndsIt) {
    const auto fault = [] {
        SignalPipe signals;
        const auto caught = signals.catchSignal(SIGILL, [] {});
        stopProgram();
    };
    EXPECT_EXIT(fault(), testing::KilledBySignal(SIGILL), "");
}

TEST_F(SignalPipeTest, FirstAndLastNumber_AreHeard) {
    const auto first = fSignals->catchSignal(SIGHUP, note("h"));
    const auto last = fSignals->catchSignal(SIGSYS, note("s"));
    ::raise(SIGHUP);
    ::raise(SIGSYS);
    EXPECT_TRUE(until([this] { return fHeard == "hs"; })) << fHeard;
}

TEST_F(SignalPipeTest, SignalThatTheKernelSends_IsNoFault) {
    const auto child = fSignals->catchSignal(SIGCHLD, note("c"));
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(0);
    ::waitpid(pid, nullptr, 0);
    EXPECT_TRUE(until([this] { return fHeard == "c"; }));
}

TEST_F(SignalPipeTest, MoreThanThePipeHolds_IsLostWithoutATrace) {
    const auto user = fSignals->catchSignal(SIGUSR1, note("u"));
    errno = 0;
    for (int i = 0; i < 70'000; ++i)
        ::raise(SIGUSR1);
    EXPECT_EQ(errno, 0) << "the interrupted code sees nothing of it";
    EXPECT_TRUE(until([this] { return fHeard.size() >= 60'000; }));
    fHeard.clear();
    const auto other = fSignals->catchSignal(SIGUSR2, note("v"));
    ::raise(SIGUSR2);
    EXPECT_TRUE(until([this] { return fHeard.ends_with('v'); }));
}

TEST_F(SignalPipeTest, StackOfSomebodyElse_IsLeftAlone) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer has a signal stack of its own";
    fSignals.reset();
    std::vector<std::byte> memory(std::size_t{64} * 1024);
    const stack_t theirs{memory.data(), 0, memory.size()};
    const auto present = [] {
        stack_t found{};
        ::sigaltstack(nullptr, &found);
        return found.ss_sp;
    };
    ASSERT_EQ(::sigaltstack(&theirs, nullptr), 0);
    fSignals = std::make_unique<SignalPipe>();
    EXPECT_EQ(present(), memory.data());
    fSignals.reset();
    EXPECT_EQ(present(), memory.data());
    const stack_t none{nullptr, SS_DISABLE, 0};
    ::sigaltstack(&none, nullptr);
}

TEST_F(SignalPipeTest, Pipe_LeavesNoDescriptorBehind) {
    const auto open = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList().size(); };
    fSignals.reset();
    const auto before = open();
    { const SignalPipe again; }
    EXPECT_EQ(open(), before);
}

#ifdef __x86_64__
struct Fault {
    int number;
    void (*happen)();
};

class SignalPipeFaultTest : public testing::TestWithParam<Fault> {};

TEST_P(SignalPipeFaultTest, OfEachKind_EndsTheProgram) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer answers faults itself";
    const auto fault = [] {
        SignalPipe signals;
        const auto caught = signals.catchSignal(GetParam().number, [] {});
        GetParam().happen();
        std::_Exit(3);
    };
    EXPECT_EXIT(fault(), testing::KilledBySignal(GetParam().number), "");
}

void divideByNothing() {
    asm volatile("xorl %%ecx, %%ecx; xorl %%edx, %%edx; movl $1, %%eax; divl %%ecx" // NOLINT
                 :
                 :
                 : "eax", "ecx", "edx");
}

void readBehindAFile() {
    const int file = ::memfd_create("empty", MFD_CLOEXEC);
    void* const place = ::mmap(nullptr, 4096, PROT_READ, MAP_SHARED, file, 0);
    (void)*static_cast<volatile char*>(place);
}

INSTANTIATE_TEST_SUITE_P(Faults, SignalPipeFaultTest,
                         testing::Values(Fault{SIGFPE, divideByNothing},
                                         Fault{SIGBUS, readBehindAFile},
                                         Fault{SIGTRAP, [] { asm volatile("int3"); }})); // NOLINT
#endif

TEST_F(SignalPipeTest, Abort_StillEndsTheProgram) {
    const auto fault = [] {
        SignalPipe signals;
        const auto caught = signals.catchSignal(SIGABRT, [] {});
        std::abort();
    };
    EXPECT_EXIT(fault(), testing::KilledBySignal(SIGABRT), "");
}

/// Deeper than any stack, for a large `depth`.
[[gnu::noinline]] long fillStack(long depth) {
    volatile char room[4096]; // NOLINT: touched to fill the stack
    room[0] = static_cast<char>(depth);
    return depth == 0 ? 0 : fillStack(depth - 1) + room[0];
}

TEST_F(SignalPipeTest, StackOverflow_StillEndsTheProgram) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer answers faults itself";
    const auto fault = [] {
        SignalPipe signals;
        const auto caught = signals.catchSignal(SIGSEGV, [] {});
        std::exit(fillStack(1L << 40) == 1 ? 1 : 2);
    };
    EXPECT_EXIT(fault(), testing::KilledBySignal(SIGSEGV), "");
}

TEST_F(SignalPipeTest, SignalStack_IsThereAsLongAsThePipe) {
    const auto disabled = [] {
        stack_t present{};
        ::sigaltstack(nullptr, &present);
        return (present.ss_flags & SS_DISABLE) != 0;
    };
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer has a signal stack of its own";
    EXPECT_FALSE(disabled());
    fSignals.reset();
    EXPECT_TRUE(disabled());
}

} // namespace
} // namespace kelvo
