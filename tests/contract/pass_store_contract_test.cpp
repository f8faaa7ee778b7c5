// The contract of PassStore, on the fake and on the SQLite file.
#include "adapters/passes/sqlite_pass_store.h"
#include "fakes/memory_pass_store.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "support/wait_until.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

PassRecord samplePass(int number) {
    PassRecord record;
    record.began = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000 + number * 1000LL, Qt::UTC);
    record.seconds = 1.5 + number;
    record.kind = PassKind::Remote;
    record.verdict = HostVerdict::Valid;
    record.cause = PassCause::FilesNotTaken;
    record.lastLine = QStringLiteral("pass %1 – “映画”").arg(number);
    record.transfer = {TransferSource::Statistics, number, std::nullopt};
    CommandRecord check;
    check.role = CommandRole::HostCheck;
    check.command = QStringLiteral("ssh 'it'");
    check.exitStatus = 0;
    check.text = {QStringLiteral("mediauser\n"), {}, 0};
    CommandRecord pull;
    pull.command = QStringLiteral("rsync \"ü\"");
    pull.seconds = 0.25;
    pull.text = {QString(20000, u'a'), QString(20000, u'é'), 12345};
    pull.transfer = {TransferSource::Lines, 7, 1LL << 40};
    CommandRecord after;
    after.role = CommandRole::AfterArrivals;
    record.commands = {check, pull, after};
    return record;
}

Arrival arrivalOf(const QByteArray& path, qint64 size) {
    return {path, size, QDateTime::fromMSecsSinceEpoch(1'700'000'000'123 + size, Qt::UTC)};
}

PassRecord passOf(PassCause cause, std::vector<Arrival> arrivals = {}) {
    PassRecord record;
    record.began = QDateTime::currentDateTimeUtc();
    record.cause = cause;
    record.arrivals = std::move(arrivals);
    return record;
}

void expectSame(const PassRecord& left, const PassRecord& right) {
    EXPECT_EQ(left.began, right.began);
    EXPECT_DOUBLE_EQ(left.seconds, right.seconds);
    EXPECT_EQ(left.kind, right.kind);
    EXPECT_EQ(left.verdict.text(), right.verdict.text());
    EXPECT_EQ(left.cause, right.cause);
    EXPECT_EQ(left.lastLine, right.lastLine);
    EXPECT_EQ(left.transfer.source, right.transfer.source);
    EXPECT_EQ(left.transfer.files, right.transfer.files);
    EXPECT_EQ(left.transfer.bytes, right.transfer.bytes);
}

struct FakeWorld {
    VirtualMainQueue mainQueue;
    std::unique_ptr<PassStore> store = std::make_unique<MemoryPassStore>(mainQueue);
};

struct SqliteWorld {
    QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    std::unique_ptr<PassStore> store = std::make_unique<SqlitePassStore>(
        folder.filePath(QStringLiteral("deeper/passes.sqlite")), mainQueue, console);
};

template <typename World>
class PassStoreContractTest : public ::testing::Test {
protected:
    std::vector<PassRecord> all() {
        std::optional<std::vector<PassRecord>> answer;
        world.store->readAll([&](std::vector<PassRecord> records) { answer = std::move(records); });
        settle([&] { return answer.has_value(); });
        return answer.value_or(std::vector<PassRecord>());
    }

    std::optional<PassRecord> one(qint64 id) {
        std::optional<std::optional<PassRecord>> answer;
        world.store->read(id,
                          [&](std::optional<PassRecord> record) { answer = std::move(record); });
        settle([&] { return answer.has_value(); });
        return answer.value_or(std::nullopt);
    }

    std::vector<KeptArrival> arrivals(const ArrivalQuestion& question = {}) {
        std::optional<std::vector<KeptArrival>> answer;
        world.store->readArrivals(
            question, [&](std::vector<KeptArrival> found) { answer = std::move(found); });
        settle([&] { return answer.has_value(); });
        return answer.value_or(std::vector<KeptArrival>());
    }

    /// The paths of the arrivals that answer `question`.
    QList<QByteArray> paths(const ArrivalQuestion& question) {
        QList<QByteArray> found;
        for (const KeptArrival& each : arrivals(question))
            found << each.arrival.path;
        return found;
    }

