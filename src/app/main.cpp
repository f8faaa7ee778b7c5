// The way in: reads the command line, then runs the program with a window or without.
#include "adapters/desktop/displays.h"
#include "app/commands/command_line.h"
#include "app/commands/once.h"
#include "app/commands/passes.h"
#include "app/commands/profile_transfer.h"
#include "app/commands/profiles.h"
#include "app/commands/settings_commands.h"
#include "app/language.h"
#include "app/program.h"

#include <QApplication>
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
#include <vector>

namespace {

constexpr int cExitUsage = 2;
constexpr int cExitNoDisplay = 3;
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

/// Both: why no window can be opened on such a display; empty when one can.
QString missingX(const kelvo::WindowOptions& options) {
    QString name = options.valueOf(u"display");
    if (name.isEmpty())
        name = qEnvironmentVariable("DISPLAY");
    if (name.isEmpty())
        return QStringLiteral("there is no display to open a window on");
    if (!kelvo::xDisplayAnswers(name.toLocal8Bit()))
        return QStringLiteral("the display %1 does not answer").arg(name);
    return {};
}
QString missingWayland() {
    if (!kelvo::waylandDisplayAnswers())
        return qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
                   ? QStringLiteral("there is no Wayland display to open a window on")
                   : QStringLiteral("the Wayland display %1 does not answer")
                         .arg(qEnvironmentVariable("WAYLAND_DISPLAY"));
    if (!kelvo::hasWaylandPlatform())
        return QStringLiteral("Qt's part for Wayland displays is not installed; its package is "
                              "qt6-wayland");
    return {};
}

/// Why no window can be opened here; empty when one can. Where the toolkit would not come upon a
/// Wayland display by itself, that is added to its options.
QString missingDisplay(kelvo::WindowOptions& options) {
    QString platforms = options.valueOf(u"platform");
    if (platforms.isEmpty())
        platforms = qEnvironmentVariable("QT_QPA_PLATFORM");
    QString missing;
    for (const QString& each : platforms.split(u';', Qt::SkipEmptyParts)) {
        const QString why = each.startsWith(u"xcb")       ? missingX(options)
                            : each.startsWith(u"wayland") ? missingWayland()
                                                          : QString();
        if (why.isEmpty())
            return {};
        if (missing.isEmpty())
            missing = why;
    }
    if (!missing.isEmpty())
        return missing;
    missing = missingX(options);
    if (missing.isEmpty() || qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return missing;
    missing = missingWayland();
    if (missing.isEmpty())
        options.given += {QStringLiteral("-platform"), QStringLiteral("wayland")};
    return missing;
}

/// The command line that the toolkit sees; it keeps pointers into it.
class ToolkitArguments {
public:
    ToolkitArguments(const char* program, const kelvo::CommandLine& commandLine) {
        fWords.emplace_back(program);
        for (const QString& word : commandLine.window.given)
            fWords.push_back(word.toLocal8Bit());
        if (commandLine.autorelaunched)
            fWords.emplace_back("--autorelaunched");
        for (QByteArray& word : fWords)
            fPointers.push_back(word.data());
        fCount = static_cast<int>(fPointers.size());
        fPointers.push_back(nullptr);
    }
    int& count() { return fCount; }
    char** words() { return fPointers.data(); }

private:
    std::vector<QByteArray> fWords;
    std::vector<char*> fPointers;
    int fCount = 0;
};

int printAndEnd(std::FILE* stream, const QString& text, int exitCode) {
    std::fputs(qPrintable(text), stream);
    return exitCode;
}

int printReason(const QString& reason, int exitCode) {
    return printAndEnd(stderr, QString(u"kelvo-mirror: " + reason + u".\n"), exitCode);
}

/// Ends the program in words where the toolkit finds that it cannot begin; left alone, it would
/// end by a crash.
void endAtFatalMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg)
        ::_exit(printReason(u"no window can be opened: " + text.simplified().chopped(1),
                            cExitNoDisplay));
    std::fputs(qPrintable(QString(qFormatLogMessage(type, context, text) + u'\n')), stderr);
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
    kelvo::CommandLine commandLine = kelvo::parseCommandLine(arguments);

    if (const QString missing = missingFiles(); !missing.isEmpty() && worksOn(commandLine.kind))
        return printReason(missing, cExitTooFewFiles);
    const kelvo::Profile& profile = commandLine.profile;
    if (kelvo::needsProfile(commandLine) && !kelvo::isThere(profile))
        return printReason(QStringLiteral("there is no profile %1; 'kelvo-mirror --profiles' lists "
                                          "those there are")
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
    case kelvo::LaunchKind::Headless: {
        const QCoreApplication application(argc, argv);
        return kelvo::runProgram(kelvo::FrontKind::Headless, profile);
    }
    case kelvo::LaunchKind::Window:
        break;
    }
    if (const QString missing = missingDisplay(commandLine.window); !missing.isEmpty())
        return printReason(missing + u". Run 'kelvo-mirror --headless' to work without one",
                           cExitNoDisplay);
    ToolkitArguments toolkit(argv[0], commandLine);
    const QtMessageHandler usual = qInstallMessageHandler(endAtFatalMessage);
    QApplication application(toolkit.count(), toolkit.words());
    qInstallMessageHandler(usual);
    QApplication::setApplicationName(QStringLiteral("kelvo-mirror"));
    QApplication::setApplicationDisplayName(profile.title());
    QApplication::setDesktopFileName(QStringLiteral("org.kelvo.KelvoMirror"));
    QApplication::setQuitOnLastWindowClosed(false);
    kelvo::speakTheirLanguage(application);
    return kelvo::runProgram(kelvo::FrontKind::Window, profile);
}
