#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "remote/command_files.h"
#include "remote/ssh_key_provisioning.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Kind = RecordingConsole::Kind;
using Lines = std::vector<RecordingConsole::Line>;

const QString cPrivateKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync");
const QString cPublicKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync.pub");
const QString cScript = QStringLiteral("/tmp/of me/tempshell.command");
const QString cInstallation =
    QStringLiteral("/usr/bin/ssh-copy-id 2>&1 -i \"/Users/localuser/.ssh/id_kelvoRsync\"  "
                   "\"mediauser@Remote-Mac.local\"");
const QString cGeneration =
    QStringLiteral("/usr/bin/ssh-keygen  2>&1 -N \"\" -f \"/Users/localuser/.ssh/id_kelvoRsync\"");
const QString cChmod = QStringLiteral("/bin/chmod 0755 2>&1 \"/tmp/of me/tempshell.command\"");

class SshKeyProvisioningTest : public ::testing::Test {
protected:
    SshKeyProvisioningTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("Remote-Mac.local"));
        files.events = shell.events = terminal.events = workspace.events = {&events};
        shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
            files.existing += {cPrivateKey, cPublicKey};
            return QStringLiteral("Generating\n");
        });
    }

    QStringList events; ///< what the fakes were asked for, in that order
    MemoryDefaults defaults;
    FakeFileManager files;
    FakeTerminal terminal;
    FakeWorkspace workspace;
    RecordingConsole console;
    ScriptedShell shell;
    QList<qint64> timeouts; ///< of every question so far
    CommandFiles commandFiles{
        {.console = console, .files = files, .shell = shell, .terminal = terminal}};
    QStringList ended; ///< the commands whose scripts have ended or found no window
    int keyChanges = 0;
    SshKeyProvisioning provisioning{
        {.defaults = defaults,
         .files = files,
         .console = console,
         .shell = shell,
         .validate =
             [this](qint64 timeout) {
                 timeouts.append(timeout);
                 events.append(QStringLiteral("validate"));
             },
         .commandFiles = commandFiles,
         .workspace = workspace,
         .scriptEnded =
             [this](TerminalOutcome outcome, const QString& command) {
                 ended.append((outcome == TerminalOutcome::Ended ? u"ended " : u"no window ") +
                              command);
             },
         .windowTitle = [](const RemoteAccount& account) { return u"title of " + account.host; },
         .keysChanged = [this] { ++keyChanges; }}};
};

// -- files

TEST_F(SshKeyProvisioningTest, RemoveIfExists_NothingThereIsFine) {
    EXPECT_TRUE(commandFiles.removeItemIfExists(cPrivateKey));
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("Inside String->removeItemIfExists()......."),
                           QStringLiteral("Inside URL->removeItemIfExists().......")}));
    EXPECT_TRUE(files.removed.isEmpty());
}

TEST_F(SshKeyProvisioningTest, RemoveIfExists_SaysWhyItFailed) {
    files.existing = {cPrivateKey};
    files.guarded = cPrivateKey;
    EXPECT_FALSE(commandFiles.removeItemIfExists(cPrivateKey));
    EXPECT_EQ(console.printed().constLast(),
              QString(u"Inside URL->removeItemIfExists().......removeItem ERROR = " + cPrivateKey +
                      u": Permission denied"));
    files.guarded.clear();
    EXPECT_TRUE(commandFiles.removeItemIfExists(cPrivateKey));
    EXPECT_EQ(files.removed, QStringList{cPrivateKey});
}

TEST_F(SshKeyProvisioningTest, ChmodByTheShell_ShowsCommandAndResult) {
    shell.answerTo(QStringLiteral("chmod"), QStringLiteral("no\n"));
    EXPECT_EQ(commandFiles.chmodAsExecutable(cScript), u"no\n");
    EXPECT_EQ(shell.commands(), QStringList{cChmod});
    EXPECT_EQ(console.printed(), (QStringList{QString(u"trying command = [" + cChmod + u']'),
                                              QStringLiteral("terminal chmod result = [no\n]")}));
}

