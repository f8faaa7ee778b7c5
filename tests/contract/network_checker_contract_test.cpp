#include "adapters/network/kelvo_ssid.h"
#include "adapters/network/link_watch.h"
#include "adapters/network/network_manager.h"
#include "adapters/process/qt_main_queue.h"
#include "fakes/fake_network.h"
#include "fakes/virtual_queues.h"
#include "support/network_manager_service.h"
#include "support/notification_center.h"
#include "support/running_program.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>
#include <vector>

namespace kelvo {
namespace {

const QString cNothing = QStringLiteral("No network connection");
const QString cLocal = QStringLiteral("Connected to the local network only");
const QString cFull = QStringLiteral("Connected to the network");

TEST(ReachabilityMessageTest, Table) {
    for (const NetworkReach reach : {NetworkReach::Unknown, NetworkReach::NothingBeyond,
                                     NetworkReach::LocalOnly, NetworkReach::Beyond})
        EXPECT_EQ(reachabilityMessage(false, reach), cNothing);
    EXPECT_EQ(reachabilityMessage(true, NetworkReach::Unknown), cFull);
    EXPECT_EQ(reachabilityMessage(true, NetworkReach::Beyond), cFull);
    EXPECT_EQ(reachabilityMessage(true, NetworkReach::LocalOnly), cLocal);
    EXPECT_EQ(reachabilityMessage(true, NetworkReach::NothingBeyond), cLocal);
}

/// What a checker posts.
class PostedMessages {
public:
    explicit PostedMessages(NotificationCenter& center)
        : fObservation(center.observe(cNWPathMonitorNotification.toString(),
                                      [this](const Notification& notification) {
                                          const std::lock_guard lock(fMutex);
                                          fPosted.push_back(notification);
                                      })) {}

