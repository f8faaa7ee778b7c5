#include "adapters/network/neighbour_table.h"
#include "adapters/network/service_answer.h"
#include "adapters/network/service_table.h"
#include "fakes/recording_console.h"
#include "support/stored_value.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <net/if.h>
#include <random>

namespace kelvo {
namespace {

const QDateTime cNow(QDate(2026, 11, 21), QTime(10, 30, 15, 999), Qt::UTC);

ServiceAnswer answer(std::string_view name) {
    return {.name = name,
            .type = "_smb._tcp",
            .domain = "local",
            .host = "Remote-Mac.local",
            .address = "10.0.0.2",
            .interface = 7,
            .port = 445};
}

TEST(ServiceAnswerTest, Answer_FillsTheRecord) {
    const auto record = recordFromAnswer(answer("Remote Mac"), cNow);
    ASSERT_TRUE(record);
    EXPECT_EQ(*record, (DNSSD_Service{"Remote Mac", "_smb._tcp", "smb", "local", "Remote-Mac.local",
                                      "10.0.0.2", "", "Remote\\032Mac._smb._tcp.local",
                                      QDateTime(QDate(2026, 11, 21), QTime(10, 30, 15), Qt::UTC), 7,
                                      445, true}));
}

TEST(ServiceAnswerTest, Unresolved_HasNeitherHostNorAddress) {
    const auto record = recordFromAnswer(
        {.name = "a", .type = "_smb._tcp", .domain = "local", .interface = 7}, cNow);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->hostTarget, u"");
    EXPECT_EQ(record->ip4Address, u"");
    EXPECT_EQ(record->hostPort, 0U);
}

TEST(ServiceAnswerTest, OtherAddresses_AreLeftEmpty) {
    for (const char* other : {"fe80::1", "::ffff:10.0.0.2", "10.0.0", "10.0.0.256", "localhost"}) {
        ServiceAnswer raw = answer("a");
        raw.address = other;
        EXPECT_EQ(recordFromAnswer(raw, cNow)->ip4Address, u"") << other;
    }
}

TEST(ServiceAnswerTest, HostileText_InAnyPlaceIsRefused) {
    using namespace std::string_view_literals;
    EXPECT_FALSE(recordFromAnswer(answer("$(id)"), cNow));
    EXPECT_FALSE(recordFromAnswer(answer("a\0b"sv), cNow));
    EXPECT_FALSE(recordFromAnswer(answer("a\xff"), cNow));
    for (std::string_view ServiceAnswer::*place :
         {&ServiceAnswer::type, &ServiceAnswer::domain, &ServiceAnswer::host}) {
        ServiceAnswer raw = answer("a");
        raw.*place = "x`id`";
        EXPECT_FALSE(recordFromAnswer(raw, cNow));
    }
}

TEST(ServiceAnswerTest, AnyBytes_GiveARecordThatHoldsItsPromisesOrNone) {
    std::mt19937 random(20261121);
    const std::string_view likely =
        "aZ09 .-_'()[]$`\"\\;&|<>\n\r\t\x1b\x7f\xc3\xa9\xe2\x80\xae\xff";
    const auto bytes = [&] {
        std::string made(random() % 80, ' ');
        const bool mostlyLikely = random() % 4 != 0;
        for (char& byte : made)
            byte = mostlyLikely ? likely[random() % likely.size()] : static_cast<char>(random());
        return made;
    };
    int listed = 0;
    for (int round = 0; round < 50000; ++round) {
        const std::string name = bytes(), host = bytes(), address = bytes();
        const bool mixed = random() % 2 == 0;
        const auto record = recordFromAnswer({.name = name,
                                              .type = "_smb._tcp",
                                              .domain = "local",
                                              .host = mixed ? std::string_view(host) : "h.local",
                                              .address = address,
                                              .interface = static_cast<quint32>(random()),
                                              .port = static_cast<quint32>(random())},
                                             cNow);
        if (!record)
            continue;
        ++listed;
        ASSERT_EQ(record->name.toUtf8().toStdString(), name);
        for (const QString& text : {record->name, record->hostTarget}) {
            for (const QChar character : text)
                ASSERT_FALSE(QStringLiteral("$`\"\\;&|<>\n\r").contains(character) ||
                             character.category() == QChar::Other_Control)
                    << name;
        }
        ASSERT_LE(name.size(), 63U);
        const QVariantMap dictionary = record->asDictionary().value();
        ASSERT_TRUE(sameStoredValue(storedValue(dictionary), QVariant(dictionary)));
    }
    EXPECT_GT(listed, 100);
}

TEST(ServiceAnswerTest, Type_NamesItsTransport) {
    EXPECT_EQ(fullServiceType(QStringLiteral("_smb")), u"_smb._tcp");
    EXPECT_EQ(fullServiceType(QStringLiteral("_sip._udp")), u"_sip._udp");
}

// -- the neighbours

constexpr char cNeighbours[] =
    "IP address       HW type     Flags       HW address            Mask     Device\n"
    "10.0.0.2         0x1         0x2         AA:bb:cc:00:11:22     *        eth0\n"
    "10.0.0.2         0x1         0x2         aa:bb:cc:00:11:33     *        wlan0\n"
    "10.0.0.3         0x1         0x0         00:00:00:00:00:00     *        eth0\n"
    "10.0.0.4         0x1         0x1         aa:bb:cc:00:11:44     *        eth0\n"
    "10.0.0.5         0x1         0x6         aa:bb:cc:00:11:55     *        eth0\n"
    "10.0.0.6 0x1 0x2 aa:bb:cc:00:11:66 *\n"
    "broken line\n";

TEST(NeighbourTableTest, CompleteEntryOfTheDevice_IsTheAddress) {
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.2"), "eth0"), u"aa:bb:cc:00:11:22");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.2"), "wlan0"), u"aa:bb:cc:00:11:33");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.5"), "eth0"), u"aa:bb:cc:00:11:55")
        << "one that was set by hand";
}

