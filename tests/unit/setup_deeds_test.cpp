#include "adapters/console/headless_desktop.h"
#include "app/commands/setup_deeds.h"
#include "fakes/fake_dialogue.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/fake_ssh_configuration.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/pass_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync");
const QString cPublic = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync.pub");
const QString cTest = QStringLiteral("BatchMode=yes");

class SetupDeedsTest : public ::testing::Test {
protected:
    explicit SetupDeedsTest(const QString& name = {}) : profile{name} {
        settings.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        settings.setObject(prefRemoteBonjourName, QStringLiteral("Remote-Mac.local"));
        answers.destination = QStringLiteral("/Incoming");
        refuses();
        shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
            files.existing += {cKey, cPublic};
            files.written[cKey] = "new";
            return QString();
        });
        shell.answerTo(QStringLiteral("is-active"), QStringLiteral("active\n"));
    }

    void refuses() {
        shell.answerTo(cTest,
                       QStringLiteral("mediauser@Remote-Mac.local: Permission denied "
                                      "(publickey,password).\n"),
                       255);
    }
    void letsIn() { shell.answerTo(cTest, QStringLiteral("remoteisgood\n")); }
    void hasPair() {
        files.existing += {cKey, cPublic};
        files.written[cKey] = "old";
    }
    void settle() {
        for (int turn = 0; turn < 12; ++turn) {
            bgQueue.runAll();
            mainQueue.runDue();
        }
    }
    void begin() {
        deeds.begin(answers, [this](const CommandAnswer& answer) {
            ++ends;
            end = answer;
            saidBefore = dialogue.said.size();
        });
        settle();
    }
    /// What the script in the terminal comes to.
    void scriptEnds() {
        ASSERT_EQ(terminal.windows.size(), 1U);
        terminal.windows[0].ended(TerminalOutcome::Ended);
        settle();
    }
    bool ran(const QString& part) const { return !shell.commands().filter(part).isEmpty(); }

    FakeDialogue dialogue;
    MemoryDefaults settings;
    FakeFileManager files;
    ScriptedShell shell;
    FakeTerminal terminal;
    HeadlessWorkspace workspace;
    RecordingConsole console;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    QDateTime now{{2026, 11, 22}, {8, 30}};
    SetupKey key{{.settings = settings,
                  .files = files,
                  .console = console,
                  .mainQueue = mainQueue,
                  .bgQueue = bgQueue,
                  .commands = shell,
                  .terminal = terminal,
                  .workspace = workspace,
                  .now = [this] { return now; }}};
    Profile profile;
    SetupService service{
        {.mainQueue = mainQueue, .bgQueue = bgQueue, .commands = shell, .unit = profile.unit()}};
    FakeSshConfiguration ssh;
    QStringList made;
    FileFault cannotMake;
    std::vector<bool> storedStarting;
    QString cannotStore;
    SetupDeeds deeds{{.profile = profile,
                      .dialogue = dialogue,
                      .settings = settings,
                      .key = key,
                      .service = service,
                      .ssh = ssh,
                      .makeFolder =
                          [this](const QString& path) {
                              made.append(path);
                              return cannotMake;
                          },
                      .store =
                          [this](bool startByItself) {
                              storedStarting.push_back(startByItself);
                              return cannotStore;
                          }}};
    SetupAnswers answers;
    int ends = 0;
    CommandAnswer end;
    qsizetype saidBefore = 0; ///< lines that had been said when the set-up ended
};

TEST_F(SetupDeedsTest, KeyThatTheMacLetsIn_IsKeptAndNobodyIsAskedForAPassword) {
    hasPair();
    letsIn();
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_EQ(files.written[cKey], "old");
    EXPECT_EQ(storedStarting, std::vector{false});
    EXPECT_FALSE(ran(QStringLiteral("systemctl")));
    EXPECT_EQ(end.errors, QString());
    EXPECT_EQ(dialogue.said,
              (QStringList{QStringLiteral("Asking mediauser on Remote-Mac.local …"),
                           QStringLiteral("The Mac lets this program in."),
                           QStringLiteral("The settings are stored."),
                           QStringLiteral("What comes next:\n"
                                          "  kelvo-mirror --once        one pass now\n"
                                          "  kelvo-mirror --headless    pass after pass, once "
                                          "prefAutoStartScanOnLaunch is set to true")}))
        << dialogue.everything().toStdString();
    EXPECT_EQ(saidBefore, dialogue.said.size()) << "nothing is said to nobody";
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_TRUE(files.existing.contains(cKey)) << "it is not the set-up's to take away";
}

