// What waits until the window stands there.
#include "fakes/virtual_queues.h"
#include "ui/widgets/first_paint.h"

#include <QCoreApplication>
#include <QWidget>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct FirstPaintTest : ::testing::Test {
    FirstPaintTest() {
        afterFirstPaint(*window, mainQueue, [this] { ++done; });
    }

    VirtualMainQueue mainQueue;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    int done = 0;
};

TEST_F(FirstPaintTest, Painted_BringsTheWorkOnceAndNotInThePainting) {
    mainQueue.runDue();
    EXPECT_EQ(done, 0) << "nothing is painted";
    window->show();
    (void)window->grab();
    EXPECT_EQ(done, 0) << "the paint itself does not wait";
    mainQueue.runDue();
    EXPECT_EQ(done, 1);
    (void)window->grab();
    mainQueue.advance(5);
    EXPECT_EQ(done, 1);
}

TEST_F(FirstPaintTest, NeverPainted_BringsItAfterASecond) {
    mainQueue.advance(0.9);
    EXPECT_EQ(done, 0);
    mainQueue.advance(0.2);
    EXPECT_EQ(done, 1);
    (void)window->grab();
    mainQueue.advance(5);
    EXPECT_EQ(done, 1);
}

TEST_F(FirstPaintTest, WindowGone_BringsNothing) {
    window.reset();
    mainQueue.advance(5);
    EXPECT_EQ(done, 0);
}

} // namespace
} // namespace kelvo
