// ThisTerminal: runs scripts in the terminal that the program was started in.
#pragma once

#include "adapters/system/unique_fd.h"
#include "ports/terminal.h"

#include <sys/types.h>

#include <memory>

class QSocketNotifier;

namespace kelvo {

/// The script has the program's own standard streams and process group: what it asks is answered
/// there, and Ctrl+C ends it. There is no window and no title. Needs an event loop.
class ThisTerminal final : public Terminal {
public:
    ThisTerminal();

    /// A script that still runs is asked to end and waited for, 2 s at most.
    ~ThisTerminal() override;
    ThisTerminal(const ThisTerminal&) = delete;
    ThisTerminal& operator=(const ThisTerminal&) = delete;

    /// One script at a time; a second one while the first runs is not begun.
    void openCommandFile(const QString& path, const QString& command, const QString& title,
                         std::function<void(TerminalOutcome)> ended) override;

    /// Whether a script runs.
    bool isBusy() const { return fChild >= 0; }

private:
    void reap();

    pid_t fChild = -1;
    UniqueFd fEnd; ///< readable once the script has ended
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::function<void(TerminalOutcome)> fEnded;
};

} // namespace kelvo
