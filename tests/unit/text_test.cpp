#include "support/text.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(TextTest, Trimmed_DropsEveryKindOfWhiteSpaceAndLineEnd) {
    EXPECT_EQ(trimmedText(u" \t\r\n\u0085\u00a0\u2028\u2029\u3000abc d\v\f "), u"abc d");
    EXPECT_EQ(trimmedText(u" \n "), u"");
}

TEST(TextTest, TrailingSlash_IsKeptOrAdded) {
    EXPECT_EQ(withTrailingSlash(u"abc"), u"abc/");
    EXPECT_EQ(withTrailingSlash(u"abc/"), u"abc/");
    EXPECT_EQ(withTrailingSlash(u"  /Volumes/x\n"), u"/Volumes/x/");
    EXPECT_EQ(withTrailingSlash(u""), u"/");
    EXPECT_EQ(withTrailingSlash(u"/"), u"/");
    EXPECT_EQ(withTrailingSlash(u"a b"), u"a b/");
}

TEST(TextTest, Tilde_BecomesTheHomeFolderOnlyWhenItStandsAlone) {
    EXPECT_EQ(expandingTilde(u"~", u"/home/ann"), u"/home/ann");
    EXPECT_EQ(expandingTilde(u"~/.ssh/id", u"/home/ann"), u"/home/ann/.ssh/id");
    EXPECT_EQ(expandingTilde(u"~bob/x", u"/home/ann"), u"~bob/x");
    EXPECT_EQ(expandingTilde(u"/a/~/b", u"/home/ann"), u"/a/~/b");
    EXPECT_EQ(expandingTilde(u"", u"/home/ann"), u"");
}

TEST(TextTest, InsideLine_JoinsTypeOperationAndDetail) {
    EXPECT_EQ(insideLine(cViewControllerTypeName, u"viewDidLoad()"),
              u"Inside Kelvo_Mirror.ViewController->viewDidLoad().......");
    EXPECT_EQ(insideLine(u"String", u"f()", u""), u"Inside String->f()");
}

TEST(TextTest, OptionalText_TellsNothingFromEmpty) {
    EXPECT_EQ(optionalText(QStringLiteral("/a b")), u"Optional(\"/a b\")");
    EXPECT_EQ(optionalText(QString()), u"Optional(\"\")");
    EXPECT_EQ(optionalText(std::nullopt), u"nil");
}

TEST(TextTest, PathComponents_AreJoinedByOneSlash) {
    EXPECT_EQ(appendingPathComponent(u"/a", u"b"), u"/a/b");
    EXPECT_EQ(appendingPathComponent(u"/a/", u"/b//c/"), u"/a/b/c");
    EXPECT_EQ(appendingPathComponent(u".", u"/Volumes/Macintosh HD"), u"./Volumes/Macintosh HD");
    EXPECT_EQ(appendingPathComponent(u"/a", u""), u"/a");
    EXPECT_EQ(appendingPathComponent(u".", u""), u".");
    EXPECT_EQ(appendingPathComponent(u"/", u""), u"/");
    EXPECT_EQ(appendingPathComponent(u"", u"b"), u"b");
}

TEST(TextTest, AsciiAtStart_EndsAtTheFirstOtherSign) {
    for (qsizetype size = 0; size < 12; ++size) {
        const QString text(size, u'\x7f');
        EXPECT_EQ(asciiAtStart(text), size);
        for (const char16_t other : {u'\x80', u'\u0100', u'\u4e00', u'\uff00'})
            EXPECT_EQ(asciiAtStart(QString(text + other + u"aaaaaaaa")), size) << int(other);
    }
}

TEST(TextTest, QuotedText_CanBeReadBack) {
    EXPECT_EQ(quotedText(u""), u"\"\"");
    EXPECT_EQ(quotedText(u"a \"b\" \\c"), u"\"a \\\"b\\\" \\\\c\"");
}

} // namespace
} // namespace kelvo
