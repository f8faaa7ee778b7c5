// Passes over one connection to the Mac that is kept, and all that may happen to it.
#include "lab/lab_fixture.h"
#include "support/plist_text.h"
#include "support/wait_until.h"

#include <QDateTime>
#include <QJsonDocument>

namespace kelvo {
namespace {

const QString cFailed = QStringLiteral("status red: something went wrong - waiting to retry "
                                       "again... [1]");
const QString cFragment = QStringLiteral("/etc/ssh/ssh_config.d/kelvo-mirror.conf");
const QString cSockets = QStringLiteral("/run/near/kelvo-mirror");
constexpr auto cPatience = std::chrono::seconds(90);

class SharingLabTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        // What a package brings.
        near(QStringLiteral("mkdir -p /etc/ssh/ssh_config.d && cp " KELVO_RESOURCES "/ssh.conf ") +
             cFragment);
        remote(QStringLiteral("truncate -s 0 /var/log/sshd.log"));
    }
    void TearDown() override {
        near(QStringLiteral("rm -f ") + cFragment);
        signalSessions("KILL");
        if (fOtherSshd)
            withSshd(QStringLiteral("sed -i /MaxSessions/d /etc/ssh/sshd_config"));
    }

    static QVariantMap profile() {
        QVariantMap values = remoteProfile();
        values[QStringLiteral("prefRemoteBonjourName")] = cRemoteAddress;
        values[QStringLiteral("prefDelayBetweenScans")] = 0.3;
        return values;
    }

    /// Another sshd for the connections to come.
    void withSshd(const QString& change) {
        fOtherSshd = true;
        lab({QStringLiteral("sshd"), QStringLiteral("stop")});
        remote(change);
        lab({QStringLiteral("sshd"), QStringLiteral("start")});
    }

    static int numberOf(const CommandResult& result) { return result.output.trimmed().toInt(); }
    static int timesLogged(const char* text) {
        return numberOf(remote(
            QStringLiteral("grep -c '%1' /var/log/sshd.log").arg(QString::fromLatin1(text))));
    }
    static int logins() { return timesLogged("Accepted publickey"); }
    /// A pass has three commands.
    static bool awaitPasses(int count) {
        const int sessions = timesLogged("Starting session") + 3 * count;
        return waitUntil([&] { return timesLogged("Starting session") >= sessions; }, cPatience);
    }
    /// Three passes without a login, sooner or later: on a busy machine the first may be cut off.
    static void expectSharedPasses(const RunningProgram& program) {
        for (int i = 0; i < 15; ++i) {
            const int before = logins();
            if (awaitPasses(3) && logins() == before)
                return;
        }
        ADD_FAILURE() << "passes log in again and again\n"
                      << program.transcript().right(4000).toStdString();
    }
    /// A command that lost its connection in mid-pass would fail, and rightly.
    static void inARest(const std::function<void()>& deed) {
        const auto setRest = [](const char* seconds) {
            near(QStringLiteral(KELVO_PROGRAM " --set prefDelayBetweenScans %1")
                     .arg(QString::fromLatin1(seconds)));
        };
        setRest("59");
        const auto restsLong = [] {
            const auto status = QJsonDocument::fromJson(
                near(QStringLiteral(KELVO_PROGRAM " --status --json")).output);
            return QDateTime::fromString(status[u"nextPass"].toString(), Qt::ISODate) >
                   QDateTime::currentDateTimeUtc().addSecs(20);
        };
        EXPECT_TRUE(waitUntil(restsLong, cPatience)) << "no long rest";
        deed();
        setRest("0.3");
        near(QStringLiteral(KELVO_PROGRAM " --sync-now"));
    }
    static void expectNoFailure(const RunningProgram& program) {
        for (const QString& line : program.lines())
            EXPECT_FALSE(line.startsWith(u"status red")) << line.toStdString();
    }
    static bool awaitEqualFolders() {
        return waitUntil(
            [] { return nearChecksums(cIncoming) == moviesOf(remoteChecksums(cRemoteMovies)); },
            cPatience);
    }
    static void expectOrderlyEnd(RunningProgram& program) {
        EXPECT_EQ(program.stop(), 0) << program.transcript().toStdString();
        EXPECT_EQ(sshHere(), 0) << "a connection outlived the program";
        EXPECT_EQ(socketFolders(), "");
    }
    static int sshHere() {
        return numberOf(near(QStringLiteral("pgrep --ns $$ --nslist net -c -x ssh")));
    }
    static QByteArray socketFolders() {
        return near(QStringLiteral("find %1 -name 'ssh-*' -printf '%m\\n' 2>/dev/null")
                        .arg(cSockets))
            .output;
    }
    /// Signals what serves the program's connections over there.
    static void signalSessions(const char* signal) {
        remote(QStringLiteral("pkill --ns $$ --nslist net -%1 -u mediauser")
                   .arg(QString::fromLatin1(signal)));
    }

