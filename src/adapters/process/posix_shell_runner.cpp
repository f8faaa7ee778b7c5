#include "adapters/process/posix_shell_runner.h"

#include "adapters/process/command_capture.h"
#include "adapters/process/command_processes.h"
#include "adapters/process/open_files.h"
#include "adapters/process/shell_child.h"
#include "ports/console.h"
#include "support/plain_line.h"
#include "support/system_error_text.h"

#include <poll.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// In that time the numbers of processes do not come round.
constexpr auto cQuick = 5s;
/// The exit statuses that shells give where there is none.
constexpr int cTimeIsUp = 124;
constexpr int cCannotStart = 126;
constexpr int cSignalled = 128;
constexpr int cClosedPipe = cSignalled + SIGPIPE;
constexpr auto cAskPatience = 2000ms;
constexpr auto cForcePatience = 1000ms;
constexpr qsizetype cLongestCommandSaid = 300;

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

/// Whether this process has neither children nor any that were given to it. Those that have ended
/// are reaped.
bool hasNoChildren() {
    pid_t reaped = 0;
    do
        reaped = ::waitpid(-1, nullptr, WNOHANG);
    while (reaped > 0 || (reaped < 0 && errno == EINTR));
    return reaped < 0 && errno == ECHILD;
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

PosixShellRunner::PosixShellRunner(Console& console)
    : fConsole(console), fEnvironment(environmentWithoutPrompts()),
      fGiveUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

PosixShellRunner::~PosixShellRunner() {
    endAll();
}

CommandResult PosixShellRunner::run(const Command& command) {
    const auto deadline = deadlineAfter(command.seconds);
    const std::string text = command.text.toStdString();
    const auto environment = environmentWith(command.variables, fEnvironment);
    const UniqueFd cancelled(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    ShellChild child;
    int failure = 0;
    bool isFirst = false;
    {
        const std::lock_guard lock(fMutex);
        if (fEnding)
            return {};
        failure = cancelled ? startShell(text, environment, command.input, child) : errno;
        if (failure == 0) {
            fSessions.push_back({child.pid, child.pipes, cancelled.get()});
            fTable.add(child);
            isFirst = !std::exchange(fStarted, true);
            ++fCallers;
        }
    }
    if (failure != 0) {
        fConsole.log(QStringLiteral("Cannot start a shell command: ") + systemErrorText(failure));
        return {{}, {}, cCannotStart};
    }

    const auto began = Clock::now();
    if (isFirst && fFirstRuns)
        fFirstRuns();
    if (command.started)
        command.started(child.pid);
    CommandCapture capture(command, child, fGiveUp.get(), cancelled.get());
    CommandEnd end = capture.follow(deadline);
    if (end == CommandEnd::Cut)
        end = cutOff(child.pid, command);
    else if (end != CommandEnd::Own)
        endSession(child.pid);
    else if (command.leavesNothing)
        endWhatIsLeft(child.pid, Clock::now() - began < cQuick);
    capture.readRest();
    CommandResult result = capture.result();
    logAbout(command, result, end);
    result.exitStatus = leave(child.pid, end);
    return result;
}

void PosixShellRunner::logAbout(const Command& command, const CommandResult& result,
                                CommandEnd end) {
    QStringView errors = result.errors;
    while (errors.endsWith(u'\n'))
        errors.chop(1);
    if (!errors.isEmpty())
        fConsole.log(u"Error output of a shell command: " + errors.toString());
    const qint64 most = command.bounds.most;
    if (end == CommandEnd::TooMuch)
        logAbout(command, u"was ended after " + QString::number(most) + u" bytes of output");
    else if (result.leftOut > 0)
        logAbout(command, u"printed " + QString::number(result.leftOut) + u" more bytes than kept");
}

void PosixShellRunner::logAbout(const Command& command, const QString& what) {
    fConsole.log(u"A shell command " + what + u": " +
                 withVisibleControls(QStringView(command.text).left(cLongestCommandSaid)));
}

CommandEnd PosixShellRunner::cutOff(pid_t pid, const Command& command) {
    const bool hadEnded = endOf(pid, WNOHANG).si_pid == pid;
    logAbout(command, u"was cut off after " + QString::number(*command.seconds) + u" s");
    endSession(pid);
    return hadEnded ? CommandEnd::Own : CommandEnd::Cut;
}

/// After a quick command only the processes that came after it are looked at.
void PosixShellRunner::endWhatIsLeft(pid_t pid, bool quick) {
    const pid_t from = quick && numbersStillRise(pid) ? pid : 0;
    const std::size_t left = givenUp() ? 0 : livingProcesses({{&pid, 1}, {}}, from).size();
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
std::optional<int> PosixShellRunner::leave(pid_t pid, CommandEnd end) {
    siginfo_t ended{};
    const bool givenUp = this->givenUp();
    if (!givenUp && end == CommandEnd::Own)
        ended = endOf(pid, 0);
    const std::lock_guard lock(fMutex);
    std::optional<int> exitStatus;
    if (!givenUp && !fEnding && end == CommandEnd::Cut)
        exitStatus = cTimeIsUp;
    else if (!givenUp && !fEnding && end == CommandEnd::TooMuch)
        exitStatus = cClosedPipe;
    else if (!givenUp && !fEnding && end == CommandEnd::Own)
        exitStatus = ended.si_code == CLD_EXITED ? ended.si_status : cSignalled + ended.si_status;
    const auto ours = std::ranges::find(fSessions, pid, &Session::pid);
    ours->cancelled = -1;
    if (!fEnding && reap(pid, end == CommandEnd::Own ? 0 : WNOHANG)) {
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

void PosixShellRunner::adoptWhatIsLeft() {
    const std::lock_guard lock(fMutex);
    fAdopts = ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) == 0;
}

void PosixShellRunner::endAll() {
    const std::lock_guard once(fEndMutex);
    if (std::exchange(fEnded, true))
        return;
    std::vector<pid_t> sessions;
    std::vector<ino_t> pipes;
    {
        const std::lock_guard lock(fMutex);
        fEnding = true;
        if (!fStarted || (fSessions.empty() && fAdopts && hasNoChildren()))
            return;
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
