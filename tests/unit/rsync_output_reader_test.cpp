#include "passes/rsync_output_reader.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace kelvo {
namespace {

const QString cFactory =
    QStringLiteral("/usr/bin/rsync 2>&1 -r --stats --info=progress2 --out-format='%l %n' a/ b/");

/// Five files of 3,000,000 bytes, one of a million and an empty one, as rsync printed it.
const QByteArray cFirstPull = "4096 ./\n3000000 f1.mov\n"
                              "\r              0   0%    0.00kB/s    0:00:00  "
                              "\r      3,000,000  18%    3.00MB/s    0:00:01 (xfr#1, to-chk=7/9)\n"
                              "3000000 f2.mov\n"
                              "\r      6,000,000  37%    3.00MB/s    0:00:02 (xfr#2, to-chk=6/9)\n"
                              "3000000 f3.mov\n"
                              "\r      7,250,000  45%    3.00MB/s    0:00:02  "
                              "\r      9,000,000  56%    3.00MB/s    0:00:03 (xfr#3, to-chk=5/9)\n"
                              "3000000 f4.mov\n"
                              "\r     12,000,000  75%    3.00MB/s    0:00:04 (xfr#4, to-chk=4/9)\n"
                              "3000000 f5.mov\n"
                              "\r     15,000,000  93%    3.00MB/s    0:00:05 (xfr#5, to-chk=3/9)\n"
                              "4096 sub/\n0 sub/bad\\#377\\#012nl.mov\n"
                              "\r     15,000,000  93%    3.00MB/s    0:00:05 (xfr#6, to-chk=1/9)\n"
                              "1000000 sub/g.mov\n"
                              "\r     16,000,000 100%    3.00MB/s    0:00:05 (xfr#7, to-chk=0/9)"
                              "\r     16,000,000 100%    3.00MB/s    0:00:05 (xfr#7, to-chk=0/9)\n"
                              "\nNumber of files: 9 (reg: 7, dir: 2)\n";

class Reading {
public:
    explicit Reading(const QString& command, bool restIsHere = false)
        : fReader(command, restIsHere) {}

