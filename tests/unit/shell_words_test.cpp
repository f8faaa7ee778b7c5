#include "support/shell_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cOdd = QStringLiteral("a b'c\"$(d)`e`\\");

std::optional<QString> filled(const char* command, const QString& value = cOdd) {
    return withWord(QString::fromUtf8(command), u"%@1", value);
}

TEST(ShellWordsTest, Quotes_AreThoseAroundThePlace) {
    const QString bare = QStringLiteral("a\\ b\\'c\\\"\\$\\(d\\)\\`e\\`\\\\");
    const QString doubled = QStringLiteral("a b'c\\\"\\$(d)\\`e\\`\\\\");
    const QString single = QStringLiteral("a b'\\''c\"$(d)`e`\\");
    EXPECT_EQ(filled("x %@1 y"), QString(u"x " + bare + u" y"));
    EXPECT_EQ(filled("x \"%@1\" y"), QString(u"x \"" + doubled + u"\" y"));
    EXPECT_EQ(filled("x '%@1' y"), QString(u"x '" + single + u"' y"));
    EXPECT_EQ(filled("%@1\"%@1\"'%@1'%@1"),
              QString(bare + u'"' + doubled + u"\"'" + single + u'\'' + bare));
}

TEST(ShellWordsTest, SignsBeyondAscii_NeedNoQuotes) {
    EXPECT_EQ(filled("x %@1", QString(QChar(0x80))), QString(u"x " + QString(QChar(0x80))));
}

TEST(ShellWordsTest, QuotesThatAreNoQuotes_AreSeen) {
    const QString bare = withoutQuotes(cOdd);
    const QString doubled = insideDoubleQuotes(cOdd);
    EXPECT_EQ(filled("it\\'s %@1"), QString(u"it\\'s " + bare));
    EXPECT_EQ(filled("\"it's\" %@1"), QString(u"\"it's\" " + bare));
    EXPECT_EQ(filled("'a\"\\' \"%@1\""), QString(u"'a\"\\' \"" + doubled + u'"'));
    EXPECT_EQ(filled("\"a\\\"b\"\"%@1\""), QString(u"\"a\\\"b\"\"" + doubled + u'"'));
    EXPECT_EQ(filled("${HOME}\"${HOME}%@1\""), QString(u"${HOME}\"${HOME}" + doubled + u'"'));
    EXPECT_EQ(filled("${X---a=b.c} \"%@1\""), QString(u"${X---a=b.c} \"" + doubled + u'"'));
    for (const char* unsure : {"${X-a b}", "${X-'a'}", "${X-$Y}", "${X:-a}", "${X=a}", "${X-a"}) {
        const QByteArray command = QByteArray(unsure) + " \"%@1\"";
        EXPECT_EQ(filled(command.constData()), std::nullopt) << unsure;
    }
    EXPECT_EQ(filled("a#' %@1 '"), std::nullopt);
}

TEST(ShellWordsTest, Remark_BeginsOnlyWhereAWordDoes) {
    const QString doubled = insideDoubleQuotes(cOdd);
    for (const char* before : {"lowercase x", "a#b", "\\ #b", "\"\"#b", "${x}#b", "'x'#b", "x_#",
                               "x~#b", "\\case x", "\"\"case x"}) {
        const QByteArray command = QByteArray(before) + " \"%@1\"";
        EXPECT_EQ(filled(command.constData()),
                  QString(QString::fromUtf8(before) + u" \"" + doubled + u'"'))
            << before;
    }
    for (const char sign : QByteArrayView(" \t\n;|&()<>")) {
        const QByteArray remark = QByteArray("x") + sign + "# \"%@1\"";
        EXPECT_EQ(filled(remark.constData()), std::nullopt) << remark.constData();
    }
    for (const char* remark :
         {"# \"%@1\"", "$(# x\n) \"%@1\"", "x$(# y\n) \"%@1\"", "case x \"%@1\"", "${x \"%@1\""})
        EXPECT_EQ(filled(remark), std::nullopt) << remark;
}

TEST(ShellWordsTest, SubstitutedCommand_HasQuotesOfItsOwn) {
    EXPECT_EQ(filled("\"$(f \"%@1\" %@1)\" '%@1'"),
              QString(u"\"$(f \"" + insideDoubleQuotes(cOdd) + u"\" " + withoutQuotes(cOdd) +
                      u")\" '" + insideSingleQuotes(cOdd) + u'\''));
    EXPECT_EQ(filled("(cd x; y %@1) \"%@1\""), QString(u"(cd x; y " + withoutQuotes(cOdd) +
                                                       u") \"" + insideDoubleQuotes(cOdd) + u'"'));
    EXPECT_EQ(filled("\"$( (x) \"%@1\")\""),
              QString(u"\"$( (x) \"" + insideDoubleQuotes(cOdd) + u"\")\""));
}

