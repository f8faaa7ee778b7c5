// A profile on its way to another machine, and what comes from one that means no good.
#include "app/commands/profile_transfer.h"
#include "fakes/memory_defaults.h"
#include "settings/preferences.h"
#include "support/stored_value.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <variant>

namespace kelvo {
namespace {

const QString cCommand = QStringLiteral("/usr/bin/rsync 2>&1 %@98 %@99 -r \"%@1\" \"%@2\"");

QByteArray fileWith(const QString& settings) {
    return QString(u"{\"kelvo-mirror-profile\": 1, \"settings\": {" + settings + u"}}").toUtf8();
}

QString faultOf(const QByteArray& bytes) {
    const auto read = importedProfile(bytes);
    const auto* fault = std::get_if<QString>(&read);
    return fault ? *fault : QStringLiteral("(imported)");
}

QString faultOf(const QString& settings) {
    return faultOf(fileWith(settings));
}

/// A setting is exported, or one of those of which it is known that they are not.
TEST(ProfileTransferTest, EverySetting_IsDecidedAbout) {
    const QStringList stay{prefPath1.toString(),
                           prefPath2.toString(),
                           prefHideOnLaunch.toString(),
                           prefQuitWithoutAsking.toString(),
                           prefShowDiagnostics.toString(),
                           prefRemoteDnssdServiceData.toString(),
                           prefCommandAfterArrivals.toString()};
    for (const Preference& each : preferenceTable()) {
        const bool setting = each.kind == PreferenceKind::Setting;
        EXPECT_EQ(isExported(each.key), setting && !stay.contains(each.key))
            << each.key.toString().toStdString();
    }
}

TEST(ProfileTransferTest, WhatIsExported_IsImportedAsItWas) {
    MemoryDefaults defaults;
    const QVariantMap values{
        {prefDelayBetweenScans.toString(), 12.5},
        {prefRsyncCommandString1.toString(), cCommand},
        {prefRsyncCommandOptionTag.toString(), qint64{102}},
        {prefRsyncWithSSH.toString(), true},
        {prefRemoteUsername.toString(), QStringLiteral("média user")},
        {prefRemoteBonjourName.toString(), QStringLiteral("Remote-Mac.local")},
        {prefRemotePath.toString(), QStringLiteral("Movies/it's \"here\"")},
        {prefShowNotices.toString(), false},
    };
    for (auto each = values.begin(); each != values.end(); ++each)
        defaults.setObject(each.key(), each.value());
    for (const QStringView key : {prefPath2, prefCommandAfterArrivals, prefMainWindowTab})
        defaults.setObject(key, QStringLiteral("of this machine"));
    const QByteArray bytes = exportedProfile(defaults);
    EXPECT_FALSE(bytes.contains("of this machine"));
    const auto read = importedProfile(bytes);
    ASSERT_TRUE(std::holds_alternative<QVariantMap>(read)) << std::get<QString>(read).toStdString();
    EXPECT_TRUE(sameStoredValue(std::get<QVariantMap>(read), values));
}

TEST(ProfileTransferTest, FileThatIsNone_IsRefused) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("movie"), QByteArray("[1]"), QByteArray("{}"),
          QByteArray("{\"settings\": {}}"), QByteArray("{\"kelvo-mirror-profile\": 1}"),
          QByteArray("{\"kelvo-mirror-profile\": \"1\", \"settings\": {}}"), QByteArray(10000, '['),
          QByteArray("{\"kelvo-mirror-profile\": 1, \"settings\": [1]}")})
        EXPECT_EQ(faultOf(bytes), u"it is no exported profile") << bytes.left(60).constData();
    EXPECT_EQ(faultOf(QByteArray(cLargestExport, ' ')), u"it is no exported profile");
    EXPECT_EQ(faultOf(QByteArray(cLargestExport + 1, ' ')), u"it is larger than 64 KiB");
    EXPECT_EQ(faultOf(QByteArray("{\"kelvo-mirror-profile\": 2, \"settings\": {}}")),
              u"a newer Kelvo Mirror has written it");
    EXPECT_EQ(faultOf(QByteArray("{\"kelvo-mirror-profile\": 1, \"settings\": {}, \"x\": 1}")),
              u"it holds more than a profile");
    EXPECT_EQ(faultOf(QString()), u"(imported)");
}