    std::vector<Notification> all() const {
        const std::lock_guard lock(fMutex);
        return fPosted;
    }

private:
    mutable std::mutex fMutex;
    std::vector<Notification> fPosted;
    Subscription fObservation;
};

std::unique_ptr<NetworkReachSource> makeManager(std::function<void()> changed) {
    return std::make_unique<NetworkManager>(std::move(changed));
}

struct FakeChecker {
    std::unique_ptr<NetworkChecker> make(NotificationCenter& center) {
        return std::make_unique<FakeNetworkChecker>(center, cFull);
    }
};
struct RealChecker {
    QtMainQueue mainQueue;
    std::unique_ptr<NetworkChecker> make(NotificationCenter& center) {
        return std::make_unique<KelvoSSID>(center, mainQueue, makeManager);
    }
};

template <typename Kind>
class NetworkCheckerContractTest : public ::testing::Test {
protected:
    NotificationCenter center;
    PostedMessages posted{center};
    Kind kind;
};
using Kinds = ::testing::Types<FakeChecker, RealChecker>;
TYPED_TEST_SUITE(NetworkCheckerContractTest, Kinds);

TYPED_TEST(NetworkCheckerContractTest, PresentState_IsPostedOnceAfterTheStart) {
    const auto checker = this->kind.make(this->center);
    QCoreApplication::processEvents();
    EXPECT_TRUE(this->posted.all().empty());
    checker->checknetwork2();
    checker->checknetwork2();
    ASSERT_TRUE(waitInLoop([this] { return !this->posted.all().empty(); }));
    EXPECT_FALSE(waitInLoop([this] { return this->posted.all().size() > 1; }, 1));
    const Notification posted = this->posted.all().front();
    EXPECT_EQ(posted.name, u"NWPathMonitorNotification");
    const QVariant message = posted.userInfo.value(QStringLiteral("reachabilitymessage"));
    EXPECT_TRUE((QStringList{cNothing, cLocal, cFull}).contains(message.toString()))
        << message.toString().toStdString();
}

TEST(KelvoSSIDTest, DestroyedBeforeItsFirstLook_PostsNothing) {
    NotificationCenter center;
    const PostedMessages posted(center);
    QtMainQueue mainQueue;
    {
        KelvoSSID checker(center, mainQueue, makeManager);
        checker.checknetwork2();
    }
    EXPECT_FALSE(waitInLoop([&] { return !posted.all().empty(); }, 1));
}

TEST(KelvoSSIDTest, FirstLook_IsDueAtOnceAndTheOnlyOne) {
    NotificationCenter center;
    const PostedMessages posted(center);
    VirtualMainQueue mainQueue;
    KelvoSSID checker(center, mainQueue, makeManager);
    for (int call = 0; call < 2; ++call) {
        checker.checknetwork2();
        mainQueue.runDue();
        EXPECT_EQ(posted.all().size(), 1U);
        EXPECT_TRUE(mainQueue.idle());
    }
}

TEST(LinkWatchTest, Change_IsTakenOnceAndNotMetAgain) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::unshare(::geteuid() == 0 ? CLONE_NEWNET : CLONE_NEWUSER | CLONE_NEWNET) != 0)
            ::_exit(2);
        int changes = 0;
        const LinkWatch watch([&changes] { ++changes; });
        if (std::system("ip link set lo up") != 0)
            ::_exit(2);
        for (int turn = 0; turn < 100; ++turn)
            QCoreApplication::processEvents();
        ::_exit(changes > 0 && changes < 4 ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 2)
        GTEST_SKIP() << "this system lets us make no network of our own";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

/// How often the threads of a process have gone to sleep so far.
qint64 sleeps(qint64 processId) {
    qint64 count = 0;
    QDirIterator threads(QStringLiteral("/proc/%1/task").arg(processId),
                         QDir::Dirs | QDir::NoDotAndDotDot);
    while (threads.hasNext()) {
        QFile status(threads.next() + QStringLiteral("/status"));
        if (!status.open(QFile::ReadOnly))
            continue;
        const QString text = QString::fromLatin1(status.readAll());
        count += text.section(QStringLiteral("\nvoluntary_ctxt_switches:"), 1)
                     .section(u'\n', 0, 0)
                     .trimmed()
                     .toLongLong();
    }
    return count;
}

TEST(KelvoSSIDTest, AtRest_NothingWakesUp) {
    RunningProgram program(QStringLiteral(KELVO_NETWORK_WATCHER), {});
    ASSERT_TRUE(program.waitForLine([](const QString&) { return true; }, 20));
    // The desktop's network service may still be answering.
    (void)program.waitForLine([](const QString&) { return false; }, 1);
    const qint64 before = sleeps(program.processId());
    ASSERT_GT(before, 0);
    (void)program.waitForLine([](const QString&) { return false; }, 2);
    EXPECT_LE(sleeps(program.processId()) - before, 1);
}

/// A shell text in a network of its own, where the loopback is all there is at first. All its
/// processes go with the first of them.
class OwnNetworkTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (QProcess::execute(QStringLiteral("unshare"), cOwnNetwork + QStringList{"true"}) != 0)
            GTEST_SKIP() << "this system lets us make no network of our own";
    }
    static QStringList inOwnNetwork(const QString& shellText) {
        return cOwnNetwork + QStringList{QStringLiteral("sh"), QStringLiteral("-c"), shellText,
                                         QStringLiteral("sh"),
                                         QStringLiteral(KELVO_NETWORK_WATCHER)};
    }

    static void expectLines(RunningProgram& program, const QStringList& expected) {
        for (const QString& message : expected) {
            const auto line = program.waitForLine([](const QString&) { return true; }, 20);
            ASSERT_TRUE(line) << program.transcript().toStdString();
            EXPECT_EQ(*line, message) << program.transcript().toStdString();
        }
    }

private:
    inline static const QStringList cOwnNetwork{
        QStringLiteral("--user"), QStringLiteral("--map-root-user"),
        QStringLiteral("--net"),  QStringLiteral("--pid"),
        QStringLiteral("--fork"), QStringLiteral("--kill-child")};
};

