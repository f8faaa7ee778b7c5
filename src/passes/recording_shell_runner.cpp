#include "passes/recording_shell_runner.h"

#include "passes/pass_journal.h"
#include "ports/command_runner.h"

namespace kelvo {

template <typename Run>
QString RecordingShellRunner::recorded(const QString& command, const Run& run) {
    const double began = fJournal.seconds();
    const CommandResult result = run();
    fJournal.commandEnded(command, result, fJournal.seconds() - began);
    return result.output;
}

QString RecordingShellRunner::outputWhenRunAsShellCommand(const QString& command) {
    return recorded(command, [&] { return fCommands.run(command); });
}

QString RecordingShellRunner::outputWithin(double seconds, const QString& command) {
    return recorded(command, [&] { return fCommands.runWithin(seconds, command); });
}

} // namespace kelvo
