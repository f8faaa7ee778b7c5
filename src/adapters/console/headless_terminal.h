// HeadlessTerminal: the terminal where there is no desktop.
#pragma once

#include "ports/terminal.h"

namespace kelvo {

class Console;

/// Prints "terminal: <command>" for somebody to run it by hand, and never learns of its end.
class HeadlessTerminal final : public Terminal {
public:
    explicit HeadlessTerminal(Console& console) : fConsole(console) {}

    void openCommandFile(const QString& path, const QString& command,
                         std::function<void(TerminalOutcome)> ended) override;

private:
    Console& fConsole;
};

} // namespace kelvo
