#include "adapters/process/single_copy_socket.h"
#include "adapters/system/unique_fd.h"
#include "fakes/fake_single_copy.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Claim = SingleCopy::Claim;

const SingleCopy::Show cNoShow = [](const QByteArray&) {};

/// Claims for a later copy on a thread of its own, while the first one's event loop runs.
Claim claimAside(SingleCopy& later, const QByteArray& token = {}) {
    std::atomic<bool> done = false;
    Claim result = Claim::Unguarded;
    std::thread thread([&] {
        result = later.claim(token, cNoShow);
        done = true;
    });
    EXPECT_TRUE(waitInLoop([&] { return done.load(); }));
    thread.join();
    return result;
}

// -- what holds for every place

struct FakePlace {
    FakeSingleCopy::Place place;
    std::unique_ptr<SingleCopy> copy() { return std::make_unique<FakeSingleCopy>(place); }
};
struct RealPlace {
    QTemporaryDir folder;
    RecordingConsole console;
    std::unique_ptr<SingleCopy> copy() {
        return std::make_unique<SingleCopySocket>(folder.path().toStdString(), console);
    }
};

template <typename Place>
class SingleCopyContractTest : public ::testing::Test {
protected:
    Place place;
};
using Places = ::testing::Types<FakePlace, RealPlace>;
TYPED_TEST_SUITE(SingleCopyContractTest, Places);

TYPED_TEST(SingleCopyContractTest, TokenOfALaterCopy_ComesWithItsRequest) {
    std::vector<QByteArray> tokens;
    const auto first = this->place.copy();
    ASSERT_EQ(first->claim("its own", [&](const QByteArray& token) { tokens.push_back(token); }),
              Claim::First);
    for (const char* token : {"gnome-shell/Files/17-3_TIME4711", ""})
        EXPECT_EQ(claimAside(*this->place.copy(), token), Claim::OtherIsShown);
    EXPECT_EQ(tokens, (std::vector<QByteArray>{"gnome-shell/Files/17-3_TIME4711", ""}));
}

TYPED_TEST(SingleCopyContractTest, LaterCopies_HaveTheFirstShowItself) {
    int shows = 0;
    const auto first = this->place.copy();
    EXPECT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    for (int copies = 1; copies <= 3; ++copies) {
        const auto later = this->place.copy();
        EXPECT_EQ(claimAside(*later), Claim::OtherIsShown);
        EXPECT_EQ(shows, copies);
    }
}

TYPED_TEST(SingleCopyContractTest, FirstCopyGone_LeavesItsPlace) {
    auto first = this->place.copy();
    EXPECT_EQ(first->claim({}, cNoShow), Claim::First);
    first.reset();
    const auto second = this->place.copy();
    EXPECT_EQ(second->claim({}, cNoShow), Claim::First);
}

// -- the socket

