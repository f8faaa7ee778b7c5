// The asking program's end of the running copy's socket, with a real copy at the other.
#include "adapters/process/copy_client.h"
#include "adapters/process/local_socket.h"
#include "adapters/process/single_copy_socket.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Claim = SingleCopy::Claim;
using Id = Guests::Id;

const SingleCopy::Show cNoShow = [](const QByteArray&) {};

class CopyClientTest : public ::testing::Test {
protected:
    CopyClientTest() { EXPECT_EQ(copy.claim({}, cNoShow), Claim::First); }

    /// From now on each guest is told `line`.
    void answer(const QByteArray& line) {
        copy.receive(
            {.said = [this, line](Id guest,
                                  const QByteArray&) { EXPECT_TRUE(copy.say(guest, line)); },
             .left = [](Id) {}});
    }
    /// Does `work` on a thread of its own while the copy's event loop runs.
    template <typename Work>
    void aside(Work work) {
        std::atomic<bool> done = false;
        std::thread thread([&] {
            work();
            done = true;
        });
        EXPECT_TRUE(waitInLoop([&] { return done.load(); }));
        thread.join();
    }
    /// `work` goes on, aside, with a client that has asked.
    template <typename Work>
    void asksAside(Work work) {
        aside([&] {
            CopyClient client(place());
            ASSERT_EQ(client.connect(5s), CopyClient::Contact::Made);
            ASSERT_TRUE(client.send("{}\n"));
            work(client);
        });
    }
    std::string place() const { return folder.path().toStdString(); }

    QTemporaryDir folder;
    RecordingConsole console;
    SingleCopySocket copy{folder.path().toStdString(), console};
};

TEST_F(CopyClientTest, Question_IsAnswered) {
    answer("well\n");
    asksAside([&](CopyClient& client) {
        QByteArray line;
        EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::Line);
        EXPECT_EQ(line, "well");
        EXPECT_EQ(client.hear(line, 10ms), CopyClient::Heard::Silent);
        EXPECT_EQ(client.hear(line, 0ms), CopyClient::Heard::Silent);
    });
}

TEST_F(CopyClientTest, LinesThatComeTogether_AreHeardOneByOne) {
    answer("\none\n\ntwo\n");
    asksAside([&](CopyClient& client) {
        for (const char* expected : {"", "one", "", "two"}) {
            QByteArray line = "not heard";
            EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::Line);
            EXPECT_EQ(line, expected);
        }
    });
}

TEST_F(CopyClientTest, LongestLine_IsHeardAndALongerOneIsNoise) {
    for (const qsizetype size : {Guests::cLongestLine - 1, Guests::cLongestLine}) {
        // A line before it, so that its own end does not come alone.
        answer("first\n" + QByteArray(size, 'x') + '\n');
        asksAside([&](CopyClient& client) {
            QByteArray line;
            EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::Line);
            line.clear();
            const auto heard = client.hear(line, 20s);
            EXPECT_EQ(heard, size < Guests::cLongestLine ? CopyClient::Heard::Line
                                                         : CopyClient::Heard::Noise);
            EXPECT_EQ(line.size(), heard == CopyClient::Heard::Line ? size : 0);
        });
    }
}

TEST_F(CopyClientTest, CopyThatHangsUp_IsHeard) {
    asksAside([&](CopyClient& client) {
        QByteArray line;
        EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::End);
    });
}

TEST_F(CopyClientTest, LineWithoutEnd_IsNoise) {
    answer(QByteArray(Guests::cLongestLine, 'x'));
    asksAside([&](CopyClient& client) {
        QByteArray line;
        EXPECT_EQ(client.hear(line, -1ms), CopyClient::Heard::Noise);
    });
}

TEST(CopyContactTest, NoCopy_IsSaidAtOnceAndNothingIsMade) {
    const QTemporaryDir folder;
    CopyClient client(folder.path().toStdString());
    EXPECT_EQ(client.connect(1h), CopyClient::Contact::NoneRuns);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    RecordingConsole console;
    {
        SingleCopySocket copy(folder.path().toStdString(), console);
        ASSERT_EQ(copy.claim({}, cNoShow), Claim::First);
    }
    EXPECT_EQ(client.connect(1h), CopyClient::Contact::NoneRuns) << "its lock file is left";
    SingleCopySocket next(folder.path().toStdString(), console);
    EXPECT_EQ(next.claim({}, cNoShow), Claim::First) << "no lock is kept";
}

TEST(CopyContactTest, CopyWithoutASocket_IsSilent) {
    const QTemporaryDir folder;
    const std::string longer = folder.filePath(QString(120, u'x')).toStdString();
    RecordingConsole console;
    SingleCopySocket copy(longer, console, 100ms);
    ASSERT_EQ(copy.claim({}, cNoShow), Claim::First);
    CopyClient client(longer);
    timespec before{};
    timespec after{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
    EXPECT_EQ(client.connect(1s), CopyClient::Contact::Silent);
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
    const auto worked = static_cast<double>(after.tv_sec - before.tv_sec) +
                        static_cast<double>(after.tv_nsec - before.tv_nsec) / 1e9;
    EXPECT_LT(worked, 0.2) << "seconds; it waits in its sleep";
}

TEST(CopyPlaceTest, WhatIsNoLockOfOurs_IsNoCopy) {
    const QTemporaryDir folder;
    const std::string here = folder.path().toStdString();
    const std::string other = here + "/other";
    const UniqueFd held(::open(other.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(held.get(), LOCK_EX), 0);
    ASSERT_EQ(::symlink("other", copyLockPath(here).c_str()), 0);
    EXPECT_FALSE(CopyClient::placeIsTaken(here)) << "a link leads elsewhere";
    ASSERT_EQ(::unlink(copyLockPath(here).c_str()), 0);
    ASSERT_EQ(::mkfifo(copyLockPath(here).c_str(), 0600), 0);
    EXPECT_FALSE(CopyClient::placeIsTaken(here)) << "a pipe is not waited for";
}

TEST(CopyPlaceTest, WhetherItIsTaken_IsSeenFromOutsideAndChangesNothing) {
    const QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("none"));
    EXPECT_FALSE(CopyClient::placeIsTaken(missing.toStdString()));
    EXPECT_FALSE(QFile::exists(missing));
    RecordingConsole console;
    const std::string here = folder.path().toStdString();
    auto first = std::make_unique<SingleCopySocket>(here, console);
    ASSERT_EQ(first->claim({}, cNoShow), Claim::First);
    EXPECT_TRUE(CopyClient::placeIsTaken(here));
    EXPECT_TRUE(CopyClient::placeIsTaken(here)) << "it was not taken away";
    first.reset();
    EXPECT_FALSE(CopyClient::placeIsTaken(here));
    EXPECT_EQ(SingleCopySocket(here, console).claim({}, cNoShow), Claim::First) << "nor is it kept";
}

} // namespace
} // namespace kelvo
