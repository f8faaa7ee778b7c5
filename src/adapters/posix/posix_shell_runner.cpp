#include "adapters/posix/posix_shell_runner.h"

#include "adapters/posix/marked_processes.h"
#include "adapters/posix/utf8_text.h"
#include "ports/console.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

extern char** environ; // NOLINT(readability-redundant-declaration)

namespace kelvo {
namespace {

constexpr int cPipeSize = 1 << 20;
constexpr qsizetype cErrorLimit = 64 * 1024;
constexpr auto cPatience = std::chrono::seconds(2);
constexpr auto cLastPatience = std::chrono::seconds(3);
constexpr int cPollInterval = 20; // milliseconds

/// Our environment, with nothing that could bring up a question.
std::vector<std::string> childEnvironment() {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable; ++variable) {
        const std::string_view text(*variable);
        if (!text.starts_with("SSH_ASKPASS"))
            variables.emplace_back(text);
    }
    variables.emplace_back("SSH_ASKPASS_REQUIRE=never");
    variables.push_back(childMark(::getpid()));
    return variables;
}

class SpawnSetup {
public:
    SpawnSetup(int output, int errors) {
        ::posix_spawn_file_actions_init(&fActions);
        ::posix_spawn_file_actions_addopen(&fActions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&fActions, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&fActions, errors, STDERR_FILENO);
        ::posix_spawn_file_actions_addclosefrom_np(&fActions, STDERR_FILENO + 1);

        ::posix_spawnattr_init(&fAttributes);
        sigset_t signals;
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&fAttributes, &signals);
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&fAttributes, &signals);
        ::posix_spawnattr_setflags(&fAttributes,
                                   static_cast<short>(POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF |
                                                      POSIX_SPAWN_SETSIGMASK));
    }
    ~SpawnSetup() {
        ::posix_spawnattr_destroy(&fAttributes);
        ::posix_spawn_file_actions_destroy(&fActions);
    }
    SpawnSetup(const SpawnSetup&) = delete;
    SpawnSetup& operator=(const SpawnSetup&) = delete;

    /// 0, or the error number.
    int spawnShell(pid_t& pid, const std::string& command) {
        std::string shell = "sh";
        std::string option = "-c";
        std::string text = command;
        char* arguments[] = {shell.data(), option.data(), text.data(), nullptr};
        std::vector<std::string> variables = childEnvironment();
        std::vector<char*> pointers;
        for (std::string& variable : variables)
            pointers.push_back(variable.data());
        pointers.push_back(nullptr);
        return ::posix_spawn(&pid, "/bin/sh", &fActions, &fAttributes, arguments, pointers.data());
    }

private:
    posix_spawn_file_actions_t fActions{};
    posix_spawnattr_t fAttributes{};
};

/// What a command left behind: its processes by their mark, and the groups of running shells.
void signalAll(const std::vector<pid_t>& marked, const std::set<pid_t>& groups, int signal) {
    for (const pid_t pid : marked)
        ::kill(pid, signal);
    for (const pid_t group : groups)
        ::kill(-group, signal);
}

} // namespace

struct PosixShellRunner::Child {
    pid_t pid = -1;
    FileDescriptor output;
    FileDescriptor errors;
    Utf8Text errorText;
    qsizetype errorBytes = 0;
};

PosixShellRunner::PosixShellRunner(Console& console)
    : fConsole(console), fEnding(::eventfd(0, EFD_CLOEXEC)) {}

PosixShellRunner::~PosixShellRunner() {
    endAll();
}

QString PosixShellRunner::outputWhenRunAsShellCommand(const QString& command) {
    Child child;
    if (!start(command, child))
        return {};
    QString output = readToEnd(child);
    finish(child);
    return output;
}

