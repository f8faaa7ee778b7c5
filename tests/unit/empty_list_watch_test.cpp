#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "ui/empty_list_watch.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class EmptyListWatchTest : public ::testing::Test {
protected:
    EmptyListWatchTest() { browser.browseForType(QStringLiteral("_smb")); }

    /// Begins with a discovery service that does not run.
    void beginWithout(DiscoveryState away = DiscoveryState::NotRunning) {
        browser.away = away;
        browser.setRunning(false);
        watch->begin();
    }

    VirtualMainQueue mainQueue;
    ScriptedBrowser browser;
    bool network = true;
    bool empty = true;
    int scans = 0;
    int changes = 0;
    std::optional<EmptyListWatch> watch{EmptyListWatch::Parts{
        .mainQueue = mainQueue,
        .browser = browser,
        .hasNetwork = [this] { return network; },
        .isEmpty = [this] { return empty; },
        .scan = [this] { ++scans; },
        .changed = [this] { ++changes; },
    }};
};

TEST_F(EmptyListWatchTest, DiscoveryThatRunsFromTheBeginning_NeedsNoScanMore) {
    EXPECT_EQ(watch->why(), WhyEmpty::NothingFound) << "nothing is known of discovery yet";
    watch->begin();
    EXPECT_EQ(watch->why(), WhyEmpty::NothingFound);
    EXPECT_EQ(scans, 0);
    EXPECT_TRUE(mainQueue.idle());
    network = false;
    EXPECT_EQ(watch->why(), WhyEmpty::NoNetwork);
}

TEST_F(EmptyListWatchTest, DiscoveryThatIsAway_IsTheFirstReason) {
    network = false;
    beginWithout();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(watch->why(), WhyEmpty::DiscoveryNotRunning);
    browser.away = DiscoveryState::NotInstalled;
    browser.setRunning(true);
    browser.setRunning(false);
    EXPECT_EQ(watch->why(), WhyEmpty::DiscoveryNotInstalled);
    EXPECT_EQ(changes, 3);
}

TEST_F(EmptyListWatchTest, DiscoveryThatComes_IsScannedFiveTimesForWhatItFinds) {
    for (const DiscoveryState away : {DiscoveryState::NotRunning, DiscoveryState::NotInstalled}) {
        beginWithout(away);
        scans = changes = 0;
        browser.setRunning(true);
        EXPECT_EQ(changes, 1);
        for (int scan = 1; scan <= 5; ++scan) {
            EXPECT_EQ(scans, scan);
            EXPECT_EQ(watch->why(), WhyEmpty::StillLooking) << scan;
            mainQueue.advance(2.499);
            EXPECT_EQ(scans, scan);
            EXPECT_EQ(watch->why(), WhyEmpty::StillLooking) << scan;
            mainQueue.advance(0.001);
            EXPECT_EQ(changes, scan + 1);
        }
        EXPECT_EQ(scans, 5);
        EXPECT_EQ(watch->why(), WhyEmpty::NothingFound);
        EXPECT_TRUE(mainQueue.idle());
    }
}

TEST_F(EmptyListWatchTest, MacThatIsFound_EndsTheScans) {
    beginWithout();
    browser.setRunning(true);
    mainQueue.advance(2.5);
    EXPECT_EQ(scans, 2);
    empty = false;
    changes = 0;
    mainQueue.advance(10);
    EXPECT_EQ(scans, 2);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(watch->why(), WhyEmpty::NothingFound) << "nobody looks any more";
}

TEST_F(EmptyListWatchTest, DiscoveryThatGoesAgain_EndsTheScans) {
    beginWithout();
    browser.setRunning(true);
    mainQueue.advance(1);
    browser.setRunning(false);
    EXPECT_EQ(watch->why(), WhyEmpty::DiscoveryNotRunning);
    changes = 0;
    mainQueue.advance(10);
    EXPECT_EQ(scans, 1);
    EXPECT_EQ(changes, 0) << "the reason is the same";
}

TEST_F(EmptyListWatchTest, WatchThatIsGone_ScansNoMore) {
    beginWithout();
    browser.setRunning(true);
    changes = 0;
    watch.reset();
    mainQueue.advance(10);
    browser.setRunning(false);
    EXPECT_EQ(scans, 1);
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace kelvo