TEST_F(SetupDeedsTest, MacThatDoesNotKnowTheKey_GetsItInThisTerminal) {
    begin();
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_TRUE(terminal.windows[0].command.startsWith(u"/usr/bin/ssh-copy-id"));
    EXPECT_TRUE(files.existing.contains(cPublic));
    EXPECT_EQ(dialogue.said.value(1),
              u"The key of this program is installed on the Mac now. ssh asks for the password of "
              u"mediauser on Remote-Mac.local; it is kept nowhere. When the two machines meet for "
              u"the first time it asks before that whether to go on connecting: answer yes.");
    EXPECT_TRUE(storedStarting.empty()) << "not before the Mac lets us in";
    letsIn();
    scriptEnds();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_TRUE(deeds.stored());
}

TEST_F(SetupDeedsTest, WrongPassword_StoresNothingUnlessAPersonWantsItSo) {
    begin();
    scriptEnds();
    EXPECT_EQ(dialogue.lines.mid(2),
              (QStringList{QString(wordsFor(PassCause::KeyRefused).sentence + u' ' +
                                   wordsFor(PassCause::KeyRefused).nextStep),
                           QStringLiteral("Store the settings all the same? The service is not "
                                          "enabled then. [y/N] ")}));
    dialogue.answer("");
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(end.errors, u"kelvo-mirror: Nothing was changed.\n");
    EXPECT_TRUE(storedStarting.empty());
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_FALSE(files.existing.contains(cKey)) << "the pair of this set-up goes";
    EXPECT_FALSE(files.existing.contains(cPublic));
}

TEST_F(SetupDeedsTest, StoredAllTheSame_EnablesNothing) {
    answers.enable = true;
    answers.sshLine = true;
    begin();
    scriptEnds();
    dialogue.said.clear();
    dialogue.answer(" YES ");
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(dialogue.said,
              (QStringList{QStringLiteral("The settings are stored. Once the Mac can be reached: "
                                          "kelvo-mirror --setup"),
                           QStringLiteral("A line in /home/me/.ssh/config tells ssh of the "
                                          "connection that passes share. What takes it away again: "
                                          "kelvo-mirror --setup --no-share-connection")}));
    EXPECT_EQ(saidBefore, 2) << "nothing is said to nobody";
    EXPECT_EQ(storedStarting, std::vector{false});
    EXPECT_FALSE(ran(QStringLiteral("systemctl")));
    EXPECT_TRUE(deeds.stored());
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::ByTheLine) << "it was agreed to";
}

TEST_F(SetupDeedsTest, AnswerOfALetter_StoresThemToo) {
    begin();
    scriptEnds();
    dialogue.answer("y");
    EXPECT_TRUE(deeds.stored());
}

TEST_F(SetupDeedsTest, MacThatNoKeyCanMend_IsNotGivenOne) {
    for (const char* said :
         {"ssh: Could not resolve hostname remote-mac.local: Name or service "
          "not known\n",
          "ssh: connect to host remote-mac.local port 22: Connection refused\n"}) {
        shell.answerTo(cTest, QString::fromLatin1(said), 255);
        begin();
        EXPECT_TRUE(dialogue.asked.last().startsWith(u"Store the settings all the same?")) << said;
        EXPECT_FALSE(ran(QStringLiteral("ssh-keygen"))) << said;
    }
}

TEST_F(SetupDeedsTest, MacThatWasNeverMet_GetsTheKeyInThisTerminal) {
    shell.answerTo(cTest, QStringLiteral("Host key verification failed.\n"), 255);
    begin();
    EXPECT_EQ(terminal.windows.size(), 1U);
}

