#include "app/commands/command_line.h"

#include <QFile>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

CommandLine parsed(const char* words) {
    return parseCommandLine(QString(u"kelvo-mirror " + QString::fromLatin1(words)).split(u' '));
}

TEST(SetupOptionsTest, Answers_AreTaken) {
    const CommandLine line =
        parsed("--setup --mac Remote-Mac.local --account mediauser --folder Movies/2026 "
               "--destination ~/Movies --make-destination --new-key --share-connection --enable "
               "--no-linger");
    ASSERT_EQ(line.kind, LaunchKind::Setup) << line.message.toStdString();
    EXPECT_EQ(line.setup.mac, QStringLiteral("Remote-Mac.local"));
    EXPECT_EQ(line.setup.account, QStringLiteral("mediauser"));
    EXPECT_EQ(line.setup.folder, QStringLiteral("Movies/2026"));
    EXPECT_EQ(line.setup.destination, QStringLiteral("~/Movies"));
    EXPECT_TRUE(line.setup.makeDestination);
    EXPECT_TRUE(line.setup.newKey);
    EXPECT_EQ(line.setup.shareConnection, true);
    EXPECT_EQ(line.setup.enable, true);
    EXPECT_EQ(line.setup.linger, false);
}

TEST(SetupOptionsTest, WithoutAnswers_EverythingIsOpen) {
    const CommandLine line = parsed("--setup");
    ASSERT_EQ(line.kind, LaunchKind::Setup);
    EXPECT_FALSE(line.setup.mac || line.setup.account || line.setup.folder ||
                 line.setup.destination || line.setup.enable || line.setup.linger);
    EXPECT_FALSE(line.setup.makeDestination || line.setup.newKey || line.setup.shareConnection);
    EXPECT_EQ(parsed("--setup --no-share-connection").setup.shareConnection, false);
}

TEST(SetupOptionsTest, WhatDoesNotGoTogether_IsRefused) {
    for (const char* words :
         {"--mac x", "--enable", "--headless --new-key", "--setup --headless", "--setup --once",
          "--setup --passes", "--setup --json", "--setup --enable --no-enable",
          "--setup --linger --no-linger", "--share-connection",
          "--setup --share-connection --no-share-connection", "--setup --no-sentinel",
          "--setup -platform xcb", "--setup --mac", "--setup extra", "--no-sentinel",
          "--once --no-sentinel"})
        EXPECT_EQ(parsed(words).kind, LaunchKind::Refuse) << words;
}

TEST(SetupOptionsTest, EachRefusal_SaysWhy) {
    for (const auto& [words, reason] :
         {std::pair("--mac x", "--mac goes with --setup"),
          std::pair("--headless --no-linger", "--no-linger goes with --setup"),
          std::pair("--setup --share-connection --no-share-connection",
                    "--share-connection and --no-share-connection do not go together"),
          std::pair("--setup --enable --no-enable", "--enable and --no-enable do not go together"),
          std::pair("--setup --linger --no-linger", "--linger and --no-linger do not go together")})
        EXPECT_EQ(parsed(words).message,
                  QStringLiteral("kelvo-mirror: %1\nTry 'kelvo-mirror --help'.\n")
                      .arg(QString::fromLatin1(reason)));
}

TEST(SetupOptionsTest, Sentinel_IsLeftOutOnlyWithoutAWindow) {
    EXPECT_TRUE(parsed("--headless --no-sentinel").noSentinel);
    EXPECT_FALSE(parsed("--headless").noSentinel);
}

TEST(SetupOptionsTest, HelpAndManual_NameEveryOption) {
    QFile manual(QStringLiteral(KELVO_MANUAL));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    const QByteArray text = manual.readAll().replace("\\-", "-");
    const QString help = parsed("--help").message;
    for (const char* option :
         {"--setup", "--mac", "--account", "--folder", "--destination", "--make-destination",
          "--new-key", "--share-connection", "--no-share-connection", "--enable", "--no-enable",
          "--linger", "--no-linger", "--no-sentinel"}) {
        EXPECT_TRUE(help.contains(QString::fromLatin1(option))) << option;
        EXPECT_TRUE(text.contains(option)) << option;
    }
}

} // namespace
} // namespace kelvo