TEST_F(SshKeyProvisioningTest, ChmodBySystemCall_HandsAFailureBackInDecimal) {
    files.existing = {cScript};
    EXPECT_EQ(commandFiles.chmodAsExecutableBySystemCall(cScript), QString());
    files.modeResult = -1;
    EXPECT_EQ(commandFiles.chmodAsExecutableBySystemCall(cScript), u"-1");
    EXPECT_EQ(console.printed(), (QStringList{QStringLiteral("chmod result = [0]"),
                                              QStringLiteral("chmod result = [-1]")}));
    EXPECT_EQ(files.modes, (QList<std::pair<QString, unsigned>>{{cScript, 493U}, {cScript, 493U}}));
}

TEST_F(SshKeyProvisioningTest, CommandFile_IsWrittenMadeExecutableAndOpened) {
    EXPECT_TRUE(commandFiles.executeAsCommandFile(QStringLiteral("echo é"), {}));
    EXPECT_EQ(files.written.value(cScript), "echo \xc3\xa9\n");
    EXPECT_EQ(events, (QStringList{QString(u"write " + cScript), QString(u"run " + cChmod),
                                   QStringLiteral("terminal echo é")}));
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{30.0});
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().path, cScript);
    EXPECT_EQ(terminal.windows.front().command, u"echo é");
    EXPECT_TRUE(commandFiles.executeAsCommandFile(QStringLiteral("second"), {}));
    EXPECT_EQ(files.written.value(cScript), "second\n");
    EXPECT_TRUE(files.removed.isEmpty()) << "replaced, not removed first";
}

TEST_F(SshKeyProvisioningTest, CommandFileThatCannotBeWritten_OpensNothing) {
    files.guarded = cScript;
    EXPECT_FALSE(commandFiles.executeAsCommandFile(QStringLiteral("x"), {}));
    EXPECT_EQ(console.printed(),
              QStringList{QString(u"ooops bad..." + cScript + u": Permission denied")});
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_TRUE(shell.commands().isEmpty());
}

TEST_F(SshKeyProvisioningTest, CommandFileWithoutASafeFolder_IsWrittenNowhere) {
    files.temporary = {{}, QStringLiteral("/tmp/k belongs to somebody else")};
    EXPECT_FALSE(commandFiles.executeAsCommandFile(QStringLiteral("x"), {}));
    EXPECT_EQ(console.printed(),
              QStringList{QStringLiteral("ooops bad.../tmp/k belongs to somebody else")});
    EXPECT_TRUE(files.written.isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
}

// -- the pair

TEST(KeyCommandsTest, Commands_AreExact) {
    EXPECT_EQ(keyGenerationCommand(cPrivateKey), cGeneration);
    EXPECT_EQ(keyInstallationCommand(cPrivateKey, {.user = QStringLiteral("mediauser"),
                                                   .host = QStringLiteral("Remote-Mac.local")}),
              cInstallation);
}

TEST(KeyCommandsTest, BlanksStayInOneWord) {
    EXPECT_EQ(keyGenerationCommand(QStringLiteral("/a b/k")),
              u"/usr/bin/ssh-keygen  2>&1 -N \"\" -f \"/a b/k\"");
    EXPECT_EQ(keyInstallationCommand(QStringLiteral("/a b/k"), {.user = QStringLiteral("u v"),
                                                                .host = QStringLiteral("My Mac")}),
              u"/usr/bin/ssh-copy-id 2>&1 -i \"/a b/k\"  \"u v@My Mac\"");
}

TEST(KeyCommandsTest, NothingIsReadAsTheShellsOwn) {
    EXPECT_EQ(keyGenerationCommand(QStringLiteral("/a\"b$c`d\\e'f/k")),
              u"/usr/bin/ssh-keygen  2>&1 -N \"\" -f \"/a\\\"b\\$c\\`d\\\\e'f/k\"");
    EXPECT_EQ(keyInstallationCommand(QStringLiteral("/k"), {.user = QStringLiteral("u"),
                                                            .host = QStringLiteral("$(reboot)")}),
              u"/usr/bin/ssh-copy-id 2>&1 -i \"/k\"  \"u@\\$(reboot)\"");
}

TEST_F(SshKeyProvisioningTest, NewPair_RemovesBothHalvesAndShowsTheOutput) {
    files.existing = {cPrivateKey, cPublicKey};
    provisioning.createNewPrivatePublicKeys();
    EXPECT_EQ(files.removed, (QStringList{cPrivateKey, cPublicKey}));
    EXPECT_EQ(shell.commands(), QStringList{cGeneration});
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{30.0});
    const QString rule(40, u'=');
    const QString removal = QStringLiteral("Inside String->removeItemIfExists().......");
    const QString urlRemoval = QStringLiteral("Inside URL->removeItemIfExists().......");
    const Lines expected{
        {Kind::Log, QStringLiteral("Inside ViewController->createNewPrivatePublicKeys(_:).......")},
        {Kind::Print, removal},
        {Kind::Print, urlRemoval},
        {Kind::Print, removal},
        {Kind::Print, urlRemoval},
        {Kind::Print, QStringLiteral("status1 = true")},
        {Kind::Print, QStringLiteral("status2 = true")},
        {Kind::Print, rule},
        {Kind::Print, QStringLiteral("result = Generating\n")},
        {Kind::Print, QString(rule + u"\n\n")}};
    EXPECT_EQ(console.lines(), expected);
    EXPECT_EQ(keyChanges, 1);
}

