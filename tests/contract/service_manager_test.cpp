#include "adapters/process/service_manager.h"
#include "support/notify_socket.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace kelvo {
namespace {

class ServiceManagerTest : public ::testing::Test {
protected:
    void TearDown() override {
        for (const char* variable : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"})
            qunsetenv(variable);
    }
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("notify")).toLocal8Bit();
};

TEST_F(ServiceManagerTest, Path_IsToldAndTheEnvironmentIsFreeOfIt) {
    NotifySocket socket(path);
    ASSERT_TRUE(socket.isBound());
    qputenv("NOTIFY_SOCKET", path);
    qputenv("WATCHDOG_USEC", "600000000");
    qputenv("WATCHDOG_PID", QByteArray::number(::getpid()));
    const ServiceManager manager;
    EXPECT_TRUE(manager.isThere());
    EXPECT_EQ(manager.watchdogSeconds(), 600);
    for (const char* variable : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"})
        EXPECT_FALSE(qEnvironmentVariableIsSet(variable)) << variable;
    manager.tell("READY=1\nSTATUS=Resting");
    EXPECT_EQ(socket.next(10), "READY=1\nSTATUS=Resting");
}

TEST_F(ServiceManagerTest, AbstractName_IsToldToo) {
    const QByteArray name = "@kelvo-notify-" + QByteArray::number(::getpid());
    NotifySocket socket(name);
    ASSERT_TRUE(socket.isBound());
    qputenv("NOTIFY_SOCKET", name);
    ServiceManager().tell("STOPPING=1");
    EXPECT_EQ(socket.next(10), "STOPPING=1");
}

TEST_F(ServiceManagerTest, NoManager_NothingIsWanted) {
    for (const QByteArray& name :
         {QByteArray(), QByteArray("/"), QByteArray("relative"), QByteArray(200, '/')}) {
        qputenv("NOTIFY_SOCKET", name);
        qputenv("WATCHDOG_USEC", "1000000");
        const ServiceManager manager;
        EXPECT_FALSE(manager.isThere()) << name.constData();
        EXPECT_EQ(manager.watchdogSeconds(), std::nullopt);
        manager.tell("READY=1");
    }
}

TEST_F(ServiceManagerTest, WatchdogOfAnotherProcessOrNone_WantsNoSigns) {
    const auto seconds = [this](const char* patience, const QByteArray& process) {
        qputenv("NOTIFY_SOCKET", path);
        qputenv("WATCHDOG_USEC", patience);
        qputenv("WATCHDOG_PID", process);
        return ServiceManager().watchdogSeconds();
    };
    EXPECT_EQ(seconds("1000000", "1"), std::nullopt);
    EXPECT_EQ(seconds("1000000", ""), 1);
    EXPECT_EQ(seconds("0", ""), std::nullopt);
    EXPECT_EQ(seconds("often", ""), std::nullopt);
}

TEST_F(ServiceManagerTest, ManagerThatIsGoneOrBehind_HoldsNobodyUp) {
    qputenv("NOTIFY_SOCKET", path);
    ServiceManager().tell("READY=1"); // nobody is there at all
    NotifySocket socket(path);
    ASSERT_TRUE(socket.isBound());
    qputenv("NOTIFY_SOCKET", path);
    const ServiceManager manager;
    for (int i = 0; i < 10000; ++i)
        manager.tell("WATCHDOG=1");
    EXPECT_EQ(socket.next(10), "WATCHDOG=1");
}

} // namespace
} // namespace kelvo
