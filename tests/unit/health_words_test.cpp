#include "ui/checklist.h"
#include "ui/health_words.h"
#include "ui/pass_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

PassRecord passOf(PassCause cause, PassKind kind = PassKind::Remote) {
    PassRecord pass;
    pass.kind = kind;
    pass.verdict = HostVerdict::Valid;
    pass.cause = cause;
    return pass;
}

class HealthWordsTest : public ::testing::Test {
protected:
    HealthWords words() {
        return healthWords(
            {.standing = standing, .settings = settings, .missing = missing, .now = now});
    }

    void beInTrouble(PassCause cause, PassKind kind = PassKind::Remote) {
        standing.last = passOf(cause, kind);
        standing.troubleSince =
            QDateTime(now.toLocalTime().date(), QTime(15, 22)).toUTC(); // by this machine's clock
        standing.passesInTrouble = 6;
    }

    const QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(19, 0)).toUTC();
    Standing standing;
    SettingsStanding settings;
    std::vector<ChecklistLine> missing;
};

TEST_F(HealthWordsTest, NoPassYet_SaysWhatWillStandHere) {
    const Health health = words().health;
    EXPECT_EQ(health.sign, HealthSign::Unknown);
    EXPECT_EQ(health.text, text("No pass has ended yet. How it went will stand here."));
    EXPECT_EQ(health.lastSuccess, QString());
}

TEST_F(HealthWordsTest, LastSuccess_StandsBesideTrouble) {
    PassRecord success = passOf(PassCause::Well);
    success.began = now.addSecs(-12 * 60 - 5);
    success.transfer.files = 3;
    standing.last = standing.lastSuccess = success;
    EXPECT_EQ(words().health.sign, HealthSign::Well);
    EXPECT_EQ(words().health.text, text("All is well."));
    EXPECT_EQ(words().health.lastSuccess, text("Last success: 12 minutes ago, 3 files"));
    beInTrouble(PassCause::RemoteLoginOff);
    const HealthWords trouble = words();
    EXPECT_EQ(trouble.health.sign, HealthSign::Trouble);
    EXPECT_EQ(trouble.health.text,
              text("The Mac is there but refuses logins since 15:22 (6 passes). On the Mac, switch "
                   "on Remote Login (System Settings, General, Sharing)."));
    EXPECT_EQ(trouble.matter, text("The Mac is there but refuses logins since 15:22 (6 passes)."));
    EXPECT_EQ(trouble.health.remedy, Remedy::CheckAgain);
    EXPECT_EQ(trouble.health.cause, text("remote-login-off"));
    EXPECT_EQ(trouble.health.lastSuccess, text("Last success: 12 minutes ago, 3 files"));
}

TEST_F(HealthWordsTest, SinceStandsBehindWhatTheSentenceSaysFirst) {
    beInTrouble(PassCause::HostKeyChanged);
    EXPECT_TRUE(words().matter.startsWith(
        text("The Mac shows another key than before since 15:22 (6 passes): it was")));
    beInTrouble(PassCause::LoginTalks);
    EXPECT_EQ(words().matter,
              text("The Mac prints a text at each login since 15:22 (6 passes), which hides its "
                   "answer."));
    for (const qint64 passes : {1, 0}) {
        standing.passesInTrouble = passes;
        EXPECT_EQ(words().matter,
                  text("The Mac prints a text at each login since 15:22 (1 pass), which hides its "
                       "answer."))
            << "the pass itself counts";
    }
    standing.troubleSince = now.addDays(-3);
    EXPECT_FALSE(words().matter.contains(u"since 15:22"));
    standing.last->began = standing.troubleSince.addSecs(-3600);
    const QString byItsOwn = words().matter;
    standing.troubleSince = standing.last->began;
    EXPECT_NE(words().matter, byItsOwn);
    const QString byThePass = words().matter;
    standing.troubleSince = {};
    EXPECT_EQ(words().matter, byThePass) << "since the pass where nothing else is known";
}

TEST_F(HealthWordsTest, UnknownTrouble_TellsTheLastLineHarmlessly) {
    beInTrouble(PassCause::Unknown);
    standing.last->lastLine = text("rsync: \x1b[31mno\n");
    EXPECT_EQ(words().health.text,
              text("Something went wrong since 15:22 (6 passes). The last line was: rsync: "
                   "\\x1b[31mno\\x0a"));
    EXPECT_EQ(words().health.remedy, Remedy::ShowDetails);
    standing.last->lastLine.clear();
    EXPECT_EQ(words().health.text, text("Something went wrong since 15:22 (6 passes). See the "
                                        "pass's text for what the commands said."));
}

