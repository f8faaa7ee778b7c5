#include "fakes/fake_file_manager.h"
#include "fakes/fake_front.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "remote/connection_check.h"
#include "settings/preference_keys.h"
#include "ui/alerts.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Kind = RecordingConsole::Kind;
using Lines = std::vector<RecordingConsole::Line>;

const QString cCommand = QStringLiteral(
    "ssh -i /Users/localuser/.ssh/id_kelvoRsync -o BatchMode=yes -o ConnectTimeout=5 "
    "ann@Office-Mac-Mini.local echo \"remoteisgood\" 2>&1");

class ConnectionCheckTest : public ::testing::Test {
protected:
    ConnectionCheckTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral(" ann\n"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("Office-Mac-Mini.local"));
        defaults.setObject(prefRemotePath, QStringLiteral("\tMovies "));
    }

    QString filledIn(const QString& text) {
        return fillInSshParams(text, defaults, files.home, console).value();
    }

    /// Presses the button, lets ssh answer with `output` and the alert come up.
    void test(const QString& output) {
        shell.answerTo(QStringLiteral("ssh"), output);
        connection.ibTestShellCommand222();
        bgQueue.runAll();
        mainQueue.advance(0.1);
    }

    MemoryDefaults defaults;
    FakeFileManager files;
    RecordingConsole console;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedShell shell;
    FakeAlertPresenter presenter;
    Alerts alerts{mainQueue, console, presenter};
    std::vector<bool> busySigns;
    ConnectionCheck connection{{
        .defaults = defaults,
        .files = files,
        .console = console,
        .mainQueue = mainQueue,
        .bgQueue = bgQueue,
        .shell = shell,
        .showAlert =
            [this](const QString& message, const QString& text, AlertCompletion completion) {
                alerts.showAlertWithClosure(message, text, std::nullopt, std::move(completion));
            },
        .showBusy = [this](bool busy) { busySigns.push_back(busy); },
    }};
};

// -- filling in

TEST_F(ConnectionCheckTest, FillIn_ReplacesEveryPlaceholderEachTime) {
    EXPECT_EQ(filledIn(QStringLiteral("%@1 %@2 %@3 %@4 %@sshgoodresponsestring %@2 %@1")),
              u"ann Office-Mac-Mini.local Movies /Users/localuser/.ssh/id_kelvoRsync "
              u"\"remoteisgood\" Office-Mac-Mini.local ann");
    EXPECT_EQ(console.printed(),
              QStringList{QStringLiteral("Inside String->fillInSshParams().......")});
}

TEST_F(ConnectionCheckTest, FillIn_LeavesPlaceholdersInValuesAlone) {
    defaults.setObject(prefRemotePath, QStringLiteral("%@1/%@2/%@4"));
    defaults.setObject(prefRemoteUsername, QStringLiteral("%@2%@3"));
    files.home = QStringLiteral("/a%@2b%@sshgoodresponsestring");
    EXPECT_EQ(filledIn(QStringLiteral("%@3 %@1 %@4")),
              u"%@1/%@2/%@4 %@2%@3 /a%@2b%@sshgoodresponsestring/.ssh/id_kelvoRsync");
}

TEST_F(ConnectionCheckTest, FillIn_LeavesTheHostAsItIsStored) {
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" host  "));
    EXPECT_EQ(filledIn(QStringLiteral("\"%@2\" %@2 x")), u"\" host  \" \\ host   x");
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("(x) "));
    EXPECT_EQ(filledIn(QStringLiteral("%@2x")), u"\\(x\\) x");
}

TEST_F(ConnectionCheckTest, FillIn_KeepsOddTextsInOneWord) {
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("Ann's-Mac-[2] (x).local"));
    defaults.setObject(prefRemoteUsername, QStringLiteral("ann;reboot"));
    files.home = QStringLiteral("/a b/$(x)");
    EXPECT_EQ(filledIn(QStringLiteral("%@4 %@1@%@2")),
              u"/a\\ b/\\$\\(x\\)/.ssh/id_kelvoRsync "
              u"ann\\;reboot@Ann\\'s-Mac-\\[2\\]\\ \\(x\\).local");
    EXPECT_EQ(fillInSshParams(QStringLiteral("`%@2`"), defaults, files.home, console),
              std::nullopt);
}

