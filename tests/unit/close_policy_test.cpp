#include "fakes/memory_defaults.h"
#include "ui/close_policy.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ClosePolicyTest, TrayInReach_HidesWithoutAWord) {
    ClosePolicy policy;
    EXPECT_EQ(policy.noteBeforeClosing(true), std::nullopt);
    EXPECT_EQ(policy.result(std::nullopt), CloseResult::Hide);
}

TEST(ClosePolicyTest, FirstCloseToTheTray_IsToldOnceEver) {
    MemoryDefaults defaults;
    EXPECT_EQ(ClosePolicy().noticeAtHiding(false, defaults), std::nullopt) << "there is no tray";
    ClosePolicy quitting;
    quitting.programQuits();
    EXPECT_EQ(quitting.noticeAtHiding(true, defaults), std::nullopt);
    const auto notice = ClosePolicy().noticeAtHiding(true, defaults);
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->title, u"Kelvo Mirror keeps running");
    EXPECT_EQ(notice->text, u"Its icon in the tray brings the window back; the icon's menu ends "
                            u"the program.");
    EXPECT_FALSE(notice->urgent);
    EXPECT_FALSE(notice->show);
    EXPECT_EQ(ClosePolicy().noticeAtHiding(true, defaults), std::nullopt) << "in a later run";
}

TEST(ClosePolicyTest, NoTray_SaysSoOnce) {
    ClosePolicy policy;
    const auto note = policy.noteBeforeClosing(false);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->messageText, u"Kelvo Mirror keeps running");
    EXPECT_EQ(
        note->informativeText,
        u"There is no tray icon to bring the window back with. To see the window again, start "
        u"Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.");
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

const WorkState cCopying{
    .phase = WorkPhase::Running, .file = QStringLiteral("Feature.mkv"), .share = 0.489};

TEST(ClosePolicyTest, QuitWhileAMovieIsCopied_SaysWhatItEnds) {
    const ClosePolicy policy;
    const auto question = policy.questionBeforeQuitting(cCopying, false);
    ASSERT_TRUE(question);
    EXPECT_EQ(question->messageText, u"Quit while movies are being copied?");
    EXPECT_EQ(question->style, AlertStyle::Informational);
    EXPECT_FALSE(question->answersItself);
    EXPECT_EQ(question->informativeText, u"The pass that runs will be ended: Feature.mkv, 48 %. "
                                         u"The next start goes on from there.");
    EXPECT_EQ(question->buttons,
              (QStringList{QStringLiteral("Quit"), QStringLiteral("Keep Running")}));
    WorkState unknownShare = cCopying;
    unknownShare.phase = WorkPhase::Finishing;
    unknownShare.share.reset();
    EXPECT_TRUE(policy.questionBeforeQuitting(unknownShare, false)
                    ->informativeText.contains(u"ended: Feature.mkv. The"));
}

TEST(ClosePolicyTest, QuitThatEndsNothing_AsksNothing) {
    ClosePolicy policy;
    EXPECT_EQ(policy.questionBeforeQuitting(cCopying, true), std::nullopt);
    for (const WorkPhase phase :
         {WorkPhase::Off, WorkPhase::Missing, WorkPhase::Cancelling, WorkPhase::Resting}) {
        WorkState work = cCopying;
        work.phase = phase;
        EXPECT_EQ(policy.questionBeforeQuitting(work, false), std::nullopt);
    }
    EXPECT_EQ(policy.questionBeforeQuitting({.phase = WorkPhase::Running}, false), std::nullopt);
    policy.programQuits();
    EXPECT_EQ(policy.questionBeforeQuitting(cCopying, false), std::nullopt);
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
