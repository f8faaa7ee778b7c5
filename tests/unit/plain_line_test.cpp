#include "support/plain_line.h"

#include <gtest/gtest.h>

#include <utility>

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
    // The bytes before and behind put each border amid a character.
    const QString pairs = QStringLiteral("\U0001f3ac").repeated(10000);
    const QString euros = QStringLiteral("\u20ac").repeated(10000);
    const std::pair<QString, QString> cases[]{
        {pairs, QString()}, {pairs, QStringLiteral("xx")}, {euros, QString()}};
    for (const auto& [wide, end] : cases) {
        const QString text = u'x' + wide + u'x' + wide + u"xx" + wide + end;
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

TEST(PlainLineTest, SignsBesideTheControls_StandAsTheyAre) {
    const QString plain =
        QStringLiteral(" ~\u00a0\u061b\u061d\u200d\u2010\u2027\u202f\u2065\u206a");
    EXPECT_EQ(withVisibleControls(plain), plain);
    EXPECT_EQ(
        withVisibleControls(u"\x01\x1f\u0080\u009f\u061c\u200e\u200f\u2028\u202e\u2066\u2069"),
        u"\\x01\\x1f\\x80\\x9f\\u061c\\u200e\\u200f\\u2028\\u202e\\u2066\\u2069");
    EXPECT_EQ(withVisibleControls(QStringView(u"\0", 1)), u"\\x00");
}

TEST(PlainLineTest, NameFromElsewhere_StandsOnOneLine) {
    EXPECT_EQ(oneLine(u"a\tb\nc\x1b\\"), u"a\\x09b\\x0ac\\x1b\\");
}

TEST(PlainLineTest, Bytes_AreThoseOfUtf8) {
    for (const char16_t code : {u'\x7f', u'\x80', u'\u07ff', u'\u0800', u'\uffff'}) {
        const QString unit{QChar(code)};
        const qsizetype bytes = unit.toUtf8().size();
        const QString most = unit.repeated(64 * 1024 / bytes);
        EXPECT_EQ(shortenedLine({most}), most) << int(code);
        const QString half = unit.repeated(32 * 1024 / bytes);
        const qsizetype left = (most.size() + 1) * bytes - 2 * half.size() * bytes;
        EXPECT_EQ(shortenedLine({most, unit}),
                  QString(half + u" … (" + QString::number(left) + u" bytes left out) … " + half))
            << int(code);
    }
}

TEST(PlainLineTest, Pieces_AreOneTextHoweverTheyAreCut) {
    const QString text = QString(40'000, u'a') + QString(40'000, u'b');
    const QString whole = shortenedLine({text});
    EXPECT_EQ(
        shortenedLine({text.first(7), text.sliced(7, 60'000), QString(), text.sliced(60'007)}),
        whole);
    EXPECT_TRUE(whole.startsWith(QString(32 * 1024, u'a') + u" … (14464 bytes"));
    EXPECT_TRUE(whole.endsWith(QString(u"… " + QString(32 * 1024, u'b'))));
}

} // namespace
} // namespace kelvo
