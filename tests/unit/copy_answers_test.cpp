// What a terminal is told of a running copy's answers, whatever comes as one.
#include "app/commands/ask.h"
#include "ports/guests.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <tuple>

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

// Programs read the names: they are never changed.
TEST_F(CopyAnswersTest, EachState_HasItsNameAndItsWords) {
    for (const auto& [phase, name, words] :
         {std::tuple(WorkPhase::Off, u"off", u"syncing is off"),
          std::tuple(WorkPhase::Missing, u"missing", u"waiting for what is missing"),
          std::tuple(WorkPhase::Running, u"running", u"a pass runs"),
          std::tuple(WorkPhase::Finishing, u"finishing",
                     u"syncing is off; the pass that runs is the last one"),
          std::tuple(WorkPhase::Cancelling, u"cancelling", u"the pass is being cancelled"),
          std::tuple(WorkPhase::Resting, u"resting", u"resting")}) {
        work.phase = phase;
        EXPECT_EQ(statusOf(work, cCopy, cNow).value(u"state").toString(), QStringView(name));
        EXPECT_TRUE(statusOfWork().output.startsWith(
            QString(u"State:         " + QStringView(words) + u'\n')))
            << statusOfWork().output.toStdString();
    }
}

TEST_F(CopyAnswersTest, EachThingThatIsMissing_HasItsNameAndItsWords) {
    work.phase = WorkPhase::Missing;
    for (const Remedy remedy :
         {Remedy::CopyInstallCommand, Remedy::ChooseDestination, Remedy::ChooseSource,
          Remedy::SetUpKey, Remedy::EnterAccount, Remedy::ChooseMac, Remedy::CheckAgain})
        work.missing.push_back({QString(), remedy});
    EXPECT_EQ(statusOf(work, cCopy, cNow).value(u"missing"),
              (QJsonArray{"mac", "account", "key", "source", "destination", "tools"}));
    EXPECT_TRUE(statusOfWork().output.contains(
        u"\nMissing:       a Mac, the user name on the Mac, a key that the Mac accepts, a source "
        u"folder, a destination folder that can be written, rsync or ssh on this machine\n"))
        << statusOfWork().output.toStdString();
}

TEST_F(CopyAnswersTest, EachStep_HasItsNameAndItsWords) {
    work.phase = WorkPhase::Running;
    work.pass =
        PassUnderWay{.kind = PassKind::Remote, .began = cNow, .command = {}, .progress = {}};
    for (const auto& [step, name, words] :
         {std::tuple(PassStep::Begun, u"preparing", u"12 %"),
          std::tuple(PassStep::AskingTheMac, u"asking-the-mac", u"Asking the Mac, 12 %"),
          std::tuple(PassStep::Pull, u"pull", u"First pull, 12 %"),
          std::tuple(PassStep::Movies, u"movies", u"Movies, 12 %"),
          std::tuple(PassStep::AfterArrivals, u"after-arrivals", u"After arrivals, 12 %")}) {
        work.pass->progress = {.step = step, .share = 0.125};
        const QJsonObject pass = passOf(work.pass).toObject();
        EXPECT_EQ(pass.value(u"step").toString(), QStringView(name));
        EXPECT_EQ(pass.value(u"kind"), QStringLiteral("remote"));
        EXPECT_EQ(pass.value(u"began"), QStringLiteral("2026-03-01T12:00:00.000Z"));
        EXPECT_EQ(progressText(pass), QStringView(words));
    }
    work.pass->kind = PassKind::Plain;
    work.pass->progress.step = PassStep::Pull;
    EXPECT_EQ(progressText(passOf(work.pass).toObject()), u"Copying, 12 %");
    EXPECT_TRUE(passOf({}).isNull());
}

TEST_F(CopyAnswersTest, Figures_AreToldFromNoughtOn) {
    work.pass =
        PassUnderWay{.kind = PassKind::Remote, .began = cNow, .command = {}, .progress = {}};
    work.pass->progress = {.step = PassStep::Movies,
                           .filesDone = 0,
                           .filesKnown = 3,
                           .bytesDone = 0,
                           .bytesKnown = 500,
                           .share = 0.0,
                           .secondsLeft = 0.0};
    const QJsonObject pass = passOf(work.pass).toObject();
    EXPECT_EQ(progressText(pass), u"Movies, 0 %, file 1 of 3, 0 of 500 bytes, a few seconds");
    EXPECT_TRUE(pass.value(u"bytesPerSecond").isNull());
    EXPECT_EQ(pass.value(u"bytesDone"), 0);
    EXPECT_EQ(progressText({}), QString());
}

