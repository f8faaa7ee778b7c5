#include "app/start/watchdog.h"
#include "fakes/fake_sentinel_launcher.h"
#include "fakes/fake_signals.h"
#include "fakes/memory_bundle.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "support/notification_center.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

const QString cSentinel = QStringLiteral("/bundle/watchdog");
const QString cRecord = QStringLiteral("recentLaunchDates");
const QString cRelaunched =
    QStringLiteral("automatically relaunched due to unexpected termination");
const QString cGivenUp = QStringLiteral("relaunching was given up before this start by hand; "
                                        "unexpected termination is monitored again");
const QString cMissing =
    QStringLiteral("missing watchdog! Unexpected termination will not be monitored.");
const QString cNot = QStringLiteral("NOT setting auto-relaunch because interval since 4 previous "
                                    "launches is less than 30.0 sec (25)");

class WatchdogTest : public ::testing::Test {
protected:
    WatchdogTest() {
        bundle.addFile(QStringLiteral("watchdog"));
        launcher.executable.insert(cSentinel);
    }

    void begin(bool autorelaunched = false) {
        QStringList arguments{QStringLiteral("kelvo-mirror"), QStringLiteral("--headless")};
        if (autorelaunched)
            arguments.append(QStringLiteral("--autorelaunched"));
        handle.reset();
        handle = Watchdog::begin({signals, bundle, defaults, console, launcher, center, queue,
                                  arguments, 4711, [this] { return now; },
                                  [this] {
                                      ++terminations;
                                      loggedWhenTerminated = console.logged().size();
                                  },
                                  [this](int status) {
                                      left.push_back(status);
                                      synchronizedWhenLeft = defaults.synchronized();
                                  }});
    }
    void relaunchedUnless4In30() { Watchdog::autoRelaunchUnless(4, 30.0, never); }
    QVariantList ago(const std::vector<int>& seconds) const {
        QVariantList dates;
        for (const int each : seconds)
            dates.append(recordedDate(now.addSecs(-each)));
        return dates;
    }
    static QString description(int number) { return QString::fromLocal8Bit(::strsignal(number)); }
    void willTerminate() { center.post(cWillTerminateNotification.toString()); }

    const RelaunchEscape never = [](unsigned long, double) { return false; };
    QDateTime now = QDateTime::fromString(QStringLiteral("2024-05-06T07:08:09Z"), Qt::ISODate);
    VirtualMainQueue queue;
    FakeSignals signals{queue};
    MemoryBundle bundle;
    MemoryDefaults defaults;
    RecordingConsole console;
    FakeSentinelLauncher launcher;
    NotificationCenter center;
    int terminations = 0;
    qsizetype loggedWhenTerminated = 0;
    std::vector<int> left;
    int synchronizedWhenLeft = 0;
    Subscription handle;
};

TEST_F(WatchdogTest, OrdinaryStart_ClearsTheRecordAndWatches) {
    defaults.setObject(cRecord, ago({20, 10}));
    begin();
    relaunchedUnless4In30();
    EXPECT_FALSE(defaults.object(cRecord).isValid());
    ASSERT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(launcher.sentinels[0]->path, cSentinel);
    EXPECT_EQ(launcher.sentinels[0]->arguments, QStringList{QStringLiteral("4711")});
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(WatchdogTest, RelaunchWithoutRecord_StartsOneAndWatches) {
    begin(true);
    relaunchedUnless4In30();
    EXPECT_EQ(defaults.object(cRecord), QVariant(ago({0})));
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(console.logged(), QStringList{cRelaunched});
}

TEST_F(WatchdogTest, SlowRelaunches_GoOnAndTheRecordGrows) {
    defaults.setObject(cRecord, ago({40, 20, 10, 5}));
    begin(true);
    relaunchedUnless4In30();
    EXPECT_EQ(defaults.object(cRecord).toList(), ago({40, 20, 10, 5, 0}));
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(console.logged(), QStringList{cRelaunched});
}

TEST_F(WatchdogTest, QuickRelaunches_GiveUpAndSignalsTakeTheirCourse) {
    defaults.setObject(cRecord, ago({25, 20, 10, 5}));
    begin(true);
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), (QStringList{cRelaunched, cNot}));
    EXPECT_EQ(defaults.object(cRecord).toList(), ago({25, 20, 10, 5, 0}));
    EXPECT_TRUE(launcher.sentinels.empty());
    EXPECT_FALSE(signals.send(SIGHUP));
    willTerminate();
    EXPECT_TRUE(left.empty());
}

