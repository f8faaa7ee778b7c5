#include "fakes/fake_front.h"
#include "fakes/fake_login_item.h"
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/contrast.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/settings_tab.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class SettingsTabTest : public ::testing::Test {
protected:
    SettingsTabTest() {
        defaults.registerDefaults({{prefRsyncCommandString1.toString(), factoryTemplate()},
                                   {prefRsyncCommandOptionTag.toString(), 100},
                                   {prefRsyncWithSSH.toString(), true}});
    }

    template <typename Widget>
    Widget& child(const char* name) {
        return *tab.findChild<Widget*>(QString::fromLatin1(name));
    }
    QCheckBox& box() { return child<QCheckBox>("startAtLogin"); }
    QLabel& trouble() { return child<QLabel>("loginTrouble"); }
    QCheckBox& kind(const char* suffix) {
        return *tab.findChild<QCheckBox*>(QStringLiteral("kind_") + QLatin1StringView(suffix));
    }
    QPlainTextEdit& field() { return child<QPlainTextEdit>("rsyncTemplate"); }
    QPushButton& factoryButton() { return child<QPushButton>("factoryTemplate"); }
    QPushButton& factoryButtonForKinds() { return child<QPushButton>("factoryTemplateForKinds"); }
    QString example() { return child<QLabel>("commandExample").text(); }
    QString note() { return child<QLabel>("kindsNote").text(); }

    void set(QStringView key, const QVariant& value) {
        defaults.setObject(key, value);
        mainQueue.runDue();
    }
    QString storedTemplate() const {
        return defaults.stringForKey(prefRsyncCommandString1).value_or(QString());
    }
    void show() {
        tab.show();
        QApplication::setActiveWindow(&tab);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tab));
    }
    void showAdvanced() {
        set(prefAdvancedShown, true);
        show();
    }
    void type(const char* text) {
        field().setFocus();
        field().selectAll();
        QTest::keyClicks(&field(), QString::fromLatin1(text));
    }

    FakeLoginItem item;
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    Bindings bindings{defaults, mainQueue};
    SettingsTab tab{bindings};
};

TEST_F(SettingsTabTest, StartAtLogin_IsOffAndSwitchesTheEntry) {
    tab.show();
    EXPECT_FALSE(box().isEnabled()) << "nothing to switch yet";
    tab.setLoginItem(item);
    EXPECT_EQ(box().text().remove(u'&'), QStringLiteral("Start Kelvo Mirror when I log in"));
    EXPECT_TRUE(box().isEnabled());
    EXPECT_FALSE(box().isChecked());
    box().click();
    EXPECT_TRUE(item.isOn);
    EXPECT_TRUE(box().isChecked());
    box().click();
    EXPECT_FALSE(item.isOn);
    EXPECT_FALSE(trouble().isVisible());
}

TEST_F(SettingsTabTest, NoticesCommandAndQuit_AreBoundBothWays) {
    showAdvanced();
    for (const auto& [name, key] : {std::pair("showArrivals", prefShowArrivals),
                                    std::pair("keepConnection", prefKeepConnection),
                                    std::pair("quitWithoutAsking", prefQuitWithoutAsking)}) {
        auto* flag = tab.findChild<QCheckBox*>(QString::fromLatin1(name));
        defaults.setObject(key, true);
        mainQueue.runDue();
        EXPECT_TRUE(flag->isChecked()) << name;
        flag->click();
        EXPECT_EQ(defaults.object(key), QVariant(false)) << name;
    }
    auto* command = tab.findChild<QLineEdit*>(QStringLiteral("commandAfterArrivals"));
    command->setFocus();
    QTest::keyClicks(command, QStringLiteral("index-movies"));
    QTest::keyClick(command, Qt::Key_Return);
    EXPECT_EQ(defaults.stringForKey(prefCommandAfterArrivals), QStringLiteral("index-movies"));
    command->clear();
    command->setModified(true);
    QTest::keyClick(command, Qt::Key_Return);
    EXPECT_FALSE(defaults.object(prefCommandAfterArrivals).isValid());
}

