#include "adapters/process/posix_sentinel_launcher.h"

#include "adapters/system/clean_attributes.h"
#include "adapters/system/pidfd.h"

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <memory>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr auto cInPlacePatience = 2000ms;
constexpr auto cEndPatience = 1000ms;
constexpr int cReadyEnd = STDERR_FILENO + 1;
constexpr int cCommandsEnd = cReadyEnd + 1;

bool becomesReadable(int fd, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    pollfd watched{fd, POLLIN, 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left <= 0ms)
            return false;
        if (::poll(&watched, 1, static_cast<int>(left.count())) > 0)
            return true;
    }
}

/// The child's streams are ours, and its descriptors after them are `readyEnd` and `commands`, if
/// there is such a one.
pid_t spawn(const std::string& path, std::vector<std::string> texts, const UniqueFd& readyEnd,
            int commands) {
    std::vector<char*> arguments;
    arguments.reserve(texts.size() + 1);
    for (std::string& text : texts)
        arguments.push_back(text.data());
    arguments.push_back(nullptr);
    std::array<char*, 1> environment = {nullptr};

    const CleanAttributes attributes;
    // Clear of the places that they take in the child.
    const UniqueFd ready(::fcntl(readyEnd.get(), F_DUPFD_CLOEXEC, cCommandsEnd + 1));
    const UniqueFd table(::fcntl(commands, F_DUPFD_CLOEXEC, cCommandsEnd + 1));
    posix_spawn_file_actions_t actions{};
    ::posix_spawn_file_actions_init(&actions);
    pid_t pid = -1;
    if (::posix_spawn_file_actions_adddup2(&actions, ready.get(), cReadyEnd) != 0 ||
        (table && ::posix_spawn_file_actions_adddup2(&actions, table.get(), cCommandsEnd) != 0) ||
        ::posix_spawn_file_actions_addclosefrom_np(&actions, cCommandsEnd + (table ? 1 : 0)) != 0 ||
        ::posix_spawn(&pid, path.c_str(), &actions, attributes.get(), arguments.data(),
                      environment.data()) != 0)
        pid = -1;
    ::posix_spawn_file_actions_destroy(&actions);
    return pid;
}

/// Waits for a sentinel on a thread of its own.
class SentinelWatch {
public:
    SentinelWatch(pid_t pid, SentinelLauncher::Terminated terminated)
        : fPid(pid), fHandle(openProcess(pid)), fStop(::eventfd(0, EFD_CLOEXEC)),
          fTerminated(std::move(terminated)) {
        try {
            fThread = std::thread([this] { run(); });
            ::pthread_setname_np(fThread.native_handle(), "kelvo-sentinel");
        } catch (const std::system_error&) {
            // No thread to be had: the sentinel watches all the same, only its end goes unnoticed.
        }
    }

    ~SentinelWatch() {
        const std::uint64_t one = 1;
        (void)!::write(fStop.get(), &one, sizeof one);
        if (fThread.joinable())
            fThread.join();
    }
    SentinelWatch(const SentinelWatch&) = delete;
    SentinelWatch& operator=(const SentinelWatch&) = delete;

    void terminate() {
        fAsked = true;
        signalProcess(fHandle, SIGTERM);
    }

private:
    void run() {
        sigset_t all;
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
        std::array<pollfd, 2> watched = {pollfd{fHandle.get(), POLLIN, 0},
                                         pollfd{fStop.get(), POLLIN, 0}};
        while (::poll(watched.data(), watched.size(), -1) < 0 && errno == EINTR) {
        }
        const bool ended =
            watched[0].revents != 0 || (fAsked && becomesReadable(fHandle.get(), cEndPatience));
        siginfo_t how{};
        if (!ended || ::waitid(P_PID, static_cast<id_t>(fPid), &how, WEXITED) != 0)
            return;
        if (fTerminated)
            fTerminated(how.si_status);
    }

    const pid_t fPid;
    const UniqueFd fHandle;
    const UniqueFd fStop;
    const SentinelLauncher::Terminated fTerminated;
    std::atomic<bool> fAsked = false;
    std::thread fThread;
};

} // namespace

bool PosixSentinelLauncher::isExecutable(const QString& path) const {
    const std::string name = path.toStdString();
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::faccessat(AT_FDCWD, name.c_str(), X_OK, AT_EACCESS) == 0;
}

std::optional<SentinelTask> PosixSentinelLauncher::launch(const QString& path,
                                                          const QStringList& arguments,
                                                          Terminated terminated) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    const UniqueFd inPlace(ends[0]);
    UniqueFd readyEnd(ends[1]);

    std::vector<std::string> texts{path.toStdString()};
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    const pid_t pid = spawn(texts.front(), texts, readyEnd, fRunningCommands);
    if (pid < 0)
        return std::nullopt;
    readyEnd.reset();
    (void)becomesReadable(inPlace.get(), cInPlacePatience);
    return SentinelTask([watch = std::make_shared<SentinelWatch>(pid, std::move(terminated))] {
        watch->terminate();
    });
}

} // namespace kelvo
