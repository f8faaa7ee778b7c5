// The contract of DnssdBrowser's searches for endpoints, on the fake and on Avahi's client with a
// discovery service of the test's own; then what only Avahi's has.
#include "adapters/network/avahi_browser.h"
#include "adapters/process/qt_main_queue.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "support/discovery_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"
#include "support/wait_until.h"

#include <QDBusConnectionInterface>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const EndpointRequest cRequest{.type = QStringLiteral("_smb._tcp"),
                               .domain = QStringLiteral("local."),
                               .includePeerToPeer = true};

/// Has heard of one search.
struct Heard {
    EndpointListener listener() {
        return {.stateChanged = [this](const EndpointSearchState& state) { add(state); },
                .endpointsChanged =
                    [this](const QStringList& endpoints) {
                        results.append(endpoints.join(QStringLiteral(" | ")));
                    }};
    }
    void add(const EndpointSearchState& state) {
        using Kind = EndpointSearchState::Kind;
        if (state.kind == Kind::Failed)
            states.append(u"failed: " + state.errorText);
        else
            states.append(state.kind == Kind::Ready     ? QStringLiteral("ready")
                          : state.kind == Kind::Waiting ? QStringLiteral("waiting")
                                                        : QStringLiteral("other"));
    }

    QStringList states;
    QStringList results;
};

class ScriptedNetwork {
public:
    QString prepare() { return {}; }
    DnssdBrowser& browser() { return *fBrowser; }
    bool wasAsked() const { return !fBrowser->searches.empty(); }
    void destroyBrowser() { fBrowser.reset(); }
    void setRunning(bool running) { fBrowser->setRunning(running); }
    bool becomes(const std::function<bool()>& condition, int = 0) {
        if (fBrowser)
            fBrowser->tellListeners();
        return condition();
    }
    void announce(const QString& name) {
        DNSSD_Service service;
        service.name = name;
        service.type = QStringLiteral("_smb._tcp");
        service.domain = QStringLiteral("local");
        fBrowser->announce(service);
    }
    void withdraw(const QString& name) { fBrowser->withdraw(name); }

private:
    std::unique_ptr<ScriptedBrowser> fBrowser = std::make_unique<ScriptedBrowser>();
};

class BusNetwork {
public:
    QString prepare() {
        return theirs.get().isConnected() ? QString() : QStringLiteral("no message bus");
    }
    DnssdBrowser& browser() { return *fBrowser; }
    /// Nothing is told before the event loop runs.
    bool wasAsked() const {
        return waitUntil([this] { return !service.asked().isEmpty(); });
    }
    void destroyBrowser() { fBrowser.reset(); }
    void setRunning(bool running) { EXPECT_TRUE(running ? service.appear() : service.disappear()); }
    bool becomes(const std::function<bool()>& condition, int seconds = 20) {
        return waitInLoop(condition, seconds);
    }
    void announce(const QString& name) { tellAll(QStringLiteral("ItemNew"), name); }
    void withdraw(const QString& name) { tellAll(QStringLiteral("ItemRemove"), name); }

    /// Of something on the loopback device, to the last search that was asked for.
    void tell(const QString& signal, int interface, int protocol, const QString& name) const {
        tellSearch(static_cast<int>(service.asked().size()), signal, interface, protocol, name);
    }
    void tellSearch(int search, const QString& signal, int interface, int protocol,
                    const QString& name) const {
        service.tell(search, signal,
                     {interface, protocol, name, QStringLiteral("_smb._tcp"),
                      QStringLiteral("local"), QVariant::fromValue(0U)});
    }

