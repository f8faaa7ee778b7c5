// Setting up the remote side from a terminal: a real Mac in the list, a real sshd and its password.
#include "lab/lab_fixture.h"
#include "support/pty_program.h"

namespace kelvo {
namespace {

class SetUpTerminalLabTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        // Nothing is set up yet: no key, and a host that nobody has seen before.
        near(QStringLiteral("find .ssh -mindepth 1 -delete; rm -rf .config/kelvo-mirror Incoming"));
        remote(QStringLiteral("rm -f /Users/mediauser/.ssh/authorized_keys"));
        // Nothing tells ssh of shared connections.
        near(QStringLiteral("rm -f /etc/ssh/ssh_config.d/kelvo-mirror.conf"));
    }
    static CommandResult byOptions(const QString& more = {}) {
        return near(
            QStringLiteral(KELVO_PROGRAM
                           " --setup --mac Remote-Mac.local --account mediauser --folder Movies "
                           "--destination ~/Incoming --make-destination %1 </dev/null")
                .arg(more));
    }
    static QByteArray sshLines() {
        return near(QStringLiteral("cat .ssh/config 2>/dev/null")).output;
    }
    static QByteArray homeFiles() {
        return near(QStringLiteral("find .ssh .config Incoming 2>&1 | sort")).output;
    }
};

TEST_F(SetUpTerminalLabTest, FromNothing_ToAPassThatArrives) {
    const QByteArray before = homeFiles();
    const CommandResult alone = byOptions();
    EXPECT_EQ(alone.exitCode, 11) << alone.output.constData();
    EXPECT_TRUE(alone.output.contains("asked in a terminal, and there is none"))
        << alone.output.constData();
    EXPECT_EQ(homeFiles(), before) << "nothing was changed";

    const QStringList command{QStringLiteral(KELVO_LAB_COMMAND), QStringLiteral("near"),
                              QStringLiteral(KELVO_PROGRAM), QStringLiteral("--setup")};
    {
        PtyProgram refused(
            command + QStringList{QStringLiteral("--mac"), cRemoteHost, QStringLiteral("--account"),
                                  cRemoteUser, QStringLiteral("--folder"), QStringLiteral("Movies"),
                                  QStringLiteral("--destination"), cIncoming,
                                  QStringLiteral("--make-destination"),
                                  QStringLiteral("--share-connection")});
        ASSERT_TRUE(refused.shows("continue connecting")) << refused.transcript();
        refused.type("\x03");
        EXPECT_EQ(refused.end(), 18) << refused.transcript();
        EXPECT_TRUE(refused.shows("Nothing was changed.", 0)) << refused.transcript();
        EXPECT_EQ(homeFiles(), before) << refused.transcript();
    }

    PtyProgram program(command);
    ASSERT_TRUE(program.shows("  1  Remote Mac  10.77.0.2")) << program.transcript();
    ASSERT_TRUE(program.shows("Which Mac?")) << program.transcript();
    program.type("1\n");
    ASSERT_TRUE(program.shows("Account on the Mac")) << program.transcript();
    program.type("mediauser\n");
    ASSERT_TRUE(program.shows("[Movies]: ")) << program.transcript();
    program.type("\n");
    ASSERT_TRUE(program.shows("Folder on this machine")) << program.transcript();
    program.type("~/Incoming\n");
    ASSERT_TRUE(program.shows("Make it? [Y/n] ")) << program.transcript();
    program.type("\n");
    ASSERT_TRUE(program.shows("ssh.conf\"")) << program.transcript();
    ASSERT_TRUE(program.shows("Add the line? [Y/n] ")) << program.transcript();
    program.type("\n");
    ASSERT_TRUE(program.shows("continue connecting")) << program.transcript();
    EXPECT_EQ(sshLines(), QByteArray()) << "not before the Mac lets the program in";
    program.type("yes\n");
    ASSERT_TRUE(program.shows("assword: ")) << program.transcript();
    program.type("projector\n");
    EXPECT_EQ(program.end(), 0) << program.transcript();
    EXPECT_TRUE(program.shows("The Mac lets this program in.", 0)) << program.transcript();
    EXPECT_FALSE(program.transcript().find("projector") != std::string::npos)
        << "the password is shown nowhere";
    EXPECT_TRUE(sshLines().startsWith("Include \"") && sshLines().endsWith("/ssh.conf\"\n"))
        << sshLines().constData();
    const CommandResult told = near(QStringLiteral(
        "KELVO_MIRROR_CONTROL=/run/near ssh -G mediauser@Remote-Mac.local | grep controlpath"));
    EXPECT_TRUE(told.output.contains("controlpath /run/near/")) << told.output.constData();

    const CommandResult pass = near(QStringLiteral(KELVO_PROGRAM " --once"));
    EXPECT_EQ(pass.exitCode, 0) << pass.output.constData();
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_FALSE(nearChecksums(cIncoming).isEmpty());

    const QByteArray key = near(QStringLiteral("cat .ssh/id_kelvoRsync")).output;
    const CommandResult again = byOptions(QStringLiteral("--no-share-connection"));
    EXPECT_EQ(again.exitCode, 0) << "nothing needs to be asked any more: "
                                 << again.output.constData();
    EXPECT_EQ(near(QStringLiteral("cat .ssh/id_kelvoRsync")).output, key);
    EXPECT_EQ(sshLines(), QByteArray()) << "it is taken away again";
}

} // namespace
} // namespace kelvo
