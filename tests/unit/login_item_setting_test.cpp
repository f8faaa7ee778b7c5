#include "fakes/fake_login_item.h"
#include "ui/login_item_setting.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(LoginItemSettingTest, NoEntry_IsOffWithoutAWord) {
    FakeLoginItem item;
    const LoginItemSetting::Shown shown = LoginItemSetting(item).look();
    EXPECT_FALSE(shown.checked);
    EXPECT_TRUE(shown.enabled);
    EXPECT_EQ(shown.trouble, QString());
}

TEST(LoginItemSettingTest, Choosing_SwitchesAndShowsWhatIs) {
    FakeLoginItem item;
    LoginItemSetting setting(item);
    EXPECT_TRUE(setting.choose(true).checked);
    EXPECT_TRUE(item.isOn);
    EXPECT_FALSE(setting.choose(false).checked);
    EXPECT_FALSE(item.isOn);
}

TEST(LoginItemSettingTest, SystemThatRefuses_IsToldAndTheBoxStaysTrue) {
    FakeLoginItem item;
    item.standing = {LoginItemOutcome::Failed, {}, QStringLiteral("No space left on device")};
    const LoginItemSetting::Shown shown = LoginItemSetting(item).choose(true);
    EXPECT_FALSE(shown.checked) << "it is off still";
    EXPECT_TRUE(shown.enabled) << "another try is possible";
    EXPECT_EQ(shown.trouble,
              u"/config/autostart/entry.desktop cannot be changed: No space left on device");
}

TEST(LoginItemSettingTest, EntryOfSomebodyElse_SwitchesTheBoxOff) {
    FakeLoginItem item;
    item.standing = {LoginItemOutcome::SomebodyElses, {}, {}};
    const LoginItemSetting::Shown shown = LoginItemSetting(item).look();
    EXPECT_FALSE(shown.checked);
    EXPECT_FALSE(shown.enabled);
    EXPECT_EQ(shown.trouble, u"/config/autostart/entry.desktop was not written by Kelvo Mirror and "
                             u"is left alone. Move it away to switch this on here.");
}

} // namespace
} // namespace kelvo
