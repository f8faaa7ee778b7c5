// The contract of DnssdBrowser on the fake and on Avahi's client with a discovery service of the
// test's own; then what only Avahi's has.
#include "adapters/network/avahi_browser.h"
#include "adapters/process/qt_main_queue.h"
#include "contract/dnssd_browser_contract.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "support/discovery_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QDir>

#include <ctime>

namespace kelvo {
namespace {

class ScriptedNetwork {
public:
    QString prepare() { return {}; }
    DnssdBrowser& browser() { return fBrowser; }
    bool becomes(const std::function<bool()>& condition, int = 0) { return condition(); }
    void announce(const QString& name, quint32 port) {
        DNSSD_Service service;
        service.name = name;
        service.type = QStringLiteral("_smb._tcp");
        service.scheme = QStringLiteral("smb");
        service.domain = QStringLiteral("local");
        service.hostTarget = QStringLiteral("Remote-Mac.local");
        service.ip4Address = QStringLiteral("10.77.0.2");
        service.fullName = fullServiceName(name, service.type, service.domain);
        service.dateAdded =
            QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
        service.interface = 2;
        service.hostPort = port;
        fBrowser.announce(service);
    }
    void withdraw(const QString& name) { fBrowser.withdraw(name); }
    void setRunning(bool running) { fBrowser.setRunning(running); }
    bool wasRefused(const QString& name) const { return fBrowser.refused.contains(name); }

private:
    ScriptedBrowser fBrowser;
};

class BusNetwork {
public:
    BusNetwork() { service.appear(); }
    QString prepare() {
        return theirs.get().isConnected() ? QString() : QStringLiteral("no message bus");
    }
    DnssdBrowser& browser() { return fBrowser; }
    bool becomes(const std::function<bool()>& condition, int seconds = 20) {
        return waitInLoop(condition, seconds);
    }
    void announce(const QString& name, quint32 port) {
        service.announce(name, static_cast<quint16>(port));
    }
    void withdraw(const QString& name) { service.withdraw(name); }
    void setRunning(bool running) { EXPECT_TRUE(running ? service.appear() : service.disappear()); }
    bool wasRefused(const QString& name) const {
        return !console.logged().filter(QString(u"refused the service name [" + name)).isEmpty();
    }

    PrivateBus daemon{qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS")};
    BusConnection theirs{daemon.address(), QStringLiteral("discovery service")};
    DiscoveryService service{theirs.get()};
    RecordingConsole console;

private:
    QtMainQueue fMainQueue;
    AvahiBrowser fBrowser{console, fMainQueue};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, DnssdBrowserContractTest, ScriptedNetwork);
INSTANTIATE_TYPED_TEST_SUITE_P(AvahiOnABus, DnssdBrowserContractTest, BusNetwork);

namespace {

class AvahiBrowserTest : public DnssdBrowserContractTest<BusNetwork> {
protected:
    QStringList logged() const { return network.console.logged(); }

    const QString fPrefix = QStringLiteral("Inside AvahiBrowser->browseForType:.......");
    const QString fName = QStringLiteral("Remote Mac");
};

TEST_F(AvahiBrowserTest, QuestionThatFails_IsAskedThreeTimesInTwoWays) {
    network.service.failures = 2;
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return isResolved(fName); }));
    EXPECT_EQ(
        network.service.resolved(),
        (QStringList{QString(fName + u" 0"), QString(fName + u" -1"), QString(fName + u" 0")}));
}

TEST_F(AvahiBrowserTest, QuestionThatAlwaysFails_IsGivenUpAndTheServiceListed) {
    network.service.failures = 1000;
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return network.service.resolved().size() == 3; }));
    EXPECT_FALSE(network.becomes([&] { return network.service.resolved().size() > 3; }, 1));
    EXPECT_TRUE(isAvailable(fName));
    EXPECT_FALSE(isResolved(fName));
}

