#include "engine/connection_sharing.h"
#include "fakes/fake_connection.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "settings/preference_keys.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cAnswer = QStringLiteral("mediauser\n");
constexpr double cHour = 3600;

/// Passes of a check and two pulls, one after another.
class ConnectionSharingTest : public ::testing::Test {
protected:
    ConnectionSharingTest() {
        defaults.setObject(prefEnableScanning, true);
        defaults.setObject(prefKeepConnection, true);
        defaults.setObject(prefDelayBetweenScans, 30.0);
        defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
        shell.answerTo(QStringLiteral("whoami"), cAnswer);
    }

    /// Which of its commands went through the connection: "c" check, "p" pull, "m" movies, each in
    /// capitals when it did.
    QString pass(PassCause cause = PassCause::Well) {
        const std::size_t before = shell.asked().size();
        PassRecord record;
        record.kind = PassKind::Remote;
        record.cause = cause;
        const Command check{.text = QStringLiteral("whoami"), .seconds = 33};
        answer = sharing.run(PassStep::AskingTheMac, check);
        if (answer.output == cAnswer) {
            record.verdict = HostVerdict::Valid;
            (void)sharing.run(PassStep::Pull, {.text = QStringLiteral("pull")});
            (void)sharing.run(PassStep::Movies, {.text = QStringLiteral("movies")});
        }
        sharing.ended(record);
        return waysSince(before);
    }

    QString waysSince(std::size_t before) {
        QString ways;
        const std::vector<Command> asked = shell.asked();
        for (std::size_t i = before; i < asked.size(); ++i) {
            const QChar letter = asked[i].text == QStringLiteral("whoami") ? u'c'
                                 : asked[i].text == QStringLiteral("pull") ? u'p'
                                                                           : u'm';
            ways += asked[i].variables.contains(cControlVariable) ? letter.toUpper() : letter;
        }
        return ways;
    }

    /// What is printed over the connection; a login of its own is answered well.
    void answerOverTheConnection(const QString& output) {
        shell.answerTo(QStringLiteral("whoami"), [this, output](const QString&) {
            const bool over = shell.asked().back().variables.contains(cControlVariable);
            return over ? output : cAnswer;
        });
    }

    MemoryDefaults defaults;
    ScriptedShell shell;
    FakeConnection connection;
    RecordingConsole console;
    double clock = 100;
    QDateTime calendar{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    CommandResult answer;
    ConnectionSharing sharing{{.defaults = defaults,
                               .commands = shell,
                               .connection = connection,
                               .console = console,
                               .keyPath = QStringLiteral("/home/me/.ssh/id"),
                               .clock = {[this] { return calendar; }, [this] { return clock; }}}};
};

TEST_F(ConnectionSharingTest, FirstPass_LogsInBesideItsCheckAndTheNextOnesNotAtAll) {
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(pass(), QStringLiteral("CPM"));
    EXPECT_EQ(pass(), QStringLiteral("CPM"));
    const LoginTarget target{.destination = QStringLiteral("mediauser@mac.local"),
                             .keyPath = QStringLiteral("/home/me/.ssh/id")};
    EXPECT_EQ(connection.opened, std::vector<LoginTarget>{target});
    EXPECT_EQ(connection.closed, 0);
    EXPECT_EQ(shell.asked().back().variables.at(cControlVariable), "/run/connection");
    EXPECT_LE(connection.longestPatience, 1.0) << "no longer than a login takes";
    connection.longestPatience = 0;
    (void)sharing.run(PassStep::AskingTheMac, {.text = QStringLiteral("whoami")});
    EXPECT_EQ(connection.longestPatience, 0) << "a check that need not wait does not";
    sharing.ended({});
    EXPECT_EQ(connection.longestPatience, 0) << "nor does the end";
}

TEST_F(ConnectionSharingTest, SlowLogin_IsWaitedForAsLongAsTheCheckBesideItTook) {
    shell.answerTo(QStringLiteral("whoami"), [this](const QString&) {
        clock += 4;
        return cAnswer;
    });
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(connection.longestPatience, 4);
}

TEST_F(ConnectionSharingTest, OtherSteps_NeverGoThroughIt) {
    (void)sharing.run(PassStep::AskingTheMac, {.text = QStringLiteral("whoami")});
    for (const PassStep step : {PassStep::Begun, PassStep::AfterArrivals, PassStep::Movies})
        (void)sharing.run(step, {.text = QStringLiteral("index-movies")});
    EXPECT_EQ(waysSince(0), QStringLiteral("cmmM"));
}

TEST_F(ConnectionSharingTest, PassBetweenTwoFolders_HasNothingToDoWithIt) {
    (void)sharing.run(PassStep::Pull, {.text = QStringLiteral("pull")});
    sharing.ended({});
    pass();
    (void)sharing.run(PassStep::Pull, {.text = QStringLiteral("pull")});
    EXPECT_EQ(waysSince(0), QStringLiteral("pcPMp"));
    PassRecord broken;
    broken.kind = PassKind::Plain;
    broken.cause = PassCause::CutOff;
    sharing.ended(broken);
    EXPECT_EQ(connection.closed, 0);
}

TEST_F(ConnectionSharingTest, SwitchedOff_IsAsItWas) {
    defaults.setObject(prefKeepConnection, false);
    EXPECT_EQ(pass(), QStringLiteral("cpm"));
    EXPECT_TRUE(connection.opened.empty());
    EXPECT_EQ(console.logged().filter(QStringLiteral("ends")), QStringList())
        << "what was never there does not end";
    defaults.setObject(prefKeepConnection, true);
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    defaults.setObject(prefKeepConnection, false);
    EXPECT_FALSE(connection.isOpen()) << "at once";
}

TEST_F(ConnectionSharingTest, Stop_EndsItAtOnceOrWithThePass) {
    pass();
    defaults.setObject(prefEnableScanning, false);
    EXPECT_FALSE(connection.isOpen());
    defaults.setObject(prefEnableScanning, true);

    (void)sharing.run(PassStep::AskingTheMac, {.text = QStringLiteral("whoami")});
    defaults.setObject(prefEnableScanning, false);
    EXPECT_TRUE(connection.isOpen()) << "a movie may be on its way";
    PassRecord record;
    record.kind = PassKind::Remote;
    record.cause = PassCause::Well;
    record.verdict = HostVerdict::Valid;
    sharing.ended(record);
    EXPECT_FALSE(connection.isOpen());
}

TEST_F(ConnectionSharingTest, AnotherUserOrHost_EndsIt) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName}) {
        pass();
        EXPECT_TRUE(connection.isOpen());
        defaults.setObject(key, QStringLiteral("another"));
        EXPECT_FALSE(connection.isOpen()) << key.toString().toStdString();
        EXPECT_EQ(console.logged().last(),
                  QStringLiteral("The connection to the Mac ends: another one is set."));
    }
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(connection.opened.back().destination, QStringLiteral("another@another"));
}

