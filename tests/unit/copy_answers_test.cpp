// What a terminal is told of a running copy's answers, whatever comes as one.
#include "app/commands/ask.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QDateTime cNow(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);

PassRecord pass(PassCause cause, int minutesAgo) {
    PassRecord record;
    record.kind = PassKind::Remote;
    record.verdict = HostVerdict::Valid;
    record.began = cNow.addSecs(-60 * minutesAgo);
    record.cause = cause;
    record.seconds = 4;
    record.transfer = {TransferSource::Statistics, 3, 40'000};
    return record;
}

const CopyFacts cCopy{.version = QStringLiteral("1.2.3"),
                      .process = 4711,
                      .since = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC),
                      .window = false};

QByteArray lineOf(const QJsonObject& object) {
    return answerLine(object).chopped(1);
}

class CopyAnswersTest : public ::testing::Test {
protected:
    Told statusOfWork(std::optional<qint64> maxAge = {}, bool json = false) const {
        CopyAnswers answers({CopyVerb::Status, json, maxAge});
        return answers.heard(lineOf(statusOf(work, cCopy, cNow)), cNow);
    }

    WorkFacts work;
};

TEST_F(CopyAnswersTest, Status_IsLinesForPeople) {
    work.phase = WorkPhase::Resting;
    work.nextPass = 23;
    work.standing.add(pass(PassCause::Well, 6));
    const Told told = statusOfWork();
    EXPECT_EQ(told.exitCode, 0);
    EXPECT_TRUE(told.ends);
    EXPECT_EQ(told.errors, QString());
    EXPECT_EQ(told.output,
              QStringLiteral(
                  "State:         resting\n"
                  "Next pass:     in 23 s\n"
                  "Last pass:     2026-03-01T11:54:00Z  All is well. (3 files, 40.0 kB, 4 s)\n"
                  "Last success:  2026-03-01T11:54:00Z, 6 minutes ago\n"
                  "Program:       Kelvo Mirror 1.2.3, process 4711, since 2026-03-01T09:00:00Z, "
                  "without a window\n"))
        << told.output.toStdString();
}

TEST_F(CopyAnswersTest, PassThatRuns_IsToldWithItsProgress) {
    work.phase = WorkPhase::Running;
    work.pass =
        PassUnderWay{.kind = PassKind::Remote, .began = cNow, .command = {}, .progress = {}};
    work.pass->progress = {.step = PassStep::Movies,
                           .file = QStringLiteral("a\x1b[2Jb.mov"),
                           .filesDone = 6,
                           .filesKnown = 15,
                           .bytesDone = 18'200'000'000,
                           .bytesKnown = 37'600'000'000,
                           .share = 0.48,
                           .bytesPerSecond = 92e6,
                           .secondsLeft = 240};
    EXPECT_TRUE(statusOfWork().output.contains(
        u"Pass:          Movies, 48 %, file 7 of 15, 18.2 of 37.6 GB, 92.0 MB/s, about 4 min, "
        u"a\\x1b[2Jb.mov\n"))
        << statusOfWork().output.toStdString();
    work.pass->progress = {.step = PassStep::AskingTheMac};
    EXPECT_TRUE(statusOfWork().output.contains(u"Pass:          Asking the Mac\n"));
}

TEST_F(CopyAnswersTest, Trouble_EndsWithOneAndNamesTheNextStep) {
    work.phase = WorkPhase::Resting;
    work.standing.add(pass(PassCause::Well, 60));
    work.standing.add(pass(PassCause::HostAway, 10));
    work.standing.add(pass(PassCause::HostAway, 5));
    const Told told = statusOfWork();
    EXPECT_EQ(told.exitCode, 1);
    EXPECT_TRUE(told.output.contains(
        u"Trouble:       The Mac is away or asleep.\n"
        u"Next step:     Wake the Mac; in its energy settings, let it wake for network access.\n"
        u"Since:         2026-03-01T11:50:00Z (2 passes)\n"))
        << told.output.toStdString();
    work.standing = {};
    work.settings.fault = QStringLiteral("the settings cannot be saved");
    EXPECT_EQ(statusOfWork().exitCode, 1) << "no pass has failed, but nothing is kept";
    work.settings = {};
    work.missing = {{QStringLiteral("rsync fehlt"), Remedy::CopyInstallCommand}};
    EXPECT_EQ(statusOfWork().exitCode, 1);
    EXPECT_FALSE(statusOfWork().output.contains(u"fehlt")) << "English in any language";
    work.standing.fault = QStringLiteral("disk full");
    work.missing = {};
    EXPECT_EQ(statusOfWork().exitCode, 1);
    work.standing.fault.clear();
    EXPECT_EQ(statusOfWork().exitCode, 0);
}