TEST(ProfileTransferTest, HostileFile_IsRefusedWithItsReason) {
    for (const auto& [settings, reason] :
         {std::pair("\"commandAfterArrivals\": \"rm -rf ~\"",
                    "it holds commandAfterArrivals, which no exported profile holds"),
          std::pair("\"prefPath2\": \"/etc\"",
                    "it holds prefPath2, which no exported profile holds"),
          std::pair("\"prefEnableScanning\": true",
                    "it holds prefEnableScanning, which no exported profile holds"),
          std::pair("\"\\u001b[2J\": 1", "it holds \\x1b[2J, which no exported profile holds"),
          std::pair("\"prefRsyncWithSSH\": \"yes\"", "its prefRsyncWithSSH is not true or false"),
          std::pair("\"prefDelayBetweenScans\": \"1\"",
                    "its prefDelayBetweenScans is not a number"),
          std::pair("\"prefRsyncCommandOptionTag\": 103",
                    "its prefRsyncCommandOptionTag is not one of 100, 101, 102 and 105"),
          std::pair("\"prefRsyncCommandOptionTag\": 100.5",
                    "its prefRsyncCommandOptionTag is not a whole number"),
          std::pair("\"prefRsyncCommandOptionTag\": 1e300",
                    "its prefRsyncCommandOptionTag is not a whole number"),
          std::pair("\"prefRsyncCommandOptionTag\": \"102\"",
                    "its prefRsyncCommandOptionTag is not a whole number"),
          // The largest number that a double is sure of is no tag, but a number.
          std::pair("\"prefRsyncCommandOptionTag\": 9007199254740992",
                    "its prefRsyncCommandOptionTag is not one of 100, 101, 102 and 105"),
          std::pair("\"prefRsyncCommandOptionTag\": -9007199254740994",
                    "its prefRsyncCommandOptionTag is not a whole number"),
          std::pair("\"prefRemotePath\": \":module/x\"",
                    "no pass could run with it: the source would be read as a module of an rsync "
                    "daemon"),
          std::pair("\"prefRemotePath\": [\"a\"]",
                    "its prefRemotePath is not a text of at most 16 KiB"),
          std::pair("\"prefRemotePath\": \"a\\u0000b\"",
                    "its prefRemotePath is not a text of at most 16 KiB")})
        EXPECT_EQ(faultOf(QString::fromLatin1(settings)).toStdString(), reason) << settings;
    for (const char* settings :
         {"\"prefRemoteBonjourName\": \"-oProxyCommand=touch x\"",
          "\"prefRemoteUsername\": \"-lroot\"", "\"prefRemoteBonjourName\": \"a\\nb\""})
        EXPECT_TRUE(
            faultOf(QString::fromLatin1(settings)).startsWith(u"no pass could run with it: "))
            << settings << faultOf(QString::fromLatin1(settings)).toStdString();
    const auto faultOfPath = [](qsizetype size) {
        return faultOf(QString(u"\"prefRemotePath\": \"" + QString(size, u'a') + u'"'));
    };
    EXPECT_EQ(faultOfPath(16384), u"(imported)");
    EXPECT_EQ(faultOfPath(16385), u"its prefRemotePath is not a text of at most 16 KiB");
}

TEST(ProfileTransferTest, Pieces_AreTheShellsWords) {
    EXPECT_EQ(shellPieces(QStringLiteral("  rsync\t-f '- a b'  \"%@1\"\\ x ")),
              (QStringList{QStringLiteral("rsync"), QStringLiteral("-f"), QStringLiteral("'- a b'"),
                           QStringLiteral("\"%@1\"\\ x")}));
    EXPECT_EQ(shellPieces(QStringLiteral("a;b | c\nd")),
              (QStringList{QStringLiteral("a;b"), QStringLiteral("|"), QStringLiteral("c\n"),
                           QStringLiteral("d")}));
    EXPECT_EQ(shellPieces(QString()), QStringList());
    const QString odd = QStringLiteral("a <<EOF `b c` $(d 'e) f");
    EXPECT_EQ(shellPieces(odd).join(u' '), odd) << "nothing is lost where it is not sure";
}

