// CommandFiles: small steps on files, each with its diagnostic lines.
#pragma once

#include "ports/terminal.h"

#include <QString>

#include <functional>

namespace kelvo {

class Console;
class FileManager;
class CommandRunner;

/// What the steps work with; the references outlive them.
struct CommandFileParts {
    Console& console;
    FileManager& files;
    CommandRunner& shell;
    Terminal& terminal;
};

/// Main thread only; blocks while a file is changed or a command runs.
class CommandFiles {
public:
    explicit CommandFiles(CommandFileParts parts) : fParts(parts) {}

    /// Whether nothing is left at `path`, which had a file or had none.
    bool removeItemIfExists(const QString& path);

    /// Makes `path` executable (0755) by a shell command; what the command printed, nothing when
    /// all went well.
    QString chmodAsExecutable(const QString& path);

    /// The same by the system call; empty when it went well, otherwise its result in decimal.
    QString chmodAsExecutableBySystemCall(const QString& path);

    /// Writes `command` into the script and opens that in a terminal window with `title`. False
    /// when it could not be written; `ended` is called only after true, as Terminal says.
    bool executeAsCommandFile(const QString& command, std::function<void(TerminalOutcome)> ended,
                              const QString& title = {});

    /// Where the script lies; empty, with a line that says why, when there is no safe place.
    QString scriptPath();

    /// Writes `command` and a line end there; false, with a line that says why, when it failed.
    bool writeScript(const QString& path, const QString& command);

    /// Whether no script lies at `path` any more; otherwise with lines that say so.
    bool removeOldScript(const QString& path);

    void openScript(const QString& path, const QString& command,
                    std::function<void(TerminalOutcome)> ended, const QString& title = {});

private:
    bool removeIfThere(const QString& path);

    const CommandFileParts fParts;
};

} // namespace kelvo
