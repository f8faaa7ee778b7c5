// SetUpLabTest: the program's window on a display of its own, driven by mouse and keys, between two
// hosts on which nothing is set up yet.
#pragma once

#include "lab/lab_fixture.h"
#include "support/plist_text.h"
#include "support/virtual_desktop.h"
#include "support/wait_until.h"

#include <QStandardPaths>

namespace kelvo {

using namespace std::chrono_literals;

inline const QString cPassword = QStringLiteral("projector");

class SetUpLabTest : public LabTest {
protected:
    static inline const QString cKey = QStringLiteral(".ssh/id_kelvoRsync");

    void SetUp() override {
        if (const QString missing = VirtualDesktop::missingTool(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed on this machine";
        if (QStandardPaths::findExecutable(QStringLiteral("xterm")).isEmpty())
            GTEST_SKIP() << "xterm is not installed on this machine";
        LabTest::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        // Nothing is set up yet: no key, and a host that nobody has seen before.
        near(QStringLiteral("find .ssh -mindepth 1 -delete"));
        remote(QStringLiteral("rm -f /Users/mediauser/.ssh/authorized_keys"));
        ASSERT_TRUE(screen.start({800, 660})) << "no display comes up";
    }

    void TearDown() override { program.reset(); }

    // -- the program

    static QVariantMap firstDay() {
        return {{QStringLiteral("prefRsyncWithSSH"), true},
                {QStringLiteral("prefPath2"), cIncoming},
                {QStringLiteral("mainWindowTab"), QStringLiteral("remote")}};
    }
    static QVariantMap hostAndUser() {
        QVariantMap profile = firstDay();
        profile[QStringLiteral("prefRemoteBonjourName")] = cRemoteHost;
        profile[QStringLiteral("prefRemoteUsername")] = cRemoteUser;
        profile[QStringLiteral("prefRemotePath")] = QStringLiteral("Movies");
        return profile;
    }

    /// Starts the program with its window on the display and the keyboard focus in it.
    void startWindow(const QVariantMap& profile, const QStringList& variables = {}) {
        writeNear(cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist"),
                  plistText(profile));
        program = std::make_unique<RunningProgram>(
            QStringLiteral(KELVO_LAB_COMMAND),
            QStringList{QStringLiteral("near"), QStringLiteral("env"),
                        QString(u"DISPLAY=" + screen.name()), QStringLiteral("QT_QPA_PLATFORM=xcb"),
                        QStringLiteral("DBUS_SESSION_BUS_ADDRESS=disabled:")} +
                variables + QStringList{QStringLiteral(KELVO_PROGRAM)});
        ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60))
            << program->transcript().toStdString();
        ASSERT_TRUE(waitUntil([this] { return screen.activeTitle() == u"Kelvo Mirror"; }, 30s));
    }

    bool prints(const QString& start, double seconds = 60) {
        return program->waitForLine(start, seconds).has_value();
    }
    bool logs(const QString& part, double seconds = 60) {
        return program
            ->waitForLine([&](const QString& line) { return line.contains(part); }, seconds)
            .has_value();
    }
    /// The same for the system log.
    bool tells(const QString& part) {
        return waitUntil(
            [&] {
                program->waitForLine(QStringLiteral("no such line"), 0.05);
                return program->transcript().contains(part);
            },
            60s);
    }
    std::string transcript() const { return program->transcript().toStdString(); }

    // -- mouse and keys

    void keys(const QStringList& names) const { screen.keys(names); }
    void enter(const QString& text) const {
        screen.type(text);
        keys({QStringLiteral("Return")});
    }
    void clickStart() const {
        const QString place = screen.tool("xdotool", {QStringLiteral("getactivewindow"),
                                                      QStringLiteral("getwindowgeometry"),
                                                      QStringLiteral("--shell")});
        const auto number = [&](const char* name) {
            return place.section(QString::fromLatin1(name) + u'=', 1).section(u'\n', 0, 0).toInt();
        };
        screen.click(startButton({number("X"), number("Y")}), 1);
    }
    bool comesToFront(const QString& title) const {
        return waitUntil([&] { return screen.activeTitle().startsWith(title); }, 30s);
    }
    QString terminalWindow() const {
        return screen
            .tool("xdotool", {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                              QStringLiteral("--class"), QStringLiteral("xterm")})
            .section(u'\n', 0, 0);
    }
    bool terminalComes(bool comes = true) const {
        return waitUntil([&] { return terminalWindow().isEmpty() != comes; }, 30s);
    }
    void keepPicture(const char* name) const {
        EXPECT_TRUE(screen.keepPicture(QStringLiteral(KELVO_PICTURES), name));
    }

    /// Types `text` into the terminal, again from time to time (a question drops what was typed
    /// before it was asked), until `nearText` succeeds on the near host.
    static constexpr auto cAnswerPatience = 3s;
    bool answers(const QString& text, const std::function<bool()>& done) const {
        for (int round = 0; round < 8; ++round) {
            enter(text);
            if (waitUntil(done, cAnswerPatience))
                return true;
        }
        return false;
    }
    static bool hostIsKnown() {
        return near(QStringLiteral("test -s .ssh/known_hosts")).exitCode == 0;
    }
    static bool keyIsInstalled() {
        return remote(QStringLiteral("test -s /Users/mediauser/.ssh/authorized_keys")).exitCode ==
               0;
    }
    static bool bothHalves() {
        return near(QStringLiteral("test -s %1 -a -s %1.pub").arg(cKey)).exitCode == 0;
    }

    VirtualDesktop screen;
    std::unique_ptr<RunningProgram> program;
};

} // namespace kelvo