    /// A second passes with each piece.
    PassProgress operator()(const QByteArray& piece) {
        fReader.read(piece, ++fNow);
        return fReader.progress(fNow);
    }
    NameList names() { return fReader.takeNames(); }
    std::optional<qint64> filesNamed() const { return fReader.filesNamed(); }

private:
    RsyncOutputReader fReader;
    double fNow = 0;
};

void expectNothingGoesBack(const PassProgress& before, const PassProgress& after) {
    const auto back = [](const auto& first, const auto& second) {
        return first && second && *second < *first;
    };
    EXPECT_FALSE(back(before.share, after.share)) << *before.share << " to " << *after.share;
    EXPECT_FALSE(back(before.bytesDone, after.bytesDone));
    EXPECT_FALSE(back(before.filesDone, after.filesDone));
    EXPECT_FALSE(back(before.bytesKnown, after.bytesKnown));
}

TEST(RsyncOutputReaderTest, FirstPull_IsMeasuredByItsBytes) {
    Reading read(cFactory);
    const qsizetype third = cFirstPull.indexOf("\r      9,000,000");
    const PassProgress begun = read(cFirstPull.first(23));
    EXPECT_EQ(begun.file, QStringLiteral("f1.mov"));
    EXPECT_FALSE(begun.share);
    const PassProgress middle = read(cFirstPull.mid(23, third - 23));
    EXPECT_EQ(middle.file, QStringLiteral("f3.mov"));
    EXPECT_EQ(middle.filesDone, 2);
    EXPECT_EQ(middle.filesKnown, 8) << "folders that are still to come count as files";
    EXPECT_EQ(middle.bytesDone, 7'250'000);
    EXPECT_NEAR(middle.share.value_or(0), 7.25 / 16, 0.02);
    EXPECT_NEAR(static_cast<double>(middle.bytesKnown.value_or(0)), 16e6, 8e5);
}

TEST(RsyncOutputReaderTest, FilesToCome_AreKnownWhereNoFolderIsNamed) {
    Reading read(cFactory);
    const auto known = [&](const QByteArray& piece) { return read(piece).filesKnown; };
    EXPECT_EQ(known("2000000 f1.mov\n\r  2,000,000  50%    2.00MB/s    0:00:01 (xfr#1, "
                    "to-chk=1/3)\n"),
              2);
    EXPECT_FALSE(known("4096 sub/\n")) << "others may be named between";
}

TEST(RsyncOutputReaderTest, Figures_AreExactAtTheEnd) {
    Reading read(cFactory);
    read(cFirstPull.first(cFirstPull.size() / 2));
    const PassProgress end = read(cFirstPull.mid(cFirstPull.size() / 2));
    EXPECT_EQ(end.secondsLeft, 0);
    EXPECT_EQ(end.share, 1);
    EXPECT_EQ(end.filesDone, 7);
    EXPECT_EQ(end.filesKnown, 7);
    EXPECT_EQ(end.bytesDone, 16'000'000);
    EXPECT_EQ(end.bytesKnown, 16'000'000);
}

TEST(RsyncOutputReaderTest, Names_AreThoseOfTheFilesInTheirOwnBytes) {
    Reading read(cFactory);
    read(cFirstPull);
    const NameList expected{
        "f1.mov", "f2.mov", "f3.mov", "f4.mov", "f5.mov", "sub/bad\xff\nnl.mov", "sub/g.mov"};
    EXPECT_EQ(read.names(), expected);
    EXPECT_EQ(read.names().size(), 0U);
}

TEST(RsyncOutputReaderTest, OutputCutAnywhere_TellsTheSameAndNothingGoesBack) {
    for (const qsizetype size : {1, 2, 3, 7, 64}) {
        Reading read(cFactory);
        PassProgress last;
        for (qsizetype at = 0; at < cFirstPull.size(); at += size) {
            const PassProgress now = read(cFirstPull.mid(at, size));
            expectNothingGoesBack(last, now);
            last = now;
        }
        EXPECT_EQ(last.share, 1);
        EXPECT_EQ(last.bytesDone, 16'000'000);
        EXPECT_EQ(read.names().size(), 7U);
    }
}

TEST(RsyncOutputReaderTest, ProgressCutInTwo_IsNoName) {
    Reading read(QStringLiteral("rsync -r --info=progress2 --out-format='%n' a/ b/"));
    read("a.mov\n\r             70  50%    1.00kB/s    0:00:01  \r             70 100%    1.0");
    EXPECT_EQ(read("0kB/s    0:00:01 (xfr#1, to-chk=0/2)\n").share, 1);
    EXPECT_EQ(read.names(), (NameList{"a.mov"}));
}

TEST(RsyncOutputReaderTest, NameThatLooksLikeProgress_IsAName) {
    Reading read(QStringLiteral("rsync -r --info=progress2 --out-format='%n' a/ b/"));
    const QByteArray name = "5  13%  1.00kB/s  0:00:06  (xfr#1, to-chk=1/3)";
    EXPECT_EQ(read(name).bytesDone, std::nullopt) << "before its line is ended";
    EXPECT_EQ(read("\n").bytesDone, std::nullopt);
    EXPECT_EQ(read.names(), (NameList{name}));
}

TEST(RsyncOutputReaderTest, SpeedAndTimeLeft_AreThoseOfTheLastSeconds) {
    Reading read(cFactory);
    PassProgress now;
    QByteArray text = "3000000 f0.mov\n\r 0   0%    0.00kB/s    0:00:00  ";
    for (int file = 1; file <= 20; ++file) {
        text += "\r " + QByteArray::number(file * 3'000'000) + "  " + QByteArray::number(file) +
                "%    3.00MB/s    0:00:01 (xfr#" + QByteArray::number(file) +
                ", to-chk=" + QByteArray::number(100 - file) + "/100)\n3000000 f" +
                QByteArray::number(file) + ".mov\n";
        now = read(text);
        text.clear();
    }
    EXPECT_NEAR(now.bytesPerSecond.value_or(0), 3e6, 1);
    EXPECT_NEAR(now.secondsLeft.value_or(0), 80, 5);
}

TEST(RsyncOutputReaderTest, FilesThatAreHere_MakeTheShareNoMoreThanTheTruth) {
    Reading read(cFactory);
    read("2000000 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ");
    const PassProgress first = read("\r  2,000,000  30%    2.00MB/s    0:00:01 (xfr#1, "
                                    "to-chk=3001/5004)\n2000000 n2.mov\n");
    EXPECT_NEAR(first.share.value_or(1), 0.3, 0.01);
    EXPECT_FALSE(first.bytesKnown) << "it is not known what is still to come";
    EXPECT_FALSE(first.filesKnown);
    EXPECT_FALSE(first.secondsLeft);
    const PassProgress end =
        read("\r  4,000,000  61%    2.00MB/s    0:00:02 (xfr#2, to-chk=0/5004)");
    EXPECT_EQ(end.share, 1);
    EXPECT_EQ(end.filesKnown, 2);
    EXPECT_EQ(end.bytesKnown, 4'000'000);
}

TEST(RsyncOutputReaderTest, WhenTheRestIsHere_TheSizesOfTheNamedFilesAreAllThereIs) {
    Reading read(cFactory, true);
    read("2000000 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ");
    const PassProgress half = read("\r  1,000,000   0%    1.00MB/s    1:00:00  ");
    EXPECT_EQ(half.share, 0.5);
    EXPECT_EQ(half.bytesKnown, 2'000'000);
    EXPECT_NEAR(half.secondsLeft.value_or(0), 1, 0.01);
    const PassProgress second =
        read("\r  2,000,000   1%    1.00MB/s    0:00:02 (xfr#1, to-chk=3001/5004)\n"
             "2000000 n2.mov\n\r  2,100,000   1%    1.00MB/s    1:00:00  ");
    EXPECT_EQ(second.bytesKnown, 4'000'000);
    EXPECT_NEAR(second.share.value_or(0), 2.1 / 4, 0.001);
    read("\r  4,000,000   2%    1.00MB/s    0:00:04 (xfr#2, to-chk=2999/5004)\n");
    const PassProgress nothing = read("2000000 n3.mov\n");
    EXPECT_FALSE(nothing.share) << "less than was said";
    EXPECT_EQ(Reading(cFactory, true)("1 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ").share, 0);
    EXPECT_FALSE(Reading(cFactory)("1 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ").share)
        << "nobody knows yet how much there is";
}

TEST(RsyncOutputReaderTest, WhatMayNotBeAll_IsNinetyNinePerCentAtMost) {
    Reading bytes(cFactory, true);
    bytes("2000000 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ");
    EXPECT_EQ(bytes("\r  2,000,000   1%    1.00MB/s    0:00:02 (xfr#1, to-chk=3001/5004)").share,
              0.99);
    Reading places(QStringLiteral("/usr/bin/rsync -r -P a/ b/"));
    EXPECT_EQ(places("\r  3,000,000 100%    5.66MB/s    0:00:00 (xfr#1, to-chk=1/1000)\n").share,
              0.99);
}

TEST(RsyncOutputReaderTest, Total_IsSaidOnceItIsKnownWellEnough) {
    const auto known = [](const char* percent) {
        Reading read(cFactory);
        const QByteArray figures = QByteArray("\r  6,000,000   ") + percent + "%    0.00kB/s";
        read("6000000 f1.mov\n" + figures + "    0:00:00 (xfr#1, to-chk=7/9)\n");
        return read("\n").bytesKnown;
    };
    EXPECT_FALSE(known("6")) << "between 86 and 100 million";
    EXPECT_EQ(known("7"), 75'000'000) << "and 86 million";
    EXPECT_EQ(known("100"), 6'000'000) << "all of what is in the list so far";
}

TEST(RsyncOutputReaderTest, TotalThatWasKnownBetter_IsNotForgotten) {
    Reading read(cFactory);
    read("500000 f1.mov\n\r        500,000   0%    1.00MB/s    0:00:00 (xfr#1, to-chk=98/100)\n");
    // Rate and time left tell the total to a few per cent, which a percentage of two does not.
    read("9000000 f2.mov\n\r      1,000,000   1%    1.00MB/s    0:01:19  ");
    const PassProgress later =
        read("\r      2,000,000   2%    1.00MB/s    0:00:02 (xfr#2, to-chk=97/100)\n");
    EXPECT_NEAR(later.share.value_or(0), 2e6 / (1e6 + 80 * 1.03 * 1024 * 1024), 1e-5);
}

TEST(RsyncOutputReaderTest, TotalOfRateAndTimeLeft_IsTheLeastThatItMayBe) {
    Reading read(cFactory);
    read("500000 f1.mov\n\r        500,000   2%    0.00kB/s    0:00:00 (xfr#1, to-chk=7/9)\n");
    const PassProgress later =
        read("9000000 f2.mov\n\r      1,000,000   5%    1.00MB/s    0:00:17  ");
    EXPECT_NEAR(static_cast<double>(later.bytesKnown.value_or(0)), 1e6 + 17 * 0.97 * 1024 * 1024,
                2);
}

TEST(RsyncOutputReaderTest, OnePassedOver_LeavesTheTotalUnknown) {
    const auto known = [](const QByteArray& names, const char* unchecked) {
        Reading read(cFactory);
        return read(names + "\r  1,000,000  50%    0.00kB/s    0:00:00 (xfr#1, to-chk=" +
                    unchecked + "/9)\n")
            .bytesKnown;
    };
    EXPECT_TRUE(known("4096 ./\n1000000 f1.mov\n", "7"));
    EXPECT_FALSE(known("4096 ./\n1000000 f1.mov\n", "6"));
    EXPECT_TRUE(known("1000000 f1.mov\n", "7")) << "the uppermost folder is as it should be";
    EXPECT_FALSE(known("1000000 f1.mov\n", "6"));
}

TEST(RsyncOutputReaderTest, SizesThatAreNotPrinted_AreNotTakenForNone) {
    Reading read(QStringLiteral("rsync -r --info=progress2 --out-format='%n' a/ b/"), true);
    const PassProgress now = read("n1.mov\n\r  1,000,000  40%    0.00kB/s    0:00:00  ");
    EXPECT_FALSE(now.bytesKnown);
    EXPECT_EQ(now.share, 0.4);
    EXPECT_EQ(Reading(cFactory, true)("1 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ").bytesKnown,
              1);
}

TEST(RsyncOutputReaderTest, TimeLeft_IsSaidOnceTotalAndSpeedAreKnown) {
    Reading read(cFactory, true);
    const PassProgress begun = read("3 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ");
    EXPECT_EQ(begun.bytesKnown, 3);
    EXPECT_FALSE(begun.secondsLeft) << "no speed yet";
    EXPECT_FALSE(read("\r  0   0%    0.00kB/s    0:00:00  ").secondsLeft) << "nothing comes";
    Reading slow(cFactory, true);
    slow("3 n1.mov\n\r  0   0%    0.00kB/s    0:00:00  ");
    EXPECT_EQ(slow("\r  1  33%    0.00kB/s    0:00:00  ").secondsLeft, 2) << "a byte a second";
    Reading back(cFactory);
    back("\r  6,000,000   7%    0.00kB/s    0:00:00 (xfr#1, to-chk=7/9)\n");
    const PassProgress less =
        back("\r  7,000,000  50%    0.00kB/s    0:00:00 (xfr#2, to-chk=6/9)\n");
    EXPECT_GT(less.bytesPerSecond, 0);
    EXPECT_FALSE(less.bytesKnown) << "less than was said";
    EXPECT_FALSE(less.secondsLeft);
}

TEST(RsyncOutputReaderTest, TotalOfNothingOrAByte_HasNoShareBeyondAll) {
    EXPECT_FALSE(Reading(cFactory)("\r  0  50%    0.00kB/s    0:00:00  ").share);
    EXPECT_EQ(Reading(cFactory)("\r  1 100%    0.00kB/s    0:00:00  ").share, 0.99);
    EXPECT_EQ(Reading(cFactory)("0 e.mov\n\r  0 100%    0.00kB/s    0:00:00 (xfr#1, to-chk=1/3)\n")
                  .bytesKnown,
              0);
}

TEST(RsyncOutputReaderTest, TotalOfAListThatGrows_IsThatOfItsLastLine) {
    Reading read(cFactory);
    read("\r  1,000,000  50%    0.00kB/s    0:00:00 (xfr#1, ir-chk=7/9)\n");
    read("\r  1,100,000  54%    0.00kB/s    0:00:00  ");
    const PassProgress whole =
        read("\r  1,200,000  59%    0.00kB/s    0:00:00 (xfr#2, to-chk=7/9)\n");
    EXPECT_NEAR(whole.share.value_or(0), 0.59, 1e-9) << "not of the two million of before";
}

TEST(RsyncOutputReaderTest, OnePerCent_IsAShare) {
    Reading read(cFactory);
    EXPECT_EQ(read("9000000 f1.mov\n\r      1,000,000   1%    0.00kB/s    0:00:00  ").share, 0.01);
}

TEST(RsyncOutputReaderTest, TotalThatContradictsWhatWasKnown_TakesItsPlace) {
    Reading read(cFactory);
    read("1000000 f1.mov\n\r      1,000,000  50%    0.00kB/s    0:00:00 (xfr#1, to-chk=7/9)\n");
    const PassProgress later =
        read("9000000 f2.mov\n\r      2,000,000  10%    0.00kB/s    0:00:00 (xfr#2, to-chk=6/9)\n");
    EXPECT_NEAR(static_cast<double>(later.bytesKnown.value_or(0)), 19e6, 1e6);
    EXPECT_EQ(Reading(cFactory)("\r  1,000,000  50%    0.00kB/s    0:00:00 (xfr#1, to-chk=7/9)"
                                "\r  2,000,000  10%    0.00kB/s    0:00:00 (xfr#2, to-chk=6/9)\n")
                  .share,
              0.1);
}

TEST(RsyncOutputReaderTest, TotalThatTwoLinesMeetIn_IsExact) {
    Reading read(cFactory);
    read("1000000 f1.mov\n\r      1,000,000   1%    0.00kB/s    0:00:00 (xfr#1, to-chk=7/9)\n");
    EXPECT_EQ(read("\r     50,000,000  49%    0.00kB/s    0:00:00  ").share, 0.5);
}

TEST(RsyncOutputReaderTest, ProgressBeforeMoreThanThat_IsNotWaitedFor) {
    const QByteArray progress("  5  13%  1.00kB/s  0:00:06  ");
    EXPECT_EQ(Reading(cFactory)(progress + QByteArray(30000, 'x') + "  ").bytesDone, 5);
    EXPECT_EQ(Reading(cFactory)(progress + QByteArray(33000, 'x') + "  ").bytesDone, std::nullopt);
}

TEST(RsyncOutputReaderTest, LineOf32KiB_IsTheLongestThatIsRead) {
    constexpr qsizetype cMost = qsizetype{32} * 1024;
    const auto named = [](const std::vector<QByteArray>& pieces) {
        Reading read(QStringLiteral("rsync -v a/ b/"));
        for (const QByteArray& piece : pieces)
            read(piece);
        read("next.mov\n");
        return read.filesNamed().value_or(0) - 1;
    };
    EXPECT_EQ(named({QByteArray(cMost, 'x') + '\n'}), 1);
    EXPECT_EQ(named({QByteArray(cMost + 1, 'x') + '\n'}), 0);
    EXPECT_EQ(named({QByteArray(cMost - 1, 'x'), "x\n"}), 1) << "in two pieces";
    EXPECT_EQ(named({QByteArray(cMost - 1, 'x'), "xx\n"}), 0);
    EXPECT_EQ(named({"x", QByteArray(cMost, 'x'), "\n"}), 0);
}

TEST(RsyncOutputReaderTest, ListThatStillGrows_HasNoShare) {
    Reading read(cFactory);
    const PassProgress now = read("\r  2,000,000  30%    2.00MB/s    0:00:01 (xfr#1, "
                                  "ir-chk=1001/1003)\n");
    EXPECT_FALSE(now.share);
    EXPECT_FALSE(now.filesKnown);
    EXPECT_EQ(now.bytesDone, 2'000'000);
}

TEST(RsyncOutputReaderTest, EmptyPull_IsWhole) {
    Reading read(cFactory);
    EXPECT_EQ(read("\r   0   0%    0.00kB/s    0:00:00 (xfr#0, to-chk=0/9)\n").share, 1);
}

TEST(RsyncOutputReaderTest, ProgressOfEachFile_IsTakenTogether) {
    Reading read(QStringLiteral("/usr/bin/rsync -r -P a/ b/"));
    const PassProgress first = read("sending incremental file list\nf1.mov\n"
                                    "\r         32,768   1%    0.00kB/s    0:00:00  ");
    EXPECT_EQ(first.file, QStringLiteral("f1.mov"));
    EXPECT_FALSE(first.share);
    const PassProgress ended =
        read("\r      3,000,000 100%    5.66MB/s    0:00:00 (xfr#1, to-chk=2/4)\nf2.mov\n");
    EXPECT_EQ(ended.share, 2.0 / 4);
    const PassProgress second = read("\r      1.500.000  50%    2.64MB/s    0:00:00  ");
    EXPECT_EQ(second.bytesDone, 4'500'000);
    EXPECT_EQ(second.share, 2.5 / 4) << "the place in the list";
    EXPECT_EQ(read("\r      3,000,000 150%    2.64MB/s    0:00:00  ").share, 3.0 / 4)
        << "no file is more than whole";
    const PassProgress end =
        read("\r          3.00M 100%    5.66MB/s    0:00:00 (xfr#2, to-chk=0/4)\n");
    EXPECT_EQ(end.bytesDone, 6'000'000);
    EXPECT_EQ(end.share, 1);
}

TEST(RsyncOutputReaderTest, SizesBeyondAllThatCanBeCounted_AreAsManyAsCanBe) {
    Reading read(QStringLiteral("/usr/bin/rsync -r -P a/ b/"));
    const QByteArray most = "\r 9,000,000,000,000,000,000 100%  1.00kB/s  0:00:00 ";
    constexpr qint64 cHalf = std::numeric_limits<qint64>::max() / 2;
    EXPECT_EQ(read(most + "(xfr#1, to-chk=2/4)\n").bytesDone, cHalf);
    EXPECT_EQ(read(most + "(xfr#2, to-chk=1/4)\n").bytesDone, 2 * cHalf);
}

TEST(RsyncOutputReaderTest, FoldersBehindTheLastFile_AreChecked) {
    Reading read(QStringLiteral("/usr/bin/rsync -r -P a/ b/"));
    read("\r      3,000,000 100%    5.66MB/s    0:00:00 (xfr#1, to-chk=2/4)\n");
    const PassProgress end =
        read("\r      3,000,000 100%    5.66MB/s    0:00:00 (xfr#1, to-chk=0/4)\n");
    EXPECT_EQ(end.share, 1);
    EXPECT_EQ(end.bytesDone, 3'000'000) << "the same file once more";
}

TEST(RsyncOutputReaderTest, TalkAmongTheNames_IsNoName) {
    Reading bare(QStringLiteral("rsync -rv a/ b/"));
    const PassProgress now = bare("receiving incremental file list\ncreated directory b\n./\nsub/\n"
                                  "sub/one.mov\ntwo.mov\n\nsent 65 bytes  received 80 bytes\n"
                                  "total size is 80,000  speedup is 1.00\n");
    EXPECT_EQ(now.filesDone, 1);
    EXPECT_EQ(bare.names(), (NameList{"sub/one.mov", "two.mov"}));
    Reading sized(cFactory);
    sized("Number of files: 9\n100 Number of files: 7\nsent 65 bytes\n");
    EXPECT_EQ(sized.names(), (NameList{"Number of files: 7"}));
    Reading items(QStringLiteral("rsync -rvi a/ b/"));
    items(">f+++++++++ f1.mov\ncd+++++++++ sub/\n.f..t...... old.mov\n");
    EXPECT_EQ(items.names(), (NameList{"f1.mov"}));
    Reading other(QStringLiteral("rsync --out-format='%o %f' a/ b/"));
    other("recv one.mov\n");
    EXPECT_EQ(other.names().size(), 0U);
}

TEST(RsyncOutputReaderTest, ControlCharacters_AreSpelledOut) {
    Reading read(QStringLiteral("rsync --out-format=%n a/ b/"));
    EXPECT_EQ(read("\x1b[31mred.mov\n").file, QStringLiteral("\\x1b[31mred.mov"));
}

TEST(RsyncOutputReaderTest, HostileOutput_TakesNoMemoryAndLittleTime) {
    const std::clock_t begin = std::clock();
    Reading read(cFactory);
    QByteArray names;
    for (int i = 0; i < 200'000; ++i)
        names += "1000 Features/Season 4/Episode " + QByteArray::number(i) + ".mov\n";
    read(names);
    for (int i = 0; i < 100; ++i)
        read(QByteArray(1'000'000, ' '));
    read("\n\r" + QByteArray(1'000'000, '9') + "\n" + QByteArray(1'000'000, '\r'));
    const PassProgress now =
        read("\n\r 99999999999999999999999 999%  9GB/s 99999999999999999:00:00  "
             "\r 9,000,000,000,000,000,000  1%  1.00kB/s  0:00:00 (xfr#9, to-chk=99/9)\n");
    EXPECT_FALSE(now.share.value_or(0) > 1);
    EXPECT_EQ(read.names().size(), RsyncOutputReader::cMostNames);
    EXPECT_LT(std::clock() - begin, 5 * CLOCKS_PER_SEC) << "of the processor, not of the wall";
}

TEST(RsyncOutputReaderTest, LongNames_AreCountedAndTakeNoMoreThanTheirShare) {
    Reading read(cFactory);
    QByteArray names;
    for (int i = 0; i < 300; ++i)
        names += "1 " + QByteArray::number(i) + QByteArray(30'000, 'x') + "\n";
    read(names);
    EXPECT_EQ(read.filesNamed(), 300);
    const qsizetype bytes = read.names().bytes();
    EXPECT_LE(bytes, RsyncOutputReader::cMostNameBytes);
    EXPECT_GT(bytes, RsyncOutputReader::cMostNameBytes - 31'000);
    constexpr qsizetype cEach = RsyncOutputReader::cMostNameBytes / 1024;
    Reading exact(cFactory);
    for (int i = 0; i < 1025; ++i)
        exact("1 " + QByteArray(cEach, 'x') + "\n");
    EXPECT_EQ(exact.names().size(), 1024U) << "to the last byte";
}

TEST(RsyncOutputReaderTest, FilesNamed_AreToldWhereTheLinesTellThem) {
    for (const char* silent : {"rsync a b", "rsync --out-format='%f' a b"}) {
        Reading read(QString::fromLatin1(silent));
        read("one\n");
        EXPECT_EQ(read.filesNamed(), std::nullopt) << silent;
    }
    Reading read(QStringLiteral("rsync -v a b"));
    read("folder/\none\ntwo\nsent 5 bytes  received 7 bytes\n");
    EXPECT_EQ(read.filesNamed(), 2);
}

// -- what is kept of the text

TEST(WithoutProgressTest, Names_StandAloneOnTheirLines) {
    EXPECT_EQ(withoutProgress(QString::fromUtf8(cFirstPull)),
              QStringLiteral("4096 ./\n3000000 f1.mov\n3000000 f2.mov\n3000000 f3.mov\n"
                             "3000000 f4.mov\n3000000 f5.mov\n4096 sub/\n"
                             "0 sub/bad\\#377\\#012nl.mov\n1000000 sub/g.mov\n"
                             "\nNumber of files: 9 (reg: 7, dir: 2)\n"));
}

TEST(WithoutProgressTest, WordsBehindTheProgress_Stay) {
    EXPECT_EQ(withoutProgress(QStringLiteral(
                  "a.mov\n\r     32,768   0%    1.00kB/s    0:00:05  Connection to mac closed.\r\n"
                  "rsync error: unexplained error (code 255)\n")),
              QStringLiteral("a.mov\nConnection to mac closed.\n"
                             "rsync error: unexplained error (code 255)\n"));
    EXPECT_EQ(withoutProgress(QStringLiteral("10%\r20%\rdone\nrest")),
              QStringLiteral("done\nrest"));
    EXPECT_EQ(withoutProgress(QStringLiteral("10%\r7 movies came\n")),
              QStringLiteral("7 movies came\n"));
}

TEST(WithoutProgressTest, OtherTexts_StayAsTheyAre) {
    for (const QString& text : {QString(), QStringLiteral("one\n\n two "), QStringLiteral("\n")})
        EXPECT_EQ(withoutProgress(text), text);
}

} // namespace
} // namespace kelvo
