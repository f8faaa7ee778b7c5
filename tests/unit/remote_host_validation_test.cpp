#include "fakes/fake_file_manager.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "remote/remote_host_validation.h"
#include "settings/preference_keys.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct VerdictCase {
    const char* name;
    const char* answer;
    bool keyFileExists;
    const char* verdict;
    const char* remark;
};

class HostVerdictTest : public ::testing::TestWithParam<VerdictCase> {};

TEST_P(HostVerdictTest, Answer_HasItsVerdictAndRemark) {
    const VerdictCase& expected = GetParam();
    EXPECT_EQ(judgedAnswer(QString::fromUtf8(expected.answer), QStringLiteral("Bob"),
                           expected.keyFileExists),
              (JudgedAnswer{HostVerdict::fromText(QString::fromUtf8(expected.verdict)),
                            QString::fromUtf8(expected.remark)}));
}

constexpr const char* cIdentityWarning =
    "Warning: Identity file /x not accessible: No such file or directory.\nPermission denied";

INSTANTIATE_TEST_SUITE_P(
    Table, HostVerdictTest,
    ::testing::Values(
        VerdictCase{"UserInOtherCase", "bob", true, "valid", ""},
        VerdictCase{"UserWithoutKeyFile", "BOB", false, "valid", ""},
        VerdictCase{"UserWithMore", "bob x", true, "unknownerror",
                    "Please check some other issue??????"},
        VerdictCase{"Unresolved", "ssh: Could not resolve hostname x: not known", true,
                    "checkremotehost", "remote host not on network"},
        VerdictCase{"UnresolvedInCapitals", "SSH: COULD NOT RESOLVE HOSTNAME x", true,
                    "checkremotehost", "remote host not on network"},
        VerdictCase{"UnresolvedAfterBanner", "hello\nssh: Could not resolve hostname x", true,
                    "unknownerror", "Please check some other issue??????"},
        VerdictCase{"UnresolvedWithoutKeyFile", "ssh: Could not resolve hostname x", false,
                    "ssh: Could not resolve hostname x", ""},
        VerdictCase{"Denied", "Permission denied (publickey).", true, "checkusername",
                    "check username..."},
        VerdictCase{"DeniedWithoutKeyFile", "Permission denied (publickey).", false,
                    "Permission denied (publickey).", ""},
        VerdictCase{"DeniedAfterUser", "bob@mac: Permission denied (publickey).", true,
                    "unknownerror", "Please check some other issue??????"},
        VerdictCase{"IdentityWithKeyFile", cIdentityWarning, true, "checksshkeys",
                    "missing clients ssh key1..."},
        VerdictCase{"IdentityWithoutKeyFile", cIdentityWarning, false, "checksshkeys",
                    "missing clients ssh key2..."},
        VerdictCase{"IdentityBeforeTheUser", "warning: identity file /x missing\nbob", true,
                    "checksshkeys", "missing clients ssh key1..."},
        VerdictCase{"TimeOut", "ssh: connect to host x port 22: Connection timed out", true,
                    "unknownerror", "Please check some other issue??????"},
        VerdictCase{"TimeOutWithoutKeyFile", "ssh: connect to host x port 22: Connection timed out",
                    false, "ssh: connect to host x port 22: Connection timed out", ""},
        VerdictCase{"Nothing", "", true, "unknownerror", "Please check some other issue??????"},
        VerdictCase{"NothingWithoutKeyFile", "", false, "", ""}),
    [](const auto& info) { return std::string(info.param.name); });

class RemoteHostValidationTest : public ::testing::Test {
protected:
    RemoteHostValidationTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("Remote-Mac.local"));
        files.existing = {QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync")};
    }

    MemoryDefaults defaults;
    ScriptedShell shell;
    FakeFileManager files;
    RecordingConsole console;
    RemoteHostValidation validation{
        {.defaults = defaults, .commands = shell, .files = files, .console = console}};
};

TEST_F(RemoteHostValidationTest, Command_IsExact) {
    validation.validateRemoteHostWithWhoami(3);
    EXPECT_EQ(shell.commands(),
              QStringList{QStringLiteral(
                  "/usr/bin/ssh 2>&1  -o ConnectTimeout=3  -i "
                  "/Users/localuser/.ssh/id_kelvoRsync \"mediauser@Remote-Mac.local\" whoami")});
}

TEST_F(RemoteHostValidationTest, Command_QuotesBlanksAndTakesAnyTimeout) {
    EXPECT_EQ(whoamiCommand(0, QStringLiteral("/k"), QStringLiteral("a b@c d")),
              u"/usr/bin/ssh 2>&1  -o ConnectTimeout=0  -i /k \"a b@c d\" whoami");
    EXPECT_EQ(whoamiCommand(-1, QStringLiteral("/%@2/%@1"), QStringLiteral("%@1@t")),
              u"/usr/bin/ssh 2>&1  -o ConnectTimeout=-1  -i /%@2/%@1 \"%@1@t\" whoami");
}

