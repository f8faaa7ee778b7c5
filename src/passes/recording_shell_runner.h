// RecordingShellRunner: a shell runner that lets the journal know how each command ended.
#pragma once

#include "ports/shell_runner.h"

namespace kelvo {

class CommandRunner;
class PassJournal;

class RecordingShellRunner final : public ShellRunner {
public:
    /// Both outlive the runner.
    RecordingShellRunner(CommandRunner& commands, PassJournal& journal)
        : fCommands(commands), fJournal(journal) {}

    QString outputWhenRunAsShellCommand(const QString& command) override;
    QString outputWithin(double seconds, const QString& command) override;

private:
    template <typename Run>
    QString recorded(const QString& command, const Run& run);

    CommandRunner& fCommands;
    PassJournal& fJournal;
};

} // namespace kelvo
