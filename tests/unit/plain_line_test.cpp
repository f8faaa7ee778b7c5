#include "support/plain_line.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(PlainLineTest, ControlCharacters_AreSpelledOutButTabAndLineEnd) {
    EXPECT_EQ(withVisibleControls(u"a\tb\nc\r\x1b[1m\x7f\u0085"),
              u"a\tb\nc\\x0d\\x1b[1m\\x7f\\x85");
    EXPECT_EQ(withVisibleControls(u"\u202ex\u2066\u2029"), u"\\u202ex\\u2066\\u2029");
    EXPECT_EQ(withVisibleControls(u"\u20ac \U0001f3ac \\"), u"\u20ac \U0001f3ac \\");
}

TEST(PlainLineTest, LineOfSixtyFourKibibytes_StaysWhole) {
    const QString text(64 * 1024, u'x');
    EXPECT_EQ(shortenedLine({text}), text);
    EXPECT_EQ(shortenedLine({}), QString());
}

TEST(PlainLineTest, LongerLine_SaysHowMuchIsMissing) {
    const QString end(32 * 1024, u'x');
    EXPECT_EQ(shortenedLine({end + u'y', end}), end + u" … (1 bytes left out) … " + end);
}

TEST(PlainLineTest, Cut_FallsBetweenCharacters) {
    // One byte before it puts each border amid a character.
    const QString pairs = QStringLiteral("\U0001f3ac").repeated(10000);
    const QString euros = QStringLiteral("\u20ac").repeated(10000);
    for (const QString& wide : {pairs, euros}) {
        const QString text = u'x' + wide + u'x' + wide + u"xx" + wide;
        const QString line = shortenedLine({text});
        const QStringList parts = line.split(QStringLiteral(" … "));
        ASSERT_EQ(parts.size(), 3);
        const QString first = parts.constFirst();
        const QString last = parts.constLast();
        EXPECT_TRUE(text.startsWith(first));
        EXPECT_TRUE(text.endsWith(last));
        EXPECT_FALSE(first.back().isHighSurrogate());
        EXPECT_FALSE(last.front().isLowSurrogate());
        const auto left = text.toUtf8().size() - first.toUtf8().size() - last.toUtf8().size();
        EXPECT_EQ(parts.at(1), QStringLiteral("(%1 bytes left out)").arg(left));
        EXPECT_GT(first.toUtf8().size(), 32 * 1024 - 4);
        EXPECT_GT(last.toUtf8().size(), 32 * 1024 - 4);
    }
}

TEST(PlainLineTest, LogLine_MarksTheLinesInside) {
    EXPECT_EQ(logLine({QStringLiteral("a\n"), QStringLiteral("b\n")}), u"a\n    | b\n    | ");
}

} // namespace
} // namespace kelvo
