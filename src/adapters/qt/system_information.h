// LocalSystemInformation: what this machine runs, asked in the background.
#pragma once

#include "ports/system_information.h"

#include <QString>

namespace kelvo {

class BackgroundQueue;
class Console;
class ShellRunner;

class LocalSystemInformation final : public SystemInformation {
public:
    /// `programName` is the program with its version, the first line written. The other parts
    /// outlive the work that waits on `bgQueue`.
    LocalSystemInformation(QString programName, ShellRunner& shell, BackgroundQueue& bgQueue,
                           Console& console);

    void logCurrentSystemInfo() override;

private:
    const QString fProgramName;
    ShellRunner& fShell;
    BackgroundQueue& fBgQueue;
    Console& fConsole;
};

} // namespace kelvo
