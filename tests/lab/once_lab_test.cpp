// `--once` between two real hosts: causes and exit codes as scripts see them.
#include "lab/lab_fixture.h"
#include "support/plist_text.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace kelvo {
namespace {

const QString cSettings = cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist");

class OnceLabTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        if (!IsSkipped() && !HasFatalFailure())
            writeProfile(remoteProfile());
    }

    static void writeProfile(const QVariantMap& profile) {
        writeNear(cSettings, plistText(profile));
    }

    static void writeProfile(const QString& key, const QVariant& value) {
        QVariantMap profile = remoteProfile();
        profile[key] = value;
        writeProfile(profile);
    }

    /// Returns the seconds that it took.
    static double expectOnce(const QString& cause, int exitCode) {
        const CommandResult result = near(QStringLiteral(KELVO_PROGRAM " --once --json"));
        EXPECT_EQ(result.exitCode, exitCode) << result.output.constData();
        const QJsonObject told = QJsonDocument::fromJson(result.output).object();
        EXPECT_EQ(told.value(u"cause").toString(), cause) << result.output.constData();
        EXPECT_EQ(told.value(u"exitCode"), exitCode);
        return result.seconds;
    }
};

TEST_F(OnceLabTest, ValidHost_BringsEveryMovie) {
    const QByteArray settings = near(QStringLiteral("cat ") + cSettings).output;
    expectOnce(QStringLiteral("well"), 0);
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_EQ(near(QStringLiteral("cat ") + cSettings).output, settings);
}

TEST_F(OnceLabTest, NameNobodyHas_IsHostNotFound) {
    writeProfile(QStringLiteral("prefRemoteBonjourName"), QStringLiteral("No-Such-Mac.local"));
    expectOnce(QStringLiteral("host-not-found"), 10);
}

TEST_F(OnceLabTest, CableCut_IsHostAway) {
    writeProfile(QStringLiteral("prefRemoteBonjourName"), cRemoteAddress);
    lab({QStringLiteral("link"), QStringLiteral("cut")});
    expectOnce(QStringLiteral("host-away"), 10);
}

/// The host's side of the connection stops after the keys were exchanged, where ssh waits for ever.
TEST_F(OnceLabTest, HostAsleepInMidLogin_IsHostAwayWithinTheBound) {
    writeRemote(QStringLiteral("/Users/mediauser/.ssh/rc"), "kill -STOP $PPID\n");
    const double seconds = expectOnce(QStringLiteral("host-away"), 10);
    EXPECT_GT(seconds, 33) << "it did not stall";
    EXPECT_LT(seconds, 40);
    EXPECT_EQ(near(QStringLiteral("pgrep --ns $$ --nslist net -f '[i]d_kelvoRsync'")).output, "")
        << "the check's own ssh is gone";
    remote(QStringLiteral("rm /Users/mediauser/.ssh/rc; pkill --ns $$ --nslist net -KILL -u "
                          "mediauser"));
    expectOnce(QStringLiteral("well"), 0);
}

TEST_F(OnceLabTest, SshdStopped_IsRemoteLoginOff) {
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    expectOnce(QStringLiteral("remote-login-off"), 10);
}

TEST_F(OnceLabTest, UnknownHostKey_IsNamed) {
    near(QStringLiteral("rm .ssh/known_hosts"));
    expectOnce(QStringLiteral("host-key-unknown"), 11);
}

TEST_F(OnceLabTest, MissingKey_IsNamed) {
    near(QStringLiteral("rm .ssh/id_kelvoRsync*"));
    expectOnce(QStringLiteral("key-missing"), 12);
}

TEST_F(OnceLabTest, OtherKey_IsRefused) {
    near(QStringLiteral("rm .ssh/id_kelvoRsync* && ssh-keygen -q -N '' -f .ssh/id_kelvoRsync"));
    expectOnce(QStringLiteral("key-refused"), 12);
}

TEST_F(OnceLabTest, FolderThatIsNotThere_IsSourceMissing) {
    writeProfile(QStringLiteral("prefRemotePath"), QStringLiteral("No Such Folder"));
    expectOnce(QStringLiteral("source-missing"), 13);
}

TEST_F(OnceLabTest, FullDisk_IsNamed) {
    near(QStringLiteral("mkdir Small && mount -t tmpfs -o size=1m small Small"));
    remote(QStringLiteral("head -c 3000000 /dev/urandom > Movies/large.mov"));
    writeProfile(QStringLiteral("prefPath2"), QString(cNearHome + QStringLiteral("/Small")));
    expectOnce(QStringLiteral("disk-full"), 14);
    near(QStringLiteral("umount Small"));
}

TEST_F(OnceLabTest, UnreadableFile_IsNotTakenAndTheRestIs) {
    remote(QStringLiteral("echo secret > Movies/one.mov && chmod 000 Movies/one.mov"));
    expectOnce(QStringLiteral("files-not-taken"), 15);
    EXPECT_FALSE(nearChecksums(cIncoming).isEmpty());
}

} // namespace
} // namespace kelvo
