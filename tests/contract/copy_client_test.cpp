// The asking program's end of the running copy's socket, with a real copy at the other.
#include "adapters/process/copy_client.h"
#include "adapters/process/single_copy_socket.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
    std::string place() const { return folder.path().toStdString(); }

    QTemporaryDir folder;
    RecordingConsole console;
    SingleCopySocket copy{folder.path().toStdString(), console};
};

TEST_F(CopyClientTest, Question_IsAnswered) {
    answer("well\n");
    aside([&] {
        CopyClient client(place());
        ASSERT_EQ(client.connect(5s), CopyClient::Contact::Made);
        ASSERT_TRUE(client.send("{}\n"));
        QByteArray line;
        EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::Line);
        EXPECT_EQ(line, "well");
        EXPECT_EQ(client.hear(line, 10ms), CopyClient::Heard::Silent);
    });
}

TEST_F(CopyClientTest, CopyThatHangsUp_IsHeard) {
    aside([&] {
        CopyClient client(place());
        ASSERT_EQ(client.connect(5s), CopyClient::Contact::Made);
        ASSERT_TRUE(client.send("{}\n"));
        QByteArray line;
        EXPECT_EQ(client.hear(line, 20s), CopyClient::Heard::End);
    });
}

TEST_F(CopyClientTest, LineWithoutEnd_IsNoise) {
    answer(QByteArray(Guests::cLongestLine, 'x'));
    aside([&] {
        CopyClient client(place());
        ASSERT_EQ(client.connect(5s), CopyClient::Contact::Made);
        ASSERT_TRUE(client.send("{}\n"));
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
    EXPECT_EQ(client.connect(200ms), CopyClient::Contact::Silent);
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
