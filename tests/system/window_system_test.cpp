// The real window on a real display, with a window manager and a tray, driven by mouse and keys.
#include "support/descendants.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/session_bus.h"
#include "support/virtual_desktop.h"
#include "support/wait_until.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <signal.h>

#include <cstdlib>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr int cPatience = 20'000; // milliseconds

class WindowSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override {
        if (const QString missing = VirtualDesktop::missingTool(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed on this machine";
        ASSERT_TRUE(screen.start()) << "no display comes up";
        desktop = environment();
        desktop.insert(QStringLiteral("DISPLAY"), screen.name());
        desktop.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        desktop.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
    }

    void TearDown() override {
        program.reset();
        tray.terminate();
        if (tray.state() != QProcess::NotRunning && !tray.waitForFinished(cPatience))
            tray.kill();
    }

    void startTray() {
        tray.setProcessEnvironment(desktop);
        tray.start(QStringLiteral("trayer"),
                   {QStringLiteral("--edge"), QStringLiteral("bottom"), QStringLiteral("--align"),
                    QStringLiteral("left"), QStringLiteral("--widthtype"), QStringLiteral("pixel"),
                    QStringLiteral("--width"), QStringLiteral("100"),
                    QStringLiteral("--heighttype"), QStringLiteral("pixel"),
                    QStringLiteral("--height"), QStringLiteral("24")});
        ASSERT_TRUE(tray.waitForStarted(cPatience));
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
        ASSERT_TRUE(waitUntil([this] { return screen.activeTitle() == u"Kelvo Mirror"; }));
    }

    /// The main window's number while it can be seen; empty otherwise.
    QString visibleWindow() const {
        return screen
            .tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                              QStringLiteral("--name"), QStringLiteral("^Kelvo Mirror$")})
            .section(u'\n', 0, 0);
    }
    bool becomesVisible(bool visible) const {
        return waitUntil([&] { return visibleWindow().isEmpty() != visible; });
    }
    QRect windowPlace() const {
        const QString text = screen.tool("xdotool", {QStringLiteral("getwindowgeometry"),
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

    void keepPicture(const char* name) const {
        EXPECT_TRUE(screen.keepPicture(QStringLiteral(KELVO_PICTURES), name));
    }

    /// The colour of the window's ground, and the height in pixels of the letters in its menu bar,
    /// once they stand out from the ground.
    struct Look {
        QColor ground;
        int letters = 0;
    };
    Look lookOf(const char* picture) const {
        keepPicture(picture);
        const QImage image = QImage(QStringLiteral(KELVO_PICTURES "/") +
                                    QString::fromLatin1(picture) + QStringLiteral(".png"));
        constexpr int cBelowTheFrame = 22; // of a window in the display's corner
        Look look{.ground = image.pixelColor(windowPlace().width() - 5, cBelowTheFrame)};
        const auto hasLetters = [&](int y) {
            for (int x = 4; x < 50; ++x) {
                if (std::abs(image.pixelColor(x, y).lightness() - look.ground.lightness()) > 100)
                    return true;
            }
            return false;
        };
        int y = cBelowTheFrame;
        while (y < 60 && !hasLetters(y))
            ++y;
        for (; y < 60 && hasLetters(y); ++y)
            ++look.letters;
        return look;
    }

    QVariantMap quietProfile() const {
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
        return profile;
    }

    VirtualDesktop screen;
    QProcessEnvironment desktop;
    QProcess tray;
    std::unique_ptr<RunningProgram> program;
};

TEST_F(WindowSystemTest, GermanMachine_IsSpokenToInGermanAndGetsEnglishLines) {
    desktop.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    desktop.remove(QStringLiteral("LANGUAGE"));
    startAndSettle({});
    screen.keys({QStringLiteral("ctrl+2")});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->tabView(_:willSelect:).......tabViewIte"
                       "m.label = Optional(\"Remote Mac\")"),
        20))
        << program->transcript().toStdString();
    keepPicture("german");
    screen.keys({QStringLiteral("alt+h"), QStringLiteral("b")}); // Hilfe, Über Kelvo Mirror
    EXPECT_TRUE(waitUntil([this] { return screen.activeTitle() == u"Über Kelvo Mirror"; }))
        << screen.activeTitle().toStdString();
}

