#include "adapters/process/thread_pool_queue.h"
#include "fakes/virtual_queues.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

struct ManualPool {
    template <typename Condition>
    bool until(Condition done) {
        while (!done() && fQueue.runOne()) {
        }
        return done();
    }
    ManualBackgroundQueue fQueue;
};

struct ThreadPool {
    template <typename Condition>
    bool until(Condition done) {
        for (int tries = 0; !done() && tries < 30000; ++tries)
            std::this_thread::sleep_for(1ms);
        return done();
    }
    ThreadPoolQueue fQueue;
};

template <typename Pool>
class BackgroundQueueContract : public testing::Test {
protected:
    // Declared before the pool: its threads may use them until it has ended.
    std::atomic<int> fRuns = 0;
    VirtualMainQueue fMain;
    Pool fPool;
};

using Pools = testing::Types<ManualPool, ThreadPool>;
TYPED_TEST_SUITE(BackgroundQueueContract, Pools);

TYPED_TEST(BackgroundQueueContract, Work_RunsOnceEach) {
    for (int i = 0; i < 200; ++i)
        this->fPool.fQueue.async([this] { ++this->fRuns; });
    EXPECT_TRUE(this->fPool.until([this] { return this->fRuns == 200; }));
}

TYPED_TEST(BackgroundQueueContract, WorkPostedByWork_Runs) {
    this->fPool.fQueue.async([this] { this->fPool.fQueue.async([this] { ++this->fRuns; }); });
    EXPECT_TRUE(this->fPool.until([this] { return this->fRuns == 1; }));
}

TYPED_TEST(BackgroundQueueContract, EmptyWork_IsNothing) {
    this->fPool.fQueue.async(nullptr);
    this->fPool.fQueue.async([this] { ++this->fRuns; });
    EXPECT_TRUE(this->fPool.until([this] { return this->fRuns == 1; }));
}

TYPED_TEST(BackgroundQueueContract, Work_IsLetGoAfterItsRun) {
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    this->fPool.fQueue.async([held] {});
    held.reset();
    EXPECT_TRUE(this->fPool.until([&] { return watch.expired(); }));
}

TYPED_TEST(BackgroundQueueContract, Background_CountsItsDelayFromTheEndOfTheWork) {
    this->fMain.advance(1.0);
    std::atomic<double> completed = -1.0;
    background(
        this->fPool.fQueue, this->fMain, 2.0,
        [this] {
            // Five seconds of the main queue's time pass while the work runs.
            this->fMain.advance(5.0);
            ++this->fRuns;
        },
        [&] { completed = this->fMain.now(); });
    ASSERT_TRUE(this->fPool.until([this] { return this->fRuns == 1 && !this->fMain.idle(); }));
    this->fMain.advance(1.9);
    EXPECT_EQ(completed, -1.0);
    this->fMain.advance(0.2);
    EXPECT_DOUBLE_EQ(completed, 8.0);
}

TYPED_TEST(BackgroundQueueContract, BackgroundWithoutWork_StillCompletes) {
    background(this->fPool.fQueue, this->fMain, 1.0, nullptr, [this] { ++this->fRuns; });
    ASSERT_TRUE(this->fPool.until([this] { return !this->fMain.idle(); }));
    this->fMain.advance(1.0);
    EXPECT_EQ(this->fRuns, 1);
}

TYPED_TEST(BackgroundQueueContract, BackgroundWithoutCompletion_OnlyWorks) {
    background(
        this->fPool.fQueue, this->fMain, 0.0, [this] { ++this->fRuns; }, nullptr);
    EXPECT_TRUE(this->fPool.until([this] { return this->fRuns == 1; }));
    EXPECT_TRUE(this->fMain.idle());
}

TYPED_TEST(BackgroundQueueContract, BackgroundWithNeither_DoesNothing) {
    background(this->fPool.fQueue, this->fMain, 0.0, nullptr, nullptr);
    this->fPool.fQueue.async([this] { ++this->fRuns; });
    EXPECT_TRUE(this->fPool.until([this] { return this->fRuns == 1; }));
    EXPECT_TRUE(this->fMain.idle());
}

} // namespace
} // namespace kelvo
