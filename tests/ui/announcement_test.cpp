// What a screen reader is told to speak of its own accord, and what it is not bothered with.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "support/pass_record.h"
#include "ui/widgets/accessible_factory.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"

#include <QApplication>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class AnnouncementTest : public ::testing::Test {
protected:
    AnnouncementTest() {
        window.show();
        QApplication::setActiveWindow(&window);
    }

    /// What was spoken since the last question.
    QStringList heard() {
        listen();
        return std::exchange(fHeard, {});
    }

    /// Takes down what was handed over to be spoken; to be called after each step.
    void listen() {
        for (Spokesman* spokesman : window.findChildren<Spokesman*>()) {
            if (!spokesman->accessibleName().isEmpty())
                fHeard.append(spokesman->accessibleName());
            spokesman->setAccessibleName({});
        }
    }

    void status(const char* text, StatusColor color = StatusColor::Black) {
        window.ibStatusTextField().show({QString::fromLatin1(text), color});
        listen();
    }
    void health(HealthSign sign, const char* text, const char* cause = "") {
        window.showWork({.phase = WorkPhase::Resting,
                         .health = {.sign = sign,
                                    .text = QString::fromLatin1(text),
                                    .cause = QString::fromLatin1(cause)},
                         .maySyncNow = true});
        listen();
    }
    void passEnds(qint64 files, PassCause cause = PassCause::Well) {
        PassRecord pass{};
        pass.cause = cause;
        pass.transfer = {TransferSource::Lines, files, std::nullopt};
        window.syncTab().passEnded(pass);
        listen();
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};

private:
    QStringList fHeard;
};

TEST_F(AnnouncementTest, StatusTexts_AreSpokenOnceAndAgainAfterTrouble) {
    for (int pass = 0; pass < 3; ++pass) {
        status("Trying ...");
        status("Resting a bit ...");
    }
    EXPECT_EQ(heard(), (QStringList{"Trying ...", "Resting a bit ..."}));
    status("waiting to retry again... [1]", StatusColor::Red);
    status("waiting to retry again... [2]", StatusColor::Red);
    status("Trying ...");
    EXPECT_EQ(heard(), (QStringList{"waiting to retry again... [1]", "Trying ..."}));
}

TEST_F(AnnouncementTest, Health_SpeaksTroubleThatBeginsTurnsAndEnds) {
    health(HealthSign::Unknown, "No pass has ended yet.");
    health(HealthSign::Well, "All is well.");
    EXPECT_EQ(heard(), QStringList());
    health(HealthSign::Trouble, "No answer since 10:00 (1 pass).", "away");
    health(HealthSign::Trouble, "No answer since 10:00 (2 passes).", "away");
    EXPECT_EQ(heard(), QStringList{"No answer since 10:00 (1 pass)."});
    health(HealthSign::Trouble, "Refused since 10:00 (3 passes).", "refused");
    health(HealthSign::Well, "All is well.");
    EXPECT_EQ(heard(), (QStringList{"Refused since 10:00 (3 passes).", "All is well."}));
}

TEST_F(AnnouncementTest, TroubleAtTheStart_IsSpoken) {
    health(HealthSign::Trouble, "No answer since 10:00 (1 pass).", "away");
    EXPECT_EQ(heard(), QStringList{"No answer since 10:00 (1 pass)."});
}

TEST_F(AnnouncementTest, PassAskedFor_SaysHowItWentAlthoughItIsNoNews) {
    health(HealthSign::Trouble, "No answer since 10:00 (1 pass).", "away");
    heard();
    window.button(QStringLiteral("ibSyncNow")).click();
    health(HealthSign::Trouble, "No answer since 10:00 (2 passes).", "away");
    EXPECT_EQ(heard(), QStringList{"No answer since 10:00 (2 passes)."});
}

TEST_F(AnnouncementTest, EndOfAPass_IsSpokenWhenItBroughtSomethingOrWasAskedFor) {
    passEnds(0);
    EXPECT_EQ(heard(), QStringList());
    passEnds(1);
    passEnds(1);
    EXPECT_EQ(heard(), (QStringList{"The pass went well: 1 file.", "The pass went well: 1 file."}));
    window.ibStartButton().click();
    passEnds(0, PassCause::HostAway);
    EXPECT_EQ(heard(), QStringList()) << "trouble is told by the health line";
    passEnds(0);
    passEnds(0);
    EXPECT_EQ(heard(), QStringList{"The pass went well: nothing new."});
}

TEST_F(AnnouncementTest, KeyState_IsSpokenWhereItStands) {
    window.showKeyState(KeyState::Accepted);
    EXPECT_EQ(heard(), QStringList());
    window.showTab(QStringLiteral("remote"));
    window.showKeyState(KeyState::Asking);
    listen();
    window.showKeyState(KeyState::Accepted);
    EXPECT_EQ(heard(), (QStringList{"Asking the remote Mac…", "Key accepted by the remote Mac."}));
}

TEST_F(AnnouncementTest, AnotherWindowHasTheKeyboard_OnlyTroubleIsSpoken) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    announce(window.syncTab(), QStringLiteral("polite"));
    EXPECT_EQ(heard(), QStringList());
    announce(window.syncTab(), QStringLiteral("urgent"), Urgency::Urgent);
    EXPECT_EQ(heard(), QStringList{"urgent"});
    window.hide();
    announce(window.syncTab(), QStringLiteral("unseen"), Urgency::Urgent);
    EXPECT_EQ(heard(), QStringList());
}

} // namespace
} // namespace kelvo
