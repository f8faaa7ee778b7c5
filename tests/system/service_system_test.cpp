// The built program as a service: what it tells the manager that has started it.
#include "support/notify_socket.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/wait_until.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

class ServiceSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    QByteArray socketPath() const { return path(QStringLiteral("notify")).toLocal8Bit(); }

    std::unique_ptr<RunningProgram> start(const QVariantMap& profile,
                                          const QStringList& arguments) const {
        write(settingsFile(), plistText(profile));
        QProcessEnvironment own = environment();
        own.insert(QStringLiteral("NOTIFY_SOCKET"), QString::fromLocal8Bit(socketPath()));
        own.insert(QStringLiteral("WATCHDOG_USEC"), QStringLiteral("400000"));
        return std::make_unique<RunningProgram>(
            cProgram, QStringList{QStringLiteral("--headless")} + arguments, own);
    }
    static bool hasSentinel(qint64 process) {
        const auto children = QDir(QStringLiteral("/proc/%1/task").arg(process))
                                  .entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& thread : children) {
            for (const QByteArray& child :
                 contents(QStringLiteral("/proc/%1/task/%2/children").arg(process).arg(thread))
                     .split(' ')) {
                if (contents(QStringLiteral("/proc/%1/comm").arg(QString::fromLatin1(child))) ==
                    "watchdog\n")
                    return true;
            }
        }
        return false;
    }
};

TEST_F(ServiceSystemTest, Manager_HearsOfTheStartTheWorkTheLifeAndTheEnd) {
    NotifySocket manager(socketPath());
    ASSERT_TRUE(manager.isBound());
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    QVariantMap profile = plainProfile();
    const QString seen = path(QStringLiteral("seen"));
    profile[QStringLiteral("commandAfterArrivals")] =
        QString(u"env | grep -c -e NOTIFY_SOCKET -e WATCHDOG_USEC >'" + seen + u"'; true");
    const auto program = start(profile, {QStringLiteral("--no-sentinel")});
    ASSERT_TRUE(manager.hears("READY=1")) << program->transcript().toStdString();
    EXPECT_TRUE(manager.hears([](const QByteArray& message) {
        return message.startsWith("STATUS=Resting, last success ");
    })) << manager.all.join('\n').constData();
    EXPECT_TRUE(manager.hears("WATCHDOG=1"));
    EXPECT_TRUE(manager.hears("WATCHDOG=1")) << "and again";
    EXPECT_TRUE(waitUntil([&] {
        (void)manager.next(0.01); // a full queue would lose the last words
        return contents(seen) == "0\n";
    })) << "no command can speak in the program's name";
    EXPECT_FALSE(hasSentinel(program->processId()));
    while (!manager.next(0.01).isEmpty()) {
    }
    EXPECT_EQ(program->stop(), 0);
    EXPECT_TRUE(manager.hears("STOPPING=1", 5));
    EXPECT_EQ(manager.all.count("READY=1"), 1);
    EXPECT_EQ(manager.next(0.1), "") << "nothing is told after the end";
}

TEST_F(ServiceSystemTest, WithoutThatOption_TheSentinelWatches) {
    const auto program = start({}, {});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("Got version = "), 60));
    EXPECT_TRUE(hasSentinel(program->processId()));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(ServiceSystemTest, SecondCopy_IsNoFailureForItsManager) {
    const auto first = start({}, {QStringLiteral("--no-sentinel")});
    ASSERT_TRUE(first->waitForLine(QStringLiteral("Got version = "), 60));
    NotifySocket manager(socketPath());
    ASSERT_TRUE(manager.isBound());
    const auto second = start({}, {QStringLiteral("--no-sentinel")});
    EXPECT_TRUE(manager.hears("READY=1"));
    EXPECT_TRUE(manager.hears("STATUS=Kelvo Mirror is running already"));
    EXPECT_TRUE(manager.hears("STOPPING=1"));
    (void)second->waitForLine(QStringLiteral("a line that never comes before the end"), 60);
    ASSERT_FALSE(second->isRunning());
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_EQ(first->stop(), 0);
}

} // namespace
} // namespace kelvo
