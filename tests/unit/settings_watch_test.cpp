#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "sync/settings_watch.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class SettingsWatchTest : public ::testing::Test {
protected:
    SettingsWatchTest() { watch.begin(); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    int changes = 0;
    SettingsWatch watch{defaults, mainQueue, [this] { ++changes; }};
};

TEST_F(SettingsWatchTest, ChangesOfHalfASecond_AreToldOnce) {
    defaults.setObject(prefPath1, QStringLiteral("/a"));
    mainQueue.advance(0.4);
    defaults.setObject(prefPath2, QStringLiteral("/b"));
    EXPECT_EQ(changes, 0);
    mainQueue.advance(0.1);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(mainQueue.idle());
    defaults.setObject(prefPath2, QStringLiteral("/c"));
    mainQueue.advance(0.5);
    EXPECT_EQ(changes, 2) << "the next ones are told again";
}

TEST_F(SettingsWatchTest, OnlyWhatPassesNeed_IsWatchedAndOnlyTillTheEnd) {
    defaults.setObject(prefMainWindowTab, QStringLiteral("Sync"));
    EXPECT_TRUE(mainQueue.idle());
    defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
    EXPECT_FALSE(mainQueue.idle());
    watch.end();
    mainQueue.advance(1);
    EXPECT_EQ(changes, 0);
    defaults.setObject(prefRemoteUsername, QStringLiteral("bob"));
    EXPECT_TRUE(mainQueue.idle());
}

} // namespace
} // namespace kelvo
