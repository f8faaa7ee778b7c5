#include "adapters/console/headless_outlets.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/work_watch.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

class WorkWatchTest : public ::testing::Test {
protected:
    /// Begins with syncing on and the next pass in `seconds`, as `attention` sees it.
    void rest(double seconds, Attention attention) {
        defaults.setObject(prefEnableScanning, true);
        nextPassAt = mainQueue.now() + seconds;
        watch.setAttention(attention);
        watch.begin();
        mainQueue.advance(0.2);
    }

    /// Lets a pass come further for `seconds`, twenty times a second; how often it was shown.
    std::size_t showsOfAPass(double seconds, Attention attention) {
        rest(1000, attention);
        passes.resize(1);
        watch.look();
        mainQueue.advance(2);
        const std::size_t before = shown.size();
        for (int i = 0; i < seconds * 20; ++i) {
            passes[0].progress.bytesDone = passes[0].progress.bytesDone.value_or(0) + 1'000'000;
            mainQueue.advance(0.05);
        }
        return shown.size() - before;
    }

    void passEnded(PassCause cause) {
        PassRecord record;
        record.began = begin.addMSecs(static_cast<qint64>(mainQueue.now() * 1000));
        record.cause = cause;
        store.append(record);
        mainQueue.advance(0.2);
    }

