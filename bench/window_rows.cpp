// The window: how soon it is there, and what it costs while nothing happens.
#include "bench/processor_time.h"
#include "bench/row.h"
#include "support/virtual_display.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <poll.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <xcb/xcb.h>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRounds = 15;
constexpr int cPatienceMilliseconds = 20000;
constexpr int cSettleMilliseconds = 4000;
constexpr int cMemoryRounds = 3;

struct FreeReply {
    void operator()(void* reply) const { ::free(reply); } // NOLINT: made by libxcb
};

/// Sees every window that comes up on a display.
class MappedWindows {
public:
    explicit MappedWindows(const QString& display)
        : fConnection(xcb_connect(display.toLatin1().constData(), nullptr)) {
        if (xcb_connection_has_error(fConnection) != 0)
            return;
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(fConnection)).data;
        const uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(fConnection, screen->root, XCB_CW_EVENT_MASK, &wanted);
        xcb_flush(fConnection);
    }
    ~MappedWindows() { xcb_disconnect(fConnection); }
    MappedWindows(const MappedWindows&) = delete;
    MappedWindows& operator=(const MappedWindows&) = delete;

    /// Waits for the next window of some size; false when none came in time.
    bool waitForWindow() {
        const auto deadline = Clock::now() + std::chrono::milliseconds(cPatienceMilliseconds);
        pollfd stream{xcb_get_file_descriptor(fConnection), POLLIN, 0};
        while (Clock::now() < deadline) {
            const std::unique_ptr<xcb_generic_event_t, FreeReply> event(
                xcb_poll_for_event(fConnection));
            if (!event) {
                ::poll(&stream, 1, 100);
            } else if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY) {
                if (isLarge(reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window))
                    return true;
            }
        }
        return false;
    }

private:
    bool isLarge(xcb_window_t window) {
        const std::unique_ptr<xcb_get_geometry_reply_t, FreeReply> place(
            xcb_get_geometry_reply(fConnection, xcb_get_geometry(fConnection, window), nullptr));
        return place && place->width > 300;
    }

    xcb_connection_t* fConnection;
};

/// A program with a window, on a profile of its own.
class WindowProgram {
public:
    WindowProgram(const QString& name, const QString& display) {
        QDir(fFolder.path()).mkpath(QStringLiteral("run"));
        QFile::setPermissions(fFolder.filePath(QStringLiteral("run")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
        for (const auto& [variable, value] :
             {std::pair("XDG_CONFIG_HOME", "config"), std::pair("XDG_STATE_HOME", "state"),
              std::pair("XDG_RUNTIME_DIR", "run")})
            own.insert(QString::fromLatin1(variable), fFolder.filePath(QString::fromLatin1(value)));
        own.insert(QStringLiteral("DISPLAY"), display);
        own.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        own.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        fProcess.setProcessEnvironment(own);
        fProcess.setStandardOutputFile(QProcess::nullDevice());
        fProcess.setStandardErrorFile(QProcess::nullDevice());
        fProcess.start(QCoreApplication::applicationDirPath() + u'/' + name, QStringList());
    }
    ~WindowProgram() {
        fProcess.terminate();
        if (!fProcess.waitForFinished(cPatienceMilliseconds))
            fProcess.kill();
        fProcess.waitForFinished();
    }

    /// Lets it run on for a while; false when it has ended.
    bool settle(int milliseconds) { return !fProcess.waitForFinished(milliseconds); }
    qint64 pid() const { return fProcess.processId(); }

    /// Its share of the memory, in KiB; -1 when it cannot be read.
    double proportionalKiB() const {
        QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(pid()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Pss:"))
                return line.mid(4).simplified().split(' ').first().toDouble();
        }
        return -1;
    }

private:
    const QTemporaryDir fFolder;
    QProcess fProcess;
};

const QString cOurs = QStringLiteral("kelvo-mirror");
const QString cBare = QStringLiteral("kelvo-bare-window");

/// A display for one row; empty, with a word why, when none comes up.
QString startDisplay(VirtualDisplay& display) {
    const QString name = display.start();
    if (name.isEmpty())
        std::fputs("Xvfb does not come up.\n", stderr);
    return name;
}

std::optional<double> secondsToWindow(const QString& program, const QString& display) {
    MappedWindows windows(display);
    const auto begin = Clock::now();
    const WindowProgram running(program, display);
    if (!windows.waitForWindow()) {
        std::fprintf(stderr, "%s shows no window.\n", qPrintable(program));
        return std::nullopt;
    }
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

std::optional<std::vector<Figure>> measureStart() {
    VirtualDisplay display;
    const QString name = startDisplay(display);
    if (name.isEmpty())
        return std::nullopt;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = -1; round < cRounds; ++round) {
        const auto our = secondsToWindow(cOurs, name);
        const auto their = secondsToWindow(cBare, name);
        if (!our || !their)
            return std::nullopt;
        if (round < 0)
            continue; // The first start of each reads its files.
        ours.push_back(*our);
        theirs.push_back(*their);
    }
    return std::vector<Figure>{{"from exec to the visible window / the same for a bare window",
                                median(ours) / median(theirs), 1.5, "x",
                                sideBySide(median(ours), median(theirs))}};
}

std::optional<std::vector<Figure>> measureMemory() {
    VirtualDisplay display;
    const QString name = startDisplay(display);
    if (name.isEmpty())
        return std::nullopt;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < cMemoryRounds; ++round) {
        for (const auto& [program, sizes] : {std::pair(cOurs, &ours), std::pair(cBare, &theirs)}) {
            WindowProgram running(program, name);
            if (!running.settle(cSettleMilliseconds) || running.proportionalKiB() <= 0) {
                std::fprintf(stderr, "%s did not stay up.\n", qPrintable(program));
                return std::nullopt;
            }
            sizes->push_back(running.proportionalKiB());
        }
    }
    char sides[64];
    std::snprintf(sides, sizeof sides, "%.1f / %.1f MiB", median(ours) / 1024,
                  median(theirs) / 1024);
    return std::vector<Figure>{{"proportional memory at rest / a bare window's",
                                median(ours) / median(theirs), 1.4, "x", sides}};
}

std::optional<std::vector<Figure>> measureIdle() {
    constexpr int cMinute = 60000;
    VirtualDisplay display;
    const QString name = startDisplay(display);
    if (name.isEmpty())
        return std::nullopt;
    WindowProgram running(cOurs, name);
    if (!running.settle(cSettleMilliseconds))
        return std::nullopt;
    const double before = processorSeconds(running.pid());
    const auto wokenBefore = wakeUps(running.pid());
    if (!running.settle(cMinute))
        return std::nullopt;
    return std::vector<Figure>{{"processor time over 60 s at rest, window open",
                                processorSeconds(running.pid()) - before, 0.02, "s", "one run"},
                               {"its wake-ups in them",
                                double(wakeUpsSince(wokenBefore, running.pid())), 0, "",
                                "all threads"}};
}

} // namespace

Row startRow() {
    return {"start", measureStart};
}

Row memoryRow() {
    return {"memory", measureMemory};
}

Row idleRow() {
    return {"idle", measureIdle};
}

} // namespace kelvo::bench
