#include "passes/running_pass.h"
#include "support/plain_line.h"
#include "ui/pass_words.h"
#include "ui/work_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

TEST(TimeLeftWordsTest, EachEstimate_IsRoundedToAStepOfItsSize) {
    struct Case {
        double seconds;
        const char* words;
    };
    for (const Case& c :
         {Case{0, "a few seconds"}, Case{9.9, "a few seconds"}, Case{10, "about 10 s"},
          Case{24, "about 20 s"}, Case{54.9, "about 50 s"}, Case{55, "about 1 min"},
          Case{58, "about 1 min"}, Case{89, "about 1 min"}, Case{90, "about 2 min"},
          Case{3569, "about 59 min"}, Case{3570, "about 1 h"}, Case{7100, "about 2 h"},
          Case{7800, "about 2 h 10 min"}, Case{250, "about 4 min"}, Case{3500, "about 58 min"},
          Case{3599, "about 1 h"}, Case{4700, "about 1 h 20 min"},
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

TEST(TimeLeftWordsTest, LongerEstimate_IsTakenOnceItIsAWholeStepAbove) {
    struct Case {
        double first, still, next;
        const char* words;
    };
    for (const Case& c :
         {Case{4, 10, 10.1, "about 10 s"}, Case{20, 30, 31, "about 30 s"},
          Case{60, 120, 121, "about 2 min"}, Case{3600, 4200, 4201, "about 1 h 10 min"},
          Case{3540, 3600, 3601, "about 1 h"}}) {
        TimeLeftWords words;
        const QString shown = words.text(c.first);
        EXPECT_EQ(words.text(c.still), shown) << c.still;
        EXPECT_EQ(words.text(c.next), text(c.words)) << c.next;
    }
}

TEST(TimeLeftWordsTest, EstimateThatIsGone_IsForgotten) {
    TimeLeftWords words;
    EXPECT_EQ(words.text(60), text("about 1 min"));
    EXPECT_EQ(words.text(std::nullopt), QString());
    EXPECT_EQ(words.text(100), text("about 2 min")) << "nothing stood there to be kept";
}

TEST(WorkWordsTest, Steps_AreNamedAfterTheKindOfPass) {
    for (const PassKind kind : {PassKind::Remote, PassKind::Plain}) {
        EXPECT_EQ(stepText(PassStep::Begun, kind), QString());
        EXPECT_EQ(stepText(PassStep::AskingTheMac, kind), text("Asking the Mac"));
        EXPECT_EQ(stepText(PassStep::Movies, kind), text("Movies"));
        EXPECT_EQ(stepText(PassStep::AfterArrivals, kind), text("After arrivals"));
    }
    EXPECT_EQ(stepText(PassStep::Pull, PassKind::Remote), text("First pull"));
    EXPECT_EQ(stepText(PassStep::Pull, PassKind::Plain), text("Copying"));
}

TEST(WorkWordsTest, PassUnderWay_IsDescribedWithAllItsFigures) {
    WorkState work;
    TimeLeftWords timeLeft;
    PassUnderWay pass;
    pass.progress = {.step = PassStep::Movies,
                     .file = text("a\nb"),
                     .filesDone = 1,
                     .bytesDone = 5'000,
                     .share = 1.5,
                     .bytesPerSecond = 1'000,
                     .secondsLeft = 60};
    describeProgress(work, pass, timeLeft);
    EXPECT_EQ(work.step, text("Movies"));
    EXPECT_EQ(work.file, text("a\\x0ab"));
    EXPECT_EQ(work.count, text("1 file"));
    EXPECT_EQ(work.amount, text("5.0 kB"));
    EXPECT_EQ(work.speed, text("1.0 kB/s"));
    EXPECT_EQ(work.timeLeft, text("about 1 min"));
    EXPECT_EQ(work.share, 1.0);
    pass.progress.share = -0.5;
    describeProgress(work, pass, timeLeft);
    EXPECT_EQ(work.share, 0.0);
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
    progress.bytesKnown = 1'000;
    progress.bytesDone = 500;
    EXPECT_EQ(amountText(progress), text("0.5 of 1.0 kB"));
    progress.bytesDone.reset();
    EXPECT_EQ(amountText(progress), text("0.0 of 1.0 kB"));
    EXPECT_EQ(amountText({.bytesDone = 1}), text("1 bytes"));
    EXPECT_EQ(countText({.filesDone = 0, .filesKnown = 1}), text("file 1 of 1"));
    EXPECT_EQ(countText({.filesDone = 3, .filesKnown = 0}), text("3 files"));
    EXPECT_EQ(countText({.filesDone = 1}), text("1 file"));
    EXPECT_EQ(countText({.filesDone = 3}), text("3 files"));
    EXPECT_EQ(speedText({.bytesPerSecond = 1}), text("1 bytes/s"));
    EXPECT_EQ(speedText({.bytesPerSecond = 0.9}), QString());
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
    EXPECT_EQ(nextPassText(149), text("Next pass in 2 min"));
    EXPECT_EQ(nextPassText(150), text("Next pass in 3 min"));
    EXPECT_EQ(nextPassText(601), text("Next pass in 10 min"));
    EXPECT_EQ(nextPassText(4800), text("Next pass in 1 h 20 min"));
    EXPECT_EQ(nextPassHolds(0.5), 1) << "an overdue pass is asked for once a second";
    EXPECT_EQ(nextPassHolds(1), 1);
    for (const double seconds : {0.5, 2.0, 22.3, 120.0, 121.0, 150.0, 179.5, 600.0, 4800.0}) {
        const double holds = nextPassHolds(seconds);
        EXPECT_TRUE(seconds < 1 || nextPassText(seconds - holds - 0.01) != nextPassText(seconds))
            << seconds;
        EXPECT_EQ(nextPassText(seconds - holds + 0.01), nextPassText(seconds)) << seconds;
    }
}

TEST(WorkWordsTest, Age_HoldsUntilItsTextChanges) {
    for (const double seconds : {0.0, 59.0, 60.0, 3599.5, 3600.0, 3700.0, 7200.0, 90'000.0,
                                 172'799.0, 172'800.0, 172'900.0}) {
        const double holds = agoHolds(seconds);
        EXPECT_EQ(agoText(seconds + holds - 0.01), agoText(seconds)) << seconds;
        EXPECT_NE(agoText(seconds + holds + 0.01), agoText(seconds)) << seconds;
    }
    EXPECT_EQ(agoHolds(-5), 5) << "a moment that lies ahead by the clock";
}

TEST(WorkWordsTest, Headline_SaysWhatMattersMost) {
    WorkState work{.phase = WorkPhase::Running, .step = text("Asking the Mac")};
    work.health.sign = HealthSign::Well;
    EXPECT_EQ(headlineText(work, {.step = PassStep::AskingTheMac}),
              text("Syncing: asking the Mac"));
    EXPECT_EQ(headlineText(work, {.matter = text("The Mac is away.")}), text("The Mac is away."));
    EXPECT_EQ(headlineText(work, {.step = PassStep::Pull, .kind = PassKind::Remote}),
              text("Syncing: first pull"));
    EXPECT_EQ(headlineText(work, {.step = PassStep::Pull, .kind = PassKind::Plain}),
              text("Syncing: copying"));
    EXPECT_EQ(headlineText(work, {.step = PassStep::Movies}), text("Syncing: movies"));
    work.share = 0.489;
    EXPECT_EQ(headlineText(work, {.matter = text("The Mac is away.")}), text("Syncing: 48 %"));
    work.timeLeft = text("about 4 min");
    EXPECT_EQ(headlineText(work, {}), text("Syncing: 48 %, about 4 min"));
    work.phase = WorkPhase::Resting;
    EXPECT_EQ(headlineText(work, {}), text("All is well"));
    work.nextPass = text("Next pass in 23 s");
    EXPECT_EQ(headlineText(work, {.nextPass = 23}), text("All is well, next pass in 23 s"));
    work.health.sign = HealthSign::Unknown;
    EXPECT_EQ(headlineText(work, {.nextPass = 23}), text("Next pass in 23 s"));
    work.nextPass.clear();
    work.phase = WorkPhase::Running;
    work.step.clear();
    work.share.reset();
    EXPECT_EQ(headlineText(work, {}), text("Syncing"));
    work.phase = WorkPhase::Off;
    work.health.sign = HealthSign::Well;
    work.nextPass = text("Syncing is off");
    EXPECT_EQ(headlineText(work, {}), work.nextPass);
    work.phase = WorkPhase::Cancelling;
    work.nextPass = text("Cancelling this pass…");
    EXPECT_EQ(headlineText(work, {.matter = text("The Mac is away.")}), work.nextPass);
    work.phase = WorkPhase::Finishing;
    work.nextPass = text("Finishing this pass…");
    EXPECT_EQ(headlineText(work, {.matter = text("The Mac is away.")}), work.nextPass);
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
    EXPECT_EQ(shown, QString(QString(30, u'x') + u'…' + QString(19, u'x') + text("part 2.mov")));
    const QByteArray justFits(60, 'x');
    EXPECT_EQ(arrivalsText({{justFits, 0, {}}}), QString::fromLatin1(justFits));
    EXPECT_EQ(arrivalsText({}), QString());
}

TEST(WorkWordsTest, LongName_IsNotCutInTheMiddleOfALetter) {
    // Each such letter takes two places of a QString.
    const QString film = text("\xf0\x9f\x8e\xac");
    const auto shown = [](const QString& name) { return arrivalsText({{name.toUtf8(), 0, {}}}); };
    EXPECT_EQ(shown(QString(29, u'x') + film + QString(60, u'y')),
              QString(QString(29, u'x') + u'…' + QString(29, u'y')));
    EXPECT_EQ(shown(QString(60, u'x') + film + QString(28, u'y')),
              QString(QString(30, u'x') + u'…' + QString(28, u'y')));
    EXPECT_EQ(shown(QString(28, u'x') + film + QString(60, u'y')),
              QString(QString(28, u'x') + film + u'…' + QString(29, u'y')));
}

} // namespace
} // namespace kelvo