    PrivateBus daemon{qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS")};
    BusConnection theirs{daemon.address(), QStringLiteral("discovery service")};
    DiscoveryService service{theirs.get()};
    RecordingConsole console;

private:
    void tellAll(const QString& signal, const QString& name) const {
        for (int search = 1; search <= service.asked().size(); ++search)
            tellSearch(search, signal, 1, 0, name);
    }

    QtMainQueue fMainQueue;
    std::unique_ptr<AvahiBrowser> fBrowser = std::make_unique<AvahiBrowser>(console, fMainQueue);
};

/// The names in "A._smb._tcp.local.@lo | B._smb._tcp.local.@lo".
QStringList namesIn(const QString& result) {
    QStringList names;
    for (const QString& endpoint : result.split(QStringLiteral(" | "), Qt::SkipEmptyParts))
        names.append(endpoint.section(u'.', 0, 0));
    return names;
}

template <typename Network>
class EndpointSearchContractTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(network.prepare(), QString()); }

    void search(Heard& heard) { network.browser().searchEndpoints(cRequest, heard.listener()); }
    bool statesBecome(const QStringList& expected) {
        return network.becomes([&] { return heard.states == expected; });
    }
    bool lastResultBecomes(const QStringList& names) {
        return network.becomes(
            [&] { return !heard.results.isEmpty() && namesIn(heard.results.last()) == names; });
    }

    Heard heard;
    Network network;
};

using Networks = ::testing::Types<ScriptedNetwork, BusNetwork>;
TYPED_TEST_SUITE(EndpointSearchContractTest, Networks);

TYPED_TEST(EndpointSearchContractTest, Search_IsReadyLater) {
    this->network.setRunning(true);
    this->search(this->heard);
    EXPECT_TRUE(this->heard.states.isEmpty()) << "never before the call has returned";
    EXPECT_TRUE(this->statesBecome({QStringLiteral("ready")}));
    EXPECT_TRUE(this->network.browser().services().isEmpty()) << "a search of its own";
}

TYPED_TEST(EndpointSearchContractTest, EachChange_IsToldWithAllThereIs) {
    this->network.setRunning(true);
    this->search(this->heard);
    ASSERT_TRUE(this->statesBecome({QStringLiteral("ready")}));
    const QString first = QStringLiteral("First");
    const QString second = QStringLiteral("Second");
    this->network.announce(first);
    ASSERT_TRUE(this->lastResultBecomes({first}));
    this->network.announce(second);
    ASSERT_TRUE(this->lastResultBecomes({first, second}));
    this->network.withdraw(first);
    ASSERT_TRUE(this->lastResultBecomes({second}));
    EXPECT_EQ(this->heard.results.size(), 3);
}

TYPED_TEST(EndpointSearchContractTest, EverySearch_IsToldOnItsOwn) {
    this->network.setRunning(true);
    Heard other;
    this->search(this->heard);
    this->search(other);
    ASSERT_TRUE(this->network.becomes(
        [&] { return this->heard.states.size() == 1 && other.states.size() == 1; }));
    this->network.announce(QStringLiteral("Both"));
    ASSERT_TRUE(this->lastResultBecomes({QStringLiteral("Both")}));
    EXPECT_TRUE(this->network.becomes([&] { return other.results.size() == 1; }));
    EXPECT_EQ(other.results, this->heard.results);
}

TYPED_TEST(EndpointSearchContractTest, NoService_FailsAndIsReadyOnceThereIsOne) {
    if constexpr (std::is_same_v<TypeParam, ScriptedNetwork>)
        this->network.setRunning(false);
    this->search(this->heard);
    ASSERT_TRUE(this->network.becomes([&] { return this->heard.states.size() == 1; }));
    EXPECT_TRUE(this->heard.states.first().startsWith(u"failed: "))
        << this->heard.states.first().toStdString();
    EXPECT_GT(this->heard.states.first().size(), 10);
    this->heard.states.clear();
    this->network.setRunning(true);
    EXPECT_TRUE(this->statesBecome({QStringLiteral("ready")}));
}

TYPED_TEST(EndpointSearchContractTest, ServiceRestarted_IsSearchedAfresh) {
    this->network.setRunning(true);
    this->search(this->heard);
    ASSERT_TRUE(this->statesBecome({QStringLiteral("ready")}));
    this->network.announce(QStringLiteral("A"));
    ASSERT_TRUE(this->lastResultBecomes({QStringLiteral("A")}));
    this->network.setRunning(false);
    ASSERT_TRUE(this->statesBecome({QStringLiteral("ready"), QStringLiteral("waiting")}));
    EXPECT_EQ(this->heard.results.last(), QString());
    this->network.setRunning(true);
    EXPECT_TRUE(this->statesBecome(
        {QStringLiteral("ready"), QStringLiteral("waiting"), QStringLiteral("ready")}));
}

