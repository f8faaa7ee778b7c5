#include "adapters/network/network_manager.h"
#include "support/network_manager_service.h"
#include "support/session_bus.h"
#include "support/startable_service.h"
#include "support/wait_in_loop.h"

#include <gtest/gtest.h>

#include <vector>

namespace kelvo {
namespace {

using Reach = std::optional<NetworkReach>;

class NetworkManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (bus.address().isEmpty())
            GTEST_SKIP() << "no bus daemon can be started here";
    }

    /// Keeps what is true at each change.
    std::unique_ptr<NetworkManager> listen() {
        auto manager = std::make_unique<NetworkManager>(
            [this] { told.push_back(fManager->reach()); }, own.get());
        fManager = manager.get();
        return manager;
    }

    PrivateBus bus;
    BusConnection system{bus.address(), QStringLiteral("network-system")};
    BusConnection own{bus.address(), QStringLiteral("network-own")};
    NetworkManagerService service{system.get()};
    std::vector<Reach> told;

private:
    NetworkManager* fManager = nullptr;
};

TEST_F(NetworkManagerTest, StateAtTheStart_IsAskedFor) {
    service.setQuietState(50);
    ASSERT_TRUE(service.appear());
    const auto manager = listen();
    EXPECT_EQ(manager->reach(), std::nullopt) << "nobody waits for the answer";
    EXPECT_TRUE(waitInLoop([&] { return !told.empty(); }));
    EXPECT_EQ(told, std::vector<Reach>{NetworkReach::LocalOnly});
    EXPECT_TRUE(waitInLoop([&] { return manager->findChildren<QObject*>().isEmpty(); }))
        << "nothing is kept of a question that is answered";
}

TEST_F(NetworkManagerTest, EveryState_HasItsReachAndOnlyChangesAreTold) {
    service.setQuietState(70);
    ASSERT_TRUE(service.appear());
    const auto manager = listen();
    ASSERT_TRUE(waitInLoop([&] { return told.size() == 1; }));
    for (const uint state : {60U, 50U, 40U, 30U, 20U, 10U, 0U, 70U})
        service.setState(state);
    ASSERT_TRUE(waitInLoop([&] { return told.size() >= 5; }));
    EXPECT_EQ(told, (std::vector<Reach>{NetworkReach::Beyond, NetworkReach::LocalOnly,
                                        NetworkReach::NothingBeyond, NetworkReach::Unknown,
                                        NetworkReach::Beyond}));
}

TEST_F(NetworkManagerTest, ServiceThatComesAndGoes_IsAskedAndForgotten) {
    const auto manager = listen();
    service.setQuietState(20);
    ASSERT_TRUE(service.appear());
    ASSERT_TRUE(waitInLoop([&] { return told.size() == 1; }));
    ASSERT_TRUE(service.disappear());
    ASSERT_TRUE(waitInLoop([&] { return told.size() == 2; }));
    EXPECT_EQ(told, (std::vector<Reach>{NetworkReach::NothingBeyond, std::nullopt}));
}

TEST(NetworkManagerAloneTest, ServiceThatIsNotThere_IsNotStarted) {
    const StartableService manager(QStringLiteral("org.freedesktop.NetworkManager"));
    const StartableService other(QStringLiteral("org.kelvo.Other"));
    const PrivateBus bus;
    if (bus.address().isEmpty())
        GTEST_SKIP() << "no bus daemon can be started here";
    BusConnection own(bus.address(), QStringLiteral("network-starting"));
    const NetworkManager watched([] {}, own.get());
    other.call(own.get());
    EXPECT_TRUE(waitInLoop([&] { return other.wasStarted(); })) << "this bus starts services";
    EXPECT_FALSE(manager.wasStarted());
    EXPECT_EQ(watched.reach(), std::nullopt);
}

TEST(NetworkManagerAloneTest, NoBus_SaysNothing) {
    const NetworkManager manager([] { ADD_FAILURE(); },
                                 QDBusConnection(QStringLiteral("not connected to anything")));
    EXPECT_EQ(manager.reach(), std::nullopt);
}

} // namespace
} // namespace kelvo
