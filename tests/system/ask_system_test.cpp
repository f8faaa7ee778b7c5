// The running copy asked and told from a terminal: the built program at both ends.
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/virtual_display.h"
#include "support/wait_until.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);

class AskSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    Ended run(const QString& words) const { return runToEnd(cProgram, words.split(u' ')); }

    /// A copy that rests for long and does not start by itself; `changed` stands over that.
    void startCopy(const QVariantMap& changed = {}) {
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
        profile[QStringLiteral("prefDelayBetweenScans")] = 300.0;
        profile.insert(changed);
        write(path(QStringLiteral("Camera/a.mov")), QByteArray(5000, 'a'));
        write(path(QStringLiteral("Incoming/kept.txt")), "mine");
        write(settingsFile(), plistText(profile));
        copy = std::make_unique<RunningProgram>(cProgram, arguments, withDisplay());
        ASSERT_TRUE(copy->waitForLine(QStringLiteral("Got version = "), 60))
            << copy->transcript().toStdString();
    }

    QProcessEnvironment withDisplay() const {
        QProcessEnvironment own = environment();
        if (!display.isEmpty()) {
            own.insert(QStringLiteral("DISPLAY"), display);
            own.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
            own.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        }
        return own;
    }

    QJsonObject status() const {
        return QJsonDocument::fromJson(run(QStringLiteral("--status --json")).output).object();
    }
    bool comesTo(const QString& state) const {
        return waitUntil([&] { return status().value(u"state").toString() == state; });
    }
    /// Between two passes, the next one planned.
    bool comesToRest() const {
        return waitUntil([&] { return status().value(u"nextPass").isString(); });
    }
    qint64 passes() const { return run(QStringLiteral("--passes")).output.count('\n'); }
    bool hasPasses(qint64 number) const {
        return waitUntil([&] { return passes() == number; });
    }

    /// Each command, and what comes of it, with a copy at work.
    void commandsAreObeyed() const {
        const Ended off = run(QStringLiteral("--status"));
        EXPECT_EQ(off.code, 0) << off.errors.constData();
        EXPECT_TRUE(off.output.startsWith("State:         syncing is off\n"))
            << off.output.constData();
        EXPECT_EQ(run(QStringLiteral("--sync-now")).code, 1);
        EXPECT_EQ(run(QStringLiteral("--status --max-age 2h")).code, 1) << "no success yet";

        const Ended start = run(QStringLiteral("--start"));
        EXPECT_EQ(start.code, 0) << start.errors.constData();
        EXPECT_EQ(start.output, "Syncing is on.\n");
        EXPECT_TRUE(hasPasses(1));
        EXPECT_TRUE(comesToRest());
        EXPECT_TRUE(QFile::exists(path(QStringLiteral("Incoming/a.mov"))));
        EXPECT_EQ(run(QStringLiteral("--start")).output, "Syncing is on already.\n");
        const Ended well = run(QStringLiteral("--status --max-age 2h"));
        EXPECT_EQ(well.code, 0) << well.output.constData() << well.errors.constData();
        EXPECT_TRUE(well.output.contains("Last success:  ") && well.output.contains("just now"))
            << well.output.constData();
        EXPECT_EQ(run(QStringLiteral("--status --json --max-age 0min")).code, 1);

        EXPECT_EQ(run(QStringLiteral("--sync-now")).output, "A pass begins now.\n");
        EXPECT_TRUE(hasPasses(2));
        EXPECT_EQ(run(QStringLiteral("--cancel")).code, 0);
        const Ended stop = run(QStringLiteral("--stop"));
        EXPECT_EQ(stop.code, 0) << stop.errors.constData();
        EXPECT_TRUE(stop.output.startsWith("Syncing is off")) << stop.output.constData();
        EXPECT_TRUE(comesTo(QStringLiteral("off")));
    }

    QStringList arguments{QStringLiteral("--headless")};
    VirtualDisplay server;
    QString display;
    std::unique_ptr<RunningProgram> copy;
};

TEST_F(AskSystemTest, NoCopy_IsToldFromTheRecordWithFour) {
    const Ended none = run(QStringLiteral("--status"));
    EXPECT_EQ(none.code, 4);
    EXPECT_EQ(none.output, QByteArray("State:         no copy is running\n"));
    for (const char* command : {"--start", "--stop", "--sync-now", "--cancel", "--follow"}) {
        const Ended ended = run(QString::fromLatin1(command));
        EXPECT_EQ(ended.code, 4) << command;
        EXPECT_EQ(ended.errors, "kelvo-mirror: no copy is running\n") << command;
    }
    EXPECT_FALSE(QFile::exists(path(QStringLiteral("state")))) << "nothing was made";
    write(settingsFile(), plistText(plainProfile()));
    write(path(QStringLiteral("Camera/a.mov")), QByteArray(5000, 'a'));
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    ASSERT_EQ(run(QStringLiteral("--once")).code, 0);
    const Ended after = run(QStringLiteral("--status"));
    EXPECT_EQ(after.code, 4);
    EXPECT_TRUE(after.output.contains("  All is well. (1 file, 5.0 kB, "))
        << after.output.constData();
    write(path(QStringLiteral("state/kelvo-mirror/passes.sqlite")), "no database");
    const Ended unread = run(QStringLiteral("--status"));
    EXPECT_EQ(unread.code, 4);
    EXPECT_TRUE(unread.errors.contains("the record of passes cannot be read: "))
        << unread.errors.constData();
}

