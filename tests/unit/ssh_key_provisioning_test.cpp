#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
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

    /// Whatever waits comes to its end.
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            bgQueue.runAll();
            mainQueue.runDue();
        }
    }
    void makeNewPair() {
        provisioning.createNewPrivatePublicKeys();
        settle();
    }
    void makeNewPairOLD() {
        provisioning.createNewPrivatePublicKeysOLD();
        settle();
    }
    void setUp() {
        provisioning.ibGenerateSSHKeyStuff();
        settle();
    }

    QStringList events; ///< what the fakes were asked for, in that order
    MemoryDefaults defaults;
    FakeFileManager files;
    FakeTerminal terminal;
    FakeWorkspace workspace;
    RecordingConsole console;
    ScriptedShell shell;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    std::vector<RemoteTaskKind> tasksShown;
    RemoteTasks tasks{{.mainQueue = mainQueue,
                       .bgQueue = bgQueue,
                       .shell = shell,
                       .show = [this](RemoteTaskKind kind) { tasksShown.push_back(kind); }}};
    const RunCommand run = [this](const Command& command) { return shell.run(command); };
    std::function<void(const RunCommand&)> asked = [](const RunCommand&) {};
    QList<qint64> timeouts; ///< of every question so far
    CommandFiles commandFiles{{.console = console, .files = files, .terminal = terminal}};
    QStringList ended; ///< the commands whose scripts have ended or found no window
    int keyChanges = 0;
    SshKeyProvisioning provisioning{
        {.defaults = defaults,
         .files = files,
         .console = console,
         .mainQueue = mainQueue,
         .tasks = tasks,
         .validate =
             [this](qint64 timeout, const RunCommand& runs) {
                 timeouts.append(timeout);
                 events.append(QStringLiteral("validate"));
                 asked(runs);
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
    EXPECT_EQ(commandFiles.chmodAsExecutable(cScript, run), u"no\n");
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
    EXPECT_EQ(commandFiles.writeCommandFile(QStringLiteral("echo é"), run), cScript);
    commandFiles.openScript(cScript, QStringLiteral("echo é"), {});
    EXPECT_EQ(files.written.value(cScript), "echo \xc3\xa9\n");
    EXPECT_EQ(events, (QStringList{QString(u"write " + cScript), QString(u"run " + cChmod),
                                   QStringLiteral("terminal echo é")}));
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{30.0});
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().path, cScript);
    EXPECT_EQ(terminal.windows.front().command, u"echo é");
    EXPECT_EQ(commandFiles.writeCommandFile(QStringLiteral("second"), run), cScript);
    EXPECT_EQ(files.written.value(cScript), "second\n");
    EXPECT_TRUE(files.removed.isEmpty()) << "replaced, not removed first";
}

TEST_F(SshKeyProvisioningTest, CommandFileThatCannotBeWritten_OpensNothing) {
    files.guarded = cScript;
    files.existing = {cPrivateKey, cPublicKey};
    setUp();
    EXPECT_EQ(console.printed(),
              QStringList{QString(u"ooops bad..." + cScript + u": Permission denied")});
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_TRUE(shell.commands().isEmpty());
}

TEST_F(SshKeyProvisioningTest, CommandFileWithoutASafeFolder_IsWrittenNowhere) {
    files.temporary = {{}, QStringLiteral("/tmp/k belongs to somebody else")};
    files.existing = {cPrivateKey, cPublicKey};
    setUp();
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
    makeNewPair();
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
    makeNewPair();
    EXPECT_TRUE(console.printed().contains(QStringLiteral("status1 = true")));
    EXPECT_TRUE(console.printed().contains(QStringLiteral("status2 = false")));
    EXPECT_EQ(shell.commands(), QStringList{cGeneration});
}

TEST_F(SshKeyProvisioningTest, Sequence_KeepsOnlyACompletePair) {
    for (const QSet<QString>& there :
         {QSet<QString>{}, QSet<QString>{cPrivateKey}, QSet<QString>{cPublicKey}}) {
        files.existing = there;
        const qsizetype before = shell.commands().count(cGeneration);
        setUp();
        EXPECT_EQ(shell.commands().count(cGeneration), before + 1);
    }
    setUp();
    EXPECT_EQ(shell.commands().count(cGeneration), 3);
}

TEST_F(SshKeyProvisioningTest, WithoutAHomeFolder_NothingIsMade) {
    files.home.clear();
    setUp();
    makeNewPair();
    makeNewPairOLD();
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
}

// -- the sequence

TEST_F(SshKeyProvisioningTest, Sequence_ValidatesMakesAndInstalls) {
    setUp();
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
    setUp();
    EXPECT_TRUE(files.written.isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_EQ(console.logged().constLast(),
              u"Inside ViewController->copyPublicKeyToRemoteHost().......REFUSED: the user name "
              u"begins with \"-\"");
}

TEST_F(SshKeyProvisioningTest, SequenceWithACompletePair_KeepsIt) {
    files.existing = {cPrivateKey, cPublicKey};
    setUp();
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
        setUp();
        EXPECT_TRUE(files.existing.contains(cPrivateKey));
        EXPECT_TRUE(files.written.isEmpty());
        EXPECT_TRUE(terminal.windows.empty());
        defaults.setObject(key, kept);
    }
}

TEST_F(SshKeyProvisioningTest, OutcomeOfTheWindow_IsPassedOnWithItsCommand) {
    setUp();
    setUp();
    terminal.windows[0].ended(TerminalOutcome::NoWindow);
    terminal.windows[1].ended(TerminalOutcome::Ended);
    EXPECT_EQ(ended, (QStringList{QString(u"no window " + cInstallation),
                                  QString(u"ended " + cInstallation)}));
}

