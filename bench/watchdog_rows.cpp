// The watchdog: how fast the program is back after a kill, and what the sentinel costs meanwhile.
#include "adapters/system/pidfd.h"
#include "bench/processor_time.h"
#include "bench/row.h"
#include "support/descendants.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRounds = 15;
constexpr int cPatienceMilliseconds = 20000;
/// All set-up lies behind when the program has been silent for so long.
constexpr int cQuietMilliseconds = 1500;
constexpr auto cWakeUpWatch = std::chrono::seconds(20);

/// The program on a profile of its own, and the pipe that takes its lines.
class Launched {
public:
    Launched() {
        adoptOrphans();
        if (::pipe2(fPipe.data(), O_CLOEXEC) != 0)
            return;
        std::string program =
            QString(QCoreApplication::applicationDirPath() + u"/kelvo-mirror").toStdString();
        std::string option = "--headless";
        const std::array<char*, 3> arguments = {program.data(), option.data(), nullptr};
        std::vector<std::string> texts;
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
            texts.push_back(std::string(name) + "=" + fFolder.path().toStdString());
        std::vector<char*> environment;
        for (std::string& text : texts)
            environment.push_back(text.data());
        for (char** entry = environ; *entry != nullptr; ++entry) {
            if (!std::string_view(*entry).starts_with("XDG_"))
                environment.push_back(*entry);
        }
        environment.push_back(nullptr);
        posix_spawn_file_actions_t actions{};
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, fPipe[1], STDOUT_FILENO);
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        if (::posix_spawn(&fPid, program.c_str(), &actions, nullptr, arguments.data(),
                          environment.data()) != 0)
            fPid = -1;
        ::posix_spawn_file_actions_destroy(&actions);
    }
    ~Launched() {
        endAllDescendants("watchdog");
        for (const int end : fPipe)
            ::close(end);
    }
    Launched(const Launched&) = delete;
    Launched& operator=(const Launched&) = delete;

    pid_t pid() const { return fPid; }
    std::optional<pid_t> sentinel() const { return livingChild(fPid, "watchdog"); }

    /// Waits for a line; false when none comes in time. Takes all that is there.
    bool waitForLine(int milliseconds) {
        pollfd watched{fPipe[0], POLLIN, 0};
        if (::poll(&watched, 1, milliseconds) <= 0)
            return false;
        std::array<char, 65536> room; // NOLINT: filled by read
        return ::read(fPipe[0], room.data(), room.size()) > 0;
    }
    /// Ends the program by force and waits until the system has taken it apart.
    void kill() {
        const UniqueFd handle = openProcess(fPid);
        ::kill(fPid, SIGKILL);
        pollfd watched{handle.get(), POLLIN, 0};
        (void)::poll(&watched, 1, cPatienceMilliseconds);
    }
    void waitForQuiet() {
        while (waitForLine(cQuietMilliseconds)) {
        }
    }

private:
    const QTemporaryDir fFolder;
    std::array<int, 2> fPipe{-1, -1};
    pid_t fPid = -1;
};

std::optional<std::vector<Figure>> refuse(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    return std::nullopt;
}

std::optional<std::vector<Figure>> measureRelaunch() {
    std::vector<double> cold;
    std::vector<double> again;
    std::vector<double> sinceGone;
    for (int round = 0; round < cRounds; ++round) {
        // Both starts come after the same rest: a processor that has just slept is slower.
        std::this_thread::sleep_for(std::chrono::milliseconds(cQuietMilliseconds));
        const auto begin = Clock::now();
        Launched program;
        if (program.pid() < 0 || !program.waitForLine(cPatienceMilliseconds))
            return refuse("The program did not start.");
        cold.push_back(std::chrono::duration<double>(Clock::now() - begin).count());
        program.waitForQuiet();
        if (!program.sentinel())
            return refuse("The program is not watched.");
        const auto end = Clock::now();
        program.kill();
        const auto gone = Clock::now();
        if (!program.waitForLine(cPatienceMilliseconds))
            return refuse("The program did not come back.");
        const auto back = Clock::now();
        again.push_back(std::chrono::duration<double>(back - end).count());
        sinceGone.push_back(std::chrono::duration<double>(back - gone).count());
    }
    return std::vector<Figure>{
        {"from SIGKILL to the first line / from a cold start to it", median(again) / median(cold),
         1.2, "x", sideBySide(median(again), median(cold))},
        {"from the end of the killed process to it / from a cold start to it",
         median(sinceGone) / median(cold), 1.2, "x", sideBySide(median(sinceGone), median(cold))}};
}

QByteArray procFile(pid_t pid, const char* name) {
    QFile file(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1StringView(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number in the line that begins with `name`; -1 without one.
double field(const QByteArray& text, const char* name) {
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble();
    }
    return -1;
}

std::optional<std::vector<Figure>> measureSentinel() {
    Launched program;
    program.waitForQuiet();
    const auto sentinel = program.sentinel();
    if (!sentinel)
        return refuse("The program is not watched.");
    const QByteArray memory = procFile(*sentinel, "smaps_rollup");
    const auto before = wakeUps(*sentinel);
    std::this_thread::sleep_for(cWakeUpWatch);
    const qint64 woken = wakeUpsSince(before, *sentinel);
    if (memory.isEmpty() || before.isEmpty() || wakeUps(*sentinel).isEmpty())
        return refuse("The sentinel did not stay up.");
    return std::vector<Figure>{
        {"the sentinel's private memory",
         field(memory, "Private_Clean:") + field(memory, "Private_Dirty:"), 300, "KiB", "one run"},
        {"the sentinel's wake-ups in 20 s", double(woken), 0, "", "one run"}};
}

} // namespace

Row relaunchRow() {
    return {"relaunch", measureRelaunch};
}

Row sentinelRow() {
    return {"sentinel", measureSentinel};
}

} // namespace kelvo::bench