TEST_F(RemoteHostValidationTest, Command_KeepsOddTextsInOneWord) {
    EXPECT_EQ(whoamiCommand(3, QStringLiteral("/a b/$(x)/k"), QStringLiteral("u`y`@h\"")),
              u"/usr/bin/ssh 2>&1  -o ConnectTimeout=3  -i /a\\ b/\\$\\(x\\)/k \"u\\`y\\`@h\\\"\" "
              u"whoami");
}

TEST_F(RemoteHostValidationTest, Command_TakesAnyKeyPath) {
    for (const char* key :
         {"case x/k", "`%@2`", "$%@2", "\\%@2", "((%@2", "#%@2", "<<%@2", "${%@2"})
        EXPECT_TRUE(whoamiCommand(3, QString::fromUtf8(key), QStringLiteral("u@`h`"))
                        .endsWith(u" \"u@\\`h\\`\" whoami"))
            << key;
}

TEST_F(RemoteHostValidationTest, TextThatCannotStandInACommand_IsLoggedAndNobodyIsAsked) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("-oProxyCommand=x"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3), HostVerdict::NotAsked);
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    files.home = QStringLiteral("/a\nb");
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3), HostVerdict::NotAsked);
    EXPECT_TRUE(shell.commands().isEmpty());
    const QString prefix =
        QStringLiteral("Inside ViewController->validateRemoteHostWithWhoami(_:).......");
    EXPECT_EQ(
        console.logged(),
        (QStringList{QString(prefix + u"timeout = 3"),
                     QString(prefix + u"REFUSED: the user name begins with \"-\""),
                     QString(prefix + u"timeout = 3"),
                     QString(prefix + u"REFUSED: the path of the key file holds a line break")}));
}

TEST_F(RemoteHostValidationTest, ConsoleLines_StandInOrder) {
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral(" \nPermission denied.\n"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(2).text(), u"checkusername");
    using Kind = RecordingConsole::Kind;
    const QString rule(65, u'=');
    const std::vector<RecordingConsole::Line> expected{
        {Kind::Log,
         QStringLiteral(
             "Inside ViewController->validateRemoteHostWithWhoami(_:).......timeout = 2")},
        {Kind::Print,
         QString(u"cmd to check valid user and remote host = \n" + shell.commands().constFirst())},
        {Kind::Print, rule},
        {Kind::Print, QStringLiteral("\n\nusername and remote host status =\nPermission denied.")},
        {Kind::Print, rule},
        {Kind::Print, QStringLiteral("check username...")},
    };
    EXPECT_EQ(console.lines(), expected);
}

TEST_F(RemoteHostValidationTest, Valid_AddsNoRemark) {
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("MediaUser\n"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"valid");
    EXPECT_EQ(console.printed().size(), 4);
}

TEST_F(RemoteHostValidationTest, AnswerOfMoreThanSomeLines_IsCutAndNeverTheRightOne) {
    for (const qsizetype blanks : {100'000, 5'000'000}) {
        console.clear();
        shell.answerTo(QStringLiteral("whoami"), QString(u"mediauser\n" + QString(blanks, u'\n')));
        EXPECT_EQ(validation.validateRemoteHostWithWhoami(3), HostVerdict::UnknownError);
        const QString shown = console.printed().join(QString());
        EXPECT_LT(shown.size(), 70'000);
        EXPECT_TRUE(shown.contains(u" bytes left out …")) << blanks;
        EXPECT_EQ(shell.asked().back().bounds.most, 1024 * 1024);
    }
}

TEST_F(RemoteHostValidationTest, KeyFileMissing_HandsBackSshsOwnWords) {
    files.existing.clear();
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("No Route To Host\n"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"No Route To Host");
}

TEST_F(RemoteHostValidationTest, Command_IsBoundedByItsOwnTimeOutAndTheGrace) {
    validation.validateRemoteHostWithWhoami(3);
    validation.validateRemoteHostWithWhoami(0);
    validation.validateRemoteHostWithWhoami(-40);
    (void)RemoteHostValidation(
        {.defaults = defaults, .commands = shell, .files = files, .console = console, .grace = 0.5})
        .validateRemoteHostWithWhoami(2);
    EXPECT_EQ(shell.bounds(), (std::vector<std::optional<double>>{33.0, 30.0, 0.0, 2.5}));
}

TEST_F(RemoteHostValidationTest, HostThatStallsInTheLogin_IsJudgedByWhatItSaidSoFar) {
    shell.neverEnds(QStringLiteral("whoami"), QString());
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"unknownerror");
    shell.neverEnds(QStringLiteral("whoami"), QStringLiteral("Warning: Identity file x"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"checksshkeys");
    shell.neverEnds(QStringLiteral("whoami"), QStringLiteral("mediauser\n"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"valid");
    files.existing.clear();
    shell.neverEnds(QStringLiteral("whoami"), QStringLiteral("Welcome\n"));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"Welcome");
}

TEST_F(RemoteHostValidationTest, UserOrHostMissing_RunsNothing) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        console.clear();
        EXPECT_EQ(validation.validateRemoteHostWithWhoami(3).text(), u"");
        EXPECT_EQ(console.lines().size(), 1U) << "the entry line alone";
        defaults.setObject(key, kept);
    }
    EXPECT_TRUE(shell.commands().isEmpty());
}

} // namespace
} // namespace kelvo