TEST_F(AskSystemTest, CopyWithoutAWindow_IsAskedAndObeys) {
    startCopy();
    commandsAreObeyed();
    EXPECT_FALSE(status().value(u"window").toBool());
    EXPECT_EQ(status().value(u"process").toInteger(), copy->processId());
    EXPECT_EQ(copy->stop(), 0);
    EXPECT_EQ(run(QStringLiteral("--status")).code, 4);
}

TEST_F(AskSystemTest, CopyWithAWindow_IsAskedAndObeys) {
    display = server.start();
    if (display.isEmpty())
        GTEST_SKIP() << "no display comes up on this machine";
    arguments.clear();
    startCopy();
    commandsAreObeyed();
    EXPECT_TRUE(status().value(u"window").toBool());
    EXPECT_EQ(copy->stop(), 0);
}

TEST_F(AskSystemTest, PassThatRuns_IsToldAndCancelled) {
    const QString goOn = path(QStringLiteral("go-on"));
    ASSERT_EQ(::mkfifo(goOn.toLocal8Bit().constData(), 0600), 0);
    startCopy({{QStringLiteral("prefRsyncCommandString1"),
                QStringLiteral("read line < '%1'").arg(goOn)}});
    EXPECT_EQ(run(QStringLiteral("--start")).code, 0);
    ASSERT_TRUE(comesTo(QStringLiteral("running")));
    EXPECT_TRUE(waitUntil(
        [&] { return status().value(u"pass").toObject().value(u"step").toString() == u"pull"; }));
    EXPECT_TRUE(run(QStringLiteral("--status")).output.contains("\nPass:          Copying"));
    EXPECT_EQ(run(QStringLiteral("--sync-now")).output, "A pass runs already.\n");
    EXPECT_EQ(run(QStringLiteral("--cancel")).output, "The pass is being cancelled.\n");
    EXPECT_TRUE(hasPasses(1));
    EXPECT_TRUE(run(QStringLiteral("--passes")).output.contains("Cancelled by you."));
    EXPECT_EQ(copy->stop(), 0);
}

TEST_F(AskSystemTest, Trouble_EndsWithOneUntilItIsOver) {
    startCopy({{QStringLiteral("prefPath1"), path(QStringLiteral("unplugged"))}});
    EXPECT_EQ(run(QStringLiteral("--start")).code, 0);
    EXPECT_TRUE(waitUntil([&] { return run(QStringLiteral("--status")).code == 1; }));
    const Ended trouble = run(QStringLiteral("--status"));
    EXPECT_TRUE(trouble.output.contains("\nTrouble:       The source folder is not there.\n"))
        << trouble.output.constData();
    EXPECT_TRUE(trouble.output.contains("\nNext step:     "));
    write(path(QStringLiteral("unplugged/b.mov")), "movie");
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(run(QStringLiteral("--sync-now")).code, 0);
    EXPECT_TRUE(waitUntil([&] { return run(QStringLiteral("--status")).code == 0; }));
    EXPECT_EQ(copy->stop(), 0);
}

TEST_F(AskSystemTest, Followers_HearWhatHappensUntilTheCopyEnds) {
    startCopy();
    const QStringList follow{QStringLiteral("--follow")};
    RunningProgram reader(cProgram, follow, environment());
    RunningProgram script(cProgram, follow + QStringList{QStringLiteral("--json")}, environment());
    const auto says = [](RunningProgram& follower, const QString& text) {
        return follower.waitForLine([&](const QString& line) { return line.contains(text); }, 60)
            .has_value();
    };
    ASSERT_TRUE(says(reader, QStringLiteral("  state: syncing is off")))
        << reader.transcript().toStdString();
    ASSERT_TRUE(says(script, QStringLiteral("\"state\":\"off\"")));
    EXPECT_EQ(run(QStringLiteral("--start")).code, 0);
    EXPECT_TRUE(says(reader, QStringLiteral("  health: All is well.")))
        << reader.transcript().toStdString();
    EXPECT_TRUE(says(script, QStringLiteral("\"cause\":\"well\"")))
        << script.transcript().toStdString();
    for (const QString& line : script.lines())
        EXPECT_EQ(QJsonDocument::fromJson(line.toUtf8()).object().value(u"protocol"), 1)
            << line.toStdString();
    EXPECT_EQ(copy->stop(), 0);
    for (RunningProgram* follower : {&reader, &script}) {
        EXPECT_TRUE(waitUntil([&] {
            (void)follower->waitForLine(QStringLiteral("no such line"), 0.02);
            return !follower->isRunning();
        }));
        EXPECT_EQ(follower->exitCode(), 4) << follower->transcript().toStdString();
    }
}

} // namespace
} // namespace kelvo
