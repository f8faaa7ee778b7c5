// The remote side as the main view's controller puts it together.
#include "fakes/view_controller_world.h"
#include "ui/terminal_notice.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class RemoteSideTest : public ::testing::Test, public ViewControllerWorld {
protected:
    RemoteSideTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
        shell.answerTo(QStringLiteral("ssh-keygen"), [this](const QString&) {
            files.existing += {QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync"),
                               QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync.pub")};
            return QString();
        });
        load();
    }
    void settle() {
        for (int turn = 0; turn < 3; ++turn) {
            bgQueue.runAll();
            mainQueue.advance(0.2);
        }
    }
    KeyState shownState() const { return view.keyStates.back(); }
};

TEST_F(RemoteSideTest, FromNoKeyToAccepted_EachStateIsShown) {
    EXPECT_EQ(shownState(), KeyState::NoKey);
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("Permission denied (publickey)."));
    controller.ibGenerateSSHKeyStuff(nullptr);
    settle();
    EXPECT_EQ(shownState(), KeyState::NotAsked) << "it is a new one";
    ASSERT_EQ(terminal.windows.size(), 1U);
    terminal.windows.front().ended(TerminalOutcome::Ended);
    settle();
    EXPECT_EQ(shownState(), KeyState::NotAccepted);
    controller.ibGenerateSSHKeyStuff(nullptr);
    settle();
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("ann\n"));
    ASSERT_EQ(terminal.windows.size(), 2U);
    terminal.windows.back().ended(TerminalOutcome::Ended);
    EXPECT_EQ(shownState(), KeyState::Asking);
    settle();
    EXPECT_EQ(shownState(), KeyState::Accepted);
}

TEST_F(RemoteSideTest, NoTerminal_ShowsTheCommandAndCopiesIt) {
    controller.ibGenerateSSHKeyStuff(nullptr);
    settle();
    const QString command = terminal.windows.front().command;
    terminal.windows.front().ended(TerminalOutcome::NoWindow);
    settle();
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_TRUE(presenter.alerts.front().informativeText.endsWith(QString(u"\n\n" + command)));
    EXPECT_EQ(presenter.alerts.front().buttons,
              (QStringList{QStringLiteral("Copy Command"), QStringLiteral("Close")}));
    presenter.answer(1, cAlertFirstButtonReturn);
    EXPECT_EQ(clipboard, command);
}

TEST_F(RemoteSideTest, NoTerminalAndClosed_LeavesTheClipboardAlone) {
    clipboard = QStringLiteral("before");
    controller.ibGenerateSSHKeyStuff(nullptr);
    settle();
    terminal.windows.front().ended(TerminalOutcome::NoWindow);
    settle();
    presenter.answer(1, cAlertSecondButtonReturn);
    EXPECT_EQ(clipboard, u"before");
}

TEST_F(RemoteSideTest, Passes_RefreshTheStateOfTheKeyToo) {
    controller.createNewPrivatePublicKeys(nullptr);
    settle();
    EXPECT_EQ(shownState(), KeyState::NotAsked);
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("ann"));
    defaults.setObject(prefPath2, QStringLiteral("/backup"));
    button.performClick();
    settle();
    EXPECT_EQ(shownState(), KeyState::Accepted);
}

TEST_F(RemoteSideTest, ConnectionTest_ShowsItsSignAndItsAlert) {
    controller.ibTestShellCommand(nullptr);
    EXPECT_EQ(view.testSigns, std::vector{true});
    settle();
    EXPECT_EQ(view.testSigns, (std::vector{true, false}));
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.front().messageText, u"SUCCESS...");
}

TEST_F(RemoteSideTest, ConnectionTest_TellsTheTruthBesideItsMessage) {
    controller.createNewPrivatePublicKeys(nullptr);
    const QString silent = QStringLiteral("ssh: connect to host mac.local port 22: timed out");
    shell.answerTo(QStringLiteral("remoteisgood"), silent, 255);
    controller.ibTestShellCommand(nullptr);
    settle();
    EXPECT_EQ(presenter.alerts.back().messageText, u"SUCCESS...");
    EXPECT_EQ(answers, std::vector{(HostAnswer{.target = QStringLiteral("ann@mac.local"),
                                               .cause = PassCause::HostAway,
                                               .lastLine = silent,
                                               .saidSuccess = true})});
    EXPECT_EQ(shownState(), KeyState::HostAway) << "the key's line agrees";
    shell.answerTo(QStringLiteral("remoteisgood"), QStringLiteral("remoteisgood\n"));
    controller.ibTestShellCommand(nullptr);
    settle();
    EXPECT_EQ(answers.back().cause, PassCause::Well);
    EXPECT_EQ(shownState(), KeyState::Accepted);
}

TEST_F(RemoteSideTest, ConnectionTestThatIsRefused_TellsWhy) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("-x"));
    controller.ibTestShellCommand(nullptr);
    settle();
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers.front().cause, PassCause::SettingsRefused);
    EXPECT_EQ(answers.front().lastLine, u"the user name begins with \"-\"");
    EXPECT_FALSE(answers.front().saidSuccess);
}

TEST_F(RemoteSideTest, EveryCheckOfTheHost_IsAnAnswer) {
    controller.createNewPrivatePublicKeys(nullptr);
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("ann@mac.local: Permission denied (p)"),
                   255);
    controller.checkKeyState(nullptr);
    settle();
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_EQ(answers.front().cause, PassCause::KeyRefused);
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("ann"));
    controller.checkKeyState(nullptr);
    settle();
    EXPECT_EQ(answers.back(),
              (HostAnswer{.target = QStringLiteral("ann@mac.local"), .cause = PassCause::Well}));
}

TEST_F(RemoteSideTest, TerminalWindow_SaysWhosePasswordIsAsked) {
    controller.ibGenerateSSHKeyStuff(nullptr);
    settle();
    ASSERT_EQ(terminal.windows.size(), 1U);
    EXPECT_EQ(terminal.windows.front().title, u"Kelvo Mirror: the password of ann on mac.local");
}

TEST_F(RemoteSideTest, UseSourceNow_DoesWhatANewUserNameDoes) {
    defaults.setObject(prefRemotePath, QStringLiteral("Clips"));
    mainQueue.advance(5);
    EXPECT_NE(defaults.stringForKey(prefSampleRemoteFullPath),
              QStringLiteral("ann@mac.local:Clips"));
    controller.useSourceNow(nullptr);
    mainQueue.runDue();
    EXPECT_EQ(defaults.stringForKey(prefSampleRemoteFullPath),
              QStringLiteral("ann@mac.local:Clips"));
}

TEST_F(RemoteSideTest, ShareWithAPasswordButNoTerminal_ShowsTheCommand) {
    shell.answerTo(QStringLiteral("gio mount"), QStringLiteral("Password: "));
    controller.ibRevealSourcePathSMBdebug(nullptr);
    settle();
    ASSERT_EQ(terminal.windows.size(), 1U);
    terminal.windows.front().ended(TerminalOutcome::NoWindow);
    settle();
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.front().messageText, u"No Terminal Found");
}

TEST_F(RemoteSideTest, ShareWithoutAHost_Beeps) {
    defaults.removeObject(prefRemoteBonjourName);
    controller.ibRevealSourcePathSMB(nullptr);
    EXPECT_EQ(view.beeps, 1);
}

} // namespace
} // namespace kelvo