    const QDateTime begin{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    VirtualMainQueue mainQueue;
    MemoryDefaults defaults;
    MemoryPassStore store{mainQueue};
    std::vector<PassUnderWay> passes;
    std::optional<double> nextPassAt;
    bool waits = false;
    std::optional<bool> passRuns; ///< where the cycle and its passes say different things
    std::vector<WorkState> shown;
    int looks = 0;
    WorkWatch watch{{
        .defaults = defaults,
        .mainQueue = mainQueue,
        .passStore = store,
        .passesUnderWay = [this] { return passes; },
        .cycleState =
            [this] {
                CycleState state;
                state.passRuns = passRuns.value_or(!passes.empty());
                state.waits = waits;
                if (nextPassAt && passes.empty())
                    state.nextPass = *nextPassAt - mainQueue.now();
                return state;
            },
        .clock = {[this] { return begin.addMSecs(static_cast<qint64>(mainQueue.now() * 1000)); },
                  [this] { return 100 + mainQueue.now(); }},
        .show = [this](const WorkState& work) { shown.push_back(work); },
        .looked = [this] { ++looks; },
    }};
};

TEST_F(WorkWatchTest, Countdown_TicksOnceASecondWhereItIsSeen) {
    rest(23, Attention::Seen);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 23 s"));
    EXPECT_TRUE(shown.back().maySyncNow);
    EXPECT_FALSE(shown.back().mayCancel);
    const std::size_t before = shown.size();
    mainQueue.advance(10);
    EXPECT_EQ(shown.size() - before, 10U);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 13 s"));
}

TEST_F(WorkWatchTest, PassThatIsFollowed_IsLookedAtOnceASecondThoughUnseen) {
    watch.setFollowed(true);
    EXPECT_EQ(showsOfAPass(30, Attention::Unseen), 30U);
    watch.setFollowed(false);
    mainQueue.advance(10);
    const int before = looks;
    mainQueue.advance(30);
    EXPECT_EQ(looks - before, 3);
}

TEST_F(WorkWatchTest, WhoeverBeginsToFollow_HearsAtOnceHowItIs) {
    rest(1000, Attention::Unseen);
    passes.resize(1);
    watch.look();
    mainQueue.advance(2);
    int before = looks;
    watch.setFollowed(true);
    mainQueue.advance(0.2);
    EXPECT_EQ(looks, before + 1);
    before = looks;
    watch.setFollowed(true);
    mainQueue.advance(0.2);
    EXPECT_EQ(looks, before) << "nothing has changed";
}

TEST_F(WorkWatchTest, Facts_AreThoseOfTheMoment) {
    defaults.settingsStanding.fault = text("full");
    watch.setMissing({{text("No Mac is chosen yet."), Remedy::ShowRemoteTab}});
    nextPassAt = 30;
    EXPECT_FALSE(watch.facts().on);
    EXPECT_FALSE(watch.facts().nextPass) << "syncing is off";
    defaults.setObject(prefEnableScanning, true);
    WorkFacts facts = watch.facts();
    EXPECT_TRUE(facts.on);
    EXPECT_EQ(facts.phase, WorkPhase::Resting);
    EXPECT_EQ(facts.nextPass, 30);
    EXPECT_FALSE(facts.pass);
    EXPECT_EQ(facts.settings.fault, text("full"));
    EXPECT_EQ(facts.missing.size(), 1U);
    passes.resize(2);
    passes[0].progress.file = text("a");
    facts = watch.facts();
    EXPECT_EQ(facts.phase, WorkPhase::Running);
    EXPECT_EQ(facts.nextPass, std::nullopt);
    ASSERT_TRUE(facts.pass);
    EXPECT_EQ(facts.pass->progress.file, text("a")) << "the oldest";
}

TEST_F(WorkWatchTest, Headline_NamesTheStepOfThePass) {
    rest(30, Attention::Seen);
    passes.resize(1);
    const auto headline = [this](PassStep step, PassKind kind) {
        passes[0].kind = kind;
        passes[0].progress.step = step;
        mainQueue.advance(0.6);
        return shown.back().headline;
    };
    watch.look();
    EXPECT_EQ(headline(PassStep::Movies, PassKind::Plain), text("Syncing: movies"));
    EXPECT_EQ(headline(PassStep::Pull, PassKind::Plain), text("Syncing: copying"));
    EXPECT_EQ(headline(PassStep::Pull, PassKind::Remote), text("Syncing: first pull"));
}

TEST_F(WorkWatchTest, TimeLeft_IsNotHeldByThatOfThePassBefore) {
    rest(1000, Attention::Seen);
    const auto timeLeft = [this](double seconds) {
        passes.resize(1);
        passes[0].progress.secondsLeft = seconds;
        watch.look();
        mainQueue.advance(0.6);
        return shown.back().timeLeft;
    };
    EXPECT_EQ(timeLeft(60), text("about 1 min"));
    EXPECT_EQ(timeLeft(100), text("about 1 min")) << "of one pass it does not waver";
    passes.clear();
    watch.look();
    mainQueue.advance(0.6);
    EXPECT_EQ(timeLeft(100), text("about 2 min"));
}

TEST_F(WorkWatchTest, PassThatBringsNothingNew_IsLookedAtAllTheSame) {
    rest(1000, Attention::Lines);
    passEnded(PassCause::Well);
    mainQueue.advance(2);
    const int looksBefore = looks;
    const std::size_t shownBefore = shown.size();
    passEnded(PassCause::Well);
    mainQueue.advance(2);
    EXPECT_EQ(shown.size(), shownBefore) << "no text has changed";
    EXPECT_GT(looks, looksBefore);
    const QDateTime ended = begin.addMSecs(static_cast<qint64>((mainQueue.now() - 2.2) * 1000));
    EXPECT_LE(std::abs(watch.facts().standing.last->began.msecsTo(ended)), 2);
}

TEST_F(WorkWatchTest, OverduePass_IsNotCountedFurther) {
    rest(2, Attention::Seen);
    mainQueue.advance(5);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 1 s"));
    EXPECT_GE(mainQueue.nextDelay(), 0.1);
}

TEST_F(WorkWatchTest, LongWait_TicksByTheMinute) {
    rest(599, Attention::Seen);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 10 min"));
    EXPECT_GT(mainQueue.nextDelay(), 25) << "to the middle between two minutes";
    const std::size_t before = shown.size();
    mainQueue.advance(300);
    EXPECT_EQ(shown.size() - before, 5U);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 5 min"));
}

TEST_F(WorkWatchTest, HiddenWindow_WakesUpOnlyWhenATextIsNoLongerTrue) {
    rest(1000, Attention::Unseen);
    EXPECT_EQ(shown.back().nextPass, QString());
    EXPECT_TRUE(mainQueue.idle()) << "nothing that is shown changes by itself";
    passEnded(PassCause::Well);
    EXPECT_EQ(shown.back().headline, text("All is well"));
    EXPECT_EQ(shown.back().health.lastSuccess, text("Last success: just now, files unknown"));
    const std::size_t before = shown.size();
    EXPECT_GT(mainQueue.nextDelay(), 50);
    mainQueue.advance(125);
    EXPECT_EQ(shown.size() - before, 2U);
    EXPECT_EQ(shown.back().health.lastSuccess, text("Last success: 2 minutes ago, files unknown"));
    mainQueue.advance(7200);
    EXPECT_GT(mainQueue.nextDelay(), 3000) << "hours are counted by the hour";
}

TEST_F(WorkWatchTest, HidingTheWindow_EndsTheCountdown) {
    rest(100, Attention::Seen);
    watch.setAttention(Attention::Unseen);
    mainQueue.advance(2);
    EXPECT_TRUE(mainQueue.idle());
    watch.setAttention(Attention::Seen);
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 98 s"));
}

TEST_F(WorkWatchTest, TraysMenu_IsUpToDateWhenItOpens) {
    rest(100, Attention::Unseen);
    mainQueue.advance(50);
    watch.setMenuShown(true);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 50 s"));
    mainQueue.advance(10);
    EXPECT_EQ(shown.back().nextPass, text("Next pass in 40 s"));
    watch.setMenuShown(false);
    mainQueue.advance(2);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(WorkWatchTest, Lines_NeverWakeUpForTheTimeThatPasses) {
    rest(1000, Attention::Lines);
    passEnded(PassCause::Well);
    mainQueue.advance(2);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(WorkWatchTest, RunningPass_IsShownTwiceASecondToAPerson) {
    const std::size_t shows = showsOfAPass(10, Attention::Seen);
    EXPECT_GE(shows, 19U);
    EXPECT_LE(shows, 21U);
}

TEST_F(WorkWatchTest, RunningPassAfterASuccess_IsShownAsOften) {
    passEnded(PassCause::Well);
    EXPECT_EQ(showsOfAPass(10, Attention::Seen), 20U) << "not when the success grows older";
}

TEST_F(WorkWatchTest, RunningPass_IsOneLineASecond) {
    const std::size_t shows = showsOfAPass(10, Attention::Lines);
    EXPECT_GE(shows, 9U);
    EXPECT_LE(shows, 11U);
}

TEST_F(WorkWatchTest, RunningPass_CostsAHiddenWindowLittle) {
    const std::size_t shows = showsOfAPass(180, Attention::Unseen);
    EXPECT_GE(shows, 17U);
    EXPECT_LE(shows, 19U);
}

TEST_F(WorkWatchTest, PassBetweenTwoCommands_AndPassBesideTheCycle_Run) {
    rest(1000, Attention::Seen);
    passRuns = true;
    watch.look();
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().phase, WorkPhase::Running);
    passRuns = false;
    passes.resize(1);
    defaults.setObject(prefEnableScanning, false);
    mainQueue.advance(0.6);
    EXPECT_EQ(shown.back().phase, WorkPhase::Finishing);
}

TEST_F(WorkWatchTest, PassThatStandsStill_IsShownOnce) {
    rest(1000, Attention::Seen);
    passes.resize(1);
    watch.look();
    mainQueue.advance(1);
    const std::size_t before = shown.size();
    mainQueue.advance(5);
    EXPECT_EQ(shown.size(), before);
}

TEST_F(WorkWatchTest, StormOfNews_IsShownTenTimesASecondAtMost) {
    rest(1000, Attention::Seen);
    passes.resize(1);
    const std::size_t before = shown.size();
    for (int i = 0; i < 500; ++i) {
        passes[0].progress.bytesDone = 1'000'000 * (i + 1);
        watch.look();
        mainQueue.advance(0.002);
    }
    EXPECT_LE(shown.size() - before, 11U);
    EXPECT_GE(shown.size() - before, 9U);
}

TEST_F(WorkWatchTest, Pass_IsTakenThroughItsPhases) {
    rest(30, Attention::Seen);
    passes.resize(1);
    passes[0].kind = PassKind::Remote;
    passes[0].progress = {.step = PassStep::Pull, .file = text("a\nb"), .share = 0.5};
    watch.look();
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().phase, WorkPhase::Running);
    EXPECT_EQ(shown.back().step, text("First pull"));
    EXPECT_EQ(shown.back().file, text("a\\x0ab"));
    EXPECT_EQ(shown.back().headline, text("Syncing: 50 %"));
    EXPECT_TRUE(shown.back().mayCancel);
    EXPECT_FALSE(shown.back().maySyncNow);
    defaults.setObject(prefEnableScanning, false);
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().phase, WorkPhase::Finishing);
    EXPECT_EQ(shown.back().nextPass, text("Finishing this pass…"));
    EXPECT_TRUE(shown.back().mayCancel);
    passes[0].cancelled = true;
    watch.look();
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().phase, WorkPhase::Cancelling);
    EXPECT_EQ(shown.back().nextPass, text("Cancelling this pass…"));
    EXPECT_FALSE(shown.back().mayCancel);
    passes[0].progress.share = 0.75;
    mainQueue.advance(0.6);
    EXPECT_EQ(shown.back().share, 0.75) << "what it does until it has ended is shown";
    passes.clear();
    passEnded(PassCause::Cancelled);
    EXPECT_EQ(shown.back().phase, WorkPhase::Off);
    EXPECT_EQ(shown.back().headline, text("Syncing is off"));
    EXPECT_EQ(shown.back().step, QString());
}

