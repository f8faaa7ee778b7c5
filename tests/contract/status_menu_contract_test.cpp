#include "fakes/fake_status_menu.h"
#include "fakes/fake_tray_item.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/tray_icon.h"

#include <QAction>
#include <QPalette>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

using enum StatusMenuState;

struct FakeHarness {
    FakeTrayHost host;
    void setTray(bool present) { host.setPresent(present); }
    FakeStatusMenu statusMenu{host};

    StatusMenu& menu() { return statusMenu; }
    std::optional<StatusMenuState> visible() const { return statusMenu.visible(); }
    QString startTitle() const { return statusMenu.startTitle; }
    void choose(std::function<void()> StatusMenuActions::*entry) { statusMenu.choose(entry); }
};

/// The name of the menu's entry for each action.
const std::vector<std::pair<std::function<void()> StatusMenuActions::*, const char*>> cEntries{
    {&StatusMenuActions::showWindow, "showWindow"},
    {&StatusMenuActions::startOrStop, "startOrStop"},
    {&StatusMenuActions::syncNow, "syncNow"},
    {&StatusMenuActions::cancelPass, "cancelPass"},
    {&StatusMenuActions::showActivity, "showActivity"},
    {&StatusMenuActions::revealFolder, "revealFolder"},
    {&StatusMenuActions::quitAndRelaunch, "quitAndRelaunch"},
    {&StatusMenuActions::quit, "quit"},
};

struct WidgetHarness {
    explicit WidgetHarness(TrayKind tray) : fTray(tray) {}

    FakeTrayHost host;
    FakeTrayItem item;
    VirtualMainQueue mainQueue;
    TrayIcon icon{host, item, mainQueue};

    StatusMenu& menu() { return icon; }
    void setTray(bool present) { host.setKind(present ? fTray : TrayKind::None); }
    QString startTitle() {
        return entry("startOrStop")->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }
    QAction* entry(std::function<void()> StatusMenuActions::*chosen) {
        const auto found =
            std::ranges::find(cEntries, chosen, &decltype(cEntries)::value_type::first);
        return entry(found->second);
    }

private:
    QAction* entry(const char* name) {
        return icon.menu().findChild<QAction*>(QString::fromLatin1(name));
    }

    const TrayKind fTray;
};

struct X11Harness : WidgetHarness {
    X11Harness() : WidgetHarness(TrayKind::X11) {}

    /// Recognised by its picture.
    std::optional<StatusMenuState> visible() {
        EXPECT_FALSE(item.visible);
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
    void choose(std::function<void()> StatusMenuActions::*chosen) { entry(chosen)->trigger(); }
};

struct BusHarness : WidgetHarness {
    BusHarness() : WidgetHarness(TrayKind::Bus) {}

