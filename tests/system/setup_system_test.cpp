// The set-up from a terminal with the built program, where there is no Mac.
#include "support/discovery_service.h"
#include "support/program_profile.h"
#include "support/pty_program.h"
#include "support/session_bus.h"

#include <QDirIterator>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

class SetupSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    SetupSystemTest() { QDir().mkpath(incoming()); }

    /// Whether ssh knows of shared connections depends on the account of the tests; nobody is asked
    /// about them where they are not wanted.
    void wantsNoSharing(const QStringList& profile = {}) const {
        (void)runToEnd(cProgram, profile + QStringList{QStringLiteral("--set"),
                                                       QStringLiteral("keepConnection"),
                                                       QStringLiteral("false")});
    }

    QString incoming() const { return path(QStringLiteral("Incoming")); }
    /// Of a machine without systemd and without discovery.
    QProcessEnvironment alone() const {
        QProcessEnvironment own = environment();
        own.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                   QString(u"unix:path=" + path(QStringLiteral("no-bus"))));
        return own;
    }
    /// Nothing that stays is another than before.
    QStringList everything() const {
        QStringList names;
        QDirIterator files(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            names.append(files.next());
        names.sort();
        return names;
    }
};

TEST_F(SetupSystemTest, WithoutATerminal_MissingAnswersAreNamed) {
    const QStringList before = everything();
    const Ended ended = runToEnd(cProgram, {QStringLiteral("--setup")});
    EXPECT_EQ(ended.code, 2);
    EXPECT_TRUE(ended.errors.contains("--mac, --account, --destination"))
        << ended.errors.constData();
    EXPECT_EQ(everything(), before);
}

TEST_F(SetupSystemTest, MacThatIsNotThere_IsNamedAndNothingIsStored) {
    const QStringList before = everything();
    const Ended ended = runToEnd(cProgram, {QStringLiteral("--setup"), QStringLiteral("--mac"),
                                            QStringLiteral("no-such-mac.invalid"),
                                            QStringLiteral("--account"), QStringLiteral("somebody"),
                                            QStringLiteral("--destination"), incoming()});
    EXPECT_EQ(ended.code, 10) << ended.errors.constData();
    EXPECT_TRUE(ended.errors.endsWith("Nothing was changed.\n")) << ended.errors.constData();
    EXPECT_EQ(everything(), before);
}

TEST_F(SetupSystemTest, CtrlC_LeavesEverythingAsItWas) {
    const QStringList before = everything();
    PtyProgram program({cProgram, QStringLiteral("--profile"), QStringLiteral("east"),
                        QStringLiteral("--setup"), QStringLiteral("--mac"),
                        QStringLiteral("no-such-mac.invalid")},
                       alone());
    ASSERT_TRUE(program.shows("Account on the Mac")) << program.transcript();
    program.type("somebody\n");
    ASSERT_TRUE(program.shows("[Movies]: ")) << program.transcript();
    program.type("\x03");
    EXPECT_EQ(program.end(), 18) << program.transcript();
    EXPECT_TRUE(program.shows("Nothing was changed.", 0)) << program.transcript();
    EXPECT_EQ(everything(), before) << "there is no profile of that name either";
}

TEST_F(SetupSystemTest, PersonWhoWantsItSo_StoresBeforeTheMacIsThere) {
    wantsNoSharing();
    PtyProgram program({cProgram, QStringLiteral("--setup")}, alone());
    ASSERT_TRUE(program.shows("Host name or address of the Mac")) << program.transcript();
    program.type("no-such-mac.invalid\n");
    ASSERT_TRUE(program.shows("Account on the Mac")) << program.transcript();
    program.type("somebody\n");
    ASSERT_TRUE(program.shows("Folder with the movies")) << program.transcript();
    program.type("\n");
    ASSERT_TRUE(program.shows("Folder on this machine")) << program.transcript();
    program.type("~/Films/New\n");
    ASSERT_TRUE(program.shows("Make it? [Y/n] ")) << program.transcript();
    program.type("\n");
    ASSERT_TRUE(program.shows("Store the settings all the same?")) << program.transcript();
    program.type("y\n");
    EXPECT_EQ(program.end(), 10) << program.transcript();
    const QString made = path(QStringLiteral("home/Films/New"));
    EXPECT_TRUE(QFileInfo(made).isDir());
    const auto value = [this](const char* key) {
        return runToEnd(cProgram, {QStringLiteral("--get"), QString::fromLatin1(key)}).output;
    };
    EXPECT_EQ(value("prefRemoteBonjourName"), "no-such-mac.invalid\n");
    EXPECT_EQ(value("prefRemoteUsername"), "somebody\n");
    EXPECT_EQ(value("prefRemotePath"), "Movies\n");
    EXPECT_EQ(value("prefPath2"), made.toLocal8Bit() + '\n');
    EXPECT_EQ(value("prefAutoStartScanOnLaunch"), "false\n");
}

TEST_F(SetupSystemTest, Profile_IsSetUpUnderItsName) {
    const QStringList east{QStringLiteral("--profile"), QStringLiteral("east")};
    wantsNoSharing(east);
    PtyProgram program(QStringList{cProgram} + east +
                           QStringList{QStringLiteral("--setup"), QStringLiteral("--mac"),
                                       QStringLiteral("no-such-mac.invalid"),
                                       QStringLiteral("--account"), QStringLiteral("somebody"),
                                       QStringLiteral("--folder"), QStringLiteral("Movies"),
                                       QStringLiteral("--destination"), incoming()},
                       alone());
    ASSERT_TRUE(program.shows("Store the settings all the same?")) << program.transcript();
    program.type("y\n");
    EXPECT_EQ(program.end(), 10) << program.transcript();
    EXPECT_TRUE(program.shows("kelvo-mirror --profile east --setup", 0)) << program.transcript();
    const QStringList get{QStringLiteral("--get"), QStringLiteral("prefRemoteBonjourName")};
    EXPECT_EQ(runToEnd(cProgram, east + get).output, "no-such-mac.invalid\n");
    EXPECT_NE(runToEnd(cProgram, get).output, "no-such-mac.invalid\n");
}

/// A machine with discovery, and a Mac that it knows.
class SetupDiscoverySystemTest : public SetupSystemTest {
protected:
    void SetUp() override {
        if (theirs.get().isConnected() && service.appear())
            service.announce(QStringLiteral("Studio Mac"), 445);
        else
            GTEST_SKIP() << "no dbus-daemon to be had";
    }
    QProcessEnvironment withDiscovery() const {
        QProcessEnvironment own = environment();
        own.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), bus.address());
        return own;
    }

    const PrivateBus bus;
    BusConnection theirs{bus.address(), QStringLiteral("discovery")};
    DiscoveryService service{theirs.get()};
};

TEST_F(SetupDiscoverySystemTest, MacThatDiscoveryKnows_IsListed) {
    PtyProgram program({cProgram, QStringLiteral("--setup")}, withDiscovery());
    EXPECT_TRUE(program.shows("1  Studio Mac  10.77.0.2  Remote-Mac.local"))
        << program.transcript();
}

TEST_F(SetupDiscoverySystemTest, ProgramWithoutItsPartForTheBus_AsksForTheMacAllTheSame) {
    const QString copy = copiedProgram();
    ASSERT_NE(copy, QString());
    PtyProgram program({copy, QStringLiteral("--setup")}, withDiscovery());
    EXPECT_TRUE(program.shows("Discovery is not installed on this machine."))
        << program.transcript();
    EXPECT_TRUE(program.shows("Host name or address of the Mac")) << program.transcript();
}

} // namespace
} // namespace kelvo