TEST_F(WorkWatchTest, PassWithSomethingMissing_SaysWhat) {
    waits = true;
    rest(30, Attention::Seen);
    nextPassAt.reset();
    watch.setMissing({{text("No Mac is chosen yet."), Remedy::ShowRemoteTab}});
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().phase, WorkPhase::Missing);
    EXPECT_EQ(shown.back().headline, text("No Mac is chosen yet."));
    EXPECT_FALSE(shown.back().maySyncNow);
    watch.setMissing({});
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().headline, text("Waiting for what is missing"));
}

TEST_F(WorkWatchTest, SyncingThatIsOff_DoesNotWaitForWhatIsMissing) {
    watch.setMissing({{text("No Mac is chosen yet."), Remedy::ShowRemoteTab}});
    watch.setAttention(Attention::Seen);
    watch.begin();
    mainQueue.advance(2);
    EXPECT_EQ(shown.back().headline, text("Syncing is off"));
    EXPECT_TRUE(mainQueue.idle()) << "nothing that is shown changes by itself";
}

TEST_F(WorkWatchTest, RecordOfEarlierPasses_IsReadAtTheBeginning) {
    PassRecord earlier;
    earlier.began = begin.addSecs(-7200);
    earlier.cause = PassCause::Well;
    store.append(earlier);
    mainQueue.advance(1);
    watch.begin();
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().health.lastSuccess, text("Last success: 2 hours ago, files unknown"));
}