TEST_F(AvahiBrowserTest, ManyServices_AreAskedAboutTwoHundredAtATime) {
    network.service.keepsSilent = true;
    for (int number = 0; number < 210; ++number)
        network.announce(QString::number(number), 445);
    browse();
    ASSERT_TRUE(becomes([&] { return network.browser().services().size() == 210; }));
    network.announce(QStringLiteral("last"), 445);
    ASSERT_TRUE(becomes([&] { return isAvailable(QStringLiteral("last")); }));
    EXPECT_EQ(network.service.resolved().size(), 200);
    // Room is made by one that goes, and used when the next one comes.
    network.withdraw(QStringLiteral("0"));
    ASSERT_TRUE(becomes([&] { return !isAvailable(QStringLiteral("0")); }));
    network.announce(QStringLiteral("more"), 445);
    EXPECT_TRUE(becomes([&] { return network.service.resolved().size() == 201; }));
    EXPECT_EQ(network.service.resolved().constLast(), u"200 0");
    // A new search asks anew: what the earlier one has asked takes up no room.
    browse();
    EXPECT_TRUE(becomes([&] { return network.service.resolved().size() == 401; }));
}

TEST_F(AvahiBrowserTest, ServiceGoneAmidAQuestion_IsAskedAnewOnceItIsBack) {
    network.service.keepsSilent = true;
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return network.service.resolved().size() == 1; }));
    network.setRunning(false);
    ASSERT_TRUE(becomes([&] { return !isAvailable(fName); }));
    network.setRunning(true);
    EXPECT_TRUE(becomes([&] { return network.service.resolved().size() == 2; }));
}

TEST_F(AvahiBrowserTest, SearchThatFails_IsSaidAndStartedAgain) {
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return isResolved(fName); }));
    network.service.tell(1, QStringLiteral("Failure"),
                         {QStringLiteral("org.freedesktop.Avahi.TimeoutError")});
    EXPECT_TRUE(becomes([&] { return network.service.asked().size() == 2; }));
    EXPECT_TRUE(becomes([&] { return isResolved(fName); }));
    const QString failed = fPrefix + u"the search failed and is started again";
    EXPECT_EQ(logged(), QStringList{failed});
    network.service.tell(2, QStringLiteral("Failure"),
                         {QStringLiteral("org.freedesktop.Avahi.TimeoutError")});
    EXPECT_TRUE(becomes([&] { return network.service.asked().size() == 3; }));
    EXPECT_EQ(logged(), (QStringList{failed, failed})) << "it worked in between";
}

TEST_F(AvahiBrowserTest, SearchThatCannotBeBegun_IsBegunAgain) {
    network.service.refusals = 2;
    network.announce(fName, 445);
    browse();
    EXPECT_TRUE(becomes([&] { return isResolved(fName); }));
    EXPECT_EQ(network.service.asked().size(), 1);
}

TEST_F(AvahiBrowserTest, ServiceThatVanishedUnseen_IsDroppedByTheNextSearch) {
    browse();
    ASSERT_TRUE(becomes([&] { return network.service.asked().size() == 1; }));
    // Only this search ever hears of it.
    network.service.tell(1, QStringLiteral("ItemNew"),
                         {1, 0, fName, QStringLiteral("_smb._tcp"), QStringLiteral("local"),
                          QVariant::fromValue(0U)});
    ASSERT_TRUE(becomes([&] { return isAvailable(fName); }));
    browse();
    EXPECT_TRUE(becomes([&] { return !isAvailable(fName); }));
    EXPECT_TRUE(find(fName)) << "it goes with the search after that";
}

TEST_F(AvahiBrowserTest, RefusedHost_LeavesTheServiceUnresolvedAndIsSaid) {
    network.service.host = QStringLiteral("$(id)");
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return !logged().isEmpty(); }));
    EXPECT_EQ(logged(), QStringList{QStringLiteral("Inside AvahiBrowser->services.......refused "
                                                   "the service name [Remote Mac at $(id)]")});
    EXPECT_TRUE(isAvailable(fName));
    EXPECT_FALSE(isResolved(fName));
}

