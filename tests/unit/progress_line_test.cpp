// The line that rsync writes over and over, read sign by sign.
#include "passes/progress_line.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// A line with one of its four figures another one.
std::optional<ProgressLine> with(const QByteArray& bytes, const QByteArray& percent = "13%",
                                 const QByteArray& rate = "1.95MB/s",
                                 const QByteArray& time = "0:00:06", const QByteArray& end = {}) {
    const QByteArray text = "  " + bytes + "  " + percent + "  " + rate + "  " + time + " " + end;
    return progressLineIn(text);
}

TEST(ProgressLineTest, EachFigure_IsRead) {
    const QByteArray text = "      2,097,152  13%    1.95MB/s    0:00:06  ";
    const auto line = progressLineIn(text);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->bytes, 2'097'152);
    EXPECT_EQ(line->percent, 13);
    EXPECT_DOUBLE_EQ(line->bytesPerSecond, 1.95 * 1024 * 1024);
    EXPECT_EQ(line->seconds, 6);
    EXPECT_FALSE(line->fileEnd);
    EXPECT_EQ(line->length, text.size());
    const QByteArray ended = text + "(xfr#1, to-chk=7/9) more";
    EXPECT_EQ(progressLineIn(ended).value_or(ProgressLine()).length, text.size() + 20);
}