    std::vector<DayOfPasses> days(int count) {
        std::optional<std::vector<DayOfPasses>> answer;
        world.store->readDays(count,
                              [&](std::vector<DayOfPasses> found) { answer = std::move(found); });
        settle([&] { return answer.has_value(); });
        return answer.value_or(std::vector<DayOfPasses>());
    }

    Standing standing() {
        std::optional<Standing> answer;
        world.store->readStanding([&](Standing found) { answer = std::move(found); });
        settle([&] { return answer.has_value(); });
        return answer.value_or(Standing());
    }

    template <typename Condition>
    void settle(Condition condition) {
        EXPECT_TRUE(waitUntil([&] {
            world.mainQueue.runDue();
            return condition();
        }));
    }

    World world;
};

using Worlds = ::testing::Types<FakeWorld, SqliteWorld>;
TYPED_TEST_SUITE(PassStoreContractTest, Worlds);

TYPED_TEST(PassStoreContractTest, EmptyStore_AnswersWithNothing) {
    EXPECT_TRUE(this->all().empty());
    EXPECT_FALSE(this->one(1).has_value());
    EXPECT_TRUE(this->arrivals().empty());
    EXPECT_TRUE(this->days(30).empty());
    const Standing standing = this->standing();
    EXPECT_FALSE(standing.last.has_value() || standing.lastSuccess.has_value());
    EXPECT_EQ(standing.fault + standing.aside, QString());
}

TYPED_TEST(PassStoreContractTest, Records_ComeBackNewestFirstWithoutCommands) {
    for (int i = 0; i < 3; ++i)
        this->world.store->append(samplePass(i));
    const auto records = this->all();
    ASSERT_EQ(records.size(), 3U);
    for (int i = 0; i < 3; ++i) {
        expectSame(records[static_cast<std::size_t>(i)], samplePass(2 - i));
        EXPECT_TRUE(records[static_cast<std::size_t>(i)].commands.empty());
    }
    EXPECT_GT(records[0].id, records[1].id);
}

TYPED_TEST(PassStoreContractTest, EveryCause_ComesBack) {
    for (int cause = 0; cause <= static_cast<int>(cLastPassCause); ++cause) {
        PassRecord record = samplePass(cause);
        record.cause = static_cast<PassCause>(cause);
        this->world.store->append(record);
    }
    int cause = static_cast<int>(cLastPassCause);
    for (const PassRecord& record : this->all())
        EXPECT_EQ(static_cast<int>(record.cause), cause--);
    EXPECT_EQ(cause, -1);
}

TYPED_TEST(PassStoreContractTest, OneRecord_ComesBackWhole) {
    this->world.store->append(samplePass(4));
    const auto found = this->one(this->all().at(0).id);
    ASSERT_TRUE(found.has_value());
    expectSame(*found, samplePass(4));
    EXPECT_EQ(found->id, this->all().at(0).id);
    const auto commands = samplePass(4).commands;
    ASSERT_EQ(found->commands.size(), commands.size());
    for (std::size_t i = 0; i < commands.size(); ++i) {
        EXPECT_EQ(found->commands[i].role, commands[i].role);
        EXPECT_EQ(found->commands[i].command, commands[i].command);
        EXPECT_EQ(found->commands[i].exitStatus, commands[i].exitStatus);
        EXPECT_DOUBLE_EQ(found->commands[i].seconds, commands[i].seconds);
        EXPECT_EQ(found->commands[i].text.head, commands[i].text.head);
        EXPECT_EQ(found->commands[i].text.tail, commands[i].text.tail);
        EXPECT_EQ(found->commands[i].text.leftOut, commands[i].text.leftOut);
        EXPECT_EQ(found->commands[i].transfer.source, commands[i].transfer.source);
        EXPECT_EQ(found->commands[i].transfer.bytes, commands[i].transfer.bytes);
    }
}

TYPED_TEST(PassStoreContractTest, Observer_HearsEachRecordUntilItsSubscriptionEnds) {
    std::vector<PassRecord> told;
    auto subscription = this->world.store->observe(
        [&](const PassRecord& record, const Standing&) { told.push_back(record); });
    this->world.store->append(samplePass(1));
    this->settle([&] { return told.size() == 1; });
    expectSame(told.at(0), samplePass(1));
    EXPECT_GT(told.at(0).id, 0);
    EXPECT_TRUE(told.at(0).commands.empty());
    subscription.reset();
    this->world.store->append(samplePass(2));
    EXPECT_EQ(this->all().size(), 2U);
    EXPECT_EQ(told.size(), 1U);
}

