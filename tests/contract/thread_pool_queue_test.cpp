#include "adapters/process/thread_pool_queue.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <functional>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

bool until(const std::function<bool()>& done) {
    for (int tries = 0; !done() && tries < 30000; ++tries)
        std::this_thread::sleep_for(1ms);
    return done();
}

class ThreadPoolQueueTest : public testing::Test {
protected:
    /// Work that counts itself in and stays until it is released.
    Work blocking() {
        return [this] {
            ++fRunning;
            fRelease.acquire();
        };
    }

    std::atomic<int> fRunning = 0;
    std::counting_semaphore<1000> fRelease{0};
};

TEST_F(ThreadPoolQueueTest, BlockedItems_DoNotHoldUpOthersUpToSixtyFour) {
    ThreadPoolQueue queue;
    for (int i = 0; i < 70; ++i)
        queue.async(blocking());
    EXPECT_TRUE(until([this] { return fRunning == 64; }));
    EXPECT_EQ(queue.threads(), 64u);
    fRelease.release(6);
    EXPECT_TRUE(until([this] { return fRunning == 70; }));
    EXPECT_EQ(queue.threads(), 64u);
    fRelease.release(64);
}

TEST_F(ThreadPoolQueueTest, ThreadsThatHaveEnded_GiveTheirStacksBack) {
    ThreadPoolQueue queue(0ms);
    const auto stacks = [] {
        std::ifstream maps("/proc/self/maps");
        std::size_t count = 0;
        for (std::string line; std::getline(maps, line);)
            ++count;
        return count;
    };
    const std::size_t before = stacks();
    for (int i = 0; i < 300; ++i) {
        queue.async([] {});
        ASSERT_TRUE(until([&queue] { return queue.threads() == 0; })) << i;
    }
    EXPECT_LT(stacks(), before + 100);
}

TEST_F(ThreadPoolQueueTest, WorkThatHadToWait_StartsInTheOrderOfPosting) {
    ThreadPoolQueue queue;
    for (int i = 0; i < 64; ++i)
        queue.async(blocking());
    ASSERT_TRUE(until([this] { return fRunning == 64; }));
    std::string order;
    std::atomic<bool> last = false;
    // Only one thread comes free, so one after the other runs there.
    for (const char name : {'a', 'b', 'c', 'd'})
        queue.async([&order, name] { order += name; });
    queue.async([&last] { last = true; });
    fRelease.release(1);
    EXPECT_TRUE(until([&] { return last.load(); }));
    EXPECT_EQ(order, "abcd");
    fRelease.release(63);
}

TEST_F(ThreadPoolQueueTest, OneItemAtATime_UsesOneThreadAgain) {
    ThreadPoolQueue queue;
    for (int i = 1; i <= 20; ++i) {
        queue.async([this] { ++fRunning; });
        ASSERT_TRUE(until([this, i] { return fRunning == i; }));
        std::this_thread::yield();
    }
    EXPECT_LE(queue.threads(), 4u);
}

TEST_F(ThreadPoolQueueTest, Work_IsLetGoBeforeItsThreadRests) {
    ThreadPoolQueue queue(1h);
    for (int i = 0; i < 2; ++i) { // by a new thread, then by one that has rested
        auto held = std::make_shared<int>();
        const std::weak_ptr<int> watch = held;
        queue.async([held] {});
        held.reset();
        EXPECT_TRUE(until([&] { return watch.expired(); }));
    }
}

TEST_F(ThreadPoolQueueTest, IdleThreads_End) {
    ThreadPoolQueue queue(30ms);
    for (int i = 0; i < 8; ++i)
        queue.async(blocking());
    ASSERT_TRUE(until([this] { return fRunning == 8; }));
    fRelease.release(8);
    EXPECT_TRUE(until([&] { return queue.threads() == 0; }));
    queue.async(blocking());
    EXPECT_TRUE(until([this] { return fRunning == 9; }));
    fRelease.release(1);
}

TEST_F(ThreadPoolQueueTest, Threads_AreNamed) {
    ThreadPoolQueue queue;
    std::array<char, 16> name{};
    std::atomic<bool> done = false;
    queue.async([&] {
        // The name is given from outside, a moment after the start.
        until([&] {
            ::pthread_getname_np(::pthread_self(), name.data(), name.size());
            return std::string(name.data()) == "kelvo-bg";
        });
        done = true;
    });
    EXPECT_TRUE(until([&] { return done.load(); }));
    EXPECT_STREQ(name.data(), "kelvo-bg");
}

TEST_F(ThreadPoolQueueTest, Stop_WaitsForWhatRunsAndDropsTheRest) {
    ThreadPoolQueue queue;
    std::atomic<int> finished = 0;
    for (int i = 0; i < 70; ++i) {
        queue.async([&, this] {
            ++fRunning;
            fRelease.acquire();
            ++finished;
        });
    }
    ASSERT_TRUE(until([this] { return fRunning == 64; }));
    std::thread releaser([this, &queue] {
        // The six that wait are dropped first, then the others may go.
        auto dropped = [&queue] {
            auto held = std::make_shared<int>();
            const std::weak_ptr<int> watch = held;
            queue.async([held = std::move(held)] {});
            return watch.expired();
        };
        while (!dropped())
            std::this_thread::sleep_for(1ms);
        fRelease.release(64);
    });
    queue.stopAndWait();
    EXPECT_EQ(finished, 64);
    EXPECT_EQ(fRunning, 64);
    releaser.join();
    queue.async([this] { ++fRunning; });
    queue.stopAndWait();
    EXPECT_EQ(fRunning, 64);
    EXPECT_EQ(queue.threads(), 0u);
}

} // namespace
} // namespace kelvo
