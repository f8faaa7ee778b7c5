// The remote Mac's share: a real server, mounted through the desktop's own services.
#include "lab/set_up_fixture.h"

#include <QFile>

namespace kelvo {
namespace {

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
        [] {
            return near(QStringLiteral("pgrep --ns $$ --nslist net -fx 'gio mount smb:.*'"))
                       .exitCode == 0;
        },
        30s));
    screen.tool("xdotool", {QStringLiteral("windowclose"), terminalWindow()});
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
        return near(QStringLiteral("pgrep --ns $$ --nslist net -fx 'gio mount smb:.*'")).exitCode !=
               0;
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
        return near(QStringLiteral("pgrep --ns $$ --nslist net -fx 'gio mount smb:.*'")).exitCode !=
               0;
    }));
    EXPECT_TRUE(tells(QStringLiteral("Cannot show \"./Users/mediauser/Movies\""))) << transcript();
    EXPECT_EQ(opened(), "");
    EXPECT_EQ(program->stop(), 0);
    share("start");
}

} // namespace
} // namespace kelvo
