#include "adapters/console/headless_desktop.h"
#include "app/commands/setup_deeds.h"
#include "fakes/fake_dialogue.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"

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
    QStringList made;
    FileFault cannotMake;
    std::vector<bool> storedStarting;
    QString cannotStore;
    SetupDeeds deeds{{.profile = profile,
                      .dialogue = dialogue,
                      .settings = settings,
                      .key = key,
                      .service = service,
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
    EXPECT_TRUE(dialogue.said.contains(QStringLiteral("The Mac lets this program in.")));
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_TRUE(files.existing.contains(cKey)) << "it is not the set-up's to take away";
}

TEST_F(SetupDeedsTest, MacThatDoesNotKnowTheKey_GetsItInThisTerminal) {
    begin();
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_TRUE(terminal.windows[0].command.startsWith(u"/usr/bin/ssh-copy-id"));
    EXPECT_TRUE(files.existing.contains(cPublic));
    EXPECT_TRUE(storedStarting.empty()) << "not before the Mac lets us in";
    letsIn();
    scriptEnds();
    EXPECT_EQ(end.exitCode, 0);
    EXPECT_TRUE(deeds.stored());
}

TEST_F(SetupDeedsTest, WrongPassword_StoresNothingUnlessAPersonWantsItSo) {
    begin();
    scriptEnds();
    EXPECT_TRUE(dialogue.asked.last().startsWith(u"Store the settings all the same?"));
    dialogue.answer("");
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_TRUE(storedStarting.empty());
    EXPECT_TRUE(key.undo().isEmpty());
    EXPECT_FALSE(files.existing.contains(cKey)) << "the pair of this set-up goes";
    EXPECT_FALSE(files.existing.contains(cPublic));
}

TEST_F(SetupDeedsTest, StoredAllTheSame_EnablesNothing) {
    answers.enable = true;
    begin();
    scriptEnds();
    dialogue.answer("yes");
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_EQ(storedStarting, std::vector{false});
    EXPECT_FALSE(ran(QStringLiteral("systemctl")));
    EXPECT_TRUE(deeds.stored());
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
    EXPECT_TRUE(dialogue.everything().contains(key.keptPath()));
}

TEST_F(SetupDeedsTest, KeyThatCannotBeKept_IsNotReplaced) {
    hasPair();
    answers.newKey = true;
    files.guarded = QString(cKey + u"-2026-11-22T08-30-00");
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_TRUE(end.errors.contains(u"the key of today could not be kept"))
        << end.errors.toStdString();
    EXPECT_EQ(files.written[cKey], "old");
    EXPECT_TRUE(terminal.windows.empty());
}

TEST_F(SetupDeedsTest, NoSafePlaceForTheScript_IsAnEndToo) {
    files.temporary = {{}, QStringLiteral("no place")};
    begin();
    EXPECT_EQ(end.exitCode, 12);
    EXPECT_TRUE(end.errors.contains(u"no safe place")) << end.errors.toStdString();
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
    EXPECT_TRUE(end.errors.contains(u"asked in a terminal, and there is none"));
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
    EXPECT_TRUE(end.errors.endsWith(u"Nothing was changed.\n")) << end.errors.toStdString();
    EXPECT_FALSE(ran(QStringLiteral("ssh-keygen")));
}

TEST_F(SetupDeedsTest, Folder_IsMadeBeforeTheSettingsPointToIt) {
    letsIn();
    answers.makeDestination = true;
    cannotMake = QStringLiteral("Permission denied");
    begin();
    EXPECT_EQ(made, QStringList{QStringLiteral("/Incoming")});
    EXPECT_EQ(end.exitCode, 14);
    EXPECT_TRUE(storedStarting.empty());
}

TEST_F(SetupDeedsTest, SettingsThatCannotBeStored_EnableNothing) {
    letsIn();
    answers.enable = true;
    cannotStore = QStringLiteral("the disk is full");
    begin();
    EXPECT_EQ(end.exitCode, 1);
    EXPECT_TRUE(end.errors.contains(u"the disk is full"));
    EXPECT_FALSE(ran(QStringLiteral("systemctl")));
    EXPECT_FALSE(deeds.stored());
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
    answers.linger = true;
    begin();
    EXPECT_TRUE(ran(QStringLiteral("loginctl enable-linger")));
    EXPECT_TRUE(dialogue.everything().contains(u"enabled and runs. It will run from the start of "
                                               u"the machine on."));
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
