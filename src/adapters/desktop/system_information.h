// SystemInformation: what this machine runs, asked in the background.
#pragma once

#include <QString>

namespace kelvo {

class BackgroundQueue;
class Console;
class DispatchQueue;
class CommandRunner;

class SystemInformation {
public:
    /// `programName` is the program with its version, the first line written. The other parts
    /// outlive the work that waits on the queues. Nothing is asked before the start-up is over.
    SystemInformation(QString programName, CommandRunner& shell, DispatchQueue& mainQueue,
                      BackgroundQueue& bgQueue, Console& console);

    /// Writes a line each about the system, the desktop and the tools the program needs to the
    /// system log, soon: it returns at once. What cannot be found out is said so. Main thread.
    void logCurrentSystemInfo();

private:
    const QString fProgramName;
    CommandRunner& fShell;
    DispatchQueue& fMainQueue;
    BackgroundQueue& fBgQueue;
    Console& fConsole;
};

} // namespace kelvo
