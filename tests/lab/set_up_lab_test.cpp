// Setting up the remote side by the window alone: a real display, a real terminal, a real sshd.
#include "lab/lab_fixture.h"
#include "support/plist_text.h"
#include "support/virtual_display.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr int cPatience = 20'000; // milliseconds
const QString cPassword = QStringLiteral("projector");
const QString cRunning = QStringLiteral("state is now IS RUNNING");
const QString cKey = QStringLiteral(".ssh/id_kelvoRsync");

class SetUpLabTest : public LabTest {
protected:
    void SetUp() override {
        for (const char* tool : {"Xvfb", "openbox", "xdotool", "maim", "xterm"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed on this machine";
        }
        LabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        // Nothing is set up yet: no key, and a host that nobody has seen before.
        near(QStringLiteral("find .ssh -mindepth 1 -delete"));
        remote(QStringLiteral("rm -f /Users/mediauser/.ssh/authorized_keys"));
        display = screen.start();
        ASSERT_FALSE(display.isEmpty()) << "Xvfb does not come up";
        QProcessEnvironment desktop = QProcessEnvironment::systemEnvironment();
        desktop.insert(QStringLiteral("DISPLAY"), display);
        manager.setProcessEnvironment(desktop);
        manager.start(QStringLiteral("openbox"), QStringList());
        ASSERT_TRUE(manager.waitForStarted(cPatience));
        ASSERT_TRUE(waitUntil(
            [this] { return !tool("xdotool", {QStringLiteral("getdisplaygeometry")}).isEmpty(); }));
    }

    void TearDown() override {
        program.reset();
        manager.terminate();
        if (manager.state() != QProcess::NotRunning && !manager.waitForFinished(cPatience))
            manager.kill();
    }

    // -- the program

    static QVariantMap firstDay() {
        return {{QStringLiteral("prefRsyncWithSSH"), true},
                {QStringLiteral("prefPath2"), cIncoming},
                {QStringLiteral("mainWindowTab"), QStringLiteral("remote")}};
    }
    static QVariantMap hostAndUser() {
        QVariantMap profile = firstDay();
        profile[QStringLiteral("prefRemoteBonjourName")] = cRemoteHost;
        profile[QStringLiteral("prefRemoteUsername")] = cRemoteUser;
        profile[QStringLiteral("prefRemotePath")] = QStringLiteral("Movies");
        return profile;
    }

    /// Starts the program with its window on the display and the keyboard focus in it.
    void startWindow(const QVariantMap& profile, const QStringList& variables = {}) {
        writeNear(cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist"),
                  plistText(profile));
        program = std::make_unique<RunningProgram>(
            QStringLiteral(KELVO_LAB_COMMAND),
            QStringList{QStringLiteral("near"), QStringLiteral("env"),
                        QString(u"DISPLAY=" + display), QStringLiteral("QT_QPA_PLATFORM=xcb"),
                        QStringLiteral("DBUS_SESSION_BUS_ADDRESS=disabled:")} +
                variables + QStringList{QStringLiteral(KELVO_PROGRAM)});
        ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60))
            << program->transcript().toStdString();
        ASSERT_TRUE(waitUntil([this] { return activeTitle() == u"Kelvo Mirror"; }, 30s));
    }

    bool prints(const QString& start, double seconds = 60) {
        return program->waitForLine(start, seconds).has_value();
    }
    bool logs(const QString& part, double seconds = 60) {
        return program
            ->waitForLine([&](const QString& line) { return line.contains(part); }, seconds)
            .has_value();
    }
    /// The same for the system log.
    bool tells(const QString& part) {
        return waitUntil(
            [&] {
                program->waitForLine(QStringLiteral("no such line"), 0.05);
                return program->transcript().contains(part);
            },
            60s);
    }
    std::string transcript() const { return program->transcript().toStdString(); }

    // -- mouse and keys

    QString tool(const char* name, const QStringList& arguments) const {
        QProcess process;
        QProcessEnvironment desktop = QProcessEnvironment::systemEnvironment();
        desktop.insert(QStringLiteral("DISPLAY"), display);
        process.setProcessEnvironment(desktop);
        process.start(QString::fromLatin1(name), arguments);
        process.waitForFinished(cPatience);
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }
    void keys(const QStringList& names) const {
        tool("xdotool",
             QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("30")} +
                 names);
    }
    void type(const QString& text) const {
        tool("xdotool",
             {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("20"), text});
    }
    void enter(const QString& text) const {
        type(text);
        keys({QStringLiteral("Return")});
    }
    /// The start button is the one tall control across the middle of the window.
    void clickStart() const {
        const QString place =
            tool("xdotool", {QStringLiteral("getactivewindow"), QStringLiteral("getwindowgeometry"),
                             QStringLiteral("--shell")});
        const auto number = [&](const char* name) {
            return place.section(QString::fromLatin1(name) + u'=', 1).section(u'\n', 0, 0).toInt();
        };
        tool("xdotool",
             {QStringLiteral("mousemove"), QString::number(number("X") + number("WIDTH") / 2),
              QString::number(number("Y") + 225), QStringLiteral("click"), QStringLiteral("1")});
    }
    QString activeTitle() const {
        return tool("xdotool",
                    {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
    }
    bool comesToFront(const QString& title) const {
        return waitUntil([&] { return activeTitle().startsWith(title); }, 30s);
    }
    QString terminalWindow() const {
        return tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                QStringLiteral("--class"), QStringLiteral("xterm")})
            .section(u'\n', 0, 0);
    }
    bool terminalComes(bool comes = true) const {
        return waitUntil([&] { return terminalWindow().isEmpty() != comes; }, 30s);
    }
    void keepPicture(const char* name) const {
        QDir().mkpath(QStringLiteral(KELVO_PICTURES));
        tool("maim", {QStringLiteral(KELVO_PICTURES "/%1.png").arg(QLatin1StringView(name))});
    }

    /// Types `text` into the terminal, again from time to time (a question drops what was typed
    /// before it was asked), until `nearText` succeeds on the near host.
    static constexpr auto cAnswerPatience = 3s;
    bool answers(const QString& text, const std::function<bool()>& done) const {
        for (int round = 0; round < 8; ++round) {
            enter(text);
            if (waitUntil(done, cAnswerPatience))
                return true;
        }
        return false;
    }
    static bool hostIsKnown() {
        return near(QStringLiteral("test -s .ssh/known_hosts")).exitCode == 0;
    }
    static bool keyIsInstalled() {
        return remote(QStringLiteral("test -s /Users/mediauser/.ssh/authorized_keys")).exitCode ==
               0;
    }
    static bool bothHalves() {
        return near(QStringLiteral("test -s %1 -a -s %1.pub").arg(cKey)).exitCode == 0;
    }

    VirtualDisplay screen;
    QString display;
    QProcess manager;
    std::unique_ptr<RunningProgram> program;
};