class SingleCopySocketTest : public ::testing::Test {
protected:
    std::unique_ptr<SingleCopySocket> copy(std::chrono::milliseconds patience = 5s) {
        return std::make_unique<SingleCopySocket>(folder.path().toStdString(), console, patience);
    }
    std::string path(const char* name) const {
        return folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    UniqueFd connected() const {
        UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path("kelvo-mirror.socket").copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(
            ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        return socket;
    }
    static bool isClosed(const UniqueFd& socket) {
        char byte = 0;
        const ssize_t count = ::recv(socket.get(), &byte, 1, 0);
        return count == 0 || (count < 0 && errno == ECONNRESET);
    }

    QTemporaryDir folder;
    RecordingConsole console;
    int shows = 0;
};

TEST_F(SingleCopySocketTest, HostileBytes_DoNothingAndAreShownOut) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    const std::string flood(100'000, 'x');
    for (const std::string& bytes :
         {std::string("shown\n"), std::string("show\nshow\n"), flood, std::string("\0show\n", 6),
          std::string("SHOW\n"), std::string("show \n"), std::string("show a b\n"),
          std::string("show \x7f\n"), std::string("showtoken\n"),
          "show " + std::string(256, 'x') + '\n'}) {
        const UniqueFd guest = connected();
        (void)::send(guest.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        EXPECT_TRUE(waitInLoop([&] { return isClosed(guest); })) << bytes.substr(0, 20);
    }
    { const UniqueFd goesAtOnce = connected(); }
    const auto second = copy();
    EXPECT_EQ(claimAside(*second), Claim::OtherIsShown);
    EXPECT_EQ(shows, 1);
}

TEST_F(SingleCopySocketTest, TokenThatIsNone_IsNotSent) {
    QByteArray token = "before";
    const auto first = copy();
    ASSERT_EQ(first->claim({}, [&](const QByteArray& given) { token = given; }), Claim::First);
    for (const QByteArray& bad : {QByteArray("two words"), QByteArray("line\n"),
                                  QByteArray(256, 'x'), QByteArray("\xc3\xa9")}) {
        token = "before";
        EXPECT_EQ(claimAside(*copy(), bad), Claim::OtherIsShown);
        EXPECT_EQ(token, "") << bad.constData();
    }
    EXPECT_EQ(claimAside(*copy(), QByteArray(255, 'x')), Claim::OtherIsShown);
    EXPECT_EQ(token, QByteArray(255, 'x'));
}

/// A first copy as it was before there were tokens.
class EarlierCopy {
public:
    explicit EarlierCopy(const std::string& folder)
        : fLock(::open((folder + "/kelvo-mirror.lock").c_str(), O_RDWR | O_CREAT, 0600)),
          fSocket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        (folder + "/kelvo-mirror.socket").copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::flock(fLock.get(), LOCK_EX | LOCK_NB), 0);
        EXPECT_EQ(
            ::bind(fSocket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::listen(fSocket.get(), 4), 0);
    }
    void end() const { ::shutdown(fSocket.get(), SHUT_RDWR); }
    /// Answers nothing but the plain request, until that has come or this one ends.
    void serve() const {
        for (std::string said; said != "show\n";) {
            const UniqueFd guest(::accept(fSocket.get(), nullptr, nullptr));
            if (!guest)
                return;
            std::array<char, 300> bytes{};
            const ssize_t count = ::recv(guest.get(), bytes.data(), bytes.size(), 0);
            said.assign(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(0, count)));
            if (said != "show\n")
                continue;
            EXPECT_EQ(::send(guest.get(), "shown\n", 6, MSG_NOSIGNAL), 6);
        }
    }

private:
    const UniqueFd fLock;
    const UniqueFd fSocket;
};

TEST_F(SingleCopySocketTest, CopyFromBeforeTheTokens_IsAskedPlainly) {
    const EarlierCopy earlier(folder.path().toStdString());
    std::thread serving([&] { earlier.serve(); });
    EXPECT_EQ(copy(5s)->claim("token", cNoShow), Claim::OtherIsShown);
    earlier.end();
    serving.join();
}

TEST_F(SingleCopySocketTest, RequestInPieces_Counts) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    const UniqueFd guest = connected();
    ASSERT_EQ(::send(guest.get(), "sh", 2, MSG_NOSIGNAL), 2);
    QCoreApplication::processEvents();
    EXPECT_EQ(shows, 0);
    ASSERT_EQ(::send(guest.get(), "ow\n", 3, MSG_NOSIGNAL), 3);
    EXPECT_TRUE(waitInLoop([&] { return shows == 1; }));
}

TEST_F(SingleCopySocketTest, SilentGuests_LeaveRoomForTheNext) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    std::vector<UniqueFd> silent;
    for (int i = 0; i < 100; ++i) {
        silent.push_back(connected());
        QCoreApplication::processEvents();
    }
    const auto second = copy();
    EXPECT_EQ(claimAside(*second), Claim::OtherIsShown);
    EXPECT_EQ(shows, 1);
}

TEST_F(SingleCopySocketTest, HungFirstCopy_IsGivenUpInTime) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    const auto second = copy(300ms);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(second->claim({}, cNoShow),
              Claim::OtherIsSilent); // Nobody runs the first one's loop.
    EXPECT_GE(clock.elapsed(), 290);
    EXPECT_LT(clock.elapsed(), 3000);
    EXPECT_EQ(shows, 0);
}

/// Another process that holds the lock, as a copy does that does not listen.
class OtherProcess {
public:
    /// Returns once the lock is held; it ends by itself after `life`.
    explicit OtherProcess(const std::string& lockPath, std::chrono::milliseconds life) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        fPid = ::fork();
        if (fPid == 0) {
            const int lock = ::open(lockPath.c_str(), O_RDWR | O_CREAT, 0600);
            if (::flock(lock, LOCK_EX | LOCK_NB) == 0)
                (void)!::write(ready[1], "x", 1);
            ::poll(nullptr, 0, static_cast<int>(life.count()));
            ::_exit(0);
        }
        ::close(ready[1]);
        char byte = 0;
        EXPECT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
    }
    ~OtherProcess() { end(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void end() {
        if (fPid <= 0)
            return;
        ::kill(fPid, SIGKILL);
        ::waitpid(std::exchange(fPid, -1), nullptr, 0);
    }

private:
    pid_t fPid = -1;
};

TEST_F(SingleCopySocketTest, CopyThatEndsMeanwhile_IsReplaced) {
    const OtherProcess ending(path("kelvo-mirror.lock"), 300ms);
    EXPECT_EQ(copy(15s)->claim({}, cNoShow), Claim::First);
}

TEST_F(SingleCopySocketTest, KilledCopy_LeavesNothingInTheWay) {
    OtherProcess other(path("kelvo-mirror.lock"), 60s);
    QFile left(folder.filePath(QStringLiteral("kelvo-mirror.socket")));
    ASSERT_TRUE(left.open(QFile::WriteOnly));
    EXPECT_EQ(copy(100ms)->claim({}, cNoShow), Claim::OtherIsSilent);
    other.end();
    const auto first = copy();
    EXPECT_EQ(first->claim({}, [&](const QByteArray&) { ++shows; }), Claim::First);
    const auto second = copy();
    EXPECT_EQ(claimAside(*second), Claim::OtherIsShown);
    EXPECT_EQ(shows, 1);
}

TEST_F(SingleCopySocketTest, ChildProcess_DoesNotInheritTheLock) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, cNoShow), Claim::First);
    int locks = 0;
    const QFileInfoList entries = QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files);
    for (const QFileInfo& entry : entries) {
        if (!entry.symLinkTarget().endsWith(u"kelvo-mirror.lock"))
            continue;
        ++locks;
        EXPECT_TRUE(::fcntl(entry.fileName().toInt(), F_GETFD) & FD_CLOEXEC);
    }
    EXPECT_EQ(locks, 1);
}

