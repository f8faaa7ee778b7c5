// What a screen reader is told to speak of its own accord, and what it is not bothered with.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/pass_record.h"
#include "ui/widgets/accessible_factory.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class AnnouncementTest : public ::testing::Test {
protected:
    AnnouncementTest() {
        window.show();
        QApplication::setActiveWindow(&window);
    }

    /// What was handed over to be spoken since the last question; of each place in its order.
    QStringList heard() const {
        QStringList texts;
        for (Spokesman* spokesman : window.findChildren<Spokesman*>()) {
            if (!spokesman->property("heard").isValid())
                texts.append(spokesman->accessibleName());
            spokesman->setProperty("heard", true);
        }
        return texts;
    }

    void status(const char* text, StatusColor color = StatusColor::Black) {
        window.ibStatusTextField().show({QString::fromLatin1(text), color});
    }
    void health(HealthSign sign, const char* text, const char* cause = "") {
        window.showWork({.phase = WorkPhase::Resting,
                         .health = {.sign = sign,
                                    .text = QString::fromLatin1(text),
                                    .cause = QString::fromLatin1(cause)},
                         .maySyncNow = true});
    }
    void passEnds(qint64 files, PassCause cause = PassCause::Well) {
        PassRecord pass{};
        pass.cause = cause;
        pass.transfer = {TransferSource::Lines, files, std::nullopt};
        window.syncTab().passEnded(pass);
    }

    void macSays(PassCause cause) {
        window.remoteTab().setConnection(
            {.answer = HostAnswer{.target = QStringLiteral("ann@mac.local"), .cause = cause},
             .asked = QDateTime::currentDateTimeUtc(),
             .letInBefore = true});
    }
    void test(PassCause cause) {
        window.remoteTab().setTesting(true);
        macSays(cause);
        window.remoteTab().setTesting(false);
    }
    void task(RemoteTaskKind kind) { window.remoteTab().setTask(kind); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
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
    window.button(QStringLiteral("ibSyncNow")).click();
    health(HealthSign::Well, "All is well.");
    EXPECT_EQ(heard(), QStringList{"All is well."});
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
    window.showKeyState(KeyState::Accepted);
    EXPECT_EQ(heard(), (QStringList{"Asking the remote Mac…", "Key accepted by the remote Mac."}));
}

TEST_F(AnnouncementTest, ConnectionTest_SpeaksItsVerdictEachTime) {
    window.showTab(QStringLiteral("remote"));
    const QStringList once{"Asking the remote Mac…", "The Mac lets this program in."};
    test(PassCause::Well);
    EXPECT_EQ(heard(), once);
    test(PassCause::Well);
    EXPECT_EQ(heard(), once) << "it was asked for";
}

TEST_F(AnnouncementTest, ConnectionWatched_SpeaksWhatIsNewOnly) {
    window.showTab(QStringLiteral("remote"));
    macSays(PassCause::Well);
    EXPECT_EQ(heard(), QStringList()) << "what the record says is no news";
    macSays(PassCause::Well);
    EXPECT_EQ(heard(), QStringList());
    macSays(PassCause::HostAway);
    EXPECT_EQ(heard(),
              QStringList{"The Mac is away or asleep. Wake the Mac; in its energy settings, let it "
                          "wake for network access."});
    window.remoteTab().setKeyState(KeyState::Asking);
    window.remoteTab().setKeyState(KeyState::Accepted);
    EXPECT_EQ(heard(), QStringList()) << "the key has words of its own";
}

TEST_F(AnnouncementTest, BusyRow_SpeaksBeginningAndEnd) {
    task(RemoteTaskKind::OpeningFolder);
    task(RemoteTaskKind::None);
    EXPECT_EQ(heard(), QStringList()) << "the tab is not in sight";
    window.showTab(QStringLiteral("remote"));
    for (const RemoteTaskKind kind : {RemoteTaskKind::OpeningFolder, RemoteTaskKind::OpeningFolder,
                                      RemoteTaskKind::None, RemoteTaskKind::None})
        task(kind);
    EXPECT_EQ(heard(), (QStringList{"Opening the remote folder…", "Finished."}));
    for (const RemoteTaskKind kind :
         {RemoteTaskKind::MakingKey, RemoteTaskKind::Ending, RemoteTaskKind::None})
        task(kind);
    EXPECT_EQ(heard(), (QStringList{"Making a new key…", "Being cancelled…", "Cancelled."}));
}

TEST_F(AnnouncementTest, TemplateTrouble_IsSpokenWhenItComes) {
    const auto type = [this](const char* text) {
        auto& field = *window.findChild<QPlainTextEdit*>(QStringLiteral("rsyncTemplate"));
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
        mainQueue.advance(0.2);
    };
    const QStringList spoken{"The template lacks %@2, the destination: its command does not fill "
                             "the folder that is chosen."};
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("rsync %@1"));
    defaults.setObject(prefAdvancedShown, true);
    mainQueue.runDue();
    window.showTab(QStringLiteral("prefs"));
    EXPECT_EQ(heard(), QStringList()) << "it stood there before";
    type("rsync -r %@1");
    EXPECT_EQ(heard(), spoken);
    type("rsync -rt %@1");
    EXPECT_EQ(heard(), QStringList()) << "no news";
    type("rsync %@1 %@2");
    EXPECT_EQ(heard(), QStringList());
    type("rsync %@1");
    EXPECT_EQ(heard(), spoken);
}

TEST_F(AnnouncementTest, AnotherWindowHasTheKeyboard_OnlyTroubleAndAnswersAreSpoken) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    announce(window.syncTab(), QStringLiteral("polite"));
    EXPECT_EQ(heard(), QStringList());
    announce(window.syncTab(), QStringLiteral("urgent"), Urgency::Urgent);
    EXPECT_EQ(heard(), QStringList{"urgent"});
    announce(window.syncTab(), QStringLiteral("answer"), Urgency::Asked);
    EXPECT_EQ(heard(), QStringList{"answer"});
    window.hide();
    announce(window.syncTab(), QStringLiteral("unseen"), Urgency::Urgent);
    EXPECT_EQ(heard(), QStringList());
}

} // namespace
} // namespace kelvo