TYPED_TEST(PassStoreContractTest, Observer_HearsHowThingsStandAfterEachRecord) {
    std::vector<Standing> told;
    const auto subscription = this->world.store->observe(
        [&](const PassRecord&, const Standing& standing) { told.push_back(standing); });
    for (const PassCause cause : {PassCause::Well, PassCause::DiskFull, PassCause::DiskFull}) {
        const std::size_t before = told.size();
        this->world.store->append(passOf(cause, {}));
        this->settle([&] { return told.size() > before; });
        const Standing answered = this->standing();
        EXPECT_EQ(told.back().passesInTrouble, answered.passesInTrouble);
        EXPECT_EQ(told.back().troubleSince, answered.troubleSince);
        ASSERT_TRUE(told.back().last && answered.last && answered.lastSuccess);
        EXPECT_EQ(told.back().last->id, answered.last->id);
        EXPECT_EQ(told.back().lastSuccess->id, answered.lastSuccess->id);
    }
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0].passesInTrouble, 0);
    EXPECT_EQ(told[2].passesInTrouble, 2);
}

TYPED_TEST(PassStoreContractTest, Arrivals_ComeBackWithTheirPassAndNewestFirst) {
    const std::vector<Arrival> first{arrivalOf("/in/a.mov", 1), arrivalOf("/in/bad \xff.mov", 2)};
    std::vector<Arrival> told;
    const auto subscription = this->world.store->observe(
        [&](const PassRecord& record, const Standing&) { told = record.arrivals; });
    this->world.store->append(passOf(PassCause::Well, first));
    this->settle([&] { return !told.empty(); });
    EXPECT_EQ(told, first);
    this->world.store->append(passOf(PassCause::Well, {arrivalOf("/in/c\nd.mov", 1LL << 40)}));
    const auto passes = this->all();
    ASSERT_EQ(passes.size(), 2U);
    EXPECT_TRUE(passes[1].arrivals.empty());
    EXPECT_EQ(this->one(passes[1].id).value_or(PassRecord()).arrivals, first);
    const auto found = this->arrivals();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].arrival, arrivalOf("/in/c\nd.mov", 1LL << 40));
    EXPECT_EQ(found[0].pass, passes[0].id);
    EXPECT_EQ(found[1].arrival, first[1]);
    EXPECT_EQ(found[2].pass, passes[1].id);
    EXPECT_GT(found[0].id, found[1].id);
}

TYPED_TEST(PassStoreContractTest, ArrivalQuestion_TakesPages) {
    std::vector<Arrival> many;
    for (int i = 0; i < 10; ++i)
        many.push_back(arrivalOf(QByteArray::number(i), i));
    this->world.store->append(passOf(PassCause::Well, many));
    const auto page = this->arrivals({.most = 4});
    ASSERT_EQ(page.size(), 4U);
    EXPECT_EQ(this->paths({.before = page.back().id, .most = 3}),
              (QList<QByteArray>{"5", "4", "3"}));
}

TYPED_TEST(PassStoreContractTest, ArrivalQuestion_FindsTextInAnyCaseAndComposition) {
    this->world.store->append(passOf(PassCause::Well, {arrivalOf("/in/Cafe\xcc\x81 Noir.mov", 1),
                                                       arrivalOf("/in/100%_real.mov", 2),
                                                       arrivalOf("/in/\xff STRAND.mov", 3)}));
    EXPECT_EQ(this->paths({.text = QStringLiteral("CAFÉ n")}).size(), 1);
    EXPECT_EQ(this->paths({.text = QStringLiteral("strand")}).size(), 1);
    EXPECT_EQ(this->paths({.text = QStringLiteral("%_")}).size(), 1) << "no patterns";
    EXPECT_EQ(this->paths({.text = QStringLiteral("0_r")}).size(), 0);
    EXPECT_EQ(this->paths({.text = QStringLiteral(".mov"), .most = 2}).size(), 2);
    const auto all = this->arrivals();
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(this->paths({.text = QStringLiteral(".mov"), .before = all[0].id}).size(), 2);
}

