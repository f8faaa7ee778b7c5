#include "support/session_bus.h"
#include "support/tray_panel.h"
#include "support/virtual_display.h"
#include "support/wait_in_loop.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QProcess>
#include <QRect>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

constexpr int cPatience = 20'000; // milliseconds

void end(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(cPatience)) {
        process.kill();
        process.waitForFinished(cPatience);
    }
}

QString missingTool(std::initializer_list<const char*> tools) {
    for (const char* tool : tools) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            return QString::fromLatin1(tool);
    }
    return {};
}

/// A display of the test's own, a tray program to start on it, and the program with the icon.
class TraySystemTest : public ::testing::Test {
protected:
    ~TraySystemTest() override {
        for (QProcess* process : {&program, &tray})
            end(*process);
    }

    /// False when no display came up.
    bool startDisplay() {
        const QString name = display.start();
        if (name.isEmpty())
            return false;
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), name);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                           bus.isEmpty() ? QStringLiteral("disabled:") : bus);
        return true;
    }

    void startProgram() {
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(KELVO_TRAY_PROGRAM), QStringList{});
        ASSERT_TRUE(program.waitForStarted(cPatience));
    }

    void startTray() {
        tray.setProcessEnvironment(environment);
        tray.start(QStringLiteral("trayer"),
                   {QStringLiteral("--edge"), QStringLiteral("top"), QStringLiteral("--align"),
                    QStringLiteral("left"), QStringLiteral("--widthtype"), QStringLiteral("pixel"),
                    QStringLiteral("--width"), QStringLiteral("200"),
                    QStringLiteral("--heighttype"), QStringLiteral("pixel"),
                    QStringLiteral("--height"), QStringLiteral("32")});
        ASSERT_TRUE(tray.waitForStarted(cPatience));
    }

    void order(const char* what) { program.write(QByteArray(what) + '\n'); }

    /// Everything the program said since the last call.
    QStringList heard() {
        while (program.canReadLine())
            fHeard.append(QString::fromUtf8(program.readLine()).trimmed());
        return std::exchange(fHeard, {});
    }

    /// The answer to a question that has one.
    QString answer(const char* question) {
        order(question);
        QString found;
        waitInLoop([&] {
            for (const QString& line : heard()) {
                if (line.startsWith(QString::fromLatin1(question)))
                    found = line.mid(static_cast<int>(qstrlen(question)) + 1);
            }
            return !found.isNull();
        });
        return found;
    }

    bool becomesReachable(const char* expected) {
        return waitInLoop([&] { return answer("reachable") == QString::fromLatin1(expected); });
    }

    QRect place() {
        const QStringList numbers = answer("place").split(u' ');
        return numbers.size() == 4 ? QRect(numbers[0].toInt(), numbers[1].toInt(),
                                           numbers[2].toInt(), numbers[3].toInt())
                                   : QRect();
    }

    /// What stands on the screen at `place`.
    QString screenAt(const QRect& place) {
        return answer(QStringLiteral("screen %1 %2 %3 %4")
                          .arg(place.x())
                          .arg(place.y())
                          .arg(place.width())
                          .arg(place.height())
                          .toLatin1()
                          .constData());
    }

    /// The icon's shape on the screen, once it has been drawn and differs from `before`. A tray
    /// that takes it in gives it other sizes on the way: the shape counts when it stays for a
    /// while.
    QString drawn(const QString& before = {}) {
        constexpr int cLooks = 15; // 20 ms and more from one to the next
        QString shape;
        int same = 0;
        waitInLoop([&] {
            const QString now = answer("picture");
            same = now == shape ? same + 1 : 0;
            shape = now;
            return same >= cLooks && shape.count(u'#') > 40 && shape != before;
        });
        return shape;
    }

    bool xdotool(const QStringList& arguments) {
        QProcess tool;
        tool.setProcessEnvironment(environment);
        tool.start(QStringLiteral("xdotool"), arguments);
        return tool.waitForFinished(cPatience) && tool.exitCode() == 0;
    }

    bool click(const QPoint& point, int button) {
        return xdotool({QStringLiteral("mousemove"), QString::number(point.x()),
                        QString::number(point.y()), QStringLiteral("click"),
                        QString::number(button)});
    }

    bool hears(const QString& line) {
        QStringList all;
        return waitInLoop([&] {
            all += heard();
            return all.contains(line);
        });
    }

    QString bus;
    QProcessEnvironment environment;
    VirtualDisplay display;
    QProcess tray;
    QProcess program;

private:
    QStringList fHeard;
};

#define SKIP_WITHOUT(...)                                                                          \
    if (const QString missing = missingTool({__VA_ARGS__}); !missing.isEmpty())                    \
    GTEST_SKIP() << missing.toStdString() << " is not installed"

TEST_F(TraySystemTest, LateX11Tray_GetsTheIconAndEachStateItsShape) {
    SKIP_WITHOUT("Xvfb", "trayer");
    ASSERT_TRUE(startDisplay());
    startProgram();
    order("off");
    EXPECT_EQ(answer("reachable"), u"no");
    startTray();
    ASSERT_TRUE(becomesReachable("yes"));
    QStringList shapes;
    for (const char* state : {"off", "resting", "running", "trouble"}) {
        order(state);
        shapes.append(drawn(shapes.isEmpty() ? QString() : shapes.last()));
        EXPECT_GT(shapes.last().count(u'#'), 40) << state;
    }
    shapes.removeDuplicates();
    EXPECT_EQ(shapes.size(), 4);
    order("hide");
    EXPECT_EQ(answer("reachable"), u"no");
}