TEST_F(CopyAnswersTest, LastPass_IsToldWithWhatItDid) {
    const auto lastPass = [this](const PassRecord& record) {
        work.standing = {};
        work.standing.add(record);
        return statusOfWork()
            .output.section(QStringLiteral("Last pass:     "), 1)
            .section(u'\n', 0, 0);
    };
    PassRecord record = pass(PassCause::HostAway, 6);
    record.verdict = HostVerdict::CheckRemoteHost;
    record.transfer = {};
    record.seconds = 65.2;
    EXPECT_EQ(lastPass(record),
              u"2026-03-01T11:54:00Z  The Mac is away or asleep. (no transfer, 1 min 5 s)");
    record.kind = PassKind::Plain;
    EXPECT_EQ(lastPass(record),
              u"2026-03-01T11:54:00Z  The Mac is away or asleep. (files unknown, 1 min 5 s)");
    record.transfer = {TransferSource::Statistics, 0, 0};
    record.cause = PassCause::Well;
    EXPECT_EQ(lastPass(record), u"2026-03-01T11:54:00Z  All is well. (nothing new, 1 min 5 s)");
}

TEST_F(CopyAnswersTest, AnswerOfAnotherVersion_IsToldAsFarAsItGoes) {
    const auto told = [](const QByteArray& members) {
        return CopyAnswers({CopyVerb::Status})
            .heard(QByteArray(R"({"protocol":1,"event":"status","state":"later",)") + members + '}',
                   cNow)
            .output;
    };
    EXPECT_EQ(told(R"("troubles":[{"message":"a"},{"message":"b","nextStep":"c"}],)"
                   R"("troubleSince":"2026-03-01T11:50:00.000Z","passesInTrouble":1,)"
                   R"("nextPass":"2026-03-01T11:50:00.000Z",)"
                   R"("lastPass":{"began":"2026-03-01T11:50:00.000Z","message":"a"},)"
                   R"("version":"9","window":true)"),
              u"State:         later\n"
              u"Next pass:     in 0 s\n"
              u"Trouble:       a\n"
              u"Trouble:       b\n"
              u"Next step:     c\n"
              u"Since:         2026-03-01T11:50:00Z (1 pass)\n"
              u"Last pass:     2026-03-01T11:50:00Z  a (files unknown, 0 s)\n"
              u"Program:       Kelvo Mirror 9, with a window\n");
    // Half of what a line needs is no line.
    for (const char* members :
         {R"("troubleSince":"2026-03-01T11:50:00.000Z","passesInTrouble":1)",
          R"("process":4711,"since":"2026-03-01T11:50:00.000Z","window":true)",
          R"("lastSuccess":{"files":3},"missing":["later"])"})
        EXPECT_EQ(told(members), u"State:         later\n") << members;
    for (const char* members : {R"("passesInTrouble":2)",
                                R"("passesInTrouble":0,)"
                                R"("troubleSince":"2026-03-01T11:50:00.000Z")",
                                R"("troubleSince":"2026-03-01T11:50:00.000Z")"})
        EXPECT_EQ(told(R"("troubles":[{"message":"a"}],)" + QByteArray(members)),
                  u"State:         later\nTrouble:       a\n")
            << members;
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
    work.missing.push_back({QStringLiteral("Zielordner fehlt"), Remedy::ChooseDestination});
    EXPECT_TRUE(statusOfWork().output.contains(
        u"Missing:       a destination folder that can be written, rsync or ssh on this machine\n"))
        << statusOfWork().output.toStdString();
    work.standing.fault = QStringLiteral("disk full");
    work.missing = {};
    EXPECT_EQ(statusOfWork().exitCode, 1);
    work.standing.fault.clear();
    EXPECT_EQ(statusOfWork().exitCode, 0);
}

