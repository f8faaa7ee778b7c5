// The way in: reads the command line, then runs the program with a window or without.
#include "app/command_line.h"
#include "app/program.h"

#include <QApplication>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

namespace {

constexpr int cExitUsage = 2;
constexpr int cExitNoDisplay = 3;

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

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int printAndEnd(std::FILE* stream, const QString& text, int exitCode) {
    std::fputs(qPrintable(text), stream);
    return exitCode;
}

int run(kelvo::FrontKind frontKind) {
    kelvo::Program program(frontKind);
    return program.run();
}

} // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const kelvo::CommandLine commandLine = kelvo::parseCommandLine(arguments);

    switch (commandLine.kind) {
    case kelvo::LaunchKind::Refuse:
        return printAndEnd(stderr, commandLine.message, cExitUsage);
    case kelvo::LaunchKind::PrintHelp:
    case kelvo::LaunchKind::PrintVersion:
        return printAndEnd(stdout, commandLine.message, 0);
    case kelvo::LaunchKind::Headless: {
        const QCoreApplication application(argc, argv);
        return run(kelvo::FrontKind::Headless);
    }
    case kelvo::LaunchKind::Window:
        break;
    }
    if (!hasDisplay())
        return printAndEnd(stderr,
                           QStringLiteral("kelvo-mirror: there is no display to open a window on. "
                                          "Run 'kelvo-mirror --headless' to work without one.\n"),
                           cExitNoDisplay);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvo-mirror"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kelvo Mirror"));
    QApplication::setDesktopFileName(QStringLiteral("kelvo-mirror"));
    QApplication::setQuitOnLastWindowClosed(false);
    return run(kelvo::FrontKind::Window);
}
