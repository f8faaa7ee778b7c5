#include "adapters/process/posix_shell_runner.h"

#include "adapters/process/command_processes.h"
#include "adapters/process/open_files.h"
#include "adapters/process/shell_child.h"
#include "adapters/process/utf8_collector.h"
#include "ports/console.h"
#include "support/plain_line.h"
#include "support/system_error_text.h"

#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t cMostErrors = std::size_t{64} * 1024;
/// A flood must not hold up the quit: no more than a full pipe is read after giving up.
constexpr std::size_t cLastRead = std::size_t{1024} * 1024;
/// The exit statuses that shells give where there is none.
constexpr int cTimeIsUp = 124;
constexpr int cCannotStart = 126;
constexpr int cSignalled = 128;
constexpr auto cAskPatience = 2000ms;
constexpr auto cForcePatience = 1000ms;
constexpr qsizetype cLongestCommandSaid = 300;

using Clock = std::chrono::steady_clock;
using Deadline = std::optional<Clock::time_point>;

Deadline deadlineAfter(std::optional<double> seconds) {
    constexpr double cMost = 1e8; // keeps the sum within what the clock can count
    if (!seconds)
        return {};
    const std::chrono::duration<double> span(std::clamp(*seconds, 0.0, cMost));
    return Clock::now() + std::chrono::duration_cast<Clock::duration>(span);
}

/// For poll: rounded up, so that nothing wakes a little too early and turns in a circle.
int millisecondsUntil(const Deadline& deadline) {
    constexpr std::int64_t cMost = 3'600'000;
    if (!deadline)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - Clock::now());
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, cMost));
}

void tell(int eventDescriptor) {
    (void)::eventfd_write(eventDescriptor, 1);
}

/// What has left the session, such as the shared connection that ssh can keep for later, is not
/// this command's any more.
void endSession(pid_t pid) {
    const CommandProcesses own{{&pid, 1}, {}};
    if (!endProcesses(own, SIGTERM, cAskPatience))
        (void)endProcesses(own, SIGKILL, cForcePatience);
}

/// Whether `pid` was there to be reaped.
bool reap(pid_t pid, int options) {
    pid_t reaped = 0;
    while ((reaped = ::waitpid(pid, nullptr, options)) < 0 && errno == EINTR) {
    }
    return reaped == pid;
}

/// How `pid` has ended, which stays to be reaped; `si_pid` is 0 when it has not.
siginfo_t endOf(pid_t pid, int options) {
    siginfo_t ended{};
    while (::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOWAIT | options) < 0 &&
           errno == EINTR) {
    }
    return ended;
}

} // namespace

/// One run: reads both streams until the shell has ended and its standard output is closed.
class PosixShellRunner::Capture {
public:
    Capture(const ShellChild& child, int giveUp, int cancelled,
            const std::function<void(QByteArrayView)>& received)
        : fReceived(received), fWatched{{child.output.get(), POLLIN, 0},
                                        {child.errors.get(), POLLIN, 0},
                                        {child.ended.get(), POLLIN, 0},
                                        {giveUp, POLLIN, 0},
                                        {cancelled, POLLIN, 0}} {}

    /// Returns at the end of both, or of the program, unless the deadline or a cancel comes first.
    End follow(const Deadline& deadline) {
        while (fWatched[Output].fd >= 0 || fWatched[Ended].fd >= 0) {
            if (deadline && Clock::now() >= *deadline)
                return End::Cut;
            if (::poll(fWatched.data(), fWatched.size(), millisecondsUntil(deadline)) <= 0)
                continue;
            if (fWatched[Errors].revents != 0)
                readErrors();
            if (fWatched[Output].revents != 0)
                readOutput();
            if (fWatched[Ended].revents != 0)
                fWatched[Ended].fd = -1;
            if (fWatched[GiveUp].revents != 0)
                break;
            if (fWatched[Cancelled].revents != 0)
                return End::Cancelled;
        }
        return End::Own;
    }

