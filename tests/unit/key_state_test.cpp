#include "fakes/fake_file_manager.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "remote/key_state_watch.h"
#include "remote/remote_host_validation.h"
#include "settings/preference_keys.h"
#include "ui/key_state_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(KeyStateTest, Verdicts_TellWhatIsKnown) {
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("valid")), true), KeyState::Accepted);
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("checkusername")), true),
              KeyState::NotAccepted);
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("unknownerror")), true),
              KeyState::NotAccepted);
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("checkremotehost")), true),
              KeyState::HostAway);
    EXPECT_EQ(keyState(HostVerdict::NotAsked, true), KeyState::HostUnset);
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("checksshkeys")), false),
              KeyState::NoKey);
    EXPECT_EQ(keyState(HostVerdict::fromText(QStringLiteral("Permission denied.")), false),
              KeyState::NoKey);
    EXPECT_EQ(keyState(HostVerdict::NotAsked, false), KeyState::NoKey);
}

TEST(KeyStateTest, EveryState_HasItsOwnWords) {
    const QStringList words{
        QStringLiteral("No key yet. Set one up to be let in by the remote Mac."),
        QStringLiteral("Key made. Fill in host name and user to have it accepted."),
        QStringLiteral("Key made. The remote Mac has not been asked yet."),
        QStringLiteral("Asking the remote Mac…"),
        QStringLiteral("Key accepted by the remote Mac."),
        QStringLiteral("Key made, not accepted by the remote Mac yet."),
        QStringLiteral("Key made. The remote Mac is not on the network right now.")};
    for (int state = 0; state <= static_cast<int>(KeyState::HostAway); ++state)
        EXPECT_EQ(keyStateWords(static_cast<KeyState>(state)), words.value(state)) << state;
}

class KeyStateWatchTest : public ::testing::Test {
protected:
    KeyStateWatchTest() {
        defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
        makeBoth();
        shell.answerTo(QStringLiteral("whoami"), [this](const QString&) {
            return defaults.stringForKey(prefRemoteUsername).value_or(QString());
        });
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
    ScriptedShell shell;
    RecordingConsole console;
    std::vector<KeyState> shown;
    RemoteHostValidation validation{
        {.defaults = defaults,
         .commands = shell,
         .files = files,
         .console = console,
         .answered = [this](const QString& target, const HostVerdict& verdict,
                            const CommandResult&) { watch.answered(target, verdict); }}};
    KeyStateWatch watch{
        {.defaults = defaults,
         .files = files,
         .mainQueue = mainQueue,
         .bgQueue = bgQueue,
         .validate =
             [this](qint64 timeout) { (void)validation.validateRemoteHostWithWhoami(timeout); },
         .show = [this](KeyState state) { shown.push_back(state); }}};
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
    EXPECT_TRUE(shell.commands().isEmpty());
}

TEST_F(KeyStateWatchTest, EveryValidation_IsPassedOnAndRemembered) {
    shell.answerTo(QStringLiteral("whoami"), QStringLiteral("Permission denied."));
    EXPECT_EQ(validation.validateRemoteHostWithWhoami(3), HostVerdict::CheckUsername);
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{33.0});
    EXPECT_TRUE(shown.empty()) << "told on the main queue";
    settle();
    EXPECT_EQ(shown, std::vector{KeyState::NotAccepted});
}

TEST_F(KeyStateWatchTest, CheckAgain_AsksInTheBackground) {
    watch.checkAgain();
    EXPECT_EQ(shown, std::vector{KeyState::Asking});
    EXPECT_TRUE(shell.commands().isEmpty());
    settle();
    EXPECT_EQ(shown, (std::vector{KeyState::Asking, KeyState::Accepted}));
    ASSERT_EQ(shell.commands().size(), 1);
    EXPECT_TRUE(shell.commands().front().contains(u"ConnectTimeout=5 "));
    EXPECT_EQ(shell.bounds(), std::vector<std::optional<double>>{35.0});
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
    EXPECT_EQ(shell.commands().size(), 2);
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
