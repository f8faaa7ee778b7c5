// The lab itself: two hosts that behave like two hosts, and a machine that notices nothing.
#include "lab/lab_fixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <signal.h>

#include <filesystem>
#include <system_error>
#include <utility>

namespace kelvo {

namespace {

const QString cKey = QStringLiteral("/Users/near/.ssh/id_kelvoRsync");

// ssh as the program runs it: no terminal, nobody to ask.
QString whoami(const QString& target) {
    return QStringLiteral("SSH_ASKPASS_REQUIRE=never setsid -w /usr/bin/ssh 2>&1 "
                          "-o ConnectTimeout=3  -i %1 \"%2\" whoami </dev/null")
        .arg(cKey, target);
}

QString account(const QString& host) {
    return cRemoteUser + QLatin1Char('@') + host;
}

QString pull(const QString& options) {
    return QStringLiteral("/usr/bin/rsync %1 --timeout=5 -e 'ssh -i %2' %3:Movies/ %4/")
        .arg(options, cKey, account(cRemoteHost), cIncoming);
}

QByteArray readAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Processes that live in this mount namespace, counted from the machine's side.
int processesIn(const QString& mountNamespace) {
    int count = 0;
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& each : processes) {
        std::error_code gone;
        const auto link =
            std::filesystem::read_symlink("/proc/" + each.toStdString() + "/ns/mnt", gone);
        if (!gone && link == mountNamespace.toStdString())
            ++count;
    }
    return count;
}

// Another lab beside the one all tests share; taken down with this object.
class SecondLab {
public:
    explicit SecondLab(QString state) : fState(std::move(state)) {}
    ~SecondLab() { run({QStringLiteral("down")}); }
    SecondLab(const SecondLab&) = delete;
    SecondLab& operator=(const SecondLab&) = delete;

    QByteArray run(const QStringList& arguments) const {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("KELVO_LAB"), fState);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KELVO_LAB_COMMAND), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return process.readAll();
    }
    const QString& state() const { return fState; }
    pid_t holder(const QString& host) const { return noted(host, "pid").toInt(); }
    QString mountNamespace(const QString& host) const {
        return QStringLiteral("mnt:[%1]").arg(QString::fromLatin1(noted(host, "mnt")));
    }

private:
    QByteArray noted(const QString& host, const char* what) const {
        return readAll(QStringLiteral("%1/%2.%3").arg(fState, host, QString::fromLatin1(what)))
            .trimmed();
    }

    QString fState;
};

} // namespace

class LabHostTest : public LabTest {
protected:
    static void expectWhoamiAnswers() {
        const CommandResult answer = near(whoami(account(cRemoteHost)));
        EXPECT_EQ(answer.output.trimmed(), cRemoteUser.toUtf8());
    }
};

TEST_F(LabHostTest, RemoteName_ResolvesByMulticast) {
    const CommandResult answer = near(QStringLiteral("getent ahostsv4 ") + cRemoteHost);
    EXPECT_TRUE(answer.output.startsWith(cRemoteAddress.toUtf8())) << answer.output.constData();
    EXPECT_NE(near(QStringLiteral("grep -q Remote-Mac /etc/hosts")).exitCode, 0);
}

TEST_F(LabHostTest, SmbService_IsAnnouncedOnTheNearBus) {
    const CommandResult answer =
        near(QStringLiteral("dbus-send --system --print-reply --dest=org.freedesktop.Avahi / "
                            "org.freedesktop.Avahi.Server.ResolveService int32:-1 int32:-1 "
                            "'string:Remote Mac' string:_smb._tcp string:local int32:-1 uint32:0"));
    EXPECT_EQ(answer.exitCode, 0);
    EXPECT_TRUE(answer.output.contains("\"Remote-Mac.local\"")) << answer.output.constData();
    EXPECT_TRUE(answer.output.contains("uint16 445")) << answer.output.constData();
}

TEST_F(LabHostTest, OwnKey_LogsInAsTheAccount) {
    expectWhoamiAnswers();
}