TEST_F(TraySystemTest, X11TrayRestarted_GetsTheIconBack) {
    SKIP_WITHOUT("Xvfb", "trayer");
    ASSERT_TRUE(startDisplay());
    startTray();
    startProgram();
    order("running");
    ASSERT_TRUE(becomesReachable("yes"));
    const QString before = drawn();
    end(tray);
    ASSERT_TRUE(becomesReachable("no"));
    startTray();
    ASSERT_TRUE(becomesReachable("yes"));
    EXPECT_EQ(drawn(), before);
}

TEST_F(TraySystemTest, IconHidden_LeavesNothingInTheX11TrayAndComesBackAlive) {
    SKIP_WITHOUT("Xvfb", "trayer", "xdotool");
    ASSERT_TRUE(startDisplay());
    startTray();
    startProgram();
    order("running");
    ASSERT_TRUE(becomesReachable("yes"));
    const QString before = drawn();
    const QRect where = place();
    ASSERT_GT(screenAt(where).count(u'#'), 40);
    order("hide");
    EXPECT_TRUE(waitInLoop([&] { return screenAt(where).count(u'#') == 0; }));
    order("running");
    EXPECT_EQ(drawn(), before);
    ASSERT_TRUE(click(place().center(), 1));
    EXPECT_TRUE(hears(QStringLiteral("chosen showWindow")));
}

TEST_F(TraySystemTest, Clicks_ShowTheWindowAndOpenTheMenu) {
    SKIP_WITHOUT("Xvfb", "trayer", "xdotool");
    ASSERT_TRUE(startDisplay());
    startTray();
    startProgram();
    order("resting");
    ASSERT_TRUE(becomesReachable("yes"));
    drawn();
    const QPoint middle = place().center();
    ASSERT_TRUE(click(middle, 1));
    EXPECT_TRUE(hears(QStringLiteral("chosen showWindow")));
    // The menu takes the keyboard; its mnemonic chooses an entry.
    ASSERT_TRUE(click(middle, 3));
    EXPECT_TRUE(waitInLoop([&] {
        xdotool({QStringLiteral("key"), QStringLiteral("q")});
        return heard().contains(QStringLiteral("chosen quit"));
    }));
}

TEST_F(TraySystemTest, LateBusTray_GetsTheIconAndItsMenu) {
    SKIP_WITHOUT("Xvfb", "dbus-daemon");
    const PrivateBus daemon;
    ASSERT_FALSE(daemon.address().isEmpty());
    bus = daemon.address();
    BusConnection panel(bus, QStringLiteral("panel"));
    ASSERT_TRUE(panel.get().isConnected());
    TrayService service(panel.get());
    ASSERT_TRUE(startDisplay());
    startProgram();
    order("running");
    EXPECT_EQ(answer("reachable"), u"no");

    ASSERT_TRUE(service.appear(false));
    ASSERT_TRUE(waitInLoop([&] { return service.questions() > 0; }));
    EXPECT_EQ(answer("reachable"), u"no");
    EXPECT_TRUE(service.items().isEmpty());
    service.setHost(true);
    ASSERT_TRUE(becomesReachable("yes"));
    ASSERT_TRUE(waitInLoop([&] { return !service.items().isEmpty(); }));

    const QString shown = service.items().constLast();
    TrayPanel reading(panel.get(), shown);
    EXPECT_EQ(reading.properties().value(QStringLiteral("Status")), QStringLiteral("Active"));
    order("trouble");
    ASSERT_TRUE(waitInLoop(
        [&] { return reading.heard.contains(QStringLiteral("NewStatus NeedsAttention")); }));
    order("work");
    ASSERT_TRUE(waitInLoop(
        [&] { return reading.heard.contains(QStringLiteral("ItemsPropertiesUpdated")); }));
    QStringList titles;
    int quit = 0;
    for (const TrayPanel::Line& line : reading.menu()) {
        titles.append(line.properties.value(QStringLiteral("label")).toString());
        if (titles.constLast() == u"_Quit")
            quit = line.id;
    }
    ASSERT_GT(quit, 0) << titles.join(u'|').toStdString();
    EXPECT_EQ(titles.constFirst(), u"Syncing: <b>48 %, about 4 min");
    reading.askMenu(QStringLiteral("Event"),
                    {quit, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())),
                     QVariant::fromValue(0U)});
    EXPECT_TRUE(hears(QStringLiteral("chosen quit")));

    QDBusInterface item(service.items().constFirst(), QStringLiteral("/StatusNotifierItem"),
                        QStringLiteral("org.kde.StatusNotifierItem"), panel.get());
    item.asyncCall(QStringLiteral("Activate"), 0, 0);
    EXPECT_TRUE(hears(QStringLiteral("chosen showWindow")));

    ASSERT_TRUE(service.disappear());
    ASSERT_TRUE(becomesReachable("no"));
    const auto before = service.items().size();
    ASSERT_TRUE(service.appear(true));
    ASSERT_TRUE(becomesReachable("yes"));
    EXPECT_TRUE(waitInLoop([&] { return service.items().size() > before; }))
        << "the icon did not register again";
}

TEST_F(TraySystemTest, NoTray_IsOutOfReachAndTheProgramRunsOn) {
    SKIP_WITHOUT("Xvfb");
    ASSERT_TRUE(startDisplay());
    startProgram();
    for (const char* state : {"off", "running", "hide", "off"}) {
        order(state);
        EXPECT_EQ(answer("reachable"), u"no");
    }
    EXPECT_EQ(program.state(), QProcess::Running);
    order("end");
    ASSERT_TRUE(waitInLoop([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
}

} // namespace
} // namespace kelvo
