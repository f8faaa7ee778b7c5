#include "ui/close_policy.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ClosePolicyTest, TrayInReach_HidesWithoutAWord) {
    ClosePolicy policy;
    EXPECT_EQ(policy.noteBeforeClosing(true), std::nullopt);
    EXPECT_EQ(policy.result(std::nullopt), CloseResult::Hide);
}

TEST(ClosePolicyTest, NoTray_SaysSoOnce) {
    ClosePolicy policy;
    const auto note = policy.noteBeforeClosing(false);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->messageText, u"Kelvo Mirror keeps running");
    EXPECT_TRUE(note->informativeText.contains(u"start Kelvo Mirror once more"));
    EXPECT_EQ(note->style, AlertStyle::Informational);
    EXPECT_EQ(note->buttons,
              (QStringList{QStringLiteral("Close Window"), QStringLiteral("Keep Open")}));
    EXPECT_FALSE(note->answersItself);
    EXPECT_EQ(policy.noteBeforeClosing(false), std::nullopt);
    EXPECT_EQ(policy.result(std::nullopt), CloseResult::Hide);
}

TEST(ClosePolicyTest, TrayGoesLater_SaysSoThen) {
    ClosePolicy policy;
    EXPECT_EQ(policy.noteBeforeClosing(true), std::nullopt);
    EXPECT_TRUE(policy.noteBeforeClosing(false));
}

TEST(ClosePolicyTest, OnlyTheFirstButton_ClosesTheWindow) {
    const ClosePolicy policy;
    EXPECT_EQ(policy.result(cAlertFirstButtonReturn), CloseResult::Hide);
    EXPECT_EQ(policy.result(cAlertSecondButtonReturn), CloseResult::KeepOpen);
    EXPECT_EQ(policy.result(cModalResponseStop), CloseResult::KeepOpen);
}

TEST(ClosePolicyTest, Quitting_ClosesWithoutAWord) {
    ClosePolicy policy;
    policy.programQuits();
    EXPECT_EQ(policy.noteBeforeClosing(false), std::nullopt);
    EXPECT_EQ(policy.result(std::nullopt), CloseResult::Accept);
    EXPECT_EQ(policy.result(cAlertSecondButtonReturn), CloseResult::Accept);
}

} // namespace
} // namespace kelvo
