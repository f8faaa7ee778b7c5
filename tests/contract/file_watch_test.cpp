// FileWatch on a real folder, with directory signals and where the kernel refuses them.
#include "adapters/settings/file_watch.h"
#include "contract/settings_folder.h"
#include "support/sanitized.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// From now on the kernel refuses directory signals to this thread.
bool refuseDirectorySignals() {
    std::array<sock_filter, 6> steps{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fcntl, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[1])),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, F_NOTIFY, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EINVAL),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    const sock_fprog filter{static_cast<unsigned short>(steps.size()), steps.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// How many inotify instances this process holds.
int inotifyInstances() {
    int count = 0;
    for (const QFileInfo& entry : QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::System))
        count += entry.symLinkTarget().contains(u"inotify") ? 1 : 0;
    return count;
}

enum class Kernel { Signals, NoSignals };

class FileWatchTest : public ::testing::TestWithParam<Kernel> {
protected:
    void SetUp() override {
        QDir().mkpath(fFolder.folder());
        ASSERT_EQ(fWatch.arm(), 0);
    }
    void TearDown() override { end(); }

    void begin() {
        fWaiter = std::jthread([this](const std::stop_token& stop) {
            if (GetParam() == Kernel::NoSignals && !refuseDirectorySignals())
                fFilterFailed = true;
            while (!stop.stop_requested()) {
                if (fWatch.wait(std::nullopt))
                    ++fChanges;
                if (!fWatch.watching())
                    fError = fWatch.arm();
                ++fReturns;
            }
        });
    }
    void end() {
        fWaiter.request_stop();
        fWatch.wake();
        if (fWaiter.joinable())
            fWaiter.join();
        EXPECT_FALSE(fFilterFailed);
    }
    /// Lets the waiting thread go round once, so that it certainly listens afterwards.
    void settle() {
        const int before = fReturns;
        fWatch.wake();
        ASSERT_TRUE(waitUntil([&] { return fReturns > before; }));
    }
    /// Whether `act` ends the wait with a change.
    bool isNoticed(const std::function<void()>& act) {
        settle();
        const int before = fChanges;
        act();
        return waitUntil([&] { return fChanges > before; });
    }

    /// Writes `times` times to another file in the folder.
    void writeOther(int times) const {
        QFile file(fFolder.folder() + QStringLiteral("/other"));
        ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
        for (int round = 0; round < times; ++round)
            ASSERT_EQ(file.write("x"), 1);
    }

    SettingsFolder fFolder;
    FileWatch fWatch{fFolder.folder().toStdString(), "preferences.plist"};
    std::atomic<int> fChanges = 0;
    std::atomic<int> fReturns = 0;
    std::atomic<int> fError = 0;
    std::atomic<bool> fFilterFailed = false;
    std::jthread fWaiter;
};

TEST_P(FileWatchTest, EachWayToChangeTheFile_IsNoticed) {
    begin();
    EXPECT_TRUE(isNoticed([&] { fFolder.write("first"); })) << "put there";
    EXPECT_TRUE(isNoticed([&] { fFolder.write("second, longer"); })) << "written";
    EXPECT_TRUE(isNoticed([&] { fFolder.replace({{"a", 1LL}}); })) << "replaced";
    EXPECT_TRUE(isNoticed([&] { QFile::remove(fFolder.path()); })) << "removed";
    QFile kept(fFolder.path());
    EXPECT_TRUE(isNoticed([&] { EXPECT_TRUE(kept.open(QFile::WriteOnly | QFile::Unbuffered)); }))
        << "made by one that keeps it open";
    EXPECT_TRUE(isNoticed([&] { kept.write("half"); })) << "written by one that keeps it open";
    const QString away = fFolder.folder() + QStringLiteral("-away");
    EXPECT_TRUE(isNoticed([&] { QFile::rename(fFolder.path(), away); })) << "moved away";
    EXPECT_TRUE(isNoticed([&] { QFile::rename(away, fFolder.path()); })) << "moved back";
}

