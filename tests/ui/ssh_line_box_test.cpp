#include "fakes/fake_front.h"
#include "fakes/fake_ssh_configuration.h"
#include "ui/widgets/ssh_line_box.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Knows = SshConfiguration::Knows;

class SshLineBoxTest : public ::testing::Test {
protected:
    SshLineBoxTest() {
        box.setConfiguration(&ssh, &alerts);
        box.look();
    }
    QString note() { return box.findChild<QLabel*>(QStringLiteral("sshNote"))->text(); }
    QPushButton& button() { return *box.findChild<QPushButton*>(QStringLiteral("sshLine")); }

    FakeSshConfiguration ssh;
    FakeAlertPresenter alerts;
    SshLineBox box;
};

TEST_F(SshLineBoxTest, SshThatDoesNotKnow_IsToldOnceAPersonHasSeenTheLine) {
    EXPECT_FALSE(box.isHidden());
    EXPECT_EQ(note(),
              QStringLiteral("ssh does not know of the connection yet: passes log in each time."));
    button().click();
    ASSERT_EQ(alerts.alerts.size(), 1U);
    const QString said = alerts.alerts.front().informativeText;
    EXPECT_TRUE(said.contains(ssh.line())) << said.toStdString();
    EXPECT_TRUE(said.contains(ssh.file())) << said.toStdString();
    EXPECT_EQ(ssh.standing, Knows::NotYet) << "not yet answered";
    alerts.answer(1, cAlertSecondButtonReturn);
    EXPECT_EQ(ssh.standing, Knows::NotYet);

    button().click();
    alerts.answer(2, cAlertFirstButtonReturn);
    EXPECT_EQ(ssh.standing, Knows::ByTheLine);
    EXPECT_EQ(note(),
              QStringLiteral("A line in /home/me/.ssh/config tells ssh of the connection."));
    EXPECT_EQ(button().text(), QStringLiteral("Take the Line Away"));
}

TEST_F(SshLineBoxTest, Line_IsTakenAwayAtOnce) {
    ssh.standing = Knows::ByTheLine;
    box.look();
    button().click();
    EXPECT_EQ(ssh.standing, Knows::NotYet);
    EXPECT_TRUE(alerts.alerts.empty());
}

TEST_F(SshLineBoxTest, MachineThatTells_LeavesNothingToOffer) {
    ssh.standing = Knows::ByTheMachine;
    box.look();
    EXPECT_TRUE(box.isHidden());
    SshLineBox bare;
    bare.look();
    EXPECT_TRUE(bare.isHidden());
}

TEST_F(SshLineBoxTest, FileThatCannotBeChanged_IsSaid) {
    ssh.fault = QStringLiteral("Permission denied");
    button().click();
    alerts.answer(1, cAlertFirstButtonReturn);
    EXPECT_EQ(note(), QStringLiteral("/home/me/.ssh/config was not changed: Permission denied"));
    EXPECT_EQ(button().text(), QStringLiteral("Tell ssh…"));
}

} // namespace
} // namespace kelvo