TEST_F(SetupDeedsTest, AccountThatCannotStandInACommand_IsNotAskedFor) {
    settings.setObject(prefRemoteUsername, QStringLiteral("-l"));
    begin();
    EXPECT_EQ(dialogue.lines,
              (QStringList{QStringLiteral("Asking -l on Remote-Mac.local …"),
                           QStringLiteral("The Mac was not asked, because the user name begins "
                                          "with \"-\"."),
                           QStringLiteral("Store the settings all the same? The service is not "
                                          "enabled then. [y/N] ")}));
    EXPECT_FALSE(ran(cTest));
}

TEST_F(SetupDeedsTest, EndAtAnyTime_IsSaidAndChangesNothing) {
    const auto isEnded = [this](const char* when) {
        EXPECT_EQ(end.exitCode, 18) << when;
        EXPECT_EQ(end.errors, u"kelvo-mirror: the set-up was ended. Nothing was changed.\n")
            << when;
        EXPECT_TRUE(storedStarting.empty()) << when;
        end = {};
    };
    shell.givesUp = true;
    begin();
    isEnded("the first question");
    shell.givesUp = false;
    begin();
    shell.givesUp = true;
    scriptEnds();
    isEnded("the second question");
    shell.givesUp = false;
    begin();
    letsIn();
    terminal.windows.back().ended(TerminalOutcome::Ended);
    deeds.interrupt();
    settle();
    isEnded("Ctrl+C while the Mac is asked again");
    begin();
    isEnded("Ctrl+C while the Mac is asked");
    EXPECT_EQ(ends, 4);
}

TEST_F(SetupDeedsTest, ScriptThatCannotBeStarted_IsSaid) {
    begin();
    terminal.windows.at(0).ended(TerminalOutcome::NoWindow);
    settle();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(end.errors, u"kelvo-mirror: the key was not installed: its installation could not be "
                          u"started. Nothing was changed.\n");
    // The next one that comes to nothing is noticed all the same.
    files.temporary = {{}, QStringLiteral("no place")};
    begin();
    EXPECT_EQ(ends, 2);
}

TEST_F(SetupDeedsTest, Undo_TakesAwayOnlyWhatTheSetUpMade) {
    shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
        files.existing += {cKey, cPublic};
        return QString();
    });
    begin();
    scriptEnds();
    files.guarded = cPublic;
    EXPECT_EQ(key.undo(), QString(cPublic + u": Permission denied"));
    files.guarded.clear();
    files.existing += {cKey, cPublic};
    EXPECT_EQ(key.undo(), QString());
    EXPECT_TRUE(files.existing.contains(cKey)) << "somebody else's by now";
}

TEST_F(SetupDeedsTest, UndoOfHalfAPair_TakesThatHalfAway) {
    begin();
    files.existing.remove(cKey);
    EXPECT_EQ(key.undo(), QString());
    EXPECT_FALSE(files.existing.contains(cPublic));
}

TEST_F(SetupDeedsTest, NewKey_KeepsTheOldOneAndGivesItBackWhenNothingComesOfIt) {
    hasPair();
    letsIn();
    answers.newKey = true;
    begin();
    EXPECT_EQ(files.written[cKey], "new");
    EXPECT_EQ(files.written[key.keptPath()], "old");
    EXPECT_EQ(key.keptPath(), QString(cKey + u"-2026-11-22T08-30-00"));
    refuses();
    scriptEnds();
    dialogue.answer(std::nullopt);
    EXPECT_EQ(end.exitCode, 18);
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_EQ(files.written[cKey], "old");
    EXPECT_TRUE(files.existing.contains(cPublic));
    EXPECT_FALSE(files.existing.contains(key.keptPath())) << "no further name is left";
}

TEST_F(SetupDeedsTest, NewKeyThatTheMacTakes_TellsWhereTheOldOneIs) {
    hasPair();
    letsIn();
    answers.newKey = true;
    begin();
    scriptEnds();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(dialogue.said.mid(2, 3),
              (QStringList{QStringLiteral("The Mac lets this program in."),
                           QString(u"The key of before is kept at " + key.keptPath()),
                           QStringLiteral("The settings are stored.")}));
}

