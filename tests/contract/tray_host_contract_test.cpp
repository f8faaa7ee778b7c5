#include "adapters/display/desktop_tray_host.h"
#include "fakes/fake_status_menu.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QCoreApplication>
#include <QThread>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// A desktop that a test lets a tray come to and go from.
struct FakeDesktop {
    FakeTrayHost host;

    TrayHost& trayHost() { return host; }
    bool ready() const { return true; }
    void setTray(bool present) { host.setPresent(present); }
};

struct BusDesktop {
    PrivateBus daemon;
    BusConnection ours{daemon.address(), QStringLiteral("tray host")};
    BusConnection panels{daemon.address(), QStringLiteral("panel")};
    TrayService service{panels.get()};
    DesktopTrayHost host{ours.get()};

    TrayHost& trayHost() { return host; }
    bool ready() { return ours.get().isConnected() && panels.get().isConnected(); }
    void setTray(bool present) {
        EXPECT_TRUE(present ? service.appear(true) : service.disappear());
    }
};

template <typename Desktop>
class TrayHostContractTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(desktop.ready()) << "no message bus"; }

    bool becomes(bool present) {
        return waitInLoop([&] { return desktop.trayHost().isPresent() == present; });
    }

    Desktop desktop;
};

using Desktops = ::testing::Types<FakeDesktop, BusDesktop>;
TYPED_TEST_SUITE(TrayHostContractTest, Desktops);

TYPED_TEST(TrayHostContractTest, NothingKnown_IsAbsent) {
    EXPECT_FALSE(this->desktop.trayHost().isPresent());
}

TYPED_TEST(TrayHostContractTest, EachChange_IsToldOnceOnTheMainThread) {
    std::vector<bool> told;
    const Subscription subscription = this->desktop.trayHost().observe([&] {
        EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
        told.push_back(this->desktop.trayHost().isPresent());
    });
    this->desktop.setTray(true);
    ASSERT_TRUE(this->becomes(true));
    this->desktop.setTray(false);
    ASSERT_TRUE(this->becomes(false));
    this->desktop.setTray(true);
    ASSERT_TRUE(this->becomes(true));
    EXPECT_EQ(told, (std::vector{true, false, true}));
}

TYPED_TEST(TrayHostContractTest, EndedSubscription_IsNotTold) {
    int told = 0;
    int kept = 0;
    Subscription subscription = this->desktop.trayHost().observe([&] { ++told; });
    const Subscription other = this->desktop.trayHost().observe([&] { ++kept; });
    subscription.reset();
    this->desktop.setTray(true);
    ASSERT_TRUE(this->becomes(true));
    EXPECT_EQ(told, 0);
    EXPECT_EQ(kept, 1);
}

TYPED_TEST(TrayHostContractTest, Observer_MayEndSubscriptionsItsOwnToo) {
    int first = 0;
    int second = 0;
    std::vector<Subscription> subscriptions;
    subscriptions.push_back(this->desktop.trayHost().observe([&] {
        ++first;
        subscriptions.clear();
    }));
    subscriptions.push_back(this->desktop.trayHost().observe([&] { ++second; }));
    this->desktop.setTray(true);
    ASSERT_TRUE(this->becomes(true));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
}

TEST(TrayHostLifetimeTest, Subscription_MayOutliveItsHost) {
    Subscription ofFake;
    Subscription ofReal;
    int told = 0;
    {
        FakeTrayHost fake;
        DesktopTrayHost real(QDBusConnection(QStringLiteral("no such bus")));
        ofFake = fake.observe([&] { ++told; });
        ofReal = real.observe([&] { ++told; });
    }
    ofFake.reset();
    ofReal.reset();
    EXPECT_EQ(told, 0);
}

class DesktopTrayHostTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(desktop.ready()) << "no message bus"; }
    BusDesktop desktop;
};

TEST_F(DesktopTrayHostTest, TrayThereBefore_IsFound) {
    desktop.setTray(true);
    const DesktopTrayHost late(desktop.ours.get());
    EXPECT_TRUE(waitInLoop([&] { return late.kind() == TrayKind::Bus; }));
}

TEST_F(DesktopTrayHostTest, ServiceWithoutAPanel_CountsOnlyOnceThePanelIsThere) {
    bool told = false;
    const Subscription subscription = desktop.host.observe([&] { told = true; });
    ASSERT_TRUE(desktop.service.appear(false));
    ASSERT_TRUE(waitInLoop([&] { return desktop.service.questions() > 0; }));
    EXPECT_FALSE(desktop.host.isPresent());
    EXPECT_FALSE(told);
    desktop.service.setHost(true);
    ASSERT_TRUE(waitInLoop([&] { return desktop.host.isPresent(); }));
    desktop.service.setHost(false);
    EXPECT_TRUE(waitInLoop([&] { return !desktop.host.isPresent(); }));
}

TEST_F(DesktopTrayHostTest, NoBus_IsAbsent) {
    const DesktopTrayHost alone{QDBusConnection(QStringLiteral("no such bus"))};
    EXPECT_FALSE(alone.isPresent());
}

} // namespace
} // namespace kelvo
