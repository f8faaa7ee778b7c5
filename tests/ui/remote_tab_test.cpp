// The way to the remote Mac in its window: what folds, where the keyboard goes, what is said.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/step_head.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class RemoteTabTest : public ::testing::Test {
protected:
    RemoteTabTest() {
        defaults.setObject(prefRemotePath, QStringLiteral("Movies"));
        mainQueue.runDue();
        window.show();
        window.showTab(QStringLiteral("remote"));
        QApplication::setActiveWindow(&window);
        tab.setKeyState(KeyState::NoKey);
        window.findChild<QTabBar*>()->setFocus();
    }

    template <typename Widget>
    Widget& child(const char* name) {
        return *window.findChild<Widget*>(QString::fromLatin1(name));
    }
    QPushButton& button(const char* name) { return child<QPushButton>(name); }
    QLineEdit& field(const char* name) { return child<QLineEdit>(name); }
    StepHead& head(const char* name) { return child<StepHead>(name); }
    QString word(const char* name) {
        return head(name).findChild<QLabel*>(QStringLiteral("stepWord"))->text();
    }
    QString text(const char* name) {
        const auto& label = child<QLabel>(name);
        return label.isVisible() ? label.text() : QString();
    }
    bool isFolded(const char* step) {
        return !child<QWidget>(qPrintable(QString::fromLatin1(step) + u"Body")).isVisible();
    }

    void set(QStringView key, const QString& value) {
        defaults.setObject(key, value);
        mainQueue.runDue();
    }
    void settle() {
        mainQueue.runDue();
        QCoreApplication::processEvents();
        mainQueue.runDue();
    }
    void type(const char* name, const QString& typed) {
        field(name).setFocus();
        QTest::keyClicks(&field(name), typed);
    }
    /// As the program does it once the user name has changed.
    void useSource() {
        set(prefSampleRemoteFullPath,
            QString(defaults.stringForKey(prefRemoteUsername).value_or(QString()) + u'@' +
                    defaults.stringForKey(prefRemoteBonjourName).value_or(QString()) + u':' +
                    defaults.stringForKey(prefRemotePath).value_or(QString())));
    }
    void setAccount() {
        set(prefRemoteBonjourName, QStringLiteral("mac.local"));
        set(prefRemoteUsername, QStringLiteral("ann"));
        useSource();
    }
    static Connection said(PassCause cause) {
        return {.answer = HostAnswer{.target = QStringLiteral("ann@mac.local"), .cause = cause},
                .asked = QDateTime::currentDateTimeUtc(),
                .letInBefore = cause == PassCause::Well};
    }
    void letIn() {
        tab.setKeyState(KeyState::Accepted);
        tab.setConnection(said(PassCause::Well));
    }
    QStringList mainButtons() {
        QStringList names;
        for (const QPushButton* each : tab.findChildren<QPushButton*>()) {
            if (each->isDefault())
                names.append(each->objectName());
        }
        return names;
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
    RemoteTab& tab{window.remoteTab()};
};

