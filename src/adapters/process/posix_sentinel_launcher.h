// PosixSentinelLauncher: the sentinel as a child process in a session of its own.
#pragma once

#include "ports/sentinel_launcher.h"

namespace kelvo {

/// The sentinel starts with an empty environment, the default action for every signal and none
/// blocked. Besides the standard streams it gets the end of a pipe, which it closes when it is in
/// place, and the table of the commands that run. A thread sleeps for each task until its sentinel
/// ends, and takes its status.
class PosixSentinelLauncher final : public SentinelLauncher {
public:
    /// `runningCommands` is the descriptor of a CommandTable, -1 for none.
    explicit PosixSentinelLauncher(int runningCommands = -1) : fRunningCommands(runningCommands) {}

    bool isExecutable(const QString& path) const override;
    std::optional<SentinelTask> launch(const QString& path, const QStringList& arguments,
                                       Terminated terminated) override;

private:
    const int fRunningCommands;
};

} // namespace kelvo