TYPED_TEST(PassStoreContractTest, Days_AddUpWhatTheirPassesBrought) {
    PassRecord pass = passOf(PassCause::Well);
    pass.transfer = {TransferSource::Statistics, 2, 1000};
    const QDateTime noon(QDate::currentDate(), QTime(12, 0));
    pass.began = noon.toUTC();
    this->world.store->append(pass);
    pass.transfer = {TransferSource::Lines, 3, std::nullopt};
    this->world.store->append(pass);
    for (const int ago : {3, 2, 1}) {
        pass.began = noon.addDays(-ago).toUTC();
        pass.cause = ago == 1 ? PassCause::Cancelled : PassCause::DiskFull;
        this->world.store->append(pass);
        pass.cause = PassCause::Well;
        this->world.store->append(pass);
    }
    const QDate today = noon.date();
    EXPECT_EQ(this->days(3), (std::vector<DayOfPasses>{{today.addDays(-2), 6, 0, true},
                                                       {today.addDays(-1), 6, 0, false},
                                                       {today, 5, 1000, false}}));
}

TYPED_TEST(PassStoreContractTest, Days_GoByWhatArrivedWhereThatIsKnown) {
    PassRecord pass = passOf(PassCause::Cancelled, {arrivalOf("/in/a.mov", 30)});
    pass.transfer = {TransferSource::Lines, 2, std::nullopt};
    pass.began = QDateTime(QDate::currentDate(), QTime(12, 0)).toUTC();
    this->world.store->append(pass);
    pass.arrivals = {arrivalOf("/in/b.mov", 400), arrivalOf("/in/c.mov", 5000)};
    pass.transfer = {TransferSource::Statistics, 2, 5401};
    this->world.store->append(pass);
    EXPECT_EQ(this->days(1), (std::vector<DayOfPasses>{{QDate::currentDate(), 3, 5430, false}}));
}

TYPED_TEST(PassStoreContractTest, Standing_FollowsThePassesThatSaySomething) {
    const auto now = QDateTime::fromMSecsSinceEpoch(1'700'000'000'000, Qt::UTC);
    PassRecord pass = passOf(PassCause::Well, {arrivalOf("/in/a.mov", 1)});
    const auto append = [&](PassCause cause, int second) {
        pass.cause = cause;
        pass.began = now.addSecs(second);
        this->world.store->append(pass);
    };
    append(PassCause::HostAway, 0);
    EXPECT_EQ(this->standing().troubleSince, now);
    EXPECT_FALSE(this->standing().lastSuccess.has_value());
    append(PassCause::Well, 1);
    Standing standing = this->standing();
    EXPECT_EQ(standing.passesInTrouble, 0);
    EXPECT_FALSE(standing.troubleSince.isValid());
    ASSERT_TRUE(standing.last && standing.lastSuccess);
    EXPECT_EQ(standing.last->id, standing.lastSuccess->id);
    EXPECT_EQ(standing.last->id, this->all().at(0).id);
    EXPECT_TRUE(standing.last->commands.empty() && standing.last->arrivals.empty());
    append(PassCause::DiskFull, 2);
    append(PassCause::Interrupted, 3);
    append(PassCause::AfterFailed, 4);
    append(PassCause::Cancelled, 5);
    standing = this->standing();
    EXPECT_EQ(standing.passesInTrouble, 2);
    EXPECT_EQ(standing.troubleSince, now.addSecs(2));
    ASSERT_TRUE(standing.last && standing.lastSuccess);
    EXPECT_EQ(standing.last->cause, PassCause::AfterFailed);
    EXPECT_EQ(standing.lastSuccess->began, now.addSecs(1));
}

TYPED_TEST(PassStoreContractTest, StoreThatIsGone_AnswersNobody) {
    bool called = false;
    this->world.store->readStanding([&](const Standing&) { called = true; });
    this->world.store->readAll([&](const std::vector<PassRecord>&) { called = true; });
    this->world.store.reset();
    this->world.mainQueue.advance(1);
    EXPECT_FALSE(called);
}

} // namespace
} // namespace kelvo