/// A window whose Remote Mac tab nobody has come to.
struct UnseenRemoteTabTest : ::testing::Test {
    template <typename Widget>
    Widget* child(const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
    RemoteTab& tab{window.remoteTab()};
};

TEST_F(UnseenRemoteTabTest, Controls_AreMadeWhenTheTabIsFirstShown) {
    int built = 0;
    tab.whenBuilt([&built] { ++built; });
    window.show();
    EXPECT_TRUE(tab.findChildren<QWidget*>().isEmpty());
    EXPECT_EQ(built, 0);
    window.showTab(QStringLiteral("remote"));
    EXPECT_EQ(built, 1);
    const auto* user = child<QLineEdit>("remoteUser");
    ASSERT_TRUE(user);
    EXPECT_TRUE(user->isVisible());
    window.showTab(QStringLiteral("sync"));
    window.showTab(QStringLiteral("remote"));
    EXPECT_EQ(child<QLineEdit>("remoteUser"), user);
    EXPECT_EQ(built, 1);
    tab.whenBuilt([&built] { ++built; });
    EXPECT_EQ(built, 2) << "at once";
}

TEST_F(UnseenRemoteTabTest, WhatItWasToldBefore_StandsThere) {
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
    defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
    window.showKeyState(KeyState::Accepted);
    tab.setTask(RemoteTaskKind::OpeningFolder);
    tab.setTesting(true);
    tab.setConnection({.answer = HostAnswer{.target = QStringLiteral("ann@mac.local"),
                                            .cause = PassCause::HostAway},
                       .asked = QDateTime::currentDateTimeUtc(),
                       .letInBefore = true});
    tab.setTesting(false);
    mainQueue.runDue();
    window.show();
    window.showTab(QStringLiteral("remote"));
    EXPECT_EQ(child<QLineEdit>("remoteHost")->text(), u"mac.local");
    EXPECT_EQ(child<QLineEdit>("remoteUser")->text(), u"ann");
    EXPECT_TRUE(child<QWidget>("busyRow")->isVisible());
    EXPECT_FALSE(child<QWidget>("testBusySign")->isVisible());
    EXPECT_TRUE(child<QLabel>("connectionText")->text().startsWith(u"The Mac is away"));
    tab.setTask(RemoteTaskKind::None);
    EXPECT_FALSE(child<QWidget>("busyRow")->isVisible());
}

TEST_F(UnseenRemoteTabTest, TestThatRuns_HasItsSignFromTheFirstSight) {
    tab.setTesting(true);
    window.show();
    window.showTab(QStringLiteral("remote"));
    EXPECT_TRUE(child<QWidget>("testBusySign")->isVisible());
}

TEST_F(UnseenRemoteTabTest, StepThatIsOpened_IsThereAtOnce) {
    window.show();
    tab.openStep(SetupStep::Account);
    ASSERT_TRUE(child<QLineEdit>("remoteUser"));
    window.showTab(QStringLiteral("remote"));
    EXPECT_TRUE(child<QLineEdit>("remoteUser")->isVisible());
}

TEST_F(RemoteTabTest, FirstDay_ShowsTheWholeWayAndItsFirstStep) {
    for (const char* step : {"mac", "account", "key", "connection"})
        EXPECT_FALSE(isFolded(step)) << step;
    EXPECT_EQ(word("macHead"), u"Next");
    for (const char* later : {"accountHead", "keyHead", "connectionHead"}) {
        EXPECT_EQ(word(later), u"Later") << later;
        EXPECT_FALSE(head(later).changeButton().isVisible());
    }
    EXPECT_EQ(mainButtons(), QStringList{QStringLiteral("ibSelectSourceByBonjor")});
    EXPECT_EQ(text("connectionText"), u"Not tried yet.");
}

TEST_F(RemoteTabTest, DoneStep_FoldsToALineWithWhatWasChosen) {
    set(prefRemoteBonjourName, QStringLiteral("<b>mac</b>\n.local"));
    EXPECT_TRUE(isFolded("mac"));
    EXPECT_EQ(word("macHead"), u"Done");
    auto* summary = head("macHead").findChild<ElidedLabel*>();
    EXPECT_TRUE(summary->isVisible());
    EXPECT_EQ(summary->fullText(), u"<b>mac</b>\\x0a.local");
    EXPECT_EQ(summary->textFormat(), Qt::PlainText);
    EXPECT_EQ(head("macHead").changeButton().text(), u"Change");
    EXPECT_EQ(head("macHead").changeButton().accessibleName(), u"Change: 1. Mac");
    EXPECT_EQ(mainButtons(), QStringList{QStringLiteral("useSourceNow")});
    set(prefRemoteBonjourName, QString());
    EXPECT_FALSE(isFolded("mac"));
    EXPECT_FALSE(summary->isVisible());
}

TEST_F(RemoteTabTest, EachStep_HasItsMainButtonWhenItIsNext) {
    setAccount();
    EXPECT_TRUE(isFolded("account"));
    EXPECT_EQ(mainButtons(), QStringList{QStringLiteral("ibGenerateSSHKeyStuff")});
    tab.setKeyState(KeyState::NotAsked);
    tab.setConnection({.letInBefore = true});
    EXPECT_TRUE(isFolded("key"));
    EXPECT_EQ(mainButtons(), QStringList{QStringLiteral("ibTestShellCommand")});
    button("ibTestShellCommand").setFocus();
    window.findChild<QTabBar*>()->setFocus();
    EXPECT_EQ(mainButtons(), QStringList{QStringLiteral("ibTestShellCommand")})
        << "the focus has only passed by";
    letIn();
    EXPECT_EQ(mainButtons(), QStringList());
    EXPECT_EQ(word("connectionHead"), u"Done");
    EXPECT_FALSE(isFolded("connection")) << "it can be tested at any time";
}

// -- the way of the keyboard

TEST_F(RemoteTabTest, MacChosenInTheSheet_LeadsToTheUserName) {
    button("ibSelectSourceByBonjor").setFocus();
    button("ibSelectSourceByBonjor").click();
    set(prefRemoteBonjourName, QStringLiteral("mac.local"));
    EXPECT_TRUE(isFolded("mac"));
    EXPECT_TRUE(field("remoteUser").hasFocus());
}

TEST_F(RemoteTabTest, TypedHost_LeadsOnWithReturnOnly) {
    type("remoteHost", QStringLiteral("mac.local"));
    QTest::keyClick(&field("remoteHost"), Qt::Key_Tab);
    settle();
    EXPECT_EQ(word("macHead"), u"Done");
    EXPECT_FALSE(isFolded("mac")) << "nothing moves under a hand that goes on";
    EXPECT_TRUE(button("ibSelectSourceByBonjor").hasFocus());
    field("remoteHost").setFocus();
    QTest::keyClick(&field("remoteHost"), Qt::Key_Return);
    settle();
    EXPECT_TRUE(isFolded("mac"));
    EXPECT_TRUE(field("remoteUser").hasFocus());
}

TEST_F(RemoteTabTest, UserName_LeadsToTheKeyOnceItIsUsed) {
    set(prefRemoteBonjourName, QStringLiteral("mac.local"));
    type("remoteUser", QStringLiteral("ann"));
    QTest::keyClick(&field("remoteUser"), Qt::Key_Return);
    settle();
    EXPECT_FALSE(isFolded("account"));
    EXPECT_TRUE(button("useSourceNow").hasFocus()) << "the source is not in use yet";
    useSource();
    EXPECT_TRUE(isFolded("account"));
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus());
}