TEST(ProgressLineTest, Bytes_AreWrittenInFullOrWithALetter) {
    const auto bytes = [](const char* figure) {
        const auto line = with(figure);
        return line ? line->bytes : -1;
    };
    EXPECT_EQ(bytes("0"), 0);
    EXPECT_EQ(bytes("1.234.567"), 1'234'567);
    EXPECT_EQ(bytes("1.25K"), 1250);
    EXPECT_EQ(bytes("1,25M"), 1'250'000);
    EXPECT_EQ(bytes("12.5G"), 12'500'000'000);
    EXPECT_EQ(bytes("1.25T"), 1'250'000'000'000);
    EXPECT_EQ(bytes("1.25P"), 1'250'000'000'000'000);
    EXPECT_EQ(bytes("7K"), 7000);
    EXPECT_EQ(bytes("9,000,000,000,000,000,000"), 9'000'000'000'000'000'000);
    EXPECT_EQ(bytes("9,100,000,000,000,000,000"), -1) << "more than can be counted";
    EXPECT_EQ(bytes("000000000000000000000000000005"), 5);
    EXPECT_EQ(bytes("0000000000000000000000000000005"), -1) << "31 signs";
    for (const char* none : {"", "x", "1.25X", "1K5", "-5"})
        EXPECT_EQ(bytes(none), -1) << none;
    EXPECT_FALSE(progressLineIn("  1K5%    1.95MB/s    0:00:06  ")) << "no blank behind the bytes";
    EXPECT_FALSE(progressLineIn("  1~   5%    1.95MB/s    0:00:06  "));
}

TEST(ProgressLineTest, Percentage_MayPassAHundredButNotGoAstray) {
    const auto percent = [](const char* figure) {
        const auto line = with("5", figure);
        return line ? line->percent : -1;
    };
    EXPECT_EQ(percent("0%"), 0);
    EXPECT_EQ(percent("9%"), 9);
    EXPECT_EQ(percent("1000%"), 1000);
    EXPECT_EQ(percent("1001%"), -1);
    EXPECT_EQ(percent("000000000000000013%"), 13);
    EXPECT_EQ(percent("0000000000000000013%"), -1) << "19 digits";
    for (const char* none : {"", "%", "13", "1:%", "1/%", "13 %"})
        EXPECT_EQ(percent(none), -1) << none;
}

TEST(ProgressLineTest, Rate_HasOneOfThreeUnits) {
    const auto rate = [](const char* figure) {
        const auto line = with("5", "13%", figure);
        return line ? line->bytesPerSecond : -1;
    };
    EXPECT_DOUBLE_EQ(rate("0.00kB/s"), 0);
    EXPECT_DOUBLE_EQ(rate("12.50kB/s"), 12.5 * 1024);
    EXPECT_DOUBLE_EQ(rate("12,50MB/s"), 12.5 * 1024 * 1024);
    EXPECT_DOUBLE_EQ(rate("3GB/s"), 3.0 * 1024 * 1024 * 1024);
    for (const char* none : {"", "kB/s", "1.00", "1.00B/s", "1.00TB/s", "1.00kB", "1.00 kB/s"})
        EXPECT_DOUBLE_EQ(rate(none), -1) << none;
}

TEST(ProgressLineTest, Time_IsHoursMinutesAndSecondsOrNotKnown) {
    const auto seconds = [](const char* figure) -> std::optional<qint64> {
        const auto line = with("5", "13%", "1.00kB/s", figure);
        return line ? line->seconds : std::optional<qint64>(-1);
    };
    EXPECT_EQ(seconds("1:02:03"), 3723);
    EXPECT_EQ(seconds("0:59:59"), 3599);
    EXPECT_EQ(seconds("1000000:00:00"), 3'600'000'000);
    EXPECT_EQ(seconds("??:??:??"), std::nullopt);
    for (const char* none :
         {"", "0", "1000001:00:00", "0:60:00", "0:00:60", "0:00", "0-00:00", "0:00-00", ":00:00",
          "0::00", "0:00:", "??:??:?", "0000000000000000001:02", "0:0000000000000000001"})
        EXPECT_EQ(seconds(none), -1) << none;
    EXPECT_FALSE(progressLineIn("  5  13%  1.00kB/s  0:00:06")) << "it may go on";
}

TEST(ProgressLineTest, EndOfAFile_IsReadInEachSpelling) {
    const auto end = [](const char* text) {
        const auto line = with("5", "13%", "1.00kB/s", "0:00:06", text);
        return line ? line->fileEnd : std::nullopt;
    };
    const auto whole = end("(xfr#2, to-chk=7/9)");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->transferred, 2);
    EXPECT_EQ(whole->unchecked, 7);
    EXPECT_EQ(whole->entries, 9);
    EXPECT_TRUE(whole->listIsWhole);
    const auto growing = end("(xfer#9, ir-check=9/9)");
    ASSERT_TRUE(growing);
    EXPECT_EQ(growing->transferred, 9);
    EXPECT_EQ(growing->unchecked, 9);
    EXPECT_FALSE(growing->listIsWhole);
    EXPECT_TRUE(end("(xfr#1, to-check=1/9)"));
    EXPECT_TRUE(end("(xfr#1, ir-chk=1/9)"));
    for (const char* none :
         {"(xfr#2, to-chk=10/9)", "(xfr#10, to-chk=1/9)", "(xfr#2, to-chk=7/9",
          "(xfr#2 to-chk=7/9)", "(xfr#2, chk=7/9)", "(xfr#2, to-7/9)", "(xfr#, to-chk=7/9)",
          "2, to-chk=7/9)", "(xfr#2to-chk=7/9)", "(xfr#2, to-chk=/9)", "(xfr#2, to-chk=7)",
          "(xfr#2, to-chk=7/)", "xfr#2, to-chk=7/9)"})
        EXPECT_FALSE(end(none)) << none;
    const QByteArrayView more("  5  13%  1.00kB/s  0:00:06 (xfr#2, to-chk=7/9)");
    EXPECT_TRUE(progressLineIn(more)->fileEnd);
    EXPECT_FALSE(progressLineIn(more.chopped(1))->fileEnd) << "what stands behind is not read";
}

TEST(ProgressLineTest, LineOfMoreThan160Signs_IsNone) {
    const QByteArray line = "1 1% 1.00kB/s 0:00:01 ";
    EXPECT_TRUE(progressLineIn(line.rightJustified(160)));
    EXPECT_FALSE(progressLineIn(line.rightJustified(161)));
    EXPECT_FALSE(progressLineIn(""));
}

TEST(WithoutProgressTest, WhatWasWrittenOver_GoesWithItsLine) {
    const QString progress = QStringLiteral("  5  13%  1.00kB/s  0:00:06  ");
    for (const auto& [output, stays] :
         {std::pair(QString(u"one\n\r" + progress + u"\ntwo\n"), "one\ntwo\n"),
          std::pair(QString(u'\r' + progress + u'\r'), ""),
          std::pair(QString(u'\r' + progress.sliced(1) + u'\r'), ""),
          std::pair(QStringLiteral("one\r\n\ntwo\r\r\n"), "one\n\ntwo\n"),
          std::pair(QString(progress + u"\rname\n"), "name\n"),
          std::pair(QString(u'\r' + progress.trimmed() + u" name\nrest"), "name\nrest"),
          std::pair(QStringLiteral("x\ry 5\n"), "y 5\n")})
        EXPECT_EQ(withoutProgress(output), QString::fromLatin1(stays)) << qPrintable(output);
}

} // namespace
} // namespace kelvo
