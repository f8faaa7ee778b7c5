#include "fakes/fake_status_menu.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/tray_icon.h"

#include <QAction>
#include <QApplication>

#include <gtest/gtest.h>

#include <set>

namespace kelvo {
namespace {

class TrayIconTest : public ::testing::Test {
protected:
    FakeTrayHost host;
    TrayIcon icon{host};
};

TEST_F(TrayIconTest, Menu_HoldsItsEntriesInOrderEachWithItsOwnMnemonic) {
    QStringList titles;
    std::set<QChar> mnemonics;
    int marked = 0;
    icon.setStartTitle(QStringLiteral("Stop Syncing"));
    for (const QAction* entry : icon.menu().actions()) {
        if (entry->isSeparator()) {
            titles.append(QStringLiteral("-"));
            continue;
        }
        titles.append(QString(entry->text()).remove(u'&'));
        EXPECT_TRUE(entry->isEnabled());
        if (const auto at = entry->text().indexOf(u'&'); at >= 0) {
            ++marked;
            mnemonics.insert(entry->text()[at + 1].toLower());
        }
    }
    EXPECT_EQ(titles.join(u'|'), u"Show Window|-|Stop Syncing|-|Quit and Relaunch|Quit");
    EXPECT_EQ(marked, 3);
    EXPECT_EQ(mnemonics.size(), 3U);
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
        EXPECT_TRUE(icon.shownIcon()->toolTip().startsWith(u"Kelvo Mirror: "));
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

} // namespace
} // namespace kelvo