TEST_F(RemoteTabTest, StepThatLacksSomething_LeadsThere) {
    set(prefRemoteBonjourName, QStringLiteral("mac.local"));
    defaults.removeObject(prefRemotePath);
    settle();
    type("remoteUser", QStringLiteral("ann"));
    QTest::keyClick(&field("remoteUser"), Qt::Key_Return);
    settle();
    EXPECT_TRUE(field("remotePath").hasFocus());
    button("useSourceNow").setFocus();
    button("useSourceNow").click();
    settle();
    EXPECT_TRUE(field("remotePath").hasFocus());
}

TEST_F(RemoteTabTest, UseThisSourceNow_FoldsTheAccountAndLeadsOn) {
    set(prefRemoteUsername, QStringLiteral("ann"));
    set(prefRemoteBonjourName, QStringLiteral("mac.local"));
    window.setAction(QStringLiteral("useSourceNow"), [this] { useSource(); });
    EXPECT_TRUE(text("remoteNotice").contains(u"Use This Source Now"));
    button("useSourceNow").setFocus();
    button("useSourceNow").click();
    settle();
    EXPECT_EQ(text("remoteNotice"), u"");
    EXPECT_TRUE(isFolded("account"));
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus());
}

TEST_F(RemoteTabTest, AcceptedKey_LeadsToTheConnection) {
    setAccount();
    button("ibGenerateSSHKeyStuff").setFocus();
    button("ibGenerateSSHKeyStuff").click();
    tab.setKeyState(KeyState::NotAsked);
    tab.setKeyState(KeyState::Asking);
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus());
    letIn();
    EXPECT_TRUE(isFolded("key"));
    EXPECT_TRUE(button("ibTestShellCommand").hasFocus());
}

TEST_F(RemoteTabTest, FocusOutsideTheFinishedStep_StaysWhereItIs) {
    button("checkKeyState").setFocus();
    setAccount();
    letIn();
    EXPECT_TRUE(button("checkKeyState").hasFocus());
}

TEST_F(RemoteTabTest, Change_UnfoldsUntilItIsClosedOrTheTabIsLeft) {
    setAccount();
    QPushButton& change = head("accountHead").changeButton();
    change.setFocus();
    change.click();
    EXPECT_FALSE(isFolded("account"));
    EXPECT_TRUE(button("useSourceNow").hasFocus());
    EXPECT_EQ(change.text(), u"Close");
    change.setFocus();
    change.click();
    EXPECT_TRUE(isFolded("account"));
    EXPECT_EQ(change.text(), u"Change");
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus()) << "the next step";
    change.click();
    window.showTab(QStringLiteral("sync"));
    window.showTab(QStringLiteral("remote"));
    EXPECT_TRUE(isFolded("account"));
}

