// Names of profiles, what is kept under them, and how the command line speaks of them.
#include "app/commands/command_line.h"
#include "app/commands/profiles.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvo {
namespace {

Profile named(const char* name) {
    return {.name = QString::fromLatin1(name)};
}

TEST(ProfileTest, Names_AreLettersDigitsAndTwoSigns) {
    for (const char* name : {"a", "Z", "0", "-", "_", "Living-Room_2", "--profile"})
        EXPECT_EQ(profileNameFault(QString::fromLatin1(name)), QString()) << name;
    EXPECT_EQ(profileNameFault(QString(64, u'x')), QString());
    EXPECT_EQ(profileNameFault(QString(65, u'x')), u"it is longer than 64 characters");
    EXPECT_EQ(profileNameFault(QString()), u"it is empty");
    for (const auto& [name, sign] :
         {std::pair(u"a b", u" "), std::pair(u"..", u"."), std::pair(u"a/b", u"/"),
          std::pair(u"müll", u"ü"), std::pair(u"a\n", u"\\x0a"), std::pair(u"a\u0661", u"\u0661"),
          std::pair(u"\U0001F3A5", u"\U0001F3A5"), std::pair(u"a%i", u"%"), std::pair(u"a[", u"["),
          std::pair(u"a@", u"@"), std::pair(u"a`", u"`"), std::pair(u"a{", u"{"),
          std::pair(u"a:", u":")})
        EXPECT_EQ(profileNameFault(name), QString(u"it holds \"" + QStringView(sign) + u'"'));
}

TEST(ProfileTest, WithoutAName_EverythingIsAsEver) {
    const Profile none;
    EXPECT_EQ(none.within(QStringLiteral("/config/kelvo-mirror")), u"/config/kelvo-mirror");
    EXPECT_EQ(none.title(), u"Kelvo Mirror");
    EXPECT_EQ(none.firstPassDelay(), 0);
    EXPECT_EQ(named("east").within(QStringLiteral("/config")), u"/config/profiles/east");
    EXPECT_EQ(none.command(), u"kelvo-mirror");
    EXPECT_EQ(none.unit(), u"kelvo-mirror");
    EXPECT_EQ(named("east").title(), u"Kelvo Mirror – east");
    EXPECT_EQ(named("east").command(), u"kelvo-mirror --profile east");
    EXPECT_EQ(named("east").unit(), u"kelvo-mirror@east");
}

TEST(ProfileTest, FirstPasses_AreSpreadOverHalfAMinuteByTheNameAlone) {
    std::vector<double> moments;
    for (int number = 1; number <= 20; ++number)
        moments.push_back(Profile{QStringLiteral("mac%1").arg(number)}.firstPassDelay());
    for (const double moment : moments) {
        EXPECT_GE(moment, 0);
        EXPECT_LT(moment, cFirstPassSpread);
    }
    EXPECT_EQ(named("mac7").firstPassDelay(), 8.67) << "the same each time";
    std::ranges::sort(moments);
    for (std::size_t at = 4; at < moments.size(); ++at)
        EXPECT_GT(moments[at] - moments[at - 4], 1.0) << "no crowd at " << moments[at];
    EXPECT_LT(moments.front(), 8);
    EXPECT_GT(moments.back(), 22);
}

CommandLine read(const char* words) {
    return parseCommandLine(QString(u"m " + QString::fromUtf8(words)).split(u' '));
}

TEST(ProfileOptionTest, Profile_GoesWithEveryWayToStart) {
    struct Case {
        const char* words;
        LaunchKind kind;
    };
    for (const Case& c : {Case{"--profile east", LaunchKind::Window},
                          Case{"--profile=east --headless", LaunchKind::Headless},
                          Case{"--headless --profile east --autorelaunched", LaunchKind::Headless},
                          Case{"--once --json --profile east", LaunchKind::Once},
                          Case{"--passes --profile=east --since 2h", LaunchKind::Passes},
                          Case{"--profile east --get prefPath1", LaunchKind::Settings},
                          Case{"--profile east --set prefPath1 --profile", LaunchKind::Settings},
                          Case{"--profile east --settings", LaunchKind::Settings},
                          Case{"--profile east --status --max-age 2h", LaunchKind::Ask},
                          Case{"--cancel --profile=east", LaunchKind::Ask},
                          Case{"--setup --profile east --mac a", LaunchKind::Setup},
                          Case{"--profile east --export-profile f", LaunchKind::Export},
                          Case{"--import-profile f --profile east", LaunchKind::Import}}) {
        const CommandLine line = read(c.words);
        EXPECT_EQ(line.kind, c.kind) << c.words << line.message.toStdString();
        EXPECT_EQ(line.profile, named("east")) << c.words;
    }
    EXPECT_EQ(read("--profile east --set prefPath1 --profile").settings.value, u"--profile");
    EXPECT_EQ(read("--set prefPath1 --profile").settings.value, u"--profile");
    EXPECT_FALSE(read("--headless").profile.isNamed());
    EXPECT_TRUE(read("--headless --profile -1 --autorelaunched").autorelaunched);
    EXPECT_TRUE(read("--headless --profile east --no-sentinel").noSentinel);
    EXPECT_TRUE(read("--profiles --json").json);
}

TEST(ProfileOptionTest, EachRefusal_SaysWhy) {
    for (const auto& [words, reason] :
         {std::pair("--profile", "--profile takes a name"),
          std::pair("--headless --profile", "--profile takes a name"),
          std::pair("--profile --headless", "--profile takes a name"),
          std::pair("--profile a --profile b", "--profile is given twice"),
          std::pair("--profile a --headless --profile=b", "--profile is given twice"),
          std::pair("--profile=",
                    "'' is no name of a profile: it is empty. A name is 1 to 64 letters (A to Z, a "
                    "to z), digits, \"-\" and \"_\""),
          std::pair("--profile ../x",
                    "'../x' is no name of a profile: it holds \".\". A name is 1 to 64 letters (A "
                    "to Z, a to z), digits, \"-\" and \"_\""),
          std::pair("--set a b --profile c", "it is '--set KEY VALUE', and nothing else with it"),
          std::pair("--profiles --headless", "--headless and --profiles do not go together"),
          std::pair("--profiles --profile a", "--profile and --profiles do not go together"),
          std::pair("--profiles -reverse",
                    "'-reverse' is for the window, and --profiles opens none"),
          std::pair("--import-profile f", "--import-profile takes --profile NAME too"),
          std::pair("--import-profile f --profile a --json",
                    "--json goes with --once, --passes, --status, --follow or --profiles"),
          std::pair("--import-profile f --export-profile f --profile a",
                    "--export-profile and --import-profile do not go together"),
          std::pair("--export-profile f --once", "--once and --export-profile do not go together"),
          std::pair("--accept", "--accept goes with --import-profile"),
          std::pair("--export-profile f --accept", "--accept goes with --import-profile")}) {
        const CommandLine line = read(words);
        EXPECT_EQ(line.kind, LaunchKind::Refuse) << words;
        EXPECT_EQ(line.message, QStringLiteral("kelvo-mirror: %1\nTry 'kelvo-mirror --help'.\n")
                                    .arg(QString::fromLatin1(reason)))
            << words;
    }
}

TEST(ProfileOptionTest, WhatOnlyReads_NeedsAProfileThatIsThere) {
    for (const char* words : {"--once", "--passes", "--get prefPath1", "--unset prefPath1",
                              "--settings", "--export-profile f", "--status", "--sync-now"})
        EXPECT_TRUE(needsProfile(read(words))) << words;
    for (const char* words : {"--headless", "--set prefPath1 x", "--profiles", "--version",
                              "--profile a --import-profile f", "--setup"})
        EXPECT_FALSE(needsProfile(read(words))) << words;
    EXPECT_FALSE(needsProfile(parseCommandLine({QStringLiteral("m")}))) << "the window";
}

const std::vector<ProfileState>& someStates() {
    static const std::vector<ProfileState> cStates{
        {.profile = {},
         .mac = QStringLiteral("Attic.local"),
         .isRunning = true,
         .lastSuccess = QDateTime(QDate(2026, 11, 22), QTime(11, 4), Qt::UTC)},
        {.profile = named("east"),
         .mac = QStringLiteral("b\x1b[2J"),
         .trouble = PassCause::HostAway},
        {.profile = named("west"), .fault = QStringLiteral("The settings file cannot be read: no")},
    };
    return cStates;
}

TEST(ProfilesTextTest, Lines_TellNameStateMacAndSuccess) {
    const QStringList lines = profilesText(someStates(), false).split(u'\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(QRegularExpression(QStringLiteral("\\A\\(no profile\\)  running      Attic.local, "
                                                  "last success 2026-11-2[0-9T:+-]+Z?\\z"))
                    .match(lines[0])
                    .hasMatch())
        << lines[0].toStdString();
    EXPECT_EQ(lines[1], u"east          not running  b\\x1b[2J, no success yet. The Mac is away or "
                        u"asleep.");
    EXPECT_EQ(lines[2], u"west          not running  no Mac, no success yet. The settings file "
                        u"cannot be read: no.");
}