TEST_F(WatchdogTest, Escape_KeepsRelaunchingOn) {
    defaults.setObject(cRecord, ago({25, 20, 10, 5}));
    begin(true);
    Watchdog::autoRelaunchUnless(4, 30.0, [](unsigned long count, double interval) {
        return count == 4 && interval == 25.0;
    });
    EXPECT_EQ(console.logged(), (QStringList{cRelaunched, cNot.sliced(4)}));
    EXPECT_EQ(launcher.sentinels.size(), 1U);
}

TEST_F(WatchdogTest, RelaunchedLineComesBeforeTheEscapeIsAsked) {
    begin(true);
    QStringList before;
    Watchdog::autoRelaunchUnless(0, 30.0, [&](unsigned long, double) {
        before = console.logged();
        return true;
    });
    EXPECT_EQ(before, QStringList{cRelaunched});
}

TEST_F(WatchdogTest, CountOfZero_JudgesAnOrdinaryStartToo) {
    begin();
    Watchdog::autoRelaunchUnless(0, 30.0, {});
    EXPECT_EQ(console.logged(),
              (QStringList{cRelaunched,
                           QStringLiteral("NOT setting auto-relaunch because interval since 0 "
                                          "previous launches is less than 30.0 sec (30)")}));
    EXPECT_EQ(defaults.object(cRecord), QVariant(ago({0})));
    EXPECT_TRUE(launcher.sentinels.empty());
}

TEST_F(WatchdogTest, FiveQuickRelaunches_EndTheRelaunching) {
    begin();
    relaunchedUnless4In30();
    for (int i = 1; i <= 5; ++i) {
        now = now.addSecs(3);
        begin(true);
        relaunchedUnless4In30();
        EXPECT_EQ(launcher.sentinels.size(), static_cast<std::size_t>(std::min(1 + i, 5)));
        EXPECT_EQ(defaults.object(cRecord).toList().size(), i);
    }
    EXPECT_TRUE(console.logged().last().startsWith(QStringLiteral("NOT ")));
}

TEST_F(WatchdogTest, FifthRelaunchAFractionBeforeTheLimit_EndsTheRelaunching) {
    now = now.addMSecs(900);
    for (const int pause : {0, 7'000, 7'000, 7'000, 8'300}) {
        now = now.addMSecs(pause);
        begin(true);
        relaunchedUnless4In30();
    }
    EXPECT_EQ(launcher.sentinels.size(), 4U) << "29.3 s since the first";
    EXPECT_TRUE(console.logged().last().startsWith(QStringLiteral("NOT ")));
}

