// LocalSystemInformation: what this machine runs, asked in the background.
#pragma once

#include "ports/system_information.h"

#include <QString>

namespace kelvo {

class BackgroundQueue;
class Console;
class DispatchQueue;
class CommandRunner;

class LocalSystemInformation final : public SystemInformation {
public:
    /// `programName` is the program with its version, the first line written. The other parts
    /// outlive the work that waits on the queues. Nothing is asked before the start-up is over.
    LocalSystemInformation(QString programName, CommandRunner& shell, DispatchQueue& mainQueue,
                           BackgroundQueue& bgQueue, Console& console);

    void logCurrentSystemInfo() override;

private:
    const QString fProgramName;
    CommandRunner& fShell;
    DispatchQueue& fMainQueue;
    BackgroundQueue& fBgQueue;
    Console& fConsole;
};

} // namespace kelvo
