// Terminal: a window in which a person answers what a command asks.
#pragma once

#include <QString>

#include <functional>

namespace kelvo {

enum class TerminalOutcome {
    Ended,    ///< the command has ended, well or badly, or its window was closed
    NoWindow, ///< the command was never begun
};

class Terminal {
public:
    virtual ~Terminal() = default;

    /// Runs the script at `path` in a terminal window, which stays until a key is pressed after the
    /// script's end. `title` is the window's, and stands above what the script says; a text of one
    /// line without control characters. Returns at once; the window outlives the program. `ended`
    /// is called once, later on the main thread, when the script has ended; not at all once the
    /// terminal object is gone. `command` is what the script says: where there is no desktop it is
    /// only shown, and `ended` is never called. Main thread.
    virtual void openCommandFile(const QString& path, const QString& command, const QString& title,
                                 std::function<void(TerminalOutcome)> ended) = 0;
};

} // namespace kelvo
