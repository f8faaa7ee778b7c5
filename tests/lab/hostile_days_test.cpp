// Days on which the world is against the program. After each of them, once the world is well again,
// the folders are equal within two passes. Each prints a row: the day, what it took, how long.
#include "lab/lab_fixture.h"
#include "support/sanitized.h"

#include <QDateTime>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

namespace kelvo {
namespace {

constexpr int cMostPasses = 2;
constexpr double cPassSeconds = 60;
const QString cClockFile = cNearHome + QStringLiteral("/clock");

class HostileDaysTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        // A transfer of several seconds, so that the day falls into it.
        remote(QStringLiteral("head -c 12000000 /dev/urandom > Movies/large.mov"));
        lab({QStringLiteral("slow"), QStringLiteral("20mbit")});
        fDay.start();
    }

    static QVariantMap quickProfile() {
        QVariantMap profile = remoteProfile();
        profile[QStringLiteral("prefDelayBetweenScans")] = 0.5;
        return profile;
    }

    void start() { fProgram = startProgram(quickProfile()); }

    /// A program, with all its commands, whose time of day is off by what the clock file says.
    void startWithClock() {
        moveClock(0);
        fProgram =
            startProgramBy({QStringLiteral("env"), QStringLiteral("LD_PRELOAD=" KELVO_MOVED_CLOCK),
                            QStringLiteral("MOVED_CLOCK=") + cClockFile},
                           quickProfile());
    }

    static void moveClock(int hours) { writeNear(cClockFile, QByteArray::number(hours * 3600)); }

    void passOverLines() {
        while (fProgram->waitForLine(QString(), 0)) {
        }
    }

    void awaitTransfer() {
        const CommandResult begun = near(
            QStringLiteral("for i in $(seq 600); do find Incoming -name '.large.mov.*' -size +500k "
                           "| grep -q . && exit 0; sleep 0.05; done; exit 1"));
        ASSERT_EQ(begun.exitCode, 0) << "the transfer did not begin\n"
                                     << fProgram->transcript().toStdString();
    }

    /// Whether a pass that begins from now on has come to its end.
    bool awaitPass(RunningProgram& program) {
        const auto ended = [this](const QString& line) {
            fLastCommand = fLastCommand || line == u"result from movie shell command =";
            return line == u"NEED to handle possible ERROR:" ||
                   (fLastCommand && line == u"======== done ========");
        };
        fLastCommand = false;
        return program.waitForLine(QStringLiteral("status black: Trying to rsync"), cPassSeconds) &&
               program.waitForLine(ended, cPassSeconds);
    }

    static bool equalFolders() {
        const Checksums wanted = moviesOf(remoteChecksums(cRemoteMovies));
        return !wanted.isEmpty() && nearChecksums(cIncoming) == wanted;
    }

