// Whether a pull has certainly brought every movie: words, options and filters one by one.
#include "passes/movie_pull.h"
#include "support/partial_option.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace kelvo {
namespace {

/// Whether `options` leave nothing out of a pull that goes deep.
bool takeAll(const QString& options) {
    return bringsEveryMovie(QString(u"rsync -r " + options + u" a b"), u"rsync a b");
}

/// Whether both texts name the same places.
bool same(const QByteArray& left, const QByteArray& right) {
    return bringsEveryMovie(QString::fromUtf8("rsync -r " + left),
                            QString::fromUtf8("rsync " + right));
}

TEST(MoviePullTest, EachHarmlessOption_LeavesNothingOut) {
    constexpr auto cOptions = std::to_array<const char*>({
        "archive",         "bwlimit",    "compress",        "group",    "human-readable",
        "ignore-existing", "info",       "itemize-changes", "links",    "out-format",
        "owner",           "partial",    "perms",           "progress", "prune-empty-dirs",
        "recursive",       "rsync-path", "stats",           "timeout",  "times",
        "update",          "verbose",
    });
    for (const char* option : cOptions) {
        const QString name = QStringLiteral("--") + QLatin1StringView(option);
        EXPECT_TRUE(takeAll(name)) << option;
        EXPECT_TRUE(takeAll(name + u"=some")) << option;
        EXPECT_FALSE(takeAll(name + u'x')) << option;
        EXPECT_FALSE(takeAll(u"--x=" + name)) << option;
    }
    EXPECT_FALSE(takeAll(QStringLiteral("--")));
}

TEST(MoviePullTest, FolderForPartialFiles_MayBearTheNameOfOneWithMovies) {
    EXPECT_TRUE(takeAll(QStringLiteral("--partial-dir=.kelvo-partial")));
    EXPECT_TRUE(takeAll(QStringLiteral("--partial-dir=/var/tmp/films")));
    EXPECT_TRUE(takeAll(cPartialOption.toString()));
    EXPECT_FALSE(takeAll(QStringLiteral("${OTHER---partial-dir=.kelvo-partial}")));
    EXPECT_FALSE(takeAll(QStringLiteral("--partial-dir=Films")));
    EXPECT_FALSE(takeAll(QStringLiteral("--partial-dir")));
}

TEST(MoviePullTest, EachLetter_IsHarmlessOrNot) {
    for (char letter = '!'; letter <= '~'; ++letter) {
        const bool harmless = QByteArrayView("DPaghilmoprtuvz").contains(letter);
        if (letter == 'e' || letter == 'f' || letter == '-' || letter == '\'')
            continue;
        EXPECT_EQ(takeAll(u"'-" + QString(QLatin1Char(letter)) + u'\''), harmless) << letter;
    }
}

TEST(MoviePullTest, PullThatDoesNotGoDeep_LeavesFoldersOut) {
    const auto deep = [](const char* options) {
        return bringsEveryMovie(QStringLiteral("rsync %1 a b").arg(QLatin1StringView(options)),
                                u"rsync a b");
    };
    for (const char* options : {"-r", "-a", "-tr -v", "--recursive --times", "--archive -t"})
        EXPECT_TRUE(deep(options)) << options;
    for (const char* options : {"", "-t", "--times", "--partial-dir=-r", "-e -r"})
        EXPECT_FALSE(deep(options)) << options;
}

TEST(MoviePullTest, OptionWithAValueBehindIt_IsNoPlace) {
    EXPECT_TRUE(takeAll(QStringLiteral("-e 'ssh -i key'")));
    EXPECT_TRUE(takeAll(QStringLiteral("-f '+ *.mov'")));
    EXPECT_FALSE(bringsEveryMovie(u"rsync -r a b -e", u"rsync a b"));
    EXPECT_FALSE(bringsEveryMovie(u"rsync -r a b -f", u"rsync a b"));
    EXPECT_TRUE(bringsEveryMovie(u"rsync -r a b -f '- .kelvo-partial/'", u"rsync a b"));
    EXPECT_FALSE(bringsEveryMovie(u"rsync -r a b -f '- partial/'", u"rsync a b"));
}

TEST(MoviePullTest, OnlyRsync_IsUnderstood) {
    const auto by = [](const char* program) {
        return bringsEveryMovie(QString(QString::fromLatin1(program) + u" -r a b"), u"rsync a b");
    };
    EXPECT_TRUE(by("/usr/bin/rsync") && by("rsync") && by("'/opt/my tools/rsync'"));
    EXPECT_FALSE(by("rsync2") || by("/rsync/copy") || by(""));
    EXPECT_FALSE(bringsEveryMovie(u"rsync -r a b", u"copy a b"));
    EXPECT_FALSE(bringsEveryMovie(u"", u""));
}

TEST(MoviePullTest, Places_AreComparedAsTheShellReadsThem) {
    EXPECT_TRUE(same("  a   b  ", "a b"));
    EXPECT_FALSE(same("a b", "b a"));
    EXPECT_FALSE(same("a b c", "a b"));
    EXPECT_TRUE(same("'a b' c", "a\\ b \"c\""));
    EXPECT_TRUE(same("a' 'b c", "\"a b\" c"));
    EXPECT_TRUE(same("\"it's\" b", "it\\'s b"));
    EXPECT_TRUE(same("'say \"a\"' b", "\"say \\\"a\\\"\" b"));
    EXPECT_TRUE(same("\"a\\$b\\`c\\\\d\" b", "'a$b`c\\d' b"));
    EXPECT_TRUE(same("\"a\\~b\\xc\\'\" b", "'a\\~b\\xc\\'\\' b"));
    EXPECT_TRUE(same("'' b", "\"\" b"));
    EXPECT_FALSE(same("'' b", "b"));
    EXPECT_TRUE(same("a 2>&1 b", "2>&1 a b 2>&1"));
    EXPECT_TRUE(same("'a 2>&1' b", "a\\ 2\\>\\&1 b"));
    EXPECT_TRUE(same("a \\b", "a b")) << "one sign before the end";
    EXPECT_FALSE(same("a b 2>&1;", "a b")) << "what stands behind it is read";
}

TEST(MoviePullTest, SignsOfTheShell_AreTextOnlyInTheQuotesThatMakeThemText) {
    const QByteArray eitherWay("&|;<>()*?[{~#\t");
    const QByteArray singleOnly("$`\n");
    for (const char sign : QByteArray(eitherWay + singleOnly)) {
        const QByteArray word = QByteArray("a") + sign + 'b';
        EXPECT_FALSE(same(word + " b", word + " b")) << sign;
        EXPECT_TRUE(same("'" + word + "' b", "'" + word + "' b")) << sign;
        const QByteArray quoted = "\"" + word + "\" b";
        EXPECT_EQ(same(quoted, quoted), eitherWay.contains(sign)) << sign;
        EXPECT_EQ(same(quoted, "'" + word + "' b"), eitherWay.contains(sign)) << sign;
    }
    EXPECT_FALSE(same("'a b", "'a b"));
    EXPECT_FALSE(same("\"a b", "\"a b"));
}

} // namespace
} // namespace kelvo
