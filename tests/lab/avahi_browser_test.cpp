// The browser on two hosts with real daemons.
#include "contract/dnssd_browser_contract.h"
#include "lab/lab_network.h"

#include <QElapsedTimer>
#include <QSet>

namespace kelvo {

INSTANTIATE_TYPED_TEST_SUITE_P(Avahi, DnssdBrowserContractTest, LabNetwork);

namespace {

class AvahiBrowserTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (const QString reason = network.prepare(); !reason.isEmpty())
            GTEST_SKIP() << reason.toStdString();
    }

    void browse() { network.browser().browseForType(QStringLiteral("_smb")); }

    /// The records of this name.
    DNSSD_Services named(const QString& name) {
        DNSSD_Services found = network.browser().services();
        found.removeIf([&](const DNSSD_Service& record) { return record.name != name; });
        return found;
    }

    LabNetwork network;
};

TEST_F(AvahiBrowserTest, SecondCable_GivesARecordForEachInterface) {
    const QString name = QStringLiteral("Remote Mac");
    network.setSpareCable(true);
    browse();
    const auto addresses = [&] {
        QSet<QString> found;
        for (const DNSSD_Service& record : named(name)) {
            if (record.available)
                found.insert(record.ip4Address);
        }
        return found;
    };
    EXPECT_TRUE(network.becomes([&] {
        return addresses() ==
               QSet<QString>{QStringLiteral("10.77.0.2"), QStringLiteral("10.78.0.2")};
    }));
    const DNSSD_Services both = named(name);
    ASSERT_EQ(both.size(), 2);
    EXPECT_NE(both[0].interface, both[1].interface);
    network.setSpareCable(false);
    EXPECT_TRUE(network.becomes([&] { return addresses() == QSet<QString>{cRemoteAddress}; }));
}

TEST_F(AvahiBrowserTest, KnownNeighbour_HasItsHardwareAddress) {
    const QString name = QStringLiteral("Remote Mac");
    ASSERT_EQ(LabNetwork::near(QStringLiteral("getent ahostsv4 Remote-Mac.local && "
                                              "ssh-keyscan -T 10 10.77.0.2"))
                  .exitCode,
              0);
    const QString linkText =
        QString::fromLatin1(LabNetwork::remote(QStringLiteral("ip -o link show cable")).output);
    ASSERT_FALSE(linkText.isEmpty());
    EXPECT_TRUE(network.becomes([&] {
        browse();
        return network.becomes(
            [&] { return named(name).size() == 1 && !named(name)[0].macAddress.isEmpty(); }, 3);
    }));
    EXPECT_TRUE(linkText.contains(named(name)[0].macAddress)) << linkText.toStdString();
}

TEST_F(AvahiBrowserTest, FiveHundredServices_AreAllResolved) {
    QList<QByteArray> names;
    for (int number = 0; number < 500; ++number)
        names.append("Crowd " + QByteArray::number(number));
    browse();
    network.announceBytes(names);
    const auto resolved = [&] {
        QSet<QString> found;
        for (const DNSSD_Service& record : network.browser().services()) {
            if (record.name.startsWith(u"Crowd ") && record.available &&
                record.ip4Address == cRemoteAddress)
                found.insert(record.name);
        }
        return found.size();
    };
    EXPECT_TRUE(network.becomes([&] { return resolved() == 500; })) << resolved();
    browse();
    EXPECT_TRUE(network.becomes([&] { return resolved() == 500; })) << resolved();
}

TEST_F(AvahiBrowserTest, DaemonThatHangs_HoldsNobodyUp) {
    browse();
    ASSERT_TRUE(network.becomes([&] { return named(QStringLiteral("Remote Mac")).size() == 1; }));
    const auto signal = [](const char* name) {
        return LabNetwork::near(
                   QStringLiteral("kill -%1 $(cat /run/avahi-daemon/pid)").arg(QLatin1String(name)))
            .exitCode;
    };
    ASSERT_EQ(signal("STOP"), 0);
    QElapsedTimer clock;
    clock.start();
    for (int time = 0; time < 100; ++time) {
        browse();
        EXPECT_FALSE(network.browser().services().isEmpty());
    }
    EXPECT_LT(clock.elapsed(), 1000);
    ASSERT_EQ(signal("CONT"), 0);
}

