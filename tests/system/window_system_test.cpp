// The real window on a real display, with a window manager and a tray, driven by mouse and keys.
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/session_bus.h"
#include "support/virtual_display.h"
#include "support/wait_until.h"

#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr int cPatience = 20'000; // milliseconds

class WindowSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override {
        for (const char* tool : {"Xvfb", "openbox", "xdotool", "maim"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed on this machine";
        }
        const QString name = display.start();
        ASSERT_FALSE(name.isEmpty()) << "Xvfb does not come up";
        desktop = environment();
        desktop.insert(QStringLiteral("DISPLAY"), name);
        desktop.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        desktop.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        run(manager, "openbox", {});
        ASSERT_TRUE(waitUntil(
            [this] { return !tool("xdotool", {QStringLiteral("getdisplaygeometry")}).isEmpty(); }));
    }

    void TearDown() override {
        program.reset();
        for (QProcess* process : {&tray, &manager}) {
            process->terminate();
            if (process->state() != QProcess::NotRunning && !process->waitForFinished(cPatience))
                process->kill();
        }
    }

    void startTray() {
        run(tray, "trayer",
            {QStringLiteral("--edge"), QStringLiteral("bottom"), QStringLiteral("--align"),
             QStringLiteral("left"), QStringLiteral("--widthtype"), QStringLiteral("pixel"),
             QStringLiteral("--width"), QStringLiteral("100"), QStringLiteral("--heighttype"),
             QStringLiteral("pixel"), QStringLiteral("--height"), QStringLiteral("24")});
    }

    void start(const QVariantMap& profile) {
        write(settingsFile(), plistText(profile));
        program = std::make_unique<RunningProgram>(cProgram, QStringList(), desktop);
    }

    /// Starts and waits for the whole set-up and a window with the keyboard focus.
    void startAndSettle(const QVariantMap& profile) {
        start(profile);
        ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60))
            << program->transcript().toStdString();
        ASSERT_TRUE(becomesVisible(true));
        ASSERT_TRUE(waitUntil([this] { return activeTitle() == u"Kelvo Mirror"; }));
    }

    QString tool(const char* name, const QStringList& arguments) const {
        QProcess process;
        process.setProcessEnvironment(desktop);
        process.start(QString::fromLatin1(name), arguments);
        process.waitForFinished(cPatience);
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    void keys(const QStringList& names) const {
        tool("xdotool",
             QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("30")} +
                 names);
    }
    void type(const QString& text) const {
        tool("xdotool",
             {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("20"), text});
    }
    void click(const QPoint& place, int button) const {
        tool("xdotool",
             {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
              QStringLiteral("click"), QString::number(button)});
    }

    QString activeTitle() const {
        return tool("xdotool",
                    {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
    }
    /// The main window's number while it can be seen; empty otherwise.
    QString visibleWindow() const {
        return tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                QStringLiteral("--name"), QStringLiteral("^Kelvo Mirror$")})
            .section(u'\n', 0, 0);
    }
    bool becomesVisible(bool visible) const {
        return waitUntil([&] { return visibleWindow().isEmpty() != visible; });
    }
    QRect windowPlace() const {
        const QString text = tool("xdotool", {QStringLiteral("getwindowgeometry"),
                                              QStringLiteral("--shell"), visibleWindow()});
        const auto number = [&](const char* name) {
            return text.section(QString::fromLatin1(name) + u'=', 1).section(u'\n', 0, 0).toInt();
        };
        return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
    }

    bool endsByItself() {
        return waitUntil([this] {
            program->waitForLine(QStringLiteral("no such line"), 0.02);
            return !program->isRunning();
        });
    }

    /// Whether the program has brought `text` to the settings file.
    bool storesText(const QByteArray& text) const {
        return waitUntil([&] { return contents(settingsFile()).contains(text); });
    }

    /// Keeps a picture of the display with the test's output.
    void keepPicture(const char* name) const {
        QDir().mkpath(QStringLiteral(KELVO_PICTURES));
        tool("maim", {QStringLiteral(KELVO_PICTURES "/%1.png").arg(QLatin1StringView(name))});
        EXPECT_TRUE(
            QFile::exists(QStringLiteral(KELVO_PICTURES "/%1.png").arg(QLatin1StringView(name))));
    }

    QVariantMap quietProfile() const {
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
        return profile;
    }

    VirtualDisplay display;
    QProcessEnvironment desktop;
    QProcess manager;
    QProcess tray;
    std::unique_ptr<RunningProgram> program;

private:
    void run(QProcess& process, const char* name, const QStringList& arguments) const {
        process.setProcessEnvironment(desktop);
        process.start(QString::fromLatin1(name), arguments);
        ASSERT_TRUE(process.waitForStarted(cPatience)) << name;
    }
};