TEST_F(WatchdogTest, StartByHandAfterGivingUp_SaysSoOnce) {
    defaults.setObject(cRecord, ago({25, 20, 10, 5}));
    begin(true);
    relaunchedUnless4In30();
    console.clear();
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList{cGivenUp});
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    console.clear();
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(WatchdogTest, SetUpAgainWhileWatched_IsNoGivingUp) {
    begin(true);
    for (int i = 0; i < 5; ++i)
        relaunchedUnless4In30();
    EXPECT_TRUE(console.logged().last().startsWith(QStringLiteral("NOT ")));
    ASSERT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(launcher.sentinels[0]->requests, 0);
    console.clear();
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(WatchdogTest, RelaunchOnPurposeAfterGivingUp_IsNotGivenUpAnyMore) {
    defaults.setObject(cRecord, ago({25, 20, 10, 5}));
    begin(true);
    relaunchedUnless4In30();
    now = now.addSecs(60);
    begin(true);
    relaunchedUnless4In30();
    begin();
    relaunchedUnless4In30();
    EXPECT_FALSE(console.logged().contains(cGivenUp));
}

TEST_F(WatchdogTest, SecondKeepUsRunning_StartsNoSecondSentinel) {
    begin();
    Watchdog::keepUsRunning();
    Watchdog::keepUsRunning();
    std::thread(Watchdog::keepUsRunning).join();
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(signals.catchers(SIGHUP), 1);
}

TEST_F(WatchdogTest, SecondCatchCrashSignals_DoesNothing) {
    begin();
    Watchdog::catchCrashSignals();
    Watchdog::catchCrashSignals();
    for (int number = 1; number <= 15; ++number)
        EXPECT_EQ(signals.catchers(number), number == SIGKILL ? 0 : 1) << number;
    EXPECT_EQ(signals.catchers(16), 0);
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(WatchdogTest, KeepUsRunningOnAnotherThread_CatchesSignalsOnTheMainOne) {
    begin();
    std::thread(Watchdog::keepUsRunning).join();
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(signals.catchers(SIGTERM), 0);
    queue.runDue();
    EXPECT_EQ(signals.catchers(SIGTERM), 1);
}

TEST_F(WatchdogTest, Hangup_IsLoggedAndIgnored) {
    begin();
    Watchdog::catchCrashSignals();
    ASSERT_TRUE(signals.send(SIGHUP));
    EXPECT_EQ(console.logged(), QStringList()) << "the reaction runs on the main queue";
    queue.runDue();
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral("Caught %1 ... ignoring.").arg(description(SIGHUP))});
    EXPECT_TRUE(left.empty());
    EXPECT_EQ(terminations, 0);
}

TEST_F(WatchdogTest, Term_IsLoggedAndEndsInOrder) {
    begin();
    Watchdog::catchCrashSignals();
    ASSERT_TRUE(signals.send(SIGTERM));
    queue.runDue();
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral("Caught %1 ... terminating.").arg(description(SIGTERM))});
    EXPECT_TRUE(left.empty());
    EXPECT_EQ(terminations, 1);
    EXPECT_EQ(loggedWhenTerminated, 1) << "first";
}

TEST_F(WatchdogTest, EveryOtherSignal_LeavesAtOnceWithItsNumberAndWritesNothing) {
    begin();
    Watchdog::catchCrashSignals();
    std::vector<int> expected;
    for (int number = 2; number <= 14; ++number) {
        EXPECT_EQ(signals.send(number), number != 9) << number;
        if (number != 9)
            expected.push_back(number);
        queue.runDue();
        EXPECT_EQ(synchronizedWhenLeft, 0);
    }
    EXPECT_EQ(left, expected);
    EXPECT_EQ(console.logged(), QStringList());
    EXPECT_EQ(terminations, 0);
}

TEST_F(WatchdogTest, SignalThatCannotBeCaught_IsSaidAndTheOthersAreCaught) {
    signals.refused = {SIGSEGV};
    begin();
    Watchdog::catchCrashSignals();
    EXPECT_EQ(
        console.logged(),
        QStringList{QStringLiteral("tried to ignore %1 but got '%2'")
                        .arg(description(SIGSEGV), QString::fromLocal8Bit(std::strerror(EINVAL)))});
    EXPECT_EQ(signals.catchers(SIGSEGV), 1) << "its source is made all the same";
    EXPECT_EQ(signals.catchers(SIGTERM), 1);
}

TEST_F(WatchdogTest, CatchSignal_CallsTheHandlerUntilTheSourceEnds) {
    begin();
    int calls = 0;
    Subscription source = Watchdog::catchSignal(SIGUSR1, [&] { ++calls; });
    ASSERT_TRUE(signals.send(SIGUSR1));
    queue.runDue();
    EXPECT_EQ(calls, 1);
    source.reset();
    EXPECT_FALSE(signals.send(SIGUSR1));
}

TEST_F(WatchdogTest, MissingSentinel_IsSaidAndSignalsTakeTheirCourse) {
    bundle = {};
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList{cMissing});
    EXPECT_TRUE(launcher.sentinels.empty());
    EXPECT_FALSE(signals.send(SIGTERM));
    willTerminate();
}