    bool fOtherSshd = false;
};

TEST_F(SharingLabTest, Passes_GoOverOneLoginForThisUserAlone) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    EXPECT_EQ(near(QStringLiteral("stat -c %a:%u %1 %1/ssh-*").arg(cSockets)).output,
              "700:0\n700:0\n");
    EXPECT_TRUE(awaitEqualFolders());
    expectNoFailure(*program);
    expectOrderlyEnd(*program);
    EXPECT_TRUE(waitUntil(
        [] {
            return remote(QStringLiteral("pgrep --ns $$ --nslist net -u mediauser"))
                .output.isEmpty();
        },
        cPatience))
        << "the Mac is rid of it";
}

TEST_F(SharingLabTest, Once_EndsItsConnection) {
    writeNear(cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist"),
              plistText(profile()));
    const CommandResult once = near(QStringLiteral(KELVO_PROGRAM " --once"));
    EXPECT_EQ(once.exitCode, 0) << once.output.constData();
    EXPECT_EQ(sshHere(), 0);
    EXPECT_EQ(socketFolders(), "");
}

TEST_F(SharingLabTest, CableCutInTheRest_FailsAsEverAndTheNextPassLogsInAnew) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    lab({QStringLiteral("link"), QStringLiteral("cut")});
    EXPECT_TRUE(program->waitForLine(cFailed, 90));
    lab({QStringLiteral("link"), QStringLiteral("up")});
    expectSharedPasses(*program);
    expectOrderlyEnd(*program);
}

TEST_F(SharingLabTest, CableCutInMidTransfer_TheNextPassesComplete) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    lab({QStringLiteral("slow"), QStringLiteral("40mbit")});
    remote(QStringLiteral("head -c 20000000 /dev/urandom > large && mv large Movies/large.mov"));
    ASSERT_EQ(near(QStringLiteral("for i in $(seq 1200); do find Incoming -name '.large.mov.*' "
                                  "-size +1000k | grep -q . && exit 0; sleep 0.05; done; exit 1"))
                  .exitCode,
              0);
    lab({QStringLiteral("link"), QStringLiteral("cut")});
    EXPECT_TRUE(program->waitForLine(
        [](const QString& line) { return line.contains(u"rsync error: "); }, 90))
        << program->transcript().right(4000).toStdString();
    lab({QStringLiteral("slow"), QStringLiteral("off")});
    lab({QStringLiteral("link"), QStringLiteral("up")});
    EXPECT_TRUE(awaitEqualFolders());
    expectSharedPasses(*program);
    expectOrderlyEnd(*program);
}

/// What a Mac that fell asleep looks like: the other end is there and says nothing.
TEST_F(SharingLabTest, MacThatKeepsSilent_IsAskedByANewLoginInTheSamePass) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    const int before = logins();
    inARest([] { signalSessions("STOP"); });
    EXPECT_TRUE(waitUntil([&] { return logins() > before; }, cPatience));
    expectSharedPasses(*program);
    expectNoFailure(*program);
    signalSessions("KILL");
    expectOrderlyEnd(*program);
}

