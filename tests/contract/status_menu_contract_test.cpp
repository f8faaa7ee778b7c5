#include "fakes/fake_status_menu.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/tray_icon.h"

#include <QAction>
#include <QPalette>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum StatusMenuState;

struct FakeHarness {
    FakeTrayHost host;
    FakeStatusMenu statusMenu{host};

    StatusMenu& menu() { return statusMenu; }
    std::optional<StatusMenuState> visible() const { return statusMenu.visible(); }
    QString startTitle() const { return statusMenu.startTitle; }
    void choose(std::function<void()> StatusMenuActions::*entry) { statusMenu.choose(entry); }
};

struct WidgetHarness {
    FakeTrayHost host;
    TrayIcon icon{host};

    StatusMenu& menu() { return icon; }

    /// Recognised by its picture.
    std::optional<StatusMenuState> visible() {
        const QSystemTrayIcon* shown = icon.shownIcon();
        if (!shown || !host.isPresent())
            return std::nullopt;
        const QPalette palette = icon.menu().palette();
        for (const StatusMenuState state : {Off, Resting, Running, Trouble}) {
            const QIcon known = statusIcon(state, palette.color(QPalette::WindowText),
                                           palette.color(QPalette::Window));
            if (known.pixmap(16).toImage() == shown->icon().pixmap(16).toImage())
                return state;
        }
        ADD_FAILURE() << "an icon of no known state";
        return std::nullopt;
    }
    QString startTitle() {
        return entry("startOrStop")->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }
    void choose(std::function<void()> StatusMenuActions::*chosen) {
        if (chosen == &StatusMenuActions::showWindow)
            entry("showWindow")->trigger();
        else if (chosen == &StatusMenuActions::startOrStop)
            entry("startOrStop")->trigger();
        else if (chosen == &StatusMenuActions::quitAndRelaunch)
            entry("quitAndRelaunch")->trigger();
        else
            entry("quit")->trigger();
    }

private:
    QAction* entry(const char* name) {
        return icon.menu().findChild<QAction*>(QString::fromLatin1(name));
    }
};

template <typename Harness>
class StatusMenuContractTest : public ::testing::Test {
protected:
    StatusMenu& menu() { return harness.menu(); }
    Harness harness;
};

using Harnesses = ::testing::Types<FakeHarness, WidgetHarness>;
TYPED_TEST_SUITE(StatusMenuContractTest, Harnesses);

TYPED_TEST(StatusMenuContractTest, AtFirst_IsHidden) {
    this->harness.host.setPresent(true);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    EXPECT_FALSE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, Show_ShowsEachState) {
    this->harness.host.setPresent(true);
    for (const StatusMenuState state : {Off, Resting, Running, Trouble, Trouble, Off}) {
        this->menu().show(state);
        EXPECT_EQ(this->harness.visible(), state);
        EXPECT_TRUE(this->menu().isReachable());
    }
}

TYPED_TEST(StatusMenuContractTest, LateTray_GetsTheIconByItself) {
    this->menu().show(Off);
    this->menu().show(Running);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    EXPECT_FALSE(this->menu().isReachable());
    this->harness.host.setPresent(true);
    EXPECT_EQ(this->harness.visible(), Running);
    EXPECT_TRUE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, TrayGoesAndComesBack_ShowsTheLatestState) {
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    this->harness.host.setPresent(false);
    EXPECT_FALSE(this->menu().isReachable());
    this->menu().show(Trouble);
    this->harness.host.setPresent(true);
    EXPECT_EQ(this->harness.visible(), Trouble);
    EXPECT_TRUE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, Hide_TakesTheIconAwayAlsoFromALaterTray) {
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    this->menu().hide();
    this->menu().hide();
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    this->harness.host.setPresent(false);
    this->harness.host.setPresent(true);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    EXPECT_FALSE(this->menu().isReachable());
    this->menu().show(Resting);
    EXPECT_EQ(this->harness.visible(), Resting);
}

TYPED_TEST(StatusMenuContractTest, StartTitle_IsKeptWhileHiddenAndTakenLiterally) {
    this->menu().setStartTitle(QStringLiteral("Start & Stop"));
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    EXPECT_EQ(this->harness.startTitle(), u"Start & Stop");
    this->menu().hide();
    this->menu().show(Off);
    EXPECT_EQ(this->harness.startTitle(), u"Start & Stop");
}

TYPED_TEST(StatusMenuContractTest, Choices_CallTheirActionOnce) {
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    QStringList done;
    this->menu().setActions({
        .showWindow = [&] { done.append(QStringLiteral("show")); },
        .startOrStop = [&] { done.append(QStringLiteral("start")); },
        .quitAndRelaunch = [&] { done.append(QStringLiteral("relaunch")); },
        .quit = [&] { done.append(QStringLiteral("quit")); },
    });
    this->harness.choose(&StatusMenuActions::startOrStop);
    this->harness.choose(&StatusMenuActions::quit);
    this->harness.choose(&StatusMenuActions::showWindow);
    this->harness.choose(&StatusMenuActions::quitAndRelaunch);
    EXPECT_EQ(done.join(u' '), u"start quit show relaunch");
}

TYPED_TEST(StatusMenuContractTest, EarlierActions_AreForgottenAndEmptyOnesDoNothing) {
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    int done = 0;
    this->menu().setActions({.quit = [&] { ++done; }});
    this->menu().setActions({});
    this->harness.choose(&StatusMenuActions::quit);
    EXPECT_EQ(done, 0);
}

TYPED_TEST(StatusMenuContractTest, Action_MayHideTheIcon) {
    this->harness.host.setPresent(true);
    this->menu().show(Off);
    int done = 0;
    this->menu().setActions({.quit = [&] {
        ++done;
        this->menu().setActions({});
        this->menu().hide();
    }});
    this->harness.choose(&StatusMenuActions::quit);
    this->harness.choose(&StatusMenuActions::quit);
    EXPECT_EQ(done, 1);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
}

} // namespace
} // namespace kelvo
