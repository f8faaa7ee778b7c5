// The parts that speak over a message bus: they work, and are loaded when they are first used.
#include "app/bus_parts.h"
#include "fakes/recording_console.h"
#include "support/network_manager_service.h"
#include "support/notification_service.h"
#include "support/profile.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QFile>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

bool moduleIsLoaded() {
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/lib/kelvo-mirror/bus.so");
}

/// On a bus of its own, which counts as this machine's: one for all, for the bus's library keeps
/// the first address that it comes upon.
class BusModuleSystemTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        fBus = std::make_unique<PrivateBus>();
        for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
            qputenv(name, fBus->address().toLatin1());
    }
    static void TearDownTestSuite() { fBus.reset(); }
    void SetUp() override {
        if (fBus->address().isEmpty())
            GTEST_SKIP() << "no bus daemon can be started here";
    }

private:
    inline static std::unique_ptr<PrivateBus> fBus;

protected:
    BusConnection theirs{fBus->address(), QStringLiteral("bus-module-theirs")};
    RecordingConsole console;
};

TEST_F(BusModuleSystemTest, Notice_IsShownByTheDesktop) {
    NotificationService desktop(theirs.get());
    ASSERT_TRUE(desktop.appear());
    const bool before = moduleIsLoaded();
    const auto notices = lateBusParts().makeNotices(
        console, [](const Notice&) { ADD_FAILURE() << "the desktop has a service"; }, Profile{});
    EXPECT_EQ(moduleIsLoaded(), before) << "nothing was shown yet";
    for (const char* title : {"One", "Two"})
        notices->showNotice({.title = QString::fromLatin1(title), .text = QStringLiteral("x")});
    EXPECT_TRUE(waitInLoop([&] { return desktop.shown.size() == 2; }));
    EXPECT_EQ(desktop.shown, (QStringList{"One | x", "Two | x"}));
    EXPECT_TRUE(moduleIsLoaded());
    EXPECT_EQ(console.logged(), QStringList());
}

TEST_F(BusModuleSystemTest, NetworkManager_TellsHowFarThisMachineSees) {
    NetworkManagerService service(theirs.get());
    service.setQuietState(50);
    ASSERT_TRUE(service.appear());
    int changes = 0;
    const auto source = lateBusParts().makeReachSource(console, [&changes] { ++changes; });
    ASSERT_TRUE(source);
    EXPECT_TRUE(waitInLoop([&] { return changes == 1; }));
    EXPECT_EQ(source->reach(), NetworkReach::LocalOnly);
}

} // namespace
} // namespace kelvo
