#include "adapters/process/posix_sentinel_launcher.h"
#include "fakes/fake_sentinel_launcher.h"
#include "support/descendants.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <optional>

namespace kelvo {
namespace {

/// Sentinels that would wait for this very process.
class PretendSentinels {
public:
    PretendSentinels() { fLauncher.executable.insert(program()); }
    SentinelLauncher& launcher() { return fLauncher; }
    static QString program() { return QStringLiteral("/somewhere/watchdog"); }
    static QString plainFile() { return QStringLiteral("/somewhere/notes.txt"); }
    static QString folder() { return QStringLiteral("/somewhere"); }
    std::size_t living() const {
        std::size_t count = 0;
        for (const auto& sentinel : fLauncher.sentinels)
            count += sentinel->ended ? 0 : 1;
        return count;
    }
    void kill() { fLauncher.sentinels.back()->end(SIGKILL); }
    /// A sentinel that was asked to end does so.
    void letEnd() {
        for (const auto& sentinel : fLauncher.sentinels) {
            if (sentinel->requests > 0)
                sentinel->end(0);
        }
    }

private:
    FakeSentinelLauncher fLauncher;
};

class RealSentinels {
public:
    RealSentinels() {
        QFile file(plainFile());
        file.open(QIODevice::WriteOnly);
    }
    ~RealSentinels() { endAllDescendants("watchdog"); }
    SentinelLauncher& launcher() { return fLauncher; }
    static QString program() { return QStringLiteral(KELVO_SENTINEL); }
    QString plainFile() const { return fFolder.filePath(QStringLiteral("notes.txt")); }
    QString folder() const { return fFolder.path(); }
    static std::size_t living() {
        std::size_t count = 0;
        for (const Descendant& each : descendants())
            count += each.ended ? 0 : 1;
        return count;
    }
    static void kill() { ::kill(*livingChild(::getpid(), "watchdog"), SIGKILL); }
    static void letEnd() {}

private:
    QTemporaryDir fFolder;
    PosixSentinelLauncher fLauncher;
};

template <typename World>
class SentinelLauncherContractTest : public testing::Test {
protected:
    std::optional<SentinelTask> launch() {
        return fWorld.launcher().launch(fWorld.program(), {QString::number(::getpid())},
                                        [this](int exitCode) {
                                            fExitCode = exitCode;
                                            ++fEnds;
                                        });
    }

