#include "adapters/display/dbus_menu.h"
#include "fakes/fake_status_menu.h"
#include "fakes/fake_tray_item.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/tray_icon.h"

#include <QAction>
#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kelvo {
namespace {

class TrayIconTest : public ::testing::Test {
protected:
    QAction* entry(const char* name) {
        return icon.menu().findChild<QAction*>(QString::fromLatin1(name));
    }
    /// The titles of what can be seen of the menu before the first entry that does something.
    QStringList facts() {
        QStringList texts;
        for (const QAction* action : icon.menu().actions()) {
            if (action->objectName() == u"startOrStop")
                break;
            if (action->isVisible())
                texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        }
        return texts;
    }

    FakeTrayHost host;
    FakeTrayItem item;
    VirtualMainQueue mainQueue;
    TrayIcon icon{host, item, mainQueue};
};

TEST_F(TrayIconTest, Menu_HoldsItsEntriesInOrderEachWithItsOwnMnemonic) {
    QStringList titles;
    std::set<QChar> mnemonics;
    int marked = 0;
    icon.setStartTitle(QStringLiteral("Stop Syncing"));
    for (const QAction* entry : icon.menu().actions()) {
        if (!entry->isVisible())
            continue;
        if (entry->isSeparator()) {
            titles.append(QStringLiteral("-"));
            continue;
        }
        titles.append(QString(entry->text()).remove(u'&'));
        if (const auto at = entry->text().indexOf(u'&'); at >= 0) {
            ++marked;
            mnemonics.insert(entry->text()[at + 1].toLower());
        }
    }
    EXPECT_EQ(titles.join(u'|'),
              u"Stop Syncing|Sync Now|Cancel This Pass|-|Open Window|Activity|Reveal Folder|-|"
              u"Quit and Relaunch|Quit");
    EXPECT_EQ(marked, 7);
    EXPECT_EQ(mnemonics.size(), 7U);
}

TEST_F(TrayIconTest, Work_StandsAboveTheEntriesAndInTheToolTip) {
    host.setKind(TrayKind::Bus);
    icon.show(StatusMenuState::Running);
    icon.showWork({.headline = QStringLiteral("Syncing: 48 %, A & B"),
                   .nextPass = QStringLiteral("Next pass in 23 s"),
                   .health = {.lastSuccess = QStringLiteral("Last success: now")}});
    EXPECT_EQ(facts().join(u'|'), u"Syncing: 48 %, A && B|Last success: now|Next pass in 23 s|-");
    EXPECT_EQ(item.visible->tip, u"Syncing: 48 %, A & B\nLast success: now\nNext pass in 23 s");
    for (const char* name : {"headline", "lastSuccess", "nextPass"})
        EXPECT_FALSE(entry(name)->isEnabled()) << name;
    EXPECT_EQ(item.entries[0],
              (TrayEntry{.title = QStringLiteral("Syncing: 48 %, A && B"), .isEnabled = false}));
    icon.show(StatusMenuState::Trouble);
    EXPECT_TRUE(item.visible->needsAttention);
}

TEST_F(TrayIconTest, NextPass_IsNotSaidTwice) {
    // Whatever the words: another language turns them round.
    icon.showWork({.phase = WorkPhase::Resting,
                   .headline = QStringLiteral("In 23 s goes on what is well"),
                   .nextPass = QStringLiteral("Next pass in 23 s"),
                   .health = {.sign = HealthSign::Well}});
    EXPECT_EQ(facts().join(u'|'), u"In 23 s goes on what is well|-");
    icon.showWork({});
    icon.showWork({.headline = QStringLiteral("Syncing is off"),
                   .nextPass = QStringLiteral("Syncing is off")});
    mainQueue.advance(1);
    EXPECT_EQ(facts().join(u'|'), u"Syncing is off|-");
}

TEST_F(TrayIconTest, ManyStatesOfWork_AreShownTwiceASecondAndTheLastAlways) {
    host.setKind(TrayKind::Bus);
    icon.show(StatusMenuState::Running);
    const int before = item.changes;
    for (int percent = 1; percent <= 30; ++percent) {
        icon.showWork({.headline = QString::number(percent)});
        mainQueue.advance(0.1);
    }
    EXPECT_LE(item.changes - before, 7);
    EXPECT_GE(item.changes - before, 5);
    mainQueue.advance(0.5);
    EXPECT_EQ(item.visible->tip, u"30");
    mainQueue.advance(0.5);
    EXPECT_TRUE(mainQueue.idle());
    icon.showWork({.headline = QStringLiteral("30")});
    EXPECT_TRUE(mainQueue.idle()) << "nothing has changed";
}

TEST_F(TrayIconTest, TrayOfTheOtherKind_TakesTheIconOver) {
    host.setKind(TrayKind::X11);
    icon.show(StatusMenuState::Off);
    EXPECT_TRUE(icon.shownIcon());
    EXPECT_FALSE(item.visible);
    host.setKind(TrayKind::Bus);
    EXPECT_FALSE(icon.shownIcon());
    EXPECT_TRUE(item.visible);
    EXPECT_TRUE(icon.isReachable());
    host.setKind(TrayKind::X11);
    EXPECT_TRUE(icon.shownIcon());
    EXPECT_FALSE(item.visible);
}

TEST_F(TrayIconTest, FolderToReveal_IsMissingUntilThereIsOne) {
    EXPECT_FALSE(entry("revealFolder")->isEnabled());
    EXPECT_EQ(entry("revealFolder")->toolTip(), u"No destination folder is chosen yet");
    icon.setActions({.revealFolder = [] {}});
    EXPECT_TRUE(entry("revealFolder")->isEnabled());
    const auto told =
        std::ranges::find(item.entries, QStringLiteral("Reveal &Folder"), &TrayEntry::title);
    ASSERT_NE(told, item.entries.end());
    EXPECT_TRUE(told->isEnabled);
}

TEST_F(TrayIconTest, ItemActivated_ShowsTheWindow) {
    host.setKind(TrayKind::Bus);
    int shows = 0;
    icon.setActions({.showWindow = [&] { ++shows; }});
    icon.show(StatusMenuState::Off);
    item.activate();
    EXPECT_EQ(shows, 1);
    item.openMenu(3, 4);
    EXPECT_TRUE(icon.menu().isVisible());
    icon.menu().close();
}

TEST_F(TrayIconTest, NoTray_MakesNoIcon) {
    icon.show(StatusMenuState::Off);
    EXPECT_EQ(icon.shownIcon(), nullptr);
}

TEST_F(TrayIconTest, ToolTip_TellsTheState) {
    host.setPresent(true);
    std::set<QString> tips;
    for (const auto state : {StatusMenuState::Off, StatusMenuState::Resting,
                             StatusMenuState::Running, StatusMenuState::Trouble}) {
        icon.show(state);
        EXPECT_TRUE(icon.shownIcon()->toolTip().startsWith(u"Kelvo Mirror\n"));
        tips.insert(icon.shownIcon()->toolTip());
    }
    EXPECT_EQ(tips.size(), 4U);
}

TEST_F(TrayIconTest, Click_ShowsTheWindowAndAMenuClickDoesNot) {
    host.setPresent(true);
    icon.show(StatusMenuState::Off);
    int shows = 0;
    icon.setActions({.showWindow = [&] { ++shows; }});
    auto* shown = const_cast<QSystemTrayIcon*>(icon.shownIcon());
    Q_EMIT shown->activated(QSystemTrayIcon::Context);
    EXPECT_EQ(shows, 0);
    Q_EMIT shown->activated(QSystemTrayIcon::Trigger);
    EXPECT_EQ(shows, 1);
}

TEST_F(TrayIconTest, OtherPalette_RedrawsTheIcon) {
    host.setPresent(true);
    icon.show(StatusMenuState::Running);
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::WindowText, QColor(0xf0, 0xf0, 0xf0));
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const QImage shown = icon.shownIcon()->icon().pixmap(16).toImage();
    QApplication::setPalette(before);
    EXPECT_EQ(shown, statusIcon(StatusMenuState::Running, QColor(0xf0, 0xf0, 0xf0),
                                QColor(0x20, 0x20, 0x20))
                         .pixmap(16)
                         .toImage());
}

TEST(DBusMenuTest, MirroredLayout_IsToldToThePanel) {
    const DBusMenu menu({}, {});
    EXPECT_EQ(menu.textDirection(), u"ltr");
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(menu.textDirection(), u"rtl");
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace
} // namespace kelvo