TEST_F(WindowSystemTest, StartButton_ByMouseAndByKey) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    startAndSettle(quietProfile());
    keepPicture("sync");
    // The start button is the one tall control across the middle of the window.
    const QRect place = windowPlace();
    click({place.center().x(), place.y() + 225}, 1);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("state is now IS RUNNING"), 20))
        << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), 30));
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
    keepPicture("running");
    keys({QStringLiteral("space")});
    EXPECT_TRUE(program->waitForLine(QStringLiteral("state is now OFF"), 20));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowSystemTest, EveryTab_ByKeyAndATextThatIsStored) {
    startAndSettle(quietProfile());
    for (const auto& [key, identifier] :
         {std::pair("ctrl+3", "prefs"), std::pair("ctrl+4", "diagnostics"),
          std::pair("ctrl+1", "sync"), std::pair("ctrl+2", "remote")}) {
        keys({QString::fromLatin1(key)});
        EXPECT_TRUE(program->waitForLine(
            QStringLiteral("Inside Kelvo_Mirror.ViewController->tabView(_:willSelect:).......ident"
                           "ifier = Optional(\"%1\")")
                .arg(QLatin1StringView(identifier)),
            20))
            << identifier;
        keepPicture(identifier);
    }
    keys({QStringLiteral("alt+u")});
    type(QStringLiteral("ann"));
    keys({QStringLiteral("Return")});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->controlTextDidEndEditing(_:)"), 20));
    EXPECT_TRUE(storesText("<string>ann</string>"));
    keys({QStringLiteral("ctrl+comma")});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->ibUpdateTabViewItem()......."), 20));
    keys({QStringLiteral("ctrl+q")});
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowSystemTest, ClosedWithATray_ComesBackByTheIconAndQuitsByItsMenu) {
    if (QStandardPaths::findExecutable(QStringLiteral("trayer")).isEmpty())
        GTEST_SKIP() << "trayer is not installed on this machine";
    startTray();
    startAndSettle(quietProfile());
    // The only icon stands at the left end of the panel at the bottom left corner.
    const QPoint icon(12, 600 - 12);
    const auto comesBack = [&] {
        click(icon, 1);
        return waitUntil([&] { return !visibleWindow().isEmpty(); }, std::chrono::seconds(2));
    };
    keys({QStringLiteral("ctrl+w")});
    ASSERT_TRUE(becomesVisible(false)) << "without a word: the icon brings it back";
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.AppDelegate->"
                       "applicationShouldTerminateAfterLastWindowClosed(_:)......."),
        20));
    EXPECT_TRUE(waitUntil(comesBack, std::chrono::seconds(30)));
    click(icon, 3);
    keepPicture("tray-menu");
    keys({QStringLiteral("Up"), QStringLiteral("Return")});
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowSystemTest, ClosedWithoutATray_SaysSoOnceAndASecondCopyShowsIt) {
    startAndSettle(quietProfile());
    keys({QStringLiteral("ctrl+w")});
    ASSERT_TRUE(waitUntil([this] { return activeTitle() != u"Kelvo Mirror"; }));
    keepPicture("close-note");
    EXPECT_FALSE(visibleWindow().isEmpty()) << "not before the note is answered";
    keys({QStringLiteral("Return")});
    ASSERT_TRUE(becomesVisible(false));

    QProcess second;
    second.setProcessEnvironment(desktop);
    second.start(cProgram, QStringList());
    ASSERT_TRUE(second.waitForFinished(cPatience));
    EXPECT_EQ(second.exitCode(), 0);
    ASSERT_TRUE(becomesVisible(true));
    ASSERT_TRUE(waitUntil([this] { return activeTitle() == u"Kelvo Mirror"; }));
    keys({QStringLiteral("ctrl+w")});
    EXPECT_TRUE(becomesVisible(false)) << "it was said before";
    EXPECT_TRUE(program->isRunning());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowSystemTest, HideOnLaunch_HidesUntilASecondCopyAsks) {
    QVariantMap profile = quietProfile();
    profile[QStringLiteral("prefHideOnLaunch")] = true;
    start(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60));
    EXPECT_TRUE(visibleWindow().isEmpty());
    QProcess second;
    second.setProcessEnvironment(desktop);
    second.start(cProgram, QStringList());
    ASSERT_TRUE(second.waitForFinished(cPatience));
    EXPECT_TRUE(becomesVisible(true));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowSystemTest, DarkColoursAndLargeLetters_AreTakenOver) {
    desktop.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("1.5"));
    startAndSettle(quietProfile());
    keepPicture("large");
    EXPECT_EQ(program->stop(), 0);
}

} // namespace
} // namespace kelvo
