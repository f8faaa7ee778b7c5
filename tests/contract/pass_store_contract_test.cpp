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
    record.commands = {check, pull};
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
    auto subscription =
        this->world.store->observe([&](const PassRecord& record) { told.push_back(record); });
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

TYPED_TEST(PassStoreContractTest, StoreThatIsGone_AnswersNobody) {
    bool called = false;
    this->world.store->readAll([&](const std::vector<PassRecord>&) { called = true; });
    this->world.store.reset();
    this->world.mainQueue.advance(1);
    EXPECT_FALSE(called);
}

} // namespace
} // namespace kelvo