TEST_F(ConnectionSharingTest, EqualValueStoredAgain_ChangesNothing) {
    pass();
    defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    EXPECT_TRUE(connection.isOpen());
}

TEST_F(ConnectionSharingTest, Hour_IsTheLongest) {
    pass();
    clock += cHour - 1;
    calendar = calendar.addSecs(3599);
    EXPECT_EQ(pass(), QStringLiteral("CPM"));
    clock += 1;
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(connection.closed, 1);
    EXPECT_EQ(console.logged().last(),
              QStringLiteral("The connection to the Mac ends after an hour."));
    calendar = calendar.addSecs(3600);
    EXPECT_EQ(pass(), QStringLiteral("cPM")) << "a machine that slept";
    calendar = calendar.addSecs(-3600);
    EXPECT_EQ(pass(), QStringLiteral("cPM")) << "a calendar that was put back";
}

TEST_F(ConnectionSharingTest, LongRest_EndsItWithThePass) {
    defaults.setObject(prefDelayBetweenScans, 60.0);
    pass();
    EXPECT_TRUE(connection.isOpen());
    defaults.setObject(prefDelayBetweenScans, 60.5);
    EXPECT_EQ(pass(), QStringLiteral("CPM"));
    EXPECT_FALSE(connection.isOpen());
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_FALSE(connection.isOpen());
}

TEST_F(ConnectionSharingTest, PassThatWentBadly_EndsIt) {
    for (const PassCause cause :
         {PassCause::FilesVanished, PassCause::FilesNotTaken, PassCause::AfterFailed,
          PassCause::DiskFull, PassCause::DestinationTaken, PassCause::Well}) {
        pass(cause);
        EXPECT_TRUE(connection.isOpen()) << static_cast<int>(cause);
    }
    for (const PassCause cause : {PassCause::CutOff, PassCause::Cancelled, PassCause::Interrupted,
                                  PassCause::Unknown, PassCause::HostAway}) {
        pass(cause);
        EXPECT_FALSE(connection.isOpen()) << static_cast<int>(cause);
    }
    EXPECT_TRUE(console.logged().contains(
        QStringLiteral("The connection to the Mac ends with a pass that did not go well.")));
}

