// How much of a command's text is kept.
#include "passes/captured_text.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(CapturedTextTest, ShortText_IsWhole) {
    const auto text = capturedText(u"out\n", u"err\n");
    EXPECT_EQ(text.head, QStringLiteral("out\nerr\n"));
    EXPECT_EQ(text.leftOut, 0);
    EXPECT_EQ(linesOf(text), (QStringList{QStringLiteral("out"), QStringLiteral("err")}));
}

TEST(CapturedTextTest, LongText_KeepsItsEndsAndCountsTheRest) {
    for (const QString& unit : {QStringLiteral("a"), QStringLiteral("é"), QStringLiteral("映"),
                                QStringLiteral("\U0001F3AC")}) {
        const QString whole = unit.repeated(50000);
        const auto text = capturedText(whole);
        const qint64 bytes = whole.toUtf8().size();
        if (text.leftOut == 0) {
            EXPECT_EQ(text.head, whole);
            continue;
        }
        EXPECT_LE(text.head.toUtf8().size(), cKeptText);
        EXPECT_GT(text.head.toUtf8().size(), cKeptText - 4);
        EXPECT_LE(text.tail.toUtf8().size(), cKeptText);
        EXPECT_GT(text.tail.toUtf8().size(), cKeptText - 4);
        EXPECT_EQ(text.head.toUtf8().size() + text.tail.toUtf8().size() + text.leftOut, bytes);
        EXPECT_TRUE(whole.startsWith(text.head) && whole.endsWith(text.tail));
    }
}

TEST(CapturedTextTest, PlainSignsBehindOthers_TakeNoMoreThanTheRest) {
    const QString whole = QStringLiteral("é") + QString(200000, u'a');
    EXPECT_EQ(capturedText(whole).head.toUtf8().size(), cKeptText);
}

TEST(CapturedTextTest, ErrorsAfterALongOutput_EndTheTail) {
    const QString output = QString(100000, u'o');
    const QString errors = QStringLiteral("the reason\n");
    const auto text = capturedText(output, errors);
    EXPECT_TRUE(text.tail.endsWith(errors));
    EXPECT_EQ(text.head.size() + text.tail.size() + text.leftOut, output.size() + errors.size());
}

TEST(CapturedTextTest, SixtyFourKibibytes_StayWholeWhateverTheCharactersAre) {
    const auto unit = [](char16_t code) { return QString(QChar(code)); };
    for (const auto& [text, bytes] :
         {std::pair(unit(0x7f), 1), std::pair(unit(0x80), 2), std::pair(unit(0x7ff), 2),
          std::pair(unit(0x800), 3), std::pair(unit(0xffff), 3), std::pair(unit(0xd83c), 3),
          std::pair(unit(0xdfac), 3), std::pair(QStringLiteral("\U0001F3AC"), 4)}) {
        const QString most = text.repeated(2 * cKeptText / bytes);
        EXPECT_EQ(capturedText(most).head, most) << bytes;
        EXPECT_EQ(capturedText(most).leftOut, 0) << bytes;
        const CapturedText cut = capturedText(QString(most + text));
        EXPECT_EQ(cut.head, text.repeated(cKeptText / bytes)) << bytes;
        EXPECT_EQ(cut.tail, cut.head) << bytes;
        EXPECT_EQ(cut.leftOut, (2 * cKeptText / bytes + 1 - 2 * (cKeptText / bytes)) * bytes)
            << bytes;
    }
}

TEST(CapturedTextTest, HalfAPairAtTheEndOfTheText_IsACharacterOfItsOwn) {
    const QString pairs = QStringLiteral("\U0001F3AC").repeated(2);
    const QStringView half = QStringView(pairs).first(3);
    EXPECT_EQ(capturedText(half).head, half);
    const QString whole = QString(100'000, u'x') + pairs;
    const auto text = capturedText(QStringView(whole).chopped(1));
    EXPECT_TRUE(text.tail.endsWith(half));
    EXPECT_EQ(text.head.size(), cKeptText);
    EXPECT_EQ(text.leftOut, 100'007 - 2 * cKeptText);
}

TEST(CapturedTextTest, ErrorsThatFillTheTail_PushTheOutputOut) {
    const QString output(100'000, u'o');
    const QString errors(40'000, u'e');
    const auto text = capturedText(output, errors);
    EXPECT_EQ(text.head, QString(cKeptText, u'o'));
    EXPECT_EQ(text.tail, QString(cKeptText, u'e'));
    EXPECT_EQ(text.leftOut, 140'000 - 2 * cKeptText);
    const auto both = capturedText(QString(40'000, u'o'), errors);
    EXPECT_EQ(both.head, QString(cKeptText, u'o')) << "neither is too long by itself";
    EXPECT_EQ(both.leftOut, 80'000 - 2 * cKeptText);
}

TEST(CapturedTextTest, Lines_AreThoseOfBothEndsBetweenEveryKindOfLineEnd) {
    const CapturedText text{QStringLiteral("one\r two \n\n  \n"), QStringLiteral("three\rfour"), 9};
    EXPECT_EQ(linesOf(text), (QStringList{QStringLiteral("one"), QStringLiteral("two"),
                                          QStringLiteral("three"), QStringLiteral("four")}));
}

} // namespace
} // namespace kelvo
