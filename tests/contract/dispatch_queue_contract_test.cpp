#include "adapters/process/qt_main_queue.h"
#include "fakes/virtual_queues.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class VirtualMain {
public:
    DispatchQueue& queue() { return *fQueue; }
    void end() { fQueue.reset(); }

    /// Lets the queue work until `done`, or for half a minute; returns whether it came to be.
    template <typename Condition>
    bool until(Condition done) {
        for (int turns = 0; !done() && turns < 3000; ++turns)
            fQueue->advance(0.01);
        return done();
    }

private:
    std::unique_ptr<VirtualMainQueue> fQueue = std::make_unique<VirtualMainQueue>();
};

class QtMain {
public:
    DispatchQueue& queue() { return *fQueue; }
    void end() { fQueue.reset(); }

    template <typename Condition>
    bool until(Condition done) {
        const auto end = std::chrono::steady_clock::now() + 30s;
        while (!done() && std::chrono::steady_clock::now() < end)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return done();
    }

private:
    std::unique_ptr<QtMainQueue> fQueue = std::make_unique<QtMainQueue>();
    // So that a wait without an event ends some time.
    QTimer fAlarm;
    const bool fAlarmed = [this] {
        fAlarm.start(30000);
        return true;
    }();
};

template <typename Main>
class DispatchQueueContract : public testing::Test {
protected:
    Work note(const std::string& name) {
        return [this, name] { fDone += name; };
    }
    bool untilDone(std::size_t count) {
        return fMain.until([this, count] { return fDone.size() >= count; });
    }

    std::string fDone;
    Main fMain;
};

using Mains = testing::Types<VirtualMain, QtMain>;
TYPED_TEST_SUITE(DispatchQueueContract, Mains);

TYPED_TEST(DispatchQueueContract, Async_RunsLaterInTheOrderOfPosting) {
    for (const char* name : {"a", "b", "c"})
        this->fMain.queue().async(this->note(name));
    EXPECT_EQ(this->fDone, "");
    EXPECT_TRUE(this->untilDone(3));
    EXPECT_EQ(this->fDone, "abc");
}

TYPED_TEST(DispatchQueueContract, Delays_RunByDeadline) {
    this->fMain.queue().asyncAfter(0.06, this->note("c"));
    this->fMain.queue().asyncAfter(0.02, this->note("a"));
    this->fMain.queue().asyncAfter(0.04, this->note("b"));
    EXPECT_TRUE(this->untilDone(3));
    EXPECT_EQ(this->fDone, "abc");
}

TYPED_TEST(DispatchQueueContract, DeadlinesAFewMicrosecondsApart_KeepTheirOrder) {
    std::string expected;
    for (int i = 25; i >= 0; --i)
        this->fMain.queue().asyncAfter(0.05 + i * 0.001, this->note(std::string(1, char('a' + i))));
    for (int i = 0; i < 26; ++i)
        expected += char('a' + i);
    EXPECT_TRUE(this->untilDone(26));
    EXPECT_EQ(this->fDone, expected);
}

TYPED_TEST(DispatchQueueContract, DelayOfZeroOrLess_IsDueNow) {
    this->fMain.queue().asyncAfter(0.0, this->note("a"));
    this->fMain.queue().asyncAfter(-5.0, this->note("b"));
    this->fMain.queue().asyncAfter(-std::numeric_limits<double>::infinity(), this->note("c"));
    this->fMain.queue().asyncAfter(std::numeric_limits<double>::quiet_NaN(), this->note("d"));
    this->fMain.queue().async(this->note("e"));
    EXPECT_TRUE(this->untilDone(5));
    EXPECT_EQ(this->fDone, "abcde");
}

TYPED_TEST(DispatchQueueContract, OverdueWork_GoesBeforeWorkPostedNow) {
    auto& queue = this->fMain.queue();
    queue.async([&, this] {
        queue.asyncAfter(0.001, this->note("a"));
        queue.asyncAfter(0.005, [&, this] {
            queue.async(this->note("c"));
            this->fDone += "b";
        });
    });
    EXPECT_TRUE(this->untilDone(3));
    EXPECT_EQ(this->fDone, "abc");
}

TYPED_TEST(DispatchQueueContract, WorkPostedByWork_RunsAfterItNotInsideIt) {
    auto& queue = this->fMain.queue();
    queue.async([&, this] {
        queue.async(this->note("b"));
        this->fDone += "a";
    });
    EXPECT_TRUE(this->untilDone(2));
    EXPECT_EQ(this->fDone, "ab");
}

TYPED_TEST(DispatchQueueContract, OtherThreads_MayPostAndWorkRunsOnTheMainOne) {
    std::vector<std::thread> threads;
    int here = 0;
    const auto mainThread = std::this_thread::get_id();
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, this] {
            for (int n = 0; n < 50; ++n)
                this->fMain.queue().async(
                    [&] { here += std::this_thread::get_id() == mainThread; });
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_TRUE(this->fMain.until([&] { return here == 200; }));
}

TYPED_TEST(DispatchQueueContract, EmptyWork_IsNothing) {
    this->fMain.queue().async(nullptr);
    this->fMain.queue().asyncAfter(0.01, Work());
    this->fMain.queue().asyncAfter(0.02, this->note("a"));
    EXPECT_TRUE(this->untilDone(1));
}

TYPED_TEST(DispatchQueueContract, Work_IsLetGoAfterItsRun) {
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    this->fMain.queue().async([held, this] { this->fDone += "a"; });
    held.reset();
    EXPECT_TRUE(this->untilDone(1));
    EXPECT_TRUE(this->fMain.until([&] { return watch.expired(); }));
}

TYPED_TEST(DispatchQueueContract, EndOfTheQueue_DropsWhatWaitsWithoutRunningIt) {
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    this->fMain.queue().async([held, this] { this->fDone += "a"; });
    held.reset();
    this->fMain.end();
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(this->fDone, "");
}

TYPED_TEST(DispatchQueueContract, ManyItems_AllRunInOrder) {
    std::vector<int> order;
    for (int i = 0; i < 20000; ++i)
        this->fMain.queue().asyncAfter((i % 7) * 0.001, [&order, i] { order.push_back(i); });
    ASSERT_TRUE(this->fMain.until([&] { return order.size() == 20000; }));
    // Those of one delay keep the order of posting.
    std::vector<int> last(7, -1);
    for (const int i : order) {
        const auto slot = static_cast<std::size_t>(i % 7);
        ASSERT_LT(last[slot], i);
        last[slot] = i;
    }
}

} // namespace
} // namespace kelvo