TYPED_TEST(EndpointSearchContractTest, Destroyed_TellsNothingMore) {
    this->network.setRunning(true);
    this->search(this->heard);
    ASSERT_TRUE(this->network.wasAsked());
    this->network.destroyBrowser();
    (void)this->network.becomes([&] { return !this->heard.states.isEmpty(); }, 1);
    EXPECT_TRUE(this->heard.states.isEmpty());
    EXPECT_TRUE(this->heard.results.isEmpty());
}

// -- Avahi's own

class AvahiEndpointSearchTest : public EndpointSearchContractTest<BusNetwork> {
protected:
    bool lastResultIs(const QString& expected) {
        return network.becomes(
            [&] { return !heard.results.isEmpty() && heard.results.last() == expected; });
    }
    void searchUntilReady() {
        ASSERT_TRUE(network.service.appear());
        search(heard);
        ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    }
};

TEST_F(AvahiEndpointSearchTest, BeforeTheFirstSearch_NoBusIsJoined) {
    const auto guests = [this] {
        return network.theirs.get().interface()->registeredServiceNames().value().size();
    };
    ASSERT_TRUE(network.service.appear());
    const auto before = guests();
    search(heard);
    EXPECT_TRUE(statesBecome({QStringLiteral("ready")}));
    EXPECT_EQ(guests(), before + 1);
    EXPECT_EQ(network.service.asked(), QStringList{QStringLiteral("_smb._tcp local")});
    EXPECT_TRUE(network.console.logged().isEmpty());
}

TEST_F(AvahiEndpointSearchTest, OtherSearchOfTheBrowser_GoesOverTheSameConversation) {
    searchUntilReady();
    const auto guests = [this] {
        return network.theirs.get().interface()->registeredServiceNames().value().size();
    };
    const auto before = guests();
    network.browser().browseForType(QStringLiteral("_smb"));
    ASSERT_TRUE(network.becomes([&] { return network.service.asked().size() == 2; }));
    network.tellSearch(2, QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Listed"));
    EXPECT_TRUE(network.becomes([&] { return network.browser().services().size() == 1; }));
    EXPECT_EQ(guests(), before);
    EXPECT_TRUE(heard.results.isEmpty());
    EXPECT_EQ(heard.states, QStringList{QStringLiteral("ready")});
}

TEST_F(AvahiEndpointSearchTest, OtherSearchUnderWay_IsNotDisturbed) {
    ASSERT_TRUE(network.service.appear());
    network.browser().browseForType(QStringLiteral("_smb"));
    ASSERT_TRUE(network.becomes([&] { return network.service.asked().size() == 1; }));
    search(heard);
    ASSERT_TRUE(statesBecome({QStringLiteral("ready")}));
    EXPECT_EQ(network.service.asked().size(), 2) << "the list's own is not begun again";
}

TEST_F(AvahiEndpointSearchTest, SearchThatCannotBeBegun_SaysWhy) {
    network.service.refusals = 1;
    ASSERT_TRUE(network.service.appear());
    search(heard);
    EXPECT_TRUE(statesBecome({QStringLiteral("failed: Too many objects")}));
}

TEST_F(AvahiEndpointSearchTest, Changes_AreToldOnceEachInOrder) {
    searchUntilReady();
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Remote Mac"));
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Other"));
    network.tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("Remote Mac"));
    network.tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("Never seen"));
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Last"));
    const QString other = QStringLiteral("Other._smb._tcp.local.@lo");
    const QString remote = QStringLiteral("Remote Mac._smb._tcp.local.@lo");
    ASSERT_TRUE(lastResultIs(QString(other + u" | Last._smb._tcp.local.@lo")));
    EXPECT_EQ(heard.results.first(3),
              (QStringList{remote, QString(remote + u" | " + other), other}));
    EXPECT_EQ(heard.results.size(), 4);
}