TEST_F(CopyAnswersTest, MaxAge_JudgesTheLastSuccess) {
    EXPECT_EQ(statusOfWork(7200).exitCode, 1) << "there was none";
    work.standing.add(pass(PassCause::Well, 120));
    EXPECT_EQ(statusOfWork(7200).exitCode, 0);
    const Told old = statusOfWork(7199);
    EXPECT_EQ(old.exitCode, 1);
    EXPECT_TRUE(old.errors.contains(u"--max-age")) << old.errors.toStdString();
    EXPECT_TRUE(old.output.contains(u"2 hours ago"));
}

TEST_F(CopyAnswersTest, Json_IsOneObjectWithTheExitCode) {
    work.standing.add(pass(PassCause::KeyRefused, 1));
    const Told told = statusOfWork({}, true);
    EXPECT_EQ(told.output.count(u'\n'), 1);
    const QJsonObject object = QJsonDocument::fromJson(told.output.toUtf8()).object();
    EXPECT_EQ(object.value(u"exitCode"), 1);
    EXPECT_EQ(object.value(u"troubles").toArray().first().toObject().value(u"cause"),
              QStringLiteral("key-refused"));
}

TEST_F(CopyAnswersTest, NoCopy_IsToldFromTheRecord) {
    Standing standing;
    standing.add(pass(PassCause::Well, 6));
    const Told told = CopyAnswers({CopyVerb::Status}).noneRuns(standing, cNow);
    EXPECT_EQ(told.exitCode, 4);
    EXPECT_TRUE(told.output.startsWith(u"State:         no copy is running\n"));
    EXPECT_TRUE(told.output.contains(u"Last success:  2026-03-01T11:54:00Z, 6 minutes ago\n"));
    EXPECT_EQ(told.errors, QString());
    standing.fault = QStringLiteral("file is\nno database");
    const Told unread = CopyAnswers({CopyVerb::Status}).noneRuns(standing, cNow);
    EXPECT_EQ(unread.exitCode, 4);
    EXPECT_EQ(unread.errors,
              u"kelvo-mirror: the record of passes cannot be read: file is\\x0ano database\n");
    EXPECT_EQ(unread.output, told.output);
    for (const CopyVerb verb : {CopyVerb::Start, CopyVerb::Cancel, CopyVerb::Follow}) {
        const Told other = CopyAnswers({verb}).noneRuns({}, cNow);
        EXPECT_EQ(other.exitCode, 4);
        EXPECT_EQ(other.errors, u"kelvo-mirror: no copy is running\n");
    }
}