TEST_F(RemoteTabTest, OtherMacChosen_FoldsTheUnfoldedStep) {
    setAccount();
    head("macHead").changeButton().click();
    EXPECT_FALSE(isFolded("mac"));
    button("ibSelectSourceByBonjor").click();
    set(prefRemoteBonjourName, QStringLiteral("other.local"));
    EXPECT_TRUE(isFolded("mac"));
    EXPECT_TRUE(button("useSourceNow").hasFocus()) << "passes still pull from the old one";
}

TEST_F(RemoteTabTest, OpenStep_LeadsIntoFoldedStepsToo) {
    setAccount();
    tab.openStep(SetupStep::Mac);
    EXPECT_FALSE(isFolded("mac"));
    EXPECT_TRUE(button("ibSelectSourceByBonjor").hasFocus());
    tab.openStep(SetupStep::Key);
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus());
    tab.openNextStep();
    EXPECT_TRUE(button("ibGenerateSSHKeyStuff").hasFocus());
    letIn();
    tab.openNextStep();
    EXPECT_TRUE(button("ibTestShellCommand").hasFocus());
    defaults.removeObject(prefRemoteUsername);
    settle();
    tab.openStep(SetupStep::Account);
    EXPECT_TRUE(field("remoteUser").hasFocus());
}

TEST_F(RemoteTabTest, ChangeOnTheSyncTab_LeadsToTheNextStep) {
    set(prefRemoteBonjourName, QStringLiteral("mac.local"));
    window.showTab(QStringLiteral("sync"));
    button("showRemoteTab").click();
    EXPECT_TRUE(field("remoteUser").hasFocus());
}

// -- what is said

TEST_F(RemoteTabTest, Terminal_IsAnnouncedInTheWindow) {
    setAccount();
    EXPECT_TRUE(text("keyText").startsWith(
        u"A terminal opens and asks for the password of ann on mac.local;"));
}

TEST_F(RemoteTabTest, Verdict_StandsWithTimeAndNextStep) {
    setAccount();
    Connection connection = said(PassCause::HostAway);
    connection.answer->saidSuccess = true;
    tab.setKeyState(KeyState::NotAsked);
    tab.setConnection(connection);
    EXPECT_EQ(text("connectionText"),
              u"The Mac is away or asleep. Wake the Mac; in its energy settings, let it wake for "
              u"network access.");
    EXPECT_TRUE(text("connectionRemark").startsWith(u"Asked at "));
    EXPECT_TRUE(text("connectionRemark").contains(u"\"SUCCESS...\" only means"));
    EXPECT_EQ(word("connectionHead"), u"Trouble");
    tab.setTesting(true);
    EXPECT_EQ(text("connectionText"), u"Asking the remote Mac…");
    EXPECT_EQ(text("connectionRemark"), u"");
    tab.setTesting(false);
    tab.setConnection(said(PassCause::Well));
    EXPECT_EQ(text("connectionText"), u"The Mac lets this program in.");
    EXPECT_EQ(word("connectionHead"), u"Done");
}

TEST_F(RemoteTabTest, WordsFromElsewhere_ArePlainTextOnOneLine) {
    Connection connection = said(PassCause::Unknown);
    connection.answer->lastLine = QStringLiteral("<img src=x>\n\x1b[2J");
    tab.setConnection(connection);
    EXPECT_TRUE(text("connectionText").endsWith(u"<img src=x>\\x0a\\x1b[2J"));
    for (const QLabel* label : tab.findChildren<QLabel*>()) {
        if (!label->text().isEmpty()) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->objectName());
        }
    }
}

TEST_F(RemoteTabTest, Texts_SpeakForThemselves) {
    setAccount();
    for (const QLabel* label : tab.findChildren<QLabel*>()) {
        // An elided text is named by the whole of it.
        const auto* elided = qobject_cast<const ElidedLabel*>(label);
        EXPECT_EQ(label->accessibleName(), elided ? elided->fullText() : QString())
            << qPrintable(label->objectName());
    }
}

TEST_F(RemoteTabTest, Signs_DifferByShape) {
    const auto sign = [this](const char* name) {
        return head(name).findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly)->pixmap();
    };
    setAccount();
    tab.setConnection(said(PassCause::HostAway));
    tab.setKeyState(KeyState::NotAsked);
    const auto shape = [](const QPixmap& picture) {
        return picture.toImage().convertedTo(QImage::Format_Alpha8);
    };
    EXPECT_NE(shape(sign("macHead")), shape(sign("connectionHead")));
    EXPECT_TRUE(sign("keyHead").isNull()) << "later";
}

} // namespace
} // namespace kelvo