TEST_F(ConnectionSharingTest, MacThatKeepsSilentOverIt_IsAskedAnewWithinThreeSeconds) {
    pass();
    pass();
    answerOverTheConnection({});
    EXPECT_EQ(pass(), QStringLiteral("CcPM"));
    EXPECT_EQ(answer.output, cAnswer);
    const std::vector<Command> asked = shell.asked();
    EXPECT_EQ(asked[asked.size() - 4].seconds, 3.0);
    EXPECT_EQ(asked[asked.size() - 3].seconds, 33.0);
    EXPECT_EQ(connection.opened.size(), 2U);
    EXPECT_EQ(connection.closed, 1);
    EXPECT_TRUE(console.logged().contains(
        QStringLiteral("The Mac does not answer over the connection that was kept; it is asked by "
                       "a new login.")));
}

TEST_F(ConnectionSharingTest, ServerThatRefusesToShareTwice_IsLeftInPeaceForAnHour) {
    answerOverTheConnection(u"mux: session refused\n" + cAnswer);
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(pass(), QStringLiteral("CcPM")) << "it may only have been slow";
    EXPECT_EQ(answer.output, cAnswer);
    EXPECT_EQ(pass(), QStringLiteral("Ccpm"));
    EXPECT_EQ(pass(), QStringLiteral("cpm"));
    EXPECT_EQ(connection.opened.size(), 2U);
    clock += cHour;
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
}

TEST_F(ConnectionSharingTest, SilenceOverAConnectionThatCarriedAnAnswer_IsNoRefusal) {
    pass();
    pass();
    answerOverTheConnection({});
    EXPECT_EQ(pass(), QStringLiteral("CcPM"));
    EXPECT_EQ(pass(), QStringLiteral("CcPM")) << "the first refusal";
    EXPECT_EQ(pass(), QStringLiteral("Ccpm"));
}

TEST_F(ConnectionSharingTest, SlowAnswersBetweenGoodOnes_AreNoRefusals) {
    for (int time = 0; time < 3; ++time) {
        answerOverTheConnection({});
        EXPECT_EQ(pass().right(2), QStringLiteral("PM")) << time;
        EXPECT_EQ(pass(), QStringLiteral("CcPM")) << time;
        shell.answerTo(QStringLiteral("whoami"), cAnswer);
        EXPECT_EQ(pass(), QStringLiteral("CPM")) << time;
        connection.breakOff();
    }
}

TEST_F(ConnectionSharingTest, ConnectionThatBreaksInMidPass_IsOpenedByTheNext) {
    for (const char* where : {"pull", "movies"}) {
        shell.answerTo(QString::fromLatin1(where), [this](const QString&) {
            connection.breakOff();
            return QString();
        });
        EXPECT_EQ(pass().left(1), QStringLiteral("c")) << where;
        shell.answerTo(QString::fromLatin1(where), QString());
        EXPECT_EQ(pass(), QStringLiteral("cPM")) << where;
        connection.breakOff();
    }
}

TEST_F(ConnectionSharingTest, LoginThatComesToNothing_IsNotTriedForFiveMinutes) {
    connection.opens = false;
    EXPECT_EQ(pass(), QStringLiteral("cpm"));
    connection.opens = true;
    clock += 299;
    EXPECT_EQ(pass(), QStringLiteral("cpm"));
    clock += 1;
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
}

TEST_F(ConnectionSharingTest, ConnectionThatBroke_IsOpenedAgain) {
    pass();
    connection.breakOff();
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(connection.opened.size(), 2U);
}

TEST_F(ConnectionSharingTest, AfterAFailedCheck_TheLoginWaitsForAGoodOne) {
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("no route\n"), 255);
    EXPECT_EQ(pass(PassCause::WrongUser), QStringLiteral("c"));
    EXPECT_FALSE(connection.isOpen());
    EXPECT_EQ(pass(PassCause::HostAway), QStringLiteral("c"));
    EXPECT_EQ(connection.opened.size(), 1U) << "no second login at a Mac that is away";
    shell.answerTo(QStringLiteral("whoami"), cAnswer);
    EXPECT_EQ(pass(), QStringLiteral("cPM"));
    EXPECT_EQ(connection.opened.size(), 2U);
}

TEST_F(ConnectionSharingTest, CheckGivenUp_IsNotAskedAgain) {
    pass();
    shell.givesUp = true;
    EXPECT_EQ(pass(PassCause::Cancelled), QStringLiteral("C"));
    EXPECT_FALSE(answer.exitStatus);
}

TEST_F(ConnectionSharingTest, AccountThatCannotStandInACommand_IsNotLoggedInto) {
    defaults.setObject(prefRemoteUsername, QStringLiteral("a/b"));
    pass();
    EXPECT_TRUE(connection.opened.empty());
}

} // namespace
} // namespace kelvo