TEST_F(ConnectionCheckTest, FillIn_WithoutUserOrPathPutsNothingThere) {
    defaults.removeObject(prefRemoteUsername);
    defaults.removeObject(prefRemotePath);
    EXPECT_EQ(filledIn(QStringLiteral("%@1@%@2:%@3")), u"@Office-Mac-Mini.local:");
}

TEST_F(ConnectionCheckTest, FillIn_WithoutAHostHandsTheTemplateBack) {
    defaults.removeObject(prefRemoteBonjourName);
    EXPECT_EQ(filledIn(QStringLiteral("%@1 %@4")), u"%@1 %@4");
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("Inside String->fillInSshParams()......."),
                           QStringLiteral("Inside String->fillInSshParams().......OOPS - dont "
                                          "even have domain fillled in...")}));
}

// -- the verdict

TEST(ConnectionFaultTest, KnownPhrases_AreFoundAnywhereInAnyCase) {
    const QString identity = QStringLiteral("ssh identity file is invalid or missing ???...");
    const QString unresolved =
        QStringLiteral("ssh remote has issues - please check network connection or remote "
                       "username@domain parameters...");
    EXPECT_EQ(connectionFault(QStringLiteral("x\nWARNING: IDENTITY FILE /k")), identity);
    EXPECT_EQ(connectionFault(QStringLiteral("ssh: could NOT resolve hostname x")), unresolved);
    EXPECT_EQ(connectionFault(QStringLiteral("Could not resolve hostname x\n"
                                             "Warning: Identity file /k")),
              identity);
}

TEST(ConnectionFaultTest, EverythingElse_IsSuccess) {
    for (const char* output : {"", "remoteisgood\n", "Permission denied (publickey).",
                               "ssh: connect to host x port 22: No route to host"})
        EXPECT_EQ(connectionFault(QString::fromLatin1(output)), QString()) << output;
}

// -- the test itself

TEST_F(ConnectionCheckTest, Button_RunsTheTestUnderItsOwnName) {
    connection.ibTestShellCommand();
    EXPECT_EQ(
        console.logged(),
        (QStringList{QStringLiteral("Inside ViewController->ibTestShellCommand(_:)......."),
                     QStringLiteral("Inside ViewController->ibTestShellCommand222(_:).......")}));
    EXPECT_EQ(bgQueue.size(), 1U);
    EXPECT_TRUE(shell.commands().isEmpty()) << "ssh runs in the background only";
}

TEST_F(ConnectionCheckTest, GoodAnswer_ShowsSuccessAndItsLines) {
    test(QStringLiteral(" remoteisgood\n"));
    EXPECT_EQ(shell.commands(), QStringList{cCommand});
    EXPECT_EQ(presenter.alerts, (std::vector{Alert{QStringLiteral("SUCCESS..."),
                                                   QStringLiteral("remote seem to be alive?..."),
                                                   AlertStyle::Critical,
                                                   {},
                                                   false}}));
    const Lines expected{
        {Kind::Log, QStringLiteral("Inside ViewController->ibTestShellCommand222(_:).......")},
        {Kind::Print, QStringLiteral("Inside String->fillInSshParams().......")},
        {Kind::Print, QString(u"cmd to send out is:\n" + cCommand)},
        {Kind::Print, QStringLiteral("got back:\nremoteisgood")},
        {Kind::Print, QStringLiteral("----  END  -----")},
        {Kind::Print, QStringLiteral("Inside String->fillInSshParams().......")},
        {Kind::Print, QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                     "showAlertWithClosure(message:text:buttons:completion:)"
                                     ".......")}};
    EXPECT_EQ(console.lines(), expected);
}