TEST_F(WorkWatchTest, LastSuccess_GrowsOldAtTheMinute) {
    rest(1000, Attention::Unseen);
    passEnded(PassCause::Well);
    const double since = mainQueue.now() - 0.2;
    mainQueue.advance(59.9 - 0.2);
    EXPECT_EQ(shown.back().health.lastSuccess, text("Last success: just now, files unknown"));
    while (mainQueue.now() < since + 60.5)
        mainQueue.advance(0.1);
    EXPECT_EQ(shown.back().health.lastSuccess, text("Last success: 1 minute ago, files unknown"));
}

TEST_F(WorkWatchTest, Trouble_ComesFromTheRecordAndStaysWhileItIsTriedAgain) {
    rest(30, Attention::Seen);
    passEnded(PassCause::RsyncMissingThere);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Trouble) << "whatever the status line says";
    passes.resize(1);
    watch.look();
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Trouble);
    EXPECT_TRUE(shown.back().headline.startsWith(u"There is no rsync on the Mac since"));
    passes.clear();
    passEnded(PassCause::Interrupted);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Trouble) << "it says nothing";
    passEnded(PassCause::Well);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Well);
}

TEST_F(WorkWatchTest, SettingsThatCannotBeKept_AreSaid) {
    defaults.settingsStanding = {.fault = text("Settings cannot be saved to /s: full"),
                                 .aside = text("/s.corrupt")};
    watch.begin();
    watch.setAttention(Attention::Seen);
    mainQueue.advance(0.2);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Trouble);
    EXPECT_EQ(shown.back().remarks.size(), 2);
    defaults.settingsStanding = {};
    mainQueue.advance(59);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Trouble) << "asked once a minute";
    mainQueue.advance(1);
    EXPECT_EQ(shown.back().health.sign, HealthSign::Unknown);
    EXPECT_TRUE(shown.back().remarks.isEmpty());
}

TEST_F(WorkWatchTest, SettingsThatCannotBeKept_CostAHiddenWindowNothing) {
    defaults.settingsStanding.fault = text("Settings cannot be saved to /s: full");
    watch.setAttention(Attention::Unseen);
    watch.begin();
    mainQueue.advance(2);
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(WorkWatchTest, HeadlessView_PrintsProgressAndHealthOnceEach) {
    RecordingConsole console;
    HeadlessView view(console);
    WorkState work{.phase = WorkPhase::Running, .step = text("Movies"), .share = 0.5};
    work.health.text = text("All is well.");
    view.showWork(work);
    work.health.lastSuccess = text("Last success: just now, 1 file");
    view.showWork(work);
    work.share = 0.6;
    view.showWork(work);
    work.step.clear();
    work.share.reset();
    view.showWork(work);
    EXPECT_EQ(console.printed(),
              (QStringList{text("progress: Movies, 50 %"), text("health: All is well."),
                           text("progress: Movies, 60 %")}));
    Attention attention = Attention::Seen;
    const Subscription observed =
        view.observeAttention([&attention](Attention now) { attention = now; });
    EXPECT_EQ(attention, Attention::Lines);
}

} // namespace
} // namespace kelvo
