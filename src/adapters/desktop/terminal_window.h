// TerminalWindow: scripts in a window of whichever terminal program the desktop has.
#pragma once

#include "ports/terminal.h"

#include <memory>
#include <string>
#include <vector>

namespace kelvo {

class BackgroundQueue;
class Console;
class DispatchQueue;
class FileManager;

/// A terminal program, with the words that go between it and the command it is to run.
struct TerminalProgram {
    std::string name;
    std::vector<std::string> option;
};

/// The usual ones, the desktop's own choice first.
std::vector<TerminalProgram> knownTerminals();

/// Tries one program after another until a window has opened; they are looked for on the background
/// queue. The end of the script is noticed
/// through a pipe in the user's temporary folder: a terminal program may return at once and leave
/// the window to another process.
class TerminalWindow final : public Terminal {
public:
    /// The references outlive the object. Main thread, with an event loop.
    TerminalWindow(FileManager& files, Console& console, DispatchQueue& mainQueue,
                   BackgroundQueue& bgQueue,
                   std::vector<TerminalProgram> programs = knownTerminals());

    /// Open windows stay.
    ~TerminalWindow() override;

    void openCommandFile(const QString& path, const QString& command, const QString& title,
                         std::function<void(TerminalOutcome)> ended) override;

private:
    class Run;

    FileManager& fFiles;
    Console& fConsole;
    DispatchQueue& fMainQueue;
    BackgroundQueue& fBgQueue;
    const std::vector<TerminalProgram> fPrograms;
    std::vector<std::unique_ptr<Run>> fRuns;
};

} // namespace kelvo