TEST_F(ConnectionCheckTest, AnswerWithItsQuotes_HasTheLineOfTheToken) {
    test(QStringLiteral("x \"RemoteIsGood\""));
    EXPECT_TRUE(
        console.printed().contains(QStringLiteral("ssh remote is alive... connection good")));
}

TEST_F(ConnectionCheckTest, KnownFault_IsPrintedAndShown) {
    test(QStringLiteral("Warning: Identity file /k not accessible"));
    const QString fault = QStringLiteral("ssh identity file is invalid or missing ???...");
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.front().messageText, u"Oh OH...");
    EXPECT_EQ(presenter.alerts.front().informativeText, fault);
    EXPECT_TRUE(presenter.alerts.front().buttons.isEmpty());
    EXPECT_EQ(console.printed().count(fault), 1);
    EXPECT_EQ(console.printed().indexOf(fault), console.printed().size() - 2)
        << "before the line of the alert";
}

TEST_F(ConnectionCheckTest, UserThatWouldBeAnOption_IsShownAndNothingRuns) {
    defaults.setObject(prefRemoteUsername, QStringLiteral(" -oProxyCommand=x"));
    test(QString());
    const QString fault = QStringLiteral("the user name begins with \"-\"");
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts.front().messageText, u"Oh OH...");
    EXPECT_EQ(presenter.alerts.front().informativeText, fault);
    EXPECT_EQ(console.printed().count(fault), 1);
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(busySigns.empty());
}

TEST_F(ConnectionCheckTest, Answer_IsPrinted) {
    test(QString());
    presenter.answer(1, cAlertFirstButtonReturn);
    EXPECT_EQ(console.printed().constLast(), u"response = 1000");
}

TEST_F(ConnectionCheckTest, Busy_UntilTheAlertIsAskedFor) {
    connection.ibTestShellCommand222();
    EXPECT_TRUE(busySigns.back());
    bgQueue.runAll();
    EXPECT_TRUE(busySigns.back());
    mainQueue.runDue();
    EXPECT_FALSE(busySigns.back());
    EXPECT_TRUE(presenter.alerts.empty()) << "the alert is due a tenth of a second later";
    EXPECT_EQ(busySigns, (std::vector{true, false}));
}

TEST_F(ConnectionCheckTest, TwoTests_HaveTheirOwnAnswers) {
    int asked = 0;
    shell.answerTo(QStringLiteral("ssh"), [&asked](const QString&) {
        return ++asked == 1 ? QStringLiteral("Could not resolve hostname") : QString();
    });
    connection.ibTestShellCommand222();
    connection.ibTestShellCommand222();
    bgQueue.runOne();
    mainQueue.runDue();
    EXPECT_FALSE(busySigns.back()) << "at the first of the two";
    bgQueue.runOne();
    mainQueue.advance(0.2);
    ASSERT_EQ(presenter.alerts.size(), 2U);
    EXPECT_EQ(presenter.alerts[0].messageText, u"Oh OH...");
    EXPECT_EQ(presenter.alerts[1].messageText, u"SUCCESS...");
}

TEST_F(ConnectionCheckTest, WithoutAHost_RunsTheTemplateItself) {
    defaults.removeObject(prefRemoteBonjourName);
    test(QStringLiteral("x"));
    EXPECT_EQ(shell.commands(),
              QStringList{QStringLiteral("ssh -i %@4 -o BatchMode=yes -o ConnectTimeout=5 "
                                         "%@1@%@2 echo %@sshgoodresponsestring 2>&1")});
}

TEST_F(ConnectionCheckTest, HostThatNeverEnds_IsCutOffAndTheButtonIsFreeAgain) {
    shell.neverEnds(QStringLiteral("ssh"), QString());
    connection.ibTestShellCommand222();
    bgQueue.runAll();
    mainQueue.advance(0.1);
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{35.0});
    EXPECT_EQ(busySigns, (std::vector<bool>{true, false}));
}

} // namespace
} // namespace kelvo
