// The real window on a Wayland compositor without a screen, and the desktop's services around it.
#include "adapters/system/unique_fd.h"
#include "support/notification_service.h"
#include "support/portal_service.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/session_bus.h"
#include "support/tray_panel.h"
#include "support/wait_in_loop.h"

#include <QColor>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <optional>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr int cPatience = 20'000; // milliseconds

/// Another program of the desktop, from which a person starts ours: it asks the compositor for an
/// activation token, in the protocol's own bytes.
class Launcher {
public:
    explicit Launcher(const QString& socketPath)
        : fSocket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        socketPath.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
        const timeval patience{cPatience / 1000, 0};
        ::setsockopt(fSocket.get(), SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        EXPECT_EQ(
            ::connect(fSocket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
    }

    /// Empty when the compositor gives none.
    QByteArray token() {
        send(cDisplay, cGetRegistry, number(cRegistry));
        while (const auto event = next()) {
            if (event->object == cRegistry && event->code == cGlobal &&
                textAt(event->body, 4) == "xdg_activation_v1") {
                send(cRegistry, cBind,
                     event->body.first(4) + text("xdg_activation_v1") + number(1) +
                         number(cActivation));
                send(cActivation, cGetToken, number(cToken));
                send(cToken, cCommit, {});
            }
            if (event->object == cToken && event->code == cDone)
                return textAt(event->body, 0);
        }
        return {};
    }

private:
    static constexpr quint32 cDisplay = 1, cRegistry = 2, cActivation = 3, cToken = 4;
    static constexpr quint32 cGetRegistry = 1, cBind = 0, cGetToken = 1, cCommit = 3;
    static constexpr quint32 cGlobal = 0, cDone = 0;

    struct Event {
        quint32 object = 0;
        quint32 code = 0;
        QByteArray body;
    };

    static QByteArray number(quint32 value) {
        return {reinterpret_cast<const char*>(&value), sizeof value};
    }
    static quint32 numberAt(const QByteArray& bytes, qsizetype at) {
        quint32 value = 0;
        std::memcpy(&value, bytes.constData() + at, sizeof value);
        return value;
    }
    static QByteArray text(QByteArray value) {
        value.append('\0');
        const QByteArray length = number(static_cast<quint32>(value.size()));
        return length + value + QByteArray((4 - value.size() % 4) % 4, '\0');
    }
    static QByteArray textAt(const QByteArray& bytes, qsizetype at) {
        return bytes.sliced(at + 4, numberAt(bytes, at) - 1);
    }

    void send(quint32 object, quint32 code, const QByteArray& body) const {
        const QByteArray message =
            number(object) + number(static_cast<quint32>(body.size() + 8) << 16 | code) + body;
        EXPECT_EQ(::send(fSocket.get(), message.constData(),
                         static_cast<std::size_t>(message.size()), MSG_NOSIGNAL),
                  message.size());
    }
    std::optional<Event> next() const {
        const auto read = [this](qsizetype size) {
            QByteArray bytes(size, '\0');
            const bool all =
                size == 0 || ::recv(fSocket.get(), bytes.data(), static_cast<std::size_t>(size),
                                    MSG_WAITALL) == size;
            return all ? bytes : QByteArray();
        };
        const QByteArray head = read(8);
        if (head.isEmpty())
            return std::nullopt;
        const quint32 sizeAndCode = numberAt(head, 4);
        return Event{numberAt(head, 0), sizeAndCode & 0xffff, read((sizeAndCode >> 16) - 8)};
    }

    const UniqueFd fSocket;
};

class WaylandSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override {
        for (const char* tool : {"sway", "swaymsg", "grim", "dbus-daemon"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed on this machine";
        }
        desktop = environment();
        desktop.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
        desktop.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
        desktop.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
        desktop.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
        desktop.remove(QStringLiteral("XDG_SESSION_TYPE"));
        write(path(QStringLiteral("sway")), "xwayland disable\n"
                                            "focus_on_window_activation focus\n"
                                            "exec echo $WAYLAND_DISPLAY $SWAYSOCK > $HOME/ready\n");
        compositor.setProcessEnvironment(desktop);
        compositor.setProcessChannelMode(QProcess::MergedChannels);
        // Root is refused; a person's number in a namespace of its own will do.
        QStringList command{QStringLiteral("sway"), QStringLiteral("-c"),
                            path(QStringLiteral("sway"))};
        if (::getuid() == 0)
            command =
                QStringList{QStringLiteral("unshare"), QStringLiteral("--user"),
                            QStringLiteral("--map-user=1000"), QStringLiteral("--map-group=1000")} +
                command;
        compositor.start(command[0], command.sliced(1));
        QStringList names;
        waitInLoop([&] {
            names = QString::fromLocal8Bit(contents(path(QStringLiteral("home/ready"))))
                        .trimmed()
                        .split(u' ');
            return names.size() == 2 || compositor.state() == QProcess::NotRunning;
        });
        if (names.size() != 2)
            GTEST_SKIP() << "the compositor does not run here: "
                         << compositor.readAll().constData();
        desktop.insert(QStringLiteral("WAYLAND_DISPLAY"), names[0]);
        desktop.insert(QStringLiteral("SWAYSOCK"), names[1]);
    }

    void TearDown() override {
        program.reset();
        compositor.terminate();
        if (compositor.state() != QProcess::NotRunning && !compositor.waitForFinished(cPatience))
            compositor.kill();
    }

    void start(const QVariantMap& settings = {}) {
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
        profile.insert(settings);
        write(settingsFile(), plistText(profile));
        program = std::make_unique<RunningProgram>(cProgram, QStringList(), desktop);
        ASSERT_TRUE(waitInLoop([this] { return isFocused(); }))
            << program->transcript().toStdString();
    }

    QByteArray run(const char* name, const QStringList& words) const {
        QProcess tool;
        tool.setProcessEnvironment(desktop);
        tool.start(QString::fromLatin1(name), words);
        tool.waitForFinished(cPatience);
        return tool.readAllStandardOutput();
    }
    QByteArray tell(const QStringList& words) const { return run("swaymsg", words); }

    /// The colour of the window's ground on the screen.
    QColor ground() const {
        const QImage screen = QImage::fromData(run("grim", {QStringLiteral("-")}), "PNG");
        const QJsonObject place = window()[QStringLiteral("rect")].toObject();
        return screen.isNull() ? QColor()
                               : screen.pixelColor(place[QStringLiteral("x")].toInt() + 8,
                                                   place[QStringLiteral("y")].toInt() +
                                                       place[QStringLiteral("height")].toInt() - 8);
    }

    /// The program's window as the compositor has it; empty while there is none.
    QJsonObject window() const {
        const QByteArray tree =
            tell({QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_tree")});
        return windowIn(QJsonDocument::fromJson(tree).object());
    }
    bool isFocused() const { return window()[QStringLiteral("focused")].toBool(); }
    void goElsewhere() const { tell({QStringLiteral("workspace"), QStringLiteral("elsewhere")}); }

    const PrivateBus bus;
    QProcessEnvironment desktop;
    QProcess compositor;
    std::unique_ptr<RunningProgram> program;

private:
    static QJsonObject windowIn(const QJsonObject& node) {
        if (node[QStringLiteral("app_id")] == QStringLiteral("org.kelvo.KelvoMirror"))
            return node;
        for (const char* children : {"nodes", "floating_nodes"}) {
            for (const QJsonValue each : node[QString::fromLatin1(children)].toArray()) {
                if (const QJsonObject found = windowIn(each.toObject()); !found.isEmpty())
                    return found;
            }
        }
        return {};
    }
};

TEST_F(WaylandSystemTest, SecondStartWithAToken_BringsTheWindowToTheFront) {
    start();
    EXPECT_EQ(window()[QStringLiteral("name")].toString(), u"Kelvo Mirror");
    goElsewhere();
    ASSERT_FALSE(isFocused());

    Launcher launcher(path(u"run/" + desktop.value(QStringLiteral("WAYLAND_DISPLAY"))));
    const QByteArray token = launcher.token();
    ASSERT_FALSE(token.isEmpty());
    QProcess second;
    QProcessEnvironment given = desktop;
    given.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QString::fromLatin1(token));
    second.setProcessEnvironment(given);
    second.start(cProgram, QStringList());
    ASSERT_TRUE(second.waitForFinished(cPatience));
    EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().constData();
    EXPECT_TRUE(waitInLoop([this] { return isFocused(); })) << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WaylandSystemTest, ClosedToTheTray_SaysSoOnceAndComesBackByTheIcon) {
    BusConnection panelBus(bus.address(), QStringLiteral("wayland panel"));
    TrayService tray(panelBus.get());
    NotificationService notices(panelBus.get());
    ASSERT_TRUE(tray.appear(true) && notices.appear());
    start();
    ASSERT_TRUE(waitInLoop([&] { return !tray.items().isEmpty(); }));
    TrayPanel panel(panelBus.get(), tray.items().constLast());
    Launcher launcher(path(u"run/" + desktop.value(QStringLiteral("WAYLAND_DISPLAY"))));
    for (int closes = 1; closes <= 2; ++closes) {
        tell({QStringLiteral("[app_id=org.kelvo.KelvoMirror]"), QStringLiteral("kill")});
        EXPECT_TRUE(waitInLoop([this] { return window().isEmpty(); }));
        goElsewhere();
        panel.askItem(QStringLiteral("ProvideXdgActivationToken"),
                      {QString::fromLatin1(launcher.token())});
        panel.askItem(QStringLiteral("Activate"), {0, 0});
        ASSERT_TRUE(waitInLoop([this] { return isFocused(); })) << closes;
    }
    EXPECT_EQ(notices.shown,
              QStringList{QStringLiteral("Kelvo Mirror keeps running | Its icon in the tray brings "
                                         "the window back; the icon's menu ends the program.")});
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WaylandSystemTest, TrayMenu_TellsAndDoesAllOfItWhileItIsOpen) {
    BusConnection panelBus(bus.address(), QStringLiteral("wayland menu panel"));
    TrayService tray(panelBus.get());
    ASSERT_TRUE(tray.appear(true));
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QDir().mkpath(path(QStringLiteral("Incoming")));
    start({{QStringLiteral("prefDelayBetweenScans"), 30.0}});
    ASSERT_TRUE(waitInLoop([&] { return !tray.items().isEmpty(); }));
    TrayPanel panel(panelBus.get(), tray.items().constLast());

    QHash<QString, int> entries; // what can be chosen
    const auto read = [&] {
        QStringList seen;
        entries.clear();
        for (const TrayPanel::Line& line : panel.menu()) {
            const QString label = line.properties.value(QStringLiteral("label")).toString();
            if (label.isEmpty() || !line.properties.value(QStringLiteral("visible")).toBool())
                continue;
            seen.append(label);
            if (line.properties.value(QStringLiteral("enabled")).toBool())
                entries.insert(label, line.id);
        }
        return seen.join(u'|');
    };
    const auto tellMenu = [&](int id, const char* what) {
        panel.askMenu(QStringLiteral("Event"),
                      {id, QString::fromLatin1(what), QVariant::fromValue(QDBusVariant(QString())),
                       QVariant::fromValue(0U)});
    };
    const auto becomes = [&](const char* part) {
        return waitInLoop([&] { return read().contains(QLatin1StringView(part)); });
    };
    const QString entriesInOrder =
        QStringLiteral("|Sync _Now|_Cancel This Pass|Open _Window|_Activity|Reveal _Folder|Quit "
                       "and _Relaunch|_Quit");

    ASSERT_TRUE(becomes("|Start Syncing|"));
    EXPECT_TRUE(read().endsWith(u"|Start Syncing" + entriesInOrder)) << read().toStdString();
    EXPECT_FALSE(entries.contains(QStringLiteral("_Cancel This Pass"))) << "nothing runs";
    tellMenu(0, "opened");
    tellMenu(entries.value(QStringLiteral("Start Syncing")), "clicked");
    ASSERT_TRUE(becomes("|Stop Syncing|"));
    ASSERT_TRUE(becomes("Last success")) << read().toStdString();
    ASSERT_TRUE(becomes("ext pass in "));
    EXPECT_TRUE(read().endsWith(u"|Stop Syncing" + entriesInOrder)) << read().toStdString();
    const QString before = read();
    EXPECT_TRUE(waitInLoop([&] { return read() != before; })) << "the seconds stand still";

    write(path(QStringLiteral("Camera/b.mov")), "movie");
    ASSERT_TRUE(entries.contains(QStringLiteral("Sync _Now")));
    tellMenu(entries.value(QStringLiteral("Sync _Now")), "clicked");
    EXPECT_TRUE(waitInLoop([&] { return QFile::exists(path(QStringLiteral("Incoming/b.mov"))); }));
    tellMenu(entries.value(QStringLiteral("Stop Syncing")), "clicked");
    EXPECT_TRUE(becomes("|Start Syncing|"));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WaylandSystemTest, WishForDarkColours_IsFollowedWhileTheWindowIsOpen) {
    BusConnection desktopBus(bus.address(), QStringLiteral("wayland portal"));
    PortalService portal(desktopBus.get());
    ASSERT_TRUE(portal.appear());
    start();
    EXPECT_TRUE(waitInLoop([&] { return ground().lightness() > 200; }));
    portal.setScheme(1);
    EXPECT_TRUE(waitInLoop([&] { return ground().isValid() && ground().lightness() < 64; }));
    portal.setScheme(2);
    EXPECT_TRUE(waitInLoop([&] { return ground().lightness() > 200; }));
    EXPECT_EQ(program->stop(), 0);
}

} // namespace
} // namespace kelvo