TEST_F(HealthWordsTest, RefusedSettings_TellTheReasonIfThereIsOne) {
    beInTrouble(PassCause::SettingsRefused);
    const QString matter = words().matter;
    EXPECT_EQ(words().health.text,
              QString(matter + text(" Choose another folder, user name or host: "
                                    "without a line break, and no \"-\" in "
                                    "front.")));
    standing.last->lastLine = text("the destination begins with \"-\"");
    EXPECT_EQ(words().health.text,
              QString(matter + text(" The reason: the destination begins with \"-\".")));
}

TEST_F(HealthWordsTest, TroubleThatIsUnderstood_TellsTheNextStepNotTheLastLine) {
    beInTrouble(PassCause::DiskFull);
    standing.last->lastLine = text("rsync: write failed");
    EXPECT_EQ(words().health.text,
              text("The disk here is full since 15:22 (6 passes). Make room on "
                   "the disk of the destination folder."));
}

TEST_F(HealthWordsTest, EveryTrouble_HasARemedyOrANextStep) {
    for (int i = 0; i <= static_cast<int>(cLastPassCause); ++i) {
        const auto cause = static_cast<PassCause>(i);
        if (!isTrouble(cause)) {
            EXPECT_EQ(remedyFor(passOf(cause)), Remedy::None) << i;
            continue;
        }
        beInTrouble(cause);
        EXPECT_NE(words().health.remedy, Remedy::None) << i;
        EXPECT_FALSE(words().health.text.contains(u'\n')) << i;
    }
    EXPECT_EQ(remedyFor(passOf(PassCause::DestinationTaken)), Remedy::ChooseDestination);
    EXPECT_EQ(remedyFor(passOf(PassCause::SourceMissing, PassKind::Plain)), Remedy::ChooseSource);
    EXPECT_EQ(remedyFor(passOf(PassCause::SourceMissing, PassKind::Remote)), Remedy::ShowRemoteTab);
}

TEST_F(HealthWordsTest, WhatCannotBeKept_IsTroubleAndARemark) {
    standing.last = passOf(PassCause::Well);
    settings.fault = text("Settings cannot be saved to /s: full");
    EXPECT_EQ(words().health.sign, HealthSign::Trouble);
    EXPECT_EQ(words().health.text, text("Settings cannot be saved to /s: full."));
    EXPECT_EQ(words().health.remedy, Remedy::OpenLog);
    EXPECT_EQ(words().remarks, QStringList{text("Settings cannot be saved to /s: full.")});
    beInTrouble(PassCause::HostAway);
    EXPECT_TRUE(words().health.text.startsWith(u"The Mac is away")) << "the record goes first";
    EXPECT_EQ(words().remarks.size(), 1);
    settings.fault.clear();
    standing.last->cause = PassCause::Well;
    standing.fault = text("disk I/O error");
    EXPECT_EQ(words().health.text, text("The record of passes cannot be kept: disk I/O error"));
    EXPECT_EQ(words().health.remedy, Remedy::OpenLog);
    standing.fault.clear();
    missing.push_back(
        {text("rsync is not installed on this machine."), Remedy::CopyInstallCommand});
    EXPECT_EQ(words().health.text, text("rsync is not installed on this machine."));
    EXPECT_EQ(words().health.remedy, Remedy::CopyInstallCommand);
}

TEST_F(HealthWordsTest, WhatWasSetAside_IsSaidWithTheNameOfTheCopy) {
    standing.last = passOf(PassCause::Well);
    settings.aside = text("/s.corrupt-1");
    standing.aside = text("/p.corrupt-2");
    EXPECT_EQ(words().health.sign, HealthSign::Well) << "it is over";
    EXPECT_EQ(words().remarks,
              (QStringList{text("The settings file was damaged. It is kept as /s.corrupt-1"),
                           text("The record of passes was damaged. It is kept as /p.corrupt-2")}));
}

TEST_F(HealthWordsTest, MatterThatIsNoPass_IsItsOwnCause) {
    standing.fault = text("No space left on device");
    const HealthWords said = words();
    EXPECT_EQ(said.health.cause,
              text("The record of passes cannot be kept: No space left on device"));
    EXPECT_EQ(said.matter, said.health.cause);
    beInTrouble(PassCause::DiskFull);
    EXPECT_EQ(words().health.cause, text("disk-full")) << "the pass is nearer to the movies";
}

TEST_F(HealthWordsTest, RecordThatWasReplaced_IsSaid) {
    standing.last = passOf(PassCause::Well);
    standing.replaced = true;
    EXPECT_EQ(words().health.sign, HealthSign::Well) << "it is over";
    EXPECT_EQ(words().remarks,
              QStringList{text("The record of passes was removed or replaced. The passes since the "
                               "start were written again")});
}

} // namespace
} // namespace kelvo