TEST_F(CopyAnswersTest, Follower_ReadsALineForEachThing) {
    CopyAnswers answers({CopyVerb::Follow});
    work.phase = WorkPhase::Resting;
    const auto heard = [&](const QJsonObject& event) {
        const Told told = answers.heard(lineOf(event), cNow);
        EXPECT_FALSE(told.ends);
        return told.output;
    };
    const auto event = [](QStringView kind, const QString& text) {
        QJsonObject object = answerOf(kind);
        object.insert(QStringLiteral("text"), text);
        return object;
    };
    EXPECT_EQ(heard(statusOf(work, cCopy, cNow)), u"2026-03-01T12:00:00Z  state: resting\n");
    work.standing.add(pass(PassCause::Well, 0));
    EXPECT_EQ(heard(statusOf(work, cCopy, cNow)), u"2026-03-01T12:00:00Z  health: All is well.\n");
    EXPECT_EQ(heard(statusOf(work, cCopy, cNow)), QString());
    QJsonObject message = event(u"message", QStringLiteral("two\nlines\x9b"));
    message.insert(QStringLiteral("color"), QStringLiteral("red"));
    EXPECT_EQ(heard(message), u"2026-03-01T12:00:00Z  status red: two\\x0alines\\x9b\n");
    QJsonObject alert = event(u"alert", QStringLiteral("x"));
    alert.insert(QStringLiteral("title"), QStringLiteral("T"));
    EXPECT_EQ(heard(alert), u"2026-03-01T12:00:00Z  alert: T | x\n");
    QJsonObject progress = answerOf(u"progress");
    progress.insert(QStringLiteral("pass"),
                    QJsonObject{{QStringLiteral("step"), QStringLiteral("movies")},
                                {QStringLiteral("share"), 0.5}});
    EXPECT_EQ(heard(progress), u"2026-03-01T12:00:00Z  progress: Movies, 50 %\n");
    EXPECT_EQ(heard(event(u"later", QStringLiteral("x"))), QString()) << "of a later version";

    const Told dropped =
        answers.heard(lineOf(event(u"dropped", QStringLiteral("Too slow."))), cNow);
    EXPECT_TRUE(dropped.ends);
    EXPECT_EQ(dropped.exitCode, 1);
    EXPECT_EQ(dropped.errors, u"kelvo-mirror: Too slow.\n");
    EXPECT_EQ(answers.hungUp().exitCode, 4);
}

TEST_F(CopyAnswersTest, WishThatIsRefused_EndsWithOne) {
    CopyAnswers answers({CopyVerb::SyncNow});
    QJsonObject refused = answerOf(u"refused");
    refused.insert(QStringLiteral("text"), QStringLiteral("No."));
    const Told told = answers.heard(lineOf(refused), cNow);
    EXPECT_EQ(told.exitCode, 1);
    EXPECT_EQ(told.errors, u"kelvo-mirror: No.\n");
    QJsonObject done = answerOf(u"done");
    done.insert(QStringLiteral("text"), QStringLiteral("Yes."));
    EXPECT_EQ(answers.heard(lineOf(done), cNow).output, u"Yes.\n");
    EXPECT_EQ(answers.heard(lineOf(done), cNow).exitCode, 0);
}

TEST_F(CopyAnswersTest, OtherVersions_AreNamed) {
    CopyAnswers answers({CopyVerb::Status});
    EXPECT_TRUE(answers.hungUp().errors.contains(u"earlier version"));
    EXPECT_EQ(answers.hungUp().exitCode, 1);
    const Told later = answers.heard(R"({"protocol":2,"event":"status"})", cNow);
    EXPECT_EQ(later.exitCode, 1);
    EXPECT_TRUE(later.errors.contains(u"protocol 2 instead of 1")) << later.errors.toStdString();
}

TEST_F(CopyAnswersTest, NonsenseAnswers_AreSurvived) {
    for (const char* line :
         {"", "{", "shown", "[1]", R"({"protocol":"1"})", R"({"protocol":1.5,"event":"status"})"})
        EXPECT_EQ(CopyAnswers({CopyVerb::Status}).heard(line, cNow).exitCode, 1) << line;
    for (
        const char* line :
        {R"({"protocol":1,"event":"status"})",
         R"({"protocol":1,"event":"status","state":7,"pass":[],"troubles":{},"lastPass":1e999})",
         R"({"protocol":1,"event":"status","state":"\u001b[2J\n","troubles":[1,{"message":[]}],)"
         R"("pass":{"share":-1e300,"bytesPerSecond":1e300,"secondsLeft":1e300,"filesKnown":-1,)"
         R"("filesDone":9223372036854775807},"lastPass":{"seconds":1e300,"began":"x"},)"
         R"("lastSuccess":{"began":"9999-12-31T23:59:59.999Z"},"nextPass":"0000","missing":[{}]})"}) {
        const Told told = CopyAnswers({CopyVerb::Status, false, 60}).heard(line, cNow);
        EXPECT_TRUE(told.ends);
        EXPECT_FALSE(told.output.contains(u'\x1b'));
    }
}

} // namespace
} // namespace kelvo