TEST_F(SshKeyProvisioningTest, HalfThatCannotBeRemoved_DoesNotStopTheGeneration) {
    files.existing = {cPrivateKey, cPublicKey};
    files.guarded = cPublicKey;
    provisioning.createNewPrivatePublicKeys();
    EXPECT_TRUE(console.printed().contains(QStringLiteral("status1 = true")));
    EXPECT_TRUE(console.printed().contains(QStringLiteral("status2 = false")));
    EXPECT_EQ(shell.commands(), QStringList{cGeneration});
}

TEST_F(SshKeyProvisioningTest, Conditionally_OnlyACompletePairIsKept) {
    for (const QSet<QString>& there :
         {QSet<QString>{}, QSet<QString>{cPrivateKey}, QSet<QString>{cPublicKey}}) {
        files.existing = there;
        const qsizetype before = shell.commands().size();
        EXPECT_TRUE(provisioning.createNewPrivatePublicKeysConditionally());
        EXPECT_EQ(shell.commands().size(), before + 1);
    }
    EXPECT_TRUE(provisioning.createNewPrivatePublicKeysConditionally());
    EXPECT_EQ(shell.commands().size(), 3);
    EXPECT_EQ(console.logged().constLast(),
              u"Inside ViewController->createNewPrivatePublicKeysConditionally(_:).......");
}

TEST_F(SshKeyProvisioningTest, WithoutAHomeFolder_NothingIsMade) {
    files.home.clear();
    EXPECT_FALSE(provisioning.createNewPrivatePublicKeysConditionally());
    provisioning.createNewPrivatePublicKeys();
    provisioning.createNewPrivatePublicKeysOLD();
    provisioning.copyPublicKeyToRemoteHost();
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
}

// -- the sequence

TEST_F(SshKeyProvisioningTest, Sequence_ValidatesMakesAndInstalls) {
    provisioning.ibGenerateSSHKeyStuff();
    EXPECT_EQ(timeouts, QList<qint64>{2});
    EXPECT_EQ(events, (QStringList{QStringLiteral("validate"), QString(u"run " + cGeneration),
                                   QString(u"write " + cScript), QString(u"run " + cChmod),
                                   QString(u"terminal " + cInstallation)}));
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().command, cInstallation);
    EXPECT_EQ(files.written.value(cScript), QString(cInstallation + u'\n').toUtf8());
    EXPECT_EQ(console.logged(),
              (QStringList{
                  QStringLiteral("Inside ViewController->ibGenerateSSHKeyStuff(_:)......."),
                  QStringLiteral(
                      "Inside ViewController->createNewPrivatePublicKeysConditionally(_:)......."),
                  QStringLiteral("Inside ViewController->createNewPrivatePublicKeys(_:)......."),
                  QStringLiteral("Inside ViewController->copyPublicKeyToRemoteHost().......")}));
}

TEST_F(SshKeyProvisioningTest, UserThatWouldBeAnOption_IsLoggedAndNothingOpens) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("-x"));
    provisioning.copyPublicKeyToRemoteHost();
    EXPECT_TRUE(files.written.isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_EQ(console.logged().constLast(),
              u"Inside ViewController->copyPublicKeyToRemoteHost().......REFUSED: the user name "
              u"begins with \"-\"");
}

