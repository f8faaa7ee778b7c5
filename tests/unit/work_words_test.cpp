#include "passes/running_pass.h"
#include "support/plain_line.h"
#include "ui/checklist.h"
#include "ui/health_words.h"
#include "ui/pass_words.h"
#include "ui/work_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

PassRecord passOf(PassCause cause, PassKind kind = PassKind::Remote) {
    PassRecord pass;
    pass.kind = kind;
    pass.verdict = HostVerdict::Valid;
    pass.cause = cause;
    return pass;
}

TEST(TimeLeftWordsTest, EachEstimate_IsRoundedToAStepOfItsSize) {
    struct Case {
        double seconds;
        const char* words;
    };
    for (const Case& c :
         {Case{0, "a few seconds"}, Case{9.9, "a few seconds"}, Case{10, "about 10 s"},
          Case{24, "about 20 s"}, Case{58, "about 1 min"}, Case{250, "about 4 min"},
          Case{3500, "about 58 min"}, Case{3599, "about 1 h"}, Case{4700, "about 1 h 20 min"},
          Case{1e12, "about 2777 h 50 min"}, Case{-5, "a few seconds"}})
        EXPECT_EQ(TimeLeftWords().text(c.seconds), text(c.words)) << c.seconds;
    EXPECT_EQ(TimeLeftWords().text(std::nullopt), QString());
}

TEST(TimeLeftWordsTest, WaveringEstimate_DoesNotFlicker) {
    TimeLeftWords words;
    QStringList shown;
    for (const double seconds : {200.0, 208.0, 212.0, 209.0, 215.0, 207.0, 211.0}) {
        const QString now = words.text(seconds);
        if (shown.isEmpty() || shown.back() != now)
            shown << now;
    }
    EXPECT_EQ(shown, QStringList{text("about 3 min")});
    EXPECT_EQ(words.text(300), text("about 5 min")) << "clearly above";
    EXPECT_EQ(words.text(120), text("about 2 min"));
    EXPECT_EQ(words.text(4), text("a few seconds"));
    EXPECT_EQ(words.text(12), text("about 10 s"));
}

TEST(WorkWordsTest, Figures_AreReadAtAGlance) {
    PassProgress progress{.filesDone = 6,
                          .filesKnown = 15,
                          .bytesDone = 18'200'000'000,
                          .bytesKnown = 37'600'000'000,
                          .bytesPerSecond = 92e6};
    EXPECT_EQ(countText(progress), text("file 7 of 15"));
    EXPECT_EQ(amountText(progress), text("18.2 of 37.6 GB"));
    EXPECT_EQ(speedText(progress), text("92.0 MB/s"));
    progress.filesDone = 15;
    EXPECT_EQ(countText(progress), text("file 15 of 15"));
    progress.bytesDone = 640'000'000;
    EXPECT_EQ(amountText(progress), text("0.6 of 37.6 GB"));
    progress.bytesKnown = 900;
    progress.bytesDone = 12;
    EXPECT_EQ(amountText(progress), text("12 of 900 bytes"));
    EXPECT_EQ(countText({.filesDone = 3}), text("3 files"));
    EXPECT_EQ(amountText({.bytesDone = 640'000'000}), text("640.0 MB"));
    for (const QString& nothing : {countText({}), amountText({}), speedText({}),
                                   countText({.filesDone = 0}), amountText({.bytesDone = 0})})
        EXPECT_EQ(nothing, QString());
}

TEST(WorkWordsTest, HostileName_StaysOneHarmlessLine) {
    EXPECT_EQ(oneLine(text("a\nb\tc\r\x1b[31m\u202e.mov")),
              text("a\\x0ab\\x09c\\x0d\\x1b[31m\\u202e.mov"));
}

TEST(WorkWordsTest, Wait_IsCountedInSecondsForTwoMinutes) {
    EXPECT_EQ(nextPassText(22.3), text("Next pass in 23 s"));
    EXPECT_EQ(nextPassText(0), text("Next pass in 1 s"));
    EXPECT_EQ(nextPassText(120), text("Next pass in 120 s"));
    EXPECT_EQ(nextPassText(121), text("Next pass in 2 min"));
    EXPECT_EQ(nextPassText(601), text("Next pass in 10 min"));
    EXPECT_EQ(nextPassText(4800), text("Next pass in 1 h 20 min"));
    for (const double seconds : {0.5, 22.3, 120.0, 121.0, 179.5, 600.0, 4800.0}) {
        const double holds = nextPassHolds(seconds);
        EXPECT_TRUE(seconds < 1 || nextPassText(seconds - holds - 0.01) != nextPassText(seconds))
            << seconds;
        EXPECT_EQ(nextPassText(seconds - holds + 0.01), nextPassText(seconds)) << seconds;
    }
}