TEST_F(AvahiBrowserTest, BrowserThatIsGone_LeavesNoDescriptorBehind) {
    const auto open = [] { return QDir(QStringLiteral("/proc/self/fd")).entryList().size(); };
    browse();
    ASSERT_TRUE(becomes([&] { return network.service.asked().size() == 1; }));
    const auto before = open();
    for (qsizetype turn = 2; turn < 5; ++turn) {
        QtMainQueue mainQueue;
        AvahiBrowser browser(network.console, mainQueue);
        browser.browseForType(QStringLiteral("_smb"));
        EXPECT_TRUE(becomes([&] { return network.service.asked().size() == turn; }));
    }
    EXPECT_EQ(open(), before);
}

TEST_F(AvahiBrowserTest, NoDiscoveryService_IsSaidOnceEachTime) {
    const QString waiting = fPrefix + u"waiting for the discovery service (avahi-daemon)";
    network.setRunning(false);
    browse();
    ASSERT_TRUE(becomes([&] { return logged() == QStringList{waiting}; }));
    network.setRunning(true);
    ASSERT_TRUE(becomes([&] { return network.service.asked().size() == 1; }));
    network.setRunning(false);
    const QString lost = fPrefix + u"lost the discovery service: Daemon connection failed";
    EXPECT_TRUE(becomes([&] {
        return logged() == QStringList{waiting, lost, waiting};
    })) << logged().join(u'|').toStdString();
}

TEST_F(AvahiBrowserTest, AfterASearch_NothingTurnsInACircle) {
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return isResolved(fName); }));
    const std::clock_t before = std::clock();
    EXPECT_FALSE(network.becomes([] { return false; }, 1));
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 2) << "of all threads";
}

TEST_F(AvahiBrowserTest, RefusedName_IsNotAskedAbout) {
    network.announce(QStringLiteral("$(id)"), 445);
    network.announce(fName, 445);
    browse();
    ASSERT_TRUE(becomes([&] { return isResolved(fName); }));
    EXPECT_EQ(network.service.resolved(), QStringList{QString(fName + u" 0")});
}

TEST_F(AvahiBrowserTest, ServiceOfBothProtocols_IsAskedAboutOnce) {
    browse();
    ASSERT_TRUE(becomes([&] { return network.service.asked().size() == 1; }));
    network.announce(fName, 445);
    const auto tell = [this](const char* signal, int protocol) {
        network.service.tell(1, QString::fromLatin1(signal),
                             {1, protocol, fName, QStringLiteral("_smb._tcp"),
                              QStringLiteral("local"), QVariant::fromValue(0U)});
    };
    tell("ItemNew", 1);
    ASSERT_TRUE(becomes([&] { return isResolved(fName); }));
    tell("ItemRemove", 0);
    network.announce(QStringLiteral("Later"), 445);
    ASSERT_TRUE(becomes([&] { return isResolved(QStringLiteral("Later")); }));
    EXPECT_TRUE(isAvailable(fName)) << "heard over the other protocol";
    EXPECT_EQ(network.service.resolved().size(), 2);
    tell("ItemRemove", 1);
    EXPECT_TRUE(becomes([&] { return !isAvailable(fName); }));
}

TEST(AvahiBrowserWithoutABusTest, Search_SaysSoOnce) {
    RecordingConsole console;
    QtMainQueue mainQueue;
    AvahiBrowser browser(console, mainQueue);
    browser.browseForType(QStringLiteral("_smb"));
    ASSERT_TRUE(waitInLoop([&] { return !console.logged().isEmpty(); }));
    EXPECT_FALSE(waitInLoop([&] { return console.logged().size() > 1; }, 1));
    EXPECT_EQ(console.logged().constFirst(),
              u"Inside AvahiBrowser->browseForType:.......no message bus to reach the discovery "
              u"service by");
}

} // namespace
} // namespace kelvo
