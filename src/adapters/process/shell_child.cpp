#include "adapters/process/shell_child.h"

#include "adapters/process/command_processes.h"
#include "adapters/system/clean_attributes.h"
#include "adapters/system/pidfd.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

namespace kelvo {
namespace {

constexpr int cPipeSize = 1 << 20;
/// What could prompt, and the connection of a program that has started this one.
constexpr std::array<std::string_view, 5> cLeftOut = {
    "SSH_ASKPASS=", "GIT_ASKPASS=", "SUDO_ASKPASS=", "SSH_ASKPASS_REQUIRE=",
    "KELVO_MIRROR_CONTROL="};

struct Pipe {
    UniqueFd read;
    UniqueFd write;
};

/// Moves `fd` out of the range of the standard streams, where the child's own come to lie. None
/// stays none, and errno what it was.
UniqueFd aboveStandardStreams(UniqueFd fd) {
    if (!fd || fd.get() > STDERR_FILENO)
        return fd;
    return UniqueFd(::fcntl(fd.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

int openPipe(Pipe& made) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return errno;
    made.read = aboveStandardStreams(UniqueFd(ends[0]));
    made.write = aboveStandardStreams(UniqueFd(ends[1]));
    if (!made.read || !made.write || ::fcntl(made.read.get(), F_SETFL, O_NONBLOCK) != 0)
        return errno;
    return 0;
}

/// A file in memory, not a pipe: nobody has to wait for a command that does not read, and none that
/// stops reading sends us a signal.
int openInput(QByteArrayView input, UniqueFd& opened) {
    if (input.isEmpty()) {
        opened = aboveStandardStreams(UniqueFd(::open("/dev/null", O_RDONLY | O_CLOEXEC)));
        return opened ? 0 : errno;
    }
    opened = aboveStandardStreams(UniqueFd(::memfd_create("input", MFD_CLOEXEC)));
    if (!opened)
        return errno;
    while (!input.isEmpty()) {
        const ssize_t size =
            ::write(opened.get(), input.data(), static_cast<std::size_t>(input.size()));
        if (size < 0 && errno != EINTR)
            return errno;
        input = input.sliced(std::max<ssize_t>(size, 0));
    }
    return ::lseek(opened.get(), 0, SEEK_SET) == 0 ? 0 : errno;
}

/// Both ends of a pipe have the same one.
ino_t inodeOf(const UniqueFd& fd) {
    struct stat status {};
    return ::fstat(fd.get(), &status) == 0 ? status.st_ino : 0;
}

class FileActions {
public:
    FileActions() { ::posix_spawn_file_actions_init(&fActions); }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&fActions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    int connect(int input, int output, int errors) {
        int failure = ::posix_spawn_file_actions_adddup2(&fActions, input, STDIN_FILENO);
        if (failure == 0)
            failure = ::posix_spawn_file_actions_adddup2(&fActions, output, STDOUT_FILENO);
        if (failure == 0)
            failure = ::posix_spawn_file_actions_adddup2(&fActions, errors, STDERR_FILENO);
        if (failure == 0)
            failure = ::posix_spawn_file_actions_addclosefrom_np(&fActions, STDERR_FILENO + 1);
        return failure;
    }
    const posix_spawn_file_actions_t* get() const { return &fActions; }

private:
    posix_spawn_file_actions_t fActions{};
};

} // namespace

std::vector<std::string> environmentWithoutPrompts() {
    std::vector<std::string> kept;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        const std::string_view text(*entry);
        if (std::ranges::none_of(cLeftOut, [&](auto name) { return text.starts_with(name); }))
            kept.emplace_back(text);
    }
    kept.emplace_back("SSH_ASKPASS_REQUIRE=never");
    kept.push_back(commandMark(::getpid()));
    return kept;
}

std::vector<std::string> environmentWith(const std::map<QByteArray, QByteArray>& variables,
                                         std::vector<std::string> environment) {
    for (const auto& [name, value] : variables) {
        const std::string begin = name.toStdString() + '=';
        std::erase_if(environment, [&](const auto& entry) { return entry.starts_with(begin); });
        environment.push_back(begin + value.toStdString());
    }
    return environment;
}

int startShell(const std::string& command, const std::vector<std::string>& environment,
               QByteArrayView input, ShellChild& child) {
    if (command.find('\0') != std::string::npos)
        return EINVAL;
    UniqueFd standardInput;
    Pipe output;
    Pipe errors;
    if (const int failure = openInput(input, standardInput))
        return failure;
    if (const int failure = openPipe(output))
        return failure;
    if (const int failure = openPipe(errors))
        return failure;
    // A wide pipe saves turns; where the user's share of pipe memory is spent, the usual one does.
    (void)::fcntl(output.write.get(), F_SETPIPE_SZ, cPipeSize);

    FileActions actions;
    if (const int failure =
            actions.connect(standardInput.get(), output.write.get(), errors.write.get()))
        return failure;
    const CleanAttributes attributes;

    std::string shell = "sh";
    std::string option = "-c";
    std::string text = command;
    const std::array<char*, 4> arguments = {shell.data(), option.data(), text.data(), nullptr};
    std::vector<char*> variables;
    variables.reserve(environment.size() + 1);
    for (const std::string& entry : environment)
        variables.push_back(const_cast<char*>(entry.c_str()));
    variables.push_back(nullptr);

    pid_t pid = -1;
    const int failure = ::posix_spawn(&pid, "/bin/sh", actions.get(), attributes.get(),
                                      arguments.data(), variables.data());
    if (failure != 0)
        return failure;
    child.pid = pid;
    child.ended = openProcess(pid);
    child.output = std::move(output.read);
    child.errors = std::move(errors.read);
    child.pipes = {inodeOf(child.output), inodeOf(child.errors)};
    return 0;
}

} // namespace kelvo
