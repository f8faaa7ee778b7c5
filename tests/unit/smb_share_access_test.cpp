#include "fakes/fake_desktop.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "remote/command_files.h"
#include "remote/smb_share_access.h"
#include "settings/preference_keys.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvo {
namespace {

const QString cReveal = QStringLiteral("Inside ViewController->ibRevealSourcePathSMB(_:)");
const QString cDebug = QStringLiteral("Inside ViewController->ibRevealSourcePathSMBdebug(_:)");
const QString cOlder = QStringLiteral("Inside ViewController->ibRevealSourcePathSMBdebugOLD(_:)");
const QString cTest = QStringLiteral("Inside ViewController->ibTestShellCommand111(_:)");
const QString cOpenShare =
    QStringLiteral("open \"smb://ann@Office%20Mac%20Mini._smb._tcp.local/Macintosh%20HD\"");
const QString cList = QStringLiteral("df -ahY -T smbfs");
const QString cPick =
    QStringLiteral("echo \"one\" | awk ' $1 ~ /Office%20Mac%20Mini/ {print $'10'\" \"$'11'}' ");

TEST(VolumePathTest, FirstLineOfAMacintoshVolume_ElseEverything) {
    EXPECT_EQ(volumePath(QStringLiteral("/Volumes/Data x\n /Volumes/MACINTOSH HD \n"
                                        "/Volumes/Macintosh HD-2\n")),
              u"/Volumes/MACINTOSH HD");
    EXPECT_EQ(volumePath(QStringLiteral(" /Volumes/Data\n/Volumes/Other \n")),
              u"/Volumes/Data\n/Volumes/Other");
    EXPECT_EQ(volumePath(QString()), QString());
}

template <typename Commands>
class ShareWorld : public ::testing::Test {
protected:
    ShareWorld() {
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("Office-Mac-Mini.local"));
        defaults.setObject(prefRemoteUsername, QStringLiteral(" ann "));
        defaults.setObject(prefRemotePath, QStringLiteral("Movies\n"));
    }

    /// Commands run as soon as they are asked for, until the main queue has nothing due.
    void runDue() {
        do {
            bgQueue.runAll();
            mainQueue.runDue();
        } while (bgQueue.size() > 0);
    }
    void advance(double seconds) {
        runDue();
        for (const double end = mainQueue.now() + seconds; mainQueue.now() < end; runDue()) {
            const double rest = end - mainQueue.now();
            mainQueue.advance(mainQueue.idle() ? rest : std::min(rest, mainQueue.nextDelay()));
        }
    }
    bool idle() const { return mainQueue.idle() && bgQueue.size() == 0; }

    MemoryDefaults defaults;
    RecordingConsole console;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedShell shell;
    std::vector<RemoteTaskKind> tasksShown;
    RemoteTasks tasks{{.mainQueue = mainQueue,
                       .bgQueue = bgQueue,
                       .shell = shell,
                       .show = [this](RemoteTaskKind kind) { tasksShown.push_back(kind); }}};
    Commands commands;
    FakeFileManager files;
    FakeTerminal terminal;
    FakeWorkspace workspace;
    CommandFiles commandFiles{{.console = console, .files = files, .terminal = terminal}};
    int beeps = 0;
    QStringList withoutWindow;
    SmbShareAccess share{{defaults, console, tasks, commands, commandFiles, workspace,
                          [this] { ++beeps; },
                          [this](const QString& command) { withoutWindow.append(command); }}};
};

class SmbShareAccessTest : public ShareWorld<MacShareCommands> {
protected:
    void mount(const QString& picked) {
        shell.answerTo(QStringLiteral("df -"), QStringLiteral(" one\n"));
        shell.answerTo(QStringLiteral("awk"), picked);
    }
};

TEST_F(SmbShareAccessTest, WithoutAHost_OnlyTheFirstActionBeeps) {
    defaults.removeObject(prefRemoteBonjourName);
    share.ibRevealSourcePathSMBdebug();
    runDue();
    share.ibRevealSourcePathSMBdebugOLD();
    runDue();
    EXPECT_EQ(beeps, 0);
    share.ibRevealSourcePathSMB();
    runDue();
    EXPECT_EQ(beeps, 1);
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(idle());
    EXPECT_EQ(console.logged(),
              (QStringList{QString(cDebug + u"......."), QString(cOlder + u"......."),
                           QString(cReveal + u".......")}));
}

