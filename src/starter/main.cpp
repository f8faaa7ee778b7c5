// The file that people start. It prepares the process and loads the part of the program that does
// what the command line asks for. No library but the C library: a part's libraries look for each
// symbol of theirs in the program's first.
#include "starter/own_module.h"
#include "starter/part.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

constexpr const char* cProgramPart = "program.so";
constexpr const char* cWindowPart = "window.so";

/// A standard stream that came closed would give its number to the next file we open, and our lines
/// would be written into that.
void openStandardStreams() {
    int fd = -1;
    do {
        fd = ::open("/dev/null", O_RDWR | O_NOCTTY);
    } while (fd >= 0 && fd <= STDERR_FILENO);
    if (fd >= 0)
        ::close(fd);
}

/// Whoever started the program may have left it with blocked signals, the request to end among
/// them, and a file that may not grow any more is told by the failed write alone.
void openToSignals() {
    sigset_t none;
    ::sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
    (void)::signal(SIGXFSZ, SIG_IGN);
}

/// Whether `word` names something done without a window, as nearly all options do. A wrong guess
/// costs the start some milliseconds.
bool mayNeedNoWindow(const char* word) {
    constexpr const char* cProfile = "--profile=";
    return word[0] == '-' && std::strcmp(word, "--autorelaunched") != 0 &&
           std::strcmp(word, "--profile") != 0 &&
           std::strncmp(word, cProfile, std::strlen(cProfile)) != 0;
}

bool mayWantWindow(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (mayNeedNoWindow(argv[i]))
            return false;
    }
    return true;
}

/// The exit code; `cOtherPart` also where the part cannot be loaded, `module` says why.
int run(const char* part, kelvo::OwnModule& module, int argc, char** argv) {
    module = kelvo::loadOwnModule(part, kelvo::cRunPart);
    auto* const function = reinterpret_cast<kelvo::RunPart*>(module.function);
    return function ? function(argc, argv) : kelvo::cOtherPart;
}

[[nodiscard]] int sayMissingWindow(const kelvo::OwnModule& window) {
    constexpr const char* cWayOut = ". Run 'kelvo-mirror --headless' to work without one.\n";
    switch (window.fault) {
    case kelvo::OwnModule::Fault::None:
        std::fputs("kelvo-mirror: its parts belong to different versions.\n", stderr);
        return kelvo::cExitNoWindow;
    case kelvo::OwnModule::Fault::Missing:
        std::fprintf(stderr,
                     "kelvo-mirror: the window is not installed; its package is "
                     "kelvo-mirror-window%s",
                     cWayOut);
        break;
    case kelvo::OwnModule::Fault::Unsafe:
        std::fprintf(stderr,
                     "kelvo-mirror: the window is not loaded, for other users can write it: %s%s",
                     window.detail, cWayOut);
        break;
    case kelvo::OwnModule::Fault::Unloadable:
        std::fprintf(stderr, "kelvo-mirror: the window cannot be loaded: %s%s", window.detail,
                     cWayOut);
        break;
    }
    return kelvo::cExitNoWindow;
}

[[nodiscard]] int sayMissingProgram(const kelvo::OwnModule& program) {
    const bool unsafe = program.fault == kelvo::OwnModule::Fault::Unsafe;
    std::fprintf(stderr, "kelvo-mirror: %s: %s.\n",
                 unsafe ? "its own part is not loaded, for other users can write it"
                        : "its own part cannot be loaded",
                 program.detail);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    openToSignals();
    kelvo::OwnModule module;
    int exitCode = kelvo::cOtherPart;
    if (mayWantWindow(argc, argv))
        exitCode = run(cWindowPart, module, argc, argv);
    if (exitCode == kelvo::cOtherPart) {
        exitCode = run(cProgramPart, module, argc, argv);
        if (!module.function)
            return sayMissingProgram(module);
    }
    if (exitCode == kelvo::cOtherPart)
        exitCode = run(cWindowPart, module, argc, argv);
    return exitCode == kelvo::cOtherPart ? sayMissingWindow(module) : exitCode;
}