TEST_F(WindowSystemTest, StartButton_ByMouseAndByKey) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QDir().mkpath(path(QStringLiteral("Incoming")));
    startAndSettle(quietProfile());
    keepPicture("sync");
    const QRect place = windowPlace();
    screen.click(startButton(place.topLeft()), 1);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("state is now IS RUNNING"), 20))
        << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), 30));
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
    keepPicture("running");
    screen.keys({QStringLiteral("space")});
    EXPECT_TRUE(program->waitForLine(QStringLiteral("state is now OFF"), 20));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowSystemTest, EveryTab_ByKeyAndATextThatIsStored) {
    startAndSettle(quietProfile());
    QFile mapped(QStringLiteral("/proc/%1/maps").arg(program->processId()));
    ASSERT_TRUE(mapped.open(QIODevice::ReadOnly));
    EXPECT_FALSE(mapped.readAll().contains("/imageformats/"))
        << "a start that reads no picture loads nothing that could";
    for (const auto& [key, identifier] :
         {std::pair("ctrl+3", "prefs"), std::pair("ctrl+4", "activity"),
          std::pair("ctrl+1", "sync"), std::pair("ctrl+2", "remote")}) {
        screen.keys({QString::fromLatin1(key)});
        EXPECT_TRUE(program->waitForLine(
            QStringLiteral("Inside Kelvo_Mirror.ViewController->tabView(_:willSelect:).......ident"
                           "ifier = Optional(\"%1\")")
                .arg(QLatin1StringView(identifier)),
            20))
            << identifier;
        keepPicture(identifier);
    }
    screen.keys({QStringLiteral("alt+u")});
    screen.type(QStringLiteral("ann"));
    screen.keys({QStringLiteral("Return")});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->controlTextDidEndEditing(_:)"), 20));
    EXPECT_TRUE(storesText("<string>ann</string>"));
    screen.keys({QStringLiteral("ctrl+comma")});
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.ViewController->ibUpdateTabViewItem()......."), 20));
    screen.keys({QStringLiteral("ctrl+q")});
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowSystemTest, Interrupt_EndsAtOnceAndStoresNothingHalfTyped) {
    startAndSettle({{QStringLiteral("mainWindowTab"), QStringLiteral("remote")}});
    // What is watched would come back.
    const auto sentinel = livingChild(static_cast<pid_t>(program->processId()), "watchdog");
    ASSERT_TRUE(sentinel);
    ::kill(*sentinel, SIGKILL);
    const auto pid = static_cast<pid_t>(program->processId());
    ASSERT_TRUE(waitUntil([&] { return !livingChild(pid, "watchdog"); }));
    screen.keys({QStringLiteral("alt+u")});
    screen.type(QStringLiteral("half"));
    program->waitForLine(QStringLiteral("no such line"), 1);
    const QStringList before = program->lines();
    ::kill(static_cast<pid_t>(program->processId()), SIGINT);
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(program->exitCode(), SIGINT);
    EXPECT_EQ(program->lines(), before) << "nothing is printed";
    EXPECT_FALSE(contents(settingsFile()).contains("half"));
}

TEST_F(WindowSystemTest, RequestToTerminate_IsSaidBeforeAnythingElseHappens) {
    startAndSettle({{QStringLiteral("mainWindowTab"), QStringLiteral("remote")}});
    screen.keys({QStringLiteral("alt+u")});
    screen.type(QStringLiteral("half"));
    const qsizetype before = contents(logFile()).size();
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
    const QByteArray said = contents(logFile()).sliced(before);
    EXPECT_TRUE(said.split('\n').first().contains("Caught Terminated ... terminating."))
        << said.constData();
    EXPECT_TRUE(contents(settingsFile()).contains("half"))
        << "the orderly end keeps what was typed";
}

