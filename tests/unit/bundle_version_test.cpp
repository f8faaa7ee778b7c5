#include "fakes/memory_bundle.h"
#include "fakes/recording_console.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cVersionKey = QStringLiteral("CFBundleShortVersionString");
const QString cBuildKey = QStringLiteral("CFBundleVersion");

class BundleVersionTest : public ::testing::Test {
protected:
    std::optional<QString> versionOf(const std::optional<QVariantMap>& information) {
        MemoryBundle bundle;
        bundle.addPropertyList(QStringLiteral("Info"), information);
        return bundle.getFullVersionString(console);
    }

    RecordingConsole console;
};

TEST_F(BundleVersionTest, VersionAndBuild_AreBothTold) {
    EXPECT_EQ(versionOf(QVariantMap{{cVersionKey, QStringLiteral("1.2")},
                                    {cBuildKey, QStringLiteral("345")}}),
              QStringLiteral("1.2 (345)"));
}

TEST_F(BundleVersionTest, OneOfThem_StandsAlone) {
    const QString version = QStringLiteral("1.2");
    EXPECT_EQ(versionOf(QVariantMap{{cVersionKey, version}, {cBuildKey, version}}), version);
    EXPECT_EQ(versionOf(QVariantMap{{cVersionKey, version}}), version);
    EXPECT_EQ(versionOf(QVariantMap{{cVersionKey, QStringLiteral(" ")}, {cBuildKey, version}}),
              version);
    EXPECT_TRUE(console.lines().empty());
}

TEST_F(BundleVersionTest, BrokenOrMissingList_IsNoVersionAndALine) {
    EXPECT_EQ(versionOf(std::nullopt), std::nullopt);
    EXPECT_EQ(MemoryBundle().getFullVersionString(console), std::nullopt);
    const QString line = QStringLiteral(
        "Info.plist is missing or cannot be read: the program's version is not known.");
    EXPECT_EQ(console.logged(), (QStringList{line, line}));
}

TEST_F(BundleVersionTest, ListWithoutAText_IsNoVersionAndALine) {
    EXPECT_EQ(versionOf(QVariantMap{}), std::nullopt);
    EXPECT_EQ(versionOf(QVariantMap{{cVersionKey, 1.2}, {cBuildKey, true}}), std::nullopt);
    const QString line =
        QStringLiteral("Info.plist has no version in it: the program's version is not known.");
    EXPECT_EQ(console.logged(), (QStringList{line, line}));
}

} // namespace
} // namespace kelvo
