// The window: how soon it is there, and what it costs while nothing happens.
#include "bench/processor_time.h"
#include "bench/profile.h"
#include "bench/row.h"
#include "support/virtual_display.h"

#include <poll.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>
#include <xcb/xcb.h>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRounds = 15;
constexpr int cPatienceMilliseconds = 20000;
constexpr int cSettleMilliseconds = 4000;
/// A start that does nothing for so long is over; what it puts off waits longer: the first word of
/// the network is shown a tenth of a second after it came, as every text of that kind.
constexpr double cRestSeconds = 0.03;
constexpr int cMemoryRounds = 3;

struct FreeReply {
    void operator()(void* reply) const { ::free(reply); } // NOLINT: made by libxcb
};

/// Sees every window that comes up on a display.
class SeenWindows {
public:
    explicit SeenWindows(const QString& display)
        : fConnection(xcb_connect(display.toLatin1().constData(), nullptr)) {
        if (xcb_connection_has_error(fConnection) != 0)
            return;
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(fConnection)).data;
        const uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(fConnection, screen->root, XCB_CW_EVENT_MASK, &wanted);
        xcb_flush(fConnection);
    }
    ~SeenWindows() { xcb_disconnect(fConnection); }
    SeenWindows(const SeenWindows&) = delete;
    SeenWindows& operator=(const SeenWindows&) = delete;

    /// Waits for the next window of some size; 0 when none came in time.
    xcb_window_t waitForWindow() {
        const auto deadline = Clock::now() + std::chrono::milliseconds(cPatienceMilliseconds);
        pollfd stream{xcb_get_file_descriptor(fConnection), POLLIN, 0};
        while (Clock::now() < deadline) {
            const std::unique_ptr<xcb_generic_event_t, FreeReply> event(
                xcb_poll_for_event(fConnection));
            if (!event) {
                ::poll(&stream, 1, 100);
            } else if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY) {
                const auto window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
                if (isLarge(window))
                    return window;
            }
        }
        return 0;
    }

    /// Waits until `window`, which comes up black, has a ground; false when it stays as it is.
    bool waitForPaint(xcb_window_t window) {
        const auto deadline = Clock::now() + std::chrono::milliseconds(cPatienceMilliseconds);
        while (Clock::now() < deadline) {
            const std::unique_ptr<xcb_get_image_reply_t, FreeReply> corner(xcb_get_image_reply(
                fConnection,
                xcb_get_image(fConnection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 2, 200, 1, 1, ~0U),
                nullptr));
            if (corner && xcb_get_image_data_length(corner.get()) >= 3 &&
                (*xcb_get_image_data(corner.get()) != 0))
                return true;
            std::this_thread::sleep_for(std::chrono::microseconds(300));
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
        QProcessEnvironment own = fProfile.environment();
        own.insert(QStringLiteral("DISPLAY"), display);
        own.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        fProcess.setProcessEnvironment(own);
        fProcess.setStandardOutputFile(QProcess::nullDevice());
        fProcess.setStandardErrorFile(QProcess::nullDevice());
        fProcess.start(builtProgram(name), QStringList());
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

private:
    const Profile fProfile;
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

/// The way of a start, in seconds.
struct Start {
    double mapped;    ///< until the window is on the display
    double painted;   ///< until it shows something
    double settled;   ///< until the last that it did before a rest
    double processor; ///< used until then
};

std::optional<Start> startOf(const QString& program, const QString& display) {
    SeenWindows windows(display);
    const auto begin = Clock::now();
    WindowProgram running(program, display);
    const auto since = [begin] {
        return std::chrono::duration<double>(Clock::now() - begin).count();
    };
    const xcb_window_t window = windows.waitForWindow();
    Start start{.mapped = since(), .painted = 0, .settled = 0, .processor = 0};
    const bool painted = window != 0 && windows.waitForPaint(window);
    start.painted = start.settled = since();
    if (!painted) {
        std::fprintf(stderr, "%s shows no window.\n", qPrintable(program));
        return std::nullopt;
    }
    while (since() - start.settled < cRestSeconds) {
        const double used = processorSeconds(running.pid());
        if (used > start.processor)
            start.settled = since();
        start.processor = used;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return start;
}

std::optional<std::vector<Figure>> measureStart() {
    VirtualDisplay display;
    const QString name = startDisplay(display);
    if (name.isEmpty())
        return std::nullopt;
    Rounds mapped;
    Rounds painted;
    Rounds settled;
    Rounds processor;
    for (int round = -1; round < cRounds; ++round) {
        const auto ours = startOf(cOurs, name);
        const auto theirs = startOf(cBare, name);
        if (!ours || !theirs)
            return std::nullopt;
        if (round < 0)
            continue; // The first start of each reads its files.
        for (const auto& [rounds, figure] :
             {std::pair(&mapped, &Start::mapped), std::pair(&painted, &Start::painted),
              std::pair(&settled, &Start::settled), std::pair(&processor, &Start::processor)}) {
            rounds->ours.push_back((*ours).*figure);
            rounds->theirs.push_back((*theirs).*figure);
        }
    }
    return std::vector<Figure>{
        ratioOfTimes(mapped, "from exec to the visible window / a bare window's", 1.2),
        ratioOfTimes(painted, "from exec to its first paint / a bare window's", 1.25),
        ratioOfTimes(settled, "from exec until all is quiet / a bare window's", 1.3),
        ratioOfTimes(processor, "processor time until then / a bare window's", 1.3)};
}

std::optional<std::vector<Figure>> measureMemory() {
    VirtualDisplay display;
    const QString name = startDisplay(display);
    if (name.isEmpty())
        return std::nullopt;
    Rounds memory;
    for (int round = 0; round < cMemoryRounds; ++round) {
        for (const auto& [program, sizes] :
             {std::pair(cOurs, &memory.ours), std::pair(cBare, &memory.theirs)}) {
            WindowProgram running(program, name);
            if (!running.settle(cSettleMilliseconds) || proportionalKiB(running.pid()) <= 0) {
                std::fprintf(stderr, "%s did not stay up.\n", qPrintable(program));
                return std::nullopt;
            }
            sizes->push_back(proportionalKiB(running.pid()));
        }
    }
    char sides[64];
    std::snprintf(sides, sizeof sides, "%.1f / %.1f MiB", median(memory.ours) / 1024,
                  median(memory.theirs) / 1024);
    return std::vector<Figure>{ratioOf(
        memory, "proportional memory at rest, sentinel included / a bare window's", 1.25, sides)};
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
