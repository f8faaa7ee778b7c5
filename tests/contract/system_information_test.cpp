#include "adapters/desktop/system_information.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"

#include <QSysInfo>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class SystemInformationTest : public ::testing::Test {
protected:
    QString logged(const QString& what) const {
        return console.logged().filter(QString(what + u": ")).value(0).mid(what.size() + 2);
    }

    ScriptedShell shell;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    RecordingConsole console;
    SystemInformation information{QStringLiteral("kelvo-mirror 9.9"), shell, mainQueue, bgQueue,
                                  console};
};

TEST_F(SystemInformationTest, Nothing_IsAskedOnTheCallersThread) {
    information.logCurrentSystemInfo();
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_TRUE(console.lines().empty());
    EXPECT_EQ(bgQueue.size(), 0U) << "the start-up comes first";
    mainQueue.advance(1.9);
    EXPECT_EQ(bgQueue.size(), 0U);
    mainQueue.advance(0.1);
    EXPECT_TRUE(shell.commands().isEmpty());
    EXPECT_EQ(bgQueue.size(), 1U);
}

TEST_F(SystemInformationTest, Lines_TellProgramSystemDesktopAndTools) {
    qputenv("XDG_CURRENT_DESKTOP", "GNOME\x1b");
    qputenv("XDG_SESSION_TYPE", "wayland");
    shell.answerTo(QStringLiteral("rsync"),
                   QStringLiteral("rsync  version 3.2.7  protocol version 31\nCopyright\n"));
    shell.answerTo(QStringLiteral("ssh -V"), QStringLiteral("OpenSSH_9.2p1 Debian\n"));
    information.logCurrentSystemInfo();
    mainQueue.advance(5.0);
    bgQueue.runAll();
    qunsetenv("XDG_CURRENT_DESKTOP");
    qunsetenv("XDG_SESSION_TYPE");
    EXPECT_EQ(logged(QStringLiteral("program")), u"kelvo-mirror 9.9");
    EXPECT_EQ(logged(QStringLiteral("system")),
              QString(QSysInfo::prettyProductName() + u", linux " + QSysInfo::kernelVersion() +
                      u", " + QSysInfo::currentCpuArchitecture()));
    EXPECT_EQ(shell.commands(), (QStringList{QStringLiteral("/usr/bin/rsync --version 2>&1"),
                                             QStringLiteral("/usr/bin/ssh -V 2>&1")}));
    EXPECT_EQ(logged(QStringLiteral("desktop")), u"GNOME\\x1b, wayland");
    EXPECT_EQ(logged(QStringLiteral("Qt")), QString::fromLatin1(qVersion()));
    EXPECT_EQ(logged(QStringLiteral("rsync")), u"rsync  version 3.2.7  protocol version 31");
    EXPECT_EQ(logged(QStringLiteral("ssh")), u"OpenSSH_9.2p1 Debian");
    QStringList order;
    for (const QString& line : console.logged())
        order.append(line.section(u':', 0, 0));
    EXPECT_EQ(order.join(u' '), u"program system desktop Qt rsync ssh");
    EXPECT_TRUE(console.printed().isEmpty());
}

TEST_F(SystemInformationTest, MissingTools_AreSaidToBeMissing) {
    qunsetenv("XDG_CURRENT_DESKTOP");
    qunsetenv("XDG_SESSION_TYPE");
    shell.answerTo(QStringLiteral("rsync"), QStringLiteral("sh: 1: /usr/bin/rsync: not found"));
    information.logCurrentSystemInfo();
    mainQueue.advance(5.0);
    bgQueue.runAll();
    EXPECT_EQ(logged(QStringLiteral("desktop")), u"none");
    EXPECT_EQ(logged(QStringLiteral("rsync")), u"not found");
    EXPECT_EQ(logged(QStringLiteral("ssh")), u"not found");
}

TEST_F(SystemInformationTest, LongVersion_IsCutAfterTwoHundredCharacters) {
    const QString version = u"OpenSSH_9.2p1 " + QString(300, u'x');
    shell.answerTo(QStringLiteral("ssh -V"), version);
    information.logCurrentSystemInfo();
    mainQueue.advance(5.0);
    bgQueue.runAll();
    EXPECT_EQ(logged(QStringLiteral("ssh")), version.left(200));
}

} // namespace
} // namespace kelvo