TEST_F(SetupDeedsTest, KeyThatCannotBeKept_IsNotReplaced) {
    hasPair();
    answers.newKey = true;
    files.guarded = QString(cKey + u"-2026-11-22T08-30-00");
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(end.errors, QString(u"kelvo-mirror: the key was not installed: the key of today "
                                  u"could not be kept (" +
                                  files.guarded + u": Permission denied). Nothing was changed.\n"));
    EXPECT_EQ(saidBefore, dialogue.said.size());
    EXPECT_EQ(files.written[cKey], "old");
    EXPECT_TRUE(terminal.windows.empty());
}

TEST_F(SetupDeedsTest, NoSafePlaceForTheScript_IsAnEndToo) {
    files.temporary = {{}, QStringLiteral("no place")};
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(end.errors, u"kelvo-mirror: the key was not installed: it could not be made, or "
                          u"there is no safe place for the script that installs it. Nothing was "
                          u"changed.\n");
    EXPECT_EQ(ends, 1);
}

TEST_F(SetupDeedsTest, CtrlCAtThePassword_LeavesEverythingAsItWas) {
    begin();
    deeds.interrupt();
    scriptEnds();
    EXPECT_EQ(end.exitCode, 18);
    EXPECT_TRUE(storedStarting.empty());
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_FALSE(files.existing.contains(cKey));
}

TEST_F(SetupDeedsTest, WithoutATerminal_TheKeyIsNotInstalledAndThatIsSaid) {
    dialogue.isThere = false;
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_TRUE(end.errors.contains(u"asked in a terminal, and there is none"));
    EXPECT_TRUE(terminal.windows.empty());
    EXPECT_FALSE(files.existing.contains(cKey));
    EXPECT_TRUE(storedStarting.empty());
}

TEST_F(SetupDeedsTest, NewKeyWithoutATerminal_IsAFailureAlthoughTheOldOneIsGood) {
    hasPair();
    letsIn();
    answers.newKey = true;
    dialogue.isThere = false;
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(end.errors,
              u"kelvo-mirror: The Mac lets this program in. The key of this program is installed "
              u"there with the password of the account, which is asked in a terminal, and there is "
              u"none. Nothing was changed.\n");
    EXPECT_FALSE(deeds.stored());
}

TEST_F(SetupDeedsTest, MacThatIsNotThere_IsNamedWithItsOwnCode) {
    dialogue.isThere = false;
    shell.answerTo(cTest,
                   QStringLiteral("ssh: Could not resolve hostname remote-mac.local: Name or "
                                  "service not known\n"),
                   255);
    begin();
    EXPECT_EQ(end.exitCode, 10);
    EXPECT_EQ(end.errors,
              QString(u"kelvo-mirror: " + wordsFor(PassCause::HostNotFound).sentence + u' ' +
                      wordsFor(PassCause::HostNotFound).nextStep + u" Nothing was changed.\n"));
    EXPECT_FALSE(ran(QStringLiteral("ssh-keygen")));
    EXPECT_TRUE(dialogue.asked.isEmpty());
}

TEST_F(SetupDeedsTest, Folder_IsMadeBeforeTheSettingsPointToIt) {
    letsIn();
    answers.makeDestination = true;
    cannotMake = QStringLiteral("Permission denied");
    begin();
    EXPECT_EQ(made, QStringList{QStringLiteral("/Incoming")});
    EXPECT_EQ(end.exitCode, 14);
    EXPECT_EQ(end.errors, u"kelvo-mirror: the folder could not be made: Permission denied. Nothing "
                          u"was changed.\n");
    EXPECT_TRUE(storedStarting.empty());
}

TEST_F(SetupDeedsTest, SettingsThatCannotBeStored_EnableNothing) {
    letsIn();
    answers.enable = true;
    cannotStore = QStringLiteral("the disk is full");
    begin();
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_EQ(end.errors, u"kelvo-mirror: the settings could not be stored: the disk is full\n");
    EXPECT_FALSE(ran(QStringLiteral("systemctl")));
    EXPECT_FALSE(deeds.stored());
}