TEST_F(SetUpLabTest, FromNothing_ToARunningPullByTheWindowAlone) {
    startWindow(firstDay());
    // The host, from the list.
    keys({QStringLiteral("ctrl+2")});
    keys({QStringLiteral("alt+c")});
    ASSERT_TRUE(comesToFront(QStringLiteral("Choose the Remote Mac")))
        << activeTitle().toStdString();
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
    ASSERT_TRUE(prints(cRunning)) << transcript();
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
        return near(QStringLiteral("pgrep -x ssh-copy-id")).exitCode != 0;
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
    tool("xdotool", {QStringLiteral("windowclose"), terminalWindow()});
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
    ASSERT_TRUE(comesToFront(QStringLiteral("No Terminal Found"))) << activeTitle().toStdString();
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
        remote(QStringLiteral("pkill -KILL --ns $$ --nslist net -x sshd"));
        return near(QStringLiteral("pgrep -x ssh-copy-id")).exitCode != 0;
    }));
    EXPECT_TRUE(logs(QStringLiteral("Connection refused"))) << transcript();
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(SetUpLabTest, KeyFilesOnAReadOnlyDisk_StayAndAllComplaintsAreShown) {
    near(QStringLiteral("ssh-keygen -q -t ed25519 -N '' -f %1 && mount --bind .ssh .ssh && "
                        "mount -o remount,bind,ro .ssh")
             .arg(cKey));
    const QByteArray before = near(QStringLiteral("cat %1").arg(cKey)).output;
    startWindow(hostAndUser());
    keys({QStringLiteral("alt+m")});
    EXPECT_TRUE(logs(QStringLiteral("removeItem ERROR = /Users/near/.ssh/id_kelvoRsync: Read-only "
                                    "file system")))
        << transcript();
    EXPECT_TRUE(prints(QStringLiteral("status1 = false")));
    EXPECT_TRUE(prints(QStringLiteral("status2 = false")));
    EXPECT_TRUE(prints(QStringLiteral("result = ")));
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

// -- the share

const QString cFolderAddress =
    QStringLiteral("file:///run/near/gvfs/smb-share:server=remote-mac.local,share=macintosh%2520hd,"
                   "user=mediauser/Users/mediauser/Movies\n");

class ShareLabTest : public SetUpLabTest {
protected:
    void SetUp() override {
        SetUpLabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        for (const char* part :
             {"/usr/libexec/gvfsd-smb", "/usr/libexec/gvfsd-fuse", "/dev/fuse"}) {
            if (!QFile::exists(QString::fromLatin1(part)))
                GTEST_SKIP() << part << " is not there on this machine";
        }
        const CommandResult shared = share("start");
        ASSERT_EQ(shared.exitCode, 0) << shared.output.constData();
        const CommandResult bus =
            near(QStringLiteral("dbus-daemon --session --fork --print-address 2>/dev/null"));
        ASSERT_EQ(bus.exitCode, 0) << bus.output.constData();
        address = QString(u"DBUS_SESSION_BUS_ADDRESS=" +
                          QString::fromLatin1(bus.output).section(u'\n', 0, 0));
        // What opens folders here writes down which.
        near(QStringLiteral("mkdir stand-in && printf '#!/bin/sh\\necho \"$1\" "
                            ">>/Users/near/opened\\n' >stand-in/xdg-open && "
                            "chmod 755 stand-in/xdg-open"));
        startWindow(hostAndUser(), {address, QStringLiteral("PATH=/Users/near/stand-in:/usr/bin:"
                                                            "/bin:/usr/sbin:/sbin")});
    }
    void TearDown() override {
        SetUpLabTest::TearDown();
        if (!address.isEmpty())
            share("stop");
    }

    static CommandResult share(const char* step) {
        return remote(QStringLiteral("/lab/remote-host share %1").arg(QLatin1StringView(step)));
    }
    /// What was opened so far, a line each.
    static QByteArray opened() { return near(QStringLiteral("cat opened 2>/dev/null")).output; }
    static std::function<bool()> opens(const QString& lines) {
        return [lines] { return opened() == lines.toLatin1(); };
    }

    QString address;
};

TEST_F(ShareLabTest, PasswordInTheTerminal_ThenTheFolderOfTheRightShareIsOpened) {
    const CommandResult other =
        near(QStringLiteral("printf 'WORKGROUP\\n%1\\n' | env %2 timeout 30 gio mount "
                            "smb://mediauser@Remote-Mac.local/Other")
                 .arg(cPassword, address));
    ASSERT_EQ(other.exitCode, 0) << other.output.constData();
    keys({QStringLiteral("alt+o")});
    ASSERT_TRUE(terminalComes()) << transcript();
    enter(QStringLiteral("WORKGROUP"));
    ASSERT_TRUE(answers(cPassword, opens(cFolderAddress))) << opened().constData() << transcript();
    EXPECT_TRUE(near(QStringLiteral("ls /run/near/gvfs/*macintosh*/Users/mediauser/Movies"))
                    .output.contains("notes.txt"));
    // Once mounted nothing is asked again.
    if (!terminalWindow().isEmpty())
        keys({QStringLiteral("space")});
    ASSERT_TRUE(terminalComes(false));
    ASSERT_TRUE(comesToFront(QStringLiteral("Kelvo Mirror")));
    keys({QStringLiteral("alt+i")});
    EXPECT_TRUE(waitUntil(opens(QString(cFolderAddress + cFolderAddress)), 30s))
        << opened().constData() << transcript();
    EXPECT_TRUE(terminalWindow().isEmpty());
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ShareLabTest, QuestionLeftUnanswered_OpensNoFolderOfThisMachine) {
    near(QStringLiteral("mkdir -p /Users/mediauser/Movies"));
    keys({QStringLiteral("alt+o")});
    ASSERT_TRUE(terminalComes()) << transcript();
    ASSERT_TRUE(waitUntil(
        [] { return near(QStringLiteral("pgrep -fx 'gio mount smb:.*'")).exitCode == 0; }, 30s));
    tool("xdotool", {QStringLiteral("windowclose"), terminalWindow()});
    EXPECT_TRUE(tells(QStringLiteral("Cannot show \"./Users/mediauser/Movies\""))) << transcript();
    EXPECT_EQ(opened(), "");
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ShareLabTest, WrongPassword_OpensNoFolder) {
    keys({QStringLiteral("alt+o")});
    ASSERT_TRUE(terminalComes()) << transcript();
    enter(QStringLiteral("WORKGROUP"));
    // gio asks again and again; an end of input is how a person gives up.
    ASSERT_TRUE(answers(QStringLiteral("wrong"), [this] {
        keys({QStringLiteral("ctrl+d")});
        return near(QStringLiteral("pgrep -fx 'gio mount smb:.*'")).exitCode != 0;
    }));
    EXPECT_TRUE(tells(QStringLiteral("Cannot show \"./Users/mediauser/Movies\""))) << transcript();
    EXPECT_EQ(opened(), "");
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ShareLabTest, ShareThatIsGone_IsSaidInTheTerminalAndOpensNoFolder) {
    share("stop");
    keys({QStringLiteral("alt+o")});
    ASSERT_TRUE(terminalComes()) << transcript();
    enter(QStringLiteral("WORKGROUP"));
    ASSERT_TRUE(answers(cPassword, [] {
        return near(QStringLiteral("pgrep -fx 'gio mount smb:.*'")).exitCode != 0;
    }));
    EXPECT_TRUE(tells(QStringLiteral("Cannot show \"./Users/mediauser/Movies\""))) << transcript();
    EXPECT_EQ(opened(), "");
    EXPECT_EQ(program->stop(), 0);
    share("start");
}

} // namespace
} // namespace kelvo