TEST_F(LabHostTest, Password_LogsInToo) {
    const QString helper = cNearHome + QStringLiteral("/tmp/askpass");
    writeNear(helper, "#!/bin/sh\necho projector\n");
    const CommandResult answer =
        near(QStringLiteral("chmod +x %1; SSH_ASKPASS=%1 SSH_ASKPASS_REQUIRE=force ssh "
                            "-o PubkeyAuthentication=no %2 whoami")
                 .arg(helper, account(cRemoteHost)));
    EXPECT_EQ(answer.output.trimmed(), cRemoteUser.toUtf8());
}

TEST_F(LabHostTest, UnknownAccount_IsRefusedInSshsOwnWords) {
    const CommandResult answer = near(whoami(QStringLiteral("somebodyelse@") + cRemoteHost));
    EXPECT_NE(answer.exitCode, 0);
    EXPECT_TRUE(answer.output.contains("Permission denied")) << answer.output.constData();
}

TEST_F(LabHostTest, BareRsync_PullsEveryFileWithItsTime) {
    const CommandResult pulled = near(pull(QStringLiteral("-r --times")));
    ASSERT_EQ(pulled.exitCode, 0) << pulled.output.constData();
    const Checksums there = remoteChecksums(cRemoteMovies);
    EXPECT_GT(there.size(), 20);
    EXPECT_EQ(nearChecksums(cIncoming), there);
    const auto times = QStringLiteral("cd %1 && find . -type f -printf '%T@ %p\\n' | sort");
    EXPECT_EQ(near(times.arg(cIncoming)).output, remote(times.arg(cRemoteMovies)).output);
}

TEST_F(LabHostTest, MovieTree_HasMoviesAndOtherThings) {
    const Checksums all = remoteChecksums(cRemoteMovies);
    const Checksums movies = moviesOf(all);
    EXPECT_TRUE(movies.contains(QStringLiteral("names/movie.mov.bak")));
    EXPECT_TRUE(movies.contains(QStringLiteral("Features/LOUD.MOV")));
    EXPECT_TRUE(movies.contains(QStringLiteral("Features/From the future.m4v")));
    EXPECT_TRUE(movies.contains(QStringLiteral("Features/It's \"quoted\" & $HOME; *.mov")));
    EXPECT_FALSE(movies.contains(QStringLiteral("notes.txt")));
    EXPECT_FALSE(movies.contains(QStringLiteral("names/notmov.xmov")));
    EXPECT_TRUE(all.contains(QStringLiteral("names/notmov.xmov")));
}

TEST_F(LabHostTest, InterfaceOff_NetworkIsUnreachableAtOnce) {
    ASSERT_EQ(lab({QStringLiteral("link"), QStringLiteral("down")}).exitCode, 0);
    const CommandResult answer = near(whoami(account(cRemoteAddress)));
    EXPECT_NE(answer.exitCode, 0);
    EXPECT_TRUE(answer.output.contains("Network is unreachable")) << answer.output.constData();
}

TEST_F(LabHostTest, CablePulled_SshGivesUpAfterItsTimeOut) {
    ASSERT_EQ(lab({QStringLiteral("link"), QStringLiteral("cut")}).exitCode, 0);
    const CommandResult answer = near(whoami(account(cRemoteAddress)));
    EXPECT_NE(answer.exitCode, 0);
    EXPECT_TRUE(answer.output.contains("timed out") || answer.output.contains("No route to host"))
        << answer.output.constData();
    EXPECT_GT(answer.seconds, 0.5);
    EXPECT_LT(answer.seconds, 15);
    ASSERT_EQ(lab({QStringLiteral("link"), QStringLiteral("up")}).exitCode, 0);
    EXPECT_EQ(near(whoami(account(cRemoteAddress))).output.trimmed(), cRemoteUser.toUtf8());
}

TEST_F(LabHostTest, SshdStopped_ConnectionIsRefused) {
    ASSERT_EQ(lab({QStringLiteral("sshd"), QStringLiteral("stop")}).exitCode, 0);
    const CommandResult answer = near(whoami(account(cRemoteHost)));
    EXPECT_TRUE(answer.output.contains("Connection refused")) << answer.output.constData();
    ASSERT_EQ(lab({QStringLiteral("sshd"), QStringLiteral("start")}).exitCode, 0);
    expectWhoamiAnswers();
}