TEST(WorkWordsTest, Age_HoldsUntilItsTextChanges) {
    for (const double seconds : {0.0, 59.0, 60.0, 3599.5, 3700.0, 172'900.0}) {
        const double holds = agoHolds(seconds);
        EXPECT_EQ(agoText(seconds + holds - 0.01), agoText(seconds)) << seconds;
        EXPECT_NE(agoText(seconds + holds + 0.01), agoText(seconds)) << seconds;
    }
}

TEST(WorkWordsTest, Headline_SaysWhatMattersMost) {
    WorkState work{.phase = WorkPhase::Running, .step = text("Asking the Mac")};
    work.health.sign = HealthSign::Well;
    EXPECT_EQ(headlineText(work, {}), text("Syncing: asking the Mac"));
    EXPECT_EQ(headlineText(work, text("The Mac is away.")), text("The Mac is away."));
    work.share = 0.489;
    EXPECT_EQ(headlineText(work, text("The Mac is away.")), text("Syncing: 48 %"));
    work.timeLeft = text("about 4 min");
    EXPECT_EQ(headlineText(work, {}), text("Syncing: 48 %, about 4 min"));
    work.phase = WorkPhase::Resting;
    EXPECT_EQ(headlineText(work, {}), text("All is well"));
    work.nextPass = text("Next pass in 23 s");
    EXPECT_EQ(headlineText(work, {}), text("All is well, next pass in 23 s"));
    work.health.sign = HealthSign::Unknown;
    EXPECT_EQ(headlineText(work, {}), text("Next pass in 23 s"));
    work.phase = WorkPhase::Finishing;
    work.nextPass = text("Finishing this pass…");
    EXPECT_EQ(headlineText(work, text("The Mac is away.")), work.nextPass);
}

TEST(WorkWordsTest, ProgressLine_LeavesOutWhatIsNotKnown) {
    WorkState work{.step = text("First pull"), .file = text("Feature.mkv"), .share = 0.9999};
    EXPECT_EQ(progressLine(work), text("First pull, 99 %, Feature.mkv"));
    EXPECT_EQ(progressLine({}), QString());
    work = {.step = text("a"),
            .file = text("f"),
            .count = text("b"),
            .amount = text("c"),
            .speed = text("d"),
            .timeLeft = text("e"),
            .share = 0};
    EXPECT_EQ(progressLine(work), text("a, 0 %, b, c, d, e, f"));
    EXPECT_EQ(shareText(1), text("100 %"));
}

TEST(WorkWordsTest, Arrivals_AreNamedShortAndSafe) {
    const auto arrivals = [](std::initializer_list<const char*> paths) {
        std::vector<Arrival> all;
        for (const char* path : paths)
            all.push_back({path, 0, {}});
        return all;
    };
    EXPECT_EQ(arrivalsText(arrivals({"/m/A.mov"})), text("A.mov"));
    EXPECT_EQ(arrivalsText(arrivals({"/m/A", "B"})), text("A and B"));
    EXPECT_EQ(arrivalsText(arrivals({"A", "B", "C"})), text("A, B and one more"));
    EXPECT_EQ(arrivalsText(arrivals({"A", "%1", "C", "D"})), text("A, %1 and 2 more"));
    EXPECT_EQ(arrivalsText(arrivals({"/m/a\nb\x1b.mov"})), text("a\\x0ab\\x1b.mov"));
    const QByteArray longName = QByteArray(200, 'x') + "part 2.mov";
    const QString shown = arrivalsText({{longName, 0, {}}});
    EXPECT_EQ(shown.size(), 60);
    EXPECT_TRUE(shown.endsWith(u"part 2.mov"));
}

// -- health

class HealthWordsTest : public ::testing::Test {
protected:
    HealthWords words() {
        return healthWords(
            {.standing = standing, .settings = settings, .missing = missing, .now = now});
    }

    void beInTrouble(PassCause cause, PassKind kind = PassKind::Remote) {
        standing.last = passOf(cause, kind);
        standing.troubleSince =
            QDateTime(now.toLocalTime().date(), QTime(15, 22)).toUTC(); // by this machine's clock
        standing.passesInTrouble = 6;
    }

    const QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(19, 0)).toUTC();
    Standing standing;
    SettingsStanding settings;
    std::vector<ChecklistLine> missing;
};

TEST_F(HealthWordsTest, NoPassYet_SaysWhatWillStandHere) {
    const Health health = words().health;
    EXPECT_EQ(health.sign, HealthSign::Unknown);
    EXPECT_EQ(health.text, text("No pass has ended yet. How it went will stand here."));
    EXPECT_EQ(health.lastSuccess, QString());
}

TEST_F(HealthWordsTest, LastSuccess_StandsBesideTrouble) {
    PassRecord success = passOf(PassCause::Well);
    success.began = now.addSecs(-12 * 60 - 5);
    success.transfer.files = 3;
    standing.last = standing.lastSuccess = success;
    EXPECT_EQ(words().health.sign, HealthSign::Well);
    EXPECT_EQ(words().health.text, text("All is well."));
    EXPECT_EQ(words().health.lastSuccess, text("Last success: 12 minutes ago, 3 files"));
    beInTrouble(PassCause::RemoteLoginOff);
    const HealthWords trouble = words();
    EXPECT_EQ(trouble.health.sign, HealthSign::Trouble);
    EXPECT_EQ(trouble.health.text,
              text("The Mac is there but refuses logins since 15:22 (6 passes). On the Mac, switch "
                   "on Remote Login (System Settings, General, Sharing)."));
    EXPECT_EQ(trouble.matter, text("The Mac is there but refuses logins since 15:22 (6 passes)."));
    EXPECT_EQ(trouble.health.remedy, Remedy::CheckAgain);
    EXPECT_EQ(trouble.health.lastSuccess, text("Last success: 12 minutes ago, 3 files"));
}

