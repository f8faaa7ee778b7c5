// The network line's messages on a host whose cable comes and goes.
#include "lab/lab_fixture.h"

namespace kelvo {

class NetworkLabTest : public LabTest {
protected:
    static void link(const char* state) {
        ASSERT_EQ(lab({QStringLiteral("link"), QString::fromLatin1(state)}).exitCode, 0);
    }
};

TEST_F(NetworkLabTest, CableAndInterface_ChangeTheMessage) {
    RunningProgram watcher(QStringLiteral(KELVO_LAB_COMMAND),
                           {QStringLiteral("near"), QStringLiteral(KELVO_NETWORK_WATCHER)});
    // The lab leads nowhere else: what is connected is the local network.
    const auto connected = [](const QString& line) {
        return line.startsWith(u"Connected to the ");
    };
    const QString nothing = QStringLiteral("No network connection");
    EXPECT_TRUE(watcher.waitForLine(connected, 20)) << watcher.transcript().toStdString();
    for (const char* fault : {"cut", "down"}) {
        link(fault);
        EXPECT_TRUE(watcher.waitForLine(nothing, 20))
            << fault << watcher.transcript().toStdString();
        link("up");
        EXPECT_TRUE(watcher.waitForLine(connected, 20))
            << fault << watcher.transcript().toStdString();
    }
    EXPECT_EQ(watcher.lines().size(), 5) << watcher.transcript().toStdString();
}

TEST_F(NetworkLabTest, WithoutANetworkAtTheStart_SaysSoAndComesBack) {
    link("down");
    RunningProgram watcher(QStringLiteral(KELVO_LAB_COMMAND),
                           {QStringLiteral("near"), QStringLiteral(KELVO_NETWORK_WATCHER)});
    EXPECT_TRUE(watcher.waitForLine(QStringLiteral("No network connection"), 20));
    EXPECT_EQ(watcher.lines().size(), 1);
    link("up");
    EXPECT_TRUE(watcher.waitForLine(QStringLiteral("Connected to the "), 20));
}

TEST_F(NetworkLabTest, TestOfTheBrowser_FindsTheRemoteMac) {
    RunningProgram browser(QStringLiteral(KELVO_LAB_COMMAND),
                           {QStringLiteral("near"), QStringLiteral(KELVO_NETWORK_WATCHER),
                            QStringLiteral("--browse")});
    EXPECT_TRUE(browser.waitForLine(QStringLiteral("ready"), 20))
        << browser.transcript().toStdString();
    EXPECT_TRUE(browser.waitForLine(
        [](const QString& line) {
            return line.startsWith(u"found: ") &&
                   line.contains(u"Remote Mac._smb._tcp.local.@cable");
        },
        20))
        << browser.transcript().toStdString();
}

} // namespace kelvo