TEST_F(SettingsTabTest, EntryChangedMeanwhile_IsShownWhenTheTabComesUp) {
    tab.setLoginItem(item);
    tab.show();
    tab.hide();
    item.isOn = true;
    tab.show();
    EXPECT_TRUE(box().isChecked());
}

TEST_F(SettingsTabTest, ChangeThatFails_IsSaidUnderTheBoxAndGoneOnceItWorks) {
    tab.setLoginItem(item);
    tab.show();
    item.standing = {LoginItemOutcome::Failed, {}, QStringLiteral("Read-only file system")};
    box().click();
    EXPECT_FALSE(box().isChecked());
    EXPECT_TRUE(trouble().isVisible());
    EXPECT_TRUE(trouble().text().endsWith(u"Read-only file system"));
    item.standing = {};
    box().click();
    EXPECT_TRUE(box().isChecked());
    EXPECT_FALSE(trouble().isVisible());
}

TEST_F(SettingsTabTest, EntryOfSomebodyElse_CannotBeSwitched) {
    item.standing = {LoginItemOutcome::SomebodyElses, {}, {}};
    tab.setLoginItem(item);
    tab.show();
    EXPECT_FALSE(box().isEnabled());
    EXPECT_TRUE(trouble().isVisible());
    EXPECT_TRUE(trouble().text().contains(item.path));
}

TEST_F(SettingsTabTest, Controls_AreMadeWhenTheTabIsFirstShown) {
    EXPECT_TRUE(tab.findChildren<QWidget*>().isEmpty());
    int built = 0;
    QObject::connect(&tab, &SettingsTab::built, &tab, [&] { ++built; });
    tab.show();
    EXPECT_FALSE(tab.findChildren<QWidget*>().isEmpty());
    tab.hide();
    tab.show();
    EXPECT_EQ(built, 1);
}

TEST_F(SettingsTabTest, Rest_IsShownAsItIsStored) {
    show();
    auto& rest = child<QDoubleSpinBox>("delayBetweenScans");
    for (const auto& [seconds, text] :
         {std::pair(0.04, "0.04 s"), std::pair(100000.0, "100000 s"), std::pair(30.0, "30 s"),
          std::pair(0.0, "3.0 s (automatic)"), std::pair(-5.0, "3.0 s (automatic)")}) {
        set(prefDelayBetweenScans, seconds);
        EXPECT_EQ(rest.text(), QLatin1StringView(text));
        tab.hide();
        show();
        rest.setFocus();
        QTest::keyClick(&rest, Qt::Key_Tab);
        EXPECT_EQ(defaults.object(prefDelayBetweenScans), QVariant(seconds));
    }
}

// -- kinds of movies

TEST_F(SettingsTabTest, Kinds_AreTheTemplatesAndRewriteIt) {
    set(prefRsyncWithSSH, false);
    show();
    for (const char* taken : {"mov", "mp4", "mts"})
        EXPECT_TRUE(kind(taken).isChecked()) << taken;
    for (const char* left : {"mxf", "wmv"})
        EXPECT_FALSE(kind(left).isChecked()) << left;
    kind("mov").click();
    kind("mxf").click();
    mainQueue.runDue();
    EXPECT_FALSE(storedTemplate().contains(u"[mM][oO][vV]"));
    EXPECT_TRUE(storedTemplate().contains(u"-f '+ *.[mM][xX][fF]'"));
    EXPECT_TRUE(kind("mxf").isChecked());
    set(prefRsyncCommandString1, templateWithKinds(1));
    EXPECT_TRUE(kind("mov").isChecked()) << "another program's ticks";
    EXPECT_FALSE(kind("mp4").isChecked());
    kind("mov").click();
    mainQueue.runDue();
    EXPECT_EQ(storedTemplate(), templateWithKinds(0));
    EXPECT_TRUE(note().contains(u"bring nothing"));
}

