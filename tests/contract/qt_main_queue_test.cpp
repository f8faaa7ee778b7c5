#include "adapters/process/qt_main_queue.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

class QtMainQueueTest : public testing::Test {
protected:
    /// Runs the event loop until `quit` of it is called, half a minute at most.
    void loop(QEventLoop& events) {
        QTimer alarm;
        QObject::connect(&alarm, &QTimer::timeout, &events, [&] { events.exit(1); });
        alarm.start(30000);
        EXPECT_EQ(events.exec(), 0);
    }

    QtMainQueue fQueue;
    QEventLoop fEvents;
};

TEST_F(QtMainQueueTest, Delay_IsNeverShort) {
    const auto start = Clock::now();
    Clock::duration passed{};
    fQueue.asyncAfter(0.1, [&] {
        passed = Clock::now() - start;
        fEvents.quit();
    });
    loop(fEvents);
    EXPECT_GE(passed, 100ms);
}

TEST_F(QtMainQueueTest, PostFromAnotherThread_WakesASleepingLoop) {
    std::thread other([this] {
        std::this_thread::sleep_for(100ms);
        fQueue.async([this] { fEvents.quit(); });
    });
    loop(fEvents);
    other.join();
}

TEST_F(QtMainQueueTest, LoopInsideWork_ServesTheOthersFromThere) {
    std::string done;
    fQueue.async([&] {
        QEventLoop inner;
        fQueue.asyncAfter(0.05, [&] {
            done += "c";
            inner.quit();
        });
        done += "a";
        loop(inner);
        done += "d";
    });
    fQueue.async([&] { done += "b"; });
    fQueue.asyncAfter(0.1, [&] {
        done += "e";
        fEvents.quit();
    });
    loop(fEvents);
    EXPECT_EQ(done, "abcde");
}

TEST_F(QtMainQueueTest, EndlessWork_LeavesTurnsToTheEventLoop) {
    Work again = [&] { fQueue.async(again); };
    fQueue.async(again);
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &fEvents, [&] {
        if (++turns == 5)
            fEvents.quit();
    });
    timer.start(0);
    loop(fEvents);
    EXPECT_EQ(turns, 5);
}

TEST_F(QtMainQueueTest, NothingDue_LeavesTheLoopAsleep) {
    fQueue.async([] {});
    fQueue.asyncAfter(3600.0, [] {});
    QTimer::singleShot(100, &fEvents, &QEventLoop::quit);
    loop(fEvents);
    int wakeUps = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     &fEvents, [&] { ++wakeUps; });
    QTimer::singleShot(500, &fEvents, &QEventLoop::quit);
    loop(fEvents);
    EXPECT_LE(wakeUps, 5);
}

TEST_F(QtMainQueueTest, EarlierDeadlinePostedLater_MovesTheWakeUp) {
    bool late = false;
    fQueue.asyncAfter(3600.0, [&] { late = true; });
    fQueue.asyncAfter(0.01, [this] { fEvents.quit(); });
    loop(fEvents);
    EXPECT_FALSE(late);
}

TEST_F(QtMainQueueTest, EndlessDelay_NeverRuns) {
    bool ran = false;
    fQueue.asyncAfter(1e300, [&] { ran = true; });
    fQueue.asyncAfter(0.02, [this] { fEvents.quit(); });
    loop(fEvents);
    EXPECT_FALSE(ran);
}

TEST_F(QtMainQueueTest, Stop_DropsWhatWaitsAndWhatComes) {
    bool ran = false;
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> watch = held;
    fQueue.async([&ran, held] { ran = true; });
    held.reset();
    fQueue.stop();
    EXPECT_TRUE(watch.expired());
    fQueue.async([&] { ran = true; });
    QTimer::singleShot(50, &fEvents, &QEventLoop::quit);
    loop(fEvents);
    EXPECT_FALSE(ran);
}

TEST_F(QtMainQueueTest, StopInsideWork_DropsTheRest) {
    bool ran = false;
    fQueue.async([this] { fQueue.stop(); });
    fQueue.async([&] { ran = true; });
    QTimer::singleShot(50, &fEvents, &QEventLoop::quit);
    loop(fEvents);
    EXPECT_FALSE(ran);
}

struct PostsWhenItEnds {
    PostsWhenItEnds(QtMainQueue& queue, int& count) : fQueue(queue), ended(count) {}
    PostsWhenItEnds(const PostsWhenItEnds&) = delete;
    PostsWhenItEnds& operator=(const PostsWhenItEnds&) = delete;
    ~PostsWhenItEnds() {
        fQueue.async([] {});
        ++ended;
    }
    QtMainQueue& fQueue;
    int& ended;
};

TEST_F(QtMainQueueTest, WorkThatPostsWhenDropped_DoesNotLockTheQueue) {
    int ended = 0;
    fQueue.async([held = std::make_shared<PostsWhenItEnds>(fQueue, ended)] {});
    fQueue.stop();
    EXPECT_EQ(ended, 1);
}

} // namespace
} // namespace kelvo