TEST_F(CopyAnswersTest, Status_HoldsThese) {
    work.phase = WorkPhase::Resting;
    work.nextPass = 23;
    PassRecord last = pass(PassCause::HostAway, 5);
    last.kind = PassKind::Plain;
    work.standing.add(last);
    work.settings.fault = QStringLiteral("the settings cannot be saved");
    work.standing.fault = QStringLiteral("no room.");
    const QJsonObject status = statusOf(work, cCopy, cNow);
    EXPECT_EQ(status.keys(),
              (QStringList{"event", "health", "lastPass", "lastSuccess", "missing", "nextPass",
                           "pass", "passesInTrouble", "process", "protocol", "since", "state",
                           "troubleSince", "troubles", "version", "window"}));
    EXPECT_EQ(status.value(u"event"), QStringLiteral("status"));
    EXPECT_EQ(status.value(u"health"), QStringLiteral("trouble"));
    EXPECT_EQ(status.value(u"nextPass"), QStringLiteral("2026-03-01T12:00:23.000Z"));
    EXPECT_EQ(status.value(u"troubleSince"), QStringLiteral("2026-03-01T11:55:00.000Z"));
    EXPECT_EQ(status.value(u"lastPass")[u"kind"], QStringLiteral("plain"));
    EXPECT_FALSE(status.value(u"lastPass").toObject().contains(u"arrivals"));
    EXPECT_TRUE(status.value(u"lastSuccess").isNull());
    const auto trouble = [&](int at, QStringView member) {
        return status.value(u"troubles")[at][member].toString();
    };
    EXPECT_EQ(trouble(0, u"cause"), u"host-away");
    EXPECT_EQ(trouble(1, u"cause"), u"settings-fault");
    EXPECT_EQ(trouble(1, u"message"), u"the settings cannot be saved.");
    EXPECT_EQ(trouble(1, u"nextStep"), u"");
    EXPECT_EQ(trouble(2, u"cause"), u"record-fault");
    EXPECT_EQ(trouble(2, u"message"), u"The record of passes cannot be kept: no room.");
    EXPECT_EQ(status.value(u"troubles").toArray().size(), 3);

    work = {};
    EXPECT_EQ(statusOf(work, cCopy, cNow).value(u"health"), QStringLiteral("unknown"));
    EXPECT_TRUE(statusOf(work, cCopy, cNow).value(u"nextPass").isNull());
    work.standing.add(pass(PassCause::Well, 5));
    EXPECT_EQ(statusOf(work, cCopy, cNow).value(u"health"), QStringLiteral("well"));
    EXPECT_EQ(statusWithoutCopy({}).value(u"state"), QStringLiteral("not-running"));
}

TEST_F(CopyAnswersTest, MaxAge_JudgesTheLastSuccess) {
    EXPECT_EQ(statusOfWork(7200).exitCode, 1) << "there was none";
    work.standing.add(pass(PassCause::Well, 120));
    EXPECT_EQ(statusOfWork(7200).exitCode, 0);
    const Told old = statusOfWork(7199);
    EXPECT_EQ(old.exitCode, 1);
    EXPECT_TRUE(old.output.contains(u"2 hours ago"));
    EXPECT_EQ(old.errors, u"kelvo-mirror: the last success is older than --max-age allows\n");
    EXPECT_EQ(statusOfWork(7199, true).exitCode, 1);
    EXPECT_EQ(statusOfWork(7199, true).errors, QString()) << "the object says it";
    work.standing.add(pass(PassCause::HostAway, 1));
    EXPECT_EQ(statusOfWork(60).errors, QString()) << "the trouble is said";
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
    progress.insert(QStringLiteral("pass"), QJsonObject());
    EXPECT_EQ(heard(progress), QString()) << "nothing is known of it";
    work.standing.add(pass(PassCause::HostAway, 0));
    EXPECT_EQ(heard(statusOf(work, cCopy, cNow)),
              u"2026-03-01T12:00:00Z  health: The Mac is away or asleep. Wake the Mac; in its "
              u"energy settings, let it wake for network access.\n");
    work.standing = {};
    EXPECT_EQ(heard(statusOf(work, cCopy, cNow)), QString()) << "nothing is known";
    EXPECT_EQ(CopyAnswers({CopyVerb::Follow, true}).heard(lineOf(progress), cNow).output.toUtf8(),
              answerLine(progress))
        << "as it came";

    const Told dropped =
        answers.heard(lineOf(event(u"dropped", QStringLiteral("Too slow."))), cNow);
    EXPECT_TRUE(dropped.ends);
    EXPECT_EQ(dropped.exitCode, 1);
    EXPECT_EQ(dropped.errors, u"kelvo-mirror: Too slow.\n");
    EXPECT_EQ(answers.hungUp().exitCode, 4);
    EXPECT_EQ(answers.hungUp().errors, u"kelvo-mirror: the copy has ended\n");
    EXPECT_TRUE(answers.hungUp().ends);
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
    EXPECT_EQ(answers.hungUp().errors,
              u"kelvo-mirror: the running copy does not answer such questions; it is of an earlier "
              u"version, or is just ending. Quit it and start it again\n");
    EXPECT_EQ(answers.hungUp().exitCode, 1);
    EXPECT_EQ(CopyAnswers({CopyVerb::Follow}).hungUp().exitCode, 1) << "it has said nothing";
    const Told later = answers.heard(R"({"protocol":2,"event":"status"})", cNow);
    EXPECT_EQ(later.exitCode, 1);
    EXPECT_EQ(later.errors, u"kelvo-mirror: the running copy is of another version, and speaks "
                            u"protocol 2 instead of 1; quit it and start it again\n");
    EXPECT_EQ(answers.heard("{}", cNow).errors,
              u"kelvo-mirror: what the running copy answers cannot be understood\n");
    EXPECT_TRUE(answers.hungUp().errors.contains(u"earlier version")) << "that was no answer";
}

