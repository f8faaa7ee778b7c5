// Which lines of rsync name a file, and what they say of it.
#include "passes/name_lines.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace kelvo {
namespace {

using Formats = std::initializer_list<std::pair<const char16_t*, NameFormat>>;

void expectFormats(const Formats& formats) {
    for (const auto& [command, format] : formats)
        EXPECT_EQ(nameFormatOf(command), format) << QStringView(command).toUtf8().constData();
}

TEST(NameLinesTest, OutFormat_DecidesHoweverItIsQuoted) {
    expectFormats({{u"rsync --out-format=%n a b", NameFormat::Bare},
                   {u"rsync --out-format=%n%L a b", NameFormat::Bare},
                   {u"rsync --out-format='%i %n' a b", NameFormat::Itemized},
                   {u"rsync --out-format=\"%i %n%L\" a b", NameFormat::Itemized},
                   {u"rsync '--out-format=%i %n' a b", NameFormat::Itemized},
                   {u"rsync \"--out-format=%l %n\" a b", NameFormat::Sized},
                   {u"rsync --out-format='%l %n", NameFormat::Sized},
                   {u"rsync a b --out-format=%n", NameFormat::Bare},
                   {u"--out-format=%n", NameFormat::Bare},
                   {u"--out-format=%n a b", NameFormat::Bare},
                   {u"'--out-format=%n' a b", NameFormat::Bare},
                   {u"rsync --out-format=%i -v a b", NameFormat::Other},
                   {u"rsync --out-format=", NameFormat::Other}});
}

TEST(NameLinesTest, WithoutAFormat_TheOptionsDecide) {
    expectFormats({{u"rsync -r a b", NameFormat::None},
                   {u"rsync -rv a b", NameFormat::Bare},
                   {u"rsync -P a b", NameFormat::Bare},
                   {u"rsync --verbose a b", NameFormat::Bare},
                   {u"rsync --progress a b", NameFormat::Bare},
                   {u"rsync --info=stats1,name1 a b", NameFormat::Bare},
                   {u"rsync --info=progress2 a b", NameFormat::None},
                   {u"rsync --rename a b", NameFormat::None},
                   {u"rsync --itemize-changes a b", NameFormat::Itemized},
                   {u"rsync -v --itemize-changes a b", NameFormat::Itemized},
                   {u"rsync -rvi a b", NameFormat::Itemized},
                   {u"rsync -i -v a b", NameFormat::Itemized},
                   {u"rsync --inplace a b", NameFormat::None},
                   {u"rsync ri v P a b", NameFormat::None},
                   {u"rsync -ei -fv a b", NameFormat::None},
                   {u"rsync -ve i a b", NameFormat::Bare},
                   {u"rsync -e 'ssh -i key -v' a b", NameFormat::None},
                   {u"rsync -e \"ssh -i key -v\" -v a b", NameFormat::Bare}});
}

TEST(NameLinesTest, TalkOfEveryKind_IsKnownByItsBeginning) {
    constexpr auto cTalk = std::to_array<QLatin1StringView>({
        QLatin1StringView("rsync: [sender] change_dir failed"),
        QLatin1StringView("rsync error: some files could not be transferred (code 23)"),
        QLatin1StringView("rsync warning: some files vanished"),
        QLatin1StringView("receiving incremental file list"),
        QLatin1StringView("sent 65 bytes  received 80 bytes"),
        QLatin1StringView("total size is 80,000  speedup is 1.00"),
        QLatin1StringView("created directory /in"),
        QLatin1StringView("delta-transmission enabled"),
        QLatin1StringView("skipping non-regular file \"x\""),
        QLatin1StringView("file has vanished: \"/out/x\""),
        QLatin1StringView("IO error encountered -- skipping file deletion"),
        QLatin1StringView("ssh: connect to host mac port 22"),
        QLatin1StringView("deleting old.mov"),
        QLatin1StringView("building file list ... done"),
        QLatin1StringView("sending incremental file list"),
        QLatin1StringView("Warning: Permanently added 'mac'"),
        QLatin1StringView("protocol version mismatch -- is your shell clean?"),
        QLatin1StringView("(see the rsync manpage for an explanation)"),
        QLatin1StringView("Server is very old version of rsync, upgrade recommended."),
        QLatin1StringView("filter rules are too modern for remote rsync."),
        QLatin1StringView("--prune-empty-dirs requires protocol 29 or higher"),
        QLatin1StringView("Connection to mac closed."),
        QLatin1StringView("cd+++++++++ folder/"),
        QLatin1StringView(".d..t...... folder/"),
        QLatin1StringView("Number of files: 9"),
        QLatin1StringView("Number of created files: 9"),
        QLatin1StringView("Number of deleted files: 9"),
        QLatin1StringView("Number of regular files transferred: 9"),
        QLatin1StringView("Number of files transferred: 9"),
        QLatin1StringView("Total file size: 9 bytes"),
        QLatin1StringView("Total transferred file size: 9 bytes"),
        QLatin1StringView("Literal data: 9 bytes"),
        QLatin1StringView("Matched data: 9 bytes"),
        QLatin1StringView("File list size: 9"),
        QLatin1StringView("File list generation time: 9 seconds"),
        QLatin1StringView("File list transfer time: 9 seconds"),
        QLatin1StringView("Total bytes sent: 9"),
        QLatin1StringView("Total bytes received: 9"),
    });
    for (const QLatin1StringView line : cTalk) {
        EXPECT_TRUE(isRemark(QString(line))) << line.data();
        EXPECT_TRUE(isRemark(QByteArrayView(line.data()))) << line.data();
        const QByteArray name = "a " + QByteArray(line.data());
        EXPECT_FALSE(isRemark(QByteArrayView(name))) << name.constData();
    }
    EXPECT_TRUE(isRemark(QByteArrayView("Total file size:"))) << "nothing behind it";
    for (const char* name : {"", "sent", "rsync:", "Total file size", "movie.mov", "\x7f", "\x80",
                             "\xff", "\x01", "~.mov"}) {
        EXPECT_FALSE(isRemark(QByteArrayView(name))) << name;
        EXPECT_FALSE(isRemark(QString::fromLatin1(name))) << name;
    }
}

void expectNamed(const char* line, NameFormat format, const char* name,
                 std::optional<qint64> size = {}) {
    const auto file = namedIn(line, format);
    ASSERT_TRUE(file) << line;
    EXPECT_EQ(file->name, QByteArrayView(name));
    EXPECT_EQ(file->size, size);
}

TEST(NameLinesTest, NameBehindItsSize_IsReadWithIt) {
    expectNamed("5 a", NameFormat::Sized, "a", 5);
    expectNamed("0 a b.mov", NameFormat::Sized, "a b.mov", 0);
    expectNamed("9081726354 /", NameFormat::Sized, "/", 9'081'726'354);
    expectNamed("123456789012345678 x", NameFormat::Sized, "x", 123'456'789'012'345'678);
    for (const char* line :
         {"", "5", "5 ", "a", "5:6 a", "5/6 a", " 5 a", "1234567890123456789 x", "5\ta", "-5 a"})
        EXPECT_FALSE(namedIn(line, NameFormat::Sized)) << line;
}

TEST(NameLinesTest, ItemizedFile_IsNamedWhereItCameToThisSide) {
    expectNamed(">f+++++++++ a", NameFormat::Itemized, "a");
    expectNamed("cS+++++++++ a b", NameFormat::Itemized, "a b");
    for (const char* line : {">f+++++++++ ", ">f+++++++++a b", "<f+++++++++ a", ".f..t...... a",
                             "cL+++++++++ a -> b", ">L+++++++++ a -> b", "hf+++++++++ a => b"})
        EXPECT_FALSE(namedIn(line, NameFormat::Itemized)) << line;
}

TEST(NameLinesTest, BareName_IsAnyLineThatIsNoTalk) {
    expectNamed("5 a", NameFormat::Bare, "5 a");
    for (const char* line : {"", " indented", "\tindented", "sent 5 bytes"})
        EXPECT_FALSE(namedIn(line, NameFormat::Bare)) << line;
    for (const NameFormat format : {NameFormat::None, NameFormat::Other})
        EXPECT_FALSE(namedIn("5 a", format));
}

TEST(NameLinesTest, EscapedBytes_AreTurnedBackAndNothingElseIs) {
    EXPECT_EQ(unescapedName("\\#012"), "\n");
    EXPECT_EQ(unescapedName("a\\#377\\#200b"), "a\xff\x80"
                                               "b");
    EXPECT_EQ(unescapedName("\\#174\\#047\\#101"), "|'A");
    for (const char* plain : {"\\#01", "\\#", "\\", "\\012x", "\\#400", "\\#080", "\\#008",
                              "\\#/11", "\\#1/1", "\\#11/", "x#012", "\\##012"})
        EXPECT_EQ(unescapedName(plain), plain);
    EXPECT_EQ(unescapedName(QByteArrayView("\\#012").chopped(1)), "\\#01")
        << "what stands behind the name is not read";
}

} // namespace
} // namespace kelvo