TEST_F(HealthWordsTest, SinceStandsBehindWhatTheSentenceSaysFirst) {
    beInTrouble(PassCause::HostKeyChanged);
    EXPECT_TRUE(words().matter.startsWith(
        text("The Mac shows another key than before since 15:22 (6 passes): it was")));
    beInTrouble(PassCause::LoginTalks);
    EXPECT_EQ(words().matter,
              text("The Mac prints a text at each login since 15:22 (6 passes), which hides its "
                   "answer."));
    standing.passesInTrouble = 1;
    EXPECT_TRUE(words().matter.contains(text("(1 pass)")));
    standing.troubleSince = now.addDays(-3);
    EXPECT_FALSE(words().matter.contains(u"since 15:22"));
}

TEST_F(HealthWordsTest, UnknownTrouble_TellsTheLastLineHarmlessly) {
    beInTrouble(PassCause::Unknown);
    standing.last->lastLine = text("rsync: \x1b[31mno\n");
    EXPECT_EQ(words().health.text,
              text("Something went wrong since 15:22 (6 passes). The last line was: rsync: "
                   "\\x1b[31mno\\x0a"));
    EXPECT_EQ(words().health.remedy, Remedy::ShowDetails);
}

TEST_F(HealthWordsTest, EveryTrouble_HasARemedyOrANextStep) {
    for (int i = 0; i <= static_cast<int>(cLastPassCause); ++i) {
        const auto cause = static_cast<PassCause>(i);
        if (!isTrouble(cause)) {
            EXPECT_EQ(remedyFor(passOf(cause)), Remedy::None) << i;
            continue;
        }
        beInTrouble(cause);
        EXPECT_NE(words().health.remedy, Remedy::None) << i;
        EXPECT_FALSE(words().health.text.contains(u'\n')) << i;
    }
    EXPECT_EQ(remedyFor(passOf(PassCause::DestinationTaken)), Remedy::ChooseDestination);
    EXPECT_EQ(remedyFor(passOf(PassCause::SourceMissing, PassKind::Plain)), Remedy::ChooseSource);
    EXPECT_EQ(remedyFor(passOf(PassCause::SourceMissing, PassKind::Remote)), Remedy::ShowRemoteTab);
}

TEST_F(HealthWordsTest, WhatCannotBeKept_IsTroubleAndARemark) {
    standing.last = passOf(PassCause::Well);
    settings.fault = text("Settings cannot be saved to /s: full");
    EXPECT_EQ(words().health.sign, HealthSign::Trouble);
    EXPECT_EQ(words().health.text, text("Settings cannot be saved to /s: full."));
    EXPECT_EQ(words().health.remedy, Remedy::OpenLog);
    EXPECT_EQ(words().remarks, QStringList{text("Settings cannot be saved to /s: full.")});
    beInTrouble(PassCause::HostAway);
    EXPECT_TRUE(words().health.text.startsWith(u"The Mac is away")) << "the record goes first";
    EXPECT_EQ(words().remarks.size(), 1);
    settings.fault.clear();
    standing.last->cause = PassCause::Well;
    standing.fault = text("disk I/O error");
    EXPECT_EQ(words().health.remedy, Remedy::OpenLog);
    standing.fault.clear();
    missing.push_back(
        {text("rsync is not installed on this machine."), Remedy::CopyInstallCommand});
    EXPECT_EQ(words().health.text, text("rsync is not installed on this machine."));
    EXPECT_EQ(words().health.remedy, Remedy::CopyInstallCommand);
}

TEST_F(HealthWordsTest, WhatWasSetAside_IsSaidWithTheNameOfTheCopy) {
    standing.last = passOf(PassCause::Well);
    settings.aside = text("/s.corrupt-1");
    standing.aside = text("/p.corrupt-2");
    EXPECT_EQ(words().health.sign, HealthSign::Well) << "it is over";
    EXPECT_EQ(words().remarks,
              (QStringList{text("The settings file was damaged. It is kept as /s.corrupt-1"),
                           text("The record of passes was damaged. It is kept as /p.corrupt-2")}));
}

TEST_F(HealthWordsTest, RecordThatWasReplaced_IsSaid) {
    standing.last = passOf(PassCause::Well);
    standing.replaced = true;
    EXPECT_EQ(words().health.sign, HealthSign::Well) << "it is over";
    EXPECT_EQ(words().remarks,
              QStringList{text("The record of passes was removed or replaced. The passes since the "
                               "start were written again")});
}

} // namespace
} // namespace kelvo