bool PosixShellRunner::start(const QString& command, Child& child) {
    const auto failed = [&](int error) {
        fConsole.log(u"The shell could not be started: " +
                     QString::fromLocal8Bit(std::strerror(error)));
        return false;
    };
    const QByteArray bytes = command.toUtf8();
    if (bytes.contains('\0'))
        return failed(EINVAL);
    auto output = makePipe();
    auto errors = makePipe();
    if (!output || !errors)
        return failed(errno);
    ::fcntl(output->writeEnd.get(), F_SETPIPE_SZ, cPipeSize);

    SpawnSetup setup(output->writeEnd.get(), errors->writeEnd.get());
    const std::lock_guard lock(fMutex);
    if (fEnded)
        return false;
    if (const int error = setup.spawnShell(child.pid, bytes.toStdString()); error != 0)
        return failed(error);
    fRunning.insert(child.pid);
    child.output = std::move(output->readEnd);
    child.errors = std::move(errors->readEnd);
    ::fcntl(child.errors.get(), F_SETFL, O_NONBLOCK);
    return true;
}

QString PosixShellRunner::readToEnd(Child& child) {
    Utf8Text text;
    std::vector<char> buffer(cPipeSize);
    pollfd watched[] = {{child.output.get(), POLLIN, 0},
                        {child.errors.get(), POLLIN, 0},
                        {fEnding.get(), POLLIN, 0}};
    for (bool ending = false;;) {
        if (::poll(watched, 3, ending ? 0 : -1) < 0 && errno != EINTR)
            break;
        if (watched[1].revents != 0) {
            drainErrors(child);
            if ((watched[1].revents & POLLIN) == 0)
                watched[1].fd = -1; // closed at the other end
        }
        if (watched[0].revents != 0) {
            const ssize_t count = ::read(child.output.get(), buffer.data(), buffer.size());
            if (count > 0)
                text.append(buffer.data(), count);
            else if (count == 0 || errno != EINTR)
                break;
        } else if (ending) {
            break; // nothing left in the pipe; whoever still holds it does not hold us
        }
        ending = ending || watched[2].revents != 0;
    }
    return text.take();
}

void PosixShellRunner::drainErrors(Child& child) {
    char buffer[4096];
    for (;;) {
        const ssize_t count = ::read(child.errors.get(), buffer, sizeof buffer);
        if (count <= 0)
            return;
        const qsizetype kept = std::min<qsizetype>(count, cErrorLimit - child.errorBytes);
        child.errorText.append(buffer, kept);
        child.errorBytes += kept;
    }
}

void PosixShellRunner::finish(Child& child) {
    child.output.reset(); // a command that writes on is told so
    const FileDescriptor process(static_cast<int>(::syscall(SYS_pidfd_open, child.pid, 0)));
    pollfd watched[] = {{process.get(), POLLIN, 0}, {fEnding.get(), POLLIN, 0}};
    while (::poll(watched, 2, -1) < 0 && errno == EINTR) {
    }
    drainErrors(child);
    {
        const std::lock_guard lock(fMutex);
        // One that will not end while the program quits is left to endAll.
        if (::waitpid(child.pid, nullptr, WNOHANG) == child.pid)
            fRunning.erase(child.pid);
    }
    if (child.errorBytes > 0)
        fConsole.log(u"A command wrote to standard error: " + child.errorText.take().trimmed());
}

void PosixShellRunner::endAll() {
    {
        const std::lock_guard lock(fMutex);
        fEnded = true;
    }
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(fEnding.get(), &one, sizeof one);

    const auto begin = std::chrono::steady_clock::now();
    const std::string mark = childMark(::getpid());
    for (bool asked = false;; ::poll(nullptr, 0, cPollInterval)) {
        const auto waited = std::chrono::steady_clock::now() - begin;
        const std::set<pid_t> running = collectEnded();
        const std::vector<pid_t> marked = processesMarked(mark);
        if ((marked.empty() && running.empty()) || waited > cLastPatience)
            break;
        if (!asked || waited > cPatience)
            signalAll(marked, running, asked ? SIGKILL : SIGTERM);
        asked = true;
    }
}

std::set<pid_t> PosixShellRunner::collectEnded() {
    const std::lock_guard lock(fMutex);
    std::erase_if(fRunning, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) == pid; });
    return fRunning;
}

} // namespace kelvo