TEST_F(SingleCopySocketTest, PlaceGivenUp_IsFreeWhoeverHoldsItsDescriptors) {
    auto first = copy();
    ASSERT_EQ(first->claim({}, cNoShow), Claim::First);
    // As a child does between its start and its own program.
    const pid_t child = ::fork();
    if (child == 0) {
        ::pause();
        ::_exit(0);
    }
    first.reset();
    EXPECT_EQ(copy(100ms)->claim({}, cNoShow), Claim::First);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
}

TEST_F(SingleCopySocketTest, WhetherACopyRuns_IsSeenFromOutsideAndChangesNothing) {
    const std::string missing = folder.filePath(QStringLiteral("none")).toStdString();
    EXPECT_FALSE(SingleCopySocket::isClaimed(missing));
    EXPECT_FALSE(QFile::exists(QString::fromStdString(missing)));
    auto first = copy();
    ASSERT_EQ(first->claim({}, cNoShow), Claim::First);
    const std::string here = folder.path().toStdString();
    EXPECT_TRUE(SingleCopySocket::isClaimed(here));
    EXPECT_TRUE(SingleCopySocket::isClaimed(here)) << "it was not taken away";
    first.reset();
    EXPECT_FALSE(SingleCopySocket::isClaimed(here));
    EXPECT_EQ(copy()->claim({}, cNoShow), Claim::First) << "nor is it kept";
}

TEST_F(SingleCopySocketTest, FilesAreTheUsersAlone) {
    const auto first = copy();
    ASSERT_EQ(first->claim({}, cNoShow), Claim::First);
    struct stat status {};
    ASSERT_EQ(::stat(path("kelvo-mirror.lock").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(SingleCopySocketTest, LockThatIsALink_IsNotFollowed) {
    const std::string target = path("precious");
    ASSERT_EQ(::symlink(target.c_str(), path("kelvo-mirror.lock").c_str()), 0);
    EXPECT_EQ(copy()->claim({}, cNoShow), Claim::Unguarded);
    EXPECT_NE(::access(target.c_str(), F_OK), 0);
    EXPECT_EQ(console.logged().size(), 1);
}

TEST_F(SingleCopySocketTest, UnusableFolder_RunsUnguardedWithALine) {
    for (const char* unusable : {"", "/proc/self/fdinfo", "/proc/nowhere"}) {
        console.clear();
        SingleCopySocket single(unusable, console);
        EXPECT_EQ(single.claim({}, cNoShow), Claim::Unguarded) << unusable;
        EXPECT_TRUE(
            console.logged().join(u' ').startsWith(u"Cannot look for another running copy: "));
    }
}

TEST_F(SingleCopySocketTest, MissingFolder_IsMadeForTheUserAlone) {
    const std::string missing = path("state/Kelvo");
    SingleCopySocket single(missing, console);
    EXPECT_EQ(single.claim({}, cNoShow), Claim::First);
    struct stat status {};
    ASSERT_EQ(::stat(missing.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
}

TEST_F(SingleCopySocketTest, FolderThatOthersMayWrite_IsNotTrusted) {
    for (const mode_t mode : {0777, 01777, 0703}) {
        console.clear();
        ASSERT_EQ(::chmod(folder.path().toLocal8Bit().constData(), mode), 0);
        EXPECT_EQ(copy()->claim({}, cNoShow), Claim::Unguarded);
        EXPECT_TRUE(console.logged().join(u' ').endsWith(u"it can be written by other users"));
    }
}

TEST_F(SingleCopySocketTest, FolderThatOthersMayOnlyEnter_IsGoodEnough) {
    ASSERT_EQ(::chmod(folder.path().toLocal8Bit().constData(), 0755), 0);
    const auto first = copy();
    EXPECT_EQ(first->claim({}, cNoShow), Claim::First);
}

TEST_F(SingleCopySocketTest, PathTooLongForASocket_IsGuardedAllTheSame) {
    const std::string longer = path(std::string(120, 'x').c_str());
    SingleCopySocket first(longer, console, 100ms);
    EXPECT_EQ(first.claim({}, cNoShow), Claim::First);
    EXPECT_EQ(console.logged().size(), 1);
    SingleCopySocket second(longer, console, 100ms);
    EXPECT_EQ(second.claim({}, cNoShow), Claim::OtherIsSilent);
}

} // namespace
} // namespace kelvo
