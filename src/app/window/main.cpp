// The way into the part with a window.
#include "adapters/display/displays.h"
#include "app/launch.h"
#include "app/program.h"
#include "app/reason.h"
#include "app/window/language.h"
#include "starter/part.h"

#include <QApplication>

#include <unistd.h>

#include <cstdio>
#include <fontconfig/fontconfig.h>
#include <thread>
#include <vector>

namespace {

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

/// Ends the program in words where the toolkit finds that it cannot begin; left alone, it would
/// end by a crash.
void endAtFatalMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg)
        ::_exit(kelvo::printReason(u"no window can be opened: " + text.simplified().chopped(1),
                                   kelvo::cExitNoWindow));
    std::fputs(qPrintable(QString(qFormatLogMessage(type, context, text) + u'\n')), stderr);
}

} // namespace

extern "C" [[gnu::visibility("default")]] kelvo::RunPart kelvoMirrorRun;

int kelvoMirrorRun(int argc, char** argv) {
    kelvo::CommandLine commandLine = kelvo::readCommandLine(argc, argv);
    if (commandLine.kind != kelvo::LaunchKind::Window &&
        commandLine.kind != kelvo::LaunchKind::Refuse)
        return kelvo::cOtherPart;
    if (const auto exitCode = kelvo::refused(commandLine))
        return *exitCode;
    // Which fonts there are is read while the display is talked to; the toolkit asks for it with
    // the first text that it measures. With one heap for both, either would wait for the other.
    std::jthread fonts([] { (void)FcInit(); });
    if (const QString missing = missingDisplay(commandLine.window); !missing.isEmpty())
        return kelvo::printReason(missing + u". Run 'kelvo-mirror --headless' to work without one",
                                  kelvo::cExitNoWindow);
    ToolkitArguments toolkit(argv[0], commandLine);
    const QtMessageHandler usual = qInstallMessageHandler(endAtFatalMessage);
    QApplication application(toolkit.count(), toolkit.words());
    qInstallMessageHandler(usual);
    QApplication::setApplicationName(QStringLiteral("kelvo-mirror"));
    QApplication::setApplicationDisplayName(commandLine.profile.title());
    QApplication::setDesktopFileName(QStringLiteral("org.kelvo.KelvoMirror"));
    QApplication::setQuitOnLastWindowClosed(false);
    kelvo::speakTheirLanguage(application);
    fonts.join(); // Where it is not done by then, it would be begun a second time.
    kelvo::keepMemorySmall();
    return kelvo::runProgram(kelvo::windowFront(), commandLine.profile);
}