TEST(ShellWordsTest, PlaceThatIsNotUnderstood_TakesOrdinaryTextsOnly) {
    for (const char* command : {"`x %@1`",
                                "`x` %@1",
                                "\"`x \\\"%@1\\\"`\"",
                                "$((%@1))",
                                "((%@1))",
                                "x <<E\n%@1\nE",
                                "${x:-%@1}",
                                "\"${x#%@1}\"",
                                "$'%@1'",
                                "\\%@1",
                                "$%@1",
                                "\"\\%@1\"",
                                "\"$%@1\"",
                                "# it's\nx \"%@1\"",
                                "$(case x in x) y \"%@1\";; esac)",
                                "sh -c 'x \"%@1\"'",
                                "sh -c \"x '%@1'\"",
                                "sh -c 'x %@1'",
                                "sh -c \"x %@1\"",
                                "-e 'ssh -i \"%@1\"'",
                                "-e \"ssh -o 'X=y' -i %@1\"",
                                "-e 'ssh -o \"X=y\" -i %@1'"}) {
        EXPECT_EQ(filled(command), std::nullopt) << command;
        EXPECT_EQ(filled(command, QStringLiteral("~/x")), std::nullopt) << command;
        const QString ordinary = QStringLiteral("u@h:/Films_1.5-a~b+c,d=50%é🎬");
        EXPECT_EQ(filled(command, ordinary), QString::fromUtf8(command).replace("%@1", ordinary))
            << command;
    }
}

TEST(ShellWordsTest, BlanksRightBehindInnerQuotes_AreOrdinary) {
    EXPECT_EQ(filled("sh -c 'x \"%@1\"'", QStringLiteral("My Films")),
              QStringLiteral("sh -c 'x \"My Films\"'"));
    EXPECT_EQ(filled("sh -c 'x %@1'", QStringLiteral("My Films")), std::nullopt);
}

TEST(ShellWordsTest, OrdinaryTexts_AreLeftAsTheyAre) {
    const QString ordinary = QStringLiteral("/Users/ann-1/a.b_c:d@e~f+g,h=i%j/é漢🎬");
    EXPECT_EQ(withoutQuotes(ordinary), ordinary);
    EXPECT_EQ(insideDoubleQuotes(QString(ordinary + u" 'x'")), QString(ordinary + u" 'x'"));
    EXPECT_EQ(insideSingleQuotes(QString(ordinary + u" \"$x\"")), QString(ordinary + u" \"$x\""));
    EXPECT_EQ(withoutQuotes(u"~/x~"), QStringLiteral("\\~/x~"));
    EXPECT_EQ(filled("no place 'here", cOdd), QStringLiteral("no place 'here"));
}

TEST(ShellWordsTest, WordOfARemoteShellCommand_IsQuotedAsRsyncReadsIt) {
    EXPECT_EQ(filled("-e 'ssh -i %@1'", QStringLiteral("a \"b' c")),
              QStringLiteral("-e 'ssh -i \"a \"\"b'\\'' c\"'"));
    EXPECT_EQ(filled("-e \"/usr/bin/ssh -i %@1\"", QStringLiteral("$a")),
              QStringLiteral("-e \"/usr/bin/ssh -i \\$a\""));
    EXPECT_EQ(filled("-e 'other -i %@1'", QStringLiteral("a b")), std::nullopt);
}

TEST(ShellWordsTest, PieceOfACommand_StaysOneInQuotes) {
    const auto piece = [](const char* command, const char* value) {
        return withFillings(
            QString::fromUtf8(command),
            {{QStringLiteral("%@98"), QStringLiteral("-e 'a $b'"), QString::fromUtf8(value)}});
    };
    EXPECT_EQ(piece("x %@98", "$b"), QStringLiteral("x -e 'a $b'"));
    EXPECT_EQ(piece("x \"%@98\"", "$b"), QStringLiteral("x \"-e 'a \\$b'\""));
    EXPECT_EQ(piece("x '%@98'", "b"), QStringLiteral("x '-e '\\''a $b'\\'''"));
    EXPECT_EQ(piece("`x %@98`", "$b"), std::nullopt);
    EXPECT_EQ(piece("`x %@98`", "b"), QStringLiteral("`x -e 'a $b'`"));
}

TEST(ShellWordsTest, PlaceholderInAText_StaysThere) {
    const auto both = [](const char* first, const char* second) {
        return withFillings(QStringLiteral("x \"%@2\" %@1 '%@98' %@2"),
                            {{QStringLiteral("%@1"), QString::fromUtf8(first)},
                             {QStringLiteral("%@2"), QString::fromUtf8(second)},
                             {QStringLiteral("%@98"), QStringLiteral("-e %@1"), QString()}});
    };
    EXPECT_EQ(both("a", "b"), QStringLiteral("x \"b\" a '-e %@1' b"));
    EXPECT_EQ(both("/%@2/%@98", "%@1"), QStringLiteral("x \"%@1\" /%@2/%@98 '-e %@1' %@1"));
    EXPECT_EQ(both("'%@", "2$"), QStringLiteral("x \"2\\$\" \\'%@ '-e %@1' 2\\$"));
}

TEST(ShellWordsTest, WhatIsNoWord_IsNamed) {
    EXPECT_EQ(wordFault(u""), QString());
    EXPECT_EQ(wordFault(u"a-\t \x7f\"$(x)é🎬"), QString());
    EXPECT_EQ(wordFault(u"-a"), QStringLiteral("begins with \"-\""));
    EXPECT_EQ(wordFault(u"a\nb"), QStringLiteral("holds a line break"));
    EXPECT_EQ(wordFault(u"a\rb"), QStringLiteral("holds a line break"));
    EXPECT_EQ(wordFault(QStringView(u"a\0b", 3)), QStringLiteral("holds a zero"));
    const char16_t half[] = {u'a', 0xd83d, 0};
    EXPECT_EQ(wordFault(half), QStringLiteral("holds signs that are no text"));
    EXPECT_EQ(wordFault(u"a\ufffd"), QStringLiteral("holds signs that are no text"));
}

} // namespace
} // namespace kelvo
