// The way in: reads the command line, then runs the program with a window or without.
#include "app/commands/ask.h"
#include "app/commands/command_line.h"
#include "app/commands/once.h"
#include "app/commands/passes.h"
#include "app/commands/profile_transfer.h"
#include "app/commands/profiles.h"
#include "app/commands/settings_commands.h"
#include "app/commands/setup.h"
#include "app/program.h"
#include "app/reason.h"
#include "app/window_module.h"

#include <QCoreApplication>
#include <QLocale>

#include <fcntl.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int cExitUsage = 2;
constexpr int cExitTooFewFiles = 7;
/// What a window at work needs, with room to spare; below that something fails at any place.
constexpr rlim_t cOpenFiles = 64;

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

/// The C library would learn from the first flood of a command's output to keep such buffers in its
/// heap for good; with a fixed bound each goes back to the system as soon as it is done with. The
/// threads, which mostly wait, share one heap instead of having one each.
void keepMemorySmall() {
#ifdef __GLIBC__
    constexpr int cLarge = 256 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, cLarge);
    ::mallopt(M_TRIM_THRESHOLD, cLarge);
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

/// Whether passes are run.
bool worksOn(kelvo::LaunchKind kind) {
    using enum kelvo::LaunchKind;
    return kind == Once || kind == Headless || kind == Window;
}

/// Why the program cannot work here; empty when it can. A limit that may be raised is raised.
QString missingFiles() {
    rlimit files{};
    if (::getrlimit(RLIMIT_NOFILE, &files) != 0 || files.rlim_cur >= cOpenFiles)
        return {};
    files.rlim_cur = std::min(cOpenFiles, files.rlim_max);
    if (files.rlim_cur == cOpenFiles && ::setrlimit(RLIMIT_NOFILE, &files) == 0)
        return {};
    return QStringLiteral("it may have only %1 files open at a time here, and needs %2. Raise the "
                          "limit with 'ulimit -n %2' where it is started")
        .arg(files.rlim_cur)
        .arg(cOpenFiles);
}

int printAndEnd(std::FILE* stream, const QString& text, int exitCode) {
    std::fputs(qPrintable(text), stream);
    return exitCode;
}

int printAnswer(const kelvo::CommandAnswer& answer) {
    std::fputs(answer.errors.toUtf8().constData(), stderr);
    const QByteArray output = answer.output.toUtf8();
    const bool printed = std::fputs(output.constData(), stdout) >= 0 && std::fflush(stdout) == 0;
    return answer.exitCode == 0 && !printed ? 1 : answer.exitCode;
}

} // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    openToSignals();
    keepMemorySmall();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QLocale::setDefault(QLocale::c()); // Lines are the same everywhere.
    const kelvo::CommandLine commandLine = kelvo::parseCommandLine(arguments);

    if (const QString missing = missingFiles(); !missing.isEmpty() && worksOn(commandLine.kind))
        return kelvo::printReason(missing, cExitTooFewFiles);
    const kelvo::Profile& profile = commandLine.profile;
    if (kelvo::needsProfile(commandLine) && !kelvo::isThere(profile))
        return kelvo::printReason(QStringLiteral("there is no profile %1; 'kelvo-mirror "
                                                 "--profiles' lists those there are")
                                      .arg(profile.name),
                                  cExitUsage);
    switch (commandLine.kind) {
    case kelvo::LaunchKind::Refuse:
        return printAndEnd(stderr, commandLine.message, cExitUsage);
    case kelvo::LaunchKind::PrintHelp:
    case kelvo::LaunchKind::PrintVersion:
        return printAndEnd(stdout, commandLine.message, 0);
    case kelvo::LaunchKind::Once: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runOnce(profile, commandLine.json));
    }
    case kelvo::LaunchKind::Ask: {
        const QCoreApplication application(argc, argv);
        return kelvo::runCopyCommand(profile, commandLine.copy);
    }
    case kelvo::LaunchKind::Passes: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runPassesCommand(profile, commandLine.passes));
    }
    case kelvo::LaunchKind::Settings: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runSettingsCommand(profile, commandLine.settings));
    }
    case kelvo::LaunchKind::Profiles: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runProfilesCommand(commandLine.json));
    }
    case kelvo::LaunchKind::Export: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runExportCommand(profile, commandLine.transfer.file));
    }
    case kelvo::LaunchKind::Import: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runImportCommand(profile, commandLine.transfer));
    }
    case kelvo::LaunchKind::Setup: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runSetup(profile, commandLine.setup));
    }
    case kelvo::LaunchKind::Headless: {
        const QCoreApplication application(argc, argv);
        return kelvo::runProgram(kelvo::headlessFront(), profile,
                                 commandLine.noSentinel ? kelvo::RestartBy::Starter
                                                        : kelvo::RestartBy::Sentinel);
    }
    case kelvo::LaunchKind::Window:
        break;
    }
    const kelvo::WindowModule window = kelvo::loadWindowModule();
    if (!window.show)
        return kelvo::printReason(window.trouble +
                                      u". Run 'kelvo-mirror --headless' to work without one",
                                  kelvo::cExitNoWindow);
    return window.show(argc, argv);
}
