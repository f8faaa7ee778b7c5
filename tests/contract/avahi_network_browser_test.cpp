#include "adapters/network/avahi_network_browser.h"
#include "support/discovery_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class AvahiNetworkBrowserTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(ours.get().isConnected() && theirs.get().isConnected()) << "no message bus";
    }

    void search() {
        browser->start(
            {QStringLiteral("_smb._tcp"), QStringLiteral("local."), true},
            [this](const NetworkBrowserState& state) {
                using Kind = NetworkBrowserState::Kind;
                if (state.kind == Kind::Failed)
                    states.append(u"failed: " + state.errorText);
                else
                    states.append(state.kind == Kind::Ready     ? QStringLiteral("ready")
                                  : state.kind == Kind::Waiting ? QStringLiteral("waiting")
                                                                : QStringLiteral("other"));
            },
            [this](const QStringList& endpoints) {
                results.append(endpoints.join(QStringLiteral(" | ")));
            });
    }
    void tell(const QString& signal, int interface, int protocol, const QString& name) const {
        service.tell(static_cast<int>(service.asked.size()), signal,
                     {interface, protocol, name, QStringLiteral("_smb._tcp"),
                      QStringLiteral("local"), QVariant::fromValue(0U)});
    }
    bool statesBecome(const QStringList& expected) {
        return waitInLoop([&] { return states == expected; });
    }
    bool lastResultBecomes(const QString& expected) {
        return waitInLoop([&] { return !results.isEmpty() && results.last() == expected; });
    }

    PrivateBus daemon;
    BusConnection ours{daemon.address(), QStringLiteral("network browser")};
    BusConnection theirs{daemon.address(), QStringLiteral("discovery service")};
    DiscoveryService service{theirs.get()};
    int joined = 0;
    std::unique_ptr<AvahiNetworkBrowser> browser = std::make_unique<AvahiNetworkBrowser>([this] {
        ++joined;
        return ours.get();
    });
    QStringList states;
    QStringList results;
};

TEST_F(AvahiNetworkBrowserTest, BeforeTheFirstSearch_NoBusIsJoined) {
    EXPECT_EQ(joined, 0);
    ASSERT_TRUE(service.appear());
    search();
    EXPECT_TRUE(states.isEmpty()); // Handlers are called from the event loop.
    EXPECT_TRUE(statesBecome({QStringLiteral("ready")}));
    EXPECT_EQ(joined, 1);
    EXPECT_EQ(service.asked, QStringList{QStringLiteral("_smb._tcp local")});
}

TEST_F(AvahiNetworkBrowserTest, EachChange_IsToldWithAllThereIs) {
    ASSERT_TRUE(service.appear());
    search();
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Remote Mac"));
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Other"));
    tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("Remote Mac"));
    tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("Never seen"));
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Last"));
    const QString other = QStringLiteral("Other._smb._tcp.local.@lo");
    const QString remote = QStringLiteral("Remote Mac._smb._tcp.local.@lo");
    ASSERT_TRUE(lastResultBecomes(QString(other + u" | Last._smb._tcp.local.@lo")));
    EXPECT_EQ(results.first(3), (QStringList{remote, QString(remote + u" | " + other), other}));
    EXPECT_EQ(results.size(), 4);
}

TEST_F(AvahiNetworkBrowserTest, BothProtocolsOfAnInterface_AreOneEndpoint) {
    ASSERT_TRUE(service.appear());
    search();
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("A"));
    tell(QStringLiteral("ItemNew"), 1, 1, QStringLiteral("A"));
    tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("A"));
    tell(QStringLiteral("ItemNew"), 999'999, 0, QStringLiteral("B\n\x1b"));
    EXPECT_TRUE(
        lastResultBecomes(QStringLiteral("A._smb._tcp.local.@lo | B\\x0a\\x1b._smb._tcp.local.")));
}

TEST_F(AvahiNetworkBrowserTest, FoundBeforeTheAnswer_IsNotLost) {
    service.tellsAtOnce = QStringLiteral("Quick");
    ASSERT_TRUE(service.appear());
    search();
    EXPECT_TRUE(lastResultBecomes(QStringLiteral("Quick._smb._tcp.local.@lo")));
    EXPECT_EQ(states, QStringList{QStringLiteral("ready")});
}

TEST_F(AvahiNetworkBrowserTest, SearchesOfOthers_AreNotOurs) {
    ASSERT_TRUE(service.appear());
    search();
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    service.tell(7, QStringLiteral("ItemNew"),
                 {1, 0, QStringLiteral("Theirs"), QStringLiteral("_smb._tcp"),
                  QStringLiteral("local"), QVariant::fromValue(0U)});
    service.tell(1, QStringLiteral("ItemNew"), {QStringLiteral("too short")});
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Ours"));
    ASSERT_TRUE(lastResultBecomes(QStringLiteral("Ours._smb._tcp.local.@lo")));
    EXPECT_EQ(results.size(), 1);
}

TEST_F(AvahiNetworkBrowserTest, NoService_FailsAndIsReadyOnceThereIsOne) {
    search();
    ASSERT_TRUE(waitInLoop([&] { return states.size() == 1; }));
    EXPECT_TRUE(states.first().startsWith(u"failed: ")) << states.first().toStdString();
    EXPECT_GT(states.first().size(), 10);
    states.clear();
    ASSERT_TRUE(service.appear());
    EXPECT_TRUE(statesBecome({QStringLiteral("ready")}));
}

TEST_F(AvahiNetworkBrowserTest, ServiceRestarted_IsSearchedAfresh) {
    ASSERT_TRUE(service.appear());
    search();
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("A"));
    ASSERT_TRUE(lastResultBecomes(QStringLiteral("A._smb._tcp.local.@lo")));
    ASSERT_TRUE(service.disappear());
    ASSERT_TRUE(statesBecome({QStringLiteral("ready"), QStringLiteral("waiting")}));
    EXPECT_EQ(results.last(), QString());
    service.tellsAtOnce = QStringLiteral("B");
    ASSERT_TRUE(service.appear());
    EXPECT_TRUE(lastResultBecomes(QStringLiteral("B._smb._tcp.local.@lo")));
    EXPECT_EQ(states.last(), u"ready");
}

TEST_F(AvahiNetworkBrowserTest, FailureLater_IsToldInItsWords) {
    ASSERT_TRUE(service.appear());
    search();
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    service.tell(1, QStringLiteral("Failure"), {QStringLiteral("daemon tired\x1b")});
    EXPECT_TRUE(
        statesBecome({QStringLiteral("ready"), QStringLiteral("failed: daemon tired\\x1b")}));
}

TEST_F(AvahiNetworkBrowserTest, NoBus_FailsWithAReason) {
    browser = std::make_unique<AvahiNetworkBrowser>(
        [] { return QDBusConnection(QStringLiteral("no such bus")); });
    search();
    EXPECT_TRUE(statesBecome({QStringLiteral("failed: there is no system bus")}));
}

TEST_F(AvahiNetworkBrowserTest, Destroyed_TellsNothingMore) {
    ASSERT_TRUE(service.appear());
    search();
    browser.reset();
    waitInLoop([&] { return !service.asked.isEmpty(); }, 1);
    EXPECT_TRUE(states.isEmpty());
    EXPECT_TRUE(results.isEmpty());
}

} // namespace
} // namespace kelvo
