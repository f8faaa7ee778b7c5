#include "passes/rsync_statistics.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvo {
namespace {

const QString cFactory = QStringLiteral("/usr/bin/rsync 2>&1 -r --stats --out-format=%n a/ b/");

TEST(RsyncStatisticsTest, Statistics_GoBeforeTheNames) {
    const auto transfer = transferOf(cFactory, u"one.mov\ntwo.mov\nthree.mov\n\n"
                                               u"Number of files: 9 (reg: 5, dir: 4)\n"
                                               u"Number of regular files transferred: 2\n"
                                               u"Total file size: 5,000,000 bytes\n"
                                               u"Total transferred file size: 1,234,567 bytes\n");
    EXPECT_EQ(transfer.source, TransferSource::Statistics);
    EXPECT_EQ(transfer.files, 2);
    EXPECT_EQ(transfer.bytes, 1234567);
}

TEST(RsyncStatisticsTest, OldOrHumanFigures_AreRead) {
    const auto transfer = transferOf(cFactory, u"Number of files transferred: 12\r\n"
                                               u"Total transferred file size: 1.50M bytes\r\n");
    EXPECT_EQ(transfer.files, 12);
    EXPECT_EQ(transfer.bytes, 1500000);
}

TEST(RsyncStatisticsTest, EachFigure_IsReadByItsOwnWord) {
    const auto regular = transferOf({}, u"Number of regular files transferred: 3");
    EXPECT_EQ(regular.files, 3);
    EXPECT_FALSE(regular.bytes.has_value());
    EXPECT_EQ(regular.source, TransferSource::Statistics);
    EXPECT_EQ(transferOf({}, u"Number of files transferred: 4").files, 4);
    const auto bytes = transferOf({}, u"Total transferred file size: 5 bytes");
    EXPECT_EQ(bytes.bytes, 5);
    EXPECT_FALSE(bytes.files.has_value());
    EXPECT_EQ(bytes.source, TransferSource::Statistics);
    const auto received =
        transferOf(u"rsync -v a b", u"one.mov\nsent 65 bytes  received 6 bytes  1.00 bytes/sec");
    EXPECT_EQ(received.source, TransferSource::Lines);
    EXPECT_EQ(received.bytes, 6);
    for (const QStringView other :
         {u"Number of files: 9 (reg: 5, dir: 4)", u"Number of created files: 9 (reg: 9)",
          u"Number of deleted files: 9", u"Total file size: 9 bytes", u"Literal data: 9 bytes",
          u"Matched data: 9 bytes", u"File list size: 9", u"File list generation time: 9 seconds",
          u"File list transfer time: 9 seconds", u"Total bytes sent: 9", u"Total bytes received: 9",
          u"sent 9 bytes", u"total size is 9  speedup is 9"}) {
        const auto none = transferOf(u"rsync -v a b", other);
        EXPECT_EQ(none.source, TransferSource::Lines) << other.toUtf8().constData();
        EXPECT_EQ(none.files, 0) << other.toUtf8().constData();
    }
}

TEST(RsyncStatisticsTest, EachUnit_IsThePowerOfAThousandThatItSays) {
    const auto bytesOf = [](const char* figure) {
        return transferOf({}, QStringLiteral("Total transferred file size: %1 bytes")
                                  .arg(QString::fromLatin1(figure)))
            .bytes;
    };
    EXPECT_EQ(bytesOf("2,34"), 234);
    EXPECT_EQ(bytesOf("2.345"), 2345) << "a grouping point";
    EXPECT_EQ(bytesOf("2.34K"), 2340);
    EXPECT_EQ(bytesOf("2,34K"), 2340) << "a decimal comma";
    EXPECT_EQ(bytesOf("2.34M"), 2'340'000);
    EXPECT_EQ(bytesOf("2.34G"), 2'340'000'000);
    EXPECT_EQ(bytesOf("2.34T"), 2'340'000'000'000);
    EXPECT_EQ(bytesOf("2.34P"), 2'340'000'000'000'000);
    EXPECT_EQ(bytesOf("8999P"), 8'999'000'000'000'000'000);
    EXPECT_EQ(bytesOf("9000P"), std::nullopt) << "more than is counted";
    EXPECT_EQ(bytesOf("1.2.3K"), std::nullopt);
    EXPECT_EQ(bytesOf("K"), std::nullopt);
    EXPECT_EQ(bytesOf("12~"), 12);
}

TEST(RsyncStatisticsTest, LinesOfATerminal_AreReadWithoutTheirEnds) {
    EXPECT_EQ(transferOf(u"rsync -v a b", u"folder/\r\n\r\none.mov\r\n").files, 1);
    EXPECT_EQ(transferOf({}, u"\nNumber of files transferred: 3\n").files, 3);
}

TEST(RsyncStatisticsTest, FigureAtTheEnd_IsReadNoFarther) {
    const QStringView longer = u"Number of files transferred: 12K34";
    EXPECT_EQ(transferOf({}, longer.chopped(4)).files, 1);
    EXPECT_EQ(transferOf({}, longer.chopped(3)).files, 12);
}

TEST(RsyncStatisticsTest, WithoutStatistics_NamesAreCounted) {
    const auto transfer = transferOf(u"/usr/bin/rsync -rv a/ b/",
                                     u"receiving incremental file list\ncreated directory b\n./\n"
                                     u"Features/\nFeatures/one.mov\ntwo.mov\n"
                                     u"    40,000 100%   12.00MB/s    0:00:00\n\n"
                                     u"sent 65 bytes  received 80,211 bytes  53,000.00 bytes/sec\n"
                                     u"total size is 80,000  speedup is 1.00\n");
    EXPECT_EQ(transfer.source, TransferSource::Lines);
    EXPECT_EQ(transfer.files, 2);
    EXPECT_EQ(transfer.bytes, 80211);
}

TEST(RsyncStatisticsTest, TalkAmongNamesWithTheirSizes_IsNotCounted) {
    const auto transfer = transferOf(u"/usr/bin/rsync --out-format='%l %n' a/ b/",
                                     u"5 one.mov\nWelcome to this Mac\n7 two.mov\n");
    EXPECT_EQ(transfer.files, 2);
}

TEST(RsyncStatisticsTest, NamesAlone_TellNoBytes) {
    const auto transfer = transferOf(u"/usr/bin/rsync --out-format=%n a/ b/", u"one.mov\n");
    EXPECT_EQ(transfer.source, TransferSource::Lines);
    EXPECT_EQ(transfer.files, 1);
    EXPECT_FALSE(transfer.bytes.has_value());
}

TEST(RsyncStatisticsTest, RefusalOfTheProtocol_BroughtNothing) {
    constexpr auto cRefusals = std::to_array<QStringView>({
        u"protocol version mismatch -- is your shell clean?\n"
        u"(see the rsync manpage for an explanation)\n"
        u"rsync error: protocol incompatibility (code 2) at compat.c(625) [Receiver=3.5.0]\n",
        u"--acls requires protocol 30 or higher (negotiated 27).\n"
        u"rsync error: protocol incompatibility (code 2) at compat.c(672) [sender=3.5.0]\n"
        u"--acls requires protocol 30 or higher (negotiated 27).\n"
        u"rsync error: protocol incompatibility (code 2) at compat.c(672) [Receiver=3.5.0]\n",
        u"filter rules are too modern for remote rsync.\n"
        u"rsync error: protocol incompatibility (code 2) at exclude.c(1926) [Receiver=3.5.0]\n",
        u"Server is very old version of rsync, upgrade recommended.\n"
        u"--prune-empty-dirs requires protocol 29 or higher (negotiated 20).\n"
        u"rsync error: protocol incompatibility (code 2) at /src/rsync/compat.c(720) "
        u"[Receiver=3.5.0]\n"
        u"rsync: [sender] safe_write failed to write 4 bytes to socket: Broken pipe (32)\n"
        u"rsync error: error in rsync protocol data stream (code 12) at io.c(387) [sender=3.5.0]\n",
    });
    for (const QStringView said : cRefusals) {
        for (const QStringView command : {u"rsync -rv a b", u"rsync -ri a b", u"rsync -r a b",
                                          u"rsync --stats --out-format='%l %n' a b"}) {
            const auto transfer = transferOf(command, said);
            EXPECT_EQ(transfer.source, TransferSource::Lines) << command.toUtf8().constData();
            EXPECT_EQ(transfer.files, 0) << said.toUtf8().constData();
            EXPECT_EQ(transfer.bytes, 0) << said.toUtf8().constData();
        }
    }
}

TEST(RsyncStatisticsTest, ProtocolThatBrokeInTheMiddle_LeavesWhatCame) {
    const auto transfer = transferOf(
        u"rsync -rv a b", u"one.mov\ntwo.mov\nInvalid file index: 9 (-1 - 3) [generator]\n"
                          u"rsync error: protocol incompatibility (code 2) at rsync.c(437)\n");
    EXPECT_GE(transfer.files.value_or(0), 2);
    EXPECT_EQ(transferOf(u"rsync --stats --out-format=%n a b; rsync -rm b c",
                         u"Number of regular files transferred: 5\n"
                         u"rsync error: protocol incompatibility (code 2) at compat.c(720)\n")
                  .files,
              5);
}

TEST(RsyncStatisticsTest, OptionsOfSsh_AskForNoNames) {
    const QStringView said = u"[Receiver] io timeout after 6 seconds -- exiting\n";
    EXPECT_EQ(transferOf(u"/usr/bin/rsync 2>&1 -e 'ssh -i /k'  -f '- -v' -r a b", said).source,
              TransferSource::Unknown);
    EXPECT_EQ(transferOf(u"/usr/bin/rsync -e \"ssh -v\" -r a b", said).source,
              TransferSource::Unknown);
    const auto named = transferOf(u"/usr/bin/rsync -e 'ssh -i /k' -rv a b", u"one.mov\n");
    EXPECT_EQ(named.source, TransferSource::Lines);
    EXPECT_EQ(named.files, 1);
}

TEST(RsyncStatisticsTest, RemarkAboutAnOldServer_IsNoFile) {
    EXPECT_EQ(transferOf(u"rsync -rv a b",
                         u"Server is very old version of rsync, upgrade recommended.\n"
                         u"receiving file list ... done\none.mov\n")
                  .files,
              1);
}

TEST(RsyncStatisticsTest, NamesWithTheirSizes_AreCounted) {
    const auto transfer =
        transferOf(u"/usr/bin/rsync --out-format='%l %n' a/ b/",
                   u"4096 sub/\n70 sub/sent 5.mov\n7 one.mov\nConnection closed.\n");
    EXPECT_EQ(transfer.source, TransferSource::Lines);
    EXPECT_EQ(transfer.files, 2);
}

TEST(RsyncStatisticsTest, NoNames_AreNoBytes) {
    const auto transfer = transferOf(u"/usr/bin/rsync -rv a/ b/",
                                     u"receiving incremental file list\n\n"
                                     u"sent 20 bytes  received 1,201 bytes  2,442.00 bytes/sec\n"
                                     u"total size is 80,000  speedup is 65.00\n");
    EXPECT_EQ(transfer.files, 0);
    EXPECT_EQ(transfer.bytes, 0);
}

TEST(RsyncStatisticsTest, SilentCommand_IsUnknown) {
    for (const QStringView command :
         {u"/usr/bin/rsync -r --times a/ b/", u"/usr/bin/rsync -e v a b",
          u"/usr/bin/rsync -f '+ */' a/ b/"}) {
        const auto transfer = transferOf(command, {});
        EXPECT_EQ(transfer.source, TransferSource::Unknown) << command.toUtf8().constData();
        EXPECT_FALSE(transfer.files.has_value());
    }
}

TEST(RsyncStatisticsTest, FiguresThatAreNone_GiveWayToTheNames) {
    const auto transfer =
        transferOf(cFactory, u"one.mov\nNumber of regular files transferred: many\n"
                             u"Total transferred file size: "
                             u"99999999999999999999999 bytes\n");
    EXPECT_EQ(transfer.source, TransferSource::Lines);
    EXPECT_EQ(transfer.files, 1);
    EXPECT_FALSE(transfer.bytes.has_value());
}

TEST(RsyncStatisticsTest, Sum_LeavesOutOnlyTheSilent) {
    const Transfer three{TransferSource::Statistics, 3, 30};
    const Transfer names{TransferSource::Lines, 2, std::nullopt};
    EXPECT_EQ(sumOf(three, {}).files, 3);
    EXPECT_EQ(sumOf({}, three).bytes, 30);
    EXPECT_EQ(sumOf(three, names).files, 5);
    EXPECT_FALSE(sumOf(three, names).bytes.has_value());
    EXPECT_EQ(sumOf(three, names).source, TransferSource::Lines);
    EXPECT_EQ(sumOf({}, {}).source, TransferSource::Unknown);
}

} // namespace
} // namespace kelvo