TEST_F(SettingsTabTest, KindsThatComeAnyway_AreTickedAndFixedWhilePassesPull) {
    set(prefRsyncCommandString1, templateWithKinds(0));
    show();
    for (const char* suffix : {"mov", "mp4"}) {
        EXPECT_TRUE(kind(suffix).isChecked()) << suffix;
        EXPECT_FALSE(kind(suffix).isEnabled()) << suffix;
    }
    EXPECT_TRUE(note().contains(u"always come"));
    kind("mkv").click();
    mainQueue.runDue();
    EXPECT_FALSE(storedTemplate().contains(u"[mM][oO][vV]")) << "only what was ticked is written";
    child<QRadioButton>("plainPass").click();
    mainQueue.runDue();
    EXPECT_TRUE(kind("mov").isEnabled());
    EXPECT_FALSE(kind("mov").isChecked());
    EXPECT_FALSE(child<QLabel>("kindsNote").isVisible());
}

TEST_F(SettingsTabTest, OwnTemplate_IsLeftAloneAndSaysSo) {
    set(prefRsyncCommandString1, QStringLiteral("mine %@98 %@1 %@2"));
    show();
    for (const char* suffix : {"mov", "mkv", "wmv"}) {
        EXPECT_FALSE(kind(suffix).isEnabled()) << suffix;
        EXPECT_FALSE(kind(suffix).isChecked()) << suffix;
    }
    EXPECT_TRUE(child<QLabel>("kindsNote").isVisible());
    EXPECT_TRUE(note().contains(u"your own"));
    EXPECT_EQ(child<QWidget>("kindsBox").accessibleDescription(), note());
    EXPECT_TRUE(factoryButtonForKinds().isVisible());
    set(prefRsyncCommandString1, factoryTemplate());
    EXPECT_FALSE(factoryButtonForKinds().isVisible());
    EXPECT_TRUE(kind("mkv").isEnabled());
}

// -- the way back

TEST_F(SettingsTabTest, BackToTheFactoryTemplate_AsksFirstAndCanBeUndone) {
    FakeAlertPresenter alerts;
    tab.setAlerts(alerts);
    const QString own = QStringLiteral("mine %@98 %@1 %@2");
    set(prefRsyncCommandString1, own);
    show();
    QPushButton& button = factoryButtonForKinds();
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    ASSERT_EQ(alerts.alerts.size(), 1U);
    EXPECT_EQ(storedTemplate(), own) << "nobody has answered yet";
    alerts.answer(alerts.last, cAlertSecondButtonReturn);
    EXPECT_EQ(storedTemplate(), own);

    QTest::keyClick(&button, Qt::Key_Space);
    alerts.answer(alerts.last, cAlertFirstButtonReturn);
    mainQueue.runDue();
    EXPECT_EQ(storedTemplate(), factoryTemplate());
    EXPECT_TRUE(kind("mkv").isEnabled());
    EXPECT_EQ(button.text(), u"Back to My Template");
    EXPECT_TRUE(button.hasFocus()) << "the way back is where the person is";
    QTest::keyClick(&button, Qt::Key_Space);
    mainQueue.runDue();
    EXPECT_EQ(storedTemplate(), own);
    EXPECT_EQ(alerts.alerts.size(), 2U) << "nothing is lost that way";
}

TEST_F(SettingsTabTest, OtherTicks_GoBackWithoutAQuestion) {
    FakeAlertPresenter alerts;
    tab.setAlerts(alerts);
    showAdvanced();
    EXPECT_FALSE(factoryButton().isEnabled());
    kind("mkv").click();
    mainQueue.runDue();
    EXPECT_FALSE(factoryButtonForKinds().isVisible());
    factoryButton().click();
    mainQueue.runDue();
    EXPECT_EQ(storedTemplate(), factoryTemplate());
    EXPECT_TRUE(alerts.alerts.empty());
}

// -- under Advanced