TEST_F(SetupDeedsTest, SshIsToldOnceTheMacLetsUsIn_AndWhatTakesItBackIsSaid) {
    answers.sshLine = true;
    begin();
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::NotYet) << "not before";
    letsIn();
    scriptEnds();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::ByTheLine);
    EXPECT_TRUE(dialogue.everything().contains(u"kelvo-mirror --setup --no-share-connection"));
    dialogue.said.clear();
    begin();
    EXPECT_FALSE(dialogue.everything().contains(u"no-share")) << "it was there";
    answers.sshLine = false;
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::NotYet);
    EXPECT_TRUE(
        dialogue.said.contains(QStringLiteral("The line in /home/me/.ssh/config is taken away.")));
    dialogue.said.clear();
    begin();
    EXPECT_FALSE(dialogue.everything().contains(u"taken away")) << "there was none";
}

TEST_F(SetupDeedsTest, SshThatCannotBeTold_IsAFailureThatStopsNothingElse) {
    letsIn();
    answers.sshLine = true;
    answers.enable = true;
    ssh.fault = QStringLiteral("Permission denied\n");
    begin();
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_TRUE(deeds.stored());
    EXPECT_TRUE(ran(QStringLiteral("systemctl --user enable")));
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("/home/me/.ssh/config was not changed: Permission denied\\x0a")))
        << dialogue.everything().toStdString();
}

TEST_F(SetupDeedsTest, SshThatCannotBeTold_IsAFailureWithoutAServiceToo) {
    letsIn();
    answers.sshLine = true;
    ssh.fault = QStringLiteral("no");
    begin();
    EXPECT_EQ(end.exitCode, 1);
}

TEST_F(SetupDeedsTest, SshThatNobodySpokeOf_StaysAsItIs) {
    letsIn();
    using Knows = SshConfiguration::Knows;
    for (const Knows standing : {Knows::ByTheLine, Knows::NotYet}) {
        ssh.standing = standing;
        begin();
        EXPECT_EQ(ssh.standing, standing);
        EXPECT_FALSE(dialogue.everything().contains(u"/.ssh/config"));
    }
}

TEST_F(SetupDeedsTest, SshThatTheMachineTells_NeedsNoLine) {
    letsIn();
    answers.sshLine = true;
    ssh.standing = SshConfiguration::Knows::ByTheMachine;
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::ByTheMachine);
}

TEST_F(SetupDeedsTest, Service_IsEnabledAndLingersOnlyWhenAgreed) {
    letsIn();
    answers.enable = true;
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_EQ(storedStarting, std::vector{true});
    EXPECT_TRUE(ran(QStringLiteral("systemctl --user enable kelvo-mirror.service")));
    EXPECT_TRUE(ran(QStringLiteral("systemctl --user restart")));
    EXPECT_FALSE(ran(QStringLiteral("enable-linger")));
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("What comes next:\n"
                       "  systemctl --user status kelvo-mirror    how it is\n"
                       "  journalctl --user -u kelvo-mirror -f    what it does\n"
                       "  kelvo-mirror --passes                   what it has done")))
        << dialogue.everything().toStdString();
    EXPECT_EQ(saidBefore, dialogue.said.size());
    answers.linger = true;
    begin();
    EXPECT_TRUE(ran(QStringLiteral("loginctl enable-linger")));
    EXPECT_TRUE(dialogue.everything().contains(u"enabled and runs. It will run from the start of "
                                               u"the machine on."));
}

TEST_F(SetupDeedsTest, ServiceThatDoesNotRunThen_SaysWhereToLook) {
    letsIn();
    answers.enable = true;
    shell.answerTo(QStringLiteral("is-active"), QStringLiteral("activating\n"), 3);
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_TRUE(dialogue.everything().contains(
        u"The service kelvo-mirror is enabled, but does not run now: perhaps another copy does. "
        u"See systemctl --user status kelvo-mirror\n"))
        << dialogue.everything().toStdString();
}

TEST_F(SetupDeedsTest, ServiceThatCannotBeEnabled_SaysItsLastLine) {
    letsIn();
    answers.enable = true;
    answers.linger = true;
    shell.answerTo(QStringLiteral("user enable"),
                   QStringLiteral("one\nFailed to connect to bus\x1b[31m\n"), 1);
    begin();
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_TRUE(dialogue.everything().contains(u"Failed to connect to bus\\x1b[31m"));
    EXPECT_FALSE(ran(QStringLiteral("enable-linger")));
    EXPECT_TRUE(deeds.stored());
}

