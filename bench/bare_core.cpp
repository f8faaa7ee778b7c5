// The floor that the program without a window is measured against: a line, then an event loop with
// nothing in it; with a command, its run in the place of the loop.
#include <QCoreApplication>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace {

int exitStatusOf(char* command) {
    char shell[] = "/bin/sh";
    char option[] = "-c";
    char* words[] = {shell, option, command, nullptr};
    pid_t child = 0;
    int status = -1;
    if (::posix_spawn(&child, shell, nullptr, nullptr, words, environ) != 0 ||
        ::waitpid(child, &status, 0) != child)
        return 1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::puts("begun");
    std::fflush(stdout);
    return argc > 1 ? exitStatusOf(argv[1]) : QCoreApplication::exec();
}