    std::atomic<int> fEnds = 0;
    std::atomic<int> fExitCode = -1;
    World fWorld;
};

using Worlds = testing::Types<PretendSentinels, RealSentinels>;
class WorldNames {
public:
    template <typename World>
    static std::string GetName(int) {
        return std::is_same_v<World, PretendSentinels> ? "Fake" : "Posix";
    }
};
TYPED_TEST_SUITE(SentinelLauncherContractTest, Worlds, WorldNames);

TYPED_TEST(SentinelLauncherContractTest, OnlyAFileThatMayBeRun_IsExecutable) {
    SentinelLauncher& launcher = this->fWorld.launcher();
    EXPECT_TRUE(launcher.isExecutable(this->fWorld.program()));
    EXPECT_FALSE(launcher.isExecutable(this->fWorld.plainFile()));
    EXPECT_FALSE(launcher.isExecutable(this->fWorld.folder()));
    EXPECT_FALSE(launcher.isExecutable(QStringLiteral("/nothing/here")));
    EXPECT_FALSE(launcher.isExecutable(QString()));
}

TYPED_TEST(SentinelLauncherContractTest, WhatCannotBeStarted_IsNoTask) {
    for (const QString& path : {this->fWorld.plainFile(), QStringLiteral("/nothing/here")}) {
        EXPECT_FALSE(this->fWorld.launcher().launch(path, {}, [this](int) { ++this->fEnds; }));
    }
    EXPECT_EQ(this->fEnds, 0);
}

TYPED_TEST(SentinelLauncherContractTest, Terminate_EndsItAndTheEndIsToldOnce) {
    const auto task = this->launch();
    ASSERT_TRUE(task);
    EXPECT_EQ(this->fWorld.living(), 1U);
    task->terminate();
    this->fWorld.letEnd();
    ASSERT_TRUE(waitUntil([this] { return this->fEnds == 1; }));
    EXPECT_EQ(this->fExitCode, 0);
    task->terminate();
    EXPECT_EQ(this->fWorld.living(), 0U);
    EXPECT_EQ(this->fEnds, 1);
}

TYPED_TEST(SentinelLauncherContractTest, EndByASignal_TellsItsNumber) {
    const auto task = this->launch();
    this->fWorld.kill();
    ASSERT_TRUE(waitUntil([this] { return this->fEnds == 1; }));
    EXPECT_EQ(this->fExitCode, SIGKILL);
}

TYPED_TEST(SentinelLauncherContractTest, EndOfATaskThatWasAskedToEnd_TellsTheEndBefore) {
    auto task = this->launch();
    task->terminate();
    task.reset();
    EXPECT_EQ(this->fEnds, 1);
    EXPECT_EQ(this->fExitCode, 0);
    EXPECT_EQ(this->fWorld.living(), 0U);
}

TYPED_TEST(SentinelLauncherContractTest, EndOfTheTask_LeavesTheSentinelRunningAndUntold) {
    this->launch().reset();
    EXPECT_EQ(this->fWorld.living(), 1U);
    this->fWorld.kill();
    EXPECT_TRUE(waitUntil([this] { return this->fWorld.living() == 0; }));
    EXPECT_EQ(this->fEnds, 0);
}

TYPED_TEST(SentinelLauncherContractTest, NobodyToTell_IsNoMatter) {
    auto task = this->fWorld.launcher().launch(this->fWorld.program(),
                                               {QString::number(::getpid())}, nullptr);
    ASSERT_TRUE(task);
    task->terminate();
    task.reset();
    EXPECT_EQ(this->fWorld.living(), 0U);
}

// -- the real one

TEST(PosixSentinelLauncherTest, SentinelThatIsInPlace_IsNotWaitedForAnyLonger) {
    using Clock = std::chrono::steady_clock;
    RealSentinels sentinels;
    // On a machine with much to do one attempt may take its time, hardly each of them.
    auto shortest = Clock::duration::max();
    for (int attempt = 0; attempt < 10 && shortest > std::chrono::seconds(1); ++attempt) {
        const auto begin = Clock::now();
        const auto task = sentinels.launcher().launch(sentinels.program(),
                                                      {QString::number(::getpid())}, nullptr);
        shortest = std::min(shortest, Clock::now() - begin);
        ASSERT_TRUE(task);
        task->terminate();
    }
    EXPECT_LT(shortest, std::chrono::seconds(1));
}

TEST(PosixSentinelLauncherTest, ThreadThatWaitsForIt_HasANameAndHearsNoSignal) {
    RealSentinels sentinels;
    const auto task =
        sentinels.launcher().launch(sentinels.program(), {QString::number(::getpid())}, nullptr);
    ASSERT_TRUE(task);
    const auto textOf = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    constexpr qulonglong cWanted = 1ULL << (SIGTERM - 1) | 1ULL << (SIGINT - 1);
    EXPECT_TRUE(waitUntil([&] {
        const QDir threads(QStringLiteral("/proc/self/task"));
        for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (textOf(threads.filePath(thread + u"/comm")) != "kelvo-sentinel\n")
                continue;
            const QByteArray status = textOf(threads.filePath(thread + u"/status"));
            const QByteArray mask = status.mid(status.indexOf("\nSigBlk:") + 8).trimmed();
            // A new thread hears nothing before it runs: looked at in its sleep.
            return status.contains("\nState:\tS") &&
                   (mask.left(16).toULongLong(nullptr, 16) & cWanted) == cWanted;
        }
        return false;
    }));
    task->terminate();
}

} // namespace
} // namespace kelvo