TEST_F(SmbShareAccessTest, Reveal_OpensTheFolderAndLogsTheAnswer) {
    shell.answerTo(QStringLiteral("open"), QStringLiteral("no such folder\n"));
    share.ibRevealSourcePathSMB();
    runDue();
    const QString command = QStringLiteral(
        "open \"smb://ann@Office%20Mac%20Mini._smb._tcp.local/Macintosh%20HD/Users/ann/Movies\"");
    EXPECT_EQ(shell.commands(), QStringList{command});
    EXPECT_EQ(console.logged(),
              (QStringList{QString(cReveal + u"......."),
                           QString(cReveal + u".......cmd to send = [" + command + u']'),
                           QString(cReveal + u".......response = no such folder\n")}));
    EXPECT_TRUE(idle());
}

TEST_F(SmbShareAccessTest, Debug_FindsTheVolumeAndOpensTheFolderThere) {
    mount(QStringLiteral("/Volumes/Data x\n/Volumes/Macintosh HD\n"));
    share.ibRevealSourcePathSMBdebug();
    runDue();
    EXPECT_EQ(shell.commands(), QStringList{cOpenShare});
    advance(0.499);
    EXPECT_EQ(shell.commands().size(), 1);
    advance(0.001);
    EXPECT_EQ(shell.commands(), (QStringList{cOpenShare, cList, cPick}));
    advance(0.1);
    EXPECT_EQ(shell.commands().constLast(), u"open \"./Volumes/Macintosh HD/Users/ann/Movies\"");
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>(4, 50.0))
        << "none holds its task for ever";
    EXPECT_EQ(
        console.logged(),
        (QStringList{
            QString(cDebug + u"......."), QString(cDebug + u".......response = "),
            QString(cDebug + u".......response[df -ahY -T smbfs]=  one\n"),
            QString(cDebug + u".......  domain = Office-Mac-Mini.local"),
            QString(cDebug + u".......username = ann"),
            QString(cDebug + u".......volume path = [/Volumes/Data x\n/Volumes/Macintosh HD]"),
            QString(cDebug + u".......try to open  = [./Volumes/Macintosh HD/Users/ann/Movies]"),
            QString(cDebug + u".......response = []")}));
    EXPECT_EQ(console.printed(), QStringList{QString(u"cmdformat = [ " + cPick + u" ]")});
}

TEST_F(SmbShareAccessTest, Debug_StopsAtAnAnswerOfTheShareAndAtAnEmptyListing) {
    shell.answerTo(QStringLiteral("smb:"), QStringLiteral("unreachable"));
    share.ibRevealSourcePathSMBdebug();
    runDue();
    EXPECT_TRUE(idle());
    shell.answerTo(QStringLiteral("smb:"), QString());
    share.ibRevealSourcePathSMBdebug();
    advance(5.0);
    EXPECT_EQ(shell.commands(), (QStringList{cOpenShare, cOpenShare, cList}));
    EXPECT_EQ(console.logged().constLast(), QString(cDebug + u".......username = ann"));
}

TEST_F(SmbShareAccessTest, DebugWithoutAMatch_OpensTheRelativePathAllTheSame) {
    mount(QString());
    share.ibRevealSourcePathSMBdebug();
    advance(1.0);
    EXPECT_EQ(shell.commands().constLast(), u"open \"./Users/ann/Movies\"");
}

TEST_F(SmbShareAccessTest, OlderWay_LooksAtOnceAndJoinsAllLines) {
    mount(QStringLiteral("/Volumes/Data x\n/Volumes/Macintosh HD\n"));
    share.ibRevealSourcePathSMBdebugOLD();
    runDue();
    EXPECT_EQ(shell.commands(), (QStringList{cOpenShare, cList, cPick}));
    advance(0.099);
    EXPECT_EQ(shell.commands().size(), 3);
    advance(0.001);
    EXPECT_EQ(shell.commands().constLast(),
              u"open \"./Volumes/Data x\n/Volumes/Macintosh HD/Users/ann/Movies\"");
    for (const QString& line : console.logged())
        EXPECT_FALSE(line.contains(u"try to open")) << line.toStdString();
    EXPECT_EQ(console.logged().constLast(), QString(cOlder + u".......response = []"));
}

TEST_F(SmbShareAccessTest, OlderWay_GoesOnAfterAnEmptyListing) {
    share.ibRevealSourcePathSMBdebugOLD();
    advance(0.1);
    EXPECT_EQ(shell.commands().size(), 4);
}

// -- Linux

TEST_F(SmbShareAccessTest, Test_ListsTheVolumesHalfASecondLater) {
    shell.answerTo(QStringLiteral("df"), QStringLiteral("a volume"));
    share.ibTestShellCommand111();
    runDue();
    EXPECT_EQ(shell.commands(), QStringList{cOpenShare});
    advance(0.499);
    EXPECT_EQ(shell.commands().size(), 1);
    advance(0.001);
    EXPECT_EQ(shell.commands(), (QStringList{cOpenShare, cList}));
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>(2, 50.0));
    EXPECT_EQ(console.logged(),
              (QStringList{QString(cTest + u"......."),
                           QString(cTest + u".......response[" + cOpenShare + u"]= []"),
                           QString(cTest + u".......response[" + cList + u"]= a volume")}));
    EXPECT_TRUE(workspace.requests.isEmpty()) << "the command itself has opened it";
}

