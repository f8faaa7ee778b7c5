#include "fakes/fake_file_manager.h"
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "remote/key_state_watch.h"
#include "settings/preference_keys.h"
#include "ui/key_state_words.h"

#include <QSet>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(KeyStateTest, Verdicts_TellWhatIsKnown) {
    EXPECT_EQ(keyState(QStringLiteral("valid"), true), KeyState::Accepted);
    EXPECT_EQ(keyState(QStringLiteral("checkusername"), true), KeyState::NotAccepted);
    EXPECT_EQ(keyState(QStringLiteral("unknownerror"), true), KeyState::NotAccepted);
    EXPECT_EQ(keyState(QStringLiteral("checkremotehost"), true), KeyState::HostAway);
    EXPECT_EQ(keyState(QString(), true), KeyState::HostUnset);
    EXPECT_EQ(keyState(QStringLiteral("checksshkeys"), false), KeyState::NoKey);
    EXPECT_EQ(keyState(QStringLiteral("Permission denied."), false), KeyState::NoKey);
    EXPECT_EQ(keyState(QString(), false), KeyState::NoKey);
}

TEST(KeyStateTest, EveryState_HasItsOwnWords) {
    QSet<QString> words;
    for (int state = 0; state <= static_cast<int>(KeyState::HostAway); ++state)
        words.insert(keyStateWords(static_cast<KeyState>(state)));
    EXPECT_EQ(words.size(), 7);
    EXPECT_FALSE(words.contains(QString()));
}

class ScriptedValidator final : public HostValidator {
public:
    QString validateRemoteHostWithWhoami(qint64 timeout) override {
        timeouts.append(timeout);
        return verdict;
    }
    QString verdict = QStringLiteral("valid");
    QList<qint64> timeouts;
};

class KeyStateWatchTest : public ::testing::Test {
protected:
    KeyStateWatchTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
        makeBoth();
    }
    void makeBoth() {
        files.existing = {QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync"),
                          QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync.pub")};
    }
    void settle() {
        mainQueue.runDue();
        bgQueue.runAll();
        mainQueue.runDue();
    }

    MemoryDefaults defaults;
    FakeFileManager files;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedValidator validator;
    std::vector<KeyState> shown;
    KeyStateWatch watch{{defaults, files, mainQueue, bgQueue, validator,
                         [this](KeyState state) { shown.push_back(state); }}};
};

TEST_F(KeyStateWatchTest, Begin_LooksAtFilesAndSettingsOnly) {
    watch.begin();
    EXPECT_EQ(shown, std::vector{KeyState::NotAsked});
    files.existing.remove(QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync.pub"));
    watch.keysChanged();
    EXPECT_EQ(shown.back(), KeyState::NoKey) << "one half is no key";
    makeBoth();
    defaults.removeObject(prefRemoteUsername);
    settle();
    EXPECT_EQ(shown.back(), KeyState::HostUnset);
    EXPECT_TRUE(validator.timeouts.isEmpty());
}

TEST_F(KeyStateWatchTest, EveryValidation_IsPassedOnAndRemembered) {
    validator.verdict = QStringLiteral("checkusername");
    EXPECT_EQ(watch.validateRemoteHostWithWhoami(3), u"checkusername");
    EXPECT_EQ(validator.timeouts, QList<qint64>{3});
    EXPECT_TRUE(shown.empty()) << "told on the main queue";
    settle();
    EXPECT_EQ(shown, std::vector{KeyState::NotAccepted});
}

TEST_F(KeyStateWatchTest, CheckAgain_AsksInTheBackground) {
    watch.checkAgain();
    EXPECT_EQ(shown, std::vector{KeyState::Asking});
    EXPECT_TRUE(validator.timeouts.isEmpty());
    settle();
    EXPECT_EQ(shown, (std::vector{KeyState::Asking, KeyState::Accepted}));
}

TEST_F(KeyStateWatchTest, CheckWhileAsking_WaitsForItsEnd) {
    watch.checkAgain();
    watch.checkAgain();
    watch.checkAgain();
    EXPECT_EQ(bgQueue.size(), 1U);
    bgQueue.runOne();
    mainQueue.runDue();
    EXPECT_EQ(shown.back(), KeyState::Asking);
    settle();
    EXPECT_EQ(validator.timeouts.size(), 2);
    EXPECT_EQ(shown.back(), KeyState::Accepted);
    EXPECT_EQ(bgQueue.size(), 0U);
}

TEST_F(KeyStateWatchTest, AnotherHostOrUser_IsNotWhatTheFirstOneSaid) {
    watch.begin();
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName}) {
        watch.checkAgain();
        settle();
        EXPECT_EQ(shown.back(), KeyState::Accepted);
        defaults.setObject(key, QStringLiteral("other"));
        settle();
        EXPECT_EQ(shown.back(), KeyState::NotAsked);
    }
}

TEST_F(KeyStateWatchTest, AnswerOfAHostThatIsSetNoMore_SaysNothing) {
    watch.begin();
    watch.checkAgain();
    bgQueue.runAll();
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("other.local"));
    settle();
    for (const KeyState state : shown)
        EXPECT_NE(state, KeyState::Accepted);
    EXPECT_EQ(shown.back(), KeyState::NotAsked);
}

} // namespace
} // namespace kelvo
