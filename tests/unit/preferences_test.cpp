#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"
#include "sync/sample_path.h"

#include <QSet>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(PreferencesTest, Table_HoldsEveryKeyOnceWithAllItsColumns) {
    QSet<QString> keys;
    for (const Preference& preference : preferenceTable()) {
        EXPECT_FALSE(preference.meaning.isEmpty() || preference.fallback.isEmpty() ||
                     preference.writers.isEmpty() || preference.readers.isEmpty())
            << qPrintable(preference.key.toString());
        keys.insert(preference.key.toString());
    }
    EXPECT_EQ(keys.size(), 21);
    EXPECT_EQ(preferenceTable().size(), 21U);
}

TEST(PreferencesTest, FirstLineMessage_KeepsItsSpelling) {
    EXPECT_EQ(perfFirstLineMessage, u"perfFirstLineMessage");
}

class SamplePathTest : public ::testing::Test {
protected:
    std::optional<QString> sample() const {
        return defaults.stringForKey(prefSampleRemoteFullPath);
    }

    MemoryDefaults defaults{{{prefRemoteUsername.toString(), QStringLiteral("mediauser")},
                             {prefRemoteBonjourName.toString(), QStringLiteral("RemoteMac")},
                             {prefRemotePath.toString(), QStringLiteral(" /Users/x y/Movies")}}};
    VirtualMainQueue mainQueue;
    SamplePath samplePath{defaults, mainQueue};
};

TEST_F(SamplePathTest, Update_JoinsTheThreeAsTheyAre) {
    samplePath.updateSampleString();
    EXPECT_EQ(sample(), std::nullopt) << "work of the main queue";
    mainQueue.runDue();
    EXPECT_EQ(sample(), QStringLiteral("mediauser@RemoteMac: /Users/x y/Movies"));
}

TEST_F(SamplePathTest, OneMissing_LeavesTheOldValue) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath}) {
        defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("old"));
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        samplePath.updateSampleString();
        mainQueue.runDue();
        EXPECT_EQ(sample(), QStringLiteral("old")) << qPrintable(key.toString());
        defaults.setObject(key, kept);
    }
}

} // namespace
} // namespace kelvo
