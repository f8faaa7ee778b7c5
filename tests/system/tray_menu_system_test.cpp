// The program's icon in a panel on the bus, taken away and brought back by the real window's menu.
#include "support/descendants.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/session_bus.h"
#include "support/tray_panel.h"
#include "support/virtual_desktop.h"
#include "support/wait_in_loop.h"

#include <QDBusConnectionInterface>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class TrayMenuSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override {
        if (const QString missing = VirtualDesktop::missingTool(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed on this machine";
        adoptOrphans();
        ASSERT_TRUE(panels.get().isConnected()) << "no message bus";
        ASSERT_TRUE(service.appear(true));
        ASSERT_TRUE(screen.start()) << "no display comes up";
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
        profile[QStringLiteral("prefDelayBetweenScans")] = 600.0;
        write(path(QStringLiteral("Camera/a.mov")), "movie");
        QDir().mkpath(path(QStringLiteral("Incoming")));
        write(settingsFile(), plistText(profile));
        QProcessEnvironment desktop = environment();
        desktop.insert(QStringLiteral("DISPLAY"), screen.name());
        desktop.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        desktop.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), daemon.address());
        program =
            std::make_unique<RunningProgram>(QStringLiteral(KELVO_PROGRAM), QStringList(), desktop);
        ASSERT_TRUE(waitInLoop([this] { return icons().size() == 1; }, 60))
            << program->transcript().toStdString();
        ASSERT_TRUE(says(QStringLiteral("great got self.fKelvoSSID...")));
        ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
    }

    void TearDown() override {
        program.reset();
        if (!icons().isEmpty())
            endAllDescendants("watchdog");
    }

    /// The connections that have registered an icon and are still there.
    QStringList icons() {
        QStringList all = service.items();
        all.removeDuplicates();
        all.removeIf([this](const QString& name) {
            return !panels.get().interface()->isServiceRegistered(name).value();
        });
        return all;
    }

    /// Waits for a line with the event loop running: the panel has to answer the program.
    bool says(const QString& start) {
        return waitInLoop([&] { return program->waitForLine(start, 0.05).has_value(); }, 60);
    }

    /// Chooses the entry of that label in the menu of the icon `name`, once it can be chosen.
    bool choose(const QString& name, const char* label) {
        TrayPanel panel(panels.get(), name);
        return waitInLoop([&] {
            for (const TrayPanel::Line& line : panel.menu()) {
                if (line.properties.value(QStringLiteral("label")) != QString::fromLatin1(label) ||
                    !line.properties.value(QStringLiteral("enabled")).toBool())
                    continue;
                panel.askMenu(QStringLiteral("Event"),
                              {line.id, QStringLiteral("clicked"),
                               QVariant::fromValue(QDBusVariant(QString())),
                               QVariant::fromValue(0U)});
                return true;
            }
            return false;
        });
    }

    QString visibleWindow() const {
        return screen
            .tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                              QStringLiteral("--name"), QStringLiteral("^Kelvo Mirror$")})
            .section(u'\n', 0, 0);
    }

    PrivateBus daemon;
    BusConnection panels{daemon.address(), QStringLiteral("panel of the tray menu")};
    TrayService service{panels.get()};
    VirtualDesktop screen;
    std::unique_ptr<RunningProgram> program;
};

const QString cInside = QStringLiteral("Inside Kelvo_Mirror.ViewController->");

TEST_F(TrayMenuSystemTest, IconRemovedAndSetUpAgain_IsGoneBetweenAndEveryEntryActs) {
    const QString first = icons().constFirst();
    screen.keys({QStringLiteral("alt+t"), QStringLiteral("r")});
    ASSERT_TRUE(waitInLoop([this] { return icons().isEmpty(); })) << "the icon is still there";
    EXPECT_TRUE(program->isRunning());
    screen.keys({QStringLiteral("alt+t"), QStringLiteral("s")});
    ASSERT_TRUE(waitInLoop([this] { return icons().size() == 1; })) << "no icon came back";
    const QString icon = icons().constFirst();
    EXPECT_NE(icon, first);

    ASSERT_TRUE(choose(icon, "_Activity"));
    EXPECT_TRUE(says(cInside + QStringLiteral("tabView(_:willSelect:).......identifier = "
                                              "Optional(\"activity\")")));
    ASSERT_TRUE(choose(icon, "Reveal _Folder"));
    EXPECT_TRUE(says(cInside + QStringLiteral("ibRevealDestPath(_:)")));
    ASSERT_TRUE(choose(icon, "Start Syncing"));
    EXPECT_TRUE(says(QStringLiteral("state is now IS RUNNING")));
    ASSERT_TRUE(waitInLoop([this] {
        return QFile::exists(path(QStringLiteral("Incoming/a.mov")));
    })) << program->transcript().toStdString();
    write(path(QStringLiteral("Camera/b.mov")), "another");
    ASSERT_TRUE(choose(icon, "Sync _Now"));
    EXPECT_TRUE(
        waitInLoop([this] { return QFile::exists(path(QStringLiteral("Incoming/b.mov"))); }));
    ASSERT_TRUE(choose(icon, "Stop Syncing"));
    EXPECT_TRUE(says(QStringLiteral("state is now OFF")));
    screen.tool("xdotool", {QStringLiteral("windowminimize"), visibleWindow()});
    ASSERT_TRUE(waitInLoop([this] { return visibleWindow().isEmpty(); }));
    ASSERT_TRUE(choose(icon, "Open _Window"));
    EXPECT_TRUE(waitInLoop([this] { return !visibleWindow().isEmpty(); }));
    ASSERT_TRUE(choose(icon, "_Quit"));
    EXPECT_TRUE(waitInLoop([this] {
        program->waitForLine(QStringLiteral("no such line"), 0.02);
        return !program->isRunning();
    }));
    EXPECT_EQ(program->exitCode(), 0);
    EXPECT_TRUE(icons().isEmpty());
}

TEST_F(TrayMenuSystemTest, QuitAndRelaunch_LeavesOneIconAndItIsTheNewCopys) {
    const QString first = icons().constFirst();
    ASSERT_TRUE(choose(first, "Quit and _Relaunch"));
    ASSERT_TRUE(waitInLoop([&] { return !icons().contains(first); })) << "the old icon stays";
    ASSERT_TRUE(waitInLoop([this] { return icons().size() == 1; }, 60)) << "no new copy";
    const QString second = icons().constFirst();
    const auto processOf = [this](const QString& name) {
        return qint64(panels.get().interface()->servicePid(name).value());
    };
    EXPECT_NE(processOf(second), program->processId());
    ASSERT_TRUE(choose(second, "_Activity"));
    EXPECT_EQ(icons(), QStringList{second});
    ASSERT_TRUE(choose(second, "_Quit"));
    EXPECT_TRUE(waitInLoop([this] { return icons().isEmpty(); })) << "no orderly end";
}

} // namespace
} // namespace kelvo