struct Name {
    const char* bytes;
    bool listed;
};

// What a name may do to a shell, a terminal, a log, a window or a parser.
const Name cNames[] = {
    {"$(touch /tmp/kelvo-was-here)", false},
    {"`touch /tmp/kelvo-was-here`", false},
    {"$HOME", false},
    {"a; touch /tmp/kelvo-was-here", false},
    {"a & touch /tmp/kelvo-was-here", false},
    {"a | touch /tmp/kelvo-was-here", false},
    {"a > /tmp/kelvo-was-here", false},
    {"a < /etc/passwd", false},
    {"\" ; touch /tmp/kelvo-was-here ; \"", false},
    {"back\\slash", false},
    {"line\nend", false},
    {"carriage\rreturn", false},
    {"tab\tstop", false},
    {"\x1b[31mred", false},
    {"bell\x07", false},
    {"delete\x7f", false},
    {"c1 \xc2\x9b"
     "31m",
     false},
    {"line separator \xe2\x80\xa8", false},
    {"paragraph separator \xe2\x80\xa9", false},
    {"<b>bold</b>", false},
    {"<img src=x onerror=alert(1)>", false},
    {"a\" b", false},
    {"63 bytes with an end of $$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$$", false},
    {"Ann's Mac", true},
    {"Mac (2) [old] {x}", true},
    {"  blanks  inside  ", true},
    {"dots.in.the.name", true},
    {"-rf", true},
    {"--help", true},
    {"../../etc", true},
    {"%s%s%n %@1 %@98", true},
    {"*?~!#^=+,:/@", true},
    {"\xc3\x9cml\xc3\xa4ut", true},
    {"\xe6\x98\xa0\xe7\x94\xbb\xe9\xa4\xa8", true},
    {"\xf0\x9f\x8e\xac movies", true},
    {"\xe2\x80\xaeturned round\xe2\x80\xac", true},
    {"\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d", true},
    {"zero\xe2\x80\x8bwidth", true},
    {"&amp;", false},
    {"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", true},
};
static_assert(std::size(cNames) == 40);

TEST_F(AvahiBrowserTest, FortyHostileNames_OnlyTheHarmlessAreListed) {
    QList<QByteArray> announced;
    QSet<QString> harmless;
    QStringList hostile;
    for (const Name& name : cNames) {
        announced.append(name.bytes);
        if (name.listed)
            harmless.insert(QString::fromUtf8(name.bytes));
        else
            hostile.append(QString::fromUtf8(name.bytes));
    }
    browse();
    network.announceBytes(announced);
    const auto listed = [&] {
        QSet<QString> found;
        for (const DNSSD_Service& record : network.browser().services()) {
            if (record.hostTarget == u"Loud-Host.local" && record.ip4Address == cRemoteAddress)
                found.insert(record.name);
        }
        return found;
    };
    EXPECT_TRUE(network.becomes([&] { return listed() == harmless; }))
        << QStringList((harmless - listed()).values()).join(u'|').toStdString();
    for (const QString& name : hostile) {
        EXPECT_TRUE(network.becomes([&] { return network.wasRefused(name); }))
            << escapedForLog(name).toStdString();
    }
    // Nor is one of them listed under another host, or while its address is still looked for.
    for (const DNSSD_Service& record : network.browser().services())
        EXPECT_FALSE(hostile.contains(record.name)) << escapedForLog(record.name).toStdString();
}

TEST_F(AvahiBrowserTest, BrokenBytes_LeaveTheOthersToBeFound) {
    browse();
    network.announceBytes({"broken \xff\xfe", "\xc3", QByteArray("nul\0byte", 8), "Good One"});
    ASSERT_TRUE(network.becomes([&] {
        browse();
        return network.becomes(
            [&] {
                const auto good = named(QStringLiteral("Good One"));
                return good.size() == 1 && good[0].ip4Address == cRemoteAddress;
            },
            5);
    }));
    for (const DNSSD_Service& record : network.browser().services())
        EXPECT_TRUE(isAcceptableServiceName(record.name)) << record.name.toStdString();
}

} // namespace
} // namespace kelvo
