#include "fakes/fake_login_item.h"
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/settings_tab.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class SettingsTabTest : public ::testing::Test {
protected:
    QCheckBox& box() { return *tab.findChild<QCheckBox*>(QStringLiteral("startAtLogin")); }
    QLabel& trouble() { return *tab.findChild<QLabel*>(QStringLiteral("loginTrouble")); }

    FakeLoginItem item;
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    Bindings bindings{defaults, mainQueue};
    SettingsTab tab{bindings};
};

TEST_F(SettingsTabTest, StartAtLogin_IsOffAndSwitchesTheEntry) {
    EXPECT_FALSE(box().isEnabled()) << "nothing to switch yet";
    tab.setLoginItem(item);
    tab.show();
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
    tab.show();
    for (const auto& [name, key] : {std::pair("showArrivals", prefShowArrivals),
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

} // namespace
} // namespace kelvo
