#include "app/start/duplicate_check.h"
#include "fakes/fake_single_copy.h"
#include "fakes/recording_console.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class DuplicateCheckTest : public ::testing::Test {
protected:
    std::optional<int> exitCodeOf(FakeSingleCopy& copy) {
        DuplicateCheck check(copy, console, "token", [this](const QByteArray& token) {
            ++shows;
            shownWith = token;
        });
        check.checkForDuplicateRunningInstances();
        return check.exitCode();
    }

    FakeSingleCopy::Place place;
    FakeSingleCopy first{place};
    FakeSingleCopy second{place};
    RecordingConsole console;
    int shows = 0;
    QByteArray shownWith;
};

TEST_F(DuplicateCheckTest, OnlyCopy_Runs) {
    EXPECT_EQ(exitCodeOf(first), std::nullopt);
    EXPECT_TRUE(console.lines().empty());
    EXPECT_EQ(shows, 0);
}

TEST_F(DuplicateCheckTest, SecondCopy_HasTheFirstShowItselfAndEndsWell) {
    ASSERT_EQ(exitCodeOf(first), std::nullopt);
    EXPECT_EQ(exitCodeOf(second), 0);
    EXPECT_EQ(shows, 1);
    EXPECT_EQ(shownWith, "token");
    EXPECT_TRUE(console.logged().last().contains(u"running already"));
}

TEST_F(DuplicateCheckTest, SilentFirstCopy_IsSaidAndEndsTheSecond) {
    ASSERT_EQ(exitCodeOf(first), std::nullopt);
    place.firstHangs = true;
    EXPECT_EQ(exitCodeOf(second), 4);
    EXPECT_TRUE(console.logged().last().contains(u"does not answer"));
}

TEST_F(DuplicateCheckTest, NoPlaceToMeet_Runs) {
    place.missing = true;
    EXPECT_EQ(exitCodeOf(first), std::nullopt);
    EXPECT_EQ(exitCodeOf(second), std::nullopt);
}

} // namespace
} // namespace kelvo
