// Light and dark colours, and the change from one to the other while the window is open.
#include "fakes/fake_desktop.h"
#include "fakes/fake_login_item.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/contrast.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/dark_palette.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"

#include <QApplication>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(DarkPaletteTest, EveryText_StandsOutOnItsGround) {
    const QPalette dark = darkPalette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[]{
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::PlaceholderText, QPalette::Window},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window},
        {QPalette::Link, QPalette::Base},
        {QPalette::LinkVisited, QPalette::Window},
    };
    for (const auto& [text, ground] : pairs) {
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            EXPECT_GE(contrast(dark.color(group, text), dark.color(group, ground)), 4.5)
                << text << " on " << ground;
    }
    EXPECT_LT(dark.color(QPalette::Window).lightnessF(), 0.25F);
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> greyed[]{
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},       {QPalette::BrightText, QPalette::Window},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
    };
    for (const auto& [text, ground] : greyed) {
        const auto standsOut = [&, text = text, ground = ground](QPalette::ColorGroup group) {
            return contrast(dark.color(group, text), dark.color(group, ground));
        };
        EXPECT_LT(standsOut(QPalette::Disabled), standsOut(QPalette::Active)) << text;
        EXPECT_GE(standsOut(QPalette::Disabled), 3) << text << " of what can do nothing now";
    }
    EXPECT_LT(dark.color(QPalette::Disabled, QPalette::Highlight).hsvSaturationF(), 0.2F)
        << "a selection that can do nothing is grey";
    EXPECT_NE(dark.color(QPalette::AlternateBase), dark.color(QPalette::Base)) << "rows differ";
    EXPECT_NE(dark.color(QPalette::LinkVisited), dark.color(QPalette::Link));
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            EXPECT_TRUE(dark.color(group, static_cast<QPalette::ColorRole>(role)).isValid())
                << role;
    }
}

/// A window with something of everything that has a colour.
struct FullWindow {
    FullWindow(MemoryDefaults& defaults, VirtualMainQueue& queue, MemoryPassStore& store)
        : mainQueue(queue), window(defaults, queue) {
        window.settingsTab().setLoginItem(loginItem);
        window.activityTab().setParts({.store = store,
                                       .workspace = workspace,
                                       .mainQueue = mainQueue,
                                       .bgQueue = bgQueue,
                                       .defaults = defaults,
                                       .destination = [] { return QStringLiteral("/in"); }});
        window.syncTab().recentArrivals().setStore(store);
        WidgetStatusField(window.ibStatusTextField())
            .setAttributedStringValue(
                {QStringLiteral("gone wrong"), StatusColor::Red, TextAlignment::Centered});
        window.showWork({.phase = WorkPhase::Running,
                         .headline = QStringLiteral("Syncing: 48 %"),
                         .file = QStringLiteral("a.mov"),
                         .share = 0.48,
                         .health = {.sign = HealthSign::Trouble,
                                    .text = QStringLiteral("The Mac is away."),
                                    .lastSuccess = QStringLiteral("Last success: yesterday"),
                                    .remedy = Remedy::CheckAgain},
                         .remarks = {QStringLiteral("Settings were set aside.")},
                         .maySyncNow = true});
        window.syncTab().checklist().setLines(
            {{.text = QStringLiteral("No Mac is chosen yet."), .remedy = Remedy::ShowRemoteTab}});
        window.resize(900, 700);
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.show();
        for (std::size_t tab = 0; tab < window.tabs().size(); ++tab) {
            window.showTab(static_cast<int>(tab));
            mainQueue.runDue();
        }
    }
    QImage pictureOf(const QString& tab, bool passes = false) {
        window.showTab(tab);
        if (auto* button = window.findChild<QPushButton*>(passes ? QStringLiteral("showPasses")
                                                                 : QStringLiteral("showArrived")))
            button->setChecked(true);
        QApplication::setActiveWindow(&window);
        (void)window.grab(); // Some of it is asked for once it has been painted.
        QCoreApplication::processEvents();
        mainQueue.runDue();
        QCoreApplication::processEvents();
        return window.grab().toImage();
    }

    VirtualMainQueue& mainQueue;
    FakeLoginItem loginItem;
    FakeWorkspace workspace;
    ManualBackgroundQueue bgQueue;
    MainWindow window;
};

TEST(ColorsTest, WindowThatIsOpen_FollowsAsIfItHadBeenOpenedLater) {
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MemoryPassStore store(mainQueue);
    PassRecord record;
    record.began = QDateTime(QDate::currentDate(), QTime(0, 0));
    record.cause = PassCause::HostAway;
    record.arrivals = {{.path = "/in/a.mov", .size = 5000, .arrived = record.began}};
    store.append(record);
    mainQueue.runDue();

    const QPalette light = QApplication::palette();
    FullWindow before(defaults, mainQueue, store);
    const QImage inLight = before.pictureOf(QStringLiteral("sync"));
    QApplication::setPalette(darkPalette());
    QCoreApplication::processEvents();
    {
        FullWindow after(defaults, mainQueue, store);
        for (const char* tab : {"sync", "remote", "prefs", "diagnostics", "activity"}) {
            const QString name = QString::fromLatin1(tab);
            EXPECT_EQ(before.pictureOf(name), after.pictureOf(name)) << tab;
        }
        EXPECT_EQ(before.pictureOf(QStringLiteral("activity"), true),
                  after.pictureOf(QStringLiteral("activity"), true));
    }
    EXPECT_NE(before.pictureOf(QStringLiteral("sync")), inLight);
    QApplication::setPalette(QPalette());
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::palette(), light);
    EXPECT_EQ(before.pictureOf(QStringLiteral("sync")), inLight) << "and back again";
}

} // namespace
} // namespace kelvo
