// The program at work between two real hosts: real ssh, real rsync, real faults.
#include "lab/lab_fixture.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace kelvo {
namespace {

const QString cTrying = QStringLiteral("status black: Trying to rsync");
const QString cResting = QStringLiteral("status black: Resting a bit ...");
const QString cFailed = QStringLiteral("status red: something went wrong - waiting to retry "
                                       "again... [%1]");

class SyncLabTest : public LabTest {
protected:
    static QVariantMap quickProfile() {
        QVariantMap profile = remoteProfile();
        profile[QStringLiteral("prefDelayBetweenScans")] = 0.5;
        return profile;
    }

    static QVariantMap quickProfile(const QString& key, const QVariant& value) {
        QVariantMap profile = quickProfile();
        profile[key] = value;
        return profile;
    }

    /// Waits for the end of a pass that begins after this call.
    static bool awaitWholePass(RunningProgram& program, double seconds) {
        return program.waitForLine(cTrying, 30) && program.waitForLine(cResting, seconds);
    }

    static void expectEqualFolders() {
        EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    }

    static void expectOrderlyEnd(RunningProgram& program) {
        EXPECT_EQ(program.stop(), 0) << program.transcript().toStdString();
        EXPECT_EQ(near(QStringLiteral("pgrep --ns $$ --nslist net -f '[i]d_kelvoRsync'")).output,
                  "")
            << "a command outlived the program";
    }

    /// Names that a person would take for a finished file, of files that are not finished.
    static QStringList halfFiles() {
        const Checksums wanted = remoteChecksums(cRemoteMovies);
        QStringList half;
        const Checksums here = nearChecksums(cIncoming);
        for (auto each = here.cbegin(); each != here.cend(); ++each) {
            if (wanted.contains(each.key()) && wanted[each.key()] != each.value())
                half << each.key();
        }
        return half;
    }
};

TEST_F(SyncLabTest, ValidHost_PullsEveryMovieAndNothingElse) {
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(awaitWholePass(*program, 60)) << program->transcript().toStdString();
    expectEqualFolders();
    const Checksums here = nearChecksums(cIncoming);
    EXPECT_FALSE(here.isEmpty());
    EXPECT_FALSE(here.contains(QStringLiteral("notes.txt")));
    EXPECT_EQ(near(QStringLiteral("find %1 -type d -empty").arg(cIncoming)).output, "")
        << "folders without movies stay there";
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, NewFileBetweenPasses_ComesWithTheNext) {
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(awaitWholePass(*program, 60)) << program->transcript().toStdString();
    writeRemote(cRemoteMovies + QStringLiteral("/new folder/It's new.MOV"), "fresh");
    ASSERT_TRUE(awaitWholePass(*program, 60));
    EXPECT_TRUE(nearChecksums(cIncoming).contains(QStringLiteral("new folder/It's new.MOV")));
    expectEqualFolders();
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, WrongUser_FailsAndSaysSo) {
    const auto program =
        startProgram(quickProfile(QStringLiteral("prefRemoteUsername"), QStringLiteral("nobody2")));
    EXPECT_TRUE(program->waitForLine(cFailed.arg(1), 30)) << program->transcript().toStdString();
    EXPECT_TRUE(program->waitForLine(cFailed.arg(2), 30));
    EXPECT_TRUE(nearChecksums(cIncoming).isEmpty());
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, WrongKey_FailsAndRecoversWhenTheRightOneIsBack) {
    near(QStringLiteral("cd .ssh && mkdir kept && mv id_kelvoRsync* kept/ && "
                        "ssh-keygen -q -N '' -f id_kelvoRsync"));
    const auto program = startProgram(quickProfile());
    EXPECT_TRUE(program->waitForLine(cFailed.arg(1), 30)) << program->transcript().toStdString();
    near(QStringLiteral("cd .ssh && mv kept/* . "));
    EXPECT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 30));
    expectEqualFolders();
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, MissingKey_RaisesItsOwnAlertAtTheTenthFailure) {
    near(QStringLiteral("rm -f .ssh/id_kelvoRsync*"));
    const auto program = startProgram(quickProfile());
    EXPECT_TRUE(program->waitForLine(cFailed.arg(10), 90)) << program->transcript().toStdString();
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("alert: Unable to Reach Remote Host | Missing ssh keys -\\nPlease generate "
                       "ssh keys\\n and \\n try again...\\n"),
        10));
    EXPECT_TRUE(program->waitForLine(cTrying, 15)) << "the alert answers itself";
    EXPECT_TRUE(program->waitForLine(cFailed.arg(1), 15)) << "and counts from the start";
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, CableCut_FailsWithinTheTimeOutAndRecovers) {
    const auto program =
        startProgram(quickProfile(QStringLiteral("prefRemoteBonjourName"), cRemoteAddress));
    ASSERT_TRUE(awaitWholePass(*program, 60)) << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(cResting, 30));
    lab({QStringLiteral("link"), QStringLiteral("cut")});
    ASSERT_TRUE(program->waitForLine(cTrying, 30));
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(program->waitForLine(cFailed.arg(1), 60)) << program->transcript().toStdString();
    RecordProperty("milliseconds_to_failure", static_cast<int>(clock.elapsed()));
    EXPECT_LT(clock.elapsed(), 30000)
        << "the connect time-out is three seconds, the system's own minutes";
    lab({QStringLiteral("link"), QStringLiteral("up")});
    EXPECT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 30));
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, SshdStoppedInMidTransfer_NextPassCompletes) {
    remote(QStringLiteral("head -c 40000000 /dev/urandom > Movies/large.mov"));
    lab({QStringLiteral("slow"), QStringLiteral("40mbit")});
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to check valid user"), 30));
    const CommandResult begun = near(
        QStringLiteral("for i in $(seq 600); do find Incoming -name '.large.mov.*' -size +2000k "
                       "| grep -q . && exit 0; sleep 0.05; done; exit 1"));
    ASSERT_EQ(begun.exitCode, 0) << "the transfer did not begin\n"
                                 << program->transcript().toStdString();
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    remote(QStringLiteral("pkill --ns $$ --nslist net -KILL -u mediauser"));
    EXPECT_EQ(halfFiles(), QStringList());
    ASSERT_TRUE(program->waitForLine(QStringLiteral("status red: "), 30))
        << program->transcript().toStdString();
    EXPECT_EQ(halfFiles(), QStringList());
    lab({QStringLiteral("slow"), QStringLiteral("off")});
    lab({QStringLiteral("sshd"), QStringLiteral("start")});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 60));
    expectEqualFolders();
    expectOrderlyEnd(*program);
    EXPECT_EQ(near(QStringLiteral("find Incoming -name '.kelvo-partial'")).output, "");
}