TEST_P(FileWatchTest, WritingOfTheSameLengthInQuickSuccession_IsNoticedEachTime) {
    fFolder.write("0");
    begin();
    for (const char* bytes : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
        EXPECT_TRUE(isNoticed([&] { fFolder.write(bytes); })) << bytes;
}

TEST(FileWatchStampsTest, WritingThatLeavesTheSameStamps_IsNoticed) {
    SettingsFolder folder;
    folder.write("0");
    bool met = false;
    // Waiting blocks a signal to the thread that waits.
    std::thread([&] {
        FileWatch watch(folder.folder().toStdString(), "preferences.plist");
        ASSERT_EQ(watch.arm(), 0);
        const auto stamps = [&] {
            struct stat entry {};
            EXPECT_EQ(::stat(folder.path().toLocal8Bit().constData(), &entry), 0);
            return std::array{entry.st_mtim.tv_sec, entry.st_mtim.tv_nsec, entry.st_ctim.tv_sec,
                              entry.st_ctim.tv_nsec};
        };
        const auto isNoticed = [&watch] {
            return watch.wait(std::chrono::steady_clock::now() + 10s);
        };
        for (int round = 0; round < 200 && !met; ++round) {
            folder.write("1");
            ASSERT_TRUE(isNoticed());
            const auto before = stamps();
            folder.write("2");
            met = stamps() == before;
            ASSERT_TRUE(isNoticed()) << round;
        }
    }).join();
    if (!met && !HasFailure())
        GTEST_SKIP() << "this file system gives each writing stamps of its own";
}

TEST_P(FileWatchTest, ChangeBetweenArmingAndTheFirstWait_IsNoticed) {
    fFolder.write("between");
    begin();
    EXPECT_TRUE(waitUntil([&] { return fChanges == 1; }));
}

TEST_P(FileWatchTest, WakeUp_IsNoChange) {
    begin();
    settle();
    const int before = fChanges;
    for (int round = 0; round < 10; ++round)
        settle();
    EXPECT_EQ(fChanges, before);
}

TEST_P(FileWatchTest, WakeUpBeforeTheWait_EndsIt) {
    fWatch.wake();
    begin();
    EXPECT_TRUE(waitUntil([&] { return fReturns > 0; }));
}

TEST_P(FileWatchTest, OtherFileBesideAFileAtRest_IsNoChange) {
    fFolder.write("at rest");
    std::this_thread::sleep_for(2100ms);
    ASSERT_EQ(fWatch.arm(), 0);
    begin();
    settle();
    EXPECT_EQ(fChanges, 0) << "it was there when the watch began";
    const int changes = fChanges;
    const int returns = fReturns;
    writeOther(1);
    EXPECT_TRUE(waitUntil([&] { return fReturns > returns; })) << "the wait looks at the file";
    settle();
    EXPECT_EQ(fChanges, changes);
}

TEST_P(FileWatchTest, FolderMovedAwayAndMadeAgain_IsWatchedAgain) {
    fFolder.write("old");
    begin();
    const QString away = fFolder.folder() + QStringLiteral("-old");
    EXPECT_TRUE(isNoticed([&] { QDir().rename(fFolder.folder(), away); }));
    EXPECT_TRUE(waitUntil([&] { return fError == ENOENT; }));
    fFolder.write("new");
    settle();
    EXPECT_EQ(fError, 0);
    EXPECT_TRUE(isNoticed([&] { fFolder.write("newer, longer"); }));
}

TEST_P(FileWatchTest, FolderExchangedForAnother_IsWatchedThere) {
    fFolder.write("old");
    begin();
    const QString other = fFolder.folder() + QStringLiteral("-other");
    ASSERT_TRUE(QDir().mkdir(other));
    EXPECT_TRUE(isNoticed([&] {
        EXPECT_EQ(::renameat2(AT_FDCWD, QFile::encodeName(other), AT_FDCWD,
                              QFile::encodeName(fFolder.folder()), RENAME_EXCHANGE),
                  0);
    }));
    settle();
    EXPECT_TRUE(isNoticed([&] { fFolder.write("new"); }));
}

TEST_P(FileWatchTest, FolderRemoved_IsNoLongerWatched) {
    fFolder.write("old");
    begin();
    EXPECT_TRUE(isNoticed([&] { QDir(fFolder.folder()).removeRecursively(); }));
    EXPECT_TRUE(waitUntil([&] { return fError == ENOENT; }));
    EXPECT_FALSE(QDir(fFolder.folder()).exists());
}

TEST_P(FileWatchTest, FlickeringNeighbour_DoesNotHideTheChange) {
    begin();
    settle();
    writeOther(20'000);
    EXPECT_TRUE(isNoticed([&] { fFolder.write("after the flood"); }));
}

TEST_P(FileWatchTest, InotifyIsHeld_OnlyWhereSignalsAreRefused) {
    const int before = inotifyInstances();
    begin();
    settle();
    EXPECT_EQ(inotifyInstances() - before, GetParam() == Kernel::NoSignals ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Kernels, FileWatchTest,
                         ::testing::Values(Kernel::Signals, Kernel::NoSignals),
                         [](const auto& given) {
                             return given.param == Kernel::Signals ? "signals" : "inotify";
                         });

TEST(FileWatchArmTest, WatchMadeWithoutDescriptors_LooksUpByItself) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer itself needs a descriptor";
    rlimit before{};
    ::getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &none);
    FileWatch watch("/nowhere", "preferences.plist");
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(watch.wait(std::nullopt));
    EXPECT_FALSE(watch.wait(std::chrono::steady_clock::now() + 1h));
}

TEST(FileWatchRingTest, Time_EndsTheWaitThatItComesIn) {
    FileWatch watch("/nowhere", "preferences.plist");
    ASSERT_TRUE(watch.ringIn(20ms));
    EXPECT_FALSE(watch.rang());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(watch.wait(std::nullopt));
    EXPECT_TRUE(watch.rang());
    EXPECT_GE(std::chrono::steady_clock::now() - start, 20ms);
    EXPECT_FALSE(watch.wait(std::chrono::steady_clock::now() + 60ms)) << "once";
    EXPECT_FALSE(watch.rang());
}

TEST(FileWatchRingTest, TimeTakenBack_EndsNoWait) {
    FileWatch watch("/nowhere", "preferences.plist");
    ASSERT_TRUE(watch.ringIn(10ms));
    ASSERT_TRUE(watch.ringIn(0ms));
    EXPECT_FALSE(watch.wait(std::chrono::steady_clock::now() + 60ms));
    EXPECT_FALSE(watch.rang());
    ASSERT_TRUE(watch.ringIn(10ms));
    watch.wake();
    EXPECT_FALSE(watch.wait(std::nullopt));
    EXPECT_FALSE(watch.rang()) << "a wake-up is another thing";
    EXPECT_FALSE(watch.wait(std::nullopt));
    EXPECT_TRUE(watch.rang());
}

TEST(FileWatchArmTest, NoFolderOrNoneAtAll_IsRefusedWithTheReason) {
    const SettingsFolder folder;
    FileWatch missing(folder.folder().toStdString(), "preferences.plist");
    EXPECT_EQ(missing.arm(), ENOENT);
    EXPECT_FALSE(missing.watching());
    folder.write("file");
    FileWatch file(folder.path().toStdString(), "preferences.plist");
    EXPECT_EQ(file.arm(), ENOTDIR);
    EXPECT_FALSE(file.watching());
    file.wake();
    EXPECT_FALSE(file.wait(std::nullopt)) << "a wake-up ends the wait all the same";
    EXPECT_FALSE(file.wait(std::chrono::steady_clock::now() + 10ms)) << "and so does the time";
}

} // namespace
} // namespace kelvo