TEST(NeighbourTableTest, UnknownOrIncomplete_IsEmpty) {
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.3"), "eth0"), u"");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.4"), "eth0"), u"");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.2"), "eth1"), u"");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0"), "eth0"), u"");
    EXPECT_EQ(macAddressIn(cNeighbours, QStringLiteral("10.0.0.6"), "eth0"), u"") << "cut short";
    EXPECT_EQ(macAddressIn("", QStringLiteral("10.0.0.2"), "eth0"), u"");
    EXPECT_EQ(macAddressOf(QStringLiteral("10.0.0.2"), 0), u"");
}

TEST(NeighbourTableTest, Address_IsTheSystemsOwn) {
    // In a network of its own, so that there is a neighbour.
    const pid_t child = ::fork();
    if (child == 0) {
        if (::unshare(::geteuid() == 0 ? CLONE_NEWNET : CLONE_NEWUSER | CLONE_NEWNET) != 0 ||
            std::system("ip link add here type veth peer name there && ip link set here up && "
                        "ip neighbour add 10.9.8.7 lladdr 02:00:5e:10:00:AB dev here") != 0)
            ::_exit(2);
        const unsigned device = ::if_nametoindex("here");
        const bool found = macAddressOf(QStringLiteral("10.9.8.7"), device) == u"02:00:5e:10:00:ab";
        const bool others = !macAddressOf(QStringLiteral("10.9.8.6"), device).isEmpty() ||
                            !macAddressOf(QStringLiteral("10.9.8.7"), 1).isEmpty() ||
                            !macAddressOf(QString(), device).isEmpty();
        ::_exit(found && !others ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 2)
        GTEST_SKIP() << "this system lets us make no network of our own";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// -- the table between the threads

class ServiceTableTest : public ::testing::Test {
protected:
    ServiceTableTest() { table.startSearch(cType); }

    static DNSSD_Service record(const QString& name, quint32 interface = 2) {
        DNSSD_Service made;
        made.name = name;
        made.type = cType;
        made.interface = interface;
        return made;
    }
    QStringList available() const {
        QStringList names;
        for (const DNSSD_Service& service : table.services()) {
            if (service.available)
                names.append(service.name);
        }
        return names;
    }

    inline static const QString cType = QStringLiteral("_smb._tcp");
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    ServiceTable table;
};

TEST_F(ServiceTableTest, SameName_IsARecordForEachInterface) {
    EXPECT_TRUE(table.found(record(a, 2), HeardOver::IPv4));
    EXPECT_TRUE(table.found(record(a, 3), HeardOver::IPv4));
    EXPECT_EQ(table.services().size(), 2);
    EXPECT_TRUE(table.vanished(a, 2, HeardOver::IPv4));
    EXPECT_EQ(available(), QStringList{a});
}

TEST_F(ServiceTableTest, BothProtocols_AreOneRecordUntilBothAreGone) {
    EXPECT_TRUE(table.found(record(a), HeardOver::IPv6));
    EXPECT_FALSE(table.found(record(a), HeardOver::IPv4));
    EXPECT_EQ(table.services().size(), 1);
    EXPECT_FALSE(table.vanished(a, 2, HeardOver::IPv6));
    EXPECT_EQ(available(), QStringList{a});
    EXPECT_TRUE(table.vanished(a, 2, HeardOver::IPv4));
    EXPECT_TRUE(available().isEmpty());
}

TEST_F(ServiceTableTest, SecondSearch_DropsWhatItDoesNotMention) {
    table.found(record(a), HeardOver::IPv4);
    table.found(record(b), HeardOver::IPv4);
    const quint64 first = table.search().number;
    table.startSearch(cType);
    EXPECT_EQ(available(), (QStringList{a, b}));
    EXPECT_EQ(table.beginSearch().number, table.search().number);
    EXPECT_TRUE(table.found(record(b), HeardOver::IPv4));
    table.settle(first); // the end of a search that is over
    EXPECT_EQ(available(), (QStringList{a, b}));
    table.settle(table.search().number);
    EXPECT_EQ(available(), QStringList{b});
    EXPECT_EQ(table.services().size(), 2);
}

TEST_F(ServiceTableTest, DroppedService_IsForgottenAndTheOthersAreStillFound) {
    table.found(record(a), HeardOver::IPv4);
    table.found(record(b), HeardOver::IPv4);
    table.vanished(a, 2, HeardOver::IPv4);
    table.startSearch(cType);
    EXPECT_EQ(table.services().size(), 1);
    EXPECT_FALSE(table.vanished(b, 2, HeardOver::IPv6)) << "never heard over that one";
    EXPECT_TRUE(table.vanished(a, 2, HeardOver::IPv4)) << "nobody knows it";
    table.beginSearch();
    EXPECT_TRUE(table.found(record(a), HeardOver::IPv4));
    EXPECT_TRUE(table.found(record(b), HeardOver::IPv4));
    EXPECT_EQ(available(), (QStringList{b, a}));
}

TEST_F(ServiceTableTest, LostDiscoveryService_LeavesTheListAndNothingAvailable) {
    table.found(record(a), HeardOver::IPv4);
    table.lose();
    EXPECT_TRUE(available().isEmpty());
    EXPECT_EQ(table.services().size(), 1);
    EXPECT_TRUE(table.found(record(a), HeardOver::IPv4)) << "to be resolved again";
}

TEST_F(ServiceTableTest, LateWordOfTheEarlierSearch_LeavesTheServiceToBeResolvedAgain) {
    table.found(record(a), HeardOver::IPv4);
    table.startSearch(cType);
    EXPECT_FALSE(table.found(record(a), HeardOver::IPv6)) << "nobody has begun anew yet";
    table.beginSearch();
    EXPECT_EQ(available(), QStringList{a});
    EXPECT_TRUE(table.found(record(a), HeardOver::IPv4));
}

TEST_F(ServiceTableTest, LateWordOfAnotherType_IsPassedOver) {
    table.found(record(a), HeardOver::IPv4);
    table.startSearch(QStringLiteral("_ssh._tcp"));
    EXPECT_TRUE(table.services().isEmpty());
    EXPECT_FALSE(table.found(record(a), HeardOver::IPv4));
    table.resolved(record(a));
    EXPECT_TRUE(table.services().isEmpty());
}

TEST_F(ServiceTableTest, Resolved_FillsInAndKeepsTheDate) {
    DNSSD_Service first = record(a);
    first.dateAdded = cNow;
    table.found(first, HeardOver::IPv4);
    DNSSD_Service answered = record(a);
    answered.hostTarget = QStringLiteral("h.local");
    answered.ip4Address = QStringLiteral("1.2.3.4");
    answered.macAddress = QStringLiteral("m");
    answered.hostPort = 445;
    table.resolved(answered);
    answered.interface = 3;
    answered.hostPort = 446;
    table.resolved(answered); // of an interface that nothing was heard over
    ASSERT_EQ(table.services().size(), 1);
    const DNSSD_Service shown = table.services().constFirst();
    EXPECT_EQ(shown.ip4Address, u"1.2.3.4");
    EXPECT_EQ(shown.hostTarget, u"h.local");
    EXPECT_EQ(shown.macAddress, u"m");
    EXPECT_EQ(shown.hostPort, 445U);
    EXPECT_EQ(shown.dateAdded, cNow);
}

TEST_F(ServiceTableTest, Flood_IsCutAtTenThousand) {
    for (int number = 0; number < 10010; ++number)
        table.found(record(QString::number(number)), HeardOver::IPv4);
    EXPECT_EQ(table.services().size(), 10000);
    EXPECT_FALSE(table.found(record(a), HeardOver::IPv4));
}

TEST(RefusedNamesTest, EachName_IsToldOnceAndEscaped) {
    RecordingConsole console;
    RefusedNames names(console);
    names.tell(QStringLiteral("a\n$b"));
    names.tell(QStringLiteral("a\n$b"));
    EXPECT_EQ(console.logged(),
              QStringList{"Inside AvahiBrowser->services.......refused the service name "
                          "[a\\x0a$b]"});
}

TEST(RefusedNamesTest, Flood_EndsWithALineThatSaysSo) {
    RecordingConsole console;
    RefusedNames names(console);
    for (int number = 0; number < 2000; ++number)
        names.tell(QString::number(number));
    EXPECT_EQ(console.logged().size(), 1000);
    EXPECT_TRUE(console.logged().constLast().endsWith(u"further ones are not told"));
}

} // namespace
} // namespace kelvo
