// Setting up the remote side by the window alone: a real display, a real terminal, a real sshd.
#include "lab/set_up_fixture.h"

namespace kelvo {
namespace {

TEST_F(SetUpLabTest, FromNothing_ToARunningPullByTheWindowAlone) {
    startWindow(firstDay());
    // The host, from the list.
    keys({QStringLiteral("ctrl+2")});
    keys({QStringLiteral("alt+c")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Choose the Remote Mac")))
        << screen.activeTitle().toStdString();
    keepPicture("set-up-1-choose");
    const auto chosen = [] {
        return near(QStringLiteral("grep -q Remote-Mac.local "
                                   ".config/kelvo-mirror/preferences.plist"))
                   .exitCode == 0;
    };
    bool isChosen = false;
    for (int round = 0; round < 10 && !isChosen; ++round) {
        keys({QStringLiteral("Down"), QStringLiteral("alt+s")});
        isChosen = waitUntil(chosen, 2s);
    }
    ASSERT_TRUE(isChosen) << transcript();
    ASSERT_TRUE(comesToFront(QStringLiteral("Kelvo Mirror")));
    // Folder and user.
    keys({QStringLiteral("alt+d")});
    enter(QStringLiteral("Movies"));
    keys({QStringLiteral("alt+u")});
    enter(cRemoteUser);
    keepPicture("set-up-2-user");
    ASSERT_TRUE(logs(QStringLiteral("keypath = prefRemoteUsername"))) << transcript();
    // The key, with the two questions of the terminal.
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    EXPECT_TRUE(bothHalves());
    ASSERT_TRUE(answers(QStringLiteral("yes"), &hostIsKnown)) << transcript();
    keepPicture("set-up-3-terminal");
    ASSERT_TRUE(answers(cPassword, &keyIsInstalled)) << transcript();
    ASSERT_TRUE(logs(QStringLiteral("username and remote host status ="))) << transcript();
    ASSERT_TRUE(prints(cRemoteUser)) << "the host lets the key in\n" << transcript();
    // The window waits for a key, so that the outcome can be read.
    EXPECT_FALSE(terminalWindow().isEmpty());
    keys({QStringLiteral("space")});
    ASSERT_TRUE(terminalComes(false));
    ASSERT_TRUE(comesToFront(QStringLiteral("Kelvo Mirror")));
    keepPicture("set-up-4-accepted");
    // And now the movies.
    keys({QStringLiteral("ctrl+1")});
    clickStart();
    ASSERT_TRUE(prints(QStringLiteral("state is now IS RUNNING"))) << transcript();
    ASSERT_TRUE(prints(QStringLiteral("result from movie shell command ="))) << transcript();
    keepPicture("set-up-5-running");
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_FALSE(nearChecksums(cIncoming).isEmpty());
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, WrongPassword_StaysInTheTerminalAndTheKeyIsNotAccepted) {
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    ASSERT_TRUE(answers(QStringLiteral("yes"), &hostIsKnown));
    // Three wrong ones, and ssh gives up; what is typed after that closes the window.
    ASSERT_TRUE(answers(QStringLiteral("wrong"), [] {
        return near(QStringLiteral("pgrep --ns $$ --nslist net -x ssh-copy-id")).exitCode != 0;
    })) << transcript();
    EXPECT_TRUE(logs(QStringLiteral("username and remote host status ="))) << transcript();
    EXPECT_TRUE(logs(QStringLiteral("Permission denied"))) << transcript();
    EXPECT_FALSE(keyIsInstalled());
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, TerminalClosedByThePerson_IsNoticed) {
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    ASSERT_TRUE(logs(QStringLiteral("terminal chmod result = []")));
    screen.tool("xdotool", {QStringLiteral("windowclose"), terminalWindow()});
    EXPECT_TRUE(logs(QStringLiteral("username and remote host status ="))) << transcript();
    EXPECT_TRUE(terminalComes(false));
    EXPECT_FALSE(keyIsInstalled());
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, NoTerminal_ShowsTheCommandAndOnlyOneHalfOfAPairIsReplaced) {
    near(QStringLiteral("echo lone > %1.pub && mkdir bare && for tool in sh env ssh ssh-keygen; do "
                        "ln -s \"$(command -v $tool)\" bare/$tool; done")
             .arg(cKey));
    startWindow(hostAndUser(), {QStringLiteral("PATH=/Users/near/bare")});
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(tells(QStringLiteral("No terminal program could open a window."))) << transcript();
    ASSERT_TRUE(comesToFront(QStringLiteral("No Terminal Found")))
        << screen.activeTitle().toStdString();
    keepPicture("set-up-no-terminal");
    EXPECT_TRUE(bothHalves());
    EXPECT_NE(near(QStringLiteral("cat %1.pub").arg(cKey)).output, "lone\n");
    keys({QStringLiteral("Escape")});
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, PlantedLinkAndFolder_HarmNothing) {
    near(QStringLiteral("mkdir -m 700 /run/near/kelvo-mirror && echo mine > precious && "
                        "ln -s /Users/near/precious /run/near/kelvo-mirror/tempshell.command"));
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    EXPECT_EQ(near(QStringLiteral("cat precious")).output, "mine\n");
    EXPECT_EQ(near(QStringLiteral("cat /run/near/kelvo-mirror/tempshell.command")).output,
              "/usr/bin/ssh-copy-id 2>&1 -i \"/Users/near/.ssh/id_kelvoRsync\"  "
              "\"mediauser@Remote-Mac.local\"\n");
    EXPECT_EQ(near(QStringLiteral("stat -c %a /run/near/kelvo-mirror/tempshell.command")).output,
              "755\n");
    EXPECT_EQ(program->stop(), 0);

    near(QStringLiteral("rm -rf /run/near/kelvo-mirror && ln -s /Users/near "
                        "/run/near/kelvo-mirror"));
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+k")});
    EXPECT_TRUE(logs(QStringLiteral("ooops bad.../run/near/kelvo-mirror is not a folder")))
        << transcript();
    EXPECT_NE(near(QStringLiteral("test -e tempshell.command")).exitCode, 0);
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, HostGoneWhileThePasswordIsAsked_IsAnEndToo) {
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    ASSERT_TRUE(answers(QStringLiteral("yes"), &hostIsKnown));
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    ASSERT_TRUE(answers(QStringLiteral("x"), [] {
        remote(QStringLiteral("pkill --ns $$ --nslist net -KILL -x sshd"));
        return near(QStringLiteral("pgrep --ns $$ --nslist net -x ssh-copy-id")).exitCode != 0;
    }));
    EXPECT_TRUE(logs(QStringLiteral("Connection refused"))) << transcript();
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, KeyThatIsReplaced_IsKeptAndOnlyOnceAPersonAgrees) {
    near(QStringLiteral("ssh-keygen -q -t ed25519 -N '' -f %1").arg(cKey));
    const QByteArray before = near(QStringLiteral("cat %1").arg(cKey)).output;
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+m")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Make a new key?"))) << transcript();
    keys({QStringLiteral("Return")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Kelvo Mirror")));
    EXPECT_EQ(near(QStringLiteral("cat %1").arg(cKey)).output, before);
    keys({QStringLiteral("alt+m")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Make a new key?"))) << transcript();
    keys({QStringLiteral("Tab"), QStringLiteral("space")});
    EXPECT_TRUE(logs(QStringLiteral("result = "))) << transcript();
    EXPECT_NE(near(QStringLiteral("cat %1").arg(cKey)).output, before);
    EXPECT_EQ(near(QStringLiteral("cat %1-20*[0-9]").arg(cKey)).output, before);
    EXPECT_EQ(near(QStringLiteral("ls .ssh/id_* | wc -l")).output.trimmed(), "4");
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, KeyOnAReadOnlyDisk_CannotBeKeptAndStays) {
    near(QStringLiteral("ssh-keygen -q -t ed25519 -N '' -f %1 && mount --bind .ssh .ssh && "
                        "mount -o remount,bind,ro .ssh")
             .arg(cKey));
    const QByteArray before = near(QStringLiteral("cat %1").arg(cKey)).output;
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+m")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Make a new key?"))) << transcript();
    keys({QStringLiteral("Tab"), QStringLiteral("space")});
    EXPECT_TRUE(comesToFront(QStringLiteral("The key was not replaced"))) << transcript();
    EXPECT_FALSE(program->transcript().contains(u"result = ")) << "nothing was tried";
    keys({QStringLiteral("Return")});
    EXPECT_EQ(program->stop(), 0);
    EXPECT_EQ(near(QStringLiteral("cat %1; umount .ssh").arg(cKey)).output, before);
}

TEST_F(SetUpLabTest, HomeWithABlankAndAnApostrophe_HasItsKeyMadeAndInstalled) {
    const QString home = QStringLiteral("/Users/near/Ann O'Hara");
    near(QStringLiteral("mkdir -p \"/Users/near/Ann O'Hara/.ssh\""));
    startWindow(hostAndUser(), {QString(u"HOME=" + home)});
    keys({QStringLiteral("alt+k")});
    ASSERT_TRUE(terminalComes()) << transcript();
    ASSERT_TRUE(logs(QStringLiteral("terminal chmod result = [")));
    EXPECT_EQ(near(QStringLiteral("cd Ann*/.ssh && ls id_*")).output,
              "id_kelvoRsync\nid_kelvoRsync.pub\n");
    ASSERT_TRUE(answers(QStringLiteral("yes"), &hostIsKnown)) << transcript();
    ASSERT_TRUE(answers(cPassword, &keyIsInstalled)) << transcript();
    EXPECT_EQ(near(QStringLiteral("cat Ann*/.ssh/id_kelvoRsync.pub")).output,
              remote(QStringLiteral("cat /Users/mediauser/.ssh/authorized_keys")).output);
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, HomeWithEveryOddSign_HasItsKeyMade) {
    near(QStringLiteral("mkdir -p '/Users/near/a \"b\" $HOME `c` \\d/.ssh'"));
    startWindow(hostAndUser(), {QStringLiteral("HOME=/Users/near/a \"b\" $HOME `c` \\d")});
    keys({QStringLiteral("alt+m")});
    ASSERT_TRUE(logs(QStringLiteral("result = "))) << transcript();
    EXPECT_EQ(near(QStringLiteral("ls a*/.ssh")).output, "id_kelvoRsync\nid_kelvoRsync.pub\n");
    EXPECT_EQ(program->stop(), 0);
}

// -- the connection test

struct ConnectionCase {
    const char* name;
    const char* preparation; ///< on the near host
    const char* link;        ///< the lab's own command first
    const char* host;
    const char* alert;
};

class ConnectionTestLabTest : public SetUpLabTest,
                              public ::testing::WithParamInterface<ConnectionCase> {};

TEST_P(ConnectionTestLabTest, Alert_SaysWhatTheOutputNames) {
    const ConnectionCase& expected = GetParam();
    const CommandResult ready =
        near(QStringLiteral("ssh-keygen -q -t ed25519 -N '' -f %1 && ssh-keyscan -T 10 "
                            "Remote-Mac.local 10.77.0.2 > .ssh/known_hosts && cat %1.pub")
                 .arg(cKey));
    ASSERT_EQ(ready.exitCode, 0) << ready.output.constData();
    const QByteArray line = ready.output.trimmed();
    writeRemote(QStringLiteral("/Users/mediauser/.ssh/authorized_keys"),
                line.sliced(line.lastIndexOf('\n') + 1) + '\n');
    remote(QStringLiteral("chown mediauser: /Users/mediauser/.ssh/authorized_keys"));
    near(QString::fromLatin1(expected.preparation));
    if (*expected.link != '\0')
        lab({QStringLiteral("link"), QString::fromLatin1(expected.link)});
    QVariantMap profile = hostAndUser();
    profile[QStringLiteral("prefRemoteBonjourName")] = QString::fromLatin1(expected.host);
    startWindow(profile);
    keys({QStringLiteral("alt+s")});
    ASSERT_TRUE(prints(QStringLiteral("got back:"))) << transcript();
    EXPECT_TRUE(comesToFront(QString::fromLatin1(expected.alert))) << transcript();
    keys({QStringLiteral("Return")});
    EXPECT_TRUE(prints(QStringLiteral("response = 1000"))) << transcript();
    EXPECT_EQ(program->stop(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ConnectionTestLabTest,
    ::testing::Values(ConnectionCase{"GoodHost", "true", "", "Remote-Mac.local", "SUCCESS..."},
                      ConnectionCase{"NoRoute", "true", "down", "10.77.0.2", "SUCCESS..."},
                      ConnectionCase{"Unresolvable", "true", "", "No-Such-Mac.local", "Oh OH..."},
                      ConnectionCase{
                          "RefusedKey",
                          "ssh-keygen -q -t ed25519 -N '' -f other && mv other .ssh/id_kelvoRsync",
                          "", "Remote-Mac.local", "SUCCESS..."},
                      ConnectionCase{"IdentityMissing", "rm .ssh/id_kelvoRsync", "",
                                     "Remote-Mac.local", "Oh OH..."}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace kelvo