TEST_F(SetupDeedsTest, LingeringThatOnlyRootMaySwitchOn_SaysHow) {
    letsIn();
    answers.enable = true;
    answers.linger = true;
    shell.answerTo(QStringLiteral("enable-linger"),
                   QStringLiteral("Could not enable linger: Access denied\n"), 1);
    begin();
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_TRUE(dialogue.everything().contains(u"sudo loginctl enable-linger $USER."));
    EXPECT_TRUE(dialogue.everything().contains(u"Could not enable linger: Access denied"));
}

TEST_F(SetupDeedsTest, Service_IsSpokenToInTheseWords) {
    letsIn();
    answers.enable = answers.linger = true;
    shell.answerTo(QStringLiteral("enable-linger"), QStringLiteral("one\nAccess denied\n"), 1);
    begin();
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("The service kelvo-mirror is enabled and runs. Lingering could not be "
                       "switched on, so it runs only while you are logged in. Who may act as root "
                       "can do it: sudo loginctl enable-linger $USER. The last line was: Access "
                       "denied")))
        << dialogue.everything().toStdString();
    shell.answerTo(QStringLiteral("user enable"), QStringLiteral("one\nno bus\n"), 1);
    begin();
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("The service could not be enabled. The last line was: no bus")));
    service.look([](const ServiceFacts&) {});
    settle();
    QStringList asked;
    for (const Command& each : shell.asked()) {
        if (each.text.contains(u"ctl "))
            asked.append(QString::number(each.seconds.value_or(0)) + u": " + each.text);
    }
    const QString enable =
        QStringLiteral("60: systemctl --user enable kelvo-mirror.service 2>&1 && systemctl --user "
                       "restart kelvo-mirror.service 2>&1");
    EXPECT_EQ(asked,
              (QStringList{enable,
                           QStringLiteral("60: systemctl --user is-active kelvo-mirror.service "
                                          "2>&1"),
                           QStringLiteral("60: loginctl enable-linger 2>&1"), enable,
                           QStringLiteral("10: systemctl --user show-environment >/dev/null 2>&1 "
                                          "&& systemctl --user cat kelvo-mirror.service >/dev/null "
                                          "2>&1 || exit 1; loginctl show-user \"$(id -u)\" "
                                          "--property=Linger --value 2>/dev/null || true")}));
}

class SetupOfAProfileTest : public SetupDeedsTest {
protected:
    SetupOfAProfileTest() : SetupDeedsTest(QStringLiteral("east")) {}
};

TEST_F(SetupOfAProfileTest, Service_IsTheProfilesOwn) {
    letsIn();
    answers.enable = true;
    begin();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_TRUE(ran(QStringLiteral("systemctl --user enable kelvo-mirror@east.service")));
    EXPECT_FALSE(ran(QStringLiteral("kelvo-mirror.service")));
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("What comes next:\n"
                       "  systemctl --user status kelvo-mirror@east    how it is\n"
                       "  journalctl --user -u kelvo-mirror@east -f    what it does\n"
                       "  kelvo-mirror --profile east --passes         what it has done")))
        << dialogue.everything().toStdString();
    service.look([](const ServiceFacts&) {});
    settle();
    EXPECT_TRUE(ran(QStringLiteral("systemctl --user cat kelvo-mirror@east.service")));
}

TEST_F(SetupOfAProfileTest, WhatComesNext_NamesTheProfile) {
    letsIn();
    begin();
    EXPECT_TRUE(dialogue.everything().contains(u"  kelvo-mirror --profile east --once        one "
                                               u"pass now\n"));
}

TEST_F(SetupDeedsTest, Look_TellsWhetherThereIsAServiceToEnable) {
    ServiceFacts facts;
    const auto look = [&] {
        service.look([&](const ServiceFacts& seen) { facts = seen; });
        settle();
    };
    shell.answerTo(QStringLiteral("show-environment"), QStringLiteral("yes\n"));
    look();
    EXPECT_TRUE(facts.canBeEnabled);
    EXPECT_TRUE(facts.lingers);
    shell.answerTo(QStringLiteral("show-environment"), QString(), 1);
    look();
    EXPECT_FALSE(facts.canBeEnabled);
    EXPECT_FALSE(facts.lingers);
}

} // namespace
} // namespace kelvo