TEST_F(SmbShareAccessTest, TestThatIsToldSomething_IsTheEnd) {
    shell.answerTo(QStringLiteral("open"), QStringLiteral("no"));
    share.ibTestShellCommand111();
    runDue();
    EXPECT_EQ(console.logged(),
              (QStringList{QString(cTest + u"......."),
                           QString(cTest + u".......response[" + cOpenShare + u"]= [no]"),
                           QString(cTest + u".......OH OH????")}));
    EXPECT_TRUE(idle());
}

TEST_F(SmbShareAccessTest, TestWithoutAHost_IsSilent) {
    defaults.removeObject(prefRemoteBonjourName);
    share.ibTestShellCommand111();
    runDue();
    EXPECT_EQ(console.lines().size(), 1U);
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(idle());
}

class GioShareAccessTest : public ShareWorld<GioShareCommands> {
protected:
    static constexpr auto cVolume = u"/run/user/1/gvfs/smb-share:server=m,share=macintosh%20hd";
    static constexpr auto cFolder =
        u"openFile /run/user/1/gvfs/smb-share:server=m,share=macintosh%20hd/Users/ann/Movies";
    void mount() {
        shell.answerTo(QStringLiteral("gio info"), QStringLiteral("local path: …"));
        shell.answerTo(QStringLiteral("gio mount"), QString());
        shell.answerTo(QStringLiteral("printf"), QString::fromUtf16(cVolume));
    }
};

TEST_F(GioShareAccessTest, Reveal_FindsTheMountedFolder) {
    mount();
    share.ibRevealSourcePathSMB();
    advance(0.1);
    EXPECT_EQ(workspace.requests, QStringList{QString::fromUtf16(cFolder)});
    EXPECT_EQ(console.logged().constLast(), QString(cReveal + u".......response = []"));
}

TEST_F(GioShareAccessTest, Debug_OpensThroughTheDesktop) {
    mount();
    share.ibRevealSourcePathSMBdebug();
    advance(0.6);
    EXPECT_EQ(workspace.requests, QStringList{QString::fromUtf16(cFolder)});
}

TEST_F(GioShareAccessTest, Test_OpensTheShareAndListsIt) {
    mount();
    share.ibTestShellCommand111();
    advance(0.5);
    EXPECT_EQ(workspace.requests, QStringList{QString(u"openFile " + QString::fromUtf16(cVolume))});
    EXPECT_TRUE(console.logged().contains(QString(cTest + u".......response[" +
                                                  commands.listVolumes(*shareTarget(defaults)) +
                                                  u"]= local path: …")));
}

TEST_F(GioShareAccessTest, TestWithoutAMountedShare_OpensNothing) {
    mount();
    shell.answerTo(QStringLiteral("printf"), QString());
    share.ibTestShellCommand111();
    advance(1.0);
    EXPECT_TRUE(workspace.requests.isEmpty());
    EXPECT_TRUE(console.logged().constLast().endsWith(u"]= local path: …"));
}

TEST_F(GioShareAccessTest, TestThatIsAskedForAPassword_GoesOnAfterTheTerminal) {
    mount();
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("Password: "));
    share.ibTestShellCommand111();
    runDue();
    EXPECT_TRUE(console.logged().constLast().endsWith(u".......OH OH????"));
    advance(1);
    EXPECT_TRUE(workspace.requests.isEmpty());
    ASSERT_EQ(terminal.windows.size(), 1U);
    terminal.windows.front().ended(TerminalOutcome::Ended);
    advance(0.5);
    EXPECT_EQ(workspace.requests, QStringList{QString(u"openFile " + QString::fromUtf16(cVolume))});
}

TEST_F(GioShareAccessTest, PasswordQuestion_IsAskedInATerminalAndThenItGoesOn) {
    mount();
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("Password: "));
    share.ibRevealSourcePathSMB();
    runDue();
    EXPECT_TRUE(workspace.requests.isEmpty());
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().command,
              u"gio mount \"smb://ann@Office-Mac-Mini.local/Macintosh%20HD\"");
    EXPECT_EQ(files.written.value(terminal.windows.front().path),
              QString(terminal.windows.front().command + u'\n').toUtf8());
    terminal.windows.front().ended(TerminalOutcome::Ended);
    advance(0.1);
    EXPECT_EQ(workspace.requests, QStringList{QString::fromUtf16(cFolder)});
}

