#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "sync/repeat_timer_actions.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class RepeatingTimerTest : public ::testing::Test {
protected:
    VirtualMainQueue mainQueue;
    int ticks = 0;
    std::unique_ptr<RepeatingTimer> timer =
        std::make_unique<RepeatingTimer>(mainQueue, 1.0, [this] { ++ticks; });
};

TEST_F(RepeatingTimerTest, New_IsSuspendedAndWaitsForNothing) {
    EXPECT_TRUE(mainQueue.idle());
    mainQueue.advance(10);
    EXPECT_EQ(ticks, 0);
}

TEST_F(RepeatingTimerTest, Resumed_TicksEachInterval) {
    timer->resume();
    mainQueue.advance(0.999);
    EXPECT_EQ(ticks, 0);
    mainQueue.advance(3.001);
    EXPECT_EQ(ticks, 4);
}

TEST_F(RepeatingTimerTest, Suspended_StopsAndLeavesNothingWaitingForLong) {
    timer->resume();
    mainQueue.advance(2);
    timer->suspend();
    mainQueue.advance(5);
    EXPECT_EQ(ticks, 2);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(RepeatingTimerTest, ResumedTwice_TicksOncePerInterval) {
    timer->resume();
    timer->resume();
    mainQueue.advance(3);
    EXPECT_EQ(ticks, 3);
}

TEST_F(RepeatingTimerTest, ResumedWithinAnInterval_KeepsItsTime) {
    timer->resume();
    mainQueue.advance(0.6);
    timer->resume();
    mainQueue.advance(0.4);
    EXPECT_EQ(ticks, 1);
    mainQueue.advance(1.0);
    EXPECT_EQ(ticks, 2);
}

TEST_F(RepeatingTimerTest, SuspendedAndResumedWithinAnInterval_CountsFromTheResume) {
    timer->resume();
    mainQueue.advance(0.6);
    timer->suspend();
    timer->resume();
    mainQueue.advance(0.6);
    EXPECT_EQ(ticks, 0);
    mainQueue.advance(0.4);
    EXPECT_EQ(ticks, 1);
}

TEST_F(RepeatingTimerTest, SuspendedAndResumedByItsOwnTick_TicksOncePerInterval) {
    RepeatingTimer* self = nullptr;
    RepeatingTimer own(mainQueue, 1.0, [&] {
        if (ticks++ > 0)
            return;
        self->suspend();
        self->resume();
    });
    self = &own;
    own.resume();
    mainQueue.advance(4);
    EXPECT_EQ(ticks, 4);
}

TEST_F(RepeatingTimerTest, DestroyedWhileRunning_NeverTicksAgain) {
    timer->resume();
    mainQueue.advance(1);
    timer.reset();
    mainQueue.advance(5);
    EXPECT_EQ(ticks, 1);
}

TEST_F(RepeatingTimerTest, DestroyedByItsOwnTick_IsSafe) {
    std::unique_ptr<RepeatingTimer> selfish;
    int calls = 0;
    selfish = std::make_unique<RepeatingTimer>(mainQueue, 1.0, [&] {
        ++calls;
        selfish.reset();
    });
    selfish->resume();
    mainQueue.advance(5);
    EXPECT_EQ(calls, 1);
}

class RepeatTimerActionsTest : public ::testing::Test {
protected:
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    RepeatTimerActions actions{mainQueue, console};
};

TEST_F(RepeatTimerActionsTest, Setup_MakesATimerThatDoesNotTick) {
    actions.setupRepeatTimer();
    mainQueue.advance(60);
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral(
                  "Inside Kelvo_Mirror.ViewController->setupRepeatTimer()..........")});
}

TEST_F(RepeatTimerActionsTest, ResumeAndSuspend_StartAndStopTheLines) {
    actions.ibResumeTimer();
    mainQueue.advance(2);
    actions.ibSuspendTimer();
    mainQueue.advance(10);
    const QStringList lines = console.logged();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], u"......trying to resume....");
    EXPECT_TRUE(lines[1].startsWith(
        u"Inside Kelvo_Mirror.ViewController->repeatStuffToDo().......Timer Fired...2"));
    EXPECT_EQ(lines[3], u"......trying to SUSPEND/Pause....");
}

TEST_F(RepeatTimerActionsTest, Killed_StaysAway) {
    actions.setupRepeatTimer();
    actions.ibResumeTimer();
    actions.ibKillTimer();
    console.clear();
    actions.ibResumeTimer();
    actions.ibSuspendTimer();
    mainQueue.advance(10);
    EXPECT_EQ(console.logged(), (QStringList{QStringLiteral("......self.fRepeatTimer - NIL...."),
                                             QStringLiteral("......self.fRepeatTimer - NIL....")}));
}

TEST_F(RepeatTimerActionsTest, KilledBeforeItWasMade_IsNotMadeLater) {
    actions.ibKillTimer();
    actions.setupRepeatTimer();
    actions.ibResumeTimer();
    EXPECT_EQ(console.logged().first(), u".....self.fRepeatTimer = nil.....");
    EXPECT_EQ(console.logged().last(), u"......self.fRepeatTimer - NIL....");
}

} // namespace
} // namespace kelvo