TEST_F(LabHostTest, SlowCable_TakesItsTime) {
    const CommandResult slowed = lab({QStringLiteral("slow"), QStringLiteral("1mbit")});
    if (slowed.exitCode != 0)
        GTEST_SKIP() << slowed.output.constData();
    // The tree holds well over 400,000 bytes: more than 3 s at a million bits a second.
    const CommandResult pulled = near(pull(QStringLiteral("-r")));
    EXPECT_EQ(pulled.exitCode, 0) << pulled.output.constData();
    EXPECT_GT(pulled.seconds, 2);
}

TEST_F(LabHostTest, Reset_IsAFirstDayAgain) {
    const Checksums firstDay = remoteChecksums(cRemoteMovies);
    RunningProgram stray(QStringLiteral(KELVO_LAB_COMMAND),
                         {QStringLiteral("near"), QStringLiteral("sleep"), QStringLiteral("600")});
    near(QStringLiteral("rm -rf .ssh; touch Incoming/left"));
    remote(QStringLiteral("rm -rf Movies/Features; echo new > Movies/new.mov; chmod 0 Movies"));
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    lab({QStringLiteral("link"), QStringLiteral("cut")});

    const CommandResult reset = lab({QStringLiteral("reset")});
    ASSERT_EQ(reset.exitCode, 0) << reset.output.constData();

    expectWhoamiAnswers();
    EXPECT_EQ(remoteChecksums(cRemoteMovies), firstDay);
    EXPECT_TRUE(nearChecksums(cIncoming).isEmpty());
    EXPECT_EQ(stray.waitForLine(QStringLiteral("nothing"), 10), std::nullopt);
    EXPECT_FALSE(stray.isRunning());
}

TEST_F(LabHostTest, Machine_NoticesNothing) {
    EXPECT_FALSE(readAll(QStringLiteral("/etc/passwd")).contains("mediauser"));
    EXPECT_FALSE(readAll(QStringLiteral("/proc/self/mountinfo")).contains("/Users"));
    EXPECT_FALSE(readAll(QStringLiteral("/proc/self/mountinfo")).contains("lab-tools"));
    EXPECT_FALSE(QDir(QStringLiteral("/sys/class/net/cable")).exists());
    EXPECT_FALSE(QFile::exists(QStringLiteral("/.kelvo-lab")));
    const QByteArray hostKey = remote(QStringLiteral("cut -d' ' -f2 /etc/ssh/host_key.pub")).output;
    ASSERT_FALSE(hostKey.trimmed().isEmpty());
    QProcess scan;
    scan.start(QStringLiteral("ssh-keyscan"), {QStringLiteral("127.0.0.1")});
    ASSERT_TRUE(scan.waitForFinished());
    EXPECT_FALSE(scan.readAllStandardOutput().contains(hostKey.trimmed()));
}

TEST_F(LabHostTest, SecondLab_LivesBesideTheFirstAndGoesWithoutATrace) {
    const QTemporaryDir folder;
    const SecondLab second(folder.filePath(QStringLiteral("second lab")));
    const QByteArray raised = second.run({QStringLiteral("up"), QStringLiteral("--no-key")});
    ASSERT_TRUE(raised.startsWith("lab: up")) << raised.constData();
    EXPECT_EQ(second.run({QStringLiteral("near"), QStringLiteral("ls"), QStringLiteral(".ssh")}),
              "");
    second.run({QStringLiteral("link"), QStringLiteral("down")});
    expectWhoamiAnswers();

    const QStringList namespaces = {second.mountNamespace(QStringLiteral("near")),
                                    second.mountNamespace(QStringLiteral("remote"))};
    for (const QString& each : namespaces)
        ASSERT_GT(processesIn(each), 0);
    const pid_t holder = second.holder(QStringLiteral("near"));
    ASSERT_GT(holder, 1);
    ASSERT_EQ(::kill(holder, SIGKILL), 0); // as if somebody had ended it by hand
    EXPECT_EQ(second.run({QStringLiteral("down")}), "");
    for (const QString& each : namespaces)
        EXPECT_EQ(processesIn(each), 0);
    EXPECT_FALSE(QDir(second.state()).exists());
    expectWhoamiAnswers();
}

} // namespace kelvo