    /// Recognised by its largest picture.
    std::optional<StatusMenuState> visible() {
        EXPECT_FALSE(icon.shownIcon());
        if (!item.visible || !host.isPresent())
            return std::nullopt;
        const TrayPicture& shown = item.visible->pictures.back();
        const QPalette palette = icon.menu().palette();
        for (const StatusMenuState state : {Off, Resting, Running, Trouble}) {
            const QImage known = statusIcon(state, palette.color(QPalette::WindowText),
                                            palette.color(QPalette::Window))
                                     .pixmap(shown.side)
                                     .toImage()
                                     .convertToFormat(QImage::Format_ARGB32);
            if (holds(shown, known)) {
                EXPECT_EQ(item.visible->needsAttention, state == Trouble);
                return state;
            }
        }
        ADD_FAILURE() << "an icon of no known state";
        return std::nullopt;
    }
    void choose(std::function<void()> StatusMenuActions::*chosen) {
        item.choose(static_cast<std::size_t>(icon.menu().actions().indexOf(entry(chosen))));
    }

private:
    static bool holds(const TrayPicture& shown, const QImage& image) {
        for (int at = 0; at < shown.side * shown.side; ++at) {
            const QRgb pixel = image.pixel(at % shown.side, at / shown.side);
            const std::array bytes{qAlpha(pixel), qRed(pixel), qGreen(pixel), qBlue(pixel)};
            for (int byte = 0; byte < 4; ++byte) {
                if (static_cast<uchar>(shown.argb[4 * at + byte]) !=
                    bytes[static_cast<std::size_t>(byte)])
                    return false;
            }
        }
        return shown.argb.size() == 4 * shown.side * shown.side;
    }
};

template <typename Harness>
class StatusMenuContractTest : public ::testing::Test {
protected:
    StatusMenu& menu() { return harness.menu(); }
    Harness harness;
};

using Harnesses = ::testing::Types<FakeHarness, X11Harness, BusHarness>;
TYPED_TEST_SUITE(StatusMenuContractTest, Harnesses);

TYPED_TEST(StatusMenuContractTest, AtFirst_IsHidden) {
    this->harness.setTray(true);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    EXPECT_FALSE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, Show_ShowsEachState) {
    this->harness.setTray(true);
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
    this->harness.setTray(true);
    EXPECT_EQ(this->harness.visible(), Running);
    EXPECT_TRUE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, TrayGoesAndComesBack_ShowsTheLatestState) {
    this->harness.setTray(true);
    this->menu().show(Off);
    this->harness.setTray(false);
    EXPECT_FALSE(this->menu().isReachable());
    this->menu().show(Trouble);
    this->harness.setTray(true);
    EXPECT_EQ(this->harness.visible(), Trouble);
    EXPECT_TRUE(this->menu().isReachable());
}

TYPED_TEST(StatusMenuContractTest, Hide_TakesTheIconAwayAlsoFromALaterTray) {
    this->harness.setTray(true);
    this->menu().show(Off);
    this->menu().hide();
    this->menu().hide();
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    this->harness.setTray(false);
    this->harness.setTray(true);
    EXPECT_EQ(this->harness.visible(), std::nullopt);
    EXPECT_FALSE(this->menu().isReachable());
    this->menu().show(Resting);
    EXPECT_EQ(this->harness.visible(), Resting);
}

TYPED_TEST(StatusMenuContractTest, StartTitle_IsKeptWhileHiddenAndTakenLiterally) {
    this->menu().setStartTitle(QStringLiteral("Start & Stop"));
    this->harness.setTray(true);
    this->menu().show(Off);
    EXPECT_EQ(this->harness.startTitle(), u"Start & Stop");
    this->menu().hide();
    this->menu().show(Off);
    EXPECT_EQ(this->harness.startTitle(), u"Start & Stop");
}

TYPED_TEST(StatusMenuContractTest, Choices_CallTheirActionOnce) {
    this->harness.setTray(true);
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

TYPED_TEST(StatusMenuContractTest, FolderEntry_IsChosenOnlyWhileThereIsAFolder) {
    this->harness.setTray(true);
    this->menu().show(Off);
    this->harness.choose(&StatusMenuActions::revealFolder);
    int done = 0;
    for (int times = 1; times <= 2; ++times) {
        this->menu().setActions({.revealFolder = [&] { ++done; }});
        this->harness.choose(&StatusMenuActions::revealFolder);
        EXPECT_EQ(done, times);
        this->menu().setActions({});
        this->harness.choose(&StatusMenuActions::revealFolder);
        EXPECT_EQ(done, times);
    }
}

TYPED_TEST(StatusMenuContractTest, PassEntries_AreChosenOnlyWhileTheWorkAllowsIt) {
    this->harness.setTray(true);
    this->menu().show(Off);
    QStringList done;
    this->menu().setActions({
        .syncNow = [&] { done.append(QStringLiteral("sync")); },
        .cancelPass = [&] { done.append(QStringLiteral("cancel")); },
        .showActivity = [&] { done.append(QStringLiteral("activity")); },
        .revealFolder = [&] { done.append(QStringLiteral("reveal")); },
    });
    const auto chooseAll = [&] {
        for (const auto& [action, name] : cEntries)
            this->harness.choose(action);
        return std::exchange(done, {}).join(u' ');
    };
    EXPECT_EQ(chooseAll(), u"activity reveal");
    this->menu().hide();
    this->menu().showWork({.maySyncNow = true, .mayCancel = true});
    this->menu().show(Running);
    EXPECT_EQ(chooseAll(), u"sync cancel activity reveal");
}

TYPED_TEST(StatusMenuContractTest, EarlierActions_AreForgottenAndEmptyOnesDoNothing) {
    this->harness.setTray(true);
    this->menu().show(Off);
    int done = 0;
    this->menu().setActions({.quit = [&] { ++done; }});
    this->menu().setActions({});
    this->harness.choose(&StatusMenuActions::quit);
    EXPECT_EQ(done, 0);
}

TYPED_TEST(StatusMenuContractTest, Action_MayHideTheIcon) {
    this->harness.setTray(true);
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