TEST(ProfileTransferTest, Preview_ShowsTheWholeCommandAndEverySetting) {
    const QString evil = QString(cCommand + u"; curl\u001b[8m x|sh");
    const QString text = importPreview({{prefRsyncCommandString1.toString(), evil},
                                        {prefRemoteUsername.toString(), QStringLiteral("a\tb")}},
                                       {.name = QStringLiteral("east")}, true);
    EXPECT_TRUE(text.startsWith(u"The profile east is there already. These settings take the place "
                                u"of those it has:\n"));
    EXPECT_TRUE(text.contains(u"NOT the one that the program comes with"));
    EXPECT_TRUE(text.contains(QString(u"\n  " + cCommand + u"; curl\\x1b[8m x|sh\n")))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u"  prefRemoteUsername         \"a\\x09b\"\n")) << text.toStdString();
    EXPECT_TRUE(text.contains(u"  prefRemotePath             factory value\n"));
    EXPECT_TRUE(text.contains(u"\n    2  2>&1    <- more than a word to the shell\n"));
    EXPECT_TRUE(text.contains(u"\n    7  \"%@2\";    <- more than a word to the shell\n"))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u"\n    9  x|sh    <- more than a word to the shell\n"));
    EXPECT_TRUE(text.contains(u"\n    5  -r\n"));
    EXPECT_FALSE(text.contains(u'\x1b'));

    const QString made = importPreview({}, {.name = QStringLiteral("east")}, false);
    EXPECT_TRUE(made.startsWith(u"The profile east will be made, with these settings:\n"));
    EXPECT_TRUE(made.contains(u"runs the command that the program comes with"));
    EXPECT_TRUE(made.contains(factoryValue(*preference(prefRsyncCommandString1)).toString()));
}

TEST(ProfileTransferTest, Preview_MarksEachWordThatIsMoreToTheShell) {
    const auto isMarked = [](const QString& command) {
        const QString text = importPreview({{prefRsyncCommandString1.toString(), command}},
                                           {.name = QStringLiteral("east")}, false);
        const QString line = text.section(QStringLiteral("Its words:\n"), 1).section(u'\n', 0, 0);
        EXPECT_TRUE(line.startsWith(u"    1  ")) << line.toStdString();
        return line.endsWith(u"    <- more than a word to the shell");
    };
    for (const char* marked : {"a;b", "a|b", "a&b", "a<b", "a>b", "(a)", "a(b", "a)b", "{a", "a}",
                               "`a`", "$a", "a\nb", "\"a`b`\"", "\"$a\"", "'a'$b"})
        EXPECT_TRUE(isMarked(QString::fromLatin1(marked))) << marked;
    for (const char* plain :
         {"a", "~", "\"~\"", "'~'", "'$a;|&<>(){}`'", "\"a;|&<>(){}b\"", "-f'- a b'", "%@1"})
        EXPECT_FALSE(isMarked(QString::fromLatin1(plain))) << plain;
}

TEST(ProfileTransferTest, Preview_IsTheseLines) {
    const QString text =
        importPreview({{prefRsyncCommandString1.toString(), QStringLiteral("rsync '%@1' %@2;x")},
                       {prefDelayBetweenScans.toString(), 12.5},
                       {prefKeepConnection.toString(), true}},
                      {.name = QStringLiteral("east")}, false);
    EXPECT_EQ(text, QStringLiteral(
                        "The profile east will be made, with these settings:\n"
                        "  prefDelayBetweenScans      12.5\n"
                        "  prefRsyncCommandString1    \"rsync '%@1' %@2;x\"\n"
                        "  prefRsyncCommandOptionTag  factory value\n"
                        "  prefRsyncWithSSH           factory value\n"
                        "  prefRemoteUsername         factory value\n"
                        "  prefRemoteBonjourName      factory value\n"
                        "  prefRemotePath             factory value\n"
                        "  keepConnection             true\n"
                        "  showNotices                factory value\n"
                        "  showArrivals               factory value\n"
                        "  prefAutoStartScanOnLaunch  factory value\n"
                        "Each pass runs a command that is NOT the one that the program comes with, "
                        "read by the shell:\n"
                        "  rsync '%@1' %@2;x\n"
                        "Its words:\n"
                        "    1  rsync\n"
                        "    2  '%@1'\n"
                        "    3  %@2;x    <- more than a word to the shell\n"
                        "In it %@1 stands for the folder on the Mac, %@2 for the destination here, "
                        "%@98 for the\noptions of ssh, %@99 for the option.\n"))
        << text.toStdString();
    EXPECT_TRUE(importPreview({}, {.name = QStringLiteral("east")}, true)
                    .startsWith(u"The profile east is there already. These settings take the place "
                                u"of those it has:\n  pref"));
    EXPECT_TRUE(importPreview({}, {.name = QStringLiteral("east")}, true)
                    .contains(u"\nEach pass runs the command that the program comes with, read by "
                              u"the shell:\n  /"));
}

