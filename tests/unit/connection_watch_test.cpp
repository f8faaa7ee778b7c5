#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "remote/remote_host_validation.h"
#include "settings/preference_keys.h"
#include "ui/connection_watch.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum PassCause;

const QString cTarget = QStringLiteral("ann@mac.local");

class ConnectionWatchTest : public ::testing::Test {
protected:
    ConnectionWatchTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
    }

    /// A remote pass whose check asked `target`.
    void pass(PassCause cause, bool gotIn, const QString& target = cTarget) {
        PassRecord record;
        record.began = now.addDays(-1);
        record.kind = PassKind::Remote;
        record.cause = cause;
        record.verdict = gotIn ? HostVerdict::Valid : HostVerdict::UnknownError;
        record.lastLine = QStringLiteral("what it said");
        CommandRecord& check = record.commands.emplace_back();
        check.role = CommandRole::HostCheck;
        check.command = whoamiCommand(3, QStringLiteral("/key"), target);
        store.append(record);
    }
    /// The record is read later.
    void beginToWatch(std::optional<KeyState> keyState = KeyState::NotAsked) {
        connection.emplace(
            ConnectionWatch::Parts{.defaults = defaults,
                                   .passes = store,
                                   .now = [this] { return now; },
                                   .keyState = keyState,
                                   .show = [this](const Connection& all) { shown = all; }});
    }
    void watch(std::optional<KeyState> keyState = KeyState::NotAsked) {
        beginToWatch(keyState);
        mainQueue.runDue();
    }

    const QDateTime now{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MemoryPassStore store{mainQueue};
    std::optional<Connection> shown;
    std::optional<ConnectionWatch> connection;
};

TEST_F(ConnectionWatchTest, EmptyRecord_TellsNothing) {
    watch();
    EXPECT_EQ(shown, std::nullopt);
}

TEST_F(ConnectionWatchTest, Record_TellsOfTheLastPass) {
    pass(Well, true);
    pass(KeyRefused, false);
    watch();
    EXPECT_EQ(shown, (Connection{.answer = HostAnswer{.target = cTarget,
                                                      .cause = KeyRefused,
                                                      .lastLine = QStringLiteral("what it said")},
                                 .asked = now.addDays(-1),
                                 .letInBefore = true}));
}

TEST_F(ConnectionWatchTest, PassThatFailedAfterItsCheck_WasLetIn) {
    pass(DiskFull, true);
    watch();
    ASSERT_TRUE(shown && shown->answer);
    EXPECT_EQ(shown->answer->cause, Well);
    EXPECT_FALSE(shown->letInBefore) << "no pass went well";
}

TEST_F(ConnectionWatchTest, RecordOfAnotherAccount_TellsNothing) {
    pass(Well, true, QStringLiteral("bob@mac.local"));
    pass(KeyRefused, false, QStringLiteral("ann@mac.local.evil"));
    watch();
    EXPECT_TRUE(!shown || (!shown->answer && !shown->letInBefore));
}

TEST_F(ConnectionWatchTest, Answer_IsNewerThanTheRecord) {
    pass(Well, true);
    watch();
    connection->answered({.target = cTarget, .cause = HostAway});
    ASSERT_TRUE(shown && shown->answer);
    EXPECT_EQ(shown->answer->cause, HostAway);
    EXPECT_EQ(shown->asked, now);
    EXPECT_TRUE(shown->letInBefore);
}

TEST_F(ConnectionWatchTest, AnswerThatComesBeforeTheRecordIsRead_Stays) {
    pass(Well, true, QStringLiteral("bob@mac.local"));
    pass(KeyRefused, false);
    mainQueue.runDue();
    beginToWatch();
    connection->answered({.target = cTarget, .cause = Well});
    mainQueue.runDue();
    EXPECT_EQ(shown, (Connection{.answer = HostAnswer{.target = cTarget, .cause = Well},
                                 .asked = now,
                                 .letInBefore = true}));
}

TEST_F(ConnectionWatchTest, PassThatWasEndedAtItsCheck_TellsNothing) {
    for (const PassCause cause : {Interrupted, Cancelled}) {
        pass(cause, false);
        watch();
        EXPECT_TRUE(!shown || !shown->answer) << static_cast<int>(cause);
    }
}

TEST_F(ConnectionWatchTest, AnswerOfAnotherAccount_IsDropped) {
    watch();
    connection->answered({.target = QStringLiteral("ann@old.local"), .cause = Well});
    EXPECT_EQ(shown, std::nullopt);
}

TEST_F(ConnectionWatchTest, GoodAnswer_IsRememberedBehindABadOne) {
    watch();
    connection->answered({.target = cTarget, .cause = Well});
    connection->answered({.target = cTarget, .cause = HostAway});
    ASSERT_TRUE(shown);
    EXPECT_TRUE(shown->letInBefore);
    EXPECT_EQ(shown->answer->cause, HostAway);
}

TEST_F(ConnectionWatchTest, NewKeyOrAccount_IsForgottenFor) {
    for (const KeyState state : {KeyState::NotAsked, KeyState::NoKey, KeyState::HostUnset}) {
        watch();
        connection->answered({.target = cTarget, .cause = Well});
        connection->setKeyState(KeyState::Accepted);
        connection->setKeyState(KeyState::Asking);
        EXPECT_TRUE(shown->answer);
        connection->setKeyState(state);
        EXPECT_EQ(shown, Connection());
    }
}

TEST_F(ConnectionWatchTest, FirstStateOfTheKey_LeavesTheRecord) {
    pass(Well, true);
    watch(std::nullopt);
    connection->setKeyState(KeyState::NotAsked);
    EXPECT_TRUE(shown->answer);
    connection->setKeyState(KeyState::NotAsked);
    EXPECT_FALSE(shown->answer) << "the second is a new key";
}

TEST_F(ConnectionWatchTest, RecordThatComesAfterTheKeyHasChanged_IsDropped) {
    pass(Well, true);
    mainQueue.runDue();
    beginToWatch();
    connection->setKeyState(KeyState::NotAsked);
    mainQueue.runDue();
    EXPECT_EQ(shown, Connection());
}

TEST_F(ConnectionWatchTest, RecordThatIsBeingReadWhenTheKeyChanges_IsDropped) {
    pass(Well, true);
    mainQueue.runDue();
    beginToWatch();
    // Behind the answer that says which pass to read, before the pass.
    mainQueue.async([this] { connection->setKeyState(KeyState::NotAsked); });
    mainQueue.runDue();
    EXPECT_EQ(shown, Connection());
}

TEST_F(ConnectionWatchTest, WatchThatIsGone_ShowsNothing) {
    pass(Well, true);
    beginToWatch();
    connection.reset();
    mainQueue.runDue();
    EXPECT_EQ(shown, std::nullopt);
}

} // namespace
} // namespace kelvo
