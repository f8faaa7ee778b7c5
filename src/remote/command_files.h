// CommandFiles: small steps on files, each with its diagnostic lines.
#pragma once

#include "ports/command_runner.h"
#include "ports/terminal.h"

#include <QString>

#include <functional>

namespace kelvo {

class Console;
class FileManager;

/// What the steps work with; the references outlive them.
struct CommandFileParts {
    Console& console;
    FileManager& files;
    Terminal& terminal;
};

/// Any thread, where nothing else is said; blocks while a file is changed or a command runs.
class CommandFiles {
public:
    explicit CommandFiles(CommandFileParts parts) : fParts(parts) {}

    /// Whether nothing is left at `path`, which had a file or had none.
    bool removeItemIfExists(const QString& path);

    /// Makes `path` executable (0755) by a shell command that `run` runs; what the command printed,
    /// nothing when all went well.
    QString chmodAsExecutable(const QString& path, const RunCommand& run);

    /// The same by the system call; empty when it went well, otherwise its result in decimal.
    QString chmodAsExecutableBySystemCall(const QString& path);

    /// Writes `command` into the script and makes that executable: its path, empty when it could
    /// not be written.
    QString writeCommandFile(const QString& command, const RunCommand& run);

    /// Where the script lies; empty, with a line that says why, when there is no safe place.
    QString scriptPath();

    /// Writes `command` and a line end there; false, with a line that says why, when it failed.
    bool writeScript(const QString& path, const QString& command);

    /// Whether no script lies at `path` any more; otherwise with lines that say so.
    bool removeOldScript(const QString& path);

    /// Opens the script in a terminal window, as Terminal says. Main thread; returns at once.
    void openScript(const QString& path, const QString& command,
                    std::function<void(TerminalOutcome)> ended, const QString& title = {});

private:
    bool removeIfThere(const QString& path);

    const CommandFileParts fParts;
};

} // namespace kelvo
