#include "adapters/posix/posix_shell_runner.h"

#include "adapters/posix/command_processes.h"
#include "adapters/posix/shell_child.h"
#include "adapters/posix/utf8_collector.h"
#include "ports/console.h"

#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t cMostErrors = std::size_t{64} * 1024;
/// A flood must not hold up the quit: no more than a full pipe is read after giving up.
constexpr std::size_t cLastRead = std::size_t{1024} * 1024;
/// The exit statuses that shells give where there is none.
constexpr int cCannotStart = 126;
constexpr int cSignalled = 128;
constexpr auto cAskPatience = 2000ms;
constexpr auto cForcePatience = 1000ms;

void reap(pid_t pid, int options) {
    while (::waitpid(pid, nullptr, options) < 0 && errno == EINTR) {
    }
}

} // namespace

/// One run: reads both streams until the shell has ended and its standard output is closed.
class PosixShellRunner::Capture {
public:
    Capture(const ShellChild& child, int giveUp)
        : fWatched{{child.output.get(), POLLIN, 0},
                   {child.errors.get(), POLLIN, 0},
                   {child.ended.get(), POLLIN, 0},
                   {giveUp, POLLIN, 0}} {}

    void run() {
        while (fWatched[Output].fd >= 0 || fWatched[Ended].fd >= 0) {
            if (::poll(fWatched.data(), fWatched.size(), -1) < 0)
                continue;
            if (fWatched[Errors].revents != 0)
                readErrors();
            if (fWatched[Output].revents != 0)
                readOutput();
            if (fWatched[Ended].revents != 0)
                fWatched[Ended].fd = -1;
            if (fWatched[GiveUp].revents != 0)
                break;
        }
        for (std::size_t got = 0, size = 0; got < cLastRead && (size = readOutput()) > 0;)
            got += size;
        for (std::size_t got = 0, size = 0; got < cLastRead && (size = readErrors()) > 0;)
            got += size;
    }

    bool overflowed() const { return fOutput.overflowed(); }
    QString output() { return fOutput.finish(); }

    QString errors() const {
        return QString::fromUtf8(fErrors.data(), static_cast<qsizetype>(fErrors.size()));
    }

    /// What the system log shall say of the error output; empty when there was none.
    QString errorLine() const {
        if (fErrors.empty())
            return {};
        QString line = QStringLiteral("Error output of a shell command: ") + errors();
        while (line.endsWith(u'\n'))
            line.chop(1);
        if (fErrorsLeftOut > 0)
            line += u" … (" + QString::number(fErrorsLeftOut) + u" more bytes left out)";
        return line;
    }

private:
    enum { Output, Errors, Ended, GiveUp };

    /// The number of bytes that came; 0 when none is there, with the stream closed at its end.
    std::size_t readSome(int stream, std::span<char> room) {
        pollfd& watched = fWatched[static_cast<std::size_t>(stream)];
        if (watched.fd < 0)
            return 0;
        const ssize_t size = ::read(watched.fd, room.data(), room.size());
        if (size > 0)
            return static_cast<std::size_t>(size);
        if (size == 0 || (errno != EAGAIN && errno != EINTR))
            watched.fd = -1;
        return 0;
    }

    std::size_t readOutput() {
        const std::size_t size = readSome(Output, fOutput.room());
        fOutput.took(size);
        return size;
    }

    std::size_t readErrors() {
        std::array<char, 4096> room; // NOLINT: filled by read
        const std::size_t size = readSome(Errors, room);
        const std::size_t kept = std::min(size, cMostErrors - fErrors.size());
        fErrors.append(room.data(), kept);
        fErrorsLeftOut += size - kept;
        return size;
    }

    Utf8Collector fOutput;
    std::string fErrors;
    std::size_t fErrorsLeftOut = 0;
    std::vector<pollfd> fWatched;
};

PosixShellRunner::PosixShellRunner(Console& console)
    : fConsole(console), fEnvironment(environmentWithoutPrompts()),
      fGiveUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

PosixShellRunner::~PosixShellRunner() {
    endAll();
}

CommandResult PosixShellRunner::run(const QString& command) {
    const std::string text = command.toStdString();
    ShellChild child;
    int failure = 0;
    {
        const std::lock_guard lock(fMutex);
        if (fEnding)
            return {};
        failure = startShell(text, fEnvironment, child);
        if (failure == 0) {
            fSessions.push_back(child.pid);
            ++fCallers;
        }
    }
    if (failure != 0) {
        fConsole.log(QStringLiteral("Cannot start a shell command: ") +
                     QString::fromLocal8Bit(std::strerror(failure))); // NOLINT
        return {{}, {}, cCannotStart};
    }

    Capture capture(child, fGiveUp.get());
    capture.run();
    if (const QString line = capture.errorLine(); !line.isEmpty())
        fConsole.log(line);
    if (capture.overflowed())
        fConsole.log(QStringLiteral("Out of memory: the output of a shell command was cut off."));
    const std::optional<int> exitStatus = leave(child.pid);
    return {capture.output(), capture.errors(), exitStatus};
}

/// The shell is reaped under the lock, so that `endAll` never sees a number that is free again.
std::optional<int> PosixShellRunner::leave(pid_t pid) {
    siginfo_t ended{};
    const bool givenUp = [this] {
        pollfd giveUp{fGiveUp.get(), POLLIN, 0};
        return ::poll(&giveUp, 1, 0) > 0;
    }();
    if (!givenUp) {
        while (::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOWAIT) < 0 &&
               errno == EINTR) {
        }
    }
    const std::lock_guard lock(fMutex);
    std::optional<int> exitStatus;
    if (!givenUp && !fEnding)
        exitStatus = ended.si_code == CLD_EXITED ? ended.si_status : cSignalled + ended.si_status;
    if (!fEnding) {
        reap(pid, 0);
        std::erase(fSessions, pid);
    }
    --fCallers;
    fLeft.notify_all();
    return exitStatus;
}

void PosixShellRunner::endAll() {
    const std::lock_guard once(fEndMutex);
    std::vector<pid_t> sessions;
    {
        const std::lock_guard lock(fMutex);
        fEnding = true;
        sessions = fSessions;
    }
    const CommandProcesses commands{sessions, commandMark(::getpid())};
    if (!endProcesses(commands, SIGTERM, cAskPatience))
        (void)endProcesses(commands, SIGKILL, cForcePatience);

    const std::uint64_t one = 1;
    (void)!::write(fGiveUp.get(), &one, sizeof one);
    std::unique_lock lock(fMutex);
    fLeft.wait(lock, [this] { return fCallers == 0; });
    for (const pid_t session : sessions)
        reap(session, WNOHANG);
    fSessions.clear();
}

} // namespace kelvo