TEST_F(CopyAnswersTest, WhatIsNoAnswerYet_IsWaitedOn) {
    for (const CopyVerb verb : {CopyVerb::Status, CopyVerb::Stop}) {
        CopyAnswers answers({verb});
        for (const QStringView event :
             {QStringView(u"later"),
              verb == CopyVerb::Status ? QStringView(u"done") : QStringView(u"status")}) {
            const Told told = answers.heard(lineOf(answerOf(event)), cNow);
            EXPECT_FALSE(told.ends);
            EXPECT_EQ(told.output, QString());
        }
        EXPECT_EQ(answers.hungUp().errors,
                  u"kelvo-mirror: the running copy has ended before it answered\n");
        EXPECT_EQ(answers.hungUp().exitCode, 1);
    }
}

TEST(AnswerLineTest, Texts_AreCutAsLittleAsTheLineNeeds) {
    const auto lineWith = [](const QJsonArray& texts) {
        QJsonObject answer = answerOf(u"status");
        answer.insert(QStringLiteral("texts"), texts);
        answer.insert(QStringLiteral("number"), 7);
        return answerLine(answer);
    };
    const auto cut = [&](const QJsonArray& texts) {
        const QByteArray line = lineWith(texts);
        EXPECT_LE(line.size(), Guests::cLongestLine);
        EXPECT_TRUE(line.endsWith('\n'));
        const QJsonObject read = QJsonDocument::fromJson(line).object();
        EXPECT_EQ(read.value(u"number"), 7);
        return read.value(u"texts").toArray();
    };
    const auto shortened = [](qsizetype size) { return QString(QString(size, u'b') + u'…'); };
    const QString most(Guests::cLongestLine - lineWith({QString()}).size(), u'b');
    EXPECT_TRUE(cut({most}) == QJsonArray{most}) << "it fits";
    EXPECT_TRUE(cut({QString(most + u'b')}) == QJsonArray{shortened(8192)});
    const QString whole(8192, u'b');
    EXPECT_TRUE(cut({whole, most}) == (QJsonArray{whole, shortened(8192)}));
    QJsonArray many;
    for (int i = 0; i < 20; ++i)
        many.append(most);
    EXPECT_TRUE(cut(many).last() == shortened(2048));
    QJsonArray signs; // each takes six bytes
    for (int i = 0; i < 4500; ++i)
        signs.append(QString(3, u'\x01'));
    EXPECT_TRUE(cut(signs).last() == QStringLiteral("\x01…"));
    const QString film = QStringLiteral("\U0001F3A5");
    EXPECT_TRUE(cut({QString(u'b' + film.repeated(40'000))}).first() ==
                QString(u'b' + film.repeated(4095) + u'…'))
        << "no half of a sign is left";
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