TEST_F(SharingLabTest, SshdRestartedAndItsSessionsGone_NoPassFails) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    const int before = logins();
    inARest([] {
        lab({QStringLiteral("sshd"), QStringLiteral("stop")});
        lab({QStringLiteral("sshd"), QStringLiteral("start")});
        signalSessions("KILL");
    });
    EXPECT_TRUE(waitUntil([&] { return logins() > before; }, cPatience));
    expectSharedPasses(*program);
    expectNoFailure(*program);
    expectOrderlyEnd(*program);
}

TEST_F(SharingLabTest, AddressChanged_TakesANewConnection) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    const int before = logins();
    inARest([] { lab({QStringLiteral("spare"), QStringLiteral("plug")}); });
    EXPECT_TRUE(waitUntil([&] { return logins() > before; }, cPatience));
    expectSharedPasses(*program);
    expectNoFailure(*program);
    expectOrderlyEnd(*program);
}

TEST_F(SharingLabTest, ProgramAndSentinelKilled_LeaveNoConnectionAndTheirSocketGoes) {
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    near(QStringLiteral("pkill --ns $$ --nslist net -KILL -x watchdog; "
                        "pkill --ns $$ --nslist net -KILL -x kelvo-mirror"));
    EXPECT_TRUE(waitUntil([] { return sshHere() == 0; }, cPatience));
    EXPECT_EQ(socketFolders(), "700\n") << "left behind";
    const auto again = startProgram(profile());
    expectSharedPasses(*again);
    EXPECT_EQ(socketFolders(), "700\n");
    expectNoFailure(*again);
    expectOrderlyEnd(*again);
}

TEST_F(SharingLabTest, OneSessionAConnection_SufficesAndOneThatIsTakenCostsALogin) {
    withSshd(QStringLiteral("echo MaxSessions 1 >> /etc/ssh/sshd_config"));
    const auto program = startProgram(profile());
    expectSharedPasses(*program);
    const int before = logins();
    // Somebody else takes the one session of the connection, and has no way around it.
    near(QStringLiteral(
             "(s=$(find %1 -type s); for i in $(seq 100); do [ -S $s ] || break; ssh -S $s -o "
             "ProxyCommand=false %2@%3 sleep 300; done) >/dev/null 2>&1 </dev/null &")
             .arg(cSockets, cRemoteUser, cRemoteAddress));
    EXPECT_TRUE(waitUntil([&] { return logins() > before; }, cPatience));
    expectSharedPasses(*program);
    expectNoFailure(*program);
    expectOrderlyEnd(*program);
}

TEST_F(SharingLabTest, TwoProgramsForOneMac_KeepAConnectionEach) {
    QVariantMap values = profile();
    values[QStringLiteral("prefPath2")] = QString(cNearHome + QStringLiteral("/Other"));
    writeNear(cNearHome + QStringLiteral("/second/kelvo-mirror/preferences.plist"),
              plistText(values));
    near(QStringLiteral("mkdir Other && chmod 700 second second/kelvo-mirror && "
                        "chmod 600 second/kelvo-mirror/preferences.plist"));
    const auto first = startProgram(profile());
    RunningProgram second(QStringLiteral(KELVO_LAB_COMMAND),
                          {QStringLiteral("near"), QStringLiteral("env"),
                           QStringLiteral("XDG_CONFIG_HOME=/Users/near/second"),
                           QStringLiteral("XDG_STATE_HOME=/Users/near/second"),
                           QStringLiteral(KELVO_PROGRAM), QStringLiteral("--headless")});
    EXPECT_TRUE(waitUntil([] { return socketFolders() == "700\n700\n"; }, cPatience))
        << second.transcript().right(4000).toStdString();
    expectSharedPasses(*first);
    EXPECT_EQ(second.stop(), 0);
    expectSharedPasses(*first);
    expectOrderlyEnd(*first);
}

} // namespace
} // namespace kelvo