    /// From the earliest time of day to the latest in the lines of the system log.
    double hoursOfTheLog() const {
        QDateTime first;
        QDateTime last;
        for (const QString& line : fProgram->transcript().split(u'\n')) {
            const auto time =
                QDateTime::fromString(line.left(23), QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
            if (!time.isValid())
                continue;
            first = first.isValid() ? std::min(first, time) : time;
            last = last.isValid() ? std::max(last, time) : time;
        }
        return static_cast<double>(first.secsTo(last)) / 3600;
    }

    /// The world is well again: counts the passes until the folders are equal, prints the row.
    void expectRecovery(const char* day) {
        lab({QStringLiteral("slow"), QStringLiteral("off")});
        passOverLines();
        int passes = 0;
        bool equal = false;
        while (!equal && passes < cMostPasses) {
            ASSERT_TRUE(awaitPass(*fProgram)) << fProgram->transcript().right(4000).toStdString();
            ++passes;
            equal = equalFolders();
        }
        std::printf("day | %-44s | %6d | %-5s | %7.1f\n", day, passes, equal ? "yes" : "NO",
                    static_cast<double>(fDay.elapsed()) / 1000);
        EXPECT_TRUE(equal) << fProgram->transcript().right(4000).toStdString();
        EXPECT_EQ(fProgram->stop(), 0);
        EXPECT_EQ(near(QStringLiteral("pgrep --ns $$ --nslist net -f '[i]d_kelvoRsync'")).output,
                  "")
            << "a command outlived the program";
    }

    std::unique_ptr<RunningProgram> fProgram;

private:
    QElapsedTimer fDay;
    bool fLastCommand = false;
};

TEST_F(HostileDaysTest, LinkThatFlapsEverySecond) {
    start();
    awaitTransfer();
    for (int second = 0; second < 8; ++second) {
        lab({QStringLiteral("link"), QStringLiteral("cut")});
        near(QStringLiteral("sleep 0.5"));
        lab({QStringLiteral("link"), QStringLiteral("up")});
        near(QStringLiteral("sleep 0.5"));
    }
    expectRecovery("link flaps every second for 8 s");
}

TEST_F(HostileDaysTest, ThirdOfThePacketsLost) {
    const CommandResult dropping = lab({QStringLiteral("drop"), QStringLiteral("30")});
    if (dropping.exitCode != 0)
        GTEST_SKIP() << dropping.output.constData();
    lab({QStringLiteral("drop"), QStringLiteral("off")});
    start();
    awaitTransfer();
    lab({QStringLiteral("drop"), QStringLiteral("30")});
    near(QStringLiteral("sleep 12"));
    lab({QStringLiteral("drop"), QStringLiteral("off")});
    expectRecovery("30 % of the packets lost both ways for 12 s");
}

TEST_F(HostileDaysTest, SshdStartedAnewInMidTransfer) {
    start();
    awaitTransfer();
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    remote(QStringLiteral("pkill --ns $$ --nslist net -KILL -u mediauser"));
    lab({QStringLiteral("sshd"), QStringLiteral("start")});
    expectRecovery("sshd started anew in mid-transfer");
}

/// Whoever reads from the disk gets a tenth of the time, and once nothing for longer than rsync's
/// own time-out, as when a disk spins up.
TEST_F(HostileDaysTest, RemoteDiskThatIsSlow) {
    start();
    awaitTransfer();
    const CommandResult slowed = remote(QStringLiteral(
        "signal() { pkill --ns $$ --nslist net -$1 -u mediauser -x rsync; }; signal STOP || exit "
        "1; "
        "for i in $(seq 30); do signal STOP; sleep 0.18; signal CONT; sleep 0.02; done; "
        "signal STOP; sleep 7; signal CONT; exit 0"));
    ASSERT_EQ(slowed.exitCode, 0) << "there was nobody to slow down";
    expectRecovery("remote disk slow for 6 s, silent for 7 s");
}

TEST_F(HostileDaysTest, ClockMovedByHoursBothWays) {
    if (cSanitized)
        GTEST_SKIP() << "a sanitizer must come before every preloaded library";
    startWithClock();
    awaitTransfer();
    for (const int hours : {5, -9, 0}) {
        moveClock(hours);
        passOverLines(); // the pass that runs began by the clock of before
        ASSERT_TRUE(awaitPass(*fProgram))
            << hours << fProgram->transcript().right(4000).toStdString();
    }
    remote(QStringLiteral("echo fresh > Movies/fresh.mov"));
    moveClock(-3);
    expectRecovery("clock moved by +5 h, -9 h, 0 and -3 h");
    EXPECT_GT(hoursOfTheLog(), 13) << "the clock did not move";
}

TEST_F(HostileDaysTest, SshStandsStillForTwentySeconds) {
    start();
    awaitTransfer();
    const CommandResult stopped =
        near(QStringLiteral("pkill --ns $$ --nslist net -STOP -x ssh || exit 1; sleep 20; "
                            "pkill --ns $$ --nslist net -CONT -x ssh; exit 0"));
    ASSERT_EQ(stopped.exitCode, 0) << "there was no ssh to stop";
    expectRecovery("ssh stands still for 20 s");
}

TEST_F(HostileDaysTest, RemoteRsyncKilled) {
    start();
    for (int times = 0; times < 2; ++times) {
        awaitTransfer();
        EXPECT_EQ(remote(QStringLiteral("pkill --ns $$ --nslist net -KILL -u mediauser -x rsync"))
                      .exitCode,
                  0);
        near(QStringLiteral("rm -rf Incoming/.large.mov.* Incoming/.kelvo-partial"));
    }
    expectRecovery("remote rsync killed twice");
}

} // namespace
} // namespace kelvo
