#include "passes/recording_shell_runner.h"

#include "passes/pass_journal.h"
#include "ports/command_runner.h"

namespace kelvo {

QString RecordingShellRunner::outputWhenRunAsShellCommand(const QString& command) {
    const double began = fJournal.seconds();
    const CommandResult result = fCommands.run(command);
    fJournal.commandEnded(command, result, fJournal.seconds() - began);
    return result.output;
}

QString RecordingShellRunner::outputWithin(double seconds, const QString& command) {
    const double began = fJournal.seconds();
    const CommandResult result = fCommands.runWithin(seconds, command);
    fJournal.commandEnded(command, result, fJournal.seconds() - began);
    return result.output;
}

} // namespace kelvo
