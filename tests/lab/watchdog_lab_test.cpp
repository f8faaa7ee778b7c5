// The program dies between two real hosts, and its sentinel brings it back to its work.
#include "lab/lab_fixture.h"
#include "support/descendants.h"
#include "support/wait_until.h"

#include <signal.h>
#include <sys/wait.h>

#include <algorithm>
#include <vector>

namespace kelvo {
namespace {

const QString cRelaunched =
    QStringLiteral("automatically relaunched due to unexpected termination");
const QString cMovieResult = QStringLiteral("result from movie shell command =");

class WatchdogLabTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        adoptOrphans();
    }
    void TearDown() override { endAllDescendants("watchdog"); }

    static qsizetype logged(const QString& text) {
        return near(QStringLiteral("cat .local/state/Kelvo/kelvo-mirror.log"))
            .output.count(text.toUtf8());
    }

    /// What transfers: the living rsync and ssh processes of the program.
    static std::vector<pid_t> transfers() {
        std::vector<pid_t> found;
        for (const Descendant& each : descendants()) {
            if (!each.ended && (each.name == "rsync" || each.name == "ssh"))
                found.push_back(each.pid);
        }
        return found;
    }

    static bool awaitTransfer() {
        return near(QStringLiteral("for i in $(seq 600); do find Incoming -name '.large.mov.*' "
                                   "-size +2000k | grep -q . && exit 0; sleep 0.05; done; exit 1"))
                   .exitCode == 0;
    }
};

TEST_F(WatchdogLabTest, KilledInMidTransfer_IsBackAndTheNextPassCompletes) {
    remote(QStringLiteral("head -c 40000000 /dev/urandom > Movies/large.mov"));
    lab({QStringLiteral("slow"), QStringLiteral("20mbit")});
    const auto program = startProgram(remoteProfile());
    ASSERT_TRUE(awaitTransfer()) << program->transcript().toStdString();
    const auto first = static_cast<pid_t>(program->processId());
    const auto sentinel = livingChild(first, "watchdog");
    ASSERT_TRUE(sentinel);
    const std::vector<pid_t> before = transfers();
    ASSERT_GE(before.size(), 2U) << "rsync and its ssh";
    ASSERT_EQ(logged(cRelaunched), 0);

    ::kill(first, SIGKILL);
    ASSERT_TRUE(waitUntil([] { return logged(cRelaunched) == 1; }));
    const std::vector<pid_t> after = transfers();
    for (const pid_t old : before)
        EXPECT_EQ(std::ranges::count(after, old), 0) << "an old command writes on";
    EXPECT_NE(near(QStringLiteral("test -e Incoming/large.mov")).exitCode, 0)
        << "half a file under its final name";

    const qsizetype results = logged(cMovieResult);
    ASSERT_TRUE(waitUntil([] { return transfers().size() >= 2; })) << "the next pass takes it up";
    EXPECT_EQ(near(QStringLiteral("find Incoming -name '*large.mov*' | wc -l")).output.trimmed(),
              "1")
        << "what came before the kill is kept, and has one writer";
    lab({QStringLiteral("slow"), QStringLiteral("off")});
    ASSERT_TRUE(waitUntil([&] { return logged(cMovieResult) > results; }, std::chrono::minutes(1)));
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_EQ(near(QStringLiteral("find Incoming -name '.kelvo-partial'")).output, "");

    EXPECT_EQ(program->stop(), -1) << "the first one died of the signal";
    ::kill(*sentinel, SIGTERM);
    const auto status = statusOf(*sentinel);
    ASSERT_TRUE(status) << "the sentinel has become the program";
    EXPECT_TRUE(WIFEXITED(*status) && WEXITSTATUS(*status) == 0) << *status;
    EXPECT_TRUE(allEnd()) << "something is left";
    EXPECT_EQ(logged(cRelaunched), 1);
}

} // namespace
} // namespace kelvo
