// PtyProgram: a program in a terminal of its own, at whose keys a test sits.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

#include <sys/types.h>

namespace kelvo {

class PtyProgram {
public:
    /// Starts `command`, the program first, in a session with a terminal.
    explicit PtyProgram(const QStringList& command, const QProcessEnvironment& environment =
                                                        QProcessEnvironment::systemEnvironment());
    /// Ends the program if it has not ended before.
    ~PtyProgram();
    PtyProgram(const PtyProgram&) = delete;
    PtyProgram& operator=(const PtyProgram&) = delete;

    /// Whether `text` came after the one waited for last, within `seconds`.
    bool shows(const QByteArray& text, double seconds = 60);

    /// Types `text` as it stands; "\n" is Return, "\x03" Ctrl+C, "\x04" Ctrl+D.
    void type(const QByteArray& text) const;

    /// Waits for the end: the exit code, or 128 and the signal; -1 when it did not come.
    int end(double seconds = 60);

    /// Everything it has shown so far.
    [[nodiscard]] std::string transcript() const { return fShown.toStdString(); }

private:
    bool readMore(int milliseconds);

    UniqueFd fTerminal;
    pid_t fChild = -1;
    QByteArray fShown;
    qsizetype fFound = 0;
};

} // namespace kelvo
