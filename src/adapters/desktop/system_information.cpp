#include "adapters/desktop/system_information.h"

#include "ports/command_runner.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "support/plain_line.h"

#include <QStringList>
#include <QSysInfo>

#include <utility>

namespace kelvo {
namespace {

/// Seconds; the window and the set-up of the main view come first.
constexpr double cAfterTheStart = 2.0;

QString environmentText(const char* name) {
    return qEnvironmentVariable(name).trimmed();
}

QString systemText() {
    return QSysInfo::prettyProductName() + u", " + QSysInfo::kernelType() + u' ' +
           QSysInfo::kernelVersion() + u", " + QSysInfo::currentCpuArchitecture();
}

QString desktopText() {
    QStringList parts{environmentText("XDG_CURRENT_DESKTOP"), environmentText("XDG_SESSION_TYPE")};
    parts.removeAll(QString());
    return parts.isEmpty() ? QStringLiteral("none") : parts.join(QStringLiteral(", "));
}

/// The first line that `command` prints, when it begins with `start`.
QString versionFrom(CommandRunner& shell, const QString& command, QStringView start) {
    const QString line = outputWithin(shell, cCommandGrace, command).section(u'\n', 0, 0).trimmed();
    return line.startsWith(start) ? line.left(200) : QStringLiteral("not found");
}

} // namespace

SystemInformation::SystemInformation(QString programName, CommandRunner& shell,
                                     DispatchQueue& mainQueue, BackgroundQueue& bgQueue,
                                     Console& console)
    : fProgramName(std::move(programName)), fShell(shell), fMainQueue(mainQueue), fBgQueue(bgQueue),
      fConsole(console) {}

void SystemInformation::logCurrentSystemInfo() {
    fMainQueue.asyncAfter(cAfterTheStart, [this] {
        fBgQueue.async(
            [name = fProgramName, desktop = desktopText(), &shell = fShell, &console = fConsole] {
                const auto say = [&console](QStringView what, const QString& value) {
                    console.log(what + u": " + withVisibleControls(value));
                };
                say(u"program", name);
                say(u"system", systemText());
                say(u"desktop", desktop);
                say(u"Qt", QString::fromLatin1(qVersion()));
                say(u"rsync",
                    versionFrom(shell, QStringLiteral("/usr/bin/rsync --version 2>&1"), u"rsync"));
                say(u"ssh", versionFrom(shell, QStringLiteral("/usr/bin/ssh -V 2>&1"), u"OpenSSH"));
            });
    });
}

} // namespace kelvo