TEST_F(SshKeyProvisioningTest, SequenceWithACompletePair_KeepsIt) {
    files.existing = {cPrivateKey, cPublicKey};
    provisioning.ibGenerateSSHKeyStuff();
    EXPECT_TRUE(files.removed.isEmpty());
    EXPECT_EQ(shell.commands(), QStringList{cChmod});
    EXPECT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(keyChanges, 0);
}

TEST_F(SshKeyProvisioningTest, SequenceWithoutUserOrHost_MakesThePairAndOpensNothing) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        files.existing.clear();
        provisioning.ibGenerateSSHKeyStuff();
        EXPECT_TRUE(files.existing.contains(cPrivateKey));
        EXPECT_TRUE(files.written.isEmpty());
        EXPECT_TRUE(terminal.windows.empty());
        defaults.setObject(key, kept);
    }
}

TEST_F(SshKeyProvisioningTest, OutcomeOfTheWindow_IsPassedOnWithItsCommand) {
    provisioning.copyPublicKeyToRemoteHost();
    provisioning.copyPublicKeyToRemoteHost();
    terminal.windows[0].ended(TerminalOutcome::NoWindow);
    terminal.windows[1].ended(TerminalOutcome::Ended);
    EXPECT_EQ(ended, (QStringList{QString(u"no window " + cInstallation),
                                  QString(u"ended " + cInstallation)}));
}

TEST_F(SshKeyProvisioningTest, StoredTexts_AreNotTrimmed) {
    defaults.setObject(prefRemoteUsername, QStringLiteral(" media user "));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" Mac "));
    provisioning.copyPublicKeyToRemoteHost();
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_TRUE(terminal.windows.front().command.endsWith(u"  \" media user @ Mac \""));
}

// -- the older way

TEST_F(SshKeyProvisioningTest, OlderWayWithoutASafeFolder_OpensNothing) {
    files.temporary = {{}, QStringLiteral("/tmp/k belongs to somebody else")};
    provisioning.createNewPrivatePublicKeysOLD();
    EXPECT_EQ(console.printed().constLast(), u"ooops bad.../tmp/k belongs to somebody else");
    EXPECT_EQ(events, QStringList());
}

TEST_F(SshKeyProvisioningTest, OlderWay_RemovesTheOldScriptAndShowsTheFolder) {
    files.existing = {cPrivateKey, cPublicKey, cScript};
    provisioning.createNewPrivatePublicKeysOLD();
    const QString command =
        QStringLiteral("/usr/bin/ssh-keygen -N \"\" -f \"/Users/localuser/.ssh/id_kelvoRsync\"");
    EXPECT_EQ(files.written.value(cScript), QString(command + u'\n').toUtf8());
    EXPECT_EQ(events,
              (QStringList{QString(u"remove " + cPrivateKey), QString(u"remove " + cPublicKey),
                           QString(u"remove " + cScript), QString(u"write " + cScript),
                           QString(u"mode 755 " + cScript), QString(u"terminal " + command),
                           QStringLiteral("openUrl file:///tmp/of%20me")}));
    EXPECT_EQ(keyChanges, 1);
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().path, cScript);
    terminal.windows.front().ended(TerminalOutcome::Ended);
    EXPECT_EQ(ended, QStringList{QString(u"ended " + command)});
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral(
                  "Inside ViewController->createNewPrivatePublicKeysOLD(_:).......")});
    EXPECT_EQ(console.printed().sliced(4),
              (QStringList{QStringLiteral("status1 = true"), QStringLiteral("status2 = true"),
                           QStringLiteral("chmod result = [0]"), QString()}));
}

TEST_F(SshKeyProvisioningTest, OlderWay_StopsAtAScriptThatStays) {
    files.existing = {cScript};
    files.guarded = cScript;
    provisioning.createNewPrivatePublicKeysOLD();
    EXPECT_EQ(console.printed().sliced(6),
              (QStringList{QStringLiteral("ooops -did not delete that file"),
                           QStringLiteral("hmm... what to do?>>> cant get rid of old file "
                                          "first......")}));
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(SshKeyProvisioningTest, OlderWay_StopsWhenItCannotWrite) {
    files.guarded = cScript;
    provisioning.createNewPrivatePublicKeysOLD();
    EXPECT_EQ(console.printed().constLast(),
              QString(u"ooops bad..." + cScript + u": Permission denied"));
    EXPECT_TRUE(terminal.windows.empty());
}

} // namespace
} // namespace kelvo