TEST_F(SyncLabTest, TwoThousandFiles_AllArrive) {
    remote(QStringLiteral(
        "cd Movies && for d in $(seq 40); do mkdir -p \"many/a $d/b/c\"; for f in $(seq 50); do "
        "echo \"$d $f\" > \"many/a $d/b/c/clip $f.mp4\"; done; done"));
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(awaitWholePass(*program, 120)) << program->transcript().toStdString();
    EXPECT_GE(nearChecksums(cIncoming).size(), 2000);
    expectEqualFolders();
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, FileOfOneGigabyte_Arrives) {
    remote(QStringLiteral("head -c 1073741824 /dev/zero > Movies/giant.mkv"));
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(awaitWholePass(*program, 170)) << program->transcript().toStdString();
    EXPECT_EQ(near(QStringLiteral("stat -c %s Incoming/giant.mkv")).output.trimmed(), "1073741824");
    EXPECT_EQ(near(QStringLiteral("cmp -n 1073741824 Incoming/giant.mkv /dev/zero")).exitCode, 0);
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, FileThatGrowsWhilePulled_IsWholeInTheEnd) {
    const CommandResult growing = remote(
        QStringLiteral("(for i in $(seq 60); do head -c 500000 /dev/urandom; sleep 0.1; done "
                       "> Movies/growing.mov) >/dev/null 2>&1 &"));
    ASSERT_EQ(growing.exitCode, 0);
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(awaitWholePass(*program, 60)) << program->transcript().toStdString();
    const CommandResult grown =
        remote(QStringLiteral("for i in $(seq 600); do [ $(stat -c %s Movies/growing.mov) -ge "
                              "30000000 ] && exit 0; sleep 0.05; done; exit 1"));
    ASSERT_EQ(grown.exitCode, 0);
    ASSERT_TRUE(awaitWholePass(*program, 60));
    ASSERT_TRUE(awaitWholePass(*program, 60));
    expectEqualFolders();
    expectOrderlyEnd(*program);
}

TEST_F(SyncLabTest, LocalDiskFull_TheCycleGoesOnAndNothingEarlierIsLost) {
    ASSERT_EQ(near(QStringLiteral("mkdir -p Small && mount -t tmpfs -o size=2m tmpfs Small && "
                                  "echo mine > Small/earlier.mov"))
                  .exitCode,
              0);
    remote(QStringLiteral("head -c 8000000 /dev/urandom > Movies/too-large.mov"));
    const auto program = startProgram(
        quickProfile(QStringLiteral("prefPath2"), QString(cNearHome + QStringLiteral("/Small"))));
    EXPECT_TRUE(program->waitForLine(
        [](const QString& line) { return line.contains(u"No space left on device"); }, 60))
        << program->transcript().toStdString();
    EXPECT_TRUE(awaitWholePass(*program, 60)) << "the next pass comes all the same";
    EXPECT_EQ(near(QStringLiteral("cat Small/earlier.mov")).output, "mine\n");
    EXPECT_NE(near(QStringLiteral("test -e Small/too-large.mov")).exitCode, 0)
        << "no half file under a final name";
    expectOrderlyEnd(*program);
    near(QStringLiteral("umount Small"));
}

TEST_F(SyncLabTest, QuitInMidTransfer_LeavesNothingRunning) {
    remote(QStringLiteral("head -c 40000000 /dev/urandom > Movies/large.mov"));
    lab({QStringLiteral("slow"), QStringLiteral("20mbit")});
    const auto program = startProgram(quickProfile());
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to check valid user"), 30));
    ASSERT_EQ(near(QStringLiteral("for i in $(seq 600); do find Incoming -name '.large.mov.*' "
                                  "| grep -q . && exit 0; sleep 0.05; done; exit 1"))
                  .exitCode,
              0);
    expectOrderlyEnd(*program);
    EXPECT_EQ(halfFiles(), QStringList());
}

TEST_F(SyncLabTest, PlainPass_CopiesBetweenFoldersHere) {
    writeNear(cNearHome + QStringLiteral("/Camera/clip one.MP4"), "one");
    writeNear(cNearHome + QStringLiteral("/Camera/readme.txt"), "no");
    QVariantMap profile = quickProfile(QStringLiteral("prefRsyncWithSSH"), false);
    profile[QStringLiteral("prefPath1")] = QString(cNearHome + QStringLiteral("/Camera"));
    const auto program = startProgram(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to send = "), 30));
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to send = "), 30)) << "and once more";
    EXPECT_EQ(nearChecksums(cIncoming).keys(), QStringList{QStringLiteral("clip one.MP4")});
    expectOrderlyEnd(*program);
}

} // namespace
} // namespace kelvo