TEST_F(GioShareAccessTest, PasswordQuestionWithoutATerminal_IsHandedOver) {
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("Password: "));
    share.ibRevealSourcePathSMBdebug();
    runDue();
    terminal.windows.front().ended(TerminalOutcome::NoWindow);
    advance(1.0);
    EXPECT_EQ(withoutWindow, QStringList{QStringLiteral(
                                 "gio mount \"smb://ann@Office-Mac-Mini.local/Macintosh%20HD\"")});
    EXPECT_TRUE(workspace.requests.isEmpty());
}

TEST_F(GioShareAccessTest, SilentServer_IsInTheLogAndNothingOpens) {
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("no answer within 20 seconds\n"));
    share.ibRevealSourcePathSMB();
    advance(1.0);
    EXPECT_EQ(console.logged().constLast(),
              QString(cReveal + u".......response = no answer within 20 seconds\n"));
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_TRUE(workspace.requests.isEmpty());
}

// -- away from the main thread

TEST_F(GioShareAccessTest, MainQueue_NeverWaitsForACommand) {
    mount();
    for (const auto action :
         {&SmbShareAccess::ibRevealSourcePathSMB, &SmbShareAccess::ibRevealSourcePathSMBdebug,
          &SmbShareAccess::ibRevealSourcePathSMBdebugOLD, &SmbShareAccess::ibTestShellCommand111}) {
        const qsizetype before = shell.commands().size();
        workspace.requests.clear();
        (share.*action)();
        mainQueue.advance(60);
        EXPECT_EQ(shell.commands().size(), before);
        EXPECT_EQ(tasksShown.back(), RemoteTaskKind::OpeningFolder);
        while (workspace.requests.isEmpty() && !idle()) {
            const qsizetype asked = shell.commands().size();
            mainQueue.advance(60);
            EXPECT_EQ(shell.commands().size(), asked);
            bgQueue.runAll();
        }
        EXPECT_EQ(workspace.requests.size(), 1);
        runDue();
        EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None);
    }
}

TEST_F(GioShareAccessTest, SecondClick_StartsNothing) {
    mount();
    share.ibRevealSourcePathSMB();
    share.ibRevealSourcePathSMB();
    share.ibRevealSourcePathSMBdebug();
    share.ibTestShellCommand111();
    EXPECT_EQ(bgQueue.size(), 1U);
    advance(1);
    EXPECT_EQ(workspace.requests.size(), 1);
    share.ibRevealSourcePathSMB();
    advance(1);
    EXPECT_EQ(workspace.requests.size(), 2) << "and once it is over the next does";
}

TEST_F(GioShareAccessTest, Cancel_EndsTheCommandAndNothingFollows) {
    mount();
    shell.answerTo(QStringLiteral("gio mount"), [this](const QString&) {
        tasks.cancel();
        tasks.cancel();
        return QString();
    });
    share.ibRevealSourcePathSMB();
    advance(60);
    EXPECT_EQ(shell.commands().size(), 1);
    EXPECT_TRUE(workspace.requests.isEmpty());
    EXPECT_EQ(tasksShown, (std::vector{RemoteTaskKind::OpeningFolder, RemoteTaskKind::Ending,
                                       RemoteTaskKind::None}));
    EXPECT_EQ(console.logged().size(), 2) << "an answer that comes late is nobody's";
}

TEST_F(GioShareAccessTest, CancelBetweenTwoSteps_IsTheEndToo) {
    mount();
    share.ibRevealSourcePathSMBdebug();
    runDue();
    tasks.cancel();
    advance(60);
    EXPECT_EQ(shell.commands().size(), 1);
    EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None);
    tasks.cancel();
    EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None) << "nothing is left to cancel";
}

TEST_F(GioShareAccessTest, TerminalThatEndsWhileAnotherTaskRuns_GoesOnAfterIt) {
    mount();
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("Password: "));
    share.ibRevealSourcePathSMB();
    runDue();
    EXPECT_EQ(tasksShown.back(), RemoteTaskKind::None) << "a person may take their time";
    auto other = tasks.begin(RemoteTaskKind::MakingKey);
    terminal.windows.front().ended(TerminalOutcome::Ended);
    advance(10);
    EXPECT_TRUE(workspace.requests.isEmpty());
    other.reset();
    advance(1);
    EXPECT_EQ(workspace.requests, QStringList{QString::fromUtf16(cFolder)});
}

TEST_F(GioShareAccessTest, QueuesThatEndInMidTask_LeaveNothingBehind) {
    mount();
    share.ibRevealSourcePathSMBdebug();
    runDue();
    EXPECT_FALSE(mainQueue.idle()) << "the rest of it waits when the test ends";
}

} // namespace
} // namespace kelvo