TEST_F(OwnNetworkTest, LinksAndAddresses_ChangeTheMessage) {
    // Each step waits until the one before was noticed: the watcher's lines go through the pipe.
    RunningProgram program(
        QStringLiteral("unshare"),
        inOwnNetwork(
            QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nowhere \"$1\" | while read -r "
                           "line; do echo \"$line\"; step=$((step + 1)); case $step in "
                           "1) ip link add here type veth peer name there; ip link set there up; "
                           "ip link set here up; ip address add 10.9.8.7/24 dev here ;; "
                           "2) ip link set there down ;; "
                           "3) ip link set there up ;; "
                           "4) ip route add default via 10.9.8.1 ;; "
                           "5) ip route del default; ip route add unreachable default ;; "
                           "6) ip route replace default via 10.9.8.1 ;; "
                           "7) ip route del default; ip route add blackhole default ;; "
                           "8) ip address flush dev here ;; "
                           "esac; done")));
    expectLines(program,
                {cNothing, cLocal, cNothing, cLocal, cFull, cLocal, cFull, cLocal, cNothing});
}

TEST_F(OwnNetworkTest, IPv6AddressesAndRoutes_CountToo) {
    // What a device gives itself, fe80::…, is there from the first step to the last and is none.
    RunningProgram program(QStringLiteral("unshare"),
                           inOwnNetwork(QStringLiteral(
                               "ip link add here type veth peer name there; ip link set there up; "
                               "ip link set here up; DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nowhere "
                               "\"$1\" | while read -r line; do echo \"$line\"; "
                               "step=$((step + 1)); case $step in "
                               "1) ip address add fd00::7/64 dev here nodad ;; "
                               "2) ip route add default via fd00::1 dev here ;; "
                               "3) ip -6 route del default; ip -6 route add unreachable default ;; "
                               "4) ip -6 route del default; ip route add default via fd00::1 ;; "
                               "5) ip -6 route del default; ip -6 route add default dev lo ;; "
                               "6) ip address flush dev here scope global ;; "
                               "esac; done")));
    expectLines(program, {cNothing, cLocal, cFull, cLocal, cFull, cLocal, cNothing});
}

TEST_F(OwnNetworkTest, NetworkManager_IsBelievedBeforeTheRoutesWhereItIsAtHand) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root's name is the same on a bus outside";
    const PrivateBus bus;
    if (bus.address().isEmpty())
        GTEST_SKIP() << "no bus daemon can be started here";
    BusConnection system(bus.address(), QStringLiteral("checker-system"));
    NetworkManagerService service(system.get());
    service.setQuietState(70); // the whole world, though no route leads there
    ASSERT_TRUE(service.appear());
    RunningProgram program(
        QStringLiteral("unshare"),
        QStringList{QStringLiteral("--mount")} +
            inOwnNetwork(QStringLiteral("mount -t tmpfs none /run; mkdir /run/NetworkManager; "
                                        "ip link add here type veth peer name there; "
                                        "ip link set there up; ip link set here up; "
                                        "ip address add 10.9.8.7/24 dev here; "
                                        "DBUS_SYSTEM_BUS_ADDRESS='%1' exec \"$1\"")
                             .arg(bus.address())));
    const auto says = [&](const QString& message) {
        const auto isIt = [&](const QString& line) { return line == message; };
        // The service answers in between.
        return waitInLoop([&] { return program.waitForLine(isIt, 0.01).has_value(); });
    };
    EXPECT_TRUE(says(cFull)) << program.transcript().toStdString();
    service.setState(50);
    EXPECT_TRUE(says(cLocal)) << program.transcript().toStdString();
}

TEST_F(OwnNetworkTest, LinkWithoutIPv6_IsNoticedTooAsItGoesAndComes) {
    RunningProgram program(
        QStringLiteral("unshare"),
        inOwnNetwork(QStringLiteral(
            "for each in default all; do echo 1 >/proc/sys/net/ipv6/conf/$each/disable_ipv6; done; "
            "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nowhere \"$1\" | while read -r line; do "
            "echo \"$line\"; step=$((step + 1)); case $step in "
            "1) ip link add here type veth peer name there; ip link set there up; "
            "ip link set here up; ip address add 10.9.8.7/24 dev here ;; "
            "2) ip link set there down ;; "
            "3) ip link set there up ;; "
            "esac; done")));
    expectLines(program, {cNothing, cLocal, cNothing, cLocal});
}

} // namespace
} // namespace kelvo
