// watchdog PID: waits for the end of that program and then becomes the program anew. Told to end
// (SIGTERM) it just ends. Takes hold of the program first, then closes every descriptor but the
// standard streams and the table of the program's commands, which may be the fourth: who has
// started it sees by that when it is in place.
#include "sentinel/exit_code.h"
#include "sentinel/lines.h"
#include "sentinel/orphans.h"
#include "sentinel/program_image.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace {

using namespace kelvo::sentinel;

/// 0 when `text` is not a process id in decimal.
pid_t processId(const char* text) {
    long number = 0;
    for (const char* digit = text; *digit != '\0'; ++digit) {
        if (*digit < '0' || *digit > '9')
            return 0;
        number = number * 10 + (*digit - '0');
        if (number > INT_MAX)
            return 0;
    }
    return static_cast<pid_t>(number);
}

void endWhenTold() {
    struct sigaction action {};
    action.sa_handler = [](int) { ::_exit(static_cast<int>(ExitCode::ToldToEnd)); };
    (void)::sigaction(SIGTERM, &action, nullptr);
}

/// -1 when there is none.
int takeCommandTable() {
    constexpr int cPlace = STDERR_FILENO + 2;
    return isCommandTable(cPlace) && ::fcntl(cPlace, F_SETFD, FD_CLOEXEC) == 0 ? cPlace : -1;
}

/// Beside the standard streams; `table` may be -1.
void closeAllBut(int handle, int table) {
    const int low = table >= 0 && table < handle ? table : handle;
    const int high = table > handle ? table : handle;
    const auto close = [](int first, int last) {
        if (first <= last)
            (void)::syscall(SYS_close_range, first, last, 0);
    };
    close(STDERR_FILENO + 1, low - 1);
    close(low + 1, high - 1);
    close(high + 1, INT_MAX);
}

ExitCode watch(pid_t program) {
    const Decimal number(static_cast<unsigned long>(program));
    const int handle = static_cast<int>(::syscall(SYS_pidfd_open, program, 0));
    if (handle < 0) {
        const bool none = errno == ESRCH;
        if (none)
            say({"there is no process ", number.text});
        else
            say({"cannot watch process ", number.text, ": ", ::strerrordesc_np(errno)});
        return none ? ExitCode::NoSuchProcess : ExitCode::CannotBeWatched;
    }
    static ProgramImage image;
    if (const ExitCode code = learn(program, handle, image); code != ExitCode::ToldToEnd)
        return code;
    endWhenTold();
    const int table = takeCommandTable();
    closeAllBut(handle, table);

    (void)hasEnded(handle, true);
    endOrphans(program, table);
    (void)::execve(image.path, image.arguments, image.environment);
    say({"cannot start ", image.path, " again: ", ::strerrordesc_np(errno)});
    return ExitCode::CannotRelaunch;
}

} // namespace

int main(int argc, char** argv) {
    const pid_t program = argc == 2 ? processId(argv[1]) : 0;
    if (program <= 0 || program == ::getpid()) {
        say({"expected one argument, the id of the process to watch"});
        ::_exit(static_cast<int>(ExitCode::BadArgument));
    }
    ::_exit(static_cast<int>(watch(program)));
}
