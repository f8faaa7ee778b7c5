#include "ui/widgets/breakable_text.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cBreak(QChar(0x200b));

TEST(BreakableTextTest, WordsOfUsualLength_StayAsTheyAre) {
    const QString longest(32, u'm');
    for (const QString& text : {QString(), QStringLiteral("one two"), longest,
                                QString(longest + u' ' + longest + u'\n' + longest + u' ')})
        EXPECT_EQ(breakable(text), text);
}

TEST(BreakableTextTest, LongerWord_MayBreakBetweenItsLettersOnly) {
    const QString word(33, u'm');
    QString broken = breakable(QString(u"a " + word + u" b"));
    EXPECT_EQ(broken.count(cBreak), 32);
    EXPECT_FALSE(broken.contains(QString(cBreak + u' ')));
    EXPECT_FALSE(broken.contains(QString(u' ' + cBreak)));
    EXPECT_EQ(broken.remove(cBreak), QString(u"a " + word + u" b"));
}

TEST(BreakableTextTest, LetterOfSeveralSigns_StaysWhole) {
    const QString composed = QStringLiteral("e\u0301");         // an accent of its own
    const QString pair = QString::fromUtf8("\xf0\x9f\x8e\xac"); // two halves
    for (const QString& letter : {composed, pair}) {
        QStringList letters;
        for (int i = 0; i < 20; ++i)
            letters.append(letter);
        EXPECT_EQ(breakable(letters.join(QString())), letters.join(cBreak));
    }
}

TEST(BreakableTextTest, EasternScripts_BreakByThemselves) {
    const QString first(40, QChar(0x2e80));
    const QString mixed = QString(31, u'm') + QChar(0x4e00) + QString(31, u'm');
    EXPECT_EQ(breakable(first), first);
    EXPECT_EQ(breakable(mixed), mixed) << "such a letter ends a word";
    EXPECT_EQ(breakable(QString(40, QChar(0x2e7f))).count(cBreak), 39);
}

} // namespace
} // namespace kelvo