TEST_F(SettingsTabTest, Advanced_IsClosedAtFirstAndOpenedByKeyboard) {
    show();
    auto& advanced = child<QToolButton>("advanced");
    EXPECT_FALSE(field().isVisible());
    advanced.setFocus();
    QTest::keyClick(&advanced, Qt::Key_Space);
    EXPECT_TRUE(field().isVisible());
    EXPECT_EQ(advanced.arrowType(), Qt::DownArrow);
    EXPECT_EQ(defaults.object(prefAdvancedShown), QVariant(true));
    QTest::keyClick(&advanced, Qt::Key_Tab);
    EXPECT_TRUE(field().hasFocus());
    advanced.click();
    EXPECT_FALSE(field().isVisible());
    EXPECT_TRUE(advanced.hasFocus()) << "the focus does not vanish with the field";
    EXPECT_EQ(advanced.arrowType(), Qt::RightArrow);
    tab.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(advanced.arrowType(), Qt::LeftArrow);
    EXPECT_EQ(defaults.object(prefAdvancedShown), QVariant(false));
}

TEST_F(SettingsTabTest, Example_FollowsTheTypingAMomentLater) {
    set(prefRsyncCommandOptionTag, 101);
    set(prefRsyncCommandStringExample, QStringLiteral("stored"));
    showAdvanced();
    EXPECT_EQ(example(), u"stored");
    type("r %@99 %@1");
    mainQueue.advance(0.19);
    EXPECT_EQ(example(), u"stored") << "typing goes on";
    QTest::keyClicks(&field(), QStringLiteral(" %@2"));
    mainQueue.advance(0.01);
    EXPECT_EQ(example(), u"r --update %@1 %@2");
    EXPECT_TRUE(mainQueue.idle()) << "one look for all keys";
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandStringExample), QStringLiteral("stored"))
        << "nothing is stored before editing ends";
    QTest::keyClick(&field(), Qt::Key_Escape);
    mainQueue.advance(0.2);
    EXPECT_EQ(example(), u"stored");
    type("");
    QTest::keyClick(&field(), Qt::Key_Delete);
    mainQueue.advance(0.2);
    EXPECT_TRUE(example().startsWith(u"/usr/bin/rsync 2>&1 %@98 --update -r "))
        << "an empty field brings the factory's template back";
}

TEST_F(SettingsTabTest, ExampleThatIsNotStoredYet_IsTheTemplates) {
    showAdvanced();
    EXPECT_EQ(example(), factoryTemplate().remove(QStringLiteral("%@99")));
    set(prefRsyncCommandOptionTag, 103);
    EXPECT_EQ(example(), QString()) << "no option of rsync";
}

TEST_F(SettingsTabTest, WhatATemplateLacks_IsSaidBesideIt) {
    showAdvanced();
    auto& faults = child<QLabel>("templateTrouble");
    EXPECT_FALSE(faults.isVisible());
    type("rsync %@98 %@1");
    mainQueue.advance(0.2);
    EXPECT_TRUE(faults.isVisible());
    EXPECT_TRUE(faults.text().startsWith(u"The template lacks %@2, the destination: "));
    EXPECT_TRUE(field().accessibleDescription().endsWith(faults.text()));
    const QPalette palette = faults.palette();
    EXPECT_GE(contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 4.5);
    type("rsync %@1 %@2");
    mainQueue.advance(0.2);
    EXPECT_TRUE(faults.text().contains(u"%@98"));
    set(prefRsyncWithSSH, false);
    EXPECT_FALSE(faults.isVisible()) << "two folders here need no ssh";
    set(prefRsyncCommandOptionTag, 102);
    EXPECT_TRUE(faults.text().contains(u"%@99"));
    type("echo `%@99 %@1 %@2`");
    mainQueue.advance(0.2);
    EXPECT_TRUE(faults.text().contains(u"refused"));
    QTest::keyClick(&field(), Qt::Key_Escape);
    mainQueue.advance(0.2);
    EXPECT_FALSE(faults.isVisible());
}

TEST_F(SettingsTabTest, TabThatIsGone_IsNotLookedAt) {
    auto doomed = std::make_unique<SettingsTab>(bindings);
    doomed->show();
    doomed->findChild<QPlainTextEdit*>(QStringLiteral("rsyncTemplate"))
        ->setPlainText(QStringLiteral("x"));
    doomed.reset();
    mainQueue.advance(1.0);
    EXPECT_TRUE(mainQueue.idle());
}

} // namespace
} // namespace kelvo