class AnswerImportTest : public ::testing::Test {
protected:
    CommandAnswer import(bool accept = false) {
        return answerImport({.file = QStringLiteral("f.json"), .accept = accept}, bytes,
                            {.name = QStringLiteral("east")},
                            {.isThere = isThere,
                             .ask =
                                 [this](const QString& preview) {
                                     asked.append(preview);
                                     return answer;
                                 },
                             .store =
                                 [this](const QVariantMap& settings) {
                                     stored.push_back(settings);
                                     return fault;
                                 }});
    }

    QByteArray bytes = fileWith(QStringLiteral("\"prefRemoteUsername\": \"ann\""));
    bool isThere = false;
    std::optional<bool> answer = true;
    QString fault;
    QStringList asked;
    std::vector<QVariantMap> stored;
};

TEST_F(AnswerImportTest, AcceptedOnTheTerminal_IsStored) {
    const CommandAnswer done = import();
    EXPECT_EQ(done.exitCode, 0) << done.errors.toStdString();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_TRUE(asked[0].contains(u"ann"));
    EXPECT_EQ(done.errors, QString());
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(stored[0],
              (QVariantMap{{QStringLiteral("prefRemoteUsername"), QStringLiteral("ann")}}));
    EXPECT_EQ(done.output, u"The profile east is imported. It needs a destination here: "
                           u"kelvo-mirror --profile east --set prefPath2 FOLDER\n");
}

TEST_F(AnswerImportTest, NoTerminalOrNoYes_ChangesNothing) {
    answer = false;
    const CommandAnswer declined = import();
    EXPECT_EQ(declined.exitCode, cExitNotAccepted);
    EXPECT_EQ(declined.errors, u"kelvo-mirror: nothing was imported.\n");
    EXPECT_EQ(declined.output, QString()) << "it has been seen";
    answer.reset();
    const CommandAnswer untold = import();
    EXPECT_EQ(untold.exitCode, cExitNotAccepted);
    EXPECT_EQ(untold.errors, u"kelvo-mirror: nothing was imported: there is no terminal to ask on. "
                             u"--accept takes it over without a question.\n");
    EXPECT_TRUE(untold.output.contains(u"ann")) << "what it would have been";
    EXPECT_TRUE(stored.empty());
}

TEST_F(AnswerImportTest, AcceptedBeforehand_IsShownAllTheSame) {
    isThere = true;
    answer.reset();
    const CommandAnswer done = import(true);
    EXPECT_EQ(done.exitCode, 0);
    EXPECT_TRUE(done.output.contains(u"is there already"));
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(stored.size(), 1U);
}

TEST_F(AnswerImportTest, HostileOrUnstorable_IsSaid) {
    fault = QStringLiteral("no room.");
    const CommandAnswer full = import(true);
    EXPECT_EQ(full.exitCode, cExitNotStored);
    EXPECT_EQ(full.errors, u"kelvo-mirror: the profile could not be stored. no room.\n");
    EXPECT_FALSE(full.output.contains(u"is imported"));
    bytes = fileWith(QStringLiteral("\"prefPath2\": \"/etc\""));
    const CommandAnswer refused = import(true);
    EXPECT_EQ(refused.exitCode, cExitBadProfile);
    EXPECT_EQ(refused.errors,
              u"kelvo-mirror: f.json was not imported: it holds prefPath2, which no "
              u"exported profile holds.\n");
    EXPECT_EQ(stored.size(), 1U);
}

} // namespace
} // namespace kelvo
