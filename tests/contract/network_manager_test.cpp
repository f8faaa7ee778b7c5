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
    std::vector<Reach> expected{NetworkReach::Beyond};
    // Between any two comes one of which nothing is known, so that each is a change.
    const auto comes = [&](uint state, NetworkReach reach) {
        service.setState(0);
        service.setState(state);
        expected.insert(expected.end(), {NetworkReach::Unknown, reach});
    };
    for (const uint state : {70U, 60U})
        comes(state, NetworkReach::Beyond);
    for (const uint state : {59U, 50U})
        comes(state, NetworkReach::LocalOnly);
    for (const uint state : {49U, 40U, 30U, 20U, 10U})
        comes(state, NetworkReach::NothingBeyond);
    for (const uint state : {9U, 0U, 0U})
        service.setState(state);
    comes(70, NetworkReach::Beyond);
    ASSERT_TRUE(waitInLoop([&] { return told.size() >= expected.size(); }));
    EXPECT_EQ(told, expected);
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