TEST(ProfilesTextTest, Objects_HoldNullsForWhatIsNotThere) {
    const QStringList lines = profilesText(someStates(), true).split(u'\n');
    ASSERT_EQ(lines.size(), 4);
    const auto object = [&](int at) {
        return QJsonDocument::fromJson(lines[at].toUtf8()).object();
    };
    EXPECT_EQ(object(0), (QJsonObject{{QStringLiteral("name"), QJsonValue::Null},
                                      {QStringLiteral("mac"), QStringLiteral("Attic.local")},
                                      {QStringLiteral("running"), true},
                                      {QStringLiteral("lastSuccess"),
                                       QStringLiteral("2026-11-22T11:04:00.000Z")},
                                      {QStringLiteral("trouble"), QJsonValue::Null},
                                      {QStringLiteral("fault"), QJsonValue::Null}}));
    EXPECT_EQ(object(1).value(u"name"), QStringLiteral("east"));
    EXPECT_EQ(object(1).value(u"mac"), QStringLiteral("b\x1b[2J")) << "whole";
    EXPECT_EQ(object(1).value(u"trouble"), QStringLiteral("host-away"));
    EXPECT_EQ(object(1).value(u"lastSuccess"), QJsonValue::Null);
    EXPECT_EQ(object(2).value(u"mac"), QJsonValue::Null);
    EXPECT_EQ(object(2).value(u"fault"), QStringLiteral("The settings file cannot be read: no"));
}

} // namespace
} // namespace kelvo