TEST_F(AvahiEndpointSearchTest, BothProtocolsOfAnInterface_AreOneEndpoint) {
    searchUntilReady();
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("A"));
    network.tell(QStringLiteral("ItemNew"), 1, 1, QStringLiteral("A"));
    network.tell(QStringLiteral("ItemRemove"), 1, 0, QStringLiteral("A"));
    network.tell(QStringLiteral("ItemNew"), 999'999, 0, QStringLiteral("B\n\x1b"));
    EXPECT_TRUE(
        lastResultIs(QStringLiteral("A._smb._tcp.local.@lo | B\\x0a\\x1b._smb._tcp.local.")));
    EXPECT_EQ(heard.results.at(1), u"A._smb._tcp.local.@lo") << "heard over both";
}

TEST_F(AvahiEndpointSearchTest, FoundBeforeTheAnswer_IsNotLost) {
    network.service.tellsAtOnce = QStringLiteral("Quick");
    ASSERT_TRUE(network.service.appear());
    search(heard);
    EXPECT_TRUE(lastResultIs(QStringLiteral("Quick._smb._tcp.local.@lo")));
    EXPECT_EQ(heard.states, QStringList{QStringLiteral("ready")});
}

TEST_F(AvahiEndpointSearchTest, SearchesOfOthers_AreNotOurs) {
    searchUntilReady();
    network.tellSearch(7, QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Theirs"));
    network.service.tell(1, QStringLiteral("ItemNew"), {QStringLiteral("too short")});
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("Ours"));
    ASSERT_TRUE(lastResultIs(QStringLiteral("Ours._smb._tcp.local.@lo")));
    EXPECT_EQ(heard.results.size(), 1);
}

TEST_F(AvahiEndpointSearchTest, ServiceRestarted_FindsWhatIsThereNow) {
    searchUntilReady();
    network.tell(QStringLiteral("ItemNew"), 1, 0, QStringLiteral("A"));
    ASSERT_TRUE(lastResultIs(QStringLiteral("A._smb._tcp.local.@lo")));
    ASSERT_TRUE(network.service.disappear());
    ASSERT_TRUE(statesBecome({QStringLiteral("ready"), QStringLiteral("waiting")}));
    network.service.tellsAtOnce = QStringLiteral("B");
    ASSERT_TRUE(network.service.appear());
    EXPECT_TRUE(lastResultIs(QStringLiteral("B._smb._tcp.local.@lo")));
    EXPECT_EQ(heard.states.last(), u"ready");
}

TEST_F(AvahiEndpointSearchTest, ServiceGoneBeforeAnythingWasFound_IsNoResult) {
    searchUntilReady();
    ASSERT_TRUE(network.service.disappear());
    ASSERT_TRUE(network.service.appear());
    EXPECT_TRUE(statesBecome(
        {QStringLiteral("ready"), QStringLiteral("waiting"), QStringLiteral("ready")}));
    EXPECT_TRUE(heard.results.isEmpty());
}

TEST_F(AvahiEndpointSearchTest, FailureLater_IsToldInWords) {
    searchUntilReady();
    network.service.tell(1, QStringLiteral("Failure"),
                         {QStringLiteral("org.freedesktop.Avahi.TimeoutError")});
    EXPECT_TRUE(statesBecome({QStringLiteral("ready"), QStringLiteral("failed: Timeout reached")}));
}

TEST(AvahiBrowserWithoutABusTest, EndpointSearch_FailsWithAReason) {
    RecordingConsole console;
    QtMainQueue mainQueue;
    AvahiBrowser browser(console, mainQueue);
    Heard heard;
    browser.searchEndpoints(cRequest, heard.listener());
    EXPECT_TRUE(waitInLoop([&] { return !heard.states.isEmpty(); }));
    EXPECT_EQ(heard.states, QStringList{QStringLiteral("failed: there is no system bus")});
    EXPECT_TRUE(console.logged().isEmpty()) << "said to the listener, not in the log";
}

} // namespace
} // namespace kelvo
