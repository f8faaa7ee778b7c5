// RunningProgram: the built program at work on the near host, seen through the lines it prints.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace kelvo {

class RunningProgram {
public:
    /// Starts `program`; it is killed with this object if it has not ended before.
    RunningProgram(
        const QString& program, const QStringList& arguments,
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// The next line that pleases, after the one found last; waits at most `seconds` for it.
    /// Lines in between are passed over. Nothing when time is up or the program has ended without.
    std::optional<QString> waitForLine(const std::function<bool(const QString&)>& pleases,
                                       double seconds);
    /// The same for a line that begins with `start`, for example "status red: ".
    std::optional<QString> waitForLine(const QString& start, double seconds);

    /// Asks for an orderly end (SIGTERM) and waits up to 20 s. The exit code, or -1 when it had to
    /// be killed or died by a signal.
    int stop();
    [[nodiscard]] bool isRunning() const;
    /// Of a program that has ended; -1 for one that died by a signal.
    [[nodiscard]] int exitCode() const;
    [[nodiscard]] qint64 processId() const;
    /// Every line of standard output so far.
    [[nodiscard]] QStringList lines() const;
    /// Both streams, for the message of a failed expectation.
    [[nodiscard]] QString transcript() const;

private:
    void killForGood();
    void readMore(int milliseconds);

    QProcess fProcess;
    QByteArray fRest;
    QByteArray fErrors;
    QStringList fLines;
    qsizetype fNext = 0;
};

} // namespace kelvo