TEST_F(WindowSystemTest, ClosedWithATray_ComesBackByTheIconAndQuitsByItsMenu) {
    if (QStandardPaths::findExecutable(QStringLiteral("trayer")).isEmpty())
        GTEST_SKIP() << "trayer is not installed on this machine";
    startTray();
    startAndSettle(quietProfile());
    // The only icon stands at the left end of the panel at the bottom left corner.
    const QPoint icon(12, 600 - 12);
    const auto comesBack = [&] {
        screen.click(icon, 1);
        return waitUntil([&] { return !visibleWindow().isEmpty(); }, std::chrono::seconds(2));
    };
    screen.keys({QStringLiteral("ctrl+w")});
    ASSERT_TRUE(becomesVisible(false)) << "without a word: the icon brings it back";
    EXPECT_TRUE(program->waitForLine(
        QStringLiteral("Inside Kelvo_Mirror.AppDelegate->"
                       "applicationShouldTerminateAfterLastWindowClosed(_:)......."),
        20));
    EXPECT_TRUE(waitUntil(comesBack, std::chrono::seconds(30)));
    screen.click(icon, 3);
    keepPicture("tray-menu");
    screen.keys({QStringLiteral("Up"), QStringLiteral("Return")});
    EXPECT_TRUE(endsByItself());
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowSystemTest, ClosedWithoutATray_SaysSoOnceAndASecondCopyShowsIt) {
    startAndSettle(quietProfile());
    EXPECT_TRUE(waitUntil([this] { return contents(logFile()).contains("No session bus"); }));
    screen.keys({QStringLiteral("ctrl+w")});
    ASSERT_TRUE(waitUntil([this] { return screen.activeTitle() != u"Kelvo Mirror"; }));
    keepPicture("close-note");
    EXPECT_FALSE(visibleWindow().isEmpty()) << "not before the note is answered";
    screen.keys({QStringLiteral("Return")});
    ASSERT_TRUE(becomesVisible(false));

    QProcess second;
    second.setProcessEnvironment(desktop);
    second.start(cProgram, QStringList());
    ASSERT_TRUE(second.waitForFinished(cPatience));
    EXPECT_EQ(second.exitCode(), 0);
    ASSERT_TRUE(becomesVisible(true));
    ASSERT_TRUE(waitUntil([this] { return screen.activeTitle() == u"Kelvo Mirror"; }));
    screen.keys({QStringLiteral("ctrl+w")});
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

TEST_F(WindowSystemTest, OptionsOfTheToolkit_ReachTheWindow) {
    write(settingsFile(), plistText(quietProfile()));
    program = std::make_unique<RunningProgram>(
        cProgram, QStringLiteral("-geometry=640x500+60+70 -title Mine -reverse").split(u' '),
        desktop);
    QString mine;
    ASSERT_TRUE(waitUntil([&] {
        mine = screen.tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                       QStringLiteral("--name"), QStringLiteral("^Mine")});
        return !mine.isEmpty();
    })) << program->transcript().toStdString();
    EXPECT_TRUE(
        screen.tool("xdotool", {QStringLiteral("getwindowgeometry"), mine.section(u'\n', 0, 0)})
            .contains(u"Geometry: 640x500"));
    keepPicture("mirrored");
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowSystemTest, Window_ComesBackWhereItWas) {
    QVariantMap profile = quietProfile();
    profile[QStringLiteral("mainWindowSize")] = QStringLiteral("640x480");
    startAndSettle(profile);
    screen.tool("xdotool", {QStringLiteral("windowmove"), visibleWindow(), QStringLiteral("57"),
                            QStringLiteral("83")});
    QRect moved;
    ASSERT_TRUE(waitUntil([&] {
        moved = windowPlace();
        return moved.left() > 50;
    }));
    // Twice: a frame that is counted wrongly would add up.
    for (int starts = 0; starts < 2; ++starts) {
        ASSERT_EQ(program->stop(), 0);
        program = std::make_unique<RunningProgram>(cProgram, QStringList(), desktop);
        ASSERT_TRUE(becomesVisible(true));
        EXPECT_TRUE(waitUntil([&] { return windowPlace() == moved; }))
            << windowPlace().left() << ' ' << windowPlace().top();
    }
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowSystemTest, DarkColoursAndLargeLetters_AreTakenOver) {
    desktop.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("KDE"));
    desktop.insert(QStringLiteral("KDE_SESSION_VERSION"), QStringLiteral("5"));
    write(path(QStringLiteral("config/kdeglobals")), R"([General]
font=DejaVu Sans,20,-1,5,50,0,0,0,0,0

[Colors:Window]
BackgroundNormal=32,32,32
ForegroundNormal=240,240,240

[Colors:Button]
BackgroundNormal=48,48,48
ForegroundNormal=240,240,240

[Colors:View]
BackgroundNormal=24,24,24
ForegroundNormal=240,240,240
)");
    startAndSettle(quietProfile());
    Look look;
    EXPECT_TRUE(waitUntil([&] {
        look = lookOf("dark-and-large");
        return look.letters > 0;
    }));
    EXPECT_LT(look.ground.lightness(), 64);
    EXPECT_GT(look.letters, 15) << "usual ones have ten";
    EXPECT_EQ(program->stop(), 0);
}

} // namespace
} // namespace kelvo
