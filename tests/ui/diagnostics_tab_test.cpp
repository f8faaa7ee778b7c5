// The Diagnostics tab comes and goes with its setting, and costs nothing before.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/widgets/diagnostics_tab.h"
#include "ui/widgets/main_window.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class DiagnosticsTabTest : public ::testing::Test {
protected:
    static QString tabs(const MainWindow& window) {
        QStringList all;
        for (const MainWindow::Tab& tab : window.tabs())
            all.append(tab.identifier);
        return all.join(u' ');
    }
    static QString current(const MainWindow& window) {
        return window.tabs().at(static_cast<std::size_t>(window.currentTab())).identifier;
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
};

const QString cUsual = QStringLiteral("sync remote prefs activity");
const QString cAll = cUsual + QStringLiteral(" diagnostics");

TEST_F(DiagnosticsTabTest, NotAskedFor_IsNotEvenMade) {
    MainWindow window(defaults, mainQueue);
    window.show();
    EXPECT_EQ(tabs(window), cUsual);
    EXPECT_EQ(window.findChild<DiagnosticsTab*>(), nullptr);
    window.showTab(QStringLiteral("diagnostics"));
    window.showTab(4);
    EXPECT_EQ(current(window), u"sync");
}

TEST_F(DiagnosticsTabTest, Chosen_IsComeToAndKept) {
    MainWindow window(defaults, mainQueue);
    int changes = 0;
    QObject::connect(&window, &MainWindow::tabsChanged, &window, [&] { ++changes; });
    window.setDiagnosticsShown(true);
    EXPECT_EQ(tabs(window), cAll);
    EXPECT_EQ(current(window), u"diagnostics");
    EXPECT_EQ(defaults.object(prefShowDiagnostics), QVariant(true));
    EXPECT_GE(changes, 1);
    const MainWindow next(defaults, mainQueue);
    EXPECT_EQ(tabs(next), cAll);
    EXPECT_EQ(current(next), u"diagnostics") << "as it was left";
}

TEST_F(DiagnosticsTabTest, TakenAway_LeavesSyncAndComesBackTheSame) {
    MainWindow window(defaults, mainQueue);
    int made = 0;
    window.whenDiagnosticsAreMade([&](DiagnosticsTab&) { ++made; });
    window.setDiagnosticsShown(true);
    window.setDiagnosticsShown(false);
    EXPECT_EQ(tabs(window), cUsual);
    EXPECT_EQ(current(window), u"sync");
    window.showTab(QStringLiteral("diagnostics"));
    window.showTab(4);
    EXPECT_EQ(current(window), u"sync");
    window.setDiagnosticsShown(true);
    EXPECT_EQ(tabs(window), cAll);
    window.showTab(QStringLiteral("prefs"));
    window.setDiagnosticsShown(false);
    EXPECT_EQ(current(window), u"prefs") << "another page stays";
    EXPECT_EQ(made, 1);
    window.whenDiagnosticsAreMade([&](DiagnosticsTab&) { ++made; });
    EXPECT_EQ(made, 2);
}

TEST_F(DiagnosticsTabTest, SettingChangedElsewhere_IsFollowedWhereThePersonIs) {
    MainWindow window(defaults, mainQueue);
    window.showTab(QStringLiteral("remote"));
    defaults.setObject(prefShowDiagnostics, true);
    mainQueue.runDue();
    EXPECT_EQ(tabs(window), cAll);
    EXPECT_EQ(current(window), u"remote");
    window.showTab(QStringLiteral("diagnostics"));
    defaults.setObject(prefShowDiagnostics, false);
    mainQueue.runDue();
    EXPECT_EQ(tabs(window), cUsual);
    EXPECT_EQ(current(window), u"sync");
}

TEST_F(DiagnosticsTabTest, RememberedButTakenAway_SyncIsShown) {
    defaults.setObject(prefMainWindowTab, QStringLiteral("diagnostics"));
    const MainWindow window(defaults, mainQueue);
    EXPECT_EQ(current(window), u"sync");
}

} // namespace
} // namespace kelvo