TEST_F(WatchdogTest, SentinelThatIsNoProgram_CountsAsMissing) {
    launcher.executable.clear();
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList{cMissing});
    EXPECT_FALSE(signals.send(SIGTERM));
}

TEST_F(WatchdogTest, SentinelThatDoesNotStart_IsSilentAndSignalsAreCaught) {
    launcher.failing = true;
    begin();
    relaunchedUnless4In30();
    EXPECT_EQ(console.logged(), QStringList());
    EXPECT_TRUE(signals.send(SIGTERM));
    Watchdog::stopKeepingUsRunning();
    willTerminate();
}

TEST_F(WatchdogTest, EndOfTheSentinel_IsLoggedWithItsExitCode) {
    begin();
    Watchdog::keepUsRunning();
    launcher.sentinels.at(0)->end(9);
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral("watchdog has terminated with exit code 9")});
    EXPECT_TRUE(left.empty());
    EXPECT_EQ(terminations, 0);
}

TEST_F(WatchdogTest, WillTerminate_EndsTheSentinelOnce) {
    begin();
    Watchdog::keepUsRunning();
    std::thread([this] { willTerminate(); }).join();
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 1);
    willTerminate();
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 1) << "the observer has dropped itself";
}

TEST_F(WatchdogTest, StopKeepingUsRunning_AsksTheSentinelToEnd) {
    begin();
    Watchdog::stopKeepingUsRunning();
    Watchdog::keepUsRunning();
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 0);
    Watchdog::stopKeepingUsRunning();
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 1);
}

TEST_F(WatchdogTest, QuitAndRelaunch_StartsASentinelAndLeavesWithTheSettingsSafe) {
    begin();
    bool told = false;
    const Subscription observer = center.observe(cWillTerminateNotification.toString(),
                                                 [&](const Notification&) { told = true; });
    Watchdog::quitAndRelaunch();
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 0);
    EXPECT_EQ(left, std::vector<int>{0});
    EXPECT_EQ(synchronizedWhenLeft, 1);
    EXPECT_FALSE(told) << "no orderly end is told";
}

TEST_F(WatchdogTest, QuitAndRelaunchWhileWatched_NeedsNoSecondSentinel) {
    begin();
    Watchdog::autoRelaunchUnless(4, 30.0, never);
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    Watchdog::quitAndRelaunch();
    EXPECT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(left, std::vector<int>{0});
}

TEST_F(WatchdogTest, BeforeBeginAndAfterItsEnd_NothingHappens) {
    for (const bool begun : {false, true}) {
        if (begun) {
            begin();
            Watchdog::keepUsRunning();
            handle.reset();
        }
        const std::size_t started = launcher.sentinels.size();
        relaunchedUnless4In30();
        Watchdog::keepUsRunning();
        Watchdog::catchCrashSignals();
        Watchdog::stopKeepingUsRunning();
        Watchdog::quitAndRelaunch();
        const Subscription nothing = Watchdog::catchSignal(SIGUSR1, [] {});
        willTerminate();
        EXPECT_EQ(launcher.sentinels.size(), started);
        EXPECT_FALSE(signals.send(SIGUSR1));
        EXPECT_FALSE(signals.send(SIGTERM));
    }
    EXPECT_EQ(launcher.sentinels.at(0)->requests, 0) << "the sentinel runs on";
    EXPECT_TRUE(left.empty());
}

TEST_F(WatchdogTest, SecondBegin_ChangesNothing) {
    begin();
    {
        const Subscription second = Watchdog::begin({signals,
                                                     bundle,
                                                     defaults,
                                                     console,
                                                     launcher,
                                                     center,
                                                     queue,
                                                     {},
                                                     1,
                                                     [this] { return now; },
                                                     [] {},
                                                     [](int) {}});
    }
    Watchdog::keepUsRunning();
    ASSERT_EQ(launcher.sentinels.size(), 1U);
    EXPECT_EQ(launcher.sentinels[0]->arguments, QStringList{QStringLiteral("4711")});
}

} // namespace
} // namespace kelvo