    /// What is there without waiting for more.
    void readRest() {
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
    enum { Output, Errors, Ended, GiveUp, Cancelled };

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
        const std::span<char> room = fOutput.room();
        const std::size_t size = readSome(Output, room);
        if (size > 0 && fReceived)
            fReceived(QByteArrayView(room.data(), static_cast<qsizetype>(size)));
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

    const std::function<void(QByteArrayView)>& fReceived;
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

CommandResult PosixShellRunner::run(const Command& command) {
    const Deadline deadline = deadlineAfter(command.seconds);
    const std::string text = command.text.toStdString();
    const auto environment = environmentWith(command.variables, fEnvironment);
    const UniqueFd cancelled(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    ShellChild child;
    int failure = 0;
    {
        const std::lock_guard lock(fMutex);
        if (fEnding)
            return {};
        failure = cancelled ? startShell(text, environment, command.input, child) : errno;
        if (failure == 0) {
            fSessions.push_back({child.pid, child.pipes, cancelled.get()});
            fTable.add(child);
            ++fCallers;
        }
    }
    if (failure != 0) {
        fConsole.log(QStringLiteral("Cannot start a shell command: ") + systemErrorText(failure));
        return {{}, {}, cCannotStart};
    }

    if (command.started)
        command.started(child.pid);
    Capture capture(child, fGiveUp.get(), cancelled.get(), command.received);
    End end = capture.follow(deadline);
    if (end == End::Cut)
        end = cutOff(child.pid, command);
    else if (end == End::Cancelled)
        endSession(child.pid);
    else if (command.leavesNothing)
        endWhatIsLeft(child.pid);
    capture.readRest();
    if (const QString line = capture.errorLine(); !line.isEmpty())
        fConsole.log(line);
    if (capture.overflowed())
        fConsole.log(QStringLiteral("Out of memory: the output of a shell command was cut off."));
    const std::optional<int> exitStatus = leave(child.pid, end);
    return {capture.output(), capture.errors(), exitStatus};
}

PosixShellRunner::End PosixShellRunner::cutOff(pid_t pid, const Command& command) {
    const bool hadEnded = endOf(pid, WNOHANG).si_pid == pid;
    fConsole.log(u"A shell command was cut off after " + QString::number(*command.seconds) +
                 u" s: " +
                 withVisibleControls(QStringView(command.text).left(cLongestCommandSaid)));
    endSession(pid);
    return hadEnded ? End::Own : End::Cut;
}

void PosixShellRunner::endWhatIsLeft(pid_t pid) {
    const std::size_t left = givenUp() ? 0 : livingProcesses({{&pid, 1}, {}}).size();
    if (left == 0)
        return;
    fConsole.log(QStringLiteral("A shell command has left %1 of its processes running; they are "
                                "ended.")
                     .arg(left));
    endSession(pid);
}

bool PosixShellRunner::givenUp() const {
    pollfd giveUp{fGiveUp.get(), POLLIN, 0};
    return ::poll(&giveUp, 1, 0) > 0;
}

/// The shell is reaped under the lock, so that `endAll` and `cancel` never see a number that is
/// free again. One that was ended and that even the system cannot end yet is left for `endAll` to
/// reap.
std::optional<int> PosixShellRunner::leave(pid_t pid, End end) {
    siginfo_t ended{};
    const bool givenUp = this->givenUp();
    if (!givenUp && end == End::Own)
        ended = endOf(pid, 0);
    const std::lock_guard lock(fMutex);
    std::optional<int> exitStatus;
    if (!givenUp && !fEnding && end == End::Cut)
        exitStatus = cTimeIsUp;
    else if (!givenUp && !fEnding && end == End::Own)
        exitStatus = ended.si_code == CLD_EXITED ? ended.si_status : cSignalled + ended.si_status;
    const auto ours = std::ranges::find(fSessions, pid, &Session::pid);
    ours->cancelled = -1;
    if (!fEnding && reap(pid, end == End::Own ? 0 : WNOHANG)) {
        fTable.remove(pid);
        fSessions.erase(ours);
    }
    --fCallers;
    fLeft.notify_all();
    return exitStatus;
}

/// The thread that runs the command does the rest.
void PosixShellRunner::cancel(CommandId command) {
    const std::lock_guard lock(fMutex);
    const auto found = std::ranges::find(fSessions, command, &Session::pid);
    if (found != fSessions.end() && found->cancelled >= 0)
        tell(found->cancelled);
}

std::optional<FileBeingWritten> PosixShellRunner::fileBeingWritten(CommandId command) const {
    return fileWrittenBy(static_cast<pid_t>(command));
}

void PosixShellRunner::endAll() {
    const std::lock_guard once(fEndMutex);
    std::vector<pid_t> sessions;
    std::vector<ino_t> pipes;
    {
        const std::lock_guard lock(fMutex);
        fEnding = true;
        for (const Session& session : fSessions) {
            sessions.push_back(session.pid);
            pipes.insert(pipes.end(), session.pipes.begin(), session.pipes.end());
        }
    }
    const CommandProcesses commands{sessions, commandMark(::getpid()), pipes};
    if (!endProcesses(commands, SIGTERM, cAskPatience))
        (void)endProcesses(commands, SIGKILL, cForcePatience);

    tell(fGiveUp.get());
    std::unique_lock lock(fMutex);
    fLeft.wait(lock, [this] { return fCallers == 0; });
    for (const pid_t session : sessions) {
        (void)reap(session, WNOHANG);
        fTable.remove(session);
    }
    fSessions.clear();
}

} // namespace kelvo