TEST_F(SshKeyProvisioningTest, StoredTexts_AreNotTrimmed) {
    defaults.setObject(prefRemoteUsername, QStringLiteral(" media user "));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" Mac "));
    setUp();
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_TRUE(terminal.windows.front().command.endsWith(u"  \" media user @ Mac \""));
}

// -- the older way

TEST_F(SshKeyProvisioningTest, OlderWayWithoutASafeFolder_OpensNothing) {
    files.temporary = {{}, QStringLiteral("/tmp/k belongs to somebody else")};
    makeNewPairOLD();
    EXPECT_EQ(console.printed().constLast(), u"ooops bad.../tmp/k belongs to somebody else");
    EXPECT_EQ(events, QStringList());
}

TEST_F(SshKeyProvisioningTest, OlderWay_RemovesTheOldScriptAndShowsTheFolder) {
    files.existing = {cPrivateKey, cPublicKey, cScript};
    makeNewPairOLD();
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
    settle();
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
    makeNewPairOLD();
    EXPECT_EQ(console.printed().sliced(6),
              (QStringList{QStringLiteral("ooops -did not delete that file"),
                           QStringLiteral("hmm... what to do?>>> cant get rid of old file "
                                          "first......")}));
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(SshKeyProvisioningTest, OlderWay_StopsWhenItCannotWrite) {
    files.guarded = cScript;
    makeNewPairOLD();
    EXPECT_EQ(console.printed().constLast(),
              QString(u"ooops bad..." + cScript + u": Permission denied"));
    EXPECT_TRUE(terminal.windows.empty());
}

// -- away from the main thread

TEST_F(SshKeyProvisioningTest, EveryAction_RunsNothingBeforeTheBackgroundQueueDoes) {
    for (const auto action :
         {&SshKeyProvisioning::ibGenerateSSHKeyStuff,
          qOverload<const PairGuard&>(&SshKeyProvisioning::createNewPrivatePublicKeys),
          &SshKeyProvisioning::createNewPrivatePublicKeysOLD}) {
        events.clear();
        tasksShown.clear();
        (provisioning.*action)({});
        mainQueue.advance(10);
        EXPECT_EQ(events, QStringList());
        ASSERT_EQ(tasksShown.size(), 1U);
        (provisioning.*action)({});
        EXPECT_EQ(bgQueue.size(), 1U) << "a second click does nothing";
        settle();
        EXPECT_FALSE(events.isEmpty());
        EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None);
    }
}

TEST_F(SshKeyProvisioningTest, CancelWhileTheHostIsAsked_TouchesNoKey) {
    files.existing = {cPrivateKey};
    shell.answerTo(QStringLiteral("whoami"), [this](const QString&) {
        tasks.cancel();
        return QString();
    });
    asked = [](const RunCommand& runs) { (void)runs({.text = QStringLiteral("whoami")}); };
    setUp();
    EXPECT_EQ(files.existing, QSet<QString>{cPrivateKey});
    EXPECT_EQ(shell.commands(), QStringList{QStringLiteral("whoami")});
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_EQ(tasksShown, (std::vector{RemoteTaskKind::SettingUpKey, RemoteTaskKind::Ending,
                                       RemoteTaskKind::None}));
}

TEST_F(SshKeyProvisioningTest, QuitWhileTheHostIsAsked_TouchesNoKey) {
    files.existing = {cPrivateKey};
    asked = [](const RunCommand& runs) {
        // What a command gives that was given up.
        (void)runs({.text = QStringLiteral("whoami")});
    };
    shell.givesUp = true;
    setUp();
    EXPECT_EQ(files.existing, QSet<QString>{cPrivateKey});
    EXPECT_TRUE(terminal.windows.empty());
}

TEST_F(SshKeyProvisioningTest, CancelWhileTheKeyIsMade_EndsTheCommandAndRunsTheGuardOut) {
    files.existing = {cPrivateKey, cPublicKey};
    shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
        tasks.cancel();
        return QString();
    });
    QStringList guarded;
    provisioning.createNewPrivatePublicKeys(
        {.before =
             [&] {
                 guarded.append(QStringLiteral("before"));
                 return files.existing.size() == 2;
             },
         .after = [&] { guarded.append(QStringLiteral("after")); }});
    settle();
    EXPECT_EQ(guarded, (QStringList{QStringLiteral("before"), QStringLiteral("after")}));
    EXPECT_EQ(keyChanges, 1);
    EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None);
}

TEST_F(SshKeyProvisioningTest, GuardThatRefuses_LeavesThePairAlone) {
    files.existing = {cPrivateKey};
    const PairGuard guard{.before = [] { return false; },
                          .after = [] { ADD_FAILURE() << "nothing was replaced"; }};
    provisioning.ibGenerateSSHKeyStuff(guard);
    settle();
    provisioning.createNewPrivatePublicKeys(guard);
    settle();
    provisioning.createNewPrivatePublicKeysOLD(guard);
    settle();
    EXPECT_EQ(files.existing, QSet<QString>{cPrivateKey});
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(terminal.windows.empty());
}

TEST_F(SshKeyProvisioningTest, OlderWay_RunsTheGuardOutWhenItsScriptHasEndedOrNoneCame) {
    int after = 0;
    const PairGuard guard{.before = {}, .after = [&] { ++after; }};
    provisioning.createNewPrivatePublicKeysOLD(guard);
    settle();
    EXPECT_EQ(after, 0);
    terminal.windows.front().ended(TerminalOutcome::NoWindow);
    settle();
    EXPECT_EQ(after, 1);
    files.guarded = cScript;
    provisioning.createNewPrivatePublicKeysOLD(guard);
    settle();
    EXPECT_EQ(after, 2);
}

} // namespace
} // namespace kelvo
