#include "support/running_program.h"

#include "support/descendants.h"

#include <QDeadlineTimer>

#include <signal.h>

namespace kelvo {

namespace {
constexpr int cStopMilliseconds = 20000;
constexpr int cSliceMilliseconds = 50;
} // namespace

RunningProgram::RunningProgram(const QString& program, const QStringList& arguments,
                               const QProcessEnvironment& environment) {
    fProcess.setProcessEnvironment(environment);
    fProcess.setStandardInputFile(QProcess::nullDevice());
    fProcess.start(program, arguments);
    fProcess.waitForStarted();
}

RunningProgram::~RunningProgram() {
    if (isRunning())
        killForGood();
}

std::optional<QString>
RunningProgram::waitForLine(const std::function<bool(const QString&)>& pleases, double seconds) {
    const QDeadlineTimer deadline(static_cast<qint64>(seconds * 1000));
    readMore(0);
    for (;;) {
        while (fNext < fLines.size()) {
            const QString line = fLines.at(fNext++);
            if (pleases(line))
                return line;
        }
        if (deadline.hasExpired())
            return std::nullopt;
        const bool wasRunning = isRunning();
        readMore(cSliceMilliseconds);
        if (!wasRunning && fNext == fLines.size())
            return std::nullopt;
    }
}

std::optional<QString> RunningProgram::waitForLine(const QString& start, double seconds) {
    return waitForLine([&start](const QString& line) { return line.startsWith(start); }, seconds);
}

int RunningProgram::stop() {
    if (isRunning()) {
        fProcess.terminate();
        if (!fProcess.waitForFinished(cStopMilliseconds)) {
            killForGood();
            readMore(0);
            return -1;
        }
    }
    readMore(0);
    return fProcess.exitStatus() == QProcess::NormalExit ? fProcess.exitCode() : -1;
}

/// The sentinel would start it again.
void RunningProgram::killForGood() {
    if (const auto sentinel = livingChild(static_cast<pid_t>(fProcess.processId()), "watchdog"))
        ::kill(*sentinel, SIGKILL);
    fProcess.kill();
    fProcess.waitForFinished();
}

bool RunningProgram::isRunning() const {
    return fProcess.state() != QProcess::NotRunning;
}

int RunningProgram::exitCode() const {
    return fProcess.exitStatus() == QProcess::NormalExit ? fProcess.exitCode() : -1;
}

qint64 RunningProgram::processId() const {
    return fProcess.processId();
}

QStringList RunningProgram::lines() const {
    return fLines;
}

QString RunningProgram::transcript() const {
    return fLines.join(QLatin1Char('\n')) + QLatin1String("\n--- standard error ---\n") +
           QString::fromUtf8(fErrors);
}

void RunningProgram::readMore(int milliseconds) {
    if (isRunning())
        fProcess.waitForReadyRead(milliseconds);
    fErrors += fProcess.readAllStandardError();
    fRest += fProcess.readAllStandardOutput();
    for (auto end = fRest.indexOf('\n'); end >= 0; end = fRest.indexOf('\n')) {
        fLines << QString::fromUtf8(fRest.left(end));
        fRest.remove(0, end + 1);
    }
}

} // namespace kelvo
